// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "insight/report/level_grid.h"
#include "selected_run.h"
#include "selection/margin_answers.h"

using namespace insight;
using testing::ElementsAre;

namespace {

std::size_t uncovered(const SelectionRun& run) {
    std::size_t units = 0;
    for (const method::Unit kind : method::UnitKinds) {
        for (const int pick : run.Outcome.Suite.CoveredBy[kind]) units += pick == 0 ? 1 : 0;
    }
    return units;
}

RunOptions at(const char* representation, const char* status) {
    RunOptions options = fullLandscape();
    options.ThreatRepresentation = representation;
    options.ConservationStatus = status;
    return options;
}

}  // namespace

TEST(LevelGrid, HoldsTheRunsThatAPlannerMakesAtTheseLevels) {
    const RunOptions options = fullLandscape();
    const LevelGrid grid = levelGrid(selected(options), marginAnswers(options.Answers), nullptr);
    ASSERT_TRUE(grid.isComplete());
    for (const auto& [representation, column] :
         {std::pair("0", 0), std::pair("0.4", 4), std::pair("1", 10)}) {
        for (const auto& [status, row] : {std::pair("1", 0), std::pair("0.8", 2), std::pair("0.2", 8)}) {
            const SelectionRun run = selected(at(representation, status));
            const LevelRun& cell = grid.Runs[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
            EXPECT_EQ(cell.Species, run.Outcome.Suite.Picks.size()) << representation << ' ' << status;
            EXPECT_EQ(cell.Uncovered, uncovered(run)) << representation << ' ' << status;
            EXPECT_EQ(cell.Failed, run.Outcome.Error.has_value()) << representation << ' ' << status;
        }
    }
}

TEST(LevelGrid, HasTheRunsOwnLevelsAmongTheTenths) {
    const SelectionRun run = selected(at("0.45", "0.85"));
    const LevelGrid grid = levelGrid(run, {}, nullptr);
    EXPECT_THAT(grid.Representations, ElementsAre(0, 0.1, 0.2, 0.3, 0.4, 0.45, 0.5, 0.6, 0.7, 0.8, 0.9, 1));
    EXPECT_THAT(grid.Statuses, ElementsAre(1, 0.9, 0.85, 0.8, 0.7, 0.6, 0.5, 0.4, 0.3, 0.2, 0.1))
        << "at 0 nobody is admitted";
    EXPECT_THAT(grid.Admitted, ElementsAre(25, 24, 23, 23, 23, 21, 19, 16, 11, 5, 1));
}

TEST(LevelGrid, EndsEarlyWhereItIsStopped) {
    const std::atomic<bool> stop = true;
    const LevelGrid grid = levelGrid(selected(smallLandscape()), {}, &stop);
    EXPECT_TRUE(grid.Runs.empty());
    EXPECT_FALSE(grid.isComplete());
}

TEST(LevelGrid, KnowsTheNearestLevelsThatLeaveNothing) {
    const method::Levels own{5, 0.5, 0.8};
    LevelGrid grid;
    grid.Representations = {0, 0.3, 0.5};
    grid.Statuses = {1, 0.8};
    grid.Runs = {{{3, 0}, {4, 0}, {5, 0}}, {{3, 0}, {4, 0}, {5, 1}}};
    const auto nearest = nearestCovering(grid, own);
    ASSERT_TRUE(nearest);
    EXPECT_EQ(nearest->Status, 0U) << "as near as a lower threat representation, and asks for more";
    EXPECT_EQ(nearest->Representation, 2U);
    grid.Runs = {{{3, 0}, {4, 1}, {5, 1}}, {{3, 0}, {4, 1}, {5, 1}}};
    EXPECT_FALSE(nearestCovering(grid, own)) << "at 0 any species counts";
}
