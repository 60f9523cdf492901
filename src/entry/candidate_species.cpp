// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>

#include "entry/modErrorHandling.h"
#include "entry/modFlexGridUtilities.h"
#include "project/constant_tables.h"
#include "project/frmBrenica.h"
#include "ui/text.h"

using modFlexGridUtilities::removeRows;
using modFlexGridUtilities::UpdateFlexGrid;

namespace {

constexpr std::array RowPerSpecies = {summary::HabitatUse,    summary::JurisUnitUse,  summary::Area,
                                      summary::Vulnerability, summary::Functionality, summary::SocioEcon};
constexpr std::array UseColumns = {0, use::Level};
constexpr std::array ThreatColumns = {
    0, threat::Urgency, threat::Probability, threat::Severity, threat::Recovery, threat::Proportion};

}  // namespace

void frmBrenica::cmdUpdateSpecies_Click() try {
    const int added = txtTotalSpecies.Long();
    const int oldTotal = global_.TotalSpecies;
    UpdateFlexGrid(flxCandidateSpecies, added, global_.TotalSpecies, true);
    UpdateOtherSpeciesFlexGrids(added, oldTotal);
    arrangeListPages();  // the numbers may have become wider, and a scroll bar takes room
} catch (...) {
    ReportError(9999, "Brenica.cmdUpdateSpecies_Click", "");
}

void frmBrenica::UpdateOtherSpeciesFlexGrids(int added, int oldTotal) try {
    if (global_.TotalSpecies < 1) return;
    growSpeciesRows(summary::HabitatUse, oldTotal);
    growSpeciesRows(summary::JurisUnitUse, oldTotal);
    growSpeciesBlocks(summary::HabitatsBySpecies, global_.TotalHabitatTypes, added, oldTotal, use::UnitName);
    growSpeciesBlocks(summary::JurisUnitsBySpecies, global_.TotalJurisUnits, added, oldTotal, use::UnitName);
    if (oldTotal == 0) clearZoneNumbers();
    flxSummary(summary::Area).Rows(global_.TotalSpecies + 1);
    growSpeciesRows(summary::Vulnerability, oldTotal);
    growSpeciesBlocks(summary::ThreatsBySpecies, global_.TotalLandUses, added, oldTotal, threat::Probability);
    growThreatBlocks(added, oldTotal);
    for (const int member : {summary::Functionality, summary::SocioEcon, summary::DataQuality}) {
        flxSummary(member).Rows(global_.TotalSpecies + 1);
    }
    for (int i = 0; i < flxScores.Count(); ++i) {
        UpdateFlexGrid(flxScores(i), added, false);
        UpdateFlexGrid(flxScoresSort(i), added, false);
    }
} catch (...) {
    ReportError(9999, "Brenica.UpdateOtherSpeciesFlexGrids", "");
}

/// A wide table: the rows of a calculation's totals go, and the new species' cells start blank.
void frmBrenica::growSpeciesRows(int member, int oldTotal) {
    ui::Grid& grid = flxSummary(member);
    grid.Rows(global_.TotalSpecies + 1);
    for (int row = oldTotal + 1; row <= grid.Rows() - 1; ++row) {
        for (int col = 1; col <= grid.Cols() - 1; ++col) grid.TextMatrix(row, col, "");
    }
}

/// A long table: a block of units for each new species, with the unit columns of the first species' block. Where there
/// was no species the lists have made the first block already.
void frmBrenica::growSpeciesBlocks(int member, int units, int added, int oldTotal, int lastCopiedCol) {
    ui::Grid& grid = flxSummary(member);
    if (units == 0) return UpdateFlexGrid(grid, added, false);
    for (int species = oldTotal == 0 ? 2 : 1; species <= added; ++species) {
        for (int unit = 1; unit <= units; ++unit) {
            grid.AddItem("");
            const int row = grid.Rows() - 1;
            for (int col = 1; col <= lastCopiedCol; ++col)
                grid.TextMatrix(row, col, grid.TextMatrix(unit, col));
        }
    }
}

/// Zones that were added before there was a species stand numbered in the column of the species' names.
void frmBrenica::clearZoneNumbers() {
    for (int zone = 2; zone <= global_.TotalJurisUnits; ++zone)
        flxSummary(summary::JurisUnitsBySpecies).TextMatrix(zone, 0, "");
}

