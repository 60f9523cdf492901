// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <string>

#include "insight/sweep/sweep.h"
#include "plain_project.h"

/// Sweeps of project files that are given as arguments: runs a second on one thread and on two, beside the selections a
/// second that the method does alone on scores that are loaded.

namespace {

struct Given {
    explicit Given(const std::string& path) {
        const PlainProject project(path);
        Run.Species = project.Species;
        Run.Units[method::Unit::Habitat] = project.Habitats;
        Run.Units[method::Unit::Zone] = project.Zones;
        Run.Units[method::Unit::Threat] = project.Activities;
        Run.Landscape = project.Landscape;
        Run.DataQuality = method::Table(project.Species.size(), method::Criteria);
    }
    SelectionRun Run;
};

constexpr insight::Varied Levels{.Levels = true};
constexpr insight::Varied Answers{.Answers = true};
constexpr insight::Varied Grades{.Grades = true};
constexpr insight::Varied All{.Levels = true, .Answers = true, .Grades = true};

/// A run that ends in the failure of its last pass counts as well.
void select(benchmark::State& state, const Given& given) {
    method::Assessment assessment;
    method::assess(given.Run.Landscape, assessment);
    method::Selection selection;
    selection.load(given.Run.Landscape, assessment);
    selection.start(given.Run.Levels);
    for ([[maybe_unused]] const auto& turn : state) {
        method::TakeTop chooser;
        try {
            selection.run(chooser);
        } catch (const method::Failure&) {
        }
    }
    state.SetItemsProcessed(state.iterations());
}

void sweep(benchmark::State& state, const Given& given, insight::Varied vary, unsigned threads) {
    insight::SweepSettings settings;
    settings.Vary = vary;
    for ([[maybe_unused]] const auto& turn : state) {
        benchmark::DoNotOptimize(insight::sweep(given.Run, settings, {.Threads = threads}));
        ++settings.Seed;
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(settings.Runs));
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (argc < 2) {
        std::fputs("usage: brenica-sweep-times [--benchmark_OPTION...] PROJECT.brn...\n", stderr);
        return 2;
    }
    for (int i = 1; i < argc; ++i) {
        const std::string path = argv[i];
        const std::string name = " " + path.substr(path.find_last_of('/') + 1);
        const auto given = std::make_shared<Given>(path);
        const auto addSweep = [&](const char* what, insight::Varied vary, unsigned threads) {
            const std::string title = std::string("sweep ") + what + " " + std::to_string(threads) + name;
            benchmark::RegisterBenchmark(title.c_str(), [=](benchmark::State& state) {
                sweep(state, *given, vary, threads);
            })->UseRealTime();
        };
        benchmark::RegisterBenchmark(("select" + name).c_str(), [=](benchmark::State& state) {
            select(state, *given);
        })->UseRealTime();
        for (const unsigned threads : {1u, 2u}) {
            addSweep("levels", Levels, threads);
            addSweep("answers", Answers, threads);
            addSweep("grades", Grades, threads);
            addSweep("all", All, threads);
        }
    }
    benchmark::RunSpecifiedBenchmarks();
}
