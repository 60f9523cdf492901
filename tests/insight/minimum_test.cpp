// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <atomic>
#include <optional>

#include "brute_force.h"
#include "cover_cases.h"
#include "insight/minimum_table.h"
#include "proof_checker.h"

using namespace insight;

namespace {

struct Solved : LoadedCase {
    template <class Made>
    explicit Solved(const Made& made, const SearchEffort& effort = {})
        : LoadedCase(made), Suite(runSuite(Run, Index)) {
        SearchBudget budget(effort);
        Minimum = findMinimum(Index, Suite, budget);
    }
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

    RunSuite Suite;
    MinimumAnswer Minimum;
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
