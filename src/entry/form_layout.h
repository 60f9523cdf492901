// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/choice_buttons.h"
#include "ui/control_array.h"
#include "ui/grid.h"
#include "ui/simple_controls.h"
#include "ui/text_box.h"

namespace modGeneralUtilities {

/// The controls of a page with one list: the grid at the left, the others in a column at the right.
struct ListPage {
    ui::Grid& Grid;
    ui::Label& AddLabel;
    ui::TextBox& NewRows;
    ui::Label& NewLabel;
    ui::CommandButton& Update;
    ui::CommandButton& Remove;
    ui::TextBox& RemoveIndex;
    ui::ControlArray<ui::CommandButton>& Move;
};

/// Places the controls of a list page in its frame; lengths in twips. A failure ends it silently.
void ArrangeFrameContents(const ListPage& page, int leftEdge, int topOffset);

/// The controls of the home range page: the option buttons, then the breakpoints.
struct HomeRangePage {
    ui::ControlArray<ui::OptionButton>& Types;
    ui::Grid& Grid;
    ui::Label& AddLabel;
    ui::TextBox& NewRows;
    ui::Label& NewLabel;
    ui::CommandButton& Update;
    ui::CommandButton& Remove;
    ui::TextBox& RemoveIndex;
};

void ArrangeHRFrameContents(const HomeRangePage& page, int topOffset);

}  // namespace modGeneralUtilities
