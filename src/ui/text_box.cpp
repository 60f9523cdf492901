// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/text_box.h"

#include <utility>

namespace ui {

TextBox::TextBox(Control& container, std::string name, std::string text, Design design)
    : Control(container, ControlKind::TextBox, std::move(name), std::move(design)) {
    editor_.Text(std::move(text));
}

/// Runs a change of the editor and fires Change when the text differs from before.
template <class Edit>
void TextBox::edit(Edit change) {
    const std::string before = editor_.Text();
    change();
    reportChange();
    if (editor_.Text() != before) Change();
}

void TextBox::Text(std::string text) {
    edit([&] { editor_.Text(std::move(text)); });
}

void TextBox::select(int start, int length) {
    editor_.Select(start, length);
    reportChange();
}

void TextBox::UserFocus() {
    if (!acceptsUserAction()) return;
    select(static_cast<int>(Text().size()), 0);
    GotFocus();
}

void TextBox::UserKey(int key) {
    const bool reachesBox = isPrintable(key) || key == BackspaceKey || key == EnterKey || key == EscapeKey;
    if (!reachesBox || !acceptsUserAction()) return;
    KeyPress(key);
    if (key == 0) return;
    edit([&] { editor_.Type(key); });
}

void TextBox::UserPaste(std::string_view text) {
    if (!acceptsUserAction()) return;
    edit([&] { editor_.Insert(asOneLine(text)); });
}

}  // namespace ui
