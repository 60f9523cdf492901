// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "entry/modFlexGridUtilities.h"
#include "entry/modGeneralUtilities.h"
#include "project/constant_tables.h"
#include "project/frmBrenica.h"
#include "project/project_file.h"
#include "ui/text.h"
#include "ui/wait_pointer.h"

/// Cancel in a dialogue, like any failure, ends the command where it happened, without a message.
void frmBrenica::MenuSelectionProject(std::string_view command) try {
    cdgFileDialog.FileName = global_.ProjectFileName;
    cdgFileDialog.Filter = "Project Files (*.brn)|*.brn";
    cdgFileDialog.DefaultExt = projectfile::Extension;
    if (ui::equalsIgnoringCase(command, "New")) {
        newProjectCommand();
    } else if (ui::equalsIgnoringCase(command, "Open")) {
        openProjectCommand();
    } else if (ui::equalsIgnoringCase(command, "Save")) {
        saveProjectCommand();
    } else if (ui::equalsIgnoringCase(command, "Exit")) {
        exitCommand();
    }
    cdgFileDialog.InitDir.clear();
} catch (...) {
    SwallowError();
}

bool frmBrenica::wantsToSave(const std::string& question) {
    if (!ProjectChanged) return false;
    if (!modGeneralUtilities::AskYesNo(platform(), question, "Save Project")) return false;
    cdgFileDialog.ShowSave();
    return true;
}

void frmBrenica::newProjectCommand() {
    if (wantsToSave("Would you like to save the current project before starting a new project?")) {
        SaveProject(cdgFileDialog.FileName);
    }
    ProjectStepTaken(ProjectStep::Left, "");
    InitializeProject();
    global_.ProjectFileName.clear();
    Caption("Brenica");
    ResizeForm();
}

void frmBrenica::openProjectCommand() {
    if (wantsToSave("Would you like to save the current project before opening another project?")) {
        SaveProject(cdgFileDialog.FileName);
    }
    cdgFileDialog.ShowOpen();
    const std::string path = cdgFileDialog.FileName;
    const ui::WaitPointer wait(platform());
    ProjectStepTaken(ProjectStep::Left, "");
    InitializeProject();
    OpenProject(path);
    showProjectPath(path);
    ProjectStepTaken(ProjectStep::Opened, path);
    ProjectChanged = false;
    ResizeForm();
}

void frmBrenica::saveProjectCommand() {
    cdgFileDialog.FileName = global_.ProjectFileName;
    cdgFileDialog.ShowSave();
    const std::string path = cdgFileDialog.FileName;
    SaveProject(std::string(ui::trim(path)));
    showProjectPath(path);
}

/// The name chosen in the dialogue is not taken here: saving to no name fails and ends the command, so that Yes never
/// exits and only No does.
void frmBrenica::exitCommand() {
    const bool changed = ProjectChanged;
    if (wantsToSave("Would you like to save the current project before exiting?")) SaveProject("");
    if (changed) ProjectStepTaken(ProjectStep::GivenUp, "");
    Unload();
}

void frmBrenica::showProjectPath(const std::string& path) {
    global_.ProjectFileName = path;
    Caption("Brenica - " + path);
}

/// With no species on view first, so that no control that is reset writes to a table. Whatever keeps the page from being
/// left, a gate that refuses or a failure, the steps go on.
void frmBrenica::InitializeProject() try {
    CurrentSpeciesIndex = 0;
    succeeds([&] { tabBrenica.SelectedItem(1); });
    fraTabContents(CurrentMainTab - 1).Visible(false);
    fraTabContents(0).Visible(true);
    CurrentMainTab = 1;
    clearLists();
    clearCriteria();
    clearCounts();
    clearFunctions();
    clearSummaries();
    clearGraphs();
    clearScores();
    clearResults();
    resetTextBoxes();
    ProjectChanged = false;
} catch (...) {
    ReportError(9999, "Brenica.InitializeProject", "");
}

void frmBrenica::clearLists() {
    for (ui::Grid* grid :
         {&flxCandidateSpecies, &flxHabitatTypes, &flxJurisUnits, &flxLandUses, &flxBins, &flxFunctions}) {
        grid->Rows(1);
    }
    // A negative number of new breakpoints takes the row of the headings away.
    for (int col = 0; col < static_cast<int>(BinHeadings.size()); ++col)
        flxBins.TextMatrix(0, col, BinHeadings[static_cast<std::size_t>(col)]);
    fraCriteria(CurrentCriteriaTab - 1).Visible(false);
    tabCriteria.SelectedItem(1);
    CurrentCriteriaTab = 1;
    fraLandCharInfo(0).Visible(true);
    optLandChar(0).Value(true);
    CurrentLandChar = 0;
}

