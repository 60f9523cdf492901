// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "ui/errors.h"

using ui::DecimalSeparator;
using ui::ErrorNumber;

namespace {

/// Number of the run-time error that the action ends in, 0 for none.
template <class Action>
int errorOf(Action action) {
    try {
        action();
    } catch (const ui::RunTimeError& error) {
        return error.Number;
    }
    return 0;
}

struct RealRow {
    std::string Text;
    double Value;
};

const std::vector<RealRow> Reals = {
    {"0", 0},
    {"12", 12},
    {"007", 7},
    {" 5 ", 5},
    {"   -5", -5},
    {"+5", 5},
    {".5", 0.5},
    {"5.", 5},
    {"-.25", -0.25},
    {"0.1", 0.1},
    {"1e3", 1000},
    {"1E-2", 0.01},
    {"2.5e+1", 25},
    {"5.e1", 50},
    {"1,000", 1000},
    {"1,000.5", 1000.5},
    {"12,34", 1234},
    {"-1,234,567", -1234567},
    {"123456789012345", 123456789012345.0},
    {"12345678901234567890", 12345678901234567890.0},
    {"0.30000000000000004", 0.30000000000000004},
    {"179769313486231570000000000000e279", std::numeric_limits<double>::max()},
    {"1e-400", 0},
    {"0.0000001e-320", 0},
    {"0e999", 0},
};

}  // namespace

TEST(TextToReal, ReadsSignDigitsPointAndExponent) {
    for (const RealRow& row : Reals) {
        EXPECT_EQ(ui::toReal(row.Text), row.Value) << row.Text;
        EXPECT_EQ(ui::tryReal(row.Text), row.Value) << row.Text;
        EXPECT_TRUE(ui::IsNumeric(row.Text)) << row.Text;
    }
}

TEST(TextToReal, RefusesAnythingElseAsATypeMismatch) {
    for (const std::string text :
         {"",      " ",   ".",    "+",     "-",   "abc",  "1a",  "a1",   "1 2", "1e",  "1e+", "e5",
          "--1",   "+-1", "- 1",  "1.2.3", ",1",  "1,",   ",",   "1,,2", "1.,", "1,.", "½",   "0x1A",
          "&H1A",  "1d5", "1e5f", "inf",   "nan", "-inf", "\t1", "1\t",  "1\r", "1%",  "1$",  "١",
          "1e1.5", "(1)", "1-",   "1_0",   "..5", "5..",  "+.",  "True", "N/A", "0 0"}) {
        EXPECT_EQ(errorOf([&] { ui::toReal(text); }), 13) << "'" << text << "'";
        EXPECT_FALSE(ui::tryReal(text)) << "'" << text << "'";
        EXPECT_FALSE(ui::IsNumeric(text)) << "'" << text << "'";
    }
}

TEST(TextToReal, EndsInOverflowBeyondTheRangeOfADouble) {
    for (const std::string& text : {std::string("1e309"), std::string("-1e309"), std::string("+1.8e308"),
                                    std::string("1e99999999999"), std::string(400, '9')}) {
        EXPECT_EQ(errorOf([&] { ui::toReal(text); }), 6) << text;
        EXPECT_FALSE(ui::IsNumeric(text)) << text;
    }
}

TEST(TextToReal, ReadsACommaAsAPointWhereThatIsTheSeparator) {
    const std::vector<RealRow> rows = {{"1,5", 1.5},     {",5", 0.5},    {"5,", 5},     {"1.5", 1.5},
                                       {"-0,25", -0.25}, {"1,5e2", 150}, {"1,000", 1.0}};
    for (const RealRow& row : rows)
        EXPECT_EQ(ui::toReal(row.Text, DecimalSeparator::Comma), row.Value) << row.Text;
    for (const std::string text : {"1,5,5", "1.000,5", "1,000.5", ","}) {
        EXPECT_EQ(errorOf([&] { ui::toReal(text, DecimalSeparator::Comma); }), 13) << text;
    }
}

