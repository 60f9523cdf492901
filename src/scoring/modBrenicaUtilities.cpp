// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring/modBrenicaUtilities.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "entry/modErrorHandling.h"
#include "project/columns.h"
#include "project/constant_tables.h"
#include "ui/arrays.h"
#include "ui/text.h"

namespace modBrenicaUtilities {

namespace {

constexpr int Places = 3;
constexpr double HomeRangeScale = 3.0;

double sumOfLevels(int species, int units, const ui::Grid& grid) {
    double sum = 0;
    for (int unit = 1; unit <= units; ++unit) sum += grid.Real(blockRow(species, units, unit), use::Level);
    return sum;
}

double sumOfRow(int species, int lastCol, const ui::Grid& grid) {
    double sum = 0;
    for (int col = 1; col <= lastCol; ++col) sum += grid.Real(species, col);
    return ui::finite(sum);
}

/// Position of the bin with this label, from 1; 0 where none has it.
template <class Labels>
int binOf(std::string_view label, const Labels& labels, int count) {
    for (int i = 0; i < count; ++i) {
        if (ui::equalsIgnoringCase(ui::elementAt(labels, i), label)) return i + 1;
    }
    return 0;
}

using Maxima = std::array<double, TotalCriteria>;

/// The scores before normalisation; keeps the highest of each criterion, as it is before rounding.
void writeOriginalScores(int species, double scaledHomeRange, const ScoreGrids& grids,
                         const modGlobal& global, Maxima& maxima) {
    Maxima scores{};
    const auto keep = [&](std::size_t criterion, double score) {
        scores[criterion] = score;
        maxima[criterion] = std::max(maxima[criterion], score);
    };
    keep(0, GetHeteroScore(species, grids.Habitats, grids.JurisUnits, global));
    keep(1, GetAreaScore(species, scaledHomeRange, grids.Area));
    keep(2, GetVulnerabilityScore(species, grids.Vulnerability));
    keep(3, GetFunctionScore(species, grids.Functionality, global));
    keep(4, GetSocioEconScore(species, grids.SocioEcon));
    for (int i = 0; i < 3; ++i) {
        grids.Original.TextMatrix(species, i + 1,
                                  ui::toText(ui::roundTo(scores[static_cast<std::size_t>(i)], Places)));
    }
    grids.Original.TextMatrix(species, 4, ui::toText(scores[3]));
    grids.Original.TextMatrix(species, 5, ui::toText(scores[4]));
}

/// The numerator is the rounded score shown in the grid, the divisor the maximum before rounding.
void writeNormalisedScores(int species, const ScoreGrids& grids, const Maxima& maxima) {
    for (int col = score::FirstCriterion; col <= score::LastCriterion; ++col) {
        const double maximum = maxima[static_cast<std::size_t>(col - score::FirstCriterion)];
        if (maximum <= 0) {
            grids.Normalised.TextMatrix(species, col, "0");
            continue;
        }
        const double original = grids.Original.Real(species, col - score::Aggregate);
        grids.Normalised.TextMatrix(species, col, ui::toText(ui::roundTo(original / maximum, Places)));
    }
}

double writeAggregate(int species, ui::Grid& normalised) {
    double aggregate = 0;
    for (int col = score::FirstCriterion; col <= score::LastCriterion; ++col)
        aggregate += normalised.Real(species, col);
    normalised.TextMatrix(species, score::Aggregate, ui::toText(ui::roundTo(aggregate, Places)));
    return aggregate;
}

}  // namespace

void ScaleHomeRanges(std::vector<double>& scaled, const ui::Grid& areaGrid, int homeRangeType,
                     const modGlobal& global) try {
    if (global.TotalSpecies < 1) return;
    scaled.assign(static_cast<std::size_t>(global.TotalSpecies), 0.0);
    double maximum = homeRangeType == 1   ? static_cast<double>(DefaultBinLabels.size())
                     : homeRangeType == 2 ? global.TotalBins
                                          : 0.0;
    int bin = 0;  // a label that is in no list takes the bin of the species before
    for (int species = 1; species <= global.TotalSpecies; ++species) {
        double& homeRange = scaled[static_cast<std::size_t>(species) - 1];
        const std::string_view text = areaGrid.TextMatrix(species, area::HomeRange);
        if (text.empty()) continue;
        if (homeRangeType == 0) {
            homeRange = areaGrid.Real(species, area::HomeRange);
            maximum = std::max(maximum, homeRange);
            continue;
        }
        const int found = homeRangeType == 1
                              ? binOf(text, DefaultBinLabels, static_cast<int>(DefaultBinLabels.size()))
                              : binOf(text, global.UserBinLabels, global.TotalBins);
        if (found > 0) bin = found;
        homeRange = bin;
    }
    for (double& homeRange : scaled)
        homeRange = maximum > 0 ? ui::finite(homeRange * HomeRangeScale / maximum) : 0.0;
} catch (...) {
    ReportError(9999, "BrenicaUtilities.ScaleHomeRanges", "");
}

double GetHeteroScore(int species, const ui::Grid& habitats, const ui::Grid& zones,
                      const modGlobal& global) try {
    const double habitatSum = sumOfLevels(species, global.TotalHabitatTypes, habitats);
    const double zoneSum = sumOfLevels(species, global.TotalJurisUnits, zones);
    return ui::finite(habitatSum + habitatSum + zoneSum);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetHeteroScore", "");
}

double GetAreaScore(int species, double scaledHomeRange, const ui::Grid& areaGrid) try {
    double areaScore = 0;
    if (ui::equalsIgnoringCase(areaGrid.TextMatrix(species, area::Dispersal), "Y")) areaScore += 1.0;
    if (ui::equalsIgnoringCase(areaGrid.TextMatrix(species, area::Connectivity), "Y")) areaScore += 1.0;
    areaScore += scaledHomeRange;
    return ui::finite(areaScore + areaGrid.Real(species, area::Occupied));
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetAreaScore", "");
}

double GetVulnerabilityScore(int species, const ui::Grid& vulnerabilityGrid) try {
    const double status = vulnerabilityGrid.Real(species, vulnerability::ConservationStatus);
    return ui::finite((1.0 - status) + vulnerabilityGrid.Real(species, vulnerabilityGrid.Cols() - 2));
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetVulnerabilityScore", "");
}

double GetFunctionScore(int species, const ui::Grid& functionGrid, const modGlobal& global) try {
    return sumOfRow(species, global.TotalFunctions, functionGrid);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetFunctionScore", "");
}

double GetSocioEconScore(int species, const ui::Grid& socioEconGrid) try {
    return sumOfRow(species, TotalSocioEcon, socioEconGrid);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetSocioEconScore", "");
}

std::vector<int> GetRanks(std::vector<double>& values) try {
    // A stable sort leaves equal values in the order in which an exchange sort of neighbours leaves them.
    std::vector<std::size_t> positions(values.size());
    std::iota(positions.begin(), positions.end(), std::size_t{0});
    std::stable_sort(positions.begin(), positions.end(),
                     [&](std::size_t a, std::size_t b) { return values[a] < values[b]; });
    std::stable_sort(values.begin(), values.end());
    std::vector<int> ranks(values.size());
    for (std::size_t k = 0; k < positions.size(); ++k) {
        ranks[positions[k]] = static_cast<int>(positions.size() - k);
    }
    return ranks;
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetRanks", "");
}

void UpdateScores(const std::vector<double>& scaledHomeRanges, const ScoreGrids& grids,
                  modGlobal& global) try {
    const int species = global.TotalSpecies;
    Maxima maxima{};
    for (int s = 1; s <= species; ++s) {
        writeOriginalScores(s, scaledHomeRanges[static_cast<std::size_t>(s) - 1], grids, global, maxima);
    }
    for (int s = 1; s <= species; ++s) writeNormalisedScores(s, grids, maxima);
    std::vector<double> aggregates;
    for (int s = 1; s <= species; ++s) aggregates.push_back(writeAggregate(s, grids.Normalised));

    const std::vector<int> ranks = GetRanks(aggregates);
    global.SpeciesRanks.assign(static_cast<std::size_t>(species), 0);
    for (int s = 1; s <= species; ++s) {
        const int rank = ranks[static_cast<std::size_t>(s) - 1];
        grids.Normalised.TextMatrix(s, score::Rank, ui::toText(rank));
        global.SpeciesRanks[static_cast<std::size_t>(rank) - 1] = s;
        if (rank == 1) global.TopRankedSpecies = grids.Normalised.TextMatrix(s, 0);
    }
    global.ScoresCalculated = true;
} catch (...) {
    ReportError(9999, "BrenicaUtilities.UpdateScores", "");
}

}  // namespace modBrenicaUtilities
