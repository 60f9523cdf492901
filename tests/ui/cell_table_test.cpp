// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/cell_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr ui::Colour Red = ui::rgb(255, 0, 0);

/// A cell table beside plain vectors to which the same is done.
class TableAndModel {
public:
    struct Cell {
        std::string Text;
        ui::CellFormat Format;
    };

    void text(std::size_t row, std::size_t col, const std::string& text) {
        table.text(row, col, text);
        model[row][col].Text = text;
    }
    void paint(const ui::CellTable::Range& range, ui::Colour colour) {
        table.changeFormats(range, [=](ui::CellFormat& format) { format.BackColor = colour; });
        for (std::size_t row = range.FirstRow; row <= range.LastRow; ++row) {
            for (std::size_t col = range.FirstCol; col <= range.LastCol; ++col)
                model[row][col].Format.BackColor = colour;
        }
    }
    void resizeRows(std::size_t count) {
        table.resizeRows(count);
        model.resize(count, std::vector<Cell>(cols));
    }
    void resizeCols(std::size_t count) {
        table.resizeCols(count);
        cols = count;
        for (auto& row : model) row.resize(count);
    }
    void insertRow(std::size_t index) {
        table.insertRows(index, 1);
        model.insert(model.begin() + static_cast<std::ptrdiff_t>(index), std::vector<Cell>(cols));
    }
    void eraseRow(std::size_t index) {
        table.eraseRow(index);
        model.erase(model.begin() + static_cast<std::ptrdiff_t>(index));
    }
    void reverse(std::size_t first) {
        std::vector<std::size_t> places;
        for (std::size_t i = model.size() - first; i > 0; --i) places.push_back(i - 1);
        table.reorder(first, places);
        std::reverse(model.begin() + static_cast<std::ptrdiff_t>(first), model.end());
    }
    void expectEqual() const {
        ASSERT_EQ(table.rows(), model.size());
        ASSERT_EQ(table.cols(), cols);
        for (std::size_t row = 0; row < model.size(); ++row) {
            for (std::size_t col = 0; col < cols; ++col) {
                ASSERT_EQ(table.text(row, col), model[row][col].Text) << row << "," << col;
                ASSERT_EQ(table.format(row, col), model[row][col].Format) << row << "," << col;
            }
        }
    }

    ui::CellTable table;
    std::vector<std::vector<Cell>> model;
    std::size_t cols = 0;
};

}  // namespace

TEST(Cell, IsAsLargeAsAnAddress) { EXPECT_EQ(sizeof(ui::Cell), 8U); }

TEST(CellTable, KeepsTextsOfEveryLength) {
    ui::CellTable table;
    table.resizeRows(2);
    table.resizeCols(1);
    for (std::size_t length = 0; length < 40; ++length) {
        const std::string text(length, static_cast<char>('a' + length % 26));
        table.text(0, 0, text);
        EXPECT_EQ(table.text(0, 0), text);
        table.text(1, 0, table.text(0, 0));
        EXPECT_EQ(table.text(1, 0), text);
    }
    const std::string withNull("a\0b", 3);
    table.text(0, 0, withNull);
    EXPECT_EQ(table.text(0, 0), withNull);
}

TEST(CellTable, TakesACellsOwnText) {
    ui::CellTable table;
    table.resizeRows(1);
    table.resizeCols(1);
    for (const std::string text : {"short", "a text that is longer than a cell"}) {
        table.text(0, 0, text);
        table.text(0, 0, table.text(0, 0));
        EXPECT_EQ(table.text(0, 0), text);
        table.text(0, 0, table.text(0, 0).substr(1));
        EXPECT_EQ(table.text(0, 0), text.substr(1));
    }
}

TEST(CellTable, HoldsWhatPlainVectorsHoldAfterAnyOperations) {
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const auto below = [&](std::size_t limit) { return random() % limit; };
        TableAndModel both;
        both.resizeCols(3);
        both.resizeRows(4);
        for (int step = 0; step < 300; ++step) {
            const std::size_t rows = both.model.size();
            const bool any = rows > 0 && both.cols > 0;
            switch (below(10)) {
                case 0: both.resizeRows(below(12)); break;
                case 1: both.resizeCols(below(6)); break;
                case 2: both.insertRow(below(rows + 1)); break;
                case 3:
                    if (rows > 0) both.eraseRow(below(rows));
                    break;
                case 4: both.reverse(below(rows + 1)); break;
                case 5:
                case 6:
                    if (any) {
                        const std::size_t row = below(rows);
                        const std::size_t col = below(both.cols);
                        both.paint({row, col, row + below(rows - row), col + below(both.cols - col)},
                                   below(3) == 0 ? ui::CellFormat().BackColor : static_cast<int>(below(3)));
                    }
                    break;
                default:
                    if (any)
                        both.text(below(rows), below(both.cols),
                                  below(2) == 0 ? std::to_string(below(100))
                                                : "a text of some length, " + std::to_string(below(5)));
            }
            ASSERT_NO_FATAL_FAILURE(both.expectEqual()) << "step " << step;
        }
    }
}

TEST(CellTable, PaintsACellOfARowThatWasLikeOthersAlone) {
    ui::CellTable table;
    table.resizeRows(3);
    table.resizeCols(2);
    table.changeFormats({0, 0, 2, 1}, [](ui::CellFormat& format) { format.Bold = true; });
    table.changeFormats({1, 1, 1, 1}, [](ui::CellFormat& format) { format.BackColor = Red; });
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t col = 0; col < 2; ++col) {
            EXPECT_TRUE(table.format(row, col).Bold);
            EXPECT_EQ(table.format(row, col).BackColor == Red, row == 1 && col == 1);
        }
    }
}
