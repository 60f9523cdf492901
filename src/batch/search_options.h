// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <optional>

/// What a search for suites may cost, as the command line says.
struct SearchOptions {
    std::optional<double> Seconds;
    std::optional<std::uint64_t> Nodes;

    /// The limit in seconds: the usual one where none is given. With nodes alone no clock decides anything, so that the
    /// answer is the same everywhere.
    std::optional<double> limitInSeconds() const;
};

/// --time and --nodes.
void addSearchOptions(CLI::App& app, SearchOptions& options);
