// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

namespace desktop_test {

/// What a user does with the boxes that come up while a call waits, one step after the other. A step that returns false
/// is tried again.
class User : public QObject {
public:
    using Step = std::function<bool(QWidget& box)>;

    explicit User(QList<Step> steps) : steps_(std::move(steps)) { lookAgain(); }
    bool done() const { return next_ == steps_.size(); }

private:
    /// A timer of its own each time, since one that has fired waits until its step has returned.
    void lookAgain() {
        QTimer::singleShot(1, this, [this] { act(); });
    }

    void act() {
        if (done()) return;
        lookAgain();
        QWidget* box = QApplication::activeModalWidget();
        if (box == nullptr) return;
        const qsizetype step = next_++;  // before the step, which may open a box of its own
        if (!steps_[step](*box)) next_ = step;
    }

    QList<Step> steps_;
    qsizetype next_ = 0;
};

inline User::Step press(Qt::Key key) {
    return [key](QWidget& box) {
        QTest::keyClick(box.focusWidget() != nullptr ? box.focusWidget() : &box, key);
        return true;
    };
}

inline User::Step click(QDialogButtonBox::StandardButton which) {
    return [which](QWidget& box) {
        QTest::mouseClick(box.findChild<QDialogButtonBox*>()->button(which), Qt::LeftButton);
        return true;
    };
}

inline const QLabel& textOf(const QWidget& box) {
    for (const QLabel* label : box.findChildren<QLabel*>()) {
        if (!label->text().isEmpty()) return *label;
    }
    qFatal("a box without a text");
}

}  // namespace desktop_test
