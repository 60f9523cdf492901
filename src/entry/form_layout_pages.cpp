// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "entry/form_layout.h"
#include "entry/modErrorHandling.h"
#include "project/frmBrenica.h"
#include "project/pages.h"

/// The pages behind the lists. Their grids grow with the project and are fitted when they come on view, and again by a
/// resize while they are: a long table that nobody looks at is not measured.

using namespace layout;

namespace {

constexpr int NameBoxWidth = 4500;  // names have no greatest length
constexpr int BinBoxWidth = 2500;   // nor have breakpoints

struct Place {
    int Left;
    int Top;
    int Width;
    int Height;
};

void moveTo(ui::Control& control, const Place& place) {
    control.Move(place.Left, place.Top, place.Width, place.Height);
}

/// What a container has below `top`, for a grid.
Place restForGrid(const ui::Control& container, int top) {
    return {Edge, top, container.Width() - Edge - StretchRoom, container.Height() - top - Edge};
}

/// The same for anything that does not change its width itself.
Place restBelow(const ui::Control& container, int top) {
    return {Edge, top, container.Width() - 2 * Edge, container.Height() - top - Edge};
}

void placeSideBySide(ui::Grid& left, ui::Grid& right, const Place& place) {
    const int width = (place.Width - Gap) / 2;
    left.Move(place.Left, place.Top, width, place.Height);
    right.Move(place.Left + width + Gap, place.Top, width, place.Height);
}

void placeBelowEachOther(ui::Grid& upper, ui::Grid& lower, const Place& place) {
    const int height = (place.Height - Gap) / 2;
    upper.Move(place.Left, place.Top, place.Width, height);
    lower.Move(place.Left, place.Top + height + Gap, place.Width, height);
}

int bottomOf(const ui::Control& control) { return control.Top() + control.Height(); }

void fitEach(ui::ControlArray<ui::Grid>& grids) {
    for (ui::Grid& grid : grids) fitColumns(grid);
}

void fitVisible(ui::ControlArray<ui::Grid>& grids) {
    for (ui::Grid& grid : grids) {
        if (grid.Visible()) fitColumns(grid);
    }
}

}  // namespace

/// A grid that is not on view is not fitted; it is when its page or tab comes on view.
void frmBrenica::fitGridsWhenShown() {
    const auto fit = [this] {
        try {
            fitShownGrids();
        } catch (...) {
            ReportError(9999, "Brenica.ResizeForm", "");
        }
    };
    tabBrenica.Shown = fit;
    tabCriteriaSummary.Shown = fit;
}

/// Each grid starts from its place, since a fit leaves it a little wider or narrower than that.
void frmBrenica::fitShownGrids() {
    const auto fitAll = [](std::initializer_list<ui::Grid*> grids) {
        for (ui::Grid* grid : grids) fitColumns(*grid);
    };
    switch (CurrentMainTab) {
        case page::Criteria:
            placeCriteriaGrids();
            return fitAll({&flxHabitatHetero, &flxJurisUnitHetero, &flxLandUsesVulnerability,
                           &flxFunctionality, &flxSocioEcon});
        case page::Summary: placeSummaryGrids(); return fitVisible(flxSummary);
        case page::Scores:
            placeScoreViews();
            fitEach(flxScoresSort);
            return fitEach(flxScores);
        case page::Results:
            placeResultGrids();
            fitColumns(flxBrenicSuite);
            return fitEach(flxCompResults);
        default: return;
    }
}

void frmBrenica::arrangeCriteriaPage() {
    const ui::Control& page = tabCriteria.Container();
    Flow species(Edge, Gap, page.Width() - Edge, BoxHeight);
    species.add(
        {{lblSpeciesName, widthOf(lblSpeciesName), LabelHeight}, {cbxSpeciesName, NameBoxWidth, BoxHeight}});
    const int stripTop = species.bottom() + Gap;

    const int lastTop = page.Height() - Edge - BoxHeight;
    Flow last(Edge, lastTop, page.Width() - Edge, BoxHeight);
    last.add({{lblDataQuality, widthOf(lblDataQuality), LabelHeight},
              {cbxDataQuality, widthOf(cbxDataQuality), BoxHeight}});
    last.add(
        {{lblCCS, widthOf(lblCCS), LabelHeight}, {txtCCS, boxWidth(txtCCS, LongestProportion), BoxHeight}});

    tabCriteria.Move(Edge, stripTop, page.Width() - 2 * Edge, lastTop - Gap - stripTop);
    for (ui::Frame& frame : fraCriteria) moveTo(frame, restBelow(tabCriteria, tabCriteria.HeaderHeight()));
    arrangeAreaFrame();
    placeCriteriaGrids();
}

/// A label and its box in each row; the three ways to give a home range share one. The rest is the hint's.
void frmBrenica::arrangeAreaFrame() {
    constexpr int RowPitch = 450;
    const ui::Control& frame = lblPropOccupHint.Container();
    int labelWidth = 0;
    for (const ui::Label* label : {&lblDispersalYN, &lblConnectivity, &lblContinuousHR, &lblDefaultBinsHR,
                                   &lblUserDefBinsHR, &lblPropOccupied}) {
        labelWidth = std::max(labelWidth, widthOf(*label));
    }
    const auto place = [&](int row, ui::Label& label, ui::Control& box, int boxWidth) {
        Flow(Edge, Gap + row * RowPitch, frame.Width() - Edge, BoxHeight)
            .add({{label, labelWidth, LabelHeight}, {box, boxWidth, BoxHeight}});
    };
    place(0, lblDispersalYN, cbxDispersalYN, widthOf(cbxDispersalYN));
    place(1, lblConnectivity, cbxConnectivity, widthOf(cbxConnectivity));
    place(2, lblContinuousHR, txtContinuousHR, boxWidth(txtContinuousHR, LongestArea));
    place(2, lblDefaultBinsHR, cbxDefaultBinsHR, BinBoxWidth);
    place(2, lblUserDefBinsHR, cbxUserDefBinsHR, BinBoxWidth);
    place(3, lblPropOccupied, txtPropOccupied, boxWidth(txtPropOccupied, LongestProportion));
    moveTo(lblPropOccupHint, restBelow(frame, Gap + 4 * RowPitch));
}

