// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/selection_run.h"

#include "selection_test.h"

using testing::ElementsAre;

class TakenRun : public SelectionTest {
protected:
    static ProjectText typical() {
        ProjectText project(2, 2, 1, 1);
        project.set("HeteroHabitat Population", "3,0,0,2").set("HeteroJU Individual", "1,2");
        project.set("Habitat Area", "4,5").set("Habitat UseLevel", "3,2").set("Area Dispersal", "Y,N");
        project.set("Area Connectivity", "N,y").set("Landscape Occupied", "0.25,0.5");
        return project.set("Function2", "3,0").set("Socio-Econ4", "2,1").set("Data Quality5", "6,5");
    }
};

TEST_F(TakenRun, IsNoneBeforeASelection) {
    EXPECT_FALSE(form.TakeSelectionRun());
    openForSelection(typical());
    EXPECT_FALSE(form.TakeSelectionRun());
}

TEST_F(TakenRun, IsNoneOfAProjectThatWasLeft) {
    openForSelection(typical());
    select();
    ASSERT_TRUE(form.TakeSelectionRun());
    platform.Answers.assign(1, "no");
    form.mnuNewProject.UserClick();
    EXPECT_FALSE(form.TakeSelectionRun());
}

TEST_F(TakenRun, HoldsWhatTheSelectionWasMadeOf) {
    openForSelection(typical());
    type(form.txtErrorMargin, "0.5");
    select();
    const auto run = form.TakeSelectionRun();
    ASSERT_TRUE(run);
    EXPECT_THAT(run->Species, ElementsAre("Species 1", "Species 2"));
    EXPECT_THAT(run->Units[method::Unit::Habitat], ElementsAre("Habitat 1", "Habitat 2"));
    EXPECT_THAT(run->Units[method::Unit::Zone], ElementsAre("Zone 1"));
    EXPECT_THAT(run->Units[method::Unit::Threat], ElementsAre("Activity 1"));
    const method::Landscape& land = run->Landscape;
    EXPECT_THAT(land.HabitatLevels.row(1), ElementsAre(0, 2));
    EXPECT_THAT(land.ZoneLevels.row(1), ElementsAre(2));
    EXPECT_THAT(land.HabitatThresholds, ElementsAre(3, 2));
    EXPECT_THAT(land.HabitatAreas, ElementsAre(4, 5));
    EXPECT_THAT(land.Dispersal, ElementsAre(1, 0));
    EXPECT_THAT(land.Connectivity, ElementsAre(0, 1));
    EXPECT_THAT(land.Occupied, ElementsAre(0.25, 0.5));
    EXPECT_EQ(land.Functions.at(0, 1), 3);
    EXPECT_EQ(land.SocioEconomics.at(0, 3), 2);
    EXPECT_EQ(run->DataQuality.at(0, 4), 6);
    EXPECT_EQ(run->Levels.Margin, 0.5);
    EXPECT_EQ(run->ThreatScores.rows(), 2U);
    EXPECT_EQ(run->Aggregates.size(), 2U);
    EXPECT_THAT(run->Ranks, testing::UnorderedElementsAre(1, 2));
    EXPECT_EQ(run->Outcome.Suite.Picks.size(), 2U);
    EXPECT_TRUE(run->Outcome.Suite.Complete);
    EXPECT_FALSE(run->Outcome.Error);
}

TEST_F(TakenRun, TellsHowFarASelectionCameThatFailed) {
    openForSelection(typical());
    type(form.txtErrorMargin, "0");
    form.flxScoresSort(0).TextMatrix(2, score::LastCriterion, "much");
    failureOf([&] { select(); });
    const auto run = form.TakeSelectionRun();
    ASSERT_TRUE(run);
    EXPECT_EQ(run->Outcome.Error, "Type mismatch");
    EXPECT_EQ(run->Outcome.Suite.Picks.size(), 1U);
}
