// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "ui/form_window.h"
#include "ui/simple_controls.h"
#include "ui/timer.h"

/// The splash: a picture, a logo and three labels, until the timer, a click or a key hands over to the main form.
class frmSplash : public ui::FormWindow {
public:
    /// `showMainForm` shows the main form, which runs its load in full.
    /// `picture` is the size of the platform's splash picture.
    frmSplash(ui::Platform& platform, std::function<void()> showMainForm, ui::Size picture = {10000, 6000});

    ui::Picture imgSplash{*this, "imgSplash"};
    ui::Picture picHalvornLogo{*this, "picHalvornLogo"};
    ui::Label lblBrenicaSoftware{*this, "lblBrenicaSoftware", {.Caption = "Brenica Software"}};
    ui::Label lblVersion{*this, "lblVersion", {.Caption = "Version 2.0"}};
    ui::Label lblMerrowdaleProg{*this, "lblMerrowdaleProg", {.Caption = "Merrowdale Program"}};
    ui::Timer SplashTimer{*this};

private:
    void Form_Load();
    void SplashTimer_Timer() { handOver(); }
    void Form_Click() { handOver(); }
    void Form_KeyPress() { handOver(); }
    void handOver();
    void unloadSplash();
    void Form_Unload();

    std::function<void()> showMainForm_;
    bool handingOver_ = false;
};
