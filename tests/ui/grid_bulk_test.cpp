// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <functional>
#include <random>
#include <string_view>

#include "window_fixture.h"

using testing::ElementsAre;

/// What is done to many cells at once is what is done to one after the other: texts, events, failures.
class GridBulk : public WindowTest {
protected:
    static constexpr int Rows = 12;
    static constexpr int Cols = 4;

    /// A grid that logs its events, and what is told of it.
    struct Watched : ui::CellWatch {
        explicit Watched(ui::Control& container) : Grid(container, "flxTest") {
            Grid.Rows(Rows);
            Grid.Cols(Cols);
            for (int row = 0; row < Rows; ++row) Grid.TextMatrix(row, row % Cols, "Grey-headed Albatross");
            Grid.CellChanged = [this](int row, int col) { Changed.emplace_back(row, col); };
            Grid.Watch(this);
            Grid.TellChanges(true);
        }
        void begin(ui::CellDeed, int, int) noexcept override {}
        void end() noexcept override {}
        void willWrite(int row, int col) noexcept override { Told.emplace_back(row, col); }
        void willReshape() noexcept override { Reshaped = true; }

        /// The failure's number, 0 for none.
        int attempt(const std::function<void(ui::Grid&)>& action) {
            try {
                action(Grid);
                return 0;
            } catch (const ui::RunTimeError& error) {
                return error.Number;
            }
        }
        std::vector<std::string> texts() const {
            std::vector<std::string> all;
            for (int row = 0; row < Grid.Rows(); ++row) {
                for (int col = 0; col < Grid.Cols(); ++col) all.emplace_back(Grid.TextMatrix(row, col));
            }
            return all;
        }
        ui::Grid Grid;
        std::vector<std::pair<int, int>> Changed;
        std::vector<std::pair<int, int>> Told;
        bool Reshaped = false;
    };

    void expectTheSame(const std::function<void(ui::Grid&)>& atOnce,
                       const std::function<void(ui::Grid&)>& oneByOne) {
        Watched bulk(frame);
        Watched single(frame);
        EXPECT_EQ(bulk.attempt(atOnce), single.attempt(oneByOne));
        EXPECT_EQ(bulk.texts(), single.texts());
        EXPECT_EQ(bulk.Changed, single.Changed);
        EXPECT_EQ(bulk.Told, single.Told);
        EXPECT_EQ(bulk.Reshaped, single.Reshaped);
    }

    std::mt19937 random{7};
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    std::string text() {
        static const char* const Texts[] = {"", "3", "0.125", "seven c", "a text that is long", "Ünïcödé"};
        return Texts[below(6)];
    }
};

TEST_F(GridBulk, FillsAColumnAsOneCellAfterTheOther) {
    for (int i = 0; i < 300; ++i) {
        const int col = below(Cols + 1) - (below(20) == 0 ? 1 : 0);
        const int row = below(Rows + 1);
        const int step = below(5);
        const int count = below(6);
        const std::string filled = text();
        expectTheSame([&](ui::Grid& grid) { grid.FillColumn(col, row, step, count, filled); },
                      [&](ui::Grid& grid) {
                          for (int k = 0; k < count; ++k) grid.TextMatrix(row + k * step, col, filled);
                      });
    }
}

TEST_F(GridBulk, WritesColumnsAndRowsAsOneCellAfterTheOther) {
    for (int i = 0; i < 300; ++i) {
        const int col = below(Cols + 1);
        const int row = below(Rows + 1);
        const int step = below(5);
        std::vector<std::string> texts(static_cast<std::size_t>(below(6)));
        for (std::string& written : texts) written = text();
        const std::vector<std::string_view> views(texts.begin(), texts.end());
        expectTheSame([&](ui::Grid& grid) { grid.WriteColumn(col, row, step, views); },
                      [&](ui::Grid& grid) {
                          int at = row;
                          for (const std::string_view written : views) {
                              grid.TextMatrix(at, col, written);
                              at += step;
                          }
                      });
        expectTheSame([&](ui::Grid& grid) { grid.WriteRow(row, col, views); },
                      [&](ui::Grid& grid) {
                          int at = col;
                          for (const std::string_view written : views) grid.TextMatrix(row, at++, written);
                      });
    }
}