void frmBrenica::clearCriteria() {
    cbxSpeciesName.Clear();
    cbxDataQuality.ListIndex(-1);
    flxHabitatHetero.Rows(1);
    flxJurisUnitHetero.Rows(1);
    optHomeRangeType(0).Value(true);
    HomeRangeType = 0;
    if (!optHomeRangeType(0).Value())
        optHomeRangeType(0).Value(true);  // the answer No has put the former one on
    flxBins.Enabled(false);
    enableBinControls(false);
    showHomeRangeControls(0);
    cbxDispersalYN.ListIndex(0);
    cbxConnectivity.ListIndex(0);
    cbxDefaultBinsHR.ListIndex(-1);
    cbxUserDefBinsHR.Clear();
    flxLandUsesVulnerability.Rows(1);
    flxFunctionality.Rows(1);
    fraCriteria(0).Visible(true);
}

void frmBrenica::clearCounts() {
    global_.TotalSpecies = 0;
    global_.TotalHabitatTypes = 0;
    global_.HabitatAreaTotal = 0;
    global_.TotalJurisUnits = 0;
    global_.JurisUnitAreaTotal = 0;
    global_.TotalLandUses = 0;
    global_.TotalBins = 0;
    global_.TotalFunctions = static_cast<int>(FunctionNames.size());
    global_.ScoresCalculated = false;
    levelsShifted_ = {};
    threatFactorsLost_ = false;
    RefreshingCriteria = false;
}

void frmBrenica::clearFunctions() {
    flxFunctions.Rows(global_.TotalFunctions + 1);
    UpdateOtherFunctionFlexGrids(global_.TotalFunctions);
    modFlexGridUtilities::numberRows(flxFunctions, global_.TotalFunctions);
    modFlexGridUtilities::UpdateFlexGridCol(flxFunctions, list::Name, FunctionNames);
    for (int row = 1; row <= TotalSocioEcon; ++row) flxSocioEcon.TextMatrix(row, 1, "0");
    clearChangeFlags();
    txtPropOccupied.Text("0");
}

void frmBrenica::clearChangeFlags() {
    HabitatUseChanged = false;
    AreaDataChanged = false;
    VulnerabilityChanged = false;
    FunctionalityChanged = false;
    SocioEconChanged = false;
}

void frmBrenica::clearSummaries() {
    chkAllowSummaryEdit.Value(false);
    chkAllowSummaryEdit.Enabled(true);
    for (ui::Grid& grid : flxSummary) {
        grid.Rows(1);
        grid.Visible(false);
    }
    tabCriteriaSummary.SelectedItem(1);
    for (const int member : {summary::HabitatUse, summary::JurisUnitUse}) {
        flxSummary(member).Visible(true);
        flxSummary(member).Cols(1);
    }
    flxSummary(summary::Vulnerability).Cols(vulnerability::ThreatOffset + 1);
    CurrentSummaryTab = 1;
}

void frmBrenica::clearGraphs() {
    for (ui::Chart& chart : chtSummary) {
        chart.ChartData({});
        chart.Visible(false);
    }
    tabGraphSummary.SelectedItem(1);
    chtSummary(0).Visible(true);
    CurrentGraphTab = 1;
    chkShowGraphs.Value(false);
    chkShowAggregateScore.Enabled(false);
    chkShowAggregateScore.Value(true);
    for (ui::Chart& chart : chtScores) {
        chart.ChartData({});
        chart.Visible(false);
    }
}

void frmBrenica::clearScores() {
    optScoreDisplay(0).Value(true);
    for (auto* grids : {&flxScores, &flxScoresSort}) {
        for (ui::Grid& grid : *grids) {
            grid.Rows(1);
            grid.Visible(false);
        }
    }
    flxScoresSort(0).Visible(true);
    ScoreDisplayMode = 0;
}

void frmBrenica::clearResults() {
    outcome_.reset();
    flxBrenicSuite.Rows(1);
    optCompResults(0).Value(true);
    for (ui::OptionButton& button : optCompResults) button.Enabled(false);
    for (ui::Grid& grid : flxCompResults) {
        grid.Visible(false);
        grid.Rows(1);
    }
    flxCompResults(0).Visible(true);
}

void frmBrenica::resetTextBoxes() {
    txtErrorMargin.Text("5");
    txtThreatRep.Text("0.5");
    txtCCSRep.Text("1");
    txtContinuousHR.Text("0");
    for (ui::TextBox* box :
         {&txtRemoveSpeciesIndex, &txtRemoveHabitatIndex, &txtRemoveJurisUnitIndex, &txtRemoveLandUseIndex,
          &txtRemoveFunctionIndex, &txtRemoveBinIndex, &txtTotalSpecies, &txtTotalHabitatTypes,
          &txtTotalJurisUnits, &txtTotalLandUses, &txtTotalFunctions, &txtTotalBins}) {
        box->Text("0");
    }
}
