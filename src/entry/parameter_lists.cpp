// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/parameter_lists.h"

#include "entry/modErrorHandling.h"
#include "entry/modFlexGridUtilities.h"
#include "project/constant_tables.h"
#include "project/frmBrenica.h"

using modFlexGridUtilities::removeRows;
using modFlexGridUtilities::UpdateFlexGrid;

std::vector<ParameterList> frmBrenica::makeParameterLists() {
    return {
        {.Kind = ListKind::HabitatTypes,
         .Grid = &flxHabitatTypes,
         .Total = &modGlobal::TotalHabitatTypes,
         .NewRows = &txtTotalHabitatTypes,
         .Update = &cmdUpdateHabitatTypes,
         .RemoveIndex = &txtRemoveHabitatIndex,
         .Remove = &cmdRemoveHabitatType,
         .Move = &cmdHabitatMove,
         .Entry = &flxHabitatHetero,
         .EntryNumbered = false,
         .HasLevelOfUse = true,
         .LastCol = list::LevelOfUse,
         .WideMember = summary::HabitatUse,
         .WideOffset = 0,
         .WideNumbered = true,
         .LongMember = summary::HabitatsBySpecies,
         .UpdateSource = "Brenica.cmdUpdateHabitatTypes_Click",
         .UpdateOtherSource = "Brenica.UpdateOtherHabitatFlexGrids",
         .RemoveClickSource = "Brenica.cmdRemoveHabitatType_Click",
         .RemoveSource = "Brenica.RemoveHabitatType",
         .MoveSource = "Brenica.cmdHabitatMove_Click"},
        {.Kind = ListKind::JurisUnits,
         .Grid = &flxJurisUnits,
         .Total = &modGlobal::TotalJurisUnits,
         .NewRows = &txtTotalJurisUnits,
         .Update = &cmdUpdateJurisUnits,
         .RemoveIndex = &txtRemoveJurisUnitIndex,
         .Remove = &cmdRemoveJurisUnit,
         .Move = &cmdJurisUnitMove,
         .Entry = &flxJurisUnitHetero,
         .EntryNumbered = true,
         .HasLevelOfUse = true,
         .LastCol = list::LevelOfUse,
         .WideMember = summary::JurisUnitUse,
         .WideOffset = 0,
         .WideNumbered = true,
         .LongMember = summary::JurisUnitsBySpecies,
         .UpdateSource = "Brenica.cmdUpdateJurisUnits_Click",
         .UpdateOtherSource = "Brenica.UpdateOtherJurisUnitFlexGrids",
         .RemoveClickSource = "Brenica.cmdRemoveJurisUnit_Click",
         .RemoveSource = "Brenica.RemoveJurisUnit",
         .MoveSource = "Brenica.cmdJurisUnitMove_Click"},
        {.Kind = ListKind::LandUses,
         .Grid = &flxLandUses,
         .Total = &modGlobal::TotalLandUses,
         .NewRows = &txtTotalLandUses,
         .Update = &cmdUpdateLandUses,
         .RemoveIndex = &txtRemoveLandUseIndex,
         .Remove = &cmdRemoveLandUse,
         .Move = &cmdLandUseMove,
         .Entry = &flxLandUsesVulnerability,
         .EntryNumbered = false,
         .HasLevelOfUse = false,
         .LastCol = list::Probability,
         .WideMember = summary::Vulnerability,
         .WideOffset = vulnerability::ThreatOffset,
         .WideNumbered = true,
         .LongMember = summary::ThreatsBySpecies,
         .UpdateSource = "Brenica.cmdUpdateLandUses_Click",
         .UpdateOtherSource = "Brenica.UpdateOtherLandUseFlexGrids",
         .RemoveClickSource = "Brenica.cmdRemoveLandUse_Click",
         .RemoveSource = "Brenica.RemoveLandUse",
         .MoveSource = "Brenica.cmdLandUseMove_Click"},
        {.Kind = ListKind::Functions,
         .Grid = &flxFunctions,
         .Total = &modGlobal::TotalFunctions,
         .NewRows = &txtTotalFunctions,
         .Update = &cmdUpdateFunctions,
         .RemoveIndex = &txtRemoveFunctionIndex,
         .Remove = &cmdRemoveFunction,
         .Move = &cmdFunctionMove,
         .Entry = &flxFunctionality,
         .EntryNumbered = false,
         .HasLevelOfUse = false,
         .LastCol = list::Name,
         .WideMember = summary::Functionality,
         .WideOffset = 0,
         .WideNumbered = false,
         .LongMember = ParameterList::NoMember,
         .UpdateSource = "Brenica.cmdUpdateFunctions_Click",
         .UpdateOtherSource = "Brenica.UpdateOtherFunctionFlexGrids",
         .RemoveClickSource = "Brenica.cmdRemoveFunction_Click",
         .RemoveSource = "Brenica.RemoveFunction",
         .MoveSource = "Brenica.cmdFunctionMove_Click"},
    };
}

