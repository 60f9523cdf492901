// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring_test.h"

using testing::ElementsAre;

using Table = ui::Chart::Table;

/// What is shown of the species' use after a habitat or zone was removed. Habitats and zones have the same levels: 3, 0
/// and 1 for the first species, 3, 1 and 2 for the second.
class RemovedUnits : public ScoringTest {
protected:
    struct List {
        const char* Name;
        ui::TextBox& RemoveIndex;
        ui::CommandButton& Remove;
        int WideMember;
        int LongMember;
    };
    List habitats() {
        return {"Habitat", form.txtRemoveHabitatIndex, form.cmdRemoveHabitatType, summary::HabitatUse,
                summary::HabitatsBySpecies};
    }
    List zones() {
        return {"Zone", form.txtRemoveJurisUnitIndex, form.cmdRemoveJurisUnit, summary::JurisUnitUse,
                summary::JurisUnitsBySpecies};
    }
    static ProjectText project() {
        ProjectText text(2, 3, 3, 1);
        text.set("HeteroHabitat Population", "3,0,1,3,1,2").set("HeteroJU Individual", "3,0,1,3,1,2");
        return text;
    }
    void remove(const List& list, int row) {
        type(list.RemoveIndex, std::to_string(row));
        list.Remove.UserClick();
    }
    /// Removes the first habitat and the first zone, after their tables were once extended.
    void removeFirstUnits() {
        openAt(project(), 4);
        goTo(2);
        remove(habitats(), 1);
        remove(zones(), 1);
    }
};

TEST_F(RemovedUnits, TheTablesHoldTheLevelsOfThoseThatAreLeft) {
    removeFirstUnits();
    goTo(4);
    for (const List& list : {habitats(), zones()}) {
        SCOPED_TRACE(list.Name);
        EXPECT_THAT(tableRow(list.WideMember, 1), ElementsAre("Species 1", "0", "1", "", "1", "1"));
        EXPECT_THAT(tableRow(list.WideMember, 2), ElementsAre("Species 2", "1", "2", "", "3", "2"));
        EXPECT_THAT(tableRow(list.WideMember, 3), testing::Each(""));
        EXPECT_THAT(tableRow(list.WideMember, 4), ElementsAre(testing::_, "1", "3", "", "", ""));
        EXPECT_THAT(tableRow(list.WideMember, 5), ElementsAre(testing::_, "1", "2", "", "", ""));
        EXPECT_THAT(columnOf(table(list.LongMember), use::Level),
                    ElementsAre("Level of Use", "0", "1", "1", "2"));
    }
}

TEST_F(RemovedUnits, TheChartsShowThoseThatAreLeft) {
    removeFirstUnits();
    goTo(5);
    EXPECT_EQ(form.chtSummary(0).ChartData(), (Table{{"Habitat 2", "1"}, {"Habitat 3", "2"}}));
    EXPECT_EQ(form.chtSummary(1).ChartData(), (Table{{"Species 1", "1"}, {"Species 2", "2"}}));
    EXPECT_EQ(form.chtSummary(2).ChartData(), (Table{{"Zone 2", "1"}, {"Zone 3", "2"}}));
    EXPECT_EQ(form.chtSummary(3).ChartData(), (Table{{"Species 1", "1"}, {"Species 2", "2"}}));
}

TEST_F(RemovedUnits, TheHintCountsThoseThatAreLeft) {
    openAt(project().set("HeteroHabitat Population", "3,0,0,3,1,2").set("HeteroJU Individual", "0,1,2,3,1,2"),
           2);
    remove(habitats(), 1);
    remove(zones(), 1);
    goTo(4);
    goTo(3);
    EXPECT_EQ(
        form.lblPropOccupHint.Caption(),
        "Hint: \r\nWith 0 habitats out of 2 used or required the proportion of the landscape occupied according "
        "to habitats is 0 or less.\r\n With 2 management zones out of 2 used or required the proportion of the "
        "landscape occupied according to management zone is 1 or less.");
}

TEST_F(RemovedUnits, TheExportHeadsEachColumnWithItsUnit) {
    removeFirstUnits();
    goTo(4);
    platform.Answers = {"yes"};  // the habitats, not the zones
    platform.Files.push_back(folder.file("use.txt"));
    form.mnuExportData.UserClick();
    const std::string file = readFile(folder.file("use.txt"));
    EXPECT_EQ(file.substr(0, file.find("Species 2")),
              "Common Name\tHabitat 2\tHabitat 3\t\tTotal by species\tNo. habitats\r\n"
              "Species 1\t0\t1\t\t1\t1\r\n");
}

