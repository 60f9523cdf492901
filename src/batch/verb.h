// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <utility>
#include <vector>

#include "batch/batch_run.h"
#include "insight/table.h"
#include "selection/selection_run.h"

/// What a verb is asked for: a run, and how it is to be explained.
struct VerbOptions : RunOptions {
    bool Json = false;
};

/// What a verb says of a run.
struct Answer {
    insight::ResultTable Table;
    std::vector<std::pair<std::string, bool>> Facts{};  ///< of the whole table, told in JSON alone
    std::vector<std::string> Notes{};                   ///< lines on standard error
    ExitCode Code = ExitDone;
};

/// A question about a suite.
struct Verb {
    const char* Name;
    const char* Help;
    void (*AddOptions)(CLI::App& app, VerbOptions& options);
    Answer (*Ask)(const SelectionRun& run, const VerbOptions& options);
};

/// The verb of this name, if it is one.
const Verb* findVerb(std::string_view name);
