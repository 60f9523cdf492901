// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection_test.h"

using testing::Each;
using testing::ElementsAre;

class SelectionLoop : public SelectionTest {};

TEST_F(SelectionLoop, DoesNothingBeforeScoresAreCalculated) {
    form.cmdComplement.UserClick();
    EXPECT_EQ(form.flxBrenicSuite.Rows(), 1);
    EXPECT_FALSE(form.optCompResults(0).Enabled());
    EXPECT_THAT(platform.Transcript, testing::IsEmpty());
}

TEST_F(SelectionLoop, ReportsAtOnceWhenTheFirstPickCoversEverything) {
    openForSelection(oneCoversAll());
    select();
    ASSERT_EQ(form.flxBrenicSuite.Rows(), 2);
    EXPECT_THAT(rowOf(form.flxBrenicSuite, 1), ElementsAre("1", "Species 1", "2", "1", "1"));
    ASSERT_EQ(results().Rows(), 4);
    EXPECT_THAT(rowOf(results(), 1),
                ElementsAre("Species 1", "1", "5", "1", "1", "1", "1", "1", "2", "1", "1", "1"));
    EXPECT_THAT(rowOf(results(), 2),
                ElementsAre("Species 2", "2", "4.5", "0.5", "1", "1", "1", "1", "0", "0", "1", "2"));
    EXPECT_THAT(rowOf(results(), 3), Each(""));
    ASSERT_EQ(platform.Transcript.size(), 1U);
    EXPECT_EQ(lastBox().Title, "Selection Report");
    EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Exclamation);
    EXPECT_EQ(
        lastBox().Text,
        "All habitat types, management zones and threats are covered by the current suite of brenic species.");
}

TEST_F(SelectionLoop, PaintsThePickAndItsSuiteRow) {
    openForSelection(oneCoversAll());
    select();
    EXPECT_EQ(colourOf(1, 0), MarginGreen);
    for (int col = 1; col <= 11; ++col) EXPECT_EQ(colourOf(1, col), PickedYellow) << col;
    for (int col = 0; col <= 11; ++col) EXPECT_EQ(colourOf(2, col), White) << col;
    for (int col = 2; col <= 4; ++col)
        EXPECT_EQ(form.flxBrenicSuite.BackColorOf(1, col), ui::rgb(200, 50, 0)) << col;
    EXPECT_EQ(form.flxBrenicSuite.BackColorOf(1, 1), White);
}

TEST_F(SelectionLoop, OpensTheViewsAndTheExportWhenItEnds) {
    openForSelection(oneCoversAll());
    EXPECT_FALSE(form.cmdExportResults.Enabled());
    select();
    for (int i = 0; i < 4; ++i) EXPECT_TRUE(form.optCompResults(i).Enabled()) << i;
    EXPECT_TRUE(form.optCompResults(0).Value());
    EXPECT_TRUE(form.cmdExportResults.Enabled());
    EXPECT_TRUE(results().Redraw());
}

TEST_F(SelectionLoop, AppendsABlockWithABlankRowForEachPass) {
    openForSelection(oneHabitatEach());
    select();
    EXPECT_THAT(columnOf(results(), result::Name),
                ElementsAre("Common Name", "Species 1", "Species 2", "Species 3", "", "Species 2",
                            "Species 3", "", "Species 3", ""));
    EXPECT_THAT(columnOf(results(), result::Rank),
                ElementsAre("Rank", "1", "2", "3", "", "1", "2", "", "1", ""));
    EXPECT_THAT(columnOf(results(), result::Candidate),
                ElementsAre("", "1", "2", "3", "", "2", "3", "", "3", ""));
    EXPECT_THAT(suite(), ElementsAre("Common Name", "Species 1", "Species 2", "Species 3"));
}

TEST_F(SelectionLoop, NormalisesLaterPassesAgainstTheMaximumOfAnEarlierOne) {
    openForSelection(oneHabitatEach());
    select();
    // Left over after pick 1: heterogeneity 6 and 4; after pick 2 it is 4, still divided by 6.
    EXPECT_THAT(rowOf(results(), 5),
                ElementsAre("Species 2", "1", "5", "1", "1", "1", "1", "1", "1", "0", "0", "2"));
    EXPECT_THAT(rowOf(results(), 6),
                ElementsAre("Species 3", "2", "4.667", "0.667", "1", "1", "1", "1", "1", "0", "0", "3"));
    EXPECT_THAT(rowOf(results(), 8),
                ElementsAre("Species 3", "1", "4.667", "0.667", "1", "1", "1", "1", "1", "0", "0", "3"));
}

