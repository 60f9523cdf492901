// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <functional>

#include "insight/sweep/sweep_counts.h"
#include "insight/sweep/sweep_settings.h"

/// How the suite depends on what was assumed: many selections, each with other levels, answers or grades.
namespace insight {

/// How a sweep is done. Nothing of it changes a count.
struct SweepWork {
    unsigned Threads = 1;  ///< the calling one included; where the system gives fewer, those do
    /// No run begins once this is set, by a signal handler too. Null: nothing stops it.
    const std::atomic<bool>* Stop = nullptr;
    /// Told now and then, on the calling thread, how many runs are done of how many of this shard.
    std::function<void(std::uint64_t done, std::uint64_t of)> Progress{};
};

/// The counts of the settings' shard: the same for any number of threads, and those of all shards add up to those of the
/// whole. One that was stopped has fewer Runs than runsOf() tells. Scores are those that the landscape's numbers give.
/// REQUIRES: a run that came as far as its selection, and settings within their bounds.
SweepCounts sweep(const SelectionRun& run, const SweepSettings& settings, const SweepWork& work = {});

}  // namespace insight
