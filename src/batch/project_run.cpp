// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/project_run.h"

#include <ostream>

#include "batch/usage_fault.h"
#include "project/project_file.h"
#include "scripted/page_walk.h"
#include "ui/text.h"

namespace {

/// In one piece: standard error keeps nothing back.
void printBox(std::ostream& err, const ShownBox& box) {
    std::string lines = box.Title + ": " + withBreaks(box.Text, "\n  ") + '\n';
    if (box.BoxKind != ShownBox::Kind::Message) lines += "  > " + box.Answer + '\n';
    err << lines;
}

}  // namespace

std::string withBreaks(std::string_view text, std::string_view lineBreak) {
    std::string shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n') continue;
        if (text[i] != '\r') {
            shown += text[i];
        } else if (text.find_first_not_of("\r\n", i) != std::string_view::npos) {
            shown += lineBreak;
        }
    }
    return shown;
}

ProjectRun::ProjectRun(const RunOptions& options, std::ostream& err)
    : options_(options), err_(err), form_(platform_, files_, global_) {
    platform_.Draws = false;
    platform_.Answers.assign(options.Answers.begin(), options.Answers.end());
    platform_.OnBox = [this](const ShownBox& box) { printBox(err_, box); };
    checkLevel(form_.txtErrorMargin, options_.ErrorMargin, "--error-margin");
    checkLevel(form_.txtThreatRep, options_.ThreatRepresentation, "--threat-representation");
    checkLevel(form_.txtCCSRep, options_.ConservationStatus, "--conservation-status");
}

void ProjectRun::checkLevel(const ui::TextBox& box, const std::optional<std::string>& level,
                            const char* option) const {
    if (!level) return;
    for (const NumberBox& row : form_.NumberBoxes()) {
        if (row.Box != &box) continue;
        // A comma is a mark between thousands; whoever types it here means a decimal one.
        const bool hasComma = level->find(',') != std::string::npos;
        const auto value = ui::tryReal(*level, form_.Separator());
        if (!hasComma && value && *value >= ui::toReal(row.Minimum) && *value <= ui::toReal(row.Maximum))
            return;
        throw UsageFault{std::string(option) + ": '" + *level + "' is no number from " + row.Minimum +
                         " to " + row.Maximum};
    }
}

ExitCode ProjectRun::select() {
    try {
        form_.mnuNewProject.UserClick();
        if (!openProject()) return ExitUnreadableProject;
        putLevel(form_.txtErrorMargin, options_.ErrorMargin);
        putLevel(form_.txtThreatRep, options_.ThreatRepresentation);
        putLevel(form_.txtCCSRep, options_.ConservationStatus);
        return walkAndSelect();
    } catch (const std::exception& error) {
        error_ = error.what();
        return ExitUnexpectedError;
    }
}

/// The form swallows a fault of the file; the files have kept it.
bool ProjectRun::openProject() {
    platform_.Files.push_back(options_.Project);
    form_.mnuOpenProject.UserClick();
    hasDefaults_ = !platform_.Transcript.empty();
    const auto& fault = files_.LastFault();
    const bool wasRead = !fault || fault->Line > 0;
    if (wasRead && files_.LinesEnded() == 0) return sayUnreadable(projectfile::NoLineEnds);
    if (fault)
        return sayUnreadable(withBreaks(fault->Error.Description, " "), fault->ReadWhole ? 0 : fault->Line);
    return global_.ProjectFileName == options_.Project || sayUnreadable("cannot be opened");
}

bool ProjectRun::sayUnreadable(const std::string& reason, int line) {
    err_ << ProgramName << ": " << options_.Project;
    if (line > 0) err_ << ':' << line;
    err_ << ": " << reason << '\n';
    return false;
}

void ProjectRun::putLevel(ui::TextBox& box, const std::optional<std::string>& level) {
    if (!level) return;
    box.UserFocus();
    box.UserPaste(*level);
}

ExitCode ProjectRun::walkAndSelect() {
    const PageWalk walk = walkToSelection(form_);
    if (walk.RefusedPage > 0)
        err_ << ProgramName << ": page " << walk.RefusedPage
             << " may not be left before its rows are complete\n";
    for (const char* list : walk.EmptyLists)
        err_ << ProgramName << ": nothing to score: the project has no " << list << '\n';
    if (!walk.MaySelect) return ExitNothingToScore;
    answersLeft_.assign(platform_.Answers.begin(), platform_.Answers.end());
    form_.cmdComplement.UserClick();
    return ExitDone;
}
