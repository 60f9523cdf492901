// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "batch/batch_run.h"
#include "batch/verb.h"
#include "insight/table.h"
#include "selection/selection_run.h"

/// What a verb says.
struct Answer {
    insight::ResultTable Table;
    std::vector<std::pair<std::string, bool>> Facts{};  ///< of the whole table, told in JSON alone
    std::vector<std::string> Notes{};                   ///< lines on standard error
    ExitCode Code = ExitDone;
};

/// A project that was run, to be explained.
struct ExplainedProject {
    const SelectionRun& Run;
    const RunOptions& Options;
    const std::vector<std::string>& AnswersLeft;  ///< when the selection began
    bool HasDefaults;                             ///< put in for what the file lacks
};

/// What a verb asks of a project.
struct ProjectQuestion {
    std::function<void(CLI::App&)> AddOptions{};
    /// Looks at the options before the project is opened; may fill in levels. Throws UsageFault or UnreadableFault.
    std::function<void(RunOptions&)> Prepare{};
    std::function<Answer(const ExplainedProject&)> Ask;
    /// False where another run is asked about: nothing is then said of this one.
    bool AboutRun = true;
};

/// Opens the project, walks and selects as without a verb, asks and prints the answer.
int explainProject(const VerbCall& call, const ProjectQuestion& question);

/// A command line with the name, the help and the exit codes of a verb, and --json.
struct VerbCommandLine : CLI::App {
    explicit VerbCommandLine(const Verb& verb);
    bool Json = false;
};

/// A line of the program's own on standard error.
void sayLine(std::ostream& err, const std::string& line);
