// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

/// Selections after the lists have changed. From the summary tables and the graphs the results page is reached without
/// new scores.
class OldScores : public SelectionTest {
protected:
    int Refused = 0;
    SelectionObstacle Obstacle = SelectionObstacle::OldScores;

    void SetUp() override {
        form.SelectionRefused = [this](SelectionObstacle obstacle) {
            ++Refused;
            Obstacle = obstacle;
        };
    }
    void removeSpecies(int row) {
        type(form.txtRemoveSpeciesIndex, std::to_string(row));
        form.cmdRemoveSpecies.UserClick();
    }
    /// A suite on view, the pages left for the lists.
    void selectAndGoTo(int page) {
        openForSelection(oneHabitatEach());
        select();
        ASSERT_THAT(suite(), ElementsAre("Common Name", "Species 1", "Species 2", "Species 3"));
        goTo(page);
    }
    void addActivity(const std::string& name) {
        addActivities({name});
        ASSERT_TRUE(form.flxLandUses.UserEditCell(2, list::Urgency, "1"));
        ASSERT_TRUE(form.flxLandUses.UserEditCell(2, list::Probability, "1"));
    }
    /// Grades a species on the second activity, as many of the three ratings as are asked for.
    void rate(int species, const std::string& grade, int ratings) {
        goTo(3);
        form.cbxSpeciesName.UserChoose(species - 1);
        for (int col = 1; col <= ratings; ++col)
            ASSERT_TRUE(form.flxLandUsesVulnerability.UserEditCell(2, col, grade));
    }
    void expectSuite(int pageBefore) {
        goTo(pageBefore);
        goTo(7);
        Refused = 0;
        platform.Transcript.clear();
        EXPECT_NO_THROW(select());
        EXPECT_EQ(Refused, 0);
        EXPECT_EQ(textsOf("Selection Report").size(), 1U);
    }
    /// Presses the command, which must leave everything as it was but tell whoever watches.
    void expectRefusal(int pageBefore, SelectionObstacle obstacle = SelectionObstacle::OldScores) {
        goTo(pageBefore);
        goTo(7);
        ASSERT_TRUE(form.cmdComplement.Enabled());
        platform.Transcript.clear();
        const auto suiteBefore = suite();
        const auto passesBefore = columnOf(results(), result::Name);
        Refused = 0;
        select();
        EXPECT_EQ(Refused, 1);
        EXPECT_EQ(Obstacle, obstacle);
        EXPECT_EQ(suite(), suiteBefore);
        EXPECT_EQ(columnOf(results(), result::Name), passesBefore);
        EXPECT_THAT(platform.Transcript, IsEmpty());
        EXPECT_FALSE(form.cmdExportResults.Enabled());
    }
};

TEST_F(OldScores, SelectNothingWhileAnAddedSpeciesHasNone) {
    selectAndGoTo(1);
    addSpecies({"Newt"});
    expectRefusal(4);
    expectRefusal(5);
}

TEST_F(OldScores, SelectNothingWithoutAWatcherEither) {
    selectAndGoTo(1);
    addSpecies({"Newt"});
    form.SelectionRefused = nullptr;
    goTo(4);
    goTo(7);
    EXPECT_NO_THROW(select());
    EXPECT_EQ(suite().size(), 4U);
}

TEST_F(OldScores, SelectNothingWhileAnAddedUnitHasNoLevels) {
    selectAndGoTo(2);
    addHabitats({"Bog"});
    expectRefusal(4);
}

TEST_F(OldScores, SelectNothingWhileAnAddedZoneHasNoLevels) {
    selectAndGoTo(2);
    addZones({"North"});
    expectRefusal(4);
}

/// Nobody is exposed to it, so that the first pick covers it and nobody reads its ratings.
TEST_F(OldScores, ServeWhileAnAddedActivityHasNoRatingsAtAll) {
    selectAndGoTo(2);
    addActivity("Dams");
    expectSuite(4);
}

