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
