// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/form_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

/// New, Open, Save and Exit.
class ProjectCommands : public FormTest {
protected:
    const std::string saved_ = folder.file("saved.brn");

    static std::string question(const std::string& before) {
        return "Would you like to save the current project before " + before + "?";
    }
    std::string projectFile(const std::string& name, const ProjectText& text = ProjectText(1, 1, 1, 1)) {
        const std::string path = folder.file(name);
        writeFile(path, text.text());
        return path;
    }
    void answer(const std::vector<std::string>& answers,
                const std::vector<std::optional<std::string>>& paths) {
        platform.Transcript.clear();
        platform.FileDialogs.clear();
        platform.Answers.assign(answers.begin(), answers.end());
        platform.Files.assign(paths.begin(), paths.end());
    }
    std::vector<ui::FileDialogKind> dialogs() const {
        std::vector<ui::FileDialogKind> kinds;
        for (const auto& request : platform.FileDialogs) kinds.push_back(request.Kind);
        return kinds;
    }
    static constexpr auto Open = ui::FileDialogKind::Open;
    static constexpr auto Save = ui::FileDialogKind::Save;
};

TEST_F(ProjectCommands, AskToSaveAChangedProject) {
    const std::pair<ui::MenuItem*, std::string> commands[] = {
        {&form.mnuNewProject, question("starting a new project")},
        {&form.mnuOpenProject, question("opening another project")},
        {&form.mnuExit, question("exiting")}};
    for (const auto& [item, text] : commands) {
        form.ProjectChanged = true;
        answer({"yes"}, {});  // Cancel in the dialogue ends the command, so that the next one starts alike
        item->UserClick();
        ASSERT_EQ(platform.Transcript.size(), 1U);
        EXPECT_EQ(lastBox().BoxKind, ShownBox::Kind::Question);
        EXPECT_EQ(lastBox().Text, text);
        EXPECT_EQ(lastBox().Title, "Save Project");
        EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Question);
        EXPECT_THAT(dialogs(), ElementsAre(Save));
    }
}

TEST_F(ProjectCommands, AskNothingOfAnUnchangedProject) {
    answer({}, {projectFile("a.brn")});
    form.mnuOpenProject.UserClick();
    form.mnuNewProject.UserClick();
    form.mnuExit.UserClick();
    EXPECT_THAT(platform.Transcript, IsEmpty());
    EXPECT_TRUE(form.Unloaded());
}

TEST_F(ProjectCommands, CompareTheirNameInAnyCase) {
    addSpecies({"Otter"});
    answer({"no"}, {});
    form.MenuSelectionProject("nEW");
    EXPECT_EQ(global.TotalSpecies, 0);
}

