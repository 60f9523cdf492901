// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>

#include "batch/options.h"

/// What stands before each line of the program's own on standard error.
inline constexpr const char* ProgramName = "brenica-batch";

/// Exit codes of brenica-batch.
enum ExitCode {
    ExitDone = 0,
    ExitWrongUsage = 1,
    ExitUnreadableProject = 2,
    ExitNothingToScore = 3,
    ExitUnexpectedError = 4,
    ExitCheckFailed = 5,
};

/// Opens the project in a form of its own, walks its pages, runs the selection and writes what was asked for. All of it
/// goes through the form's user actions. The suite goes to `out`; boxes, as they come, and faults go to `err`.
ExitCode runBatch(const BatchOptions& options, std::ostream& out, std::ostream& err);

/// The same for a process that ends with it: the form is left standing, since to take large tables apart takes time, and
/// the system takes them all at once.
ExitCode runLastBatch(const BatchOptions& options, std::ostream& out, std::ostream& err);
