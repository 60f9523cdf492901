// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeySequence>
#include <QString>
#include <functional>
#include <vector>

class QMenuBar;

namespace desktop {

/// A menu of the window's own, or an entry of one; without a caption, a line between entries.
struct OwnEntry {
    QString Name;
    QString Caption;              ///< with an ampersand before the letter of its access key
    std::function<void()> Run{};  ///< nothing for a menu
    QKeySequence Keys{};
    std::vector<OwnEntry> Entries{};
};

/// Puts a menu behind those that the bar has.
void addMenu(QMenuBar& bar, const OwnEntry& menu);

}  // namespace desktop
