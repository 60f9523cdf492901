// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/sweep/variation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "method/scores.h"

using insight::GradeVariation;
using insight::RandomStream;
using insight::SweepSettings;
using method::Criterion;
using method::Landscape;
using testing::Each;
using testing::ElementsAre;

namespace {

constexpr int Draws = 2000;

struct LevelRange {
    std::set<double> Margins, Threats, Statuses;
};

LevelRange drawnAround(const method::Levels& given) {
    LevelRange seen;
    for (int run = 0; run < Draws; ++run) {
        RandomStream stream(1, static_cast<std::uint64_t>(run));
        const method::Levels levels = insight::drawLevels(given, stream);
        seen.Margins.insert(levels.Margin);
        seen.Threats.insert(levels.ThreatRepresentation);
        seen.Statuses.insert(levels.ConservationStatus);
    }
    return seen;
}

/// One species with one unit of each kind; every varied grade is `grade`.
Landscape landscapeOf(double grade) {
    const method::Table one(1, 1, grade);
    Landscape land;
    land.HabitatLevels = land.ZoneLevels = land.Functions = land.SocioEconomics = one;
    land.Ratings = {one, one, one, one, one};
    land.HabitatThresholds = land.ZoneThresholds = {2};
    land.Status = {0.5};
    land.Dispersal = land.Connectivity = {1};
    land.Ranges.Values = {1};
    land.Occupied = {0.5};
    return land;
}

/// All values that each kind of grade takes.
struct Grades {
    std::set<double> Habitat, Zone, Severity, Recovery, Proportion, Function, SocioEconomic, Urgency,
        Probability;
    double Off = 0;  ///< share of the habitat's draws that left its grade
};

Grades drawn(const Landscape& given, const SweepSettings& settings, double quality = method::Blank) {
    const GradeVariation variation(given, method::Table(1, method::Criteria, quality), settings);
    Landscape land = given;
    Grades seen;
    for (int run = 0; run < Draws; ++run) {
        RandomStream stream(1, static_cast<std::uint64_t>(run));
        variation.draw(stream, land);
        const auto note = [](std::set<double>& values, const method::Table& table) {
            values.insert(table.at(0, 0));
        };
        note(seen.Habitat, land.HabitatLevels);
        note(seen.Zone, land.ZoneLevels);
        note(seen.Severity, land.Ratings.Severity);
        note(seen.Recovery, land.Ratings.Recovery);
        note(seen.Proportion, land.Ratings.Proportion);
        note(seen.Function, land.Functions);
        note(seen.SocioEconomic, land.SocioEconomics);
        note(seen.Urgency, land.Ratings.Urgency);
        note(seen.Probability, land.Ratings.Probability);
        if (land.HabitatLevels.at(0, 0) != given.HabitatLevels.at(0, 0)) seen.Off += 1.0 / Draws;
    }
    return seen;
}

SweepSettings likely(double p, bool zeros = false, bool quality = false) {
    SweepSettings settings;
    settings.P = p;
    settings.Zeros = zeros;
    settings.Quality = quality;
    return settings;
}

/// Four standard errors of a share in so many draws.
double tolerance(double share) { return 4 * std::sqrt(share * (1 - share) / Draws); }

}  // namespace

TEST(DrawnLevels, FillTheirIntervalsIn2Decimals) {
    const LevelRange seen =
        drawnAround({.Margin = 6, .ThreatRepresentation = 0.4, .ConservationStatus = 0.5});
    EXPECT_NEAR(*seen.Margins.begin(), 0, 0.05);
    EXPECT_NEAR(*seen.Margins.rbegin(), 12, 0.05);
    EXPECT_EQ(*seen.Threats.begin(), 0.2);
    EXPECT_EQ(*seen.Threats.rbegin(), 0.6);
    EXPECT_EQ(seen.Threats.size(), 41u);
    EXPECT_EQ(*seen.Statuses.begin(), 0.3);
    EXPECT_EQ(*seen.Statuses.rbegin(), 0.7);
    for (const double margin : seen.Margins) EXPECT_EQ(margin, method::roundTo(margin, 2));
}

TEST(DrawnLevels, AreCutAtTheirBounds) {
    const LevelRange seen = drawnAround({.Margin = 80, .ThreatRepresentation = 0.1, .ConservationStatus = 1});
    EXPECT_LE(*seen.Margins.rbegin(), 100);
    EXPECT_GT(*seen.Margins.rbegin(), 99);
    EXPECT_EQ(*seen.Threats.begin(), 0);
    EXPECT_EQ(*seen.Threats.rbegin(), 0.3);
    EXPECT_EQ(*seen.Statuses.begin(), 0.8);
    EXPECT_EQ(*seen.Statuses.rbegin(), 1);
}

