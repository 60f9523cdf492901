// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/form_test.h"

using testing::ElementsAre;

class NewProject : public FormTest {};

TEST_F(NewProject, HasTheSixDefaultFunctions) {
    EXPECT_EQ(global.TotalFunctions, 6);
    EXPECT_THAT(columnOf(form.flxFunctions, 1),
                ElementsAre("Functions", "Predation", "Seed dispersal", "Seed predation", "Pollination",
                            "Mechanical disturbance", "Competitive interactions"));
}

TEST_F(NewProject, WritesFortyLinesAndOpensAgainToTheSameText) {
    const std::string saved = save();
    EXPECT_EQ(std::count(saved.begin(), saved.end(), '\n'), 40);
    openText(saved);
    EXPECT_EQ(save(), saved);
}
