// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using testing::ElementsAre;

TEST(Trim, TakesBlanksOnlyAndAtTheEndsOnly) {
    EXPECT_EQ(ui::trim("  a b  "), "a b");
    EXPECT_EQ(ui::trim("   "), "");
    EXPECT_EQ(ui::trim(""), "");
    EXPECT_EQ(ui::trim("\ta "), "\ta");
    EXPECT_TRUE(ui::isBlank(""));
    EXPECT_TRUE(ui::isBlank("  "));
    EXPECT_FALSE(ui::isBlank("\t"));
    EXPECT_FALSE(ui::isBlank(" 0"));
}

TEST(Characters, AreCodePoints) {
    EXPECT_EQ(ui::length(""), 0U);
    EXPECT_EQ(ui::length("abc"), 3U);
    EXPECT_EQ(ui::length("çé€"), 3U);
    EXPECT_EQ(ui::length("𝄞x"), 2U);
    EXPECT_EQ(ui::firstCharacters("Ünlü", 2), "Ün");
    EXPECT_EQ(ui::firstCharacters("€€€", 1), "€");
    EXPECT_EQ(ui::firstCharacters("€€€", 3), "€€€");
    EXPECT_EQ(ui::firstCharacters("abc", 20), "abc");
    EXPECT_EQ(ui::firstCharacters("abc", 0), "");
}

TEST(Split, KeepsEmptyParts) {
    EXPECT_THAT(ui::split("a|b|c", '|'), ElementsAre("a", "b", "c"));
    EXPECT_THAT(ui::split("|a||", '|'), ElementsAre("", "a", "", ""));
    EXPECT_THAT(ui::split("", '|'), ElementsAre(""));
}

TEST(Join, PutsTheSeparatorBetween) {
    EXPECT_EQ(ui::join({"a", "b", "c"}, ", "), "a, b, c");
    EXPECT_EQ(ui::join({"a", "", ""}, ","), "a,,");
    EXPECT_EQ(ui::join({"a", "a"}, "-"), "a-a");
    EXPECT_EQ(ui::join({}, ","), "");
}

TEST(CaseFolding, MakesTextsThatDifferInCaseOnlyEqual) {
    struct Pair {
        std::string Left;
        std::string Right;
    };
    const std::vector<Pair> equal = {{"Lynx", "LYNX"}, {"é", "É"}, {"ŒUVRE", "œuvre"}, {"ΣΑΣ", "σας"},
                                     {"ЖУК", "жук"},   {"ÿ", "Ÿ"}, {"K", "k"},         {"ẞ", "ß"},
                                     {"Ꭰ", "ꭰ"},     {"𐐀", "𐐨"}, {"Ǆ", "ǆ"},         {"ǅ", "ǆ"},
                                     {"µ", "μ"},       {"", ""}};
    for (const Pair& pair : equal) EXPECT_TRUE(ui::equalsIgnoringCase(pair.Left, pair.Right)) << pair.Left;
}

TEST(CaseFolding, KeepsDifferentTextsApart) {
    EXPECT_FALSE(ui::equalsIgnoringCase("e", "é"));
    EXPECT_FALSE(ui::equalsIgnoringCase("ss", "ß"));
    EXPECT_FALSE(ui::equalsIgnoringCase("i", "İ"));
    EXPECT_FALSE(ui::equalsIgnoringCase("a", "ab"));
    EXPECT_FALSE(ui::equalsIgnoringCase("ab", "a"));
    EXPECT_FALSE(ui::equalsIgnoringCase("@", "`"));
    EXPECT_FALSE(ui::equalsIgnoringCase("[", "{"));
    EXPECT_FALSE(ui::equalsIgnoringCase("×", "÷"));
    EXPECT_FALSE(ui::equalsIgnoringCase("ā", "ą"));
}

TEST(CaseFolding, FindsAPartInAnyCase) {
    EXPECT_TRUE(ui::containsIgnoringCase("Brown Bear", "BEAR"));
    EXPECT_TRUE(ui::containsIgnoringCase("ÉTÉ", "té"));
    EXPECT_FALSE(ui::containsIgnoringCase("Bear", "bears"));
}

TEST(DecodedBytes, AreUtf8AsTheyStandOrElseWindows1252) {
    struct Row {
        std::string Bytes;
        std::string Text;
    };
    const std::vector<Row> rows = {
        {"plain", "plain"},
        {"\xC3\xA9t\xC3\xA9", "été"},
        {"\xE9t\xE9", "été"},
        {"\x80 \x99 \x9F", "€ ™ Ÿ"},
        {"caf\xE9 \xE2\x82\xAC", "café €"},
        {"\xA0\xFF", "\xC2\xA0ÿ"},
        {"\x81", "\xC2\x81"},
        {"\xE2\x82", "â‚"},                   // cut off at the end
        {"\xC0\x80", "À€"},                   // longer than it need be
        {"\xED\xA0\x80", "í\xC2\xA0€"},       // half of a surrogate pair
        {"\xF4\x90\x80\x80", "ô\xC2\x90€€"},  // beyond the last code point
        {"\xE0\x80\x80", "à€€"},
        {"\xF0\x9D\x84\x9E", "𝄞"},
        {"\xC3", "Ã"},
        {"\xC3(", "Ã("},
    };
    for (const Row& row : rows) EXPECT_EQ(ui::decodeBytes(row.Bytes), row.Text);
}
