// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/grid.h"

#include "window_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr ui::Colour Red = ui::rgb(255, 0, 0);
constexpr ui::Colour White = ui::rgb(255, 255, 255);

}  // namespace

TEST_F(GridTest, GrowsWithBlankCellsAndDropsTheLastOnes) {
    grid.Rows(6);
    grid.Cols(4);
    EXPECT_EQ(grid.TextMatrix(5, 0), "");
    EXPECT_EQ(grid.TextMatrix(1, 3), "");
    EXPECT_EQ(grid.TextMatrix(3, 2), "3.2");
    grid.Rows(2);
    grid.Cols(2);
    grid.Rows(4);
    grid.Cols(3);
    EXPECT_THAT(column(1), ElementsAre("0.1", "1.1", "", ""));
    EXPECT_THAT(column(2), ElementsAre("", "", "", ""));
}

TEST_F(GridTest, MayHaveNoRowsAtAll) {
    grid.Rows(0);
    EXPECT_EQ(grid.Rows(), 0);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(failureOf([&] { grid.TextMatrix(0, 0); }).Number, 9);
    grid.Rows(1);
    EXPECT_THAT(column(0), ElementsAre(""));
}

TEST_F(GridTest, HasCellZeroAsItsCurrentOneWhenItHasNone) {
    grid.Select(2, 2);
    grid.Rows(0);
    EXPECT_EQ(at(grid.Row(), grid.Col()), "0.0");
}

TEST_F(GridTest, RaisesSubscriptOutOfRangeOutsideItsCells) {
    for (const auto& [row, col] :
         std::vector<std::pair<int, int>>{{-1, 0}, {0, -1}, {4, 0}, {0, 3}, {4, 3}}) {
        const int r = row;
        const int c = col;
        EXPECT_EQ(failureOf([&] { grid.TextMatrix(r, c); }).Number, 9) << r << "," << c;
        EXPECT_EQ(failureOf([&] { grid.TextMatrix(r, c, "x"); }).Number, 9) << r << "," << c;
        EXPECT_EQ(failureOf([&] { grid.Select(r, c); }).Number, 9) << r << "," << c;
    }
    EXPECT_EQ(failureOf([&] { grid.RemoveItem(4); }).Number, 9);
    EXPECT_EQ(failureOf([&] { grid.RemoveItem(-1); }).Number, 9);
    EXPECT_EQ(failureOf([&] { grid.AddItem("", 5); }).Number, 9);
    EXPECT_EQ(failureOf([&] { grid.ColHidden(3, true); }).Number, 9);
    EXPECT_EQ(failureOf([&] { grid.ColWidth(-1); }).Number, 9);
    EXPECT_EQ(failureOf([&] { grid.TextMatrix(9, 9); }).Description, "Subscript out of range");
}

TEST_F(GridTest, FiresCellChangedOnEveryWriteAlsoOfAnEqualTextAndInHeadings) {
    grid.CellChanged = [&](int row, int col) {
        log.push_back(at(row, col) + "=" + std::string(grid.TextMatrix(row, col)));
    };
    grid.TextMatrix(1, 2, "new");
    grid.TextMatrix(1, 2, "new");
    grid.TextMatrix(0, 0, "heading");
    EXPECT_THAT(log, ElementsAre("1.2=new", "1.2=new", "0.0=heading"));
}

