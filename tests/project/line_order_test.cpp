// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/columns.h"
#include "support/form_test.h"

using testing::ElementsAre;

/// Lines of a project file that come too early, or twice.
class LineOrder : public FormTest {};

TEST_F(LineOrder, ColumnsOfAListThatIsStillEmptyAreDropped) {
    openText(
        "Project Version = VERSION2\r\nScientific Name = Lutra lutra,Meles meles\r\nHabitat Area = 1,2\r\n"
        "Habitat UseLevel = 1,1\r\nJU Area = 3\r\nMZone UseLevel = 3\r\nUrgency = 1\r\n"
        "Common Name = Otter\r\nHabitat Type = Bog\r\n");
    EXPECT_FALSE(files.LastFault());
    EXPECT_EQ(form.flxCandidateSpecies.Rows(), 2);
    EXPECT_THAT(rowOf(form.flxCandidateSpecies, 1), ElementsAre("1", "Otter", ""));
    EXPECT_EQ(form.flxHabitatTypes.Rows(), 2);
    EXPECT_EQ(form.flxHabitatTypes.TextMatrix(1, list::Area), "");
    EXPECT_EQ(form.flxJurisUnits.Rows(), 1);
    EXPECT_EQ(form.flxLandUses.Rows(), 1);
}

TEST_F(LineOrder, ASecondContinuousTakesTheBinsOfTheFirstDefinitionBack) {
    openText(
        "Project Version = VERSION2\r\nCommon Name = Otter\r\nHome-range definition = default bins\r\n"
        "Home-range definition = continuous\r\n");
    EXPECT_FALSE(files.LastFault());
    EXPECT_EQ(form.HomeRangeType, 0);
    EXPECT_TRUE(form.optHomeRangeType(0).Value());
    EXPECT_FALSE(form.optHomeRangeType(1).Value());
    EXPECT_TRUE(form.txtContinuousHR.Visible());
    EXPECT_FALSE(form.cbxDefaultBinsHR.Visible());
    EXPECT_THAT(save(), testing::HasSubstr("\r\nHome-range definition = continuous\r\n"));
}

TEST_F(LineOrder, ContinuousAfterBreakpointsDisablesTheirList) {
    openText(
        "Project Version = VERSION2\r\nHome-range definition = user-defined bins,5,10\r\n"
        "Home-range definition = continuous\r\n");
    EXPECT_TRUE(form.optHomeRangeType(0).Value());
    EXPECT_FALSE(form.flxBins.Enabled());
    EXPECT_FALSE(form.cmdUpdateBins.Enabled());
}
