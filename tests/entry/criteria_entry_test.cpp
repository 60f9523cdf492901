// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modGeneralUtilities.h"
#include "entry_fixture.h"

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class CriteriaEntry : public EntryTest {
protected:
    void clearFlags() {
        form.HabitatUseChanged = form.AreaDataChanged = form.VulnerabilityChanged = false;
        form.FunctionalityChanged = form.SocioEconChanged = form.ProjectChanged = false;
    }
};

TEST_F(CriteriaEntry, ShowsTheValuesOfTheChosenSpecies) {
    openOnCriteriaPage(ProjectText(2, 2, 2, 2)
                           .set("HeteroHabitat Population", "0,1,2,3")
                           .set("HeteroJU Individual", "3,2,1,0")
                           .set("Area Dispersal", "Y,N")
                           .set("Area Connectivity", "N,")
                           .set("Home ranges", "10,20")
                           .set("Landscape Occupied", "0.25,0.75")
                           .set("Conservation Status", "0.1,0.9")
                           .set("VulnerabilitybySpecies Severity", "0,1,2,3")
                           .set("VulnerabilitybySpecies Recovery", "1,2,3,0")
                           .set("VulnerabilitybySpecies Proportion", "4,3,2,1")
                           .set("Function3", "2,3")
                           .set("Socio-Econ5", "0,2")
                           .set("Data Quality1", "6,4"));
    EXPECT_EQ(form.CurrentSpeciesIndex, 1);
    form.cbxSpeciesName.UserChoose(1);
    EXPECT_EQ(form.CurrentSpeciesIndex, 2);
    EXPECT_THAT(columnOf(form.flxHabitatHetero, 1), ElementsAre("Level of Use", "2", "3"));
    EXPECT_THAT(columnOf(form.flxJurisUnitHetero, 1), ElementsAre("Level of Use", "1", "0"));
    EXPECT_EQ(form.cbxDispersalYN.Text(), "N");
    EXPECT_EQ(form.cbxConnectivity.Text(), "N/A");
    EXPECT_EQ(form.txtContinuousHR.Text(), "20");
    EXPECT_EQ(form.txtPropOccupied.Text(), "0.75");
    EXPECT_EQ(form.txtCCS.Text(), "0.9");
    EXPECT_THAT(rowOf(form.flxLandUsesVulnerability, 1), ElementsAre("Activity 1", "2", "3", "2"));
    EXPECT_THAT(rowOf(form.flxLandUsesVulnerability, 2), ElementsAre("Activity 2", "3", "0", "1"));
    EXPECT_EQ(form.flxFunctionality.TextMatrix(3, 1), "3");
    EXPECT_EQ(form.flxSocioEcon.TextMatrix(5, 1), "2");
    EXPECT_EQ(form.cbxDataQuality.ListIndex(), 3);
}

TEST_F(CriteriaEntry, AChangeOfSpeciesLeavesTheStoreAsItWas) {
    openOnCriteriaPage(ProjectText(2, 2, 2, 2).set("Home ranges", "10,20").set("Data Quality1", "6,"));
    std::vector<std::vector<std::vector<std::string>>> before;
    for (int member = 0; member < 11; ++member) before.push_back(cellsOf(summary(member)));
    form.cbxSpeciesName.UserChoose(1);
    form.cbxSpeciesName.UserChoose(0);
    for (int member = 0; member < 11; ++member)
        EXPECT_EQ(cellsOf(summary(member)), before[static_cast<std::size_t>(member)]) << member;
}

