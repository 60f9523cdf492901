// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring_test.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

/// The export command, which writes the table on view.
class GridExport : public ScoringTest {
protected:
    std::string exported(const std::vector<std::string>& answers = {}) {
        platform.Answers.assign(answers.begin(), answers.end());
        const std::string path = folder.file("table.txt");
        platform.Files.assign(1, path);
        form.mnuExportData.UserClick();
        return readFile(path);
    }
    std::string proposedName() const {
        return platform.FileDialogs.empty() ? "" : platform.FileDialogs.back().FileName;
    }
    void expectNoGrid() {
        platform.Transcript.clear();
        const std::size_t dialogs = platform.FileDialogs.size();
        form.mnuExportData.UserClick();
        ASSERT_EQ(platform.Transcript.size(), 1U);
        EXPECT_EQ(lastBox().Text, "Cannot export current data grid.");
        EXPECT_EQ(lastBox().Title, "Grid error");
        EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Exclamation);
        EXPECT_EQ(platform.FileDialogs.size(), dialogs);
    }
};

TEST_F(GridExport, WritesEveryCellBetweenTabs) {
    open(ProjectText(2, 1, 1, 1));
    EXPECT_EQ(exported(),
              "No.\tCommon Name\tScientific Name\r\n1\tSpecies 1\tSpecies scientificus 1\r\n"
              "2\tSpecies 2\tSpecies scientificus 2\r\n");
}

TEST_F(GridExport, AsksForTheFileWithItsOwnNameAndFilter) {
    open(ProjectText(2, 1, 1, 1));
    exported();
    const ui::FileDialogRequest& request = platform.FileDialogs.back();
    EXPECT_EQ(request.Kind, ui::FileDialogKind::Save);
    EXPECT_EQ(request.FileName, "CandidateSpeciesData");
    EXPECT_EQ(request.Filter, "Grid Data Files (*.txt)|*.txt");
    EXPECT_EQ(request.DefaultExt, ".txt");
    EXPECT_EQ(form.cdgFileDialog.InitDir, "");
}

TEST_F(GridExport, TakesTheListThatIsOpen) {
    open(ProjectText(1, 1, 1, 1).set("Home-range definition", "user-defined bins,0,5"));
    goTo(2);
    const std::pair<const char*, const char*> lists[] = {
        {"HabitatData", "No.\tHabitat Name\tArea\tLevel of Use\r\n"},
        {"ManagZonesData", "No.\tMZ Name\tArea\tLevel of Use\r\n"},
        {"HumanActivityData", "No.\tHuman Activity\tUrgency\t"},
        {"BinData", "No.\tBreakpoint\r\n1\t0\r\n2\t5\r\n"},
        {"FunctionData", "No.\tFunctions\r\n1\tPredation\r\n"}};
    for (int i = 0; i < 5; ++i) {
        form.optLandChar(i).UserClick();
        EXPECT_THAT(exported(), StartsWith(lists[i].second));
        EXPECT_EQ(proposedName(), lists[i].first);
    }
}

TEST_F(GridExport, BreakpointsAreATableOnlyWhereTheBinsAreTheUsersOwn) {
    for (const char* type : {"continuous", "default bins"}) {
        openAt(ProjectText(1, 1, 1, 1).set("Home-range definition", type), 2);
        form.optLandChar(3).UserClick();
        expectNoGrid();
    }
}

TEST_F(GridExport, HasNoTableOnTheCriteriaAndGraphPages) {
    openAt(ProjectText(1, 1, 1, 1), 3);
    expectNoGrid();
    goTo(5);
    expectNoGrid();
}

TEST_F(GridExport, AsksWhichOfTheTwoUseTablesIsMeant) {
    openAt(ProjectText(1, 2, 2, 1).set("Habitat Type", "Bog,Fen").set("Jurisdictional Unit", "North,South"),
           4);
    EXPECT_EQ(exported({"1"}),
              "Common Name\tBog\tFen\t\tTotal by species\tNo. habitats\r\n"
              "Species 1\t1\t1\t\t2\t2\r\n\t\t\t\t\t\r\n"
              "Total by habitat\t1\t1\t\t\t\r\nNo. species\t1\t1\t\t\t\r\n");
    EXPECT_EQ(proposedName(), "HabitatHeterogeneitySummary");
    EXPECT_EQ(lastBox().BoxKind, ShownBox::Kind::Input);
    EXPECT_EQ(lastBox().Title, "Brenica");
    EXPECT_EQ(
        lastBox().Text,
        "Enter:\r\n1 to save the habitat heterogeneity data \r\n2 to save the management zone heterogeneity "
        "data.");
    EXPECT_THAT(exported({" 2 "}),
                StartsWith("Common Name\tNorth\tSouth\t\tTotal by species\tNo. Manag. zones\r\n"));
    EXPECT_EQ(proposedName(), "ManagZonesHeterogeneitySummary");
    form.tabCriteriaSummary.UserSelectTab(2);
    EXPECT_THAT(exported({}),
                StartsWith("Common Name\tHabitat Name\tLevel of Use\r\nSpecies 1\tBog\t1\r\n\tFen\t1\r\n"));
    EXPECT_EQ(lastBox().Answer, "1");
    EXPECT_EQ(proposedName(), "HabitatHeterogeneityDetailedSummary");
    EXPECT_THAT(exported({"2"}), StartsWith("Common Name\tMZ Name\tLevel of Use\r\nSpecies 1\tNorth\t1\r\n"));
    EXPECT_EQ(proposedName(), "ManagZonesHeterogeneityDetailedSummary");
}

