// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modGeneralUtilities.h"
#include "entry_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

class HomeRange : public EntryTest {
protected:
    void choose(int type) { form.optHomeRangeType(type).UserClick(); }
    int chosen() {
        for (int i = 0; i < 3; ++i) {
            if (form.optHomeRangeType(i).Value()) return i;
        }
        return -1;
    }
    void addBreakpoints(const std::vector<std::string>& texts) {
        choose(2);
        const int first = form.flxBins.Rows();
        type(form.txtTotalBins, std::to_string(texts.size()));
        form.cmdUpdateBins.UserClick();
        for (std::size_t i = 0; i < texts.size(); ++i)
            EXPECT_TRUE(form.flxBins.UserEditCell(first + static_cast<int>(i), 1, texts[i]));
    }
    std::vector<std::string> labels() {
        std::vector<std::string> found;
        for (int i = 0; i < form.cbxUserDefBinsHR.ListCount(); ++i)
            found.push_back(form.cbxUserDefBinsHR.List(i));
        return found;
    }
    /// Passes the parameter page, which makes the labels.
    void makeLabels() {
        goTo(2);
        goTo(3);
        goTo(2);
    }
    std::string storedHomeRange(int species) { return std::string(summary(4).TextMatrix(species, 3)); }
    const std::string Question =
        "You will lose all previously entered home range data by changing the home range type. Do you wish to proceed?";
};

TEST_F(HomeRange, HasItsCaptionsAndToolTips) {
    EXPECT_EQ(form.optHomeRangeType(0).Caption(), "Continuous data");
    EXPECT_EQ(form.optHomeRangeType(1).Caption(),
              "Default bins (0-1, 1-10, 10-25, 25-50, 50-100, 100+ square kilometers)");
    EXPECT_EQ(form.optHomeRangeType(2).Caption(), "User-defined bins (in square kilometers)");
    EXPECT_EQ(form.optHomeRangeType(0).ToolTipText(),
              "Home ranges defined as continuous values for each candidate species");
    EXPECT_EQ(form.optHomeRangeType(1).ToolTipText(),
              "Home ranges selected from a set of predefined intervals for each candidate species");
    EXPECT_EQ(form.optHomeRangeType(2).ToolTipText(),
              "Home ranges selected from a set of user-defined intervals for each candidate species");
    EXPECT_EQ(form.lblContinuousHR.Caption(), "Continuous Home range value (in square kilometers):");
    EXPECT_EQ(form.lblDefaultBinsHR.Caption(), "Select the home range default bin:");
    EXPECT_EQ(form.lblUserDefBinsHR.Caption(), "Select the home range user-defined bin:");
    EXPECT_EQ(form.lblNewBins.Caption(), "new breakpoints");
    EXPECT_EQ(form.cmdUpdateBins.Caption(), "Update breakpoints");
    EXPECT_EQ(form.cmdRemoveBin.Caption(), "Remove breakpoint no:");
}

TEST_F(HomeRange, StartsContinuousWithTheBreakpointsControlsDisabled) {
    EXPECT_EQ(chosen(), 0);
    EXPECT_EQ(form.HomeRangeType, 0);
    for (const ui::Control* control : std::initializer_list<ui::Control*>{
             &form.lblAddBins, &form.lblNewBins, &form.txtTotalBins, &form.cmdUpdateBins, &form.cmdRemoveBin,
             &form.txtRemoveBinIndex}) {
        EXPECT_FALSE(control->Enabled()) << control->Name();
    }
    EXPECT_TRUE(form.txtContinuousHR.Visible());
    EXPECT_FALSE(form.cbxDefaultBinsHR.Visible());
    EXPECT_FALSE(form.cbxUserDefBinsHR.Visible());
}

