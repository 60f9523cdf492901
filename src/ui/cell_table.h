// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "ui/appearance.h"
#include "ui/gap_buffer.h"

namespace ui {

/// How a cell is shown beside its text.
struct CellFormat {
    Colour BackColor = rgb(255, 255, 255);
    CellAlign Alignment = CellAlign::General;
    CheckState Checked = CheckState::None;
    bool Bold = false;

    bool operator==(const CellFormat&) const = default;
};

/// The texts that do not fit into a cell, each once, with the number of cells that have it.
class LongTexts {
public:
    using Entry = std::pair<const std::string, std::size_t>;

    Entry* add(std::string_view text, std::size_t cells = 1) {
        auto found = texts_.find(text);
        if (found == texts_.end()) found = texts_.emplace(std::string(text), 0).first;
        found->second += cells;
        return &*found;
    }
    void release(const Entry& entry) {
        const auto found = texts_.find(entry.first);
        if (--found->second == 0) texts_.erase(found);
    }

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
    };
    std::unordered_map<std::string, std::size_t, Hash, std::equal_to<>> texts_;
};

/// A text in 8 bytes: one of up to 7 bytes stands in the cell itself, behind its length, a longer one is an entry of
/// the table's long texts, which the table counts. The byte of the length is odd; in an entry's address it is even.
class Cell {
public:
    static constexpr std::size_t MostInPlace = 7;

    /// Valid until the cell changes or its row moves.
    std::string_view text() const {
        const unsigned length = bytes_[LengthByte];
        if ((length & 1U) != 0) return {chars() + FirstByte, length >> 1U};
        const LongTexts::Entry* entry = longText();
        return entry != nullptr ? std::string_view(entry->first) : std::string_view();
    }
    bool isLong() const { return (bytes_[LengthByte] & 1U) == 0 && longText() != nullptr; }
    /// The same for cells of one table that have the same text, and for no others; 0 for an empty text.
    std::uint64_t textId() const { return std::bit_cast<std::uint64_t>(bytes_); }
    LongTexts::Entry* longText() const { return std::bit_cast<LongTexts::Entry*>(bytes_); }

    /// A text of at most MostInPlace bytes, which may be the cell's own.
    void assignShort(std::string_view text) {
        std::uint64_t bits = text.empty() ? 0 : text.size() << 1U | 1U;
        for (std::size_t i = 0; i < text.size(); ++i)
            bits |= std::uint64_t{static_cast<unsigned char>(text[i])} << shiftOf(i);
        bytes_ = std::bit_cast<Bytes>(bits);
    }
    void assignLong(LongTexts::Entry* entry) { bytes_ = std::bit_cast<Bytes>(entry); }

private:
    using Bytes = std::array<unsigned char, sizeof(LongTexts::Entry*)>;
    static_assert(sizeof(Bytes) == MostInPlace + 1, "a cell is as large as an address");
    static_assert(alignof(LongTexts::Entry) >= 2, "the length is told from an address by its last bit");
    static constexpr bool LowByteFirst = std::endian::native == std::endian::little;
    static constexpr std::size_t LengthByte = LowByteFirst ? 0 : MostInPlace;
    static constexpr std::size_t FirstByte = LowByteFirst ? 1 : 0;

    /// Where the character stands in the cell taken as a number, whose lowest byte is that of the length.
    static constexpr unsigned shiftOf(std::size_t character) {
        constexpr unsigned ByteBits = 8;
        return ByteBits * static_cast<unsigned>(LowByteFirst ? character + 1 : MostInPlace - character);
    }
    const char* chars() const { return reinterpret_cast<const char*>(bytes_.data()); }

    alignas(LongTexts::Entry*) Bytes bytes_{};
};

/// The formats of whole rows. Rows that are alike, as those are that were painted together, share theirs.
class RowFormats {
public:
    /// Which formats a row has; 0 for a row in which nothing is set.
    using Id = std::uint32_t;

    const CellFormat& at(Id id, std::size_t col) const {
        return id == 0 ? unset_ : shared_[id - 1].Cells[col];
    }
    /// What the row has when `change` has been applied to its cells from `firstCol` to `lastCol`. Takes the place of
    /// `id`, which the row gives up; `cols` is the number of all cells.
    Id changed(Id id, std::size_t cols, std::size_t firstCol, std::size_t lastCol,
               const std::function<void(CellFormat&)>& change);
    void acquire(Id id) {
        if (id != 0) ++shared_[id - 1].Rows;
    }
    void release(Id id);
    void resizeCols(std::size_t count);

private:
    struct Shared {
        std::vector<CellFormat> Cells;
        std::size_t Rows = 0;  ///< that have it; 0 while it is free to be used again
        Id NextFree = 0;
    };
    Id add(std::vector<CellFormat> cells);

