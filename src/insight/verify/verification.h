// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "insight/table.h"
#include "insight/verify/results_file.h"
#include "method/levels.h"
#include "selection/selection_run.h"

/// Whether an exported results file follows from a project.
namespace insight {

/// Levels that somebody says the file was made with.
struct GivenLevels {
    std::optional<double> Margin{};
    std::optional<double> ThreatRepresentation{};
    std::optional<double> ConservationStatus{};
};

/// The levels to check a file with: as it states them, cut at their bounds. One that is given and reads the same in the
/// file's 15 digits takes its place. Whoever needs a run of the project to have its landscape makes it at these levels
/// (plainNumber() writes them), since a gate may depend on them.
method::Levels levelsOf(const ResultsFile& file, const GivenLevels& given = {});

struct Verification {
    /// Columns check, expected, found, ok: every check, in the order of the file. A check begins with its place:
    /// "line 37: additions", "missing after line 36".
    ResultTable Table;
    bool Holds = true;  ///< no check failed
};

/// Computes the run anew from the names and the landscape of `project` (from nothing else of it, so that its selection may
/// have had any levels and answers) and follows the picks that the file marks, each of which the margin of error must
/// permit. It holds exactly when the file is, line by line, what such a run writes.
Verification verifyResults(const SelectionRun& project, const ResultsFile& file,
                           const GivenLevels& given = {});

}  // namespace insight
