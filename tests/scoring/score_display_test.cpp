// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

/// The two tables of scores under the mouse.
class ScoreTables : public ScoringTest {
protected:
    ui::Grid& normalised() { return form.flxScoresSort(0); }
    ui::Grid& original() { return form.flxScoresSort(1); }

    static std::vector<std::string> body(const ui::Grid& grid, int col) {
        std::vector<std::string> texts = columnOf(grid, col);
        texts.erase(texts.begin());
        return texts;
    }
    std::vector<std::string> names(int index) { return body(form.flxScoresSort(index), 0); }

    /// Three species: rank by functions 3 > 2 > 1 for Crane, adder, Boar; socio-economics the other way round, but less.
    void openThree() {
        ProjectText project(3, 1, 1, 1);
        project.set("Common Name", "adder,Boar,Crane").set("Function1", "2,1,3");
        project.set("Socio-Econ1", "1,2,1");
        openAt(project, 6);
        ASSERT_TRUE(global.ScoresCalculated);
    }
};

TEST_F(ScoreTables, TheFirstClickSortsWhereverItFalls) {
    openThree();
    // The functions: the first one and five times 1.
    ASSERT_THAT(body(original(), 4), ElementsAre("7", "6", "8"));
    form.optScoreDisplay(1).UserClick();
    original().UserMouseDown(2, 4);
    EXPECT_THAT(body(original(), 4), ElementsAre("8", "7", "6"));
    EXPECT_THAT(names(1), ElementsAre("Crane", "adder", "Boar"));
}

TEST_F(ScoreTables, AFurtherClickOnADataRowDoesNothing) {
    openThree();
    original().UserMouseDown(2, 4);
    original().UserMouseDown(1, 5);
    original().UserMouseDown(3, 0);
    EXPECT_THAT(names(1), ElementsAre("Crane", "adder", "Boar"));
}

TEST_F(ScoreTables, ALaterClickOnAnotherHeadingSorts) {
    openThree();
    original().UserMouseDown(0, 4);
    EXPECT_EQ(original().Row(), 0);
    EXPECT_EQ(original().Col(), 4);
    original().UserMouseDown(0, 5);
    // Socio-economics 5, 6, 5: the greatest first, equal ones as they stood.
    EXPECT_THAT(names(1), ElementsAre("Boar", "Crane", "adder"));
    original().UserMouseDown(0, 0);
    EXPECT_THAT(names(1), ElementsAre("adder", "Boar", "Crane"));
}

TEST_F(ScoreTables, ASecondClickOnTheSameHeadingDoesNotTurnTheOrder) {
    openThree();
    normalised().UserMouseDown(0, 6);
    EXPECT_THAT(names(0), ElementsAre("Crane", "adder", "Boar"));
    normalised().TextMatrix(1, 6, "0");  // out of order by hand, so that another sort would show
    normalised().UserMouseDown(0, 6);
    EXPECT_THAT(body(normalised(), 6), ElementsAre("0", "0.875", "0.75"));
}

TEST_F(ScoreTables, AClickOnADataRowForgetsTheHeading) {
    openThree();
    normalised().UserMouseDown(0, 6);
    normalised().TextMatrix(1, 6, "0");
    normalised().UserMouseDown(2, 3);
    normalised().UserMouseDown(0, 6);
    EXPECT_THAT(body(normalised(), 6), ElementsAre("0.875", "0.75", "0"));
}

TEST_F(ScoreTables, AHeadingOverTheColumnOfTheLastDataClickDoesNotSort) {
    openThree();
    normalised().UserMouseDown(0, 7);
    EXPECT_THAT(names(0), ElementsAre("Boar", "Crane", "adder"));
    normalised().UserMouseDown(2, 6);
    normalised().UserMouseDown(0, 6);
    EXPECT_THAT(names(0), ElementsAre("Boar", "Crane", "adder"));
}

TEST_F(ScoreTables, AfterAClickOnTheOtherTableTheSameHeadingSortsAgain) {
    openThree();
    normalised().UserMouseDown(0, 6);
    normalised().TextMatrix(1, 6, "0");
    original().UserMouseDown(0, 1);
    normalised().UserMouseDown(0, 6);
    EXPECT_THAT(body(normalised(), 6), ElementsAre("0.875", "0.75", "0"));
}

