// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/cell_tip.h"

#include <QToolTip>
#include <QWidget>

#include "desktop/texts.h"

namespace desktop {

/// A tip that is about to go takes another text for a new tip, but its own for itself, and goes.
void showTip(QWidget& widget, QPoint place, const QString& text) {
    const QPoint there = widget.mapToGlobal(place);
    if (QToolTip::isVisible()) QToolTip::showText(there, " ", &widget);
    QToolTip::showText(there, plainToolTip(utf8(text)), &widget);
}

void hideTip() { QToolTip::hideText(); }

}  // namespace desktop
