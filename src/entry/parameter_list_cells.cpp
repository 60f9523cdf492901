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
    const std::string name(list.Grid->TextMatrix(row, col));
    list.Entry->TextMatrix(row, 0, name);
    const std::string_view shortName = ui::firstCharacters(name, ShortNameLength);
    ui::Grid& levels = flxSummary(list.LongMember);
    if (global_.TotalSpecies < 1) return levels.TextMatrix(row, use::UnitName, shortName);
    const int units = global_.*list.Total;
    levels.FillColumn(use::UnitName, blockRow(1, units, row), units, global_.TotalSpecies, shortName);
}

/// Name, urgency and probability stand in every species' block of the threat table, in the columns of the list.
void frmBrenica::flxLandUses_CellChanged(int row, int col) try {
    if (row <= 0 || col == 0) return;
    ProjectChanged = true;
    const std::string value(flxLandUses.TextMatrix(row, col));
    const int species = global_.TotalSpecies;
    if (col == list::Name) {
        flxLandUsesVulnerability.TextMatrix(row, 0, value);
        flxSummary(summary::SpeciesByThreat)
            .TextMatrix(species == 0 ? row : blockRow(row, species, 1), 0, value);
    }
    if (col > list::Probability) return;
    ui::Grid& threats = flxSummary(summary::ThreatsBySpecies);
    if (species == 0) return threats.TextMatrix(row, col, value);
    threats.FillColumn(col, blockRow(1, global_.TotalLandUses, row), global_.TotalLandUses, species, value);
} catch (...) {
    ReportError(9999, "Brenica.flxLandUses_CellChanged", "");
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
