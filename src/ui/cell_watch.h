// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace ui {

/// A part of what happens to a grid's cells in which everything that is written follows from what the user did.
enum class CellDeed {
    Commit,  ///< a text of the user's is written, and the handlers are told
    Leave,   ///< the current cell is about to be left
    Several  ///< many commits that are one to the user
};

/// Looks on while a grid's cells change, for whoever keeps what stood there before. Told from within the grid's own
/// calls, before what it is told of happens; nothing may be thrown into these.
class CellWatch {
public:
    virtual ~CellWatch() = default;

    /// Deeds are nested, such as the commits in a block that is pasted. The cell is the one committed or left.
    virtual void begin(CellDeed deed, int row, int col) noexcept = 0;
    virtual void end() noexcept = 0;

    // Told while the grid is asked for it by Grid::TellChanges.
    /// A cell is about to be written, be it with an equal text.
    virtual void willWrite(int row, int col) noexcept = 0;
    /// Rows, columns or their order are about to change.
    virtual void willReshape() noexcept = 0;
};

/// Tells a watch, if there is one, of a deed for as long as it lives.
class ToldDeed {
public:
    ToldDeed(CellWatch* watch, CellDeed deed, int row, int col) : watch_(watch) {
        if (watch_ != nullptr) watch_->begin(deed, row, col);
    }
    ~ToldDeed() {
        if (watch_ != nullptr) watch_->end();
    }
    ToldDeed(const ToldDeed&) = delete;
    ToldDeed& operator=(const ToldDeed&) = delete;

private:
    CellWatch* watch_;
};

}  // namespace ui
