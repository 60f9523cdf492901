// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry_fixture.h"

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class SpeciesRemoval : public EntryTest {};

TEST_F(SpeciesRemoval, OfARowOutsideTheListOnlyResetsTheBox) {
    open(ProjectText(2, 2, 1, 1));
    const auto before = allCellsBut({});
    for (const int row : {0, -1, 3}) {
        type(form.txtRemoveSpeciesIndex, "2");
        form.RemoveSpecies(row);
        EXPECT_EQ(form.txtRemoveSpeciesIndex.Text(), "0");
        EXPECT_EQ(allCellsBut({}), before);
    }
    form.cmdRemoveSpecies.UserClick();
    EXPECT_EQ(allCellsBut({}), before);
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(SpeciesRemoval, ShortensTheListAndNumbersItAnew) {
    open(ProjectText(3, 2, 1, 1));
    remove(species(), 2);
    EXPECT_EQ(global.TotalSpecies, 2);
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 0), ElementsAre("No.", "1", "2"));
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 1), ElementsAre("Common Name", "Species 1", "Species 3"));
}

TEST_F(SpeciesRemoval, TakesTheSpeciesOutOfEveryTable) {
    open(ProjectText(3, 2, 1, 2)
             .set("HeteroHabitat Population", "0,1,2,3,1,2")
             .set("HeteroJU Individual", "1,2,3")
             .set("Home ranges", "10,20,30")
             .set("VulnerabilitybySpecies Severity", "0,1,2,3,1,0"));
    remove(species(), 2);
    EXPECT_THAT(columnOf(summary(2), 0), ElementsAre("Common Name", "Species 1", "", "Species 3", ""));
    EXPECT_THAT(columnOf(summary(2), 2), ElementsAre("Level of Use", "0", "1", "1", "2"));
    EXPECT_THAT(columnOf(summary(3), 2), ElementsAre("Level of Use", "1", "3"));
    EXPECT_THAT(columnOf(summary(4), 3), ElementsAre("Home Range", "10", "30"));
    EXPECT_THAT(columnOf(summary(6), 4), ElementsAre("Severity", "0", "1", "1", "0"));
    EXPECT_THAT(columnOf(summary(7), 0), ElementsAre("Human Activity", "Activity 1", "", "Activity 2", ""));
    EXPECT_THAT(columnOf(summary(7), 1),
                ElementsAre("Common Name", "Species 1", "Species 3", "Species 1", "Species 3"));
    EXPECT_THAT(columnOf(summary(7), 2), ElementsAre("Severity", "0", "1", "1", "0"));
    for (const int member : {8, 9}) {
        EXPECT_THAT(columnOf(summary(member), 0), ElementsAre("Common Name", "Species 1", "Species 3"))
            << member;
    }
    for (int i = 0; i < 2; ++i) {
        EXPECT_THAT(columnOf(form.flxScores(i), 0), ElementsAre("Common Name", "Species 1", "Species 3"));
        EXPECT_THAT(columnOf(form.flxScoresSort(i), 0), ElementsAre("Common Name", "Species 1", "Species 3"));
    }
}

TEST_F(SpeciesRemoval, NumbersTheHiddenPositionsAnew) {
    addSpecies({"Lynx", "Owl", "Bear"});
    remove(species(), 1);
    EXPECT_THAT(columnOf(form.flxScoresSort(0), 8), ElementsAre("", "1", "2"));
    EXPECT_THAT(columnOf(form.flxScoresSort(1), 6), ElementsAre("", "1", "2"));
}

TEST_F(SpeciesRemoval, OfTheOnlySpeciesKeepsTheUnitsAndTheirNames) {
    open(ProjectText(1, 2, 1, 2));
    remove(species(), 1);
    EXPECT_THAT(columnOf(summary(2), 0), ElementsAre("Common Name", "", ""));
    EXPECT_THAT(columnOf(summary(2), 1), ElementsAre("Habitat Name", "Habitat 1", "Habitat 2"));
    EXPECT_THAT(columnOf(summary(2), 2), ElementsAre("Level of Use", "", ""));
    EXPECT_THAT(cellsOf(summary(3)), ElementsAre(ElementsAre("Common Name", "MZ Name", "Level of Use"),
                                                 ElementsAre("", "Zone 1", "")));
    EXPECT_EQ(summary(6).Rows(), 3);
    EXPECT_THAT(rowOf(summary(6), 1), ElementsAre("", "Activity 1", "", "", "", "", ""));
    EXPECT_THAT(rowOf(summary(6), 2), ElementsAre("", "Activity 2", "", "", "", "", ""));
    EXPECT_THAT(rowOf(summary(7), 1), ElementsAre("Activity 1", "", "", "", ""));
    EXPECT_THAT(rowOf(summary(7), 2), ElementsAre("Activity 2", "", "", "", ""));
}

