// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/remedies.h"

#include <algorithm>
#include <cmath>

#include "insight/cover/minimum.h"
#include "insight/report/rerun.h"

namespace insight {

namespace {

using method::Unit;

/// What the search for a smallest suite may cost: a fraction of a second.
constexpr std::uint64_t SearchSteps = 20'000;
/// Pairs of a species and a unit up to which it is looked for.
constexpr std::size_t MostPairs = 10'000;

void ask(method::Landscape& landscape, const UnitNumber& unit, double level) {
    (unit.Kind == Unit::Habitat ? landscape.HabitatThresholds : landscape.ZoneThresholds)[unit.Number] =
        level;
}

std::vector<std::size_t> openUnits(const Representation& units, const method::Suite& suite) {
    std::vector<std::size_t> open;
    for (std::size_t u = 0; u < units.units(); ++u) {
        const auto [kind, number] = units.unit(u);
        if (suite.CoveredBy[kind][number] == 0) open.push_back(u);
    }
    return open;
}

std::optional<SmallestSuite> smallestOf(const SelectionRun& run, const Representation& units,
                                        const std::atomic<bool>* stop) {
    if (run.Species.size() * units.units() > MostPairs) return std::nullopt;
    const CoverProblem problem = coverProblem(run, units);
    const CoverIndex index(problem);
    const SearchEffort effort{.Nodes = SearchSteps, .Stop = stop};
    SearchBudget budget(effort);
    return findMinimum(index, runSuite(run, index), budget).Known;
}

class RemedyList {
public:
    RemedyList(const SelectionRun& run, const Representation& units, const std::vector<UnitState>& states)
        : run_(run), units_(units), states_(states) {
        for (std::size_t u = 0; u < states.size(); ++u) suggest(u);
    }

    std::vector<Remedy> take() { return std::move(remedies_); }

private:
    void suggest(std::size_t u) {
        const UnitState& state = states_[u];
        if (state.Fate == UnitFate::Missed) add({run_.Levels, {}, true}, u);
        if (state.Fate != UnitFate::Uncoverable) return;
        admitOneOf(state.Excluded, u);
        if (state.Best) askLess(*state.Best, u);
    }

    void admitOneOf(const std::vector<std::size_t>& excluded, std::size_t u) {
        if (excluded.empty()) return;
        const std::vector<double>& status = run_.Landscape.Status;
        method::Levels levels = run_.Levels;
        levels.ConservationStatus = 1;
        for (const std::size_t s : excluded)
            levels.ConservationStatus = std::min(levels.ConservationStatus, status[s]);
        add({levels}, u);
    }

    void askLess(double best, std::size_t u) {
        const UnitNumber& unit = units_.unit(u);
        Change change{run_.Levels};
        if (unit.Kind != Unit::Threat) {
            if (std::floor(best) <= 0) return;  // what nobody uses is represented by nobody
            change.Asked = AskedLevel{u, std::floor(best)};
            return add(change, u);
        }
        const auto level = representationFor(best, highestScore(run_, unit.Number));
        if (!level) return;
        change.Levels.ThreatRepresentation = *level;
        add(change, u);
    }

    void add(const Change& change, std::size_t u) {
        const auto same = std::find_if(remedies_.begin(), remedies_.end(),
                                       [&](const Remedy& other) { return isSame(other.Made, change); });
        if (same != remedies_.end()) {
            same->For.push_back(u);
        } else if (remedies_.size() < MostRemedies) {
            remedies_.push_back({change, {u}, {}});
        }
    }

    static bool isSame(const Change& a, const Change& b) {
        return !a.Asked && !b.Asked && a.BestAggregates == b.BestAggregates &&
               a.Levels.ThreatRepresentation == b.Levels.ThreatRepresentation &&
               a.Levels.ConservationStatus == b.Levels.ConservationStatus;
    }

    const SelectionRun& run_;
    const Representation& units_;
    const std::vector<UnitState>& states_;
    std::vector<Remedy> remedies_;
};

}  // namespace

TriedRun tryChange(const SelectionRun& run, const Change& change, const std::vector<method::Answer>& answers,
                   const std::atomic<bool>* stop) {
    SelectionRun changed = run;
    changed.Levels = change.Levels;
    if (change.Asked)
        ask(changed.Landscape, Representation(run).unit(change.Asked->Unit), change.Asked->Level);
    method::ScriptedAnswers chooser(change.BestAggregates ? std::vector<method::Answer>() : answers);
    Rerun rerun(changed.Landscape);
    changed.Outcome = {rerun.select(changed.Levels, chooser), {}};
    const Representation units(changed);
    TriedRun tried{.Open = openUnits(units, changed.Outcome.Suite),
                   .Smallest = smallestOf(changed, units, stop)};
    for (const method::Pick& pick : changed.Outcome.Suite.Picks) tried.Species.push_back(pick.Species);
    return tried;
}

std::vector<Remedy> findRemedies(const SelectionRun& run, const Representation& units,
                                 const std::vector<UnitState>& states,
                                 const std::vector<method::Answer>& answers, const std::atomic<bool>* stop) {
    std::vector<Remedy> remedies = RemedyList(run, units, states).take();
    for (Remedy& remedy : remedies) remedy.Run = tryChange(run, remedy.Made, answers, stop);
    return remedies;
}

double highestScore(const SelectionRun& run, std::size_t threat) {
    return neededThreatScore(run.ThreatScores, threat, 1);
}

std::optional<double> representationFor(double score, double highest) {
    if (!(score > 0 && highest > 0)) return std::nullopt;
    for (int hundredths = static_cast<int>(std::ceil(100 * score / highest)); hundredths > 0; --hundredths) {
        const double level = hundredths / 100.0;
        if (level * highest <= score) return level;
    }
    return std::nullopt;
}

}  // namespace insight