TEST(TextToLong, RoundsHalvesToEven) {
    struct Row {
        std::string Text;
        int Value;
    };
    const std::vector<Row> rows = {{"0.5", 0},
                                   {"1.5", 2},
                                   {"2.5", 2},
                                   {"3.5", 4},
                                   {"-0.5", 0},
                                   {"-1.5", -2},
                                   {"0.4", 0},
                                   {"0.6", 1},
                                   {" 7 ", 7},
                                   {"1e3", 1000},
                                   {"2147483647", 2147483647},
                                   {"2147483647.4", 2147483647},
                                   {"-2147483648", std::numeric_limits<int>::min()},
                                   {"-2147483648.5", std::numeric_limits<int>::min()}};
    for (const Row& row : rows) EXPECT_EQ(ui::toLong(row.Text), row.Value) << row.Text;
}

TEST(TextToLong, EndsInOverflowBeyond32Bits) {
    for (const std::string text : {"2147483648", "2147483647.5", "-2147483649", "1e10", "-1e300"}) {
        EXPECT_EQ(errorOf([&] { ui::toLong(text); }), 6) << text;
    }
}

TEST(TextToLong, RefusesWhatIsNoNumber) {
    EXPECT_EQ(errorOf([] { ui::toLong(""); }), 13);
    EXPECT_EQ(errorOf([] { ui::toLong("two"); }), 13);
}

TEST(RealToLong, RefusesWhatIsNotFinite) {
    EXPECT_EQ(errorOf([] { ui::toLong(std::numeric_limits<double>::quiet_NaN()); }), 6);
    EXPECT_EQ(errorOf([] { ui::toLong(std::numeric_limits<double>::infinity()); }), 6);
}

TEST(NumberToText, IsPlainDecimalWithAtMostFifteenDigits) {
    struct Row {
        double Value;
        std::string Text;
    };
    const std::vector<Row> rows = {{0, "0"},
                                   {-0.0, "0"},
                                   {1, "1"},
                                   {-1, "-1"},
                                   {10, "10"},
                                   {100, "100"},
                                   {0.5, "0.5"},
                                   {-0.5, "-0.5"},
                                   {1234.5, "1234.5"},
                                   {0.001, "0.001"},
                                   {0.05, "0.05"},
                                   {1.0 / 3, "0.333333333333333"},
                                   {2.0 / 3, "0.666666666666667"},
                                   {0.1 + 0.2, "0.3"},
                                   {100.0 / 3, "33.3333333333333"},
                                   {999999999999999.9, "1000000000000000"},
                                   {123456789012345678.0, "123456789012346000"},
                                   {1e15, "1000000000000000"},
                                   {1e20, "100000000000000000000"},
                                   {1.5e-7, "0.00000015"},
                                   {-1e-10, "-0.0000000001"},
                                   {2147483648.0, "2147483648"}};
    for (const Row& row : rows) EXPECT_EQ(ui::toText(row.Value), row.Text);
    EXPECT_EQ(ui::toText(1e300), "1" + std::string(300, '0'));
    EXPECT_EQ(ui::toText(1e-300), "0." + std::string(299, '0') + "1");
    EXPECT_EQ(ui::toText(-2147483647 - 1), "-2147483648");
    EXPECT_EQ(ui::toText(42), "42");
}

TEST(NumberToText, EndsInOverflowForWhatIsNotFinite) {
    EXPECT_EQ(errorOf([] { ui::toText(std::numeric_limits<double>::infinity()); }), 6);
    EXPECT_EQ(errorOf([] { ui::toText(std::numeric_limits<double>::quiet_NaN()); }), 6);
}

TEST(NumberToText, GivesBackEveryDecimalOfUpToFifteenDigitsAsItWasRead) {
    std::mt19937_64 random(20261120);
    for (int round = 0; round < 20000; ++round) {
        const std::string digits = std::to_string(random() % 999999999999999 + 1);
        const std::size_t point = random() % (digits.size() + 1);
        std::string text = digits.substr(0, point);
        std::string fraction = digits.substr(point);
        fraction.erase(fraction.find_last_not_of('0') + 1);
        if (text.empty()) text = "0";
        if (!fraction.empty()) text += "." + fraction;
        ASSERT_EQ(ui::toText(ui::toReal(text)), text);
    }
}

