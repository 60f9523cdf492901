// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "project/frmBrenica.h"
#include "project/frmSplash.h"

/// The running program: its forms, its files and its fields. Two can live side by side.
class Program {
public:
    explicit Program(ui::Platform& platform) : platform_(platform) {}

    /// Shows the splash and returns; the program then lives on the forms' events.
    void Main();

    frmSplash* Splash() const { return splash_.get(); }
    /// Nothing until the splash hands over.
    frmBrenica* MainForm() const { return mainForm_.get(); }
    /// Whether the program has ended: its main form was unloaded, or the splash before there was one.
    bool Ended() const {
        if (mainForm_ != nullptr) return mainForm_->Unloaded();
        return splash_ != nullptr && splash_->Unloaded();
    }
    ui::Files& GetFiles() { return files_; }
    modGlobal& Global() { return global_; }

private:
    ui::Platform& platform_;
    ui::Files files_;
    modGlobal global_;
    std::unique_ptr<frmSplash> splash_;
    std::unique_ptr<frmBrenica> mainForm_;
};
