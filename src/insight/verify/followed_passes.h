// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "insight/verify/recomputation.h"
#include "insight/verify/results_file.h"

/// The passes that a run with the picks of a results file goes through.
namespace insight {

struct FollowedPass {
    Pass Expected;
    /// The pick as it was followed; none where one that adds nothing is dropped.
    std::optional<std::size_t> Pick{};
    /// The line that marks it, as an index; else it was taken from the list of the suite, or is the best.
    std::optional<std::size_t> MarkedLine{};
    /// The lines of the file that stand for the pass, as indices: from the first to before the other.
    std::size_t FirstLine = 0;
    std::size_t EndOfLines = 0;
};

struct FollowedRun {
    std::vector<FollowedPass> Passes;
    std::vector<std::size_t> Suite;  ///< species
    /// What such a run ends in, where it cannot come to its end.
    std::optional<std::string> Error{};
};

/// Lets `run` go on to its end. Where the file is in doubt it takes the pick that explains most of it.
FollowedRun followPicks(Recomputation& run, const ResultsFile& file, const std::vector<std::string>& names);

/// The row's mark in the file.
std::string_view markOf(const FollowedPass& pass, std::size_t row, bool first);

}  // namespace insight
