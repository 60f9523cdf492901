// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <optional>
#include <string>

#include "batch/scripted_platform.h"
#include "project/frmBrenica.h"

/// What a planner puts in before a selection; levels are left as they are where none is given.
struct PlannersWay {
    std::string ErrorMargin{};
    std::string ThreatRepresentation{};
    std::string ConservationStatus{};
    std::deque<std::string> Answers{};
};

/// The run of a project file through the form, by user actions.
inline std::optional<SelectionRun> runOfProject(const std::string& path, const PlannersWay& way = {}) {
    ScriptedPlatform platform;
    ui::Files files;
    modGlobal global;
    frmBrenica form(platform, files, global);
    platform.Answers = way.Answers;
    platform.Files.push_back(path);
    form.mnuNewProject.UserClick();
    form.mnuOpenProject.UserClick();
    const auto put = [](ui::TextBox& box, const std::string& text) {
        if (text.empty()) return;
        box.UserFocus();
        box.UserPaste(text);
    };
    put(form.txtErrorMargin, way.ErrorMargin);
    put(form.txtThreatRep, way.ThreatRepresentation);
    put(form.txtCCSRep, way.ConservationStatus);
    for (int page = 2; page <= 7; ++page) form.tabBrenica.UserSelectTab(page);
    form.cmdComplement.UserClick();
    return form.TakeSelectionRun();
}

inline std::string examplePath(const std::string& name) {
    return std::string(BRENICA_SOURCE_DIR) + "/examples/" + name;
}
