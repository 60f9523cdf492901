// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/selection.h"
#include "selection_test.h"

using testing::ElementsAre;

class ResultsDisplay : public SelectionTest {
protected:
    std::vector<bool> visibleViews() {
        std::vector<bool> visible;
        for (ui::Grid& grid : form.flxCompResults) visible.push_back(grid.Visible());
        return visible;
    }

    /// Eleven species with a habitat each, picked in their order.
    static ProjectText elevenPicks() {
        constexpr int Count = 11;
        ProjectText project(Count, Count, 1, 1);
        std::string levels;
        std::string values;
        for (int species = 1; species <= Count; ++species) {
            for (int habitat = 1; habitat <= Count; ++habitat) levels += habitat == species ? "2," : "0,";
            values += std::to_string(Count + 1 - species) + ",";
        }
        levels.pop_back();
        values.pop_back();
        return project.set("HeteroHabitat Population", levels).set("Socio-Econ1", values);
    }
};

TEST_F(ResultsDisplay, HasAColourForEachOfTheFirstNinePicksAndOneForAllOthers) {
    const ui::Colour colours[] = {ui::rgb(200, 50, 0),    ui::rgb(255, 150, 0),   ui::rgb(200, 100, 0),
                                  ui::rgb(255, 255, 100), ui::rgb(200, 255, 50),  ui::rgb(50, 150, 50),
                                  ui::rgb(100, 200, 175), ui::rgb(150, 150, 255), ui::rgb(150, 0, 200)};
    for (int pick = 1; pick <= 9; ++pick)
        EXPECT_EQ(modBrenicaUtilities::GetCellColor(pick), colours[pick - 1]) << pick;
    for (const int pick : {10, 11, 1000, 0, -1}) {
        EXPECT_EQ(modBrenicaUtilities::GetCellColor(pick), ui::rgb(255, 255, 200)) << pick;
    }
}

TEST_F(ResultsDisplay, TheTenthPickAndAllLaterOnesShareAColour) {
    openForSelection(elevenPicks());
    type(form.txtErrorMargin, "0");
    select();
    ASSERT_EQ(form.flxBrenicSuite.Rows(), 12);
    EXPECT_EQ(form.flxCompResults(1).TextMatrix(11, 1), "11");
    EXPECT_EQ(form.flxBrenicSuite.BackColorOf(9, 2), ui::rgb(150, 0, 200));
    for (const int pick : {10, 11}) {
        EXPECT_EQ(form.flxBrenicSuite.BackColorOf(pick, 2), ui::rgb(255, 255, 200)) << pick;
        EXPECT_EQ(form.flxBrenicSuite.BackColorOf(pick, 4), ui::rgb(255, 255, 200)) << pick;
        EXPECT_EQ(form.flxCompResults(1).BackColorOf(pick, 1), ui::rgb(255, 255, 200)) << pick;
    }
}

TEST_F(ResultsDisplay, AUnitHasTheNumberAndColourOfThePickThatCoversIt) {
    openForSelection(oneHabitatEach());
    select();
    EXPECT_THAT(columnOf(form.flxCompResults(1), 1), ElementsAre("First covered by species", "1", "2", "3"));
    EXPECT_THAT(columnOf(form.flxCompResults(2), 1), ElementsAre("First covered by species", "1"));
    EXPECT_THAT(columnOf(form.flxCompResults(3), 1), ElementsAre("First covered by species", "1"));
    EXPECT_EQ(form.flxCompResults(1).BackColorOf(1, 1), ui::rgb(200, 50, 0));
    EXPECT_EQ(form.flxCompResults(1).BackColorOf(2, 1), ui::rgb(255, 150, 0));
    EXPECT_EQ(form.flxCompResults(1).BackColorOf(3, 1), ui::rgb(200, 100, 0));
    EXPECT_EQ(form.flxCompResults(2).BackColorOf(1, 1), ui::rgb(200, 50, 0));
    EXPECT_EQ(form.flxCompResults(3).BackColorOf(1, 1), ui::rgb(200, 50, 0));
    EXPECT_EQ(form.flxCompResults(1).BackColorOf(1, 0), White);
}

