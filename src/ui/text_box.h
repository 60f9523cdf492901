// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/control.h"
#include "ui/event.h"
#include "ui/text_editor.h"

namespace ui {

/// A box for one line of text.
class TextBox : public Control {
public:
    TextBox(Control& container, std::string name, std::string text, Design design = {});

    /// Fired at once when the text has become another one, by the user or by code.
    Event<> Change;
    /// Fired for each key before it acts; a handler that sets the key to 0 swallows it.
    Event<int&> KeyPress;
    Event<> GotFocus;

    const std::string& Text() const { return editor_.Text(); }
    void Text(std::string text);
    /// The text as a number; raises TypeMismatch or Overflow.
    double Real() const { return toReal(Text(), separator()); }
    int Long() const { return toLong(Text(), separator()); }

    int SelStart() const { return editor_.SelStart(); }
    void SelStart(int start) { select(start, editor_.SelLength()); }
    int SelLength() const { return editor_.SelLength(); }
    void SelLength(int length) { select(editor_.SelStart(), length); }

    void UserFocus();
    /// Types one key into the box; printable characters, Backspace, Enter and Escape reach KeyPress.
    void UserKey(int key);
    /// Puts a text from the clipboard in the place of the selection.
    void UserPaste(std::string_view text);
    /// Selects by the mouse or the arrows, in characters.
    void UserSelect(int start, int length) { select(start, length); }

private:
    template <class Edit>
    void edit(Edit change);
    void select(int start, int length);

    TextEditor editor_;
};

}  // namespace ui
