// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <string>
#include <vector>

#include "entry/entry_fixture.h"
#include "entry/form_layout.h"
#include "support/form_views.h"
#include "support/text_widths.h"
#include "ui/combo_box.h"

namespace {

using form_views::describe;
using form_views::longestText;
using form_views::onEveryView;
using form_views::overlap;
using form_views::shownControls;
using ui::ControlKind;
using ui::WindowState;

constexpr int LineHeight = 200;

/// What a control is drawn with beside its text, at the least: a border, the mark of a choice, the arrow of a list.
int leastPadding(ControlKind kind) {
    switch (kind) {
        case ControlKind::CommandButton: return 120;
        case ControlKind::OptionButton:
        case ControlKind::CheckBox: return 255;
        case ControlKind::ComboBox: return 300;
        case ControlKind::TextBox: return 30;
        default: return 0;
    }
}

struct WindowSize {
    WindowState State;
    int Width;
    int Height;
};

std::string nameOf(const WindowSize& size) {
    return std::string(size.State == WindowState::Normal ? "Normal" : "Maximized") +
           std::to_string(size.Width) + "x" + std::to_string(size.Height);
}

void PrintTo(const WindowSize& size, std::ostream* out) { *out << nameOf(size); }

class FormLayoutTest : public EntryTest {
protected:
    FormLayoutTest() { platform.TextWidth = liberation_sans::textWidth; }

    void resize(WindowState state, int width, int height) { form.UserResize(state, 0, 0, width, height); }
    void maximise() { resize(WindowState::Maximized, 28800, 16200); }

    int textWidth(const std::string& text) const { return liberation_sans::textWidth(text, {}); }

    void expectInsideContainer(const ui::Control& control) {
        const ui::Control& container = control.Container();
        const auto* strip = dynamic_cast<const ui::TabStrip*>(&container);
        EXPECT_GE(control.Left(), 0) << describe(control);
        EXPECT_GE(control.Top(), strip != nullptr ? strip->HeaderHeight() : 0) << describe(control);
        EXPECT_GT(control.Width(), 0) << describe(control);
        EXPECT_GT(control.Height(), 0) << describe(control);
        EXPECT_LE(control.Left() + control.Width(), container.Width())
            << describe(control) << " in " << describe(container);
        EXPECT_LE(control.Top() + control.Height(), container.Height())
            << describe(control) << " in " << describe(container);
    }

    void expectCaptionFits(const ui::Control& control) {
        const std::string& caption = control.Caption();
        if (caption.empty() || control.Kind() == ControlKind::Frame) return;
        if (control.Kind() == ControlKind::Label) {
            const int lines = liberation_sans::linesOf(caption, control.Width(), {});
            EXPECT_LE(lines * LineHeight, control.Height()) << caption << ": " << describe(control);
        } else {
            EXPECT_LE(textWidth(caption) + leastPadding(control.Kind()), control.Width())
                << caption << ": " << describe(control);
        }
    }

    void expectTabsReachable(const ui::TabStrip& strip) {
        const std::vector<ui::TabPlace> places = strip.TabPlaces();
        ASSERT_EQ(places.size(), strip.Tabs().size());
        for (std::size_t i = 0; i < places.size(); ++i) {
            const std::string& caption = strip.Tabs()[i].Caption;
            EXPECT_LE(textWidth(caption) + 120, places[i].Width) << caption;
            EXPECT_LE(places[i].Left + places[i].Width, strip.Width()) << caption;
            EXPECT_LE(places[i].Top + places[i].Height, strip.HeaderHeight()) << caption;
            for (std::size_t k = 0; k < i; ++k) {
                const bool apart =
                    places[k].Top != places[i].Top || places[k].Left + places[k].Width <= places[i].Left;
                EXPECT_TRUE(apart) << caption << " on " << strip.Tabs()[k].Caption;
            }
        }
    }

