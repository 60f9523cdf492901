// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "entry/modValidationUtilities.h"
#include "project/frmBrenica.h"

frmBrenica::frmBrenica(ui::Platform& platform, ui::Files& files, modGlobal& global)
    : frmBrenicaControls(platform),
      files_(files),
      global_(global),
      parameterLists_(makeParameterLists()),
      numberBoxes_(makeNumberBoxes()),
      exportTables_(makeExportTables()) {
    wireEvents();
    Form_Load();
}

void frmBrenica::wireEvents() {
    tabBrenica.Click = [this] { tabBrenica_Click(); };
    wireMenu();
    wireLists();
    wireCriteria();
    wireTables();
    wireNumberBoxes();
}

void frmBrenica::wireMenu() {
    mnuNewProject.Click = [this] { MenuSelectionProject("New"); };
    mnuOpenProject.Click = [this] { MenuSelectionProject("Open"); };
    mnuSaveProject.Click = [this] { MenuSelectionProject("Save"); };
    mnuExit.Click = [this] { MenuSelectionProject("Exit"); };
    mnuExportData.Click = [this] { MenuSelectionDataGrid("Export"); };
}

void frmBrenica::wireLists() {
    cmdUpdateSpecies.Click = [this] { cmdUpdateSpecies_Click(); };
    cmdRemoveSpecies.Click = [this] { cmdRemoveSpecies_Click(); };
    flxCandidateSpecies.CellChanged = [this](int row, int col) { flxCandidateSpecies_CellChanged(row, col); };
    for (int i = 0; i < cmdSpeciesMove.Count(); ++i)
        cmdSpeciesMove(i).Click = [this, i] { cmdSpeciesMove_Click(i); };

    for (int i = 0; i < optLandChar.Count(); ++i) optLandChar(i).Click = [this, i] { optLandChar_Click(i); };
    for (const ParameterList& list : parameterLists_) {
        list.Update->Click = [this, &list] { updateList(list); };
        list.Remove->Click = [this, &list] { removeListRow(list); };
        for (int i = 0; i < list.Move->Count(); ++i) {
            (*list.Move)(i).Click = [this, &list, i] {
                moveListRow(*list.Grid, i, list.LastCol, list.MoveSource);
            };
        }
    }
    flxHabitatTypes.CellChanged = [this](int row, int col) { flxHabitatTypes_CellChanged(row, col); };
    flxJurisUnits.CellChanged = [this](int row, int col) { flxJurisUnits_CellChanged(row, col); };
    flxLandUses.CellChanged = [this](int row, int col) { flxLandUses_CellChanged(row, col); };
    flxFunctions.CellChanged = [this](int row, int col) { flxFunctions_CellChanged(row, col); };
    flxLandUses.BeforeRowColChange = [this](int row, int col, int, int, bool&) {
        flxLandUses_BeforeRowColChange(row, col);
    };

    for (int i = 0; i < optHomeRangeType.Count(); ++i) {
        optHomeRangeType(i).Click = [this, i] { optHomeRangeType_Click(i); };
    }
    cmdUpdateBins.Click = [this] { cmdUpdateBins_Click(); };
    cmdRemoveBin.Click = [this] { cmdRemoveBin_Click(); };
    flxBins.CellChanged = [this](int, int) { flxBins_CellChanged(); };
}

void frmBrenica::wireCriteria() {
    tabCriteria.Click = [this] { tabCriteria_Click(); };
    cbxSpeciesName.Click = [this] { cbxSpeciesName_Click(); };
    flxHabitatHetero.AfterEdit = [this](int row, int col) {
        levelOfUse_AfterEdit(ListKind::HabitatTypes, row, col);
    };
    flxJurisUnitHetero.AfterEdit = [this](int row, int col) {
        levelOfUse_AfterEdit(ListKind::JurisUnits, row, col);
    };
    flxLandUsesVulnerability.CellChanged = [this](int row, int col) {
        flxLandUsesVulnerability_CellChanged(row, col);
    };
    flxLandUsesVulnerability.BeforeRowColChange = [this](int row, int col, int, int, bool&) {
        flxLandUsesVulnerability_BeforeRowColChange(row, col);
    };
    flxFunctionality.CellChanged = [this](int row, int col) { flxFunctionality_CellChanged(row, col); };
    flxSocioEcon.CellChanged = [this](int row, int col) { flxSocioEcon_CellChanged(row, col); };
    cbxDispersalYN.Click = [this] {
        storeYesNo(cbxDispersalYN, area::Dispersal, "Brenica.cbxDispersalYN_Click");
    };
    cbxConnectivity.Click = [this] {
        storeYesNo(cbxConnectivity, area::Connectivity, "Brenica.cbxConnectivity_Click");
    };
    cbxDefaultBinsHR.Click = [this] {
        storeBinHomeRange(cbxDefaultBinsHR, "Brenica.cbxDefaultBinsHR_Click");
    };
    cbxUserDefBinsHR.Click = [this] {
        storeBinHomeRange(cbxUserDefBinsHR, "Brenica.cbxUserDefBinsHR_Click");
    };
    cbxDataQuality.Click = [this] { cbxDataQuality_Change(); };
}

void frmBrenica::wireTables() {
    for (int i = 0; i < flxSummary.Count(); ++i) {
        flxSummary(i).CellChanged = [this, i](int row, int col) { flxSummary_CellChanged(i, row, col); };
    }
    tabGraphSummary.Click = [this] { tabGraphSummary_Click(); };
    cmdComplement.Click = [this] { cmdComplement_Click(); };
    cmdExportResults.Click = [this] { cmdExportResults_Click(); };
    for (int i = 0; i < optCompResults.Count(); ++i)
        optCompResults(i).Click = [this, i] { optCompResults_Click(i); };
}

void frmBrenica::wireNumberBoxes() {
    for (const NumberBox& box : numberBoxes_) {
        box.Box->Change = [this, &box] { numberBox_Change(box); };
        box.Box->KeyPress = [this, &box](int& key) { numberBox_KeyPress(box, key); };
        box.Box->GotFocus = [this, &box] { numberBox_GotFocus(box); };
    }
}
