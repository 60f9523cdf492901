// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/modStartup.h"
#include "support/form_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A platform on which things happen while events are let through, or while the main form loads.
class EventfulPlatform : public ScriptedPlatform {
public:
    std::function<void()> WhilePending;
    std::function<void()> WhileLoading;

    void processPendingEvents() override {
        ScriptedPlatform::processPendingEvents();
        if (WhilePending) WhilePending();
    }
    std::string programFolder() const override {
        if (WhileLoading) WhileLoading();
        return Folder;
    }
};

int rightOf(const ui::Control& control) { return control.Left() + control.Width(); }
int bottomOf(const ui::Control& control) { return control.Top() + control.Height(); }

}  // namespace

/// A splash alone; showing the main form is an entry in a log.
class Splash : public testing::Test {
protected:
    EventfulPlatform platform;
    std::vector<std::string> log;

    auto showing() {
        return [this] { log.push_back("main form"); };
    }
};

TEST_F(Splash, NamesTheProgramItsVersionAndItsProgramme) {
    const frmSplash splash(platform, showing());
    EXPECT_EQ(splash.lblBrenicaSoftware.Caption(), "Brenica Software");
    EXPECT_EQ(splash.lblVersion.Caption(), "Version 2.0");
    EXPECT_EQ(splash.lblMerrowdaleProg.Caption(), "Merrowdale Program");
    std::vector<std::string> names;
    for (const ui::Control* control : splash.Controls()) {
        EXPECT_TRUE(control->Visible()) << control->Name();
        names.push_back(control->Name());
    }
    EXPECT_THAT(names, testing::UnorderedElementsAre("imgSplash", "picHalvornLogo", "lblBrenicaSoftware",
                                                     "lblVersion", "lblMerrowdaleProg"));
}

TEST_F(Splash, RunsItsTimerForFiveSeconds) {
    const frmSplash splash(platform, showing());
    EXPECT_TRUE(splash.SplashTimer.Enabled);
    EXPECT_EQ(splash.SplashTimer.Interval, 5000);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Splash, IsAsLargeAsItsPictureButNotSmallerThanItsLeastSize) {
    struct Case {
        ui::Size Picture;
        ui::Size Form;
    };
    const Case cases[] = {{{9000, 5000}, {10000, 6000}},
                          {{10000, 6000}, {10000, 6000}},
                          {{10001, 6001}, {9901, 5901}},
                          {{12000, 5000}, {11900, 6000}},
                          {{9000, 8000}, {10000, 7900}}};
    for (const auto& [picture, size] : cases) {
        const frmSplash splash(platform, showing(), picture);
        EXPECT_EQ(splash.Width(), size.Width) << picture.Width;
        EXPECT_EQ(splash.Height(), size.Height) << picture.Height;
        EXPECT_EQ(splash.imgSplash.Width(), picture.Width);
        EXPECT_EQ(splash.imgSplash.Height(), picture.Height);
    }
}

TEST_F(Splash, PlacesItsLogoAndLabelsByItsEdges) {
    for (const ui::Size picture : {ui::Size{10000, 6000}, ui::Size{13000, 9000}}) {
        const frmSplash splash(platform, showing(), picture);
        EXPECT_EQ(splash.picHalvornLogo.Left(), 100);
        EXPECT_EQ(bottomOf(splash.picHalvornLogo), splash.Height() - 150);
        EXPECT_EQ(rightOf(splash.lblMerrowdaleProg), splash.Width() - 200);
        EXPECT_EQ(bottomOf(splash.lblMerrowdaleProg), splash.Height() - 200);
        EXPECT_EQ(splash.lblBrenicaSoftware.Left(), splash.Width() - rightOf(splash.lblBrenicaSoftware));
        EXPECT_EQ(splash.lblBrenicaSoftware.Top(), 400);
        EXPECT_EQ(splash.lblVersion.Left(), splash.Width() - rightOf(splash.lblVersion));
        EXPECT_EQ(splash.lblVersion.Top(), bottomOf(splash.lblBrenicaSoftware) + 200);
        for (const ui::Control* control : splash.Controls()) {
            if (control->Kind() != ui::ControlKind::Label) continue;
            EXPECT_GT(control->Width(), 0) << control->Name();
            EXPECT_GT(control->Height(), 0) << control->Name();
        }
    }
}

TEST_F(Splash, ShowsTheMainFormThenLetsEventsThroughOnceThenGoes) {
    frmSplash splash(platform, [&] {
        log.push_back("main form");
        EXPECT_FALSE(splash.Unloaded());
    });
    platform.WhilePending = [&] {
        log.push_back("events");
        EXPECT_FALSE(splash.Unloaded());
    };
    splash.UserClick();
    EXPECT_THAT(log, ElementsAre("main form", "events"));
    EXPECT_TRUE(splash.Unloaded());
}

