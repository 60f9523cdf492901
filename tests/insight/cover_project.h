// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "support/project_text.h"

/// Whole projects whose cover problem is known beforehand.

/// Species × habitats, 1 where the species represents the habitat; each represents the zone and the threat.
inline ProjectText coverProject(const std::vector<std::vector<int>>& uses) {
    const auto species = static_cast<int>(uses.size());
    ProjectText project(species, static_cast<int>(uses.front().size()), 1, 1);
    std::string levels;
    for (const std::vector<int>& row : uses) {
        for (const int use : row) levels += use != 0 ? "2," : "0,";
    }
    levels.pop_back();
    return project.set("HeteroHabitat Population", levels).set("HeteroJU Individual", repeated("2", species));
}

/// Two rings of five habitats, each species on two neighbours: the linear program says five species, but it takes six.
inline ProjectText twoRings() {
    std::vector<std::vector<int>> uses(10, std::vector<int>(10));
    for (std::size_t s = 0; s < 10; ++s) {
        const std::size_t ring = s / 5 * 5;
        uses[s][s] = 1;
        uses[s][ring + (s + 1) % 5] = 1;
    }
    return coverProject(uses);
}

/// Pairs of species of which each pair has a habitat of its own: two to the power of `pairs` suites.
inline ProjectText pairs(std::size_t pairs) {
    std::vector<std::vector<int>> uses(2 * pairs, std::vector<int>(pairs));
    for (std::size_t s = 0; s < uses.size(); ++s) uses[s][s / 2] = 1;
    return coverProject(uses);
}

/// Two species, of which the first covers all.
inline ProjectText twoSpecies() {
    ProjectText project(2, 2, 1, 1);
    return project.set("HeteroHabitat Population", "2,2,1,1").set("HeteroJU Individual", "2,1");
}

/// With nobody above a conservation status of 0.8 no unit can be covered.
inline ProjectText nothingToCover() {
    ProjectText project(2, 2, 1, 1);
    return project.set("HeteroHabitat Population", "1,1,2,2")
        .set("HeteroJU Individual", "1,2")
        .set("VulnerabilitybySpecies Severity", "1,3")
        .set("Conservation Status", "0.5,0.9");
}
