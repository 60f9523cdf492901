// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "method/landscape.h"
#include "project/modGlobal.h"
#include "ui/grid.h"

/// The scores of the candidate species. Species count from 1 and stand in the row of their number; a cell that is read
/// as a number must hold one, or the failure is reported under the name of the function.
namespace modBrenicaUtilities {

/// The home ranges of the area table, as the form's type has them: 0 continuous, 1 default bins, 2 user-defined bins.
method::HomeRanges HomeRangesOf(const ui::Grid& areaGrid, int homeRangeType, const modGlobal& global);
/// Whether a cell of the area table is "Y", in any case.
bool SaysYes(const ui::Grid& grid, int species, int col);

/// Home ranges of any kind on one scale from 0 to 3, element s - 1 for species s, from the area table. Continuous
/// values are scaled to the largest present, bins to the last of their list.
void ScaleHomeRanges(std::vector<double>& scaled, const ui::Grid& areaGrid, int homeRangeType,
                     const modGlobal& global);

/// Sum of the levels of use, habitats counted twice and zones once.
double GetHeteroScore(int species, const ui::Grid& habitats, const ui::Grid& zones, const modGlobal& global);
/// Dispersal and connectivity one point each, plus the scaled home range and the proportion occupied.
double GetAreaScore(int species, double scaledHomeRange, const ui::Grid& areaGrid);
/// (1 - conservation status) + summed threat score.
double GetVulnerabilityScore(int species, const ui::Grid& vulnerabilityGrid);
double GetFunctionScore(int species, const ui::Grid& functionGrid, const modGlobal& global);
double GetSocioEconScore(int species, const ui::Grid& socioEconGrid);

/// Ranks of the values, the greatest being 1; of equal values the later one has the better rank. Sorts the values
/// ascending.
std::vector<int> GetRanks(std::vector<double>& values);

/// The grids that UpdateScores reads and fills.
struct ScoreGrids {
    const ui::Grid& Habitats;
    const ui::Grid& JurisUnits;
    const ui::Grid& Area;
    const ui::Grid& Vulnerability;
    const ui::Grid& Functionality;
    const ui::Grid& SocioEcon;
    ui::Grid& Normalised;
    ui::Grid& Original;
};

/// Fills the score grids: the five scores of each species, the same divided by the best species' score, their sum as
/// the aggregate, and the rank. Sets SpeciesRanks, TopRankedSpecies and ScoresCalculated.
void UpdateScores(const std::vector<double>& scaledHomeRanges, const ScoreGrids& grids, modGlobal& global);

}  // namespace modBrenicaUtilities
