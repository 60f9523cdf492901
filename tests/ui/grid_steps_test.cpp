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
    EXPECT_EQ(current(), "1.1");
    grid.Select(3, 0);
    EXPECT_TRUE(grid.UserStep(ui::RightKey));
    EXPECT_EQ(current(), "3.1");
}

TEST_F(GridSteps, KeysBeginAtTheCellThatTheyLeadToFromAHeading) {
    using Cell = std::pair<int, int>;
    grid.Select(3, 2);
    EXPECT_EQ(grid.KeyCell(), Cell(3, 2));
    grid.Select(0, 2);
    EXPECT_EQ(grid.KeyCell(), Cell(1, 1));
    grid.ColHidden(1, true);
    EXPECT_EQ(grid.KeyCell(), Cell(1, 2));
    EXPECT_EQ(current(), "0.2");
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

TEST_F(GridSteps, TheBodyIsEnteredAtItsFirstCellOnView) {
    grid.Select(0, 2);
    EXPECT_TRUE(grid.UserEnterBody());
    EXPECT_EQ(current(), "1.1");
    grid.Select(2, 2);
    EXPECT_TRUE(grid.UserEnterBody());
    EXPECT_EQ(current(), "2.2");
    grid.Rows(1);
    EXPECT_FALSE(grid.UserEnterBody());
}

TEST_F(GridSteps, OnlyTheUsersRangeIsTheUsers) {
    grid.Select(1, 1, 3, 2);
    EXPECT_FALSE(grid.UserSelected());
    grid.Select(1, 1);
    EXPECT_TRUE(grid.UserSelectTo(3, 2));
    EXPECT_TRUE(grid.UserSelected());
    EXPECT_EQ(current(), "1.1");
    grid.Select(1, 1, 3, 2);
    EXPECT_FALSE(grid.UserSelected());
}

TEST_F(GridSteps, SelectedCellsAreCopiedAsLinesBlankOnesIncluded) {
    grid.TextMatrix(1, 1, "");
    grid.TextMatrix(2, 2, "a\tb\nc");
    grid.TextMatrix(3, 1, "");
    grid.Select(1, 1);
    grid.UserSelectTo(3, 1);
    EXPECT_EQ(grid.SelectedText(), "\n2.1\n");
    grid.UserSelectTo(2, 2);
    EXPECT_EQ(grid.SelectedText(), "\t1.2\n2.1\ta b c");
    grid.ColHidden(1, true);
    EXPECT_EQ(grid.SelectedText(), "1.2\na b c");
}

TEST_F(GridSteps, SelectedCellsAreCopiedWithHeadingsAndFixedColumns) {
    grid.TextMatrix(0, 1, "Total by\nunit");
    grid.Select(2, 1);
    grid.UserSelectTo(3, 2);
    EXPECT_EQ(grid.SelectedTextWithHeadings({}), "0.0\tTotal by unit\t0.2\n2.0\t2.1\t2.2\n3.0\t3.1\t3.2");
    const auto named = [](int col) { return "unit " + std::to_string(col); };
    EXPECT_EQ(grid.SelectedTextWithHeadings(named), "unit 0\tunit 1\tunit 2\n2.0\t2.1\t2.2\n3.0\t3.1\t3.2");
    grid.ColHidden(1, true);
    grid.ColHidden(0, true);
    EXPECT_EQ(grid.SelectedTextWithHeadings({}), "0.2\n2.2\n3.2");
}

TEST_F(GridSteps, HeadingsThatAreSelectedAreCopiedOnce) {
    grid.Select(0, 0);
    EXPECT_EQ(grid.SelectedTextWithHeadings({}), "0.0");
    grid.Select(0, 0, 1, 1);
    EXPECT_EQ(grid.SelectedTextWithHeadings({}), "0.0\t0.1\n1.0\t1.1");
    grid.FixedRows(0);
    EXPECT_EQ(grid.SelectedTextWithHeadings([](int) { return "heading"; }), "0.0\t0.1\n1.0\t1.1");
    grid.Rows(0);
    EXPECT_EQ(grid.SelectedTextWithHeadings({}), "");
}

TEST_F(GridSteps, ABlockIsPastedCellByCellAndSelected) {
    std::vector<std::string> changed;
    grid.AfterEdit = [&](int row, int col) {
        changed.push_back(at(row, col) + "=" + std::string(grid.TextMatrix(row, col)));
    };
    grid.Select(1, 1);
    const auto block = grid.UserPasteBlock("a\tb\r\nc\td\r\n");
    ASSERT_TRUE(block);
    EXPECT_EQ(block->Left, 0);
    EXPECT_FALSE(block->Refused);
    EXPECT_EQ(changed, (std::vector<std::string>{"1.1=a", "1.2=b", "2.1=c", "2.2=d"}));
    EXPECT_EQ(current(), "1.1");
    EXPECT_EQ(at(grid.RowSel(), grid.ColSel()), "2.2");
    EXPECT_TRUE(grid.UserSelected());
    EXPECT_EQ(platform.Beeps, 0);
}

TEST_F(GridSteps, ABlockOfUnevenLinesIsSelectedAsWideAsItsWidest) {
    grid.Select(1, 1);
    ASSERT_TRUE(grid.UserPasteBlock("a\tb\nc"));
    EXPECT_EQ(current(), "1.1");
    EXPECT_EQ(at(grid.RowSel(), grid.ColSel()), "2.2");
}

TEST_F(GridSteps, BlankCellsAtTheEndOfABlockArePastedToo) {
    grid.Select(1, 1);
    ASSERT_TRUE(grid.UserPasteBlock("x\n\n\n"));
    EXPECT_EQ(column(1), (std::vector<std::string>{"0.1", "x", "", ""}));
}

TEST_F(GridSteps, BlankCellsOfABlockLeaveCellsWithAListAsTheyAre) {
    std::vector<std::string> changed;
    grid.AfterEdit = [&](int row, int col) { changed.push_back(at(row, col)); };
    grid.BeforeEdit = [&](int, int col, bool&) { grid.ComboList(col == 1 ? "0|1|2" : ""); };
    grid.Select(1, 1);
    const auto block = grid.UserPasteBlock("1\tx\n\t\n \ty");
    ASSERT_TRUE(block);
    EXPECT_EQ(block->Left, 0);
    EXPECT_EQ(column(1), (std::vector<std::string>{"0.1", "1", "2.1", "3.1"}));
    EXPECT_EQ(column(2), (std::vector<std::string>{"0.2", "x", "", "y"}));
    EXPECT_EQ(changed, (std::vector<std::string>{"1.1", "1.2", "2.2", "3.2"}));
    EXPECT_EQ(at(grid.RowSel(), grid.ColSel()), "3.2");
    EXPECT_EQ(platform.Beeps, 0);
    EXPECT_FALSE(grid.Editing());
}

TEST_F(GridSteps, ABlockStopsWithABeepAtTheFirstCellThatRefuses) {
    grid.ValidateEdit = [&](int, int, bool& cancel) { cancel = grid.EditText() == "bad"; };
    grid.Select(1, 1);
    const auto block = grid.UserPasteBlock("a\nbad\tb\nc");
    ASSERT_TRUE(block);
    EXPECT_EQ(block->Refused, "bad");
    EXPECT_EQ(block->Left, 3);
    EXPECT_EQ(column(1), (std::vector<std::string>{"0.1", "a", "2.1", "3.1"}));
    EXPECT_EQ(current(), "2.1");
    EXPECT_EQ(at(grid.RowSel(), grid.ColSel()), "2.1");
    EXPECT_FALSE(grid.Editing());
    EXPECT_EQ(platform.Beeps, 1);
}

TEST_F(GridSteps, ABlockStopsWithABeepAtTheEdges) {
    grid.Select(3, 1);
    auto block = grid.UserPasteBlock("a\tb\tc");
    ASSERT_TRUE(block);
    EXPECT_FALSE(block->Refused);
    EXPECT_EQ(block->Left, 1);
    EXPECT_EQ(grid.TextMatrix(3, 2), "b");
    EXPECT_EQ(at(grid.RowSel(), grid.ColSel()), "3.2");
    EXPECT_EQ(platform.Beeps, 1);
    grid.Select(3, 1);
    block = grid.UserPasteBlock("d\ne\tf");
    ASSERT_TRUE(block);
    EXPECT_FALSE(block->Refused);
    EXPECT_EQ(block->Left, 2);
    EXPECT_EQ(grid.TextMatrix(3, 1), "d");
    EXPECT_EQ(platform.Beeps, 2);
}

TEST_F(GridSteps, NoBlockIsPastedIntoADisabledGrid) {
    grid.Enabled(false);
    EXPECT_FALSE(grid.UserPasteBlock("a"));
    EXPECT_EQ(platform.Beeps, 0);
}

TEST_F(GridSteps, ASortMarksItsColumnUntilItsValuesChange) {
    grid.Select(0, 2);
    grid.Sort(ui::SortOrder::GenericDescending);
    EXPECT_EQ(grid.Sorted().Col, 2);
    EXPECT_TRUE(grid.Sorted().Descending);
    grid.TextMatrix(1, 1, "another column");
    EXPECT_EQ(grid.Sorted().Col, 2);
    grid.TextMatrix(1, 2, "9");
    EXPECT_EQ(grid.Sorted().Col, -1);
    grid.Select(1, 2, 3, 2);
    grid.Sort(ui::SortOrder::GenericAscending);
    EXPECT_EQ(grid.Sorted().Col, -1);
}

TEST_F(GridSteps, TheCloseBoxDoesNotPassARefusedEdit) {
    grid.ValidateEdit = [](int, int, bool& cancel) { cancel = true; };
    grid.UserBeginEdit();
    window.UserClose();
    EXPECT_FALSE(window.Unloaded());
    grid.UserCancelEdit();
    window.UserClose();
    EXPECT_TRUE(window.Unloaded());
}
