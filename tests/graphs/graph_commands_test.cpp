// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/form_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A platform whose clipboard can fail, and that tells in which order the steps of a command come.
class ClipboardPlatform : public ScriptedPlatform {
public:
    std::function<void()> BeforeCopy;
    std::vector<std::string> Steps;

    std::optional<std::string> chooseFile(const ui::FileDialogRequest& request) override {
        Steps.push_back("dialogue");
        return ScriptedPlatform::chooseFile(request);
    }
    void copyPicture(const ui::Chart& chart) override {
        if (BeforeCopy) BeforeCopy();
        Steps.push_back("copy");
        ScriptedPlatform::copyPicture(chart);
    }
    void SavePicture(const std::string& path) override {
        ScriptedPlatform::SavePicture(path);
        Steps.push_back("save");
    }
};

}  // namespace

/// Save, Copy and Print of the chart on view.
class GraphCommands : public testing::Test {
protected:
    ClipboardPlatform platform;
    ui::Files files;
    modGlobal global;
    frmBrenica form{platform, files, global};
    TemporaryFolder folder;
    const std::string path_ = folder.file("chart.bmp");

    void SetUp() override {
        const std::string project = folder.file("project.brn");
        writeFile(project, ProjectText(2, 1, 1, 1).text());
        platform.Files.assign(1, project);
        form.mnuOpenProject.UserClick();
        ASSERT_EQ(global.TotalSpecies, 2);
        forget();
    }
    void goTo(int page) {
        form.tabBrenica.UserSelectTab(page);
        forget();
    }
    void forget() {
        platform.Transcript.clear();
        platform.FileDialogs.clear();
        platform.Steps.clear();
        platform.CopiedPictures.clear();
        platform.SavedPictures.clear();
        platform.Files.clear();
    }
    void save() {
        platform.Files.assign(1, path_);
        form.mnuSaveGraph.UserClick();
    }
    std::vector<ui::MenuItem*> commands() {
        return {&form.mnuSaveGraph, &form.mnuCopyGraph, &form.mnuPrintGraph};
    }
    void expectBox(const std::string& text, const std::string& title, ui::MessageIcon icon) {
        ASSERT_EQ(platform.Transcript.size(), 1U);
        const ShownBox& box = platform.Transcript[0];
        EXPECT_EQ(box.BoxKind, ShownBox::Kind::Message);
        EXPECT_EQ(box.Text, text);
        EXPECT_EQ(box.Title, title);
        EXPECT_EQ(box.Icon, icon);
    }
    /// The chart that Copy takes; empty where there is none.
    std::string copied() {
        forget();
        form.mnuCopyGraph.UserClick();
        return platform.CopiedPictures.empty() ? "" : platform.CopiedPictures.back();
    }
};

TEST_F(GraphCommands, SayOnAPageWithoutChartsThatNoneIsVisible) {
    for (const int page : {1, 2, 3, 4, 7}) {
        goTo(page);
        for (ui::MenuItem* item : commands()) {
            forget();
            item->UserClick();
            expectBox("Graphs currently not visible!", "Graph error", ui::MessageIcon::Exclamation);
            EXPECT_THAT(platform.Steps, IsEmpty()) << page << item->Name();
        }
    }
}

TEST_F(GraphCommands, SayItOnTheScoresPageWhileTheTableIsShown) {
    goTo(6);
    for (ui::MenuItem* item : commands()) {
        forget();
        item->UserClick();
        expectBox("Graphs currently not visible!", "Graph error", ui::MessageIcon::Exclamation);
    }
    form.chkShowGraphs.UserClick();
    EXPECT_EQ(copied(), "chtScores(0)");
    form.chkShowGraphs.UserClick();
    EXPECT_EQ(copied(), "");
}

TEST_F(GraphCommands, TakeTheSummaryChartOfTheTab) {
    goTo(5);
    EXPECT_EQ(copied(), "chtSummary(0)") << "also before a tab is chosen";
    for (int tab = 8; tab >= 1; --tab) {
        form.tabGraphSummary.UserSelectTab(tab);
        EXPECT_EQ(copied(), "chtSummary(" + std::to_string(tab - 1) + ")");
    }
}

