// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "desktop/own/strip.h"

class QLabel;
class QToolButton;

namespace desktop {

/// The widgets of one line: its picture, its text, which breaks where the window is narrow, and its buttons.
class StripRow : public QWidget {
public:
    StripRow(StripLine line, QWidget* parent);

    bool shows(const StripLine& line) const;
    /// Takes over what the line runs, and its progress; what else it shows must be the same.
    void take(StripLine line);
    /// Those that can be pressed, from left to right.
    const std::vector<QWidget*>& buttons() const { return buttons_; }
    /// Tells screen readers that the line has come.
    void announce();
    void followPalette();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showText();
    void addButton(QToolButton* button, std::function<void(const StripLine&)> run);
    QColor background() const;

    StripLine line_;
    QLabel* picture_;
    QLabel* text_;
    std::vector<QWidget*> buttons_;
};

}  // namespace desktop
