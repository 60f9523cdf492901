// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring_test.h"

using testing::ElementsAre;

/// What a write to a cell of a summary table does beside the write.

class SummaryWriteThrough : public ScoringTest {
protected:
    void edit(int member, int row, int col, const std::string& text) {
        if (!form.chkAllowSummaryEdit.Value()) form.chkAllowSummaryEdit.UserClick();
        ASSERT_TRUE(table(member).UserEditCell(row, col, text));
    }
};

TEST_F(SummaryWriteThrough, ALevelOfUseCorrectsItsTotalsAndTheLongTable) {
    openAt(ProjectText(2, 3, 1, 1).set("HeteroHabitat Population", "1,0,2,3,0,0"), 4);
    edit(0, 2, 3, "3");
    EXPECT_THAT(tableRow(0, 2), ElementsAre("Species 2", "3", "0", "3", "", "6", "2"));
    EXPECT_THAT(columnOf(table(0), 3), ElementsAre("3", "2", "3", "", "5", "2"));
    EXPECT_EQ(table(2).TextMatrix(6, use::Level), "3");
    EXPECT_EQ(table(2).TextMatrix(5, use::Level), "0");
    EXPECT_THAT(tableRow(0, 1), ElementsAre("Species 1", "1", "0", "2", "", "3", "2"));
}

TEST_F(SummaryWriteThrough, ALevelOfUseOfAZoneLikewise) {
    openAt(ProjectText(2, 1, 2, 1), 4);
    edit(1, 1, 2, "0");
    EXPECT_THAT(tableRow(1, 1), ElementsAre("Species 1", "1", "0", "", "1", "1"));
    EXPECT_THAT(columnOf(table(1), 2), ElementsAre("2", "0", "1", "", "1", "1"));
    EXPECT_EQ(table(3).TextMatrix(2, use::Level), "0");
    EXPECT_EQ(table(2).TextMatrix(1, use::Level), "1");
}

TEST_F(SummaryWriteThrough, ASpeciesNameThatIsANumberIsNoLevel) {
    openAt(ProjectText(1, 2, 2, 1).set("Common Name", "7"), 4);
    for (const int member : {0, 1}) {
        edit(member, 1, 2, "3");
        EXPECT_THAT(tableRow(member, 1), ElementsAre("7", "1", "3", "", "4", "2"));
    }
}

TEST_F(SummaryWriteThrough, ABlankLevelCountsNothing) {
    openAt(ProjectText(1, 2, 1, 1), 4);
    table(0).TextMatrix(1, 1, " ");
    EXPECT_THAT(tableRow(0, 1), ElementsAre("Species 1", " ", "1", "", "1", "1"));
    EXPECT_EQ(table(2).TextMatrix(1, use::Level), " ");
}

TEST_F(SummaryWriteThrough, AFractionIsRoundedInTheTotalsAndKeptInTheTables) {
    openAt(ProjectText(1, 2, 1, 1), 4);
    table(0).TextMatrix(1, 1, "2.5");
    EXPECT_EQ(table(0).TextMatrix(1, 4), "3");
    EXPECT_EQ(table(2).TextMatrix(1, use::Level), "2.5");
    table(0).TextMatrix(1, 1, "0.5");
    EXPECT_EQ(table(0).TextMatrix(1, 4), "1");
    EXPECT_EQ(table(0).TextMatrix(1, 5), "1");
}

TEST_F(SummaryWriteThrough, ALevelThatIsNoNumberReachesTheLongTableWithoutAMessage) {
    openAt(ProjectText(1, 2, 1, 1), 4);
    platform.Transcript.clear();
    table(0).TextMatrix(1, 1, "x");
    EXPECT_EQ(table(2).TextMatrix(1, use::Level), "x");
    EXPECT_THAT(tableRow(0, 1), ElementsAre("Species 1", "x", "1", "", "1", "1"));
    EXPECT_THAT(columnOf(table(0), 1), ElementsAre("1", "x", "", "0", "0"));
    EXPECT_THAT(platform.Transcript, testing::IsEmpty());
}

