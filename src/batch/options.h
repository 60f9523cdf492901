// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

/// A project, and what a planner would enter on the way to its suite.
struct RunOptions {
    std::string Project{};
    std::optional<std::string> ErrorMargin{};
    std::optional<std::string> ThreatRepresentation{};
    std::optional<std::string> ConservationStatus{};
    std::vector<std::string> Answers{};
};

/// What one run of brenica-batch without a verb is asked for.
struct BatchOptions : RunOptions {
    std::optional<std::string> Results;
    std::optional<std::string> Tables;
    std::optional<std::string> Messages;
};

/// The options, or the exit code of a command line that asks for help or the version, or is wrong.
struct ParsedOptions {
    std::optional<BatchOptions> Options;
    int ExitCode = 0;
};

/// Help and version go to `out`; what is wrong goes to `err`.
ParsedOptions parseOptions(int argc, const char* const* argv, std::ostream& out, std::ostream& err);
