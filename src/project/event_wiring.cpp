// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "project/frmBrenica.h"

frmBrenica::frmBrenica(ui::Platform& platform, ui::Files& files, modGlobal& global)
    : frmBrenicaControls(platform),
      files_(files),
      global_(global),
      parameterLists_(makeParameterLists()),
      numberBoxes_(makeNumberBoxes()),
      cellEditings_(makeCellEditings()),
      headingTips_(makeHeadingTips()),
      exportTables_(makeExportTables()) {
    wireEvents();
    Form_Load();
}

void frmBrenica::wireEvents() {
    Resize = [this] { Form_Resize(); };
    tabBrenica.Click = [this] { tabBrenica_Click(); };
    wireMenu();
    wireLists();
    wireCriteria();
    wireNumberBoxes();
    wireCellEditing();
    wireHeadingTips();
    wireSummaryTables();
    wireScores();
    wireResults();
    fitGridsWhenShown();
}

void frmBrenica::wireMenu() {
    const auto wire = [](ui::MenuItem& item, const char* source, auto action) {
        item.Click = [source, action] {
            try {
                action();
            } catch (...) {
                ReportError(9999, source, "");
            }
        };
    };
    wire(mnuNewProject, "Brenica.mnuNewProject_Click", [this] { MenuSelectionProject("New"); });
    wire(mnuOpenProject, "Brenica.mnuOpenProject_Click", [this] { MenuSelectionProject("Open"); });
    wire(mnuSaveProject, "Brenica.mnuSaveProject_Click", [this] { MenuSelectionProject("Save"); });
    wire(mnuExit, "Brenica.mnuExit_Click", [this] { MenuSelectionProject("Exit"); });
    wire(mnuImportData, "Brenica.mnuImportData_Click", [this] { MenuSelectionDataGrid("Import"); });
    wire(mnuExportData, "Brenica.mnuExportData_Click", [this] { MenuSelectionDataGrid("Export"); });
    wire(mnuSaveGraph, "Brenica.mnuSaveGraph_Click", [this] { MenuSelectionGraph("Save"); });
    wire(mnuCopyGraph, "Brenica.mnuCopyGraph_Click", [this] { MenuSelectionGraph("Copy"); });
    wire(mnuPrintGraph, "Brenica.mnuPrintGraph_Click", [this] { MenuSelectionGraph("Print"); });
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
    for (const ListKind kind : {ListKind::HabitatTypes, ListKind::JurisUnits, ListKind::LandUses}) {
        const ParameterList& list = parameterList(kind);
        list.Grid->CellsChanged = [this, &list](const ui::WrittenCells& cells) {
            listCells_Changed(list, cells);
        };
    }
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

void frmBrenica::wireSummaryTables() {
    tabCriteriaSummary.Click = [this] { tabCriteriaSummary_Click(); };
    chkAllowSummaryEdit.Click = [this] { chkAllowSummaryEdit_Click(); };
    for (int i = 0; i < flxSummary.Count(); ++i) {
        ui::Grid& grid = flxSummary(i);
        grid.CellChanged = [this, i](int row, int col) { flxSummary_CellChanged(i, row, col); };
        grid.CellsChanged = [this, i](const ui::WrittenCells& cells) { flxSummary_CellsChanged(i, cells); };
        grid.BeforeEdit = [this, i](int row, int col, bool& cancel) {
            flxSummary_BeforeEdit(i, row, col, cancel);
        };
        grid.ValidateEdit = [this, i](int row, int col, bool& cancel) {
            flxSummary_ValidateEdit(i, row, col, cancel);
        };
        grid.MouseMove = [this, i] { flxSummary_MouseMove(i); };
    }
    tabGraphSummary.Click = [this] { tabGraphSummary_Click(); };
}

void frmBrenica::wireScores() {
    for (int i = 0; i < flxScoresSort.Count(); ++i) {
        flxScoresSort(i).MouseDown = [this, i] { flxScoresSort_MouseDown(i); };
        flxScoresSort(i).MouseMove = [this, i] { flxScoresSort_MouseMove(i); };
    }
    for (int i = 0; i < optScoreDisplay.Count(); ++i) {
        optScoreDisplay(i).Click = [this, i] { optScoreDisplay_Click(i); };
    }
    chkShowGraphs.Click = [this] { chkShowGraphs_Click(); };
    chkShowAggregateScore.Click = [this] { chkShowAggregateScore_Click(); };
}

void frmBrenica::wireResults() {
    cmdComplement.Click = [this] { cmdComplement_Click(); };
    cmdExportResults.Click = [this] { cmdExportResults_Click(); };
    for (int i = 0; i < optCompResults.Count(); ++i) {
        optCompResults(i).Click = [this, i] { optCompResults_Click(i); };
        flxCompResults(i).MouseMove = [this, i] { flxCompResults_MouseMove(i); };
    }
    flxBrenicSuite.MouseMove = [this] { flxBrenicSuite_MouseMove(); };
}

void frmBrenica::wireNumberBoxes() {
    for (const NumberBox& box : numberBoxes_) {
        box.Box->Change = [this, &box] { numberBox_Change(box); };
        box.Box->KeyPress = [this, &box](int& key) { numberBox_KeyPress(box, key); };
        box.Box->GotFocus = [this, &box] { numberBox_GotFocus(box); };
    }
}
