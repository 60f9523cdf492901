// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/columns.h"
#include "support/form_test.h"

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

using Table = ui::Chart::Table;

class SummaryGraphs : public FormTest {
protected:
    static ProjectText project() {
        ProjectText text(2, 2, 2, 2);
        text.set("Common Name", "Otter,Adder").set("Habitat Type", "Bog,Fen");
        text.set("Jurisdictional Unit", "North,South").set("Land Use", "Roads,Dams");
        text.set("HeteroHabitat Population", "1,2,0,3").set("HeteroJU Individual", "1,0,0,0");
        return text.set("VulnerabilitybySpecies Severity", "1,0,2,3");
    }
    std::vector<int> visibleCharts() {
        std::vector<int> visible;
        for (int i = 0; i < form.chtSummary.Count(); ++i) {
            if (form.chtSummary(i).Visible()) visible.push_back(i);
        }
        return visible;
    }
    bool isEmpty(int chart) {
        for (const auto& row : form.chtSummary(chart).ChartData()) {
            for (const std::string& text : row) {
                if (!text.empty()) return false;
            }
        }
        return true;
    }
};

TEST_F(SummaryGraphs, ShowTheTotalsOfTheTables) {
    open(project());
    goTo(5);
    // Scores: (1 + 1) × severity.
    EXPECT_EQ(form.chtSummary(0).ChartData(), (Table{{"Bog", "1"}, {"Fen", "2"}}));
    EXPECT_EQ(form.chtSummary(1).ChartData(), (Table{{"Otter", "2"}, {"Adder", "1"}}));
    EXPECT_EQ(form.chtSummary(2).ChartData(), (Table{{"North", "1"}, {"South", "0"}}));
    EXPECT_EQ(form.chtSummary(3).ChartData(), (Table{{"Otter", "1"}, {"Adder", "0"}}));
    EXPECT_EQ(form.chtSummary(4).ChartData(), (Table{{"Otter", "1"}, {"Adder", "2"}}));
    EXPECT_EQ(form.chtSummary(5).ChartData(), (Table{{"Otter", "2"}, {"Adder", "10"}}));
    EXPECT_EQ(form.chtSummary(6).ChartData(), (Table{{"Roads", "2"}, {"Dams", "1"}}));
    EXPECT_EQ(form.chtSummary(7).ChartData(), (Table{{"Roads", "6"}, {"Dams", "6"}}));
    EXPECT_TRUE(isEmpty(8));
    EXPECT_TRUE(isEmpty(9));
}

TEST_F(SummaryGraphs, HaveTheirColours) {
    open(project());
    goTo(5);
    const ui::Colour habitats = ui::rgb(75, 200, 200);
    const ui::Colour zones = ui::rgb(80, 20, 120);
    const ui::Colour counts = ui::rgb(135, 50, 120);
    const ui::Colour scores = ui::rgb(255, 150, 50);
    const ui::Colour fills[] = {habitats, habitats, zones, zones, counts, scores, counts, scores};
    for (int i = 0; i < 8; ++i) {
        ASSERT_EQ(form.chtSummary(i).AllSeries().size(), 1U) << i;
        EXPECT_EQ(form.chtSummary(i).AllSeries()[0].FillColor, fills[i]) << i;
        EXPECT_EQ(form.chtSummary(i).AllSeries()[0].EdgePen, ui::rgb(50, 50, 50)) << i;
        EXPECT_EQ(form.chtSummary(i).Refreshes(), 1) << i;
    }
}

