// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "project/columns.h"
#include "support/form_test.h"

inline constexpr ui::Colour MarginGreen = ui::rgb(192, 255, 192);
inline constexpr ui::Colour PickedYellow = ui::rgb(255, 255, 192);
inline constexpr ui::Colour OmittedRed = ui::rgb(255, 128, 128);
inline constexpr ui::Colour White = ui::rgb(255, 255, 255);

/// A form on the results page, its scores calculated.
class SelectionTest : public FormTest {
protected:
    void openForSelection(const ProjectText& project) {
        open(project);
        walkTo(7);
        ASSERT_TRUE(global.ScoresCalculated);
        platform.Transcript.clear();
    }

    void select(const std::vector<std::string>& answers = {}) {
        platform.Answers.assign(answers.begin(), answers.end());
        form.cmdComplement.UserClick();
    }

    std::vector<std::string> suite() const { return columnOf(form.flxBrenicSuite, 1); }
    ui::Grid& results() { return form.flxCompResults(0); }
    ui::Colour colourOf(int row, int col) { return results().BackColorOf(row, col); }

    /// The texts of the boxes with a title, in order.
    std::vector<std::string> textsOf(const std::string& title) const {
        std::vector<std::string> texts;
        for (const ShownBox& box : platform.Transcript) {
            if (box.Title == title) texts.push_back(box.Text);
        }
        return texts;
    }

    /// Species 1 reaches every threshold and stands first (5 against 4.5); species 2 reaches none but the threat's.
    static ProjectText oneCoversAll() {
        ProjectText project(2, 2, 1, 1);
        project.set("HeteroHabitat Population", "2,2,1,1").set("HeteroJU Individual", "2,1");
        return project;
    }

    /// Each species covers a habitat of its own, the first one also the zone and the threat. Picked in order, since
    /// their aggregates are 5, 4.2 and 3.867, and no other stands within 5 percent.
    static ProjectText oneHabitatEach() {
        ProjectText project(3, 3, 1, 1);
        project.set("HeteroHabitat Population", "2,0,0,0,3,0,0,0,2").set("HeteroJU Individual", "2,0,0");
        project.set("VulnerabilitybySpecies Severity", "1,0,0");
        return project;
    }

    /// Species 1 has the highest aggregate (3.7) and covers nothing, species 2 (3) covers all, species 3 (1.7) nothing.
    static ProjectText bestCoversNothing() {
        ProjectText project(3, 1, 1, 1);
        project.set("HeteroHabitat Population", "1,2,1").set("HeteroJU Individual", "1,2,1");
        project.set("VulnerabilitybySpecies Severity", "0,1,0").set("Function1", "3,0,0");
        for (int i = 2; i <= 6; ++i) project.set("Function" + std::to_string(i), "0,0,0");
        for (int i = 1; i <= 5; ++i) project.set("Socio-Econ" + std::to_string(i), "2,0,0");
        return project;
    }

    /// Two species of equal scores, each with a habitat of its own.
    static ProjectText twoEqual() {
        ProjectText project(2, 2, 1, 1);
        project.set("HeteroHabitat Population", "2,0,0,2").set("HeteroJU Individual", "2,2");
        return project;
    }

    /// After the first pick species 2 leads and adds nothing, while species 3 and 4 have a habitat each.
    static ProjectText leaderAddsNothing() {
        ProjectText project(4, 3, 1, 1);
        project.set("HeteroHabitat Population", "2,0,0,1,0,0,0,2,0,0,0,2")
            .set("HeteroJU Individual", "2,0,0,0");
        project.set("VulnerabilitybySpecies Severity", "1,0,0,0").set("Function1", "3,3,1,0");
        for (int i = 2; i <= 6; ++i) project.set("Function" + std::to_string(i), "0,0,0,0");
        project.set("Socio-Econ1", "2,2,1,1");
        for (int i = 2; i <= 5; ++i) project.set("Socio-Econ" + std::to_string(i), "0,0,0,0");
        return project;
    }
};
