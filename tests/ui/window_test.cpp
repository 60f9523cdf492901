// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/chart.h"
#include "ui/choice_buttons.h"
#include "ui/combo_box.h"
#include "ui/control_array.h"
#include "ui/file_dialog.h"
#include "ui/tab_strip.h"
#include "ui/text_box.h"
#include "window_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(WindowTest, KnowsAllItsControlsInTheOrderOfTheirDeclaration) {
    ui::ControlArray<ui::Label> labels(frame, "lblTest",
                                       {{.Caption = "One"}, {.Caption = "Two", .Visible = false}});
    ui::TextBox box(window, "txtTest", "0", {.ToolTipText = "Tip", .Enabled = false});
    std::vector<std::string> names;
    for (const ui::Control* control : window.Controls()) names.push_back(control->Name());
    EXPECT_THAT(names, ElementsAre("fraTest", "lblTest(0)", "lblTest(1)", "txtTest"));
    EXPECT_EQ(&labels(0).Container(), &frame);
    EXPECT_EQ(&box.Container(), &window);
    EXPECT_EQ(&window.Container(), &window);
    EXPECT_EQ(labels(1).Kind(), ui::ControlKind::Label);
    EXPECT_EQ(labels(1).Caption(), "Two");
    EXPECT_FALSE(labels(1).Visible());
    EXPECT_TRUE(labels(1).Enabled());
    EXPECT_EQ(box.ToolTipText(), "Tip");
    EXPECT_FALSE(box.Enabled());
}

TEST_F(WindowTest, AControlArrayRaisesOutsideItsBounds) {
    ui::ControlArray<ui::Frame> frames(window, "fraPage", 2);
    EXPECT_EQ(frames.Count(), 2);
    EXPECT_EQ(failureOf([&] { frames(2); }).Number, 9);
    EXPECT_EQ(failureOf([&] { frames(-1); }).Number, 9);
}

TEST_F(WindowTest, UnloadOnlySetsAFlag) {
    EXPECT_FALSE(window.Unloaded());
    window.Unload();
    EXPECT_TRUE(window.Unloaded());
}

/// One control of each kind that a user can act on, beside a grid with a cell editor.
class OpenEditor : public GridTest {
protected:
    ui::TextBox box{frame, "txtTest", "0"};
    ui::ComboBox combo{frame, "cbxTest", {"a", "b"}};
    ui::CheckBox check{frame, "chkTest", false};
    ui::ControlArray<ui::OptionButton> options{frame, "optTest", 2};
    ui::TabStrip tabs{frame, "tabTest", {{"One"}, {"Two"}}};
    ui::CommandButton button{frame, "cmdTest"};
    ui::MenuItem menu{window, "mnuTest"};
    ui::Grid other{frame, "flxOther"};

    struct Action {
        std::string Name;
        std::function<void()> Act;
        std::function<std::string()> State;
    };
    std::vector<Action> actions() {
        return {
            {"focus", [this] { box.UserFocus(); }, [this] { return std::to_string(box.SelStart()); }},
            {"key", [this] { box.UserKey('1'); }, [this] { return box.Text(); }},
            {"paste", [this] { box.UserPaste("2"); }, [this] { return box.Text(); }},
            {"choose", [this] { combo.UserChoose(1); }, [this] { return combo.Text(); }},
            {"check", [this] { check.UserClick(); }, [this] { return std::to_string(check.Value()); }},
            {"option", [this] { options(1).UserClick(); },
             [this] { return std::to_string(options(1).Value()); }},
            {"tab", [this] { tabs.UserSelectTab(2); },
             [this] { return std::to_string(tabs.SelectedItem()); }},
            {"button", [this] { button.UserClick(); }, [this] { return std::to_string(log.size()); }},
            {"menu", [this] { menu.UserClick(); }, [this] { return std::to_string(log.size()); }},
            {"move", [this] { other.UserMoveTo(1, 1); }, [this] { return std::to_string(other.Row()); }},
            {"mouse", [this] { other.UserMouseDown(2, 2); }, [this] { return std::to_string(other.Row()); }},
        };
    }

    OpenEditor() {
        button.Click = logging("button");
        menu.Click = logging("menu");
        other.Rows(4);
        box.SelStart(0);
    }
};

TEST_F(OpenEditor, IsCommittedByAnyOtherUserActionBeforeItHappens) {
    for (const Action& action : actions()) {
        SCOPED_TRACE(action.Name);
        grid.UserBeginEdit();
        grid.UserEditPaste(action.Name);
        const std::string before = action.State();
        action.Act();
        EXPECT_FALSE(grid.Editing());
        EXPECT_EQ(grid.TextMatrix(1, 1), action.Name);
        EXPECT_NE(action.State(), before);
    }
}

TEST_F(OpenEditor, PreventsAnyOtherUserActionWhileItRefusesToClose) {
    grid.ValidateEdit = [](int, int, bool& cancel) { cancel = true; };
    grid.UserBeginEdit();
    for (const Action& action : actions()) {
        const std::string before = action.State();
        action.Act();
        EXPECT_EQ(action.State(), before) << action.Name;
        EXPECT_TRUE(grid.Editing());
    }
}

TEST_F(OpenEditor, CommitsBeforeTheActionsOwnEvent) {
    grid.CellChanged = [this](int, int) { log.push_back("changed"); };
    grid.UserBeginEdit();
    button.UserClick();
    EXPECT_THAT(log, ElementsAre("changed", "button"));
}

TEST_F(OpenEditor, StaysOpenWhenCodeChangesOtherControls) {
    grid.UserBeginEdit();
    box.Text("1");
    combo.ListIndex(1);
    tabs.SelectedItem(2);
    EXPECT_TRUE(grid.Editing());
}

