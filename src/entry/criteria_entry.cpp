// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "entry/modFlexGridUtilities.h"
#include "entry/modGeneralUtilities.h"
#include "project/constant_tables.h"
#include "project/frmBrenica.h"

/// The Selection Criteria page shows one species; its grids and boxes are views on the summary grids, to which each
/// edit is written the moment it is made.

void frmBrenica::cbxSpeciesName_Click() try {
    clearChangeFlags();
    RefreshSpeciesCriteriaVals();
} catch (...) {
    ReportError(9999, "Brenica.cbxSpeciesName_Click", "");
}

void frmBrenica::RefreshSpeciesCriteriaVals() try {
    CurrentSpeciesIndex = modGeneralUtilities::GetComboIndex(cbxSpeciesName) + 1;
    const int species = CurrentSpeciesIndex;
    if (species == 0) return blankCriteriaPage();
    using namespace modFlexGridUtilities;
    GetHeteroVals(species, global_.TotalHabitatTypes, flxSummary(summary::HabitatsBySpecies),
                  flxHabitatHetero);
    GetHeteroVals(species, global_.TotalJurisUnits, flxSummary(summary::JurisUnitsBySpecies),
                  flxJurisUnitHetero);
    const std::string hint = CalculatePropOccup(species);
    GetAreaVals(
        species, flxSummary(summary::Area),
        {cbxDispersalYN, cbxConnectivity, HomeRangeType, cbxDefaultBinsHR, cbxUserDefBinsHR, txtContinuousHR,
         txtPropOccupied, lblPropOccupHint, global_.UserBinLabels, global_.TotalBins},
        hint);
    GetVulnVals(species, global_.TotalLandUses, flxSummary(summary::ThreatsBySpecies),
                flxLandUsesVulnerability);
    showConservationStatus();
    GetFuncSEVals(species, global_.TotalFunctions, flxSummary(summary::Functionality), flxFunctionality);
    GetFuncSEVals(species, TotalSocioEcon, flxSummary(summary::SocioEcon), flxSocioEcon);
    showDataQuality();
} catch (...) {
    ReportError(9999, "Brenica.RefreshSpeciesCriteriaVals", "");
}

void frmBrenica::blankCriteriaPage() {
    const auto blank = [](ui::Grid& grid, int rows, int lastCol) {
        for (int row = 1; row <= rows; ++row) {
            for (int col = 1; col <= lastCol; ++col) grid.TextMatrix(row, col, "");
        }
    };
    blank(flxHabitatHetero, global_.TotalHabitatTypes, 1);
    blank(flxJurisUnitHetero, global_.TotalJurisUnits, 1);
    cbxDispersalYN.ListIndex(0);
    cbxConnectivity.ListIndex(0);
    cbxDefaultBinsHR.ListIndex(-1);
    cbxUserDefBinsHR.ListIndex(-1);
    txtContinuousHR.Text("0");
    txtPropOccupied.Text("0");
    lblPropOccupHint.Caption("HINT:");
    txtCCS.Text("1");
    blank(flxLandUsesVulnerability, global_.TotalLandUses, 3);
    blank(flxFunctionality, global_.TotalFunctions, 1);
    blank(flxSocioEcon, TotalSocioEcon, 1);
    cbxDataQuality.ListIndex(-1);
}

/// A blank status shows as "1" without reaching the store.
void frmBrenica::showConservationStatus() {
    const ui::Grid& grid = flxSummary(summary::Vulnerability);
    const std::string status(grid.TextMatrix(CurrentSpeciesIndex, vulnerability::ConservationStatus));
    if (!status.empty()) return txtCCS.Text(status);
    RefreshingCriteria = true;
    txtCCS.Text("1");
    RefreshingCriteria = false;
}

/// A level of use stands in the long table of its kind and in the cross table.
void frmBrenica::levelOfUse_AfterEdit(ListKind kind, int row, int col) try {
    HabitatUseChanged = true;
    if (row <= 0 || col == 0 || CurrentSpeciesIndex == 0) return;
    ProjectChanged = true;
    if (col != 1) return;
    const ParameterList& list = parameterList(kind);
    const std::string level(list.Entry->TextMatrix(row, col));
    flxSummary(list.LongMember)
        .TextMatrix(blockRow(CurrentSpeciesIndex, global_.*list.Total, row), use::Level, level);
    flxSummary(list.WideMember).TextMatrix(CurrentSpeciesIndex, row, level);
} catch (...) {
    ReportError(9999,
                kind == ListKind::HabitatTypes ? "Brenica.flxHabitatHetero_AfterEdit"
                                               : "Brenica.flxJurisUnitHetero_AfterEdit",
                "");
}

