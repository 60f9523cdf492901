// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/form_layout.h"

#include <algorithm>

#include "entry/modErrorHandling.h"
#include "entry/modFlexGridUtilities.h"
#include "project/frmBrenica.h"

using namespace layout;

namespace {

constexpr int NormalLeft = 500;
constexpr int NormalTop = 500;
constexpr int LeastWidth = 11000;
constexpr int LeastHeight = 7000;

constexpr int ColumnWidth = 2000;    // of the controls at the right side of a list page
constexpr int CountBoxWidth = 400;   // holds 1000
constexpr int HomeRangeLeft = 2200;  // of the breakpoint controls
constexpr int RemoveBoxIndent = 800;
constexpr int BelowRemoveButton = 50;

/// The distance of the rows of controls below each other.
int rowPitch(int height) { return (height - 400) / 5; }

/// "Add", a box and what is added. The label behind the box goes on in a second line where it would pass `right`.
void arrangeNewRows(ui::Label& before, ui::TextBox& box, ui::Label& behind, int left, int top, int right) {
    before.Move(left, top, widthOf(before), LabelHeight);
    box.Move(before.Left() + before.Width() + Gap, top - Gap, CountBoxWidth, BoxHeight);
    const int behindLeft = box.Left() + CountBoxWidth + Gap;
    const int room = std::max(right - behindLeft, 0);
    const bool oneLine = widthOf(behind) <= room;
    behind.Move(behindLeft, top, oneLine ? widthOf(behind) : room, oneLine ? LabelHeight : 2 * LabelHeight);
}

void arrangeRemoval(ui::CommandButton& button, ui::TextBox& box, int left, int top) {
    button.Move(left, top, ColumnWidth, ButtonHeight);
    box.Move(left + RemoveBoxIndent, top + ButtonHeight + BelowRemoveButton, CountBoxWidth, BoxHeight);
}

/// Sets a flag for as long as it lives.
class Pass {
public:
    explicit Pass(bool& running) : running_(running) { running_ = true; }
    ~Pass() { running_ = false; }
    Pass(const Pass&) = delete;
    Pass& operator=(const Pass&) = delete;

private:
    bool& running_;
};

}  // namespace

namespace modGeneralUtilities {

void ArrangeFrameContents(const ListPage& page, int leftEdge, int topOffset) try {
    constexpr int FirstTop = 400;
    constexpr int BelowRemoveBox = 200;
    constexpr int MoveWidth = ColumnWidth / 5;
    constexpr int MoveGap = 50;
    const ui::Control& frame = page.Grid.Container();
    const int pitch = rowPitch(frame.Height());
    page.Grid.Move(Edge, topOffset + 150, frame.Width() - ColumnWidth - 300,
                   frame.Height() - topOffset - 200);
    arrangeNewRows(page.AddLabel, page.NewRows, page.NewLabel, leftEdge, FirstTop, leftEdge + ColumnWidth);
    page.Update.Move(leftEdge, FirstTop + pitch, ColumnWidth, ButtonHeight);
    arrangeRemoval(page.Remove, page.RemoveIndex, leftEdge, FirstTop + 2 * pitch);
    const int moveTop = page.RemoveIndex.Top() + BoxHeight + BelowRemoveBox;
    const int moveLeft = leftEdge + (ColumnWidth - 2 * MoveWidth - MoveGap) / 2;
    page.Move(0).Move(moveLeft, moveTop, MoveWidth, ButtonHeight);
    page.Move(1).Move(moveLeft + MoveWidth + MoveGap, moveTop, MoveWidth, ButtonHeight);
} catch (...) {
    SwallowError();
}

void ArrangeHRFrameContents(const HomeRangePage& page, int topOffset) try {
    constexpr int FirstTop = 250;
    constexpr int GridWidth = HomeRangeLeft - Edge - StretchRoom;
    const ui::Control& frame = page.Grid.Container();
    for (int i = 0; i < page.Types.Count(); ++i) {
        page.Types(i).Move(Edge, FirstTop + i * ChoiceHeight, widthOf(page.Types(i)), ChoiceHeight);
    }
    const int top = topOffset + Edge;
    const int pitch = rowPitch(frame.Height() - topOffset);
    page.Grid.Move(Edge, top, GridWidth, frame.Height() - top - Edge);
    const int firstTop = top + Gap;
    arrangeNewRows(page.AddLabel, page.NewRows, page.NewLabel, HomeRangeLeft, firstTop, frame.Width() - Edge);
    page.Update.Move(HomeRangeLeft, firstTop + pitch, ColumnWidth, ButtonHeight);
    arrangeRemoval(page.Remove, page.RemoveIndex, HomeRangeLeft, firstTop + 2 * pitch);
} catch (...) {
    ReportError(9999, "GeneralUtilities.ArrangeHRFrameContents", "");
}

}  // namespace modGeneralUtilities

/// One pass a resize: what a window manager makes of the new place comes as another resize, not as a nested one.
void frmBrenica::ResizeForm() try {
    if (WindowState() == ui::WindowState::Minimized || arranging_) return;
    const Pass pass(arranging_);
    if (WindowState() == ui::WindowState::Normal) {
        Move(NormalLeft, NormalTop, std::max(Width(), LeastWidth), std::max(Height(), LeastHeight));
    }
    tabBrenica.Move(0, 0, Width() - BorderWidth, Height() - BorderHeight);
    const int header = tabBrenica.HeaderHeight();
    const int furtherRows = header - ui::TabStrip::RowHeight;
    for (ui::Frame& page : fraTabContents)
        page.Move(Edge, header, tabBrenica.Width() - 250, tabBrenica.Height() - 750 - furtherRows);
    arrangeListPages();
    arrangeCriteriaPage();
    arrangeSummaryPage();
    arrangeGraphPage();
    arrangeScorePage();
    arrangeResultsPage();
    fitShownGrids();
} catch (...) {
    ReportError(9999, "Brenica.ResizeForm", "");
}

