// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/form_test.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

class ProjectCopyTest : public FormTest {
protected:
    std::vector<std::pair<ProjectStep, std::string>> steps;

    void SetUp() override {
        form.ProjectStepTaken.Join(
            this, [this](ProjectStep step, const std::string& path) { steps.emplace_back(step, path); });
    }
    /// What a save would lose, as "grid row column text".
    std::vector<std::string> lost() const {
        std::vector<std::string> texts;
        for (const UncarriedCell& cell : form.TakeCopy().lostBySaving()) {
            texts.push_back(cell.Grid + " " + std::to_string(cell.Row) + " " + std::to_string(cell.Column) +
                            " " + cell.Text);
        }
        return texts;
    }
    std::vector<std::string> lostInWords() const {
        std::vector<std::string> texts;
        for (const CellInWords& cell : form.LostInWords(form.TakeCopy())) {
            texts.push_back(cell.Table + " | " + cell.Row + " | " + cell.Column + " | " + cell.Text);
        }
        return texts;
    }
};

}  // namespace

TEST_F(ProjectCopyTest, TextIsThatOfASavedFile) {
    EXPECT_EQ(form.TakeCopy().Text, save());
    open(ProjectText(3, 2, 2, 2).set("Home-range definition", "user-defined bins,0,5"));
    EXPECT_EQ(form.TakeCopy().Text, save());
}

TEST_F(ProjectCopyTest, NewAndOpenedProjectsLoseNothing) {
    EXPECT_THAT(lost(), IsEmpty());
    open(ProjectText(3, 2, 2, 2));
    EXPECT_THAT(lost(), IsEmpty());
}

TEST_F(ProjectCopyTest, CommasAndLineBreaksAreLost) {
    addHabitats({"Reed", "Bog, wet"});
    form.flxHabitatTypes.TextMatrix(1, list::Area, "0,5");
    form.flxHabitatTypes.TextMatrix(2, list::Area, "1\r2");
    EXPECT_THAT(lost(), ElementsAre("flxHabitatTypes 2 1 Bog, wet", "flxHabitatTypes 1 2 0,5",
                                    "flxHabitatTypes 2 2 1\r2"));
    EXPECT_THAT(form.TakeCopy().Text,
                testing::HasSubstr("Habitat Type = Reed,Bog. wet\r\nHabitat Area = 0.5,1\n2\r\n"));
}

TEST_F(ProjectCopyTest, BlanksAreLostAtTheEndsOfALineOnly) {
    addSpecies({" Ant ", " Bee ", " Cat "});
    EXPECT_THAT(lost(), ElementsAre("flxCandidateSpecies 1 1  Ant ", "flxCandidateSpecies 3 1  Cat "));
}

TEST_F(ProjectCopyTest, ListOfOneBlankNameIsLost) {
    addZones({""});
    EXPECT_THAT(lost(), ElementsAre("flxJurisUnits 1 1 "));
    EXPECT_THAT(form.TakeCopy().Text, testing::HasSubstr("Jurisdictional Unit = ?\r\n"));
    addZones({"North"});
    EXPECT_THAT(lost(), IsEmpty());
}

TEST_F(ProjectCopyTest, LevelsAreLostOnceTheyWereChanged) {
    form.txtErrorMargin.Text("10");
    EXPECT_THAT(lost(), ElementsAre("txtErrorMargin 0 0 10"));
    EXPECT_THAT(lostInWords(), ElementsAre("Margin of Error: |  |  | 10"));
}

TEST_F(ProjectCopyTest, BreakpointsOfAnotherHomeRangeTypeAreLost) {
    form.optHomeRangeType(2).UserClick();
    type(form.txtTotalBins, "2");
    form.cmdUpdateBins.UserClick();
    form.flxBins.TextMatrix(1, 1, "5");
    form.flxBins.TextMatrix(2, 1, "10");
    EXPECT_THAT(lost(), IsEmpty());
    form.optHomeRangeType(0).UserClick();
    EXPECT_THAT(lost(), ElementsAre("flxBins 1 1 5", "flxBins 2 1 10"));
}

TEST_F(ProjectCopyTest, CellsAreNamedInWords) {
    open(ProjectText(2, 2, 1, 2));
    form.flxHabitatTypes.TextMatrix(2, list::Area, "0,5");
    form.flxSummary(summary::HabitatsBySpecies).TextMatrix(3, use::Level, "1,5");
    form.flxSummary(summary::ThreatsBySpecies).TextMatrix(2, threat::Recovery, "2,5");
    form.flxSummary(summary::Area).TextMatrix(2, area::Occupied, "0,3");
    const auto heading = [](const ui::Grid& grid, int col) { return std::string(grid.TextMatrix(0, col)); };
    EXPECT_THAT(lostInWords(),
                ElementsAre("Habitat types | 2 | " + heading(form.flxHabitatTypes, list::Area) + " | 0,5",
                            "Habitat use by species | Species 2, Habitat 1 | " +
                                heading(form.flxSummary(2), use::Level) + " | 1,5",
                            "Area | Species 2 | " + heading(form.flxSummary(4), area::Occupied) + " | 0,3",
                            "Vulnerability by species | Species 1, Activity 2 | " +
                                heading(form.flxSummary(6), threat::Recovery) + " | 2,5"));
    form.txtRemoveFunctionIndex.Text("1");
    while (global.TotalFunctions > 0) form.cmdRemoveFunction.UserClick();
    EXPECT_EQ(lostInWords().front(), "Functions |  |  | ");
}

