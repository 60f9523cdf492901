// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/sweep/sweep.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "insight/sweep/sweep_worker.h"
#include "selected_run.h"
#include "selection/margin_answers.h"

using insight::Count;
using insight::SweepCounts;
using insight::SweepSettings;
using insight::Varied;
using method::Unit;
using testing::ElementsAre;
using testing::Pair;

namespace {

const SelectionRun& full() {
    static const SelectionRun run = selected(fullLandscape());
    return run;
}

SweepSettings settingsOf(Varied vary, std::uint64_t runs, std::uint64_t seed = 1) {
    SweepSettings settings;
    settings.Vary = vary;
    settings.Runs = runs;
    settings.Seed = seed;
    settings.Answers = marginAnswers(fullLandscape().Answers);
    return settings;
}

constexpr Varied All{.Levels = true, .Answers = true, .Grades = true};

std::string tableOf(const SelectionRun& run, const SweepCounts& counts) {
    return tabSeparated(sweepTable(insight::sweepNames(run), counts));
}

/// Sizes that occurred and how often.
std::vector<std::pair<std::size_t, Count>> sizesOf(const SweepCounts& counts) {
    std::vector<std::pair<std::size_t, Count>> sizes;
    for (std::size_t size = 0; size < counts.Sizes.size(); ++size) {
        if (counts.Sizes[size] > 0) sizes.emplace_back(size, counts.Sizes[size]);
    }
    return sizes;
}

/// Every count is 0 or `runs`, as the suite of the run says.
void expectAlwaysTheSuite(const SelectionRun& run, const SweepCounts& counts, Count runs) {
    std::vector<Count> species(run.Species.size(), 0);
    for (const method::Pick& pick : run.Outcome.Suite.Picks) species[pick.Species] = runs;
    EXPECT_EQ(counts.Species, species);
    EXPECT_THAT(sizesOf(counts), ElementsAre(Pair(run.Outcome.Suite.Picks.size(), runs)));
    EXPECT_EQ(counts.Errors, run.Outcome.Error ? runs : 0);
    for (const Unit kind : method::UnitKinds) {
        std::vector<Count> uncovered;
        for (const int pick : run.Outcome.Suite.CoveredBy[kind]) uncovered.push_back(pick > 0 ? 0 : runs);
        EXPECT_EQ(counts.Uncovered[kind], uncovered);
    }
}

}  // namespace

TEST(ASweep, ThatVariesNothingAlwaysGivesTheSuite) {
    expectAlwaysTheSuite(full(), insight::sweep(full(), settingsOf({}, 5)), 5);
    const SelectionRun small = selected(smallLandscape());
    expectAlwaysTheSuite(small, insight::sweep(small, {.Vary = {}, .Runs = 3}), 3);
}

TEST(ASweep, OfGradesThatAreNeverOffGivesTheSuite) {
    SweepSettings settings = settingsOf({.Grades = true}, 20);
    settings.P = 0;
    settings.Zeros = true;
    settings.Quality = true;
    expectAlwaysTheSuite(full(), insight::sweep(full(), settings), 20);
}

/// Its first answer picks the wolf, the defaults the dorado.
TEST(ASweep, UsesTheAnswersGivenInEachRun) {
    SweepSettings settings = settingsOf({}, 4);
    settings.Answers.clear();
    RunOptions planned = fullLandscape();
    planned.Answers.clear();
    const SelectionRun other = selected(planned);
    const SweepCounts counts = insight::sweep(full(), settings);
    expectAlwaysTheSuite(other, counts, 4);
    EXPECT_NE(counts, insight::sweep(full(), settingsOf({}, 4)));
}

TEST(ASweep, OfAnswersToTheFullExampleComesToTwoSuites) {
    const SweepSettings settings = settingsOf({.Answers = true}, 2000);
    insight::SweepWorker worker(full(), settings, nullptr);
    std::set<std::set<std::size_t>> suites;
    for (std::uint64_t number = 0; number < settings.Runs; ++number) {
        worker.run(number);
        std::set<std::size_t> suite;
        for (const method::Pick& pick : worker.suite().Picks) suite.insert(pick.Species);
        suites.insert(suite);
    }
    EXPECT_EQ(suites.size(), 2u);
    EXPECT_THAT(sizesOf(worker.counts()), ElementsAre(Pair(9, testing::Gt(0u)), Pair(10, testing::Gt(0u))));
}

TEST(ASweep, ComesToTheSameForAnyNumberOfThreads) {
    const SweepSettings settings = settingsOf(All, 301);
    const std::string table = tableOf(full(), insight::sweep(full(), settings));
    for (const unsigned threads : {2u, 3u, 400u})
        EXPECT_EQ(tableOf(full(), insight::sweep(full(), settings, {.Threads = threads})), table);
}

TEST(ASweep, InShardsAddsUpToTheWhole) {
    SweepSettings settings = settingsOf(All, 101);
    const SweepCounts whole = insight::sweep(full(), settings);
    for (const std::uint32_t shards : {2u, 3u, 7u, 150u}) {
        SweepCounts sum(insight::sweepNames(full()));
        for (std::uint32_t number = shards; number > 0; --number) {
            settings.Part = {number, shards};
            const SweepCounts counts = insight::sweep(full(), settings, {.Threads = 2});
            EXPECT_EQ(counts.Runs, insight::runsOf(101, settings.Part));
            sum.add(counts);
        }
        EXPECT_EQ(sum, whole) << shards;
    }
}