TEST_F(GridTest, FiresNoCellChangedWhenItsShapeChangesOrItIsSorted) {
    grid.CellChanged = [&](int, int) { log.push_back("changed"); };
    grid.Rows(6);
    grid.Cols(5);
    grid.AddItem("text");
    grid.AddItem("text", 1);
    grid.RemoveItem(2);
    grid.Sort(ui::SortOrder::GenericDescending);
    grid.Cols(2);
    grid.Rows(2);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(GridTest, AddsARowAtTheEndOrBeforeAnother) {
    grid.AddItem("end");
    grid.AddItem("before", 2);
    EXPECT_THAT(column(0), ElementsAre("0.0", "1.0", "before", "2.0", "3.0", "end"));
    EXPECT_THAT(column(1), ElementsAre("0.1", "1.1", "", "2.1", "3.1", ""));
}

TEST_F(GridTest, RemovesARowAndClosesTheGap) {
    grid.RemoveItem(2);
    EXPECT_THAT(column(1), ElementsAre("0.1", "1.1", "3.1"));
}

TEST_F(GridTest, KeepsTheCurrentCellInsideWhenItShrinks) {
    grid.Select(3, 2);
    grid.Rows(2);
    EXPECT_EQ(grid.Row(), 1);
    grid.Cols(1);
    EXPECT_EQ(grid.Col(), 0);
    grid.Rows(4);
    grid.Select(3, 0);
    grid.RemoveItem(1);
    EXPECT_EQ(grid.Row(), 2);
}

TEST_F(GridTest, ReadsACellAsANumber) {
    grid.TextMatrix(1, 1, "2.5");
    EXPECT_EQ(grid.Real(1, 1), 2.5);
    EXPECT_EQ(grid.Long(1, 1), 2);
    grid.TextMatrix(1, 1, "");
    EXPECT_EQ(failureOf([&] { grid.Real(1, 1); }).Number, 13);
    EXPECT_EQ(failureOf([&] { grid.Long(1, 1); }).Number, 13);
    grid.TextMatrix(1, 1, "1e10");
    EXPECT_EQ(failureOf([&] { grid.Long(1, 1); }).Number, 6);
}

TEST_F(GridTest, AsksBeforeTheCurrentCellMovesByUserOrByCode) {
    grid.BeforeRowColChange = [&](int oldRow, int oldCol, int newRow, int newCol, bool&) {
        // The old cell is still the current one.
        EXPECT_EQ(at(grid.Row(), grid.Col()), at(oldRow, oldCol));
        log.push_back(at(oldRow, oldCol) + ">" + at(newRow, newCol));
    };
    EXPECT_TRUE(grid.UserMoveTo(2, 1));
    grid.Row(3);
    grid.Col(2);
    grid.Select(1, 1);
    grid.Select(1, 1);
    grid.UserMouseDown(2, 2);
    EXPECT_THAT(log, ElementsAre("1.1>2.1", "2.1>3.1", "3.1>3.2", "3.2>1.1", "1.1>2.2"));
}

TEST_F(GridTest, StaysOnItsCellWhenTheMoveIsCancelled) {
    grid.BeforeRowColChange = [](int, int, int, int, bool& cancel) { cancel = true; };
    EXPECT_FALSE(grid.UserMoveTo(2, 2));
    grid.Row(3);
    grid.Col(2);
    grid.Select(3, 1, 3, 2);
    grid.UserMouseDown(2, 2);
    EXPECT_EQ(at(grid.Row(), grid.Col()), "1.1");
    EXPECT_EQ(at(grid.RowSel(), grid.ColSel()), "1.1");
}

TEST_F(GridTest, DoesNotMoveOutsideItsCells) {
    EXPECT_FALSE(grid.UserMoveTo(4, 1));
    EXPECT_FALSE(grid.UserMoveTo(1, -1));
    EXPECT_EQ(at(grid.Row(), grid.Col()), "1.1");
}

TEST_F(GridTest, FormatsTheWholeSelectionOrTheCurrentCellAlone) {
    grid.FillStyle = 1;
    grid.Select(2, 2, 1, 1);
    grid.CellBackColor(Red);
    grid.CellFontBold(true);
    EXPECT_EQ(grid.BackColorOf(1, 1), Red);
    EXPECT_EQ(grid.BackColorOf(2, 1), Red);
    EXPECT_EQ(grid.BackColorOf(2, 2), Red);
    EXPECT_EQ(grid.BackColorOf(3, 1), White);
    EXPECT_EQ(grid.BackColorOf(1, 0), White);
    EXPECT_TRUE(grid.IsBold(1, 2));
    grid.FillStyle = 0;
    grid.CellBackColor(White);
    EXPECT_EQ(grid.BackColorOf(2, 2), White);
    EXPECT_EQ(grid.BackColorOf(2, 1), Red);
}

TEST_F(GridTest, ReadsFormatsFromTheCurrentCell) {
    grid.CellBackColor(Red);
    grid.CellFontBold(true);
    grid.CellChecked(ui::CheckState::Checked);
    grid.CellAlignment(ui::CellAlign::CentreCentre);
    EXPECT_EQ(grid.CellBackColor(), 255);
    EXPECT_TRUE(grid.CellFontBold());
    EXPECT_EQ(grid.CellChecked(), ui::CheckState::Checked);
    EXPECT_EQ(grid.CellAlignment(), ui::CellAlign::CentreCentre);
    grid.Select(2, 1);
    EXPECT_EQ(grid.CellBackColor(), White);
    EXPECT_FALSE(grid.CellFontBold());
    EXPECT_EQ(grid.CellChecked(), ui::CheckState::None);
}

TEST_F(GridTest, CarriesFormatsAlongWhenRowsComeAndGoAndDropsThoseOfDroppedCells) {
    grid.Select(3, 2);
    grid.CellBackColor(Red);
    grid.CellFontBold(true);
    grid.AddItem("", 1);
    EXPECT_EQ(grid.BackColorOf(4, 2), Red);
    EXPECT_EQ(grid.BackColorOf(3, 2), White);
    grid.RemoveItem(2);
    EXPECT_EQ(grid.BackColorOf(3, 2), Red);
    EXPECT_TRUE(grid.IsBold(3, 2));
    grid.Cols(2);
    grid.Cols(3);
    EXPECT_EQ(grid.BackColorOf(3, 2), White);
    EXPECT_FALSE(grid.IsBold(3, 2));
    grid.Select(3, 1);
    grid.CellBackColor(Red);
    grid.Rows(3);
    grid.Rows(4);
    EXPECT_EQ(grid.BackColorOf(3, 1), White);
}

TEST_F(GridTest, KeepsTheCellsOfAHiddenColumn) {
    grid.ColHidden(2, true);
    EXPECT_TRUE(grid.ColHidden(2));
    EXPECT_FALSE(grid.ColHidden(1));
    EXPECT_EQ(grid.TextMatrix(1, 2), "1.2");
}

TEST_F(GridTest, AutoSizeFollowsTheWidestTextOfTheColumnAndItsChanges) {
    grid.AutoSize(0, 2);
    const int narrow = grid.ColWidth(1);
    EXPECT_EQ(grid.ColWidth(2), narrow);
    grid.TextMatrix(2, 1, "wide text");
    grid.AutoSize(1);
    const int wide = grid.ColWidth(1);
    const ui::Font cellFont;
    EXPECT_EQ(wide - narrow, platform.textWidth("wide text", cellFont) - platform.textWidth("1.1", cellFont));
    EXPECT_EQ(grid.ColWidth(2), narrow);
    grid.RemoveItem(2);
    grid.AutoSize(1);
    EXPECT_EQ(grid.ColWidth(1), narrow);
}

TEST_F(GridTest, AColumnTakesAWholeNumberOfTwips) {
    grid.ColWidth(1, 100.5);
    EXPECT_EQ(grid.ColWidth(1), 100);
    grid.ColWidth(1, 101.5);
    EXPECT_EQ(grid.ColWidth(1), 102);
}

TEST_F(GridTest, LosesRoomToTheScrollBarWhenItsRowsDoNotFit) {
    grid.Move(0, 0, 5000, 3000);
    const int roomy = grid.ClientWidth();
    EXPECT_LT(roomy, 5000);
    grid.Rows(100);
    EXPECT_LT(grid.ClientWidth(), roomy);
    grid.Rows(2);
    EXPECT_EQ(grid.ClientWidth(), roomy);
}

TEST_F(GridTest, BreaksHeadingsIntoLinesWhereItWrapsWords) {
    grid.TextMatrix(0, 1, "three short words");
    const int whole = platform.textWidth("three short words", {}) + ui::Grid::CellPadding;
    const int twoWords = platform.textWidth("three short", {}) + ui::Grid::CellPadding;
    const auto heightAt = [this](int width) {
        grid.ColWidth(1, width);
        return grid.HeadingHeight();
    };
    EXPECT_EQ(heightAt(twoWords), ui::Grid::RowHeight);
    grid.WordWrap = true;
    EXPECT_EQ(heightAt(whole), ui::Grid::RowHeight);
    EXPECT_EQ(heightAt(whole - 1), ui::Grid::RowHeight + ui::Grid::LineHeight);
    EXPECT_EQ(heightAt(twoWords), ui::Grid::RowHeight + ui::Grid::LineHeight);
    EXPECT_EQ(heightAt(100), ui::Grid::RowHeight + ui::Grid::LineHeight);
    grid.ColHidden(1, true);
    EXPECT_EQ(grid.HeadingHeight(), ui::Grid::RowHeight);
}

TEST_F(GridTest, CountsRoomForAHighHeadingWhateverTheColumnsWidths) {
    grid.Rows(10);
    grid.Move(0, 0, 5000, 10 * ui::Grid::RowHeight + ui::Grid::BorderWidth);
    EXPECT_FALSE(grid.RowsOverflow());
    grid.WordWrap = true;
    EXPECT_TRUE(grid.RowsOverflow());
    grid.Height(grid.Height() + ui::Grid::LineHeight);
    EXPECT_FALSE(grid.RowsOverflow());
    grid.TextMatrix(0, 1, "two words");
    grid.ColWidth(1, 200);
    EXPECT_FALSE(grid.RowsOverflow());
}

TEST_F(GridTest, SavesEveryRowAndColumnFixedAndHiddenOnesIncluded) {
    TemporaryFolder folder;
    ui::Files files;
    grid.Rows(2);
    grid.ColHidden(1, true);
    grid.TextMatrix(1, 2, "Hêtre, \"commun\"");
    grid.TextMatrix(1, 0, "");
    grid.SaveGrid(files, folder.file("grid.txt"), ui::GridFileFormat::TabDelimited);
    EXPECT_EQ(readFile(folder.file("grid.txt")), "0.0\t0.1\t0.2\r\n\t1.1\tHêtre, \"commun\"\r\n");
    EXPECT_FALSE(files.IsOpen(1));
    EXPECT_FALSE(files.IsOpen(2));
}

TEST_F(GridTest, SavingEndsInTheErrorOfTheFile) {
    TemporaryFolder folder;
    ui::Files files;
    const std::string path = folder.file("none/grid.txt");
    EXPECT_EQ(failureOf([&] { grid.SaveGrid(files, path, ui::GridFileFormat::TabDelimited); }).Number, 76);
    EXPECT_EQ(files.LastFault()->Path, path);
}

TEST_F(GridTest, KnowsTheCellUnderTheMouse) {
    EXPECT_EQ(at(grid.MouseRow(), grid.MouseCol()), "-1.-1");
    grid.MouseMove = [&] { log.push_back("move " + at(grid.MouseRow(), grid.MouseCol())); };
    grid.MouseDown = [&] { log.push_back("down " + at(grid.MouseRow(), grid.MouseCol())); };
    grid.UserMouseMove(0, 2);
    grid.UserMouseDown(2, 2);
    grid.UserMouseMove(-1, -1);
    EXPECT_THAT(log, ElementsAre("move 0.2", "down 2.2", "move -1.-1"));
    EXPECT_EQ(at(grid.Row(), grid.Col()), "2.2");
}

TEST_F(GridTest, AClickOnAHeadingMovesNothing) {
    grid.UserMouseDown(0, 1);
    grid.UserMouseDown(2, 0);
    EXPECT_EQ(at(grid.Row(), grid.Col()), "1.1");
}