TEST_F(ProjectCommands, AnUnknownCommandOnlySetsTheDialogue) {
    addSpecies({"Otter"});
    platform.Folder = "/somewhere";
    form.cdgFileDialog.InitDir = "/somewhere";
    form.MenuSelectionProject("Close");
    EXPECT_EQ(form.cdgFileDialog.Filter, "Project Files (*.brn)|*.brn");
    EXPECT_EQ(form.cdgFileDialog.DefaultExt, ".brn");
    EXPECT_EQ(form.cdgFileDialog.FileName, "");
    EXPECT_EQ(form.cdgFileDialog.InitDir, "");
    EXPECT_EQ(global.TotalSpecies, 1);
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(ProjectCommands, NewSavesFirstOnYes) {
    addSpecies({"Otter"});
    answer({"yes"}, {saved_});
    form.mnuNewProject.UserClick();
    EXPECT_THAT(readFile(saved_), testing::HasSubstr("Common Name = Otter\r\n"));
    EXPECT_EQ(global.TotalSpecies, 0);
    EXPECT_EQ(form.Caption(), "Brenica");
    EXPECT_EQ(global.ProjectFileName, "");
}

TEST_F(ProjectCommands, NewSavesNothingOnNo) {
    addSpecies({"Otter"});
    answer({"no"}, {});
    form.mnuNewProject.UserClick();
    EXPECT_THAT(dialogs(), IsEmpty());
    EXPECT_EQ(global.TotalSpecies, 0);
    EXPECT_FALSE(form.ProjectChanged);
}

TEST_F(ProjectCommands, CancelInTheSaveDialogueEndsTheWholeCommand) {
    addSpecies({"Otter"});
    for (ui::MenuItem* item : {&form.mnuNewProject, &form.mnuOpenProject, &form.mnuExit}) {
        answer({"yes"}, {std::nullopt, saved_});
        item->UserClick();
        EXPECT_THAT(dialogs(), ElementsAre(Save)) << item->Name();
        EXPECT_EQ(global.TotalSpecies, 1) << item->Name();
        EXPECT_FALSE(form.Unloaded()) << item->Name();
    }
}

TEST_F(ProjectCommands, OpenShowsThePathInTheTitle) {
    const std::string path = projectFile("valley.brn");
    answer({}, {path});
    form.mnuOpenProject.UserClick();
    EXPECT_EQ(form.Caption(), "Brenica - " + path);
    EXPECT_EQ(global.ProjectFileName, path);
    EXPECT_FALSE(form.ProjectChanged);
    EXPECT_EQ(form.CurrentMainTab, 1);
    EXPECT_FALSE(files.IsOpen(1));
}

TEST_F(ProjectCommands, OpenSavesFirstOnYes) {
    addSpecies({"Otter"});
    answer({"yes"}, {saved_, projectFile("next.brn")});
    form.mnuOpenProject.UserClick();
    EXPECT_THAT(dialogs(), ElementsAre(Save, Open));
    EXPECT_THAT(readFile(saved_), testing::HasSubstr("Common Name = Otter\r\n"));
    EXPECT_EQ(form.flxCandidateSpecies.TextMatrix(1, 1), "Species 1");
}

TEST_F(ProjectCommands, CancelInTheOpenDialogueChangesNothing) {
    addSpecies({"Otter"});
    answer({"no"}, {});
    form.mnuOpenProject.UserClick();
    EXPECT_THAT(dialogs(), ElementsAre(Open));
    EXPECT_EQ(platform.Transcript.size(), 1U);
    EXPECT_EQ(global.TotalSpecies, 1);
    EXPECT_EQ(form.Caption(), "Brenica");
    EXPECT_TRUE(form.ProjectChanged);
}

TEST_F(ProjectCommands, AFileThatCannotBeOpenedLeavesAnEmptyProjectUnderTheOldTitle) {
    const std::string path = projectFile("valley.brn");
    answer({}, {path, folder.file("missing.brn")});
    form.mnuOpenProject.UserClick();
    form.mnuOpenProject.UserClick();
    EXPECT_THAT(platform.Transcript, IsEmpty());
    EXPECT_EQ(global.TotalSpecies, 0);
    EXPECT_EQ(form.Caption(), "Brenica - " + path);
    EXPECT_EQ(global.ProjectFileName, path);
}

TEST_F(ProjectCommands, SaveShowsTheDialogueEveryTime) {
    answer({}, {saved_, saved_});
    form.mnuSaveProject.UserClick();
    EXPECT_EQ(form.Caption(), "Brenica - " + saved_);
    form.mnuSaveProject.UserClick();
    ASSERT_THAT(dialogs(), ElementsAre(Save, Save));
    EXPECT_EQ(platform.FileDialogs[0].FileName, "");
    EXPECT_EQ(platform.FileDialogs[1].FileName, saved_);
    EXPECT_EQ(platform.FileDialogs[1].Filter, "Project Files (*.brn)|*.brn");
    EXPECT_EQ(platform.FileDialogs[1].DefaultExt, ".brn");
}

TEST_F(ProjectCommands, SaveTrimsThePathForTheFileOnly) {
    answer({}, {saved_ + "  "});
    form.mnuSaveProject.UserClick();
    EXPECT_TRUE(std::filesystem::exists(saved_));
    EXPECT_EQ(form.Caption(), "Brenica - " + saved_ + "  ");
    EXPECT_EQ(global.ProjectFileName, saved_ + "  ");
}

TEST_F(ProjectCommands, ASaveUnderANewNameShowsItAtOnce) {
    answer({}, {projectFile("old.brn"), saved_});
    form.mnuOpenProject.UserClick();
    form.mnuSaveProject.UserClick();
    EXPECT_EQ(form.Caption(), "Brenica - " + saved_);
}

TEST_F(ProjectCommands, ASaveDoesNotClearTheDirtyFlag) {
    addSpecies({"Otter"});
    answer({"no"}, {saved_});
    form.mnuSaveProject.UserClick();
    EXPECT_TRUE(form.ProjectChanged);
    form.mnuNewProject.UserClick();
    EXPECT_THAT(shownTitles(), ElementsAre("Save Project"));
}

TEST_F(ProjectCommands, CancelInTheSaveCommandHasNoEffect) {
    addSpecies({"Otter"});
    answer({}, {});
    form.mnuSaveProject.UserClick();
    EXPECT_EQ(form.Caption(), "Brenica");
    EXPECT_EQ(global.TotalSpecies, 1);
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(ProjectCommands, YesNeverExits) {
    addSpecies({"Otter"});
    answer({"yes"}, {saved_});
    form.mnuExit.UserClick();
    EXPECT_THAT(dialogs(), ElementsAre(Save));
    EXPECT_EQ(platform.Transcript.size(), 1U);
    EXPECT_FALSE(form.Unloaded());
    EXPECT_FALSE(std::filesystem::exists(saved_));
    EXPECT_EQ(global.TotalSpecies, 1);
}

TEST_F(ProjectCommands, NoExits) {
    addSpecies({"Otter"});
    answer({"no"}, {});
    form.mnuExit.UserClick();
    EXPECT_TRUE(form.Unloaded());
}

TEST_F(ProjectCommands, TheFirstDialogueOpensInTheProgramsFolderAndLaterOnesDoNot) {
    ScriptedPlatform own;
    own.Folder = "/program";
    frmBrenica second(own, files, global);
    second.mnuSaveProject.UserClick();  // Cancel keeps the folder
    own.Files.assign({saved_, saved_});
    second.mnuSaveProject.UserClick();
    second.mnuSaveProject.UserClick();
    ASSERT_EQ(own.FileDialogs.size(), 3U);
    EXPECT_EQ(own.FileDialogs[0].InitDir, "/program");
    EXPECT_EQ(own.FileDialogs[1].InitDir, "/program");
    EXPECT_EQ(own.FileDialogs[2].InitDir, "");
}

TEST_F(ProjectCommands, NewGoesOnWhenTheGateRefusesToLeaveThePage) {
    addSpecies({"Otter"});
    goTo(2);
    addHabitats({""});
    answer({"no", "no"}, {});
    form.mnuNewProject.UserClick();
    EXPECT_THAT(shownTitles(), ElementsAre("Save Project", "Invalid value"));
    EXPECT_EQ(form.tabBrenica.SelectedItem(), 2);
    EXPECT_EQ(form.CurrentMainTab, 1);
    EXPECT_TRUE(form.fraTabContents(0).Visible());
    EXPECT_FALSE(form.fraTabContents(1).Visible());
    EXPECT_EQ(global.TotalSpecies, 0);
    EXPECT_EQ(global.TotalHabitatTypes, 0);
}

TEST_F(ProjectCommands, AFailedSaveStaysSilentAndKeepsItsFileOpen) {
    addSpecies({"Otter"});
    int writes = 0;
    files.BeforeOperation = [&](ui::Files::Operation operation) {
        if (operation == ui::Files::Operation::Write && ++writes == 3) ui::raise(ui::ErrorNumber::DiskFull);
    };
    answer({}, {saved_, folder.file("other.brn")});
    EXPECT_NO_THROW(form.mnuSaveProject.UserClick());
    EXPECT_EQ(form.Caption(), "Brenica");
    EXPECT_THAT(platform.Transcript, IsEmpty());
    EXPECT_TRUE(files.IsOpen(2));
    files.BeforeOperation = nullptr;
    EXPECT_NO_THROW(form.mnuSaveProject.UserClick());
    EXPECT_FALSE(std::filesystem::exists(folder.file("other.brn")));
    ASSERT_TRUE(files.LastFault());
    EXPECT_EQ(files.LastFault()->Error.Number, 55);
}

TEST_F(ProjectCommands, AFailedNewSaveDoesNotClearTheProject) {
    addSpecies({"Otter"});
    answer({"yes"}, {folder.file("missing/a.brn")});
    form.mnuNewProject.UserClick();
    EXPECT_EQ(global.TotalSpecies, 1);
}

/// What New brings back of a project that has been used on every page.
class NewAfterUse : public FormTest {
protected:
    void SetUp() override {
        ProjectText project(3, 2, 2, 2);
        open(
            project.set("HeteroHabitat Population", "2,2,1,1,1,1").set("HeteroJU Individual", "2,2,1,1,1,1"));
        goTo(2);
        form.optLandChar(4).UserClick();
        goTo(3);
        form.tabCriteria.UserSelectTab(3);
        walkTo(7);
        form.cmdComplement.UserClick();
        form.optCompResults(2).UserClick();
        form.tabGraphSummary.UserSelectTab(5);
        type(form.txtErrorMargin, "7");
        type(form.txtThreatRep, "0.7");
        type(form.txtCCSRep, "0.7");
        platform.Answers.assign(1, "no");
        form.mnuNewProject.UserClick();
    }
};

TEST_F(NewAfterUse, EmptiesEveryGrid) {
    for (ui::Grid* grid : {&form.flxCandidateSpecies, &form.flxHabitatTypes, &form.flxJurisUnits,
                           &form.flxLandUses, &form.flxBins, &form.flxHabitatHetero, &form.flxJurisUnitHetero,
                           &form.flxLandUsesVulnerability, &form.flxBrenicSuite}) {
        EXPECT_EQ(grid->Rows(), 1) << grid->Name();
    }
    for (ui::Grid& grid : form.flxSummary) EXPECT_EQ(grid.Rows(), 1) << grid.Name();
    for (ui::Grid& grid : form.flxScores) EXPECT_EQ(grid.Rows(), 1) << grid.Name();
    for (ui::Grid& grid : form.flxScoresSort) EXPECT_EQ(grid.Rows(), 1) << grid.Name();
    for (ui::Grid& grid : form.flxCompResults) EXPECT_EQ(grid.Rows(), 1) << grid.Name();
    EXPECT_EQ(form.flxSummary(0).Cols(), 1);
    EXPECT_EQ(form.flxSummary(1).Cols(), 1);
    EXPECT_EQ(form.flxSummary(5).Cols(), 3);
    EXPECT_EQ(form.cbxSpeciesName.ListCount(), 0);
}

TEST_F(NewAfterUse, BringsTheFunctionsBack) {
    EXPECT_THAT(columnOf(form.flxFunctions, 0), ElementsAre("No.", "1", "2", "3", "4", "5", "6"));
    EXPECT_THAT(columnOf(form.flxFunctions, 1),
                ElementsAre("Functions", "Predation", "Seed dispersal", "Seed predation", "Pollination",
                            "Mechanical disturbance", "Competitive interactions"));
    EXPECT_EQ(form.flxFunctionality.Rows(), 7);
    EXPECT_THAT(rowOf(form.flxSummary(8), 0),
                ElementsAre("Common Name", "Predation", "Seed dispersal", "Seed predation", "Pollination",
                            "Mechanical disturbance", "Competitive interactions"));
    EXPECT_THAT(columnOf(form.flxSocioEcon, 1), ElementsAre("Significance?", "0", "0", "0", "0", "0"));
}

TEST_F(NewAfterUse, SetsTheCountsAndFields) {
    EXPECT_EQ(global.TotalSpecies, 0);
    EXPECT_EQ(global.TotalHabitatTypes, 0);
    EXPECT_EQ(global.TotalJurisUnits, 0);
    EXPECT_EQ(global.TotalLandUses, 0);
    EXPECT_EQ(global.TotalBins, 0);
    EXPECT_EQ(global.TotalFunctions, 6);
    EXPECT_EQ(global.HabitatAreaTotal, 0);
    EXPECT_EQ(global.JurisUnitAreaTotal, 0);
    EXPECT_FALSE(global.ScoresCalculated);
    EXPECT_EQ(form.CurrentMainTab, 1);
    EXPECT_EQ(form.CurrentCriteriaTab, 1);
    EXPECT_EQ(form.CurrentSummaryTab, 1);
    EXPECT_EQ(form.CurrentGraphTab, 1);
    EXPECT_EQ(form.CurrentLandChar, 0);
    EXPECT_EQ(form.HomeRangeType, 0);
    EXPECT_EQ(form.ScoreDisplayMode, 0);
    EXPECT_EQ(form.CurrentSpeciesIndex, 0);
    for (const bool flag : {form.ProjectChanged, form.HabitatUseChanged, form.VulnerabilityChanged,
                            form.FunctionalityChanged, form.SocioEconChanged, form.RefreshingCriteria}) {
        EXPECT_FALSE(flag);
    }
}

TEST_F(NewAfterUse, KeepsWhatItDoesNotTouch) {
    EXPECT_EQ(global.ProjectVersion, "VERSION2");
    EXPECT_EQ(global.SpeciesRanks.size(), 3U);
}

TEST_F(NewAfterUse, SetsTheBoxes) {
    EXPECT_EQ(form.txtErrorMargin.Text(), "5");
    EXPECT_EQ(form.txtThreatRep.Text(), "0.5");
    EXPECT_EQ(form.txtCCSRep.Text(), "1");
    for (ui::TextBox* box :
         {&form.txtContinuousHR, &form.txtPropOccupied, &form.txtTotalSpecies, &form.txtTotalHabitatTypes,
          &form.txtTotalJurisUnits, &form.txtTotalLandUses, &form.txtTotalFunctions, &form.txtTotalBins,
          &form.txtRemoveSpeciesIndex, &form.txtRemoveHabitatIndex, &form.txtRemoveJurisUnitIndex,
          &form.txtRemoveLandUseIndex, &form.txtRemoveFunctionIndex, &form.txtRemoveBinIndex}) {
        EXPECT_EQ(box->Text(), "0") << box->Name();
    }
    EXPECT_EQ(form.cbxDispersalYN.ListIndex(), 0);
    EXPECT_EQ(form.cbxConnectivity.ListIndex(), 0);
    EXPECT_EQ(form.cbxDefaultBinsHR.ListIndex(), -1);
    EXPECT_EQ(form.cbxDataQuality.ListIndex(), -1);
}

TEST_F(NewAfterUse, ShowsTheFirstViewOfEachPage) {
    EXPECT_EQ(form.tabBrenica.SelectedItem(), 1);
    EXPECT_EQ(form.tabCriteria.SelectedItem(), 1);
    EXPECT_EQ(form.tabCriteriaSummary.SelectedItem(), 1);
    EXPECT_EQ(form.tabGraphSummary.SelectedItem(), 1);
    EXPECT_TRUE(form.optLandChar(0).Value());
    EXPECT_TRUE(form.optCompResults(0).Value());
    for (ui::OptionButton& button : form.optCompResults) EXPECT_FALSE(button.Enabled());
    const auto visible = [](auto& controls) {
        std::vector<int> shown;
        for (int i = 0; i < controls.Count(); ++i) {
            if (controls(i).Visible()) shown.push_back(i);
        }
        return shown;
    };
    EXPECT_THAT(visible(form.fraTabContents), ElementsAre(0));
    EXPECT_THAT(visible(form.fraLandCharInfo), ElementsAre(0));
    EXPECT_THAT(visible(form.fraCriteria), ElementsAre(0));
    EXPECT_THAT(visible(form.flxSummary), ElementsAre(0, 1));
    EXPECT_THAT(visible(form.chtSummary), ElementsAre(0));
    EXPECT_THAT(visible(form.chtScores), IsEmpty());
    EXPECT_THAT(visible(form.flxScoresSort), ElementsAre(0));
    EXPECT_THAT(visible(form.flxScores), IsEmpty());
    EXPECT_THAT(visible(form.flxCompResults), ElementsAre(0));
    EXPECT_FALSE(form.chkShowGraphs.Value());
    EXPECT_TRUE(form.chkShowAggregateScore.Value());
    EXPECT_FALSE(form.chkShowAggregateScore.Enabled());
    EXPECT_FALSE(form.chkAllowSummaryEdit.Value());
    EXPECT_TRUE(form.chkAllowSummaryEdit.Enabled());
}

TEST_F(NewAfterUse, ClearsTheCharts) {
    for (ui::Chart& chart : form.chtSummary) EXPECT_THAT(chart.ChartData(), IsEmpty()) << chart.Name();
    for (ui::Chart& chart : form.chtScores) EXPECT_THAT(chart.ChartData(), IsEmpty()) << chart.Name();
}

TEST_F(NewAfterUse, SavesAsANewProjectDoes) {
    const std::string cleared = save();
    ScriptedPlatform ownPlatform;
    modGlobal ownGlobal;
    frmBrenica fresh(ownPlatform, files, ownGlobal);
    const std::string path = folder.file("fresh.brn");
    ownPlatform.Files.push_back(path);
    fresh.mnuSaveProject.UserClick();
    EXPECT_EQ(cleared, readFile(path));
}