const ParameterList& frmBrenica::parameterList(ListKind kind) const {
    return parameterLists_[static_cast<std::size_t>(kind)];
}

void frmBrenica::UpdateOtherHabitatFlexGrids(int added) {
    updateOtherGrids(parameterList(ListKind::HabitatTypes), added);
}
void frmBrenica::UpdateOtherJurisUnitFlexGrids(int added) {
    updateOtherGrids(parameterList(ListKind::JurisUnits), added);
}
void frmBrenica::UpdateOtherLandUseFlexGrids(int added) {
    updateOtherGrids(parameterList(ListKind::LandUses), added);
}
void frmBrenica::UpdateOtherFunctionFlexGrids(int added) {
    updateOtherGrids(parameterList(ListKind::Functions), added);
}
void frmBrenica::RemoveHabitatType(RowNumbers rows) {
    removeFromList(parameterList(ListKind::HabitatTypes), rows);
}
void frmBrenica::RemoveJurisUnit(RowNumbers rows) {
    removeFromList(parameterList(ListKind::JurisUnits), rows);
}
void frmBrenica::RemoveLandUse(RowNumbers rows) { removeFromList(parameterList(ListKind::LandUses), rows); }
void frmBrenica::RemoveFunction(RowNumbers rows) { removeFromList(parameterList(ListKind::Functions), rows); }

/// The levels of use start at the last old row, not behind it, so that each addition resets that row's level too.
void frmBrenica::updateList(const ParameterList& list) try {
    const int added = list.NewRows->Long();
    const int oldTotal = global_.*list.Total;
    UpdateFlexGrid(*list.Grid, added, global_.*list.Total, true);
    for (int row = std::max(oldTotal, 1); list.HasLevelOfUse && row <= global_.*list.Total; ++row) {
        list.Grid->TextMatrix(row, list::LevelOfUse, DefaultLevelOfUse);
    }
    updateOtherGrids(list, added);
    arrangeListPages();
} catch (...) {
    ReportError(9999, list.UpdateSource, "");
}

void frmBrenica::updateOtherGrids(const ParameterList& list, int added) try {
    if (global_.*list.Total < 1) return;
    const int oldRows = list.Entry->Rows();
    UpdateFlexGrid(*list.Entry, added, list.EntryNumbered);
    growWideTable(list, oldRows);
    if (list.LongMember != ParameterList::NoMember) growLongTable(list, added, oldRows);
    if (list.Kind == ListKind::LandUses) growThreatTable(added, oldRows);
} catch (...) {
    ReportError(9999, list.UpdateOtherSource, "");
}

void frmBrenica::growWideTable(const ParameterList& list, int oldRows) {
    ui::Grid& grid = flxSummary(list.WideMember);
    const int total = global_.*list.Total;
    const int oldCols = grid.Cols();
    grid.Cols(ui::addLong(total, list.WideOffset + 1));
    if (!list.WideNumbered) return;
    for (int i = 1; i <= total; ++i) grid.TextMatrix(0, i + list.WideOffset, ui::toText(i));
    if (global_.TotalSpecies < 1) return;
    // A calculation's totals may stand there; columns that are new are blank.
    for (int col = oldRows + list.WideOffset; col < std::min(oldCols, grid.Cols()); ++col)
        grid.FillColumn(col, 1, 1, grid.Rows() - 1, "");
}

/// Each species' block grows at its end. A species without units has one row already, the first of its block.
void frmBrenica::growLongTable(const ParameterList& list, int added, int oldRows) {
    ui::Grid& grid = flxSummary(list.LongMember);
    if (global_.TotalSpecies == 0) return UpdateFlexGrid(grid, added, list.EntryNumbered);
    const int first = oldRows == 1 ? 2 : oldRows;
    grid.ReserveRows(static_cast<long long>(global_.TotalSpecies) * (oldRows + added - first));
    for (int species = 1; species <= global_.TotalSpecies; ++species)
        grid.AddEmptyRows(blockRow(species, global_.*list.Total, first), oldRows + added - first);
}

/// The table by threat gets a block of species at its end for each new threat.
void frmBrenica::growThreatTable(int added, int oldRows) {
    ui::Grid& grid = flxSummary(summary::SpeciesByThreat);
    if (global_.TotalSpecies == 0) return UpdateFlexGrid(grid, added, false);
    const int first = oldRows == 1 ? 2 : oldRows;
    const int blocks = oldRows + added - first;
    if (blocks < 1) return;
    grid.ReserveRows(static_cast<long long>(global_.TotalSpecies) * blocks);
    for (int block = 0; block < blocks; ++block) {
        const int row = grid.Rows();
        grid.AddEmptyRows(row, global_.TotalSpecies);
        grid.CopyTexts(1, row, 1, global_.TotalSpecies);
    }
}

void frmBrenica::removeListRow(const ParameterList& list) try {
    const int row = list.RemoveIndex->Long();
    if (row < 1 || row > global_.*list.Total) return list.RemoveIndex->Text("0");
    removeFromList(list, RowNumbers(&row, 1));
} catch (...) {
    ReportError(9999, list.RemoveClickSource, "");
}

