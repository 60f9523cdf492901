// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modFlexGridUtilities.h"

#include <cmath>
#include <numeric>

#include "entry_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;
using namespace modFlexGridUtilities;

/// A grid that no procedure of the form knows.
class GridHelpers : public EntryTest {
protected:
    ui::FormWindow window{platform, "frmTest"};
    ui::Grid grid{window, "flxTest"};

    /// Heading row and one row a text, which stands in every column.
    void fill(const std::vector<std::string>& texts, int cols = 4) {
        grid.Cols(cols);
        grid.Rows(static_cast<int>(texts.size()) + 1);
        for (int row = 1; row < grid.Rows(); ++row) {
            for (int col = 0; col < cols; ++col)
                grid.TextMatrix(row, col, texts[static_cast<std::size_t>(row) - 1]);
        }
    }
    std::vector<double> areas = std::vector<double>(3, -1);
};

TEST_F(GridHelpers, CheckMissingValsAsksNothingWhereAllIsFilled) {
    fill({"a", "0"});
    EXPECT_EQ(static_cast<int>(CheckMissingVals(grid, 1, "Prompt?")), 0);
    EXPECT_THAT(platform.Transcript, IsEmpty());
    grid.Rows(1);
    EXPECT_EQ(static_cast<int>(CheckMissingVals(grid, 1, "Prompt?")), 0);
}

TEST_F(GridHelpers, CheckMissingValsAsksOnceAndRemovesNothing) {
    fill({"a", "  ", ""});
    platform.Answers = {"yes", "no"};
    EXPECT_EQ(static_cast<int>(CheckMissingVals(grid, 1, "Prompt?")), 1);
    EXPECT_EQ(static_cast<int>(CheckMissingVals(grid, 1, "Prompt?")), 2);
    ASSERT_EQ(platform.Transcript.size(), 2U);
    EXPECT_EQ(lastBox().Text, "Prompt?");
    EXPECT_EQ(lastBox().Title, "Invalid value");
    EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Question);
    EXPECT_EQ(grid.Rows(), 4);
}

TEST_F(GridHelpers, CheckMissingValsTakesACellOfBlanksAsEmpty) {
    fill({"   "});
    EXPECT_EQ(static_cast<int>(CheckMissingVals(grid, 1, "?")), 1);
}

TEST_F(GridHelpers, GetAreaTotalSumsAndKeepsEachArea) {
    fill({"1.5", "2", "0.25"});
    EXPECT_EQ(GetAreaTotal(grid, 3, areas), 3.75);
    EXPECT_THAT(areas, ElementsAre(1.5, 2, 0.25));
}

TEST_F(GridHelpers, GetAreaTotalIsTheCountWhereAnAreaIsBlank) {
    fill({"10", "20", ""});
    EXPECT_EQ(GetAreaTotal(grid, 3, areas), 3);
    EXPECT_THAT(areas, ElementsAre(10, 20, -1));
}

TEST_F(GridHelpers, GetAreaTotalOfThreeOnesIsTheSameAsForABlank) {
    fill({"1", "1", "1"});
    EXPECT_EQ(GetAreaTotal(grid, 3, areas), 3);
}

TEST_F(GridHelpers, GetAreaTotalFailsOnACellOfBlanks) {
    fill({"1", " ", "1"});
    EXPECT_EQ(failureOf([&] { GetAreaTotal(grid, 3, areas); }).Description,
              reportOf("FlexGridUtilities.GetAreaTotal", 13, "Type mismatch"));
}

class AreaValues : public GridHelpers {
protected:
    int homeRangeType = 0;
    int totalBins = 2;
    std::vector<std::string> userLabels = {"5 - 20 km2", "20+ km2", "20+ KM2"};

    AreaValues() {
        fill({"", ""}, 5);
        form.cbxUserDefBinsHR.AddItem(userLabels[0]);
        form.cbxUserDefBinsHR.AddItem(userLabels[1]);
    }
    void load(int species = 1) {
        GetAreaVals(species, grid,
                    {form.cbxDispersalYN, form.cbxConnectivity, homeRangeType, form.cbxDefaultBinsHR,
                     form.cbxUserDefBinsHR, form.txtContinuousHR, form.txtPropOccupied, form.lblPropOccupHint,
                     userLabels, totalBins},
                    "the hint");
    }
};

