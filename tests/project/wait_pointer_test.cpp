// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/form_test.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A platform that piles pointers up, as a desktop does, and notes when they change and when a box is shown.
class PointerPlatform : public ScriptedPlatform {
public:
    std::vector<std::string> Log;
    int Waiting = 0;

    PointerPlatform() {
        OnBox = [this](const ShownBox& box) { Log.push_back("box " + box.Title); };
    }
    void setMousePointer(ui::MousePointer pointer) override {
        const bool wait = pointer == ui::MousePointer::Wait;
        Waiting += wait ? 1 : -1;
        Log.push_back(wait ? "wait" : "default");
    }
    std::optional<std::string> chooseFile(const ui::FileDialogRequest& request) override {
        Log.push_back("file dialogue");
        return ScriptedPlatform::chooseFile(request);
    }
};

}  // namespace

class WaitPointer : public testing::Test {
protected:
    PointerPlatform platform;
    ui::Files files;
    modGlobal global;
    frmBrenica form{platform, files, global};
    TemporaryFolder folder;

    std::string projectFile(const ProjectText& project) {
        const std::string path = folder.file("project.brn");
        writeFile(path, project.text());
        return path;
    }
    void open(const std::string& path) {
        form.ProjectChanged = false;
        platform.Files = {path};
        platform.Log.clear();
        form.mnuOpenProject.UserClick();
    }
    void goTo(int page) {
        platform.Log.clear();
        form.tabBrenica.UserSelectTab(page);
    }
};

TEST_F(WaitPointer, IsOnDuringAPageMoveOnly) {
    open(projectFile(ProjectText(3, 3, 3, 3)));
    for (int page = 2; page <= 7; ++page) {
        goTo(page);
        EXPECT_THAT(platform.Log, ElementsAre("wait", "default")) << page;
    }
}

TEST_F(WaitPointer, IsNotTouchedByAClickOnThePageOnView) {
    goTo(1);
    EXPECT_THAT(platform.Log, IsEmpty());
}

TEST_F(WaitPointer, GoesAlsoWhenAGateRefusesTheMove) {
    ProjectText project(3, 3, 3, 3);
    project.set("Habitat Type", "Forest,,Meadow");
    open(projectFile(project));
    goTo(2);
    platform.Answers.assign(1, "no");
    goTo(3);
    ASSERT_EQ(form.CurrentMainTab, 2);
    ASSERT_GE(platform.Log.size(), 3U);
    EXPECT_EQ(platform.Log.front(), "wait");
    EXPECT_EQ(platform.Log[1].rfind("box", 0), 0U) << platform.Log[1];
    EXPECT_EQ(platform.Log.back(), "default");
    EXPECT_EQ(platform.Waiting, 0);
}

TEST_F(WaitPointer, GoesAlsoWhenAPageMoveFails) {
    ProjectText project(2, 1, 1, 1);
    project.set("HeteroHabitat Population", "1,x");
    open(projectFile(project));
    EXPECT_THROW(goTo(4), ui::RunTimeError);
    EXPECT_THAT(platform.Log, ElementsAre("wait", "default"));
}

TEST_F(WaitPointer, IsOnFromTheChoiceOfAFileToTheEndOfTheLoad) {
    open(projectFile(ProjectText(3, 3, 3, 3)));
    ASSERT_GE(platform.Log.size(), 3U);
    EXPECT_EQ(platform.Log.front(), "file dialogue");
    EXPECT_EQ(platform.Log[1], "wait");
    EXPECT_EQ(platform.Log.back(), "default");
    EXPECT_EQ(platform.Waiting, 0);
}

TEST_F(WaitPointer, IsNotOnWhenTheFileDialogueIsCancelled) {
    form.ProjectChanged = false;
    platform.Log.clear();
    form.mnuOpenProject.UserClick();
    EXPECT_THAT(platform.Log, ElementsAre("file dialogue"));
}

TEST_F(WaitPointer, GoesAlsoWhenTheFileCannotBeRead) {
    open(folder.file("missing.brn"));
    EXPECT_THAT(platform.Log, Contains("wait"));
    EXPECT_EQ(platform.Log.back(), "default");
    EXPECT_EQ(platform.Waiting, 0);
}

TEST_F(WaitPointer, IsOnDuringASelectionWithItsQuestions) {
    ProjectText project(3, 3, 3, 3);
    project.set("HeteroHabitat Population", repeated("2", 9)).set("HeteroJU Individual", repeated("2", 9));
    open(projectFile(project));
    for (int page = 2; page <= 7; ++page) goTo(page);
    platform.Log.clear();
    form.cmdComplement.UserClick();
    ASSERT_GE(platform.Log.size(), 2U);
    EXPECT_EQ(platform.Log.front(), "wait");
    EXPECT_EQ(platform.Log.back(), "default");
    EXPECT_EQ(platform.Waiting, 0);
}

TEST_F(WaitPointer, GoesAlsoWhenASelectionFails) {
    open(projectFile(ProjectText(3, 3, 3, 3)));
    for (int page = 2; page <= 7; ++page) goTo(page);
    form.txtErrorMargin.Text("5");
    form.flxHabitatTypes.TextMatrix(1, 3, "no number");
    platform.Log.clear();
    EXPECT_THROW(form.cmdComplement.UserClick(), ui::RunTimeError);
    EXPECT_THAT(platform.Log, Contains("wait"));
    EXPECT_EQ(platform.Waiting, 0);
}
