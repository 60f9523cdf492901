// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "project/frmBrenica.h"

/// The views of the main form, one after the other, and what a layout promises of the controls on view. Without a
/// framework for tests, as the form's own tests and the window's share it.
namespace form_views {

/// On view with all that it stands in.
inline bool onView(const ui::Control& control) {
    if (control.Kind() == ui::ControlKind::Form) return true;
    return control.Visible() && onView(control.Container());
}

inline std::vector<ui::Control*> shownControls(const ui::FormWindow& form) {
    std::vector<ui::Control*> shown;
    for (ui::Control* control : form.Controls()) {
        if (control->Kind() != ui::ControlKind::MenuItem && onView(*control)) shown.push_back(control);
    }
    return shown;
}

inline bool overlap(const ui::Control& a, const ui::Control& b) {
    return a.Left() < b.Left() + b.Width() && b.Left() < a.Left() + a.Width() &&
           a.Top() < b.Top() + b.Height() && b.Top() < a.Top() + a.Height();
}

inline std::string describe(const ui::Control& control) {
    return control.Name() + " at " + std::to_string(control.Left()) + "," + std::to_string(control.Top()) +
           " " + std::to_string(control.Width()) + "x" + std::to_string(control.Height());
}

/// The longest text that a box admits.
inline std::string longestText(const frmBrenica& form, const ui::TextBox& box) {
    if (&box == &form.txtContinuousHR) return "10000000";
    const std::set<const ui::TextBox*> proportions = {&form.txtPropOccupied, &form.txtCCS, &form.txtCCSRep,
                                                      &form.txtThreatRep, &form.txtErrorMargin};
    return proportions.count(&box) != 0 ? "0.999999" : "1000";
}

/// Calls `check` with each view of the form: every page, tab, list, display and result.
inline void onEveryView(frmBrenica& form, const std::function<void(const std::string&)>& check) {
    const auto goTo = [&form](int page) { form.tabBrenica.UserSelectTab(page); };
    const auto onEach = [&check](int first, int last, const char* what, const auto& choose) {
        for (int i = first; i <= last; ++i) {
            choose(i);
            check(what + std::to_string(i));
        }
    };
    goTo(1);
    check("species");
    goTo(2);
    onEach(0, 4, "list ", [&](int i) { form.optLandChar(i).UserClick(); });
    goTo(3);
    onEach(1, 5, "criterion ", [&](int tab) { form.tabCriteria.UserSelectTab(tab); });
    goTo(4);
    onEach(1, 9, "summary ", [&](int tab) { form.tabCriteriaSummary.UserSelectTab(tab); });
    goTo(5);
    onEach(1, 8, "graph ", [&](int tab) { form.tabGraphSummary.UserSelectTab(tab); });
    goTo(6);
    onEach(0, 1, "scores ", [&](int display) {
        form.optScoreDisplay(display).UserClick();
        check("scores " + std::to_string(display));
        form.chkShowGraphs.UserClick();
        check("score chart " + std::to_string(display));
        form.chkShowAggregateScore.UserClick();
        check("score chart without aggregate " + std::to_string(display));
        form.chkShowAggregateScore.UserClick();
        form.chkShowGraphs.UserClick();
    });
    goTo(7);
    onEach(0, 3, "results ", [&](int i) { form.optCompResults(i).UserClick(); });
}

}  // namespace form_views
