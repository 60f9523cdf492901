// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/scores.h"

#include <gmock/gmock.h>

#include "landscapes.h"
#include "method/assessment.h"

namespace {

using namespace method;
using testing::ElementsAre;
using Kind = HomeRanges::Kind;

std::vector<double> valuesOf(const CriterionScores& scores) {
    std::vector<double> values;
    for (std::size_t i = 0; i < Criteria; ++i) values.push_back(scores[i]);
    return values;
}

/// Calls `calculate` and returns the failure that it must end in.
template <class Calculation>
Failure failureOf(Calculation calculate) {
    try {
        calculate();
    } catch (const Failure& failure) {
        return failure;
    }
    throw std::runtime_error("nothing failed");
}

TEST(Scores, areas_are_scaled_to_the_largest) {
    EXPECT_THAT(scaleHomeRanges({Kind::Areas, 0, {20, 5, Blank, 0}}), ElementsAre(3, 0.75, 0, 0));
    EXPECT_THAT(scaleHomeRanges({Kind::Areas, 0, {Blank, 0}}), ElementsAre(0, 0));
}

TEST(Scores, classes_are_scaled_to_the_number_of_classes) {
    EXPECT_THAT(scaleHomeRanges({Kind::Classes, 6, {1, 6, 2}}), ElementsAre(0.5, 3, 1));
    EXPECT_THAT(scaleHomeRanges({Kind::Classes, 0, {Unreadable}}), ElementsAre(0));
}

TEST(Scores, an_unknown_class_is_that_of_the_species_before) {
    EXPECT_THAT(scaleHomeRanges({Kind::Classes, 3, {Unreadable, 2, Blank, Unreadable}}),
                ElementsAre(0, 2, 0, 2));
}

TEST(Scores, an_area_that_is_no_number_fails) {
    const Failure failure = failureOf([] { scaleHomeRanges({Kind::Areas, 0, {1, Unreadable}}); });
    EXPECT_EQ(failure.At, Step::HomeRangeScale);
    EXPECT_EQ(failure.What, Quantity::HomeRange);
    EXPECT_EQ(failure.Row, 1U);
}

TEST(Scores, equal_values_give_the_later_one_the_better_rank) {
    EXPECT_THAT(ranksOf(std::vector<double>{2, 5, 2, 7}), ElementsAre(4, 2, 3, 1));
    EXPECT_THAT(ranksOf(std::vector<double>{1, 1, 1}), ElementsAre(3, 2, 1));
    EXPECT_THAT(ranksOf(std::vector<double>{}), ElementsAre());
}

TEST(Scores, the_small_landscape) {
    Assessment assessment;
    assess(smallExample().Landscape, assessment);
    const Scores& scores = assessment.Species;
    EXPECT_THAT(valuesOf(scores.Original[0]), ElementsAre(17, 5.3, 45.6, 3, 4));
    EXPECT_THAT(valuesOf(scores.Original[3]), ElementsAre(17, 1.9, 29.2, 5, 4));
    EXPECT_THAT(valuesOf(scores.Original[6]), ElementsAre(9, 1.43, 0.3, 3, 1));
    EXPECT_THAT(valuesOf(scores.Highest), ElementsAre(17, 5.3, 45.6, 5, 4));
    EXPECT_THAT(valuesOf(scores.Normalised[1]), ElementsAre(0.647, 0.538, 0.632, 0.4, 0.5));
    EXPECT_THAT(valuesOf(scores.Normalised[6]), ElementsAre(0.529, 0.27, 0.007, 0.6, 0.25));
    EXPECT_THAT(scores.Aggregate, ElementsAre(4.6, 2.717, 2.035, 3.998, 1.946, 1.981, 1.656));
    EXPECT_THAT(scores.Rank, ElementsAre(1, 3, 4, 2, 6, 5, 7));
    EXPECT_THAT(scores.ByRank, ElementsAre(0, 3, 1, 2, 5, 4, 6));
}

TEST(Scores, a_criterion_on_which_nobody_is_above_0_counts_0) {
    Landscape land = emptyLandscape(2, 1, 1, 1);
    land.Functions.at(0, 0) = -1;
    Assessment assessment;
    assess(land, assessment);
    EXPECT_EQ(assessment.Species.Original[0][Criterion::Functionality], -1);
    EXPECT_EQ(assessment.Species.Normalised[0][Criterion::Functionality], 0);
}

TEST(Scores, the_numerator_is_rounded_and_the_divisor_is_not) {
    Landscape land = emptyLandscape(2, 1, 1, 1);
    land.Occupied = {0.0004, 0.0014};
    land.Ranges.Values = {Blank, Blank};
    Assessment assessment;
    assess(land, assessment);
    EXPECT_EQ(assessment.Species.Original[1][Criterion::Area], 0.001);
    EXPECT_EQ(assessment.Species.Normalised[1][Criterion::Area], 0.714);  // 0.001 / 0.0014
}

TEST(Scores, each_value_fails_in_its_own_step) {
    struct Case {
        void (*Spoil)(Landscape&);
        Step At;
        Quantity What;
        std::size_t Column;
    };
    const Case cases[] = {
        {[](Landscape& land) { land.HabitatLevels.at(1, 2) = Blank; }, Step::Heterogeneity,
         Quantity::HabitatLevel, 2},
        {[](Landscape& land) { land.ZoneLevels.at(1, 1) = Unreadable; }, Step::Heterogeneity,
         Quantity::ZoneLevel, 1},
        {[](Landscape& land) { land.Occupied[1] = Blank; }, Step::Area, Quantity::Occupied, 0},
        {[](Landscape& land) { land.Status[1] = Blank; }, Step::Vulnerability, Quantity::Status, 0},
        {[](Landscape& land) { land.Functions.at(1, 2) = Blank; }, Step::Functionality, Quantity::Function,
         2},
        {[](Landscape& land) { land.SocioEconomics.at(1, 4) = Unreadable; }, Step::SocioEconomics,
         Quantity::SocioEconomicValue, 4}};
    for (const Case& spoilt : cases) {
        Landscape land = emptyLandscape(3, 3, 2, 1);
        spoilt.Spoil(land);
        Assessment assessment;
        const Failure failure = failureOf([&] { assess(land, assessment); });
        EXPECT_EQ(failure.At, spoilt.At);
        EXPECT_EQ(failure.Why, Cause::NoNumber);
        EXPECT_EQ(failure.What, spoilt.What);
        EXPECT_EQ(failure.Row, 1U);
        EXPECT_EQ(failure.Column, spoilt.Column);
        EXPECT_EQ(assessment.Species.Original.size(), 1U) << "the species before stays";
    }
}

TEST(Scores, a_sum_that_is_too_large_fails_in_its_own_step) {
    Landscape land = emptyLandscape(1, 1, 1, 1);
    land.HabitatLevels.at(0, 0) = 1e308;
    Assessment assessment;
    const Failure failure = failureOf([&] { assess(land, assessment); });
    EXPECT_EQ(failure.At, Step::Heterogeneity);
    EXPECT_EQ(failure.Why, Cause::TooLarge);
    land.HabitatLevels.at(0, 0) = 1e306;  // the sum is fine, a thousand times it is not
    EXPECT_EQ(failureOf([&] { assess(land, assessment); }).At, Step::Normalisation);
}

TEST(Scores, a_sum_whose_15_digits_are_too_large_fails_when_it_is_read) {
    Landscape land = emptyLandscape(1, 1, 1, 1);
    land.Functions.at(0, 0) = 1.7976931348623157e308;
    Assessment assessment;
    const Failure failure = failureOf([&] { assess(land, assessment); });
    EXPECT_EQ(failure.At, Step::Normalisation);
    EXPECT_EQ(failure.Column, static_cast<std::size_t>(Criterion::Functionality));
    EXPECT_EQ(assessment.Species.Original[0][Criterion::Functionality], 1.7976931348623157e308);
}

}  // namespace
