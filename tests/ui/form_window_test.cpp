// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/chart.h"
#include "ui/choice_buttons.h"
#include "ui/combo_box.h"
#include "ui/control_array.h"
#include "ui/tab_strip.h"
#include "ui/text_box.h"
#include "ui/timer.h"
#include "window_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// A form with a control of each kind that shows something, nothing of which has changed yet.
class ChangedControls : public WindowTest {
protected:
    ui::Label label{frame, "lblTest", {.Caption = "Text"}};
    ui::TextBox box{frame, "txtTest", "0"};
    ui::ComboBox combo{frame, "cbxTest", {"a", "b"}};
    ui::CheckBox check{frame, "chkTest", false};
    ui::ControlArray<ui::OptionButton> options{frame, "optTest", 2};
    ui::TabStrip tabs{frame, "tabTest", {{"One"}, {"Two"}}};
    ui::Grid grid{frame, "flxTest"};

    ChangedControls() {
        grid.Rows(3);
        grid.Cols(3);
        (void)changed();
    }
    std::vector<std::string> changed() {
        std::vector<std::string> names;
        for (const ui::Control* control : window.TakeChanged()) names.push_back(control->Name());
        return names;
    }
};

TEST_F(ChangedControls, AreEachGivenOnceHoweverOftenTheyChange) {
    for (int i = 0; i < 100; ++i) {
        label.Left(i + 1);
        label.Caption("Text " + std::to_string(i));
        box.Text(std::to_string(i));
        for (int row = 0; row < 3; ++row) grid.TextMatrix(row, 1, std::to_string(i));
    }
    EXPECT_THAT(changed(), UnorderedElementsAre("lblTest", "txtTest", "flxTest"));
}

TEST_F(ChangedControls, AreForgottenWhenTheyAreTaken) {
    label.Caption("Other");
    EXPECT_THAT(changed(), ElementsAre("lblTest"));
    EXPECT_THAT(changed(), IsEmpty());
    label.Caption("Text");
    EXPECT_THAT(changed(), ElementsAre("lblTest"));
}

TEST_F(ChangedControls, AreNoneWhereASetterSetsWhatIsThere) {
    label.Caption("Text");
    label.ToolTipText("");
    label.Visible(true);
    label.Enabled(true);
    label.Move(0, 0, 0, 0);
    check.Value(false);
    combo.ListIndex(-1);
    grid.FixedRows(1);
    grid.ColHidden(1, false);
    grid.Redraw(true);
    window.Caption("");
    window.WindowState(ui::WindowState::Normal);
    EXPECT_THAT(changed(), IsEmpty());
}

TEST_F(ChangedControls, AreToldOfEveryPropertyThatIsShown) {
    struct Case {
        ui::Control* Control;
        std::function<void()> Change;
    };
    const std::vector<Case> cases = {
        {&label, [&] { label.Caption("Other"); }},
        {&label, [&] { label.ToolTipText("Tip"); }},
        {&label, [&] { label.Visible(false); }},
        {&label, [&] { label.Enabled(false); }},
        {&label, [&] { label.Left(1); }},
        {&label, [&] { label.Top(1); }},
        {&label, [&] { label.Width(1); }},
        {&label, [&] { label.Height(1); }},
        {&box, [&] { box.Text("1"); }},
        {&box, [&] { box.SelLength(1); }},
        {&box, [&] { box.UserSelect(1, 0); }},
        {&combo, [&] { combo.ListIndex(1); }},
        {&combo, [&] { combo.AddItem("c"); }},
        {&combo, [&] { combo.RemoveItem(0); }},
        {&combo, [&] { combo.Clear(); }},
        {&check, [&] { check.UserClick(); }},
        {&options(0), [&] { options(0).Value(true); }},
        {&tabs, [&] { tabs.SelectedItem(2); }},
        {&grid, [&] { grid.TextMatrix(1, 1, "x"); }},
        {&grid, [&] { grid.Select(2, 2); }},
        {&grid, [&] { grid.Rows(4); }},
        {&grid, [&] { grid.AddItem("x"); }},
        {&grid, [&] { grid.RemoveItem(1); }},
        {&grid, [&] { grid.ColWidth(1, 500); }},
        {&grid, [&] { grid.ColHidden(1, true); }},
        {&grid, [&] { grid.CellBackColor(5); }},
        {&grid, [&] { grid.Redraw(false); }},
        {&window, [&] { window.Caption("Title"); }},
        {&window, [&] { window.WindowState(ui::WindowState::Maximized); }},
    };
    for (std::size_t i = 0; i < cases.size(); ++i) {
        cases[i].Change();
        EXPECT_THAT(changed(), ElementsAre(cases[i].Control->Name())) << "case " << i;
    }
}