TEST_F(SummaryGraphs, StartEmptyWithTheirTitles) {
    struct Headings {
        const char* Title;
        const char* XAxis;
        const char* YAxis;
    };
    const Headings headings[] = {
        {"Number of species using the habitat", "Habitat Type", "Number of species"},
        {"Number of habitats used by each species", "Species common name", "Number of habitats"},
        {"Number of species using the management zone", "Jurisdictional Unit", "Number of species"},
        {"Number of management zones used by each species", "Species common name",
         "Number of management zones"},
        {"Number of human activities potentially threatening a species", "Species common name",
         "Number of human activities"},
        {"Vulnerability score for each species", "Species common name", "Summed vulnerability score"},
        {"Number of species potentially threatended by a human activity", "Human Activity",
         "Number of species"},
        {"Vulnerability score for each human activity", "Human Activity", "Summed vulnerability score"}};
    for (int i = 0; i < 8; ++i) {
        const ui::Chart& chart = form.chtSummary(i);
        EXPECT_EQ(chart.Title, headings[i].Title);
        EXPECT_EQ(chart.XAxisTitle, headings[i].XAxis);
        EXPECT_EQ(chart.YAxisTitle, headings[i].YAxis);
    }
    ASSERT_EQ(form.chtSummary.Count(), 10);
    for (ui::Chart& chart : form.chtSummary) {
        EXPECT_EQ(chart.Type, ui::ChartType::Bar2D);
        EXPECT_EQ(chart.YAxisTitleOrientation, ui::TitleOrientation::Upward);
        EXPECT_EQ(chart.TitleFont.Name, "Arial");
        EXPECT_EQ(chart.TitleFont.Size, 11);
        EXPECT_EQ(chart.AxisTitleFont.Name, "Arial");
        EXPECT_EQ(chart.AxisTitleFont.Size, 9);
        EXPECT_EQ(chart.TitleLocationType, 1);
        EXPECT_FALSE(chart.MajorGridLines);
        EXPECT_FALSE(chart.WallBorder);
        EXPECT_EQ(chart.PlotBackground, ui::rgb(255, 255, 255));
        EXPECT_EQ(chart.Series(1).EdgePen, ui::rgb(0, 0, 0));
        for (const auto& row : chart.ChartData()) EXPECT_THAT(row, Each(""));
    }
    EXPECT_THAT(visibleCharts(), ElementsAre(0));
}

TEST_F(SummaryGraphs, StayEmptyInAProjectThatLacksAList) {
    for (const auto& lacking : {ProjectText(0, 1, 1, 1), ProjectText(1, 0, 1, 1), ProjectText(1, 1, 0, 1),
                                ProjectText(1, 1, 1, 0)}) {
        open(lacking);
        goTo(5);
        for (int i = 0; i < 8; ++i) {
            EXPECT_TRUE(isEmpty(i)) << i;
            EXPECT_EQ(form.chtSummary(i).Refreshes(), 0) << i;
        }
    }
}

TEST_F(SummaryGraphs, CutLabelsToTheirFirst25Characters) {
    open(project()
             .set("Common Name", "abcdefghijklmnopqrstuvwxy,abcdefghijklmnopqrstuvwxyz")
             .set("Habitat Type", "Fen,Ñbcdefghijklmnopqrstuvwxyz")
             .set("Land Use", "Roads,äbcdefghijklmnopqrstuvwxyz"));
    goTo(5);
    for (const int chart : {1, 3, 4, 5}) {
        EXPECT_EQ(form.chtSummary(chart).ChartData()[0][0], "abcdefghijklmnopqrstuvwxy") << chart;
        EXPECT_EQ(form.chtSummary(chart).ChartData()[1][0], "abcdefghijklmnopqrstuvwxy") << chart;
    }
    EXPECT_EQ(form.chtSummary(0).ChartData()[1][0], "Ñbcdefghijklmnopqrstuvwxy");
    EXPECT_EQ(form.chtSummary(7).ChartData()[1][0], "äbcdefghijklmnopqrstuvwxy");
}

TEST_F(SummaryGraphs, FollowTheDataOnlyWhenThePageIsOpenedAgain) {
    open(project());
    goTo(5);
    form.flxSummary(summary::HabitatUse).TextMatrix(1, 1, "0");
    EXPECT_EQ(form.chtSummary(0).ChartData()[0][1], "1");
    goTo(4);
    EXPECT_EQ(form.chtSummary(0).ChartData()[0][1], "1");
    goTo(5);
    EXPECT_EQ(form.chtSummary(0).ChartData()[0][1], "0");
}

TEST_F(SummaryGraphs, AreShownOneATime) {
    for (const int tab : {5, 8, 1, 3}) {
        form.tabGraphSummary.UserSelectTab(tab);
        EXPECT_THAT(visibleCharts(), ElementsAre(tab - 1));
        EXPECT_EQ(form.CurrentGraphTab, tab);
    }
    form.tabGraphSummary.UserSelectTab(3);
    EXPECT_THAT(visibleCharts(), ElementsAre(2));
}

