// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/window_grids.h"

#include <utility>

#include "desktop/grid_view.h"
#include "project/frmBrenica.h"

namespace desktop {

WindowGrids::WindowGrids(FormView& window, frmBrenica& form) : form_(form), page_(form.CurrentMainTab) {
    for (ui::Control* control : form.Controls()) {
        if (control->Kind() != ui::ControlKind::Grid) continue;
        auto& grid = static_cast<ui::Grid&>(*control);
        auto& view = static_cast<GridView&>(window.viewOf(grid)->widget());
        histories_.push_back(std::make_unique<CellHistory>(grid));
        view.add(
            {histories_.back().get(), [&form, &grid](int col) { return form.HeadingInWords(grid, col); }});
        views_.push_back(&view);
    }
    form.ProjectStepTaken.Join(this, [this](ProjectStep step, const std::string&) {
        if (step == ProjectStep::Left) forget();
    });
}

WindowGrids::~WindowGrids() {
    form_.ProjectStepTaken.Leave(this);
    for (GridView* view : views_) view->add({});
}

void WindowGrids::look() {
    if (std::exchange(page_, form_.CurrentMainTab) != form_.CurrentMainTab) forget();
}

void WindowGrids::forget() {
    for (const auto& history : histories_) history->forget();
}

}  // namespace desktop
