// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>

/// Most numbers of the method pass from step to step as a table shows them: rounded, and with the 15 digits that a text
/// keeps. This reproduces the rounding that a printed table would cause. "No number" is Blank or Unreadable.
namespace method {

/// A value that is missing: nothing was entered. Some steps take it for 0; where a number is needed it fails.
inline constexpr double Blank = std::bit_cast<double>(std::uint64_t{0x7FF8'0000'0000'0001});
/// A value that is there and is no number.
inline constexpr double Unreadable = std::bit_cast<double>(std::uint64_t{0x7FF8'0000'0000'0002});

inline bool isNumber(double value) { return value == value; }
inline bool isBlank(double value) {
    return std::bit_cast<std::uint64_t>(value) == std::bit_cast<std::uint64_t>(Blank);
}

/// Ten to the power of 0 to 15, each exact.
inline constexpr std::array<double, 16> PowersOfTen = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                       1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// How many significant digits of a number a text keeps.
inline constexpr int SignificantDigits = 15;

/// The nearest whole number, of two equally near ones the even one. A zero has no sign.
inline double nearestWhole(double value) {
    // From here on up the sum has no digits left behind the point, and is rounded as every sum is.
    constexpr double NoFraction = 0x1.8p52;
    if (std::abs(value) < 0x1p51) return (value + NoFraction) - NoFraction;
    return std::nearbyint(value);
}

/// `value` to `places` decimals, 0 to 15: times 10^places, to the nearest whole number, halves to even, divided again.
/// Not finite where the product is not.
inline double roundTo(double value, int places) {
    const double scale = PowersOfTen[static_cast<std::size_t>(places)];
    return nearestWhole(value * scale) / scale;
}

/// What is left of a number when it is written with 15 significant digits and read again. Infinite where the largest
/// numbers are rounded up beyond the range.
double asWritten(double value);

/// roundTo and asWritten in one: the rounding that a printed table would cause.
inline double shownTo(double value, int places) {
    const double rounded = roundTo(value, places);
    // With 15 digits at the most the text says exactly what was rounded.
    const double safe = PowersOfTen[static_cast<std::size_t>(SignificantDigits - places)];
    return std::abs(rounded) < safe ? rounded : asWritten(rounded);
}

/// A finite number in 15 significant digits: 0.d₁d₂… × 10^Exponent, without zeros at the end; Count is 0 for zero.
struct Decimal {
    bool Negative = false;
    std::array<char, SignificantDigits> Digits{};
    int Count = 0;
    int Exponent = 0;
};
Decimal toDecimal(double value);

}  // namespace method