TEST_F(ChangedControls, IncludeTheOptionButtonThatGoesOff) {
    options(0).Value(true);
    (void)changed();
    options(1).UserClick();
    EXPECT_THAT(changed(), UnorderedElementsAre("optTest(0)", "optTest(1)"));
}

TEST_F(ChangedControls, IncludeThoseThatAHandlerChanges) {
    check.Click = [this] { label.Caption("checked"); };
    check.UserClick();
    EXPECT_THAT(changed(), UnorderedElementsAre("chkTest", "lblTest"));
}

class Names : public WindowTest {};

TEST_F(Names, OfAControlIsTheOneOfItsDesign) {
    ui::Label label(frame, "lblTest", {.Caption = "Label"});
    ui::CommandButton button(frame, "cmdTest", {.Caption = "▲", .AccessibleName = "Move up"});
    EXPECT_EQ(button.AccessibleName(), "Move up");
}

TEST_F(Names, OfAControlIsElseItsCaption) {
    ui::Label label(frame, "lblTest", {.Caption = "Label"});
    ui::CommandButton button(frame, "cmdTest", {.Caption = "Go"});
    EXPECT_EQ(button.AccessibleName(), "Go");
    button.Caption("Stop");
    EXPECT_EQ(button.AccessibleName(), "Stop");
}

TEST_F(Names, OfAControlIsElseTheCaptionOfTheLabelBeforeIt) {
    ui::Label label(frame, "lblTest", {.Caption = "Count:"});
    ui::TextBox box(frame, "txtTest", "0");
    ui::TextBox next(frame, "txtNext", "0");
    EXPECT_EQ(window.LabelOf(box), &label);
    EXPECT_EQ(box.AccessibleName(), "Count:");
    EXPECT_EQ(window.LabelOf(next), nullptr);
    EXPECT_EQ(next.AccessibleName(), "");
}

TEST_F(Names, ALabelOfAnotherContainerNamesNothing) {
    ui::Label label(window, "lblTest", {.Caption = "Count:"});
    ui::TextBox box(frame, "txtTest", "0");
    EXPECT_EQ(window.LabelOf(box), nullptr);
}

TEST_F(Names, TheFirstControlAndAControlOfAnotherFormHaveNoLabel) {
    EXPECT_EQ(window.LabelOf(frame), nullptr);
    ui::FormWindow other(platform, "frmOther");
    ui::Label label(other, "lblTest");
    ui::TextBox box(other, "txtTest", "0");
    EXPECT_EQ(window.LabelOf(box), nullptr);
    EXPECT_EQ(other.LabelOf(box), &label);
}

TEST_F(Names, AccessKeysAndShortcutsAreThoseOfTheDesign) {
    ui::MenuItem menu(window, "mnuTest", {.Caption = "Save", .AccessKey = 'S', .Shortcut = "Ctrl+S"});
    EXPECT_EQ(menu.AccessKey(), 'S');
    EXPECT_EQ(menu.Shortcut(), "Ctrl+S");
    EXPECT_EQ(frame.AccessKey(), 0);
    EXPECT_EQ(frame.Shortcut(), "");
}

TEST_F(Names, TheUsersSelectionInABoxIsClippedAndFiresNothing) {
    ui::TextBox box(frame, "txtTest", "aé😀b");
    box.Change = logging("Change");
    box.GotFocus = logging("GotFocus");
    box.KeyPress = [this](int&) { log.push_back("KeyPress"); };
    box.UserSelect(1, 2);
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelLength(), 2);
    box.UserSelect(3, 100);
    EXPECT_EQ(box.SelLength(), 1);
    box.UserSelect(-5, 2);
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 2);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(box.Text(), "aé😀b");
}

TEST_F(Names, TimersAreKnownToTheirForm) {
    EXPECT_TRUE(window.Timers().empty());
    ui::Timer first(window);
    ui::Timer second(window);
    EXPECT_THAT(window.Timers(), ElementsAre(&first, &second));
}

TEST_F(Names, ATimerElapsesOnlyWhileItIsEnabled) {
    ui::Timer timer(window);
    timer.Elapsed = logging("tick");
    timer.Elapse();
    EXPECT_THAT(log, IsEmpty());
    timer.Enabled = true;
    timer.Elapse();
    timer.Elapse();
    timer.Enabled = false;
    timer.Elapse();
    EXPECT_THAT(log, ElementsAre("tick", "tick"));
}
