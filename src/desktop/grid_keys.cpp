// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The keyboard of a grid: with an open editor its own, otherwise that of a spreadsheet.
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "desktop/cell_editor.h"
#include "desktop/cell_tip.h"
#include "desktop/grid_view.h"
#include "desktop/own/cell_history.h"
#include "desktop/texts.h"

namespace desktop {

namespace {

const QKeyCombination OtherRedo = Qt::CTRL | Qt::Key_Y;

bool isRedo(const QKeyEvent& event) {
    return event.matches(QKeySequence::Redo) || event.keyCombination() == OtherRedo;
}

}  // namespace

void GridView::keyPressEvent(QKeyEvent* event) {
    hideTip();
    if (grid_.Editing() && editorKey(event)) return;
    if (clipboardKey(event) || historyKey(event) || moveKey(event) || editKey(event)) return;
    event->ignore();
}

/// Keys that a menu of the window might take for its own.
bool GridView::isOwnShortcut(QKeyEvent& key) {
    constexpr QKeySequence::StandardKey Own[] = {QKeySequence::Copy, QKeySequence::Paste, QKeySequence::Cut,
                                                 QKeySequence::SelectAll, QKeySequence::Undo};
    return isTyping(key) || isRedo(key) || key.keyCombination() == CopyWithHeadingsKeys ||
           std::any_of(std::begin(Own), std::end(Own), [&](auto own) { return key.matches(own); });
}

bool GridView::editorKey(QKeyEvent* event) {
    const CellAddress before{grid_.Row(), grid_.Col()};
    if (!editor_->key(event)) return false;
    const CellAddress after{grid_.Row(), grid_.Col()};
    if (after != before) reveal(after);
    return true;
}

/// Takes Tab within the grid; false where it goes on to the next widget.
bool GridView::goByTab(bool backwards) {
    if (grid_.Editing()) {
        editor_->tab(backwards);
        if (!grid_.Editing()) reveal({grid_.Row(), grid_.Col()});
        return true;
    }
    if (grid_.Editable == ui::EditMode::ReadOnly) return false;
    enterBody();
    if (backwards ? grid_.AtFirstCell() : grid_.AtLastCell()) return false;
    step([=, this] { return backwards ? grid_.UserStepBack() : grid_.UserStep(ui::TabKey); });
    return true;
}

bool GridView::clipboardKey(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return copyCells(), true;
    if (event->matches(QKeySequence::Paste)) return pasteCells(), true;
    if (event->matches(QKeySequence::SelectAll)) return selectAll(), true;
    if (event->matches(QKeySequence::Cut)) return cutCell(), true;
    if (event->keyCombination() == CopyWithHeadingsKeys) return copyWithHeadings(), true;
    return false;
}

/// In an open editor what was typed is taken back, which is no step yet.
bool GridView::historyKey(QKeyEvent* event) {
    if (event->matches(QKeySequence::Undo)) {
        if (grid_.Editing()) return act([this] { grid_.UserCancelEdit(); }), true;
        return replay(&CellHistory::undo), true;
    }
    if (isRedo(*event)) return replay(&CellHistory::redo), true;
    return false;
}

void GridView::replay(bool (CellHistory::*way)()) {
    if (additions_.History != nullptr) step([=, this] { return (additions_.History->*way)(); });
}

CellAddress GridView::keyCell() const {
    const auto [row, col] = grid_.KeyCell();
    return {row, col};
}

/// Keys begin at the cell that has the frame.
void GridView::enterBody() {
    if (!grid_.IsBody(grid_.Row(), grid_.Col())) act([this] { grid_.UserEnterBody(); });
}

bool GridView::moveKey(QKeyEvent* event) {
    const bool extends = event->modifiers() & Qt::ShiftModifier;
    const bool toCorner = event->modifiers() & Qt::ControlModifier;
    if (event->modifiers() & (Qt::AltModifier | Qt::MetaModifier)) return false;
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            enterBody();
            step([=, this] { return grid_.UserStep(extends ? ui::UpKey : ui::EnterKey); });
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown: break;
        default: return false;
    }
    enterBody();
    const CellAddress from =
        extends ? CellAddress{grid_.RowSel(), grid_.ColSel()} : CellAddress{grid_.Row(), grid_.Col()};
    const CellAddress to = target(event->key(), toCorner, from);
    if (extends) {
        selectTo(to);
    } else {
        moveTo(to);
    }
    return true;
}

