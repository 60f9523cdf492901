// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry_fixture.h"

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class CandidateSpecies : public EntryTest {};

TEST_F(CandidateSpecies, AddsThatManyNumberedBlankRows) {
    addBlank(species(), 3);
    EXPECT_EQ(global.TotalSpecies, 3);
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 0), ElementsAre("No.", "1", "2", "3"));
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 1), ElementsAre("Common Name", "", "", ""));
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 2), ElementsAre("Scientific Name", "", "", ""));
}

TEST_F(CandidateSpecies, ASecondClickAddsTheSameNumberAgain) {
    addBlank(species(), 3);
    EXPECT_EQ(form.txtTotalSpecies.Text(), "3");
    form.cmdUpdateSpecies.UserClick();
    EXPECT_EQ(global.TotalSpecies, 6);
    EXPECT_EQ(form.flxCandidateSpecies.Rows(), 7);
    EXPECT_EQ(form.flxCandidateSpecies.TextMatrix(6, 0), "6");
}

TEST_F(CandidateSpecies, TheLimitOfAThousandIsPerAddition) {
    addBlank(species(), 1000);
    addBlank(species(), 1000);
    EXPECT_EQ(global.TotalSpecies, 2000);
}

TEST_F(CandidateSpecies, AddingNoneToAnEmptyListChangesNothing) {
    const auto before = allCellsBut({});
    form.cmdUpdateSpecies.UserClick();
    EXPECT_EQ(allCellsBut({}), before);
    EXPECT_EQ(global.TotalSpecies, 0);
}

TEST_F(CandidateSpecies, AddingFitsTheListAnew) {
    const auto overflow = [this] {
        int columns = 0;
        for (int col = 0; col < form.flxCandidateSpecies.Cols(); ++col)
            columns += form.flxCandidateSpecies.ColWidth(col);
        return columns - form.flxCandidateSpecies.ClientWidth();
    };
    addBlank(species(), 2);
    EXPECT_LE(overflow(), 0);
    addBlank(species(), 1000);
    EXPECT_TRUE(form.flxCandidateSpecies.RowsOverflow());
    EXPECT_LE(overflow(), 0);
}

TEST_F(CandidateSpecies, ThreeSpeciesBesideTwoHabitatsMakeSixRowsWithTheHabitatsNames) {
    addHabitats({"Forest", "Meadow"});
    addBlank(species(), 3);
    EXPECT_THAT(columnOf(summary(2), 1),
                ElementsAre("Habitat Name", "Forest", "Meadow", "Forest", "Meadow", "Forest", "Meadow"));
}

TEST_F(CandidateSpecies, LaterSpeciesGetTheirBlocksAtTheEnd) {
    addHabitats({"Forest", "Meadow"});
    addSpecies({"Lynx"});
    addBlank(species(), 2);
    EXPECT_THAT(columnOf(summary(2), 0), ElementsAre("Common Name", "Lynx", "", "", "", "", ""));
    EXPECT_THAT(columnOf(summary(2), 1),
                ElementsAre("Habitat Name", "Forest", "Meadow", "Forest", "Meadow", "Forest", "Meadow"));
}

TEST_F(CandidateSpecies, WithoutUnitsEachSpeciesHasOneRowInTheLongTables) {
    addBlank(species(), 3);
    for (const int member : {2, 3, 6, 7}) EXPECT_EQ(summary(member).Rows(), 4) << member;
}

TEST_F(CandidateSpecies, ZonesAreCarriedIntoTheBlocksToo) {
    addZones({"Park"});
    addBlank(species(), 2);
    EXPECT_THAT(columnOf(summary(3), 1), ElementsAre("MZ Name", "Park", "Park"));
}

