// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "scripted/selection_aside.h"

/// What is said of reports, from own_texts.h.
namespace desktop::report_words {

/// Why a project cannot be explained, in one sentence or two.
QString whyNone(const SelectionAside& aside);
QString whyNone(const QString& reason);

/// The name of a project's file for people; there may be none.
QString projectName(const QString& path);
/// The name of a folder for people, as seen from their own.
QString folderName(const QString& path);
/// The file that a report of the project is proposed to be saved in: beside it where that folder can be written.
QString proposedFile(const QString& projectPath);

}  // namespace desktop::report_words
