// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/form_watch.h"

#include "project/frmBrenica.h"
#include "project/pages.h"

namespace {

using Kind = FailedCommand::Kind;

/// Which command uses a file number in which way. Import reads as Open does.
struct FileUse {
    ui::FileMode Mode;
    int Number;
    Kind Command;
};

constexpr int SharedNumber = 1;
constexpr int SaveNumber = 2;
constexpr FileUse FileUses[] = {{ui::FileMode::Output, SaveNumber, Kind::Save},
                                {ui::FileMode::Input, SharedNumber, Kind::Open},
                                {ui::FileMode::Output, SharedNumber, Kind::ExportResults},
                                {ui::FileMode::Output, 3, Kind::ExportTable}};

std::optional<Kind> commandOf(ui::FileMode mode, int number) {
    for (const FileUse& use : FileUses) {
        if (use.Mode == mode && use.Number == number) return use.Command;
    }
    return {};
}

}  // namespace

FormWatch::FormWatch(frmBrenica& form, ui::Files& files) : form_(form), files_(files) {
    files_.Closed = [this](ui::FileMode mode, int number) {
        if (const auto kind = commandOf(mode, number)) forget(*kind);
    };
    form_.SelectionRefused = [this](SelectionObstacle obstacle) { obstacle_ = obstacle; };
}

FormWatch::~FormWatch() {
    files_.Closed = nullptr;
    form_.SelectionRefused = nullptr;
}

FailedCommand FormWatch::failureOf(const ui::FileFault& fault, Kind kind) const {
    FailedCommand failure{kind, fault.Path, fault.Line, fault.Error.Description};
    if (kind == Kind::Open) failure.SavesTo = form_.Global().ProjectFileName;
    return failure;
}

void FormWatch::look(bool programEnds) {
    lookAtObstacle();
    const auto fault = files_.LastFault();
    if (!fault) return;
    files_.ClearLastFault();
    auto kind = commandOf(fault->Mode, fault->Number);
    if (!kind) return;
    if (kind == Kind::Open && programEnds) kind = Kind::Import;
    forget(*kind);
    failures_.insert(failures_.begin(), failureOf(*fault, *kind));
}

/// What is changed on other pages tells when the results come back on view.
void FormWatch::lookAtObstacle() {
    if (!obstacle_) return;
    const int shown = form_.CurrentMainTab;
    if (!form_.Global().ScoresCalculated || shown == page::Scores) obstacle_ = {};
    if (obstacle_ && shown == page::Results) obstacle_ = form_.FindSelectionObstacle();
}

void FormWatch::forget(Kind kind) {
    std::erase_if(failures_, [kind](const FailedCommand& failure) { return failure.What == kind; });
}

bool FormWatch::savingIsBlocked() const { return files_.IsOpen(SaveNumber); }

bool FormWatch::readingIsBlocked() const { return files_.IsOpen(SharedNumber); }
