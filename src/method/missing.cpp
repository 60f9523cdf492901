// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/missing.h"

#include <algorithm>

namespace method {

namespace {

bool anyBlank(std::span<const double> values) { return std::any_of(values.begin(), values.end(), isBlank); }

/// The threats that somebody may leave uncovered.
std::vector<std::size_t> threatsRead(const Table& threatScores, double representation) {
    std::vector<std::size_t> threats;
    for (std::size_t t = 0; t < threatScores.columns(); ++t) {
        double highest = 0;
        for (std::size_t s = 0; s < threatScores.rows(); ++s)
            highest =
                std::max(highest, threatScores.at(s, t));  // a value that is no number is never the greater
        if (representation > 0 && highest > 0) threats.push_back(t);
    }
    return threats;
}

}  // namespace

bool lacksGrades(const Landscape& landscape, const Table& threatScores, const Levels& levels) {
    const std::vector<std::size_t> threats = threatsRead(threatScores, levels.ThreatRepresentation);
    const ThreatRatings& ratings = landscape.Ratings;
    const auto lacks = [&](std::size_t s) {
        if (anyBlank(landscape.HabitatLevels.row(s)) || anyBlank(landscape.ZoneLevels.row(s))) return true;
        return std::any_of(threats.begin(), threats.end(), [&](std::size_t t) {
            return isBlank(ratings.Severity.at(s, t)) || isBlank(ratings.Recovery.at(s, t)) ||
                   isBlank(ratings.Proportion.at(s, t));
        });
    };
    for (std::size_t s = 0; s < landscape.species(); ++s) {
        if (landscape.Status[s] <= levels.ConservationStatus && lacks(s)) return true;
    }
    return false;
}

}  // namespace method
