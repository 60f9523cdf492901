// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>
#include <iostream>

#include "walk/complete_project.h"

namespace {

/// What many walks came to.
struct WalkReport {
    std::array<long, static_cast<std::size_t>(Deed::Count)> Deeds{};
    std::map<std::string, int> Failures;
    std::vector<std::string> Defects;
    long Total = 0;
    int Walks = 0;
    int Selected = 0;
    int Left = 0;
    int Damaged = 0;

    void add(const Walker& walker) {
        ++Walks;
        Total += walker.Total;
        Selected += walker.Selected ? 1 : 0;
        Left += walker.End == WalkEnd::Left ? 1 : 0;
        Damaged += walker.DamagedFile ? 1 : 0;
        for (std::size_t i = 0; i < Deeds.size(); ++i) Deeds[i] += walker.Deeds[i];
        if (walker.End == WalkEnd::Failure) ++Failures[walker.Ending];
        if (walker.End == WalkEnd::Defect) Defects.push_back(walker.Trouble);
    }

    void print() const {
        std::cout << Total << " deeds in " << Walks << " walks: " << Selected
                  << " with a finished selection, " << Left << " left by Exit, " << Damaged
                  << " with a damaged file, " << Defects.size() << " defects\n";
        for (std::size_t i = 0; i < Deeds.size(); ++i) {
            std::cout << "  " << Deeds[i] << "  " << DeedNames[i] << "\n";
        }
        std::cout << "ended by failure:\n";
        for (const auto& [ending, count] : Failures) std::cout << "  " << count << "  " << ending << "\n";
    }
};

void walk(WalkReport& report, std::uint64_t seed, long deeds) {
    constexpr int DeedsAWalk = 180;
    constexpr std::size_t MostDefects = 20;
    Random seeds(seed);
    const long end = report.Total + deeds;
    while (report.Total < end && report.Defects.size() < MostDefects) {
        Walker walker(seeds.next());
        walker.run(DeedsAWalk);
        report.add(walker);
    }
}

void expectSoundWalks(const WalkReport& report) {
    report.print();
    for (const std::string& defect : report.Defects) ADD_FAILURE() << defect;
    EXPECT_GE(3 * report.Selected, report.Walks) << "walks that reach a finished selection";
    for (std::size_t i = 0; i < report.Deeds.size(); ++i) {
        EXPECT_GT(report.Deeds[i], 0) << "nobody did: " << DeedNames[i];
    }
}

const char* setting(const char* name) { return std::getenv(name); }

}  // namespace

TEST(RandomWalk, EveryDeedLeavesTheFormInStepOrEndsInAnAllowedFailure) {
    WalkReport report;
    const char* seed = setting("BRENICA_WALK_SEED");
    const char* deeds = setting("BRENICA_WALK_ACTIONS");
    const long total = deeds != nullptr ? std::atol(deeds) : 40000;
    if (seed != nullptr) {
        walk(report, std::strtoull(seed, nullptr, 10), total);
    } else {
        for (const std::uint64_t fixed : {1, 2, 3, 4}) walk(report, fixed, total / 4);
    }
    expectSoundWalks(report);
}
