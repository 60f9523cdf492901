// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/numbers.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace method {

namespace {

/// d.dd…de±xx, with one digit before the point and 14 behind it.
struct Scientific {
    explicit Scientific(double value) {
        End = std::to_chars(Text.data(), Text.data() + Text.size(), value, std::chars_format::scientific,
                            SignificantDigits - 1)
                  .ptr;
    }
    std::array<char, 32> Text{};
    const char* End;
};

}  // namespace

double asWritten(double value) {
    if (std::abs(value) < PowersOfTen.back() && value == nearestWhole(value)) return value + 0.0;
    if (!std::isfinite(value)) return value;
    const Scientific written(value);
    double read = 0;
    const auto error = std::from_chars(written.Text.data(), written.End, read).ec;
    if (error == std::errc()) return read;
    return std::copysign(std::numeric_limits<double>::infinity(), value);
}

Decimal toDecimal(double value) {
    const Scientific written(std::abs(value));
    Decimal decimal;
    decimal.Digits[0] = written.Text[0];
    std::copy_n(written.Text.begin() + 2, SignificantDigits - 1, decimal.Digits.begin() + 1);
    decimal.Count = SignificantDigits;
    while (decimal.Count > 0 && decimal.Digits[static_cast<std::size_t>(decimal.Count) - 1] == '0')
        --decimal.Count;
    if (decimal.Count == 0) return {};
    const char* power = written.Text.data() + SignificantDigits + 2;  // past the digits, the point and the e
    if (*power == '+') ++power;
    std::from_chars(power, written.End, decimal.Exponent);
    ++decimal.Exponent;
    decimal.Negative = value < 0;
    return decimal;
}

}  // namespace method