TEST_F(GridExport, AnyOtherAnswerTakesTheHabitatsWithAMessage) {
    openAt(ProjectText(1, 1, 1, 1), 4);
    for (const char* answer : {"", "3", "x"}) {
        EXPECT_THAT(exported({answer}), HasSubstr("No. habitats"));
        EXPECT_EQ(lastBox().Text,
                  "The value entered was invalid. The habitat heterogeneity data will be saved by default.");
        EXPECT_EQ(lastBox().Title, "Invalid value");
    }
}

TEST_F(GridExport, ShowsNumbersAgainAfterwards) {
    openAt(ProjectText(1, 2, 2, 2).set("Land Use", "Roads,Dams"), 4);
    exported({"1"});
    exported({"2"});
    form.tabCriteriaSummary.UserSelectTab(4);
    EXPECT_THAT(
        exported(),
        StartsWith(
            "Common Name\tCCS\t\tRoads\tDams\t\tTotal by species\tNo. threats\r\nSpecies 1\t0.5\t\t2\t2\t"));
    EXPECT_EQ(proposedName(), "VulnerabilitySummary");
    EXPECT_THAT(tableRow(0, 0), ElementsAre("Common Name", "1", "2", "", "Total by species", "No. habitats"));
    EXPECT_THAT(tableRow(1, 0),
                ElementsAre("Common Name", "1", "2", "", "Total by species", "No. Manag. zones"));
    EXPECT_THAT(tableRow(5, 0),
                ElementsAre("Common Name", "CCS", "", "1", "2", "", "Total by species", "No. threats"));
    for (const int member : {0, 1, 5}) EXPECT_TRUE(table(member).Redraw()) << member;
}

TEST_F(GridExport, HeadingsInWordsAreNamesWhereTheTableShowsNumbers) {
    openAt(ProjectText(1, 2, 2, 2).set("Habitat Type", "Bog,Fen").set("Jurisdictional Unit", "North,South"),
           4);
    form.flxHabitatTypes.TextMatrix(2, list::Name, " ");
    const auto inWords = [this](const ui::Grid& grid) {
        std::vector<std::string> words;
        for (int col = 0; col < grid.Cols(); ++col) words.push_back(form.HeadingInWords(grid, col));
        return words;
    };
    EXPECT_THAT(inWords(table(0)),
                ElementsAre("Common Name", "Bog", "2", "", "Total by species", "No. habitats"));
    EXPECT_THAT(inWords(table(1)),
                ElementsAre("Common Name", "North", "South", "", "Total by species", "No. Manag. zones"));
    EXPECT_THAT(inWords(table(5)), ElementsAre("Common Name", "CCS", "", "Activity 1", "Activity 2", "",
                                               "Total by species", "No. threats"));
    EXPECT_THAT(inWords(form.flxHabitatTypes), ElementsAre("No.", "Habitat Name", "Area", "Level of Use"));
    EXPECT_THAT(tableRow(0, 0), ElementsAre("Common Name", "1", "2", "", "Total by species", "No. habitats"));
}

// The long names stand in the headings only while the file is written.
TEST_F(GridExport, IsNotDrawnWhileItsHeadingsAreNames) {
    openAt(ProjectText(1, 2, 2, 2), 4);
    for (const int member : {0, 1, 5}) {
        int writes = 0;
        table(member).CellChanged = [&](int, int) {
            ++writes;
            EXPECT_FALSE(table(member).Redraw()) << member;
        };
        if (member == 5) form.tabCriteriaSummary.UserSelectTab(4);
        exported({std::to_string(member + 1)});
        EXPECT_EQ(writes, 4) << member;
    }
}

TEST_F(GridExport, TakesTheSummaryTableOnView) {
    openAt(ProjectText(1, 1, 1, 1), 4);
    const std::tuple<int, const char*, const char*> tables[] = {
        {3, "AreaSummary", "Common Name\tDispersal > 10 km\tConnectivity\t"},
        {5, "VulnerabilityBySpeciesSummary", "Common Name\tHuman Activity\tUrgency\t"},
        {6, "VulnerabilityByThreatSummary", "Human Activity\tCommon Name\tSeverity\t"},
        {7, "FunctionalitySummary", "Common Name\tPredation\t"},
        {8, "SocioEconSummary", "Common Name\tPotential flagship species\t"},
        {9, "DataQualitySummaryData", "Common Name\tHeterogeneity\tArea\t"}};
    for (const auto& [tab, name, start] : tables) {
        form.tabCriteriaSummary.UserSelectTab(tab);
        EXPECT_THAT(exported(), StartsWith(start));
        EXPECT_EQ(proposedName(), name);
    }
}