TEST_F(GridBulk, TellsOfManyCellsAtOnceWhoListensToThat) {
    Watched watched(frame);
    std::vector<std::pair<int, int>> together;
    watched.Grid.CellsChanged = [&](const ui::WrittenCells& cells) {
        cells.forEach([&](int row, int col) { together.emplace_back(row, col); });
    };
    watched.Grid.FillColumn(1, 2, 3, 2, "x");
    watched.Grid.WriteRow(4, 2, std::vector<std::string_view>{"y", "z"});
    EXPECT_EQ(together, (std::vector<std::pair<int, int>>{{2, 1}, {5, 1}, {4, 2}, {4, 3}}));
    EXPECT_TRUE(watched.Changed.empty());
}

TEST_F(GridBulk, FillsWithATextOfItsOwn) {
    Watched watched(frame);
    watched.Grid.FillColumn(0, 0, 1, Rows, watched.Grid.TextMatrix(4, 0));
    for (int row = 0; row < Rows; ++row) EXPECT_EQ(watched.Grid.TextMatrix(row, 0), "Grey-headed Albatross");
    watched.Grid.TextMatrix(3, 1, "4");
    watched.Grid.FillColumn(1, 0, 1, Rows, watched.Grid.TextMatrix(3, 1));
    EXPECT_EQ(watched.Grid.TextMatrix(11, 1), "4");
}

TEST_F(GridBulk, CopiesTheTextOfAnotherCellOfTheColumn) {
    Watched watched(frame);
    watched.Grid.CopyTexts(0, 1, 4);
    watched.Grid.CopyTexts(0, 4, 5);  // the long text stays with the copy
    watched.Grid.CopyTexts(0, 0, 0);
    EXPECT_EQ(watched.Told, watched.Changed);
    EXPECT_EQ(watched.Grid.TextMatrix(1, 0), "Grey-headed Albatross");
    EXPECT_EQ(watched.Grid.TextMatrix(4, 0), "");
    EXPECT_EQ(watched.Grid.TextMatrix(0, 0), "Grey-headed Albatross");
    EXPECT_EQ(watched.Changed, (std::vector<std::pair<int, int>>{{1, 0}, {4, 0}, {0, 0}}));
    EXPECT_EQ(watched.attempt([](ui::Grid& grid) { grid.CopyTexts(0, 0, Rows); }), 9);
    EXPECT_EQ(watched.attempt([](ui::Grid& grid) { grid.CopyTexts(0, -1, 0); }), 9);
}

TEST_F(GridBulk, CopiesTextsOfAColumnOneAfterTheOther) {
    for (int i = 0; i < 50; ++i) {
        const int col = below(Cols);
        const int row = below(Rows);
        const int from = below(Rows);
        const int count = below(Rows);
        expectTheSame([&](ui::Grid& grid) { grid.CopyTexts(col, row, from, count); },
                      [&](ui::Grid& grid) {
                          for (int j = 0; j < count; ++j)
                              grid.TextMatrix(row + j, col, std::string(grid.TextMatrix(from + j, col)));
                      });
    }
}

TEST_F(GridBulk, AddsEmptyRowsAsOneAfterTheOther) {
    for (int i = 0; i < 50; ++i) {
        const int row = below(Rows + 2);
        const int count = below(5);
        expectTheSame([&](ui::Grid& grid) { grid.AddEmptyRows(row, count); },
                      [&](ui::Grid& grid) {
                          for (int k = 0; k < count; ++k) grid.AddItem("", row);
                      });
    }
}

