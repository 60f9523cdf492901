// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/columns.h"
#include "support/form_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* HomeRangeQuestion =
    "You will lose all previously entered home range data by changing the home range type. Do you wish to proceed?";

/// Two species with a home range in the default bins, or in bins of the user's own.
ProjectText binnedProject(int type) {
    ProjectText project(2, 1, 1, 1);
    if (type == 1) {
        return project.set("Home-range definition", "default bins").set("Home ranges", "1 - 10 km2,100+ km2");
    }
    return project.set("Home-range definition", "user-defined bins,5").set("Home ranges", "0 - 5 km2,5+ km2");
}

}  // namespace

/// What follows from the order of steps and looks like a slip, but is to stay.
class Settled : public FormTest {
protected:
    void answer(const std::vector<std::string>& answers) {
        platform.Transcript.clear();
        platform.FileDialogs.clear();
        platform.Answers.assign(answers.begin(), answers.end());
    }
    std::string projectFile(const ProjectText& project) {
        const std::string path = folder.file("next.brn");
        writeFile(path, project.text());
        return path;
    }
    std::string gridFile(const std::string& content) {
        const std::string path = folder.file("grid.txt");
        writeFile(path, content);
        return path;
    }
    void import(const std::string& content) {
        platform.Answers.assign(1, "no");
        platform.Files.assign(1, gridFile(content));
        form.mnuImportData.UserClick();
    }
};

TEST_F(Settled, NewAsksTheHomeRangeQuestionMidCommandForBinnedData) {
    for (const int type : {1, 2}) {
        open(binnedProject(type));
        ASSERT_EQ(form.HomeRangeType, type);
        form.ProjectChanged = true;
        answer({"no", "yes"});
        form.mnuNewProject.UserClick();
        EXPECT_THAT(shownTitles(), ElementsAre("Save Project", "Delete home range data"));
        EXPECT_EQ(lastBox().BoxKind, ShownBox::Kind::Question);
        EXPECT_EQ(lastBox().Text, HomeRangeQuestion);
        EXPECT_EQ(form.HomeRangeType, 0);
        EXPECT_TRUE(form.optHomeRangeType(0).Value());
        EXPECT_EQ(global.TotalSpecies, 0);
    }
}

TEST_F(Settled, NoToThatQuestionStillEmptiesTheProject) {
    open(binnedProject(1));
    form.ProjectChanged = false;
    answer({"no"});
    form.mnuNewProject.UserClick();
    EXPECT_THAT(shownTitles(), ElementsAre("Delete home range data"));
    EXPECT_EQ(global.TotalSpecies, 0);
    EXPECT_EQ(form.flxSummary(summary::Area).Rows(), 1);
    EXPECT_EQ(form.HomeRangeType, 0);
    EXPECT_TRUE(form.optHomeRangeType(0).Value());
    EXPECT_FALSE(form.optHomeRangeType(1).Value());
    EXPECT_FALSE(form.ProjectChanged);
}

TEST_F(Settled, OpenAsksTheHomeRangeQuestionMidCommandForBinnedData) {
    for (const int type : {1, 2}) {
        open(binnedProject(type));
        form.ProjectChanged = false;
        const std::string path = projectFile(ProjectText(1, 1, 1, 1));
        answer({"yes"});
        platform.Files.assign(1, path);
        form.mnuOpenProject.UserClick();
        EXPECT_THAT(shownTitles(), ElementsAre("Delete home range data"));
        EXPECT_EQ(form.Caption(), "Brenica - " + path);
        EXPECT_EQ(global.TotalSpecies, 1);
        EXPECT_EQ(form.HomeRangeType, 0);
        EXPECT_EQ(form.flxSummary(summary::Area).TextMatrix(1, area::HomeRange), "10");
        EXPECT_FALSE(form.ProjectChanged);
    }
}