TEST_F(Splash, AnyOfTheThreeEventsHandsOver) {
    const std::function<void(frmSplash&)> events[] = {[](frmSplash& splash) { splash.SplashTimer.Elapse(); },
                                                      [](frmSplash& splash) { splash.UserClick(); },
                                                      [](frmSplash& splash) { splash.UserKeyPress(); }};
    for (const auto& event : events) {
        log.clear();
        frmSplash splash(platform, showing());
        event(splash);
        EXPECT_THAT(log, ElementsAre("main form"));
        EXPECT_TRUE(splash.Unloaded());
        EXPECT_FALSE(splash.SplashTimer.Enabled);
    }
    EXPECT_EQ(platform.PendingEventPasses, 3);
}

TEST_F(Splash, EventsAfterTheHandOverDoNothing) {
    frmSplash splash(platform, showing());
    splash.UserKeyPress();
    splash.SplashTimer.Elapse();
    splash.UserClick();
    splash.UserKeyPress();
    EXPECT_THAT(log, ElementsAre("main form"));
    EXPECT_EQ(platform.PendingEventPasses, 1);
}

TEST_F(Splash, ASecondClickWhileTheMainFormIsBeingShownStartsNoOther) {
    frmSplash splash(platform, [&] {
        log.push_back("main form");
        if (log.size() < 3) splash.UserClick();
    });
    splash.UserClick();
    EXPECT_THAT(log, ElementsAre("main form"));
}

TEST_F(Splash, NeitherDoClickKeyAndTimerAmongThePendingEvents) {
    frmSplash splash(platform, showing());
    platform.WhilePending = [&] {
        if (platform.PendingEventPasses > 2) return;
        splash.UserClick();
        splash.UserKeyPress();
        splash.SplashTimer.Elapse();
    };
    splash.SplashTimer.Elapse();
    EXPECT_THAT(log, ElementsAre("main form"));
    EXPECT_EQ(platform.PendingEventPasses, 1);
}

TEST_F(Splash, GivesTheMousePointerBackWhenItGoes) {
    frmSplash splash(platform, showing());
    platform.Pointer = ui::MousePointer::Wait;
    platform.WhilePending = [&] { EXPECT_EQ(platform.Pointer, ui::MousePointer::Wait); };
    splash.UserClick();
    EXPECT_EQ(platform.Pointer, ui::MousePointer::Default);
}

/// The whole program, from its start on.
class Startup : public testing::Test {
protected:
    EventfulPlatform platform;
    Program program{platform};

    frmBrenica& mainForm() {
        program.Main();
        program.Splash()->UserClick();
        return *program.MainForm();
    }
};

TEST_F(Startup, ShowsTheSplashAndReturns) {
    program.Main();
    ASSERT_NE(program.Splash(), nullptr);
    EXPECT_TRUE(program.Splash()->SplashTimer.Enabled);
    EXPECT_EQ(program.MainForm(), nullptr);
    EXPECT_FALSE(program.Ended());
}

