// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <optional>

#include "brute_force.h"
#include "cover_cases.h"
#include "insight/cover/minimum_table.h"
#include "proof_checker.h"

using namespace insight;

namespace {

struct Solved : SearchedCase {
    using SearchedCase::SearchedCase;
    ResultTable table() const { return minimumTable(Run, Index, Suite, Minimum); }
    Cell cell(const std::string& measure) const {
        for (const auto& row : table().Rows) {
            if (std::get<std::string>(row[0]) == measure) return row[1];
        }
        ADD_FAILURE() << measure;
        return {};
    }
    std::string field(const std::string& measure) const { return fieldOf(cell(measure)); }
    std::vector<std::string> names(const std::string& measure) const {
        return std::get<std::vector<std::string>>(cell(measure));
    }
    Landscape landscape() const {
        Landscape covers;
        for (std::size_t s = 0; s < Run.Species.size(); ++s) {
            if (!Units.eligible(s)) continue;
            for (std::size_t u = 0; u < Units.units(); ++u) {
                if (Units.covers(s, u)) covers[Run.Species[s]].insert(Run.Units[method::Unit::Habitat][u]);
            }
        }
        return covers;
    }
};

/// What a printed proof proves.
std::optional<std::size_t> proven(const Solved& solved) {
    if (solved.field("proof") == "witness")
        return provenByWitness(solved.landscape(), solved.names("witness"));
    if (solved.field("proof") == "weights")
        return provenByWeights(solved.landscape(), solved.names("witness"));
    EXPECT_EQ(solved.field("witness"), "");
    return std::nullopt;
}

}  // namespace

TEST(Minimum, IsWhatAllSetsOfSpeciesGive) {
    std::mt19937 random(1);
    for (int i = 0; i < 600; ++i) {
        SCOPED_TRACE(i);
        const Solved solved(randomCase(random, 12, 14));
        const BruteForce all(solved.Problem);
        ASSERT_TRUE(solved.Minimum.isProven());
        ASSERT_EQ(solved.Minimum.Known.Lower, all.minimum());
        ASSERT_EQ(solved.Minimum.Known.Suite, all.Suites.front().Rows);
        const auto bound = proven(solved);
        if (bound) {
            ASSERT_EQ(*bound, all.minimum());
        }
    }
}

TEST(Minimum, TableOfASmallCase) {
    // Greedy takes the wide species first; the two beside each other do without it.
    const Solved solved(CoverCase{.Uses = {{1, 1, 0, 1, 1, 0}, {1, 1, 1, 0, 0, 0}, {0, 0, 0, 1, 1, 1}},
                                  .Aggregates = {3.5, 1.25, 1.5},
                                  .Picks = {0, 1, 2}});
    EXPECT_EQ(
        tabSeparated(solved.table()),
        "measure\tvalue\ngreedy_size\t3\ngreedy_complete\tyes\nredundant\tS1\npruned_size\t2\nlower\t2\nupper\t2\n"
        "proven\tyes\ngap\t1\ngreedy_total\t6.25\nminimum_total\t2.75\nsuite\tS2; S3\nproof\twitness\nwitness\tH3; H6\n");
}

TEST(Minimum, NothingToCoverIsTheEmptySuite) {
    for (const bool isExcluded : {false, true}) {
        const Solved solved(CoverCase{.Uses = {{isExcluded ? 1 : 0}}, .Excluded = {isExcluded}});
        EXPECT_TRUE(solved.Minimum.isProven());
        EXPECT_EQ(
            tabSeparated(solved.table()),
            "measure\tvalue\ngreedy_size\t0\ngreedy_complete\tyes\nredundant\t\npruned_size\t0\nlower\t0\n"
            "upper\t0\nproven\tyes\ngap\t0\ngreedy_total\t0\nminimum_total\t0\nsuite\t\nproof\twitness\n"
            "witness\t\n");
    }
}

TEST(Minimum, ARunThatMissedAUnitHasNoGap) {
    const Solved solved(CoverCase{.Uses = {{1, 0}, {0, 1}}, .Picks = {0}});
    EXPECT_EQ(solved.field("greedy_complete"), "no");
    EXPECT_EQ(solved.field("gap"), "");
    EXPECT_EQ(solved.field("pruned_size"), "1");
    EXPECT_EQ(solved.field("suite"), "S1; S2");
}