TEST_F(OldScores, SelectNothingWhileAnAddedActivityIsRatedForSomeSpecies) {
    selectAndGoTo(2);
    addActivity("Dams");
    rate(1, "1", 3);
    for (int species = 2; species <= 3; ++species) {
        for (int ratings = 0; ratings < 3; ++ratings) {
            rate(species, "1", ratings);
            expectRefusal(4);
        }
        rate(species, "1", 3);
    }
    expectSuite(4);
}

TEST_F(OldScores, ServeWithBlankRatingsWhereEveryThreatIsRepresentedByAll) {
    selectAndGoTo(2);
    addActivity("Dams");
    rate(1, "1", 3);
    expectRefusal(4);
    type(form.txtThreatRep, "0");
    EXPECT_NO_THROW(select());
    EXPECT_EQ(textsOf("Selection Report").size(), 1U);
}

/// The report states the levels of the suite that it lists, also after a press that came to nothing.
TEST_F(OldScores, ARefusalLeavesTheLevelsOfTheSuiteOnView) {
    selectAndGoTo(2);
    addActivity("Dams");
    rate(1, "1", 3);
    goTo(4);
    goTo(7);
    type(form.txtThreatRep, "0");
    select();
    type(form.txtThreatRep, "0.5");
    type(form.txtErrorMargin, "7");
    select();
    ASSERT_EQ(Refused, 1);
    platform.Files.push_back(folder.file("results.txt"));
    form.cmdExportResults.UserClick();
    EXPECT_THAT(readFile(folder.file("results.txt")),
                testing::HasSubstr("5 % Error margin\r\n0 Threat representation\r\n"));
}

TEST_F(OldScores, ServeWithBlanksOfSpeciesThatTakeNoPart) {
    openForSelection(oneHabitatEach().set("Conservation Status", "0.2,0.4,0.9"));
    goTo(2);
    addHabitats({"Bog"});
    for (int species = 1; species <= 2; ++species) {
        goTo(3);
        form.cbxSpeciesName.UserChoose(species - 1);
        ASSERT_TRUE(form.flxHabitatHetero.UserEditCell(4, 1, "3"));
    }
    expectRefusal(4);
    type(form.txtCCSRep, "0.5");
    EXPECT_NO_THROW(select());
    EXPECT_EQ(textsOf("Selection Report").size(), 1U);
}

TEST_F(OldScores, SelectNothingWhileASpeciesHasNoConservationStatus) {
    selectAndGoTo(4);
    form.tabCriteriaSummary.UserSelectTab(4);
    form.chkAllowSummaryEdit.UserClick();
    ASSERT_TRUE(
        form.flxSummary(summary::Vulnerability).UserEditCell(2, vulnerability::ConservationStatus, ""));
    expectRefusal(5, SelectionObstacle::NoStatus);
    goTo(4);
    ASSERT_TRUE(
        form.flxSummary(summary::Vulnerability).UserEditCell(2, vulnerability::ConservationStatus, "1"));
    expectSuite(5);
}

TEST_F(OldScores, SelectNothingWhenNoSpeciesIsLeft) {
    selectAndGoTo(1);
    for (int i = 0; i < 3; ++i) removeSpecies(1);
    expectRefusal(4, SelectionObstacle::NoSpecies);
}

TEST_F(OldScores, ServeAgainAfterAggregateScores) {
    selectAndGoTo(1);
    addSpecies({"Newt"});
    expectRefusal(4);
    goTo(1);
    removeSpecies(4);
    goTo(6);
    goTo(7);
    select();
    EXPECT_EQ(Refused, 1);
    EXPECT_THAT(suite(), ElementsAre("Common Name", "Species 1", "Species 2", "Species 3"));
}

