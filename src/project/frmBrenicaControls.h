// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/columns.h"
#include "ui/chart.h"
#include "ui/choice_buttons.h"
#include "ui/combo_box.h"
#include "ui/control_array.h"
#include "ui/file_dialog.h"
#include "ui/form_window.h"
#include "ui/grid.h"
#include "ui/simple_controls.h"
#include "ui/tab_strip.h"
#include "ui/text_box.h"

/// The design of the main form: every control with its container, name and design-time values, in tab order. What the
/// controls do is frmBrenica's.
struct frmBrenicaControls : ui::FormWindow {
    explicit frmBrenicaControls(ui::Platform& platform)
        : FormWindow(platform, "frmBrenica"), cdgFileDialog(platform) {
        Caption("Brenica");
    }

    ui::FileDialog cdgFileDialog;

    // Menu.
    ui::MenuItem mnuProject{*this, "mnuProject", {.Caption = "Project"}};
    ui::MenuItem mnuNewProject{mnuProject, "mnuNewProject", {.Caption = "New"}};
    ui::MenuItem mnuOpenProject{mnuProject, "mnuOpenProject", {.Caption = "Open"}};
    ui::MenuItem mnuSaveProject{mnuProject, "mnuSaveProject", {.Caption = "Save"}};
    ui::MenuItem mnuExit{mnuProject, "mnuExit", {.Caption = "Exit"}};
    ui::MenuItem mnuData{*this, "mnuData", {.Caption = "Data"}};
    ui::MenuItem mnuImportData{mnuData, "mnuImportData", {.Caption = "Import"}};
    ui::MenuItem mnuExportData{mnuData, "mnuExportData", {.Caption = "Export"}};
    ui::MenuItem mnuPrintGrid{mnuData, "mnuPrintGrid", {.Caption = "Print"}};
    ui::MenuItem mnuGraph{*this, "mnuGraph", {.Caption = "Graph"}};
    ui::MenuItem mnuSaveGraph{mnuGraph, "mnuSaveGraph", {.Caption = "Save"}};
    ui::MenuItem mnuCopyGraph{mnuGraph, "mnuCopyGraph", {.Caption = "Copy"}};
    ui::MenuItem mnuPrintGraph{mnuGraph, "mnuPrintGraph", {.Caption = "Print"}};

    // The seven pages.
    ui::TabStrip tabBrenica{
        *this,
        "tabBrenica",
        {{"Candidate Species", "Shift-C", "List of potential brenic species"},
         {"Parameter Specifications", "Shift-P",
          "The habitats, jurisdictional units, human activities, human range definition & functions"},
         {"Selection Criteria", "Shift-S",
          "Heterogeneity, area, vulnerability, functionality and socio-economics"},
         {"Summary Tables", "Shift-T", "Summary overview of Brenica data"},
         {"Summary Graphs", "Shift-G", "Summary graphs of Brenica data"},
         {"Aggregate Scores", "Shift-A", "The scores for the brenic species over all selection criteria."},
         {"Complementarity", "Shift-O", "Selection of the suite of brenic species using complementarity."}}};
    ui::ControlArray<ui::Frame> fraTabContents{tabBrenica, "fraTabContents", 7};

    // Page 1: candidate species.
    ui::Grid flxCandidateSpecies{fraTabContents(0), "flxCandidateSpecies"};
    ui::Label lblAddSpecies{fraTabContents(0), "lblAddSpecies", {.Caption = "Add"}};
    ui::TextBox txtTotalSpecies{fraTabContents(0), "txtTotalSpecies", "0"};
    ui::Label lblNewSpecies{fraTabContents(0), "lblNewSpecies", {.Caption = "new species"}};
    ui::CommandButton cmdUpdateSpecies{
        fraTabContents(0), "cmdUpdateSpecies", {.Caption = "Update species list"}};
    ui::CommandButton cmdRemoveSpecies{
        fraTabContents(0), "cmdRemoveSpecies", {.Caption = "Remove species no.:"}};
    ui::TextBox txtRemoveSpeciesIndex{fraTabContents(0), "txtRemoveSpeciesIndex", "0"};
    ui::ControlArray<ui::CommandButton> cmdSpeciesMove{
        fraTabContents(0), "cmdSpeciesMove", {{.Caption = "▲"}, {.Caption = "▼"}}};