// Zones that are added before there is a species are numbered in the column of the species' names.
TEST_F(CandidateSpecies, TheFirstOnesTakeTheZonesNumbersOutOfTheirBlocks) {
    addZones({"Park", "Marsh", "Coast"});
    EXPECT_THAT(columnOf(summary(3), 0), ElementsAre("Common Name", "1", "2", "3"));
    addBlank(species(), 2);
    EXPECT_THAT(columnOf(summary(3), 0), ElementsAre("Common Name", "1", "", "", "", "", ""));
    form.flxCandidateSpecies.UserEditCell(1, list::Name, "Lynx");
    form.flxCandidateSpecies.UserEditCell(2, list::Name, "Owl");
    EXPECT_THAT(columnOf(summary(3), 0), ElementsAre("Common Name", "Lynx", "", "", "Owl", "", ""));
    EXPECT_THAT(columnOf(summary(3), 1),
                ElementsAre("MZ Name", "Park", "Marsh", "Coast", "Park", "Marsh", "Coast"));
    remove(species(), 1);
    remove(species(), 1);
    addZones({"Delta"});
    EXPECT_THAT(columnOf(summary(3), 0), ElementsAre("Common Name", "1", "2", "3", "4"));
    addSpecies({"Otter"});
    EXPECT_THAT(columnOf(summary(3), 0), ElementsAre("Common Name", "Otter", "", "", ""));
}

TEST_F(CandidateSpecies, NewBlocksOfThreatsCarryNameUrgencyAndProbability) {
    addActivities({"Logging", "Hunting"});
    form.flxLandUses.UserEditCell(1, 2, "2");
    form.flxLandUses.UserEditCell(2, 3, "0.4");
    addBlank(species(), 2);
    EXPECT_EQ(summary(6).Rows(), 5);
    for (const int row : {1, 3})
        EXPECT_THAT(cells(summary(6), row, 1, 6), ElementsAre("Logging", "2", "", "", "", ""));
    for (const int row : {2, 4})
        EXPECT_THAT(cells(summary(6), row, 1, 6), ElementsAre("Hunting", "", "0.4", "", "", ""));
}

TEST_F(CandidateSpecies, TheTableByThreatGrowsInsideEachBlock) {
    addActivities({"Logging", "Hunting"});
    addSpecies({"Lynx", "Owl"});
    addBlank(species(), 1);
    EXPECT_THAT(columnOf(summary(7), 0), ElementsAre("Human Activity", "Logging", "", "", "Hunting", "", ""));
    EXPECT_THAT(columnOf(summary(7), 1), ElementsAre("Common Name", "Lynx", "Owl", "", "Lynx", "Owl", ""));
}

TEST_F(CandidateSpecies, AddingDropsTheTotalsOfTheWideTablesAndBlanksTheNewRows) {
    open(ProjectText(2, 2, 1, 1));
    goTo(4);
    ASSERT_EQ(summary(0).Rows(), 6);
    ASSERT_EQ(summary(0).TextMatrix(4, 1),
              "2");  // the total of the first habitat stands where species 4 will
    goTo(1);
    addBlank(species(), 2);
    for (const int member : {0, 1, 5}) {
        SCOPED_TRACE(member);
        EXPECT_EQ(summary(member).Rows(), 5);
        for (const int row : {3, 4})
            EXPECT_THAT(cells(summary(member), row, 1, summary(member).Cols() - 1), Each(""));
    }
    EXPECT_THAT(cells(summary(0), 2, 1, 2), ElementsAre("1", "1"));
    EXPECT_EQ(summary(5).TextMatrix(2, 1), "0.5");
}

TEST_F(CandidateSpecies, EachOtherPerSpeciesTableGetsARow) {
    addBlank(species(), 2);
    for (const int member : {0, 1, 4, 5, 8, 9, 10}) EXPECT_EQ(summary(member).Rows(), 3) << member;
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(form.flxScores(i).Rows(), 3);
        EXPECT_EQ(form.flxScoresSort(i).Rows(), 3);
    }
}

TEST_F(CandidateSpecies, ANameIsWholeInSomeTablesAndCutToTwentyInTheWideCrossTables) {
    const std::string name = "Abcdefghijklmnopqrstuvwxy";
    const std::string shortName = "Abcdefghijklmnopqrst";
    addSpecies({name});
    for (const int member : {0, 1, 2, 3}) EXPECT_EQ(summary(member).TextMatrix(1, 0), shortName) << member;
    for (const int member : {4, 5, 6, 8, 9, 10}) EXPECT_EQ(summary(member).TextMatrix(1, 0), name) << member;
    EXPECT_EQ(summary(7).TextMatrix(1, 1), name);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(form.flxScores(i).TextMatrix(1, 0), name);
        EXPECT_EQ(form.flxScoresSort(i).TextMatrix(1, 0), name);
    }
}

