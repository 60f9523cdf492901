// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "insight/cover/minimum.h"

/// Runs that are made for the tests of the searches: habitats alone, a species either represents one or does not.
struct CoverCase {
    std::vector<std::vector<int>> Uses;  ///< species × habitats, 1 where it represents it
    std::vector<double> Aggregates{};    ///< 1 each where none are given
    std::vector<std::size_t> Picks{};    ///< the run's suite
    std::vector<bool> Excluded{};        ///< none where none are given
};

inline SelectionRun runOf(const CoverCase& made) {
    const std::size_t species = made.Uses.size();
    const std::size_t habitats = made.Uses.front().size();
    SelectionRun run;
    run.Landscape.HabitatLevels = method::Table(species, habitats, 0.0);
    run.Landscape.ZoneLevels = method::Table(species, 0);
    run.Landscape.HabitatThresholds.assign(habitats, 2);
    run.ThreatScores = method::Table(species, 0);
    run.Levels = {.ConservationStatus = 0.5};
    run.Aggregates = made.Aggregates.empty() ? std::vector<double>(species, 1) : made.Aggregates;
    for (std::size_t s = 0; s < species; ++s) {
        run.Species.push_back("S" + std::to_string(s + 1));
        run.Ranks.push_back(static_cast<int>(s) + 1);
        run.Landscape.Status.push_back(!made.Excluded.empty() && made.Excluded[s] ? 1 : 0);
        for (std::size_t h = 0; h < habitats; ++h) run.Landscape.HabitatLevels.at(s, h) = 2 * made.Uses[s][h];
    }
    for (std::size_t h = 0; h < habitats; ++h)
        run.Units[method::Unit::Habitat].push_back("H" + std::to_string(h + 1));
    std::vector<int>& coveredBy = run.Outcome.Suite.CoveredBy[method::Unit::Habitat];
    coveredBy.assign(habitats, 0);
    for (std::size_t i = 0; i < made.Picks.size(); ++i) {
        run.Outcome.Suite.Picks.push_back({made.Picks[i], {}});
        for (std::size_t h = 0; h < habitats; ++h) {
            if (coveredBy[h] == 0 && made.Uses[made.Picks[i]][h] != 0) coveredBy[h] = static_cast<int>(i) + 1;
        }
    }
    return run;
}

/// A run with all that a search wants of it. It stays where it is made.
struct LoadedCase {
    explicit LoadedCase(const CoverCase& made) : LoadedCase(runOf(made)) {}
    explicit LoadedCase(SelectionRun given)
        : Run(std::move(given)), Units(Run), Problem(insight::coverProblem(Run, Units)), Index(Problem) {}
    LoadedCase(const LoadedCase&) = delete;
    LoadedCase& operator=(const LoadedCase&) = delete;

    SelectionRun Run;
    insight::Representation Units;
    insight::CoverProblem Problem;
    insight::CoverIndex Index;
};

/// A case with its minimum, and what is left of the effort.
struct SearchedCase : LoadedCase {
    template <class Made>
    explicit SearchedCase(const Made& made, insight::SearchEffort effort = {})
        : LoadedCase(made),
          Effort(std::move(effort)),
          Budget(Effort),
          Suite(insight::runSuite(Run, Index)),
          Minimum(insight::findMinimum(Index, Suite, Budget)) {}

    insight::SearchEffort Effort;
    insight::SearchBudget Budget;
    insight::RunSuite Suite;
    insight::MinimumAnswer Minimum;
};

/// Pairs of species of which each pair has a unit of its own: two to the power of `pairs` suites.
inline CoverCase pairedCase(std::size_t pairs) {
    CoverCase made;
    for (std::size_t s = 0; s < 2 * pairs; ++s) {
        made.Uses.emplace_back(pairs);
        made.Uses.back()[s / 2] = 1;
    }
    return made;
}

/// A random case: few and many species, thin and thick, with and without equal species and equal aggregates, and a
/// suite that covers all, or some.
inline CoverCase randomCase(std::mt19937& random, std::size_t mostSpecies, std::size_t mostUnits) {
    const auto below = [&](std::size_t top) { return static_cast<std::size_t>(random() % top); };
    const std::size_t species = 1 + below(mostSpecies);
    const std::size_t units = 1 + below(mostUnits);
    const std::size_t share = 10 + below(50);
    const std::size_t grades = below(3) == 0 ? 2 : 5000;
    CoverCase made;
    for (std::size_t s = 0; s < species; ++s) {
        made.Uses.emplace_back(units);
        for (int& use : made.Uses.back()) use = below(100) < share ? 1 : 0;
        if (s > 0 && below(8) == 0) made.Uses[s] = made.Uses[below(s)];
        made.Aggregates.push_back(static_cast<double>(below(grades)) / 1000 - (grades == 2 ? 0.5 : 0));
        made.Excluded.push_back(below(10) == 0);
    }
    const std::size_t most = below(3) == 0 ? below(species) : species;
    std::vector<std::size_t> order;
    for (std::size_t s = 0; s < species; ++s) order.push_back(s);
    std::shuffle(order.begin(), order.end(), random);
    std::vector<int> covered(units);
    for (const std::size_t s : order) {
        if (made.Excluded[s] || made.Picks.size() >= most) continue;
        bool adds = false;
        for (std::size_t u = 0; u < units; ++u) {
            adds = adds || (made.Uses[s][u] != 0 && covered[u] == 0);
            covered[u] |= made.Uses[s][u];
        }
        if (adds) made.Picks.push_back(s);
    }
    return made;
}

/// A random case of 50 to 60 species and units.
inline CoverCase wideCase(std::mt19937& random) {
    while (true) {
        CoverCase made = randomCase(random, 60, 60);
        if (made.Uses.size() >= 50 && made.Uses.front().size() >= 50) return made;
    }
}
