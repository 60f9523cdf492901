// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>

namespace desktop {

/// The list of a cell that offers one, below its editor. Keys go to the view, which keeps the focus; a press beside the
/// list closes it.
class CellList : public QListWidget {
    Q_OBJECT

public:
    CellList(QWidget* view, int rowHeight);

    /// Shows the items below `cell`, a rectangle of the screen, or above where there is no room below.
    void open(const QStringList& items, int current, const QRect& cell);
    /// Moves the choice by an arrow or a page key; false for any other key.
    bool move(int key);

protected:
    bool event(QEvent* event) override;

private:
    QWidget* view_;
    int rowHeight_;
};

}  // namespace desktop