TEST(DrawnLevels, KeepAMarginOf0) { EXPECT_THAT(drawnAround({.Margin = 0}).Margins, ElementsAre(0)); }

TEST(DrawnGrades, StayWithAProbabilityOf0) {
    const Grades seen = drawn(landscapeOf(1), likely(0, true));
    EXPECT_THAT(seen.Habitat, ElementsAre(1));
    EXPECT_THAT(seen.SocioEconomic, ElementsAre(1));
}

TEST(DrawnGrades, GoOneStepUpOrDown) {
    const Grades seen = drawn(landscapeOf(1), likely(0.5));
    for (const auto& values : {seen.Habitat, seen.Zone, seen.Severity, seen.Recovery, seen.Proportion,
                               seen.Function, seen.SocioEconomic})
        EXPECT_THAT(values, ElementsAre(0, 1, 2));
    EXPECT_NEAR(seen.Off, 0.5, tolerance(0.5));
}

TEST(DrawnGrades, LeaveUrgencyAndProbability) {
    const Grades seen = drawn(landscapeOf(1), likely(1));
    EXPECT_THAT(seen.Urgency, ElementsAre(1));
    EXPECT_THAT(seen.Probability, ElementsAre(1));
}

TEST(DrawnGrades, StayWithinTheirBounds) {
    const Grades three = drawn(landscapeOf(3), likely(1));
    for (const auto& values : {three.Habitat, three.Zone, three.Severity, three.Recovery, three.Function})
        EXPECT_THAT(values, ElementsAre(2, 3));
    EXPECT_THAT(three.Proportion, ElementsAre(2, 4));
    EXPECT_NEAR(three.Off, 0.5, tolerance(0.5));  // a step beyond the bounds leaves the grade
    EXPECT_THAT(drawn(landscapeOf(4), likely(1)).Proportion, ElementsAre(3, 4));
    EXPECT_THAT(drawn(landscapeOf(2), likely(1)).SocioEconomic, ElementsAre(1, 2));
    EXPECT_THAT(drawn(landscapeOf(0), likely(1, true)).Habitat, ElementsAre(0, 1));
}

TEST(DrawnGrades, Of0StayUnlessZerosAreVaried) {
    EXPECT_THAT(drawn(landscapeOf(0), likely(1)).Severity, ElementsAre(0));
    EXPECT_THAT(drawn(landscapeOf(0), likely(1, true)).Severity, ElementsAre(0, 1));
}

TEST(DrawnGrades, ThatAreNoNumbersStay) {
    const Landscape given = landscapeOf(method::Blank);
    const GradeVariation variation(given, method::Table(1, method::Criteria), likely(1, true));
    Landscape land = given;
    RandomStream stream(1, 1);
    variation.draw(stream, land);
    EXPECT_TRUE(method::isBlank(land.HabitatLevels.at(0, 0)));
}

TEST(DrawnGrades, AreOffTheMoreOftenTheWorseTheData) {
    for (const auto& [quality, share] : {std::pair{1.0, 0.1}, {3.0, 0.3}, {6.0, 0.6}})
        EXPECT_NEAR(drawn(landscapeOf(1), likely(0.3, false, true), quality).Off, share, tolerance(share));
    EXPECT_NEAR(drawn(landscapeOf(1), likely(0.9, false, true), 6).Off, 1, 1e-9);  // at most 1
}

TEST(DrawnGrades, WithoutADataQualityAreThoseOfTheMiddle) {
    for (const double quality : {method::Blank, method::Unreadable, 0.0, 7.0})
        EXPECT_NEAR(drawn(landscapeOf(1), likely(0.3, false, true), quality).Off, 0.3, tolerance(0.3));
}

/// The data quality of the vulnerability tells nothing of a level of use.
TEST(DrawnGrades, FollowTheQualityOfTheirOwnCriterion) {
    const Landscape given = landscapeOf(1);
    method::Table quality(1, method::Criteria, 1);
    quality.at(0, static_cast<std::size_t>(Criterion::Vulnerability)) = 6;
    const GradeVariation variation(given, quality, likely(0.5, false, true));
    Landscape land = given;
    int severity = 0;
    int habitat = 0;
    for (int run = 0; run < Draws; ++run) {
        RandomStream stream(1, static_cast<std::uint64_t>(run));
        variation.draw(stream, land);
        if (land.Ratings.Severity.at(0, 0) != 1) ++severity;
        if (land.HabitatLevels.at(0, 0) != 1) ++habitat;
    }
    EXPECT_EQ(severity, Draws);
    EXPECT_NEAR(habitat, Draws / 6.0, Draws * tolerance(1 / 6.0));
}
