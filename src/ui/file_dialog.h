// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "ui/errors.h"
#include "ui/platform.h"

namespace ui {

/// The one dialogue that asks for files; its settings stay from one command to the next.
class FileDialog {
public:
    explicit FileDialog(Platform& platform) : platform_(platform) {}

    std::string FileName;
    std::string Filter;
    std::string DefaultExt;
    std::string InitDir;
    int FilterIndex = 0;
    int Flags = 0;
    /// Whether Cancel raises Cancelled; otherwise it leaves FileName as it was.
    bool CancelError = false;
    /// The file that the next question for one to open is answered with, without a dialogue.
    std::optional<std::string> Chosen;

    void ShowOpen() { show(FileDialogKind::Open); }
    void ShowSave() { show(FileDialogKind::Save); }

private:
    void show(FileDialogKind kind) {
        const auto chosen = kind == FileDialogKind::Open && Chosen
                                ? std::exchange(Chosen, std::nullopt)
                                : platform_.chooseFile({kind, FileName, Filter, DefaultExt, InitDir, Flags});
        if (chosen) {
            FileName = *chosen;
        } else if (CancelError) {
            raise(ErrorNumber::Cancelled);
        }
    }

    Platform& platform_;
};

}  // namespace ui
