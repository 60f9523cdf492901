// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/use.h"

#include <gmock/gmock.h>

#include "landscapes.h"

namespace {

using namespace method;
using testing::ElementsAre;
constexpr Quantity Level = Quantity::HabitatLevel;

UseTotals totalsOf(const Table& levels) {
    UseTotals totals;
    totalUse(levels, Level, totals);
    return totals;
}

TEST(Use, the_small_landscape) {
    const UseTotals totals = totalsOf(smallExample().Landscape.HabitatLevels);
    EXPECT_THAT(totals.LevelBySpecies, ElementsAre(6, 4, 3, 6, 4, 4, 3));
    EXPECT_THAT(totals.UnitsBySpecies, ElementsAre(3, 2, 1, 3, 2, 2, 1));
    EXPECT_THAT(totals.LevelByUnit, ElementsAre(9, 8, 6, 7));
    EXPECT_THAT(totals.SpeciesByUnit, ElementsAre(5, 4, 2, 3));
}

TEST(Use, a_blank_level_counts_0_and_a_fraction_rounds_halves_to_even) {
    const UseTotals totals = totalsOf(tableOf({{Blank, 1.5, 2.5, 0.4}}));
    EXPECT_THAT(totals.LevelByUnit, ElementsAre(0, 2, 2, 0));
    EXPECT_THAT(totals.UnitsBySpecies, ElementsAre(2));
}

TEST(Use, a_negative_level_enters_the_sums_alone) {
    const UseTotals totals = totalsOf(tableOf({{-2, 3}, {1, 1}}));
    EXPECT_THAT(totals.LevelBySpecies, ElementsAre(1, 2));
    EXPECT_THAT(totals.UnitsBySpecies, ElementsAre(1, 2));
    EXPECT_THAT(totals.SpeciesByUnit, ElementsAre(1, 2));
}

TEST(Use, what_is_no_number_stops_the_totals_and_leaves_the_species_before) {
    UseTotals totals;
    try {
        totalUse(tableOf({{1, 2}, {3, Unreadable}}), Level, totals);
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.At, Step::UnitUse);
        EXPECT_EQ(failure.Why, Cause::NoNumber);
        EXPECT_EQ(failure.What, Level);
        EXPECT_EQ(failure.Row, 1U);
        EXPECT_EQ(failure.Column, 1U);
        EXPECT_STREQ(failure.what(), "a value that is needed is no number");
    }
    EXPECT_THAT(totals.LevelBySpecies, ElementsAre(3));
}

TEST(Use, a_level_or_a_sum_beyond_32_bits_is_too_large) {
    for (const std::vector<double>& row : {std::vector{3e9, 0.0}, std::vector{2147483647.0, 1.0}}) {
        try {
            totalsOf(tableOf({row}));
            FAIL();
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Why, Cause::TooLarge);
        }
    }
}

TEST(Use, one_row_by_the_same_rule) {
    const std::vector<double> levels = {2, Blank, 0, 1.5, -1};
    const Use use = useOf(levels);
    EXPECT_EQ(use.Level, 3);
    EXPECT_EQ(use.Count, 2);
}

TEST(Use, of_one_row_never_fails) {
    const std::vector<double> levels = {Unreadable, 2, Unreadable, 3e9, Blank, Unreadable};
    EXPECT_EQ(useOf(levels).Level, 6) << "each counts like the one before it";
    EXPECT_EQ(useOf(levels).Count, 3);
    const std::vector<double> large = {2147483647, 1, -7};
    EXPECT_EQ(useOf(large).Level, 2147483640) << "1 would carry the sum beyond 32 bits";
    EXPECT_EQ(useOf(large).Count, 2);
}

TEST(Use, the_area_used_takes_any_level_but_0_and_passes_over_what_is_no_number) {
    const std::vector<double> levels = {1, 0, Blank, -1, 3, 2};
    EXPECT_EQ(areaUsed(levels, std::vector<double>{10, 20, 40, 80, Unreadable}), 90);
}

TEST(Use, the_proportion_has_3_decimals) {
    EXPECT_EQ(proportionOf(2, 3), 0.667);
    EXPECT_EQ(proportionOf(1, 0), std::nullopt);
    EXPECT_EQ(proportionOf(1, -1), std::nullopt);
    EXPECT_THROW(proportionOf(1, 1e-308), Failure);
}

}  // namespace
