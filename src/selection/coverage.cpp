// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>

#include "entry/modErrorHandling.h"
#include "project/columns.h"
#include "selection/selection.h"

/// What a species covers: a unit at or above its threshold, a threat at or above a fraction of the highest score.

namespace modBrenicaUtilities {

namespace {

constexpr int FirstCoveredBy = 1;  // column of the coverage views

/// A covered unit keeps the number and colour of the pick that covered it first.
void markFirstCovered(ui::Grid& unitGrid, int unit, int pickNumber) {
    if (!unitGrid.TextMatrix(unit, FirstCoveredBy).empty()) return;
    unitGrid.TextMatrix(unit, FirstCoveredBy, ui::toText(pickNumber));
    unitGrid.Select(unit, FirstCoveredBy);
    unitGrid.CellBackColor(GetCellColor(pickNumber));
}

bool representsThreat(const NumberTable& scores, double threatRepresentation,
                      const std::vector<double>& threatMaxScores, int species, int threatNumber) {
    const double threshold = threatRepresentation * threatMaxScores[at(threatNumber)];
    return threshold <= scores.at(species, threatNumber + vulnerability::ThreatOffset);
}

double uncoveredLevels(int species, const NumberTable& levels, const Flags& covered) {
    const int units = static_cast<int>(covered.size());
    double sum = 0;
    for (int unit = 1; unit <= units; ++unit) {
        if (!covered[at(unit)]) sum += levels.at(blockRow(species, units, unit), use::Level);
    }
    return sum;
}

}  // namespace

int GetUnitsUsed(const NumberTable& levels, int unitCount, const Levels& thresholds, int species, int column,
                 const Flags& covered) try {
    int additional = 0;
    for (int unit = 1; unit <= unitCount; ++unit) {
        const double level = levels.at(blockRow(species, unitCount, unit), column);
        if (level >= thresholds[at(unit)] && !covered[at(unit)]) ++additional;
    }
    return additional;
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetUnitsUsed", "");
}

int GetThreatImpact(const NumberTable& scores, double threatRepresentation,
                    const std::vector<double>& threatMaxScores, int species, const Flags& covered) try {
    int additional = 0;
    for (int t = 1; t <= static_cast<int>(covered.size()); ++t) {
        if (representsThreat(scores, threatRepresentation, threatMaxScores, species, t) && !covered[at(t)])
            ++additional;
    }
    return additional;
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetThreatImpact", "");
}

double RecalcHeteroScore(int species, const NumberTable& habitatLevels, const NumberTable& zoneLevels,
                         const Flags& habitatCovered, const Flags& zoneCovered) try {
    const double habitats = uncoveredLevels(species, habitatLevels, habitatCovered);
    const double zones = uncoveredLevels(species, zoneLevels, zoneCovered);
    return ui::finite(habitats + habitats + zones);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.RecalcHeteroScore", "");
}

double RecalcVulnerabilityScore(int species, const NumberTable& ratings, double conservationStatus,
                                const Flags& threatCovered) try {
    const int threats = static_cast<int>(threatCovered.size());
    double sum = 0;
    for (int t = 1; t <= threats; ++t) {
        if (threatCovered[at(t)]) continue;
        const int row = blockRow(species, threats, t);
        const auto rating = [&](int col) { return ratings.at(row, col); };
        sum += (rating(threat::Urgency) + rating(threat::Recovery)) * rating(threat::Severity) *
               rating(threat::Proportion) * rating(threat::Probability);
    }
    return ui::finite((1 - conservationStatus) + sum);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.RecalcVulnerabilityScore", "");
}

void HighlightCoverUnitsUsed(const NumberTable& levels, ui::Grid& unitGrid, int unitCount, int species,
                             const Levels& thresholds, Flags& covered, int column, int pickNumber) try {
    for (int unit = 1; unit <= unitCount; ++unit) {
        if (levels.at(blockRow(species, unitCount, unit), column) < thresholds[at(unit)]) continue;
        covered[at(unit)] = true;
        markFirstCovered(unitGrid, unit, pickNumber);
    }
} catch (...) {
    ReportError(9999, "BrenicaUtilities.HighlightCoverUnitsUsed", "");
}

void HighlightThreatsEncountered(const NumberTable& scores, ui::Grid& unitGrid, double threatRepresentation,
                                 const std::vector<double>& threatMaxScores, int species, Flags& covered,
                                 int pickNumber) try {
    for (int t = 1; t <= static_cast<int>(covered.size()); ++t) {
        if (!representsThreat(scores, threatRepresentation, threatMaxScores, species, t)) continue;
        covered[at(t)] = true;
        markFirstCovered(unitGrid, t, pickNumber);
    }
} catch (...) {
    ReportError(9999, "BrenicaUtilities.HighlightThreatsEncountered", "");
}

ui::Colour GetCellColor(int pickNumber) {
    static constexpr std::array Colours = {
        ui::rgb(200, 50, 0),    ui::rgb(255, 150, 0),   ui::rgb(200, 100, 0),
        ui::rgb(255, 255, 100), ui::rgb(200, 255, 50),  ui::rgb(50, 150, 50),
        ui::rgb(100, 200, 175), ui::rgb(150, 150, 255), ui::rgb(150, 0, 200)};
    constexpr ui::Colour Later = ui::rgb(255, 255, 200);
    const bool own = pickNumber >= 1 && pickNumber <= static_cast<int>(Colours.size());
    return own ? Colours[at(pickNumber)] : Later;
}

}  // namespace modBrenicaUtilities
