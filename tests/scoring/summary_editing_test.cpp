// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int TabOfMember[] = {1, 1, 2, 2, 3, 4, 5, 6, 7, 8, 9};

}  // namespace

/// The tabs of the summary page and the box that opens the tables for editing.
class SummaryTabs : public ScoringTest {
protected:
    std::vector<int> visible() {
        std::vector<int> members;
        for (int i = 0; i < form.flxSummary.Count(); ++i)
            if (table(i).Visible()) members.push_back(i);
        return members;
    }
    std::vector<int> editable() {
        std::vector<int> members;
        for (int i = 0; i < form.flxSummary.Count(); ++i)
            if (table(i).Editable == ui::EditMode::KeyboardAndMouse) members.push_back(i);
        return members;
    }
    void select(int tab) { form.tabCriteriaSummary.UserSelectTab(tab); }
};

TEST_F(SummaryTabs, ShowTheirTables) {
    openAt(ProjectText(1, 1, 1, 1), 4);
    EXPECT_THAT(visible(), ElementsAre(0, 1));
    for (const int tab : {9, 2, 1, 5, 8, 3, 7, 4, 6, 1, 2}) {
        select(tab);
        EXPECT_EQ(form.CurrentSummaryTab, tab);
        for (int member = 0; member < 11; ++member)
            EXPECT_EQ(table(member).Visible(), TabOfMember[member] == tab) << tab << "/" << member;
    }
}

TEST_F(SummaryTabs, AClickOnTheTabOnViewDoesNothing) {
    openAt(ProjectText(1, 1, 1, 1), 4);
    select(3);
    table(4).Visible(false);
    select(3);
    EXPECT_THAT(visible(), IsEmpty());
}

TEST_F(SummaryTabs, WithoutACurrentTabAClickDoesNothing) {
    openAt(ProjectText(1, 1, 1, 1), 4);
    form.CurrentSummaryTab = 0;
    select(3);
    EXPECT_EQ(form.CurrentSummaryTab, 0);
    EXPECT_THAT(visible(), ElementsAre(0, 1));
}

TEST_F(SummaryTabs, DimTheBoxWhereNothingCanBeEditedAndKeepItsTick) {
    openAt(ProjectText(1, 1, 1, 1), 4);
    for (const bool ticked : {false, true}) {
        if (ticked) {
            select(1);
            form.chkAllowSummaryEdit.UserClick();
        }
        for (const int tab : {2, 1, 5, 9, 4, 3, 6, 7, 8}) {
            select(tab);
            EXPECT_EQ(form.chkAllowSummaryEdit.Enabled(), tab != 2 && tab != 5) << tab;
            EXPECT_EQ(form.chkAllowSummaryEdit.Value(), ticked) << tab;
        }
    }
    select(5);
    form.chkAllowSummaryEdit.UserClick();
    EXPECT_TRUE(form.chkAllowSummaryEdit.Value()) << "a dimmed box takes no click";
}

TEST_F(SummaryTabs, TheBoxOpensAllTablesButThoseWithACopy) {
    openAt(ProjectText(1, 1, 1, 1), 4);
    EXPECT_EQ(form.chkAllowSummaryEdit.Caption(), "Allow summary table editing");
    EXPECT_FALSE(form.chkAllowSummaryEdit.Value());
    EXPECT_THAT(editable(), IsEmpty());
    form.chkAllowSummaryEdit.UserClick();
    EXPECT_THAT(editable(), ElementsAre(0, 1, 4, 5, 7, 8, 9, 10));
    select(2);
    EXPECT_THAT(editable(), ElementsAre(0, 1, 4, 5, 7, 8, 9, 10));
    select(9);
    form.chkAllowSummaryEdit.UserClick();
    EXPECT_THAT(editable(), IsEmpty());
}

TEST_F(SummaryTabs, NewUnticksTheBox) {
    openAt(ProjectText(1, 1, 1, 1), 4);
    form.chkAllowSummaryEdit.UserClick();
    platform.Answers.assign(1, "no");
    form.mnuNewProject.UserClick();
    EXPECT_FALSE(form.chkAllowSummaryEdit.Value());
    EXPECT_THAT(editable(), IsEmpty());
}

