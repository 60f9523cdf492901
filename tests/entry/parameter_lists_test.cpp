// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry_fixture.h"

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class ParameterLists : public EntryTest {};

TEST_F(ParameterLists, GrowByNumberedRows) {
    for (const ListControls& list : {habitats(), zones(), activities(), functions()}) {
        SCOPED_TRACE(list.Grid.Name());
        const int before = list.Total;
        addBlank(list, 2);
        addBlank(list, 1);
        EXPECT_EQ(list.Total, before + 3);
        EXPECT_EQ(list.Grid.Rows(), before + 4);
        EXPECT_EQ(list.Grid.TextMatrix(before + 3, 0), std::to_string(before + 3));
        EXPECT_EQ(list.Grid.TextMatrix(before + 3, 1), "");
    }
}

TEST_F(ParameterLists, TheLimitOfAThousandIsPerAddition) {
    addBlank(habitats(), 1000);
    addBlank(habitats(), 1000);
    EXPECT_EQ(global.TotalHabitatTypes, 2000);
}

TEST_F(ParameterLists, HaveTheirCaptions) {
    EXPECT_EQ(form.cmdUpdateHabitatTypes.Caption(), "Update habitat list");
    EXPECT_EQ(form.cmdRemoveHabitatType.Caption(), "Remove habitat no.:");
    EXPECT_EQ(form.lblNewHabitatTypes.Caption(), "new habitats");
    EXPECT_EQ(form.cmdUpdateJurisUnits.Caption(), "Update mng. zone list");
    EXPECT_EQ(form.cmdRemoveJurisUnit.Caption(), "Remove mng. zone no.:");
    EXPECT_EQ(form.lblNewJurisUnits.Caption(), "new mng. zones");
    EXPECT_EQ(form.cmdUpdateLandUses.Caption(), "Update human act. list");
    EXPECT_EQ(form.cmdRemoveLandUse.Caption(), "Remove human act. no.:");
    EXPECT_EQ(form.lblNewLandUses.Caption(), "new human act.");
    EXPECT_EQ(form.cmdUpdateFunctions.Caption(), "Update function list");
    EXPECT_EQ(form.cmdRemoveFunction.Caption(), "Remove function no.:");
    EXPECT_EQ(form.lblNewFunctions.Caption(), "new functions");
}

TEST_F(ParameterLists, NewUnitsNeedLevelTwo) {
    for (const ListControls& list : {habitats(), zones()}) {
        addBlank(list, 3);
        EXPECT_THAT(columnOf(list.Grid, 3), ElementsAre("Level of Use", "2", "2", "2"));
        EXPECT_THAT(columnOf(list.Grid, 2), ElementsAre("Area", "", "", ""));
    }
}

TEST_F(ParameterLists, NewActivitiesAndFunctionsHaveNoDefault) {
    addBlank(activities(), 1);
    EXPECT_THAT(rowOf(form.flxLandUses, 1), ElementsAre("1", "", "", ""));
    addBlank(functions(), 1);
    EXPECT_THAT(rowOf(form.flxFunctions, 7), ElementsAre("7", ""));
}

TEST_F(ParameterLists, AnAdditionResetsTheLevelOfTheLastExistingUnit) {
    for (const ListControls& list : {habitats(), zones()}) {
        addBlank(list, 2);
        list.Grid.TextMatrix(1, 3, "1");
        list.Grid.TextMatrix(2, 3, "3");
        addBlank(list, 1);
        EXPECT_THAT(columnOf(list.Grid, 3), ElementsAre("Level of Use", "1", "2", "2"));
    }
}

TEST_F(ParameterLists, AnAdditionOfNoneStillResetsTheLevelOfTheLastUnit) {
    for (const ListControls& list : {habitats(), zones()}) {
        addBlank(list, 1);
        list.Grid.TextMatrix(1, 3, "3");
        addBlank(list, 0);
        EXPECT_EQ(list.Grid.TextMatrix(1, 3), "2");
        EXPECT_EQ(list.Total, 1);
    }
}

TEST_F(ParameterLists, AddingHabitatsKeepsTheNamesInTheEntryGridAddingZonesNumbersThem) {
    addHabitats({"Forest", "Meadow"});
    addZones({"Park", "Reserve"});
    addBlank(habitats(), 1);
    addBlank(zones(), 1);
    EXPECT_THAT(columnOf(form.flxHabitatHetero, 0), ElementsAre("Habitat Name", "Forest", "Meadow", ""));
    EXPECT_THAT(columnOf(form.flxJurisUnitHetero, 0), ElementsAre("MZ Name", "1", "2", "3"));
    form.flxJurisUnits.UserEditCell(2, 1, "Town");
    EXPECT_THAT(columnOf(form.flxJurisUnitHetero, 0), ElementsAre("MZ Name", "1", "Town", "3"));
}

