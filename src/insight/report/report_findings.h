// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "insight/cover/best_coverage.h"
#include "insight/cover/species_roles.h"
#include "insight/report/decisions.h"
#include "insight/report/level_grid.h"
#include "insight/report/remedies.h"
#include "insight/sweep/sweep_counts.h"
#include "insight/sweep/sweep_settings.h"
#include "insight/unit_states.h"

/// All that a report tells of a run, as numbers.
namespace insight {

/// How the numbers of a report are found. The counts depend on none of it, the searches on their limits alone.
struct ReportWork {
    std::optional<double> Seconds{};       ///< that the searches may take together
    std::optional<std::uint64_t> Nodes{};  ///< steps that they may take
    unsigned Threads = 1;
    /// Set by another thread or a signal it ends the work soon; what is known by then is told. May be null.
    const std::atomic<bool>* Stop = nullptr;
    /// Told some times a second what is done, in words, by the thread that works.
    std::function<void(const std::string&)> Progress{};
};

/// Selections with one thing drawn anew for each.
struct ReportSweep {
    const char* Name;  ///< "levels", "answers" or "grades"
    SweepSettings Settings;
    SweepCounts Counts;  ///< of fewer runs than the settings say where the work was stopped

    bool isWhole() const { return Counts.Runs == Settings.Runs; }
    /// Runs that selected nobody, as where nobody is eligible.
    Count emptyRuns() const { return Counts.Sizes.front(); }
    Count runsWithSuite() const { return Counts.Runs - emptyRuns(); }
};

/// They refer to the run, which must outlive them, and to each other: they stay where they are made.
class ReportFindings {
public:
    /// `answers` were left when the selection began; the runs of the sweeps take them in order, and then the defaults.
    /// REQUIRES: a run that came as far as its selection.
    ReportFindings(const SelectionRun& run, const std::vector<method::Answer>& answers,
                   const ReportWork& work);
    ReportFindings(const ReportFindings&) = delete;
    ReportFindings& operator=(const ReportFindings&) = delete;

    /// The place of a candidate in the suite, from 1.
    std::optional<std::size_t> placeOf(std::size_t species) const;
    /// How many species of the suite cover a unit.
    std::size_t coveringInSuite(std::size_t unit) const;

    const SelectionRun& Run;
    Representation Units;
    std::vector<UnitState> States;  ///< of each unit
    CoverProblem Problem;
    CoverIndex Index;
    RunSuite Suite;
    MinimumAnswer Minimum;
    SuiteList Smallest;  ///< of the suites of minimal size some, and how many there are
    std::vector<SpeciesRole> Roles;
    std::vector<BestCoverage> Best;
    std::vector<ReportSweep> Sweeps;
    LevelGrid Levels;
    std::optional<LevelPair> Nearest;  ///< of the grid, where some levels leave nothing uncovered
    TriedRun AtNearest;                ///< what it comes to there
    method::Scores Scores;             ///< of the first pass
    WatchedRun Watched;
    std::vector<Remedy> Remedies;
    bool Stopped = false;

private:
    void search(const ReportWork& work);
    void select(const std::vector<method::Answer>& answers, const ReportWork& work);
    void sweepAll(const std::vector<method::Answer>& answers, const ReportWork& work);
};

/// How many suites of minimal size a report lists at most.
inline constexpr std::size_t ListedSuites = 50;

/// Runs of each sweep: 2,500, fewer where a run takes long, since a report is waited for. They depend on the size of the
/// landscape alone.
std::uint64_t runsOfReport(const SelectionRun& run);

}  // namespace insight
