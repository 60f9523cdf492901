// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/missing.h"

#include <gmock/gmock.h>

#include "landscapes.h"

namespace {

using namespace method;

/// Two species with a status of 0.5, one habitat, one zone, two threats; only species 0 is exposed, to threat 1.
class Missing : public testing::Test {
protected:
    Landscape Land = emptyLandscape(2, 1, 1, 2);
    Table Scores = tableOf({{0, 4}, {0, 0}});
    Levels At;

    bool lacks() const { return lacksGrades(Land, Scores, At); }
};

TEST_F(Missing, nothing_where_every_grade_is_there) { EXPECT_FALSE(lacks()); }

TEST_F(Missing, a_level_of_use) {
    for (Table* levels : {&Land.HabitatLevels, &Land.ZoneLevels}) {
        levels->at(1, 0) = Blank;
        EXPECT_TRUE(lacks());
        levels->at(1, 0) = Unreadable;
        EXPECT_FALSE(lacks()) << "it is there";
        levels->at(1, 0) = 0;
    }
}

TEST_F(Missing, a_rating_under_a_threat_to_which_somebody_is_exposed) {
    for (Table* ratings : {&Land.Ratings.Severity, &Land.Ratings.Recovery, &Land.Ratings.Proportion}) {
        ratings->at(1, 0) = Blank;
        EXPECT_FALSE(lacks()) << "the first pick covers the threat";
        ratings->at(1, 0) = 0;
        ratings->at(1, 1) = Blank;
        EXPECT_TRUE(lacks());
        At.ThreatRepresentation = 0;
        EXPECT_FALSE(lacks()) << "every species represents every threat";
        At.ThreatRepresentation = 0.5;
        ratings->at(1, 1) = 0;
    }
}

TEST_F(Missing, nothing_of_a_species_that_takes_no_part) {
    Land.HabitatLevels.at(1, 0) = Blank;
    At.ConservationStatus = 0.5;
    EXPECT_TRUE(lacks()) << "a status at the level takes part";
    At.ConservationStatus = 0.4;
    EXPECT_FALSE(lacks());
    At.ConservationStatus = 1;
    Land.Status[1] = Unreadable;
    EXPECT_FALSE(lacks());
}

TEST_F(Missing, a_score_that_is_no_number_exposes_nobody) {
    Scores.at(0, 1) = Blank;
    Land.Ratings.Severity.at(1, 1) = Blank;
    EXPECT_FALSE(lacks());
}

}  // namespace
