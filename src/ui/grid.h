// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/appearance.h"
#include "ui/cell_table.h"
#include "ui/cell_watch.h"
#include "ui/control.h"
#include "ui/errors.h"
#include "ui/event.h"
#include "ui/files.h"
#include "ui/text_editor.h"

namespace ui {

/// Values of Grid::Sort.
enum class SortOrder { GenericAscending = 1, GenericDescending = 2, TextAscending = 5 };
/// Values of Grid::Editable.
enum class EditMode { ReadOnly = 0, KeyboardAndMouse = 2 };
/// The formats of SaveGrid.
enum class GridFileFormat { TabDelimited = 4 };
/// What a block of cells that was pasted has come to.
struct PastedBlock {
    int Left = 0;  ///< cells that were not pasted, the refused one among them
    /// What the cell that is now the current one refused; nothing where all was pasted, or there was no cell for the rest.
    std::optional<std::string> Refused;
};

/// Cells of a row or a column that were written together.
struct WrittenCells {
    int Row;  ///< of the first one
    int Col;
    int RowStep;
    int ColStep;
    int Count;

    template <class Visit>
    void forEach(Visit visit) const {
        for (int i = 0; i < Count; ++i) visit(Row + i * RowStep, Col + i * ColStep);
    }
};

/// A rectangular table of text cells with heading rows and columns, counted from 0 at the top left. Cells are the
/// program's store. A cell address outside the grid raises SubscriptOutOfRange.
///
/// Every write of a cell fires CellChanged at once, also one of an equal text; changing the shape and sorting fire
/// nothing. Dropped cells lose text, colour and weight; sorting, AddItem and RemoveItem carry them along.
class Grid : public Control {
public:
    Grid(Control& container, std::string name, Design design = {});

    Event<int, int> CellChanged;                          ///< row, column
    Event<const WrittenCells&> CellsChanged;              ///< many at once, each of them as by CellChanged
    Event<int, int, bool&> BeforeEdit;                    ///< row, column, cancel
    Event<int, int, int&> KeyPressEdit;                   ///< row, column, key; 0 swallows it
    Event<int, int, bool&> ValidateEdit;                  ///< row, column, cancel: keeps the editor open
    Event<int, int> AfterEdit;                            ///< row, column; a user's edit only
    Event<int, int, int, int, bool&> BeforeRowColChange;  ///< old row and column, new ones, cancel
    Event<> MouseMove;
    Event<> MouseDown;

    // Shape. New cells are empty.
    int Rows() const { return static_cast<int>(cells_.rows()); }
    void Rows(int count);
    int Cols() const { return static_cast<int>(cells_.cols()); }
    void Cols(int count);
    int FixedRows() const { return fixedRows_; }
    void FixedRows(int count) { change(fixedRows_, count); }
    int FixedCols() const { return fixedCols_; }
    void FixedCols(int count) { change(fixedCols_, count); }
    /// Adds a row with `text` in its first cell, at the end or before `row`.
    void AddItem(std::string_view text) { AddItem(text, Rows()); }
    void AddItem(std::string_view text, int row);
    /// Adds so many empty rows at once before `row`.
    void AddEmptyRows(int row, int count);
    /// To be called before so many rows are added one by one, which then take no more memory than they need. Changes
    /// nothing else, nor is it held to what a grid has room for.
    void ReserveRows(long long more);
    void RemoveItem(int row);

