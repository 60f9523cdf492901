// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection_test.h"

/// The tips of the results page under the mouse.
class ResultTips : public SelectionTest {
protected:
    static std::string tipAt(ui::Grid& grid, int row, int col) {
        grid.UserMouseMove(row, col);
        return grid.ToolTipText();
    }
    /// The tip of a heading that the mouse comes to from the body.
    static std::string freshTip(ui::Grid& grid, int col) {
        grid.UserMouseMove(1, 1);
        grid.ToolTipText("left over");
        return tipAt(grid, 0, col);
    }
    ui::Grid& view(int index) { return form.flxCompResults(index); }
};

TEST_F(ResultTips, ExplainTheHeadingsOfEachView) {
    const std::vector<std::vector<std::string>> tips = {
        {"", "Rank of the species based on the recalculated aggregate score", "Recalculated aggregate score",
         "Recalculated heterogeneity score", "Original area score", "Recalculated vulnerability score",
         "Original functionality score", "Original socio-economic score",
         "Additional habitats represented by the species",
         "Additional management zones represented by the species",
         "Additional threats represented by the species", ""},
        {"", "The number of the candidate species covering the habitat type"},
        {"", "The number of the candidate species covering the management zone"},
        {"", "The number of the candidate species covering the threat"}};
    for (int index = 0; index < 4; ++index) {
        const auto& expected = tips[static_cast<std::size_t>(index)];
        ASSERT_EQ(view(index).Cols(), static_cast<int>(expected.size()));
        for (int col = 0; col < view(index).Cols(); ++col)
            EXPECT_EQ(freshTip(view(index), col), expected[static_cast<std::size_t>(col)])
                << index << "/" << col;
    }
}

TEST_F(ResultTips, ExplainTheHeadingsOfTheSuite) {
    const std::vector<std::string> tips = {"", "Brenic species name",
                                           "Additional habitat types covered by the brenic species",
                                           "Additional management zones covered by the brenic species",
                                           "Additional potential threats covered by the brenic species"};
    ASSERT_EQ(form.flxBrenicSuite.Cols(), 5);
    for (int col = 0; col < 5; ++col)
        EXPECT_EQ(freshTip(form.flxBrenicSuite, col), tips[static_cast<std::size_t>(col)]) << col;
}

TEST_F(ResultTips, AreEmptyOutsideTheHeadings) {
    openForSelection(oneCoversAll());
    select();
    ui::Grid* grids[] = {&view(0), &view(1), &view(2), &view(3), &form.flxBrenicSuite};
    for (ui::Grid* grid : grids) {
        for (const auto& [row, col] : {std::pair{1, 1}, {1, 0}, {0, 0}, {-1, -1}, {-1, 1}, {0, -1}}) {
            ASSERT_NE(tipAt(*grid, 0, 1), "") << grid->Name();
            EXPECT_EQ(tipAt(*grid, row, col), "") << grid->Name() << ": " << row << "," << col;
        }
    }
}

TEST_F(ResultTips, StayWhileTheMouseStaysInAHeading) {
    for (ui::Grid* grid : {&view(0), &form.flxBrenicSuite}) {
        tipAt(*grid, 0, 2);
        grid->ToolTipText("left alone");
        EXPECT_EQ(tipAt(*grid, 0, 2), "left alone") << grid->Name();
        EXPECT_NE(tipAt(*grid, 0, 3), "left alone") << grid->Name();
    }
}

TEST_F(ResultTips, ComeBackWithTheMouseFromTheBody) {
    for (ui::Grid* grid : {&view(0), &form.flxBrenicSuite}) {
        const std::string tip = tipAt(*grid, 0, 2);
        tipAt(*grid, 1, 2);
        EXPECT_EQ(tipAt(*grid, 0, 2), tip) << grid->Name();
    }
}

TEST_F(ResultTips, TheVeryFirstHeadingShowsItsTip) {
    EXPECT_EQ(tipAt(form.flxBrenicSuite, 0, 1), "Brenic species name");
    EXPECT_EQ(tipAt(view(0), 0, 1), "Rank of the species based on the recalculated aggregate score");
}

TEST_F(ResultTips, AreTakenAnewWhenTheMouseChangesTheView) {
    tipAt(view(0), 0, 1);
    EXPECT_EQ(tipAt(view(1), 0, 1), "The number of the candidate species covering the habitat type");
    EXPECT_EQ(tipAt(view(2), 0, 1), "The number of the candidate species covering the management zone");
    view(0).ToolTipText("left over");
    EXPECT_EQ(tipAt(view(0), 0, 1), "Rank of the species based on the recalculated aggregate score");
}

TEST_F(ResultTips, OfTheSuiteAndOfTheViewsAreRememberedApart) {
    tipAt(view(0), 0, 1);
    view(0).ToolTipText("left alone");
    EXPECT_EQ(tipAt(form.flxBrenicSuite, 0, 1), "Brenic species name");
    EXPECT_EQ(tipAt(view(0), 0, 1), "left alone");
}

TEST_F(ResultTips, AreRememberedOverARun) {
    openForSelection(oneCoversAll());
    tipAt(view(0), 0, 2);
    view(0).ToolTipText("left alone");
    select();
    EXPECT_EQ(tipAt(view(0), 0, 2), "left alone");
}
