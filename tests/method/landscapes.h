// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <rapidcheck.h>

#include <string>
#include <vector>

#include "method/selection.h"
#include "plain_project.h"

/// Landscapes for the tests of the method.

inline const PlainProject& smallExample() {
    static const PlainProject project(BRENICA_SOURCE_DIR "/examples/small_landscape.brn");
    return project;
}

inline const PlainProject& fullExample() {
    static const PlainProject project(BRENICA_SOURCE_DIR "/examples/full_landscape.brn");
    return project;
}

/// A table written down row by row.
inline method::Table tableOf(const std::vector<std::vector<double>>& rows) {
    method::Table table(rows.size(), rows.front().size());
    for (std::size_t r = 0; r < rows.size(); ++r)
        std::copy(rows[r].begin(), rows[r].end(), table.row(r).begin());
    return table;
}

/// A landscape in which all grades are 0 and all thresholds 2.
inline method::Landscape emptyLandscape(std::size_t species, std::size_t habitats, std::size_t zones,
                                        std::size_t threats) {
    const auto zeros = [&](std::size_t columns) { return method::Table(species, columns, 0.0); };
    method::Landscape land;
    land.HabitatLevels = zeros(habitats);
    land.ZoneLevels = zeros(zones);
    land.HabitatThresholds.assign(habitats, 2);
    land.ZoneThresholds.assign(zones, 2);
    land.Ratings = {zeros(threats), zeros(threats), zeros(threats), zeros(threats), zeros(threats)};
    land.Status.assign(species, 0.5);
    land.Dispersal.assign(species, 0);
    land.Connectivity.assign(species, 0);
    land.Ranges.Values.assign(species, 1);
    land.Occupied.assign(species, 0.5);
    land.Functions = zeros(3);
    land.SocioEconomics = zeros(5);
    return land;
}

/// What a selection came to; Failed where it ended in a failure.
struct Outcome {
    method::Suite Suite;
    bool Failed = false;
};

inline Outcome select(const method::Landscape& landscape, const method::Assessment& assessment,
                      const method::Levels& levels, method::Chooser& chooser,
                      method::Listener* listener = nullptr) {
    method::Selection selection;
    selection.load(landscape, assessment);
    selection.start(levels);
    try {
        selection.run(chooser, listener);
    } catch (const method::Failure&) {
        return {selection.suite(), true};
    }
    return {selection.suite()};
}

inline Outcome select(const method::Landscape& landscape, const method::Levels& levels,
                      method::Listener* listener = nullptr) {
    method::Assessment assessment;
    method::assess(landscape, assessment);
    method::TakeTop chooser;
    return select(landscape, assessment, levels, chooser, listener);
}

inline std::vector<std::size_t> speciesOf(const method::Suite& suite) {
    std::vector<std::size_t> species;
    for (const method::Pick& pick : suite.Picks) species.push_back(pick.Species);
    return species;
}

namespace rc {

/// Small landscapes with the grades that a planner can give; probabilities are such that sums depend on their order.
template <>
struct Arbitrary<method::Landscape> {
    static Gen<method::Landscape> arbitrary() {
        return gen::exec([] {
            constexpr int MostSpecies = 9;
            constexpr int MostUnits = 7;
            const auto count = [](int most) { return static_cast<std::size_t>(*gen::inRange(1, most + 1)); };
            const auto fill = [](method::Table& table, int top) {
                for (std::size_t r = 0; r < table.rows(); ++r) {
                    for (double& grade : table.row(r))
                        grade = *gen::weightedOneOf<int>({{2, gen::just(0)}, {1, gen::inRange(0, top + 1)}});
                }
            };
            const auto fillAlike = [](method::Table& table, double (*value)()) {
                for (std::size_t t = 0; t < table.columns(); ++t) {
                    const double grade = value();
                    for (std::size_t s = 0; s < table.rows(); ++s) table.at(s, t) = grade;
                }
            };
            method::Landscape land =
                emptyLandscape(count(MostSpecies), count(MostUnits), count(MostUnits), count(MostUnits));
            for (std::vector<double>* thresholds : {&land.HabitatThresholds, &land.ZoneThresholds}) {
                for (double& threshold : *thresholds) threshold = *gen::inRange(0, 4);
            }
            fill(land.HabitatLevels, 3);
            fill(land.ZoneLevels, 3);
            fill(land.Ratings.Severity, 3);
            fill(land.Ratings.Recovery, 3);
            fill(land.Ratings.Proportion, 4);
            fillAlike(land.Ratings.Urgency, [] { return static_cast<double>(*gen::inRange(0, 4)); });
            fillAlike(land.Ratings.Probability, [] { return *gen::inRange(0, 11) / 10.0; });
            fill(land.Functions, 3);
            fill(land.SocioEconomics, 2);
            for (std::size_t s = 0; s < land.species(); ++s) {
                land.Status[s] = *gen::inRange(0, 11) / 10.0;
                land.Dispersal[s] = *gen::inRange<std::uint8_t>(0, 2);
                land.Connectivity[s] = *gen::inRange<std::uint8_t>(0, 2);
                land.Ranges.Values[s] = *gen::inRange(1, 500) / 10.0;
                land.Occupied[s] = *gen::inRange(1, 100) / 100.0;
            }
            return land;
        });
    }
};

}  // namespace rc
