// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "method/selection.h"
#include "project/modGlobal.h"
#include "ui/grid.h"
#include "ui/platform.h"

struct CellPlace;

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

/// The selection is the method's. What stands here fills the tables with what the method tells, asks the user what it
/// asks, and raises the platform's error where it fails.
namespace modBrenicaUtilities {

/// Runs a selection that has been started, from the scores in the grid to the report.
void cmdComplement_Click(ui::Platform& platform, modGlobal& global, method::Selection& selection,
                         const SelectionGrids& grids);

/// Appends a block with the species still in the race and its blank row. The first call of a selection reports the
/// excluded species; later ones are told where each species stands in the block before.
void SetupSelectionSpecies(ui::Platform& platform, modGlobal& global, ui::Grid& grid,
                           const ui::Grid& scoresGrid, const method::Block& block,
                           std::span<const int> rowsBefore);

/// The line above the list of excluded species, in the message and in the results file.
std::string excludedHeading(int count);

/// A unit that no pick covered before gets the pick's number and colour.
void HighlightCoverUnitsUsed(ui::Grid& unitGrid, int unit, int pickNumber);
void HighlightThreatsEncountered(ui::Grid& unitGrid, int threatNumber, int pickNumber);

/// The colour of a pick; the tenth and all later ones share one.
ui::Colour GetCellColor(int pickNumber);

/// Lets the user decide between the species within the margin, whose block begins in the given row of the results.
/// Returns the offset of the one to pick; what was answered is appended to `answers`.
std::size_t SelectErrorMarginSpecies(ui::Platform& platform, const ui::Grid& results, int blockStartRow,
                                     const method::MarginBand& band, std::vector<std::string>& answers);

/// The cell of the results at which the method failed in a block that begins in the given row.
CellPlace resultCell(const ui::Grid& results, int blockStartRow, const method::Failure& failure);

/// Raises what a failure of the method is to the platform: what reading the cell at fault raises, or Overflow for a
/// result that is too large.
[[noreturn]] void raiseFailure(const method::Failure& failure, const CellPlace& cell);

/// The same for a failure of one step, which is reported under its name: units that a species would add, its scores over
/// what is left, who lies within the margin.
[[noreturn]] void GetUnitsUsed(const method::Failure& failure, const CellPlace& cell);
[[noreturn]] void RecalcHeteroScore(const method::Failure& failure, const CellPlace& cell);
[[noreturn]] void RecalcVulnerabilityScore(const method::Failure& failure, const CellPlace& cell);
[[noreturn]] void Check4ErrorMargin(const method::Failure& failure, const CellPlace& cell);

}  // namespace modBrenicaUtilities