TEST_F(ParameterLists, GrowTheirEntryGridsWithoutNumbers) {
    addBlank(activities(), 2);
    addBlank(functions(), 1);
    EXPECT_THAT(columnOf(form.flxLandUsesVulnerability, 0), ElementsAre("Human Activity", "", ""));
    EXPECT_EQ(form.flxFunctionality.Rows(), 8);
    EXPECT_EQ(form.flxFunctionality.TextMatrix(7, 0), "");
}

TEST_F(ParameterLists, HeadTheWideTablesWithNumbers) {
    addBlank(habitats(), 2);
    addBlank(zones(), 3);
    addBlank(activities(), 2);
    EXPECT_THAT(rowOf(summary(0), 0), ElementsAre("Common Name", "1", "2"));
    EXPECT_THAT(rowOf(summary(1), 0), ElementsAre("Common Name", "1", "2", "3"));
    EXPECT_THAT(rowOf(summary(5), 0), ElementsAre("Common Name", "CCS", "", "1", "2"));
    addBlank(functions(), 2);
    EXPECT_EQ(summary(8).Cols(), 9);
}

TEST_F(ParameterLists, AdditionsDropTheTotalsColumnsAndBlankTheNewOnes) {
    open(ProjectText(2, 2, 2, 2));
    goTo(4);
    ASSERT_EQ(summary(0).Cols(), 6);
    goTo(2);
    addBlank(habitats(), 2);
    addBlank(zones(), 2);
    addBlank(activities(), 2);
    for (const int member : {0, 1}) {
        EXPECT_EQ(summary(member).Cols(), 5);
        EXPECT_THAT(rowOf(summary(member), 0), ElementsAre("Common Name", "1", "2", "3", "4"));
        EXPECT_THAT(cells(summary(member), 1, 1, 4), ElementsAre("1", "1", "", ""));
        // The totals at the bottom lose what stood in the new columns as well.
        EXPECT_THAT(cells(summary(member), summary(member).Rows() - 1, 3, 4), Each(""));
    }
    EXPECT_EQ(summary(5).Cols(), 7);
    EXPECT_THAT(cells(summary(5), 1, 5, 6), Each(""));
}

// Adding no species drops the rows of the totals, so that the last row is that of a species.
TEST_F(ParameterLists, AdditionsBlankTheNewColumnsOfTheLastSpeciesToo) {
    open(ProjectText(2, 2, 2, 2));
    goTo(4);
    goTo(1);
    addBlank(species(), 0);
    goTo(2);
    addBlank(habitats(), 3);
    addBlank(zones(), 3);
    addBlank(activities(), 3);
    for (const int member : {summary::HabitatUse, summary::JurisUnitUse}) {
        ASSERT_EQ(summary(member).Rows(), 3);
        EXPECT_THAT(cells(summary(member), 2, 1, 5), ElementsAre("1", "1", "", "", ""));
    }
    ASSERT_EQ(summary(summary::Vulnerability).Rows(), 3);
    EXPECT_THAT(cells(summary(summary::Vulnerability), 2, 5, 7), Each(""));
}

TEST_F(ParameterLists, WithoutSpeciesTheLongTablesHaveOneRowAnEntry) {
    addBlank(habitats(), 2);
    addBlank(zones(), 2);
    addBlank(activities(), 2);
    for (const int member : {summary::ThreatsBySpecies, summary::SpeciesByThreat})
        EXPECT_THAT(cells(summary(member), 2, 0, 4), Each(""));
    EXPECT_THAT(columnOf(summary(2), 0), ElementsAre("Common Name", "", ""));
    EXPECT_THAT(columnOf(summary(3), 0), ElementsAre("Common Name", "1", "2"));
    EXPECT_EQ(summary(6).Rows(), 3);
    EXPECT_EQ(summary(7).Rows(), 3);
}

TEST_F(ParameterLists, TheFirstUnitsTurnEachSpeciesRowIntoTheFirstOfItsBlock) {
    addSpecies({"Lynx", "Owl"});
    addBlank(habitats(), 3);
    EXPECT_THAT(columnOf(summary(2), 0), ElementsAre("Common Name", "Lynx", "", "", "Owl", "", ""));
    addBlank(activities(), 2);
    EXPECT_THAT(columnOf(summary(6), 0), ElementsAre("Common Name", "Lynx", "", "Owl", ""));
}

