// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <optional>
#include <vector>

#include "method/margin.h"
#include "selection/selection_run.h"

/// What the selection comes to at other levels of threat representation and conservation status.
namespace insight {

struct LevelRun {
    std::size_t Species = 0;    ///< in the suite
    std::size_t Uncovered = 0;  ///< units
    bool Failed = false;        ///< ended in an error, with the suite so far
};

struct LevelGrid {
    std::vector<double> Representations;  ///< tenths and the run's own level, rising
    std::vector<double> Statuses;         ///< the same, falling; those that admit nobody are left out
    std::vector<std::size_t> Admitted;    ///< species, by status
    std::vector<std::vector<LevelRun>>
        Runs;  ///< by status, then by representation; fewer where it was stopped

    bool isComplete() const { return Runs.size() == Statuses.size(); }
};

/// A place in the grid.
struct LevelPair {
    std::size_t Status;
    std::size_t Representation;
};

/// The pair of levels nearest to `own` among those that leave no unit uncovered; of equally near ones the one that keeps
/// more of threat representation. None where there is none. At a threat representation of 0 any species covers each
/// threat, so that it does not count.
std::optional<LevelPair> nearestCovering(const LevelGrid& grid, const method::Levels& own);

/// One selection for each pair of levels, at the run's margin of error. Each takes `answers` in order, then the defaults.
/// `stop` may be null. REQUIRES: a run that came as far as its selection.
LevelGrid levelGrid(const SelectionRun& run, const std::vector<method::Answer>& answers,
                    const std::atomic<bool>* stop);

}  // namespace insight
