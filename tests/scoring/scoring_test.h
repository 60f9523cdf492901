// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/columns.h"
#include "support/form_test.h"

inline constexpr ui::Colour White = ui::rgb(255, 255, 255);
inline constexpr ui::Colour TotalsCyan = ui::rgb(128, 255, 255);
inline constexpr ui::Colour ThreatenedYellow = ui::rgb(255, 255, 192);

/// What tests of tables and scores share.
class ScoringTest : public FormTest {
protected:
    ui::Grid& table(int member) { return form.flxSummary(member); }
    std::vector<std::string> tableRow(int member, int row) { return rowOf(table(member), row); }

    /// Opens a project and goes straight to a page.
    void openAt(const ProjectText& project, int page) {
        open(project);
        goTo(page);
    }
    std::string description(int page) {
        return failureOf([&] { goTo(page); }).Description;
    }
};
