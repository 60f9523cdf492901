// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted/selection_aside.h"

#include <exception>
#include <fstream>
#include <memory>

#include "project/frmBrenica.h"
#include "scripted/scripted_platform.h"
#include "ui/text.h"

namespace {

/// Nobody is there to be asked, and nothing is drawn.
struct QuietPlatform : ScriptedPlatform {
    explicit QuietPlatform(ui::DecimalSeparator separator) {
        Draws = false;
        Agrees = false;
        Separator = separator;
    }
};

struct FormAside {
    explicit FormAside(ui::DecimalSeparator separator) : Platform(separator) {}

    QuietPlatform Platform;
    ui::Files Files{};
    modGlobal Global{};
    frmBrenica Form{Platform, Files, Global};
};

/// A form with this file; null where that cannot be read to its end.
std::unique_ptr<FormAside> opened(const std::string& path, ui::DecimalSeparator separator) {
    auto aside = std::make_unique<FormAside>(separator);
    aside->Form.UserOpenFile(path);
    const bool isRead = !aside->Files.LastFault() && aside->Global.ProjectFileName == path;
    return isRead ? std::move(aside) : nullptr;
}

/// The same for a file that anything may stand in.
std::unique_ptr<FormAside> openedIfItIs(const ProjectCopy& project, const std::string& path,
                                        ui::DecimalSeparator separator, SelectionAside& told) try {
    if (path.empty()) return nullptr;
    auto aside = opened(path, separator);
    told.HasDefaults = aside != nullptr && !aside->Platform.Transcript.empty();
    const bool isSame = aside != nullptr && aside->Form.TakeCopy().isSameProjectAs(project);
    return isSame ? std::move(aside) : nullptr;
} catch (const std::exception&) {
    return nullptr;
}

std::unique_ptr<FormAside> openedCopy(const ProjectCopy& project, const std::string& path,
                                      ui::DecimalSeparator separator) {
    std::ofstream file(path, std::ios::binary);
    file << project.Text << std::flush;
    auto aside = file ? opened(path, separator) : nullptr;
    if (aside == nullptr) ui::raise(ui::ErrorNumber::DeviceIoError);
    return aside;
}

void putLevels(frmBrenica& form, const modGlobal& levels) {
    form.txtErrorMargin.Text(ui::toText(levels.ErrorMargin));
    form.txtThreatRep.Text(ui::toText(levels.ThreatRepresentation));
    form.txtCCSRep.Text(ui::toText(levels.ConservationStatusRepresentation));
}

/// A missing status would only show in an error of the calculation.
void lookForStatus(const frmBrenica& form, SelectionAside& told) {
    const int species = form.FirstWithoutStatus();
    if (species == 0) return;
    told.Obstacle = SelectionObstacle::NoStatus;
    told.Gap =
        form.InWords(form.flxSummary(summary::Vulnerability), species, vulnerability::ConservationStatus);
}

void lookForGap(const frmBrenica& form, SelectionAside& told) {
    if (const auto& missing = form.FirstMissing())
        told.Gap = form.InWords(*missing->Grid, missing->Row, missing->Column);
    else if (!told.Error.empty())
        lookForStatus(form, told);
}

void walkAndSelect(FormAside& aside, const std::vector<std::string>& answers, SelectionAside& told) {
    frmBrenica& form = aside.Form;
    form.SelectionRefused = [&told](SelectionObstacle obstacle) { told.Obstacle = obstacle; };
    aside.Platform.Transcript.clear();
    try {
        told.Walk = walkToSelection(form);
        aside.Platform.Answers.assign(answers.begin(), answers.end());
        if (told.Walk.MaySelect) form.cmdComplement.UserClick();
    } catch (const std::exception& error) {
        told.Error = error.what();
    }
    if (!aside.Platform.Transcript.empty()) told.Told = aside.Platform.Transcript.back().Text;
    told.Run = form.TakeSelectionRun();
    if (!told.Run) lookForGap(form, told);
}

bool sayTheSame(const ui::Grid& one, const ui::Grid& other) {
    if (one.Rows() != other.Rows() || one.Cols() != other.Cols()) return false;
    for (int row = 0; row < one.Rows(); ++row) {
        for (int col = 0; col < one.Cols(); ++col) {
            if (one.TextMatrix(row, col) != other.TextMatrix(row, col)) return false;
        }
    }
    return true;
}

bool showTheSameSelection(const frmBrenica& one, const frmBrenica& other) {
    if (!sayTheSame(one.flxBrenicSuite, other.flxBrenicSuite)) return false;
    for (int i = 0; i < one.flxCompResults.Count(); ++i) {
        if (!sayTheSame(one.flxCompResults(i), other.flxCompResults(i))) return false;
    }
    return true;
}

}  // namespace

SelectionAside selectAside(const frmBrenica& form, const AsideFiles& files) {
    const ProjectCopy project = form.TakeCopy();
    SelectionAside told;
    auto aside = openedIfItIs(project, files.Saved, form.Separator(), told);
    told.IsSaved = aside != nullptr;
    if (aside == nullptr) aside = openedCopy(project, files.Copy, form.Separator());
    aside->Form.RestoreCopy(project, "");
    const auto& onView = form.Outcome();
    if (onView) putLevels(aside->Form, form.Global());
    walkAndSelect(*aside, onView ? onView->Answers : std::vector<std::string>(), told);
    told.IsOnView = onView && told.Run && showTheSameSelection(form, aside->Form);
    return told;
}