TEST_F(ScoreTables, EachTableHasAFirstClickOfItsOwn) {
    openThree();
    normalised().UserMouseDown(0, 1);
    original().UserMouseDown(1, 4);
    EXPECT_THAT(names(1), ElementsAre("Crane", "adder", "Boar"));
}

TEST_F(ScoreTables, AClickBesideTheCellsNeitherSortsNorIsTheFirst) {
    openThree();
    original().UserMouseDown(-1, -1);
    original().UserMouseDown(-1, 4);
    original().UserMouseDown(2, -1);
    EXPECT_THAT(names(1), ElementsAre("adder", "Boar", "Crane"));
    original().UserMouseDown(2, 4);
    EXPECT_THAT(names(1), ElementsAre("Crane", "adder", "Boar"));
}

TEST_F(ScoreTables, EveryColumnSortsInItsOwnOrder) {
    // Per column, cells in species order and the rows that must stand below each other after the click.
    struct Case {
        int Table;
        int Col;
        std::vector<std::string> Sorted;
    };
    const std::vector<std::string> byText = {"10", "2", "B", "c"};
    const std::vector<std::string> byValue = {"c", "B", "10", "2"};
    const Case cases[] = {{0, 0, byValue}, {0, 1, byText},  {0, 2, byValue}, {0, 3, byValue}, {0, 4, byValue},
                          {0, 5, byValue}, {0, 6, byValue}, {0, 7, byValue}, {1, 0, byText},  {1, 1, byValue},
                          {1, 2, byValue}, {1, 3, byValue}, {1, 4, byValue}, {1, 5, byValue}};
    openAt(ProjectText(4, 1, 1, 1), 6);
    const std::vector<std::string> cells = {"2", "c", "10", "B"};
    for (const auto& [table, col, sorted] : cases) {
        ui::Grid& grid = form.flxScoresSort(table);
        form.flxScoresSort(1 - table).UserMouseDown(
            0, 0);  // so that the column is not the last one of this table
        for (int row = 1; row <= 4; ++row)
            grid.TextMatrix(row, col, cells[static_cast<std::size_t>(row) - 1]);
        grid.UserMouseDown(0, col);
        EXPECT_EQ(body(grid, col), sorted) << table << "/" << col;
    }
}

TEST_F(ScoreTables, RankSortsAsTextSoThatTenComesBeforeTwo) {
    openAt(ProjectText(11, 1, 1, 1), 6);
    EXPECT_THAT(body(normalised(), 1), ElementsAre("1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"));
    normalised().UserMouseDown(0, 1);
    EXPECT_THAT(body(normalised(), 1), ElementsAre("1", "10", "11", "2", "3", "4", "5", "6", "7", "8", "9"));
}

TEST_F(ScoreTables, TheHiddenColumnAndTheUnsortedTablesKeepTheSpeciesRows) {
    openThree();
    normalised().UserMouseDown(0, 7);
    original().UserMouseDown(0, 4);
    EXPECT_THAT(names(0), ElementsAre("Boar", "Crane", "adder"));
    EXPECT_THAT(body(normalised(), score::SortKey), ElementsAre("2", "3", "1"));
    EXPECT_THAT(names(1), ElementsAre("Crane", "adder", "Boar"));
    EXPECT_THAT(body(original(), score::OriginalSortKey), ElementsAre("3", "1", "2"));
    EXPECT_THAT(body(form.flxScores(0), 0), ElementsAre("adder", "Boar", "Crane"));
    EXPECT_THAT(body(form.flxScores(1), 0), ElementsAre("adder", "Boar", "Crane"));
}

TEST_F(ScoreTables, RememberThatTheyWereSortedOverANewCalculation) {
    openThree();
    original().UserMouseDown(2, 4);
    goTo(5);
    goTo(6);
    EXPECT_THAT(names(1), ElementsAre("adder", "Boar", "Crane"));
    original().UserMouseDown(2, 5);
    EXPECT_THAT(names(1), ElementsAre("adder", "Boar", "Crane"));
}