TEST_F(ParameterLists, LaterUnitsStandAtTheEndOfEachBlock) {
    addSpecies({"Lynx", "Owl"});
    addHabitats({"Forest", "Meadow"});
    addBlank(habitats(), 1);
    EXPECT_THAT(columnOf(summary(2), 0), ElementsAre("Common Name", "Lynx", "", "", "Owl", "", ""));
    EXPECT_THAT(columnOf(summary(2), 1),
                ElementsAre("Habitat Name", "Forest", "Meadow", "", "Forest", "Meadow", ""));
}

TEST_F(ParameterLists, NewActivitiesGetBlocksOfAllSpeciesAtTheEndOfTheTableByThreat) {
    addSpecies({"Lynx", "Owl"});
    addActivities({"Logging", "Hunting"});
    EXPECT_THAT(columnOf(summary(7), 0), ElementsAre("Human Activity", "Logging", "", "Hunting", ""));
    EXPECT_THAT(columnOf(summary(7), 1), ElementsAre("Common Name", "Lynx", "Owl", "Lynx", "Owl"));
    addBlank(activities(), 1);
    EXPECT_THAT(columnOf(summary(7), 1),
                ElementsAre("Common Name", "Lynx", "Owl", "Lynx", "Owl", "Lynx", "Owl"));
}

TEST_F(ParameterLists, AUnitsNameGoesToTheEntryGridAndCutToEverySpeciesBlock) {
    const std::string name = "A name that is longer than twenty";
    const std::string shortName = "A name that is longe";
    addSpecies({"Lynx", "Owl"});
    addHabitats({"Forest", name});
    addZones({name});
    EXPECT_EQ(form.flxHabitatHetero.TextMatrix(2, 0), name);
    EXPECT_THAT(columnOf(summary(2), 1),
                ElementsAre("Habitat Name", "Forest", shortName, "Forest", shortName));
    EXPECT_EQ(form.flxJurisUnitHetero.TextMatrix(1, 0), name);
    EXPECT_THAT(columnOf(summary(3), 1), ElementsAre("MZ Name", shortName, shortName));
}

TEST_F(ParameterLists, WithoutSpeciesANameGoesToTheEntrysOwnRow) {
    addHabitats({"Forest", "Meadow"});
    addZones({"Park"});
    EXPECT_THAT(columnOf(summary(2), 1), ElementsAre("Habitat Name", "Forest", "Meadow"));
    EXPECT_THAT(columnOf(summary(3), 1), ElementsAre("MZ Name", "Park"));
}

TEST_F(ParameterLists, AnAreaOrLevelSetsProjectChangedAndGoesNowhereElse) {
    addHabitats({"Forest"});
    addZones({"Park"});
    addSpecies({"Lynx"});
    for (ui::Grid* grid : {&form.flxHabitatTypes, &form.flxJurisUnits}) {
        for (const int col : {2, 3}) {
            form.ProjectChanged = false;
            const auto before = allCellsBut({grid->Name()});
            grid->UserEditCell(1, col, "3");
            EXPECT_TRUE(form.ProjectChanged);
            EXPECT_EQ(allCellsBut({grid->Name()}), before);
        }
    }
}

TEST_F(ParameterLists, HeadingsAndNumbersAreNoData) {
    addHabitats({"Forest"});
    addZones({"Park"});
    addActivities({"Logging"});
    form.ProjectChanged = false;
    for (ui::Grid* grid :
         {&form.flxHabitatTypes, &form.flxJurisUnits, &form.flxLandUses, &form.flxFunctions}) {
        grid->TextMatrix(0, 1, "Heading");
        grid->TextMatrix(1, 0, "9");
        EXPECT_FALSE(form.ProjectChanged) << grid->Name();
    }
}

TEST_F(ParameterLists, AnActivitysNameUrgencyAndProbabilityStandInEverySpeciesBlock) {
    addSpecies({"Lynx", "Owl"});
    addActivities({"Logging", "Hunting for food and for sport"});
    form.flxLandUses.UserEditCell(2, 2, "1");
    form.flxLandUses.UserEditCell(2, 3, "0.4");
    EXPECT_EQ(form.flxLandUsesVulnerability.TextMatrix(2, 0), "Hunting for food and for sport");
    for (const int row : {2, 4}) {
        EXPECT_THAT(cells(summary(6), row, 1, 3), ElementsAre("Hunting for food and for sport", "1", "0.4"));
    }
    EXPECT_THAT(columnOf(summary(7), 0),
                ElementsAre("Human Activity", "Logging", "", "Hunting for food and for sport", ""));
}

