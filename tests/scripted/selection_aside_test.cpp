// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted/selection_aside.h"

#include "support/form_test.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const std::string SmallExample = BRENICA_SOURCE_DIR "/examples/small_landscape.brn";
const std::string FullExample = BRENICA_SOURCE_DIR "/examples/full_landscape.brn";

class AsideTest : public FormTest {
protected:
    void openFile(const std::string& path) {
        opened_ = path;
        form.UserOpenFile(path);
        platform.Transcript.clear();
    }
    void openProject(const ProjectText& project) {
        const std::string path = folder.file("project.brn");
        writeFile(path, project.text());
        openFile(path);
    }
    /// Levels, pages and selection of the full example.
    void selectFullExample() {
        openFile(FullExample);
        type(form.txtErrorMargin, "6");
        type(form.txtThreatRep, "0.4");
        type(form.txtCCSRep, "0.8");
        walkTo(7);
        platform.Answers = {"b", "d", "b", "2"};
        form.cmdComplement.UserClick();
    }
    SelectionAside aside() { return selectAside(form, {opened_, folder.file("copy.brn")}); }
    static std::vector<std::size_t> picksOf(const SelectionRun& run) {
        std::vector<std::size_t> picks;
        for (const method::Pick& pick : run.Outcome.Suite.Picks) picks.push_back(pick.Species);
        return picks;
    }

private:
    std::string opened_;
};

}  // namespace

TEST_F(AsideTest, SelectsFromAProjectWhoseFormWasOnlyOpened) {
    openFile(SmallExample);
    const SelectionAside told = aside();
    ASSERT_TRUE(told.Run);
    EXPECT_EQ(told.Run->Outcome.Suite.Picks.size(), 4U);
    EXPECT_FALSE(told.IsOnView);
    EXPECT_TRUE(told.IsSaved);
}

TEST_F(AsideTest, TellsWhereTheFileLacksValues) {
    openFile(BRENICA_SOURCE_DIR "/examples/version1_landscape.brn");
    EXPECT_TRUE(aside().HasDefaults);
    form.flxCandidateSpecies.TextMatrix(1, list::Name, "Wolf");
    const SelectionAside changed = aside();
    EXPECT_FALSE(changed.IsSaved);
    EXPECT_TRUE(changed.HasDefaults);
    openFile(SmallExample);
    EXPECT_FALSE(aside().HasDefaults);
}