TEST_F(SelectionLoop, CountsTheAdditionsOfEachPick) {
    openForSelection(oneHabitatEach());
    select();
    EXPECT_THAT(rowOf(form.flxBrenicSuite, 1), ElementsAre("1", "Species 1", "1", "1", "1"));
    EXPECT_THAT(rowOf(form.flxBrenicSuite, 2), ElementsAre("2", "Species 2", "1", "0", "0"));
    EXPECT_THAT(rowOf(form.flxBrenicSuite, 3), ElementsAre("3", "Species 3", "1", "0", "0"));
}

TEST_F(SelectionLoop, AThresholdOfZeroIsReachedByEverySpecies) {
    openForSelection(oneCoversAll()
                         .set("Habitat UseLevel", "0,0")
                         .set("MZone UseLevel", "0")
                         .set("HeteroHabitat Population", "0,0,0,0")
                         .set("HeteroJU Individual", "0,0"));
    select();
    EXPECT_EQ(rowOf(form.flxBrenicSuite, 1)[2], "2");
    EXPECT_EQ(rowOf(form.flxBrenicSuite, 1)[3], "1");
    EXPECT_EQ(results().TextMatrix(2, result::AddHabitats), "2");
}

TEST_F(SelectionLoop, RoundsThresholdsHalfToEvenAndComparesTheLevelAsItIs) {
    struct Case {
        const char* Threshold;
        const char* Level;
        const char* Added;
    };
    // The other habitat is covered in any case, so that the pick always adds something.
    for (const Case& c : {Case{"1.5", "2", "2"}, Case{"1.5", "1.9", "1"}, Case{"2.5", "2", "2"},
                          Case{"2", "1.5", "1"}, Case{"2", "2", "2"}, Case{"0.5", "0", "2"}}) {
        SCOPED_TRACE(std::string(c.Threshold) + " and " + c.Level);
        openForSelection(oneCoversAll()
                             .set("Habitat UseLevel", std::string("2,") + c.Threshold)
                             .set("HeteroHabitat Population", std::string("2,") + c.Level + ",0,3"));
        type(form.txtErrorMargin, "0");
        select();
        const int row = results().TextMatrix(1, result::Candidate) == "1" ? 1 : 2;
        EXPECT_EQ(results().TextMatrix(row, result::AddHabitats), c.Added);
    }
}

TEST_F(SelectionLoop, AThreatThatScoresNothingIsRepresentedByEverySpecies) {
    openForSelection(oneCoversAll().set("VulnerabilitybySpecies Severity", "0,0"));
    type(form.txtThreatRep, "1");
    select();
    EXPECT_EQ(results().TextMatrix(1, result::AddThreats), "1");
    EXPECT_EQ(results().TextMatrix(2, result::AddThreats), "1");
}

TEST_F(SelectionLoop, AThreatRepresentationOfZeroIsReachedByEverySpecies) {
    openForSelection(oneCoversAll().set("VulnerabilitybySpecies Severity", "3,0"));
    select();
    EXPECT_EQ(results().TextMatrix(2, result::AddThreats), "0");
    type(form.txtThreatRep, "0");
    select();
    EXPECT_EQ(results().TextMatrix(2, result::AddThreats), "1");
}

TEST_F(SelectionLoop, AThreatIsRepresentedFromTheGivenFractionOfTheHighestScoreOn) {
    // Scores (1 + 1) × severity: 6 and 3, so that half of the highest is just reached.
    openForSelection(oneCoversAll()
                         .set("VulnerabilitybySpecies Severity", "3,3")
                         .set("VulnerabilitybySpecies Recovery", "1,0"));
    select();
    EXPECT_EQ(results().TextMatrix(2, result::AddThreats), "1");
    type(form.txtThreatRep, "0.51");
    select();
    EXPECT_EQ(results().TextMatrix(2, result::AddThreats), "0");
}

TEST_F(SelectionLoop, ExcludedSpeciesCountForTheHighestScoreOfAThreat) {
    openForSelection(oneHabitatEach()
                         .set("VulnerabilitybySpecies Severity", "1,0,3")
                         .set("Conservation Status", "0.5,0.5,0.9"));
    type(form.txtCCSRep, "0.8");
    select();
    // 0.5 × 6 = 3 is above the 2 of species 1.
    EXPECT_EQ(results().TextMatrix(1, result::Name), "Species 1");
    EXPECT_EQ(results().TextMatrix(1, result::AddThreats), "0");
}

