// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "ui/control.h"

class QKeyEvent;

namespace desktop {

/// A text of the form as a widget shows it: a carriage return begins a new line.
QString shownText(std::string_view text);
/// As much of a text on one line as any screen has room for; longer ones would be shaped in vain.
QString shortText(std::string_view text);
/// A caption for a widget that underlines access keys: its own ampersands stand for themselves.
QString captionWithAccessKey(const ui::Control& control);
/// A tool tip that Qt does not take for marked-up text.
QString plainToolTip(std::string_view text);
std::string utf8(const QString& text);
/// The key of all tables that copies cells with what stands above and before them.
inline constexpr QKeyCombination CopyWithHeadingsKeys = Qt::CTRL | Qt::SHIFT | Qt::Key_C;
/// Whether a key types its text, rather than being a command.
bool isTyping(const QKeyEvent& event);
/// Whether a key presses the button that has the focus: Enter as well as the blank.
bool isPress(const QKeyEvent& event);
/// Where a character begins in Qt's text, whose units are halves of some characters, and the character at a unit.
int unitOf(const QString& text, int character);
int characterOf(const QString& text, int unit);

}  // namespace desktop
