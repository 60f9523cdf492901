// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_view.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

#include "desktop/cell_editor.h"
#include "desktop/cell_tip.h"
#include "desktop/grid_accessible.h"
#include "desktop/texts.h"

namespace desktop {

namespace {

constexpr int FrameWidth = 2;

/// A scroll bar of the width that the grid counts with.
class GridScrollBar : public QScrollBar {
public:
    GridScrollBar(Qt::Orientation orientation, int width, QWidget* parent)
        : QScrollBar(orientation, parent), width_(width) {}
    QSize sizeHint() const override {
        const QSize hint = QScrollBar::sizeHint();
        return orientation() == Qt::Vertical ? QSize(width_, hint.height()) : QSize(hint.width(), width_);
    }

private:
    int width_;
};

}  // namespace

GridView::GridView(ui::Grid& grid, FormLink& link, QWidget* parent)
    : QAbstractScrollArea(parent),
      grid_(grid),
      link_(link),
      geometry_(grid, link.scale()),
      painter_(grid, geometry_, link.scale()),
      editor_(new CellEditor(grid, link, painter_, this, viewport())) {
    const int barWidth = link.scale().pixels(ui::Grid::ScrollBarWidth);
    setVerticalScrollBar(new GridScrollBar(Qt::Vertical, barWidth, this));
    setHorizontalScrollBar(new GridScrollBar(Qt::Horizontal, barWidth, this));
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(FrameWidth);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    installGridAccessibility();
    follow();
}

GridView::~GridView() = default;

void GridView::follow() {
    if (!grid_.Redraw()) return;
    geometry_.follow();
    updateScrollBars();
    placeEditor();
    refresh();
    if (QAccessible::isActive()) tellListeners();
}

void GridView::tellListeners() {
    const CellAddress current{grid_.Row(), grid_.Col()};
    const bool any = grid_.HasCell(current.Row, current.Col);
    std::string text(any ? grid_.TextMatrix(current.Row, current.Col) : std::string_view());
    const bool closed = std::exchange(toldEditing_, grid_.Editing()) && !grid_.Editing();
    const bool moved = current != toldCell_;
    const bool rewritten = !moved && text != toldText_;
    toldCell_ = current;
    toldText_ = std::move(text);
    if (moved || closed) tellCurrentCell(*this);
    if (rewritten) tellCellText(*this);
}

void GridView::refresh() {
    outdated_ = true;
    viewport()->update();
}

/// The vertical bar shows when the core counts it, and where the horizontal one takes the room of the last row.
void GridView::updateScrollBars() {
    const int frame = 2 * FrameWidth;
    const int barWidth = verticalScrollBar()->sizeHint().width();
    bool vertical = grid_.RowsOverflow();
    const bool horizontal = geometry_.totalWidth() > width() - frame - (vertical ? barWidth : 0);
    const int bodyRows = grid_.Rows() - geometry_.fixedRows();
    const int height = this->height() - frame - (horizontal ? barWidth : 0);
    if (horizontal && geometry_.wholeRows(height) < bodyRows) vertical = true;
    setVerticalScrollBarPolicy(vertical ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(horizontal ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);

    const int pageRows = std::max(1, geometry_.wholeRows(viewport()->height()));
    verticalScrollBar()->setRange(0, std::max(0, bodyRows - pageRows));
    verticalScrollBar()->setPageStep(pageRows);
    horizontalScrollBar()->setRange(0, std::max(0, geometry_.totalWidth() - viewport()->width()));
    horizontalScrollBar()->setPageStep(std::max(1, viewport()->width() - geometry_.bodyLeft()));
    horizontalScrollBar()->setSingleStep(barWidth);
    geometry_.scrollTo(verticalScrollBar()->value(), horizontalScrollBar()->value());
}

void GridView::placeEditor() {
    if (!grid_.Editing()) return editor_->conceal();
    const QRect body(QPoint(geometry_.bodyLeft(), geometry_.bodyTop()),
                     QPoint(viewport()->width() - 1, viewport()->height() - 1));
    editor_->showAt(geometry_.cell(grid_.Row(), grid_.Col()), body);
    editor_->showCaret(hasFocus());
}

void GridView::resizeEvent(QResizeEvent*) {
    if (!grid_.Redraw()) return;
    geometry_.follow();
    updateScrollBars();
    placeEditor();
    refresh();
}

void GridView::scrollContentsBy(int, int) {
    geometry_.scrollTo(verticalScrollBar()->value(), horizontalScrollBar()->value());
    if (!grid_.Redraw()) return;
    placeEditor();
    refresh();
}

void GridView::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    refresh();
}

void GridView::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    if (QAccessible::isActive()) tellCurrentCell(*this);
    placeEditor();
    refresh();
    update();
}