TEST_F(CandidateSpecies, ANameOfTwentyCharactersIsNotCutWhateverItsBytes) {
    const std::string twenty = "éééééééééééééééééééé";
    addSpecies({twenty, twenty + "x"});
    EXPECT_EQ(summary(0).TextMatrix(1, 0), twenty);
    EXPECT_EQ(summary(0).TextMatrix(2, 0), twenty);
    EXPECT_EQ(summary(4).TextMatrix(2, 0), twenty + "x");
}

TEST_F(CandidateSpecies, ANameStandsInTheFirstRowOfItsBlocksOnly) {
    addBlank(species(), 2);
    addHabitats({"Forest", "Meadow"});
    addZones({"Park", "Reserve", "Town"});
    addActivities({"Logging", "Hunting"});
    form.flxCandidateSpecies.UserEditCell(1, 1, "Lynx");
    form.flxCandidateSpecies.UserEditCell(2, 1, "Owl");
    EXPECT_THAT(columnOf(summary(2), 0), ElementsAre("Common Name", "Lynx", "", "Owl", ""));
    EXPECT_THAT(columnOf(summary(3), 0), ElementsAre("Common Name", "Lynx", "", "", "Owl", "", ""));
    EXPECT_THAT(columnOf(summary(6), 0), ElementsAre("Common Name", "Lynx", "", "Owl", ""));
    EXPECT_THAT(columnOf(summary(7), 1), ElementsAre("Common Name", "Lynx", "Owl", "Lynx", "Owl"));
}

TEST_F(CandidateSpecies, ANameReachesTheScoreTablesThenTheSummariesInOrder) {
    addBlank(species(), 1);
    std::vector<std::string> order;
    for (int i = 0; i < 2; ++i) {
        form.flxScores(i).CellChanged = [&, i](int, int) { order.push_back("scores " + std::to_string(i)); };
        form.flxScoresSort(i).CellChanged = [&, i](int, int) {
            order.push_back("sort " + std::to_string(i));
        };
    }
    for (int i = 0; i < 11; ++i) {
        summary(i).CellChanged = [&, i](int, int) { order.push_back(std::to_string(i)); };
    }
    form.flxCandidateSpecies.UserEditCell(1, 1, "Lynx");
    EXPECT_THAT(order, ElementsAre("scores 0", "sort 0", "scores 1", "sort 1", "0", "1", "2", "3", "4", "5",
                                   "6", "7", "8", "9", "10"));
}

TEST_F(CandidateSpecies, AScientificNameSetsProjectChangedAndChangesNoOtherGrid) {
    addSpecies({"Lynx"});
    form.ProjectChanged = false;
    const auto before = allCellsBut({"flxCandidateSpecies"});
    form.flxCandidateSpecies.UserEditCell(1, 2, "Lynx lynx");
    EXPECT_TRUE(form.ProjectChanged);
    EXPECT_EQ(allCellsBut({"flxCandidateSpecies"}), before);
}

TEST_F(CandidateSpecies, HeadingsAndNumbersAreNoData) {
    addSpecies({"Lynx"});
    form.ProjectChanged = false;
    const auto before = allCellsBut({"flxCandidateSpecies"});
    form.flxCandidateSpecies.TextMatrix(0, 1, "Heading");
    form.flxCandidateSpecies.TextMatrix(1, 0, "9");
    EXPECT_FALSE(form.ProjectChanged);
    EXPECT_EQ(allCellsBut({"flxCandidateSpecies"}), before);
}

class SpeciesMove : public EntryTest {
protected:
    SpeciesMove() {
        open(ProjectText(3, 2, 1, 1));
        form.ProjectChanged = false;
    }
    std::vector<std::string> names() { return columnOf(form.flxCandidateSpecies, 1); }
};

TEST_F(SpeciesMove, SwapsBothNamesWithTheRowAbove) {
    form.flxCandidateSpecies.UserMoveTo(2, 2);
    moveUp(species());
    EXPECT_THAT(names(), ElementsAre("Common Name", "Species 2", "Species 1", "Species 3"));
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 2),
                ElementsAre("Scientific Name", "Species scientificus 2", "Species scientificus 1",
                            "Species scientificus 3"));
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 0), ElementsAre("No.", "1", "2", "3"));
    EXPECT_EQ(form.flxCandidateSpecies.Row(), 1);
    EXPECT_TRUE(form.ProjectChanged);
}

