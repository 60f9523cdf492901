// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/cell_editor.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

#include "desktop/cell_editor_accessible.h"
#include "desktop/cell_list.h"
#include "desktop/texts.h"

namespace desktop {

namespace {

constexpr int FrameWidth = 2;
constexpr double Endless = 1e6;

}  // namespace

void typeInto(ui::Grid& grid, const QString& text) {
    for (const uint character : text.toUcs4()) {
        if (ui::isPrintable(static_cast<int>(character))) grid.UserEditKey(static_cast<int>(character));
    }
}

CellEditor::CellEditor(ui::Grid& grid, FormLink& link, const GridPainter& painter, QWidget* view,
                       QWidget* viewport)
    : QWidget(viewport),
      grid_(grid),
      link_(link),
      painter_(painter),
      list_(new CellList(view, link.scale().pixels(ui::Grid::RowHeight))) {
    installEditorAccessibility();
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::IBeamCursor);
    connect(list_, &QListWidget::itemClicked, this, [this] { chooseItem(list_->currentRow(), false); });
    hide();
}

void CellEditor::showAt(const QRect& cell, const QRect& body) {
    followCaret();
    const bool inView = body.contains(cell.topLeft()) && !cell.isEmpty();
    if (!inView) {
        list_->hide();
        return hide();
    }
    const int widest = std::max(cell.width(), body.right() + 1 - cell.left());
    QRect place = cell.adjusted(-1, -1, 0, 0);
    place.setWidth(std::clamp(naturalWidth(), cell.width(), widest) + 1);
    setGeometry(place);
    scrollToCaret();
    followList();
    show();
    update();
    if (QAccessible::isActive()) tellListeners();
}

void CellEditor::conceal() {
    list_->hide();
    told_.reset();
    if (isHidden()) return;
    hide();
    preedit_.clear();
    scrolled_ = 0;
    blinking_.stop();
}

void CellEditor::showCaret(bool blinking) {
    caretShown_ = blinking;
    const int period = QApplication::cursorFlashTime();
    if (blinking && period > 0) {
        blinking_.start(period / 2, this);
    } else {
        blinking_.stop();
    }
    update();
}

void CellEditor::timerEvent(QTimerEvent*) {
    caretShown_ = !caretShown_;
    update();
}