TEST_F(ParameterLists, WithoutSpeciesAnActivityStandsInItsOwnRow) {
    addActivities({"Logging", "Hunting"});
    form.flxLandUses.UserEditCell(2, 2, "1");
    EXPECT_THAT(cells(summary(6), 2, 1, 3), ElementsAre("Hunting", "1", ""));
    EXPECT_THAT(columnOf(summary(7), 0), ElementsAre("Human Activity", "Logging", "Hunting"));
}

TEST_F(ParameterLists, ARenamedFunctionShowsAtOnceAsHeadingAndInItsEntryGrid) {
    form.flxFunctions.UserEditCell(2, 1, "Burrowing");
    EXPECT_EQ(summary(8).TextMatrix(0, 2), "Burrowing");
    EXPECT_EQ(form.flxFunctionality.TextMatrix(2, 0), "Burrowing");
    EXPECT_TRUE(form.ProjectChanged);
    addBlank(functions(), 1);
    form.flxFunctions.UserEditCell(7, 1, "Grazing");
    EXPECT_EQ(summary(8).TextMatrix(0, 7), "Grazing");
}

class ParameterMove : public EntryTest {
protected:
    ParameterMove() { open(ProjectText(2, 3, 3, 3)); }
};

TEST_F(ParameterMove, SwapsAllColumnsOfAUnitOrActivityAndFollowsIt) {
    for (const ListControls& list : {habitats(), zones(), activities()}) {
        SCOPED_TRACE(list.Grid.Name());
        for (int row = 1; row <= 3; ++row) {
            for (int col = 1; col <= 3; ++col) list.Grid.TextMatrix(row, col, std::to_string(10 * row + col));
        }
        list.Grid.UserMoveTo(2, 3);
        moveUp(list);
        EXPECT_EQ(list.Grid.Row(), 1);
        EXPECT_THAT(rowOf(list.Grid, 1), ElementsAre("1", "21", "22", "23"));
        EXPECT_THAT(rowOf(list.Grid, 2), ElementsAre("2", "11", "12", "13"));
        moveDown(list);
        moveDown(list);
        EXPECT_EQ(list.Grid.Row(), 3);
        EXPECT_THAT(rowOf(list.Grid, 3), ElementsAre("3", "21", "22", "23"));
        EXPECT_THAT(rowOf(list.Grid, 2), ElementsAre("2", "31", "32", "33"));
    }
}

TEST_F(ParameterMove, OnlyTheNameFollowsInTheSpeciesTables) {
    openText(ProjectText(1, 2, 1, 1).set("HeteroHabitat Population", "3,0").text());
    form.flxHabitatTypes.UserMoveTo(2, 1);
    moveUp(habitats());
    EXPECT_THAT(columnOf(summary(2), 1), ElementsAre("Habitat Name", "Habitat 2", "Habitat 1"));
    EXPECT_THAT(columnOf(summary(2), 2), ElementsAre("Level of Use", "3", "0"));
    EXPECT_THAT(columnOf(form.flxHabitatHetero, 0), ElementsAre("Habitat Name", "Habitat 2", "Habitat 1"));
}

TEST_F(ParameterMove, SwapsAFunctionsNameOnlyFromItsNameColumn) {
    form.flxFunctions.UserMoveTo(2, 1);
    moveUp(functions());
    EXPECT_EQ(form.flxFunctions.TextMatrix(1, 1), "Seed dispersal");
    EXPECT_EQ(form.flxFunctions.TextMatrix(2, 1), "Predation");
    EXPECT_EQ(summary(8).TextMatrix(0, 1), "Seed dispersal");
    EXPECT_EQ(form.flxFunctions.Row(), 1);
}

TEST_F(ParameterMove, DoesNothingWhereItCannotMove) {
    for (const ListControls& list : {habitats(), zones(), activities(), functions()}) {
        SCOPED_TRACE(list.Grid.Name());
        const int last = list.Grid.Rows() - 1;
        struct Row {
            int Row;
            int Col;
            int Button;
        };
        const auto before = cellsOf(list.Grid);
        for (const Row& row :
             std::vector<Row>{{2, 0, 0}, {2, 0, 1}, {0, 1, 0}, {0, 1, 1}, {1, 1, 0}, {last, 1, 1}}) {
            list.Grid.UserMoveTo(row.Row, row.Col);
            list.Move(row.Button).UserClick();
            EXPECT_EQ(cellsOf(list.Grid), before) << row.Row << "," << row.Col << " button " << row.Button;
            EXPECT_EQ(list.Grid.Row(), row.Row);
        }
    }
}

