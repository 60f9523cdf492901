// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/shared_search.h"

#include <gmock/gmock.h>

#include <chrono>
#include <numeric>

#include "brute_force.h"
#include "cover_cases.h"
#include "insight/cover/smallest_suite.h"

using namespace insight;

namespace {

constexpr std::size_t Threads = 4;

CoverPart wholeOf(const CoverIndex& index) { return {index.allSpecies(), index.allUnits()}; }

/// The smallest suite with the highest total, by so many threads from the first step on.
SmallestSuite bestSuite(const LoadedCase& made, std::size_t threads) {
    const SearchEffort effort{.Threads = threads};
    SearchBudget budget(effort);
    SharedSearch search(made.Index, budget, 0);
    Rows all(made.Index.species());
    std::iota(all.begin(), all.end(), 0);
    SmallestSuite known = {1, all};
    narrow(search, wholeOf(made.Index), known, budget);
    EXPECT_TRUE(known.isProven());
    EXPECT_TRUE(findBestTotal(search, made.Index, wholeOf(made.Index), known.Suite));
    return known;
}

/// Species of which each covers some units out of many, so that a search lasts.
CoverCase thinCase(std::size_t species, std::size_t units, unsigned seed) {
    std::mt19937 random(seed);
    CoverCase made{.Uses = std::vector(species, std::vector<int>(units))};
    for (std::size_t s = 0; s < species; ++s) {
        for (std::size_t i = 0; i < units / 12; ++i) made.Uses[s][random() % units] = 1;
        made.Uses[s][s % units] = 1;
        made.Aggregates.push_back(static_cast<double>(random() % 3000) / 1000);
    }
    return made;
}

CoverQuestion questionOf(const CoverIndex& index, std::size_t picks) {
    return {.Part = wholeOf(index), .MostPicks = picks, .Drop = Domination::SameSize};
}

}  // namespace

TEST(SharedSearch, ManyThreadsFindWhatAllSetsOfSpeciesGive) {
    std::mt19937 random(21);
    for (int i = 0; i < 200; ++i) {
        SCOPED_TRACE(i);
        const LoadedCase made(randomCase(random, 12, 14));
        if (made.Index.units() == 0) continue;
        ASSERT_EQ(bestSuite(made, Threads).Suite, BruteForce(made.Problem).Suites.front().Rows);
    }
}

TEST(SharedSearch, ManyThreadsFindWhatOneFinds) {
    for (unsigned seed = 1; seed <= 4; ++seed) {
        const LoadedCase made(thinCase(80, 72, seed));
        EXPECT_EQ(bestSuite(made, Threads).Suite, bestSuite(made, 1).Suite) << seed;
    }
}

TEST(SharedSearch, OneSuiteThatEndsTheSearchIsShown) {
    const LoadedCase made(thinCase(80, 72, 5));
    const std::size_t size = bestSuite(made, 1).upper();
    for (int i = 0; i < 20; ++i) {
        const SearchEffort effort{.Threads = Threads};
        SearchBudget budget(effort);
        SharedSearch search(made.Index, budget, 0);
        int shown = 0;
        EXPECT_EQ(search.run(questionOf(made.Index, size),
                             [&](const Rows& suite) {
                                 ++shown;
                                 EXPECT_TRUE(coversAll(made.Index, suite));
                                 return false;
                             }),
                  SearchEnd::Stopped);
        EXPECT_EQ(shown, 1);
        EXPECT_EQ(search.run(questionOf(made.Index, size - 1), [](const Rows&) { return false; }),
                  SearchEnd::Exhausted);
    }
}

TEST(SharedSearch, IsCutForAllThreads) {
    const LoadedCase made(thinCase(300, 250, 6));
    const SearchEffort effort{.Seconds = 0.3, .Threads = Threads};
    SearchBudget budget(effort);
    SharedSearch search(made.Index, budget, 0);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(search.run(questionOf(made.Index, 30), [](const Rows&) { return true; }), SearchEnd::Cut);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    EXPECT_FALSE(budget.spend());
}

TEST(SharedSearch, StepsOfAllThreadsCount) {
    const LoadedCase made(thinCase(80, 72, 7));
    const std::size_t size = bestSuite(made, 1).upper();
    const auto steps = [&](std::size_t threads) {
        const SearchEffort effort{.Threads = threads};
        SearchBudget budget(effort);
        SharedSearch search(made.Index, budget, 0);
        EXPECT_EQ(search.run(questionOf(made.Index, size - 1), [](const Rows&) { return true; }),
                  SearchEnd::Exhausted);
        return static_cast<double>(budget.steps());
    };
    EXPECT_GT(steps(Threads), steps(1) / 2);
    EXPECT_LT(steps(Threads), steps(1) * 4);
}

TEST(SharedSearch, AnEffortOfStepsIsSpentByOneThread) {
    const LoadedCase made(thinCase(80, 72, 8));
    const auto cutAfter = [&](std::size_t threads) {
        const SearchEffort effort{.Nodes = 300, .Threads = threads};
        SearchBudget budget(effort);
        SharedSearch search(made.Index, budget, 0);
        std::vector<Rows> shown;
        EXPECT_EQ(search.run(questionOf(made.Index, 30),
                             [&](const Rows& suite) {
                                 shown.push_back(suite);
                                 return true;
                             }),
                  SearchEnd::Cut);
        return shown;
    };
    EXPECT_EQ(cutAfter(Threads), cutAfter(1));
}