TEST_F(ProjectCopyTest, LevelsAndPathComeBack) {
    form.txtErrorMargin.Text("12");
    const ProjectCopy copy = form.TakeCopy();
    form.mnuNewProject.UserClick();
    form.RestoreCopy(copy, "/home/planner/landscape.brn");
    EXPECT_EQ(form.txtErrorMargin.Text(), "12");
    EXPECT_EQ(form.Caption(), "Brenica - /home/planner/landscape.brn");
    form.RestoreCopy(copy, "");
    EXPECT_EQ(form.Caption(), "Brenica");
    EXPECT_EQ(global.ProjectFileName, "");
}

TEST_F(ProjectCopyTest, CellsThatAreNotThereArePassedOver) {
    ProjectCopy copy = form.TakeCopy();
    for (const char* grid :
         {"flxSummary(2)", "flxSummary(6)", "flxBins", "flxHabitatTypes", "flxNone", "flxScores(0)"}) {
        for (const int row : {-1, 0, 3}) copy.Uncarried.push_back({grid, row, 4, "x", true});
    }
    form.RestoreCopy(copy, "");
    EXPECT_EQ(form.TakeCopy().Text, save());
}

TEST_F(ProjectCopyTest, StepsAreTold) {
    const std::string path = folder.file("project.brn");
    platform.Files = {path};
    form.mnuSaveProject.UserClick();
    EXPECT_THAT(steps, ElementsAre(Pair(ProjectStep::Saving, path), Pair(ProjectStep::Saved, path)));
    steps.clear();
    form.UserOpenFile(path);
    EXPECT_THAT(steps, ElementsAre(Pair(ProjectStep::Left, ""), Pair(ProjectStep::Opened, path)));
    steps.clear();
    form.mnuNewProject.UserClick();
    EXPECT_THAT(steps, ElementsAre(Pair(ProjectStep::Left, "")));
}

TEST_F(ProjectCopyTest, FailedSavesAndOpensAreNotToldAsDone) {
    platform.Files = {folder.file("none/project.brn")};
    form.mnuSaveProject.UserClick();
    EXPECT_THAT(steps, ElementsAre(Pair(ProjectStep::Saving, folder.file("none/project.brn"))));
    steps.clear();
    form.UserOpenFile(folder.file("none.brn"));
    EXPECT_THAT(steps, ElementsAre(Pair(ProjectStep::Left, "")));
}

TEST_F(ProjectCopyTest, ExitIsGivingUpOnlyAfterNo) {
    addSpecies({"Ant"});
    platform.Answers = {"yes"};
    platform.Files = {folder.file("project.brn")};
    form.mnuExit.UserClick();
    EXPECT_THAT(steps, ElementsAre(Pair(ProjectStep::Saving, "")));
    steps.clear();
    platform.Answers = {"no"};
    form.mnuExit.UserClick();
    EXPECT_THAT(steps, ElementsAre(Pair(ProjectStep::GivenUp, "")));
}

TEST_F(ProjectCopyTest, ExitWithoutAQuestionIsNotGivingUp) {
    form.mnuExit.UserClick();
    EXPECT_TRUE(form.Unloaded());
    EXPECT_THAT(steps, IsEmpty());
}

TEST_F(ProjectCopyTest, OpeningAFileAsksTheSaveQuestionAndNoDialogue) {
    const std::string path = folder.file("project.brn");
    writeFile(path, ProjectText(2, 1, 1, 1).text());
    addSpecies({"Ant"});
    platform.Answers = {"no"};
    form.UserOpenFile(path);
    EXPECT_THAT(shownTitles(), ElementsAre("Save Project"));
    EXPECT_EQ(global.TotalSpecies, 2);
}

// Cancel in the dialogue of the save question ends the command; the file is not opened at the next Open either.
TEST_F(ProjectCopyTest, FileThatWasNotOpenedIsForgotten) {
    const std::string path = folder.file("project.brn");
    writeFile(path, ProjectText(2, 1, 1, 1).text());
    addSpecies({"Ant"});
    platform.Answers = {"yes"};
    form.UserOpenFile(path);
    EXPECT_EQ(global.TotalSpecies, 1);
    platform.Answers = {"no"};
    form.mnuOpenProject.UserClick();
    EXPECT_EQ(global.TotalSpecies, 1);
}

TEST_F(ProjectCopyTest, NoFileIsOpenedOnceOneHasFailedHalfWay) {
    openText("Function = 1\r\n");
    ASSERT_TRUE(form.ProjectLoading);
    addSpecies({"Ant"});
    form.UserOpenFile(folder.file("project.brn"));
    EXPECT_EQ(global.TotalSpecies, 1);
}
