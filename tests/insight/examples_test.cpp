// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "cover_cases.h"
#include "insight/cover/minimum_table.h"
#include "insight/cover/species_table.h"
#include "insight/names.h"
#include "selected_run.h"

using namespace insight;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;

namespace {

struct Explained : SearchedCase {
    explicit Explained(const RunOptions& options)
        : SearchedCase(selected(options)),
          List(findSuites(Index, Minimum, 0, 1000, Budget)),
          Roles(findRoles(Index, Minimum, Budget)) {}
    std::string minimum() const { return tabSeparated(minimumTable(Run, Index, Suite, Minimum)); }
    std::vector<std::string> inAll() const {
        Rows rows;
        for (std::uint32_t row = 0; row < Roles.size(); ++row) {
            if (Roles[row].Class == SpeciesClass::All) rows.push_back(row);
        }
        return speciesNames(Run, Index, rows);
    }
    double bestTotal() const { return totalOf(totalOf(Index, List.Suites.front())); }

    SuiteList List;
    std::vector<SpeciesRole> Roles;
};

}  // namespace

TEST(ExplainedExample, FullLandscapeHasThirtyFiveSmallestSuites) {
    const Explained full(fullLandscape());
    EXPECT_EQ(full.Index.units(), 30U);
    EXPECT_EQ(full.Suite.Picks.size(), 9U);
    EXPECT_TRUE(full.Suite.Complete);
    EXPECT_TRUE(full.List.isComplete());
    EXPECT_EQ(full.List.Suites.size(), 35U);
    EXPECT_EQ(full.bestTotal(), 25.41);
    EXPECT_THAT(full.inAll(), IsSupersetOf({"Giant Otter", "Torrent Duck", "Great Fruit-eating Bat"}));
    EXPECT_THAT(full.minimum(),
                HasSubstr("gap\t0\ngreedy_total\t24.48\nminimum_total\t25.41\nsuite\tJaguar; "));
    EXPECT_THAT(full.minimum(), HasSubstr("proof\tweights\nwitness\t3 Cloud forest; "));
}

TEST(ExplainedExample, SmallLandscapeDoesWithoutTheOtter) {
    const Explained small(smallLandscape());
    EXPECT_THAT(small.minimum(), HasSubstr("greedy_size\t4\ngreedy_complete\tyes\nredundant\tEurasian Otter\n"
                                           "pruned_size\t3\nlower\t3\nupper\t3\nproven\tyes\ngap\t1\n"));
    EXPECT_EQ(small.List.Suites.size(), 2U);
    EXPECT_EQ(small.bestTotal(), 8.696);
    EXPECT_THAT(speciesNames(small.Run, small.Index, small.List.Suites.front()),
                IsSupersetOf({"Great Bittern", "Eurasian Badger"}));
}

TEST(ExplainedExample, Version1LandscapeHasThreeSmallestSuites) {
    const Explained old(example("version1_landscape.brn"));
    EXPECT_EQ(old.Suite.Picks.size(), 6U);
    EXPECT_EQ(old.Minimum.Known.Lower, 5U);
    EXPECT_TRUE(old.Minimum.isProven());
    EXPECT_EQ(old.List.Suites.size(), 3U);
    EXPECT_EQ(old.bestTotal(), 14.255);
}

TEST(ExplainedExample, FullLandscapeAtTheDefaults) {
    const Explained full(example("full_landscape.brn"));
    EXPECT_TRUE(full.Minimum.isProven());
    EXPECT_TRUE(full.List.isComplete());
    EXPECT_EQ(full.List.Suites.front(), full.Minimum.Known.Suite);
    EXPECT_THAT(full.minimum(), HasSubstr("redundant\tLowland Tapir\npruned_size\t10\nlower\t9\nupper\t9\n"));
}
