// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <bit>

#include "cover_cases.h"
#include "insight/cover/best_coverage.h"
#include "selected_run.h"

using namespace insight;

namespace {

/// Element k: the units that k species cover at most, by looking at every set of species.
std::vector<std::size_t> bruteForce(const CoverProblem& problem) {
    const std::size_t species = problem.Species.size();
    std::vector<std::size_t> best(species + 1);
    for (std::uint64_t set = 0; set < std::uint64_t{1} << species; ++set) {
        std::uint64_t units = 0;
        for (std::size_t s = 0; s < species; ++s) units |= (set >> s & 1) != 0 ? problem.Covers.row(s)[0] : 0;
        std::size_t& known = best[static_cast<std::size_t>(std::popcount(set))];
        known = std::max(known, static_cast<std::size_t>(std::popcount(units)));
    }
    return best;
}

std::vector<BestCoverage> bestOf(SearchedCase& searched) {
    return bestCoverages(searched.Index, searched.Minimum);
}

}  // namespace

TEST(BestCoverages, AreThoseOfEverySetOfSpecies) {
    std::mt19937 random(7);
    int unlikeGreedy = 0;
    for (int i = 0; i < 400; ++i) {
        SearchedCase searched(randomCase(random, 12, 30));
        if (searched.Index.units() == 0) continue;
        const std::vector<std::size_t> expected = bruteForce(searched.Problem);
        const std::vector<BestCoverage> best = bestOf(searched);
        ASSERT_EQ(best.size(), searched.Minimum.Known.upper() + 1);
        for (std::size_t k = 0; k < best.size(); ++k) {
            ASSERT_EQ(best[k].Units, expected[k]) << "case " << i << ", " << k << " species";
            ASSERT_TRUE(best[k].isProven()) << "case " << i << ", " << k << " species";
            ASSERT_LE(best[k].Suite.size(), k);
            ASSERT_EQ(count(unitsCovered(searched.Index, best[k].Suite)), best[k].Units);
        }
        unlikeGreedy +=
            greedySuite(searched.Index, searched.Index.allSpecies(), searched.Index.allUnits()).size() >
            best.size() - 1;
    }
    EXPECT_GT(unlikeGreedy, 0) << "the cases are too easy";
}

TEST(BestCoverages, HoldWhereTheSearchIsStopped) {
    std::mt19937 random(8);
    const std::atomic<bool> stop = true;
    int open = 0;
    for (int i = 0; i < 100; ++i) {
        SearchedCase searched(randomCase(random, 12, 30), {.Nodes = 1});
        if (searched.Index.units() == 0) continue;
        const std::vector<std::size_t> expected = bruteForce(searched.Problem);
        const auto best = bestCoverages(searched.Index, searched.Minimum, &stop);
        for (std::size_t k = 0; k < best.size(); ++k) {
            ASSERT_LE(best[k].Units, expected[k]);
            ASSERT_GE(best[k].Bound, expected[k]);
            open += best[k].isProven() ? 0 : 1;
        }
    }
    EXPECT_GT(open, 0);
}

TEST(BestCoverages, OfNothingToCoverAreNone) {
    SearchedCase nothing(CoverCase{{{0, 0}, {0, 0}}});
    ASSERT_EQ(bestOf(nothing).size(), 1U);
    EXPECT_EQ(bestOf(nothing)[0].Units, 0U);
    EXPECT_TRUE(bestOf(nothing)[0].isProven());
}

TEST(BestCoverages, OfTheFullLandscapeBeatTheRunHalfway) {
    SearchedCase full(selected(fullLandscape()));
    const std::vector<BestCoverage> best = bestOf(full);
    std::vector<std::size_t> units;
    for (const BestCoverage& coverage : best) {
        EXPECT_TRUE(coverage.isProven());
        units.push_back(coverage.Units);
    }
    EXPECT_THAT(units, testing::ElementsAre(0, 10, 15, 19, 23, 26, 27, 28, 29, 30));
}
