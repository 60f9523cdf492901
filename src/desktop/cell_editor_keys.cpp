// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The keys of an open editor.
#include <QKeyEvent>

#include "desktop/cell_editor.h"
#include "desktop/cell_list.h"
#include "desktop/cell_tip.h"
#include "desktop/own/own_words.h"
#include "desktop/texts.h"

namespace desktop {

bool typeInto(ui::Grid& grid, const QString& text) {
    bool isTaken = true;
    for (const uint character : text.toUcs4()) {
        const int key = static_cast<int>(character);
        if (ui::isPrintable(key)) isTaken = grid.UserEditKey(key) && isTaken;
    }
    return isTaken;
}

bool CellEditor::key(QKeyEvent* event) {
    if (listKey(event) || commandKey(event) || caretKey(event) || steppingKey(event)) return true;
    if (!isTyping(*event)) return false;
    type(event->text());
    return true;
}

/// Keys of the open list, and those that open and close it.
bool CellEditor::listKey(QKeyEvent* event) {
    const bool alt = event->modifiers() & Qt::AltModifier;
    const bool toggles = event->key() == Qt::Key_F4 || (alt && event->key() == Qt::Key_Down) ||
                         (alt && event->key() == Qt::Key_Up);
    if (!list_->isVisible()) {
        if (toggles) openList();
        return toggles;
    }
    if (toggles || event->key() == Qt::Key_Escape) return list_->hide(), true;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        return chooseItem(list_->currentRow(), true), true;
    }
    return list_->move(event->key());
}

void CellEditor::type(const QString& text) {
    bool isTaken = true;
    link_.run([&] { isTaken = typeInto(grid_, text); });
    if (!isTaken) tellRefused(text);
}

/// Below the cell: a beep alone says neither what was refused nor what would do.
void CellEditor::tellRefused(const QString& text) {
    if (!isVisible() || text.isEmpty()) return;
    showTip(*this, rect().bottomLeft(), own_words::refused(text, grid_.ComboItems()));
}

bool CellEditor::commandKey(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return copy(), true;
    if (event->matches(QKeySequence::Cut)) return cut(), true;
    if (event->matches(QKeySequence::Paste)) return paste(), true;
    if (event->matches(QKeySequence::SelectAll)) return selectAll(), true;
    return false;
}

bool CellEditor::caretKey(QKeyEvent* event) {
    const bool extends = event->modifiers() & Qt::ShiftModifier;
    const bool byWords = event->modifiers() & Qt::ControlModifier;
    const int end = static_cast<int>(text().toUcs4().size());
    const auto moveTo = [&](int caret) { select(extends ? anchor_ : caret, caret); };
    QTextLayout layout(text());
    const auto next = [&](bool forwards) {
        const int unit = unitOf(text(), caret_);
        const auto mode = byWords ? QTextLayout::SkipWords : QTextLayout::SkipCharacters;
        return characterOf(text(), forwards ? layout.nextCursorPosition(unit, mode)
                                            : layout.previousCursorPosition(unit, mode));
    };
    switch (event->key()) {
        case Qt::Key_Home: moveTo(0); return true;
        case Qt::Key_End: moveTo(end); return true;
        // Bare arrows leave the cell.
        case Qt::Key_Left:
            if (extends || byWords) moveTo(next(false));
            return extends || byWords;
        case Qt::Key_Right:
            if (extends || byWords) moveTo(next(true));
            return extends || byWords;
        case Qt::Key_Delete: deleteNext(); return true;
        default: return false;
    }
}

/// Ends the edit, or says why it goes on.
void CellEditor::leaveBy(const std::function<bool()>& step) {
    bool isLeft = true;
    link_.run([&] { isLeft = step(); });
    if (!isLeft) tellRefused(text());
}

bool CellEditor::steppingKey(QKeyEvent* event) {
    const auto step = [this](int key) { leaveBy([=, this] { return grid_.UserEditKey(key); }); };
    const bool shifted = event->modifiers() & Qt::ShiftModifier;
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!shifted) return step(ui::EnterKey), true;
            leaveBy([this] {
                if (!grid_.UserCommitEdit()) return false;
                grid_.UserStep(ui::UpKey);
                return true;
            });
            return true;
        case Qt::Key_Escape: step(ui::EscapeKey); return true;
        case Qt::Key_Backspace: link_.run([this] { grid_.UserEditKey(ui::BackspaceKey); }); return true;
        case Qt::Key_Left: step(ui::LeftKey); return true;
        case Qt::Key_Right: step(ui::RightKey); return true;
        case Qt::Key_Up: step(ui::UpKey); return true;
        case Qt::Key_Down: step(ui::DownKey); return true;
        default: return false;
    }
}

void CellEditor::tab(bool backwards) {
    const bool chosen = list_->isVisible() && list_->currentItem() != nullptr;
    const std::string item = chosen ? utf8(list_->currentItem()->text()) : std::string();
    leaveBy([&] {
        if (chosen && !grid_.UserEditChoose(item)) return false;
        if (!backwards) return grid_.UserEditKey(ui::TabKey);
        if (!grid_.UserCommitEdit()) return false;
        grid_.UserStepBack();
        return true;
    });
}

void CellEditor::deleteNext() {
    if (anchor_ != caret_) return replaceSelection({});
    const int end = static_cast<int>(text().toUcs4().size());
    if (caret_ == end) return;
    link_.run([this] {
        const int caret = grid_.Editor().SelStart();
        grid_.UserEditSelect(caret, 1);
        if (!grid_.UserEditPaste("")) grid_.UserEditSelect(caret, 0);
    });
}

void CellEditor::replaceSelection(const QString& text) {
    bool isTaken = true;
    link_.run([&] { isTaken = grid_.UserEditPaste(utf8(text)); });
    if (!isTaken) tellRefused(text);
}

}  // namespace desktop
