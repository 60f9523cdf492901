// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/smallest_suite.h"

#include <gmock/gmock.h>

#include <numeric>

#include "brute_force.h"
#include "cover_cases.h"
#include "insight/cover/local_search.h"

using namespace insight;

namespace {

/// Triangles of three units, of which each species covers two: two of the three species are needed, and none does better
/// than another.
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

/// Eight rings of five units, of which each species covers two neighbours, numbered at random: three of the five species
/// are needed, which makes more suites than are gone through one by one.
struct Rings {
    static constexpr std::size_t Length = 5;
    static constexpr std::size_t Species = 8 * Length;
    static constexpr std::size_t SuiteSize = 8 * 3;
    CoverCase Made{.Uses = std::vector(Species, std::vector<int>(Species))};
    Rows First;  ///< the first suite in candidate order

    explicit Rings(std::mt19937& random) {
        Rows numbers(Species);
        std::iota(numbers.begin(), numbers.end(), 0);
        std::shuffle(numbers.begin(), numbers.end(), random);
        for (auto place = numbers.begin(); place != numbers.end(); place += Length)
            add({place, place + Length}, static_cast<std::size_t>(place - numbers.begin()));
        std::sort(First.begin(), First.end());
    }

private:
    /// The species of one ring in their order around it.
    void add(const Rows& ring, std::size_t firstUnit) {
        Rows first;
        for (std::size_t i = 0; i < Length; ++i) {
            Made.Uses[ring[i]][firstUnit + i] = 1;
            Made.Uses[ring[i]][firstUnit + (i + 1) % Length] = 1;
            // Two neighbours and the one across from them leave no unit out.
            Rows suite = {ring[i], ring[(i + 1) % Length], ring[(i + 3) % Length]};
            std::sort(suite.begin(), suite.end());
            if (first.empty() || suite < first) first = suite;
        }
        First.insert(First.end(), first.begin(), first.end());
    }
};

CoverPart wholeOf(const CoverIndex& index) { return {index.allSpecies(), index.allUnits()}; }

Rows someSuite(const LoadedCase& made, std::size_t size) {
    const SearchEffort effort;
    SearchBudget budget(effort);
    Rows suite = smallSuite(made.Index, wholeOf(made.Index), size, budget);
    EXPECT_EQ(suite.size(), size);
    return suite;
}

struct Sought {
    Rows Suite;
    bool IsProven;
};

Sought bestTotal(const LoadedCase& made, const Rows& from, const SearchEffort& effort = {}) {
    SearchBudget budget(effort);
    SharedSearch search(made.Index, budget);
    Sought sought{from, false};
    sought.IsProven = findBestTotal(search, made.Index, wholeOf(made.Index), sought.Suite);
    return sought;
}

}  // namespace

TEST(SmallestSuite, OfMoreEqualOnesThanAreGoneThroughTheFirstIsFound) {
    std::mt19937 random(14);
    for (int i = 0; i < 20; ++i) {
        const Rings rings(random);
        const LoadedCase made(rings.Made);
        const Sought sought = bestTotal(made, someSuite(made, Rings::SuiteSize));
        EXPECT_TRUE(sought.IsProven);
        EXPECT_EQ(sought.Suite, rings.First);
    }
}

TEST(SmallestSuite, WhereTheEffortEndsItIsASuiteAndSaidToBeOpen) {
    std::mt19937 random(15);
    const Rings rings(random);
    const LoadedCase made(rings.Made);
    const Rows some = someSuite(made, Rings::SuiteSize);
    int open = 0;
    bool isProven = false;
    for (std::uint64_t nodes = 1; !isProven; nodes += 1 + nodes / 10) {
        const Sought sought = bestTotal(made, some, {.Nodes = nodes});
        ASSERT_TRUE(coversAll(made.Index, sought.Suite));
        ASSERT_EQ(sought.Suite.size(), Rings::SuiteSize);
        isProven = sought.IsProven;
        if (isProven) {
            ASSERT_EQ(sought.Suite, rings.First);
        }
        open += isProven ? 0 : 1;
    }
    EXPECT_GT(open, 20);
}

TEST(SmallestSuite, OfManyTheHighestTotalComesBeforeTheFirst) {
    CoverCase graded = triangles(7);
    graded.Aggregates.assign(21, 1);
    graded.Aggregates[20] = 1.5;
    const LoadedCase made(graded);
    const Sought sought = bestTotal(made, someSuite(made, 14));
    EXPECT_TRUE(sought.IsProven);
    EXPECT_EQ(sought.Suite, BruteForce(made.Problem).Suites.front().Rows);
}

TEST(SmallestSuite, IsNarrowedFromBelow) {
    const LoadedCase made(triangles(5));
    for (const std::uint64_t nodes : {0U, 3U, 30U, 1'000'000U}) {
        const SearchEffort effort{.Nodes = nodes};
        SearchBudget budget(effort);
        SharedSearch search(made.Index, budget);
        Rows all(made.Index.species());
        std::iota(all.begin(), all.end(), 0);
        SmallestSuite known = {1, all};
        narrow(search, wholeOf(made.Index), known, budget);
        ASSERT_TRUE(coversAll(made.Index, known.Suite));
        EXPECT_LE(known.Lower, 10U);
        EXPECT_GE(known.upper(), 10U);
        EXPECT_EQ(known.isProven(), nodes == 1'000'000U) << nodes;
    }
}
