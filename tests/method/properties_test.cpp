// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

#include "landscapes.h"
#include "method/block_sorter.h"

namespace {

using namespace method;

constexpr Levels NoMargin{.Margin = 0};

/// The same landscape with its species in another order.
Landscape reordered(const Landscape& land, const std::vector<std::size_t>& order) {
    const auto rows = [&](const Table& table) {
        Table moved(table.rows(), table.columns());
        for (std::size_t s = 0; s < order.size(); ++s)
            std::copy(table.row(order[s]).begin(), table.row(order[s]).end(), moved.row(s).begin());
        return moved;
    };
    const auto values = [&](auto list) {
        auto moved = list;
        for (std::size_t s = 0; s < order.size(); ++s) moved[s] = list[order[s]];
        return moved;
    };
    Landscape moved = land;
    moved.HabitatLevels = rows(land.HabitatLevels);
    moved.ZoneLevels = rows(land.ZoneLevels);
    moved.Ratings = {rows(land.Ratings.Urgency), rows(land.Ratings.Recovery), rows(land.Ratings.Severity),
                     rows(land.Ratings.Proportion), rows(land.Ratings.Probability)};
    moved.Status = values(land.Status);
    moved.Dispersal = values(land.Dispersal);
    moved.Connectivity = values(land.Connectivity);
    moved.Ranges.Values = values(land.Ranges.Values);
    moved.Occupied = values(land.Occupied);
    moved.Functions = rows(land.Functions);
    moved.SocioEconomics = rows(land.SocioEconomics);
    return moved;
}

/// Notices whether two species ever stood equal at the top.
struct CountTies : TakeTop {
    int Ties = 0;
    std::size_t choose(const MarginBand& band) override {
        ++Ties;
        return band.Top;
    }
};

std::vector<bool> coveredUnits(const Suite& suite) {
    std::vector<bool> covered;
    for (const Unit kind : UnitKinds) {
        for (const int pick : suite.CoveredBy[kind]) covered.push_back(pick > 0);
    }
    return covered;
}

RC_GTEST_PROP(Method, a_listener_changes_nothing, (const Landscape& land)) {
    Listener listener;
    const Outcome alone = select(land, NoMargin);
    const Outcome watched = select(land, NoMargin, &listener);
    RC_ASSERT(alone.Failed == watched.Failed);
    RC_ASSERT(speciesOf(alone.Suite) == speciesOf(watched.Suite));
    RC_ASSERT(alone.Suite.CoveredBy == watched.Suite.CoveredBy);
}

RC_GTEST_PROP(Method, every_member_adds_something_and_none_is_picked_twice, (const Landscape& land)) {
    const Suite suite = select(land, {}).Suite;
    Additions sum;
    for (const Pick& pick : suite.Picks) {
        RC_ASSERT(pick.Adds[Unit::Habitat] + pick.Adds[Unit::Zone] + pick.Adds[Unit::Threat] > 0);
        for (const Unit kind : UnitKinds) sum[kind] += pick.Adds[kind];
    }
    RC_ASSERT(sum == suite.Covered);
    std::vector<std::size_t> species = speciesOf(suite);
    std::sort(species.begin(), species.end());
    RC_ASSERT(std::adjacent_find(species.begin(), species.end()) == species.end());
}

RC_GTEST_PROP(Method, a_unit_is_covered_by_the_first_member_that_represents_it, (const Landscape& land)) {
    Assessment assessment;
    assess(land, assessment);
    const Suite suite = select(land, NoMargin).Suite;
    const auto firstOf = [&](auto representing) {
        for (std::size_t i = 0; i < suite.Picks.size(); ++i) {
            if (representing(suite.Picks[i].Species)) return static_cast<int>(i) + 1;
        }
        return 0;
    };
    for (std::size_t h = 0; h < land.habitats(); ++h) {
        RC_ASSERT(suite.CoveredBy[Unit::Habitat][h] == firstOf([&](std::size_t s) {
                      return represents(land.HabitatLevels.at(s, h), land.HabitatThresholds[h]);
                  }));
    }
    const std::vector<double> highest = highestThreatScores(assessment.Threats.Scores);
    for (std::size_t t = 0; t < land.threats(); ++t) {
        RC_ASSERT(suite.CoveredBy[Unit::Threat][t] == firstOf([&](std::size_t s) {
                      return representsThreat(assessment.Threats.Scores.at(s, t),
                                              NoMargin.ThreatRepresentation * highest[t]);
                  }));
    }
}

RC_GTEST_PROP(Method, the_order_of_species_does_not_matter_without_ties,
              (const Landscape& land, unsigned seed)) {
    std::vector<std::size_t> order(land.species());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::shuffle(order.begin(), order.end(), std::mt19937(seed));
    const auto run = [](const Landscape& landscape, CountTies& ties) {
        Assessment assessment;
        assess(landscape, assessment);
        return select(landscape, assessment, NoMargin, ties);
    };
    CountTies ties;
    const Outcome outcome = run(land, ties);
    RC_PRE(ties.Ties == 0);
    const Outcome moved = run(reordered(land, order), ties);
    std::vector<std::size_t> back;
    for (const std::size_t species : speciesOf(moved.Suite)) back.push_back(order[species]);
    RC_ASSERT(back == speciesOf(outcome.Suite));
    RC_ASSERT(moved.Failed == outcome.Failed);
}

RC_GTEST_PROP(Method, raising_a_threshold_adds_no_coverage, (Landscape land)) {
    const Outcome before = select(land, NoMargin);
    const auto unit = *rc::gen::inRange<std::size_t>(0, land.habitats());
    land.HabitatThresholds[unit] += *rc::gen::inRange(1, 4);
    const Outcome after = select(land, NoMargin);
    RC_PRE(!before.Failed && !after.Failed);
    const std::vector<bool> was = coveredUnits(before.Suite);
    const std::vector<bool> is = coveredUnits(after.Suite);
    for (std::size_t i = 0; i < is.size(); ++i) RC_ASSERT(was[i] || !is[i]);
}

RC_GTEST_PROP(Method, a_complete_run_covers_all_that_an_eligible_species_represents,
              (const Landscape& land)) {
    const Levels levels{.Margin = 0, .ConservationStatus = 0.7};
    const Outcome outcome = select(land, levels);
    RC_PRE(!outcome.Failed);
    for (std::size_t z = 0; z < land.zones(); ++z) {
        bool coverable = false;
        for (std::size_t s = 0; s < land.species(); ++s) {
            coverable = coverable || (land.Status[s] <= levels.ConservationStatus &&
                                      represents(land.ZoneLevels.at(s, z), land.ZoneThresholds[z]));
        }
        RC_ASSERT((outcome.Suite.CoveredBy[Unit::Zone][z] > 0) == coverable);
    }
}

RC_GTEST_PROP(Method, an_excluded_species_changes_nothing_but_the_highest_threat_scores, (Landscape land)) {
    const Levels levels{.Margin = 0, .ConservationStatus = 0.7};
    const auto excluded = *rc::gen::inRange<std::size_t>(0, land.species());
    land.Status[excluded] = 0.9;
    Assessment assessment;
    assess(land, assessment);
    TakeTop chooser;
    const Outcome before = select(land, assessment, levels, chooser);
    for (Table* grades : {&land.HabitatLevels, &land.ZoneLevels, &land.Ratings.Severity}) {
        for (double& grade : grades->row(excluded)) grade = *rc::gen::element(0.0, 3.0, Blank);
    }
    const Outcome after = select(land, assessment, levels, chooser);
    RC_ASSERT(speciesOf(before.Suite) == speciesOf(after.Suite));
    RC_ASSERT(before.Suite.CoveredBy == after.Suite.CoveredBy);
    RC_ASSERT(before.Failed == after.Failed);
}

RC_GTEST_PROP(Method, what_is_left_is_the_same_as_adding_up_anew, (const Landscape& land)) {
    const UnitLayout layout(land.habitats(), land.zones(), land.threats());
    Remainder remainder;
    remainder.load(land, layout);
    std::vector<Word> covered(layout.words());
    const auto sum = [&](const Table& levels, Unit kind, std::size_t s) {
        double left = 0;
        for (std::size_t u = 0; u < levels.columns(); ++u) {
            if (!layout.part(std::span(covered), kind).has(u)) left += levels.at(s, u);
        }
        return left;
    };
    const auto turns = *rc::gen::inRange(0, 12);
    for (int turn = 0; turn < turns; ++turn) {
        const Unit kind = *rc::gen::element(Unit::Habitat, Unit::Zone, Unit::Threat);
        const auto unit = *rc::gen::inRange<std::size_t>(0, layout.units(kind));
        if (!layout.part(std::span(covered), kind).has(unit)) {
            layout.part(std::span(covered), kind).insert(unit);
            remainder.cover(kind, unit);
        }
        for (std::size_t s = 0; s < land.species(); ++s) {
            remainder.refresh(s, covered);
            RC_ASSERT(remainder.heterogeneity(s) ==
                      heterogeneityLeft(sum(land.HabitatLevels, Unit::Habitat, s),
                                        sum(land.ZoneLevels, Unit::Zone, s), s));
            const auto threats = layout.part(std::span<const Word>(covered), Unit::Threat);
            RC_ASSERT(remainder.vulnerability(s, covered) ==
                      vulnerabilityLeft(land.Ratings, land.Status[s], threats, s));
        }
    }
}

/// Words of 64 units: the last unit stands in the second one.
TEST(Method, what_is_left_of_many_units_goes_down_unit_by_unit) {
    constexpr std::size_t Units = 70;
    Landscape land = emptyLandscape(1, Units, 1, 1);
    land.HabitatLevels = Table(1, Units, 3.0);
    const UnitLayout layout(Units, 1, 1);
    Remainder remainder;
    remainder.load(land, layout);
    std::vector<Word> covered(layout.words());
    for (std::size_t unit = Units; unit-- > 0;) {
        layout.part(std::span(covered), Unit::Habitat).insert(unit);
        remainder.cover(Unit::Habitat, unit);
        remainder.refresh(0, covered);
        EXPECT_EQ(remainder.heterogeneity(0), 6.0 * static_cast<double>(unit));
    }
}

RC_GTEST_PROP(Method, blocks_of_any_size_are_sorted_alike, (unsigned seed)) {
    std::mt19937 random(seed);
    std::vector<SortKey> rows;
    const std::uint32_t size = random() % 400;
    for (std::uint32_t s = 0; s < size; ++s)
        rows.push_back({random() % 50 == 0 ? Blank : static_cast<double>(random() % 5000) / 1000, s});
    if (seed % 2 == 0) std::erase_if(rows, [](const SortKey& row) { return !isNumber(row.Aggregate); });
    std::vector<SortKey> expected = rows;
    std::stable_sort(expected.begin(), expected.end(), [](const SortKey& a, const SortKey& b) {
        const auto value = [](const SortKey& row) { return isNumber(row.Aggregate) ? row.Aggregate : -1; };
        return value(a) > value(b);
    });
    BlockSorter().sort(rows);
    for (std::size_t i = 0; i < rows.size(); ++i) RC_ASSERT(rows[i].Species == expected[i].Species);
}

/// More thousandths than two digits of a key hold.
TEST(Method, blocks_with_a_large_aggregate_are_sorted_alike) {
    std::vector<SortKey> rows;
    for (std::uint32_t s = 0; s < 120; ++s) rows.push_back({s == 60 ? 16.384 : s % 2 * 0.001, s});
    BlockSorter().sort(rows);
    EXPECT_EQ(rows.front().Species, 60U);
    EXPECT_EQ(rows[1].Species, 1U);
    EXPECT_EQ(rows.back().Species, 118U);
}

}  // namespace