TEST_F(OldScores, ServeWhereAListWasEmptied) {
    selectAndGoTo(2);
    for (const auto& [box, button] : {std::pair{&form.txtRemoveHabitatIndex, &form.cmdRemoveHabitatType},
                                      {&form.txtRemoveLandUseIndex, &form.cmdRemoveLandUse}}) {
        for (int i = 0; i < 3; ++i) {
            type(*box, "1");
            button->UserClick();
        }
    }
    goTo(4);
    goTo(7);
    select();
    EXPECT_EQ(Refused, 0);
    EXPECT_THAT(suite(), ElementsAre("Common Name", "Species 1"));
    EXPECT_EQ(lastBox().Title, "Selection Report");
}

TEST_F(OldScores, AreNoneBeforeTheFirstCalculation) {
    addSpecies({"Newt"});
    form.cmdComplement.UserClick();
    EXPECT_EQ(Refused, 0);
}

/// The results page shows the scores in order of rank; lists that change then must not mix up the species.
class ScoresInOrderOfRank : public SelectionTest {
protected:
    void SetUp() override {
        open(oneHabitatEach().set("HeteroHabitat Population", "0,0,2,0,3,0,2,0,3"));
        walkTo(3);
        goTo(7);
        ASSERT_THAT(columnOf(form.flxScoresSort(0), 0),
                    ElementsAre("Common Name", "Species 1", "Species 3", "Species 2"));
        goTo(1);
    }
    void selectFromTheSummary() {
        goTo(4);
        goTo(7);
        platform.Transcript.clear();
        select();
    }
};

TEST_F(ScoresInOrderOfRank, ARenamedSpeciesKeepsItsScores) {
    ASSERT_TRUE(form.flxCandidateSpecies.UserEditCell(2, list::Name, "Newt"));
    selectFromTheSummary();
    EXPECT_THAT(columnOf(form.flxScoresSort(0), 0),
                ElementsAre("Common Name", "Species 1", "Newt", "Species 3"));
    EXPECT_EQ(columnOf(form.flxScoresSort(0), score::Aggregate),
              columnOf(form.flxScores(0), score::Aggregate));
}

TEST_F(ScoresInOrderOfRank, ARemovedSpeciesTakesItsOwnScoresAlong) {
    type(form.txtRemoveSpeciesIndex, "2");
    form.cmdRemoveSpecies.UserClick();
    selectFromTheSummary();
    for (const int col : {0, score::Rank, score::Aggregate})
        EXPECT_EQ(columnOf(form.flxScoresSort(0), col), columnOf(form.flxScores(0), col)) << col;
}

TEST_F(ScoresInOrderOfRank, AnAddedSpeciesStaysLast) {
    addSpecies({"Newt"});
    goTo(4);
    goTo(7);
    goTo(1);
    type(form.txtRemoveSpeciesIndex, "4");
    form.cmdRemoveSpecies.UserClick();
    selectFromTheSummary();
    for (const int col : {0, score::Rank, score::Aggregate})
        EXPECT_EQ(columnOf(form.flxScoresSort(0), col), columnOf(form.flxScores(0), col)) << col;
}

TEST_F(ScoresInOrderOfRank, TheReportRanksTheSpeciesThatAreLeft) {
    type(form.txtRemoveSpeciesIndex, "1");
    form.cmdRemoveSpecies.UserClick();
    selectFromTheSummary();
    platform.Files.push_back(folder.file("results.txt"));
    form.cmdExportResults.UserClick();
    EXPECT_FALSE(files.IsOpen(1));
    const std::string aggregates[] = {std::string(form.flxScores(0).TextMatrix(1, score::Aggregate)),
                                      std::string(form.flxScores(0).TextMatrix(2, score::Aggregate))};
    EXPECT_THAT(readFile(folder.file("results.txt")),
                testing::StartsWith("Brenic Species by Rank with Aggregate Score:\r\n1. Species 3  (" +
                                    aggregates[1] + ")\r\n2. Species 2  (" + aggregates[0] + ")\r\n\r\n"));
}
