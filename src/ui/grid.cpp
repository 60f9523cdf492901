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

/// How many of `count` cells, `step` apart, there are behind the first one.
int fitting(int first, int step, int count, int size) {
    return step == 0 ? count : std::min(count, (size - 1 - first) / step + 1);
}

}  // namespace

Grid::Grid(Control& container, std::string name, Design design)
    : Control(container, ControlKind::Grid, std::move(name), std::move(design)), separator_(separator()) {
    Cols(DesignTimeCols);
    Rows(DesignTimeRows);
}

void Grid::requireRoomFor(int rows, int cols) const {
    if (rows < 0 || cols < 0) raise(ErrorNumber::InvalidPropertyValue);
    if (static_cast<long long>(rows) * std::max(cols, 1) > MostCells) raise(ErrorNumber::OutOfMemory);
}

void Grid::Rows(int count) {
    requireRoomFor(count, Cols());
    if (count == Rows()) return;
    tellReshape();
    contentChanged();
    sortMark_ = {};
    cells_.resizeRows(static_cast<std::size_t>(count));
    forgetWidths();
    keepCurrentCellInside();
}

void Grid::Cols(int count) {
    requireRoomFor(Rows(), count);
    if (count == Cols()) return;
    tellReshape();
    contentChanged();
    sortMark_ = {};
    // Where the memory runs out, the grid stays as wide as it was.
    columns_.reserve(size(count));
    cells_.resizeCols(size(count));
    columns_.resize(size(count));
    keepCurrentCellInside();
}

void Grid::AddItem(std::string_view text, int row) {
    insertRows(row, 1);
    if (!columns_.empty()) cells_.text(static_cast<std::size_t>(row), 0, text);
}

void Grid::AddEmptyRows(int row, int count) {
    if (count > 0) insertRows(row, count);
}

void Grid::insertRows(int row, int count) {
    if (row < 0 || row > Rows()) raise(ErrorNumber::SubscriptOutOfRange);
    requireRoomFor(Rows() + count, Cols());
    tellReshape();
    contentChanged();
    sortMark_ = {};
    cells_.insertRows(static_cast<std::size_t>(row), static_cast<std::size_t>(count));
    forgetWidths();
}

void Grid::CopyTexts(int col, int row, int fromRow, int count) {
    if (count < 1) return;
    requireCell(row, col);
    requireCell(fromRow, col);
    const WrittenCells cells{row, col, 1, 0, fitting(std::max(row, fromRow), 1, count, Rows())};
    tellWrites(cells);
    for (int i = 0; i < cells.Count; ++i) cells_.copyText(size(row + i), size(col), size(fromRow + i));
    textsChanged(col);
    reportWritten(cells);
    if (cells.Count < count) raise(ErrorNumber::SubscriptOutOfRange);
}

void Grid::FillColumn(int col, int row, int step, int count, std::string_view text) {
    if (count < 1) return;
    requireCell(row, col);
    const WrittenCells cells{row, col, step, 0, fitting(row, step, count, Rows())};
    tellWrites(cells);
    cells_.fill({size(row), size(step), size(cells.Count)}, size(col), text);
    textsChanged(col);
    reportWritten(cells);
    if (cells.Count < count) raise(ErrorNumber::SubscriptOutOfRange);
}

void Grid::WriteColumn(int col, int row, int step, std::span<const std::string_view> texts) {
    if (texts.empty()) return;
    requireCell(row, col);
    const int count = static_cast<int>(texts.size());
    const WrittenCells cells{row, col, step, 0, fitting(row, step, count, Rows())};
    tellWrites(cells);
    for (int i = 0; i < cells.Count; ++i) cells_.text(size(row + i * step), size(col), texts[size(i)]);
    textsChanged(col);
    reportWritten(cells);
    if (cells.Count < count) raise(ErrorNumber::SubscriptOutOfRange);
}