    CellFormat unset_;
    std::vector<Shared> shared_;
    Id firstFree_ = 0;
};

/// Which texts of a table came by lately.
class RecentTexts {
public:
    bool isNew(std::uint64_t textId, bool bold) {
        constexpr std::uint64_t Scatter = 0x9E3779B97F4A7C15;
        constexpr unsigned Bits = 64;
        std::uint64_t& last = last_[bold][textId * Scatter >> (Bits - PlaceBits)];
        return std::exchange(last, textId) != textId;
    }

private:
    static constexpr unsigned PlaceBits = 6;
    std::array<std::array<std::uint64_t, 1U << PlaceBits>, 2> last_{};
};

/// What a grid keeps of its cells: texts, and formats where they are set. Rows and columns count from 0; indices are
/// the caller's to check.
class CellTable {
public:
    std::size_t rows() const { return cells_.size(); }
    std::size_t cols() const { return cells_.width(); }

    /// Valid until this cell changes, or the shape or the order of the table.
    std::string_view text(std::size_t row, std::size_t col) const { return cells_[row][col].text(); }
    /// Tells whether that changes the text.
    bool text(std::size_t row, std::size_t col, std::string_view text) {
        Cell& cell = cells_[row][col];
        if (text.size() > Cell::MostInPlace || cell.isLong()) return replace(cell, text);
        const std::uint64_t before = cell.textId();
        cell.assignShort(text);
        return cell.textId() != before;
    }
    /// Which cells of a column: `count` of them, the first one and every `step`-th row after it.
    struct Rows {
        std::size_t First;
        std::size_t Step;
        std::size_t Count;
    };
    /// Gives a cell the text of another one of its column.
    void copyText(std::size_t row, std::size_t col, std::size_t fromRow) {
        const Cell from = cells_[fromRow][col];
        if (from.isLong()) ++from.longText()->second;
        const Cell before = std::exchange(cells_[row][col], from);
        if (before.isLong()) longTexts_.release(*before.longText());
    }
    /// Gives them all the same text.
    void fill(const Rows& rows, std::size_t col, std::string_view text);

    /// Calls `read` with the text of each of these cells of a column, one after the other.
    template <class Read>
    void readColumn(std::size_t col, std::size_t firstRow, std::size_t count, Read read) const {
        cells_.forEach(firstRow, count, [&](const Cell* row) { read(row[col].text()); });
    }
    /// The same for cells of a row.
    template <class Read>
    void readRow(std::size_t row, std::size_t firstCol, std::size_t count, Read read) const {
        const Cell* const cells = cells_[row];
        for (std::size_t col = firstCol; col < firstCol + count; ++col) read(cells[col].text());
    }
    /// Calls `visit` with the place of a column among `cols`, a text of it and whether that is bold: with each text that
    /// is not empty at least once, but with few of those that repeat.
    template <class Visit>
    void visitTexts(std::span<const std::size_t> cols, Visit visit) const {
        std::vector<RecentTexts> visited(cols.size());
        std::size_t index = 0;
        cells_.forEach(0, rows(), [&](const Cell* row) {
            const RowFormats::Id formats = *formatIds_[index++];
            for (std::size_t i = 0; i < cols.size(); ++i) {
                const Cell& cell = row[cols[i]];
                const std::uint64_t id = cell.textId();
                if (id == 0) continue;
                const bool bold = formats_.at(formats, cols[i]).Bold;
                if (visited[i].isNew(id, bold)) visit(i, cell.text(), bold);
            }
        });
    }

    const CellFormat& format(std::size_t row, std::size_t col) const {
        return formats_.at(*formatIds_[row], col);
    }
    struct Range {
        std::size_t FirstRow;
        std::size_t FirstCol;
        std::size_t LastRow;
        std::size_t LastCol;
    };
    void changeFormats(const Range& range, const std::function<void(CellFormat&)>& change);

    // New cells are empty and unset; dropped ones lose text and format.
    void resizeRows(std::size_t count);
    void resizeCols(std::size_t count);
    void insertRows(std::size_t index, std::size_t count);
    /// Room for just so many more rows.
    void reserveRows(std::size_t more);
    void eraseRow(std::size_t index);
    /// Puts the rows from `first` on into a new order: row first + i becomes what row first + places[i] was.
    void reorder(std::size_t first, std::span<const std::size_t> places);

private:
    bool replace(Cell& cell, std::string_view text);
    void releaseTexts(std::size_t row, std::size_t firstCol);

    GapBuffer<Cell> cells_{0};
    GapBuffer<RowFormats::Id> formatIds_;
    LongTexts longTexts_;
    RowFormats formats_;
};

}  // namespace ui
