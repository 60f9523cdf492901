// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/window_strip.h"

#include <QShortcut>

namespace desktop {

WindowStrip::WindowStrip(FormView& window, frmBrenica& form, ui::Files& files, SafetyCopies& copies)
    : strip_(new Strip(&window)), watch_(form, files), lines_(*strip_, copies, watch_) {
    window.placeAtEdge(*strip_);
    QObject::connect(strip_, &Strip::heightChanged, &window, &FormView::followEdge);
    QObject::connect(new QShortcut(Qt::Key_F6, &window), &QShortcut::activated, &lines_, &StripLines::enter);
}

void WindowStrip::look(bool programEnds) {
    watch_.look(programEnds);
    lines_.follow();
}

}  // namespace desktop
