// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/selection_run.h"

#include "project/constant_tables.h"
#include "project/frmBrenica.h"
#include "scoring/landscape_reader.h"
#include "scoring/modBrenicaUtilities.h"
#include "ui/text.h"

namespace {

std::vector<std::string> namesIn(const ui::Grid& list, int count) {
    std::vector<std::string> names;
    for (int row = 1; row <= count; ++row) names.emplace_back(list.TextMatrix(row, list::Name));
    return names;
}

std::vector<std::uint8_t> yesInColumn(const ui::Grid& grid, int col, int rows) {
    std::vector<std::uint8_t> column;
    for (int row = 1; row <= rows; ++row)
        column.push_back(modBrenicaUtilities::SaysYes(grid, row, col) ? 1 : 0);
    return column;
}

}  // namespace

std::optional<SelectionRun> frmBrenica::TakeSelectionRun() const {
    if (!outcome_) return std::nullopt;
    const int species = global_.TotalSpecies;
    const ui::Grid& areas = flxSummary(summary::Area);
    SelectionRun run;
    run.Species = namesIn(flxCandidateSpecies, species);
    run.Units[method::Unit::Habitat] = namesIn(flxHabitatTypes, global_.TotalHabitatTypes);
    run.Units[method::Unit::Zone] = namesIn(flxJurisUnits, global_.TotalJurisUnits);
    run.Units[method::Unit::Threat] = namesIn(flxLandUses, global_.TotalLandUses);
    run.Landscape = selectionLandscape();
    run.Landscape.HabitatAreas = columnOf(flxHabitatTypes, list::Area, global_.TotalHabitatTypes);
    run.Landscape.ZoneAreas = columnOf(flxJurisUnits, list::Area, global_.TotalJurisUnits);
    run.Landscape.Dispersal = yesInColumn(areas, area::Dispersal, species);
    run.Landscape.Connectivity = yesInColumn(areas, area::Connectivity, species);
    run.Landscape.Ranges = modBrenicaUtilities::HomeRangesOf(areas, HomeRangeType, global_);
    run.Landscape.Occupied = columnOf(areas, area::Occupied, species);
    run.Landscape.Functions = tableOf(flxSummary(summary::Functionality), 1, species, global_.TotalFunctions);
    run.Landscape.SocioEconomics = tableOf(flxSummary(summary::SocioEcon), 1, species, TotalSocioEcon);
    run.Levels = askedLevels_;
    run.ThreatScores = threatScoresOf(flxSummary(summary::Vulnerability), species, global_.TotalLandUses);
    run.Aggregates = columnOf(flxScores(0), score::Aggregate, species);
    for (int row = 1; row <= species; ++row) run.Ranks.push_back(flxScores(0).Long(row, score::Rank));
    run.DataQuality = tableOf(flxSummary(summary::DataQuality), 1, species, TotalCriteria);
    run.Outcome = *outcome_;
    return run;
}
