// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/text_editor.h"

#include <algorithm>
#include <utility>

#include "ui/text.h"

namespace ui {

std::string asOneLine(std::string_view text) {
    std::string line(text.substr(0, text.find_first_of("\r\n")));
    std::replace(line.begin(), line.end(), '\t', ' ');
    return line;
}

void TextEditor::Text(std::string text) {
    text_ = std::move(text);
    Select(static_cast<int>(length(text_)), 0);
}

void TextEditor::Select(int start, int count) {
    const int total = static_cast<int>(length(text_));
    selStart_ = std::clamp(start, 0, total);
    selLength_ = std::clamp(count, 0, total - selStart_);
}

void TextEditor::SelectAll() { Select(0, static_cast<int>(length(text_))); }

void TextEditor::Insert(std::string_view text) {
    const std::size_t from = offsetOf(selStart_);
    const std::size_t to = offsetOf(selStart_ + selLength_);
    text_.replace(from, to - from, text);
    Select(selStart_ + static_cast<int>(length(text)), 0);
}

void TextEditor::Type(int key) {
    if (key == BackspaceKey) {
        if (selLength_ == 0 && selStart_ > 0) Select(selStart_ - 1, 1);
        Insert("");
    } else if (isPrintable(key)) {
        std::string typed;
        appendCharacter(typed, static_cast<char32_t>(key));
        Insert(typed);
    }
}

std::size_t TextEditor::offsetOf(int character) const {
    return firstCharacters(text_, static_cast<std::size_t>(character)).size();
}

}  // namespace ui