TEST(Minimum, OfEqualSpeciesTheBetterThenTheFirstIsTaken) {
    const CoverCase made = {.Uses = {{1, 1}, {1, 1}, {1, 1}}, .Picks = {2}};
    EXPECT_EQ(Solved(made).field("suite"), "S1");
    CoverCase graded = made;
    graded.Aggregates = {1, 2, 2};
    EXPECT_EQ(Solved(graded).field("suite"), "S2");
}

TEST(Minimum, WeightsProveWhatNoWitnessCan) {
    // Three units, each two of which share a species: two species are needed, and no two units are apart.
    const Solved solved(CoverCase{.Uses = {{1, 1, 0}, {1, 0, 1}, {0, 1, 1}}, .Picks = {0, 1}});
    EXPECT_EQ(solved.field("lower"), "2");
    EXPECT_EQ(solved.field("proof"), "weights");
    EXPECT_EQ(solved.field("witness"), "1 H1; 1 H2; 1 H3");
}

TEST(Minimum, ManySuitesOfOneTotalStillGiveTheFirst) {
    // 65536 suites with the same total.
    CoverCase made = pairedCase(16);
    for (std::size_t s = 0; s < 32; ++s) made.Uses[s].push_back(s == 1 || s == 3 || s == 5 ? 1 : 0);
    const Solved solved(made);
    std::vector<std::string> names;
    for (std::size_t s = 0; s < 32; s += 2) names.push_back("S" + std::to_string(s + 1));
    names[2] = "S6";
    EXPECT_TRUE(solved.Minimum.isProven());
    EXPECT_EQ(solved.names("suite"), names);
}

TEST(Minimum, WithFewNodesItIsAnInterval) {
    std::mt19937 random(7);
    int open = 0;
    for (int i = 0; i < 60; ++i) {
        const CoverCase made = randomCase(random, 60, 60);
        const Solved whole(made);
        ASSERT_TRUE(whole.Minimum.isProven());
        const std::size_t minimum = whole.Minimum.Known.Lower;
        for (const std::uint64_t nodes : {0U, 1U, 10U, 100U}) {
            const Solved cut(made, {.Nodes = nodes});
            const SmallestSuite& known = cut.Minimum.Known;
            ASSERT_LE(known.Lower, minimum);
            ASSERT_GE(known.upper(), minimum);
            ASSERT_TRUE(coversAll(cut.Index, known.Suite));
            ASSERT_EQ(tabSeparated(cut.table()), tabSeparated(Solved(made, {.Nodes = nodes}).table()));
            const auto bound = proven(cut);
            if (bound) {
                ASSERT_EQ(*bound, known.Lower);
            }
            open += cut.Minimum.isProven() ? 0 : 1;
        }
    }
    EXPECT_GT(open, 20);
}

TEST(Minimum, TellsHowFarItIsSomeTimesASecond) {
    std::mt19937 random(6);
    CoverCase made;
    for (std::size_t s = 0; s < 300; ++s) {
        made.Uses.emplace_back(200);
        for (int& use : made.Uses.back()) use = random() % 12 == 0 ? 1 : 0;
    }
    std::vector<SearchProgress> told;
    const auto start = std::chrono::steady_clock::now();
    const Solved solved(
        made, {.Seconds = 0.7, .OnProgress = [&](const SearchProgress& now) { told.push_back(now); }});
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    EXPECT_FALSE(solved.Minimum.isProven());
    ASSERT_FALSE(told.empty());
    EXPECT_LE(static_cast<double>(told.size()), 5 * took.count());
    EXPECT_LE(told.front().Nodes, told.back().Nodes);
    EXPECT_LE(told.back().Lower, solved.Minimum.Known.Lower);
    EXPECT_GE(told.back().Upper, solved.Minimum.Known.upper());
}

TEST(Minimum, IsStoppedFromOutside) {
    std::mt19937 random(3);
    const std::atomic<bool> stop = true;
    const Solved solved(wideCase(random), {.Stop = &stop});
    EXPECT_FALSE(solved.Minimum.isProven());
    EXPECT_TRUE(coversAll(solved.Index, solved.Minimum.Known.Suite));
}