TEST_F(OpenEditor, ADisabledControlIgnoresTheUser) {
    for (ui::Control* control : std::initializer_list<ui::Control*>{&box, &combo, &check, &options(1), &tabs,
                                                                    &button, &menu, &other}) {
        control->Enabled(false);
    }
    for (const Action& action : actions()) {
        const std::string before = action.State();
        action.Act();
        EXPECT_EQ(action.State(), before) << action.Name;
    }
}

TEST_F(OpenEditor, ADisabledContainerDisablesWhatStandsInIt) {
    frame.Enabled(false);
    button.UserClick();
    EXPECT_THAT(log, IsEmpty());
    menu.UserClick();
    EXPECT_THAT(log, ElementsAre("menu"));
}

TEST_F(WindowTest, AChartMakesASeriesWhenItIsFirstAskedFor) {
    ui::Chart chart(frame, "chtTest");
    EXPECT_THAT(chart.AllSeries(), IsEmpty());
    chart.Series(2).FillColor = ui::rgb(1, 2, 3);
    EXPECT_EQ(chart.AllSeries().size(), 2U);
    EXPECT_EQ(chart.Series(2).FillColor, 1 + 256 * 2 + 65536 * 3);
    EXPECT_EQ(failureOf([&] { chart.Series(0); }).Number, 9);
}

TEST_F(WindowTest, AChartKeepsItsDataAndCopiesItsPicture) {
    ui::Chart chart(frame, "chtTest");
    chart.ChartData({{"Forest", "3"}, {"Meadow", "1"}});
    EXPECT_THAT(chart.ChartData(), ElementsAre(ElementsAre("Forest", "3"), ElementsAre("Meadow", "1")));
    chart.Refresh();
    EXPECT_EQ(chart.Refreshes(), 1);
    chart.EditCopy();
    EXPECT_THAT(platform.CopiedPictures, ElementsAre("chtTest"));
}

class FileDialogTest : public WindowTest {
protected:
    ui::FileDialog dialog{platform};
};

TEST_F(FileDialogTest, IsShownWithItsSettingsAndKeepsTheChosenPath) {
    dialog.FileName = "Proposed";
    dialog.Filter = "Text Files (*.txt)|*.txt";
    dialog.DefaultExt = "txt";
    dialog.InitDir = "/there";
    dialog.Flags = 6;
    platform.Files = {"/there/chosen.txt"};
    dialog.ShowSave();
    EXPECT_EQ(dialog.FileName, "/there/chosen.txt");
    ASSERT_EQ(platform.FileDialogs.size(), 1U);
    const ui::FileDialogRequest& request = platform.FileDialogs.front();
    EXPECT_EQ(request.Kind, ui::FileDialogKind::Save);
    EXPECT_EQ(request.FileName, "Proposed");
    EXPECT_EQ(request.Filter, "Text Files (*.txt)|*.txt");
    EXPECT_EQ(request.DefaultExt, "txt");
    EXPECT_EQ(request.InitDir, "/there");
    EXPECT_EQ(request.Flags, 6);
    platform.Files = {"/other"};
    dialog.ShowOpen();
    EXPECT_EQ(platform.FileDialogs.back().Kind, ui::FileDialogKind::Open);
}

TEST_F(FileDialogTest, RaisesItsCancelWhenItIsSetTo) {
    dialog.CancelError = true;
    dialog.FileName = "kept";
    const auto failure = failureOf([&] { dialog.ShowOpen(); });
    EXPECT_EQ(failure.Number, 32755);
    EXPECT_EQ(failure.Description, "Cancel was selected.");
    EXPECT_EQ(dialog.FileName, "kept");
}

TEST_F(FileDialogTest, KeepsTheNameOnASilentCancel) {
    dialog.FileName = "kept";
    dialog.ShowSave();
    EXPECT_EQ(dialog.FileName, "kept");
}

TEST(RunTimeErrors, HaveTheirNumbersAndDescriptions) {
    struct Row {
        ui::ErrorNumber Error;
        int Number;
        std::string Description;
    };
    using ui::ErrorNumber;
    const std::vector<Row> rows = {
        {ErrorNumber::InvalidProcedureCall, 5, "Invalid procedure call or argument"},
        {ErrorNumber::Overflow, 6, "Overflow"},
        {ErrorNumber::OutOfMemory, 7, "Out of memory"},
        {ErrorNumber::SubscriptOutOfRange, 9, "Subscript out of range"},
        {ErrorNumber::DivisionByZero, 11, "Division by zero"},
        {ErrorNumber::TypeMismatch, 13, "Type mismatch"},
        {ErrorNumber::BadFileNumber, 52, "Bad file name or number"},
        {ErrorNumber::FileNotFound, 53, "File not found"},
        {ErrorNumber::FileAlreadyOpen, 55, "File already open"},
        {ErrorNumber::DeviceIoError, 57, "Device I/O error"},
        {ErrorNumber::DiskFull, 61, "Disk full"},
        {ErrorNumber::InputPastEndOfFile, 62, "Input past end of file"},
        {ErrorNumber::PermissionDenied, 70, "Permission denied"},
        {ErrorNumber::PathFileAccessError, 75, "Path/File access error"},
        {ErrorNumber::PathNotFound, 76, "Path not found"},
        {ErrorNumber::InvalidPropertyValue, 380, "Invalid property value"},
        {ErrorNumber::Cancelled, 32755, "Cancel was selected."},
    };
    for (const Row& row : rows) {
        const auto failure = failureOf([&] { ui::raise(row.Error); });
        EXPECT_EQ(failure.Number, row.Number);
        EXPECT_EQ(failure.Description, row.Description);
        EXPECT_EQ(failure.Source, "");
    }
}
