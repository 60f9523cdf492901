// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/form_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

/// The form as it is when it opens.
class FormLoad : public FormTest {
protected:
    using Headings = std::vector<std::string>;
    template <class T>
    static std::vector<int> visible(ui::ControlArray<T>& controls) {
        std::vector<int> shown;
        for (int i = 0; i < controls.Count(); ++i) {
            if (controls(i).Visible()) shown.push_back(i);
        }
        return shown;
    }
};

TEST_F(FormLoad, OpensMaximisedOnTheSpeciesPage) {
    EXPECT_EQ(form.WindowState(), ui::WindowState::Maximized);
    EXPECT_EQ(form.Caption(), "Brenica");
    EXPECT_EQ(form.CurrentMainTab, 1);
    EXPECT_EQ(form.tabBrenica.SelectedItem(), 1);
    EXPECT_THAT(visible(form.fraTabContents), ElementsAre(0));
    EXPECT_FALSE(form.ProjectChanged);
    EXPECT_FALSE(form.Unloaded());
    EXPECT_EQ(global.ProjectFileName, "");
    EXPECT_EQ(global.ProjectVersion, "");
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(FormLoad, SetsTheFileDialogueOnce) {
    ScriptedPlatform own;
    own.Folder = "/program";
    frmBrenica second(own, files, global);
    EXPECT_EQ(second.cdgFileDialog.Flags, 6);
    EXPECT_TRUE(second.cdgFileDialog.CancelError);
    EXPECT_EQ(second.cdgFileDialog.Filter, "Text Files (*.txt)|*.txt");
    EXPECT_EQ(second.cdgFileDialog.FilterIndex, 1);
    EXPECT_EQ(second.cdgFileDialog.InitDir, "/program");
}

TEST_F(FormLoad, GivesEveryGridItsHeadings) {
    const std::pair<ui::Grid*, Headings> grids[] = {
        {&form.flxCandidateSpecies, {"No.", "Common Name", "Scientific Name"}},
        {&form.flxHabitatTypes, {"No.", "Habitat Name", "Area", "Level of Use"}},
        {&form.flxJurisUnits, {"No.", "MZ Name", "Area", "Level of Use"}},
        {&form.flxLandUses, {"No.", "Human Activity", "Urgency", "Probability of occurence"}},
        {&form.flxBins, {"No.", "Breakpoint"}},
        {&form.flxFunctions, {"No.", "Functions"}},
        {&form.flxHabitatHetero, {"Habitat Name", "Level of Use"}},
        {&form.flxJurisUnitHetero, {"MZ Name", "Level of Use"}},
        {&form.flxLandUsesVulnerability, {"Human Activity", "Severity", "Recovery", "Proportion affected"}},
        {&form.flxFunctionality, {"Functions", "Has an effect on"}},
        {&form.flxSocioEcon, {"Socio-economic", "Significance?"}},
        {&form.flxSummary(0), {"Common Name"}},
        {&form.flxSummary(1), {"Common Name"}},
        {&form.flxSummary(2), {"Common Name", "Habitat Name", "Level of Use"}},
        {&form.flxSummary(3), {"Common Name", "MZ Name", "Level of Use"}},
        {&form.flxSummary(4),
         {"Common Name", "Dispersal > 10 km", "Connectivity", "Home Range", "Landscape Occupied"}},
        {&form.flxSummary(5), {"Common Name", "CCS", ""}},
        {&form.flxSummary(6),
         {"Common Name", "Human Activity", "Urgency", "Probability of occurence", "Severity", "Recovery",
          "Proportion affected"}},
        {&form.flxSummary(7),
         {"Human Activity", "Common Name", "Severity", "Recovery", "Proportion affected"}},
        {&form.flxSummary(8),
         {"Common Name", "Predation", "Seed dispersal", "Seed predation", "Pollination",
          "Mechanical disturbance", "Competitive interactions"}},
        {&form.flxSummary(9),
         {"Common Name", "Potential flagship species", "Positive local cultural value",
          "Negative local cultural value", "Negative economic value", "Positive economic value"}},
        {&form.flxSummary(10),
         {"Common Name", "Heterogeneity", "Area", "Vulnerability", "Functionality", "Socio-economic"}},
        {&form.flxScores(0), {"Common Name", "Rank", "Aggregate", "H", "A", "V", "F", "S-E"}},
        {&form.flxScores(1), {"Common Name", "H", "A", "V", "F", "S-E"}},
        {&form.flxScoresSort(0), {"Common Name", "Rank", "Aggregate", "H", "A", "V", "F", "S-E", ""}},
        {&form.flxScoresSort(1), {"Common Name", "H", "A", "V", "F", "S-E", ""}},
        {&form.flxBrenicSuite, {"No.", "Common Name", "Habitat Types", "Manag. Zones", "Threats"}},
        {&form.flxCompResults(0),
         {"Common Name", "Rank", "Aggregate", "ReH", "A", "ReV", "F", "S-E", "Add. Habitats", "Add. MZones",
          "Add. Threats", ""}},
        {&form.flxCompResults(1), {"Habitat Name", "First covered by species"}},
        {&form.flxCompResults(2), {"MZ Name", "First covered by species"}},
        {&form.flxCompResults(3), {"Potential threat", "First covered by species"}}};
    for (const auto& [grid, headings] : grids) {
        SCOPED_TRACE(grid->Name());
        EXPECT_EQ(rowOf(*grid, 0), headings);
        EXPECT_EQ(grid->FixedRows(), 1);
        EXPECT_EQ(grid->FixedCols(), 1);
        const bool listOfItsOwn =
            grid == &form.flxFunctions || grid == &form.flxFunctionality || grid == &form.flxSocioEcon;
        if (!listOfItsOwn) {
            EXPECT_EQ(grid->Rows(), 1);
        }
        EXPECT_TRUE(grid->WordWrap && grid->ScrollTrack && grid->Redraw());
        EXPECT_EQ(grid->FocusRect, 2);
        EXPECT_EQ(grid->HighLight, 0);
        EXPECT_EQ(grid->SelectionMode, 0);
        EXPECT_EQ(grid->FillStyle, 1);
        EXPECT_EQ(grid->MergeCells, 1);
    }
}

TEST_F(FormLoad, OpensTheListsAndEntryGridsForEditingOnly) {
    for (ui::Grid* grid :
         {&form.flxCandidateSpecies, &form.flxHabitatTypes, &form.flxJurisUnits, &form.flxLandUses,
          &form.flxBins, &form.flxFunctions, &form.flxHabitatHetero, &form.flxJurisUnitHetero,
          &form.flxLandUsesVulnerability, &form.flxFunctionality, &form.flxSocioEcon}) {
        EXPECT_EQ(grid->Editable, ui::EditMode::KeyboardAndMouse) << grid->Name();
    }
    EXPECT_EQ(form.flxBrenicSuite.Editable, ui::EditMode::ReadOnly);
    for (auto* grids : {&form.flxSummary, &form.flxScores, &form.flxScoresSort, &form.flxCompResults}) {
        for (ui::Grid& grid : *grids) EXPECT_EQ(grid.Editable, ui::EditMode::ReadOnly) << grid.Name();
    }
}

TEST_F(FormLoad, HidesTheKeyColumns) {
    EXPECT_TRUE(form.flxScoresSort(0).ColHidden(8));
    EXPECT_TRUE(form.flxScoresSort(1).ColHidden(6));
    EXPECT_TRUE(form.flxCompResults(0).ColHidden(11));
    EXPECT_FALSE(form.flxScoresSort(0).ColHidden(7));
}

TEST_F(FormLoad, FillsTheFixedLists) {
    EXPECT_THAT(columnOf(form.flxFunctions, 0), ElementsAre("No.", "1", "2", "3", "4", "5", "6"));
    EXPECT_THAT(
        columnOf(form.flxSocioEcon, 0),
        ElementsAre("Socio-economic", "Potential flagship species", "Positive local cultural value",
                    "Negative local cultural value", "Negative economic value", "Positive economic value"));
    EXPECT_EQ(form.flxFunctionality.Rows(), 7);
    const std::pair<ui::ComboBox*, Headings> boxes[] = {
        {&form.cbxDefaultBinsHR,
         {"0 - 1 km2", "1 - 10 km2", "10 - 25 km2", "25 - 50 km2", "50 - 100 km2", "100+ km2"}},
        {&form.cbxDispersalYN, {"N/A", "Y", "N"}},
        {&form.cbxConnectivity, {"N/A", "Y", "N"}},
        {&form.cbxDataQuality,
         {"1 - Excellent data from site", "2 - Excellent data from similar site",
          "3 - Good data from site/similar site", "4 - Bad or incomplete data from site/similar site",
          "5 - Data from similar species/dissimilar site", "6 - No data just informed guesses"}},
        {&form.cbxSpeciesName, {}},
        {&form.cbxUserDefBinsHR, {}}};
    for (const auto& [box, items] : boxes) {
        Headings texts;
        for (int i = 0; i < box->ListCount(); ++i) texts.push_back(box->List(i));
        EXPECT_EQ(texts, items) << box->Name();
    }
    EXPECT_EQ(form.cbxDispersalYN.ListIndex(), 0);
    EXPECT_EQ(form.cbxConnectivity.ListIndex(), 0);
    EXPECT_EQ(form.cbxDefaultBinsHR.ListIndex(), -1);
    EXPECT_EQ(form.cbxDataQuality.ListIndex(), -1);
}

TEST_F(FormLoad, ShowsTheFirstViewOfEachPage) {
    EXPECT_THAT(visible(form.fraLandCharInfo), ElementsAre(0));
    EXPECT_THAT(visible(form.fraCriteria), ElementsAre(0));
    EXPECT_THAT(visible(form.flxSummary), ElementsAre(0, 1));
    EXPECT_THAT(visible(form.chtSummary), ElementsAre(0));
    EXPECT_THAT(visible(form.flxScoresSort), ElementsAre(0));
    EXPECT_THAT(visible(form.flxScores), IsEmpty());
    EXPECT_THAT(visible(form.chtScores), IsEmpty());
    EXPECT_THAT(visible(form.flxCompResults), ElementsAre(0));
    EXPECT_TRUE(form.optLandChar(0).Value());
    EXPECT_TRUE(form.optHomeRangeType(0).Value());
    EXPECT_TRUE(form.optScoreDisplay(0).Value());
    EXPECT_TRUE(form.optCompResults(0).Value());
    for (ui::OptionButton& button : form.optCompResults) EXPECT_FALSE(button.Enabled());
    EXPECT_FALSE(form.lblCCS.Visible());
    EXPECT_FALSE(form.txtCCS.Visible());
    EXPECT_TRUE(form.lblDataQuality.Visible());
    EXPECT_TRUE(form.cbxDataQuality.Visible());
    EXPECT_TRUE(form.txtContinuousHR.Visible());
    EXPECT_FALSE(form.cbxDefaultBinsHR.Visible());
    EXPECT_FALSE(form.cbxUserDefBinsHR.Visible());
    EXPECT_FALSE(form.chkShowGraphs.Value());
    EXPECT_TRUE(form.chkShowAggregateScore.Value());
    EXPECT_FALSE(form.chkShowAggregateScore.Enabled());
    EXPECT_FALSE(form.chkAllowSummaryEdit.Value());
    EXPECT_TRUE(form.chkAllowSummaryEdit.Enabled());
    for (ui::Control* control : std::initializer_list<ui::Control*>{
             &form.lblAddBins, &form.lblNewBins, &form.txtTotalBins, &form.cmdUpdateBins, &form.cmdRemoveBin,
             &form.txtRemoveBinIndex}) {
        EXPECT_FALSE(control->Enabled()) << control->Name();
    }
}

TEST_F(FormLoad, NamesItsTabsWithKeysAndTips) {
    struct Expected {
        const char* Caption;
        const char* Key;
        const char* Tip;
    };
    const Expected pages[] = {
        {"Candidate Species", "Shift-C", "List of potential brenic species"},
        {"Parameter Specifications", "Shift-P",
         "The habitats, jurisdictional units, human activities, human range definition & functions"},
        {"Selection Criteria", "Shift-S",
         "Heterogeneity, area, vulnerability, functionality and socio-economics"},
        {"Summary Tables", "Shift-T", "Summary overview of Brenica data"},
        {"Summary Graphs", "Shift-G", "Summary graphs of Brenica data"},
        {"Aggregate Scores", "Shift-A", "The scores for the brenic species over all selection criteria."},
        {"Complementarity", "Shift-O", "Selection of the suite of brenic species using complementarity."}};
    ASSERT_EQ(form.tabBrenica.Tabs().size(), std::size(pages));
    for (std::size_t i = 0; i < std::size(pages); ++i) {
        EXPECT_EQ(form.tabBrenica.Tabs()[i].Caption, pages[i].Caption);
        EXPECT_EQ(form.tabBrenica.Tabs()[i].Key, pages[i].Key);
        EXPECT_EQ(form.tabBrenica.Tabs()[i].ToolTipText, pages[i].Tip);
    }
    EXPECT_EQ(form.optHomeRangeType(0).ToolTipText(),
              "Home ranges defined as continuous values for each candidate species");
    EXPECT_EQ(form.optHomeRangeType(1).ToolTipText(),
              "Home ranges selected from a set of predefined intervals for each candidate species");
    EXPECT_EQ(form.optHomeRangeType(2).ToolTipText(),
              "Home ranges selected from a set of user-defined intervals for each candidate species");
}

TEST_F(FormLoad, NamesItsMenu) {
    const std::pair<ui::MenuItem*, const char*> items[] = {
        {&form.mnuProject, "Project"},   {&form.mnuNewProject, "New"},    {&form.mnuOpenProject, "Open"},
        {&form.mnuSaveProject, "Save"},  {&form.mnuExit, "Exit"},         {&form.mnuData, "Data"},
        {&form.mnuImportData, "Import"}, {&form.mnuExportData, "Export"}, {&form.mnuPrintGrid, "Print"},
        {&form.mnuGraph, "Graph"},       {&form.mnuSaveGraph, "Save"},    {&form.mnuCopyGraph, "Copy"},
        {&form.mnuPrintGraph, "Print"}};
    for (const auto& [item, caption] : items) {
        EXPECT_EQ(item->Caption(), caption) << item->Name();
        EXPECT_TRUE(item->Enabled()) << item->Name();
    }
}

TEST_F(FormLoad, WithoutSpeciesTheTablesHaveTheirHeadingsOnly) {
    goTo(2);
    addHabitats({"Bog", "Fen"});
    walkTo(7);
    for (const int member : {2, 3, 6, 7}) {
        for (int row = 1; row < form.flxSummary(member).Rows(); ++row) {
            EXPECT_EQ(form.flxSummary(member).TextMatrix(row, 0), "") << member;
        }
    }
    EXPECT_FALSE(global.ScoresCalculated);
    EXPECT_FALSE(form.cmdComplement.Enabled());
}

TEST_F(FormLoad, ATextThatIsNoNumberStaysUntilItIsCalculatedWith) {
    open(ProjectText(2, 1, 1, 1).set("Conservation Status", "0.5,rare"));
    EXPECT_EQ(form.flxSummary(5).TextMatrix(2, 1), "rare");
    EXPECT_NO_THROW(walkTo(5));
    EXPECT_EQ(form.flxSummary(5).TextMatrix(2, 1), "rare");
    EXPECT_EQ(failureOf([&] { goTo(6); }).Description,
              reportOf("BrenicaUtilities.GetVulnerabilityScore", 13, "Type mismatch"));
}

TEST_F(FormLoad, TheVersionReadBeforeOutlivesANewProject) {
    open(ProjectText(1, 1, 1, 1));
    form.mnuNewProject.UserClick();
    EXPECT_EQ(global.ProjectVersion, "VERSION2");
}

TEST_F(FormLoad, ANormalWindowIsRaisedToItsLeastSize) {
    form.WindowState(ui::WindowState::Normal);
    form.Move(0, 0, 100, 100);
    form.ResizeForm();
    EXPECT_EQ(form.Left(), 500);
    EXPECT_EQ(form.Top(), 500);
    EXPECT_EQ(form.Width(), 11000);
    EXPECT_EQ(form.Height(), 7000);
}

TEST_F(FormLoad, AMinimisedWindowIsLeftAlone) {
    form.WindowState(ui::WindowState::Minimized);
    form.Move(1, 2, 100, 200);
    form.ResizeForm();
    EXPECT_EQ(form.Left(), 1);
    EXPECT_EQ(form.Top(), 2);
    EXPECT_EQ(form.Width(), 100);
    EXPECT_EQ(form.Height(), 200);
}