    // Cells.
    /// Valid until this cell changes, or the shape or the order of the grid.
    std::string_view TextMatrix(int row, int col) const {
        requireCell(row, col);
        return cells_.text(size(row), size(col));
    }
    /// Calls `read` with the text of each cell of a column, `count` of them from `row` on or as many as there are; tells
    /// how many that was.
    template <class Read>
    int ReadColumn(int col, int row, int count, Read read) const {
        if (!HasCell(row, col)) return 0;
        const int inside = std::min(count, Rows() - row);
        cells_.readColumn(size(col), size(row), size(inside), read);
        return inside;
    }
    /// The same for the cells of a row.
    template <class Read>
    int ReadRow(int row, int col, int count, Read read) const {
        if (!HasCell(row, col)) return 0;
        const int inside = std::min(count, Cols() - col);
        cells_.readRow(size(row), size(col), size(inside), read);
        return inside;
    }
    void TextMatrix(int row, int col, std::string_view text) {
        requireCell(row, col);
        if (changeWatch_ != nullptr) [[unlikely]]
            tellWrite(row, col);
        if (cells_.text(size(row), size(col), text)) textsChanged(col);
        reportChange();
        if (CellChanged) CellChanged(row, col);
    }
    /// Writes the texts of `count` cells of a column, from `fromRow` on, into those from `row` on, one after the other.
    void CopyTexts(int col, int row, int fromRow, int count = 1);
    /// Writes the same text into `count` cells of a column, from `row` on in steps of `step` rows (at least 0), as
    /// TextMatrix would one after the other.
    void FillColumn(int col, int row, int step, int count, std::string_view text);
    /// Writes a text into each cell of a column from `row` on in steps of `step` rows, likewise.
    void WriteColumn(int col, int row, int step, std::span<const std::string_view> texts);
    /// Writes a text into each cell of a row from `col` on, likewise.
    void WriteRow(int row, int col, std::span<const std::string_view> texts);
    /// The cell's text as a number; raises TypeMismatch or Overflow, for an empty cell as well.
    double Real(int row, int col) const { return gradeToReal(TextMatrix(row, col), separator_); }
    int Long(int row, int col) const { return toLong(Real(row, col)); }

    /// Grows with every change of shape, texts, formats or order: as long as it stands, all of them are as they were.
    std::uint64_t Revision() const { return revision_; }

    // Current cell and selection. Row and Col stay inside the grid when it shrinks.
    int Row() const { return row_; }
    void Row(int row) { Select(row, col_); }
    int Col() const { return col_; }
    void Col(int col) { Select(row_, col); }
    int RowSel() const { return rowSel_; }
    int ColSel() const { return colSel_; }
    /// Whether the range of selected cells was made by the user, to be shown as such.
    bool UserSelected() const { return userSelected_; }
    /// Makes (row1, col1) the current cell, unless BeforeRowColChange refuses, and selects up to (row2, col2).
    void Select(int row1, int col1, int row2, int col2);
    void Select(int row, int col) { Select(row, col, row, col); }

    // Properties of the selected cells: read from the current cell, set on the selection (FillStyle 1) or on the
    // current cell alone (FillStyle 0).
    Colour CellBackColor() const { return format(row_, col_).BackColor; }
    void CellBackColor(Colour colour);
    bool CellFontBold() const { return format(row_, col_).Bold; }
    void CellFontBold(bool bold);
    CellAlign CellAlignment() const { return format(row_, col_).Alignment; }
    void CellAlignment(CellAlign alignment);
    CellAlign CellPictureAlignment() const { return cellPictureAlignment_; }
    void CellPictureAlignment(CellAlign alignment) { cellPictureAlignment_ = alignment; }
    CheckState CellChecked() const { return format(row_, col_).Checked; }
    void CellChecked(CheckState state);

    // The same for any cell, for a view and for tests.
    Colour BackColorOf(int row, int col) const { return format(row, col).BackColor; }
    bool IsBold(int row, int col) const { return format(row, col).Bold; }
    /// The cell's own alignment, or its column's where it has none.
    CellAlign AlignmentOf(int row, int col) const;

    /// Sorts on the column of the current cell, stably: all rows below the fixed ones with one cell selected, the
    /// selected rows with a range. Generic order: empty cells, then numbers by value, then texts without regard to case.
    void Sort(SortOrder order);
    /// What the whole grid was sorted by last, as long as rows and values of that column stand as they did; column -1
    /// where there is nothing to mark.
    struct SortMark {
        int Col = -1;
        bool Descending = false;
    };
    SortMark Sorted() const { return sortMark_; }

