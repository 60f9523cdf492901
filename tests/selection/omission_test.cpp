// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection_test.h"

using testing::Each;
using testing::ElementsAre;

/// Species that are kept out of a selection, dropped from it or left over.
class Omission : public SelectionTest {};

TEST_F(Omission, ASpeciesAboveTheConservationStatusIsExcludedAndNamedOnce) {
    openForSelection(oneHabitatEach().set("Conservation Status", "0.5,0.5,0.6"));
    type(form.txtCCSRep, "0.5");
    select();
    EXPECT_THAT(shownTitles(), ElementsAre("Excluded species", "Selection Report"));
    EXPECT_EQ(platform.Transcript[0].Icon, ui::MessageIcon::Exclamation);
    EXPECT_EQ(
        platform.Transcript[0].Text,
        "The following species was excluded due to its high Current Conservation Status value:\rSpecies 3");
    EXPECT_THAT(suite(), ElementsAre("Common Name", "Species 1", "Species 2"));
    EXPECT_EQ(global.ExcludedSpeciesCount, 1);
    EXPECT_FALSE(global.SelectionStarting);
}

TEST_F(Omission, SeveralExcludedSpeciesAreCountedAndListed) {
    openForSelection(oneHabitatEach()
                         .set("Common Name", "Otter, Badger ,Adder")
                         .set("Conservation Status", "0.5,0.6,0.7"));
    type(form.txtCCSRep, "0.5");
    select();
    EXPECT_EQ(platform.Transcript[0].Text,
              "The following 2 species was excluded due to their high Current Conservation Status value:\r"
              "Badger; Adder");
}

TEST_F(Omission, AConservationStatusEqualToTheLevelStaysIn) {
    openForSelection(oneHabitatEach().set("Conservation Status", "0.5,0.5,0.5"));
    type(form.txtCCSRep, "0.5");
    select();
    EXPECT_THAT(shownTitles(), ElementsAre("Selection Report"));
    EXPECT_EQ(form.flxBrenicSuite.Rows(), 4);
}

TEST_F(Omission, TheLevelsZeroAndOneOfConservationStatus) {
    openForSelection(oneHabitatEach().set("Conservation Status", "0,1,1.5"));
    select();
    EXPECT_EQ(global.ExcludedSpeciesList, "Species 3");
    type(form.txtCCSRep, "0");
    select();
    EXPECT_EQ(global.ExcludedSpeciesList, "Species 2; Species 3");
}

TEST_F(Omission, AllSpeciesExcludedEndsInTheUnexpectedErrorAfterTheMessage) {
    openForSelection(oneHabitatEach());
    type(form.txtCCSRep, "0.4");
    const ui::RunTimeError error = failureOf([&] { select(); });
    EXPECT_EQ(error.Description, reportOf("BrenicaUtilities.cmdComplement_Click", 13, "Type mismatch"));
    EXPECT_THAT(shownTitles(), ElementsAre("Excluded species"));
    EXPECT_FALSE(form.cmdExportResults.Enabled());
    EXPECT_FALSE(form.optCompResults(0).Enabled());
}

TEST_F(Omission, AllButOneExcludedPicksTheOneWithoutLookingAtTheMargin) {
    openForSelection(oneHabitatEach().set("Conservation Status", "0.9,0.3,0.9"));
    type(form.txtCCSRep, "0.5");
    type(form.txtErrorMargin, "100");
    select();
    EXPECT_THAT(suite(), ElementsAre("Common Name", "Species 2"));
    EXPECT_THAT(shownTitles(), ElementsAre("Excluded species", "Selection Report"));
    EXPECT_EQ(colourOf(1, 0), MarginGreen);
}

TEST_F(Omission, AFirstPickWithoutAdditionsIsOmittedAndTheNextIsNumberOne) {
    openForSelection(bestCoversNothing());
    select();
    EXPECT_THAT(shownTitles(), ElementsAre("Species Omitted", "Species Omitted", "Selection Report"));
    EXPECT_EQ(
        platform.Transcript[0].Text,
        "Species 1 with the highest aggregate score has been removed as it covers no additional habitats, "
        "management zones or threats.");
    EXPECT_EQ(platform.Transcript[0].Icon, ui::MessageIcon::Exclamation);
    ASSERT_EQ(form.flxBrenicSuite.Rows(), 2);
    EXPECT_THAT(rowOf(form.flxBrenicSuite, 1), ElementsAre("1", "Species 2", "1", "1", "1"));
    EXPECT_EQ(form.flxBrenicSuite.BackColorOf(1, 2), ui::rgb(200, 50, 0));
    EXPECT_EQ(colourOf(1, 0), MarginGreen);
    for (int col = 1; col <= 11; ++col) EXPECT_EQ(colourOf(1, col), OmittedRed) << col;
}

