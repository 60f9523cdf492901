// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/frmSplash.h"

#include <utility>

#include "entry/modErrorHandling.h"

namespace {

constexpr int ShownFor = 5000;  // milliseconds
constexpr int LeastWidth = 10000;
constexpr int LeastHeight = 6000;
constexpr int PictureEdge = 100;

void center(ui::Control& control, const ui::Control& form, int top) {
    control.Left((form.Width() - control.Width()) / 2);
    control.Top(top);
}

}  // namespace

frmSplash::frmSplash(ui::Platform& platform, std::function<void()> showMainForm, ui::Size picture)
    : FormWindow(platform, "frmSplash", ui::FormBorder::None), showMainForm_(std::move(showMainForm)) {
    Caption(ui::ApplicationTitle);
    imgSplash.Move(0, 0, picture.Width, picture.Height);
    picHalvornLogo.Move(0, 0, 1200, 1200);
    lblBrenicaSoftware.Move(0, 0, 6000, 700);
    lblBrenicaSoftware.TextFont = {.Size = 28, .Bold = true};
    lblBrenicaSoftware.Alignment = ui::CellAlign::CentreCentre;
    lblVersion.Move(0, 0, 3000, 400);
    lblVersion.TextFont.Size = 14;
    lblVersion.Alignment = ui::CellAlign::CentreCentre;
    lblMerrowdaleProg.Move(0, 0, 3000, 400);
    lblMerrowdaleProg.TextFont.Size = 14;
    lblMerrowdaleProg.Alignment = ui::CellAlign::RightCentre;
    for (ui::Label* label : {&lblBrenicaSoftware, &lblVersion, &lblMerrowdaleProg}) {
        label->ForeColor = ui::rgb(20, 48, 44);  // dark on the picture's sky and water
    }
    SplashTimer.Elapsed = [this] { SplashTimer_Timer(); };
    Click = [this] { Form_Click(); };
    KeyPress = [this] { Form_KeyPress(); };
    Form_Load();
}

/// Errors are ignored once the timer runs: the program must start, however the splash looks.
void frmSplash::Form_Load() {
    SplashTimer.Interval = ShownFor;
    SplashTimer.Enabled = true;
    succeeds([&] {
        Width(imgSplash.Width() > LeastWidth ? imgSplash.Width() - PictureEdge : LeastWidth);
        Height(imgSplash.Height() > LeastHeight ? imgSplash.Height() - PictureEdge : LeastHeight);
    });
    succeeds([&] {
        picHalvornLogo.Left(100);
        picHalvornLogo.Top(Height() - 150 - picHalvornLogo.Height());
    });
    succeeds([&] {
        lblMerrowdaleProg.Left(Width() - 200 - lblMerrowdaleProg.Width());
        lblMerrowdaleProg.Top(Height() - 200 - lblMerrowdaleProg.Height());
    });
    succeeds([&] { center(lblBrenicaSoftware, *this, 400); });
    succeeds(
        [&] { center(lblVersion, *this, lblBrenicaSoftware.Top() + lblBrenicaSoftware.Height() + 200); });
}

/// The pending events that are let through may be another click: it must not start a second main form.
void frmSplash::handOver() {
    if (Unloaded() || std::exchange(handingOver_, true)) return;
    try {
        showMainForm_();
    } catch (...) {
        unloadSplash();
        throw;
    }
    platform().processPendingEvents();
    unloadSplash();
}

void frmSplash::unloadSplash() {
    SplashTimer.Enabled = false;
    Unload();
    Form_Unload();
}

void frmSplash::Form_Unload() { platform().setMousePointer(ui::MousePointer::Default); }
