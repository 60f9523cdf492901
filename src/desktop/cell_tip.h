// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QString>

class QWidget;

namespace desktop {

/// Shows a text as a tip at a place of a widget until the next key, as plain text.
void showTip(QWidget& widget, QPoint place, const QString& text);
void hideTip();

}  // namespace desktop