TEST_F(SpeciesRemoval, OfTheOnlySpeciesLeavesTheOtherTablesWithTheirHeadings) {
    open(ProjectText(1, 2, 3, 4));
    remove(species(), 1);
    for (const int member : {0, 1, 4, 5, 8, 9}) EXPECT_EQ(summary(member).Rows(), 1) << member;
    EXPECT_EQ(summary(0).Cols(), 3);
    EXPECT_EQ(summary(1).Cols(), 4);
    EXPECT_EQ(summary(5).Cols(), 7);
    EXPECT_EQ(form.flxScores(0).Rows(), 1);
}

TEST_F(SpeciesRemoval, LeavesTheDataQualityTableAlone) {
    open(ProjectText(2, 1, 1, 1).set("Data Quality1", "3,4"));
    const auto before = cellsOf(summary(10));
    remove(species(), 1);
    EXPECT_EQ(cellsOf(summary(10)), before);
    remove(species(), 1);
    EXPECT_EQ(cellsOf(summary(10)), before);
    addBlank(species(), 1);
    EXPECT_EQ(summary(10).Rows(), 2);
    EXPECT_EQ(summary(10).TextMatrix(1, 1), "3");
}

TEST_F(SpeciesRemoval, OfTheFirstKeepsTheActivitiesNamesAtTheirBlocks) {
    addActivities({"Logging", "Hunting"});
    addSpecies({"Lynx", "Owl"});
    remove(species(), 1);
    EXPECT_THAT(columnOf(summary(7), 0), ElementsAre("Human Activity", "Logging", "Hunting"));
    EXPECT_THAT(columnOf(summary(7), 1), ElementsAre("Common Name", "Owl", "Owl"));
}

TEST_F(SpeciesRemoval, WithoutUnitsTakesOneRowOfEachLongTable) {
    addSpecies({"Lynx", "Owl"});
    remove(species(), 1);
    for (const int member : {2, 3, 6})
        EXPECT_THAT(columnOf(summary(member), 0), ElementsAre("Common Name", "Owl"));
    EXPECT_THAT(columnOf(summary(7), 1), ElementsAre("Common Name", "Owl"));
}

TEST_F(SpeciesRemoval, DoesNotSetProjectChanged) {
    open(ProjectText(3, 2, 2, 2));
    remove(species(), 3);
    EXPECT_EQ(global.TotalSpecies, 2);
    EXPECT_FALSE(form.ProjectChanged);
}

TEST_F(SpeciesRemoval, TakesTheSpeciesOutOfTheSelector) {
    open(ProjectText(3, 1, 1, 1));
    goTo(2);
    goTo(1);
    remove(species(), 2);
    ASSERT_EQ(form.cbxSpeciesName.ListCount(), 2);
    EXPECT_EQ(form.cbxSpeciesName.List(0), "Species 1");
    EXPECT_EQ(form.cbxSpeciesName.List(1), "Species 3");
}

TEST_F(SpeciesRemoval, TakesTheLastSpeciesOutOfTheSelectorToo) {
    open(ProjectText(3, 1, 1, 1));
    goTo(2);
    goTo(1);
    remove(species(), 3);
    ASSERT_EQ(form.cbxSpeciesName.ListCount(), 2);
    EXPECT_EQ(form.cbxSpeciesName.List(1), "Species 2");
}

TEST_F(SpeciesRemoval, LeavesTheSelectorAloneWhileTheFirstNameIsBlank) {
    open(ProjectText(3, 1, 1, 1));
    goTo(2);
    goTo(1);
    form.flxCandidateSpecies.UserEditCell(1, 1, "");
    remove(species(), 2);
    EXPECT_EQ(form.cbxSpeciesName.ListCount(), 3);
}

TEST_F(SpeciesRemoval, PassesOverAnItemThatTheSelectorDoesNotHaveYet) {
    addSpecies({"Lynx"});
    goTo(2);
    goTo(1);
    addSpecies({"Owl", "Otter"});
    remove(species(), 2);
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 1), ElementsAre("Common Name", "Lynx", "Otter"));
    for (const int member : {0, 1, 2, 3, 4, 5, 6, 8, 9})
        EXPECT_THAT(columnOf(summary(member), 0), ElementsAre("Common Name", "Lynx", "Otter")) << member;
    ASSERT_EQ(form.cbxSpeciesName.ListCount(), 1);
    EXPECT_EQ(form.cbxSpeciesName.List(0), "Lynx");
}

TEST_F(SpeciesRemoval, AtTheGatePassesOverAnItemThatTheSelectorDoesNotHaveYet) {
    addSpecies({"Ant", "Bee"});
    goTo(2);
    goTo(1);
    addBlank(species(), 1);
    platform.Answers.assign(1, "yes");
    goTo(2);
    EXPECT_EQ(form.CurrentMainTab, 2);
    EXPECT_EQ(global.TotalSpecies, 2);
    EXPECT_EQ(form.cbxSpeciesName.ListCount(), 2);
    EXPECT_THAT(columnOf(form.flxScores(0), 0), ElementsAre("Common Name", "Ant", "Bee"));
}

