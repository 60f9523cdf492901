// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/level_grid.h"

#include <algorithm>

#include "method/assessment.h"
#include "method/coverage.h"
#include "method/failure.h"
#include "method/selection.h"

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

std::size_t uncovered(const method::Suite& suite) {
    std::size_t units = 0;
    for (const method::Unit kind : method::UnitKinds) {
        const std::vector<int>& coveredBy = suite.CoveredBy[kind];
        units += static_cast<std::size_t>(std::count(coveredBy.begin(), coveredBy.end(), 0));
    }
    return units;
}

LevelRun runAt(method::Selection& selection, const method::Levels& levels,
               const std::vector<method::Answer>& answers) {
    bool failed = false;
    try {
        selection.start(levels);
        method::ScriptedAnswers chooser(answers);
        selection.run(chooser);
    } catch (const method::Failure&) {
        failed = true;
    }
    const method::Suite& suite = selection.suite();
    return {suite.Picks.size(), uncovered(suite), failed};
}

bool isWanted(const std::atomic<bool>* stop) { return stop && *stop; }

}  // namespace

LevelGrid levelGrid(const SelectionRun& run, const std::vector<method::Answer>& answers,
                    const std::atomic<bool>* stop) {
    LevelGrid grid;
    grid.Representations = tenthsAnd(run.Levels.ThreatRepresentation);
    grid.Statuses = tenthsAnd(run.Levels.ConservationStatus);
    std::reverse(grid.Statuses.begin(), grid.Statuses.end());
    std::erase_if(grid.Statuses, [&](double status) { return admitted(run, status) == 0; });
    for (const double status : grid.Statuses) grid.Admitted.push_back(admitted(run, status));
    method::Assessment assessment;
    method::assess(run.Landscape, assessment);
    method::Selection selection;
    selection.load(run.Landscape, assessment);
    for (const double status : grid.Statuses) {
        std::vector<LevelRun> runs;
        for (const double representation : grid.Representations) {
            if (isWanted(stop)) return grid;
            runs.push_back(runAt(selection, {run.Levels.Margin, representation, status}, answers));
        }
        grid.Runs.push_back(std::move(runs));
    }
    return grid;
}

}  // namespace insight