/// Edits on a tab of ratings, then the tab of the vulnerability scores.
class SummaryRecalculation : public SummaryTabs {
protected:
    void SetUp() override {
        openAt(ProjectText(1, 1, 1, 1), 3);
        goTo(4);
        ASSERT_EQ(table(5).TextMatrix(1, 3), "2");  // (urgency 1 + recovery 1) × severity 1 × the rest 1
        form.chkAllowSummaryEdit.UserClick();
        select(6);
        ASSERT_TRUE(table(7).UserEditCell(1, 2, "3"));
        ASSERT_EQ(table(6).TextMatrix(1, threat::Severity), "3");
        ASSERT_EQ(table(5).TextMatrix(1, 3), "2");
    }
};

TEST_F(SummaryRecalculation, SeesTheEditsWhileTheBoxIsTicked) {
    select(4);
    EXPECT_EQ(table(5).TextMatrix(1, 3), "6");
}

TEST_F(SummaryRecalculation, DoesNotHappenWithTheBoxUnticked) {
    form.chkAllowSummaryEdit.UserClick();
    select(4);
    EXPECT_EQ(table(5).TextMatrix(1, 3), "2");
}

TEST_F(SummaryRecalculation, BelongsToThatTabAlone) {
    for (const int tab : {1, 2, 3, 5, 6, 7, 8, 9}) {
        select(tab);
        EXPECT_EQ(table(5).TextMatrix(1, 3), "2") << tab;
    }
}

/// Edits in the tables themselves: two species, two habitats, three zones, two activities.
class SummaryEditing : public ScoringTest {
protected:
    void openForEditing(ProjectText project = ProjectText(2, 2, 3, 2)) {
        open(project);
        goTo(3);
        goTo(4);
        form.chkAllowSummaryEdit.UserClick();
        platform.Transcript.clear();
        platform.Beeps = 0;
    }
    /// The list that a cell offers; "refused" where the editor does not open, which must beep.
    std::string offered(int member, int row, int col) {
        platform.Beeps = 0;
        form.tabCriteriaSummary.UserSelectTab(TabOfMember[member]);
        EXPECT_TRUE(table(member).UserMoveTo(row, col)) << member << ": " << row << "," << col;
        if (!table(member).UserBeginEdit()) {
            EXPECT_EQ(platform.Beeps, 1) << member << ": " << row << "," << col;
            return "refused";
        }
        EXPECT_EQ(platform.Beeps, 0);
        std::string items = table(member).ComboList();
        table(member).UserCancelEdit();
        return items;
    }
    /// Puts a text into a cell's editor; whether the edit ends.
    bool typed(int member, int row, int col, const std::string& text) {
        platform.Beeps = 0;
        EXPECT_TRUE(table(member).UserMoveTo(row, col) && table(member).UserBeginEdit());
        EXPECT_TRUE(table(member).UserEditPaste(text));
        const bool done = table(member).UserCommitEdit();
        EXPECT_EQ(table(member).Editing(), !done);
        EXPECT_EQ(platform.Beeps, done ? 0 : 1) << text;
        table(member).UserCancelEdit();
        return done;
    }
};

