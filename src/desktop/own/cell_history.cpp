// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/cell_history.h"

#include <new>
#include <utility>

namespace desktop {

CellHistory::CellHistory(ui::Grid& grid) : grid_(grid) { grid_.Watch(this); }

CellHistory::~CellHistory() {
    grid_.TellChanges(false);
    grid_.Watch(nullptr);
}

void CellHistory::forget() noexcept {
    done_.clear();
    undone_.clear();
    current_ = {};
    writes_ = Writes::Forget;
    listen();
}

/// A grid that nothing hangs on is not listened to, so that its calculations cost what they cost without a history.
void CellHistory::listen() noexcept {
    grid_.TellChanges(writes_ != Writes::Forget || !done_.empty() || !undone_.empty());
}

bool CellHistory::canReplay(const Steps& steps) const {
    return !steps.empty() && !grid_.Editing() && grid_.Editable != ui::EditMode::ReadOnly;
}

bool CellHistory::replay(Steps& from, Steps& to) {
    if (!canReplay(from)) return false;
    writes_ = Writes::ToReplay;
    const ui::ToldDeed deed(this, ui::CellDeed::Several, grid_.Row(), grid_.Col());
    CellStep step = std::move(from.back());
    from.pop_back();
    const bool accepted = step.select(grid_);
    if (accepted) step.putBack(grid_);
    if (writes_ == Writes::ToReplay) {
        if (accepted) {
            to.push_back(std::move(current_));
        } else {
            from.push_back(std::move(step));
        }
    }
    return accepted;
}

void CellHistory::begin(ui::CellDeed deed, int row, int col) noexcept {
    if (depth_++ == 0) open(deed, row, col);
    const bool isStep = writes_ == Writes::ToNewStep || writes_ == Writes::ToReplay;
    if (isStep && deed == ui::CellDeed::Commit) take(current_, row, col, true);
}

void CellHistory::open(ui::CellDeed deed, int row, int col) noexcept {
    if (writes_ == Writes::ToReplay) return;
    const bool leaves = deed == ui::CellDeed::Leave;
    const bool follows = leaves && !done_.empty() && done_.back().isByUser(row, col);
    writes_ = follows ? Writes::ToLastStep : leaves ? Writes::Forget : Writes::ToNewStep;
    listen();
}

void CellHistory::end() noexcept {
    if (--depth_ > 0) return;
    if (writes_ == Writes::ToNewStep) close();
    current_ = {};
    writes_ = Writes::Forget;
    listen();
}

/// An edit that left everything as it was is no step.
void CellHistory::close() noexcept try {
    if (!current_.changes(grid_)) return;
    done_.push_back(std::move(current_));
    undone_.clear();
} catch (const std::bad_alloc&) {
    forget();
}

void CellHistory::willWrite(int row, int col) noexcept {
    switch (writes_) {
        case Writes::Forget: return forget();
        case Writes::ToNewStep:
        case Writes::ToReplay: return take(current_, row, col, false);
        case Writes::ToLastStep: undone_.clear(); return take(done_.back(), row, col, false);
    }
}

/// The user's work goes on where the memory does not suffice for undoing it.
void CellHistory::take(CellStep& step, int row, int col, bool byUser) noexcept try {
    step.take(grid_, row, col, byUser);
} catch (const std::bad_alloc&) {
    forget();
}

}  // namespace desktop
