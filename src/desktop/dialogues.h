// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <string>

#include "ui/platform.h"

class QDialogButtonBox;
class QScrollArea;
class QVBoxLayout;

namespace desktop {

/// A modal box: an icon, a plain text that is broken into lines and scrolls where the screen is too low for it, and
/// buttons.
class Box : public QDialog {
public:
    Box(QWidget* parent, const std::string& title, const std::string& text);

    void setIcon(ui::MessageIcon icon);
    /// A line in small print under the text, which belongs to what the box says.
    void addNote(const QString& note);
    /// A line to answer in, with the proposed answer selected.
    QLineEdit& addAnswer(const std::string& proposed);
    QDialogButtonBox& buttons() { return *buttons_; }
    /// Escape and the close box then do nothing: one of the buttons has to be pressed.
    void mustBeAnswered() { mustBeAnswered_ = true; }

    void reject() override;

protected:
    /// Keys of the answer that are not its own: paging through the text, and a held Enter, which answers nothing.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeText(const QString& text);

    QLabel* icon_;
    QVBoxLayout* column_;
    QDialogButtonBox* buttons_;
    QScrollArea* scrolled_ = nullptr;
    bool mustBeAnswered_ = false;
};

void showMessageBox(QWidget* parent, const std::string& text, const std::string& title, ui::MessageIcon icon);
/// Yes is the default. Only its buttons answer it: whoever presses Escape does not mean that work be lost.
bool showQuestionBox(QWidget* parent, const std::string& text, const std::string& title);
/// The answer, empty when the box is cancelled.
std::string showInputBox(QWidget* parent, const std::string& prompt, const std::string& title,
                         const std::string& proposed);
}  // namespace desktop