TEST_F(GraphCommands, TakeTheScoreChartOnView) {
    goTo(6);
    form.chkShowGraphs.UserClick();
    EXPECT_EQ(copied(), "chtScores(0)");
    form.chkShowAggregateScore.UserClick();
    EXPECT_EQ(copied(), "chtScores(2)");
    form.optScoreDisplay(1).UserClick();
    EXPECT_EQ(copied(), "chtScores(1)");
}

TEST_F(GraphCommands, TakeTheLastOfSeveralVisibleCharts) {
    goTo(5);
    form.chtSummary(3).Visible(true);
    form.chtSummary(6).Visible(true);
    EXPECT_EQ(copied(), "chtSummary(6)");
    goTo(6);
    for (ui::Chart& chart : form.chtScores) chart.Visible(true);
    EXPECT_EQ(copied(), "chtScores(2)");
}

TEST_F(GraphCommands, DoNotSeeTheChartsWithoutATab) {
    goTo(5);
    form.chtSummary(8).Visible(true);
    form.chtSummary(9).Visible(true);
    EXPECT_EQ(copied(), "chtSummary(0)");
    form.chtSummary(0).Visible(false);
    EXPECT_EQ(copied(), "");
    EXPECT_EQ(form.GetCurrentChart(), nullptr);
}

TEST_F(GraphCommands, DoNotSeeTheChartsOfAnotherPage) {
    goTo(6);
    form.chkShowGraphs.UserClick();
    goTo(5);
    EXPECT_EQ(copied(), "chtSummary(0)");
    goTo(7);
    EXPECT_EQ(copied(), "");
}

