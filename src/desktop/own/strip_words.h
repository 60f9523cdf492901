// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

#include "desktop/own/safety_copies.h"
#include "project/form_watch.h"

namespace desktop::strip_words {

/// "today 14:32", "yesterday 9:05" or "3 May 2026, 14:32".
QString moment(const QDateTime& time, const QDateTime& now);
/// The copy in one sentence.
QString offer(const CopyOffer& offer, const QDateTime& now);
/// What is said of a copy that was just dropped.
QString dropped(const CopyOffer& offer, const QDateTime& now);
/// The project's path and that of its copy.
QString details(const CopyOffer& offer);
/// The command that failed, its file and the reason; `blocked` when its file is left as far as it was written.
QString failure(const FailedCommand& failed, bool blocked);
QString notKept(const QString& reason);
QString notSelected(SelectionObstacle obstacle);
/// Where a cell is that still has to be filled.
QString gap(const CellInWords& cell);
/// The first cells by name, the others by number.
QString notCarried(const QList<LostText>& cells);
/// All cells, one a line.
QString allCells(const QList<LostText>& cells);

}  // namespace desktop::strip_words