TEST_F(HomeRange, EachTypeShowsItsOwnControlsAndOnlyTheLastEnablesTheBreakpoints) {
    for (const int type : {2, 1, 0, 2}) {
        SCOPED_TRACE(type);
        choose(type);
        EXPECT_EQ(form.HomeRangeType, type);
        EXPECT_EQ(form.lblContinuousHR.Visible(), type == 0);
        EXPECT_EQ(form.txtContinuousHR.Visible(), type == 0);
        EXPECT_EQ(form.lblDefaultBinsHR.Visible(), type == 1);
        EXPECT_EQ(form.cbxDefaultBinsHR.Visible(), type == 1);
        EXPECT_EQ(form.lblUserDefBinsHR.Visible(), type == 2);
        EXPECT_EQ(form.cbxUserDefBinsHR.Visible(), type == 2);
        for (const ui::Control* control : std::initializer_list<ui::Control*>{
                 &form.lblAddBins, &form.lblNewBins, &form.txtTotalBins, &form.cmdUpdateBins,
                 &form.cmdRemoveBin, &form.txtRemoveBinIndex, &form.flxBins}) {
            EXPECT_EQ(control->Enabled(), type == 2) << control->Name();
        }
    }
}

TEST_F(HomeRange, ChangingTheTypeWithoutDataAsksNothingAndSetsProjectChanged) {
    addSpecies({"Lynx"});
    form.ProjectChanged = false;
    choose(1);
    EXPECT_THAT(platform.Transcript, IsEmpty());
    EXPECT_TRUE(form.ProjectChanged);
}

TEST_F(HomeRange, AClickOnTheChosenTypeClearsProjectChanged) {
    form.ProjectChanged = true;
    choose(0);
    EXPECT_FALSE(form.ProjectChanged);
}

TEST_F(HomeRange, YesRemovesTheDataAndChangesTheType) {
    open(ProjectText(2, 1, 1, 1));
    platform.Answers = {"yes"};
    choose(1);
    EXPECT_EQ(lastBox().Text, Question);
    EXPECT_EQ(lastBox().Title, "Delete home range data");
    EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Question);
    EXPECT_EQ(storedHomeRange(1), "");
    EXPECT_EQ(storedHomeRange(2), "");
    EXPECT_EQ(summary(4).TextMatrix(1, 4), "0.5");
    EXPECT_EQ(form.HomeRangeType, 1);
    EXPECT_TRUE(form.ProjectChanged);
}

TEST_F(HomeRange, NoRestoresTheButtonLeavesTheDataAndClearsProjectChanged) {
    for (const bool changedBefore : {false, true}) {
        open(ProjectText(2, 1, 1, 1));
        form.ProjectChanged = changedBefore;
        platform.Transcript.clear();
        platform.Answers = {"no"};
        choose(2);
        EXPECT_EQ(platform.Transcript.size(), 1U);
        EXPECT_EQ(chosen(), 0);
        EXPECT_EQ(form.HomeRangeType, 0);
        EXPECT_EQ(storedHomeRange(1), "10");
        EXPECT_FALSE(form.ProjectChanged);
        EXPECT_FALSE(form.txtTotalBins.Enabled());
    }
}

TEST_F(HomeRange, DataThatIsOnlyBlanksIsNoData) {
    open(ProjectText(2, 1, 1, 1));
    summary(4).TextMatrix(1, 3, "  ");
    summary(4).TextMatrix(2, 3, "");
    bool exists = true;
    form.HRDataExists(exists);
    EXPECT_FALSE(exists);
    summary(4).TextMatrix(2, 3, "5");
    form.HRDataExists(exists);
    EXPECT_TRUE(exists);
}

TEST_F(HomeRange, BreakpointsSurviveAChangeOfType) {
    addBreakpoints({"5", "20"});
    choose(0);
    EXPECT_EQ(global.TotalBins, 2);
    EXPECT_THAT(columnOf(form.flxBins, 1), ElementsAre("Breakpoint", "5", "20"));
}