class UrgencyRule : public EntryTest {
protected:
    UrgencyRule() { addActivities({"Logging", "Hunting"}); }
    void enter(const std::string& urgency, const std::string& probability) {
        form.flxLandUses.UserMoveTo(1, 1);
        form.flxLandUses.TextMatrix(1, 2, urgency);
        form.flxLandUses.TextMatrix(1, 3, probability);
        platform.Transcript.clear();
    }
    const std::string Message = "With a value of 3 for Urgency the Probability of Occurrence must be 1.";
};

TEST_F(UrgencyRule, SetsTheProbabilityToOneOnLeavingEitherCell) {
    for (const int col : {2, 3}) {
        enter("3", "0.4");
        form.flxLandUses.UserMoveTo(1, col);
        EXPECT_THAT(platform.Transcript, IsEmpty());
        EXPECT_TRUE(form.flxLandUses.UserMoveTo(2, 1));
        ASSERT_EQ(platform.Transcript.size(), 1U);
        EXPECT_EQ(lastBox().Text, Message);
        EXPECT_EQ(lastBox().Title, "Invalid value");
        EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Exclamation);
        EXPECT_EQ(form.flxLandUses.TextMatrix(1, 3), "1");
        EXPECT_EQ(summary(6).TextMatrix(1, 3), "1");
        EXPECT_EQ(form.flxLandUses.Row(), 2);
    }
}

TEST_F(UrgencyRule, HoldsForWhatWasJustTyped) {
    enter("", "0.4");
    form.flxLandUses.UserEditCell(1, 2, "3");
    EXPECT_THAT(platform.Transcript, IsEmpty());
    form.flxLandUses.UserMoveTo(1, 3);
    EXPECT_EQ(lastBox().Text, Message);
}

TEST_F(UrgencyRule, AsksForNothingElse) {
    struct Row {
        std::string Urgency;
        std::string Probability;
        std::string Left;
    };
    for (const Row& row : std::vector<Row>{{"3", "", ""},
                                           {"", "0.4", "0.4"},
                                           {"2", "0.4", "0.4"},
                                           {"3", "1", "1"},
                                           {"3", "0.6", "0.6"},
                                           {"3", "1.4", "1.4"}}) {
        for (const int col : {2, 3}) {
            enter(row.Urgency, row.Probability);
            form.flxLandUses.UserMoveTo(1, col);
            form.flxLandUses.UserMoveTo(2, 1);
            EXPECT_THAT(platform.Transcript, IsEmpty()) << row.Urgency << " " << row.Probability;
            EXPECT_EQ(form.flxLandUses.TextMatrix(1, 3), row.Left);
        }
    }
}

TEST_F(UrgencyRule, ReplacesAHalfSinceItRoundsToZero) {
    enter("3", "0.5");
    form.flxLandUses.UserMoveTo(1, 3);
    form.flxLandUses.UserMoveTo(2, 1);
    EXPECT_EQ(lastBox().Text, Message);
    EXPECT_EQ(form.flxLandUses.TextMatrix(1, 3), "1");
}

TEST_F(UrgencyRule, DoesNotLookAtOtherColumns) {
    enter("3", "0.4");
    form.flxLandUses.UserMoveTo(2, 1);
    EXPECT_THAT(platform.Transcript, IsEmpty());
    EXPECT_EQ(form.flxLandUses.TextMatrix(1, 3), "0.4");
}

TEST_F(UrgencyRule, PassesOverATextThatIsNoNumber) {
    for (const auto& [urgency, probability] :
         {std::pair{"often", "0.4"}, {"3", "50%"}, {"3", "-99999999999"}, {"Urgency", "Probability"}}) {
        enter(urgency, probability);
        form.flxLandUses.UserMoveTo(1, 2);
        EXPECT_NO_THROW(form.flxLandUses.UserMoveTo(2, 1)) << urgency << ' ' << probability;
        EXPECT_THAT(platform.Transcript, IsEmpty());
        EXPECT_EQ(form.flxLandUses.TextMatrix(1, 3), probability);
        EXPECT_EQ(form.flxLandUses.Row(), 2);
    }
}