/// The table by threat has a block of species a threat, which grows inside.
void frmBrenica::growThreatBlocks(int added, int oldTotal) {
    ui::Grid& grid = flxSummary(summary::SpeciesByThreat);
    if (global_.TotalLandUses == 0) return UpdateFlexGrid(grid, added, false);
    const int first = oldTotal == 0 ? 2 : oldTotal + 1;
    for (int threatNumber = 1; threatNumber <= global_.TotalLandUses; ++threatNumber) {
        for (int species = first; species <= oldTotal + added; ++species) {
            grid.AddItem("", blockRow(threatNumber, global_.TotalSpecies, species));
        }
    }
}

void frmBrenica::cmdRemoveSpecies_Click() try { RemoveSpecies(txtRemoveSpeciesIndex.Long()); } catch (...) {
    ReportError(9999, "Brenica.cmdRemoveSpecies_Click", "");
}

void frmBrenica::RemoveSpecies(int row) {
    if (row < 1 || row > global_.TotalSpecies) return txtRemoveSpeciesIndex.Text("0");
    RemoveSpecies(RowNumbers(&row, 1));
}

/// The data quality table is left alone: its rows keep their old positions.
void frmBrenica::RemoveSpecies(RowNumbers rows) try {
    const int oldTotal = global_.TotalSpecies;
    removeFromSelector(rows);
    modFlexGridUtilities::RemoveGridEntry(flxCandidateSpecies, rows, global_.TotalSpecies);
    for (auto* grids : {&flxScores, &flxScoresSort}) {
        for (ui::Grid& grid : *grids) removeRows(grid, rows);
    }
    removeFromRanks(rows);
    for (int i = 1; i <= global_.TotalSpecies; ++i) {
        flxScoresSort(0).TextMatrix(i, score::SortKey, ui::toText(i));
        flxScoresSort(1).TextMatrix(i, score::OriginalSortKey, ui::toText(i));
    }
    removeSpeciesBlocks(summary::HabitatsBySpecies, global_.TotalHabitatTypes, rows, UseColumns);
    removeSpeciesBlocks(summary::JurisUnitsBySpecies, global_.TotalJurisUnits, rows, UseColumns);
    removeSpeciesRows(rows);
    removeSpeciesBlocks(summary::ThreatsBySpecies, global_.TotalLandUses, rows, ThreatColumns);
    removeSpeciesFromThreats(rows, oldTotal);
} catch (...) {
    ReportError(9999, "Brenica.RemoveSpecies", "");
}

/// The selector is filled when the page is left: a species added since has no item yet.
void frmBrenica::removeFromSelector(RowNumbers rows) {
    if (flxCandidateSpecies.TextMatrix(1, list::Name).empty()) return;
    for (const int row : rows) {
        if (row <= cbxSpeciesName.ListCount()) cbxSpeciesName.RemoveItem(row - 1);
    }
}

/// The others keep their order, under the rows that they have now.
void frmBrenica::removeFromRanks(RowNumbers rows) {
    const std::vector<int> removed(rows.rbegin(), rows.rend());
    const auto firstFrom = [&](int row) { return std::lower_bound(removed.begin(), removed.end(), row); };
    std::erase_if(global_.SpeciesRanks,
                  [&](int row) { return std::binary_search(removed.begin(), removed.end(), row); });
    for (int& row : global_.SpeciesRanks) row -= static_cast<int>(firstFrom(row) - removed.begin());
}

/// The last species' block stays with the names of its units.
void frmBrenica::removeSpeciesBlocks(int member, int units, RowNumbers rows,
                                     std::span<const int> clearedColumns) {
    ui::Grid& grid = flxSummary(member);
    if (units == 0) return removeRows(grid, rows);
    for (const int row : rows) {
        const int first = blockRow(row, units, 1);
        for (int unit = 1; unit <= units; ++unit) {
            if (global_.TotalSpecies > 0) {
                grid.RemoveItem(first);
            } else {
                for (const int col : clearedColumns) grid.TextMatrix(unit, col, "");
            }
        }
    }
}

void frmBrenica::removeSpeciesRows(RowNumbers rows) {
    for (const int member : RowPerSpecies) {
        if (global_.TotalSpecies > 0) {
            removeRows(flxSummary(member), rows);
        } else {
            flxSummary(member).Rows(1);
        }
    }
    if (global_.TotalSpecies > 0) return;
    threatFactorsLost_ = true;
    flxSummary(summary::HabitatUse).Cols(global_.TotalHabitatTypes + 1);
    flxSummary(summary::JurisUnitUse).Cols(global_.TotalJurisUnits + 1);
    flxSummary(summary::Vulnerability).Cols(global_.TotalLandUses + vulnerability::ThreatOffset + 1);
}