TEST_F(AsideTest, LeavesTheFormAsItIs) {
    openFile(SmallExample);
    const unsigned revision = form.Revision();
    aside();
    EXPECT_EQ(form.Revision(), revision);
    EXPECT_FALSE(global.ScoresCalculated);
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(AsideTest, TakesTheLevelsInTheBoxesWhereNothingWasSelected) {
    openFile(SmallExample);
    type(form.txtErrorMargin, "7.5");
    type(form.txtThreatRep, "0.25");
    type(form.txtCCSRep, "0.75");
    const SelectionAside told = aside();
    ASSERT_TRUE(told.Run);
    EXPECT_EQ(told.Run->Levels.Margin, 7.5);
    EXPECT_EQ(told.Run->Levels.ThreatRepresentation, 0.25);
    EXPECT_EQ(told.Run->Levels.ConservationStatus, 0.75);
}

TEST_F(AsideTest, RepeatsTheSelectionOnViewWithItsLevelsAndAnswers) {
    selectFullExample();
    type(form.txtErrorMargin, "0");
    const SelectionAside told = aside();
    ASSERT_TRUE(told.Run);
    EXPECT_TRUE(told.IsOnView);
    EXPECT_TRUE(told.IsSaved);
    EXPECT_EQ(told.Run->Levels.Margin, 6);
    EXPECT_THAT(told.Run->Outcome.Answers, ElementsAre("b", "d", "b", "2"));
    EXPECT_EQ(picksOf(*told.Run), picksOf(*form.TakeSelectionRun()));
}

TEST_F(AsideTest, TellsWhereTheProjectHasChangedSinceTheSelection) {
    selectFullExample();
    goTo(2);
    form.flxHabitatTypes.UserEditCell(1, list::LevelOfUse, "1");
    const SelectionAside told = aside();
    ASSERT_TRUE(told.Run);
    EXPECT_FALSE(told.IsOnView);
    EXPECT_FALSE(told.IsSaved);
    EXPECT_EQ(told.Run->Landscape.HabitatThresholds[0], 1);
}

TEST_F(AsideTest, ASpeciesRemovedSinceTheSelectionIsAChange) {
    selectFullExample();
    goTo(1);
    type(form.txtRemoveSpeciesIndex, "1");
    form.cmdRemoveSpecies.UserClick();
    ASSERT_EQ(global.TotalSpecies, 24);
    const SelectionAside told = aside();
    ASSERT_TRUE(told.Run);
    EXPECT_FALSE(told.IsOnView);
    EXPECT_EQ(static_cast<int>(told.Run->Species.size()), global.TotalSpecies);
}

TEST_F(AsideTest, TakesOverWhatNoFileCarries) {
    openProject(ProjectText(2, 2, 1, 1));
    goTo(2);
    form.flxHabitatTypes.UserEditCell(1, list::Name, "Bog, wet ");
    const SelectionAside told = aside();
    ASSERT_TRUE(told.Run);
    EXPECT_EQ(told.Run->Units[method::Unit::Habitat][0], "Bog, wet ");
    EXPECT_FALSE(told.IsSaved);
}

TEST_F(AsideTest, IsNotSavedOnceTheFileHasChangedOrGone) {
    openProject(ProjectText(2, 2, 1, 1));
    EXPECT_TRUE(aside().IsSaved);
    writeFile(folder.file("project.brn"), ProjectText(2, 2, 1, 1).set("Habitat Area", "8,9").text());
    EXPECT_FALSE(aside().IsSaved);
    std::filesystem::remove(folder.file("project.brn"));
    const SelectionAside told = aside();
    EXPECT_FALSE(told.IsSaved);
    EXPECT_TRUE(told.Run);
}

TEST_F(AsideTest, ARunThatEndsInAnErrorIsExplainedAsFarAsItCame) {
    openProject(ProjectText(2, 1, 1, 1).set("HeteroHabitat Population", "2,1").set("Habitat UseLevel", "3"));
    const SelectionAside told = aside();
    ASSERT_TRUE(told.Run);
    EXPECT_TRUE(told.Run->Outcome.Error);
    EXPECT_FALSE(told.Error.empty());
}

TEST_F(AsideTest, NamesTheListsThatAreEmpty) {
    const SelectionAside told = aside();
    EXPECT_FALSE(told.Run);
    EXPECT_THAT(told.Walk.EmptyLists,
                ElementsAre(testing::StrEq("candidate species"), testing::StrEq("habitat types"),
                            testing::StrEq("management zones"), testing::StrEq("human activities")));
}

TEST_F(AsideTest, AGapInTheGradesIsToldAsTheFormTellsIt) {
    openProject(ProjectText(2, 1, 1, 1).set("Area Dispersal", "Y,N/A"));
    const SelectionAside told = aside();
    EXPECT_FALSE(told.Run);
    EXPECT_EQ(told.Told, "Enter a dispersion value for each species before proceeding.");
    ASSERT_TRUE(told.Gap);
    EXPECT_EQ(told.Gap->Row, "Species 2");
}

TEST_F(AsideTest, DropsNoRowWithoutAName) {
    openProject(ProjectText(2, 1, 1, 1));
    goTo(1);
    form.flxCandidateSpecies.UserEditCell(2, list::Name, "");
    addSpecies({""});
    const SelectionAside told = aside();
    EXPECT_FALSE(told.Run);
    EXPECT_EQ(told.Walk.RefusedPage, 1);
}

TEST_F(AsideTest, ASpeciesWithoutAStatusIsAnObstacle) {
    openProject(ProjectText(2, 1, 1, 1).set("Conservation Status", "0.5,"));
    const SelectionAside told = aside();
    EXPECT_FALSE(told.Run);
    EXPECT_EQ(told.Obstacle, SelectionObstacle::NoStatus);
    ASSERT_TRUE(told.Gap);
    EXPECT_EQ(told.Gap->Row, "Species 2");
}

TEST_F(AsideTest, AnErrorOnTheWayIsDescribed) {
    openProject(ProjectText(2, 1, 1, 1).set("Conservation Status", "0.5,high"));
    const SelectionAside told = aside();
    EXPECT_FALSE(told.Run);
    EXPECT_THAT(told.Error, HasSubstr("Type mismatch"));
    EXPECT_FALSE(told.Obstacle);
}

TEST_F(AsideTest, NumbersWithACommaStayNumbers) {
    platform.Separator = ui::DecimalSeparator::Comma;
    modGlobal ownGlobal;
    ui::Files ownFiles;
    frmBrenica comma(platform, ownFiles, ownGlobal);
    comma.UserOpenFile(SmallExample);
    type(comma.txtThreatRep, "0,25");
    const SelectionAside told = selectAside(comma, {SmallExample, folder.file("copy.brn")});
    ASSERT_TRUE(told.Run);
    EXPECT_EQ(told.Run->Levels.ThreatRepresentation, 0.25);
}

TEST_F(AsideTest, AFolderThatCannotBeWrittenIsAFailure) {
    openFile(SmallExample);
    form.flxCandidateSpecies.UserEditCell(1, list::Name, "Ant");
    const ui::RunTimeError error = failureOf([&] {
        selectAside(form, {"", folder.file("none") + "/copy.brn"});
    });
    EXPECT_EQ(error.Number, static_cast<int>(ui::ErrorNumber::DeviceIoError));
}