    // Page 2: the lists that species are judged against.
    ui::ControlArray<ui::OptionButton> optLandChar{fraTabContents(1),
                                                   "optLandChar",
                                                   {{.Caption = "Habitat types"},
                                                    {.Caption = "Management zones"},
                                                    {.Caption = "Human activities"},
                                                    {.Caption = "Home range definition"},
                                                    {.Caption = "Functions"}}};
    ui::ControlArray<ui::Frame> fraLandCharInfo{fraTabContents(1),
                                                "fraLandCharInfo",
                                                {{.Caption = "Habitat types"},
                                                 {.Caption = "Management zones"},
                                                 {.Caption = "Major human activities"},
                                                 {.Caption = "Home range definition using"},
                                                 {.Caption = "Functions"}}};

    ui::Grid flxHabitatTypes{fraLandCharInfo(0), "flxHabitatTypes"};
    ui::Label lblAddHabitatTypes{fraLandCharInfo(0), "lblAddHabitatTypes", {.Caption = "Add"}};
    ui::TextBox txtTotalHabitatTypes{fraLandCharInfo(0), "txtTotalHabitatTypes", "0"};
    ui::Label lblNewHabitatTypes{fraLandCharInfo(0), "lblNewHabitatTypes", {.Caption = "new habitats"}};
    ui::CommandButton cmdUpdateHabitatTypes{
        fraLandCharInfo(0), "cmdUpdateHabitatTypes", {.Caption = "Update habitat list"}};
    ui::CommandButton cmdRemoveHabitatType{
        fraLandCharInfo(0), "cmdRemoveHabitatType", {.Caption = "Remove habitat no.:"}};
    ui::TextBox txtRemoveHabitatIndex{fraLandCharInfo(0), "txtRemoveHabitatIndex", "0"};
    ui::ControlArray<ui::CommandButton> cmdHabitatMove{
        fraLandCharInfo(0), "cmdHabitatMove", {{.Caption = "▲"}, {.Caption = "▼"}}};

    ui::Grid flxJurisUnits{fraLandCharInfo(1), "flxJurisUnits"};
    ui::Label lblAddJurisUnits{fraLandCharInfo(1), "lblAddJurisUnits", {.Caption = "Add"}};
    ui::TextBox txtTotalJurisUnits{fraLandCharInfo(1), "txtTotalJurisUnits", "0"};
    ui::Label lblNewJurisUnits{fraLandCharInfo(1), "lblNewJurisUnits", {.Caption = "new mng. zones"}};
    ui::CommandButton cmdUpdateJurisUnits{
        fraLandCharInfo(1), "cmdUpdateJurisUnits", {.Caption = "Update mng. zone list"}};
    ui::CommandButton cmdRemoveJurisUnit{
        fraLandCharInfo(1), "cmdRemoveJurisUnit", {.Caption = "Remove mng. zone no.:"}};
    ui::TextBox txtRemoveJurisUnitIndex{fraLandCharInfo(1), "txtRemoveJurisUnitIndex", "0"};
    ui::ControlArray<ui::CommandButton> cmdJurisUnitMove{
        fraLandCharInfo(1), "cmdJurisUnitMove", {{.Caption = "▲"}, {.Caption = "▼"}}};

    ui::Grid flxLandUses{fraLandCharInfo(2), "flxLandUses"};
    ui::Label lblAddLandUses{fraLandCharInfo(2), "lblAddLandUses", {.Caption = "Add"}};
    ui::TextBox txtTotalLandUses{fraLandCharInfo(2), "txtTotalLandUses", "0"};
    ui::Label lblNewLandUses{fraLandCharInfo(2), "lblNewLandUses", {.Caption = "new human act."}};
    ui::CommandButton cmdUpdateLandUses{
        fraLandCharInfo(2), "cmdUpdateLandUses", {.Caption = "Update human act. list"}};
    ui::CommandButton cmdRemoveLandUse{
        fraLandCharInfo(2), "cmdRemoveLandUse", {.Caption = "Remove human act. no.:"}};
    ui::TextBox txtRemoveLandUseIndex{fraLandCharInfo(2), "txtRemoveLandUseIndex", "0"};
    ui::ControlArray<ui::CommandButton> cmdLandUseMove{
        fraLandCharInfo(2), "cmdLandUseMove", {{.Caption = "▲"}, {.Caption = "▼"}}};

    ui::ControlArray<ui::OptionButton> optHomeRangeType{
        fraLandCharInfo(3),
        "optHomeRangeType",
        {{.Caption = "Continuous data"},
         {.Caption = "Default bins (0-1, 1-10, 10-25, 25-50, 50-100, 100+ square kilometers)"},
         {.Caption = "User-defined bins (in square kilometers)"}}};
    ui::Grid flxBins{fraLandCharInfo(3), "flxBins", {.Enabled = false}};
    ui::Label lblAddBins{fraLandCharInfo(3), "lblAddBins", {.Caption = "Add"}};
    ui::TextBox txtTotalBins{fraLandCharInfo(3), "txtTotalBins", "0"};
    ui::Label lblNewBins{fraLandCharInfo(3), "lblNewBins", {.Caption = "new breakpoints"}};
    ui::CommandButton cmdUpdateBins{fraLandCharInfo(3), "cmdUpdateBins", {.Caption = "Update breakpoints"}};
    ui::CommandButton cmdRemoveBin{fraLandCharInfo(3), "cmdRemoveBin", {.Caption = "Remove breakpoint no:"}};
    ui::TextBox txtRemoveBinIndex{fraLandCharInfo(3), "txtRemoveBinIndex", "0"};

