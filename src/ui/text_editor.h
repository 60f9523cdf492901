// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace ui {

inline constexpr int BackspaceKey = 8;
inline constexpr int TabKey = 9;
inline constexpr int EnterKey = 13;
inline constexpr int EscapeKey = 27;
// Keys that are no characters.
inline constexpr int LeftKey = -1;
inline constexpr int UpKey = -2;
inline constexpr int RightKey = -3;
inline constexpr int DownKey = -4;

/// Whether a key is a character that a text can take.
constexpr bool isPrintable(int key) { return key >= ' ' && !(key >= 127 && key < 160); }

/// What a paste into one line takes of a text: up to the first line break, tabs as blanks.
std::string asOneLine(std::string_view text);

/// A line of text with a caret and a selection, both counted in characters. What a box and a cell editor share.
class TextEditor {
public:
    const std::string& Text() const { return text_; }
    /// Replaces the whole text; the caret goes to its end and nothing is selected.
    void Text(std::string text);

    int SelStart() const { return selStart_; }
    int SelLength() const { return selLength_; }
    /// Clipped to the text.
    void Select(int start, int length);
    void SelectAll();

    /// Puts `text` in the place of the selection.
    void Insert(std::string_view text);
    /// What a key does that no handler swallowed: a printable character is inserted, Backspace deletes.
    void Type(int key);

private:
    std::size_t offsetOf(int character) const;

    std::string text_;
    int selStart_ = 0;
    int selLength_ = 0;
};

}  // namespace ui