TEST_F(Startup, HandsOverToAMaximisedFormOnTheFirstPage) {
    const frmBrenica& form = mainForm();
    EXPECT_EQ(form.WindowState(), ui::WindowState::Maximized);
    EXPECT_EQ(form.CurrentMainTab, 1);
    EXPECT_EQ(form.Caption(), "Brenica");
    EXPECT_FALSE(form.ProjectChanged);
    EXPECT_FALSE(program.Ended());
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(Startup, LoadsTheMainFormInFullBeforeItLetsEventsThrough) {
    program.Main();
    int functions = 0;
    platform.WhilePending = [&] { functions = program.MainForm()->flxFunctions.Rows() - 1; };
    program.Splash()->UserKeyPress();
    EXPECT_EQ(functions, 6);
}

TEST_F(Startup, LaterClicksOnTheSplashKeepTheMainForm) {
    const frmBrenica* form = &mainForm();
    program.Splash()->UserClick();
    program.Splash()->SplashTimer.Elapse();
    EXPECT_EQ(program.MainForm(), form);
}

TEST_F(Startup, TheCloseBoxEndsTheProgramAndAsksNothing) {
    frmBrenica& form = mainForm();
    form.txtTotalSpecies.UserPaste("2");
    form.cmdUpdateSpecies.UserClick();
    ASSERT_TRUE(form.ProjectChanged);
    form.UserClose();
    EXPECT_TRUE(program.Ended());
    EXPECT_THAT(platform.Transcript, IsEmpty());
    EXPECT_THAT(platform.FileDialogs, IsEmpty());
}

TEST_F(Startup, AFailureWhileTheMainFormLoadsIsReportedAndLeavesNoSplash) {
    program.Main();
    platform.WhileLoading = [] { ui::raise(ui::ErrorNumber::PathNotFound); };
    const ui::RunTimeError error = failureOf([&] { program.Splash()->UserClick(); });
    EXPECT_EQ(error.Description, reportOf("Brenica.Form_Load", 76, "Path not found"));
    EXPECT_EQ(program.MainForm(), nullptr);
    EXPECT_TRUE(program.Ended());
}

TEST_F(Startup, TwoProgramsLiveSideBySide) {
    ScriptedPlatform otherPlatform;
    Program other(otherPlatform);
    other.Main();
    other.Splash()->UserClick();
    frmBrenica& form = mainForm();
    form.txtTotalHabitatTypes.UserPaste("3");
    form.cmdUpdateHabitatTypes.UserClick();
    EXPECT_GT(program.Global().TotalHabitatTypes, 0);
    EXPECT_EQ(other.Global().TotalHabitatTypes, 0);
    EXPECT_EQ(other.MainForm()->flxHabitatTypes.Rows(), 1);
    form.UserClose();
    EXPECT_TRUE(program.Ended());
    EXPECT_FALSE(other.Ended());
}

/// The menu and the file dialogue as they stay over a run.
class MainWindow : public FormTest {};

TEST_F(MainWindow, KeepsEveryEntryOfTheMenuEnabled) {
    open(ProjectText(1, 1, 1, 1));
    for (int page = 1; page <= 7; ++page) {
        goTo(page);
        for (const ui::Control* control : form.Controls()) {
            if (control->Kind() != ui::ControlKind::MenuItem) continue;
            EXPECT_TRUE(control->Enabled()) << page << control->Name();
            EXPECT_TRUE(control->Visible()) << page << control->Name();
        }
    }
}

TEST_F(MainWindow, PrintInTheDataMenuDoesNothingOnAnyPage) {
    open(ProjectText(1, 1, 1, 1));
    const std::size_t dialogs = platform.FileDialogs.size();
    for (int page = 1; page <= 7; ++page) {
        goTo(page);
        platform.Transcript.clear();
        form.ProjectChanged = false;
        form.mnuPrintGrid.UserClick();
        EXPECT_THAT(platform.Transcript, IsEmpty()) << page;
        EXPECT_FALSE(form.ProjectChanged) << page;
        EXPECT_EQ(form.CurrentMainTab, page);
    }
    EXPECT_EQ(platform.FileDialogs.size(), dialogs);
    EXPECT_THAT(platform.CopiedPictures, IsEmpty());
    EXPECT_EQ(platform.Beeps, 0);
}

TEST_F(MainWindow, EachEntryOfTheMenuDoesItsOwnCommand) {
    open(ProjectText(1, 1, 1, 1));
    platform.FileDialogs.clear();
    const auto filterOf = [&](ui::MenuItem& item) {
        platform.FileDialogs.clear();
        platform.Files.clear();
        item.UserClick();
        return platform.FileDialogs.empty() ? "" : platform.FileDialogs.back().Filter;
    };
    EXPECT_EQ(filterOf(form.mnuOpenProject), "Project Files (*.brn)|*.brn");
    EXPECT_EQ(platform.FileDialogs.back().Kind, ui::FileDialogKind::Open);
    EXPECT_EQ(filterOf(form.mnuSaveProject), "Project Files (*.brn)|*.brn");
    EXPECT_EQ(platform.FileDialogs.back().Kind, ui::FileDialogKind::Save);
    EXPECT_EQ(filterOf(form.mnuImportData), "Grid Data Files (*.txt)|*.txt");
    EXPECT_EQ(platform.FileDialogs.back().Kind, ui::FileDialogKind::Open);
    EXPECT_EQ(filterOf(form.mnuExportData), "Grid Data Files (*.txt)|*.txt");
    EXPECT_EQ(platform.FileDialogs.back().Kind, ui::FileDialogKind::Save);
    goTo(5);
    EXPECT_EQ(filterOf(form.mnuSaveGraph), "Pictures (*.bmp)|*.bmp");
    EXPECT_EQ(platform.FileDialogs.back().Kind, ui::FileDialogKind::Save);
    EXPECT_EQ(filterOf(form.mnuCopyGraph), "");
    EXPECT_THAT(platform.CopiedPictures, ElementsAre("chtSummary(0)"));
    EXPECT_EQ(filterOf(form.mnuPrintGraph), "");
    EXPECT_EQ(platform.CopiedPictures.size(), 2U);
    platform.Answers.assign(1, "no");
    form.mnuNewProject.UserClick();
    EXPECT_EQ(global.TotalSpecies, 0);
    EXPECT_FALSE(form.Unloaded());
    form.mnuExit.UserClick();
    EXPECT_TRUE(form.Unloaded());
}

TEST_F(MainWindow, ShowsItsFileDialogueWithTheFlagsOfTheStart) {
    form.mnuSaveProject.UserClick();
    form.mnuExportData.UserClick();
    ASSERT_EQ(platform.FileDialogs.size(), 2U);
    for (const ui::FileDialogRequest& request : platform.FileDialogs) EXPECT_EQ(request.Flags, 6);
}
