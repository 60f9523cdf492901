// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/search_options.h"

#include <limits>

#include "batch/command_line.h"
#include "insight/cover/search_effort.h"

namespace {

constexpr double MostSeconds = 1e9;

}  // namespace

std::optional<double> SearchOptions::limitInSeconds() const {
    if (Seconds || Nodes) return Seconds;
    return insight::UsualSeconds;
}

void addSearchOptions(CLI::App& app, SearchOptions& options) {
    app.add_option("--time", options.Seconds, "seconds that the search may take, 60 where no nodes are given")
        ->type_name("S")
        ->check(realNumber(0, MostSeconds));
    app.add_option("--nodes", options.Nodes,
                   "steps that it may take; alone they give the same answer everywhere")
        ->type_name("N")
        ->check(wholeNumber(0, std::numeric_limits<std::uint64_t>::max()));
}
