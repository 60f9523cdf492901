// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Every conversion between text and numbers. None of them looks at the C locale.
namespace ui {

/// What a comma means in a number that a user or a file gives. A point is a decimal point everywhere.
enum class DecimalSeparator : char { Point = '.', Comma = ',' };

/// The number that `text` spells: blanks around it, a sign, digits with a point, an exponent. Digits may be missing on
/// one side of the point. A comma between digits is a grouping mark, or a point where the separator is the comma.
/// Raises TypeMismatch for any other text and Overflow outside the range of a double.
double toReal(std::string_view text, DecimalSeparator separator = DecimalSeparator::Point);
/// The same for a text that is often a single digit, as most grades are.
inline double gradeToReal(std::string_view text, DecimalSeparator separator) {
    if (text.size() == 1 && text.front() >= '0' && text.front() <= '9') return text.front() - '0';
    return toReal(text, separator);
}

/// The same, with nothing for a text that raises: for whoever expects such texts.
std::optional<double> tryReal(std::string_view text, DecimalSeparator separator = DecimalSeparator::Point);

/// The number as a signed 32-bit integer, halves to even. Raises Overflow outside its range.
std::int32_t toLong(double value);
/// The text as a real and then as a 32-bit integer.
std::int32_t toLong(std::string_view text, DecimalSeparator separator = DecimalSeparator::Point);

/// Whether toReal succeeds.
bool IsNumeric(std::string_view text, DecimalSeparator separator = DecimalSeparator::Point);

/// The number that the text begins with, after blanks; 0 where it begins with none. A point only, no grouping.
/// Never raises: a number too large for a double is the largest one.
double Val(std::string_view text);

/// Plain decimal text with at most 15 significant digits: no exponent, no trailing zeros, no "-0". Raises Overflow for
/// what is no finite number.
std::string toText(double value);
std::string toText(std::int32_t value);

/// The result of real arithmetic; raises Overflow when it is no finite number.
double finite(double value);

/// `value` to `places` decimals, halves to even: times ten to the places, to the nearest whole, divided again.
/// Raises Overflow for what is no finite number.
double roundTo(double value, int places);

/// Whole-number arithmetic that raises Overflow or DivisionByZero instead of wrapping.
std::int32_t addLong(std::int32_t left, std::int32_t right);
std::int32_t multiplyLong(std::int32_t left, std::int32_t right);
std::int32_t divideLong(std::int32_t left, std::int32_t right);
std::int32_t remainderLong(std::int32_t left, std::int32_t right);

}  // namespace ui
