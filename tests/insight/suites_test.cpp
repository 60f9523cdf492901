// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/suites.h"

#include <gmock/gmock.h>

#include "brute_force.h"
#include "cover_cases.h"

using namespace insight;

namespace {

struct Listed : SearchedCase {
    Listed(const CoverCase& made, std::size_t within, std::size_t limit, const SearchEffort& effort = {})
        : SearchedCase(made, effort), List(findSuites(Index, Minimum, within, limit, Budget)) {}
    std::string table() const { return tabSeparated(suiteTable(Run, Index, List)); }

    SuiteList List;
};

}  // namespace

TEST(Suites, AreThoseOfAllSetsOfSpecies) {
    std::mt19937 random(2);
    for (int i = 0; i < 600; ++i) {
        SCOPED_TRACE(i);
        const std::size_t within = random() % 3;
        const Listed listed(randomCase(random, 12, 14), within, 100'000);
        const BruteForce all(listed.Problem);
        std::vector<Rows> expected;
        for (const BruteForce::Suite& suite : all.Suites) {
            if (suite.Rows.size() <= all.minimum() + within) expected.push_back(suite.Rows);
        }
        ASSERT_TRUE(listed.List.isComplete());
        ASSERT_EQ(listed.List.Suites, expected);
    }
}

TEST(Suites, BeyondTheLimitTheFirstIsStillTheBest) {
    std::mt19937 random(4);
    int cut = 0;
    for (int i = 0; i < 200; ++i) {
        const Listed listed(randomCase(random, 12, 14), 1, 3);
        const BruteForce all(listed.Problem);
        ASSERT_EQ(listed.List.Suites.front(), all.Suites.front().Rows);
        ASSERT_LE(listed.List.Suites.size(), 3U);
        if (!listed.List.isComplete()) ++cut;
    }
    EXPECT_GT(cut, 50);
}

TEST(Suites, AreCountedUpToAHundredThousand) {
    for (const std::size_t pairs : {16U, 17U}) {
        CoverCase made = pairedCase(pairs);
        made.Aggregates.assign(2 * pairs, 1);
        made.Aggregates[9] = 2;
        const Listed listed(made, 0, 10);
        EXPECT_EQ(listed.List.IsExact, pairs == 16);
        EXPECT_EQ(listed.List.Count, pairs == 16 ? 65536U : 100'000U);
        EXPECT_EQ(listed.List.Suites.size(), 10U);
        EXPECT_FALSE(listed.List.isComplete());
        EXPECT_TRUE(std::binary_search(listed.List.Suites[0].begin(), listed.List.Suites[0].end(), 9U));
    }
}

TEST(Suites, TableOfASmallCase) {
    const CoverCase made = {.Uses = {{1, 1, 0}, {0, 1, 1}, {1, 0, 0}, {0, 0, 1}},
                            .Aggregates = {1, 2.5, 0.125, 3}};
    EXPECT_EQ(Listed(made, 0, 10).table(),
              "suite\tsize\ttotal\tspecies\n1\t2\t4\tS1; S4\n2\t2\t3.5\tS1; S2\n3\t2\t2.625\tS2; S3\n");
}

TEST(Suites, NothingToCoverHasOneSuiteWithNoSpecies) {
    EXPECT_EQ(Listed({.Uses = {{0}, {0}}}, 1, 10).table(), "suite\tsize\ttotal\tspecies\n1\t0\t0\t\n");
}

TEST(Suites, WithoutAProvenMinimumTheListIsNotComplete) {
    std::mt19937 random(11);
    const Listed listed(wideCase(random), 0, 10, {.Nodes = 5});
    EXPECT_FALSE(listed.List.isComplete());
    EXPECT_EQ(listed.List.Suites.size(), 1U);
}
