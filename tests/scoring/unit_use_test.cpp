// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring_test.h"

using testing::ElementsAre;

class UnitUse : public ScoringTest {};

TEST_F(UnitUse, AddsTheTotalsBlockToTheHabitatTable) {
    openAt(ProjectText(2, 3, 1, 1).set("HeteroHabitat Population", "1,0,3,2,0,"), 4);
    ASSERT_EQ(table(0).Rows(), 6);
    ASSERT_EQ(table(0).Cols(), 7);
    EXPECT_THAT(tableRow(0, 0),
                ElementsAre("Common Name", "1", "2", "3", "", "Total by species", "No. habitats"));
    EXPECT_THAT(tableRow(0, 1), ElementsAre("Species 1", "1", "0", "3", "", "4", "2"));
    EXPECT_THAT(tableRow(0, 2), ElementsAre("Species 2", "2", "0", "", "", "2", "1"));
    EXPECT_THAT(tableRow(0, 3), testing::Each(""));
    EXPECT_THAT(tableRow(0, 4), ElementsAre("Total by habitat", "3", "0", "3", "", "", ""));
    EXPECT_THAT(tableRow(0, 5), ElementsAre("No. species", "2", "0", "1", "", "", ""));
}

TEST_F(UnitUse, AddsTheTotalsBlockToTheZoneTable) {
    openAt(ProjectText(2, 1, 2, 1).set("HeteroJU Individual", "1,2,0,3"), 4);
    EXPECT_THAT(tableRow(1, 0),
                ElementsAre("Common Name", "1", "2", "", "Total by species", "No. Manag. zones"));
    EXPECT_THAT(tableRow(1, 1), ElementsAre("Species 1", "1", "2", "", "3", "2"));
    EXPECT_THAT(tableRow(1, 2), ElementsAre("Species 2", "0", "3", "", "3", "1"));
    EXPECT_THAT(tableRow(1, 4), ElementsAre("Total by MZ", "1", "5", "", "", ""));
    EXPECT_THAT(tableRow(1, 5), ElementsAre("No. species", "1", "2", "", "", ""));
}

TEST_F(UnitUse, PaintsTheTotalsAndSetsTheirLabelsInBold) {
    openAt(ProjectText(2, 2, 1, 1), 4);
    const ui::Grid& grid = table(0);
    const int lastRow = grid.Rows() - 1;
    const int lastCol = grid.Cols() - 1;
    for (int row = 1; row <= lastRow; ++row) {
        for (int col = 1; col <= lastCol; ++col) {
            const bool total = row >= lastRow - 1 || col >= lastCol - 1;
            EXPECT_EQ(grid.BackColorOf(row, col), total ? TotalsCyan : White) << row << "," << col;
        }
    }
    for (int row = 0; row <= lastRow; ++row) {
        for (int col = 0; col <= lastCol; ++col) {
            const bool label = (row == 0 && col >= lastCol - 1) || (col == 0 && row >= lastRow - 1);
            EXPECT_EQ(grid.IsBold(row, col), label) << row << "," << col;
        }
    }
}

TEST_F(UnitUse, HeadingsThatWereLabelsOfTotalsAreNoLongerBold) {
    openAt(ProjectText(1, 2, 1, 1), 4);
    ASSERT_TRUE(table(0).IsBold(0, 4));
    goTo(2);
    addHabitats({"Bog", "Fen", "Heath"});
    goTo(4);
    for (int col = 0; col < table(0).Cols(); ++col)
        EXPECT_EQ(table(0).IsBold(0, col), col >= table(0).Cols() - 2) << col;
}

TEST_F(UnitUse, WipesTheColoursOfAnEarlierRun) {
    openAt(ProjectText(2, 2, 1, 1), 4);
    table(0).Select(1, 1);
    table(0).CellBackColor(ui::rgb(1, 2, 3));
    goTo(3);
    goTo(4);
    EXPECT_EQ(table(0).BackColorOf(1, 1), White);
}

TEST_F(UnitUse, ASecondRunChangesNothing) {
    openAt(ProjectText(2, 3, 2, 1), 4);
    std::vector<std::vector<std::string>> before;
    for (int row = 0; row < table(0).Rows(); ++row) before.push_back(tableRow(0, row));
    goTo(3);
    goTo(4);
    ASSERT_EQ(table(0).Rows(), static_cast<int>(before.size()));
    for (int row = 0; row < table(0).Rows(); ++row)
        EXPECT_EQ(tableRow(0, row), before[static_cast<std::size_t>(row)]);
}

