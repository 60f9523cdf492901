// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/representation.h"

#include <algorithm>

#include "method/coverage.h"

namespace insight {

using method::Unit;

double neededThreatScore(const method::Table& scores, std::size_t threat, double representation) {
    double highest = 0;
    for (std::size_t s = 0; s < scores.rows(); ++s) highest = std::max(highest, scores.at(s, threat));
    return representation * highest;
}

Representation::Representation(const SelectionRun& run)
    : run_(run), eligible_(method::eligible(run.Landscape.Status, run.Levels.ConservationStatus)) {
    const auto add = [this](Unit kind, const std::vector<double>& needed) {
        for (std::size_t number = 0; number < needed.size(); ++number) units_.push_back({kind, number});
        needed_.insert(needed_.end(), needed.begin(), needed.end());
    };
    add(Unit::Habitat,
        method::wholeThresholds(run.Landscape.HabitatThresholds, method::Quantity::HabitatThreshold));
    add(Unit::Zone, method::wholeThresholds(run.Landscape.ZoneThresholds, method::Quantity::ZoneThreshold));
    std::vector<double> scores(run.ThreatScores.columns());
    for (std::size_t threat = 0; threat < scores.size(); ++threat)
        scores[threat] = neededThreatScore(run.ThreatScores, threat, run.Levels.ThreatRepresentation);
    add(Unit::Threat, scores);
    findCovers();
}

void Representation::findCovers() {
    covers_ = method::BitTable(species(), method::wordsFor(units()));
    coverable_.assign(units(), false);
    for (std::size_t s = 0; s < species(); ++s) {
        const std::span<method::Word> row = covers_.row(s);
        for (std::size_t u = 0; u < units(); ++u) {
            if (!method::represents(value(s, u), needed_[u])) continue;
            row[u / method::WordBits] |= method::Word{1} << (u % method::WordBits);
            if (eligible(s)) coverable_[u] = true;
        }
    }
}

std::vector<std::size_t> Representation::covering(std::size_t unit, bool eligible) const {
    std::vector<std::size_t> found;
    for (std::size_t s = 0; s < species(); ++s) {
        if (eligible_[s] == eligible && covers(s, unit)) found.push_back(s);
    }
    return found;
}

double Representation::value(std::size_t species, std::size_t unit) const {
    const auto [kind, number] = units_[unit];
    switch (kind) {
        case Unit::Habitat: return run_.Landscape.HabitatLevels.at(species, number);
        case Unit::Zone: return run_.Landscape.ZoneLevels.at(species, number);
        case Unit::Threat: return run_.ThreatScores.at(species, number);
    }
    return method::Unreadable;
}

}  // namespace insight
