// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "brute_force.h"
#include "cover_cases.h"
#include "insight/cover/species_table.h"

using namespace insight;

namespace {

struct Described : SearchedCase {
    explicit Described(const CoverCase& made, const SearchEffort& effort = {})
        : SearchedCase(made, effort), Roles(findRoles(Index, Minimum, Budget)) {}
    std::string table() const { return tabSeparated(speciesTable(Run, Index, Suite, Roles)); }

    std::vector<SpeciesRole> Roles;
};

bool holds(const Rows& suite, std::uint32_t row) {
    return std::binary_search(suite.begin(), suite.end(), row);
}

/// Class and cost of a species by looking at all suites.
SpeciesRole roleOf(const BruteForce& all, std::uint32_t row) {
    std::size_t with = 0;
    std::size_t minimal = 0;
    std::optional<std::size_t> barred;
    for (const BruteForce::Suite& suite : all.Suites) {
        if (suite.Rows.size() == all.minimum()) {
            ++minimal;
            with += holds(suite.Rows, row) ? 1 : 0;
        }
        if (!holds(suite.Rows, row) && !barred) barred = suite.Rows.size() - all.minimum();
    }
    SpeciesRole role;
    role.Class = with == minimal ? SpeciesClass::All : with > 0 ? SpeciesClass::Some : SpeciesClass::None;
    role.Share = static_cast<double>(with) / static_cast<double>(minimal);
    role.Cost = {barred.value_or(1), barred};
    return role;
}

}  // namespace

TEST(Species, HaveTheRolesThatAllSetsOfSpeciesGive) {
    std::mt19937 random(5);
    for (int i = 0; i < 600; ++i) {
        SCOPED_TRACE(i);
        const Described described(randomCase(random, 12, 14));
        const BruteForce all(described.Problem);
        for (std::uint32_t row = 0; row < described.Roles.size(); ++row) {
            const SpeciesRole expected = roleOf(all, row);
            ASSERT_EQ(described.Roles[row].Class, expected.Class);
            ASSERT_EQ(described.Roles[row].Share, expected.Share);
            ASSERT_EQ(described.Roles[row].Cost.Upper, expected.Cost.Upper);
            ASSERT_EQ(described.Roles[row].Cost.Lower, expected.Cost.Lower);
        }
    }
}

TEST(Species, AreProvenOneByOneWhereSuitesAreTooManyToCount) {
    // Beside seventeen pairs S35 alone covers a unit, S36 two that S37 and S38 cover one by one.
    CoverCase made = pairedCase(17);
    made.Uses.resize(38);
    for (auto& uses : made.Uses) uses.resize(20);
    made.Uses[34][17] = 1;
    made.Uses[35][18] = made.Uses[35][19] = 1;
    made.Uses[36][18] = 1;
    made.Uses[37][19] = 1;
    const Described described(made);
    const auto& roles = described.Roles;
    for (std::size_t row = 0; row < 34; ++row) {
        EXPECT_EQ(roles[row].Class, SpeciesClass::Some);
        EXPECT_EQ(roles[row].Share, std::nullopt);
        EXPECT_EQ(roles[row].Cost.Upper, 0U);
    }
    EXPECT_EQ(roles[34].Class, SpeciesClass::All);
    EXPECT_EQ(roles[34].Cost.Upper, std::nullopt);
    EXPECT_EQ(roles[35].Class, SpeciesClass::All);
    EXPECT_EQ(roles[35].Cost.Lower, 1U);
    EXPECT_EQ(roles[35].Cost.Upper, 1U);
    EXPECT_EQ(roles[36].Class, SpeciesClass::None);
    EXPECT_EQ(roles[37].Class, SpeciesClass::None);
}

TEST(Species, TableOfASmallCase) {
    const Described described(
        CoverCase{.Uses = {{1, 1, 0, 0}, {0, 1, 1, 0}, {1, 0, 0, 0}, {0, 0, 1, 0}, {1, 1, 1, 1}},
                  .Picks = {0, 1},
                  .Excluded = {false, false, false, false, true}});
    EXPECT_EQ(
        described.table(),
        "number\tspecies\teligible\trank\tpick\tclass\tshare\tlost\tlost_units\tcost\tonly_for\tsubstitutes\trarity\n"
        "1\tS1\tyes\t1\t1\tsome\t0.6667\t1\tH1\t0\t\tS3\t1.0000\n"
        "2\tS2\tyes\t2\t2\tsome\t0.6667\t1\tH3\t0\t\tS4\t1.0000\n"
        "3\tS3\tyes\t3\t\tsome\t0.3333\t\t\t0\t\t\t0.5000\n"
        "4\tS4\tyes\t4\t\tsome\t0.3333\t\t\t0\t\t\t0.5000\n"
        "5\tS5\tno\t5\t\texcluded\t\t\t\t\t\t\t\n");
}

