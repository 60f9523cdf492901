// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/columns.h"
#include "support/form_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using State = std::map<std::string, std::string>;

std::string cellsOf(const ui::Grid& grid) {
    std::string texts;
    for (int row = 0; row < grid.Rows(); ++row) {
        for (int col = 0; col < grid.Cols(); ++col) texts += std::string(grid.TextMatrix(row, col)) + "|";
        texts += "\n";
    }
    return texts;
}

std::string itemsOf(const ui::ComboBox& box) {
    std::string texts = std::to_string(box.ListIndex()) + ":";
    for (int i = 0; i < box.ListCount(); ++i) texts += box.List(i) + "|";
    return texts;
}

std::string contentOf(const ui::Control& control) {
    if (const auto* grid = dynamic_cast<const ui::Grid*>(&control)) return cellsOf(*grid);
    if (const auto* text = dynamic_cast<const ui::TextBox*>(&control)) return text->Text();
    if (const auto* combo = dynamic_cast<const ui::ComboBox*>(&control)) return itemsOf(*combo);
    if (const auto* option = dynamic_cast<const ui::OptionButton*>(&control))
        return option->Value() ? "on" : "off";
    if (const auto* check = dynamic_cast<const ui::CheckBox*>(&control)) return check->Value() ? "on" : "off";
    if (const auto* chart = dynamic_cast<const ui::Chart*>(&control))
        return std::to_string(chart->ChartData().size());
    if (const auto* strip = dynamic_cast<const ui::TabStrip*>(&control))
        return std::to_string(strip->SelectedItem());
    return "";
}

/// What a user can see of the form, and its fields. The status in its hidden box and the breakpoints' grid, which is
/// enabled until a home range type is chosen, are no part of the state of a new project.
State stateOf(frmBrenica& form) {
    State state;
    int number = 0;
    for (const ui::Control* control : form.Controls()) {
        const std::string name = control->Name() + "#" + std::to_string(++number);
        const bool enabled = control == &form.flxBins || control->Enabled();
        state[name] = std::string(control->Visible() ? "shown" : "hidden") +
                      (enabled ? " enabled " : " disabled ") +
                      (control == &form.txtCCS ? "" : contentOf(*control));
    }
    const modGlobal& global = form.Global();
    state["fields"] =
        testing::PrintToString(std::vector<int>{
            form.CurrentMainTab, form.CurrentCriteriaTab, form.CurrentSummaryTab, form.CurrentGraphTab,
            form.CurrentLandChar, form.HomeRangeType, form.ScoreDisplayMode, form.CurrentSpeciesIndex}) +
        testing::PrintToString(std::vector<int>{
            global.TotalSpecies, global.TotalHabitatTypes, global.TotalJurisUnits, global.TotalLandUses,
            global.TotalFunctions, global.TotalBins, global.ScoresCalculated, form.ProjectChanged});
    return state;
}

}  // namespace

/// New and Open from states in which something that they would write to is not there.
class NewAndOpen : public FormTest {
protected:
    static State newProject() {
        ScriptedPlatform platform;
        ui::Files files;
        modGlobal global;
        frmBrenica form(platform, files, global);
        form.mnuNewProject.UserClick();
        return stateOf(form);
    }
    void expectNewProject() {
        const State expected = newProject();
        for (const auto& [name, content] : stateOf(form)) EXPECT_EQ(content, expected.at(name)) << name;
        EXPECT_EQ(form.Caption(), "Brenica");
        EXPECT_EQ(global.ProjectFileName, "");
    }
    void answer(const std::vector<std::string>& answers) {
        platform.Transcript.clear();
        platform.Answers.assign(answers.begin(), answers.end());
    }
    void chooseNew(const std::vector<std::string>& answers = {"no"}) {
        answer(answers);
        form.mnuNewProject.UserClick();
    }
    /// Opens another project of one species, whose file gives the title.
    void chooseOpen(const std::vector<std::string>& answers = {"no"}) {
        answer(answers);
        const std::string path = folder.file("other.brn");
        writeFile(path, ProjectText(1, 1, 1, 1).set("Common Name", "Otter").text());
        platform.Files.assign(1, path);
        form.mnuOpenProject.UserClick();
        EXPECT_EQ(form.Caption(), "Brenica - " + path);
        EXPECT_THAT(columnOf(form.flxCandidateSpecies, list::Name), ElementsAre("Common Name", "Otter"));
        EXPECT_FALSE(form.ProjectChanged);
        EXPECT_FALSE(form.ProjectLoading);
    }
    void removeSpecies(int row) {
        goTo(2);  // a move of pages writes a heading that the reading of a file has blanked
        goTo(1);
        type(form.txtRemoveSpeciesIndex, std::to_string(row));
        form.cmdRemoveSpecies.UserClick();
    }
    /// Three species that disperse; the last one is on view on the criteria page, then one is removed.
    void removeWhileTheLastIsOnView(int removed) {
        open(ProjectText(3, 2, 2, 2));
        goTo(3);
        form.cbxSpeciesName.UserChoose(2);
        ASSERT_EQ(form.CurrentSpeciesIndex, 3);
        removeSpecies(removed);
        form.ProjectChanged = true;
    }
};