/// A table that was published can be made again as long as the numbers of its runs stay: from 0, shard I of N the runs
/// I - 1, I - 1 + N and so on.
TEST(ASweep, DoesTheRunsOfItsShard) {
    SweepSettings settings = settingsOf(All, 11);
    settings.Part = {2, 4};
    const insight::GradeVariation grades(full().Landscape, full().DataQuality, settings);
    insight::SweepWorker worker(full(), settings, &grades);
    for (const std::uint64_t number : {1, 5, 9}) worker.run(number);
    EXPECT_EQ(insight::sweep(full(), settings), worker.counts());
}

TEST(ASweep, OfAnotherSeedDrawsOtherRuns) {
    EXPECT_NE(insight::sweep(full(), settingsOf(All, 50, 1)), insight::sweep(full(), settingsOf(All, 50, 2)));
}

TEST(ASweep, StopsBeforeTheNextRun) {
    std::atomic<bool> stop = false;
    insight::SweepWork work{.Threads = 1, .Stop = &stop};
    work.Progress = [&](std::uint64_t done, std::uint64_t of) {
        EXPECT_EQ(of, 1000u);
        if (done == 10) stop = true;
    };
    const SweepCounts counts = insight::sweep(full(), settingsOf(All, 1000), work);
    EXPECT_EQ(counts.Runs, 10u);
    // It comes to what a sweep of ten runs does.
    EXPECT_EQ(counts, insight::sweep(full(), settingsOf(All, 10)));
}

TEST(ASweep, ThatFailsEndsAllItsThreads) {
    insight::SweepWork work{.Threads = 2};
    work.Progress = [](std::uint64_t, std::uint64_t) { throw std::bad_alloc(); };
    EXPECT_THROW(insight::sweep(full(), settingsOf(All, 1'000'000'000), work), std::bad_alloc);
}

/// Two independent sweeps agree within four standard errors, in each row.
TEST(ASweep, GivesTheFrequenciesOfAnIndependentOne) {
    const auto countsOf = [](const SweepCounts& counts) {
        std::vector<Count> all = counts.Species;
        for (const Unit kind : method::UnitKinds) {
            all.insert(all.end(), counts.Uncovered[kind].begin(), counts.Uncovered[kind].end());
            all.insert(all.end(), counts.Missed[kind].begin(), counts.Missed[kind].end());
        }
        all.insert(all.end(), counts.Sizes.begin(), counts.Sizes.end());
        all.push_back(counts.Errors);
        return all;
    };
    constexpr double N1 = 2401;
    constexpr double N2 = 14000;
    for (const Varied vary : {All, Varied{.Grades = true}, Varied{.Levels = true}}) {
        const auto one = countsOf(insight::sweep(full(), settingsOf(vary, 2401, 1), {.Threads = 2}));
        const auto two = countsOf(insight::sweep(full(), settingsOf(vary, 14000, 99), {.Threads = 2}));
        for (std::size_t row = 0; row < one.size(); ++row) {
            const auto c1 = static_cast<double>(one[row]);
            const auto c2 = static_cast<double>(two[row]);
            const double pooled = (c1 + c2) / (N1 + N2);
            EXPECT_LE(std::abs(c1 / N1 - c2 / N2),
                      4 * std::sqrt(pooled * (1 - pooled) * (1 / N1 + 1 / N2)) + 1 / N1)
                << "row " << row;
        }
    }
}

/// A run is made of the settings and its number, not of the runs before it on the same thread.
TEST(ASweepWorker, OwesNothingToEarlierRuns) {
    const SweepSettings settings = settingsOf(All, 100);
    const insight::GradeVariation grades(full().Landscape, full().DataQuality, settings);
    insight::SweepWorker tired(full(), settings, &grades);
    for (std::uint64_t number = 0; number < 30; ++number) tired.run(number);
    for (std::uint64_t number = 99; number > 90; --number) {
        insight::SweepWorker fresh(full(), settings, &grades);
        fresh.run(number);
        tired.run(number);
        EXPECT_EQ(fresh.suite().CoveredBy, tired.suite().CoveredBy);
        EXPECT_EQ(fresh.failed(), tired.failed());
    }
}

/// At a status level of 0 nobody is eligible: there is no first pick.
TEST(ASweep, CountsARunWithoutEligibleSpeciesAsAnErrorWithAnEmptySuite) {
    SelectionRun run = full();
    run.Levels.ConservationStatus = -1;
    const SweepCounts counts = insight::sweep(run, settingsOf({}, 3));
    EXPECT_EQ(counts.Errors, 3u);
    EXPECT_THAT(sizesOf(counts), ElementsAre(Pair(0, 3)));
    for (const Unit kind : method::UnitKinds) {
        EXPECT_THAT(counts.Uncovered[kind], testing::Each(3u));
        EXPECT_THAT(counts.Missed[kind], testing::Each(0u));
    }
}

/// A score beyond the range of numbers ends a run before its first pick; the next run is none the worse for it.
TEST(ASweep, CountsARunThatCannotBeScoredAsAnErrorWithAnEmptySuite) {
    SelectionRun run = full();
    run.Landscape.Functions.at(0, 0) = 3;
    run.Landscape.Functions.at(0, 1) = std::numeric_limits<double>::infinity();
    const SweepCounts counts = insight::sweep(run, settingsOf({.Grades = true}, 3));
    EXPECT_EQ(counts.Errors, 3u);
    EXPECT_THAT(sizesOf(counts), ElementsAre(Pair(0, 3)));
    EXPECT_THAT(counts.Uncovered[Unit::Habitat], testing::Each(3u));
    EXPECT_THAT(counts.Missed[Unit::Threat], testing::Contains(3u));
}
