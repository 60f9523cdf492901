// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection_test.h"

using testing::ElementsAre;

/// Which rows of a pass the pick and the margin of error leave their marks on.
class PickedRows : public SelectionTest {
protected:
    /// After the first pick species 2 leads and adds nothing; species 3 alone is left, below it.
    static ProjectText lastSurvivorBelowAnOmittedRow() {
        ProjectText project(3, 2, 1, 1);
        project.set("HeteroHabitat Population", "2,0,0,1,0,2").set("HeteroJU Individual", "2,0,0");
        project.set("VulnerabilitybySpecies Severity", "1,0,0").set("Function1", "3,3,0");
        for (int i = 2; i <= 6; ++i) project.set("Function" + std::to_string(i), "0,0,0");
        project.set("Socio-Econ1", "2,2,0");
        for (int i = 2; i <= 5; ++i) project.set("Socio-Econ" + std::to_string(i), "0,0,0");
        return project;
    }
};

TEST_F(PickedRows, TheLastSurvivorIsFoundBelowAnOmittedRow) {
    openForSelection(lastSurvivorBelowAnOmittedRow());
    select();
    EXPECT_THAT(suite(), ElementsAre("Common Name", "Species 1", "Species 3"));
    EXPECT_THAT(
        columnOf(results(), result::Name),
        ElementsAre("Common Name", "Species 1", "Species 2", "Species 3", "", "Species 2", "Species 3", ""));
    EXPECT_EQ(colourOf(5, 1), OmittedRed);
    EXPECT_EQ(colourOf(5, 0), White);
    EXPECT_EQ(colourOf(6, 0), MarginGreen);
    EXPECT_EQ(colourOf(6, 1), PickedYellow);
}

TEST_F(PickedRows, TheTopRowIsGreenInItsFirstColumnAloneWhenAnotherIsChosen) {
    openForSelection(twoEqual().set("HeteroHabitat Population", "2,2,2,2").set("HeteroJU Individual", "2,2"));
    type(form.txtErrorMargin, "100");
    select({"e", "2"});
    const std::string top(results().TextMatrix(1, result::Name));
    ASSERT_THAT(suite(), testing::Contains(results().TextMatrix(2, result::Name)));
    ASSERT_NE(suite()[1], top);
    EXPECT_EQ(colourOf(1, 0), MarginGreen);
    for (int col = 1; col < results().Cols(); ++col) EXPECT_EQ(colourOf(1, col), White) << col;
    EXPECT_EQ(colourOf(2, 0), MarginGreen);
    EXPECT_EQ(colourOf(2, 1), PickedYellow);
}

// The end of a selection fits the tables to the page. Until then each column is as wide as its texts.
TEST_F(PickedRows, TheCoveredTablesShowTheirTextsWhileTheBoxesOfASelectionAreUp) {
    constexpr int Letter = 100;
    platform.TextWidth = [](std::string_view text, const ui::Font&) {
        return Letter * static_cast<int>(text.size());
    };
    openForSelection(bestCoversNothing());
    std::vector<int> widths;
    platform.OnBox = [&](const ShownBox& box) {
        if (box.Title != "Species Omitted" || !widths.empty()) return;
        for (int view = 1; view <= 3; ++view) {
            for (int col = 0; col <= 1; ++col) widths.push_back(form.flxCompResults(view).ColWidth(col));
        }
    };
    select();
    const auto widthOf = [](std::string_view text) {
        return Letter * static_cast<int>(text.size()) + ui::Grid::CellPadding;
    };
    const int covered = widthOf("First covered by species");
    EXPECT_THAT(widths, ElementsAre(widthOf("Habitat Name"), covered, widthOf("MZ Name"), covered,
                                    widthOf("Potential threat"), covered));
}

TEST_F(PickedRows, TheResultsKeepTheirLastPictureWhileASelectionRuns) {
    openForSelection(bestCoversNothing());
    std::vector<bool> redrawn;
    platform.OnBox = [&](const ShownBox&) { redrawn.push_back(results().Redraw()); };
    select();
    EXPECT_THAT(redrawn, ElementsAre(false, false, false));
    EXPECT_TRUE(results().Redraw());
}
