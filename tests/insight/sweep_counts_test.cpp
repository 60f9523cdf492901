// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/sweep/sweep_counts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

using insight::SweepCounts;
using insight::SweepNames;
using method::Unit;

namespace {

SweepNames twoSpecies() {
    SweepNames names;
    names.Species = {"Otter", "Adder"};
    names.Units[Unit::Habitat] = {"Fen"};
    names.Units[Unit::Zone] = {"Park"};
    names.Units[Unit::Threat] = {"Roads", "Dams\tand weirs"};
    return names;
}

}  // namespace

TEST(ASweepTable, ListsSpeciesUnitsExitsAndTheSizesThatOccurred) {
    SweepCounts counts(twoSpecies());
    counts.Runs = 10;
    counts.Errors = 3;
    counts.Species = {10, 5};
    counts.Sizes = {0, 5, 5};
    counts.Uncovered[Unit::Threat] = {4, 0};
    counts.Missed[Unit::Threat] = {1, 0};
    EXPECT_EQ(tabSeparated(sweepTable(twoSpecies(), counts)),
              "what\tkind\tnumber\tname\tcount\truns\tfrequency\tlow\thigh\n"
              "species\t\t1\tOtter\t10\t10\t1.0000\t0.7225\t1.0000\n"
              "species\t\t2\tAdder\t5\t10\t0.5000\t0.2366\t0.7634\n"
              "uncovered\thabitat\t1\tFen\t0\t10\t0.0000\t0.0000\t0.2775\n"
              "uncovered\tzone\t1\tPark\t0\t10\t0.0000\t0.0000\t0.2775\n"
              "uncovered\tthreat\t1\tRoads\t4\t10\t0.4000\t0.1682\t0.6873\n"
              "uncovered\tthreat\t2\tDams and weirs\t0\t10\t0.0000\t0.0000\t0.2775\n"
              "missed\thabitat\t1\tFen\t0\t10\t0.0000\t0.0000\t0.2775\n"
              "missed\tzone\t1\tPark\t0\t10\t0.0000\t0.0000\t0.2775\n"
              "missed\tthreat\t1\tRoads\t1\t10\t0.1000\t0.0179\t0.4042\n"
              "missed\tthreat\t2\tDams and weirs\t0\t10\t0.0000\t0.0000\t0.2775\n"
              "exit\t\t\t0\t7\t10\t0.7000\t0.3968\t0.8922\n"
              "exit\t\t\t4\t3\t10\t0.3000\t0.1078\t0.6032\n"
              "size\t\t\t1\t5\t10\t0.5000\t0.2366\t0.7634\n"
              "size\t\t\t2\t5\t10\t0.5000\t0.2366\t0.7634\n");
}

TEST(ASweepTable, WithoutARunTellsNoFrequency) {
    SweepNames names;
    names.Species = {"Otter"};
    EXPECT_EQ(tabSeparated(sweepTable(names, SweepCounts(names))),
              "what\tkind\tnumber\tname\tcount\truns\tfrequency\tlow\thigh\n"
              "species\t\t1\tOtter\t0\t0\t\t\t\n"
              "exit\t\t\t0\t0\t0\t\t\t\n"
              "exit\t\t\t4\t0\t0\t\t\t\n");
}

/// The interval is where the score test does not reject: (share - limit)² = z² limit (1 - limit) / runs.
TEST(AWilsonInterval, EndsWhereTheScoreTestRejects) {
    constexpr double Z = 1.96;
    for (const auto& [count, runs] : {std::pair{1, 10}, {5, 10}, {3, 2500}, {2400, 2500}}) {
        const auto [low, high] =
            insight::wilsonInterval(static_cast<insight::Count>(count), static_cast<insight::Count>(runs));
        const double share = static_cast<double>(count) / runs;
        EXPECT_LT(low, share);
        EXPECT_GT(high, share);
        for (const double limit : {low, high})
            EXPECT_NEAR((share - limit) * (share - limit), Z * Z * limit * (1 - limit) / runs, 1e-12);
    }
}

TEST(AWilsonInterval, StaysWithin0And1) {
    for (insight::Count runs = 1; runs < 200; ++runs) {
        const double low = insight::wilsonInterval(0, runs).Low;
        const double high = insight::wilsonInterval(runs, runs).High;
        EXPECT_FALSE(std::signbit(low));
        EXPECT_NEAR(low, 0, 1e-15);
        EXPECT_LE(high, 1);
        EXPECT_NEAR(high, 1, 1e-15);
    }
}