TEST_F(CriteriaEntry, BlanksThePageWhenNoSpeciesIsChosen) {
    openOnCriteriaPage(ProjectText(2, 2, 2, 2)
                           .set("Home-range definition", "default bins")
                           .set("Home ranges", "10 - 25 km2,"));
    form.cbxSpeciesName.ListIndex(-1);
    form.RefreshSpeciesCriteriaVals();
    EXPECT_EQ(form.CurrentSpeciesIndex, 0);
    EXPECT_THAT(columnOf(form.flxHabitatHetero, 1), ElementsAre("Level of Use", "", ""));
    EXPECT_THAT(columnOf(form.flxJurisUnitHetero, 1), ElementsAre("Level of Use", "", ""));
    EXPECT_THAT(rowOf(form.flxLandUsesVulnerability, 2), ElementsAre("Activity 2", "", "", ""));
    for (int row = 1; row <= 6; ++row) EXPECT_EQ(form.flxFunctionality.TextMatrix(row, 1), "");
    for (int row = 1; row <= 5; ++row) EXPECT_EQ(form.flxSocioEcon.TextMatrix(row, 1), "");
    EXPECT_EQ(form.cbxDispersalYN.ListIndex(), 0);
    EXPECT_EQ(form.cbxConnectivity.ListIndex(), 0);
    EXPECT_EQ(form.cbxDefaultBinsHR.ListIndex(), -1);
    EXPECT_EQ(form.cbxUserDefBinsHR.ListIndex(), -1);
    EXPECT_EQ(form.txtContinuousHR.Text(), "0");
    EXPECT_EQ(form.txtPropOccupied.Text(), "0");
    EXPECT_EQ(form.lblPropOccupHint.Caption(), "HINT:");
    EXPECT_EQ(form.txtCCS.Text(), "1");
    EXPECT_EQ(form.cbxDataQuality.ListIndex(), -1);
    EXPECT_EQ(summary(8).TextMatrix(1, 1), "1");
    EXPECT_EQ(summary(4).TextMatrix(1, 3), "10 - 25 km2");
}

TEST_F(CriteriaEntry, WithoutASpeciesAContinuousHomeRangeIsBlankedToZero) {
    openOnCriteriaPage(ProjectText(2, 1, 1, 1));
    EXPECT_EQ(form.txtContinuousHR.Text(), "10");
    form.cbxSpeciesName.ListIndex(-1);
    form.RefreshSpeciesCriteriaVals();
    EXPECT_EQ(form.txtContinuousHR.Text(), "0");
    EXPECT_EQ(summary(summary::Area).TextMatrix(1, area::HomeRange), "10");
}

TEST_F(CriteriaEntry, HeadingsAreNoData) {
    openOnCriteriaPage(ProjectText(2, 2, 2, 2));
    form.cbxSpeciesName.UserChoose(1);
    const auto before = allCellsBut({});
    for (ui::Grid* grid : {&form.flxLandUsesVulnerability, &form.flxFunctionality, &form.flxSocioEcon}) {
        grid->TextMatrix(0, 1, grid->TextMatrix(0, 1));
        EXPECT_EQ(allCellsBut({}), before) << grid->Name();
    }
}

TEST_F(CriteriaEntry, WithoutASpeciesNothingOnThePageReachesTheTables) {
    addHabitats({"Forest"});
    addZones({"Park"});
    addActivities({"Logging"});
    const auto tables = [this] {
        std::vector<std::vector<std::vector<std::string>>> found;
        for (const ui::Grid& grid : form.flxSummary) found.push_back(cellsOf(grid));
        return found;
    };
    const auto before = tables();
    for (ui::Grid* grid : {&form.flxHabitatHetero, &form.flxJurisUnitHetero, &form.flxLandUsesVulnerability,
                           &form.flxFunctionality, &form.flxSocioEcon})
        EXPECT_TRUE(grid->UserEditCell(1, 1, "2"));
    for (ui::ComboBox* box :
         {&form.cbxDispersalYN, &form.cbxConnectivity, &form.cbxDefaultBinsHR, &form.cbxDataQuality})
        box->UserChoose(1);
    for (ui::TextBox* box : {&form.txtContinuousHR, &form.txtPropOccupied, &form.txtCCS}) type(*box, "0.5");
    EXPECT_EQ(tables(), before);
}

TEST_F(CriteriaEntry, ALevelOfUseReachesBothItsTables) {
    openOnCriteriaPage(ProjectText(2, 2, 2, 1));
    form.cbxSpeciesName.UserChoose(1);
    clearFlags();
    form.flxHabitatHetero.UserEditCell(2, 1, "3");
    EXPECT_EQ(summary(2).TextMatrix(4, 2), "3");
    EXPECT_EQ(summary(0).TextMatrix(2, 2), "3");
    EXPECT_TRUE(form.HabitatUseChanged);
    EXPECT_TRUE(form.ProjectChanged);
    clearFlags();
    form.flxJurisUnitHetero.UserEditCell(1, 1, "0");
    EXPECT_EQ(summary(3).TextMatrix(3, 2), "0");
    EXPECT_EQ(summary(1).TextMatrix(2, 1), "0");
    EXPECT_TRUE(form.HabitatUseChanged);
    EXPECT_TRUE(form.ProjectChanged);
}

TEST_F(CriteriaEntry, ALevelWrittenByCodeReachesNoTable) {
    openOnCriteriaPage(ProjectText(1, 1, 1, 1));
    clearFlags();
    form.flxHabitatHetero.TextMatrix(1, 1, "3");
    EXPECT_EQ(summary(2).TextMatrix(1, 2), "1");
    EXPECT_FALSE(form.HabitatUseChanged);
}

