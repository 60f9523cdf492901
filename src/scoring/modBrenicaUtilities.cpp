// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring/modBrenicaUtilities.h"

#include "entry/modErrorHandling.h"
#include "method/scores.h"
#include "project/columns.h"
#include "project/constant_tables.h"
#include "scoring/landscape_reader.h"
#include "ui/arrays.h"
#include "ui/form_window.h"
#include "ui/text.h"

namespace modBrenicaUtilities {

namespace {

/// Position of the bin with this label, from 1; Unreadable where none has it.
template <class Labels>
double binOf(std::string_view label, const Labels& labels, int count) {
    for (int i = 0; i < count; ++i) {
        if (ui::equalsIgnoringCase(ui::elementAt(labels, i), label)) return i + 1;
    }
    return method::Unreadable;
}

/// `score` of the values of one row.
template <class Score>
double scoreOfRow(const ui::Grid& grid, int species, int cols, Score score) {
    const std::vector<double> values = rowOf(grid, species, 1, cols);
    return resultOf([&] { return score(values, landscapeIndex(species)); },
                    [&](const method::Failure& failure) {
                        return CellPlace{grid, species, tableIndex(failure.Column)};
                    });
}

method::CriterionScores scoresOf(int species, double scaledHomeRange, const ScoreGrids& grids,
                                 const modGlobal& global) {
    using enum method::Criterion;
    method::CriterionScores scores;
    scores[Heterogeneity] = GetHeteroScore(species, grids.Habitats, grids.JurisUnits, global);
    scores[Area] = GetAreaScore(species, scaledHomeRange, grids.Area);
    scores[Vulnerability] = GetVulnerabilityScore(species, grids.Vulnerability);
    scores[Functionality] = GetFunctionScore(species, grids.Functionality, global);
    scores[SocioEconomics] = GetSocioEconScore(species, grids.SocioEcon);
    return scores;
}

/// Those that have been calculated, from column `firstCol` on.
void writeScores(ui::Grid& grid, int species, int firstCol, const method::CriterionScores& scores) {
    for (std::size_t i = 0; i < method::Criteria && !method::isBlank(scores[i]); ++i)
        grid.TextMatrix(species, firstCol + static_cast<int>(i), ui::toText(scores[i]));
}

/// Scores before normalisation.
void writeOriginalScores(const std::vector<double>& scaledHomeRanges, const ScoreGrids& grids,
                         const modGlobal& global, method::Scores& scores) {
    for (int s = 1; s <= global.TotalSpecies; ++s) {
        const method::CriterionScores raw = scoresOf(s, scaledHomeRanges[landscapeIndex(s)], grids, global);
        const auto failure = failureOf([&] { method::addSpecies(raw, scores); });
        writeScores(grids.Original, s, 1, scores.Original.back());
        if (failure) ui::raise(ui::ErrorNumber::Overflow);
    }
}

void writeNormalisedScores(ui::Grid& normalised, method::Scores& scores) {
    const auto failure = failureOf([&] { method::scaleToHighest(scores); });
    for (std::size_t s = 0; s < scores.Normalised.size(); ++s)
        writeScores(normalised, tableIndex(s), score::FirstCriterion, scores.Normalised[s]);
    for (std::size_t s = 0; s < scores.Aggregate.size(); ++s)
        normalised.TextMatrix(tableIndex(s), score::Aggregate, ui::toText(scores.Aggregate[s]));
    if (failure) ui::raise(ui::ErrorNumber::Overflow);
}

}  // namespace

method::HomeRanges HomeRangesOf(const ui::Grid& areaGrid, int homeRangeType, const modGlobal& global) {
    const int bins = homeRangeType == 1 ? static_cast<int>(DefaultBinLabels.size()) : global.TotalBins;
    const auto valueOf = [&](std::string_view text) {
        if (text.empty()) return method::Blank;
        if (homeRangeType == 0)
            return ui::tryReal(text, areaGrid.Form().Separator()).value_or(method::Unreadable);
        return homeRangeType == 1 ? binOf(text, DefaultBinLabels, bins)
                                  : binOf(text, global.UserBinLabels, bins);
    };
    method::HomeRanges ranges;
    if (homeRangeType != 0) {
        ranges.In = method::HomeRanges::Kind::Classes;
        ranges.Classes = static_cast<std::size_t>(bins);
    }
    for (int species = 1; species <= global.TotalSpecies; ++species)
        ranges.Values.push_back(valueOf(areaGrid.TextMatrix(species, area::HomeRange)));
    return ranges;
}

bool SaysYes(const ui::Grid& grid, int species, int col) {
    return ui::equalsIgnoringCase(grid.TextMatrix(species, col), "Y");
}

void ScaleHomeRanges(std::vector<double>& scaled, const ui::Grid& areaGrid, int homeRangeType,
                     const modGlobal& global) try {
    if (global.TotalSpecies < 1) return;
    const method::HomeRanges ranges = HomeRangesOf(areaGrid, homeRangeType, global);
    scaled = resultOf([&] { return method::scaleHomeRanges(ranges); },
                      [&](const method::Failure& failure) {
                          return CellPlace{areaGrid, tableIndex(failure.Row), area::HomeRange};
                      });
} catch (...) {
    ReportError(9999, "BrenicaUtilities.ScaleHomeRanges", "");
}

double GetHeteroScore(int species, const ui::Grid& habitats, const ui::Grid& zones,
                      const modGlobal& global) try {
    const auto cellOf = [&](const method::Failure& failure) {
        const bool habitat = failure.What == method::Quantity::HabitatLevel;
        const int units = habitat ? global.TotalHabitatTypes : global.TotalJurisUnits;
        const int row = blockRow(species, units, tableIndex(failure.Column));
        return CellPlace{habitat ? habitats : zones, row, use::Level};
    };
    return resultOf(
        [&] {
            return method::heterogeneity(levelsOfSpecies(habitats, species, global.TotalHabitatTypes),
                                         levelsOfSpecies(zones, species, global.TotalJurisUnits),
                                         landscapeIndex(species));
        },
        cellOf);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetHeteroScore", "");
}

double GetAreaScore(int species, double scaledHomeRange, const ui::Grid& areaGrid) try {
    return resultOf(
        [&] {
            return method::areaScore(SaysYes(areaGrid, species, area::Dispersal),
                                     SaysYes(areaGrid, species, area::Connectivity), scaledHomeRange,
                                     numberAt(areaGrid, species, area::Occupied), landscapeIndex(species));
        },
        [&](const method::Failure&) {
            return CellPlace{areaGrid, species, area::Occupied};
        });
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetAreaScore", "");
}

double GetVulnerabilityScore(int species, const ui::Grid& vulnerabilityGrid) try {
    const int totalCol = vulnerabilityGrid.Cols() - 2;
    return resultOf(
        [&] {
            return method::vulnerability(
                numberAt(vulnerabilityGrid, species, vulnerability::ConservationStatus),
                numberAt(vulnerabilityGrid, species, totalCol), landscapeIndex(species));
        },
        [&](const method::Failure& failure) {
            const bool status = failure.What == method::Quantity::Status;
            return CellPlace{vulnerabilityGrid, species,
                             status ? vulnerability::ConservationStatus : totalCol};
        });
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetVulnerabilityScore", "");
}

double GetFunctionScore(int species, const ui::Grid& functionGrid, const modGlobal& global) try {
    return scoreOfRow(functionGrid, species, global.TotalFunctions, method::functionality);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetFunctionScore", "");
}

double GetSocioEconScore(int species, const ui::Grid& socioEconGrid) try {
    return scoreOfRow(socioEconGrid, species, TotalSocioEcon, method::socioEconomics);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetSocioEconScore", "");
}

std::vector<int> GetRanks(std::vector<double>& values) try {
    const std::vector<int> ranks = method::ranksOf(values);
    std::vector<double> ascending(values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        ascending[values.size() - static_cast<std::size_t>(ranks[i])] = values[i];
    values = std::move(ascending);
    return ranks;
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetRanks", "");
}

void UpdateScores(const std::vector<double>& scaledHomeRanges, const ScoreGrids& grids,
                  modGlobal& global) try {
    const int species = global.TotalSpecies;
    method::Scores scores;
    writeOriginalScores(scaledHomeRanges, grids, global, scores);
    writeNormalisedScores(grids.Normalised, scores);
    const std::vector<int> ranks = GetRanks(scores.Sum);
    global.SpeciesRanks.assign(static_cast<std::size_t>(species), 0);
    for (int s = 1; s <= species; ++s) {
        const int rank = ranks[landscapeIndex(s)];
        grids.Normalised.TextMatrix(s, score::Rank, ui::toText(rank));
        global.SpeciesRanks[landscapeIndex(rank)] = s;
        if (rank == 1) global.TopRankedSpecies = grids.Normalised.TextMatrix(s, 0);
    }
    global.ScoresCalculated = true;
} catch (...) {
    ReportError(9999, "BrenicaUtilities.UpdateScores", "");
}

}  // namespace modBrenicaUtilities
