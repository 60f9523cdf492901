// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <iosfwd>
#include <optional>
#include <span>

#include "batch/options.h"

/// The project, the levels and the answers, which all command lines know.
void addRunOptions(CLI::App& app, RunOptions& options);

/// Checks that an option's text is a number within bounds, these included, and nothing else.
CLI::Validator wholeNumber(std::uint64_t least, std::uint64_t most);
CLI::Validator realNumber(double least, double most);

/// The exit code of a command line that asks for help or the version, or is wrong; nothing where the run may begin. Help
/// and version go to `out`; what is wrong goes to `err`. An option whose "=" has nothing behind it has an empty value.
std::optional<int> parseArguments(CLI::App& app, std::span<const char* const> arguments, std::ostream& out,
                                  std::ostream& err);
