// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/grid.h"

#include <algorithm>
#include <utility>

#include "ui/text.h"

namespace ui {

namespace {

constexpr int DesignTimeRows = 1;
constexpr int DesignTimeCols = 10;
// More cells than any landscape has, and few enough that a slip of the finger does not exhaust the machine.
constexpr long long MostCells = 1LL << 24;
constexpr int MostHeadingLines = 2;
const Font CellFont{};
const Font BoldCellFont{.Bold = true};

/// Keeps the elements that both sizes have.
template <class T>
void resizeArray(std::unique_ptr<T[]>& array, std::size_t before, std::size_t after) {
    auto resized = std::make_unique<T[]>(after);
    std::move(array.get(), array.get() + std::min(before, after), resized.get());
    array = std::move(resized);
}

}  // namespace

Grid::Grid(Control& container, std::string name, Design design)
    : Control(container, ControlKind::Grid, std::move(name), std::move(design)), separator_(separator()) {
    Cols(DesignTimeCols);
    Rows(DesignTimeRows);
}

void Grid::requireCell(int row, int col) const {
    if (!contains(row, col)) raise(ErrorNumber::SubscriptOutOfRange);
}

void Grid::requireRoomFor(int rows, int cols) const {
    if (rows < 0 || cols < 0) raise(ErrorNumber::InvalidPropertyValue);
    if (static_cast<long long>(rows) * std::max(cols, 1) > MostCells) raise(ErrorNumber::OutOfMemory);
}

void Grid::Rows(int count) {
    requireRoomFor(count, Cols());
    const int before = Rows();
    if (count == before) return;
    reportChange();
    sortMark_ = {};
    // Made first, so that no row is left without cells where the memory runs out.
    std::vector<RowData> added;
    for (int row = before; row < count; ++row) added.push_back(emptyRow());
    rows_.resize(static_cast<std::size_t>(count));
    for (int row = before; row < count; ++row)
        rows_[static_cast<std::size_t>(row)] = std::move(added[static_cast<std::size_t>(row - before)]);
    forgetWidths();
    keepCurrentCellInside();
}

void Grid::Cols(int count) {
    requireRoomFor(Rows(), count);
    if (count == Cols()) return;
    reportChange();
    sortMark_ = {};
    const std::size_t before = columns_.size();
    const auto after = static_cast<std::size_t>(count);
    // Where the memory runs out, a row may be left longer than the grid is wide, but never shorter.
    if (after < before) columns_.resize(after);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        resizeArray(rows_[i].Cells, before, after);
        if (rows_[i].Formats) resizeArray(rows_[i].Formats, before, after);
    }
    columns_.resize(after);
    keepCurrentCellInside();
}

void Grid::AddItem(std::string_view text, int row) {
    if (row < 0 || row > Rows()) raise(ErrorNumber::SubscriptOutOfRange);
    requireRoomFor(Rows() + 1, Cols());
    reportChange();
    sortMark_ = {};
    RowData added = emptyRow();
    if (!columns_.empty()) added.Cells[0] = text;
    rows_.insert(static_cast<std::size_t>(row), std::move(added));
    forgetWidths();
}

void Grid::RemoveItem(int row) {
    if (row < 0 || row >= Rows()) raise(ErrorNumber::SubscriptOutOfRange);
    reportChange();
    rows_.erase(static_cast<std::size_t>(row));
    forgetWidths();
    keepCurrentCellInside();
}

void Grid::forgetWidths() {
    for (ColumnData& column : columns_) column.MeasuredWidth = NotMeasured;
}

void Grid::keepCurrentCellInside() {
    const bool anyCell = Rows() > 0 && Cols() > 0;
    const auto inside = [&](int index, int count) { return anyCell ? std::clamp(index, 0, count - 1) : 0; };
    row_ = inside(row_, Rows());
    rowSel_ = inside(rowSel_, Rows());
    col_ = inside(col_, Cols());
    colSel_ = inside(colSel_, Cols());
}

bool Grid::mayLeaveFor(int row, int col) {
    if (row == row_ && col == col_) return true;
    bool cancel = false;
    BeforeRowColChange(row_, col_, row, col, cancel);
    return !cancel;
}

void Grid::Select(int row1, int col1, int row2, int col2) {
    requireCell(row1, col1);
    requireCell(row2, col2);
    if (!mayLeaveFor(row1, col1)) return;
    change(row_, row1);
    change(col_, col1);
    change(rowSel_, row2);
    change(colSel_, col2);
    change(userSelected_, false);
}

Grid::CellRange Grid::selection() const {
    if (FillStyle == 0) return {row_, col_, row_, col_};
    return {std::min(row_, rowSel_), std::min(col_, colSel_), std::max(row_, rowSel_),
            std::max(col_, colSel_)};
}