TEST_F(SummaryEditing, EachCellOffersItsListOrRefuses) {
    struct Case {
        int Member;
        int Row;
        int Col;
        const char* Offered;
    };
    // Tables of use: species in rows 1 and 2, then a blank row and two of totals; as many columns behind the units.
    const Case cases[] = {
        {0, 1, 1, "0|1|2|3"},
        {0, 2, 2, "0|1|2|3"},
        {0, 1, 3, "refused"},
        {0, 1, 4, "refused"},
        {0, 1, 5, "refused"},
        {0, 3, 1, "refused"},
        {0, 4, 1, "refused"},
        {0, 5, 2, "refused"},
        {0, 5, 5, "refused"},
        {1, 1, 1, "0|1|2|3"},
        {1, 2, 3, "0|1|2|3"},
        {1, 1, 4, "refused"},
        {1, 2, 5, "refused"},
        {1, 1, 6, "refused"},
        {1, 3, 3, "refused"},
        {1, 4, 1, "refused"},
        {1, 5, 3, "refused"},
        {4, 1, 1, "Y|N"},
        {4, 2, 2, "Y|N"},
        {4, 1, 3, ""},
        {4, 2, 4, ""},
        {5, 1, 1, ""},
        {5, 2, 1, ""},
        {5, 1, 2, "refused"},
        {5, 1, 3, "refused"},
        {5, 2, 4, "refused"},
        {5, 1, 6, "refused"},
        {5, 3, 1, "refused"},
        {5, 4, 1, "refused"},
        {5, 5, 3, "refused"},
        {7, 1, 1, ""},
        {7, 1, 2, "0|1|2|3"},
        {7, 4, 3, "0|1|2|3"},
        {7, 2, 4, "0|1|2|3|4"},
        {8, 1, 1, "0|1|2|3"},
        {8, 2, 6, "0|1|2|3"},
        {9, 1, 1, "0|1|2"},
        {9, 2, 5, "0|1|2"},
        {10, 1, 1, "1|2|3|4|5|6"},
        {10, 2, 5, "1|2|3|4|5|6"},
    };
    openForEditing();
    for (const auto& [member, row, col, items] : cases)
        EXPECT_EQ(offered(member, row, col), items) << member << ": " << row << "," << col;
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(SummaryEditing, ATableWithTwoKindsOfCellsForgetsTheListOfTheOneBefore) {
    openForEditing();
    EXPECT_EQ(offered(4, 1, 1), "Y|N");
    EXPECT_EQ(offered(4, 1, 4), "");
    EXPECT_EQ(offered(7, 1, 4), "0|1|2|3|4");
    EXPECT_EQ(offered(7, 1, 3), "0|1|2|3");
    EXPECT_EQ(offered(7, 1, 1), "");
}

TEST_F(SummaryEditing, TheListOfTheVulnerabilityTableIsLeftAsItIs) {
    openForEditing();
    table(5).ComboList("a|b");
    EXPECT_EQ(offered(5, 1, 1), "a|b");
}

TEST_F(SummaryEditing, DefaultBinsAreOfferedJoinedEndToEnd) {
    openForEditing(ProjectText(1, 1, 1, 1)
                       .set("Home-range definition", "default bins")
                       .set("Home ranges", "1 - 10 km2"));
    EXPECT_EQ(offered(4, 1, 3), "0 - 1 km21 - 10 km210 - 25 km225 - 50 km250 - 100 km2100+ km2");
}

TEST_F(SummaryEditing, UserBinsAreOfferedJoinedEndToEnd) {
    openForEditing(ProjectText(1, 1, 1, 1)
                       .set("Home-range definition", "user-defined bins,0,5,20")
                       .set("Home ranges", "20+ km2"));
    EXPECT_EQ(offered(4, 1, 3), "0 - 5 km25 - 20 km220+ km2");
    EXPECT_FALSE(table(4).UserEditCell(1, 3, "20+ km2")) << "a single bin is no item of that list";
    EXPECT_EQ(table(4).TextMatrix(1, 3), "20+ km2");
}

TEST_F(SummaryEditing, WithoutUserBinsTheHomeRangeIsFreeText) {
    openForEditing(
        ProjectText(1, 1, 1, 1).set("Home-range definition", "user-defined bins").set("Home ranges", "3"));
    EXPECT_EQ(offered(4, 1, 3), "");
}

TEST_F(SummaryEditing, TablesWithACopyAreNeverOpened) {
    openForEditing();
    for (const int member : {2, 3, 6}) {
        form.tabCriteriaSummary.UserSelectTab(TabOfMember[member]);
        ASSERT_TRUE(table(member).UserMoveTo(1, 2));
        EXPECT_FALSE(table(member).UserBeginEdit()) << member;
    }
    EXPECT_EQ(platform.Beeps, 0);
}

TEST_F(SummaryEditing, NothingIsEditedWithTheBoxUnticked) {
    openForEditing();
    form.chkAllowSummaryEdit.UserClick();
    EXPECT_FALSE(table(0).UserEditCell(1, 1, "3"));
    EXPECT_EQ(table(0).TextMatrix(1, 1), "1");
}

TEST_F(SummaryEditing, AProportionLiesBetweenZeroAndOne) {
    openForEditing();
    for (const auto& [member, tab, col] : {std::tuple{4, 3, 4}, {5, 4, 1}}) {
        form.tabCriteriaSummary.UserSelectTab(tab);
        for (const char* good : {"0", "1", "0.25", ".5", "1.0", "0.999", "-0", ""}) {
            EXPECT_TRUE(typed(member, 2, col, good)) << member << ": " << good;
            EXPECT_EQ(table(member).TextMatrix(2, col), good);
        }
        table(member).TextMatrix(2, col, "0.75");
        for (const char* bad : {"1.2", "-0.1", "2", "1.0001", "abc", "0.5x", "x", " ", "."}) {
            EXPECT_FALSE(typed(member, 2, col, bad)) << member << ": " << bad;
            EXPECT_EQ(table(member).TextMatrix(2, col), "0.75") << bad;
        }
    }
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(SummaryEditing, OtherFreeTextsAreNotTested) {
    openForEditing();
    form.tabCriteriaSummary.UserSelectTab(3);
    EXPECT_TRUE(typed(4, 1, 3, "250"));
    EXPECT_TRUE(typed(4, 1, 3, "large"));
    EXPECT_EQ(table(4).TextMatrix(1, 3), "large");
    form.tabCriteriaSummary.UserSelectTab(6);
    EXPECT_TRUE(typed(7, 1, 1, "2"));
    EXPECT_EQ(table(7).TextMatrix(1, 1), "2");
}

TEST_F(SummaryEditing, ARefusedProportionKeepsTheUserInTheEditor) {
    openForEditing();
    form.tabCriteriaSummary.UserSelectTab(4);
    ASSERT_TRUE(table(5).UserMoveTo(1, 1) && table(5).UserBeginEdit());
    ASSERT_TRUE(table(5).UserEditPaste("1.2"));
    form.tabCriteriaSummary.UserSelectTab(3);
    EXPECT_EQ(form.CurrentSummaryTab, 4) << "no action while the editor refuses to close";
    EXPECT_TRUE(table(5).Editing());
    EXPECT_EQ(platform.Beeps, 1);
    ASSERT_TRUE(table(5).UserEditPaste("")) << "nothing is pasted";
    table(5).UserEditKey(ui::EscapeKey);
    EXPECT_EQ(table(5).TextMatrix(1, 1), "0.5");
}

TEST_F(SummaryEditing, AnItemOfTheListIsStoredAndMarksTheProjectChanged) {
    openForEditing();
    const std::tuple<int, int, const char*, const char*> edits[] = {
        {0, 1, "2", "4"}, {1, 3, "0", "-1"}, {4, 1, "N", "X"}, {5, 1, "0.2", "1.5"}, {7, 2, "3", "4"},
        {7, 4, "4", "5"}, {8, 6, "3", "4"},  {9, 5, "2", "3"}, {10, 5, "6", "0"},
    };
    for (const auto& [member, col, good, bad] : edits) {
        form.tabCriteriaSummary.UserSelectTab(TabOfMember[member]);
        form.ProjectChanged = false;
        platform.Beeps = 0;
        EXPECT_TRUE(table(member).UserEditCell(2, col, good)) << member;
        EXPECT_EQ(table(member).TextMatrix(2, col), good) << member;
        EXPECT_TRUE(form.ProjectChanged) << member;
        EXPECT_EQ(platform.Beeps, 0) << member;
        EXPECT_FALSE(table(member).UserEditCell(2, col, bad)) << member;
        EXPECT_EQ(table(member).TextMatrix(2, col), good) << member;
        EXPECT_EQ(platform.Beeps, 1) << member;
    }
}

TEST_F(SummaryEditing, ARatingWithoutActivitiesIsNotWrittenThrough) {
    openForEditing(ProjectText(3, 1, 1, 0));
    form.tabCriteriaSummary.UserSelectTab(6);
    for (int row = 1; row <= 3; ++row) {
        for (int col = 2; col <= 4; ++col) ASSERT_TRUE(table(7).UserEditCell(row, col, "3"));
        EXPECT_THAT(tableRow(6, row), ElementsAre("Species " + std::to_string(row), "", "", "", "", "", ""));
    }
}

/// A comma that groups digits makes 5 of 0,5: what the leading digits tell is not what the scores would read.
TEST_F(SummaryEditing, AProportionWithACommaLiesWithinTheBoundsHoweverItIsRead) {
    openForEditing();
    for (const auto& [member, tab, col] : {std::tuple{4, 3, 4}, {5, 4, 1}}) {
        form.tabCriteriaSummary.UserSelectTab(tab);
        for (const char* bad : {"0,5", "1,0", "0,05", "-0,5"})
            EXPECT_FALSE(typed(member, 2, col, bad)) << bad;
        EXPECT_TRUE(typed(member, 2, col, "0,1"));
        EXPECT_EQ(table(member).TextMatrix(2, col), "0,1");
    }
}

TEST_F(SummaryEditing, ADecimalCommaInAProportionCounts) {
    platform.Separator = ui::DecimalSeparator::Comma;
    modGlobal elsewhere;
    frmBrenica commaForm(platform, files, elsewhere);
    type(commaForm.txtTotalSpecies, "1");
    commaForm.cmdUpdateSpecies.UserClick();
    ASSERT_TRUE(commaForm.flxCandidateSpecies.UserEditCell(1, list::Name, "Ant"));
    commaForm.tabBrenica.UserSelectTab(4);
    commaForm.chkAllowSummaryEdit.UserClick();
    for (const auto& [member, tab, col] : {std::tuple{4, 3, 4}, {5, 4, 1}}) {
        commaForm.tabCriteriaSummary.UserSelectTab(tab);
        ui::Grid& grid = commaForm.flxSummary(member);
        for (const char* bad : {"1,5", "-0,5", "2,0"}) EXPECT_FALSE(grid.UserEditCell(1, col, bad)) << bad;
        for (const char* good : {"0,5", "1,0", "0,05"}) {
            EXPECT_TRUE(grid.UserEditCell(1, col, good)) << good;
            EXPECT_EQ(grid.TextMatrix(1, col), good);
        }
    }
}

TEST_F(SummaryEditing, AnEditReachesTheScoresOfTheNextVisit) {
    openForEditing(ProjectText(1, 1, 1, 1));
    ASSERT_TRUE(table(0).UserEditCell(1, 1, "3"));
    form.tabCriteriaSummary.UserSelectTab(8);
    ASSERT_TRUE(table(9).UserEditCell(1, 1, "0"));
    goTo(6);
    // Heterogeneity 3 + 3 + 1, socio-economics 0 + 1 + 1 + 1 + 1.
    EXPECT_THAT(rowOf(form.flxScores(1), 1), ElementsAre("Species 1", "7", "5.5", "2.5", "6", "4"));
}

TEST_F(SummaryEditing, ATotalCorrectedByAnEditIsWhatACalculationGives) {
    openForEditing();
    ASSERT_TRUE(table(0).UserEditCell(2, 1, "3"));
    ASSERT_TRUE(table(1).UserEditCell(1, 3, "0"));
    std::vector<std::vector<std::string>> corrected;
    for (const int member : {0, 1})
        for (int row = 0; row < table(member).Rows(); ++row) corrected.push_back(tableRow(member, row));
    goTo(1);
    goTo(4);
    std::vector<std::vector<std::string>> calculated;
    for (const int member : {0, 1})
        for (int row = 0; row < table(member).Rows(); ++row) calculated.push_back(tableRow(member, row));
    EXPECT_EQ(corrected, calculated);
    EXPECT_THAT(corrected[2], ElementsAre("Species 2", "3", "1", "", "4", "2"));
}

/// The tips of the summary tables.
class SummaryTips : public ScoringTest {
protected:
    static ProjectText project() {
        ProjectText text(2, 2, 2, 2);
        return text.set("Habitat Type", "Bog,Fen")
            .set("Jurisdictional Unit", "North,South")
            .set("Land Use", "Roads,Dams");
    }
    std::string tipAt(int member, int row, int col) {
        table(member).UserMouseMove(row, col);
        return table(member).ToolTipText();
    }
};

TEST_F(SummaryTips, ExplainTheTotalsAndNameTheUnits) {
    struct Case {
        int Member;
        int Row;
        int Col;
        const char* Tip;
    };
    // Rows: heading, 2 species, blank, total, count. Columns: name, 2 units, blank, total, count; in table 5 two more.
    const Case cases[] = {
        {5, 4, 3, "Total threat score summed by threat"},
        {5, 4, 7, "Total threat score summed by threat"},
        {5, 5, 4, "Number of species affected by the threat"},
        {0, 4, 1, "Habitat level of use total across all species"},
        {0, 4, 5, "Habitat level of use total across all species"},
        {0, 5, 2, "Number of species using the habitat"},
        {1, 4, 1, "Management zone level of use total across all species"},
        {1, 5, 2, "Number of species using the management zone"},
        {0, 0, 5, "Number of habitats used by the species"},
        {0, 0, 4, "Summed habitat level of use by the species"},
        {0, 0, 3, ""},
        {0, 0, 1, "Bog"},
        {0, 0, 2, "Fen"},
        {1, 0, 5, "Number of management zones used by the species"},
        {1, 0, 4, "Summed management zone level of use by the species"},
        {1, 0, 3, ""},
        {1, 0, 1, "North"},
        {1, 0, 2, "South"},
        {5, 0, 1, "A species current conservation status"},
        {5, 0, 7, "Number of threats affecting a species"},
        {5, 0, 6, "Total threat score summed by species"},
        {5, 0, 5, ""},
        {5, 0, 2, "Human Activity"},  // the spacer before the threats: row 0 of the list
        {5, 0, 3, "Roads"},
        {5, 0, 4, "Dams"},
    };
    openAt(project(), 4);
    ASSERT_EQ(table(5).Cols(), 8);
    for (const auto& [member, row, col, tip] : cases)
        EXPECT_EQ(tipAt(member, row, col), tip) << member << ": " << row << "," << col;
}

TEST_F(SummaryTips, NameTheUnitsOfASingleSpecies) {
    openAt(ProjectText(1, 2, 2, 2), 4);
    EXPECT_EQ(tipAt(0, 0, 1), "Habitat 1");
    EXPECT_EQ(tipAt(5, 0, 4), "Activity 2");
}

TEST_F(SummaryTips, AreEmptyOverDataAndTheFirstColumn) {
    openAt(project(), 4);
    for (const int member : {0, 1, 5}) {
        for (const auto& [row, col] : {std::pair{1, 1}, {2, 4}, {1, 0}, {2, 0}, {0, 0}, {3, 1}}) {
            ASSERT_NE(tipAt(member, 0, 1), "");
            EXPECT_EQ(tipAt(member, row, col), "") << member << ": " << row << "," << col;
        }
    }
}

TEST_F(SummaryTips, AreEmptyOverDataOfATableWithoutTotals) {
    openAt(ProjectText(2, 0, 0, 0), 4);
    for (const int member : {0, 1, 5}) {
        ASSERT_EQ(table(member).Rows(), 3);
        for (const int row : {1, 2}) {
            table(member).ToolTipText("left over");
            EXPECT_EQ(tipAt(member, row, 0), "") << member << ": " << row;
        }
    }
}

TEST_F(SummaryTips, BelongToThreeTablesOnly) {
    openAt(project(), 4);
    for (const int member : {2, 3, 4, 6, 7, 8, 9, 10}) {
        const int lastRow = table(member).Rows() - 1;
        const int lastCol = table(member).Cols() - 1;
        for (const auto& [row, col] : {std::pair{0, 1}, {0, lastCol}, {lastRow - 1, 1}, {lastRow, 1}, {1, 1}})
            EXPECT_EQ(tipAt(member, row, col), "") << member << ": " << row << "," << col;
    }
}

TEST_F(SummaryTips, StayAsTheyAreWhileTheMouseStaysInAHeading) {
    openAt(project(), 4);
    tipAt(0, 0, 1);
    table(0).ToolTipText("left alone");
    EXPECT_EQ(tipAt(0, 0, 1), "left alone");
    EXPECT_EQ(tipAt(0, 0, 2), "Fen");
    EXPECT_EQ(tipAt(0, 0, 1), "Bog");
}

TEST_F(SummaryTips, AreFoundAnewWhenTheMouseChangesTheTable) {
    openAt(project(), 4);
    tipAt(0, 0, 1);
    EXPECT_EQ(tipAt(1, 0, 1), "North");
    table(0).ToolTipText("left over");
    EXPECT_EQ(tipAt(0, 0, 1), "Bog");
}

TEST_F(SummaryTips, ATipThatCannotBeFoundLeavesTheOldOne) {
    openAt(project(), 4);
    ASSERT_EQ(tipAt(0, 0, 1), "Bog");
    form.flxHabitatTypes.Rows(2);
    EXPECT_NO_THROW(tipAt(0, 0, 2));
    EXPECT_EQ(table(0).ToolTipText(), "Bog");
    EXPECT_EQ(tipAt(0, 0, 4), "Summed habitat level of use by the species");
}

TEST_F(SummaryTips, WithoutSpeciesTheHeadingIsTheLastRow) {
    EXPECT_EQ(tipAt(0, 0, 0), "Number of species using the habitat");
    EXPECT_EQ(tipAt(1, 0, 0), "Number of species using the management zone");
    EXPECT_EQ(tipAt(5, 0, 1), "Number of species affected by the threat");
}