bool CellEditor::key(QKeyEvent* event) {
    if (listKey(event) || commandKey(event) || caretKey(event) || steppingKey(event)) return true;
    if (!isTyping(*event)) return false;
    link_.run([this, typed = event->text()] { typeInto(grid_, typed); });
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

void CellEditor::openList() {
    if (!grid_.Editing() || isHidden()) return;
    const auto offered = grid_.ComboItems();
    if (offered.empty()) return;
    QStringList items;
    for (const std::string_view item : offered)
        items.append(QString::fromUtf8(item.data(), static_cast<qsizetype>(item.size())));
    list_->open(items, static_cast<int>(items.indexOf(text())), QRect(mapToGlobal(QPoint()), size()));
}

/// Takes an item of the list and closes the editor with it, by Enter for the next cell; without an item the list closes
/// only.
void CellEditor::chooseItem(int index, bool stepsOn) {
    list_->hide();
    const auto items = grid_.ComboItems();
    if (index < 0 || static_cast<std::size_t>(index) >= items.size()) return;
    const std::string item(items[static_cast<std::size_t>(index)]);
    link_.run([&] {
        if (!grid_.UserEditChoose(item)) return;
        if (stepsOn) {
            grid_.UserEditKey(ui::EnterKey);
        } else {
            grid_.UserCommitEdit();
        }
    });
}

/// What is typed is chosen in the open list.
void CellEditor::followList() {
    if (!list_->isVisible()) return;
    for (int row = 0; row < list_->count(); ++row) {
        if (list_->item(row)->text() == text()) return list_->setCurrentRow(row);
    }
}

/// The place of the button that opens the list; empty without a list.
QRect CellEditor::button() const {
    if (grid_.ComboList().empty()) return {};
    const int side = std::min(height(), width() / 2) - 2 * FrameWidth;
    return {width() - FrameWidth - side, FrameWidth, side, height() - 2 * FrameWidth};
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

bool CellEditor::steppingKey(QKeyEvent* event) {
    const auto step = [this](int key) { link_.run([=, this] { grid_.UserEditKey(key); }); };
    const bool shifted = event->modifiers() & Qt::ShiftModifier;
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (shifted) {
                link_.run([this] {
                    if (grid_.UserCommitEdit()) grid_.UserStep(ui::UpKey);
                });
            } else {
                step(ui::EnterKey);
            }
            return true;
        case Qt::Key_Escape: step(ui::EscapeKey); return true;
        case Qt::Key_Backspace: step(ui::BackspaceKey); return true;
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
    link_.run([&] {
        if (chosen && !grid_.UserEditChoose(item)) return;
        if (!backwards) {
            grid_.UserEditKey(ui::TabKey);
        } else if (grid_.UserCommitEdit()) {
            grid_.UserStepBack();
        }
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
    link_.run([this, pasted = utf8(text)] { grid_.UserEditPaste(pasted); });
}

void CellEditor::copy() const {
    if (anchor_ != caret_) QApplication::clipboard()->setText(selectedText());
}

void CellEditor::cut() {
    if (anchor_ == caret_) return;
    copy();
    replaceSelection({});
}

void CellEditor::paste() { replaceSelection(QApplication::clipboard()->text()); }

void CellEditor::selectAll() { select(0, static_cast<int>(text().toUcs4().size())); }

void CellEditor::preedit(const QString& text) {
    if (preedit_ == text) return;
    preedit_ = text;
    scrollToCaret();
    update();
}

QVariant CellEditor::inputMethodValue(Qt::InputMethodQuery query) const {
    switch (query) {
        case Qt::ImCursorRectangle: {
            const QRect caret(static_cast<int>(caretX()), FrameWidth, 1, height() - 2 * FrameWidth);
            return caret.translated(pos());
        }
        case Qt::ImSurroundingText: return text();
        case Qt::ImCursorPosition: return unitOf(text(), caret_);
        case Qt::ImAnchorPosition: return unitOf(text(), anchor_);
        case Qt::ImCurrentSelection: return selectedText();
        default: return {};
    }
}

QString CellEditor::selectedText() const {
    const auto [from, to] = selectedUnits();
    return text().mid(from, to - from);
}

/// The grid knows where a selection begins and how long it is; which of its ends is the caret stays here.
void CellEditor::followCaret() {
    const int start = grid_.Editor().SelStart();
    const int end = start + grid_.Editor().SelLength();
    if (std::min(anchor_, caret_) == start && std::max(anchor_, caret_) == end) return;
    anchor_ = start;
    caret_ = end;
}

void CellEditor::select(int anchor, int caret) {
    anchor_ = anchor;
    caret_ = caret;
    link_.run([=, this] { grid_.UserEditSelect(std::min(anchor, caret), std::abs(caret - anchor)); });
}

void CellEditor::layOut(QTextLayout& layout) const {
    layout.setText(text());
    layout.setFont(painter_.font(false));
    if (!preedit_.isEmpty()) layout.setPreeditArea(unitOf(text(), caret_), preedit_);
    layout.beginLayout();
    QTextLine only = layout.createLine();
    if (only.isValid()) only.setLineWidth(Endless);
    layout.endLayout();
}

double CellEditor::caretX() const { return xOfUnit(caretUnit() + static_cast<int>(preedit_.size())); }

double CellEditor::xOfUnit(int unit) const {
    QTextLayout layout;
    layOut(layout);
    return painter_.padding() + 1 - scrolled_ +
           (layout.lineCount() > 0 ? layout.lineAt(0).cursorToX(unit) : 0);
}

int CellEditor::unitAt(int x) const {
    QTextLayout layout;
    layOut(layout);
    if (layout.lineCount() == 0) return 0;
    return layout.lineAt(0).xToCursor(x - painter_.padding() - 1 + scrolled_);
}

int CellEditor::characterAt(int x) const { return characterOf(text(), unitAt(x)); }

int CellEditor::naturalWidth() const {
    const double text = QFontMetricsF(painter_.font(false)).horizontalAdvance(this->text() + preedit_);
    return static_cast<int>(std::ceil(text)) + 2 * painter_.padding() + button().width();
}

void CellEditor::scrollToCaret() {
    if (naturalWidth() <= width()) scrolled_ = 0;
    const double x = caretX();
    const double last = width() - painter_.padding() - button().width();
    if (x > last) scrolled_ += x - last;
    if (x < painter_.padding()) scrolled_ = std::max(0.0, scrolled_ - (painter_.padding() - x));
}

void CellEditor::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setPen(QPen(palette().color(QPalette::Highlight), FrameWidth));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
    painter.setClipRect(rect().adjusted(FrameWidth, FrameWidth, -FrameWidth - button().width(), -FrameWidth));
    paintText(painter);
    if (button().isEmpty()) return;
    painter.setClipping(false);
    painter.fillRect(button(), palette().button());
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = button().adjusted(2, 2, -2, -2);
    style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, this);
}

void CellEditor::paintText(QPainter& painter) const {
    QTextLayout layout;
    layOut(layout);
    if (layout.lineCount() == 0) return;
    QList<QTextLayout::FormatRange> formats;
    if (anchor_ != caret_) {
        QTextLayout::FormatRange selected;
        selected.start = unitOf(text(), std::min(anchor_, caret_));
        selected.length = static_cast<int>(selectedText().size());
        selected.format.setBackground(palette().highlight());
        selected.format.setForeground(palette().highlightedText());
        formats.append(selected);
    }
    const QPointF place(painter_.padding() + 1 - scrolled_,
                        std::floor((height() - layout.lineAt(0).height()) / 2));
    painter.setPen(palette().color(QPalette::Text));
    layout.draw(&painter, place, formats);
    if (caretShown_) {
        layout.drawCursor(&painter, place, unitOf(text(), caret_) + static_cast<int>(preedit_.size()));
    }
}

void CellEditor::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    if (button().contains(event->position().toPoint())) return openList();
    const int character = characterAt(event->position().toPoint().x());
    select(event->modifiers() & Qt::ShiftModifier ? anchor_ : character, character);
}

void CellEditor::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) return;
    const int character = characterAt(event->position().toPoint().x());
    if (character != caret_) select(anchor_, character);
}

void CellEditor::mouseDoubleClickEvent(QMouseEvent* event) {
    const QTextLayout layout(text());
    const int unit = unitOf(text(), characterAt(event->position().toPoint().x()));
    select(characterOf(text(), layout.previousCursorPosition(unit, QTextLayout::SkipWords)),
           characterOf(text(), layout.nextCursorPosition(unit, QTextLayout::SkipWords)));
}

}  // namespace desktop