TEST_F(UnitUse, LeavesATableWithoutSpeciesOrUnitsAlone) {
    openAt(ProjectText(0, 2, 2, 1), 4);
    EXPECT_EQ(table(0).Rows(), 1);
    EXPECT_EQ(table(0).Cols(), 3);
    openAt(ProjectText(2, 0, 2, 1), 4);
    EXPECT_EQ(table(0).Rows(), 3);
    EXPECT_EQ(table(0).Cols(), 1);
    EXPECT_EQ(table(1).Rows(), 6);
    openAt(ProjectText(2, 2, 0, 1), 4);
    EXPECT_EQ(table(1).Rows(), 3);
    EXPECT_EQ(table(1).Cols(), 1);
    EXPECT_EQ(table(0).TextMatrix(1, 5), "2");
}

TEST_F(UnitUse, RoundsLevelsHalfToEven) {
    struct Case {
        const char* Level;
        const char* Total;
        const char* Count;
    };
    for (const Case& c :
         {Case{"1.5", "2", "1"}, Case{"2.5", "2", "1"}, Case{"0.4", "0", "0"}, Case{"0.5", "0", "0"},
          Case{"0.6", "1", "1"}, Case{"0", "0", "0"}, Case{"   ", "0", "0"}, Case{"-2", "-2", "0"}}) {
        SCOPED_TRACE(c.Level);
        open(ProjectText(1, 2, 1, 1));
        table(0).TextMatrix(1, 1, c.Level);
        table(0).TextMatrix(1, 2, "0");
        goTo(4);
        EXPECT_EQ(table(0).TextMatrix(1, 4), c.Total);
        EXPECT_EQ(table(0).TextMatrix(1, 5), c.Count);
        EXPECT_EQ(table(0).TextMatrix(3, 1), c.Total);
        EXPECT_EQ(table(0).TextMatrix(4, 1), c.Count);
    }
}

TEST_F(UnitUse, ReportsALevelThatIsNoNumberAndLeavesTheTableAsFarAsItCame) {
    open(ProjectText(2, 2, 2, 1).set("HeteroHabitat Population", "1,1,1,much"));
    EXPECT_EQ(description(4), reportOf("Brenica.CalculateHabitatUse", 13, "Type mismatch"));
    EXPECT_EQ(table(0).TextMatrix(1, 4), "2");
    EXPECT_EQ(table(0).TextMatrix(2, 4), "");
    EXPECT_EQ(table(1).Cols(), 3);
}

TEST_F(UnitUse, ReportsATotalThatOverflows) {
    open(ProjectText(1, 1, 2, 1).set("HeteroJU Individual", "2000000000,2000000000"));
    EXPECT_EQ(description(4), reportOf("Brenica.CalculateJurisUnitUse", 6, "Overflow"));
}

/// The hint beside the box for the proportion of the landscape occupied.
class OccupancyHint : public ScoringTest {
protected:
    /// Two habitats of 30 and 10, two zones of 5 and 1; user bins, so that leaving the lists sums the areas.
    static ProjectText project() {
        ProjectText text(1, 2, 2, 1);
        text.set("Home-range definition", "user-defined bins,0,5").set("Home ranges", "5+ km2");
        return text.set("Habitat Area", "30,10").set("JU Area", "5,1");
    }
    std::string hintOf(const ProjectText& text) {
        open(text);
        goTo(2);
        goTo(4);
        goTo(3);
        return form.lblPropOccupHint.Caption();
    }
};

TEST_F(OccupancyHint, ComparesAreasWhereTheyAreEntered) {
    EXPECT_EQ(
        hintOf(project().set("HeteroHabitat Population", "2,0").set("HeteroJU Individual", "1,1")),
        "Hint: \r\nWith 1 habitat types (Area = 30) out of 2 (Area = 40) used or required the proportion of the "
        "landscape occupied according to habitats is 0.75 or less."
        "\r\n With 2 management zones (Area = 6) out of 2 (Area = 6) used or required the proportion of the "
        "landscape occupied according to management zone is 1 or less.");
}

