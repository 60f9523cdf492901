// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/numbers.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>
#include <string>

namespace {

using namespace method;

std::string digitsOf(double value) {
    const Decimal decimal = toDecimal(value);
    return (decimal.Negative ? "-" : "") +
           std::string(decimal.Digits.data(), static_cast<std::size_t>(decimal.Count)) + "e" +
           std::to_string(decimal.Exponent);
}

TEST(Numbers, blank_and_unreadable_are_no_numbers_and_differ) {
    EXPECT_FALSE(isNumber(Blank));
    EXPECT_FALSE(isNumber(Unreadable));
    EXPECT_TRUE(isNumber(0));
    EXPECT_TRUE(isBlank(Blank));
    EXPECT_FALSE(isBlank(Unreadable));
    EXPECT_FALSE(isBlank(0));
}

TEST(Numbers, halves_round_to_the_even_neighbour) {
    EXPECT_EQ(nearestWhole(0.5), 0);
    EXPECT_EQ(nearestWhole(1.5), 2);
    EXPECT_EQ(nearestWhole(2.5), 2);
    EXPECT_EQ(nearestWhole(-2.5), -2);
    EXPECT_EQ(roundTo(0.0625, 3), 0.062);
    EXPECT_EQ(roundTo(0.1875, 3), 0.188);
    EXPECT_EQ(roundTo(2.675, 2), 2.68);  // 267.49999999999997 becomes 267.5 in the product
}

TEST(Numbers, a_rounded_zero_has_no_sign) {
    EXPECT_FALSE(std::signbit(roundTo(-0.0001, 3)));
    EXPECT_FALSE(std::signbit(asWritten(-0.0)));
}

TEST(Numbers, what_cannot_be_scaled_is_not_finite) {
    EXPECT_FALSE(std::isfinite(roundTo(1e306, 3)));
    EXPECT_FALSE(std::isfinite(asWritten(std::numeric_limits<double>::max())));
}

TEST(Numbers, a_text_keeps_15_digits) {
    EXPECT_EQ(asWritten(1.0 / 3), 0.333333333333333);
    EXPECT_EQ(asWritten(123456789012345678), 123456789012346000);
    EXPECT_EQ(asWritten(0.1 + 0.2), 0.3);
    EXPECT_EQ(asWritten(-1e-300 / 3), -3.33333333333333e-301);
}

TEST(Numbers, decimals_stand_behind_the_point_without_zeros_at_the_end) {
    EXPECT_EQ(digitsOf(0), "e0");
    EXPECT_EQ(digitsOf(5), "5e1");
    EXPECT_EQ(digitsOf(-0.25), "-25e0");
    EXPECT_EQ(digitsOf(1200), "12e4");
    EXPECT_EQ(digitsOf(1.0 / 3), "333333333333333e0");
    EXPECT_EQ(digitsOf(0.9999999999999999), "1e1");
    EXPECT_EQ(digitsOf(1.5e300), "15e301");
    EXPECT_EQ(digitsOf(-2e-300), "-2e-299");
}

RC_GTEST_PROP(Numbers, nearest_is_what_the_standard_library_takes_for_nearest, (int whole, unsigned parts)) {
    const double value = whole / 2.0 + parts % 1000 / 4096.0;
    RC_ASSERT(nearestWhole(value) == std::nearbyint(value));
    RC_ASSERT(nearestWhole(value * 0x1p40) == std::nearbyint(value * 0x1p40));
}

RC_GTEST_PROP(Numbers, thousandths_are_read_as_they_were_written, (int thousandths)) {
    const double value = thousandths / 1000.0;
    RC_ASSERT(asWritten(value) == value);
    RC_ASSERT(shownTo(value, 3) == value);
}

RC_GTEST_PROP(Numbers, shown_is_rounded_then_written, (double value)) {
    RC_PRE(std::isfinite(value * 1000));
    RC_ASSERT(shownTo(value, 3) == asWritten(roundTo(value, 3)));
}

}  // namespace