TEST_F(AreaValues, YesAndNoAreFoundInAnyCaseAndOtherTextsLeaveTheBox) {
    struct Row {
        std::string Text;
        int Index;
    };
    for (const Row& row :
         std::vector<Row>{{"Y", 1}, {"n", 2}, {"", 0}, {"N", 2}, {"maybe", 2}, {"y", 1}, {" Y", 1}}) {
        grid.TextMatrix(1, 1, row.Text);
        grid.TextMatrix(1, 2, row.Text);
        load();
        EXPECT_EQ(form.cbxDispersalYN.ListIndex(), row.Index) << row.Text;
        EXPECT_EQ(form.cbxConnectivity.ListIndex(), row.Index) << row.Text;
    }
}

TEST_F(AreaValues, ProportionAndHintAreShown) {
    grid.TextMatrix(1, 4, "0.50");
    load();
    EXPECT_EQ(form.txtPropOccupied.Text(), "0.50");
    EXPECT_EQ(form.lblPropOccupHint.Caption(), "the hint");
}

TEST_F(AreaValues, AContinuousHomeRangeIsShownAndABlankAsZero) {
    grid.TextMatrix(1, 3, "12.5");
    load();
    EXPECT_EQ(form.txtContinuousHR.Text(), "12.5");
    grid.TextMatrix(1, 3, "");
    load();
    EXPECT_EQ(form.txtContinuousHR.Text(), "0");
}

TEST_F(AreaValues, ADefaultBinIsFoundInAnyCase) {
    homeRangeType = 1;
    form.cbxUserDefBinsHR.ListIndex(0);
    struct Row {
        std::string Text;
        int Index;
    };
    for (const Row& row : std::vector<Row>{
             {"0 - 1 km2", 0}, {"100+ KM2", 5}, {"", -1}, {"10 - 25 km2", 2}, {"11 - 25 km2", -1}}) {
        grid.TextMatrix(1, 3, row.Text);
        load();
        EXPECT_EQ(form.cbxDefaultBinsHR.ListIndex(), row.Index) << row.Text;
        EXPECT_EQ(form.cbxUserDefBinsHR.ListIndex(), 0) << row.Text;
    }
}

TEST_F(AreaValues, AUserBinIsFoundAmongThoseOfTheBreakpoints) {
    homeRangeType = 2;
    grid.TextMatrix(1, 3, "20+ km2");
    load();
    EXPECT_EQ(form.cbxUserDefBinsHR.ListIndex(), 1);
    totalBins = 1;
    load();
    EXPECT_EQ(form.cbxUserDefBinsHR.ListIndex(), -1);
    form.cbxUserDefBinsHR.ListIndex(0);
    totalBins = 0;
    load();
    EXPECT_EQ(form.cbxUserDefBinsHR.ListIndex(), 0);
}

TEST_F(AreaValues, NoSpeciesLoadsNothing) {
    grid.TextMatrix(1, 1, "Y");
    load(0);
    EXPECT_EQ(form.cbxDispersalYN.ListIndex(), 0);
    EXPECT_NE(form.lblPropOccupHint.Caption(), "the hint");
}

TEST_F(GridHelpers, TheBlocksOfASpeciesAreCopiedToItsEntryGrids) {
    ui::Grid target(window, "flxTarget");
    target.Rows(3);
    target.Cols(4);
    grid.Rows(7);
    grid.Cols(7);
    for (int row = 1; row < 7; ++row) {
        for (int col = 0; col < 7; ++col) grid.TextMatrix(row, col, std::to_string(10 * row + col));
    }
    GetHeteroVals(2, 2, grid, target);
    EXPECT_THAT(columnOf(target, 1), ElementsAre("", "32", "42"));
    GetVulnVals(3, 2, grid, target);
    EXPECT_THAT(rowOf(target, 1), ElementsAre("", "54", "55", "56"));
    EXPECT_THAT(rowOf(target, 2), ElementsAre("", "64", "65", "66"));
    GetFuncSEVals(4, 2, grid, target);
    EXPECT_THAT(columnOf(target, 1), ElementsAre("", "41", "42"));
    const auto before = cellsOf(target);
    GetHeteroVals(0, 2, grid, target);
    GetVulnVals(0, 2, grid, target);
    GetFuncSEVals(0, 2, grid, target);
    EXPECT_EQ(cellsOf(target), before);
}

TEST_F(GridHelpers, GetColContentsReadsTheBody) {
    fill({"a", "", "c"});
    std::vector<std::string> contents = {"old"};
    EXPECT_EQ(GetColContents(grid, 1, contents), 3);
    EXPECT_THAT(contents, ElementsAre("a", "", "c"));
}

TEST_F(GridHelpers, GetColContentsOfAHeadingAloneIsZeroAndLeavesTheArray) {
    fill({});
    std::vector<std::string> contents = {"old"};
    EXPECT_EQ(GetColContents(grid, 1, contents), 0);
    EXPECT_THAT(contents, ElementsAre("old"));
}

