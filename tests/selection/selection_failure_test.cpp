// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection_test.h"

using testing::ElementsAre;

/// Cells that no longer hold a number when the command is pressed. Each step reports its own, and what came before it
/// stays in the table.
class SelectionFailure : public SelectionTest {
protected:
    std::string failure() {
        type(form.txtErrorMargin, "0");
        return failureOf([&] { select(); }).Description;
    }
    static ProjectText twoThreats() {
        ProjectText project(3, 3, 1, 2);
        project.set("HeteroHabitat Population", "2,0,0,0,3,0,0,0,2").set("HeteroJU Individual", "2,0,0");
        project.set("VulnerabilitybySpecies Severity", "1,0,0,0,0,1");
        return project;
    }
};

TEST_F(SelectionFailure, ALevelOfUseStopsTheCountOfWhatASpeciesAdds) {
    openForSelection(oneHabitatEach());
    form.flxSummary(summary::JurisUnitsBySpecies).TextMatrix(2, use::Level, "much");
    EXPECT_EQ(failure(), reportOf("BrenicaUtilities.GetUnitsUsed", 13, "Type mismatch"));
    EXPECT_THAT(columnOf(results(), result::AddHabitats), ElementsAre("Add. Habitats", "1", "1", "", ""));
    EXPECT_THAT(columnOf(results(), result::AddJurisUnits), ElementsAre("Add. MZones", "1", "", "", ""));
    EXPECT_FALSE(results().Redraw());
}

TEST_F(SelectionFailure, ALevelOfUseOutOfRangeOverflows) {
    openForSelection(oneHabitatEach());
    form.flxSummary(summary::HabitatsBySpecies).TextMatrix(4, use::Level, "1e999");
    EXPECT_EQ(failure(), reportOf("BrenicaUtilities.GetUnitsUsed", 6, "Overflow"));
    EXPECT_THAT(columnOf(results(), result::AddHabitats), ElementsAre("Add. Habitats", "1", "", "", ""));
}

TEST_F(SelectionFailure, AHeterogeneityOutOfRangeOverflowsInALaterPass) {
    openForSelection(oneHabitatEach());
    form.flxSummary(summary::HabitatsBySpecies).TextMatrix(8, use::Level, "-1e308");
    EXPECT_EQ(failure(), reportOf("BrenicaUtilities.RecalcHeteroScore", 6, "Overflow"));
    EXPECT_EQ(results().TextMatrix(5, result::Heterogeneity), "6");
    EXPECT_EQ(results().TextMatrix(6, result::AddThreats), "0");
    EXPECT_EQ(results().TextMatrix(6, result::Heterogeneity), "");
}

TEST_F(SelectionFailure, ARatingOfAThreatThatNothingCoversFailsInALaterPass) {
    openForSelection(twoThreats());
    form.flxSummary(summary::ThreatsBySpecies).TextMatrix(6, threat::Urgency, "");
    EXPECT_EQ(failure(), reportOf("BrenicaUtilities.RecalcVulnerabilityScore", 13, "Type mismatch"));
    EXPECT_EQ(results().TextMatrix(6, result::Heterogeneity), "4");
    EXPECT_EQ(results().TextMatrix(6, result::Vulnerability), "");
}

TEST_F(SelectionFailure, AProbabilityFailsLikeAnUrgency) {
    openForSelection(twoThreats());
    form.flxSummary(summary::ThreatsBySpecies).TextMatrix(6, threat::Probability, "");
    EXPECT_EQ(failure(), reportOf("BrenicaUtilities.RecalcVulnerabilityScore", 13, "Type mismatch"));
}

TEST_F(SelectionFailure, AnAggregateStopsTheLookAtTheMarginBelowTheTopRow) {
    openForSelection(oneHabitatEach());
    form.flxScoresSort(0).TextMatrix(2, score::Aggregate, "");
    EXPECT_EQ(failure(), reportOf("BrenicaUtilities.Check4ErrorMargin", 13, "Type mismatch"));
    EXPECT_EQ(colourOf(1, 0), MarginGreen);
    EXPECT_THAT(columnOf(results(), result::Rank), ElementsAre("Rank", "1", "2", "3", ""));
}

TEST_F(SelectionFailure, AScoreThatALaterPassAddsFailsInTheLoop) {
    openForSelection(oneHabitatEach());
    form.flxScoresSort(0).TextMatrix(3, score::LastCriterion, "much");
    EXPECT_EQ(failure(), reportOf("BrenicaUtilities.cmdComplement_Click", 13, "Type mismatch"));
    EXPECT_NE(results().TextMatrix(5, result::Aggregate), "");
    EXPECT_NE(results().TextMatrix(6, result::Vulnerability), "");
    EXPECT_EQ(results().TextMatrix(6, result::Aggregate), "");
}

TEST_F(SelectionFailure, AThreatScoreFailsBeforeAnythingIsShown) {
    openForSelection(oneHabitatEach());
    form.flxSummary(summary::Vulnerability).TextMatrix(3, vulnerability::ThreatOffset + 1, "much");
    EXPECT_EQ(failure(), reportOf("BrenicaUtilities.cmdComplement_Click", 13, "Type mismatch"));
    EXPECT_EQ(results().Rows(), 1);
    EXPECT_TRUE(results().Redraw());
}

TEST_F(SelectionFailure, AStatusOrAThresholdFailsInTheFormsOwnCommand) {
    openForSelection(oneHabitatEach());
    form.flxJurisUnits.TextMatrix(1, list::LevelOfUse, "2147483647.5");
    EXPECT_EQ(failure(), reportOf("Brenica.cmdComplement_Click", 6, "Overflow"));
    form.flxHabitatTypes.TextMatrix(2, list::LevelOfUse, "");
    EXPECT_EQ(failure(), reportOf("Brenica.cmdComplement_Click", 13, "Type mismatch"));
    form.flxHabitatTypes.TextMatrix(2, list::LevelOfUse, "2");
    form.flxJurisUnits.TextMatrix(1, list::LevelOfUse, "2");
    form.flxSummary(summary::Vulnerability).TextMatrix(3, vulnerability::ConservationStatus, "much");
    EXPECT_EQ(failure(), reportOf("Brenica.cmdComplement_Click", 13, "Type mismatch"));
}