    void expectTextsFit(const ui::Control& control) {
        if (const auto* box = dynamic_cast<const ui::TextBox*>(&control)) {
            EXPECT_LE(textWidth(longestText(form, *box)) + leastPadding(box->Kind()), box->Width())
                << describe(*box);
        }
        if (const auto* box = dynamic_cast<const ui::ComboBox*>(&control)) {
            for (int i = 0; i < box->ListCount(); ++i)
                EXPECT_LE(textWidth(box->List(i)) + leastPadding(box->Kind()), box->Width()) << box->List(i);
        }
    }

    /// Stretched columns leave less than a border free, once a hidden one is counted in. A single column is never
    /// stretched.
    void expectColumnsFill(const ui::Grid& grid) {
        if (grid.Cols() < 2) return;
        int columns = 0;
        for (int col = 0; col < grid.Cols(); ++col) columns += grid.ColHidden(col) ? 0 : grid.ColWidth(col);
        EXPECT_GE(columns + 10, grid.ClientWidth()) << describe(grid);
    }

    void expectGoodView(const std::string& what) {
        SCOPED_TRACE(what);
        const std::vector<ui::Control*> shown = shownControls(form);
        for (std::size_t i = 0; i < shown.size(); ++i) {
            ui::Control& control = *shown[i];
            expectInsideContainer(control);
            expectCaptionFits(control);
            expectTextsFit(control);
            if (const auto* strip = dynamic_cast<const ui::TabStrip*>(&control)) expectTabsReachable(*strip);
            if (const auto* grid = dynamic_cast<const ui::Grid*>(&control)) expectColumnsFill(*grid);
            for (std::size_t k = 0; k < i; ++k) {
                if (&shown[k]->Container() != &control.Container()) continue;
                EXPECT_FALSE(overlap(*shown[k], control))
                    << describe(*shown[k]) << " and " << describe(control);
            }
        }
    }

    void expectGoodViews() {
        onEveryView(form, [this](const std::string& view) {
            EXPECT_TRUE(platform.Transcript.empty() ||
                        platform.Transcript.back().BoxKind != ShownBox::Kind::Message)
                << view << ": " << lastBox().Text;
            expectGoodView(view);
        });
        ASSERT_EQ(form.CurrentMainTab, 7);
    }

    void select() {
        goTo(7);
        form.cmdComplement.UserClick();
        ASSERT_GT(form.flxBrenicSuite.Rows(), 1);
        platform.Transcript.clear();
    }