    ui::Grid flxFunctions{fraLandCharInfo(4), "flxFunctions"};
    ui::Label lblAddFunctions{fraLandCharInfo(4), "lblAddFunctions", {.Caption = "Add"}};
    ui::TextBox txtTotalFunctions{fraLandCharInfo(4), "txtTotalFunctions", "0"};
    ui::Label lblNewFunctions{fraLandCharInfo(4), "lblNewFunctions", {.Caption = "new functions"}};
    ui::CommandButton cmdUpdateFunctions{
        fraLandCharInfo(4), "cmdUpdateFunctions", {.Caption = "Update function list"}};
    ui::CommandButton cmdRemoveFunction{
        fraLandCharInfo(4), "cmdRemoveFunction", {.Caption = "Remove function no.:"}};
    ui::TextBox txtRemoveFunctionIndex{fraLandCharInfo(4), "txtRemoveFunctionIndex", "0"};
    ui::ControlArray<ui::CommandButton> cmdFunctionMove{
        fraLandCharInfo(4), "cmdFunctionMove", {{.Caption = "▲"}, {.Caption = "▼"}}};

    // Page 3: one species on the five criteria.
    ui::Label lblSpeciesName{fraTabContents(2), "lblSpeciesName", {.Caption = "Candidate species:"}};
    ui::ComboBox cbxSpeciesName{fraTabContents(2), "cbxSpeciesName"};
    ui::TabStrip tabCriteria{
        fraTabContents(2),
        "tabCriteria",
        {{"Heterogeneity"}, {"Area"}, {"Vulnerability"}, {"Functionality"}, {"Socio-economics"}}};
    ui::ControlArray<ui::Frame> fraCriteria{tabCriteria, "fraCriteria", 5};
    ui::Grid flxHabitatHetero{fraCriteria(0), "flxHabitatHetero"};
    ui::Grid flxJurisUnitHetero{fraCriteria(0), "flxJurisUnitHetero"};
    ui::Label lblDispersalYN{fraCriteria(1), "lblDispersalYN", {.Caption = "Dispersal > 10 km:"}};
    ui::ComboBox cbxDispersalYN{fraCriteria(1), "cbxDispersalYN", {"N/A", "Y", "N"}};
    ui::Label lblConnectivity{fraCriteria(1), "lblConnectivity", {.Caption = "Connectivity:"}};
    ui::ComboBox cbxConnectivity{fraCriteria(1), "cbxConnectivity", {"N/A", "Y", "N"}};
    ui::Label lblContinuousHR{fraCriteria(1),
                              "lblContinuousHR",
                              {.Caption = "Continuous Home range value (in square kilometers):"}};
    ui::TextBox txtContinuousHR{fraCriteria(1), "txtContinuousHR", "0"};
    ui::Label lblDefaultBinsHR{
        fraCriteria(1), "lblDefaultBinsHR", {.Caption = "Select the home range default bin:"}};
    ui::ComboBox cbxDefaultBinsHR{fraCriteria(1), "cbxDefaultBinsHR"};
    ui::Label lblUserDefBinsHR{
        fraCriteria(1), "lblUserDefBinsHR", {.Caption = "Select the home range user-defined bin:"}};
    ui::ComboBox cbxUserDefBinsHR{fraCriteria(1), "cbxUserDefBinsHR"};
    ui::Label lblPropOccupied{
        fraCriteria(1), "lblPropOccupied", {.Caption = "Proportion of landscape occupied:"}};
    ui::TextBox txtPropOccupied{fraCriteria(1), "txtPropOccupied", "0"};
    ui::Label lblPropOccupHint{fraCriteria(1), "lblPropOccupHint", {.Caption = "HINT:"}};
    ui::Grid flxLandUsesVulnerability{fraCriteria(2), "flxLandUsesVulnerability"};
    ui::Grid flxFunctionality{fraCriteria(3), "flxFunctionality"};
    ui::Grid flxSocioEcon{fraCriteria(4), "flxSocioEcon"};
    ui::Label lblCCS{fraTabContents(2), "lblCCS", {.Caption = "Current Conservation Status:"}};
    ui::TextBox txtCCS{fraTabContents(2), "txtCCS", "0"};
    ui::Label lblDataQuality{fraTabContents(2), "lblDataQuality", {.Caption = "Data quality:"}};
    ui::ComboBox cbxDataQuality{
        fraTabContents(2),
        "cbxDataQuality",
        {"1 - Excellent data from site", "2 - Excellent data from similar site",
         "3 - Good data from site/similar site", "4 - Bad or incomplete data from site/similar site",
         "5 - Data from similar species/dissimilar site", "6 - No data just informed guesses"}};

