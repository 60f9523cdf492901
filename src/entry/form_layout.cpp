// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/form_layout.h"

#include "entry/modErrorHandling.h"
#include "entry/modFlexGridUtilities.h"
#include "project/frmBrenica.h"

namespace {

constexpr int NormalLeft = 500;
constexpr int NormalTop = 500;
constexpr int LeastWidth = 11000;
constexpr int LeastHeight = 7000;

constexpr int ColumnWidth = 2000;  // of the controls at the right side of a list page
constexpr int Edge = 50;
constexpr int Gap = 100;
constexpr int LabelHeight = 200;
constexpr int BoxHeight = 300;
constexpr int BoxWidth = 400;
constexpr int ButtonHeight = 400;
constexpr int RadioHeight = 300;
constexpr int HomeRangeLeft = 2200;  // of the breakpoint controls

/// "Add", a box and what is added, in one line.
void arrangeNewRows(ui::Label& before, ui::TextBox& box, ui::Label& behind, int left, int top) {
    constexpr int LabelWidth = 400;
    constexpr int UnitWidth = 1000;
    before.Move(left, top, LabelWidth, LabelHeight);
    box.Move(left + LabelWidth + Gap, top - Gap, BoxWidth, BoxHeight);
    behind.Move(box.Left() + BoxWidth + Gap, top, UnitWidth, LabelHeight);
}

}  // namespace

namespace modGeneralUtilities {

void ArrangeFrameContents(const ListPage& page, int leftEdge, int topOffset) try {
    constexpr int FirstTop = 400;
    constexpr int MoveWidth = ColumnWidth / 5;
    const ui::Control& frame = page.Grid.Container();
    const int pitch = (frame.Height() - 400) / 5;
    page.Grid.Move(Edge, topOffset + 150, frame.Width() - ColumnWidth - 300,
                   frame.Height() - topOffset - 200);
    arrangeNewRows(page.AddLabel, page.NewRows, page.NewLabel, leftEdge, FirstTop);
    page.Update.Move(leftEdge, FirstTop + pitch, ColumnWidth, ButtonHeight);
    page.Remove.Move(leftEdge, FirstTop + 2 * pitch, ColumnWidth, ButtonHeight);
    page.RemoveIndex.Move(leftEdge + 800, page.Remove.Top() + ButtonHeight + 50, BoxWidth, BoxHeight);
    const int moveTop = page.RemoveIndex.Top() + BoxHeight + 200;
    const int middle = leftEdge + ColumnWidth / 2;
    page.Move(0).Move(middle - MoveWidth - 25, moveTop, MoveWidth, ButtonHeight);
    page.Move(1).Move(middle + 25, moveTop, MoveWidth, ButtonHeight);
} catch (...) {
    SwallowError();
}

void ArrangeHRFrameContents(const HomeRangePage& page, int topOffset) try {
    constexpr int GridWidth = HomeRangeLeft - Edge - Gap;
    const ui::Control& frame = page.Grid.Container();
    for (int i = 0; i < page.Types.Count(); ++i) {
        page.Types(i).Move(Edge, 250 + i * RadioHeight, frame.Width() - 2 * Edge, RadioHeight);
    }
    const int top = topOffset + Edge;
    page.Grid.Move(Edge, top, GridWidth, frame.Height() - top - Edge);
    arrangeNewRows(page.AddLabel, page.NewRows, page.NewLabel, HomeRangeLeft, top + Gap);
    page.Update.Move(HomeRangeLeft, top + 600, ColumnWidth, ButtonHeight);
    page.Remove.Move(HomeRangeLeft, top + 1100, ColumnWidth, ButtonHeight);
    page.RemoveIndex.Move(HomeRangeLeft + 800, page.Remove.Top() + ButtonHeight + 50, BoxWidth, BoxHeight);
} catch (...) {
    ReportError(9999, "GeneralUtilities.ArrangeHRFrameContents", "");
}

}  // namespace modGeneralUtilities

void frmBrenica::ResizeForm() try {
    if (WindowState() == ui::WindowState::Minimized) return;
    if (WindowState() == ui::WindowState::Normal) {
        Move(NormalLeft, NormalTop, std::max(Width(), LeastWidth), std::max(Height(), LeastHeight));
    }
    tabBrenica.Move(0, 0, Width() - 150, Height() - 700);
    for (ui::Frame& page : fraTabContents)
        page.Move(50, 300, tabBrenica.Width() - 250, tabBrenica.Height() - 750);
    arrangeListPages();
} catch (...) {
    ReportError(9999, "Brenica.ResizeForm", "");
}

void frmBrenica::arrangeListPages() {
    using modGeneralUtilities::ArrangeFrameContents;
    constexpr int FrameTop = 800;  // below the buttons that choose a list
    constexpr int HomeRangeTop = 1200;
    const ui::Frame& page = fraTabContents(1);
    const int buttonWidth = (page.Width() - 2 * Edge) / optLandChar.Count();
    for (int i = 0; i < optLandChar.Count(); ++i) {
        optLandChar(i).Move(Edge + i * buttonWidth, 200, buttonWidth, RadioHeight);
        fraLandCharInfo(i).Move(Edge, FrameTop, page.Width() - 2 * Edge, page.Height() - FrameTop - Edge);
    }
    const auto leftEdge = [](const ui::Control& frame) { return frame.Width() - ColumnWidth - Edge; };
    ArrangeFrameContents({flxCandidateSpecies, lblAddSpecies, txtTotalSpecies, lblNewSpecies,
                          cmdUpdateSpecies, cmdRemoveSpecies, txtRemoveSpeciesIndex, cmdSpeciesMove},
                         leftEdge(fraTabContents(0)), 0);
    const int left = leftEdge(fraLandCharInfo(0));
    ArrangeFrameContents({flxHabitatTypes, lblAddHabitatTypes, txtTotalHabitatTypes, lblNewHabitatTypes,
                          cmdUpdateHabitatTypes, cmdRemoveHabitatType, txtRemoveHabitatIndex, cmdHabitatMove},
                         left, 0);
    ArrangeFrameContents({flxJurisUnits, lblAddJurisUnits, txtTotalJurisUnits, lblNewJurisUnits,
                          cmdUpdateJurisUnits, cmdRemoveJurisUnit, txtRemoveJurisUnitIndex, cmdJurisUnitMove},
                         left, 0);
    ArrangeFrameContents({flxLandUses, lblAddLandUses, txtTotalLandUses, lblNewLandUses, cmdUpdateLandUses,
                          cmdRemoveLandUse, txtRemoveLandUseIndex, cmdLandUseMove},
                         left, 0);
    ArrangeFrameContents({flxFunctions, lblAddFunctions, txtTotalFunctions, lblNewFunctions,
                          cmdUpdateFunctions, cmdRemoveFunction, txtRemoveFunctionIndex, cmdFunctionMove},
                         left, 0);
    modGeneralUtilities::ArrangeHRFrameContents({optHomeRangeType, flxBins, lblAddBins, txtTotalBins,
                                                 lblNewBins, cmdUpdateBins, cmdRemoveBin, txtRemoveBinIndex},
                                                HomeRangeTop);
    for (ui::Grid* grid :
         {&flxCandidateSpecies, &flxHabitatTypes, &flxJurisUnits, &flxLandUses, &flxBins, &flxFunctions}) {
        modFlexGridUtilities::ResizeGrid(*grid, false, 0);
    }
}
