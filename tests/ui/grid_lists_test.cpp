// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "window_fixture.h"

/// Cells that offer a list of items, and Delete, which such a cell refuses.
class GridLists : public GridTest {
protected:
    std::string offered = "0|1|2|3";

    GridLists() {
        grid.TextMatrix(1, 1, "1");
        grid.BeforeEdit = [this](int, int, bool&) { grid.ComboList(offered); };
    }
};

TEST_F(GridLists, AnItemIsTypedOverTheOneBefore) {
    ASSERT_TRUE(grid.UserBeginEdit());
    grid.UserEditKey('2');
    grid.UserEditKey('3');
    EXPECT_EQ(grid.EditText(), "3");
    grid.UserEditKey('4');
    EXPECT_EQ(grid.EditText(), "3");
    EXPECT_EQ(platform.Beeps, 1);
    EXPECT_TRUE(grid.UserCommitEdit());
    EXPECT_EQ(grid.TextMatrix(1, 1), "3");
}

TEST_F(GridLists, AnItemIsChosenWhateverWasTypedBefore) {
    ASSERT_TRUE(grid.UserBeginEdit());
    grid.UserEditKey('2');
    EXPECT_TRUE(grid.UserEditChoose("0"));
    EXPECT_FALSE(grid.UserEditChoose("5"));
    EXPECT_EQ(platform.Beeps, 1);
    EXPECT_TRUE(grid.UserCommitEdit());
    EXPECT_EQ(grid.TextMatrix(1, 1), "0");
}

TEST_F(GridLists, NothingCanBeChosenWithoutAnEditor) {
    EXPECT_FALSE(grid.UserEditChoose("0"));
    EXPECT_EQ(grid.TextMatrix(1, 1), "1");
}

TEST_F(GridLists, AnItemIsTakenOverAsTheListSpellsIt) {
    offered = "Y|N";
    EXPECT_TRUE(grid.UserEditCell(1, 1, "n"));
    EXPECT_EQ(grid.TextMatrix(1, 1), "N");
}

TEST_F(GridLists, DeleteIsRefusedWithABeep) {
    EXPECT_FALSE(grid.UserDelete());
    EXPECT_EQ(grid.TextMatrix(1, 1), "1");
    EXPECT_EQ(platform.Beeps, 1);
    EXPECT_FALSE(grid.Editing());
}

TEST_F(GridLists, DeleteEmptiesAFreeTextThroughItsEvents) {
    offered = "";
    grid.CellChanged = [this](int row, int col) { log.push_back("CellChanged " + at(row, col)); };
    grid.AfterEdit = [this](int row, int col) { log.push_back("AfterEdit " + at(row, col)); };
    EXPECT_TRUE(grid.UserDelete());
    EXPECT_EQ(grid.TextMatrix(1, 1), "");
    EXPECT_THAT(log, testing::ElementsAre("CellChanged 1.1", "AfterEdit 1.1"));
}

TEST_F(GridLists, DeleteKeepsATextThatMayNotGo) {
    offered = "";
    grid.ValidateEdit = [](int, int, bool& cancel) { cancel = true; };
    EXPECT_FALSE(grid.UserDelete());
    EXPECT_EQ(grid.TextMatrix(1, 1), "1");
    EXPECT_FALSE(grid.Editing());
}

TEST_F(GridLists, APasteTakesTheFirstLineWithBlanksForTabs) {
    offered = "";
    EXPECT_TRUE(grid.UserEditCell(1, 1, "Wet\tmeadow\r\nsecond line"));
    EXPECT_EQ(grid.TextMatrix(1, 1), "Wet meadow");
}
