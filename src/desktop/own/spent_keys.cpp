// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/spent_keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

#include "desktop/texts.h"

namespace desktop {

SpentKeys::SpentKeys(QObject& application) {
    rest_.setSingleShot(true);
    rest_.setInterval(Pause);
    rest_.callOnTimeout([this] { resting_ = false; });
    application.installEventFilter(this);
}

/// The time begins when the command that showed the box has ended, and anew with each key.
bool SpentKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowUnblocked) {
        resting_ = true;
        QMetaObject::invokeMethod(
            &rest_, [this] { rest_.start(); }, Qt::QueuedConnection);
    }
    if (!resting_ || event->type() != QEvent::KeyPress || QApplication::activeModalWidget() != nullptr) {
        return false;
    }
    const bool presses = isPress(static_cast<QKeyEvent&>(*event));
    if (!presses || qobject_cast<const QAbstractButton*>(watched) == nullptr) return false;
    rest_.start();
    return true;
}

}  // namespace desktop