TEST_F(ResultsDisplay, AUnitThatTwoPicksRepresentKeepsTheFirst) {
    // Species 2 reaches habitat 1, the zone and the threat as well.
    openForSelection(oneHabitatEach()
                         .set("HeteroHabitat Population", "2,0,0,2,3,0,0,0,2")
                         .set("HeteroJU Individual", "3,2,0")
                         .set("VulnerabilitybySpecies Severity", "3,2,0")
                         .set("Socio-Econ1", "9,1,1"));
    select();
    ASSERT_EQ(suite()[2], "Species 2");
    EXPECT_THAT(columnOf(form.flxCompResults(1), 1), ElementsAre("First covered by species", "1", "2", "3"));
    EXPECT_EQ(form.flxCompResults(1).BackColorOf(1, 1), ui::rgb(200, 50, 0));
    EXPECT_EQ(form.flxCompResults(2).TextMatrix(1, 1), "1");
    EXPECT_EQ(form.flxCompResults(3).TextMatrix(1, 1), "1");
}

TEST_F(ResultsDisplay, AnUncoveredUnitIsBlankAndHasNoColour) {
    openForSelection(oneHabitatEach()
                         .set("HeteroHabitat Population", "2,0,0,0,3,0,0,0,1")
                         .set("Conservation Status", "0.5,0.5,0.9"));
    type(form.txtCCSRep, "0.8");
    select();
    EXPECT_EQ(form.flxCompResults(1).TextMatrix(3, 1), "");
    EXPECT_EQ(form.flxCompResults(1).BackColorOf(3, 1), White);
}

TEST_F(ResultsDisplay, ANewRunForgetsTheMarksOfTheOneBefore) {
    openForSelection(oneHabitatEach());
    select();
    openForSelection(oneHabitatEach().set("HeteroHabitat Population", "0,0,2,0,3,0,2,0,0"));
    select();
    EXPECT_THAT(columnOf(form.flxCompResults(1), 1), ElementsAre("First covered by species", "3", "2", "1"));
    EXPECT_EQ(form.flxCompResults(1).BackColorOf(1, 1), ui::rgb(200, 100, 0));
}

TEST_F(ResultsDisplay, ASuiteThatStaysEmptyHasNoColourOfTheOneBefore) {
    openForSelection(bestCoversNothing().set("Conservation Status", "0.5,0.9,0.9"));
    select();
    ASSERT_EQ(form.flxBrenicSuite.BackColorOf(1, 2), ui::rgb(200, 50, 0));
    type(form.txtCCSRep, "0.8");  // which leaves the species that covers nothing
    select();
    ASSERT_EQ(form.flxBrenicSuite.Rows(), 2);
    EXPECT_THAT(rowOf(form.flxBrenicSuite, 1), testing::ElementsAre("1", "", "", "", ""));
    for (int col = 0; col <= 4; ++col) EXPECT_EQ(form.flxBrenicSuite.BackColorOf(1, col), White) << col;
}

TEST_F(ResultsDisplay, ShowsOneViewAtATime) {
    openForSelection(oneCoversAll());
    select();
    EXPECT_THAT(visibleViews(), ElementsAre(true, false, false, false));
    form.optCompResults(1).UserClick();
    EXPECT_THAT(visibleViews(), ElementsAre(false, true, false, false));
    form.optCompResults(3).UserClick();
    EXPECT_THAT(visibleViews(), ElementsAre(false, false, false, true));
    form.optCompResults(2).UserClick();
    EXPECT_THAT(visibleViews(), ElementsAre(false, false, true, false));
    EXPECT_EQ(form.flxCompResults(2).TextMatrix(1, 1), "1");
}

TEST_F(ResultsDisplay, ANewRunGoesBackToTheOverallView) {
    openForSelection(oneCoversAll());
    select();
    form.optCompResults(2).UserClick();
    select();
    EXPECT_TRUE(form.optCompResults(0).Value());
    EXPECT_FALSE(form.optCompResults(2).Value());
    EXPECT_THAT(visibleViews(), ElementsAre(true, false, false, false));
}

TEST_F(ResultsDisplay, StartsWithDisabledOptionsAndTheOverallHeadings) {
    for (int i = 0; i < 4; ++i) EXPECT_FALSE(form.optCompResults(i).Enabled()) << i;
    EXPECT_TRUE(form.optCompResults(0).Value());
    EXPECT_THAT(visibleViews(), ElementsAre(true, false, false, false));
    EXPECT_EQ(results().Rows(), 1);
    form.optCompResults(1).UserClick();
    EXPECT_THAT(visibleViews(), ElementsAre(true, false, false, false));
}