/// Rows of each threat's block go; the block's first row keeps the threat's name.
void frmBrenica::removeSpeciesFromThreats(RowNumbers rows, int oldTotal) {
    ui::Grid& grid = flxSummary(summary::SpeciesByThreat);
    if (global_.TotalLandUses == 0) return removeRows(grid, rows);
    for (int threatNumber = 1; threatNumber <= global_.TotalLandUses; ++threatNumber) {
        if (global_.TotalSpecies == 0) {
            for (int col = 1; col <= 4; ++col) grid.TextMatrix(threatNumber, col, "");
            continue;
        }
        const int gone = (threatNumber - 1) * static_cast<int>(rows.size());
        for (const int row : rows) {
            const int removed = blockRow(threatNumber, oldTotal, row) - gone;
            if (row == 1) grid.TextMatrix(removed + 1, 0, grid.TextMatrix(removed, 0));
            grid.RemoveItem(removed);
        }
    }
}

void frmBrenica::cmdSpeciesMove_Click(int index) {
    moveListRow(flxCandidateSpecies, index, list::ScientificName, "Brenica.cmdSpeciesMove_Click");
}

void frmBrenica::flxCandidateSpecies_CellChanged(int row, int col) try {
    if (row <= 0 || col == 0) return;
    ProjectChanged = true;
    if (col != list::Name) return;
    const std::string name(flxCandidateSpecies.TextMatrix(row, col));
    const std::string shortName(ui::firstCharacters(name, ShortNameLength));
    for (int i = 0; i < flxScores.Count(); ++i) {
        flxScores(i).TextMatrix(row, 0, name);
        flxScoresSort(i).TextMatrix(row, 0, name);
    }
    for (int member = 0; member < summary::Count; ++member) writeSpeciesName(member, row, name, shortName);
} catch (...) {
    ReportError(9999, "Brenica.flxCandidateSpecies_CellChanged", "");
}

void frmBrenica::writeSpeciesName(int member, int row, const std::string& name,
                                  const std::string& shortName) {
    ui::Grid& grid = flxSummary(member);
    const auto firstOfBlock = [&](int units) { return units == 0 ? row : blockRow(row, units, 1); };
    switch (member) {
        case summary::HabitatUse:
        case summary::JurisUnitUse: return grid.TextMatrix(row, 0, shortName);
        case summary::HabitatsBySpecies:
            return grid.TextMatrix(firstOfBlock(global_.TotalHabitatTypes), 0, shortName);
        case summary::JurisUnitsBySpecies:
            return grid.TextMatrix(firstOfBlock(global_.TotalJurisUnits), 0, shortName);
        case summary::ThreatsBySpecies: return grid.TextMatrix(firstOfBlock(global_.TotalLandUses), 0, name);
        case summary::SpeciesByThreat:
            if (global_.TotalLandUses == 0) return grid.TextMatrix(row, 1, name);
            return grid.FillColumn(1, blockRow(1, global_.TotalSpecies, row), global_.TotalSpecies,
                                   global_.TotalLandUses, name);
        default: return grid.TextMatrix(row, 0, name);
    }
}

/// The choice sticks to the end of the list when it was there, so that newly added species are shown at once.
void frmBrenica::UpdateSpeciesList() try {
    const bool hadItems = cbxSpeciesName.ListCount() > 0;
    const int chosen = hadItems ? cbxSpeciesName.ListIndex() : 0;
    const bool atEnd = hadItems && chosen == cbxSpeciesName.ListCount() - 1;
    cbxSpeciesName.Clear();
    for (int row = 1; row <= global_.TotalSpecies; ++row) {
        cbxSpeciesName.AddItem(std::string(flxCandidateSpecies.TextMatrix(row, list::Name)));
    }
    const int count = cbxSpeciesName.ListCount();
    if (count == 0) return;
    if (chosen >= count || chosen == -1) {
        cbxSpeciesName.ListIndex(0);
    } else {
        cbxSpeciesName.ListIndex(atEnd ? count - 1 : chosen);
    }
} catch (...) {
    ReportError(9999, "Brenica.UpdateSpeciesList", "");
}
