// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

#include "desktop/view.h"
#include "ui/text_box.h"

namespace desktop {

/// A box for one line. Text, caret and selection are the form's: keys, pastes and selections go there and come back.
class TextBoxView : public QLineEdit, public View {
public:
    TextBoxView(ui::TextBox& box, FormLink& link, QWidget* parent);
    QWidget& widget() override { return *this; }
    void follow() override;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void fitMargins();
    void type(const QString& text);
    void pressKey(int key);
    void pasteText(const QString& text);
    void copySelection() const;
    void deleteForward();
    /// Copy, cut, paste or select all, if the key is one of these.
    bool editWithClipboard(const QKeyEvent& event);
    void tellSelection();

    ui::TextBox& box_;
    FormLink& link_;
    bool following_ = false;
    bool pressGaveFocus_ = false;
};

}  // namespace desktop