void frmBrenica::placeCriteriaGrids() {
    const auto rest = [](const ui::Grid& grid) { return restForGrid(grid.Container(), Edge); };
    placeSideBySide(flxHabitatHetero, flxJurisUnitHetero, rest(flxHabitatHetero));
    for (ui::Grid* grid : {&flxLandUsesVulnerability, &flxFunctionality, &flxSocioEcon})
        moveTo(*grid, rest(*grid));
}

void frmBrenica::arrangeSummaryPage() {
    const ui::Control& page = tabCriteriaSummary.Container();
    const int checkTop = page.Height() - Edge - ChoiceHeight;
    chkAllowSummaryEdit.Move(Edge, checkTop, widthOf(chkAllowSummaryEdit), ChoiceHeight);
    tabCriteriaSummary.Move(Edge, Edge, page.Width() - 2 * Edge, checkTop - Gap - Edge);
    placeSummaryGrids();
}

/// The cross tables are wide and stand below each other, the lists are narrow and stand side by side.
void frmBrenica::placeSummaryGrids() {
    const Place place = restForGrid(tabCriteriaSummary, tabCriteriaSummary.HeaderHeight() + Edge);
    for (ui::Grid& grid : flxSummary) moveTo(grid, place);
    placeBelowEachOther(flxSummary(summary::HabitatUse), flxSummary(summary::JurisUnitUse), place);
    placeSideBySide(flxSummary(summary::HabitatsBySpecies), flxSummary(summary::JurisUnitsBySpecies), place);
}

void frmBrenica::arrangeGraphPage() {
    moveTo(tabGraphSummary, restBelow(tabGraphSummary.Container(), Edge));
    for (ui::Chart& chart : chtSummary)
        moveTo(chart, restBelow(tabGraphSummary, tabGraphSummary.HeaderHeight() + Edge));
}

void frmBrenica::arrangeScorePage() {
    Flow choices(Edge, Gap, chkShowGraphs.Container().Width() - Edge, ChoiceHeight);
    for (ui::OptionButton& button : optScoreDisplay) choices.add({{button, widthOf(button), ChoiceHeight}});
    for (ui::CheckBox* box : {&chkShowGraphs, &chkShowAggregateScore})
        choices.add({{*box, widthOf(*box), ChoiceHeight}});
    placeScoreViews();
}

/// Only one of the tables and charts is on view at a time.
void frmBrenica::placeScoreViews() {
    const ui::Control& page = chkShowGraphs.Container();
    const int top = bottomOf(chkShowAggregateScore) + Gap;
    for (auto* grids : {&flxScores, &flxScoresSort}) {
        for (ui::Grid& grid : *grids) moveTo(grid, restForGrid(page, top));
    }
    for (ui::Chart& chart : chtScores) moveTo(chart, restBelow(page, top));
}

void frmBrenica::arrangeResultsPage() {
    const ui::Control& page = flxBrenicSuite.Container();
    const int right = page.Width() - Edge;
    Flow commands(Edge, Gap, right, ButtonHeight);
    for (ui::CommandButton* button : {&cmdComplement, &cmdExportResults})
        commands.add({{*button, widthOf(*button), ButtonHeight}});
    commands.add({{lblErrorMargin, widthOf(lblErrorMargin), LabelHeight},
                  {txtErrorMargin, boxWidth(txtErrorMargin, LongestProportion), BoxHeight},
                  {lblPercent, widthOf(lblPercent), LabelHeight}});
    commands.add({{lblThreatRep, widthOf(lblThreatRep), LabelHeight},
                  {txtThreatRep, boxWidth(txtThreatRep, LongestProportion), BoxHeight}});
    commands.add({{lblCCSRep, widthOf(lblCCSRep), LabelHeight},
                  {txtCCSRep, boxWidth(txtCCSRep, LongestProportion), BoxHeight}});

    const int top = commands.bottom() + Gap;
    const int middle = page.Width() * 2 / 5;
    lblBrenicSpecies.Move(Edge, top, widthOf(lblBrenicSpecies), LabelHeight);
    lblCompResults.Move(middle, top, widthOf(lblCompResults), LabelHeight);
    Flow views(middle, top + LabelHeight + Edge, right, ChoiceHeight);
    for (ui::OptionButton& button : optCompResults) views.add({{button, widthOf(button), ChoiceHeight}});
    placeResultGrids();
}

/// The suite at the left, the views of the results in the wider part at the right.
void frmBrenica::placeResultGrids() {
    const ui::Control& page = flxBrenicSuite.Container();
    const int left = lblCompResults.Left();
    const int suiteTop = bottomOf(lblBrenicSpecies) + Edge;
    const int viewTop = bottomOf(optCompResults(optCompResults.Count() - 1)) + Edge;
    const int bottom = page.Height() - Edge;
    flxBrenicSuite.Move(Edge, suiteTop, left - Edge - StretchRoom, bottom - suiteTop);
    for (ui::Grid& grid : flxCompResults)
        grid.Move(left, viewTop, page.Width() - left - StretchRoom, bottom - viewTop);
}