TEST_F(HomeRange, BreakpointsAreNumberedAndChangeTheProject) {
    choose(2);
    form.ProjectChanged = false;
    addBreakpoints({"5", "20"});
    EXPECT_THAT(columnOf(form.flxBins, 0), ElementsAre("No.", "1", "2"));
    EXPECT_TRUE(form.ProjectChanged);
    form.ProjectChanged = false;
    form.flxBins.TextMatrix(0, 0, "No.");
    EXPECT_TRUE(form.ProjectChanged);
}

TEST_F(HomeRange, AddingBreakpointsTouchesNoOtherGrid) {
    open(ProjectText(1, 1, 1, 1).set("Home-range definition", "user-defined bins,5"));
    const auto before = allCellsBut({"flxBins"});
    type(form.txtTotalBins, "2");
    form.cmdUpdateBins.UserClick();
    EXPECT_EQ(global.TotalBins, 3);
    EXPECT_EQ(allCellsBut({"flxBins"}), before);
}

TEST_F(HomeRange, LabelsAreMadeWhenTheParameterPageIsLeft) {
    addSpecies({"Lynx"});
    addBreakpoints({"0", "5", "20"});
    EXPECT_THAT(labels(), IsEmpty());
    makeLabels();
    EXPECT_THAT(labels(), ElementsAre("0 - 5 km2", "5 - 20 km2", "20+ km2"));
    makeLabels();
    EXPECT_EQ(form.cbxUserDefBinsHR.ListCount(), 3);
}

TEST_F(HomeRange, LabelsKeepTheTextAndOrderOfTheBreakpoints) {
    struct Row {
        std::vector<std::string> Breakpoints;
        std::vector<std::string> Labels;
    };
    const std::vector<Row> rows = {{{"10"}, {"10+ km2"}},
                                   {{"20", "5"}, {"20 - 5 km2", "5+ km2"}},
                                   {{"0.50", "", "x"}, {"0.50 -  km2", " - x km2", "x+ km2"}}};
    for (const Row& row : rows) {
        std::vector<std::string> made = {"old"};
        modGeneralUtilities::ConstructIntervals(row.Breakpoints, made);
        EXPECT_EQ(made, row.Labels);
    }
}

TEST_F(HomeRange, TheOldLabelsStayWithoutBreakpoints) {
    addBreakpoints({"10"});
    makeLabels();
    form.flxBins.Rows(1);
    global.TotalBins = 0;
    makeLabels();
    EXPECT_THAT(labels(), ElementsAre("10+ km2"));
}

TEST_F(HomeRange, UpdateComboBoxAppends) {
    modGeneralUtilities::UpdateComboBox(form.cbxUserDefBinsHR, {"a", "b"});
    modGeneralUtilities::UpdateComboBox(form.cbxUserDefBinsHR, {"c"});
    EXPECT_THAT(labels(), ElementsAre("a", "b", "c"));
}

TEST_F(HomeRange, RemovingABreakpointTakesTheLabelBehindIts) {
    addBreakpoints({"0", "5", "20"});
    makeLabels();
    type(form.txtRemoveBinIndex, "2");
    form.cmdRemoveBin.UserClick();
    EXPECT_EQ(global.TotalBins, 2);
    EXPECT_THAT(columnOf(form.flxBins, 1), ElementsAre("Breakpoint", "0", "20"));
    EXPECT_THAT(columnOf(form.flxBins, 0), ElementsAre("No.", "1", "2"));
    EXPECT_THAT(labels(), ElementsAre("0 - 5 km2", "5 - 20 km2"));
}

TEST_F(HomeRange, RemovingBreakpointZeroTakesTheFirstLabelOnly) {
    addBreakpoints({"0", "5", "20"});
    makeLabels();
    form.cmdRemoveBin.UserClick();
    EXPECT_EQ(global.TotalBins, 3);
    EXPECT_THAT(labels(), ElementsAre("5 - 20 km2", "20+ km2"));
}

