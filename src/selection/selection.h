// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "project/modGlobal.h"
#include "selection/number_table.h"
#include "ui/grid.h"
#include "ui/platform.h"

/// A flag or a level for each species, unit or threat; element i - 1 stands for number i.
using Flags = std::vector<bool>;
using Levels = std::vector<int>;

/// Where number i stands in them.
inline std::size_t at(int number) { return static_cast<std::size_t>(number) - 1; }

/// What a selection starts from, beside the grids.
struct SelectionInput {
    Flags SpeciesRemoved;  ///< out of the race; at the start those excluded by conservation status
    Levels HabitatThresholds;
    Levels JurisUnitThresholds;
};

/// The grids that a selection reads and fills.
struct SelectionGrids {
    ui::Grid& Results;  ///< flxCompResults(0): a block of rows a pass, each closed by a blank row
    const ui::Grid& Scores;
    ui::Grid& Suite;
    const ui::Grid& HabitatTypes;
    const ui::Grid& JurisUnits;
    const ui::Grid& HabitatLevels;
    const ui::Grid& JurisUnitLevels;
    const ui::Grid& Threats;
    const ui::Grid& ThreatScores;
    ui::Grid& HabitatsCovered;
    ui::Grid& JurisUnitsCovered;
    ui::Grid& ThreatsCovered;
};

namespace modBrenicaUtilities {

/// The selection: picks the best species, marks what it represents as covered, scores the others anew over what is
/// left, and so on until all is covered or no species is left.
void cmdComplement_Click(ui::Platform& platform, modGlobal& global, SelectionInput input,
                         const SelectionGrids& grids);

/// Appends a block with the species still in the race and its blank row; returns the number of species. The first
/// call of a selection reports the excluded species.
int SetupSelectionSpecies(ui::Platform& platform, modGlobal& global, ui::Grid& grid,
                          const ui::Grid& scoresGrid, const Flags& speciesRemoved, bool firstPass);

/// The line above the list of excluded species, in the message and in the results file.
std::string excludedHeading(int count);

/// Units whose level of use by the species reaches the threshold and that are not covered yet.
int GetUnitsUsed(const NumberTable& levels, int unitCount, const Levels& thresholds, int species, int column,
                 const Flags& covered);

/// Threats for which the species' score reaches the given fraction of the highest, and that are not covered yet.
int GetThreatImpact(const NumberTable& scores, double threatRepresentation,
                    const std::vector<double>& threatMaxScores, int species, const Flags& covered);

/// The criterion scores over what is not covered yet.
double RecalcHeteroScore(int species, const NumberTable& habitatLevels, const NumberTable& zoneLevels,
                         const Flags& habitatCovered, const Flags& zoneCovered);
double RecalcVulnerabilityScore(int species, const NumberTable& ratings, double conservationStatus,
                                const Flags& threatCovered);

/// Mark what the species represents as covered; a unit that no pick covered before gets the pick's number and colour.
void HighlightCoverUnitsUsed(const NumberTable& levels, ui::Grid& unitGrid, int unitCount, int species,
                             const Levels& thresholds, Flags& covered, int column, int pickNumber);
void HighlightThreatsEncountered(const NumberTable& scores, ui::Grid& unitGrid, double threatRepresentation,
                                 const std::vector<double>& threatMaxScores, int species, Flags& covered,
                                 int pickNumber);

/// The colour of a pick; the tenth and all later ones share one.
ui::Colour GetCellColor(int pickNumber);

/// Counts the rows below the top surviving one of a sorted block whose aggregate lies within the margin, and paints
/// them. `pickOffset` becomes the top one's distance from the block's first row.
int Check4ErrorMargin(double errorMargin, ui::Grid& grid, int blockStartRow, int blockSize,
                      const Flags& speciesRemoved, int& pickOffset);

/// Lets the user decide between the species within the margin; returns the row of the one to pick.
int SelectErrorMarginSpecies(ui::Platform& platform, const ui::Grid& grid, int blockStartRow, int pickOffset,
                             int count, const Flags& speciesRemoved);

}  // namespace modBrenicaUtilities
