// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/level_grid.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "insight/report/rerun.h"

namespace insight {

namespace {

constexpr int Steps = 10;

std::vector<double> tenthsAnd(double own) {
    std::vector<double> levels = {own};
    for (int i = 0; i <= Steps; ++i) levels.push_back(static_cast<double>(i) / Steps);
    std::sort(levels.begin(), levels.end());
    levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
    return levels;
}

std::size_t admitted(const SelectionRun& run, double status) {
    const std::vector<bool> eligible = method::eligible(run.Landscape.Status, status);
    return static_cast<std::size_t>(std::count(eligible.begin(), eligible.end(), true));
}

LevelRun runAt(Rerun& rerun, const method::Levels& levels, const std::vector<method::Answer>& answers) {
    method::ScriptedAnswers chooser(answers);
    const method::Suite& suite = rerun.select(levels, chooser);
    return {suite.Picks.size(), uncoveredUnits(suite), rerun.failed()};
}

bool isWanted(const std::atomic<bool>* stop) { return stop && *stop; }

}  // namespace

std::optional<LevelPair> nearestCovering(const LevelGrid& grid, const method::Levels& own) {
    using Nearness = std::tuple<double, double>;
    std::optional<LevelPair> nearest;
    Nearness least;
    for (std::size_t row = 0; row < grid.Runs.size(); ++row) {
        for (std::size_t column = 0; column < grid.Representations.size(); ++column) {
            const double fromRepresentation =
                std::abs(grid.Representations[column] - own.ThreatRepresentation);
            const double distance =
                fromRepresentation + std::abs(grid.Statuses[row] - own.ConservationStatus);
            const Nearness nearness = {std::round(distance * 1000), fromRepresentation};
            const bool isLeft = grid.Runs[row][column].Uncovered > 0 || grid.Representations[column] == 0;
            if (isLeft || (nearest && nearness >= least)) continue;
            nearest = LevelPair{row, column};
            least = nearness;
        }
    }
    return nearest;
}

LevelGrid levelGrid(const SelectionRun& run, const std::vector<method::Answer>& answers,
                    const std::atomic<bool>* stop) {
    LevelGrid grid;
    grid.Representations = tenthsAnd(run.Levels.ThreatRepresentation);
    grid.Statuses = tenthsAnd(run.Levels.ConservationStatus);
    std::reverse(grid.Statuses.begin(), grid.Statuses.end());
    std::erase_if(grid.Statuses, [&](double status) { return admitted(run, status) == 0; });
    for (const double status : grid.Statuses) grid.Admitted.push_back(admitted(run, status));
    Rerun rerun(run.Landscape);
    for (const double status : grid.Statuses) {
        std::vector<LevelRun> runs;
        for (const double representation : grid.Representations) {
            if (isWanted(stop)) return grid;
            runs.push_back(runAt(rerun, {run.Levels.Margin, representation, status}, answers));
        }
        grid.Runs.push_back(std::move(runs));
    }
    return grid;
}

}  // namespace insight
