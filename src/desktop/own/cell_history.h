// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "desktop/own/cell_step.h"

namespace desktop {

/// What the user did in the cells of one grid, to be taken back and done again step by step. A step is an edit, an emptied
/// cell or a pasted block, with all that handlers filled in consequence in the same grid; other grids follow by the
/// handlers, as they followed the edit. It is forgotten as soon as anything else rewrites a cell or changes the shape or
/// the order of the grid, since what stood there before would then be put into something else.
class CellHistory : private ui::CellWatch {
public:
    /// The grid outlives it.
    explicit CellHistory(ui::Grid& grid);
    ~CellHistory() override;
    CellHistory(const CellHistory&) = delete;
    CellHistory& operator=(const CellHistory&) = delete;

    bool canUndo() const { return canReplay(done_); }
    bool canRedo() const { return canReplay(undone_); }
    // User actions: they select what they have changed, and tell whether they took place.
    bool undo() { return replay(done_, undone_); }
    bool redo() { return replay(undone_, done_); }
    void forget() noexcept;

private:
    using Steps = std::vector<CellStep>;
    /// What becomes of what is written.
    enum class Writes {
        Forget,      ///< it is nobody's step, and ends the history
        ToNewStep,   ///< the user's
        ToLastStep,  ///< a consequence of the last step, told when its cell is left
        ToReplay     ///< a step that is put back; what it overwrites is a step of its own
    };

    void begin(ui::CellDeed deed, int row, int col) noexcept override;
    void end() noexcept override;
    void willWrite(int row, int col) noexcept override;
    void willReshape() noexcept override { forget(); }

    bool canReplay(const Steps& steps) const;
    bool replay(Steps& from, Steps& to);
    void open(ui::CellDeed deed, int row, int col) noexcept;
    void close() noexcept;
    void take(CellStep& step, int row, int col, bool byUser) noexcept;
    void listen() noexcept;

    ui::Grid& grid_;
    Steps done_;
    Steps undone_;
    CellStep current_;
    Writes writes_ = Writes::Forget;
    int depth_ = 0;  ///< of deeds
};

}  // namespace desktop
