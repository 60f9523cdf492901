// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace desktop {

/// Shows a page of the guide in the system's browser. Where that cannot be, a box of the owner says why.
void showGuide(QWidget* owner, const QString& page);
/// A text in a box of the program.
void tellInBox(QWidget* owner, const QString& text);

}  // namespace desktop
