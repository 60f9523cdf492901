// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/sweep/sweep_worker.h"

#include "insight/representation.h"
#include "method/coverage.h"

namespace insight {

namespace {

using method::Unit;

/// Whether an eligible species reaches what is needed. A value that is no number reaches nothing.
bool anyReaches(const method::Table& values, std::size_t unit, double needed,
                const std::vector<bool>& eligible) {
    for (std::size_t s = 0; s < values.rows(); ++s) {
        if (eligible[s] && method::represents(values.at(s, unit), needed)) return true;
    }
    return false;
}

}  // namespace

SweepWorker::SweepWorker(const SelectionRun& given, const SweepSettings& settings,
                         const GradeVariation* grades)
    : given_(given),
      settings_(settings),
      grades_(grades),
      levels_(given.Levels),
      landscape_(given.Landscape),
      eligible_(method::eligible(landscape_.Status, levels_.ConservationStatus)),
      counts_(sweepNames(given)) {
    thresholds_[Unit::Habitat] =
        method::wholeThresholds(landscape_.HabitatThresholds, method::Quantity::HabitatThreshold);
    thresholds_[Unit::Zone] =
        method::wholeThresholds(landscape_.ZoneThresholds, method::Quantity::ZoneThreshold);
    for (const Unit kind : method::UnitKinds) noSuite_.CoveredBy[kind].assign(given.Units[kind].size(), 0);
    scored_ = score();
}

void SweepWorker::run(std::uint64_t number) {
    RandomStream stream(settings_.Seed, number);
    if (settings_.Vary.Levels) {
        levels_ = drawLevels(given_.Levels, stream);
        eligible_ = method::eligible(landscape_.Status, levels_.ConservationStatus);
    }
    if (grades_) {
        grades_->draw(stream, landscape_);
        scored_ = score();
    }
    failed_ = !scored_ || !select(stream);
    count();
}

bool SweepWorker::score() try {
    method::assess(landscape_, assessment_);
    selection_.load(landscape_, assessment_);
    return true;
} catch (const method::Failure&) {
    return false;
}

bool SweepWorker::select(RandomStream& stream) try {
    selection_.start(levels_);
    if (settings_.Vary.Answers) {
        DrawingChooser chooser(stream);
        selection_.run(chooser);
    } else {
        method::ScriptedAnswers chooser(settings_.Answers);
        selection_.run(chooser);
    }
    return true;
} catch (const method::Failure&) {
    return false;
}

void SweepWorker::count() {
    ++counts_.Runs;
    if (failed_) ++counts_.Errors;
    for (const method::Pick& pick : suite().Picks) ++counts_.Species[pick.Species];
    ++counts_.Sizes[suite().Picks.size()];
    for (const Unit kind : method::UnitKinds) countUncovered(kind);
}

void SweepWorker::countUncovered(Unit kind) {
    const std::vector<int>& coveredBy = suite().CoveredBy[kind];
    for (std::size_t unit = 0; unit < coveredBy.size(); ++unit) {
        if (coveredBy[unit] > 0) continue;
        ++counts_.Uncovered[kind][unit];
        if (coverable(kind, unit)) ++counts_.Missed[kind][unit];
    }
}

/// Asked for the few units alone that a suite leaves: at the levels and grades of this run.
bool SweepWorker::coverable(Unit kind, std::size_t unit) const {
    if (kind == Unit::Threat) {
        const double needed = neededThreatScore(threatScores(), unit, levels_.ThreatRepresentation);
        return anyReaches(threatScores(), unit, needed, eligible_);
    }
    const method::Table& levels = kind == Unit::Habitat ? landscape_.HabitatLevels : landscape_.ZoneLevels;
    return anyReaches(levels, unit, thresholds_[kind][unit], eligible_);
}

}  // namespace insight