TEST_F(NewAndOpen, NewClearsAfterTheSpeciesOnViewIsGone) {
    for (const int removed : {1, 2, 3}) {
        removeWhileTheLastIsOnView(removed);
        chooseNew();
        expectNewProject();
    }
}

TEST_F(NewAndOpen, OpenReadsAfterTheSpeciesOnViewIsGone) {
    for (const int removed : {1, 2, 3}) {
        removeWhileTheLastIsOnView(removed);
        chooseOpen();
    }
}

TEST_F(NewAndOpen, NewClearsAfterTheOnlySpeciesIsGone) {
    open(ProjectText(1, 1, 1, 1));
    removeSpecies(1);
    chooseNew();
    expectNewProject();
}

TEST_F(NewAndOpen, OpenReadsAfterTheOnlySpeciesIsGone) {
    open(ProjectText(1, 1, 1, 1));
    removeSpecies(1);
    chooseOpen();
}

// With "N/A" in both boxes nothing fires before the socio-economic grid, and all lists are empty by then.
TEST_F(NewAndOpen, TheNextSpeciesInheritsNoGrades) {
    open(ProjectText(3, 1, 1, 1).set("Area Dispersal", ",,").set("Area Connectivity", ",,"));
    goTo(3);
    form.cbxSpeciesName.UserChoose(2);
    removeSpecies(3);
    chooseNew();
    expectNewProject();
    addSpecies({"Otter"});
    for (const int member : {summary::Area, summary::SocioEcon, summary::DataQuality}) {
        for (int col = 1; col < form.flxSummary(member).Cols(); ++col)
            EXPECT_EQ(form.flxSummary(member).TextMatrix(1, col), "") << member << ": " << col;
    }
}

TEST_F(NewAndOpen, NewClearsAfterTheCriteriaTabsWereClickedBeforeThereWasASpecies) {
    for (const int tab : {2, 3, 4, 5}) {
        goTo(3);
        form.tabCriteria.UserSelectTab(tab);
        goTo(1);
        addSpecies({"Otter"});
        chooseNew();
        expectNewProject();
    }
}

TEST_F(NewAndOpen, OpenReadsAfterTheCriteriaTabsWereClickedBeforeThereWasASpecies) {
    goTo(3);
    form.tabCriteria.UserSelectTab(3);
    goTo(1);
    addSpecies({"Otter"});
    chooseOpen();
    goTo(2);
    EXPECT_EQ(form.flxSummary(summary::Vulnerability).TextMatrix(0, vulnerability::ConservationStatus),
              "CCS");
}

// A failure on the way back to the first page is no more in the way than a gate that refuses.
TEST_F(NewAndOpen, NewClearsThoughThePageCannotBeLeft) {
    const std::string userBins = "user-defined bins,5";
    for (const auto& [key, value] : {std::pair{"Habitat Area", "large"}, {"JU Area", "1e308,1e308"}}) {
        open(ProjectText(1, 2, 2, 1).set("Home-range definition", userBins).set(key, value));
        goTo(2);
        chooseNew({"no", "yes"});
        expectNewProject();
    }
}

TEST_F(NewAndOpen, NewClearsThoughTheGateFails) {
    open(ProjectText(1, 1, 1, 1).set("Urgency", "soon"));
    goTo(2);
    form.optLandChar(2).UserClick();
    form.flxLandUses.UserMoveTo(1, list::Urgency);
    chooseNew();
    expectNewProject();
}

TEST_F(NewAndOpen, OpenReadsThoughThePageCannotBeLeft) {
    open(ProjectText(1, 1, 1, 1).set("Home-range definition", "user-defined bins,5").set("JU Area", "large"));
    goTo(2);
    chooseOpen({"no", "yes"});
}

TEST_F(NewAndOpen, NoToTheHomeRangeQuestionGivesAContinuousProject) {
    const std::pair<const char*, const char*> binned[] = {{"default bins", "1 - 10 km2,100+ km2"},
                                                          {"user-defined bins,5,10", "5 - 10 km2,10+ km2"}};
    for (const auto& [definition, ranges] : binned) {
        open(ProjectText(2, 1, 1, 1).set("Home-range definition", definition).set("Home ranges", ranges));
        goTo(2);
        goTo(1);
        form.ProjectChanged = false;
        chooseNew({"no"});
        EXPECT_THAT(shownTitles(), ElementsAre("Delete home range data"));
        expectNewProject();
        EXPECT_FALSE(form.flxBins.Enabled());
        EXPECT_THAT(save(), testing::HasSubstr("Home-range definition = continuous\r\n"));
    }
}

TEST_F(NewAndOpen, NoToTheHomeRangeQuestionOpensTheTypeOfTheFile) {
    const std::string binned = ProjectText(1, 1, 1, 1)
                                   .set("Home-range definition", "default bins")
                                   .set("Home ranges", "1 - 10 km2")
                                   .text();
    openText(binned);
    form.ProjectChanged = false;
    chooseOpen({"no"});
    EXPECT_EQ(form.HomeRangeType, 0);
    EXPECT_TRUE(form.optHomeRangeType(0).Value());
    openText(binned);
    form.ProjectChanged = false;
    platform.Answers.assign(1, "no");
    openText(binned);
    EXPECT_EQ(form.HomeRangeType, 1);
    EXPECT_TRUE(form.optHomeRangeType(1).Value());
    EXPECT_EQ(save(), binned);
}