TEST_F(SummaryWriteThrough, TotalsAndHeadingsAreNoData) {
    openAt(ProjectText(1, 2, 1, 1), 4);
    table(0).TextMatrix(1, 4, "99");
    EXPECT_EQ(table(0).TextMatrix(1, 4), "99");
    table(0).TextMatrix(0, 1, "Bog");
    table(0).TextMatrix(4, 1, "77");
    EXPECT_EQ(table(0).TextMatrix(4, 1), "77");
    EXPECT_EQ(table(0).TextMatrix(1, 5), "2");
    EXPECT_THAT(columnOf(table(2), use::Level), ElementsAre("Level of Use", "1", "1"));
}

TEST_F(SummaryWriteThrough, WritesNothingThroughOnAnotherPageOrTab) {
    openAt(ProjectText(1, 2, 1, 1), 4);
    goTo(5);
    table(0).TextMatrix(1, 1, "3");
    EXPECT_EQ(table(2).TextMatrix(1, use::Level), "1");
    EXPECT_EQ(table(0).TextMatrix(1, 4), "2");
    goTo(4);
    form.tabCriteriaSummary.UserSelectTab(2);
    table(0).TextMatrix(1, 2, "3");
    EXPECT_EQ(table(2).TextMatrix(2, use::Level), "1");
}

TEST_F(SummaryWriteThrough, ARatingReachesTheTableInTheOtherOrder) {
    openAt(ProjectText(3, 1, 1, 4), 3);
    goTo(4);
    form.tabCriteriaSummary.UserSelectTab(6);
    // Row 4 is the first species of the second threat, row 2 of the table by species.
    edit(7, 4, 2, "3");
    edit(7, 4, 3, "2");
    edit(7, 4, 4, "4");
    EXPECT_THAT(tableRow(6, 2), ElementsAre("", "Activity 2", "1", "1", "3", "2", "4"));
    // Row 12 is the last species of the last threat.
    edit(7, 12, 2, "0");
    EXPECT_EQ(table(6).TextMatrix(12, threat::Severity), "0");
    EXPECT_EQ(table(6).TextMatrix(4, threat::Severity), "1");
}

TEST_F(SummaryWriteThrough, ANameInTheTableByThreatIsNoRating) {
    openAt(ProjectText(1, 1, 1, 1), 3);
    goTo(4);
    form.tabCriteriaSummary.UserSelectTab(6);
    const auto before = tableRow(6, 1);
    edit(7, 1, 1, "Lynx");
    EXPECT_EQ(tableRow(6, 1), before);
    EXPECT_EQ(table(7).TextMatrix(1, 1), "Lynx");
}

TEST_F(SummaryWriteThrough, ARatingNeedsASpeciesOnTheCriteriaPageAndItsTab) {
    openAt(ProjectText(2, 1, 1, 2), 3);
    goTo(4);
    form.chkAllowSummaryEdit.UserClick();
    form.tabCriteriaSummary.UserSelectTab(5);
    edit(7, 1, 2, "3");
    EXPECT_EQ(table(6).TextMatrix(1, threat::Severity), "1");
    form.tabCriteriaSummary.UserSelectTab(6);
    form.CurrentSpeciesIndex = 0;
    edit(7, 1, 2, "2");
    EXPECT_EQ(table(6).TextMatrix(1, threat::Severity), "1");
}

TEST_F(SummaryWriteThrough, EveryWriteMarksTheProjectChanged) {
    open(ProjectText(1, 1, 1, 1));
    for (int member = 0; member < 11; ++member) {
        form.ProjectChanged = false;
        table(member).TextMatrix(1, 1, table(member).TextMatrix(1, 1));
        EXPECT_TRUE(form.ProjectChanged) << member;
    }
}