TEST(Species, NothingToCoverNeedsNone) {
    const Described described(CoverCase{.Uses = {{0}, {0}}});
    for (const SpeciesRole& role : described.Roles) {
        EXPECT_EQ(role.Class, SpeciesClass::None);
        EXPECT_EQ(role.Share, 0.0);
        EXPECT_EQ(role.Cost.Upper, 0U);
    }
}

TEST(Species, WhatIsNotProvenIsAnInterval) {
    std::mt19937 random(9);
    int open = 0;
    for (int i = 0; i < 40; ++i) {
        const CoverCase made = randomCase(random, 40, 40);
        const Described whole(made);
        for (const std::uint64_t nodes : {0U, 20U, 200U, 1000U, 8000U}) {
            const Described cut(made, {.Nodes = nodes});
            for (std::size_t row = 0; row < cut.Roles.size(); ++row) {
                const SpeciesRole& known = cut.Roles[row];
                const SpeciesRole& truth = whole.Roles[row];
                if (known.Class) {
                    ASSERT_EQ(known.Class, truth.Class);
                }
                if (known.Share) {
                    ASSERT_EQ(known.Share, truth.Share);
                }
                ASSERT_EQ(known.Cost.Upper.has_value(), truth.Cost.Upper.has_value());
                if (!truth.Cost.Upper) continue;
                ASSERT_LE(known.Cost.Lower, *truth.Cost.Upper);
                ASSERT_GE(*known.Cost.Upper, *truth.Cost.Upper);
                open += known.Class ? 0 : 1;
            }
        }
    }
    EXPECT_GT(open, 100);
}

TEST(Species, AreDecidedWithoutASearchWhereTheyCanBe) {
    // No search has a single step. S1 alone covers a unit, S2 has nothing beside it, S3 covers less than S4.
    const Described described(CoverCase{.Uses = {{1, 1, 0, 0, 0, 0},
                                                 {0, 1, 0, 0, 0, 0},
                                                 {0, 0, 1, 0, 0, 0},
                                                 {0, 0, 1, 1, 0, 0},
                                                 {0, 0, 0, 1, 1, 0},
                                                 {0, 0, 0, 0, 1, 1},
                                                 {0, 0, 1, 0, 0, 1}}},
                              {.Nodes = 0});
    const auto& roles = described.Roles;
    EXPECT_EQ(roles[0].Class, SpeciesClass::All);
    EXPECT_EQ(roles[1].Class, SpeciesClass::None);
    EXPECT_EQ(roles[1].Cost.Upper, 0U);
    EXPECT_EQ(roles[2].Class, std::nullopt);
    EXPECT_EQ(roles[2].Cost.Upper, 0U);
}

TEST(Species, ThatAnotherOneReplacesCostNothingWhateverIsProven) {
    std::mt19937 random(13);
    int replaceable = 0;
    for (int i = 0; i < 40; ++i) {
        const Described cut(wideCase(random), {.Nodes = 0});
        if (cut.Minimum.Known.isProven()) continue;
        for (std::size_t row = 0; row < cut.Roles.size(); ++row) {
            for (std::size_t other = 0; other < cut.Roles.size(); ++other) {
                if (other == row || !isSubset(cut.Index.unitsOf(row), cut.Index.unitsOf(other))) continue;
                ASSERT_EQ(cut.Roles[row].Cost.Upper, 0U);
                ++replaceable;
            }
        }
    }
    EXPECT_GT(replaceable, 20);
}

TEST(Species, HaveAClassWhereverTheirCostTellsIt) {
    std::mt19937 random(12);
    int told = 0;
    for (int i = 0; i < 20; ++i) {
        const CoverCase made = wideCase(random);
        for (const std::uint64_t nodes : {500U, 2000U, 8000U, 16000U}) {
            const Described cut(made, {.Nodes = nodes});
            if (!cut.Minimum.Known.isProven()) continue;
            for (std::size_t row = 0; row < cut.Roles.size(); ++row) {
                const SpeciesRole& role = cut.Roles[row];
                const bool isIn = holds(cut.Minimum.Known.Suite, static_cast<std::uint32_t>(row));
                if (role.Cost.Lower > 0) {
                    ASSERT_EQ(role.Class, SpeciesClass::All);
                }
                if (isIn && role.Cost.Upper == 0U) {
                    ASSERT_EQ(role.Class, SpeciesClass::Some);
                }
                told += isIn && role.Class == SpeciesClass::Some ? 1 : 0;
            }
        }
    }
    EXPECT_GT(told, 100);
}
