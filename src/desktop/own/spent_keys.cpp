// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/spent_keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

namespace desktop {

namespace {

bool pressesButton(const QObject* target, const QKeyEvent& key) {
    const bool presses =
        key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Space;
    return presses && qobject_cast<const QAbstractButton*>(target) != nullptr;
}

}  // namespace

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
    if (!pressesButton(watched, static_cast<QKeyEvent&>(*event))) return false;
    rest_.start();
    return true;
}

}  // namespace desktop
