// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/form_test.h"

/// What random walks have come upon, each by the shortest way.
using WalkFindings = FormTest;

// The box for new breakpoints is not held within bounds, so that -1 takes even the heading row of the list. The box to
// remove a breakpoint then has no number between its bounds, 0 and -1, and still has to come to rest.
TEST_F(WalkFindings, RemoveBoxOfAListWithoutHeadingRowComesToRest) {
    goTo(2);
    form.optLandChar(3).UserClick();
    form.optHomeRangeType(2).UserClick();
    form.txtTotalBins.SelStart(0);
    form.txtTotalBins.SelLength(1);
    form.txtTotalBins.UserPaste("-1");
    form.cmdUpdateBins.UserClick();
    ASSERT_EQ(form.flxBins.Rows(), 0);
    ASSERT_EQ(global.TotalBins, -1);
    form.txtRemoveBinIndex.UserKey('5');
    EXPECT_EQ(form.txtRemoveBinIndex.Text(), "0");
}

// Walks 10898884866352864291 and 1235451515574417066: the row of the table by species was counted in blocks of no rows.
TEST_F(WalkFindings, RatingEditedByActivityWithoutActivitiesStaysInItsTable) {
    open(ProjectText(2, 1, 1, 0));
    goTo(4);
    form.tabCriteriaSummary.UserSelectTab(6);
    form.chkAllowSummaryEdit.UserClick();
    ASSERT_TRUE(form.flxSummary(7).UserEditCell(2, 2, "3"));
    EXPECT_EQ(form.flxSummary(7).TextMatrix(2, 2), "3");
    EXPECT_EQ(form.flxSummary(6).TextMatrix(1, threat::Severity), "");
    EXPECT_EQ(form.flxSummary(6).TextMatrix(2, threat::Severity), "");
}

// Each area is a number, their sum is out of its range.
TEST_F(WalkFindings, AreasWhoseSumIsOutOfRangeOverflow) {
    open(ProjectText(1, 2, 1, 1)
             .set("Home-range definition", "user-defined bins,1")
             .set("Habitat Area", "1e308,1e308"));
    goTo(2);
    const ui::RunTimeError error = failureOf([&] { goTo(3); });
    EXPECT_EQ(error.Description, reportOf("FlexGridUtilities.GetAreaTotal", 6, "Overflow"));
}
