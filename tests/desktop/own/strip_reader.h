// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>
#include <QMap>

/// What a user sees on a strip.
namespace desktop_test {

/// The lines on view, from the top.
inline QStringList linesOf(const QWidget& strip) {
    QCoreApplication::sendPostedEvents();  // to see them where they are laid out
    QMap<int, QString> texts;
    for (const QLabel* label : strip.findChildren<QLabel*>()) {
        if (!label->text().isEmpty() && label->isVisible())
            texts[label->mapTo(&strip, QPoint()).y()] = label->text();
    }
    return texts.values();
}

/// The button of a caption, or of a name for screen readers, in the line whose text begins so; null for none.
inline QAbstractButton* buttonOf(const QWidget& strip, const QString& line, const QString& caption) {
    for (const QLabel* label : strip.findChildren<QLabel*>()) {
        if (!label->isVisible() || !label->text().startsWith(line)) continue;
        for (auto* button : label->parentWidget()->findChildren<QAbstractButton*>()) {
            if (button->text() == caption || button->accessibleName() == caption) return button;
        }
    }
    return nullptr;
}

}  // namespace desktop_test