TEST_F(SelectionLoop, NamesWhatStaysUncovered) {
    ProjectText project(3, 4, 3, 2);
    project.set("Habitat Type", "Bog,Fen,Moor,Marsh").set("Jurisdictional Unit", "North,East,South");
    project.set("Land Use", "Roads,Dams").set("Conservation Status", "0.5,0.5,0.9");
    project.set("HeteroHabitat Population", "2,0,1,1,0,2,1,1,1,1,1,1");
    project.set("HeteroJU Individual", "2,1,1,1,1,1,1,1,1")
        .set("VulnerabilitybySpecies Severity", "1,0,0,0,0,3");
    openForSelection(project);
    type(form.txtCCSRep, "0.8");
    select();
    EXPECT_THAT(suite(), ElementsAre("Common Name", "Species 1", "Species 2"));
    EXPECT_EQ(lastBox().Title, "Selection Report");
    EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Exclamation);
    EXPECT_EQ(lastBox().Text,
              "The following are not covered by the current suite of brenic species:\r"
              "Habitat types: Moor, Marsh\r"
              "Management Zones: East, South\r"
              "Threats: Dams\r");
}

TEST_F(SelectionLoop, LeavesOutOfTheReportTheListsThatAreCovered) {
    openForSelection(oneHabitatEach()
                         .set("HeteroHabitat Population", "2,0,0,0,3,0,0,0,1")
                         .set("Conservation Status", "0.5,0.5,0.9"));
    type(form.txtCCSRep, "0.8");
    select();
    EXPECT_EQ(
        lastBox().Text,
        "The following are not covered by the current suite of brenic species:\rHabitat types: Habitat 3\r");
}

TEST_F(SelectionLoop, RepeatsTheWholeSelectionOnASecondPress) {
    openForSelection(oneHabitatEach());
    select();
    const auto names = columnOf(results(), result::Name);
    const auto aggregates = columnOf(results(), result::Aggregate);
    select();
    EXPECT_EQ(columnOf(results(), result::Name), names);
    EXPECT_EQ(columnOf(results(), result::Aggregate), aggregates);
    EXPECT_EQ(form.flxBrenicSuite.Rows(), 4);
}

TEST_F(SelectionLoop, TakesNewLevelsAtTheNextPressOnly) {
    openForSelection(oneCoversAll());
    select();
    type(form.txtErrorMargin, "7");
    type(form.txtThreatRep, "0.25");
    type(form.txtCCSRep, "0.75");
    EXPECT_EQ(global.ErrorMargin, 5);
    EXPECT_EQ(global.ThreatRepresentation, 0.5);
    EXPECT_EQ(global.ConservationStatusRepresentation, 1);
    select();
    EXPECT_EQ(global.ErrorMargin, 7);
    EXPECT_EQ(global.ThreatRepresentation, 0.25);
    EXPECT_EQ(global.ConservationStatusRepresentation, 0.75);
}

TEST_F(SelectionLoop, PutsTheSortedScoresBackInCandidateOrder) {
    ProjectText project = oneCoversAll();
    open(project.set("HeteroHabitat Population", "1,1,2,2").set("HeteroJU Individual", "1,2"));
    walkTo(3);
    goTo(7);
    ASSERT_THAT(columnOf(form.flxScoresSort(0), 0), ElementsAre("Common Name", "Species 2", "Species 1"));
    select();
    EXPECT_THAT(columnOf(form.flxScoresSort(0), 0), ElementsAre("Common Name", "Species 1", "Species 2"));
    EXPECT_THAT(suite(), ElementsAre("Common Name", "Species 2"));
    EXPECT_EQ(results().TextMatrix(1, result::Candidate), "2");
}

TEST_F(SelectionLoop, ListsTheUnitsByNameInTheViews) {
    openForSelection(oneHabitatEach()
                         .set("Habitat Type", "Bog,Fen,Moor")
                         .set("Jurisdictional Unit", "North")
                         .set("Land Use", "Roads"));
    select();
    EXPECT_THAT(columnOf(form.flxCompResults(1), 0), ElementsAre("Habitat Name", "Bog", "Fen", "Moor"));
    EXPECT_THAT(columnOf(form.flxCompResults(2), 0), ElementsAre("MZ Name", "North"));
    EXPECT_THAT(columnOf(form.flxCompResults(3), 0), ElementsAre("Potential threat", "Roads"));
}
