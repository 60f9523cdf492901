// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "batch/scripted_platform.h"
#include "project/frmBrenica.h"
#include "selection/margin_answers.h"
#include "selection/selection_run.h"

/// A project as a planner runs it: opened, given levels, walked from page 2 to 7 and selected.
struct PlannedRun {
    std::string Project;
    std::string Margin = "5";
    std::string ThreatRepresentation = "0.5";
    std::string ConservationStatus = "1";
    std::vector<std::string> Answers{};
};

inline std::string examplePath(const std::string& name) { return BRENICA_SOURCE_DIR "/examples/" + name; }

inline PlannedRun fullLandscape() {
    return {examplePath("full_landscape.brn"), "6", "0.4", "0.8", {"b", "d", "b", "2"}};
}
inline PlannedRun smallLandscape() { return {examplePath("small_landscape.brn")}; }

inline SelectionRun selected(const PlannedRun& planned) {
    ScriptedPlatform platform;
    platform.Answers.assign(planned.Answers.begin(), planned.Answers.end());
    platform.Files.push_back(planned.Project);
    ui::Files files;
    modGlobal global;
    frmBrenica form{platform, files, global};
    form.mnuNewProject.UserClick();
    form.mnuOpenProject.UserClick();
    const auto put = [](ui::TextBox& box, const std::string& level) {
        box.UserFocus();
        box.UserPaste(level);
    };
    put(form.txtErrorMargin, planned.Margin);
    put(form.txtThreatRep, planned.ThreatRepresentation);
    put(form.txtCCSRep, planned.ConservationStatus);
    for (int page = 2; page <= 7; ++page) form.tabBrenica.UserSelectTab(page);
    try {
        form.cmdComplement.UserClick();
    } catch (const std::exception&) {
        // A run that ends in an error is a run.
    }
    return form.TakeSelectionRun().value();
}