TEST_F(CriteriaEntry, WithoutASpeciesALevelOfUseSetsItsFlagAndWritesNothing) {
    addHabitats({"Forest"});
    addZones({"Park"});
    for (ui::Grid* grid : {&form.flxHabitatHetero, &form.flxJurisUnitHetero}) {
        clearFlags();
        const auto before = allCellsBut({grid->Name()});
        EXPECT_TRUE(grid->UserEditCell(1, 1, "3"));
        EXPECT_TRUE(form.HabitatUseChanged);
        EXPECT_FALSE(form.ProjectChanged);
        EXPECT_EQ(allCellsBut({grid->Name()}), before);
    }
}

TEST_F(CriteriaEntry, AVulnerabilityValueReachesBothItsTables) {
    openOnCriteriaPage(ProjectText(3, 1, 1, 2));
    form.cbxSpeciesName.UserChoose(1);
    clearFlags();
    form.flxLandUsesVulnerability.UserEditCell(2, 1, "3");
    form.flxLandUsesVulnerability.UserEditCell(2, 2, "2");
    form.flxLandUsesVulnerability.UserEditCell(2, 3, "4");
    // Species 2 and activity 2: row 4 of 3 × 2 by species, row 5 of 2 × 3 by activity.
    EXPECT_THAT(cells(summary(6), 4, 4, 6), ElementsAre("3", "2", "4"));
    EXPECT_THAT(cells(summary(7), 5, 2, 4), ElementsAre("3", "2", "4"));
    EXPECT_THAT(cells(summary(6), 3, 4, 6), ElementsAre("1", "1", "1"));
    EXPECT_THAT(cells(summary(7), 4, 2, 4), ElementsAre("1", "1", "1"));
    EXPECT_TRUE(form.VulnerabilityChanged);
}

TEST_F(CriteriaEntry, AVulnerabilityEditWithoutASpeciesLeavesProjectChangedAsItWas) {
    addActivities({"Logging"});
    for (const bool before : {false, true}) {
        clearFlags();
        form.ProjectChanged = before;
        form.flxLandUsesVulnerability.UserEditCell(1, 1, "2");
        EXPECT_TRUE(form.VulnerabilityChanged);
        EXPECT_EQ(form.ProjectChanged, before);
    }
}

TEST_F(CriteriaEntry, SeverityZeroFillsTheBlanksOfItsRow) {
    struct Row {
        std::vector<std::string> Before;
        std::vector<std::string> After;
    };
    const std::vector<Row> rows = {{{"0", "", ""}, {"0", "0", "0"}},  {{"0", "2", ""}, {"0", "2", "0"}},
                                   {{"0", "", "3"}, {"0", "0", "3"}}, {{"0.5", "", ""}, {"0.5", "0", "0"}},
                                   {{"1", "", ""}, {"1", "", ""}},    {{"", "", ""}, {"", "", ""}}};
    openOnCriteriaPage(ProjectText(1, 1, 1, 2));
    ui::Grid& grid = form.flxLandUsesVulnerability;
    for (const Row& row : rows) {
        grid.UserMoveTo(2, 1);
        for (int col = 1; col <= 3; ++col)
            grid.TextMatrix(1, col, row.Before[static_cast<std::size_t>(col) - 1]);
        grid.UserMoveTo(1, 1);
        grid.UserMoveTo(1, 2);
        EXPECT_EQ(cells(grid, 1, 1, 3), row.After);
        EXPECT_EQ(cells(summary(6), 1, 4, 6), row.After);
    }
}

TEST_F(CriteriaEntry, SeverityZeroFillsOnlyWhenItsOwnCellIsLeft) {
    openOnCriteriaPage(ProjectText(1, 1, 1, 2));
    ui::Grid& grid = form.flxLandUsesVulnerability;
    grid.UserMoveTo(1, 2);
    grid.TextMatrix(1, 1, "0");
    grid.TextMatrix(1, 2, "0");
    grid.TextMatrix(1, 3, "");
    grid.UserMoveTo(2, 2);
    EXPECT_EQ(grid.TextMatrix(1, 3), "");
}