class SpeciesSelector : public EntryTest {
protected:
    std::vector<std::string> items() {
        std::vector<std::string> found;
        for (int i = 0; i < form.cbxSpeciesName.ListCount(); ++i)
            found.push_back(form.cbxSpeciesName.List(i));
        return found;
    }
    void leaveSpeciesPage() {
        goTo(1);
        goTo(2);
    }
};

TEST_F(SpeciesSelector, IsFilledWhenTheSpeciesPageIsLeft) {
    addSpecies({"Lynx", "Owl"});
    EXPECT_THAT(items(), IsEmpty());
    leaveSpeciesPage();
    EXPECT_THAT(items(), ElementsAre("Lynx", "Owl"));
    EXPECT_EQ(form.cbxSpeciesName.ListIndex(), 0);
    EXPECT_EQ(form.CurrentSpeciesIndex, 1);
}

TEST_F(SpeciesSelector, SelectsTheNewLastEntryWhenTheLastWasSelected) {
    addSpecies({"Lynx", "Owl"});
    leaveSpeciesPage();
    form.cbxSpeciesName.UserChoose(1);
    goTo(1);
    addSpecies({"Bear", "Wolf"});
    leaveSpeciesPage();
    EXPECT_EQ(form.cbxSpeciesName.Text(), "Wolf");
    EXPECT_EQ(form.CurrentSpeciesIndex, 4);
}

TEST_F(SpeciesSelector, KeepsAPositionBeforeTheLast) {
    addSpecies({"Lynx", "Owl", "Bear"});
    leaveSpeciesPage();
    form.cbxSpeciesName.UserChoose(1);
    goTo(1);
    addSpecies({"Wolf"});
    leaveSpeciesPage();
    EXPECT_EQ(form.cbxSpeciesName.Text(), "Owl");
}

TEST_F(SpeciesSelector, SelectsTheFirstWhenTheChosenWasRemoved) {
    addSpecies({"Lynx", "Owl", "Bear"});
    leaveSpeciesPage();
    form.cbxSpeciesName.UserChoose(1);
    goTo(1);
    remove(species(), 2);
    EXPECT_EQ(form.cbxSpeciesName.ListIndex(), -1);
    leaveSpeciesPage();
    EXPECT_EQ(form.cbxSpeciesName.Text(), "Lynx");
}

TEST_F(SpeciesSelector, SelectsTheFirstWhenThePositionIsBehindTheEnd) {
    addSpecies({"Lynx", "Owl", "Bear"});
    leaveSpeciesPage();
    form.cbxSpeciesName.UserChoose(2);
    goTo(1);
    // With the first name blank the selector is not shortened, so that its position outruns the list.
    form.flxCandidateSpecies.UserEditCell(1, 1, "");
    remove(species(), 3);
    form.flxCandidateSpecies.UserEditCell(1, 1, "Lynx");
    leaveSpeciesPage();
    EXPECT_THAT(items(), ElementsAre("Lynx", "Owl"));
    EXPECT_EQ(form.cbxSpeciesName.Text(), "Lynx");
}

TEST_F(SpeciesSelector, HoldsBlankNamesToo) {
    addBlank(species(), 2);
    form.flxCandidateSpecies.UserEditCell(2, 1, "Owl");
    form.UpdateSpeciesList();
    EXPECT_THAT(items(), ElementsAre("", "Owl"));
}

TEST_F(SpeciesSelector, IsEmptyWithoutSpecies) {
    addSpecies({"Lynx"});
    leaveSpeciesPage();
    goTo(1);
    remove(species(), 1);
    leaveSpeciesPage();
    EXPECT_THAT(items(), IsEmpty());
    EXPECT_EQ(form.cbxSpeciesName.ListIndex(), -1);
}

TEST_F(SpeciesSelector, AFreshPositionReloadsTheCriteria) {
    open(ProjectText(2, 1, 1, 1).set("Conservation Status", "0.25,0.75"));
    leaveSpeciesPage();
    EXPECT_EQ(form.txtCCS.Text(), "0.25");
    form.cbxSpeciesName.UserChoose(1);
    EXPECT_EQ(form.txtCCS.Text(), "0.75");
}

TEST_F(SpeciesSelector, AFailureNamesIt) {
    addSpecies({"Lynx"});
    form.flxCandidateSpecies.Rows(1);
    EXPECT_EQ(failureOf([&] { form.UpdateSpeciesList(); }).Description,
              reportOf("Brenica.UpdateSpeciesList", 9, "Subscript out of range"));
}
