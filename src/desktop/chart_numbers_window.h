// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QDialog>
#include <QTableView>

#include "desktop/chart_numbers.h"

namespace desktop {

/// A category a row, its values as the chart gives them.
class ChartNumbersModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// `headings` are those of the categories and of each series.
    ChartNumbersModel(ChartNumbers numbers, QStringList headings, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    const QString& text(const QModelIndex& index) const;

    ChartNumbers numbers_;
    QStringList headings_;
};

/// A table that is read and copied, not changed.
class ChartNumbersTable : public QTableView {
    Q_OBJECT

public:
    ChartNumbersTable(ChartNumbersModel* model, QWidget* parent);

    /// Puts the selected cells on the clipboard, columns divided by tabs. The whole table takes its headings along; asked
    /// to, so does any other part, and the names in the first column.
    void copySelected(bool withHeadings) const;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString textOf(const QItemSelectionRange& cells, bool withHeadings) const;
};

/// The numbers behind a chart's picture, for who cannot see it or wants to read them off.
class ChartNumbersWindow : public QDialog {
    Q_OBJECT

public:
    ChartNumbersWindow(const ui::Chart& chart, const ChartNumbers& numbers, QWidget* parent);
};

}  // namespace desktop
