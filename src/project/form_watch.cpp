// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/form_watch.h"

#include <utility>

#include "project/frmBrenica.h"
#include "project/pages.h"
#include "project/project_file.h"
#include "ui/file_numbers.h"

namespace {

using Kind = FailedCommand::Kind;

/// Which command uses a file number in which way. Import reads as Open does.
struct FileUse {
    ui::FileMode Mode;
    int Number;
    Kind Command;
};

constexpr FileUse FileUses[] = {{ui::FileMode::Output, ui::filenumber::Save, Kind::Save},
                                {ui::FileMode::Input, ui::filenumber::Shared, Kind::Open},
                                {ui::FileMode::Output, ui::filenumber::Shared, Kind::ExportResults},
                                {ui::FileMode::Output, ui::filenumber::Table, Kind::ExportTable}};

std::optional<Kind> commandOf(ui::FileMode mode, int number) {
    for (const FileUse& use : FileUses) {
        if (use.Mode == mode && use.Number == number) return use.Command;
    }
    return {};
}

}  // namespace

FormWatch::FormWatch(frmBrenica& form, ui::Files& files) : form_(form), files_(files) {
    // What a failed opening has left ends with the next project; Import closes the same number.
    files_.Closed = [this](ui::FileMode mode, int number) {
        const auto kind = commandOf(mode, number);
        if (kind && kind != Kind::Open) forget(*kind);
    };
    form_.ProjectStepTaken.Join(this,
                                [this](ProjectStep step, const std::string& path) { noteStep(step, path); });
    form_.SelectionRefused = [this](SelectionObstacle obstacle) { obstacle_ = obstacle; };
}

FormWatch::~FormWatch() {
    files_.Closed = nullptr;
    form_.ProjectStepTaken.Leave(this);
    form_.SelectionRefused = nullptr;
}

/// New and Open end what a failed opening has left in the window. What it has left open stays so.
void FormWatch::noteStep(ProjectStep step, const std::string& path) {
    if (step == ProjectStep::Opened && files_.LinesEnded() == 0)
        return note({Kind::Open, path, 0, projectfile::NoLineEnds, false, true, path});
    if (step != ProjectStep::Left) return;
    forgetGap();
    if (!readingIsBlocked()) return forget(Kind::Open);
    for (FailedCommand& failure : failures_) failure.IsInView = false;
}

/// A save under another name, or New, has given the project another path.
void FormWatch::followSavesTo() {
    for (FailedCommand& failure : failures_) {
        if (failure.SavesTo != form_.Global().ProjectFileName) failure.SavesTo.clear();
    }
}

FailedCommand FormWatch::failureOf(const ui::FileFault& fault, Kind kind) const {
    FailedCommand failure{kind, fault.Path, fault.Line, fault.Error.Description, fault.ReadWhole};
    if (kind == Kind::Open) failure.SavesTo = form_.Global().ProjectFileName;
    return failure;
}

void FormWatch::look(bool programEnds) {
    lookAtObstacle();
    lookAtGap();
    followSavesTo();
    const auto fault = files_.LastFault();
    if (!fault) return;
    files_.ClearLastFault();
    auto kind = commandOf(fault->Mode, fault->Number);
    if (!kind) return;
    if (kind == Kind::Open && programEnds) kind = Kind::Import;
    // The save that failed half-way stands there already, and tells what no save without a name can change.
    if (kind == Kind::Save && fault->Path.empty() && savingIsBlocked()) return;
    note(failureOf(*fault, *kind));
}

void FormWatch::note(FailedCommand failure) {
    forget(failure.What);
    failures_.insert(failures_.begin(), std::move(failure));
}

/// What is changed on other pages tells when the results come back on view.
void FormWatch::lookAtObstacle() {
    if (!obstacle_) return;
    const int shown = form_.CurrentMainTab;
    if (!form_.Global().ScoresCalculated || shown == page::Scores) obstacle_ = {};
    if (obstacle_ && shown == page::Results) obstacle_ = form_.FindSelectionObstacle();
}

/// A row that was removed, or whose species has another name, is none that was found.
void FormWatch::lookAtGap() {
    const auto& missing = form_.FirstMissing();
    std::optional<CellInWords> words;
    if (missing && missing->Grid->HasCell(missing->Row, missing->Column))
        words = form_.InWords(*missing->Grid, missing->Row, missing->Column);
    if (std::exchange(missing_, missing) != missing) {
        gap_ = std::move(words);
    } else if (gap_ != words) {
        forgetGap();
    }
}

void FormWatch::forget(Kind kind) {
    std::erase_if(failures_, [kind](const FailedCommand& failure) { return failure.What == kind; });
}

bool FormWatch::savingIsBlocked() const { return files_.IsOpen(ui::filenumber::Save); }

bool FormWatch::readingIsBlocked() const { return files_.IsOpen(ui::filenumber::Shared); }
