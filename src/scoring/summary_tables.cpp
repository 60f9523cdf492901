// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "method/use.h"
#include "project/frmBrenica.h"
#include "project/pages.h"
#include "scoring/landscape_reader.h"

namespace {

constexpr int UseTab = 1;
constexpr int SpeciesByThreatTab = 6;

void redoColumnTotals(ui::Grid& grid, int col, int species) {
    const method::Use use = method::useOf(columnOf(grid, col, species));
    succeeds([&] { grid.TextMatrix(grid.Rows() - 2, col, ui::toText(use.Level)); });
    succeeds([&] { grid.TextMatrix(grid.Rows() - 1, col, ui::toText(use.Count)); });
}

void redoRowTotals(ui::Grid& grid, int row, int units) {
    const method::Use use = method::useOf(rowOf(grid, row, 1, units));
    succeeds([&] { grid.TextMatrix(row, grid.Cols() - 2, ui::toText(use.Level)); });
    succeeds([&] { grid.TextMatrix(row, grid.Cols() - 1, ui::toText(use.Count)); });
}

}  // namespace

/// Fires on every write of every summary grid, by code as well. Errors are ignored.
void frmBrenica::flxSummary_CellChanged(int index, int row, int col) {
    ProjectChanged = true;
    if (CurrentMainTab != page::Summary) return;
    if (index == summary::HabitatUse && CurrentSummaryTab == UseTab) {
        levelOfUse_Changed(parameterList(ListKind::HabitatTypes), row, col);
    } else if (index == summary::JurisUnitUse && CurrentSummaryTab == UseTab) {
        levelOfUse_Changed(parameterList(ListKind::JurisUnits), row, col);
    } else if (index == summary::SpeciesByThreat && CurrentSummaryTab == SpeciesByThreatTab) {
        threatRating_Changed(row, col);
    }
}

/// The same for many cells at once, of which mostly nothing follows.
void frmBrenica::flxSummary_CellsChanged(int index, const ui::WrittenCells& cells) {
    ProjectChanged = true;
    if (CurrentMainTab != page::Summary) return;
    cells.forEach([&](int row, int col) { flxSummary_CellChanged(index, row, col); });
}

/// A level edited in a cross table corrects the totals and reaches the long table. Headings are no data, and no edit is
/// possible before a calculation has put shifted levels right.
void frmBrenica::levelOfUse_Changed(const ParameterList& list, int row, int col) {
    const int units = global_.*list.Total;
    const bool data = row >= 1 && row <= global_.TotalSpecies && col >= 1 && col <= units;
    if (!data || levelsShifted(list)) return;
    ui::Grid& grid = flxSummary(list.WideMember);
    const std::string level(grid.TextMatrix(row, col));
    redoColumnTotals(grid, col, global_.TotalSpecies);
    redoRowTotals(grid, row, units);
    succeeds([&] { flxSummary(list.LongMember).TextMatrix(blockRow(row, units, col), use::Level, level); });
}

/// The two tables of ratings hold the same values in the other order. Without activities neither holds any.
void frmBrenica::threatRating_Changed(int row, int col) {
    if (row < 1 || CurrentSpeciesIndex == 0 || col < 2 || col > 4 || global_.TotalLandUses < 1) return;
    succeeds([&] {
        const int remainder = ui::remainderLong(row, global_.TotalSpecies);
        const int threatNumber = ui::divideLong(row - 1, global_.TotalSpecies) + 1;
        const int species = remainder == 0 ? global_.TotalSpecies : remainder;
        flxSummary(summary::ThreatsBySpecies)
            .TextMatrix(blockRow(species, global_.TotalLandUses, threatNumber), col + 2,
                        flxSummary(summary::SpeciesByThreat).TextMatrix(row, col));
    });
}