const Grid::CellFormat& Grid::format(int row, int col) const {
    static const CellFormat Unset;
    requireCell(row, col);
    const RowData& data = rows_[static_cast<std::size_t>(row)];
    return data.Formats ? data.Formats[static_cast<std::size_t>(col)] : Unset;
}

/// Changes the format of each selected cell; a row gets formats only when one of its cells needs one.
template <class Change>
void Grid::changeFormats(Change change) {
    requireCell(row_, col_);
    reportChange();
    const auto same = [](const CellFormat& a, const CellFormat& b) {
        return a.BackColor == b.BackColor && a.Alignment == b.Alignment && a.Checked == b.Checked &&
               a.Bold == b.Bold;
    };
    CellFormat unset;
    change(unset);
    const bool needsFormats = !same(unset, CellFormat());
    const CellRange range = selection();
    for (int row = range.FirstRow; row <= range.LastRow; ++row) {
        std::unique_ptr<CellFormat[]>& formats = rows_[static_cast<std::size_t>(row)].Formats;
        if (!formats && !needsFormats) continue;
        if (!formats) formats = std::make_unique<CellFormat[]>(columns_.size());
        for (int col = range.FirstCol; col <= range.LastCol; ++col)
            change(formats[static_cast<std::size_t>(col)]);
    }
}

void Grid::CellBackColor(Colour colour) {
    changeFormats([=](CellFormat& format) { format.BackColor = colour; });
}

void Grid::CellFontBold(bool bold) {
    changeFormats([=](CellFormat& format) { format.Bold = bold; });
}

void Grid::CellAlignment(CellAlign alignment) {
    changeFormats([=](CellFormat& format) { format.Alignment = alignment; });
}

void Grid::CellChecked(CheckState state) {
    changeFormats([=](CellFormat& format) { format.Checked = state; });
}

CellAlign Grid::AlignmentOf(int row, int col) const {
    const CellAlign own = format(row, col).Alignment;
    return own != CellAlign::General ? own : column(col).Alignment;
}

const Grid::ColumnData& Grid::column(int col) const {
    if (col < 0 || col >= Cols()) raise(ErrorNumber::SubscriptOutOfRange);
    return columns_[static_cast<std::size_t>(col)];
}

Grid::ColumnData& Grid::column(int col) { return const_cast<ColumnData&>(std::as_const(*this).column(col)); }

void Grid::ColWidth(int col, double width) { change(column(col).Width, std::max(0, toLong(width))); }

void Grid::AutoSize(int firstCol, int lastCol) {
    for (int col = firstCol; col <= lastCol; ++col) {
        ColumnData& fitted = column(col);
        if (fitted.MeasuredWidth == NotMeasured) fitted.MeasuredWidth = measure(col);
        change(fitted.Width, fitted.MeasuredWidth);
    }
}

int Grid::measure(int col) const {
    int widest = 0;
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        const auto index = static_cast<std::size_t>(col);
        const RowData& data = rows_[row];
        const std::string& text = data.Cells[index];
        if (text.empty()) continue;
        const bool bold = data.Formats && data.Formats[index].Bold;
        widest = std::max(widest, platform().textWidth(text, bold ? BoldCellFont : CellFont));
    }
    return widest + CellPadding;
}

/// Room for a high heading is counted in any case: whether a scroll bar takes room must not hang on the columns' widths,
/// which hang on that room.
bool Grid::RowsOverflow() const {
    const int furtherLines = WordWrap && fixedRows_ > 0 ? MostHeadingLines - 1 : 0;
    return static_cast<long long>(Rows()) * RowHeight + furtherLines * LineHeight > Height() - BorderWidth;
}

/// How many lines a heading takes: word by word, as many in a line as there is room for.
int Grid::headingLines(int col) const {
    const int room = ColWidth(col) - CellPadding;
    const Font& font = IsBold(0, col) ? BoldCellFont : CellFont;
    const std::string& text = TextMatrix(0, col);
    if (text.empty() || platform().textWidth(text, font) <= room) return 1;
    int lines = 0;
    std::string line;
    for (const std::string_view word : split(text, ' ')) {
        const std::string longer = line.empty() ? std::string(word) : line + ' ' + std::string(word);
        const bool fits = !line.empty() && platform().textWidth(longer, font) <= room;
        if (!fits) ++lines;
        line = fits ? longer : std::string(word);
    }
    return lines;
}

int Grid::HeadingHeight() const {
    int lines = 1;
    for (int col = 0; WordWrap && Rows() > 0 && fixedRows_ > 0 && col < Cols(); ++col) {
        if (!ColHidden(col)) lines = std::max(lines, std::min(headingLines(col), MostHeadingLines));
    }
    return RowHeight + (lines - 1) * LineHeight;
}

int Grid::ClientWidth() const {
    return std::max(0, Width() - BorderWidth - (RowsOverflow() ? ScrollBarWidth : 0));
}

}  // namespace ui