TEST_F(GridExport, TakesTheScoresOnViewWithTheirHiddenColumn) {
    openAt(ProjectText(1, 1, 1, 1), 6);
    EXPECT_EQ(exported(),
              "Common Name\tRank\tAggregate\tH\tA\tV\tF\tS-E\t\r\nSpecies 1\t1\t5\t1\t1\t1\t1\t1\t1\r\n");
    EXPECT_EQ(proposedName(), "NormalizedScoresData");
    form.optScoreDisplay(1).UserClick();
    EXPECT_EQ(exported(), "Common Name\tH\tA\tV\tF\tS-E\t\r\nSpecies 1\t3\t5.5\t2.5\t6\t5\t1\r\n");
    EXPECT_EQ(proposedName(), "OriginalScoresData");
}

TEST_F(GridExport, AsksForTheSuiteOrTheViewOnTheResultsPage) {
    openAt(ProjectText(1, 1, 1, 1).set("HeteroHabitat Population", "2").set("HeteroJU Individual", "2"), 6);
    goTo(7);
    form.cmdComplement.UserClick();
    EXPECT_THAT(exported({"1"}),
                StartsWith("No.\tCommon Name\tHabitat Types\tManag. Zones\tThreats\r\n1\tSpecies 1\t"));
    EXPECT_EQ(proposedName(), "BrenicSuiteData");
    const std::tuple<const char*, const char*, const char*> views[] = {
        {"overall", "OverallComplementarityData", "Common Name\tRank\tAggregate\tReH\t"},
        {"habitats covered", "HabitatsCoveredData",
         "Habitat Name\tFirst covered by species\r\nHabitat 1\t1\r\n"},
        {"Management zones covered", "JurisUnitsCoveredData",
         "MZ Name\tFirst covered by species\r\nZone 1\t1\r\n"},
        {"threats covered", "ThreatsCoveredData",
         "Potential threat\tFirst covered by species\r\nActivity 1\t1\r\n"}};
    for (int i = 0; i < 4; ++i) {
        const auto& [label, name, start] = views[i];
        form.optCompResults(i).UserClick();
        EXPECT_THAT(exported({"2"}), StartsWith(start));
        EXPECT_EQ(proposedName(), name);
        EXPECT_EQ(lastBox().Text, "Enter 1 to save the brenic species suite data and 2 to save the " +
                                      std::string(label) + " data.");
        EXPECT_EQ(lastBox().Title, "Brenica");
    }
    exported({"0"});
    EXPECT_EQ(proposedName(), "BrenicSuiteData");
    EXPECT_EQ(lastBox().Text,
              "The value entered was invalid. The brenic species suite data will be saved by default.");
    EXPECT_EQ(lastBox().Title, "Invalid value");
}

TEST_F(GridExport, CancelEndsItWithoutAChange) {
    openAt(ProjectText(1, 2, 1, 1).set("Habitat Type", "Bog,Fen"), 4);
    platform.Files.clear();
    form.mnuExportData.UserClick();
    EXPECT_THAT(tableRow(0, 0), ElementsAre("Common Name", "1", "2", "", "Total by species", "No. habitats"));
    EXPECT_TRUE(table(0).Redraw());
    EXPECT_EQ(platform.Transcript.back().BoxKind, ShownBox::Kind::Input);
}

TEST_F(GridExport, AFileThatCannotBeWrittenEndsTheProgramWithTheReport) {
    open(ProjectText(1, 1, 1, 1));
    platform.Files.assign(1, folder.file("missing/table.txt"));
    const ui::RunTimeError error = failureOf([&] { form.mnuExportData.UserClick(); });
    EXPECT_EQ(error.Description, reportOf("Brenica.MenuSelectionDataGrid", 76, "Path not found"));
}

TEST_F(GridExport, AFailedExportClosesTheFileThatABrokenProjectLeftOpen) {
    openText(ProjectText(1, 1, 1, 1).set("Functionx", "1").text());
    ASSERT_TRUE(files.IsOpen(1));
    platform.Files.assign(1, folder.file("missing/table.txt"));
    failureOf([&] { form.mnuExportData.UserClick(); });
    EXPECT_FALSE(files.IsOpen(1));
}

TEST_F(GridExport, PrintHasNoEffect) {
    open(ProjectText(1, 1, 1, 1));
    platform.Transcript.clear();
    const std::size_t dialogs = platform.FileDialogs.size();
    form.mnuPrintGrid.UserClick();
    EXPECT_THAT(platform.Transcript, IsEmpty());
    EXPECT_EQ(platform.FileDialogs.size(), dialogs);
}
