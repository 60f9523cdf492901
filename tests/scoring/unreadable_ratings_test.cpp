// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring_test.h"

/// A rating that is no number keeps the value that the pair before had, and the first pair has none before it.
struct UnreadableRating {
    const char* Key;
    const char* Score;  ///< of the first pair, all of whose other ratings are 1
};

class UnreadableRatings : public ScoringTest, public testing::WithParamInterface<UnreadableRating> {};

TEST_P(UnreadableRatings, OfTheFirstPairCountsAsZero) {
    openAt(ProjectText(1, 1, 1, 2).set(GetParam().Key, "x,1"), 4);
    EXPECT_EQ(table(summary::Vulnerability).TextMatrix(1, 3), GetParam().Score);
}

INSTANTIATE_TEST_SUITE_P(Ratings, UnreadableRatings,
                         testing::Values(UnreadableRating{"Urgency", "1"},
                                         UnreadableRating{"Probability of occurence", "0"},
                                         UnreadableRating{"VulnerabilitybySpecies Severity", "0"},
                                         UnreadableRating{"VulnerabilitybySpecies Recovery", "1"},
                                         UnreadableRating{"VulnerabilitybySpecies Proportion", "0"}));
