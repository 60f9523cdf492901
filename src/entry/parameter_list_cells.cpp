// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "project/constant_tables.h"
#include "project/frmBrenica.h"
#include "ui/text.h"

namespace {

constexpr int MostUrgent = 3;

}  // namespace

void frmBrenica::flxHabitatTypes_CellChanged(int row, int col) try {
    unitName_CellChanged(parameterList(ListKind::HabitatTypes), row, col);
} catch (...) {
    ReportError(9999, "Brenica.flxHabitatTypes_CellChanged", "");
}

void frmBrenica::flxJurisUnits_CellChanged(int row, int col) try {
    unitName_CellChanged(parameterList(ListKind::JurisUnits), row, col);
} catch (...) {
    ReportError(9999, "Brenica.flxJurisUnits_CellChanged", "");
}

/// The name of a habitat or zone goes to the entry grid, and shortened to every species' block.
void frmBrenica::unitName_CellChanged(const ParameterList& list, int row, int col) {
    if (row < 1 || col == 0) return;
    ProjectChanged = true;
    if (col != list::Name) return;
    writeUnitName(list, row);
    fillBlocks(list, use::UnitName, row, 1);
}

void frmBrenica::writeUnitName(const ParameterList& list, int row) {
    const std::string name(list.Grid->TextMatrix(row, list::Name));
    list.Entry->TextMatrix(row, 0, name);
    flxSummary(list.LongMember).TextMatrix(row, use::UnitName, ui::firstCharacters(name, ShortNameLength));
}

/// Name, urgency and probability stand in every species' block of the threat table, in the columns of the list.
void frmBrenica::flxLandUses_CellChanged(int row, int col) try {
    if (row <= 0 || col == 0) return;
    ProjectChanged = true;
    writeThreat(row, col);
    if (col <= list::Probability) fillBlocks(parameterList(ListKind::LandUses), col, row, 1);
} catch (...) {
    ReportError(9999, "Brenica.flxLandUses_CellChanged", "");
}

void frmBrenica::writeThreat(int row, int col) {
    const std::string value(flxLandUses.TextMatrix(row, col));
    const int species = global_.TotalSpecies;
    if (col == list::Name) {
        flxLandUsesVulnerability.TextMatrix(row, 0, value);
        flxSummary(summary::SpeciesByThreat)
            .TextMatrix(species == 0 ? row : blockRow(row, species, 1), 0, value);
    }
    if (col <= list::Probability) flxSummary(summary::ThreatsBySpecies).TextMatrix(row, col, value);
}

/// The cells of a long table's first block, from `row` on, stand in the blocks of the other species as well.
void frmBrenica::fillBlocks(const ParameterList& list, int col, int row, int count) {
    ui::Grid& table = flxSummary(list.LongMember);
    for (int species = 2; species <= global_.TotalSpecies; ++species)
        table.CopyTexts(col, blockRow(species, global_.*list.Total, row), row, count);
}

/// Many cells of a list at once go from block to block, where one by one each would go through the whole table.
void frmBrenica::listCells_Changed(const ParameterList& list, const ui::WrittenCells& cells) {
    if (!reachWholeBlocks(list, cells)) {
        return cells.forEach([&](int row, int col) { list.Grid->CellChanged(row, col); });
    }
    const bool threats = list.Kind == ListKind::LandUses;
    ProjectChanged = true;
    cells.forEach([&](int row, int col) { threats ? writeThreat(row, col) : writeUnitName(list, row); });
    fillBlocks(list, threats ? cells.Col : use::UnitName, cells.Row, cells.Count);
}

/// Whether these are cells below each other that every species' block shows, and no table lacks a row.
bool frmBrenica::reachWholeBlocks(const ParameterList& list, const ui::WrittenCells& cells) {
    const bool threats = list.Kind == ListKind::LandUses;
    const int lastCol = threats ? list::Probability : list::Name;
    if (cells.RowStep != 1 || cells.ColStep != 0 || cells.Col < list::Name || cells.Col > lastCol)
        return false;
    const int units = global_.*list.Total;
    const int lastRow = cells.Row + cells.Count - 1;
    if (global_.TotalSpecies < 1 || cells.Row < 1 || lastRow > units || lastRow >= list.Entry->Rows())
        return false;
    const int rows = blockRow(global_.TotalSpecies, units, units) + 1;
    return flxSummary(list.LongMember).Rows() == rows &&
           (!threats || flxSummary(summary::SpeciesByThreat).Rows() == rows);
}

void frmBrenica::flxFunctions_CellChanged(int row, int col) try {
    if (row < 1 || col != list::Name) return;
    ProjectChanged = true;
    const std::string name(flxFunctions.TextMatrix(row, col));
    flxFunctionality.TextMatrix(row, 0, name);
    flxSummary(summary::Functionality).TextMatrix(0, row, name);
} catch (...) {
    ReportError(9999, "Brenica.flxFunctions_CellChanged", "");
}

/// What happens already has a probability of 1. The current cell moves on in either case; an imported text that is no
/// number has no rule to keep.
void frmBrenica::flxLandUses_BeforeRowColChange(int oldRow, int oldCol) try {
    if (oldRow <= 0 || (oldCol != list::Urgency && oldCol != list::Probability)) return;
    if (flxLandUses.TextMatrix(oldRow, list::Urgency).empty()) return;
    if (flxLandUses.TextMatrix(oldRow, list::Probability).empty()) return;
    int urgency = 0;
    int probability = 0;
    const bool numbers = succeeds([&] {
        urgency = flxLandUses.Long(oldRow, list::Urgency);
        probability = flxLandUses.Long(oldRow, list::Probability);
    });
    if (!numbers || urgency != MostUrgent || probability == 1) return;
    platform().showMessage("With a value of 3 for Urgency the Probability of Occurrence must be 1.",
                           "Invalid value", ui::MessageIcon::Exclamation);
    flxLandUses.TextMatrix(oldRow, list::Probability, "1");
} catch (...) {
    ReportError(9999, "Brenica.flxLandUses_BeforeRowColChange", "");
}