TEST_F(GridBulk, ReadsAsManyCellsAsThereAre) {
    Watched watched(frame);
    std::vector<std::string> read;
    const auto keep = [&](std::string_view text) { read.emplace_back(text); };
    watched.Grid.TextMatrix(9, 2, "x");
    watched.Grid.AddItem("new", 10);  // a gap behind it
    EXPECT_EQ(watched.Grid.ReadColumn(2, 9, 99, keep), 4);
    EXPECT_THAT(read, ElementsAre("x", "", "Grey-headed Albatross", ""));
    read.clear();
    EXPECT_EQ(watched.Grid.ReadRow(9, 1, 99, keep), 3);
    EXPECT_THAT(read, ElementsAre("Grey-headed Albatross", "x", ""));
    read.clear();
    for (const auto& [row, col] : {std::pair{-1, 0}, {13, 0}, {0, -1}, {0, 4}}) {
        EXPECT_EQ(watched.Grid.ReadColumn(col, row, 1, keep), 0);
        EXPECT_EQ(watched.Grid.ReadRow(row, col, 1, keep), 0);
    }
    EXPECT_TRUE(read.empty());
}

TEST_F(GridBulk, TellsThatSomethingWasDoneToIt) {
    Watched watched(frame);
    ui::Grid& grid = watched.Grid;
    const std::function<void()> deeds[] = {
        [&] { grid.TextMatrix(1, 1, "y"); },
        [&] { grid.FillColumn(0, 1, 1, 2, "z"); },
        [&] { grid.WriteRow(1, 0, std::vector<std::string_view>{"a"}); },
        [&] { grid.WriteColumn(0, 1, 1, std::vector<std::string_view>{"b"}); },
        [&] { grid.CopyTexts(0, 1, 2); },
        [&] { grid.CellFontBold(true); },
        [&] { grid.AddItem("c"); },
        [&] { grid.AddEmptyRows(3, 2); },
        [&] { grid.RemoveItem(3); },
        [&] { grid.Rows(9); },
        [&] { grid.Cols(5); },
        [&] { grid.Sort(ui::SortOrder::GenericAscending); }};
    int number = 0;
    for (const auto& deed : deeds) {
        const std::uint64_t before = grid.Revision();
        deed();
        EXPECT_GT(grid.Revision(), before) << "deed " << number;
        ++number;
    }
    const std::uint64_t before = grid.Revision();
    grid.TextMatrix(1, 1, std::string(grid.TextMatrix(1, 1)));
    grid.Select(2, 2);
    grid.AutoSize(0, 4);
    grid.ColWidth(1, 20);
    EXPECT_EQ(grid.Revision(), before);
}

TEST_F(GridBulk, FitsColumnsWhereverTheWidestTextStands) {
    Watched watched(frame);
    ui::Grid& grid = watched.Grid;
    platform.TextWidth = [](std::string_view text, const ui::Font& font) {
        return static_cast<int>(text.size()) * (font.Bold ? 200 : 100);
    };
    for (int row = 0; row < Rows; ++row) grid.TextMatrix(row, 0, row % 2 == 0 ? "3" : "four");
    grid.TextMatrix(7, 0, "the widest");
    grid.TextMatrix(8, 1, "bold");
    grid.TextMatrix(9, 1, "bold");
    grid.FillColumn(2, 0, 1, Rows, "");
    grid.FillColumn(1, 1, 4, 2, "");
    grid.Select(9, 1);
    grid.CellFontBold(true);
    grid.AutoSize(0, 2);
    EXPECT_EQ(grid.ColWidth(0), 10 * 100 + ui::Grid::CellPadding);
    EXPECT_EQ(grid.ColWidth(1), 4 * 200 + ui::Grid::CellPadding);
    EXPECT_EQ(grid.ColWidth(2), ui::Grid::CellPadding);
}

TEST_F(GridBulk, LeavesColumnsAsTheyAreWhereNothingIsDrawn) {
    Watched watched(frame);
    const int width = watched.Grid.ColWidth(0);
    platform.Draws = false;
    watched.Grid.AutoSize(0, 3);
    EXPECT_EQ(watched.Grid.ColWidth(0), width);
    platform.Draws = true;
    watched.Grid.AutoSize(0, 3);
    EXPECT_NE(watched.Grid.ColWidth(0), width);
}
