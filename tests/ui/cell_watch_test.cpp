// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/cell_watch.h"

#include <utility>

#include "ui/window_fixture.h"

namespace {

/// Writes down what it is told, with the text that stands in a cell at that moment.
struct Witness : ui::CellWatch {
    ui::Grid& grid;
    std::vector<std::string> told;

    explicit Witness(ui::Grid& watched) : grid(watched) {
        grid.Watch(this);
        grid.TellChanges(true);
    }
    void begin(ui::CellDeed deed, int row, int col) noexcept override {
        constexpr const char* Names[] = {"commit ", "leave ", "several "};
        told.push_back(Names[static_cast<int>(deed)] + std::to_string(row) + "." + std::to_string(col));
    }
    void end() noexcept override { told.push_back("end"); }
    void willWrite(int row, int col) noexcept override {
        told.push_back("over " + std::string(grid.TextMatrix(row, col)));
    }
    void willReshape() noexcept override { told.push_back("reshape"); }
    std::vector<std::string> takeTold() { return std::exchange(told, {}); }
};

using Told = std::vector<std::string>;

class CellWatched : public GridTest {
protected:
    Witness witness{grid};
};

}  // namespace

TEST_F(CellWatched, ACommitIsTold) {
    grid.AfterEdit = [&](int, int) { grid.TextMatrix(2, 2, "too"); };
    grid.UserBeginEdit();
    grid.UserEditPaste("x");
    EXPECT_EQ(witness.told, Told());
    grid.UserCommitEdit();
    EXPECT_EQ(witness.told, (Told{"commit 1.1", "over 1.1", "over 2.2", "end"}));
}

TEST_F(CellWatched, ATextThatIsPutBackIsACommitWithoutTests) {
    grid.BeforeEdit = [](int, int, bool& cancel) { cancel = true; };
    grid.ValidateEdit = [](int, int, bool& cancel) { cancel = true; };
    grid.ComboList("1|2");
    int edited = 0;
    grid.AfterEdit = [&](int, int) { ++edited; };
    EXPECT_TRUE(grid.UserPutBack(2, 1, "any"));
    EXPECT_EQ(grid.TextMatrix(2, 1), "any");
    EXPECT_EQ(edited, 1);
    EXPECT_EQ(witness.told, (Told{"commit 2.1", "over 2.1", "end"}));
}

TEST_F(CellWatched, NothingIsPutBackWhereNothingCanBeEdited) {
    EXPECT_FALSE(grid.UserPutBack(0, 1, "heading"));
    EXPECT_FALSE(grid.UserPutBack(4, 1, "outside"));
    grid.Enabled(false);
    EXPECT_FALSE(grid.UserPutBack(1, 1, "disabled"));
    grid.Enabled(true);
    grid.Editable = ui::EditMode::ReadOnly;
    EXPECT_FALSE(grid.UserPutBack(1, 1, "read only"));
    EXPECT_EQ(column(1), (std::vector<std::string>{"0.1", "1.1", "2.1", "3.1"}));
}

TEST_F(CellWatched, ABlockIsOneDeed) {
    grid.UserPasteBlock("a\tb");
    EXPECT_EQ(witness.told,
              (Told{"several 1.1", "commit 1.1", "over 1.1", "end", "commit 1.2", "over 1.2", "end", "end"}));
}

TEST_F(CellWatched, LeavingACellIsToldWhereAHandlerHears) {
    grid.UserMoveTo(2, 1);
    EXPECT_EQ(witness.takeTold(), Told());
    grid.BeforeRowColChange = [&](int row, int, int, int, bool&) { grid.TextMatrix(row, 2, "left"); };
    grid.UserMoveTo(3, 1);
    EXPECT_EQ(witness.takeTold(), (Told{"leave 2.1", "over 2.2", "end"}));
    grid.UserMoveTo(3, 1);
    EXPECT_EQ(witness.takeTold(), Told());
}

TEST_F(CellWatched, ShapeAndOrderAreToldBeforeTheyChange) {
    const auto after = [&](const auto& change) {
        change();
        return witness.takeTold();
    };
    const Told Once{"reshape"};
    EXPECT_EQ(after([&] { grid.Rows(9); }), Once);
    EXPECT_EQ(after([&] { grid.Cols(9); }), Once);
    EXPECT_EQ(after([&] { grid.AddItem("x"); }), Once);
    EXPECT_EQ(after([&] { grid.RemoveItem(1); }), Once);
    EXPECT_EQ(after([&] { grid.Sort(ui::SortOrder::GenericAscending); }), Once);
    EXPECT_EQ(after([&] { grid.Rows(9); }), Told());
    EXPECT_EQ(after([&] { grid.ColWidth(1, 500); }), Told());
}

TEST_F(CellWatched, ChangesAreToldAsLongAsTheyAreWanted) {
    grid.TellChanges(false);
    grid.TextMatrix(1, 1, "x");
    grid.Rows(9);
    EXPECT_EQ(witness.takeTold(), Told());
    grid.UserEditCell(1, 1, "y");
    EXPECT_EQ(witness.takeTold(), (Told{"commit 1.1", "end"}));
    grid.Watch(nullptr);
    grid.TellChanges(true);
    grid.TextMatrix(1, 1, "z");
    EXPECT_EQ(witness.told, Told());
}