TEST_F(CriteriaEntry, AFunctionsSignificanceIsStoredUnderItsColumn) {
    openOnCriteriaPage(ProjectText(2, 1, 1, 1));
    form.cbxSpeciesName.UserChoose(1);
    clearFlags();
    form.flxFunctionality.UserEditCell(4, 1, "3");
    EXPECT_EQ(summary(8).TextMatrix(2, 4), "3");
    EXPECT_EQ(summary(8).TextMatrix(1, 4), "1");
    EXPECT_TRUE(form.FunctionalityChanged);
    EXPECT_TRUE(form.ProjectChanged);
}

TEST_F(CriteriaEntry, ASocioEconomicSignificanceIsStoredUnderItsColumn) {
    openOnCriteriaPage(ProjectText(2, 1, 1, 1));
    clearFlags();
    form.flxSocioEcon.UserEditCell(5, 1, "2");
    EXPECT_EQ(summary(9).TextMatrix(1, 5), "2");
    EXPECT_TRUE(form.SocioEconChanged);
    EXPECT_TRUE(form.ProjectChanged);
}

TEST_F(CriteriaEntry, WithoutASpeciesASignificanceOnlySetsItsFlag) {
    clearFlags();
    form.flxFunctionality.UserEditCell(1, 1, "3");
    form.flxSocioEcon.UserEditCell(1, 1, "2");
    EXPECT_TRUE(form.FunctionalityChanged);
    EXPECT_TRUE(form.SocioEconChanged);
    EXPECT_FALSE(form.ProjectChanged);
    EXPECT_EQ(summary(8).Rows(), 1);
    EXPECT_EQ(summary(9).Rows(), 1);
}

TEST_F(CriteriaEntry, YesAndNoAreStoredAsSuchAndNotAvailableAsBlank) {
    openOnCriteriaPage(ProjectText(1, 1, 1, 1));
    struct Row {
        ui::ComboBox& Box;
        int Column;
    };
    for (const Row& row : {Row{form.cbxDispersalYN, 1}, Row{form.cbxConnectivity, 2}}) {
        const std::vector<std::string> stored = {"", "Y", "N"};
        for (const int index : {2, 1, 0}) {
            form.AreaDataChanged = false;
            row.Box.UserChoose(index);
            EXPECT_EQ(summary(4).TextMatrix(1, row.Column), stored[static_cast<std::size_t>(index)]);
            EXPECT_TRUE(form.AreaDataChanged);
        }
    }
}

TEST_F(CriteriaEntry, AStoredSmallLetterShowsAsItsItem) {
    openOnCriteriaPage(ProjectText(2, 1, 1, 1).set("Area Dispersal", "N,y").set("Area Connectivity", "Y,n"));
    form.cbxSpeciesName.UserChoose(1);
    EXPECT_EQ(form.cbxDispersalYN.Text(), "Y");
    EXPECT_EQ(form.cbxConnectivity.Text(), "N");
}

TEST_F(CriteriaEntry, ABlankProportionIsStoredAsZeroWhenItsSpeciesIsViewed) {
    openOnCriteriaPage(ProjectText(2, 1, 1, 1).set("Landscape Occupied", "0.5,"));
    EXPECT_EQ(summary(4).TextMatrix(2, 4), "");
    form.cbxSpeciesName.UserChoose(1);
    EXPECT_EQ(form.txtPropOccupied.Text(), "0");
    EXPECT_EQ(summary(4).TextMatrix(2, 4), "0");
}

TEST_F(CriteriaEntry, AStoredHomeRangeOfZeroIsBlankedWhenItsSpeciesIsViewed) {
    openOnCriteriaPage(ProjectText(2, 1, 1, 1).set("Home ranges", "10,0"));
    form.cbxSpeciesName.UserChoose(1);
    EXPECT_EQ(form.txtContinuousHR.Text(), "0");
    EXPECT_EQ(summary(4).TextMatrix(2, 3), "");
}

TEST_F(CriteriaEntry, TheProportionIsStoredAsTyped) {
    openOnCriteriaPage(ProjectText(1, 1, 1, 1));
    clearFlags();
    type(form.txtPropOccupied, "0.250");
    EXPECT_EQ(summary(4).TextMatrix(1, 4), "0.250");
    EXPECT_TRUE(form.AreaDataChanged);
}