TEST_F(HomeRange, RemovingTheLastBreakpointFailsWhileTheLabelsAreThere) {
    addBreakpoints({"0", "5", "20"});
    makeLabels();
    type(form.txtRemoveBinIndex, "3");
    const auto failure = failureOf([&] { form.cmdRemoveBin.UserClick(); });
    EXPECT_EQ(failure.Description, reportOf("Brenica.RemoveBin", 5, "Invalid procedure call or argument"));
}

TEST_F(HomeRange, RemovingABreakpointAddedSinceTheLabelsWereMadeTakesNone) {
    addBreakpoints({"0", "5"});
    makeLabels();
    addBreakpoints({"20", "40"});
    type(form.txtRemoveBinIndex, "4");
    form.cmdRemoveBin.UserClick();
    EXPECT_THAT(columnOf(form.flxBins, 1), ElementsAre("Breakpoint", "0", "5", "20"));
    EXPECT_THAT(labels(), ElementsAre("0 - 5 km2", "5+ km2"));
    type(form.txtRemoveBinIndex, "3");
    form.cmdRemoveBin.UserClick();
    EXPECT_EQ(global.TotalBins, 2);
    EXPECT_THAT(labels(), ElementsAre("0 - 5 km2", "5+ km2"));
}

TEST_F(HomeRange, ABlankBreakpointAddedSinceTheLabelsWereMadeIsRemovedAtTheGate) {
    addBreakpoints({"0", "5"});
    makeLabels();
    form.optLandChar(3).UserClick();
    addBreakpoints({"", ""});
    platform.Answers.assign(1, "yes");
    goTo(3);
    EXPECT_EQ(form.CurrentMainTab, 3);
    EXPECT_THAT(columnOf(form.flxBins, 1), ElementsAre("Breakpoint", "0", "5"));
    EXPECT_THAT(labels(), ElementsAre("0 - 5 km2", "5+ km2"));
}

TEST_F(HomeRange, RemovingABreakpointWithoutLabelsTakesNone) {
    addBreakpoints({"0", "5"});
    type(form.txtRemoveBinIndex, "2");
    form.cmdRemoveBin.UserClick();
    EXPECT_EQ(global.TotalBins, 1);
}

TEST_F(HomeRange, RemovingABreakpointOutsideTheListResetsTheBox) {
    addBreakpoints({"0", "5"});
    makeLabels();
    for (const int row : {-1, 3}) {
        type(form.txtRemoveBinIndex, "2");
        form.RemoveBin(row);
        EXPECT_EQ(form.txtRemoveBinIndex.Text(), "0");
        EXPECT_EQ(global.TotalBins, 2);
        EXPECT_EQ(form.cbxUserDefBinsHR.ListCount(), 2);
    }
}

class HomeRangeValue : public HomeRange {
protected:
    void openWith(const std::string& definition, const std::string& homeRanges) {
        openOnCriteriaPage(
            ProjectText(2, 1, 1, 1).set("Home-range definition", definition).set("Home ranges", homeRanges));
        form.AreaDataChanged = false;
    }
};

TEST_F(HomeRangeValue, ContinuousIsStoredAsTyped) {
    openWith("continuous", ",");
    type(form.txtContinuousHR, "12.50");
    EXPECT_EQ(storedHomeRange(1), "12.50");
    EXPECT_TRUE(form.AreaDataChanged);
    EXPECT_EQ(storedHomeRange(2), "");
}

TEST_F(HomeRangeValue, ContinuousZeroClearsTheCell) {
    openWith("continuous", "10,");
    type(form.txtContinuousHR, "0");
    EXPECT_EQ(form.txtContinuousHR.Text(), "0");
    EXPECT_EQ(storedHomeRange(1), "");
    bool exists = true;
    form.HRDataExists(exists);
    EXPECT_FALSE(exists);
}