TEST_F(OccupancyHint, ComparesCountsWhereTheyAreNot) {
    EXPECT_EQ(
        hintOf(
            project().set("Habitat Area", "30,").set("JU Area", ",").set("HeteroHabitat Population", "2,0")),
        "Hint: \r\nWith 1 habitats out of 2 used or required the proportion of the landscape occupied according "
        "to habitats is 0.5 or less."
        "\r\n With 2 management zones out of 2 used or required the proportion of the landscape occupied "
        "according to management zone is 1 or less.");
}

TEST_F(OccupancyHint, MixesTheSentencesWhereOnlyHabitatsHaveAreas) {
    const std::string hint = hintOf(project().set("JU Area", ",1"));
    EXPECT_THAT(hint, testing::HasSubstr("With 2 habitat types (Area = 40) out of 2 (Area = 40)"));
    EXPECT_THAT(hint, testing::HasSubstr("\r\n With 2 management zones out of 2 used"));
}

TEST_F(OccupancyHint, RoundsTheProportionOnly) {
    EXPECT_THAT(hintOf(project().set("Habitat Area", "1.23456,2").set("HeteroHabitat Population", "1,0")),
                testing::HasSubstr(
                    "(Area = 1.23456) out of 2 (Area = 3.23456) used or required the proportion of the "
                    "landscape occupied according to habitats is 0.382 or less."));
}

TEST_F(OccupancyHint, ComparesSmallAreasToo) {
    EXPECT_THAT(hintOf(project().set("Habitat Area", "0.75,0.25").set("HeteroHabitat Population", "1,0")),
                testing::HasSubstr("(Area = 0.75) out of 2 (Area = 1) used"));
}

TEST_F(OccupancyHint, AnyLevelButZeroCountsWithTheFullArea) {
    EXPECT_THAT(hintOf(project().set("HeteroHabitat Population", "0.4,0")),
                testing::HasSubstr("With 0 habitat types (Area = 30) out of 2 (Area = 40)"));
    EXPECT_THAT(hintOf(project().set("HeteroHabitat Population", "0,")),
                testing::HasSubstr("With 0 habitat types (Area = 0) out of 2 (Area = 40)"));
}

TEST_F(OccupancyHint, IsBareWithoutHabitatsAndZones) {
    open(ProjectText(1, 0, 0, 1));
    goTo(3);
    EXPECT_EQ(form.lblPropOccupHint.Caption(), "Hint: ");
}

TEST_F(OccupancyHint, HasOneSentenceWhereOneListIsEmpty) {
    open(ProjectText(1, 0, 2, 1));
    goTo(4);
    goTo(3);
    EXPECT_EQ(
        form.lblPropOccupHint.Caption(),
        "Hint: \r\n With 2 management zones out of 2 used or required the proportion of the landscape occupied "
        "according to management zone is 1 or less.");
}

TEST_F(OccupancyHint, CountsNothingBeforeTheTotalsAreCalculated) {
    // The last column is still that of the second habitat, whose level is read as the count.
    open(ProjectText(1, 2, 1, 1).set("HeteroHabitat Population", "1,").set("HeteroJU Individual", "x"));
    goTo(3);
    EXPECT_EQ(
        form.lblPropOccupHint.Caption(),
        "Hint: \r\nWith 0 habitats out of 2 used or required the proportion of the landscape occupied according "
        "to habitats is 0 or less."
        "\r\n With 0 management zones out of 1 used or required the proportion of the landscape occupied "
        "according to management zone is 0 or less.");
}

TEST_F(OccupancyHint, LeavesOutAHabitatWhoseLevelIsNoNumber) {
    hintOf(project().set("HeteroHabitat Population", "1,1"));
    table(0).TextMatrix(1, 1, "x");
    goTo(2);
    goTo(3);
    EXPECT_THAT(form.lblPropOccupHint.Caption(),
                testing::HasSubstr("With 2 habitat types (Area = 10) out of 2"));
}

TEST_F(OccupancyHint, SaysNothingOfHabitatsWhoseAreasSumUpToZero) {
    EXPECT_EQ(
        hintOf(project().set("Habitat Area", "0,0")),
        "Hint: \r\n With 2 management zones (Area = 6) out of 2 (Area = 6) used or required the proportion of the "
        "landscape occupied according to management zone is 1 or less.");
}

TEST_F(OccupancyHint, SaysNothingOfHabitatsWhoseAreasSumUpToLessThanZero) {
    EXPECT_THAT(hintOf(project().set("Habitat Area", "-1,0.5")),
                testing::StartsWith("Hint: \r\n With 2 management zones"));
}
