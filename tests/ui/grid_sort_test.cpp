// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/grid.h"
#include "window_fixture.h"

using testing::ElementsAre;
using ui::SortOrder;

/// One column to sort by, and a column that tells where each row stood before.
class GridSort : public WindowTest {
protected:
    static constexpr int Key = 1;
    static constexpr int Place = 0;
    ui::Grid grid{frame, "flxTest"};

    void fill(const std::vector<std::string>& texts) {
        grid.Cols(2);
        grid.Rows(static_cast<int>(texts.size()) + 1);
        grid.TextMatrix(0, Key, "~heading");
        for (int row = 1; row < grid.Rows(); ++row) {
            grid.TextMatrix(row, Key, texts[static_cast<std::size_t>(row) - 1]);
            grid.TextMatrix(row, Place, std::to_string(row));
        }
        grid.Select(1, Key);
    }
    std::vector<std::string> texts(int col = Key) const {
        std::vector<std::string> found;
        for (int row = 1; row < grid.Rows(); ++row) found.emplace_back(grid.TextMatrix(row, col));
        return found;
    }
    std::vector<std::string> sorted(const std::vector<std::string>& before, SortOrder order) {
        fill(before);
        grid.Sort(order);
        return texts();
    }
};

TEST_F(GridSort, AscendingPutsEmptyCellsThenNumbersByValueThenTexts) {
    EXPECT_THAT(sorted({"pear", "10", "", "9", "Apple", "-1", "1e1", ".5", "zebra", "1,000"},
                       SortOrder::GenericAscending),
                ElementsAre("", "-1", ".5", "9", "10", "1e1", "1,000", "Apple", "pear", "zebra"));
}

TEST_F(GridSort, DescendingIsTheReverseWithEmptyCellsLast) {
    EXPECT_THAT(sorted({"pear", "10", "", "9", "Apple", "-1"}, SortOrder::GenericDescending),
                ElementsAre("pear", "Apple", "10", "9", "-1", ""));
}

TEST_F(GridSort, ComparesTextsWithoutRegardToCase) {
    EXPECT_THAT(sorted({"b", "C", "a", "ÉTÉ", "été", "Été"}, SortOrder::GenericAscending),
                ElementsAre("a", "b", "C", "ÉTÉ", "été", "Été"));
}

TEST_F(GridSort, KeepsTheOrderOfEqualRowsInBothDirections) {
    fill({"2", "1", "2.0", "1", "", "A", "", "a"});
    grid.Sort(SortOrder::GenericAscending);
    EXPECT_THAT(texts(Place), ElementsAre("5", "7", "2", "4", "1", "3", "6", "8"));
    fill({"2", "1", "2.0", "1", "", "A", "", "a"});
    grid.Sort(SortOrder::GenericDescending);
    EXPECT_THAT(texts(Place), ElementsAre("6", "8", "1", "3", "2", "4", "5", "7"));
}

TEST_F(GridSort, TextOrderDoesNotReadNumbers) {
    EXPECT_THAT(sorted({"9", "10", "b", "A", "", "100"}, SortOrder::TextAscending),
                ElementsAre("", "10", "100", "9", "A", "b"));
}

TEST_F(GridSort, ACellOfBlanksIsAText) {
    EXPECT_THAT(sorted({"5", " ", ""}, SortOrder::GenericAscending), ElementsAre("", "5", " "));
}

TEST_F(GridSort, LeavesTheFixedRowsWhereTheyAre) {
    fill({"2", "1"});
    grid.Select(0, Key);
    grid.Sort(SortOrder::GenericAscending);
    EXPECT_EQ(grid.TextMatrix(0, Key), "~heading");
    EXPECT_THAT(texts(), ElementsAre("1", "2"));
    grid.FixedRows(2);
    grid.Sort(SortOrder::GenericDescending);
    EXPECT_THAT(texts(), ElementsAre("1", "2"));
}

TEST_F(GridSort, SortsTheRowsOfASelectedRangeOnly) {
    fill({"5", "4", "3", "2", "1"});
    grid.Select(2, Key, 4, Key);
    grid.Sort(SortOrder::GenericAscending);
    EXPECT_THAT(texts(), ElementsAre("5", "2", "3", "4", "1"));
    EXPECT_THAT(texts(Place), ElementsAre("1", "4", "3", "2", "5"));
}

TEST_F(GridSort, CarriesColoursAndWeightsAlong) {
    fill({"3", "2", "1"});
    grid.Select(3, Place);
    grid.CellBackColor(ui::rgb(255, 0, 0));
    grid.CellFontBold(true);
    grid.Select(1, Key);
    grid.Sort(SortOrder::GenericAscending);
    EXPECT_EQ(grid.BackColorOf(1, Place), ui::rgb(255, 0, 0));
    EXPECT_TRUE(grid.IsBold(1, Place));
    EXPECT_NE(grid.BackColorOf(3, Place), ui::rgb(255, 0, 0));
}

TEST_F(GridSort, ReadsNumbersByThePlatformsSeparator) {
    fill({"1,5", "0.5", "1"});
    grid.Sort(SortOrder::GenericAscending);
    EXPECT_THAT(texts(), ElementsAre("0.5", "1", "1,5"));  // fifteen, here

    platform.Separator = ui::DecimalSeparator::Comma;
    ui::FormWindow other(platform, "frmOther");
    ui::Grid commas(other, "flxOther");
    commas.Rows(4);
    commas.TextMatrix(1, 0, "2");
    commas.TextMatrix(2, 0, "1,5");
    commas.TextMatrix(3, 0, "10");
    commas.Select(1, 0);
    commas.Sort(SortOrder::GenericAscending);
    EXPECT_EQ(commas.TextMatrix(1, 0), "1,5");
    EXPECT_EQ(commas.TextMatrix(2, 0), "2");
}
