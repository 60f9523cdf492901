// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <numeric>

#include "insight/representation.h"
#include "insight/sweep/sweep.h"
#include "insight/sweep/sweep_worker.h"
#include "method/landscapes.h"

/// What holds for sweeps of any landscape.

using insight::Count;
using insight::SweepCounts;
using insight::SweepSettings;
using method::Landscape;
using method::Unit;

namespace {

constexpr std::uint64_t Runs = 40;

SelectionRun runOf(const Landscape& land) {
    SelectionRun run;
    run.Landscape = land;
    run.Species.resize(land.species());
    run.Units[Unit::Habitat].resize(land.habitats());
    run.Units[Unit::Zone].resize(land.zones());
    run.Units[Unit::Threat].resize(land.threats());
    run.Levels = {.Margin = 10, .ThreatRepresentation = 0.5, .ConservationStatus = 0.7};
    run.DataQuality = method::Table(land.species(), method::Criteria, 4);
    return run;
}

SweepSettings everything() {
    SweepSettings settings;
    settings.Vary = {.Levels = true, .Answers = true, .Grades = true};
    settings.Runs = Runs;
    settings.P = 0.3;
    settings.Zeros = true;
    settings.Quality = true;
    return settings;
}

}  // namespace

RC_GTEST_PROP(AnySweep, comes_to_the_same_in_threads_and_shards, (const Landscape& land)) {
    const SelectionRun run = runOf(land);
    SweepSettings settings = everything();
    const SweepCounts whole = insight::sweep(run, settings);
    RC_ASSERT(insight::sweep(run, settings, {.Threads = 2}) == whole);
    SweepCounts sum(insight::sweepNames(run));
    for (const std::uint32_t number : {2u, 3u, 1u}) {
        settings.Part = {number, 3};
        sum.add(insight::sweep(run, settings));
    }
    RC_ASSERT(sum == whole);
}

RC_GTEST_PROP(AnySweep, counts_each_run_once, (const Landscape& land)) {
    const SelectionRun run = runOf(land);
    const SweepCounts counts = insight::sweep(run, everything());
    RC_ASSERT(counts.Runs == Runs);
    RC_ASSERT(std::accumulate(counts.Sizes.begin(), counts.Sizes.end(), Count{0}) == Runs);
    Count picks = 0;
    for (std::size_t size = 0; size < counts.Sizes.size(); ++size) picks += size * counts.Sizes[size];
    RC_ASSERT(std::accumulate(counts.Species.begin(), counts.Species.end(), Count{0}) == picks);
}

/// By the representation of each varied run: the units uncovered, and those of them that could have been.
RC_GTEST_PROP(AnySweep, counts_as_missed_what_an_eligible_species_covers, (const Landscape& land)) {
    const SelectionRun given = runOf(land);
    const SweepSettings settings = everything();
    const insight::GradeVariation grades(given.Landscape, given.DataQuality, settings);
    insight::SweepWorker worker(given, settings, &grades);
    SweepCounts expected(insight::sweepNames(given));
    for (std::uint64_t number = 0; number < Runs; ++number) {
        worker.run(number);
        SelectionRun varied = given;
        varied.Levels = worker.levels();
        varied.Landscape = worker.landscape();
        varied.ThreatScores = worker.threatScores();
        const insight::Representation representation(varied);
        for (std::size_t u = 0; u < representation.units(); ++u) {
            const auto [kind, unit] = representation.unit(u);
            if (worker.suite().CoveredBy[kind][unit] > 0) continue;
            ++expected.Uncovered[kind][unit];
            if (representation.coverable(u)) ++expected.Missed[kind][unit];
        }
    }
    RC_ASSERT(worker.counts().Uncovered == expected.Uncovered);
    RC_ASSERT(worker.counts().Missed == expected.Missed);
}

/// Without a step and with answers given nothing is left to chance.
RC_GTEST_PROP(AnySweep, without_a_step_gives_the_suite_of_the_landscape, (const Landscape& land)) {
    const SelectionRun run = runOf(land);
    SweepSettings settings = everything();
    settings.Vary = {.Levels = false, .Answers = false, .Grades = true};
    settings.P = 0;
    const insight::GradeVariation grades(run.Landscape, run.DataQuality, settings);
    insight::SweepWorker worker(run, settings, &grades);
    const Outcome expected = select(land, run.Levels);
    for (std::uint64_t number = 0; number < 3; ++number) {
        worker.run(number);
        RC_ASSERT(speciesOf(worker.suite()) == speciesOf(expected.Suite));
        RC_ASSERT(worker.failed() == expected.Failed);
    }
}