TEST_F(GridHelpers, RemoveGridEntryRemovesAndNumbersAnew) {
    fill({"a", "b", "c"});
    int count = 3;
    RemoveGridEntry(grid, std::array{1}, count);
    EXPECT_EQ(count, 2);
    EXPECT_THAT(columnOf(grid, 0), ElementsAre("", "1", "2"));
    EXPECT_THAT(columnOf(grid, 1), ElementsAre("", "b", "c"));
}

TEST_F(GridHelpers, RemoveGridEntryOutsideTheCountChangesNothing) {
    fill({"a", "b", "c"});
    const auto before = cellsOf(grid);
    for (const int row : {0, -1, 3, 4}) {
        int count = 2;
        RemoveGridEntry(grid, std::array{row}, count);
        EXPECT_EQ(count, 2);
        EXPECT_EQ(cellsOf(grid), before);
    }
}

TEST_F(GridHelpers, RemoveHRDataBlanksColumnThree) {
    fill({"a", "b"}, 5);
    RemoveHRData(grid);
    EXPECT_THAT(columnOf(grid, 3), ElementsAre("", "", ""));
    EXPECT_THAT(columnOf(grid, 2), ElementsAre("", "a", "b"));
    EXPECT_THAT(columnOf(grid, 4), ElementsAre("", "a", "b"));
}

TEST_F(GridHelpers, UpdateFlexGridAddsAndDropsRows) {
    fill({"a", "b"});
    int count = 0;
    UpdateFlexGrid(grid, 2, count, false);
    EXPECT_EQ(count, 4);
    EXPECT_THAT(columnOf(grid, 0), ElementsAre("", "a", "b", "", ""));
    UpdateFlexGrid(grid, -1, count, true);
    EXPECT_EQ(count, 3);
    EXPECT_THAT(columnOf(grid, 0), ElementsAre("", "1", "2", "3"));
    for (int col = 0; col < 4; ++col) EXPECT_EQ(grid.ColAlignment(col), ui::CellAlign::LeftCentre);
    EXPECT_EQ(grid.CellAlignment(), ui::CellAlign::LeftCentre);
}

TEST_F(GridHelpers, UpdateFlexGridBelowNoRowsChangesNothing) {
    fill({"a", "b"});
    int count = 9;
    UpdateFlexGrid(grid, -4, count, true);
    EXPECT_EQ(count, 9);
    EXPECT_EQ(grid.Rows(), 3);
    EXPECT_EQ(grid.TextMatrix(1, 0), "a");
}

TEST_F(GridHelpers, UpdateFlexGridToNoRowsGivesACountOfMinusOne) {
    fill({"a", "b"});
    int count = 9;
    UpdateFlexGrid(grid, -3, count, true);
    EXPECT_EQ(count, -1);
    EXPECT_EQ(grid.Rows(), 0);
}

TEST_F(GridHelpers, UpdateFlexGridColWritesOnlyWhereTheSizesAgree) {
    fill({"a", "b", "c"});
    const std::vector<const char*> texts = {"x", "y", "z"};
    UpdateFlexGridCol(grid, 1, std::span(texts).first(2));
    EXPECT_THAT(columnOf(grid, 1), ElementsAre("", "a", "b", "c"));
    UpdateFlexGridCol(grid, 1, texts);
    EXPECT_THAT(columnOf(grid, 1), ElementsAre("", "x", "y", "z"));
}

/// Five columns of texts one, two, … characters long, in a grid that is much wider.
class ResizedGrid : public GridHelpers {
protected:
    std::vector<int> fitted;

    ResizedGrid() {
        grid.Cols(5);
        grid.Rows(2);
        grid.Move(0, 0, 9000, 3000);
        for (int col = 0; col < 5; ++col) {
            grid.TextMatrix(0, col, std::string(static_cast<std::size_t>(col) + 1, 'x'));
            grid.AutoSize(col);
            fitted.push_back(grid.ColWidth(col));
        }
    }
    std::vector<int> widths() const {
        std::vector<int> found;
        for (int col = 0; col < grid.Cols(); ++col) found.push_back(grid.ColWidth(col));
        return found;
    }
    /// What a share of `room` between `columns` is, in whole twips with halves to even.
    static int share(int room, int columns) {
        return static_cast<int>(std::nearbyint(static_cast<double>(room) / columns));
    }
};

