// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <vector>

#include "desktop/form_view.h"
#include "desktop/own/cell_history.h"

class frmBrenica;

namespace desktop {

class GridView;

/// What the window adds to all grids of its form: a history each, and names for headings that show numbers. The window
/// and the form outlive it.
class WindowGrids {
public:
    WindowGrids(FormView& window, frmBrenica& form);
    ~WindowGrids();
    WindowGrids(const WindowGrids&) = delete;
    WindowGrids& operator=(const WindowGrids&) = delete;

    /// To be called after each user action.
    void look();

private:
    void forget();

    frmBrenica& form_;
    int page_;
    std::vector<GridView*> views_;
    std::vector<std::unique_ptr<CellHistory>> histories_;
};

}  // namespace desktop