TEST_F(HomeRangeValue, ContinuousAboveTenMillionIsSilentlyReplaced) {
    openWith("continuous", ",");
    form.txtContinuousHR.UserFocus();
    form.txtContinuousHR.SelStart(0);
    form.txtContinuousHR.SelLength(1);
    form.txtContinuousHR.UserPaste("10000001");
    EXPECT_EQ(form.txtContinuousHR.Text(), "10000000");
    EXPECT_EQ(storedHomeRange(1), "10000000");
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(HomeRangeValue, WithoutASpeciesNothingIsStored) {
    const auto before = cellsOf(summary(4));
    type(form.txtContinuousHR, "5");
    EXPECT_TRUE(form.AreaDataChanged);
    EXPECT_EQ(cellsOf(summary(4)), before);
    form.cbxDefaultBinsHR.UserChoose(2);
    EXPECT_EQ(cellsOf(summary(4)), before);
}

TEST_F(HomeRangeValue, ADefaultBinIsStoredAsItsLabel) {
    openWith("default bins", "1 - 10 km2,");
    EXPECT_EQ(form.cbxDefaultBinsHR.ListIndex(), 1);
    const std::vector<std::string> binLabels = {"0 - 1 km2",   "1 - 10 km2",   "10 - 25 km2",
                                                "25 - 50 km2", "50 - 100 km2", "100+ km2"};
    for (int i = 0; i < 6; ++i) {
        form.cbxDefaultBinsHR.UserChoose(i);
        EXPECT_EQ(storedHomeRange(1), binLabels[static_cast<std::size_t>(i)]);
    }
    EXPECT_FALSE(form.AreaDataChanged);
}

TEST_F(HomeRangeValue, AUserBinIsStoredAsItsLabel) {
    openWith("user-defined bins,5,20", ",");
    form.cbxUserDefBinsHR.UserChoose(1);
    EXPECT_EQ(storedHomeRange(1), "20+ km2");
    EXPECT_FALSE(form.AreaDataChanged);
}

TEST_F(HomeRangeValue, AStoredLabelThatIsNoLongerOfferedShowsNoSelection) {
    openWith("user-defined bins,5,20", "20+ km2,5 - 20 km2");
    EXPECT_EQ(form.cbxUserDefBinsHR.ListIndex(), 1);
    goTo(2);
    form.flxBins.UserEditCell(2, 1, "30");
    goTo(3);
    EXPECT_EQ(form.cbxUserDefBinsHR.ListIndex(), -1);
    EXPECT_EQ(storedHomeRange(1), "20+ km2");
}

TEST_F(HomeRangeValue, AFailureNamesTheProcedureItHappenedIn) {
    openWith("default bins", ",");
    summary(4).Rows(1);
    const std::string why = "Subscript out of range";
    EXPECT_EQ(failureOf([&] { form.cbxDefaultBinsHR.UserChoose(1); }).Description,
              reportOf("Brenica.cbxDefaultBinsHR_Click", 9, why));
    form.cbxUserDefBinsHR.AddItem("x");
    EXPECT_EQ(failureOf([&] { form.cbxUserDefBinsHR.UserChoose(0); }).Description,
              reportOf("Brenica.cbxUserDefBinsHR_Click", 9, why));
    EXPECT_EQ(failureOf([&] { type(form.txtContinuousHR, "5"); }).Description,
              reportOf("Brenica.txtContinuousHR_Change", 9, why));
    summary(4).Rows(2);
    summary(4).Cols(2);
    EXPECT_EQ(failureOf([&] { choose(0); }).Description, reportOf("Brenica.HRDataExists", 9, why));
}

TEST_F(HomeRange, UpdatingBreakpointsFailsUnderItsOwnName) {
    choose(2);
    form.flxBins.CellChanged = [](int, int) { ui::raise(ui::ErrorNumber::OutOfMemory); };
    type(form.txtTotalBins, "1");
    const auto failure = failureOf([&] { form.cmdUpdateBins.UserClick(); });
    EXPECT_EQ(failure.Description, reportOf("FlexGridUtilities.UpdateFlexGrid", 7, "Out of memory"));
}
