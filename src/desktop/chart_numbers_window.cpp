// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/chart_numbers_window.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/texts.h"
#include "ui/window_texts.h"

namespace desktop {

namespace {

constexpr int RowsMeasured = 200;  // for the widths of the columns
constexpr int CellPadding = 6;     // pixels above and below a line
constexpr int WidestWindow = 130;  // average characters
constexpr int TallestWindow = 30;  // lines

QString orElse(const std::string& text, const char* otherwise) {
    return shownText(text.empty() ? otherwise : text);
}

QStringList headingsOf(const ui::Chart& chart, const ChartNumbers& numbers) {
    QStringList headings{orElse(chart.XAxisTitle, ui::window_text::ChartCategory)};
    if (!numbers.hasLegend()) return headings << orElse(chart.YAxisTitle, ui::window_text::ChartValue);
    for (int i = 0; i < static_cast<int>(numbers.AllSeries.size()); ++i) headings << numbers.seriesName(i);
    return headings;
}

/// A text that stays in its cell where it is pasted.
QString cell(const QVariant& text) { return text.toString().simplified(); }

}  // namespace

ChartNumbersModel::ChartNumbersModel(ChartNumbers numbers, QStringList headings, QObject* parent)
    : QAbstractTableModel(parent), numbers_(std::move(numbers)), headings_(std::move(headings)) {}

int ChartNumbersModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : numbers_.count();
}

int ChartNumbersModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(numbers_.AllSeries.size()) + 1;
}

const QString& ChartNumbersModel::text(const QModelIndex& index) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (index.column() == 0) return numbers_.Categories[row];
    return numbers_.AllSeries[static_cast<std::size_t>(index.column()) - 1].Texts[row];
}

QVariant ChartNumbersModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    if (role == Qt::DisplayRole) return text(index);
    if (role == Qt::TextAlignmentRole && index.column() > 0) return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant ChartNumbersModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return section + 1;
    return headings_.value(section);
}

ChartNumbersTable::ChartNumbersTable(ChartNumbersModel* model, QWidget* parent) : QTableView(parent) {
    setModel(model);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->setHighlightSections(false);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + CellPadding);
    horizontalHeader()->setResizeContentsPrecision(RowsMeasured);
    resizeColumnsToContents();
    if (model->rowCount() > 0) setCurrentIndex(model->index(0, 0));
}

QString ChartNumbersTable::textOf(const QItemSelectionRange& cells, bool withHeadings) const {
    QStringList lines;
    const auto line = [&](const auto& textAt) {
        QStringList texts;
        if (withHeadings && cells.left() > 0) texts << cell(textAt(0));
        for (int column = cells.left(); column <= cells.right(); ++column) texts << cell(textAt(column));
        return texts.join('\t');
    };
    const bool whole = cells.width() == model()->columnCount() && cells.height() == model()->rowCount();
    if (whole || withHeadings)
        lines << line([this](int column) { return model()->headerData(column, Qt::Horizontal); });
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        lines << line([this, row](int column) { return model()->index(row, column).data(); });
    }
    return lines.join('\n');
}

void ChartNumbersTable::copySelected(bool withHeadings) const {
    const QItemSelection selection = selectionModel()->selection();
    if (selection.isEmpty()) return;
    QGuiApplication::clipboard()->setText(textOf(selection.first(), withHeadings));
}

void ChartNumbersTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return copySelected(false);
    if (event->keyCombination() == CopyWithHeadingsKeys) return copySelected(true);
    QTableView::keyPressEvent(event);
}

ChartNumbersWindow::ChartNumbersWindow(const ui::Chart& chart, const ChartNumbers& numbers, QWidget* parent)
    : QDialog(parent) {
    setWindowTitle(shownText(chart.Title));
    auto* table =
        new ChartNumbersTable(new ChartNumbersModel(numbers, headingsOf(chart, numbers), this), this);
    table->setAccessibleName(windowTitle());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* copy = buttons->addButton(ui::window_text::CopyCells, QDialogButtonBox::ActionRole);
    copy->setAutoDefault(false);
    connect(copy, &QPushButton::clicked, table, [table] { table->copySelected(false); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(table);
    layout->addWidget(buttons);
    const int width = table->horizontalHeader()->length() + table->verticalHeader()->sizeHint().width() * 2;
    const int height = (numbers.count() + 6) * table->verticalHeader()->defaultSectionSize();
    resize(std::min(width + fontMetrics().averageCharWidth() * 6,
                    fontMetrics().averageCharWidth() * WidestWindow),
           std::min(height, fontMetrics().height() * TallestWindow));
}

}  // namespace desktop