TEST_F(GraphCommands, SaveAsksForAFileAndWritesThePictureThroughTheClipboard) {
    goTo(5);
    save();
    ASSERT_EQ(platform.FileDialogs.size(), 1U);
    const ui::FileDialogRequest& request = platform.FileDialogs[0];
    EXPECT_EQ(request.Kind, ui::FileDialogKind::Save);
    EXPECT_EQ(request.Filter, "Pictures (*.bmp)|*.bmp");
    EXPECT_EQ(request.DefaultExt, "bmp");
    EXPECT_THAT(platform.Steps, ElementsAre("dialogue", "copy", "save"));
    EXPECT_THAT(platform.CopiedPictures, ElementsAre("chtSummary(0)"));
    EXPECT_THAT(platform.SavedPictures, ElementsAre(path_));
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(GraphCommands, CopyPutsThePictureOnTheClipboardAndNoMore) {
    goTo(5);
    form.mnuCopyGraph.UserClick();
    EXPECT_THAT(platform.Steps, ElementsAre("copy"));
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(GraphCommands, PrintLeavesThePictureOnTheClipboardAndNoMore) {
    goTo(5);
    form.mnuPrintGraph.UserClick();
    EXPECT_THAT(platform.Steps, ElementsAre("copy"));
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(GraphCommands, CompareTheirNameInAnyCaseAndKnowNoOther) {
    goTo(5);
    platform.Files.assign(1, path_);
    form.MenuSelectionGraph("sAVE");
    form.MenuSelectionGraph("COPY");
    form.MenuSelectionGraph("print");
    EXPECT_THAT(platform.Steps, ElementsAre("dialogue", "copy", "save", "copy", "copy"));
    platform.Steps.clear();
    form.MenuSelectionGraph("Show");
    form.MenuSelectionGraph("");
    EXPECT_THAT(platform.Steps, IsEmpty());
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(GraphCommands, CancelEndsTheSaveWithoutAFileOrAMessage) {
    goTo(5);
    EXPECT_NO_THROW(form.mnuSaveGraph.UserClick());
    EXPECT_THAT(platform.Steps, ElementsAre("dialogue"));
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(GraphCommands, APictureThatCannotBeSavedShowsWhyInAPlainBox) {
    goTo(5);
    platform.BeforeSavePicture = [] { ui::raise(ui::ErrorNumber::PathNotFound); };
    EXPECT_NO_THROW(save());
    expectBox("Path not found", "Brenica", ui::MessageIcon::None);
    EXPECT_THAT(platform.SavedPictures, IsEmpty());
    EXPECT_THAT(platform.Steps, ElementsAre("dialogue", "copy"))
        << "the clipboard holds the chart all the same";
}

TEST_F(GraphCommands, APictureThatCannotBeCopiedShowsWhyOnSave) {
    goTo(5);
    platform.BeforeCopy = [] { ui::raise(ui::ErrorNumber::OutOfMemory); };
    EXPECT_NO_THROW(save());
    expectBox("Out of memory", "Brenica", ui::MessageIcon::None);
    EXPECT_THAT(platform.SavedPictures, IsEmpty());
}

TEST_F(GraphCommands, APictureThatCannotBeCopiedIsToldOnPrint) {
    goTo(5);
    platform.BeforeCopy = [] { ui::raise(ui::ErrorNumber::OutOfMemory); };
    EXPECT_NO_THROW(form.mnuPrintGraph.UserClick());
    expectBox("Unable to print the graph!", "Printing error", ui::MessageIcon::Exclamation);
}

TEST_F(GraphCommands, APictureThatCannotBeCopiedEndsTheCopySilently) {
    goTo(5);
    platform.BeforeCopy = [] { ui::raise(ui::ErrorNumber::OutOfMemory); };
    EXPECT_NO_THROW(form.mnuCopyGraph.UserClick());
    EXPECT_THAT(platform.Transcript, IsEmpty());
    EXPECT_THAT(platform.CopiedPictures, IsEmpty());
}

TEST_F(GraphCommands, WorkAgainAfterAFailure) {
    goTo(5);
    platform.BeforeSavePicture = [] { ui::raise(ui::ErrorNumber::DiskFull); };
    save();
    platform.BeforeSavePicture = nullptr;
    forget();
    save();
    EXPECT_THAT(platform.SavedPictures, ElementsAre(path_));
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(GraphCommands, ForgetTheFolderOfTheExamplesOnlyAfterASave) {
    goTo(5);
    form.cdgFileDialog.InitDir = "examples";
    platform.BeforeSavePicture = [] { ui::raise(ui::ErrorNumber::DiskFull); };
    save();
    EXPECT_EQ(form.cdgFileDialog.InitDir, "examples");
    platform.BeforeSavePicture = nullptr;
    save();
    EXPECT_EQ(form.cdgFileDialog.InitDir, "");
}

TEST_F(GraphCommands, LeaveTheProjectUnchanged) {
    goTo(5);
    form.ProjectChanged = false;
    save();
    form.mnuCopyGraph.UserClick();
    form.mnuPrintGraph.UserClick();
    EXPECT_FALSE(form.ProjectChanged);
    EXPECT_NE(global.ProjectFileName, path_);
}

/// Settings of the score charts that hold for a whole run.
class ScoreChartSettings : public GraphCommands {};

TEST_F(ScoreChartSettings, AreThoseOfTheStartAfterEveryUpdate) {
    for (const int page : {1, 6}) {
        goTo(page);
        for (ui::Chart& chart : form.chtScores) {
            EXPECT_EQ(chart.Type, ui::ChartType::Bar2D) << chart.Name();
            EXPECT_EQ(chart.Title, "Scores") << chart.Name();
            EXPECT_EQ(chart.TitleFont.Name, "Arial") << chart.Name();
            EXPECT_EQ(chart.AxisTitleFont.Name, "Arial") << chart.Name();
            EXPECT_EQ(chart.PlotBackground, ui::rgb(255, 255, 255)) << chart.Name();
            EXPECT_FALSE(chart.MajorGridLines) << chart.Name();
            EXPECT_FALSE(chart.WallBorder) << chart.Name();
        }
    }
}

TEST_F(ScoreChartSettings, SummaryChartsKeepTheirTitlesOverAnUpdate) {
    goTo(5);
    EXPECT_EQ(form.chtSummary(0).Title, "Number of species using the habitat");
    EXPECT_EQ(form.chtSummary(7).YAxisTitle, "Summed vulnerability score");
    EXPECT_EQ(form.chtSummary(0).YAxisTitleOrientation, ui::TitleOrientation::Upward);
    EXPECT_FALSE(form.chtSummary(0).MajorGridLines);
}

TEST_F(ScoreChartSettings, AClickOnTheTabOnViewKeepsAHiddenChartHidden) {
    goTo(5);
    form.tabGraphSummary.UserSelectTab(4);
    form.chtSummary(3).Visible(false);
    form.tabGraphSummary.UserSelectTab(4);
    EXPECT_FALSE(form.chtSummary(3).Visible());
    EXPECT_EQ(form.CurrentGraphTab, 4);
}
