// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "batch/batch_run.h"
#include "batch/options.h"
#include "project/frmBrenica.h"
#include "scripted/scripted_platform.h"

/// A text with its CR and CR LF breaks replaced, but for those at its end, which go.
std::string withBreaks(std::string_view text, std::string_view lineBreak);

/// A project in a form of its own, opened, walked through and selected from by the form's user actions. Boxes go to `err`
/// as they come, and so do faults of the project.
class ProjectRun {
public:
    /// Throws UsageFault for a level that is out of its bounds. The options must outlive the run.
    ProjectRun(const RunOptions& options, std::ostream& err);

    /// To be called once.
    ExitCode select();
    /// The answers that were left when the selection began.
    const std::vector<std::string>& answersLeft() const { return answersLeft_; }
    /// Whether opening the file showed a message: default values were put in for what a file of version 1 lacks.
    bool hasDefaults() const { return hasDefaults_; }
    /// The report of an unexpected error, as the form gives it.
    const std::string& error() const { return error_; }

    frmBrenica& form() { return form_; }
    ui::Files& files() { return files_; }
    ScriptedPlatform& platform() { return platform_; }

private:
    void checkLevel(const ui::TextBox& box, const std::optional<std::string>& level,
                    const char* option) const;
    bool openProject();
    bool sayUnreadable(const std::string& reason, int line = 0);
    void putLevel(ui::TextBox& box, const std::optional<std::string>& level);
    ExitCode walkAndSelect();

    const RunOptions& options_;
    std::ostream& err_;
    ScriptedPlatform platform_;
    ui::Files files_;
    modGlobal global_;
    frmBrenica form_;
    std::vector<std::string> answersLeft_;
    bool hasDefaults_ = false;
    std::string error_;
};
