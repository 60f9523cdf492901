// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/smallest_suite.h"

#include <gmock/gmock.h>

#include "brute_force.h"
#include "cover_cases.h"

using namespace insight;

namespace {

/// Triangles of three units, of which each species covers two: two of the three species are needed, and none does better
/// than another. Three to the power of `triangles` suites.
CoverCase triangles(std::size_t triangles) {
    CoverCase made;
    for (std::size_t s = 0; s < 3 * triangles; ++s) {
        made.Uses.emplace_back(3 * triangles, 1);
        for (std::size_t u = 0; u < 3 * triangles; ++u) {
            if (u / 3 != s % triangles || u % 3 == s / triangles) made.Uses[s][u] = 0;
        }
    }
    return made;
}

/// The last suite in candidate order, from where better ones are to be found.
Rows lastSuite(const LoadedCase& made, std::size_t size) {
    Rows rows;
    for (std::size_t s = made.Index.species(); rows.size() < size; --s)
        rows.insert(rows.begin(), static_cast<std::uint32_t>(s - 1));
    return rows;
}

struct Sought {
    Rows Suite;
    bool IsProven;
};

Sought bestTotal(const LoadedCase& made, const Rows& from, const SearchEffort& effort = {}) {
    SearchBudget budget(effort);
    CoverSearch search(made.Index, budget);
    Sought sought{from, false};
    sought.IsProven =
        findBestTotal(search, made.Index, {made.Index.allSpecies(), made.Index.allUnits()}, sought.Suite);
    return sought;
}

}  // namespace

TEST(SmallestSuite, OfMoreEqualOnesThanAreGoneThroughTheFirstIsFound) {
    const LoadedCase made(triangles(7));
    const BruteForce all(made.Problem);
    ASSERT_EQ(all.Suites.size(), 2187U);
    const Sought sought = bestTotal(made, lastSuite(made, 14));
    EXPECT_TRUE(sought.IsProven);
    EXPECT_EQ(sought.Suite, all.Suites.front().Rows);
}

TEST(SmallestSuite, OfManyTheHighestTotalComesBeforeTheFirst) {
    CoverCase graded = triangles(7);
    graded.Aggregates.assign(21, 1);
    graded.Aggregates[20] = 1.5;
    const LoadedCase made(graded);
    const Sought sought = bestTotal(made, lastSuite(made, 14));
    EXPECT_TRUE(sought.IsProven);
    EXPECT_EQ(sought.Suite, BruteForce(made.Problem).Suites.front().Rows);
}

TEST(SmallestSuite, WhereTheEffortEndsItIsASuiteAndSaidToBeOpen) {
    const LoadedCase made(triangles(7));
    const Rows last = lastSuite(made, 14);
    const Rows first = bestTotal(made, last).Suite;
    int open = 0;
    bool isProven = false;
    for (std::uint64_t nodes = 1; !isProven; nodes += 1 + nodes / 10) {
        const Sought sought = bestTotal(made, last, {.Nodes = nodes});
        ASSERT_TRUE(coversAll(made.Index, sought.Suite));
        ASSERT_EQ(sought.Suite.size(), 14U);
        isProven = sought.IsProven;
        if (isProven) {
            ASSERT_EQ(sought.Suite, first);
        }
        open += isProven ? 0 : 1;
    }
    EXPECT_GT(open, 20);
}

TEST(SmallestSuite, IsNarrowedFromBelow) {
    const LoadedCase made(triangles(5));
    const CoverPart part = {made.Index.allSpecies(), made.Index.allUnits()};
    for (const std::uint64_t nodes : {0U, 3U, 30U, 1'000'000U}) {
        const SearchEffort effort{.Nodes = nodes};
        SearchBudget budget(effort);
        CoverSearch search(made.Index, budget);
        SmallestSuite known = {1, lastSuite(made, 15)};
        narrow(search, part, known, budget);
        ASSERT_TRUE(coversAll(made.Index, known.Suite));
        EXPECT_LE(known.Lower, 10U);
        EXPECT_GE(known.upper(), 10U);
        EXPECT_EQ(known.isProven(), nodes == 1'000'000U) << nodes;
    }
}
