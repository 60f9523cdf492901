// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/report_findings.h"

#include <algorithm>
#include <array>

#include "insight/sweep/sweep.h"

namespace insight {

namespace {

constexpr std::uint64_t MostSweepRuns = 2500;
constexpr std::uint64_t FewestSweepRuns = 100;
/// What a sweep may take, in pairs of a species and a unit: a few seconds.
constexpr std::uint64_t PairsOfSweep = 20'000'000;

struct SweepKind {
    const char* Name;
    Varied Vary;
};
constexpr std::array SweepKinds = {SweepKind{"levels", {.Levels = true}},
                                   SweepKind{"answers", {.Answers = true}},
                                   SweepKind{"grades", {.Grades = true}}};

std::string numberOf(std::uint64_t number) { return std::to_string(number); }

}  // namespace

std::uint64_t runsOfReport(const SelectionRun& run) {
    std::uint64_t units = 0;
    for (const method::Unit kind : method::UnitKinds) units += run.Units[kind].size();
    const std::uint64_t pairs = std::max<std::uint64_t>(1, units * run.Species.size());
    return std::clamp(PairsOfSweep / pairs, FewestSweepRuns, MostSweepRuns);
}

ReportFindings::ReportFindings(const SelectionRun& run, const std::vector<method::Answer>& answers,
                               const ReportWork& work)
    : Run(run),
      Units(run),
      States(unitStates(run, Units)),
      Problem(coverProblem(run, Units)),
      Index(Problem),
      Suite(runSuite(run, Index)) {
    search(work);
    sweepAll(answers, work);
    select(answers, work);
    Stopped = work.Stop && *work.Stop;
}

std::optional<std::size_t> ReportFindings::placeOf(std::size_t species) const {
    const std::vector<method::Pick>& picks = Run.Outcome.Suite.Picks;
    const auto place = std::find_if(picks.begin(), picks.end(),
                                    [&](const method::Pick& pick) { return pick.Species == species; });
    if (place == picks.end()) return std::nullopt;
    return static_cast<std::size_t>(place - picks.begin()) + 1;
}

std::size_t ReportFindings::coveringInSuite(std::size_t unit) const {
    const std::vector<method::Pick>& picks = Run.Outcome.Suite.Picks;
    return static_cast<std::size_t>(std::count_if(picks.begin(), picks.end(), [&](const method::Pick& pick) {
        return Units.covers(pick.Species, unit);
    }));
}

void ReportFindings::search(const ReportWork& work) {
    const auto tell = [&](const SearchProgress& now) {
        work.Progress("the smallest suite has " + numberOf(now.Lower) + " to " + numberOf(now.Upper) +
                      " species; " + numberOf(now.Nodes) + " steps");
    };
    SearchEffort effort{work.Seconds, work.Nodes, work.Stop, {}, work.Threads};
    if (work.Progress) effort.OnProgress = tell;
    SearchBudget budget(effort);
    Minimum = findMinimum(Index, Suite, budget);
    Smallest = findSuites(Index, Minimum, 0, ListedSuites, budget);
    Roles = findRoles(Index, Minimum, budget);
    Best = bestCoverages(Index, Minimum, work.Stop);
}

void ReportFindings::sweepAll(const std::vector<method::Answer>& answers, const ReportWork& work) {
    for (const SweepKind& kind : SweepKinds) {
        SweepSettings settings{.Vary = kind.Vary, .Runs = runsOfReport(Run)};
        if (!kind.Vary.Answers) settings.Answers = answers;
        SweepWork sweepWork{work.Threads, work.Stop};
        if (work.Progress)
            sweepWork.Progress = [&](std::uint64_t done, std::uint64_t of) {
                work.Progress(numberOf(done) + " of " + numberOf(of) + " runs with other " + kind.Name);
            };
        Sweeps.push_back({kind.Name, settings, sweep(Run, settings, sweepWork)});
    }
}

/// The run once more, and runs that differ by little.
void ReportFindings::select(const std::vector<method::Answer>& answers, const ReportWork& work) {
    Rerun rerun(Run.Landscape);
    Scores = rerun.scores();
    Watched = watch(Run, answers, rerun);
    Remedies = findRemedies(Run, Units, States, answers, work.Stop);
    Levels = levelGrid(Run, answers, work.Stop);
    Nearest = nearestCovering(Levels, Run.Levels);
    if (!Nearest) return;
    const method::Levels levels = {Run.Levels.Margin, Levels.Representations[Nearest->Representation],
                                   Levels.Statuses[Nearest->Status]};
    AtNearest = tryChange(Run, {levels}, answers, work.Stop);
}

}  // namespace insight
