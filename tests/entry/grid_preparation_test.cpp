// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/form_layout.h"
#include "entry/modFlexGridUtilities.h"
#include "support/form_test.h"

using testing::ElementsAre;
using namespace modFlexGridUtilities;

/// A grid that was something else before it is prepared.
class GridPreparation : public FormTest {
protected:
    ui::FormWindow window{platform, "frmTest"};
    ui::Grid grid{window, "flxTest"};
    static constexpr const char* Headings[] = {"No.", "Name"};

    GridPreparation() {
        grid.Cols(5);
        grid.Rows(4);
        grid.WordWrap = false;
        grid.FixedRows(0);
        grid.FixedCols(0);
        grid.Editable = ui::EditMode::ReadOnly;
        grid.FocusRect = 0;
        grid.HighLight = 7;
        grid.SelectionMode = 7;
        grid.ScrollTrack = false;
        grid.FillStyle = 0;
        grid.MergeCells = 0;
        grid.CellPictureAlignment(ui::CellAlign::LeftCentre);
        grid.Redraw(false);
    }
};

TEST_F(GridPreparation, SetsEveryProperty) {
    InitFlexGrid(grid, 2, Headings, false, 1);
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_THAT(rowOf(grid, 0), ElementsAre("No.", "Name"));
    EXPECT_TRUE(grid.WordWrap);
    EXPECT_EQ(grid.FixedRows(), 1);
    EXPECT_EQ(grid.FixedCols(), 1);
    EXPECT_EQ(grid.Editable, ui::EditMode::KeyboardAndMouse);
    EXPECT_EQ(grid.FocusRect, 2);
    EXPECT_EQ(grid.HighLight, 0);
    EXPECT_EQ(grid.SelectionMode, 0);
    EXPECT_TRUE(grid.ScrollTrack);
    EXPECT_EQ(grid.FillStyle, 1);
    EXPECT_EQ(grid.MergeCells, 1);
    EXPECT_EQ(grid.CellPictureAlignment(), ui::CellAlign::CentreCentre);
    EXPECT_TRUE(grid.Redraw());
    for (int col = 0; col < 2; ++col) EXPECT_EQ(grid.AlignmentOf(0, col), ui::CellAlign::LeftCentre);
}

TEST_F(GridPreparation, LeavesTheWholeGridSelectedFromItsFirstCell) {
    InitFlexGrid(grid, 3, Headings, false, 0);
    EXPECT_THAT((std::vector<int>{grid.Row(), grid.Col(), grid.RowSel(), grid.ColSel()}),
                ElementsAre(0, 0, 0, 2));
}

// One heading row has no cells to tick.
TEST_F(GridPreparation, TicksNothing) {
    grid.Select(0, 0);
    InitFlexGrid(grid, 3, Headings, true, 0);
    EXPECT_THAT((std::vector<int>{grid.Row(), grid.Col(), grid.RowSel(), grid.ColSel()}),
                ElementsAre(0, 0, 0, 2));
}

TEST_F(GridPreparation, UntickedBodyIsAllButTheHeadings) {
    for (const int size : {4, 2}) {
        grid.Rows(1);
        grid.Rows(size);
        grid.Cols(size);
        grid.FillStyle = 1;
        uncheckBody(grid);
        for (int row = 0; row < size; ++row) {
            for (int col = 0; col < size; ++col) {
                grid.Select(row, col);
                const bool body = row > 0 && col > 0;
                EXPECT_EQ(grid.CellChecked(), body ? ui::CheckState::Unchecked : ui::CheckState::None)
                    << row << "," << col;
            }
        }
    }
}

TEST_F(GridPreparation, WithoutABodyNothingIsSelectedToBeUnticked) {
    grid.Select(0, 0);
    for (const auto& [rows, cols] : {std::pair(1, 2), std::pair(2, 1), std::pair(1, 1)}) {
        grid.Rows(rows);
        grid.Cols(cols);
        EXPECT_NO_THROW(uncheckBody(grid)) << rows << "," << cols;
        EXPECT_THAT((std::vector<int>{grid.Row(), grid.Col(), grid.RowSel(), grid.ColSel()}),
                    ElementsAre(0, 0, 0, 0));
    }
}

TEST_F(GridPreparation, RowsThatAreAddedAreAlignedLeft) {
    InitFlexGrid(grid, 2, Headings, false, 1);
    for (int col = 0; col < 2; ++col) grid.ColAlignment(col, ui::CellAlign::CentreCentre);
    UpdateFlexGrid(grid, 2, true);
    EXPECT_EQ(grid.Rows(), 3);
    for (int col = 0; col < 2; ++col) EXPECT_EQ(grid.ColAlignment(col), ui::CellAlign::LeftCentre);
    EXPECT_THAT(columnOf(grid, 0), ElementsAre("No.", "1", "2"));
}

TEST_F(GridPreparation, AGridWithoutColumnsGrowsAndIsFitted) {
    grid.Cols(0);
    EXPECT_NO_THROW(UpdateFlexGrid(grid, 2, false));
    EXPECT_NO_THROW(layout::fitColumns(grid));
    EXPECT_EQ(grid.Rows(), 6);
}
