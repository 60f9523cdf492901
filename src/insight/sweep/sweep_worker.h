// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "insight/sweep/sweep_counts.h"
#include "insight/sweep/sweep_settings.h"
#include "insight/sweep/variation.h"
#include "method/selection.h"

namespace insight {

/// Does runs of a sweep by their number and counts what they come to. Each is made of nothing but the run that is
/// varied, the settings and the number, whatever was done before. For one thread at a time.
///
/// A run ends in an error as a selection does, its suite counted so far. One whose grades cannot even be scored (a
/// product beyond the range of numbers) ends before its first pick: with an error, an empty suite and all units uncovered.
class SweepWorker {
public:
    /// All must outlive the worker; `grades` is null where they are not varied. REQUIRES: a run that came as far as its
    /// selection.
    SweepWorker(const SelectionRun& given, const SweepSettings& settings, const GradeVariation* grades);
    SweepWorker(const SweepWorker&) = delete;
    SweepWorker& operator=(const SweepWorker&) = delete;

    void run(std::uint64_t number);
    const SweepCounts& counts() const { return counts_; }

    /// What the last run was made of, and what it came to.
    const method::Levels& levels() const { return levels_; }
    const method::Landscape& landscape() const { return landscape_; }
    const method::Table& threatScores() const { return assessment_.Threats.Scores; }
    const method::Suite& suite() const { return scored_ ? selection_.suite() : noSuite_; }
    bool failed() const { return failed_; }

private:
    bool score();
    bool select(RandomStream& stream);
    void count();
    void countUncovered(method::Unit kind);
    bool coverable(method::Unit kind, std::size_t unit) const;

    const SelectionRun& given_;
    const SweepSettings& settings_;
    const GradeVariation* grades_;
    method::PerKind<std::vector<double>> thresholds_;  ///< of habitats and zones, whole numbers
    method::Suite noSuite_;

    // One run.
    method::Levels levels_;
    method::Landscape landscape_;
    method::Assessment assessment_;
    method::Selection selection_;
    std::vector<bool> eligible_;
    bool scored_ = false;
    bool failed_ = false;

    SweepCounts counts_;
};

}  // namespace insight
