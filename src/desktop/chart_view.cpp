// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/chart_view.h"

#include <QMenu>
#include <QToolTip>
#include <cmath>

#include "desktop/accessible_role.h"
#include "desktop/chart_numbers_window.h"
#include "desktop/texts.h"
#include "ui/window_texts.h"

namespace desktop {

namespace {

constexpr double WheelStep = 120;     // of a wheel's angle
constexpr double ZoomFactor = 0.8;    // a step
constexpr double MoveByKey = 0.1;     // of the shown categories
constexpr double LeastMoveByKey = 1;  // category

/// Where a value stands, in words.
QString placeOf(const ChartNumbers& numbers, int category, int series) {
    const QString& name = numbers.Categories[static_cast<std::size_t>(category)];
    return numbers.hasLegend() ? name + ", " + numbers.seriesName(series) : name;
}

QString textOf(const ChartNumbers& numbers, int category, int series) {
    return numbers.AllSeries[static_cast<std::size_t>(series)].Texts[static_cast<std::size_t>(category)];
}

QString summary(const QString& title, const ChartNumbers& numbers) {
    const auto extremes = numbers.extremes();
    if (!extremes) return QString(ui::window_text::ChartWithoutValues).arg(title);
    const auto [least, greatest, leastAt, leastOf, greatestAt, greatestOf] = *extremes;
    return QString(ui::window_text::ChartSummary)
        .arg(title, QString::number(numbers.count()), QString::number(numbers.AllSeries.size()),
             textOf(numbers, leastAt, leastOf), placeOf(numbers, leastAt, leastOf),
             textOf(numbers, greatestAt, greatestOf), placeOf(numbers, greatestAt, greatestOf));
}

/// Lines as they are, in which Qt sees no mark-up but its own.
QString plainTip(const QString& text) {
    return "<p style='white-space:pre-wrap'>" + text.toHtmlEscaped() + "</p>";
}

}  // namespace

ChartView::ChartView(ui::Chart& chart, FormLink& link, QWidget* parent)
    : ChartPlot(chart, link.scale(), parent), control_(chart), link_(link) {
    announceAs(*this, QAccessible::Chart);
    setFocusPolicy(Qt::StrongFocus);
}

void ChartView::dataRead() { setAccessibleDescription(summary(shownText(control_.Title), numbers())); }

QString ChartView::tipAt(QPointF place) {
    const auto bar = barAt(place);
    if (!bar) return cutNameAt(place);
    const QString value = textOf(numbers(), bar->Category, bar->Series);
    const QString name =
        numbers().hasLegend() ? numbers().seriesName(bar->Series) : shownText(control_.YAxisTitle);
    const QString category = numbers().Categories[static_cast<std::size_t>(bar->Category)];
    return category + '\n' + (name.isEmpty() ? value : name + ": " + value);
}

void ChartView::showTip(QPoint place, QPoint onScreen) {
    const QString tip = tipAt(place);
    if (tip.isEmpty()) return QToolTip::hideText();
    QToolTip::showText(onScreen, plainTip(tip), this, QRect(place, QSize(1, 1)));
}

bool ChartView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return ChartPlot::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    showTip(help->pos(), help->globalPos());
    return true;
}

void ChartView::showNumbers() {
    auto* window = new ChartNumbersWindow(control_, numbers(), this);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->open();
}

void ChartView::copyPicture() {
    link_.run([this] { control_.EditCopy(); });
}

void ChartView::showAll() { showCategories(allCategories(numbers().count())); }

void ChartView::move(double categories) {
    showCategories(moved(shownCategories(), categories, numbers().count()));
}

void ChartView::zoom(double factor, double centre) {
    showCategories(zoomed(shownCategories(), factor, centre, numbers().count()));
}

/// A wheel that is turned sideways moves along.
void ChartView::wheelEvent(QWheelEvent* event) {
    const QPointF steps = QPointF(event->angleDelta()) / WheelStep;
    const double size = shownCategories().size();
    if (steps.y() != 0) zoom(std::pow(ZoomFactor, steps.y()), xAxis->pixelToCoord(event->position().x()));
    if (steps.x() != 0) move(-steps.x() * MoveByKey * size);
    event->accept();
}

void ChartView::mousePressEvent(QMouseEvent* event) { dragged_ = event->position().x(); }

void ChartView::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton)) return;
    const double place = event->position().x();
    move((dragged_ - place) * shownCategories().size() / std::max(axisRect()->width(), 1));
    dragged_ = place;
    if (shownCategories() != allCategories(numbers().count())) setCursor(Qt::ClosedHandCursor);
}

void ChartView::mouseReleaseEvent(QMouseEvent* /*event*/) { unsetCursor(); }

void ChartView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) showAll();
}

bool ChartView::handleKey(const QKeyEvent& event) {
    const CategoryRange shown = shownCategories();
    const double centre = (shown.Lower + shown.Upper) / 2;
    const double step = std::max(shown.size() * MoveByKey, LeastMoveByKey);
    switch (event.key()) {
        case Qt::Key_Left: move(-step); return true;
        case Qt::Key_Right: move(step); return true;
        case Qt::Key_Plus:
        case Qt::Key_Equal: zoom(ZoomFactor, centre); return true;
        case Qt::Key_Minus: zoom(1 / ZoomFactor, centre); return true;
        case Qt::Key_Home:
        case Qt::Key_0: showAll(); return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_F2: showNumbers(); return true;
        default: return false;
    }
}

void ChartView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return copyPicture();
    const bool plain = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    if (!plain || !handleKey(*event)) ChartPlot::keyPressEvent(event);
}

void ChartView::contextMenuEvent(QContextMenuEvent* event) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(ui::window_text::CopyPicture, this, &ChartView::copyPicture);
    menu->addAction(ui::window_text::ShowNumbers, this, &ChartView::showNumbers);
    QAction* all = menu->addAction(ui::window_text::ShowAllCategories, this, &ChartView::showAll);
    all->setEnabled(shownCategories() != allCategories(numbers().count()));
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    menu->popup(byKey ? mapToGlobal(rect().center()) : event->globalPos());
}

}  // namespace desktop
