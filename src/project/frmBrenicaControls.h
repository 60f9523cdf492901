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

    // What the buttons beside a list do.
    static constexpr const char* UpdateHelp = "Adds as many rows to the list as the box says.";
    static constexpr const char* MoveUpHelp =
        "Exchanges the names of this row and the one above. The grades stay where they are.";
    static constexpr const char* MoveDownHelp =
        "Exchanges the names of this row and the one below. The grades stay where they are.";

    // Menu.
    ui::MenuItem mnuProject{*this, "mnuProject", {.Caption = "Project", .AccessKey = 'P'}};
    ui::MenuItem mnuNewProject{
        mnuProject, "mnuNewProject", {.Caption = "New", .AccessKey = 'N', .Shortcut = "Ctrl+N"}};
    ui::MenuItem mnuOpenProject{
        mnuProject, "mnuOpenProject", {.Caption = "Open", .AccessKey = 'O', .Shortcut = "Ctrl+O"}};
    ui::MenuItem mnuSaveProject{
        mnuProject, "mnuSaveProject", {.Caption = "Save", .AccessKey = 'S', .Shortcut = "Ctrl+S"}};
    ui::MenuItem mnuExit{mnuProject, "mnuExit", {.Caption = "Exit", .AccessKey = 'x', .Shortcut = "Ctrl+Q"}};
    ui::MenuItem mnuData{*this, "mnuData", {.Caption = "Data", .AccessKey = 'D'}};
    ui::MenuItem mnuImportData{mnuData, "mnuImportData", {.Caption = "Import", .AccessKey = 'I'}};
    ui::MenuItem mnuExportData{mnuData, "mnuExportData", {.Caption = "Export", .AccessKey = 'E'}};
    ui::MenuItem mnuPrintGrid{mnuData, "mnuPrintGrid", {.Caption = "Print", .AccessKey = 'P'}};
    ui::MenuItem mnuGraph{*this, "mnuGraph", {.Caption = "Graph", .AccessKey = 'G'}};
    ui::MenuItem mnuSaveGraph{mnuGraph, "mnuSaveGraph", {.Caption = "Save", .AccessKey = 'S'}};
    ui::MenuItem mnuCopyGraph{mnuGraph, "mnuCopyGraph", {.Caption = "Copy", .AccessKey = 'C'}};
    ui::MenuItem mnuPrintGraph{mnuGraph, "mnuPrintGraph", {.Caption = "Print", .AccessKey = 'P'}};

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
         {"Complementarity", "Shift-O", "Selection of the suite of brenic species using complementarity."}},
        {.AccessibleName = "Pages"}};
    ui::ControlArray<ui::Frame> fraTabContents{tabBrenica, "fraTabContents", 7};

    // Page 1: candidate species.
    ui::Grid flxCandidateSpecies{
        fraTabContents(0), "flxCandidateSpecies", {.AccessibleName = "Candidate species"}};
    ui::Label lblAddSpecies{fraTabContents(0), "lblAddSpecies", {.Caption = "Add", .AccessKey = 'A'}};
    ui::TextBox txtTotalSpecies{
        fraTabContents(0), "txtTotalSpecies", "0", {.AccessibleName = "Number of new species"}};
    ui::Label lblNewSpecies{fraTabContents(0), "lblNewSpecies", {.Caption = "new species"}};
    ui::CommandButton cmdUpdateSpecies{
        fraTabContents(0),
        "cmdUpdateSpecies",
        {.Caption = "Update species list", .AccessKey = 'U', .Description = UpdateHelp}};
    ui::CommandButton cmdRemoveSpecies{
        fraTabContents(0), "cmdRemoveSpecies", {.Caption = "Remove species no.:", .AccessKey = 'R'}};
    ui::TextBox txtRemoveSpeciesIndex{fraTabContents(0),
                                      "txtRemoveSpeciesIndex",
                                      "0",
                                      {.AccessibleName = "Number of the species to remove"}};
    ui::ControlArray<ui::CommandButton> cmdSpeciesMove{
        fraTabContents(0),
        "cmdSpeciesMove",
        {{.Caption = "▲", .AccessibleName = "Move up", .Description = MoveUpHelp},
         {.Caption = "▼", .AccessibleName = "Move down", .Description = MoveDownHelp}}};

    // Page 2: the lists that species are judged against.
    ui::ControlArray<ui::OptionButton> optLandChar{fraTabContents(1),
                                                   "optLandChar",
                                                   {{.Caption = "Habitat types", .AccessKey = 'H'},
                                                    {.Caption = "Management zones", .AccessKey = 'M'},
                                                    {.Caption = "Human activities", .AccessKey = 'n'},
                                                    {.Caption = "Home range definition", .AccessKey = 'o'},
                                                    {.Caption = "Functions", .AccessKey = 'F'}}};
    ui::ControlArray<ui::Frame> fraLandCharInfo{fraTabContents(1),
                                                "fraLandCharInfo",
                                                {{.Caption = "Habitat types"},
                                                 {.Caption = "Management zones"},
                                                 {.Caption = "Major human activities"},
                                                 {.Caption = "Home range definition using"},
                                                 {.Caption = "Functions"}}};

    ui::Grid flxHabitatTypes{fraLandCharInfo(0), "flxHabitatTypes", {.AccessibleName = "Habitat types"}};
    ui::Label lblAddHabitatTypes{
        fraLandCharInfo(0), "lblAddHabitatTypes", {.Caption = "Add", .AccessKey = 'A'}};
    ui::TextBox txtTotalHabitatTypes{
        fraLandCharInfo(0), "txtTotalHabitatTypes", "0", {.AccessibleName = "Number of new habitats"}};
    ui::Label lblNewHabitatTypes{fraLandCharInfo(0), "lblNewHabitatTypes", {.Caption = "new habitats"}};
    ui::CommandButton cmdUpdateHabitatTypes{
        fraLandCharInfo(0),
        "cmdUpdateHabitatTypes",
        {.Caption = "Update habitat list", .AccessKey = 'U', .Description = UpdateHelp}};
    ui::CommandButton cmdRemoveHabitatType{
        fraLandCharInfo(0), "cmdRemoveHabitatType", {.Caption = "Remove habitat no.:", .AccessKey = 'R'}};
    ui::TextBox txtRemoveHabitatIndex{fraLandCharInfo(0),
                                      "txtRemoveHabitatIndex",
                                      "0",
                                      {.AccessibleName = "Number of the habitat to remove"}};
    ui::ControlArray<ui::CommandButton> cmdHabitatMove{
        fraLandCharInfo(0),
        "cmdHabitatMove",
        {{.Caption = "▲", .AccessibleName = "Move up", .Description = MoveUpHelp},
         {.Caption = "▼", .AccessibleName = "Move down", .Description = MoveDownHelp}}};

    ui::Grid flxJurisUnits{fraLandCharInfo(1), "flxJurisUnits", {.AccessibleName = "Management zones"}};
    ui::Label lblAddJurisUnits{fraLandCharInfo(1), "lblAddJurisUnits", {.Caption = "Add", .AccessKey = 'A'}};
    ui::TextBox txtTotalJurisUnits{
        fraLandCharInfo(1), "txtTotalJurisUnits", "0", {.AccessibleName = "Number of new management zones"}};
    ui::Label lblNewJurisUnits{fraLandCharInfo(1), "lblNewJurisUnits", {.Caption = "new mng. zones"}};
    ui::CommandButton cmdUpdateJurisUnits{
        fraLandCharInfo(1),
        "cmdUpdateJurisUnits",
        {.Caption = "Update mng. zone list", .AccessKey = 'U', .Description = UpdateHelp}};
    ui::CommandButton cmdRemoveJurisUnit{
        fraLandCharInfo(1), "cmdRemoveJurisUnit", {.Caption = "Remove mng. zone no.:", .AccessKey = 'R'}};
    ui::TextBox txtRemoveJurisUnitIndex{fraLandCharInfo(1),
                                        "txtRemoveJurisUnitIndex",
                                        "0",
                                        {.AccessibleName = "Number of the management zone to remove"}};
    ui::ControlArray<ui::CommandButton> cmdJurisUnitMove{
        fraLandCharInfo(1),
        "cmdJurisUnitMove",
        {{.Caption = "▲", .AccessibleName = "Move up", .Description = MoveUpHelp},
         {.Caption = "▼", .AccessibleName = "Move down", .Description = MoveDownHelp}}};

    ui::Grid flxLandUses{fraLandCharInfo(2), "flxLandUses", {.AccessibleName = "Human activities"}};
    ui::Label lblAddLandUses{fraLandCharInfo(2), "lblAddLandUses", {.Caption = "Add", .AccessKey = 'A'}};
    ui::TextBox txtTotalLandUses{
        fraLandCharInfo(2), "txtTotalLandUses", "0", {.AccessibleName = "Number of new human activities"}};
    ui::Label lblNewLandUses{fraLandCharInfo(2), "lblNewLandUses", {.Caption = "new human act."}};
    ui::CommandButton cmdUpdateLandUses{
        fraLandCharInfo(2),
        "cmdUpdateLandUses",
        {.Caption = "Update human act. list", .AccessKey = 'U', .Description = UpdateHelp}};
    ui::CommandButton cmdRemoveLandUse{
        fraLandCharInfo(2), "cmdRemoveLandUse", {.Caption = "Remove human act. no.:", .AccessKey = 'R'}};
    ui::TextBox txtRemoveLandUseIndex{fraLandCharInfo(2),
                                      "txtRemoveLandUseIndex",
                                      "0",
                                      {.AccessibleName = "Number of the human activity to remove"}};
    ui::ControlArray<ui::CommandButton> cmdLandUseMove{
        fraLandCharInfo(2),
        "cmdLandUseMove",
        {{.Caption = "▲", .AccessibleName = "Move up", .Description = MoveUpHelp},
         {.Caption = "▼", .AccessibleName = "Move down", .Description = MoveDownHelp}}};

    ui::ControlArray<ui::OptionButton> optHomeRangeType{
        fraLandCharInfo(3),
        "optHomeRangeType",
        {{.Caption = "Continuous data", .AccessKey = 'C'},
         {.Caption = "Default bins (0-1, 1-10, 10-25, 25-50, 50-100, 100+ square kilometers)",
          .AccessKey = 'b'},
         {.Caption = "User-defined bins (in square kilometers)", .AccessKey = 's'}}};
    ui::Grid flxBins{
        fraLandCharInfo(3), "flxBins", {.Enabled = false, .AccessibleName = "Home range breakpoints"}};
    ui::Label lblAddBins{fraLandCharInfo(3), "lblAddBins", {.Caption = "Add", .AccessKey = 'A'}};
    ui::TextBox txtTotalBins{
        fraLandCharInfo(3), "txtTotalBins", "0", {.AccessibleName = "Number of new breakpoints"}};
    ui::Label lblNewBins{fraLandCharInfo(3), "lblNewBins", {.Caption = "new breakpoints"}};
    ui::CommandButton cmdUpdateBins{
        fraLandCharInfo(3),
        "cmdUpdateBins",
        {.Caption = "Update breakpoints", .AccessKey = 'U', .Description = UpdateHelp}};
    ui::CommandButton cmdRemoveBin{
        fraLandCharInfo(3), "cmdRemoveBin", {.Caption = "Remove breakpoint no:", .AccessKey = 'R'}};
    ui::TextBox txtRemoveBinIndex{fraLandCharInfo(3),
                                  "txtRemoveBinIndex",
                                  "0",
                                  {.AccessibleName = "Number of the breakpoint to remove"}};

    ui::Grid flxFunctions{fraLandCharInfo(4), "flxFunctions", {.AccessibleName = "Functions"}};
    ui::Label lblAddFunctions{fraLandCharInfo(4), "lblAddFunctions", {.Caption = "Add", .AccessKey = 'A'}};
    ui::TextBox txtTotalFunctions{
        fraLandCharInfo(4), "txtTotalFunctions", "0", {.AccessibleName = "Number of new functions"}};
    ui::Label lblNewFunctions{fraLandCharInfo(4), "lblNewFunctions", {.Caption = "new functions"}};
    ui::CommandButton cmdUpdateFunctions{
        fraLandCharInfo(4),
        "cmdUpdateFunctions",
        {.Caption = "Update function list", .AccessKey = 'U', .Description = UpdateHelp}};
    ui::CommandButton cmdRemoveFunction{
        fraLandCharInfo(4), "cmdRemoveFunction", {.Caption = "Remove function no.:", .AccessKey = 'R'}};
    ui::TextBox txtRemoveFunctionIndex{fraLandCharInfo(4),
                                       "txtRemoveFunctionIndex",
                                       "0",
                                       {.AccessibleName = "Number of the function to remove"}};
    ui::ControlArray<ui::CommandButton> cmdFunctionMove{
        fraLandCharInfo(4),
        "cmdFunctionMove",
        {{.Caption = "▲", .AccessibleName = "Move up", .Description = MoveUpHelp},
         {.Caption = "▼", .AccessibleName = "Move down", .Description = MoveDownHelp}}};

    // Page 3: one species on the five criteria.
    ui::Label lblSpeciesName{
        fraTabContents(2), "lblSpeciesName", {.Caption = "Candidate species:", .AccessKey = 'C'}};
    ui::ComboBox cbxSpeciesName{fraTabContents(2), "cbxSpeciesName"};
    ui::TabStrip tabCriteria{
        fraTabContents(2),
        "tabCriteria",
        {{"Heterogeneity"}, {"Area"}, {"Vulnerability"}, {"Functionality"}, {"Socio-economics"}},
        {.AccessibleName = "Criteria"}};
    ui::ControlArray<ui::Frame> fraCriteria{tabCriteria, "fraCriteria", 5};
    ui::Grid flxHabitatHetero{
        fraCriteria(0), "flxHabitatHetero", {.AccessibleName = "Level of use of habitats"}};
    ui::Grid flxJurisUnitHetero{
        fraCriteria(0), "flxJurisUnitHetero", {.AccessibleName = "Level of use of management zones"}};
    ui::Label lblDispersalYN{
        fraCriteria(1), "lblDispersalYN", {.Caption = "Dispersal > 10 km:", .AccessKey = 's'}};
    ui::ComboBox cbxDispersalYN{fraCriteria(1), "cbxDispersalYN", {"N/A", "Y", "N"}};
    ui::Label lblConnectivity{
        fraCriteria(1), "lblConnectivity", {.Caption = "Connectivity:", .AccessKey = 'n'}};
    ui::ComboBox cbxConnectivity{fraCriteria(1), "cbxConnectivity", {"N/A", "Y", "N"}};
    ui::Label lblContinuousHR{
        fraCriteria(1),
        "lblContinuousHR",
        {.Caption = "Continuous Home range value (in square kilometers):", .AccessKey = 'H'}};
    ui::TextBox txtContinuousHR{fraCriteria(1), "txtContinuousHR", "0"};
    ui::Label lblDefaultBinsHR{fraCriteria(1),
                               "lblDefaultBinsHR",
                               {.Caption = "Select the home range default bin:", .AccessKey = 'h'}};
    ui::ComboBox cbxDefaultBinsHR{fraCriteria(1), "cbxDefaultBinsHR"};
    ui::Label lblUserDefBinsHR{fraCriteria(1),
                               "lblUserDefBinsHR",
                               {.Caption = "Select the home range user-defined bin:", .AccessKey = 'h'}};
    ui::ComboBox cbxUserDefBinsHR{fraCriteria(1), "cbxUserDefBinsHR"};
    ui::Label lblPropOccupied{fraCriteria(1),
                              "lblPropOccupied",
                              {.Caption = "Proportion of landscape occupied:", .AccessKey = 'o'}};
    ui::TextBox txtPropOccupied{fraCriteria(1), "txtPropOccupied", "0"};
    ui::Label lblPropOccupHint{fraCriteria(1), "lblPropOccupHint", {.Caption = "HINT:"}};
    ui::Grid flxLandUsesVulnerability{
        fraCriteria(2), "flxLandUsesVulnerability", {.AccessibleName = "Vulnerability to human activities"}};
    ui::Grid flxFunctionality{fraCriteria(3), "flxFunctionality", {.AccessibleName = "Ecological functions"}};
    ui::Grid flxSocioEcon{fraCriteria(4), "flxSocioEcon", {.AccessibleName = "Socio-economic value"}};
    ui::Label lblDataQuality{
        fraTabContents(2), "lblDataQuality", {.Caption = "Data quality:", .AccessKey = 'q'}};
    ui::ComboBox cbxDataQuality{
        fraTabContents(2),
        "cbxDataQuality",
        {"1 - Excellent data from site", "2 - Excellent data from similar site",
         "3 - Good data from site/similar site", "4 - Bad or incomplete data from site/similar site",
         "5 - Data from similar species/dissimilar site", "6 - No data just informed guesses"}};
    ui::Label lblCCS{
        fraTabContents(2), "lblCCS", {.Caption = "Current Conservation Status:", .AccessKey = 'u'}};
    ui::TextBox txtCCS{fraTabContents(2), "txtCCS", "0"};

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
                                     {"Data quality"}},
                                    {.AccessibleName = "Summary tables"}};
    ui::ControlArray<ui::Grid> flxSummary{tabCriteriaSummary,
                                          "flxSummary",
                                          {{.AccessibleName = "Habitat use"},
                                           {.AccessibleName = "Management zone use"},
                                           {.AccessibleName = "Habitat use by species"},
                                           {.AccessibleName = "Management zone use by species"},
                                           {.AccessibleName = "Area"},
                                           {.AccessibleName = "Vulnerability"},
                                           {.AccessibleName = "Vulnerability by species"},
                                           {.AccessibleName = "Vulnerability by human activity"},
                                           {.AccessibleName = "Functionality"},
                                           {.AccessibleName = "Socio-economics"},
                                           {.AccessibleName = "Data quality"}}};
    ui::CheckBox chkAllowSummaryEdit{fraTabContents(3),
                                     "chkAllowSummaryEdit",
                                     false,
                                     {.Caption = "Allow summary table editing", .AccessKey = 'A'}};

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
                                  {"Vulnerability by species"}},
                                 {.AccessibleName = "Summary graphs"}};
    ui::ControlArray<ui::Chart> chtSummary{tabGraphSummary, "chtSummary", 10};

    // Page 6: scores.
    ui::ControlArray<ui::OptionButton> optScoreDisplay{fraTabContents(5),
                                                       "optScoreDisplay",
                                                       {{.Caption = "Normalized values", .AccessKey = 'N'},
                                                        {.Caption = "Original values", .AccessKey = 'O'}}};
    ui::CheckBox chkShowGraphs{fraTabContents(5),
                               "chkShowGraphs",
                               false,
                               {.Caption = "Display results graphically", .AccessKey = 'r'}};
    ui::CheckBox chkShowAggregateScore{fraTabContents(5),
                                       "chkShowAggregateScore",
                                       true,
                                       {.Caption = "Show aggregate score", .AccessKey = 'S'}};
    ui::ControlArray<ui::Grid> flxScores{fraTabContents(5),
                                         "flxScores",
                                         {{.AccessibleName = "Normalized scores by species"},
                                          {.AccessibleName = "Original scores by species"}}};
    ui::ControlArray<ui::Grid> flxScoresSort{
        fraTabContents(5),
        "flxScoresSort",
        {{.AccessibleName = "Normalized scores"}, {.AccessibleName = "Original scores"}}};
    ui::ControlArray<ui::Chart> chtScores{fraTabContents(5), "chtScores", 3};

    // Page 7: complementarity.
    ui::CommandButton cmdComplement{
        fraTabContents(6), "cmdComplement", {.Caption = "Select Brenic Species", .AccessKey = 'S'}};
    ui::CommandButton cmdExportResults{
        fraTabContents(6), "cmdExportResults", {.Caption = "Export the results", .AccessKey = 'E'}};
    ui::Label lblErrorMargin{
        fraTabContents(6), "lblErrorMargin", {.Caption = "Margin of Error:", .AccessKey = 'M'}};
    ui::TextBox txtErrorMargin{fraTabContents(6), "txtErrorMargin", "5"};
    ui::Label lblPercent{fraTabContents(6), "lblPercent", {.Caption = "%"}};
    ui::Label lblThreatRep{
        fraTabContents(6), "lblThreatRep", {.Caption = "Threat Representation:", .AccessKey = 'T'}};
    ui::TextBox txtThreatRep{fraTabContents(6), "txtThreatRep", "0.5"};
    ui::Label lblCCSRep{
        fraTabContents(6), "lblCCSRep", {.Caption = "Conservation Status Representation:", .AccessKey = 'C'}};
    ui::TextBox txtCCSRep{fraTabContents(6), "txtCCSRep", "1"};
    ui::Label lblBrenicSpecies{
        fraTabContents(6), "lblBrenicSpecies", {.Caption = "Brenic species:", .AccessKey = 'B'}};
    ui::Grid flxBrenicSuite{fraTabContents(6), "flxBrenicSuite"};
    ui::Label lblCompResults{fraTabContents(6), "lblCompResults", {.Caption = "Complementarity results:"}};
    ui::ControlArray<ui::OptionButton> optCompResults{
        fraTabContents(6),
        "optCompResults",
        {{.Caption = "Overall", .AccessKey = 'O'},
         {.Caption = "Habitats covered", .AccessKey = 'H'},
         {.Caption = "Management zones covered", .AccessKey = 'z'},
         {.Caption = "Threats covered", .AccessKey = 'r'}}};
    ui::ControlArray<ui::Grid> flxCompResults{fraTabContents(6),
                                              "flxCompResults",
                                              {{.AccessibleName = "Overall"},
                                               {.AccessibleName = "Habitats covered"},
                                               {.AccessibleName = "Management zones covered"},
                                               {.AccessibleName = "Threats covered"}}};
};
