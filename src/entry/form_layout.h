// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>

#include "ui/choice_buttons.h"
#include "ui/combo_box.h"
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

/// What the pages' layouts share. All lengths are twips; captions are measured in the font of all controls.
namespace layout {

inline constexpr int Edge = 50;  ///< between a container's border and what stands in it
inline constexpr int Gap = 100;
inline constexpr int WideGap = 300;  ///< between groups of controls
inline constexpr int LabelHeight = 200;
inline constexpr int BoxHeight = 300;
inline constexpr int ChoiceHeight = 300;  ///< of option buttons and check boxes
inline constexpr int ButtonHeight = 400;
/// Kept free at the right of a grid: stretched columns are whole twips, so that many of them may take a little more
/// than they were given.
inline constexpr int StretchRoom = 200;

/// The least widths at which a control shows its whole caption, or a box any of its texts.
int widthOf(const ui::Label& label);
int widthOf(const ui::CommandButton& button);
int widthOf(const ui::OptionButton& button);
int widthOf(const ui::CheckBox& box);
int widthOf(const ui::ComboBox& box);
int boxWidth(const ui::Control& box, std::string_view longestText);

/// The longest texts that the boxes for numbers admit in use, with digits to spare.
inline constexpr std::string_view LongestArea = "10000000.00";
inline constexpr std::string_view LongestProportion = "0.99999999";

struct Item {
    ui::Control& Control;
    int Width;
    int Height;
};

/// Places groups of controls side by side, and in a further row when one is full. A group is never torn apart.
class Flow {
public:
    /// Rows between `left` and `right`, the first one at `top`, each `rowHeight` high.
    Flow(int left, int top, int right, int rowHeight)
        : left_(left), right_(right), rowHeight_(rowHeight), nextLeft_(left), top_(top) {}
    /// The members stand centred in the height of their row.
    void add(std::initializer_list<Item> group);
    int bottom() const { return top_ + rowHeight_; }

private:
    int left_;
    int right_;
    int rowHeight_;
    int nextLeft_;
    int top_;
};

/// Fits a grid's columns to its width. A hidden column at the end keeps its own.
void fitColumns(ui::Grid& grid);

}  // namespace layout