TEST_F(ResizedGrid, StretchesAllButTheFirstToTheClientWidth) {
    const int client = grid.ClientWidth();
    ResizeGrid(grid, false, 0);
    const int w = share(client - fitted[0], 4);
    EXPECT_THAT(widths(), ElementsAre(fitted[0], w, w, w, w));
    EXPECT_EQ(grid.Width(), 9000 - client + fitted[0] + 4 * w + 10);
}

TEST_F(ResizedGrid, KeepsTheLastColumnsAndCountsThem) {
    const int client = grid.ClientWidth();
    ResizeGrid(grid, true, 2);
    const int w = share(client - fitted[0] - fitted[3] - fitted[4], 2);
    EXPECT_THAT(widths(), ElementsAre(fitted[0], w, w, fitted[3], fitted[4]));
    EXPECT_EQ(grid.Width(), 9000 - client + fitted[0] + 2 * w + fitted[3] + fitted[4] + 10);
}

TEST_F(ResizedGrid, WithoutTheFlagLeavesTheLastOutOfTheStretchingButDoesNotCountThem) {
    const int client = grid.ClientWidth();
    ResizeGrid(grid, false, 2);
    const int w = share(client - fitted[0], 2);
    EXPECT_THAT(widths(), ElementsAre(fitted[0], w, w, fitted[3], fitted[4]));
    EXPECT_EQ(grid.Width(), 9000 - client + fitted[0] + 2 * w + 10);
}

TEST_F(ResizedGrid, WithNoColumnToStretchTakesItsWidthFromTheKeptOnes) {
    const int client = grid.ClientWidth();
    ResizeGrid(grid, true, 4);
    EXPECT_EQ(widths(), fitted);
    EXPECT_EQ(grid.Width(), 9000 - client + fitted[0] + fitted[1] + fitted[2] + fitted[3] + fitted[4] + 10);
}

TEST_F(ResizedGrid, KeepsItsFittedColumnsWhereTheyDoNotFit) {
    grid.Width(800);
    ResizeGrid(grid, false, 0);
    EXPECT_EQ(widths(), fitted);
    EXPECT_EQ(grid.Width(), 800);
}

TEST_F(ResizedGrid, KeepsItsFittedColumnsWhereTheyJustFit) {
    const int border = grid.Width() - grid.ClientWidth();
    const int sum = std::accumulate(fitted.begin(), fitted.end(), 0);
    grid.Width(sum + border);
    ResizeGrid(grid, false, 0);
    EXPECT_EQ(grid.Width(), sum + border);
    grid.Width(sum + border + 1);
    ResizeGrid(grid, false, 0);
    EXPECT_NE(grid.Width(), sum + border + 1);
    EXPECT_NE(widths(), fitted);
}

TEST_F(ResizedGrid, WithOneColumnOnlyFitsIt) {
    grid.Cols(1);
    grid.ColWidth(0, 5000);
    ResizeGrid(grid, false, 0);
    EXPECT_THAT(widths(), ElementsAre(fitted[0]));
    EXPECT_EQ(grid.Width(), 9000);
}

TEST_F(ResizedGrid, LeavesRedrawAlone) {
    int count = 0;
    grid.Redraw(false);
    ResizeGrid(grid, false, 0);
    UpdateFlexGrid(grid, 1, count, true);
    RemoveGridEntry(grid, std::array{1}, count);
    EXPECT_FALSE(grid.Redraw());
}

TEST_F(GridHelpers, AFailureNamesTheHelperItHappenedIn) {
    fill({"a"}, 2);
    std::vector<std::string> contents;
    int count = 5;
    const std::vector<const char*> texts = {"x"};
    const std::vector<std::pair<std::string, std::function<void()>>> rows = {
        {"CheckMissingVals", [&] { CheckMissingVals(grid, 2, "?"); }},
        {"GetAreaTotal", [&] { GetAreaTotal(grid, 1, areas); }},
        {"GetHeteroVals", [&] { GetHeteroVals(1, 1, grid, grid); }},
        {"GetVulnVals", [&] { GetVulnVals(1, 1, grid, grid); }},
        {"GetFuncSEVals", [&] { GetFuncSEVals(2, 1, grid, grid); }},
        {"GetColContents", [&] { GetColContents(grid, 2, contents); }},
        {"RemoveGridEntry", [&] { RemoveGridEntry(grid, std::array{4}, count); }},
        {"RemoveHRData", [&] { RemoveHRData(grid); }},
        {"UpdateFlexGridCol", [&] { UpdateFlexGridCol(grid, 2, texts); }},
    };
    for (const auto& [name, act] : rows) {
        EXPECT_EQ(failureOf(act).Description,
                  reportOf("FlexGridUtilities." + name, 9, "Subscript out of range"));
    }
}