TEST_F(ScoreTables, ExplainTheirHeadings) {
    const std::vector<std::vector<std::string>> tips = {
        {"", "Candidate species aggregate score rank", "Candidate species aggregate score",
         "Candidate species normalized heterogeneity score",
         "Candidate species normalized area requirements score",
         "Candidate species normalized vulnerability score",
         "Candidate species normalized functionality score",
         "Candidate species normalized socioeconomic score", ""},
        {"", "Candidate species heterogeneity score", "Candidate species area requirements score",
         "Candidate species vulnerability score", "Candidate species functionality score",
         "Candidate species socioeconomic score", ""}};
    openThree();
    for (int index = 0; index < 2; ++index) {
        ui::Grid& grid = form.flxScoresSort(index);
        for (int col = 0; col < grid.Cols(); ++col) {
            grid.UserMouseMove(1, col);
            grid.ToolTipText("left over");
            grid.UserMouseMove(0, col);
            EXPECT_EQ(grid.ToolTipText(),
                      tips[static_cast<std::size_t>(index)][static_cast<std::size_t>(col)])
                << index << "/" << col;
        }
    }
}

TEST_F(ScoreTables, ShowNoTipOverTheirCells) {
    openThree();
    for (const auto& [row, col] : {std::pair{1, 1}, {3, 7}, {2, 0}, {0, 0}, {-1, -1}}) {
        normalised().UserMouseMove(0, 2);
        ASSERT_EQ(normalised().ToolTipText(), "Candidate species aggregate score");
        normalised().UserMouseMove(row, col);
        EXPECT_EQ(normalised().ToolTipText(), "") << row << "/" << col;
    }
}

TEST_F(ScoreTables, LeaveTheTipAloneWhileTheMouseStaysInAHeading) {
    openThree();
    normalised().UserMouseMove(0, 2);
    normalised().ToolTipText("left alone");
    normalised().UserMouseMove(0, 2);
    EXPECT_EQ(normalised().ToolTipText(), "left alone");
    normalised().UserMouseMove(0, 3);
    EXPECT_EQ(normalised().ToolTipText(), "Candidate species normalized heterogeneity score");
}

TEST_F(ScoreTables, ForgetTheHeadingWhenTheMouseChangesTheTable) {
    openThree();
    normalised().UserMouseMove(0, 2);
    original().UserMouseMove(0, 2);
    EXPECT_EQ(original().ToolTipText(), "Candidate species area requirements score");
    normalised().ToolTipText("left over");
    normalised().UserMouseMove(0, 2);
    EXPECT_EQ(normalised().ToolTipText(), "Candidate species aggregate score");
}

TEST_F(ScoreTables, TheVeryFirstHeadingShowsItsTip) {
    normalised().UserMouseMove(0, 1);
    EXPECT_EQ(normalised().ToolTipText(), "Candidate species aggregate score rank");
}

/// The switches between tables and charts. A view is named by a letter and its index: "T0", "C2".
class ScoreSwitches : public ScoringTest {
protected:
    std::vector<std::string> shown() {
        std::vector<std::string> views;
        for (int i = 0; i < 2; ++i)
            if (form.flxScoresSort(i).Visible()) views.push_back("T" + std::to_string(i));
        for (int i = 0; i < 3; ++i)
            if (form.chtScores(i).Visible()) views.push_back("C" + std::to_string(i));
        return views;
    }
    void SetUp() override { openAt(ProjectText(2, 1, 1, 1), 6); }
    void set(ui::CheckBox& box, bool value) {
        if (box.Value() != value) box.UserClick();
    }
};

TEST_F(ScoreSwitches, TheChoiceOfValuesShowsOneViewOfThree) {
    struct Case {
        bool Graphs;
        int Index;
        bool Aggregate;
        const char* View;
    };
    const Case cases[] = {{false, 0, true, "T0"},  {false, 1, true, "T1"}, {false, 0, false, "T0"},
                          {false, 1, false, "T1"}, {true, 0, false, "C2"}, {true, 0, true, "C0"},
                          {true, 1, false, "C1"},  {true, 1, true, "C1"}};
    for (const auto& [graphs, index, aggregate, view] : cases) {
        set(form.chkShowGraphs, true);
        set(form.chkShowAggregateScore, aggregate);
        set(form.chkShowGraphs, graphs);
        form.optScoreDisplay(1 - index).UserClick();
        form.optScoreDisplay(index).UserClick();
        EXPECT_THAT(shown(), ElementsAre(view));
        EXPECT_EQ(form.ScoreDisplayMode, index);
        EXPECT_EQ(form.chkShowAggregateScore.Value(), aggregate);
    }
}

