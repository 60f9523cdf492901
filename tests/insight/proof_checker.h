// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

/// Checks the printed proof of a lower bound on names alone: for each eligible species, the units that it covers.
using Landscape = std::map<std::string, std::set<std::string>>;

/// What units prove no two of which have a species in common; 0 where two have.
inline std::size_t provenByWitness(const Landscape& covers, const std::vector<std::string>& units) {
    for (const auto& [species, covered] : covers) {
        std::size_t together = 0;
        for (const std::string& unit : units) together += covered.count(unit);
        if (together > 1) return 0;
    }
    return std::set(units.begin(), units.end()).size();
}

/// What lines "WEIGHT UNIT" prove.
inline std::size_t provenByWeights(const Landscape& covers, const std::vector<std::string>& lines) {
    std::map<std::string, long long> weights;
    for (const std::string& line : lines) weights[line.substr(line.find(' ') + 1)] = std::stoll(line);
    long long sum = 0, largest = 1;
    for (const auto& [unit, weight] : weights) sum += weight >= 0 ? weight : 0;
    for (const auto& [species, covered] : covers) {
        long long ofSpecies = 0;
        for (const std::string& unit : covered) ofSpecies += weights.count(unit) != 0 ? weights[unit] : 0;
        largest = std::max(largest, ofSpecies);
    }
    return static_cast<std::size_t>((sum + largest - 1) / largest);
}