TEST_F(RemovedUnits, AnEditIsOfTheUnitNamed) {
    removeFirstUnits();
    goTo(4);
    form.chkAllowSummaryEdit.UserClick();
    for (const List& list : {habitats(), zones()}) {
        SCOPED_TRACE(list.Name);
        ASSERT_TRUE(table(list.WideMember).UserEditCell(1, 2, "3"));
        EXPECT_THAT(columnOf(table(list.LongMember), use::Level),
                    ElementsAre("Level of Use", "0", "3", "1", "2"));
        EXPECT_THAT(tableRow(list.WideMember, 1), ElementsAre("Species 1", "0", "3", "", "3", "1"));
        EXPECT_THAT(tableRow(list.WideMember, 4), ElementsAre(testing::_, "1", "5", "", "", ""));
    }
}

TEST_F(RemovedUnits, ABlankNameRemovedOnLeavingThePageIsNoOther) {
    open(project().set("Habitat Type", "A,,C"));
    goTo(2);
    platform.Answers = {"yes"};
    goTo(4);
    EXPECT_THAT(tableRow(summary::HabitatUse, 1), ElementsAre("Species 1", "3", "1", "", "4", "2"));
    EXPECT_THAT(tableRow(summary::HabitatUse, 2), ElementsAre("Species 2", "3", "2", "", "5", "2"));
}

TEST_F(RemovedUnits, SeveralRemovalsBeforeACalculationAddUp) {
    openAt(project(), 2);
    remove(habitats(), 2);
    remove(habitats(), 1);
    goTo(4);
    EXPECT_THAT(tableRow(summary::HabitatUse, 1), ElementsAre("Species 1", "1", "", "1", "1"));
    EXPECT_THAT(tableRow(summary::HabitatUse, 2), ElementsAre("Species 2", "2", "", "2", "1"));
}

TEST_F(RemovedUnits, SpeciesAndUnitsAddedSinceHaveTheirOwnColumnsAndRows) {
    removeFirstUnits();
    addHabitats({"Habitat 4"});
    goTo(1);
    addSpecies({"Species 3"});
    goTo(4);
    EXPECT_THAT(tableRow(summary::HabitatUse, 1), ElementsAre("Species 1", "0", "1", "", "", "1", "1"));
    EXPECT_THAT(tableRow(summary::HabitatUse, 2), ElementsAre("Species 2", "1", "2", "", "", "3", "2"));
    EXPECT_THAT(tableRow(summary::HabitatUse, 3), ElementsAre("Species 3", "", "", "", "", "0", "0"));
}

/// The cross table is a store of its own: it follows the other table once after such a removal, and never else.
TEST_F(RemovedUnits, NothingIsTakenOverWithoutARemovalThatMovesUnits) {
    for (const List& list : {habitats(), zones()}) {
        SCOPED_TRACE(list.Name);
        openAt(project(), 2);
        table(list.LongMember).TextMatrix(1, use::Level, "2");
        goTo(4);
        EXPECT_EQ(table(list.WideMember).TextMatrix(1, 1), "3") << "no removal";
        goTo(2);
        remove(list, 3);
        goTo(4);
        EXPECT_EQ(table(list.WideMember).TextMatrix(1, 1), "3") << "the last one removed";
        goTo(2);
        remove(list, 1);
        goTo(4);
        EXPECT_EQ(table(list.WideMember).TextMatrix(1, 1), "0") << "the first one removed";
        goTo(2);
        table(list.LongMember).TextMatrix(1, use::Level, "2");
        goTo(4);
        EXPECT_EQ(table(list.WideMember).TextMatrix(1, 1), "0") << "the next calculation";
    }
}

TEST_F(RemovedUnits, OfOneListLeaveTheOtherAlone) {
    openAt(project(), 2);
    table(summary::JurisUnitsBySpecies).TextMatrix(1, use::Level, "2");
    remove(habitats(), 1);
    goTo(4);
    EXPECT_EQ(table(summary::JurisUnitUse).TextMatrix(1, 1), "3");
}

TEST_F(RemovedUnits, AreForgottenWithTheProject) {
    for (const List& list : {habitats(), zones()}) {
        SCOPED_TRACE(list.Name);
        openAt(project(), 2);
        remove(list, 1);
        open(project());
        table(list.LongMember).TextMatrix(1, use::Level, "2");
        goTo(4);
        EXPECT_EQ(table(list.WideMember).TextMatrix(1, 1), "3");
    }
}