void Grid::WriteRow(int row, int col, std::span<const std::string_view> texts) {
    if (texts.empty()) return;
    requireCell(row, col);
    const int count = static_cast<int>(texts.size());
    const WrittenCells cells{row, col, 0, 1, fitting(col, 1, count, Cols())};
    tellWrites(cells);
    for (int i = 0; i < cells.Count; ++i) {
        cells_.text(size(row), size(col + i), texts[size(i)]);
        textsChanged(col + i);
    }
    reportWritten(cells);
    if (cells.Count < count) raise(ErrorNumber::SubscriptOutOfRange);
}

void Grid::tellWrites(const WrittenCells& cells) {
    if (changeWatch_ != nullptr) cells.forEach([this](int row, int col) { tellWrite(row, col); });
}

void Grid::reportWritten(const WrittenCells& cells) {
    if (CellsChanged) return CellsChanged(cells);
    if (CellChanged) cells.forEach([this](int row, int col) { CellChanged(row, col); });
}

void Grid::ReserveRows(long long more) {
    if (more > 0 && (Rows() + more) * Cols() <= MostCells) cells_.reserveRows(static_cast<std::size_t>(more));
}

void Grid::RemoveItem(int row) {
    if (row < 0 || row >= Rows()) raise(ErrorNumber::SubscriptOutOfRange);
    tellReshape();
    contentChanged();
    cells_.eraseRow(static_cast<std::size_t>(row));
    forgetWidths();
    keepCurrentCellInside();
}

/// Apart, so that writing a cell of a grid that nobody watches stays as short as it is.
void Grid::tellWrite(int row, int col) { changeWatch_->willWrite(row, col); }

void Grid::tellReshape() {
    if (changeWatch_ != nullptr) changeWatch_->willReshape();
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
    if ((row == row_ && col == col_) || !BeforeRowColChange) return true;
    const ToldDeed deed(watch_, CellDeed::Leave, row_, col_);
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

CellTable::Range Grid::selection() const {
    const auto range = [](int row1, int col1, int row2, int col2) {
        return CellTable::Range{
            static_cast<std::size_t>(std::min(row1, row2)), static_cast<std::size_t>(std::min(col1, col2)),
            static_cast<std::size_t>(std::max(row1, row2)), static_cast<std::size_t>(std::max(col1, col2))};
    };
    return FillStyle == 0 ? range(row_, col_, row_, col_) : range(row_, col_, rowSel_, colSel_);
}

const CellFormat& Grid::format(int row, int col) const {
    requireCell(row, col);
    return cells_.format(static_cast<std::size_t>(row), static_cast<std::size_t>(col));
}

void Grid::changeFormats(const std::function<void(CellFormat&)>& change) {
    requireCell(row_, col_);
    contentChanged();
    cells_.changeFormats(selection(), change);
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
    if (!platform().drawsTexts()) return;
    measure(std::max(firstCol, 0), std::min(lastCol, Cols() - 1));
    for (int col = firstCol; col <= lastCol; ++col) {
        ColumnData& fitted = column(col);
        change(fitted.Width, fitted.MeasuredWidth);
    }
}

/// All columns in one go, since the cells of a row lie together.
void Grid::measure(int firstCol, int lastCol) {
    std::vector<std::size_t> cols;
    for (int col = firstCol; col <= lastCol; ++col) {
        if (columns_[size(col)].MeasuredWidth == NotMeasured) cols.push_back(size(col));
    }
    std::vector<int> widest(cols.size());
    cells_.visitTexts(cols, [&](std::size_t i, std::string_view text, bool bold) {
        widest[i] = std::max(widest[i], platform().textWidth(text, bold ? BoldCellFont : CellFont));
    });
    for (std::size_t i = 0; i < cols.size(); ++i) columns_[cols[i]].MeasuredWidth = widest[i] + CellPadding;
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
    const std::string_view text = TextMatrix(0, col);
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
