// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <string>

#include "method/selection.h"
#include "plain_project.h"

/// The method alone, on project files that are given as arguments: what one assessment, one preparation and one
/// selection cost.

namespace {

struct Loaded {
    explicit Loaded(const std::string& path) : Project(path) {
        method::assess(Project.Landscape, Assessment);
        Selection.load(Project.Landscape, Assessment);
        Selection.start(Levels);
    }
    PlainProject Project;
    method::Assessment Assessment;
    method::Selection Selection;
    method::Levels Levels{.Margin = 0};
};

struct CountPasses : method::Listener {
    int Passes = 0;
    void blockAppended(const method::Block&, bool) override { ++Passes; }
};

/// A run that ends in the failure of its last pass counts as well.
void select(Loaded& loaded, method::Listener* listener = nullptr) {
    method::TakeTop chooser;
    try {
        loaded.Selection.run(chooser, listener);
    } catch (const method::Failure&) {
    }
}

void assess(benchmark::State& state, Loaded& loaded) {
    for ([[maybe_unused]] const auto& turn : state)
        method::assess(loaded.Project.Landscape, loaded.Assessment);
}

void load(benchmark::State& state, Loaded& loaded) {
    for ([[maybe_unused]] const auto& turn : state) {
        loaded.Selection.load(loaded.Project.Landscape, loaded.Assessment);
        loaded.Selection.start(loaded.Levels);
    }
}

void selection(benchmark::State& state, Loaded& loaded) {
    CountPasses count;
    select(loaded, &count);
    for ([[maybe_unused]] const auto& turn : state) select(loaded);
    state.counters["passes"] = count.Passes;
    state.counters["picks"] = static_cast<double>(loaded.Selection.suite().Picks.size());
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (argc < 2) {
        std::fputs("usage: brenica-method-times [--benchmark_OPTION...] PROJECT.brn...\n", stderr);
        return 2;
    }
    for (int i = 1; i < argc; ++i) {
        const std::string path = argv[i];
        const std::string name = path.substr(path.find_last_of('/') + 1);
        const auto loaded = std::make_shared<Loaded>(path);
        const auto add = [&](const char* step, void (*what)(benchmark::State&, Loaded&)) {
            benchmark::RegisterBenchmark((std::string(step) + " " + name).c_str(),
                                         [=](benchmark::State& state) { what(state, *loaded); });
        };
        add("assess", assess);
        add("load", load);
        add("select", selection);
    }
    benchmark::RunSpecifiedBenchmarks();
}
