// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a grid gives to the clipboard and takes from it, and the menu that offers this.
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <algorithm>

#include "desktop/cell_editor.h"
#include "desktop/cell_tip.h"
#include "desktop/grid_view.h"
#include "desktop/own/cell_history.h"
#include "desktop/own/own_texts.h"
#include "desktop/own/own_words.h"
#include "desktop/texts.h"
#include "ui/window_texts.h"

namespace desktop {

namespace {

template <class Action>
void offer(QMenu& menu, const char* text, const QKeySequence& keys, bool enabled, Action action) {
    QAction* added = menu.addAction(QString::fromUtf8(text), &menu, action);
    added->setShortcut(keys);
    added->setShortcutVisibleInContextMenu(true);
    added->setEnabled(enabled);
}

}  // namespace

/// A right click on a cell outside the selection is meant for that cell.
void GridView::moveToClicked(QPoint place) {
    const CellAddress cell = geometry_.cellAt(place);
    const auto within = [](int index, int one, int other) {
        return index >= std::min(one, other) && index <= std::max(one, other);
    };
    if (grid_.Editing() || cell.Row < geometry_.fixedRows() || cell.Col < geometry_.fixedCols()) return;
    const bool selected =
        within(cell.Row, grid_.Row(), grid_.RowSel()) && within(cell.Col, grid_.Col(), grid_.ColSel());
    if (!selected) act([&] { grid_.UserMoveTo(cell.Row, cell.Col); });
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    if (byMouse) moveToClicked(event->pos());
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const CellAddress cell = byMouse ? geometry_.cellAt(event->pos()) : keyCell();
    if (grid_.Editing()) {
        offerForText(*menu);
    } else {
        offerForCells(*menu, cell);
    }
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const bool atCell = byKey && grid_.HasCell(cell.Row, cell.Col);
    menu->popup(atCell ? viewport()->mapToGlobal(cellPlace(cell.Row, cell.Col).center())
                       : event->globalPos());
}

bool GridView::canPaste() const {
    return grid_.Editable != ui::EditMode::ReadOnly && !QApplication::clipboard()->text().isEmpty();
}

/// What can be done with the text in the open editor.
void GridView::offerForText(QMenu& menu) {
    const bool any = grid_.Editor().SelLength() > 0;
    offer(menu, ui::window_text::CutText, QKeySequence::Cut, any, [this] { editor_->cut(); });
    offer(menu, ui::window_text::CopyText, QKeySequence::Copy, any, [this] { copyCells(); });
    offer(menu, ui::window_text::PasteText, QKeySequence::Paste, canPaste(), [this] { pasteCells(); });
    offer(menu, ui::window_text::SelectAllText, QKeySequence::SelectAll, true,
          [this] { editor_->selectAll(); });
}

/// `cell` is what the menu was opened at, which may be a heading.
void GridView::offerForCells(QMenu& menu, CellAddress cell) {
    const CellHistory* history = additions_.History;
    if (history != nullptr && grid_.Editable != ui::EditMode::ReadOnly) {
        offer(menu, own_texts::Undo, QKeySequence::Undo, history->canUndo(),
              [this] { replay(&CellHistory::undo); });
        offer(menu, own_texts::Redo, QKeySequence::Redo, history->canRedo(),
              [this] { replay(&CellHistory::redo); });
        menu.addSeparator();
    }
    offer(menu, ui::window_text::CopyCells, QKeySequence::Copy, true, [this] { copyCells(); });
    offer(menu, own_texts::CopyWithHeadings, CopyWithHeadingsKeys, true, [this] { copyWithHeadings(); });
    offer(menu, ui::window_text::PasteCells, QKeySequence::Paste, canPaste(), [this] { pasteCells(); });
    menu.addSeparator();
    const bool isCell = grid_.HasCell(cell.Row, cell.Col);
    if (grid_.MouseDown)
        offer(menu, own_texts::SortByColumn, {}, isCell, [=, this] { sortByColumn(cell.Col); });
    offer(menu, own_texts::ExplainCell, QKeySequence::WhatsThis, isCell, [=, this] { explain(cell); });
}

/// As a click on the heading does, for whoever works by keys.
void GridView::sortByColumn(int col) {
    hovered_ = {0, col};
    act([this] { grid_.UserMouseDown(hovered_.Row, hovered_.Col); });
}

/// Only one cell at a time can be emptied.
void GridView::cutCell() {
    if (grid_.Editable == ui::EditMode::ReadOnly) return;
    enterBody();
    const bool oneCell = grid_.Row() == grid_.RowSel() && grid_.Col() == grid_.ColSel();
    copyCells();
    if (oneCell) act([this] { grid_.UserDelete(); });
}

void GridView::copyCells() {
    if (grid_.Editing()) return editor_->copy();
    enterBody();
    QApplication::clipboard()->setText(QString::fromStdString(grid_.SelectedText()));
}

void GridView::copyWithHeadings() {
    if (grid_.Editing()) return;
    enterBody();
    QApplication::clipboard()->setText(
        QString::fromStdString(grid_.SelectedTextWithHeadings(additions_.HeadingOf)));
}

void GridView::pasteCells() {
    if (grid_.Editing()) return editor_->paste();
    const std::string lines = utf8(QApplication::clipboard()->text());
    if (grid_.Editable == ui::EditMode::ReadOnly || lines.empty()) return;
    std::optional<ui::PastedBlock> block;
    act([&] {
        grid_.UserEnterBody();
        block = grid_.UserPasteBlock(lines);
    });
    reveal({grid_.RowSel(), grid_.ColSel()});
    if (block && block->Left > 0) tellWherePastingStopped(*block);
}

/// At the cell that refused, or at the last one that there was.
void GridView::tellWherePastingStopped(const ui::PastedBlock& block) {
    const QRect cell = geometry_.cell(grid_.RowSel(), grid_.ColSel());
    showTip(*viewport(), cell.bottomLeft(), own_words::pasteStopped(block));
}

}  // namespace desktop