TEST_F(ResultsDisplay, KeepsTheLastRunWhenThePageIsOpenedAgain) {
    openForSelection(oneCoversAll());
    select();
    goTo(6);
    goTo(7);
    EXPECT_FALSE(form.cmdExportResults.Enabled());
    EXPECT_TRUE(form.cmdComplement.Enabled());
    EXPECT_EQ(form.flxBrenicSuite.TextMatrix(1, 1), "Species 1");
    EXPECT_EQ(results().Rows(), 4);
}

TEST_F(ResultsDisplay, CannotBeEdited) {
    openForSelection(oneCoversAll());
    select();
    EXPECT_FALSE(form.flxBrenicSuite.UserEditCell(1, 1, "x"));
    for (int i = 0; i < 4; ++i) EXPECT_FALSE(form.flxCompResults(i).UserEditCell(1, 1, "x")) << i;
}

/// The boxes with the levels that steer the selection.
class LevelBoxes : public FormTest {
protected:
    struct Level {
        ui::TextBox* Box;
        const char* Name;
        const char* Maximum;
        const char* Default;
    };
    std::vector<Level> levels() {
        return {{&form.txtErrorMargin, "margin of error", "100", "0"},
                {&form.txtThreatRep, "score level for threat representation", "1", "0"},
                {&form.txtCCSRep, "conservation status", "1", "1"}};
    }
};

TEST_F(LevelBoxes, StartAtTheirDefaults) {
    EXPECT_EQ(form.txtErrorMargin.Text(), "5");
    EXPECT_EQ(form.txtThreatRep.Text(), "0.5");
    EXPECT_EQ(form.txtCCSRep.Text(), "1");
}

TEST_F(LevelBoxes, HoldTheirTextWithinTheBounds) {
    for (const Level& level : levels()) {
        SCOPED_TRACE(level.Name);
        level.Box->UserFocus();
        level.Box->UserPaste("1000");
        EXPECT_EQ(level.Box->Text(), level.Maximum);
        level.Box->UserFocus();
        level.Box->UserPaste("-0.1");
        EXPECT_EQ(level.Box->Text(), "0");
        level.Box->UserFocus();
        level.Box->UserPaste("0.25");
        EXPECT_EQ(level.Box->Text(), "0.25");
        level.Box->UserFocus();
        level.Box->UserKey(8);
        EXPECT_EQ(level.Box->Text(), "0");
        EXPECT_THAT(platform.Transcript, testing::IsEmpty());
    }
}

TEST_F(LevelBoxes, TakeTheirDefaultWithAMessageForWhatIsNoNumber) {
    for (const Level& level : levels()) {
        SCOPED_TRACE(level.Name);
        level.Box->UserFocus();
        level.Box->UserPaste("0.75x");
        EXPECT_EQ(level.Box->Text(), level.Default);
        EXPECT_EQ(lastBox().Title, "Invalid value");
        EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Exclamation);
        EXPECT_EQ(lastBox().Text, std::string("Number of ") + level.Name +
                                      " is invalid. Resetting value to " + level.Default + ".");
    }
}

TEST_F(LevelBoxes, SelectTheirTextOnFocusSoThatTypingReplacesIt) {
    for (const Level& level : levels()) {
        SCOPED_TRACE(level.Name);
        level.Box->UserFocus();
        level.Box->UserKey('0');
        level.Box->UserKey('.');
        level.Box->UserKey('7');
        EXPECT_EQ(level.Box->Text(), "0.7");
    }
}

TEST_F(LevelBoxes, BeepAtKeysThatMakeNoPositiveNumber) {
    for (const Level& level : levels()) {
        SCOPED_TRACE(level.Name);
        const std::string before = level.Box->Text();
        const int beeps = platform.Beeps;
        level.Box->UserFocus();
        level.Box->UserKey('x');
        level.Box->UserKey('-');
        EXPECT_EQ(platform.Beeps, beeps + 2);
        EXPECT_EQ(level.Box->Text(), before);
    }
}
