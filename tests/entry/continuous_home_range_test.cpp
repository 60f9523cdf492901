// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry_fixture.h"

/// Continuous home ranges go to their own box alone.
using ContinuousHomeRange = EntryTest;

TEST_F(ContinuousHomeRange, ThatReadsLikeABinChoosesNoBin) {
    openOnCriteriaPage(ProjectText(1, 1, 1, 1).set("Home ranges", "0 - 1 km2"));
    EXPECT_EQ(form.HomeRangeType, 0);
    EXPECT_EQ(form.cbxDefaultBinsHR.ListIndex(), -1);
    EXPECT_EQ(form.cbxUserDefBinsHR.ListIndex(), -1);
}
