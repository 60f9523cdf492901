// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "ui/form_window.h"
#include "ui/grid.h"
#include "ui/text.h"

namespace ui {

namespace {

constexpr char ListSeparator = '|';

bool isStep(int key) {
    return key == EnterKey || key == TabKey || key == UpKey || key == DownKey || key == LeftKey ||
           key == RightKey;
}

/// A text as one cell of a line of tab-separated ones.
std::string asCell(std::string_view text) {
    std::string cell(text);
    for (char& character : cell) {
        if (character == '\t' || character == '\r' || character == '\n') character = ' ';
    }
    return cell;
}

/// Appends the cells of one line, parted by tabs.
template <class TextOf>
void appendLine(std::string& lines, const std::vector<int>& cols, TextOf textOf) {
    for (std::size_t i = 0; i < cols.size(); ++i) {
        if (i > 0) lines += '\t';
        lines += asCell(textOf(cols[i]));
    }
}

}  // namespace

bool Grid::UserMoveTo(int row, int col) {
    if (!acceptsUserAction() || !HasCell(row, col)) return false;
    Select(row, col);
    return row_ == row && col_ == col;
}

/// The next column on view in the body, or -1.
int Grid::nextShownCol(int col, int step) const {
    for (col += step; col >= fixedCols_ && col < Cols(); col += step) {
        if (!column(col).Hidden) return col;
    }
    return -1;
}

bool Grid::stepTo(int row, int col) { return IsBody(row, col) && UserMoveTo(row, col); }

/// Where a heading is current, the cell of the body that is next to it.
std::pair<int, int> Grid::KeyCell() const {
    if (IsBody(row_, col_)) return {row_, col_};
    const int before = row_ < fixedRows_ ? fixedCols_ - 1 : std::max(col_, fixedCols_) - 1;
    return {std::max(row_, fixedRows_), nextShownCol(before, 1)};
}

bool Grid::UserEnterBody() {
    const auto [row, col] = KeyCell();
    return IsBody(row_, col_) || stepTo(row, col);
}

bool Grid::UserStep(int key) {
    if (!IsBody(row_, col_)) return UserEnterBody();
    switch (key) {
        case EnterKey:
        case DownKey: return stepTo(row_ + 1, col_);
        case UpKey: return stepTo(row_ - 1, col_);
        case LeftKey: return stepTo(row_, nextShownCol(col_, -1));
        case RightKey: return stepTo(row_, nextShownCol(col_, 1));
        case TabKey: {
            const int next = nextShownCol(col_, 1);
            return next >= 0 ? stepTo(row_, next) : stepTo(row_ + 1, nextShownCol(fixedCols_ - 1, 1));
        }
        default: return false;
    }
}

bool Grid::UserStepBack() {
    const int before = nextShownCol(col_, -1);
    return before >= 0 ? stepTo(row_, before) : stepTo(row_ - 1, nextShownCol(Cols(), -1));
}

bool Grid::AtLastCell() const {
    const bool anyCell = fixedRows_ < Rows() && nextShownCol(fixedCols_ - 1, 1) >= 0;
    return !anyCell || (row_ >= Rows() - 1 && nextShownCol(col_, 1) < 0);
}

bool Grid::AtFirstCell() const {
    return !IsBody(row_, col_) || (row_ <= fixedRows_ && nextShownCol(col_, -1) < 0);
}

bool Grid::UserSelectTo(int row, int col) {
    if (!acceptsUserAction() || !IsBody(row_, col_) || !IsBody(row, col)) return false;
    change(rowSel_, row);
    change(colSel_, col);
    change(userSelected_, true);
    return true;
}

/// Without hidden ones.
std::vector<int> Grid::selectedCols() const {
    std::vector<int> cols;
    for (int col = std::min(col_, colSel_); HasCell(row_, col_) && col <= std::max(col_, colSel_); ++col) {
        if (!column(col).Hidden) cols.push_back(col);
    }
    return cols;
}

std::string Grid::SelectedText() const {
    const std::vector<int> cols = selectedCols();
    std::string lines;
    const int firstRow = std::min(row_, rowSel_);
    const int lastRow = HasCell(row_, col_) ? std::max(row_, rowSel_) : firstRow - 1;
    for (int row = firstRow; row <= lastRow; ++row) {
        if (row > firstRow) lines += '\n';
        appendLine(lines, cols, [&](int col) { return TextMatrix(row, col); });
    }
    return lines;
}

std::string Grid::SelectedTextWithHeadings(const std::function<std::string(int col)>& headingOf) const {
    std::vector<int> cols = selectedCols();
    std::erase_if(cols, [this](int col) { return col < fixedCols_; });
    for (int col = std::min(fixedCols_, Cols()) - 1; col >= 0; --col) {
        if (!column(col).Hidden) cols.insert(cols.begin(), col);
    }
    std::string lines;
    const auto append = [&](int row) {
        if (!lines.empty()) lines += '\n';
        const bool named = row == 0 && fixedRows_ > 0 && headingOf;
        appendLine(lines, cols,
                   [&](int col) { return named ? headingOf(col) : std::string(TextMatrix(row, col)); });
    };
    for (int row = 0; row < std::min(fixedRows_, Rows()); ++row) append(row);
    const int lastRow = HasCell(row_, col_) ? std::max(row_, rowSel_) : -1;
    for (int row = std::max(fixedRows_, std::min(row_, rowSel_)); row <= lastRow; ++row) append(row);
    return lines;
}

std::optional<PastedBlock> Grid::UserPasteBlock(std::string_view lines) {
    if (!acceptsUserAction()) return std::nullopt;
    const ToldDeed deed(watch_, CellDeed::Several, row_, col_);
    if (lines.ends_with('\n')) lines.remove_suffix(1);  // ends the last line; blank cells above it count
    const int firstRow = std::min(row_, rowSel_);
    const int firstCol = std::min(col_, colSel_);
    int row = firstRow;
    int lastRow = firstRow;
    int lastCol = firstCol;
    PastedBlock block;
    for (std::string_view line : split(lines, '\n')) {
        if (line.ends_with('\r')) line.remove_suffix(1);
        int col = firstCol;
        for (const std::string_view text : split(line, '\t')) {
            if (block.Left == 0 && pasteCell(row, col, text)) {
                lastRow = row;
                lastCol = std::max(lastCol, col);
                col = nextShownCol(col, 1);
            } else if (block.Left++ == 0 && IsBody(row, col)) {
                block.Refused = text;
            }
        }
        ++row;
    }
    if (block.Left > 0) platform().beep();
    if (!block.Refused && UserMoveTo(firstRow, firstCol)) UserSelectTo(lastRow, lastCol);
    return block;
}

bool Grid::pasteCell(int row, int col, std::string_view text) {
    if (!IsBody(row, col) || !UserMoveTo(row, col) || !UserBeginEdit()) return false;
    const bool leavesItem = isBlank(text) && !comboList_.empty();
    if (!leavesItem && UserEditPaste(text) && UserCommitEdit()) return true;
    UserCancelEdit();
    return leavesItem;
}

void Grid::UserDragColumn(int col, int width) {
    if (acceptsUserAction() && col >= 0 && col < Cols()) ColWidth(col, width);
}

void Grid::UserFitColumn(int col) {
    if (acceptsUserAction() && col >= 0 && col < Cols()) AutoSize(col);
}

std::vector<std::string_view> Grid::ComboItems() const {
    if (comboList_.empty()) return {};
    return split(comboList_, ListSeparator);
}

bool Grid::UserBeginEdit() {
    if (!acceptsUserAction() || Editable == EditMode::ReadOnly) return false;
    if (!IsBody(row_, col_)) return false;
    bool cancel = false;
    BeforeEdit(row_, col_, cancel);
    if (cancel) return false;
    editor_.Text(std::string(TextMatrix(row_, col_)));
    editor_.SelectAll();
    change(editing_, true);
    Form().EditingGrid(this);
    return true;
}

bool Grid::UserEditKey(int key) {
    if (!editing_) return false;
    if (key == EscapeKey) {
        UserCancelEdit();
        return true;
    }
    if (isStep(key)) {
        if (!UserCommitEdit()) return false;
        UserStep(key);
        return true;
    }
    if (!isPrintable(key) && key != BackspaceKey) return false;
    KeyPressEdit(row_, col_, key);
    if (key == 0) return false;
    TextEditor typed = editor_;
    typed.Type(key);
    return accept(std::move(typed));
}

bool Grid::UserEditPaste(std::string_view text) {
    if (!editing_) return false;
    TextEditor pasted = editor_;
    pasted.Insert(asOneLine(text));
    return accept(std::move(pasted));
}

void Grid::UserEditSelect(int start, int length) {
    if (!editing_) return;
    editor_.Select(start, length);
    reportChange();
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
    commit(row_, col_, text);
    return true;
}

void Grid::commit(int row, int col, std::string_view text) {
    const ToldDeed deed(watch_, CellDeed::Commit, row, col);
    TextMatrix(row, col, text);
    AfterEdit(row, col);
}

bool Grid::UserPutBack(int row, int col, std::string_view text) {
    if (!acceptsUserAction() || Editable == EditMode::ReadOnly || !IsBody(row, col)) return false;
    commit(row, col, text);
    return true;
}

void Grid::UserCancelEdit() {
    if (editing_) closeEditor();
}

void Grid::closeEditor() {
    change(editing_, false);
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
    if (IsBody(row, col)) Select(row, col);
}

/// Takes over what was typed or pasted, unless the cell has a list and the text is none of its items; an item is taken
/// over as the list spells it.
bool Grid::accept(TextEditor edited) {
    if (!comboList_.empty()) {
        const auto items = ComboItems();
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
    reportChange();
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
