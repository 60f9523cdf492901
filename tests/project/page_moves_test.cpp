// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <functional>

#include "project/columns.h"
#include "support/form_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

/// Moving between the pages, and what a move brings up to date.
class PageMoves : public FormTest {
protected:
    int shownPage() {
        int shown = 0;
        for (int page = 1; page <= 7; ++page) {
            if (!form.fraTabContents(page - 1).Visible()) continue;
            EXPECT_EQ(shown, 0) << "two pages at once";
            shown = page;
        }
        return shown;
    }
    bool tablesCalculated() { return form.flxSummary(0).Cols() > global.TotalHabitatTypes + 1; }
    bool scoresFilled() {
        return form.flxScores(0).Rows() > 1 && !form.flxScores(0).TextMatrix(1, 1).empty();
    }
    bool graphsFilled() { return form.chtSummary(0).Refreshes() > 0; }
    void dropTotals() {
        form.flxSummary(0).Cols(global.TotalHabitatTypes + 1);
        form.flxSummary(0).Rows(global.TotalSpecies + 1);
    }
};

TEST_F(PageMoves, ShowOnePageAtATime) {
    open(ProjectText(1, 1, 1, 1));
    for (const int page : {4, 2, 7, 1, 6, 3, 5}) {
        goTo(page);
        EXPECT_EQ(shownPage(), page);
        EXPECT_EQ(form.CurrentMainTab, page);
    }
}

TEST_F(PageMoves, AClickOnThePageShownDoesNothing) {
    addSpecies({""});
    goTo(1);
    EXPECT_THAT(platform.Transcript, IsEmpty());
    EXPECT_EQ(shownPage(), 1);
}

TEST_F(PageMoves, ARefusedMoveLeavesTheOldPageAndAsksOnce) {
    addSpecies({""});
    platform.Answers.assign(1, "no");
    goTo(4);
    EXPECT_EQ(platform.Transcript.size(), 1U);
    EXPECT_EQ(form.tabBrenica.SelectedItem(), 1);
    EXPECT_EQ(form.CurrentMainTab, 1);
    EXPECT_EQ(shownPage(), 1);
}

TEST_F(PageMoves, ShowNoPageWhileTheWorkIsDone) {
    open(ProjectText(1, 1, 1, 1).set("Home ranges", ""));
    goTo(5);
    platform.Transcript.clear();
    int shownDuringTheMessage = -1;
    platform.OnBox = [&](const ShownBox&) { shownDuringTheMessage = shownPage(); };
    goTo(6);
    EXPECT_EQ(lastBox().Text, "Enter a home range value for each species before proceeding.");
    EXPECT_EQ(shownDuringTheMessage, 0);
    EXPECT_EQ(shownPage(), 6);
}

TEST_F(PageMoves, AGateAsksBeforeThePageChanges) {
    addSpecies({""});
    int shownDuringTheQuestion = -1;
    platform.OnBox = [&](const ShownBox&) { shownDuringTheQuestion = shownPage(); };
    goTo(2);
    EXPECT_EQ(shownDuringTheQuestion, 1);
    EXPECT_EQ(shownPage(), 2);
}

TEST_F(PageMoves, WriteTheHeadingOfTheConservationStatusAnew) {
    open(ProjectText(1, 1, 1, 1));
    for (int page = 2; page <= 7; ++page) {
        form.flxSummary(5).TextMatrix(0, 1, "x");
        form.ProjectChanged = false;
        goTo(page);
        EXPECT_EQ(form.flxSummary(5).TextMatrix(0, 1), "CCS") << page;
        EXPECT_TRUE(form.ProjectChanged) << page;
    }
}

TEST_F(PageMoves, AFailureInACalculationLeavesNoPageShown) {
    open(ProjectText(2, 1, 1, 1).set("HeteroHabitat Population", "1,x"));
    const ui::RunTimeError error = failureOf([&] { goTo(4); });
    EXPECT_EQ(error.Description, reportOf("Brenica.CalculateHabitatUse", 13, "Type mismatch"));
    EXPECT_EQ(shownPage(), 0);
}