void frmBrenica::flxLandUsesVulnerability_CellChanged(int row, int col) try {
    VulnerabilityChanged = true;
    if (row <= 0 || col == 0 || CurrentSpeciesIndex == 0) return;
    const std::string value(flxLandUsesVulnerability.TextMatrix(row, col));
    flxSummary(summary::ThreatsBySpecies)
        .TextMatrix(blockRow(CurrentSpeciesIndex, global_.TotalLandUses, row), threat::Severity + col - 1,
                    value);
    flxSummary(summary::SpeciesByThreat)
        .TextMatrix(blockRow(row, global_.TotalSpecies, CurrentSpeciesIndex), col + 1, value);
} catch (...) {
    ReportError(9999, "Brenica.flxLandUsesVulnerability_CellChanged", "");
}

/// A severity of 0 completes the row with zeros.
void frmBrenica::flxLandUsesVulnerability_BeforeRowColChange(int oldRow, int oldCol) try {
    ui::Grid& grid = flxLandUsesVulnerability;
    if (grid.TextMatrix(oldRow, oldCol).empty() || oldRow <= 0 || oldCol != 1) return;
    if (grid.Long(oldRow, oldCol) != 0) return;
    for (const int col : {2, 3}) {
        if (grid.TextMatrix(oldRow, col).empty()) grid.TextMatrix(oldRow, col, "0");
    }
} catch (...) {
    ReportError(9999, "Brenica.flxLandUsesVulnerability_BeforeRowColChange", "");
}

void frmBrenica::flxFunctionality_CellChanged(int row, int col) try {
    FunctionalityChanged = true;
    if (row <= 0 || col == 0 || CurrentSpeciesIndex == 0) return;
    ProjectChanged = true;
    flxSummary(summary::Functionality)
        .TextMatrix(CurrentSpeciesIndex, row, flxFunctionality.TextMatrix(row, col));
} catch (...) {
    ReportError(9999, "Brenica.flxFunctionality_CellChanged", "");
}

void frmBrenica::flxSocioEcon_CellChanged(int row, int col) try {
    SocioEconChanged = true;
    if (row <= 0 || CurrentSpeciesIndex == 0) return;
    ProjectChanged = true;
    flxSummary(summary::SocioEcon).TextMatrix(CurrentSpeciesIndex, row, flxSocioEcon.TextMatrix(row, col));
} catch (...) {
    ReportError(9999, "Brenica.flxSocioEcon_CellChanged", "");
}

/// The first item, "N/A", is stored as a blank.
void frmBrenica::storeYesNo(const ui::ComboBox& box, int column, const char* source) try {
    AreaDataChanged = true;
    if (CurrentSpeciesIndex == 0) return;
    flxSummary(summary::Area)
        .TextMatrix(CurrentSpeciesIndex, column, box.ListIndex() >= 1 ? box.Text() : std::string());
} catch (...) {
    ReportError(9999, source, "");
}

void frmBrenica::storePropOccupied() {
    AreaDataChanged = true;
    if (CurrentSpeciesIndex == 0) return;
    flxSummary(summary::Area).TextMatrix(CurrentSpeciesIndex, area::Occupied, txtPropOccupied.Text());
}

void frmBrenica::storeConservationStatus() {
    VulnerabilityChanged = true;
    if (CurrentSpeciesIndex == 0 || RefreshingCriteria) return;
    flxSummary(summary::Vulnerability)
        .TextMatrix(CurrentSpeciesIndex, vulnerability::ConservationStatus, txtCCS.Text());
}

/// The level is held per species and per criterion, the one on view.
void frmBrenica::cbxDataQuality_Change() try {
    if (noSpeciesOnView() || cbxDataQuality.ListIndex() < 0) return;
    if (CurrentCriteriaTab < 1 || CurrentCriteriaTab > TotalCriteria) return;
    flxSummary(summary::DataQuality)
        .TextMatrix(CurrentSpeciesIndex, CurrentCriteriaTab, ui::toText(cbxDataQuality.ListIndex() + 1));
} catch (...) {
    ReportError(9999, "Brenica.cbxDataQuality_Change", "");
}