    // Page 4: summary tables.
    ui::TabStrip tabCriteriaSummary{fraTabContents(3),
                                    "tabCriteriaSummary",
                                    {{"Heterogeneity"},
                                     {"Heterogeneity by species"},
                                     {"Area"},
                                     {"Vulnerability"},
                                     {"Vulnerability by species"},
                                     {"Vulnerability by human activity"},
                                     {"Functionality"},
                                     {"Socio-economics"},
                                     {"Data quality"}}};
    ui::ControlArray<ui::Grid> flxSummary{tabCriteriaSummary, "flxSummary", summary::Count};
    ui::CheckBox chkAllowSummaryEdit{
        fraTabContents(3), "chkAllowSummaryEdit", false, {.Caption = "Allow summary table editing"}};

    // Page 5: summary graphs.
    ui::TabStrip tabGraphSummary{fraTabContents(4),
                                 "tabGraphSummary",
                                 {{"Habitat use"},
                                  {"Habitat use by species"},
                                  {"Management zone use"},
                                  {"Management zone use by species "},
                                  {"Species by threat"},
                                  {"Species by vulnerability"},
                                  {"Threats by species"},
                                  {"Vulnerability by species"}}};
    ui::ControlArray<ui::Chart> chtSummary{tabGraphSummary, "chtSummary", 10};

    // Page 6: scores.
    ui::ControlArray<ui::OptionButton> optScoreDisplay{
        fraTabContents(5),
        "optScoreDisplay",
        {{.Caption = "Normalized values"}, {.Caption = "Original values"}}};
    ui::CheckBox chkShowGraphs{
        fraTabContents(5), "chkShowGraphs", false, {.Caption = "Display results graphically"}};
    ui::CheckBox chkShowAggregateScore{
        fraTabContents(5), "chkShowAggregateScore", true, {.Caption = "Show aggregate score"}};
    ui::ControlArray<ui::Grid> flxScores{fraTabContents(5), "flxScores", 2};
    ui::ControlArray<ui::Grid> flxScoresSort{fraTabContents(5), "flxScoresSort", 2};
    ui::ControlArray<ui::Chart> chtScores{fraTabContents(5), "chtScores", 3};

    // Page 7: complementarity.
    ui::CommandButton cmdComplement{fraTabContents(6), "cmdComplement", {.Caption = "Select Brenic Species"}};
    ui::CommandButton cmdExportResults{
        fraTabContents(6), "cmdExportResults", {.Caption = "Export the results"}};
    ui::Label lblErrorMargin{fraTabContents(6), "lblErrorMargin", {.Caption = "Margin of Error:"}};
    ui::TextBox txtErrorMargin{fraTabContents(6), "txtErrorMargin", "5"};
    ui::Label lblPercent{fraTabContents(6), "lblPercent", {.Caption = "%"}};
    ui::Label lblThreatRep{fraTabContents(6), "lblThreatRep", {.Caption = "Threat Representation:"}};
    ui::TextBox txtThreatRep{fraTabContents(6), "txtThreatRep", "0.5"};
    ui::Label lblCCSRep{fraTabContents(6), "lblCCSRep", {.Caption = "Conservation Status Representation:"}};
    ui::TextBox txtCCSRep{fraTabContents(6), "txtCCSRep", "1"};
    ui::Label lblBrenicSpecies{fraTabContents(6), "lblBrenicSpecies", {.Caption = "Brenic species:"}};
    ui::Grid flxBrenicSuite{fraTabContents(6), "flxBrenicSuite"};
    ui::Label lblCompResults{fraTabContents(6), "lblCompResults", {.Caption = "Complementarity results:"}};
    ui::ControlArray<ui::OptionButton> optCompResults{fraTabContents(6),
                                                      "optCompResults",
                                                      {{.Caption = "Overall"},
                                                       {.Caption = "Habitats covered"},
                                                       {.Caption = "Management zones covered"},
                                                       {.Caption = "Threats covered"}}};
    ui::ControlArray<ui::Grid> flxCompResults{fraTabContents(6), "flxCompResults", 4};
};
