// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/text_editor.h"
#include "window_fixture.h"

/// Steps of the current cell, and what else a window asks of a grid: the columns that it fits, the items that it offers.
class GridSteps : public GridTest {
protected:
    std::string current() const { return at(grid.Row(), grid.Col()); }
};

TEST_F(GridSteps, TabBackwardsGoesToTheEndOfTheRowBefore) {
    grid.Select(2, 2);
    EXPECT_TRUE(grid.UserStepBack());
    EXPECT_EQ(current(), "2.1");
    EXPECT_TRUE(grid.UserStepBack());
    EXPECT_EQ(current(), "1.2");
}

TEST_F(GridSteps, TabBackwardsStopsAtTheFirstCell) {
    EXPECT_FALSE(grid.UserStepBack());
    EXPECT_EQ(current(), "1.1");
}

TEST_F(GridSteps, TabBackwardsPassesHiddenColumns) {
    grid.ColHidden(2, true);
    grid.Select(2, 1);
    EXPECT_TRUE(grid.UserStepBack());
    EXPECT_EQ(current(), "1.1");
}

TEST_F(GridSteps, AStepFromAHeadingLeadsIntoTheBody) {
    for (const int key : {ui::DownKey, ui::RightKey, ui::TabKey, ui::EnterKey, ui::UpKey, ui::LeftKey}) {
        grid.Select(0, 0);
        EXPECT_TRUE(grid.UserStep(key));
        EXPECT_EQ(current(), "1.1");
    }
    grid.Select(0, 2);
    EXPECT_TRUE(grid.UserStep(ui::DownKey));
    EXPECT_EQ(current(), "1.2");
    grid.Select(3, 0);
    EXPECT_TRUE(grid.UserStep(ui::RightKey));
    EXPECT_EQ(current(), "3.1");
}

TEST_F(GridSteps, AStepFromAHeadingOfAnEmptyGridLeadsNowhere) {
    grid.Rows(1);
    grid.Select(0, 0);
    EXPECT_FALSE(grid.UserStep(ui::DownKey));
    EXPECT_EQ(current(), "0.0");
}

TEST_F(GridSteps, TheFirstAndTheLastCellEndTheWayOfTab) {
    EXPECT_TRUE(grid.AtFirstCell());
    EXPECT_FALSE(grid.AtLastCell());
    grid.Select(3, 2);
    EXPECT_FALSE(grid.AtFirstCell());
    EXPECT_TRUE(grid.AtLastCell());
    grid.Select(3, 1);
    EXPECT_FALSE(grid.AtLastCell());
    grid.ColHidden(2, true);
    EXPECT_TRUE(grid.AtLastCell());
}

TEST_F(GridSteps, TheWayOfTabEndsAtOnceInAGridWithoutABody) {
    grid.Rows(1);
    EXPECT_TRUE(grid.AtFirstCell());
    EXPECT_TRUE(grid.AtLastCell());
    grid.Rows(4);
    grid.ColHidden(1, true);
    grid.ColHidden(2, true);
    EXPECT_TRUE(grid.AtLastCell());
}

TEST_F(GridSteps, AHeadingIsLeftBackwardsAndEnteredForwards) {
    grid.Select(0, 0);
    EXPECT_TRUE(grid.AtFirstCell());
    EXPECT_FALSE(grid.AtLastCell());
    grid.Select(3, 0);
    EXPECT_FALSE(grid.AtLastCell());
}

TEST_F(GridSteps, AColumnIsFittedToItsText) {
    grid.TextMatrix(2, 1, "a rather long text");
    grid.UserFitColumn(1);
    const int fitted = grid.ColWidth(1);
    EXPECT_EQ(fitted, platform.textWidth("a rather long text", {}) + ui::Grid::CellPadding);
    grid.UserFitColumn(7);
    grid.Enabled(false);
    grid.ColWidth(1, 500);
    grid.UserFitColumn(1);
    EXPECT_EQ(grid.ColWidth(1), 500);
}

TEST_F(GridSteps, TheItemsOfACellAreTold) {
    EXPECT_THAT(grid.ComboItems(), testing::IsEmpty());
    grid.ComboList("|N|Y");
    EXPECT_THAT(grid.ComboItems(), testing::ElementsAre("", "N", "Y"));
}

TEST_F(GridSteps, RowsOverflowWhenTheyAreHigherThanTheGrid) {
    grid.Height(4 * ui::Grid::RowHeight + ui::Grid::BorderWidth);
    EXPECT_FALSE(grid.RowsOverflow());
    grid.Rows(5);
    EXPECT_TRUE(grid.RowsOverflow());
}