TEST(NumberToText, TellsAThousandthFromTheNumbersBesideIt) {
    std::mt19937_64 random(20261122);
    for (int round = 0; round < 20000; ++round) {
        const auto range = static_cast<std::int64_t>(1) << (10 + random() % 33);
        const double thousandth =
            static_cast<double>(static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(range)) -
                                range / 2) /
            1000;
        for (double value :
             {thousandth, std::nextafter(thousandth, 1e300), std::nextafter(thousandth, -1e300)}) {
            if (std::abs(value) < 1e-4) continue;  // written there with an exponent
            char expected[40];
            std::snprintf(expected, sizeof expected, "%.15g", value);
            ASSERT_EQ(ui::toText(value), expected);
        }
    }
    EXPECT_EQ(ui::toText(-0.0), "0");
}

TEST(Rounding, GoesToTheNearestWithHalvesToEven) {
    struct Row {
        double Value;
        int Places;
        double Rounded;
    };
    const std::vector<Row> rows = {
        {0.0005, 3, 0},      {0.0015, 3, 0.002},  {0.0025, 3, 0.002},   {0.1245, 3, 0.124}, {1.0005, 3, 1},
        {2.5, 0, 2},         {3.5, 0, 4},         {-2.5, 0, -2},        {0.125, 2, 0.12},   {0.375, 2, 0.38},
        {1.0 / 3, 3, 0.333}, {2.0 / 3, 3, 0.667}, {-0.0015, 3, -0.002}, {5, 3, 5}};
    for (const Row& row : rows) EXPECT_EQ(ui::roundTo(row.Value, row.Places), row.Rounded) << row.Value;
}

TEST(Rounding, EndsInOverflowWhereTheProductIsTooLarge) {
    EXPECT_EQ(errorOf([] { ui::roundTo(1e308, 3); }), 6);
}

TEST(LeadingNumber, ReadsAsFarAsTheTextIsANumber) {
    const std::vector<RealRow> rows = {{"12abc", 12},  {"1,5", 1}, {"-3.5x", -3.5}, {"  7 km", 7},
                                       {"1e3x", 1000}, {"1e", 1},  {"1e+", 1},      {".5", 0.5},
                                       {"5.", 5},      {"+2", 2},  {"1.2.3", 1.2},  {"1.2km", 1.2}};
    for (const RealRow& row : rows) EXPECT_EQ(ui::Val(row.Text), row.Value) << row.Text;
}

TEST(LeadingNumber, IsZeroWhereTheTextBeginsWithNone) {
    for (const std::string text : {"", " ", "abc", "-", ".", "e5", ",5", "-x1", "km 5"})
        EXPECT_EQ(ui::Val(text), 0) << text;
}

TEST(WholeNumbers, RaiseInsteadOfWrapping) {
    constexpr int Least = std::numeric_limits<int>::min();
    constexpr int Most = std::numeric_limits<int>::max();
    EXPECT_EQ(ui::addLong(2, 3), 5);
    EXPECT_EQ(ui::addLong(Most, Least), -1);
    EXPECT_EQ(errorOf([] { ui::addLong(Most, 1); }), 6);
    EXPECT_EQ(errorOf([] { ui::addLong(Least, -1); }), 6);
    EXPECT_EQ(ui::divideLong(7, 2), 3);
    EXPECT_EQ(ui::divideLong(-7, 2), -3);
    EXPECT_EQ(errorOf([] { ui::divideLong(1, 0); }), 11);
    EXPECT_EQ(errorOf([] { ui::divideLong(Least, -1); }), 6);
    EXPECT_EQ(ui::remainderLong(7, 3), 1);
    EXPECT_EQ(ui::remainderLong(Least, -1), 0);
    EXPECT_EQ(errorOf([] { ui::remainderLong(1, 0); }), 11);
}