void GridView::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    editor_->showCaret(false);
    refresh();
    update();
}

void GridView::paintEvent(QPaintEvent*) {
    const QRect shown(QPoint(), picture_.deviceIndependentSize().toSize());
    const bool fits =
        shown.size() == viewport()->size() && picture_.devicePixelRatio() == viewport()->devicePixelRatioF();
    if (grid_.Redraw() && (outdated_ || !fits)) render();
    QPainter painter(viewport());
    if (!shown.contains(viewport()->rect())) painter.fillRect(viewport()->rect(), palette().base());
    painter.drawPixmap(0, 0, picture_);
}

void GridView::render() {
    const double ratio = viewport()->devicePixelRatioF();
    const QSize size = (QSizeF(viewport()->size()) * ratio).toSize();
    if (picture_.size() != size || picture_.devicePixelRatio() != ratio) {
        picture_ = QPixmap(size);
        picture_.setDevicePixelRatio(ratio);
    }
    geometry_.follow();
    QPalette colours = palette();
    colours.setCurrentColorGroup(isEnabled() ? QPalette::Active : QPalette::Disabled);
    QPainter painter(&picture_);
    painter_.paint(painter, viewport()->size(), {colours, hasFocus()});
    outdated_ = false;
}

/// A line around, in the colour of the highlight with the keyboard's focus, and one within.
void GridView::paintFrame() {
    QPainter painter(this);
    painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(palette().color(QPalette::Base));
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
}

bool GridView::event(QEvent* event) {
    if (event->type() == QEvent::Paint) {
        paintFrame();
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride && isOwnShortcut(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress && isEnabled()) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool plain = !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
        const bool backwards = key->key() == Qt::Key_Backtab;
        if (plain && (backwards || key->key() == Qt::Key_Tab) && goByTab(backwards)) return true;
    }
    return QAbstractScrollArea::event(event);
}

bool GridView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        showToolTip(static_cast<QHelpEvent*>(event));
        return true;
    }
    if (event->type() == QEvent::Leave) leave();
    return QAbstractScrollArea::viewportEvent(event);
}

/// The grid's own tip, or the text of a cell that is too narrow for it.
void GridView::showToolTip(QHelpEvent* event) {
    const CellAddress cell = geometry_.cellAt(event->pos());
    std::string tip = grid_.ToolTipText();
    if (tip.empty() && cell.Row >= 0 && painter_.isCut(cell)) tip = grid_.TextMatrix(cell.Row, cell.Col);
    QToolTip::showText(event->globalPos(), plainToolTip(tip), viewport(),
                       cell.Row < 0 ? QRect() : geometry_.cell(cell.Row, cell.Col));
}

/// What the pointer would tell of a cell: the name of its column, what that means, and a text that is cut.
void GridView::explain(CellAddress cell) {
    if (!grid_.HasCell(cell.Row, cell.Col)) return;
    hovered_ = {0, cell.Col};
    act([this] { grid_.UserMouseMove(hovered_.Row, hovered_.Col); });
    QStringList lines = {shownText(additions_.HeadingOf ? additions_.HeadingOf(cell.Col)
                                                        : std::string(grid_.TextMatrix(0, cell.Col)))};
    lines << shownText(grid_.ToolTipText());
    if (painter_.isCut(cell)) lines << shownText(grid_.TextMatrix(cell.Row, cell.Col));
    lines.removeAll({});
    lines.removeDuplicates();
    showTip(*viewport(), cellPlace(cell.Row, cell.Col).bottomLeft(), lines.join('\n'));
}

void GridView::reveal(CellAddress cell) {
    if (!grid_.IsBody(cell.Row, cell.Col)) return;
    QScrollBar* rows = verticalScrollBar();
    const int row = cell.Row - geometry_.fixedRows();
    const int page = std::max(1, geometry_.wholeRows(viewport()->height()));
    if (row < rows->value()) rows->setValue(row);
    if (row >= rows->value() + page) rows->setValue(row - page + 1);

    QScrollBar* columns = horizontalScrollBar();
    const int beyond = geometry_.right(cell.Col) - viewport()->width();
    if (beyond > 0) columns->setValue(columns->value() + beyond);
    const int before = geometry_.bodyLeft() - geometry_.left(cell.Col);
    if (before > 0) columns->setValue(columns->value() - before);
}

}  // namespace desktop