    // Columns. Widths are twips.
    bool ColHidden(int col) const { return column(col).Hidden; }
    void ColHidden(int col, bool hidden) { change(column(col).Hidden, hidden); }
    int ColWidth(int col) const { return column(col).Width; }
    void ColWidth(int col, double width);
    CellAlign ColAlignment(int col) const { return column(col).Alignment; }
    void ColAlignment(int col, CellAlign alignment) { change(column(col).Alignment, alignment); }
    /// Makes columns as wide as their widest text.
    void AutoSize(int col) { AutoSize(col, col); }
    void AutoSize(int firstCol, int lastCol);
    /// Whether the rows do not fit into its height.
    bool RowsOverflow() const;
    /// Width less border and, when the rows do not fit, less the scroll bar.
    int ClientWidth() const;
    /// Height of row 0: with WordWrap as high as its texts need that are broken into lines, up to two.
    int HeadingHeight() const;

    // The measures that ClientWidth and AutoSize count with, for a view to draw by. Twips.
    static constexpr int BorderWidth = 60;  ///< of both sides together
    static constexpr int ScrollBarWidth = 255;
    static constexpr int RowHeight = 240;
    static constexpr int LineHeight = 160;   ///< of a further line in a heading
    static constexpr int CellPadding = 120;  ///< beside a text, on both sides together

    // Display settings.
    bool Redraw() const { return redraw_; }
    void Redraw(bool redraw) { change(redraw_, redraw); }
    bool WordWrap = false;
    EditMode Editable = EditMode::ReadOnly;
    int FocusRect = 0;
    int HighLight = 0;
    int SelectionMode = 0;
    bool ScrollTrack = false;
    int FillStyle = 0;
    int MergeCells = 0;

    /// Writes every row and column, hidden and fixed ones included, as lines of tab-separated cells. A failure
    /// leaves no file open.
    void SaveGrid(Files& files, const std::string& path, GridFileFormat format) const;

    // The edit session. ComboList is the list of items, separated by "|", that the cell to be edited offers.
    const std::string& ComboList() const { return comboList_; }
    void ComboList(std::string list) { comboList_ = std::move(list); }
    /// Its items one by one; none without a list.
    std::vector<std::string_view> ComboItems() const;
    bool Editing() const { return editing_; }
    const std::string& EditText() const { return editor_.Text(); }
    const TextEditor& Editor() const { return editor_; }

    /// Who is told what the user does in cells; null for nobody, as at first.
    void Watch(CellWatch* watch) { watch_ = watch; }
    /// Whether the watch is told of each write and change of shape, too. Without it these cost what they always did.
    void TellChanges(bool tells) { changeWatch_ = tells ? watch_ : nullptr; }

    bool HasCell(int row, int col) const { return size(row) < cells_.rows() && size(col) < cells_.cols(); }
    /// Whether that is a cell, and no heading.
    bool IsBody(int row, int col) const {
        return HasCell(row, col) && row >= fixedRows_ && col >= fixedCols_;
    }

    // The cell under the mouse, -1 where it is over none.
    int MouseRow() const { return mouseRow_; }
    int MouseCol() const { return mouseCol_; }