/// The cell of the body to which a key leads from another.
CellAddress GridView::target(int key, bool toCorner, CellAddress from) const {
    const int firstRow = geometry_.fixedRows();
    const int lastRow = grid_.Rows() - 1;
    const int firstCol = geometry_.nextShownCol(geometry_.fixedCols() - 1, 1);
    const int lastCol = geometry_.nextShownCol(grid_.Cols(), -1);
    if (firstRow > lastRow || firstCol < 0) return {};
    if (from.Row < firstRow || from.Col < geometry_.fixedCols()) return {};
    const auto column = [&](int step) {
        const int next = geometry_.nextShownCol(from.Col, step);
        return next < 0 ? from.Col : next;
    };
    const int page = std::max(1, geometry_.wholeRows(viewport()->height()));
    CellAddress to = from;
    switch (key) {
        case Qt::Key_Up: to.Row = toCorner ? firstRow : from.Row - 1; break;
        case Qt::Key_Down: to.Row = toCorner ? lastRow : from.Row + 1; break;
        case Qt::Key_Left: to.Col = toCorner ? firstCol : column(-1); break;
        case Qt::Key_Right: to.Col = toCorner ? lastCol : column(1); break;
        case Qt::Key_Home: to = {toCorner ? firstRow : from.Row, firstCol}; break;
        case Qt::Key_End: to = {toCorner ? lastRow : from.Row, lastCol}; break;
        case Qt::Key_PageUp: to.Row = from.Row - page; break;
        case Qt::Key_PageDown: to.Row = from.Row + page; break;
        default: break;
    }
    to.Row = std::clamp(to.Row, firstRow, lastRow);
    return to;
}

void GridView::moveTo(CellAddress cell) {
    if (cell.Row >= 0) step([=, this] { return grid_.UserMoveTo(cell.Row, cell.Col); });
}

/// Runs a step of the current cell and shows where it led.
void GridView::step(const std::function<bool()>& action) {
    bool moved = false;
    act([&] { moved = action(); });
    if (moved) reveal({grid_.Row(), grid_.Col()});
}

void GridView::selectTo(CellAddress cell) {
    if (cell.Row < 0) return;
    bool selected = false;
    act([&] { selected = grid_.UserSelectTo(cell.Row, cell.Col); });
    if (selected) reveal(cell);
}

void GridView::selectAll() {
    const CellAddress here{grid_.Row(), grid_.Col()};
    const CellAddress first = target(Qt::Key_Home, true, {geometry_.fixedRows(), geometry_.fixedCols()});
    const CellAddress last = target(Qt::Key_End, true, {geometry_.fixedRows(), geometry_.fixedCols()});
    if (first.Row < 0) return;
    act([&] {
        if (here == first || grid_.UserMoveTo(first.Row, first.Col)) grid_.UserSelectTo(last.Row, last.Col);
    });
}

bool GridView::editKey(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier) return beginEdit(), true;
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
    switch (event->key()) {
        case Qt::Key_F2: beginEdit(); return true;
        case Qt::Key_F1:
            if (!(event->modifiers() & Qt::ShiftModifier)) return false;
            explain(keyCell());
            return true;
        case Qt::Key_Delete:
            enterBody();
            act([this] { grid_.UserDelete(); });
            return true;
        case Qt::Key_Backspace: edit([this] { grid_.UserEditKey(ui::BackspaceKey); }); return true;
        default: break;
    }
    if (!isTyping(*event)) return false;
    typeText(event->text());
    return true;
}

/// Opens an editor on a closed cell for these keys and shows the cell.
void GridView::edit(const std::function<void()>& keys) {
    act([&] {
        if (grid_.Editing() || (grid_.UserEnterBody() && grid_.UserBeginEdit())) keys();
    });
    if (grid_.Editing()) reveal({grid_.Row(), grid_.Col()});
}

void GridView::beginEdit() {
    edit([] {});
    editor_->openList();
}

void GridView::typeText(const QString& text) {
    bool isTaken = true;
    edit([&] { isTaken = typeInto(grid_, text); });
    if (!isTaken) editor_->tellRefused(text);
}

void GridView::inputMethodEvent(QInputMethodEvent* event) {
    const bool anything = !event->commitString().isEmpty() || !event->preeditString().isEmpty();
    if (anything) typeText(event->commitString());
    if (grid_.Editing()) editor_->preedit(event->preeditString());
    event->accept();
}

QVariant GridView::inputMethodQuery(Qt::InputMethodQuery query) const {
    if (query == Qt::ImEnabled) return grid_.Editable != ui::EditMode::ReadOnly;
    if (!grid_.Editing()) return QAbstractScrollArea::inputMethodQuery(query);
    const QVariant value = editor_->inputMethodValue(query);
    if (query == Qt::ImCursorRectangle) return value.toRect().translated(viewport()->pos());
    return value.isValid() ? value : QAbstractScrollArea::inputMethodQuery(query);
}

}  // namespace desktop