TEST_F(PageMoves, LeavingTheSpeciesPageRebuildsTheListOfNames) {
    addSpecies({"Otter", "Badger"});
    EXPECT_EQ(form.cbxSpeciesName.ListCount(), 0);
    goTo(2);
    ASSERT_EQ(form.cbxSpeciesName.ListCount(), 2);
    EXPECT_EQ(form.cbxSpeciesName.List(1), "Badger");
}

TEST_F(PageMoves, EnteringAPageDoesTheWorkOfItsRow) {
    struct Case {
        int From;
        int To;
        bool Tables;
        bool Scores;
        bool Graphs;
    };
    const Case cases[] = {
        {1, 2, false, false, false}, {2, 3, false, false, false}, {3, 4, true, false, false},
        {3, 5, true, false, true},   {4, 5, false, false, true},  {7, 5, true, false, true},
        {1, 6, true, true, false},   {4, 6, false, true, false},  {5, 6, true, true, false},
        {1, 7, true, true, false},   {2, 7, true, true, false},   {3, 7, true, true, false},
        {4, 7, false, false, false}, {5, 7, false, false, false}, {7, 1, false, false, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(std::to_string(c.From) + " to " + std::to_string(c.To));
        open(ProjectText(2, 2, 2, 2));
        goTo(c.From);
        dropTotals();
        for (ui::Grid& grid : form.flxScores) {
            for (int row = 1; row < grid.Rows(); ++row) grid.TextMatrix(row, 1, "");
        }
        const int refreshes = form.chtSummary(0).Refreshes();
        goTo(c.To);
        EXPECT_EQ(tablesCalculated(), c.Tables);
        EXPECT_EQ(scoresFilled(), c.Scores);
        EXPECT_EQ(form.chtSummary(0).Refreshes() > refreshes, c.Graphs);
    }
}

TEST_F(PageMoves, GoingBackFromTheResultsCalculatesTheScoresOnTheWayToTheirPage) {
    open(ProjectText(2, 1, 1, 1).set("HeteroHabitat Population", "2,1").set("HeteroJU Individual", "2,1"));
    walkTo(7);
    form.cmdComplement.UserClick();
    EXPECT_TRUE(form.cmdExportResults.Enabled());
    form.flxScores(0).TextMatrix(1, score::Aggregate, "x");
    goTo(6);
    EXPECT_EQ(form.flxScores(0).TextMatrix(1, score::Aggregate), "5");
    form.flxScores(0).TextMatrix(1, score::Aggregate, "y");
    goTo(7);
    EXPECT_EQ(form.flxScores(0).TextMatrix(1, score::Aggregate), "y");
    EXPECT_FALSE(form.cmdExportResults.Enabled());
    EXPECT_TRUE(form.cmdComplement.Enabled());
}

TEST_F(PageMoves, FromTheSummaryStraightToTheResultsNothingIsCalculated) {
    open(ProjectText(1, 1, 1, 1));
    goTo(4);
    goTo(7);
    EXPECT_FALSE(global.ScoresCalculated);
    EXPECT_FALSE(form.cmdComplement.Enabled());
    goTo(6);
    goTo(7);
    EXPECT_TRUE(form.cmdComplement.Enabled());
}

TEST_F(PageMoves, AnEditOfATableLeavesTheScoresAsTheyWere) {
    open(ProjectText(1, 1, 1, 1));
    walkTo(7);
    goTo(4);
    form.flxSummary(9).TextMatrix(1, 1, "2");
    goTo(7);
    EXPECT_TRUE(global.ScoresCalculated);
    EXPECT_TRUE(form.cmdComplement.Enabled());
    EXPECT_EQ(form.flxScores(1).TextMatrix(1, 5), "5");
}

TEST_F(PageMoves, LeavingTheScoresPutsBothTablesBackInTheirOrder) {
    open(ProjectText(3, 1, 1, 1).set("Socio-Econ1", "0,1,2"));
    goTo(6);
    ASSERT_EQ(form.flxScoresSort(0).TextMatrix(1, 0), "Species 3");
    form.flxScoresSort(1).Select(0, 5);
    form.flxScoresSort(1).Sort(ui::SortOrder::GenericDescending);
    goTo(1);
    for (ui::Grid& grid : form.flxScoresSort) {
        EXPECT_THAT(columnOf(grid, 0), ElementsAre("Common Name", "Species 1", "Species 2", "Species 3"));
    }
}

TEST_F(PageMoves, AnEmptyProjectWalksThroughAllPages) {
    walkTo(7);
    EXPECT_EQ(form.CurrentMainTab, 7);
    EXPECT_FALSE(form.cmdComplement.Enabled());
    EXPECT_EQ(form.flxScores(0).Rows(), 1);
    EXPECT_EQ(form.cbxDataQuality.ListIndex(), -1);
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

/// The sums of areas and the labels of bins, which follow the lists when the parameter page is left.
class LeavingTheLists : public FormTest {
protected:
    static ProjectText withBins() {
        ProjectText project(1, 2, 2, 1);
        project.set("Home-range definition", "user-defined bins,0,5").set("Home ranges", "5+ km2");
        return project.set("Habitat Area", "30,10").set("JU Area", "1,1");
    }
};

TEST_F(LeavingTheLists, SumsTheAreasWhereTheBinsAreTheUsersOwn) {
    open(withBins());
    goTo(2);
    goTo(3);
    EXPECT_EQ(global.HabitatAreaTotal, 40);
    EXPECT_TRUE(global.HabitatAreasEntered);
    EXPECT_THAT(global.HabitatAreas, ElementsAre(30, 10));
    // Areas that sum up to the number of zones count as not entered.
    EXPECT_EQ(global.JurisUnitAreaTotal, 2);
    EXPECT_FALSE(global.JurisUnitAreasEntered);
}

TEST_F(LeavingTheLists, SumsNothingForTheOtherHomeRanges) {
    for (const char* type : {"continuous", "default bins"}) {
        open(ProjectText(1, 2, 2, 1).set("Home-range definition", type));
        goTo(2);
        goTo(3);
        EXPECT_EQ(global.HabitatAreaTotal, 0) << type;
        EXPECT_EQ(global.JurisUnitAreaTotal, 0) << type;
        EXPECT_FALSE(global.HabitatAreasEntered) << type;
    }
}

TEST_F(LeavingTheLists, OtherPagesSumNothing) {
    open(withBins());
    goTo(3);
    goTo(4);
    EXPECT_EQ(global.HabitatAreaTotal, 0);
}

TEST_F(LeavingTheLists, WithoutUnitsNoAreasAreEntered) {
    open(withBins());
    goTo(2);
    goTo(3);
    ASSERT_TRUE(global.HabitatAreasEntered);
    open(ProjectText(1, 0, 0, 1).set("Home-range definition", "user-defined bins,0,5"));
    goTo(2);
    goTo(3);
    EXPECT_FALSE(global.HabitatAreasEntered);
    EXPECT_FALSE(global.JurisUnitAreasEntered);
}

TEST_F(LeavingTheLists, RebuildsTheLabelsOfTheBins) {
    open(withBins());
    goTo(2);
    form.optLandChar(3).UserClick();
    ASSERT_TRUE(form.flxBins.UserEditCell(2, 1, "8"));
    goTo(4);
    EXPECT_THAT(form.UserBinBreakpoints, ElementsAre("0", "8"));
    EXPECT_THAT(global.UserBinLabels, ElementsAre("0 - 8 km2", "8+ km2"));
    ASSERT_EQ(form.cbxUserDefBinsHR.ListCount(), 2);
    EXPECT_EQ(form.cbxUserDefBinsHR.List(0), "0 - 8 km2");
}

TEST_F(LeavingTheLists, AnAreaThatIsNoNumberIsReported) {
    open(withBins().set("Habitat Area", "30,wide"));
    goTo(2);
    const ui::RunTimeError error = failureOf([&] { goTo(3); });
    EXPECT_EQ(error.Description, reportOf("FlexGridUtilities.GetAreaTotal", 13, "Type mismatch"));
}

/// The five frames of the Selection Criteria page.
class CriteriaTabs : public FormTest {
protected:
    std::vector<int> shownFrames() {
        std::vector<int> shown;
        for (int i = 0; i < 5; ++i) {
            if (form.fraCriteria(i).Visible()) shown.push_back(i);
        }
        return shown;
    }
};

TEST_F(CriteriaTabs, ShowOneFrameAtATime) {
    open(ProjectText(1, 1, 1, 1));
    goTo(3);
    for (const int tab : {3, 1, 5, 2, 4}) {
        form.tabCriteria.UserSelectTab(tab);
        EXPECT_THAT(shownFrames(), ElementsAre(tab - 1));
        EXPECT_EQ(form.CurrentCriteriaTab, tab);
        EXPECT_EQ(form.txtCCS.Visible(), tab == 3) << tab;
        EXPECT_EQ(form.lblCCS.Visible(), tab == 3) << tab;
    }
}

TEST_F(CriteriaTabs, ShowTheHomeRangeControlOfTheKind) {
    const std::pair<const char*, int> kinds[] = {
        {"continuous", 0}, {"default bins", 1}, {"user-defined bins,0,5", 2}};
    for (const auto& [kind, type] : kinds) {
        open(ProjectText(1, 1, 1, 1).set("Home-range definition", kind));
        goTo(3);
        form.tabCriteria.UserSelectTab(2);
        EXPECT_EQ(form.txtContinuousHR.Visible(), type == 0) << kind;
        EXPECT_EQ(form.lblContinuousHR.Visible(), type == 0) << kind;
        EXPECT_EQ(form.cbxDefaultBinsHR.Visible(), type == 1) << kind;
        EXPECT_EQ(form.lblDefaultBinsHR.Visible(), type == 1) << kind;
        EXPECT_EQ(form.cbxUserDefBinsHR.Visible(), type == 2) << kind;
        EXPECT_EQ(form.lblUserDefBinsHR.Visible(), type == 2) << kind;
    }
}

TEST_F(CriteriaTabs, ShowTheDataQualityOfTheirCriterion) {
    ProjectText project(1, 1, 1, 1);
    for (int i = 1; i <= 5; ++i) project.set("Data Quality" + std::to_string(i), std::to_string(i + 1));
    open(project);
    goTo(3);
    for (const int tab : {2, 3, 4, 5, 1}) {
        form.tabCriteria.UserSelectTab(tab);
        EXPECT_EQ(form.cbxDataQuality.ListIndex(), tab) << tab;
    }
    form.flxSummary(10).TextMatrix(1, 2, "");
    form.tabCriteria.UserSelectTab(2);
    EXPECT_EQ(form.cbxDataQuality.ListIndex(), -1);
}

TEST_F(CriteriaTabs, WithoutSpeciesTheDataQualityStaysEmpty) {
    goTo(3);
    for (const int tab : {2, 3, 4, 5, 1}) {
        form.tabCriteria.UserSelectTab(tab);
        EXPECT_EQ(form.cbxDataQuality.ListIndex(), -1) << tab;
    }
}

TEST_F(CriteriaTabs, StoreTheConservationStatusOnLeavingTheVulnerabilityFrameOnly) {
    open(ProjectText(2, 1, 1, 1));
    goTo(3);
    form.flxSummary(5).TextMatrix(1, 1, "0.9");
    form.tabCriteria.UserSelectTab(2);
    EXPECT_EQ(form.flxSummary(5).TextMatrix(1, 1), "0.9");
    form.tabCriteria.UserSelectTab(3);
    EXPECT_EQ(form.txtCCS.Text(), "0.5");
    form.tabCriteria.UserSelectTab(1);
    EXPECT_EQ(form.flxSummary(5).TextMatrix(1, 1), "0.5");
}

TEST_F(CriteriaTabs, StoreTheConservationStatusOnLeavingThePageWhileItIsShown) {
    open(ProjectText(2, 1, 1, 1));
    goTo(3);
    form.flxSummary(5).TextMatrix(1, 1, "0.9");
    goTo(4);
    EXPECT_EQ(form.flxSummary(5).TextMatrix(1, 1), "0.9");
    goTo(3);
    form.tabCriteria.UserSelectTab(3);
    form.flxSummary(5).TextMatrix(1, 1, "0.2");
    goTo(4);
    EXPECT_EQ(form.flxSummary(5).TextMatrix(1, 1), "0.9");
}

TEST_F(CriteriaTabs, AClickOnTheFrameShownDoesNothing) {
    open(ProjectText(2, 1, 1, 1));
    goTo(3);
    form.tabCriteria.UserSelectTab(3);
    form.flxSummary(5).TextMatrix(1, 1, "0.9");
    form.tabCriteria.UserSelectTab(3);
    EXPECT_EQ(form.flxSummary(5).TextMatrix(1, 1), "0.9");
}

/// The lists of the parameter page.
class ListFrames : public FormTest {};

TEST_F(ListFrames, ShowOneListAtATime) {
    goTo(2);
    for (const int index : {3, 1, 4, 2, 0}) {
        form.optLandChar(index).UserClick();
        for (int i = 0; i < 5; ++i) EXPECT_EQ(form.fraLandCharInfo(i).Visible(), i == index) << index;
        EXPECT_EQ(form.CurrentLandChar, index);
    }
}

TEST_F(ListFrames, AClickOnTheListShownAsksNothing) {
    goTo(2);
    addHabitats({""});
    form.optLandChar(0).UserClick();
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(ListFrames, ARefusedMoveLeavesTheOldListAndItsButton) {
    goTo(2);
    addHabitats({""});
    platform.Answers.assign(1, "no");
    form.optLandChar(3).UserClick();
    EXPECT_EQ(platform.Transcript.size(), 1U);
    EXPECT_TRUE(form.optLandChar(0).Value());
    EXPECT_FALSE(form.optLandChar(3).Value());
    EXPECT_TRUE(form.fraLandCharInfo(0).Visible());
    EXPECT_FALSE(form.fraLandCharInfo(3).Visible());
    EXPECT_EQ(form.CurrentLandChar, 0);
}

TEST_F(PageMoves, CalculateTheTablesOnceWhereNothingHasChanged) {
    open(ProjectText(3, 2, 2, 2));
    walkTo(5);
    ui::Grid& use = form.flxSummary(summary::HabitatUse);
    ui::Grid& scores = form.flxSummary(summary::Vulnerability);
    const std::uint64_t revision = scores.Revision();
    use.Select(1, 1);
    scores.Select(1, 1);
    form.ProjectChanged = false;
    goTo(6);
    EXPECT_EQ(scores.Revision(), revision);
    EXPECT_TRUE(form.ProjectChanged);
    for (const ui::Grid* grid : {&use, &scores}) {
        EXPECT_EQ(grid->Row(), grid->Rows() - 2);
        EXPECT_EQ(grid->Col(), 1);
        EXPECT_EQ(grid->RowSel(), grid->Rows() - 1);
        EXPECT_EQ(grid->ColSel(), grid->Cols() - 1);
    }
}

TEST_F(PageMoves, CalculateTheTablesAnewAfterAnyChange) {
    open(ProjectText(3, 2, 2, 2));
    walkTo(5);
    ui::Grid& scores = form.flxSummary(summary::Vulnerability);
    const std::function<void()> changes[] = {
        [&] { form.flxSummary(summary::ThreatsBySpecies).TextMatrix(1, threat::Severity, "3"); },
        [&] { form.flxSummary(summary::HabitatUse).TextMatrix(1, 1, "3"); },
        [&] { form.flxLandUses.TextMatrix(1, list::Urgency, "0"); },
        [&] { scores.TextMatrix(1, vulnerability::ThreatOffset + 1, "9"); }};
    for (const auto& change : changes) {
        goTo(5);
        change();
        SCOPED_TRACE(&change - changes);
        const std::uint64_t revision = scores.Revision();
        goTo(6);
        EXPECT_GT(scores.Revision(), revision);
    }
    EXPECT_NE(scores.TextMatrix(1, vulnerability::ThreatOffset + 1), "9");
}