    /// Back and forth between the pages, `moves` times in all.
    void wander(int moves) {
        for (int i = 0; i < moves; ++i) goTo(1 + (i * 3) % 7);
    }
};

/// Every size of window that a user may have, in steps that are no multiples of each other.
class FormLayoutSizes : public FormLayoutTest, public testing::WithParamInterface<WindowSize> {};

std::vector<WindowSize> windowSizes() {
    constexpr int LargestWidth = 57600;
    constexpr int LargestHeight = 32400;
    std::vector<WindowSize> sizes = {{WindowState::Maximized, 10000, 6200}};  // the form's LeastSize
    for (const WindowState state : {WindowState::Normal, WindowState::Maximized}) {
        for (int width = 11000, height = 7000; width <= LargestWidth; width += 1237, height += 661)
            sizes.push_back({state, width, height});
        sizes.push_back({state, 11000, LargestHeight});
        sizes.push_back({state, LargestWidth, 7000});
        sizes.push_back({state, LargestWidth, LargestHeight});
    }
    return sizes;
}

TEST_P(FormLayoutSizes, EveryViewIsWholeAndReadableAlsoAfterAHundredPageMoves) {
    open(ProjectText(12, 30, 8, 25)
             .set("HeteroHabitat Population", repeated("2", 12 * 30))
             .set("HeteroJU Individual", repeated("2", 12 * 8)));
    resize(GetParam().State, GetParam().Width, GetParam().Height);
    expectGoodViews();
    select();
    wander(100);
    expectGoodViews();
}

INSTANTIATE_TEST_SUITE_P(Windows, FormLayoutSizes, testing::ValuesIn(windowSizes()),
                         [](const auto& size) { return nameOf(size.param); });

TEST_F(FormLayoutTest, EveryViewOfAnEmptyProjectIsWholeAndReadable) {
    for (const int width : {11000, 28800}) {
        resize(WindowState::Maximized, width, 16200);
        for (int page = 1; page <= 7; ++page) {
            goTo(page);
            platform.Transcript.clear();
            expectGoodView("page " + std::to_string(form.CurrentMainTab));
        }
    }
}

TEST_F(FormLayoutTest, CrossTablesWithManyNarrowColumnsStayInsideTheirStripOnTheWidestWindow) {
    open(ProjectText(3, 250, 250, 150));
    resize(WindowState::Maximized, 57600, 32400);
    goTo(4);
    expectGoodView("heterogeneity");
    form.tabCriteriaSummary.UserSelectTab(4);
    expectGoodView("vulnerability");
}

TEST_F(FormLayoutTest, LongTablesWithScrollBarsFillTheirPlace) {
    open(ProjectText(60, 20, 20, 20));
    maximise();
    expectGoodViews();
}

TEST_F(FormLayoutTest, AResizeFitsTheGridsThatAreOnView) {
    open(ProjectText(3, 3, 3, 3)
             .set("HeteroHabitat Population", repeated("2", 9))
             .set("HeteroJU Individual", repeated("2", 9)));
    resize(WindowState::Normal, 11000, 7000);
    for (const int page : {3, 4, 6, 7}) {
        goTo(page);
        if (page == 7) select();
        resize(WindowState::Normal, 15000, 10000);
        expectGoodView("wider page " + std::to_string(page));
        resize(WindowState::Normal, 11000, 7000);
        expectGoodView("narrower page " + std::to_string(page));
    }
}

/// Texts of every width, so that some group just does not fit into its row.
TEST_F(FormLayoutTest, NoFurtherControlOfARowStandsInTheEdgeAtItsRight) {
    constexpr int Edge = 50;
    constexpr int FirstLeft = 50;
    for (int scale = 200; scale <= 360; ++scale) {
        platform.TextWidth = [scale](std::string_view text, const ui::Font& font) {
            return liberation_sans::textWidth(text, font) * scale / 200;
        };
        resize(WindowState::Normal, 11000, 7000);
        for (const ui::Control* control : form.Controls()) {
            const bool flows = control->Kind() == ControlKind::OptionButton ||
                               control->Kind() == ControlKind::CheckBox ||
                               &control->Container() == &form.flxBrenicSuite.Container();
            if (!flows || dynamic_cast<const ui::Grid*>(control) != nullptr || control->Left() == FirstLeft)
                continue;
            EXPECT_LE(control->Left() + control->Width(), control->Container().Width() - Edge)
                << describe(*control) << " at " << scale;
        }
    }
}

TEST_F(FormLayoutTest, UserDefinedBinsAreReadable) {
    open(ProjectText(2, 2, 2, 2)
             .set("Home-range definition", "user-defined bins")
             .set("Home-range bins", "100000,1000000,10000000"));
    resize(WindowState::Normal, 11000, 7000);
    for (const int type : {1, 2, 0}) {
        form.UpdateHRInfo(type);
        goTo(3);
        form.tabCriteria.UserSelectTab(2);
        expectGoodView("home range type " + std::to_string(type));
    }
}

TEST_F(FormLayoutTest, TheHintShowsBothSentencesInFull) {
    open(ProjectText(1, 1000, 1000, 1)
             .set("Habitat Area", repeated("123456.789", 1000))
             .set("JU Area", repeated("123456.789", 1000))
             .set("Home-range definition", "continuous"));
    resize(WindowState::Normal, 11000, 7000);
    goTo(2);
    form.optHomeRangeType(2).UserClick();
    goTo(3);
    form.tabCriteria.UserSelectTab(2);
    const std::string& hint = form.lblPropOccupHint.Caption();
    EXPECT_NE(hint.find("habitat"), std::string::npos) << hint;
    EXPECT_NE(hint.find("management zone"), std::string::npos) << hint;
    EXPECT_GE(liberation_sans::linesOf(hint, form.lblPropOccupHint.Width(), {}), 3) << hint;
    expectGoodView("area");
}

// The window.

TEST_F(FormLayoutTest, ANormalWindowReturnsToItsPlaceWhenItIsDraggedAndResized) {
    form.UserResize(WindowState::Normal, 3000, 2500, 15000, 9000);
    EXPECT_EQ(form.Left(), 500);
    EXPECT_EQ(form.Top(), 500);
    EXPECT_EQ(form.Width(), 15000);
    EXPECT_EQ(form.Height(), 9000);
}

TEST_F(FormLayoutTest, ASmallNormalWindowIsRaisedToTheLeastSize) {
    resize(WindowState::Normal, 9000, 16000);
    EXPECT_EQ(form.Width(), 11000);
    EXPECT_EQ(form.Height(), 16000);
    resize(WindowState::Normal, 20000, 5000);
    EXPECT_EQ(form.Width(), 20000);
    EXPECT_EQ(form.Height(), 7000);
}

TEST_F(FormLayoutTest, AMaximisedWindowKeepsThePlaceAndSizeOfTheScreen) {
    form.UserResize(WindowState::Maximized, -60, -60, 10000, 6900);
    EXPECT_EQ(form.Left(), -60);
    EXPECT_EQ(form.Top(), -60);
    EXPECT_EQ(form.Width(), 10000);
    EXPECT_EQ(form.Height(), 6900);
    EXPECT_EQ(form.tabBrenica.Width(), 9850);
    EXPECT_EQ(form.tabBrenica.Height(), 6200);
}

TEST_F(FormLayoutTest, MinimisingLeavesEveryControlAsItWas) {
    maximise();
    const auto places = [this] {
        std::vector<std::string> all;
        for (const ui::Control* control : form.Controls()) all.push_back(describe(*control));
        return all;
    };
    const auto before = places();
    form.UserResize(WindowState::Minimized, 0, 0, 2400, 400);
    EXPECT_EQ(places(), before);
    EXPECT_EQ(form.Width(), 28800);
}

TEST_F(FormLayoutTest, AResizeInsideAResizeIsNotLaidOut) {
    int nested = 0;
    platform.TextWidth = [&](std::string_view text, const ui::Font& font) {
        if (nested++ == 0) resize(WindowState::Maximized, 40000, 20000);
        return liberation_sans::textWidth(text, font);
    };
    maximise();
    EXPECT_GT(nested, 1);
    platform.TextWidth = liberation_sans::textWidth;
    maximise();
    EXPECT_EQ(form.tabBrenica.Width(), 28650);
}

TEST_F(FormLayoutTest, AFailureOfTheLayoutIsReportedUnderItsName) {
    platform.TextWidth = [](std::string_view, const ui::Font&) -> int {
        ui::raise(ui::ErrorNumber::Overflow);
    };
    const ui::RunTimeError error = failureOf([&] { form.ResizeForm(); });
    EXPECT_EQ(error.Description, reportOf("Brenica.ResizeForm", 6, "Overflow"));
}

TEST_F(FormLayoutTest, AFailureOfTheHomeRangeFrameIsReportedUnderItsName) {
    platform.TextWidth = [](std::string_view text, const ui::Font& font) {
        if (text == "new breakpoints") ui::raise(ui::ErrorNumber::Overflow);
        return liberation_sans::textWidth(text, font);
    };
    EXPECT_EQ(failureOf([&] { form.ResizeForm(); }).Description,
              reportOf("GeneralUtilities.ArrangeHRFrameContents", 6, "Overflow"));
}

TEST_F(FormLayoutTest, AFailureInAListFrameEndsItSilently) {
    maximise();
    const int before = form.cmdUpdateSpecies.Width();
    const int boxLeft = form.txtTotalSpecies.Left();
    platform.TextWidth = [](std::string_view text, const ui::Font& font) -> int {
        if (text == "Add") ui::raise(ui::ErrorNumber::Overflow);
        return liberation_sans::textWidth(text, font);
    };
    using modGeneralUtilities::ArrangeFrameContents;
    EXPECT_NO_THROW(ArrangeFrameContents(
        {form.flxCandidateSpecies, form.lblAddSpecies, form.txtTotalSpecies, form.lblNewSpecies,
         form.cmdUpdateSpecies, form.cmdRemoveSpecies, form.txtRemoveSpeciesIndex, form.cmdSpeciesMove},
        7777, 0));
    EXPECT_EQ(form.cmdUpdateSpecies.Width(), before);
    EXPECT_EQ(form.txtTotalSpecies.Left(), boxLeft);
}

TEST_F(FormLayoutTest, AFailureOfAFitOnAPageMoveIsReported) {
    open(ProjectText(2, 2, 2, 2));
    platform.TextWidth = [](std::string_view, const ui::Font&) -> int {
        ui::raise(ui::ErrorNumber::Overflow);
    };
    const ui::RunTimeError error = failureOf([&] { goTo(3); });
    EXPECT_EQ(error.Description, reportOf("FlexGridUtilities.ResizeGrid", 6, "Overflow"));
}

// The numbers of the frame of pages and of a list page.

void expectPlace(const ui::Control& control, int left, int top, int width, int height) {
    EXPECT_EQ(control.Left(), left) << control.Name();
    EXPECT_EQ(control.Top(), top) << control.Name();
    EXPECT_EQ(control.Width(), width) << control.Name();
    EXPECT_EQ(control.Height(), height) << control.Name();
}

/// Three controls of 1000 with gaps of 100 between them take 3200.
TEST_F(FormLayoutTest, AGroupThatJustFitsStaysInItsRow) {
    ui::FormWindow window(platform, "frmTest");
    ui::ControlArray<ui::Label> labels(window, "lblTest", 4);
    for (const int right : {4600, 4599}) {
        layout::Flow flow(100, 50, right, 300);
        flow.add({{labels(0), 1000, 200}});
        flow.add({{labels(1), 1000, 200}, {labels(2), 1000, 300}, {labels(3), 1000, 200}});
        const bool sameRow = right == 4600;
        EXPECT_EQ(describe(labels(0)), "lblTest(0) at 100,100 1000x200");
        EXPECT_EQ(describe(labels(1)),
                  sameRow ? "lblTest(1) at 1400,100 1000x200" : "lblTest(1) at 100,500 1000x200");
        EXPECT_EQ(describe(labels(2)),
                  sameRow ? "lblTest(2) at 2500,50 1000x300" : "lblTest(2) at 1200,450 1000x300");
        EXPECT_EQ(describe(labels(3)),
                  sameRow ? "lblTest(3) at 3600,100 1000x200" : "lblTest(3) at 2300,500 1000x200");
        EXPECT_EQ(flow.bottom(), sameRow ? 350 : 750);
    }
}

TEST_F(FormLayoutTest, PagesStandInTheirStripBelowOneRowOfTabs) {
    maximise();
    expectPlace(form.tabBrenica, 0, 0, 28650, 15500);
    for (ui::Frame& page : form.fraTabContents) {
        EXPECT_EQ(&page.Container(), &form.tabBrenica);
        expectPlace(page, 50, 300, 28400, 14750);
    }
}

TEST_F(FormLayoutTest, ARowOfTabsMoreTakesItsHeightFromThePages) {
    platform.TextWidth = [](std::string_view text, const ui::Font& font) {
        return 2 * liberation_sans::textWidth(text, font);
    };
    frmBrenica wide{platform, files, global};
    ASSERT_EQ(wide.tabBrenica.HeaderHeight(), 900);
    expectPlace(wide.fraTabContents(0), 50, 900, 10600, 4950);
}

TEST_F(FormLayoutTest, AListPageHasItsGridAtTheLeftAndAColumnOfControlsAtTheRight) {
    maximise();
    // A frame of 28400 by 14750: the column begins at 26350, its rows are 2870 apart.
    EXPECT_EQ(form.flxCandidateSpecies.Left(), 50);
    EXPECT_EQ(form.flxCandidateSpecies.Top(), 150);
    EXPECT_EQ(form.flxCandidateSpecies.Height(), 14550);
    EXPECT_NEAR(form.flxCandidateSpecies.Width(), 26100, 11);
    const int add = form.lblAddSpecies.Width();
    EXPECT_GE(add, textWidth("Add"));
    expectPlace(form.lblAddSpecies, 26350, 400, add, 200);
    expectPlace(form.txtTotalSpecies, 26450 + add, 300, 400, 300);
    expectPlace(form.lblNewSpecies, 26950 + add, 400, form.lblNewSpecies.Width(), 200);
    expectPlace(form.cmdUpdateSpecies, 26350, 3270, 2000, 400);
    expectPlace(form.cmdRemoveSpecies, 26350, 6140, 2000, 400);
    expectPlace(form.txtRemoveSpeciesIndex, 27150, 6590, 400, 300);
    expectPlace(form.cmdSpeciesMove(0), 26925, 7090, 400, 400);
    expectPlace(form.cmdSpeciesMove(1), 27375, 7090, 400, 400);
}

TEST_F(FormLayoutTest, TheControlsOfAListShareTheHeightOfItsFrame) {
    for (int height = 7000; height < 7005; ++height) {
        resize(WindowState::Normal, 11000, height);
        const int pitch = (form.flxCandidateSpecies.Container().Height() - 400) / 5;
        EXPECT_EQ(form.cmdUpdateSpecies.Top() - form.lblAddSpecies.Top(), pitch) << height;
        EXPECT_EQ(form.cmdRemoveSpecies.Top() - form.cmdUpdateSpecies.Top(), pitch) << height;
    }
}

TEST_F(FormLayoutTest, AListFrameWithACaptionKeepsTheSameColumn) {
    maximise();
    const ui::Frame& frame = form.fraLandCharInfo(2);
    EXPECT_EQ(form.cmdUpdateLandUses.Left(), frame.Width() - 2050);
    EXPECT_EQ(form.cmdUpdateLandUses.Top(), 400 + (frame.Height() - 400) / 5);
    EXPECT_EQ(form.flxLandUses.Top() + form.flxLandUses.Height(), frame.Height() - 50);
    EXPECT_NEAR(form.flxLandUses.Width(), frame.Width() - 2300, 12);
    EXPECT_EQ(form.lblAddLandUses.Top(), 400);
}

TEST_F(FormLayoutTest, ALabelTooWideForItsColumnGoesOnInASecondLine) {
    maximise();
    const int edge = form.cmdUpdateJurisUnits.Left() + 2000;
    EXPECT_EQ(form.lblNewJurisUnits.Height(), 400);
    EXPECT_EQ(form.lblNewJurisUnits.Top(), 400);
    EXPECT_EQ(form.lblNewJurisUnits.Left() + form.lblNewJurisUnits.Width(), edge);
    EXPECT_EQ(form.lblNewHabitatTypes.Height(), 200);
    EXPECT_EQ(form.lblNewBins.Height(), 200);
}

TEST_F(FormLayoutTest, TheHomeRangePageHasItsBreakpointsBesideAGrid) {
    maximise();
    EXPECT_EQ(form.flxBins.Left(), 50);
    EXPECT_EQ(form.flxBins.Top() + form.flxBins.Height(), form.fraLandCharInfo(3).Height() - 50);
    for (const ui::Control* control :
         std::initializer_list<ui::Control*>{&form.lblAddBins, &form.cmdUpdateBins, &form.cmdRemoveBin}) {
        EXPECT_EQ(control->Left(), 2200) << control->Name();
    }
    for (const ui::OptionButton& button : form.optHomeRangeType) EXPECT_EQ(button.Left(), 50);
}

TEST_F(FormLayoutTest, ColumnsOfAListAreStretchedToItsClientWidthByEveryResize) {
    addSpecies({"Lynx", "Otter"});
    for (const int width : {30000, 11000, 20000}) {
        resize(WindowState::Maximized, width, 16200);
        const ui::Grid& grid = form.flxCandidateSpecies;
        EXPECT_EQ(grid.ColWidth(1), grid.ColWidth(2));
        EXPECT_NEAR(grid.ColWidth(0) + grid.ColWidth(1) + grid.ColWidth(2), width - 2760, 12);
    }
}

// Grids fill their pages.

TEST_F(FormLayoutTest, GridsAndChartsEndAtTheBottomOfWhatHoldsThem) {
    open(ProjectText(3, 3, 3, 3));
    maximise();
    for (ui::Control* control : form.Controls()) {
        const bool view = control->Kind() == ControlKind::Grid || control->Kind() == ControlKind::Chart;
        if (!view || control == &form.flxSummary(summary::HabitatUse)) continue;
        EXPECT_EQ(control->Top() + control->Height(), control->Container().Height() - 50)
            << describe(*control);
    }
}

TEST_F(FormLayoutTest, TheCrossTablesOfUseShareTheHeightOfTheirTab) {
    maximise();
    const ui::Grid& habitats = form.flxSummary(summary::HabitatUse);
    const ui::Grid& zones = form.flxSummary(summary::JurisUnitUse);
    EXPECT_EQ(habitats.Height(), zones.Height());
    EXPECT_EQ(zones.Top(), habitats.Top() + habitats.Height() + 100);
}

TEST_F(FormLayoutTest, AllTablesAndChartsOfTheScoresHaveOnePlace) {
    open(ProjectText(3, 3, 3, 3));
    maximise();
    goTo(6);
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{&form.flxScores(0), &form.flxScores(1), &form.flxScoresSort(1),
                                             &form.chtScores(0), &form.chtScores(1), &form.chtScores(2)}) {
        EXPECT_EQ(control->Left(), form.flxScoresSort(0).Left()) << control->Name();
        EXPECT_EQ(control->Top(), form.flxScoresSort(0).Top()) << control->Name();
        EXPECT_EQ(control->Height(), form.flxScoresSort(0).Height()) << control->Name();
        EXPECT_NEAR(control->Width(), form.flxScoresSort(0).Width(), 200) << control->Name();
    }
}