void frmBrenica::removeFromList(const ParameterList& list, RowNumbers rows) try {
    modFlexGridUtilities::RemoveGridEntry(*list.Grid, rows, global_.*list.Total);
    removeRows(*list.Entry, rows);
    shrinkWideTable(list, rows);
    if (list.LongMember != ParameterList::NoMember) removeFromLongTables(list, rows);
} catch (...) {
    ReportError(9999, list.RemoveSource, "");
}

/// Only the headings move up: the species' cells keep their columns and the last columns go. The next calculation of
/// use puts the levels of use right.
void frmBrenica::shrinkWideTable(const ParameterList& list, RowNumbers rows) {
    ui::Grid& grid = flxSummary(list.WideMember);
    const int total = global_.*list.Total;
    auto removed = rows.rbegin();
    int kept = rows.back();
    for (int i = kept; i <= total + static_cast<int>(rows.size()); ++i) {
        if (removed != rows.rend() && *removed == i) {
            ++removed;
        } else {
            grid.TextMatrix(0, list.WideOffset + kept++, grid.TextMatrix(0, list.WideOffset + i));
        }
    }
    grid.Cols(total + list.WideOffset + 1);
    if (list.HasLevelOfUse && rows.back() <= total) levelsShifted(list) = true;
    if (!list.WideNumbered) return;
    for (int i = 1; i <= total; ++i) grid.TextMatrix(0, i + list.WideOffset, ui::toText(i));
    if (total == 0) grid.Rows(global_.TotalSpecies + 1);
}

void frmBrenica::removeFromLongTables(const ParameterList& list, RowNumbers rows) {
    const bool threats = list.Kind == ListKind::LandUses;
    if (global_.TotalSpecies == 0) {
        removeRows(flxSummary(list.LongMember), rows);
        if (threats) removeRows(flxSummary(summary::SpeciesByThreat), rows);
    } else if (global_.*list.Total == 0) {
        clearLongTables(list);
    } else {
        removeFromBlocks(list, rows);
        if (threats) removeThreatBlocks(rows);
    }
}

/// The last entry goes: each species keeps one row.
void frmBrenica::clearLongTables(const ParameterList& list) {
    ui::Grid& grid = flxSummary(list.LongMember);
    for (int species = 1; species <= global_.TotalSpecies; ++species) {
        for (int col = 1; col <= grid.Cols() - 1; ++col) grid.TextMatrix(species, col, "");
        if (list.Kind != ListKind::LandUses) continue;
        for (const int col : {0, 2, 3, 4}) flxSummary(summary::SpeciesByThreat).TextMatrix(species, col, "");
    }
}

/// Rows of each species' block go; the block's first row keeps the species' name.
void frmBrenica::removeFromBlocks(const ParameterList& list, RowNumbers rows) {
    ui::Grid& grid = flxSummary(list.LongMember);
    const int gonePerSpecies = static_cast<int>(rows.size());
    const int oldTotal = global_.*list.Total + gonePerSpecies;
    for (int species = 1; species <= global_.TotalSpecies; ++species) {
        const int gone = (species - 1) * gonePerSpecies;
        for (const int row : rows) {
            const int removed = blockRow(species, oldTotal, row) - gone;
            if (row == 1 && removed + 1 <= grid.Rows() - 1)
                grid.TextMatrix(removed + 1, 0, grid.TextMatrix(removed, 0));
            grid.RemoveItem(removed);
        }
    }
}

void frmBrenica::removeThreatBlocks(RowNumbers rows) {
    ui::Grid& grid = flxSummary(summary::SpeciesByThreat);
    for (const int row : rows) {
        const int first = blockRow(row, global_.TotalSpecies, 1);
        for (int species = 1; species <= global_.TotalSpecies; ++species) grid.RemoveItem(first);
    }
}

/// Swaps the texts of the current row with its neighbour's, above for index 0 and below for 1. Only the texts of the
/// list change place; what is held per species stays in its row.
void frmBrenica::moveListRow(ui::Grid& grid, int index, int lastCol, const char* source) try {
    const int row = grid.Row();
    if (row < 1 || grid.Col() < 1 || grid.Col() > lastCol) return;
    if (index == 0 && row < 2) return;
    if (index == 1 && row >= grid.Rows() - 1) return;
    const int neighbour = index == 0 ? row - 1 : row + 1;
    std::vector<std::string> kept;
    for (int col = 1; col <= lastCol; ++col) kept.emplace_back(grid.TextMatrix(row, col));
    for (int col = 1; col <= lastCol; ++col) grid.TextMatrix(row, col, grid.TextMatrix(neighbour, col));
    for (int col = 1; col <= lastCol; ++col)
        grid.TextMatrix(neighbour, col, kept[static_cast<std::size_t>(col) - 1]);
    grid.Row(neighbour);
} catch (...) {
    ReportError(9999, source, "");
}
