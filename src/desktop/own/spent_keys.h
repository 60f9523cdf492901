// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

namespace desktop {

/// Keeps a key that was pressed for a box from pressing a button, once the box is gone: whoever answers a row of boxes by
/// Enter presses it once too often, and the focus has stayed on the button that the boxes came from. After a box, Enter
/// and the blank reach a button only when they have rested for a while.
class SpentKeys : public QObject {
public:
    /// Looks at all events of the application.
    explicit SpentKeys(QObject& application);

    static constexpr int Pause = 600;  // milliseconds

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool resting_ = false;
    QTimer rest_;
};

}  // namespace desktop