TEST_F(CriteriaEntry, ABlankConservationStatusShowsOneWithoutReachingTheStore) {
    openOnCriteriaPage(ProjectText(2, 1, 1, 1).set("Conservation Status", "0.5,"));
    form.cbxSpeciesName.UserChoose(1);
    EXPECT_EQ(form.txtCCS.Text(), "1");
    EXPECT_EQ(summary(5).TextMatrix(2, 1), "");
    form.tabCriteria.UserSelectTab(3);
    EXPECT_EQ(summary(5).TextMatrix(2, 1), "");
    form.tabCriteria.UserSelectTab(4);
    EXPECT_EQ(summary(5).TextMatrix(2, 1), "1");
    form.tabCriteria.UserSelectTab(3);
    type(form.txtCCS, "0.25");
    EXPECT_EQ(summary(5).TextMatrix(2, 1), "0.25");
}

TEST_F(CriteriaEntry, TheConservationStatusIsStoredAsTyped) {
    openOnCriteriaPage(ProjectText(2, 1, 1, 1));
    form.cbxSpeciesName.UserChoose(1);
    clearFlags();
    type(form.txtCCS, "0.750");
    EXPECT_EQ(summary(5).TextMatrix(2, 1), "0.750");
    EXPECT_EQ(summary(5).TextMatrix(1, 1), "0.5");
    EXPECT_TRUE(form.VulnerabilityChanged);
}

TEST_F(CriteriaEntry, TheDataQualityIsStoredForTheTabOnView) {
    openOnCriteriaPage(ProjectText(2, 1, 1, 1));
    form.cbxSpeciesName.UserChoose(1);
    for (int tab = 1; tab <= 5; ++tab) {
        form.tabCriteria.UserSelectTab(tab);
        form.cbxDataQuality.UserChoose(tab);
        EXPECT_EQ(summary(10).TextMatrix(2, tab), std::to_string(tab + 1));
    }
    form.cbxDataQuality.UserChoose(0);
    EXPECT_EQ(summary(10).TextMatrix(2, 5), "1");
    form.cbxDataQuality.UserChoose(5);
    EXPECT_THAT(rowOf(summary(10), 1), ElementsAre("Species 1", "1", "1", "1", "1", "1"));
    EXPECT_THAT(rowOf(summary(10), 2), ElementsAre("Species 2", "2", "3", "4", "5", "6"));
}

TEST_F(CriteriaEntry, TheDataQualityShowsTheLevelOfTheTabOnViewAndNoneForABlank) {
    openOnCriteriaPage(ProjectText(2, 1, 1, 1).set("Data Quality1", "2,").set("Data Quality2", "6,3"));
    EXPECT_EQ(form.cbxDataQuality.ListIndex(), 1);
    form.cbxSpeciesName.UserChoose(1);
    EXPECT_EQ(form.cbxDataQuality.ListIndex(), -1);
    form.tabCriteria.UserSelectTab(2);
    EXPECT_EQ(form.cbxDataQuality.ListIndex(), 2);
    form.cbxSpeciesName.UserChoose(0);
    EXPECT_EQ(form.cbxDataQuality.ListIndex(), 5);
    EXPECT_EQ(form.cbxDataQuality.Text(), "6 - No data just informed guesses");
}

TEST_F(CriteriaEntry, WithoutSpeciesADataQualityIsNotStored) {
    form.cbxDataQuality.UserChoose(2);
    EXPECT_EQ(summary(10).Rows(), 1);
}

TEST_F(CriteriaEntry, AChoiceOfSpeciesLeavesProjectLoadingAlone) {
    openOnCriteriaPage(ProjectText(2, 1, 1, 1));
    form.ProjectLoading = true;
    form.HabitatUseChanged = true;
    form.cbxSpeciesName.UserChoose(1);
    EXPECT_TRUE(form.ProjectLoading);
    // Nothing that fills the page sets this one again.
    EXPECT_FALSE(form.HabitatUseChanged);
}

TEST_F(CriteriaEntry, TheComboIndexOfAnEmptyBoxIsNone) {
    EXPECT_EQ(modGeneralUtilities::GetComboIndex(form.cbxSpeciesName), -1);
    form.cbxSpeciesName.AddItem("Lynx");
    EXPECT_EQ(modGeneralUtilities::GetComboIndex(form.cbxSpeciesName), -1);
    form.cbxConnectivity.ListIndex(2);
    EXPECT_EQ(modGeneralUtilities::GetComboIndex(form.cbxConnectivity), 2);
}

TEST_F(CriteriaEntry, TheOfferedItemsAreTheSystems) {
    for (const ui::ComboBox* box : {&form.cbxDispersalYN, &form.cbxConnectivity}) {
        ASSERT_EQ(box->ListCount(), 3);
        EXPECT_EQ(box->List(0), "N/A");
        EXPECT_EQ(box->List(1), "Y");
        EXPECT_EQ(box->List(2), "N");
    }
    EXPECT_EQ(form.cbxDataQuality.ListCount(), 6);
    EXPECT_EQ(form.lblCCS.Caption(), "Current Conservation Status:");
}

