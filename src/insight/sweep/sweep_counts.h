// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "insight/table.h"
#include "method/units.h"
#include "selection/selection_run.h"

/// What the runs of a sweep came to.
namespace insight {

using Count = std::uint64_t;

/// What is counted, by name and in the order of the lists.
struct SweepNames {
    std::vector<std::string> Species;
    method::PerKind<std::vector<std::string>> Units;
    bool operator==(const SweepNames&) const = default;
};

SweepNames sweepNames(const SelectionRun& run);

struct SweepCounts {
    SweepCounts() = default;
    explicit SweepCounts(const SweepNames& names);

    Count Runs = 0;
    Count Errors = 0;            ///< runs that ended in an error, their suites counted so far
    std::vector<Count> Species;  ///< suites that hold it
    method::PerKind<std::vector<Count>> Uncovered;  ///< runs that leave the unit uncovered
    method::PerKind<std::vector<Count>> Missed;     ///< of these, where an eligible species covers it
    std::vector<Count> Sizes;                       ///< element n: suites of n species

    /// REQUIRES: counts of the same species and units
    void add(const SweepCounts& other);
    bool operator==(const SweepCounts&) const = default;
};

/// The score interval of Wilson (1927) for a share that was seen `count` times in `runs`, with z = 1.96: 95 of 100 such
/// intervals hold the true share. REQUIRES: runs > 0
struct Interval {
    double Low;
    double High;
};
Interval wilsonInterval(Count count, Count runs);

/// Columns what, kind, number, name, count, runs, frequency, low, high. Without a run the last three are empty.
ResultTable sweepTable(const SweepNames& names, const SweepCounts& counts);

}  // namespace insight
