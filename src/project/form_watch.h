// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "project/project_copy.h"
#include "project/selection_obstacle.h"
#include "ui/files.h"

class frmBrenica;

/// A command on a file that failed, of which the form has said nothing or not all.
struct FailedCommand {
    enum class Kind { Save, Open, ExportResults, ExportTable, Import };

    Kind What = Kind::Save;
    std::string Path;    ///< empty where the command itself named no file
    int Line = 0;        ///< reached in the file, 0 before the first
    std::string Reason;  ///< a description without a full stop
    // Of a failed opening.
    bool ReadWhole = false;  ///< the file was read to its end, and what it holds is at fault
    bool IsInView = true;    ///< the window still shows what the opening has left
    std::string SavesTo{};   ///< the path that a save proposes all the same; empty for none
};

/// Looks on while a form runs and keeps what has gone wrong in silence, for whoever tells the user: each failure as long
/// as the same command has not succeeded and nobody has asked to forget it. One watch for a form.
class FormWatch {
public:
    FormWatch(frmBrenica& form, ui::Files& files);
    ~FormWatch();
    FormWatch(const FormWatch&) = delete;
    FormWatch& operator=(const FormWatch&) = delete;

    /// To be called after each user action; `programEnds` after one that has ended in an error box.
    void look(bool programEnds = false);

    /// The newest first, one for each kind of command.
    const std::vector<FailedCommand>& failures() const { return failures_; }
    void forget(FailedCommand::Kind kind);
    /// Keeps a failure that others have seen.
    void note(FailedCommand failure);

    // What a failure has left behind for the rest of the run.
    bool savingIsBlocked() const;
    /// Open, Import and the export of results, which share a file number.
    bool readingIsBlocked() const;

    /// What has kept a selection from running, until it is out of the way or somebody forgets it.
    std::optional<SelectionObstacle> selectionObstacle() const { return obstacle_; }
    void forgetObstacle() { obstacle_ = {}; }

    /// The first cell that still has to be filled before there are scores or a suite, until something else stands there or
    /// somebody forgets it.
    const std::optional<CellInWords>& gap() const { return gap_; }
    void forgetGap() { gap_ = {}; }

private:
    void noteStep(ProjectStep step, const std::string& path);
    void lookAtGap();
    void followSavesTo();
    void lookAtObstacle();
    FailedCommand failureOf(const ui::FileFault& fault, FailedCommand::Kind kind) const;

    frmBrenica& form_;
    ui::Files& files_;
    std::vector<FailedCommand> failures_;
    std::optional<SelectionObstacle> obstacle_;
    std::optional<MissingCell> missing_;  ///< that was last looked at
    std::optional<CellInWords> gap_;
};