struct CriteriaFailure {
    const char* Name;
    int Member;  ///< the summary grid that has lost its rows
    std::function<void(frmBrenica&)> Act;
    const char* Source;
};

class CriteriaFailures : public EntryTest, public testing::WithParamInterface<CriteriaFailure> {};

TEST_P(CriteriaFailures, NameTheProcedureTheyHappenedIn) {
    openOnCriteriaPage(ProjectText(2, 1, 1, 1));
    summary(GetParam().Member).Rows(1);
    EXPECT_EQ(failureOf([&] { GetParam().Act(form); }).Description,
              reportOf(GetParam().Source, 9, "Subscript out of range"));
}

namespace {

using Form = frmBrenica;

const char* criteriaFailureName(const testing::TestParamInfo<CriteriaFailure>& info) {
    return info.param.Name;
}

void chooseSecondSpecies(Form& form) { form.cbxSpeciesName.UserChoose(1); }

}  // namespace

INSTANTIATE_TEST_SUITE_P(
    Criteria, CriteriaFailures,
    testing::Values(
        CriteriaFailure{"Habitat", 2, [](Form& f) { f.flxHabitatHetero.UserEditCell(1, 1, "2"); },
                        "Brenica.flxHabitatHetero_AfterEdit"},
        CriteriaFailure{"Zone", 3, [](Form& f) { f.flxJurisUnitHetero.UserEditCell(1, 1, "2"); },
                        "Brenica.flxJurisUnitHetero_AfterEdit"},
        CriteriaFailure{"Severity", 7, [](Form& f) { f.flxLandUsesVulnerability.UserEditCell(1, 1, "2"); },
                        "Brenica.flxLandUsesVulnerability_CellChanged"},
        CriteriaFailure{"Function", 8, [](Form& f) { f.flxFunctionality.UserEditCell(1, 1, "2"); },
                        "Brenica.flxFunctionality_CellChanged"},
        CriteriaFailure{"SocioEconomic", 9, [](Form& f) { f.flxSocioEcon.UserEditCell(1, 1, "2"); },
                        "Brenica.flxSocioEcon_CellChanged"},
        CriteriaFailure{"Dispersal", 4, [](Form& f) { f.cbxDispersalYN.UserChoose(2); },
                        "Brenica.cbxDispersalYN_Click"},
        CriteriaFailure{"Connectivity", 4, [](Form& f) { f.cbxConnectivity.UserChoose(2); },
                        "Brenica.cbxConnectivity_Click"},
        CriteriaFailure{"Proportion", 4, [](Form& f) { f.txtPropOccupied.Text("1"); },
                        "Brenica.txtPropOccupied_Change"},
        CriteriaFailure{"Status", 5, [](Form& f) { f.txtCCS.Text("0"); }, "Brenica.txtCCS_Change"},
        CriteriaFailure{"DataQuality", 10, [](Form& f) { f.cbxDataQuality.UserChoose(2); },
                        "Brenica.cbxDataQuality_Change"},
        CriteriaFailure{"LoadHabitats", 2, chooseSecondSpecies, "FlexGridUtilities.GetHeteroVals"},
        CriteriaFailure{"LoadArea", 4, chooseSecondSpecies, "FlexGridUtilities.GetAreaVals"},
        CriteriaFailure{"LoadThreats", 6, chooseSecondSpecies, "FlexGridUtilities.GetVulnVals"},
        CriteriaFailure{"LoadFunctions", 8, chooseSecondSpecies, "FlexGridUtilities.GetFuncSEVals"},
        CriteriaFailure{"LoadStatus", 5, chooseSecondSpecies, "Brenica.RefreshSpeciesCriteriaVals"}),
    criteriaFailureName);

class SeverityFailure : public EntryTest {};

TEST_F(SeverityFailure, OfATextThatIsNoNumberNamesItsHandler) {
    openOnCriteriaPage(ProjectText(1, 1, 1, 2));
    form.flxLandUsesVulnerability.UserMoveTo(1, 1);
    form.flxLandUsesVulnerability.TextMatrix(1, 1, "much");
    EXPECT_EQ(failureOf([&] { form.flxLandUsesVulnerability.UserMoveTo(2, 1); }).Description,
              reportOf("Brenica.flxLandUsesVulnerability_BeforeRowColChange", 13, "Type mismatch"));
}
