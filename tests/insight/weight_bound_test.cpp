// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/weight_bound.h"

#include <gmock/gmock.h>

#include "cover_cases.h"

using namespace insight;

namespace {

CoverNode nodeOf(const CoverIndex& index, const Rows& units, std::size_t picks) {
    CoverNode node = {BitSet(method::wordsFor(index.units())), index.allSpecies(), picks};
    for (const std::uint32_t unit : units) insert(node.Units, unit);
    return node;
}

}  // namespace

TEST(WeightBound, WeightsOfUnitsThatAreNotAskedForDoNotGrowWithoutEnd) {
    // Three species share the first unit, so that its weight falls to nothing at each look, and all are scaled up.
    const LoadedCase made(CoverCase{.Uses = {{1, 0}, {1, 0}, {1, 0}, {0, 1}}});
    for (int looks = 1; looks <= 60; ++looks) {
        WeightBound bound(made.Index, {});
        for (int i = 0; i < looks; ++i) {
            CoverNode first = nodeOf(made.Index, {0}, 2);
            EXPECT_EQ(bound.look(first, 0, 2), WeightBound::Finding::Open);
        }
        CoverNode second = nodeOf(made.Index, {1}, 1);
        EXPECT_EQ(bound.look(second, 0, 0), WeightBound::Finding::Open);
        EXPECT_GT(bound.score(3), 0) << looks;
        EXPECT_LE(bound.score(3), std::int64_t{1} << 40) << looks;
    }
}

TEST(WeightBound, RulesOutWhatIsTooSmall) {
    const LoadedCase made(CoverCase{.Uses = {{1, 1, 0}, {1, 0, 1}, {0, 1, 1}}});
    WeightBound bound(made.Index, {});
    CoverNode one = nodeOf(made.Index, {0, 1, 2}, 1);
    EXPECT_EQ(bound.look(one, 0, 10), WeightBound::Finding::Nothing);
    CoverNode two = nodeOf(made.Index, {0, 1, 2}, 2);
    EXPECT_EQ(bound.look(two, 0, 10), WeightBound::Finding::Open);
}

TEST(WeightBound, NamesASpeciesThatEverySuiteHolds) {
    const LoadedCase made(CoverCase{.Uses = {{1, 1, 1, 1, 0}, {0, 0, 0, 1, 1}, {1, 0, 0, 0, 1}}});
    WeightBound bound(made.Index, {});
    CoverNode node = nodeOf(made.Index, {0, 1, 2, 3, 4}, 2);
    ASSERT_EQ(bound.look(node, 0, 20), WeightBound::Finding::Required);
    EXPECT_EQ(bound.required(), 0U);
}

TEST(WeightBound, WithValuesRulesOutWhatIsTooLow) {
    const LoadedCase made(CoverCase{.Uses = {{1, 0}, {1, 0}, {0, 1}, {0, 1}}, .Aggregates = {3, 1, 2, 0}});
    WeightBound bound(made.Index, {3000, 1000, 2000, 0});
    CoverNode node = nodeOf(made.Index, {0, 1}, 2);
    EXPECT_NE(bound.look(node, 5000, 50), WeightBound::Finding::Nothing);
    node = nodeOf(made.Index, {0, 1}, 2);
    EXPECT_EQ(bound.look(node, 5001, 50), WeightBound::Finding::Nothing);
}
