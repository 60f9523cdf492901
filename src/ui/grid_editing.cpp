// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <optional>

#include "ui/form_window.h"
#include "ui/grid.h"
#include "ui/text.h"

namespace ui {

namespace {

constexpr char ListSeparator = '|';

/// Where a key that ends an edit takes the current cell.
struct Step {
    int Rows;
    int Cols;
};

std::optional<Step> moveOf(int key) {
    switch (key) {
        case EnterKey:
        case DownKey: return Step{1, 0};
        case UpKey: return Step{-1, 0};
        case TabKey:
        case RightKey: return Step{0, 1};
        case LeftKey: return Step{0, -1};
        default: return std::nullopt;
    }
}

}  // namespace

bool Grid::UserMoveTo(int row, int col) {
    if (!acceptsUserAction() || !contains(row, col)) return false;
    Select(row, col);
    return row_ == row && col_ == col;
}

bool Grid::UserBeginEdit() {
    if (!acceptsUserAction() || Editable == EditMode::ReadOnly) return false;
    if (!contains(row_, col_) || row_ < fixedRows_ || col_ < fixedCols_) return false;
    bool cancel = false;
    BeforeEdit(row_, col_, cancel);
    if (cancel) return false;
    editor_.Text(TextMatrix(row_, col_));
    editor_.SelectAll();
    editing_ = true;
    Form().EditingGrid(this);
    return true;
}

void Grid::UserEditKey(int key) {
    if (!editing_) return;
    if (key == EscapeKey) return UserCancelEdit();
    if (const auto step = moveOf(key)) {
        if (UserCommitEdit()) UserMoveTo(row_ + step->Rows, col_ + step->Cols);
        return;
    }
    if (!isPrintable(key) && key != BackspaceKey) return;
    KeyPressEdit(row_, col_, key);
    if (key == 0) return;
    TextEditor typed = editor_;
    typed.Type(key);
    accept(std::move(typed));
}

bool Grid::UserEditPaste(std::string_view text) {
    if (!editing_) return false;
    TextEditor pasted = editor_;
    pasted.Insert(asOneLine(text));
    return accept(std::move(pasted));
}

bool Grid::UserEditChoose(std::string_view item) {
    if (!editing_) return false;
    TextEditor chosen;
    chosen.Text(std::string(item));
    return accept(std::move(chosen));
}

bool Grid::UserCommitEdit() {
    if (!editing_) return true;
    bool cancel = false;
    ValidateEdit(row_, col_, cancel);
    if (cancel) return false;
    const std::string text = editor_.Text();
    closeEditor();
    TextMatrix(row_, col_, text);
    AfterEdit(row_, col_);
    return true;
}

void Grid::UserCancelEdit() {
    if (editing_) closeEditor();
}

void Grid::closeEditor() {
    editing_ = false;
    Form().EditingGrid(nullptr);
}

bool Grid::UserEditCell(int row, int col, std::string_view text) {
    if (!UserMoveTo(row, col) || !UserBeginEdit()) return false;
    if (UserEditPaste(text) && UserCommitEdit()) return true;
    UserCancelEdit();
    return false;
}

void Grid::UserMouseMove(int row, int col) {
    mouseRow_ = row;
    mouseCol_ = col;
    MouseMove();
}

void Grid::UserMouseDown(int row, int col) {
    mouseRow_ = row;
    mouseCol_ = col;
    if (!acceptsUserAction()) return;
    MouseDown();
    const bool body = contains(row, col) && row >= fixedRows_ && col >= fixedCols_;
    if (body) Select(row, col);
}

/// Takes over what was typed or pasted, unless the cell has a list and the text is none of its items; an item is taken
/// over as the list spells it.
bool Grid::accept(TextEditor edited) {
    if (!comboList_.empty()) {
        const auto items = split(comboList_, ListSeparator);
        const auto item = std::find_if(items.begin(), items.end(), [&](std::string_view offered) {
            return equalsIgnoringCase(offered, edited.Text());
        });
        if (item == items.end()) {
            platform().beep();
            return false;
        }
        edited.Text(std::string(*item));
        edited.SelectAll();
    }
    editor_ = std::move(edited);
    return true;
}

bool Grid::UserDelete() {
    if (!UserBeginEdit()) return false;
    if (comboList_.empty()) {
        editor_.Text("");
        if (UserCommitEdit()) return true;
    } else {
        platform().beep();
    }
    UserCancelEdit();
    return false;
}

}  // namespace ui