void frmBrenica::arrangeListPages() {
    using modGeneralUtilities::ArrangeFrameContents;
    constexpr int BelowFrameCaption = 100;
    constexpr int HomeRangeTop = 1200;                          // below the option buttons
    const ui::Control& habitats = flxHabitatTypes.Container();  // as large as the frames of the other lists
    const ui::Control& page = habitats.Container();
    Flow choices(Edge, Gap, page.Width() - Edge, ChoiceHeight);
    for (ui::OptionButton& button : optLandChar) choices.add({{button, widthOf(button), ChoiceHeight}});
    const int frameTop = choices.bottom() + Gap;
    for (ui::Frame& frame : fraLandCharInfo)
        frame.Move(Edge, frameTop, page.Width() - 2 * Edge, page.Height() - frameTop - Edge);
    const auto leftEdge = [](const ui::Control& frame) { return frame.Width() - ColumnWidth - Edge; };
    ArrangeFrameContents({flxCandidateSpecies, lblAddSpecies, txtTotalSpecies, lblNewSpecies,
                          cmdUpdateSpecies, cmdRemoveSpecies, txtRemoveSpeciesIndex, cmdSpeciesMove},
                         leftEdge(flxCandidateSpecies.Container()), 0);
    const int left = leftEdge(habitats);
    const int offset = BelowFrameCaption;
    ArrangeFrameContents({flxHabitatTypes, lblAddHabitatTypes, txtTotalHabitatTypes, lblNewHabitatTypes,
                          cmdUpdateHabitatTypes, cmdRemoveHabitatType, txtRemoveHabitatIndex, cmdHabitatMove},
                         left, offset);
    ArrangeFrameContents({flxJurisUnits, lblAddJurisUnits, txtTotalJurisUnits, lblNewJurisUnits,
                          cmdUpdateJurisUnits, cmdRemoveJurisUnit, txtRemoveJurisUnitIndex, cmdJurisUnitMove},
                         left, offset);
    ArrangeFrameContents({flxLandUses, lblAddLandUses, txtTotalLandUses, lblNewLandUses, cmdUpdateLandUses,
                          cmdRemoveLandUse, txtRemoveLandUseIndex, cmdLandUseMove},
                         left, offset);
    ArrangeFrameContents({flxFunctions, lblAddFunctions, txtTotalFunctions, lblNewFunctions,
                          cmdUpdateFunctions, cmdRemoveFunction, txtRemoveFunctionIndex, cmdFunctionMove},
                         left, offset);
    modGeneralUtilities::ArrangeHRFrameContents({optHomeRangeType, flxBins, lblAddBins, txtTotalBins,
                                                 lblNewBins, cmdUpdateBins, cmdRemoveBin, txtRemoveBinIndex},
                                                HomeRangeTop);
    for (ui::Grid* grid :
         {&flxCandidateSpecies, &flxHabitatTypes, &flxJurisUnits, &flxLandUses, &flxBins, &flxFunctions}) {
        modFlexGridUtilities::ResizeGrid(*grid, false, 0);
    }
}

namespace layout {

namespace {

// What a control needs beside its text: borders, the mark of a choice, the arrow of a list.
constexpr int LabelPadding = 30;
constexpr int ButtonPadding = 240;
constexpr int ChoicePadding = 300;
constexpr int BoxPadding = 120;
constexpr int ComboPadding = 450;

int textWidth(const ui::Control& control, std::string_view text) {
    return control.Form().GetPlatform().textWidth(text, ui::Font{});
}

}  // namespace

int widthOf(const ui::Label& label) { return textWidth(label, label.Caption()) + LabelPadding; }
int widthOf(const ui::CommandButton& button) { return textWidth(button, button.Caption()) + ButtonPadding; }
int widthOf(const ui::OptionButton& button) { return textWidth(button, button.Caption()) + ChoicePadding; }
int widthOf(const ui::CheckBox& box) { return textWidth(box, box.Caption()) + ChoicePadding; }

int widthOf(const ui::ComboBox& box) {
    int widest = 0;
    for (int i = 0; i < box.ListCount(); ++i) widest = std::max(widest, textWidth(box, box.List(i)));
    return widest + ComboPadding;
}

int boxWidth(const ui::Control& box, std::string_view longestText) {
    return textWidth(box, longestText) + BoxPadding;
}

void Flow::add(std::initializer_list<Item> group) {
    int width = -Gap;
    for (const Item& item : group) width += item.Width + Gap;
    if (nextLeft_ > left_ && nextLeft_ + width > right_) {
        nextLeft_ = left_;
        top_ += rowHeight_ + Gap;
    }
    for (const Item& item : group) {
        item.Control.Move(nextLeft_, top_ + (rowHeight_ - item.Height) / 2, item.Width, item.Height);
        nextLeft_ += item.Width + Gap;
    }
    nextLeft_ += WideGap - Gap;
}

/// A hidden last column is neither stretched nor counted in.
void fitColumns(ui::Grid& grid) {
    const bool hiddenLast = grid.Cols() > 0 && grid.ColHidden(grid.Cols() - 1);
    modFlexGridUtilities::ResizeGrid(grid, false, hiddenLast ? 1 : 0);
}

}  // namespace layout
