// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "ui/grid.h"

/// How the window puts its own texts, from own_texts.h, into words.
namespace desktop::own_words {

QString said(const char* text);
/// The text with its middle left out where it is longer.
QString shortened(const QString& text, int longest);
/// A sentence as it stands within another one, without the stop at its end.
QString clause(const QString& sentence);
/// "1 cell", "12 cells".
QString cells(qsizetype count);
/// Where and why pasting a block has stopped.
QString pasteStopped(const ui::PastedBlock& block);

}  // namespace desktop::own_words
