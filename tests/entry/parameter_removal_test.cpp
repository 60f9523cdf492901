// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

class ParameterRemoval : public EntryTest {};

TEST_F(ParameterRemoval, OfARowOutsideTheListOnlyResetsTheBox) {
    open(ProjectText(2, 2, 2, 2));
    for (const ListControls& list : {habitats(), zones(), activities(), functions()}) {
        remove(list, list.Total);
        const auto before = allCellsBut({});
        ASSERT_EQ(list.RemoveIndex.Text(), std::to_string(list.Total + 1)) << "a row that is gone";
        for (int click = 0; click < 2; ++click) {
            list.Remove.UserClick();
            EXPECT_EQ(list.RemoveIndex.Text(), "0");
            EXPECT_EQ(allCellsBut({}), before);
        }
    }
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(ParameterRemoval, ShortensTheListsAndNumbersThemAnew) {
    open(ProjectText(2, 3, 3, 3));
    for (const ListControls& list : {habitats(), zones(), activities(), functions()}) {
        SCOPED_TRACE(list.Grid.Name());
        const int before = list.Total;
        const std::string third(list.Grid.TextMatrix(3, 1));
        remove(list, 2);
        EXPECT_EQ(list.Total, before - 1);
        EXPECT_EQ(list.Grid.Rows(), before);
        EXPECT_EQ(list.Grid.TextMatrix(2, 0), "2");
        EXPECT_EQ(list.Grid.TextMatrix(2, 1), third);
    }
    EXPECT_THAT(columnOf(form.flxHabitatHetero, 0), ElementsAre("Habitat Name", "Habitat 1", "Habitat 3"));
    EXPECT_THAT(columnOf(form.flxJurisUnitHetero, 0), ElementsAre("MZ Name", "Zone 1", "Zone 3"));
    EXPECT_THAT(columnOf(form.flxLandUsesVulnerability, 0),
                ElementsAre("Human Activity", "Activity 1", "Activity 3"));
    EXPECT_EQ(form.flxFunctionality.TextMatrix(2, 0), "Seed predation");
}

TEST_F(ParameterRemoval, OfTheFirstHabitatKeepsEachSpeciesNameAtItsBlock) {
    open(ProjectText(2, 3, 3, 3).set("HeteroHabitat Population", "0,1,2,3,2,1"));
    remove(habitats(), 1);
    remove(zones(), 1);
    remove(activities(), 1);
    EXPECT_THAT(columnOf(summary(2), 0), ElementsAre("Common Name", "Species 1", "", "Species 2", ""));
    EXPECT_THAT(columnOf(summary(2), 1),
                ElementsAre("Habitat Name", "Habitat 2", "Habitat 3", "Habitat 2", "Habitat 3"));
    EXPECT_THAT(columnOf(summary(2), 2), ElementsAre("Level of Use", "1", "2", "2", "1"));
    EXPECT_THAT(columnOf(summary(3), 0), ElementsAre("Common Name", "Species 1", "", "Species 2", ""));
    EXPECT_THAT(columnOf(summary(6), 0), ElementsAre("Common Name", "Species 1", "", "Species 2", ""));
}

TEST_F(ParameterRemoval, OfALaterUnitTakesItsRowOutOfEachBlock) {
    open(ProjectText(2, 3, 1, 3)
             .set("HeteroHabitat Population", "0,1,2,3,2,1")
             .set("VulnerabilitybySpecies Severity", "0,1,2,3,2,1"));
    remove(habitats(), 3);
    EXPECT_THAT(columnOf(summary(2), 2), ElementsAre("Level of Use", "0", "1", "3", "2"));
    remove(activities(), 2);
    EXPECT_THAT(columnOf(summary(6), 4), ElementsAre("Severity", "0", "2", "3", "1"));
    EXPECT_THAT(columnOf(summary(7), 0), ElementsAre("Human Activity", "Activity 1", "", "Activity 3", ""));
    EXPECT_THAT(columnOf(summary(7), 2), ElementsAre("Severity", "0", "3", "2", "1"));
}

TEST_F(ParameterRemoval, OfTheOnlyHabitatOrZoneLeavesOneBlankRowASpecies) {
    open(ProjectText(2, 1, 1, 1));
    remove(habitats(), 1);
    remove(zones(), 1);
    EXPECT_THAT(cellsOf(summary(2)),
                ElementsAre(ElementsAre("Common Name", "Habitat Name", "Level of Use"),
                            ElementsAre("Species 1", "", ""), ElementsAre("Species 2", "", "")));
    EXPECT_THAT(cellsOf(summary(3)),
                ElementsAre(ElementsAre("Common Name", "MZ Name", "Level of Use"),
                            ElementsAre("Species 1", "", ""), ElementsAre("Species 2", "", "")));
    EXPECT_EQ(form.flxHabitatHetero.Rows(), 1);
    EXPECT_EQ(form.flxJurisUnitHetero.Rows(), 1);
}

TEST_F(ParameterRemoval, OfTheOnlyHabitatOrZoneLeavesTheThreatTables) {
    open(ProjectText(2, 1, 1, 1));
    const auto threats = [this] {
        return std::vector{cellsOf(summary(summary::ThreatsBySpecies)),
                           cellsOf(summary(summary::SpeciesByThreat))};
    };
    const auto before = threats();
    remove(habitats(), 1);
    remove(zones(), 1);
    EXPECT_EQ(threats(), before);
}

TEST_F(ParameterRemoval, OfTheFirstOfTwoKeepsTheOnlySpeciesName) {
    open(ProjectText(1, 2, 2, 2));
    for (const ListControls& list : {habitats(), zones(), activities()}) remove(list, 1);
    for (const int member :
         {summary::HabitatsBySpecies, summary::JurisUnitsBySpecies, summary::ThreatsBySpecies})
        EXPECT_THAT(columnOf(summary(member), 0), ElementsAre("Common Name", "Species 1")) << member;
}

TEST_F(ParameterRemoval, OfTheOnlyUnitDropsTheTotalsOfTheWideTables) {
    open(ProjectText(2, 1, 1, 1));
    goTo(4);
    ASSERT_EQ(summary(0).Rows(), 6);
    goTo(2);
    remove(habitats(), 1);
    remove(zones(), 1);
    remove(activities(), 1);
    for (const int member : {0, 1, 5}) EXPECT_EQ(summary(member).Rows(), 3) << member;
    EXPECT_EQ(summary(0).Cols(), 1);
    EXPECT_EQ(summary(1).Cols(), 1);
    EXPECT_EQ(summary(5).Cols(), 3);
}

TEST_F(ParameterRemoval, OfTheOnlyActivityClearsTheThreatTables) {
    open(ProjectText(2, 1, 1, 1));
    remove(activities(), 1);
    for (int species = 1; species <= 2; ++species) {
        const std::string name = "Species " + std::to_string(species);
        EXPECT_THAT(rowOf(summary(6), species), ElementsAre(name, "", "", "", "", "", ""));
        EXPECT_THAT(rowOf(summary(7), species), ElementsAre("", name, "", "", ""));
    }
    EXPECT_EQ(summary(6).Rows(), 3);
    EXPECT_EQ(summary(7).Rows(), 3);
}

TEST_F(ParameterRemoval, ShiftsOnlyTheHeadingsOfTheWideTables) {
    open(
        ProjectText(1, 3, 3, 1).set("HeteroHabitat Population", "0,1,2").set("HeteroJU Individual", "1,2,3"));
    remove(habitats(), 1);
    remove(zones(), 1);
    EXPECT_THAT(rowOf(summary(0), 0), ElementsAre("Common Name", "1", "2"));
    EXPECT_THAT(rowOf(summary(0), 1), ElementsAre("Species 1", "0", "1"));
    EXPECT_THAT(rowOf(summary(1), 0), ElementsAre("Common Name", "1", "2"));
    EXPECT_THAT(rowOf(summary(1), 1), ElementsAre("Species 1", "1", "2"));
}

TEST_F(ParameterRemoval, KeepsTheSpacerOfTheVulnerabilityTable) {
    open(ProjectText(1, 1, 1, 3));
    goTo(2);  // an open leaves the heading blank until a page is changed
    remove(activities(), 2);
    EXPECT_THAT(rowOf(summary(5), 0), ElementsAre("Common Name", "CCS", "", "1", "2"));
}

TEST_F(ParameterRemoval, LeavesTheFollowingFunctionsValuesUnderTheWrongHeading) {
    open(ProjectText(1, 1, 1, 1)
             .set("Function1", "0")
             .set("Function2", "1")
             .set("Function3", "2")
             .set("Function4", "3")
             .set("Function5", "2")
             .set("Function6", "1"));
    remove(functions(), 2);
    EXPECT_THAT(rowOf(summary(8), 0), ElementsAre("Common Name", "Predation", "Seed predation", "Pollination",
                                                  "Mechanical disturbance", "Competitive interactions"));
    EXPECT_THAT(rowOf(summary(8), 1), ElementsAre("Species 1", "0", "1", "2", "3", "2"));
}

TEST_F(ParameterRemoval, WithoutSpeciesTakesTheEntrysOwnRows) {
    addHabitats({"Forest", "Meadow"});
    addZones({"Park", "Town"});
    addActivities({"Logging", "Hunting"});
    remove(habitats(), 1);
    remove(zones(), 2);
    remove(activities(), 1);
    EXPECT_THAT(columnOf(summary(2), 1), ElementsAre("Habitat Name", "Meadow"));
    EXPECT_THAT(columnOf(summary(3), 1), ElementsAre("MZ Name", "Park"));
    EXPECT_THAT(columnOf(summary(6), 1), ElementsAre("Human Activity", "Hunting"));
    EXPECT_THAT(columnOf(summary(7), 0), ElementsAre("Human Activity", "Hunting"));
    remove(habitats(), 1);
    EXPECT_EQ(summary(2).Rows(), 1);
    EXPECT_EQ(summary(0).Cols(), 1);
}

TEST_F(ParameterRemoval, MayTakeTheLastFunction) {
    for (int i = 0; i < 6; ++i) remove(functions(), 1);
    EXPECT_EQ(global.TotalFunctions, 0);
    EXPECT_EQ(form.flxFunctionality.Rows(), 1);
    EXPECT_EQ(summary(8).Cols(), 1);
}

struct Failing {
    const char* Name;
    std::function<void(frmBrenica&)> Break;
    std::function<void(frmBrenica&)> Act;
    const char* Source;
};

class ParameterFailure : public EntryTest, public testing::WithParamInterface<Failing> {};

TEST_P(ParameterFailure, NamesTheProcedureItHappenedIn) {
    open(ProjectText(2, 2, 2, 2));
    for (ui::TextBox* box :
         {&form.txtTotalHabitatTypes, &form.txtTotalJurisUnits, &form.txtTotalLandUses,
          &form.txtTotalFunctions, &form.txtRemoveHabitatIndex, &form.txtRemoveJurisUnitIndex,
          &form.txtRemoveLandUseIndex, &form.txtRemoveFunctionIndex}) {
        box->Text("1");
    }
    GetParam().Break(form);
    const auto failure = failureOf([&] { GetParam().Act(form); });
    EXPECT_EQ(failure.Description, reportOf(GetParam().Source, 9, "Subscript out of range"));
}

namespace {

constexpr const char* nameOf(const testing::TestParamInfo<Failing>& info) { return info.param.Name; }

using Form = frmBrenica;

}  // namespace

INSTANTIATE_TEST_SUITE_P(
    Lists, ParameterFailure,
    testing::Values(
        Failing{"UpdateHabitats", [](Form& f) { f.flxHabitatTypes.Cols(3); },
                [](Form& f) { f.cmdUpdateHabitatTypes.UserClick(); }, "Brenica.cmdUpdateHabitatTypes_Click"},
        Failing{"UpdateZones", [](Form& f) { f.flxJurisUnits.Cols(3); },
                [](Form& f) { f.cmdUpdateJurisUnits.UserClick(); }, "Brenica.cmdUpdateJurisUnits_Click"},
        Failing{"GrowHabitats", [](Form& f) { f.flxSummary(2).Rows(1); },
                [](Form& f) { f.cmdUpdateHabitatTypes.UserClick(); }, "Brenica.UpdateOtherHabitatFlexGrids"},
        Failing{"GrowZones", [](Form& f) { f.flxSummary(3).Rows(1); },
                [](Form& f) { f.cmdUpdateJurisUnits.UserClick(); }, "Brenica.UpdateOtherJurisUnitFlexGrids"},
        Failing{"GrowActivities", [](Form& f) { f.flxSummary(6).Rows(1); },
                [](Form& f) { f.cmdUpdateLandUses.UserClick(); }, "Brenica.UpdateOtherLandUseFlexGrids"},
        Failing{"RemoveHabitat", [](Form& f) { f.flxSummary(2).Rows(1); },
                [](Form& f) { f.cmdRemoveHabitatType.UserClick(); }, "Brenica.RemoveHabitatType"},
        Failing{"RemoveZone", [](Form& f) { f.flxSummary(3).Rows(1); },
                [](Form& f) { f.cmdRemoveJurisUnit.UserClick(); }, "Brenica.RemoveJurisUnit"},
        Failing{"RemoveActivity", [](Form& f) { f.flxSummary(7).Rows(1); },
                [](Form& f) { f.cmdRemoveLandUse.UserClick(); }, "Brenica.RemoveLandUse"},
        Failing{"RemoveFunction", [](Form& f) { f.flxFunctionality.Rows(1); },
                [](Form& f) { f.cmdRemoveFunction.UserClick(); }, "Brenica.RemoveFunction"},
        Failing{"RenameHabitat", [](Form& f) { f.flxHabitatHetero.Rows(1); },
                [](Form& f) { f.flxHabitatTypes.UserEditCell(2, 1, "x"); },
                "Brenica.flxHabitatTypes_CellChanged"},
        Failing{"RenameZone", [](Form& f) { f.flxJurisUnitHetero.Rows(1); },
                [](Form& f) { f.flxJurisUnits.UserEditCell(2, 1, "x"); },
                "Brenica.flxJurisUnits_CellChanged"},
        Failing{"RenameActivity", [](Form& f) { f.flxSummary(7).Rows(1); },
                [](Form& f) { f.flxLandUses.UserEditCell(2, 1, "x"); }, "Brenica.flxLandUses_CellChanged"},
        Failing{"RenameFunction", [](Form& f) { f.flxSummary(8).Cols(1); },
                [](Form& f) { f.flxFunctions.UserEditCell(2, 1, "x"); }, "Brenica.flxFunctions_CellChanged"}),
    nameOf);