TEST_F(SummaryGraphs, TheTabOutlivesAChangeOfPage) {
    open(project());
    goTo(5);
    form.tabGraphSummary.UserSelectTab(4);
    goTo(1);
    goTo(5);
    EXPECT_THAT(visibleCharts(), ElementsAre(3));
    EXPECT_EQ(form.tabGraphSummary.SelectedItem(), 4);
}

class ScoreGraphs : public FormTest {
protected:
    static std::vector<std::string> labelsOf(const ui::Chart& chart) {
        std::vector<std::string> labels;
        for (const ui::ChartSeries& series : chart.AllSeries()) labels.push_back(series.Label);
        return labels;
    }
};

TEST_F(ScoreGraphs, ShowTheScoresOfEachSpecies) {
    const std::string longName = "A name of more than twenty-five characters";
    open(ProjectText(2, 1, 1, 1)
             .set("Common Name", "Otter," + longName)
             .set("HeteroHabitat Population", "2,1")
             .set("Socio-Econ1", "1,6"));
    goTo(6);
    const std::string shown(form.flxScores(0).TextMatrix(2, 0));
    EXPECT_THAT(longName, testing::StartsWith(shown));
    EXPECT_EQ(form.chtScores(0).ChartData(), (Table{{"Otter", "4.5", "1", "1", "1", "1", "0.5"},
                                                    {shown, "4.6", "0.6", "1", "1", "1", "1"}}));
    EXPECT_EQ(form.chtScores(1).ChartData(),
              (Table{{"Otter", "5", "5.5", "2.5", "6", "5"}, {shown, "3", "5.5", "2.5", "6", "10"}}));
    EXPECT_EQ(form.chtScores(2).ChartData(),
              (Table{{"Otter", "1", "1", "1", "1", "0.5"}, {shown, "0.6", "1", "1", "1", "1"}}));
    for (int i = 0; i < 3; ++i) EXPECT_EQ(form.chtScores(i).Refreshes(), 1) << i;
}

TEST_F(ScoreGraphs, NameAndColourTheirSeries) {
    open(ProjectText(1, 1, 1, 1));
    goTo(6);
    const std::pair<const char*, ui::Colour> series[] = {
        {"Aggregate", ui::rgb(0, 50, 100)},       {"Heterogeneity", ui::rgb(75, 200, 200)},
        {"Area", ui::rgb(255, 255, 200)},         {"Vulnerability", ui::rgb(100, 0, 100)},
        {"Functionality", ui::rgb(255, 150, 50)}, {"Socio-economics", ui::rgb(100, 50, 0)}};
    for (int chart = 0; chart < 3; ++chart) {
        const auto& shown = form.chtScores(chart).AllSeries();
        const std::size_t first = chart == 0 ? 0 : 1;
        ASSERT_EQ(shown.size(), 6 - first) << chart;
        for (std::size_t i = 0; i < shown.size(); ++i) {
            EXPECT_EQ(shown[i].Label, series[first + i].first) << chart;
            EXPECT_EQ(shown[i].FillColor, series[first + i].second) << chart << series[first + i].first;
            EXPECT_EQ(shown[i].EdgePen, ui::rgb(50, 50, 50)) << chart;
        }
    }
}

TEST_F(ScoreGraphs, StartHiddenWithTheTitleScores) {
    for (ui::Chart& chart : form.chtScores) {
        EXPECT_FALSE(chart.Visible());
        EXPECT_EQ(chart.Title, "Scores");
        EXPECT_EQ(chart.XAxisTitle, "");
        EXPECT_EQ(chart.YAxisTitle, "");
        EXPECT_EQ(chart.TitleFont.Size, 11);
        EXPECT_EQ(chart.AxisTitleFont.Size, 9);
        EXPECT_FALSE(chart.MajorGridLines);
        EXPECT_FALSE(chart.WallBorder);
    }
}

TEST_F(ScoreGraphs, KeepTheLastScoresWhenTheGateRefuses) {
    open(ProjectText(1, 1, 1, 1));
    goTo(6);
    const Table before = form.chtScores(0).ChartData();
    ASSERT_THAT(before, testing::Not(IsEmpty()));
    form.flxSummary(summary::SocioEcon).TextMatrix(1, 1, "");
    goTo(5);
    goTo(6);
    EXPECT_FALSE(global.ScoresCalculated);
    EXPECT_EQ(form.chtScores(0).ChartData(), before);
}