TEST_F(Omission, OtherSpeciesWithoutAdditionsAreOnlyDroppedInTheSecondPass) {
    openForSelection(bestCoversNothing());
    select();
    EXPECT_THAT(
        columnOf(results(), result::Name),
        ElementsAre("Common Name", "Species 1", "Species 2", "Species 3", "", "Species 2", "Species 3", ""));
    for (int col = 0; col <= 11; ++col) EXPECT_EQ(colourOf(3, col), White) << col;
    for (int col = 1; col <= 11; ++col) EXPECT_EQ(colourOf(6, col), OmittedRed) << col;
    EXPECT_EQ(platform.Transcript[1].Text,
              "Species 3 has been removed as it covers no additional habitats, management zones or threats.");
    EXPECT_EQ(platform.Transcript[1].Icon, ui::MessageIcon::Exclamation);
}

TEST_F(Omission, AnOmittedFirstPickLeavesTheViewsUnmarked) {
    openForSelection(bestCoversNothing());
    select();
    for (int view = 1; view <= 3; ++view) EXPECT_EQ(form.flxCompResults(view).TextMatrix(1, 1), "1") << view;
}

TEST_F(Omission, MessagesOfAPassComeInRankOrder) {
    // Species 2 and 3 add nothing after the first pick; species 3 stands above species 2.
    ProjectText project(4, 2, 1, 1);
    project.set("HeteroHabitat Population", "2,0,1,0,1,0,0,2").set("HeteroJU Individual", "2,0,0,0");
    project.set("VulnerabilitybySpecies Severity", "1,0,0,0").set("Socio-Econ1", "8,1,2,0");
    openForSelection(project);
    select();
    EXPECT_THAT(
        textsOf("Species Omitted"),
        ElementsAre("Species 3 has been removed as it covers no additional habitats, management zones or "
                    "threats.",
                    "Species 2 has been removed as it covers no additional habitats, management zones or "
                    "threats."));
    EXPECT_THAT(suite(), ElementsAre("Common Name", "Species 1", "Species 4"));
}

TEST_F(Omission, APassThatOmitsEveryoneEndsInATypeMismatch) {
    openForSelection(oneCoversAll().set("HeteroHabitat Population", "2,1,1,1"));
    const ui::RunTimeError error = failureOf([&] { select(); });
    EXPECT_EQ(error.Number, static_cast<std::int32_t>(0x8004270F));
    EXPECT_EQ(error.Description, reportOf("BrenicaUtilities.cmdComplement_Click", 13, "Type mismatch"));
    EXPECT_THAT(shownTitles(), ElementsAre("Species Omitted"));
    EXPECT_EQ(rowOf(form.flxBrenicSuite, 1)[1], "Species 1");
    EXPECT_FALSE(form.cmdExportResults.Enabled());
}

TEST_F(Omission, TheMarginCountOfAnEarlierPassFailsOnTheLastSurvivor) {
    openForSelection(twoEqual());
    const ui::RunTimeError error = failureOf([&] { select({"a"}); });
    EXPECT_EQ(error.Description, reportOf("BrenicaUtilities.SelectErrorMarginSpecies", 13, "Type mismatch"));
    EXPECT_THAT(shownTitles(), ElementsAre("Species with aggregate score within the set margin of error"));
    EXPECT_EQ(rowOf(form.flxBrenicSuite, 1)[1], "Species 1");
}

TEST_F(Omission, ALaterPickWithoutAdditionsIsDroppedWithoutAWord) {
    openForSelection(leaderAddsNothing());
    type(form.txtErrorMargin, "100");
    // "x" takes the first row of the block, the omitted leader. It is counted twice as removed, so that the run ends
    // before species 4 has had its turn.
    select({"a", "x", "a"});
    EXPECT_THAT(
        textsOf("Species Omitted"),
        ElementsAre("Species 2 has been removed as it covers no additional habitats, management zones or "
                    "threats."));
    EXPECT_THAT(suite(), ElementsAre("Common Name", "Species 1", "Species 3"));
    EXPECT_EQ(
        lastBox().Text,
        "The following are not covered by the current suite of brenic species:\rHabitat types: Habitat 3\r");
}

TEST_F(Omission, ADroppedPickStaysOmittedRedAndTheRowAboveTheSurvivorsCountsIn) {
    openForSelection(leaderAddsNothing());
    type(form.txtErrorMargin, "100");
    select({"a", "x", "a"});
    EXPECT_THAT(columnOf(results(), result::Name),
                ElementsAre("Common Name", "Species 1", "Species 2", "Species 3", "Species 4", "",
                            "Species 2", "Species 3", "Species 4", "", "Species 3", "Species 4", ""));
    EXPECT_EQ(colourOf(6, 1), OmittedRed);
    EXPECT_EQ(colourOf(6, 0), White);
    EXPECT_EQ(colourOf(7, 0), MarginGreen);
    EXPECT_EQ(colourOf(8, 0), MarginGreen);
}
