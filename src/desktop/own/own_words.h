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
/// "one, two or three", of one name at least.
QString oneOf(QStringList names);
/// That a cell does not accept a text; of its items, which there may be none of, one has to be chosen.
QString refused(const QString& text, const std::vector<std::string_view>& items);
/// Where and why pasting a block has stopped.
QString pasteStopped(const ui::PastedBlock& block);

}  // namespace desktop::own_words