TEST_F(FormLayoutTest, AHiddenSortKeyTakesNoMoreThanItsTextFromTheColumnsOnView) {
    open(ProjectText(3, 3, 3, 3));
    maximise();
    goTo(6);
    const ui::Grid& grid = form.flxScoresSort(0);
    EXPECT_LT(grid.ColWidth(score::SortKey), 500);
    EXPECT_GT(grid.ColWidth(score::SortKey - 1), 2000);
}

// What a layout costs.

class FormLayoutCost : public FormLayoutTest {
protected:
    int measured = 0;

    void count() {
        platform.TextWidth = [this](std::string_view text, const ui::Font& font) {
            ++measured;
            return liberation_sans::textWidth(text, font);
        };
    }
};

TEST_F(FormLayoutCost, ASecondResizeMeasuresCaptionsOnly) {
    open(ProjectText(40, 30, 30, 30));
    maximise();
    count();
    resize(WindowState::Maximized, 30000, 16200);
    EXPECT_LT(measured, 200);
}

TEST_F(FormLayoutCost, AResizeDoesNotMeasureTablesThatAreNotOnView) {
    open(ProjectText(40, 30, 30, 30));
    form.flxSummary(summary::HabitatsBySpecies).TextMatrix(1, 2, "2");
    count();
    maximise();
    EXPECT_LT(measured, 200);
}

TEST_F(FormLayoutCost, APageMoveMeasuresOnlyTheTableOnView) {
    open(ProjectText(40, 30, 30, 30));
    maximise();
    goTo(4);
    form.tabCriteriaSummary.UserSelectTab(3);
    goTo(5);
    count();
    goTo(4);
    // The table of vulnerabilities, whose totals a page move recalculates, and the one on view.
    EXPECT_LT(measured, 43 * 35 + 41 * 5);
}

}  // namespace