TEST_F(Settled, ContinuousHomeRangesAndBlankOnesAskNothing) {
    open(ProjectText(2, 1, 1, 1));
    form.ProjectChanged = false;
    answer({});
    form.mnuNewProject.UserClick();
    EXPECT_THAT(platform.Transcript, IsEmpty());
    open(binnedProject(1).set("Home ranges", ","));
    form.ProjectChanged = false;
    answer({});
    form.mnuNewProject.UserClick();
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(Settled, EveryPageMoveMarksTheProjectChanged) {
    open(ProjectText(1, 1, 1, 1));
    EXPECT_FALSE(form.ProjectChanged);
    for (const int page : {2, 3, 4, 5, 6, 7, 1}) {
        form.ProjectChanged = false;
        goTo(page);
        EXPECT_TRUE(form.ProjectChanged) << page;
    }
    form.ProjectChanged = false;
    goTo(1);
    EXPECT_FALSE(form.ProjectChanged) << "no move";
}

TEST_F(Settled, AnExportOfAUseTableMarksTheProjectChangedAndOneOfAnotherTableDoesNot) {
    open(ProjectText(1, 1, 1, 1));
    goTo(4);
    form.ProjectChanged = false;
    platform.Files.assign(1, folder.file("a.txt"));
    form.mnuExportData.UserClick();
    EXPECT_TRUE(form.ProjectChanged);
    form.tabCriteriaSummary.UserSelectTab(3);
    form.ProjectChanged = false;
    platform.Files.assign(1, folder.file("b.txt"));
    form.mnuExportData.UserClick();
    EXPECT_FALSE(form.ProjectChanged);
}

TEST_F(Settled, AnExportLeavesTheLabelsOfTheTotalsAsTheyWere) {
    open(ProjectText(2, 2, 2, 1));
    goTo(4);
    const int lastRow = form.flxSummary(0).Rows() - 1;
    const std::vector<std::string> answers = {"1", "2"};
    for (int member = 0; member < 2; ++member) {
        const ui::Grid& grid = form.flxSummary(member);
        const auto heading = rowOf(grid, 0);
        const auto total = rowOf(grid, lastRow - 1);
        const auto count = rowOf(grid, lastRow);
        answer({answers[static_cast<std::size_t>(member)]});
        platform.Files.assign(1, folder.file("a.txt"));
        form.mnuExportData.UserClick();
        EXPECT_EQ(rowOf(grid, 0), heading);
        EXPECT_EQ(rowOf(grid, lastRow - 1), total);
        EXPECT_EQ(rowOf(grid, lastRow), count);
        EXPECT_THAT(heading, testing::Contains("Total by species"));
        EXPECT_THAT(total,
                    ElementsAre(member == 0 ? "Total by habitat" : "Total by MZ", "2", "2", "", "", ""));
    }
}

TEST_F(Settled, ANormalWindowIsRaisedNotForced) {
    form.UserResize(ui::WindowState::Normal, 700, 800, 15000, 6000);
    EXPECT_EQ(form.Left(), 500);
    EXPECT_EQ(form.Top(), 500);
    EXPECT_EQ(form.Width(), 15000);
    EXPECT_EQ(form.Height(), 7000);
    form.UserResize(ui::WindowState::Normal, 700, 800, 9000, 9000);
    EXPECT_EQ(form.Width(), 11000);
    EXPECT_EQ(form.Height(), 9000);
}

TEST_F(Settled, AResizeThatComesInTheMidstOfALayoutIsNotAnswered) {
    int nested = 0;
    platform.TextWidth = [&](std::string_view text, const ui::Font&) {
        if (nested == 0) {
            ++nested;
            form.UserResize(ui::WindowState::Normal, 0, 0, 100, 100);  // as a window manager that refuses
            EXPECT_EQ(form.Width(), 100);
        }
        return static_cast<int>(text.size()) * 100;
    };
    form.UserResize(ui::WindowState::Normal, 0, 0, 200, 200);
    EXPECT_EQ(nested, 1);
    platform.TextWidth = nullptr;
    form.UserResize(ui::WindowState::Normal, 0, 0, 200, 200);
    EXPECT_EQ(form.Width(), 11000) << "the next resize is answered again";
}

TEST_F(Settled, CancelInTheSaveDialogueOfAGraphEndsSilently) {
    open(ProjectText(1, 1, 1, 1));
    goTo(5);
    answer({});
    platform.Files.clear();
    EXPECT_NO_THROW(form.mnuSaveGraph.UserClick());
    EXPECT_EQ(platform.FileDialogs.size(), 1U);
    EXPECT_THAT(platform.Transcript, IsEmpty());
    EXPECT_THAT(platform.CopiedPictures, IsEmpty());
    EXPECT_THAT(platform.SavedPictures, IsEmpty());
}

TEST_F(Settled, ABoxWithoutATitleOfItsOwnHasTheProgramsName) {
    open(ProjectText(1, 1, 1, 1));
    goTo(4);
    answer({});
    form.mnuExportData.UserClick();
    ASSERT_EQ(lastBox().BoxKind, ShownBox::Kind::Input);
    EXPECT_EQ(lastBox().Title, "Brenica");
    goTo(5);
    platform.Files.assign(1, folder.file("a.bmp"));
    platform.BeforeSavePicture = [] { ui::raise(ui::ErrorNumber::DiskFull); };
    form.mnuSaveGraph.UserClick();
    EXPECT_EQ(lastBox().Title, "Brenica");
}

TEST_F(Settled, AnImportedSpeciesGrowsTheTablesByItselfAlone) {
    open(ProjectText(2, 2, 3, 2));
    import("Heron\nStork\n");
    EXPECT_EQ(global.TotalSpecies, 4);
    const int rows[] = {0, 0, 9, 13, 5, 5, 9, 9, 5, 5, 5};  // the first two are built on a page move
    for (int member = 2; member < 11; ++member)
        EXPECT_EQ(form.flxSummary(member).Rows(), rows[member]) << member;
    EXPECT_EQ(form.flxSummary(summary::HabitatsBySpecies).TextMatrix(5, 0), "Heron");
    EXPECT_EQ(form.flxSummary(summary::HabitatsBySpecies).TextMatrix(7, 0), "Stork");
    EXPECT_EQ(form.flxSummary(summary::HabitatsBySpecies).TextMatrix(3, use::Level), "1");
}

TEST_F(Settled, AnImportedUnitGrowsTheTablesByItselfAlone) {
    open(ProjectText(2, 1, 1, 1));
    goTo(2);
    import("Bog\nFen\n");
    EXPECT_EQ(global.TotalHabitatTypes, 3);
    EXPECT_EQ(form.flxSummary(summary::HabitatsBySpecies).Rows(), 7);
    form.optLandChar(1).UserClick();
    import("North\n");
    EXPECT_EQ(form.flxSummary(summary::JurisUnitsBySpecies).Rows(), 5);
    form.optLandChar(2).UserClick();
    import("Roads\t1\t1\n");
    EXPECT_EQ(form.flxSummary(summary::ThreatsBySpecies).Rows(), 5);
    EXPECT_EQ(form.flxSummary(summary::SpeciesByThreat).Rows(), 5);
    form.optLandChar(4).UserClick();
    import("Grazing\n");
    EXPECT_EQ(form.flxSummary(summary::Functionality).Cols(), 8);
    EXPECT_EQ(form.flxSummary(summary::Functionality).TextMatrix(0, 7), "Grazing");
    EXPECT_EQ(form.flxFunctionality.Rows(), 8);
}

TEST_F(Settled, AnImportedBreakpointSetsTheHomeRangeControlsOfItsType) {
    open(binnedProject(2));
    goTo(2);
    form.optLandChar(3).UserClick();
    form.cmdUpdateBins.Enabled(false);
    form.lblContinuousHR.Visible(true);
    import("25\n");
    EXPECT_EQ(global.TotalBins, 2);
    EXPECT_EQ(form.HomeRangeType, 2);
    EXPECT_TRUE(form.cmdUpdateBins.Enabled());
    EXPECT_FALSE(form.lblContinuousHR.Visible());
}

TEST_F(Settled, TheDataQualityBoxStoresWhetherTheUserOrCodeChooses) {
    open(ProjectText(1, 1, 1, 1));
    goTo(3);
    const auto stored = [&] { return std::string(form.flxSummary(summary::DataQuality).TextMatrix(1, 1)); };
    form.cbxDataQuality.UserChoose(2);
    EXPECT_EQ(stored(), "3");
    form.cbxDataQuality.ListIndex(5);
    EXPECT_EQ(stored(), "6");
    form.cbxDataQuality.ListIndex(-1);
    EXPECT_EQ(stored(), "6");
}

TEST_F(Settled, ALevelOfUseBelowAThresholdByAFractionDoesNotReachIt) {
    open(ProjectText(1, 2, 2, 1)
             .set("Habitat UseLevel", "2,1")
             .set("MZone UseLevel", "2,1")
             .set("HeteroHabitat Population", "1.5,1.5")
             .set("HeteroJU Individual", "1.5,1.5"));
    walkTo(7);
    form.cmdComplement.UserClick();
    EXPECT_EQ(form.flxCompResults(0).TextMatrix(1, result::AddHabitats), "1");
    EXPECT_EQ(form.flxCompResults(0).TextMatrix(1, result::AddJurisUnits), "1");
    EXPECT_THAT(columnOf(form.flxCompResults(1), 1), ElementsAre("First covered by species", "", "1"));
    EXPECT_THAT(columnOf(form.flxCompResults(2), 1), ElementsAre("First covered by species", "", "1"));
}

/// Ends of commands beside those that every command shares.
class ProjectEnds : public Settled {};

TEST_F(ProjectEnds, ACommandThatEndsByAnErrorKeepsTheFolderOfTheNextDialogue) {
    form.cdgFileDialog.InitDir = "/program";
    form.ProjectChanged = true;
    answer({"yes"});
    platform.Files.assign(1, folder.file("chosen.brn"));
    form.mnuExit.UserClick();
    EXPECT_EQ(form.cdgFileDialog.InitDir, "/program");
    platform.Files.assign(1, folder.file("missing.brn"));
    form.ProjectChanged = false;
    form.mnuOpenProject.UserClick();
    EXPECT_EQ(form.cdgFileDialog.InitDir, "/program");
    form.mnuNewProject.UserClick();
    EXPECT_EQ(form.cdgFileDialog.InitDir, "");
}

TEST_F(ProjectEnds, AfterYesAtExitTheProgramCanBeUsedAndLeftWithNo) {
    addSpecies({"Otter"});
    answer({"yes", "yes", "no"});
    platform.Files.assign({folder.file("a.brn"), folder.file("b.brn")});
    form.mnuExit.UserClick();
    addSpecies({"Adder"});
    form.mnuExit.UserClick();
    EXPECT_FALSE(form.Unloaded());
    EXPECT_EQ(global.TotalSpecies, 2);
    EXPECT_FALSE(std::filesystem::exists(folder.file("a.brn")));
    EXPECT_FALSE(std::filesystem::exists(folder.file("b.brn")));
    EXPECT_EQ(form.Caption(), "Brenica");
    form.mnuExit.UserClick();
    EXPECT_TRUE(form.Unloaded());
    EXPECT_EQ(platform.Transcript.size(), 3U);
}

TEST_F(ProjectEnds, TheSaveDialogueBeforeNewProposesTheProjectsFile) {
    open(ProjectText(1, 1, 1, 1));
    const std::string path = global.ProjectFileName;
    form.ProjectChanged = true;
    answer({"yes"});
    form.mnuNewProject.UserClick();
    ASSERT_EQ(platform.FileDialogs.size(), 1U);
    EXPECT_EQ(platform.FileDialogs[0].FileName, path);
    EXPECT_EQ(platform.FileDialogs[0].DefaultExt, ".brn");
}

TEST_F(ProjectEnds, NewAfterASaveFromAnotherPageGoesBackToTheFirst) {
    open(ProjectText(2, 1, 1, 1));
    walkTo(6);
    answer({"yes"});
    platform.Files.assign(1, folder.file("a.brn"));
    form.mnuNewProject.UserClick();
    EXPECT_TRUE(std::filesystem::exists(folder.file("a.brn")));
    EXPECT_EQ(form.tabBrenica.SelectedItem(), 1);
    EXPECT_EQ(form.CurrentMainTab, 1);
    EXPECT_EQ(form.Caption(), "Brenica");
    EXPECT_FALSE(form.ProjectChanged);
}
