// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>
#include <string>

#include "ui/platform.h"

class QWidget;

namespace desktop {

/// A flag of a request to save: over another file only if the user says so.
inline constexpr int AskBeforeOverwriting = 2;

/// The desktop's own dialogue for files where it has one, otherwise Qt's. Gives the path chosen, in a folder that exists
/// and with an extension. `lastFolder` is where a dialogue opens that names no folder; it becomes the chosen file's.
std::optional<std::string> showFileDialogue(QWidget* parent, const ui::FileDialogRequest& request,
                                            QString& lastFolder);

}  // namespace desktop