/// Two projects with breakpoints of their own, one opened after the other.
class BinsOfAnotherProject : public NewAndOpen {
protected:
    static ProjectText binned(const std::string& breakpoints, const std::string& homeRanges) {
        return ProjectText(3, 1, 1, 1)
            .set("Home-range definition", "user-defined bins," + breakpoints)
            .set("Home ranges", homeRanges);
    }
    std::vector<std::string> labels() const {
        std::vector<std::string> found;
        for (int i = 0; i < form.cbxUserDefBinsHR.ListCount(); ++i)
            found.push_back(form.cbxUserDefBinsHR.List(i));
        return found;
    }
    void lookAtEverySpecies() {
        goTo(3);
        form.tabCriteria.UserSelectTab(2);
        for (int i = 0; i < form.cbxSpeciesName.ListCount(); ++i) form.cbxSpeciesName.UserChoose(i);
    }
    void openNext(const ProjectText& project) {
        platform.Answers.assign({"no", "yes"});
        form.ProjectChanged = true;
        platform.Files.assign(1, folder.file("next.brn"));
        writeFile(folder.file("next.brn"), project.text());
        form.mnuOpenProject.UserClick();
    }
};

TEST_F(BinsOfAnotherProject, AreNotOffered) {
    open(binned("5,10", "5 - 10 km2,10+ km2,5 - 10 km2"));
    openNext(binned("1,2", "2+ km2,1 - 2 km2,2+ km2"));
    EXPECT_THAT(labels(), ElementsAre("1 - 2 km2", "2+ km2"));
    chooseNew({"no", "yes"});
    EXPECT_THAT(labels(), IsEmpty());
    EXPECT_THAT(global.UserBinLabels, ElementsAre("1 - 2 km2", "2+ km2"));
}

TEST_F(BinsOfAnotherProject, AreNotStoredByLooking) {
    open(binned("5,10", "5 - 10 km2,10+ km2,5 - 10 km2"));
    lookAtEverySpecies();
    const ProjectText second = binned("1,2", "2+ km2,1 - 2 km2,");
    openNext(second);
    lookAtEverySpecies();
    EXPECT_EQ(save(), second.text());
}

TEST_F(BinsOfAnotherProject, AreGoneWhenTheSameFileIsOpenedAfterItsBreakpointsWereChanged) {
    const ProjectText project = binned("5,10", "5 - 10 km2,10+ km2,5 - 10 km2");
    open(project);
    goTo(2);
    form.optLandChar(3).UserClick();
    form.flxBins.UserEditCell(1, 1, "6");
    lookAtEverySpecies();
    openNext(project);
    lookAtEverySpecies();
    EXPECT_EQ(save(), project.text());
}

TEST_F(BinsOfAnotherProject, AreNotOfferedToAProjectWithoutBreakpoints) {
    open(binned("5,10", "5 - 10 km2,10+ km2,5 - 10 km2"));
    openNext(ProjectText(1, 1, 1, 1).set("Home-range definition", "user-defined bins"));
    goTo(3);
    EXPECT_THAT(labels(), IsEmpty());
}

/// The scores' page after a project was left with "Original values" chosen.
class OriginalValuesChosen : public NewAndOpen {
protected:
    void SetUp() override {
        open(ProjectText(2, 1, 1, 1));
        goTo(6);
        form.optScoreDisplay(1).UserClick();
        ASSERT_TRUE(form.flxScoresSort(1).Visible());
    }
    void expectNormalizedValues() {
        EXPECT_TRUE(form.optScoreDisplay(0).Value());
        EXPECT_FALSE(form.optScoreDisplay(1).Value());
        EXPECT_EQ(form.ScoreDisplayMode, 0);
        EXPECT_TRUE(form.flxScoresSort(0).Visible());
        EXPECT_FALSE(form.flxScoresSort(1).Visible());
        for (ui::Chart& chart : form.chtScores) EXPECT_FALSE(chart.Visible()) << chart.Name();
    }
};

TEST_F(OriginalValuesChosen, NewChoosesNormalizedValuesAgain) {
    chooseNew();
    expectNormalizedValues();
    expectNewProject();
}

TEST_F(OriginalValuesChosen, OpenChoosesThemAndTheExportWritesTheTableOnView) {
    form.chkShowGraphs.UserClick();
    chooseOpen();
    goTo(6);
    expectNormalizedValues();
    const std::string path = folder.file("scores.txt");
    platform.Files.assign(1, path);
    form.mnuExportData.UserClick();
    EXPECT_EQ(platform.FileDialogs.back().FileName, "NormalizedScoresData");
    EXPECT_THAT(readFile(path), testing::StartsWith("Common Name\tRank\tAggregate"));
}