    // User actions. Each tells whether it took place.
    bool UserMoveTo(int row, int col);
    /// Moves to the next cell of the body in the direction of an arrow, Enter (down) or Tab (right, and on in the next
    /// row), past hidden columns, and from a heading into the body; false at the edge.
    bool UserStep(int key);
    /// The way of Tab backwards.
    bool UserStepBack();
    /// Whether Tab, or Tab backwards, finds no further cell.
    bool AtLastCell() const;
    bool AtFirstCell() const;
    /// The cell that keys begin at: the current one, or, where that is a heading as at first, the one of the body that
    /// they lead to from there. It may be outside the grid.
    std::pair<int, int> KeyCell() const;
    /// Moves from a heading to the cell that keys begin at; false where there is none.
    bool UserEnterBody();
    /// Selects the cells between the current cell and this one of the body, without moving the current cell.
    bool UserSelectTo(int row, int col);
    /// The selected cells as lines of tab-separated texts, hidden columns left out.
    std::string SelectedText() const;
    /// The same below the headings of its columns and behind the fixed columns. `headingOf` tells what is said for a
    /// column's heading; without it that is what the grid shows.
    std::string SelectedTextWithHeadings(const std::function<std::string(int col)>& headingOf) const;
    /// Puts lines of tab-separated texts into the cells from the current one on, each through an edit of its own, and
    /// selects these; a blank text leaves a cell with a list as it is. Stops with a beep at the first cell that refuses,
    /// or that is not there. Nothing where the grid takes no action.
    std::optional<PastedBlock> UserPasteBlock(std::string_view lines);
    /// Drags the edge of a column; the next fit takes the width back.
    void UserDragColumn(int col, int width);
    /// Makes a column as wide as its widest text.
    void UserFitColumn(int col);
    /// Opens the editor on the current cell with its whole text selected, unless BeforeEdit refuses.
    bool UserBeginEdit();
    /// Types a key into the editor; Enter, Tab and the arrows commit and move, Escape cancels. False where the cell
    /// refuses the key, or what was typed before.
    bool UserEditKey(int key);
    bool UserEditPaste(std::string_view text);
    /// Selects in the editor by the mouse or the keyboard, in characters.
    void UserEditSelect(int start, int length);
    /// Chooses an item of the open cell's list.
    bool UserEditChoose(std::string_view item);
    bool UserCommitEdit();
    void UserCancelEdit();
    /// Empties the current cell through an edit of its own; a cell with a list, or one that refuses, keeps its text.
    bool UserDelete();
    /// Writes a text that stood in the cell before, as a commit does, whatever may be typed or chosen there. False where
    /// nothing can be edited at present.
    bool UserPutBack(int row, int col, std::string_view text);
    /// Moves there, opens the editor, puts `text` in and commits; a refused edit is cancelled.
    bool UserEditCell(int row, int col, std::string_view text);
    void UserMouseMove(int row, int col);
    void UserMouseDown(int row, int col);

private:
    struct ColumnData {
        int Width = DefaultColumnWidth;
        int MeasuredWidth = NotMeasured;
        CellAlign Alignment = CellAlign::General;
        bool Hidden = false;
    };
    static constexpr int DefaultColumnWidth = 960;
    static constexpr int NotMeasured = -1;

    void tellWrite(int row, int col);
    void tellWrites(const WrittenCells& cells);
    void tellReshape();
    static std::size_t size(int value) { return static_cast<std::size_t>(value); }
    /// A negative number is beyond every size.
    void requireCell(int row, int col) const {
        if (!HasCell(row, col)) raise(ErrorNumber::SubscriptOutOfRange);
    }
    void requireRoomFor(int rows, int cols) const;
    const CellFormat& format(int row, int col) const;
    const ColumnData& column(int col) const;
    ColumnData& column(int col);
    void contentChanged() {
        ++revision_;
        reportChange();
    }
    void textsChanged(int col) {
        columns_[size(col)].MeasuredWidth = NotMeasured;
        if (col == sortMark_.Col) sortMark_ = {};
        contentChanged();
    }
    void insertRows(int row, int count);
    void reportWritten(const WrittenCells& cells);
    void forgetWidths();
    void keepCurrentCellInside();
    CellTable::Range selection() const;
    void changeFormats(const std::function<void(CellFormat&)>& change);
    bool mayLeaveFor(int row, int col);
    int nextShownCol(int col, int step) const;
    bool stepTo(int row, int col);
    void measure(int firstCol, int lastCol);
    int headingLines(int col) const;
    void printRows(Files& files, int fileNumber) const;
    bool accept(TextEditor edited);
    void closeEditor();
    std::vector<int> selectedCols() const;
    void commit(int row, int col, std::string_view text);
    bool pasteCell(int row, int col, std::string_view text);

    const DecimalSeparator separator_;
    CellTable cells_;
    std::uint64_t revision_ = 0;
    std::vector<ColumnData> columns_;
    int fixedRows_ = 1;
    int fixedCols_ = 1;
    int row_ = 0;
    int col_ = 0;
    int rowSel_ = 0;
    int colSel_ = 0;
    bool userSelected_ = false;
    SortMark sortMark_;
    CellAlign cellPictureAlignment_ = CellAlign::LeftCentre;
    bool redraw_ = true;

    TextEditor editor_;
    std::string comboList_;
    bool editing_ = false;
    CellWatch* watch_ = nullptr;
    CellWatch* changeWatch_ = nullptr;  ///< the same while it is told of all changes
    int mouseRow_ = -1;
    int mouseCol_ = -1;
};

}  // namespace ui