TEST_F(SpeciesMove, SwapsWithTheRowBelowAndFollowsIt) {
    form.flxCandidateSpecies.UserMoveTo(1, 1);
    moveDown(species());
    moveDown(species());
    EXPECT_THAT(names(), ElementsAre("Common Name", "Species 2", "Species 3", "Species 1"));
    EXPECT_EQ(form.flxCandidateSpecies.Row(), 3);
}

TEST_F(SpeciesMove, GivesASpeciesTheDataOfTheRowItMovesTo) {
    openText(ProjectText(2, 2, 1, 1)
                 .set("HeteroHabitat Population", "3,2,1,0")
                 .set("Home ranges", "10,20")
                 .text());
    form.flxCandidateSpecies.UserMoveTo(2, 1);
    moveUp(species());
    EXPECT_THAT(columnOf(summary(2), 0), ElementsAre("Common Name", "Species 2", "", "Species 1", ""));
    EXPECT_THAT(columnOf(summary(2), 2), ElementsAre("Level of Use", "3", "2", "1", "0"));
    EXPECT_THAT(cells(summary(0), 1, 0, 2), ElementsAre("Species 2", "3", "2"));
    EXPECT_EQ(summary(4).TextMatrix(1, 0), "Species 2");
    EXPECT_EQ(summary(4).TextMatrix(1, 3), "10");
}

TEST_F(SpeciesMove, WritesTheCurrentRowBeforeTheNeighbour) {
    std::vector<int> rows;
    form.flxScores(0).CellChanged = [&](int row, int) { rows.push_back(row); };
    form.flxCandidateSpecies.UserMoveTo(2, 1);
    moveUp(species());
    EXPECT_THAT(rows, ElementsAre(2, 1));
}

TEST_F(SpeciesMove, DoesNothingWhereItCannotMove) {
    struct Row {
        int Row;
        int Col;
        int Button;
    };
    const auto before = allCellsBut({});
    for (const Row& row :
         std::vector<Row>{{2, 0, 0}, {2, 0, 1}, {0, 1, 1}, {0, 1, 0}, {1, 1, 0}, {1, 2, 0}, {3, 1, 1}}) {
        form.flxCandidateSpecies.UserMoveTo(row.Row, row.Col);
        form.cmdSpeciesMove(row.Button).UserClick();
        EXPECT_EQ(allCellsBut({}), before) << row.Row << "," << row.Col << " button " << row.Button;
        EXPECT_EQ(form.flxCandidateSpecies.Row(), row.Row);
    }
    EXPECT_FALSE(form.ProjectChanged);
}

TEST_F(CandidateSpecies, HasItsCaptions) {
    EXPECT_EQ(form.cmdUpdateSpecies.Caption(), "Update species list");
    EXPECT_EQ(form.lblNewSpecies.Caption(), "new species");
    EXPECT_EQ(form.cmdRemoveSpecies.Caption(), "Remove species no.:");
}

TEST_F(CandidateSpecies, AFailureNamesTheProcedureItHappenedIn) {
    addSpecies({"Lynx"});
    form.flxScores(1).Rows(1);
    const auto renaming = failureOf([&] { form.flxCandidateSpecies.UserEditCell(1, 1, "Owl"); });
    EXPECT_EQ(renaming.Description,
              reportOf("Brenica.flxCandidateSpecies_CellChanged", 9, "Subscript out of range"));
    const auto removing = failureOf([&] { form.RemoveSpecies(1); });
    EXPECT_EQ(removing.Description, reportOf("Brenica.RemoveSpecies", 9, "Subscript out of range"));
}

TEST_F(CandidateSpecies, AFailureWhileGrowingNamesTheGrowth) {
    addHabitats({"Forest"});
    summary(2).Cols(1);
    const auto failure = failureOf([&] { addBlank(species(), 2); });
    EXPECT_EQ(failure.Description,
              reportOf("Brenica.UpdateOtherSpeciesFlexGrids", 9, "Subscript out of range"));
    EXPECT_EQ(failure.Source, "Brenica.Brenica.UpdateOtherSpeciesFlexGrids");
}
