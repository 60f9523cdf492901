// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_accessible.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>
#include <algorithm>

#include "desktop/grid_view.h"
#include "desktop/texts.h"

namespace desktop {

namespace {

constexpr qsizetype MostCellsKept = 20'000;

GridView* viewOf(QObject* object) { return static_cast<GridView*>(object); }

QAccessibleInterface* tableOf(GridView& view) { return QAccessible::queryAccessibleInterface(&view); }

/// One cell, found anew at every question, since rows come and go.
class CellInterface : public QAccessibleInterface, public QAccessibleTableCellInterface {
public:
    CellInterface(GridView& view, int row, int col) : view_(&view), row_(row), col_(col) {}

    bool isValid() const override { return view_ != nullptr && view_->grid().HasCell(row_, col_); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return view_ ? view_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return view_ ? tableOf(*view_) : nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        const bool asked = kind == QAccessible::Name || kind == QAccessible::Value;
        return asked && isValid() ? shownText(view_->grid().TextMatrix(row_, col_)) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!isValid()) return {};
        const QRect place = view_->cellPlace(row_, col_);
        return place.isEmpty() ? QRect() : place.translated(view_->viewport()->mapToGlobal(QPoint()));
    }
    QAccessible::Role role() const override {
        if (!isValid()) return QAccessible::Cell;
        if (row_ < view_->grid().FixedRows()) return QAccessible::ColumnHeader;
        return col_ < view_->grid().FixedCols() ? QAccessible::RowHeader : QAccessible::Cell;
    }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TableCellInterface) return static_cast<QAccessibleTableCellInterface*>(this);
        return nullptr;
    }

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override { return heading(0, col_); }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return heading(row_, 0); }
    int columnIndex() const override { return col_; }
    int rowIndex() const override { return row_; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

private:
    QList<QAccessibleInterface*> heading(int row, int col) const;
    bool isCurrent() const { return view_->grid().KeyCell() == std::pair(row_, col_); }

    QPointer<GridView> view_;
    int row_;
    int col_;
};

QAccessible::State CellInterface::state() const {
    QAccessible::State state;
    state.invalid = !isValid();
    if (!isValid()) return state;
    state.focusable = true;
    state.selectable = true;
    state.disabled = !view_->isEnabled();
    state.focused = isCurrent() && view_->hasFocus();
    state.selected = isSelected();
    state.readOnly = view_->grid().Editable == ui::EditMode::ReadOnly;
    state.editable = !state.readOnly;
    const QRect place = view_->cellPlace(row_, col_);
    state.invisible = place.isEmpty() || !view_->isVisible();
    state.offscreen = !place.intersects(view_->viewport()->rect());
    return state;
}

bool CellInterface::isSelected() const {
    if (!isValid()) return false;
    const ui::Grid& grid = view_->grid();
    const auto within = [](int place, int a, int b) {
        return place >= std::min(a, b) && place <= std::max(a, b);
    };
    return within(row_, grid.Row(), grid.RowSel()) && within(col_, grid.Col(), grid.ColSel());
}

/// The grid as a table whose children are its cells, row by row. Cells are made when they are asked for.
class GridInterface : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit GridInterface(GridView& view) : QAccessibleWidget(&view, QAccessible::Table) {}
    ~GridInterface() override { dropCells(); }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    int childCount() const override { return grid().Rows() * grid().Cols(); }
    QAccessibleInterface* child(int index) const override {
        const int cols = grid().Cols();
        return cols == 0 || index < 0 ? nullptr : cellAt(index / cols, index % cols);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* cell = dynamic_cast<const CellInterface*>(child);
        return cell != nullptr && cell->isValid() ? cell->rowIndex() * grid().Cols() + cell->columnIndex()
                                                  : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const QWidget* viewport = view().viewport();
        const QPoint place = viewport->mapFromGlobal(QPoint(x, y));
        const CellAddress cell = viewport->rect().contains(place) ? view().cellAt(place) : CellAddress{};
        return cellAt(cell.Row, cell.Col);
    }
    QAccessibleInterface* focusChild() const override {
        const auto [row, col] = grid().KeyCell();
        return view().hasFocus() ? cellAt(row, col) : nullptr;
    }

    QAccessibleInterface* cellAt(int row, int col) const override;
    int rowCount() const override { return grid().Rows(); }
    int columnCount() const override { return grid().Cols(); }
    QString rowDescription(int row) const override { return textOf(row, 0); }
    QString columnDescription(int col) const override { return textOf(0, col); }
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }

    // A selection is a range that ends in the current cell; it is made with the keyboard.
    int selectedCellCount() const override { return selectedRowCount() * selectedColumnCount(); }
    int selectedRowCount() const override { return std::abs(grid().RowSel() - grid().Row()) + 1; }
    int selectedColumnCount() const override { return std::abs(grid().ColSel() - grid().Col()) + 1; }
    QList<QAccessibleInterface*> selectedCells() const override {
        return {cellAt(grid().Row(), grid().Col())};
    }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

private:
    GridView& view() const { return *viewOf(object()); }
    const ui::Grid& grid() const { return view().grid(); }
    QString textOf(int row, int col) const {
        return grid().HasCell(row, col) ? shownText(grid().TextMatrix(row, col)) : QString();
    }
    void dropCells() const {
        for (const QAccessible::Id id : std::as_const(cells_)) QAccessible::deleteAccessibleInterface(id);
        cells_.clear();
    }

    mutable QHash<std::pair<int, int>, QAccessible::Id> cells_;
};

QAccessibleInterface* GridInterface::cellAt(int row, int col) const {
    if (!grid().HasCell(row, col)) return nullptr;
    if (const auto known = cells_.constFind({row, col}); known != cells_.cend()) {
        return QAccessible::accessibleInterface(*known);
    }
    if (cells_.size() >= MostCellsKept) dropCells();
    auto* cell = new CellInterface(view(), row, col);
    cells_.insert({row, col}, QAccessible::registerAccessibleInterface(cell));
    return cell;
}

QList<QAccessibleInterface*> CellInterface::heading(int row, int col) const {
    if (!isValid() || (row == row_ && col == col_)) return {};
    auto* table = parent()->tableInterface();
    QAccessibleInterface* cell = table != nullptr ? table->cellAt(row, col) : nullptr;
    return cell != nullptr ? QList{cell} : QList<QAccessibleInterface*>{};
}

QAccessibleInterface* makeGridInterface(const QString&, QObject* object) {
    auto* view = dynamic_cast<GridView*>(object);
    return view != nullptr ? new GridInterface(*view) : nullptr;
}

void tell(GridView& view, QAccessible::Event kind) {
    const ui::Grid& grid = view.grid();
    const auto [row, col] = grid.KeyCell();
    if (!QAccessible::isActive() || !grid.HasCell(row, col)) return;
    QAccessibleEvent event(&view, kind);
    event.setChild(row * grid.Cols() + col);
    QAccessible::updateAccessibility(&event);
}

}  // namespace

void installGridAccessibility() {
    static const bool installed = (QAccessible::installFactory(makeGridInterface), true);
    static_cast<void>(installed);
}

void tellCurrentCell(GridView& view) {
    if (view.hasFocus()) tell(view, QAccessible::Focus);
    tell(view, QAccessible::Selection);
}

void tellCellText(GridView& view) { tell(view, QAccessible::NameChanged); }

}  // namespace desktop