TEST_F(ScoreSwitches, TheBoxForGraphsTurnsBetweenTableAndChart) {
    struct Case {
        int Index;
        bool Aggregate;
        const char* Chart;
        const char* Table;
    };
    const Case cases[] = {
        {0, true, "C0", "T0"}, {0, false, "C2", "T0"}, {1, true, "C1", "T1"}, {1, false, "C1", "T1"}};
    for (const auto& [index, aggregate, chart, table] : cases) {
        set(form.chkShowGraphs, true);
        set(form.chkShowAggregateScore, aggregate);
        set(form.chkShowGraphs, false);
        form.optScoreDisplay(index).UserClick();
        form.chkShowGraphs.UserClick();
        EXPECT_THAT(shown(), ElementsAre(chart));
        EXPECT_TRUE(form.chkShowAggregateScore.Enabled());
        form.chkShowGraphs.UserClick();
        EXPECT_THAT(shown(), ElementsAre(table));
        EXPECT_FALSE(form.chkShowAggregateScore.Enabled());
    }
}

TEST_F(ScoreSwitches, AnotherChoiceOfValuesTakesTheChartOfTheOneBeforeAway) {
    form.chkShowGraphs.UserClick();
    for (const char* chart : {"C0", "C2"}) {
        EXPECT_THAT(shown(), ElementsAre(chart));
        form.optScoreDisplay(1).UserClick();
        EXPECT_THAT(shown(), ElementsAre("C1"));
        form.optScoreDisplay(0).UserClick();
        EXPECT_THAT(shown(), ElementsAre(chart));
        form.chkShowAggregateScore.UserClick();
    }
}

TEST_F(ScoreSwitches, TheBoxForTheAggregateChangesTheChartOfNormalisedValues) {
    form.chkShowGraphs.UserClick();
    form.chkShowAggregateScore.UserClick();
    EXPECT_THAT(shown(), ElementsAre("C2"));
    form.chkShowAggregateScore.UserClick();
    EXPECT_THAT(shown(), ElementsAre("C0"));
}

TEST_F(ScoreSwitches, WithOriginalValuesTheBoxForTheAggregateIsEnabledAndChangesNothing) {
    form.optScoreDisplay(1).UserClick();
    form.chkShowGraphs.UserClick();
    EXPECT_TRUE(form.chkShowAggregateScore.Enabled());
    form.chkShowAggregateScore.UserClick();
    EXPECT_THAT(shown(), ElementsAre("C1"));
    form.chkShowAggregateScore.UserClick();
    EXPECT_THAT(shown(), ElementsAre("C1"));
}

TEST_F(ScoreSwitches, TheBoxForTheAggregateDoesNotAskWhetherGraphsAreShown) {
    form.chkShowAggregateScore.Value(false);
    EXPECT_THAT(shown(), ElementsAre("T0", "C2"));
    form.chkShowAggregateScore.Value(true);
    EXPECT_THAT(shown(), ElementsAre("T0", "C0"));
    form.optScoreDisplay(1).UserClick();
    form.chkShowAggregateScore.Value(false);
    EXPECT_THAT(shown(), ElementsAre("T1", "C1"));
}

TEST_F(ScoreSwitches, TheBoxForTheAggregateIsDimmedUntilGraphsAreShown) {
    EXPECT_FALSE(form.chkShowAggregateScore.Enabled());
    form.chkShowAggregateScore.UserClick();
    EXPECT_TRUE(form.chkShowAggregateScore.Value());
    EXPECT_THAT(shown(), ElementsAre("T0"));
}

TEST_F(ScoreSwitches, OutliveAChangeOfPage) {
    form.optScoreDisplay(1).UserClick();
    form.chkShowGraphs.UserClick();
    goTo(1);
    goTo(6);
    EXPECT_THAT(shown(), ElementsAre("C1"));
    EXPECT_TRUE(form.chkShowGraphs.Value());
}

TEST_F(ScoreSwitches, NameWhatTheyShow) {
    EXPECT_EQ(form.optScoreDisplay(0).Caption(), "Normalized values");
    EXPECT_EQ(form.optScoreDisplay(1).Caption(), "Original values");
    EXPECT_EQ(form.chkShowGraphs.Caption(), "Display results graphically");
    EXPECT_THAT(platform.Transcript, IsEmpty());
}
