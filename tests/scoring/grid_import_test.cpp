// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int Habitats = 0;
constexpr int Zones = 1;
constexpr int Activities = 2;
constexpr int Bins = 3;
constexpr int Functions = 4;

}  // namespace

/// The import command, which appends the lines of a text file to the list on view.
class GridImport : public ScoringTest {
protected:
    const std::string path_ = folder.file("list.txt");

    /// Imports a file with this content; `heading` is the answer to the question on the first row.
    void import(const std::string& content, const std::string& heading = "no") {
        writeFile(path_, content);
        platform.Transcript.clear();
        platform.FileDialogs.clear();
        platform.Answers.assign(1, heading);
        platform.Files.assign(1, path_);
        form.mnuImportData.UserClick();
    }
    void openList(int index) {
        if (form.CurrentMainTab != 2) goTo(2);
        form.optLandChar(index).UserClick();
        ASSERT_EQ(form.CurrentLandChar, index);
    }
    ui::Grid& list(int index) {
        ui::Grid* grids[] = {&form.flxHabitatTypes, &form.flxJurisUnits, &form.flxLandUses, &form.flxBins,
                             &form.flxFunctions};
        return *grids[index];
    }
    std::string failureOfImport(const std::string& path) {
        platform.Answers.assign(1, "no");
        platform.Files.assign(1, path);
        return failureOf([&] { form.mnuImportData.UserClick(); }).Description;
    }
};

TEST_F(GridImport, AsksForTheFileAndThenForItsHeading) {
    import("Otter\r\n");
    ASSERT_EQ(platform.FileDialogs.size(), 1U);
    const ui::FileDialogRequest& request = platform.FileDialogs[0];
    EXPECT_EQ(request.Kind, ui::FileDialogKind::Open);
    EXPECT_EQ(request.FileName, "");
    EXPECT_EQ(request.Filter, "Grid Data Files (*.txt)|*.txt");
    EXPECT_EQ(request.DefaultExt, ".txt");
    ASSERT_EQ(platform.Transcript.size(), 1U);
    EXPECT_EQ(lastBox().BoxKind, ShownBox::Kind::Question);
    EXPECT_EQ(lastBox().Text, "Does the first row in the data file contain header information?");
    EXPECT_EQ(lastBox().Title, "Header Data");
    EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Question);
    EXPECT_EQ(form.cdgFileDialog.InitDir, "");
    EXPECT_TRUE(form.ProjectChanged);
    EXPECT_FALSE(files.IsOpen(1));
}

TEST_F(GridImport, ProposesNoNameLeftOverFromAnotherCommand) {
    open(ProjectText(1, 1, 1, 1));
    import("Otter\r\n");
    EXPECT_EQ(platform.FileDialogs[0].FileName, "");
}

TEST_F(GridImport, TakesTheFieldsOfASpeciesByTheirNumber) {
    import(
        "Heron\r\nOtter\tLutra lutra\r\n7\tAdder\tVipera berus\r\n4\ta\tb\tc\r\n1\t2\t3\t4\t5\r\n8\tStork\r\n");
    const ui::Grid& grid = form.flxCandidateSpecies;
    ASSERT_EQ(grid.Rows(), 7);
    EXPECT_THAT(rowOf(grid, 1), ElementsAre("1", "Heron", ""));
    EXPECT_THAT(rowOf(grid, 2), ElementsAre("2", "Otter", "Lutra lutra"));
    EXPECT_THAT(rowOf(grid, 3), ElementsAre("3", "Adder", "Vipera berus"));
    EXPECT_THAT(rowOf(grid, 4), ElementsAre("4", "", ""));
    EXPECT_THAT(rowOf(grid, 5), ElementsAre("5", "", ""));
    EXPECT_THAT(rowOf(grid, 6), ElementsAre("6", "8", "Stork")) << "two fields are names, also a number";
    EXPECT_EQ(global.TotalSpecies, 6);
}

TEST_F(GridImport, TakesTheFieldsOfAUnitByTheirNumberAndWhetherTheFirstIsANumber) {
    const std::string content =
        "Bog\r\n9\tFen\r\nFen\t12.5\r\n9\tBog\t12\r\nBog\t12\t3\r\n9\tFen\t0.5\t1\r\n"
        "Fen\tlarge\r\nBog\t1\t2\t3\r\n1\t2\t3\t4\t5\r\n-1.5\tMoor\r\n";
    for (const int kind : {Habitats, Zones}) {
        openList(kind);
        import(content);
        const ui::Grid& grid = list(kind);
        ASSERT_EQ(grid.Rows(), 11);
        EXPECT_THAT(rowOf(grid, 1), ElementsAre("1", "Bog", "", "2"));
        EXPECT_THAT(rowOf(grid, 2), ElementsAre("2", "Fen", "", "2"));
        EXPECT_THAT(rowOf(grid, 3), ElementsAre("3", "Fen", "12.5", "2"));
        EXPECT_THAT(rowOf(grid, 4), ElementsAre("4", "Bog", "12", "2"));
        EXPECT_THAT(rowOf(grid, 5), ElementsAre("5", "Bog", "12", "3"));
        EXPECT_THAT(rowOf(grid, 6), ElementsAre("6", "Fen", "0.5", "1"));
        EXPECT_THAT(rowOf(grid, 7), ElementsAre("7", "Fen", "large", "2")) << "no test of contents";
        EXPECT_THAT(rowOf(grid, 8), ElementsAre("8", "1", "2", "3")) << "of four the first is the number";
        EXPECT_THAT(rowOf(grid, 9), ElementsAre("9", "", "", ""));
        EXPECT_THAT(rowOf(grid, 10), ElementsAre("10", "Moor", "", "2"));
        EXPECT_EQ(kind == Habitats ? global.TotalHabitatTypes : global.TotalJurisUnits, 10);
    }
}

TEST_F(GridImport, TakesTheFieldsOfAnActivityByTheirNumber) {
    openList(Activities);
    import("Roads\r\nDams\t2\r\nDams\t2\t0.5\r\n9\tMines\t3\t1\r\na\tb\tc\td\te\r\n5\t6\t7\r\n");
    const ui::Grid& grid = form.flxLandUses;
    ASSERT_EQ(grid.Rows(), 7);
    EXPECT_THAT(rowOf(grid, 1), ElementsAre("1", "Roads", "", ""));
    EXPECT_THAT(rowOf(grid, 2), ElementsAre("2", "", "", ""));
    EXPECT_THAT(rowOf(grid, 3), ElementsAre("3", "Dams", "2", "0.5"));
    EXPECT_THAT(rowOf(grid, 4), ElementsAre("4", "Mines", "3", "1"));
    EXPECT_THAT(rowOf(grid, 5), ElementsAre("5", "", "", ""));
    EXPECT_THAT(rowOf(grid, 6), ElementsAre("6", "5", "6", "7"))
        << "of three the first is the name, also a number";
    EXPECT_EQ(global.TotalLandUses, 6);
}

TEST_F(GridImport, TakesABreakpointOrAFunctionFromTheOnlyOrTheSecondField) {
    openText(ProjectText(0, 0, 0, 0).set("Home-range definition", "user-defined bins,0").text());
    openList(Bins);
    import("5\r\n9\t20\r\n1\t30\tx\r\n1\t40\tx\ty\tz\r\n");
    EXPECT_THAT(columnOf(form.flxBins, 0), ElementsAre("No.", "1", "2", "3", "4", "5"));
    EXPECT_THAT(columnOf(form.flxBins, 1), ElementsAre("Breakpoint", "0", "5", "20", "30", "40"));
    EXPECT_EQ(global.TotalBins, 5);
    openList(Functions);
    import("Grazing\r\n9\tBurrowing\r\n1\tNesting\tx\r\n");
    EXPECT_EQ(global.TotalFunctions, 9);
    EXPECT_THAT(rowOf(form.flxFunctions, 7), ElementsAre("7", "Grazing"));
    EXPECT_THAT(rowOf(form.flxFunctions, 8), ElementsAre("8", "Burrowing"));
    EXPECT_THAT(rowOf(form.flxFunctions, 9), ElementsAre("9", "Nesting"));
}

TEST_F(GridImport, AUnitWithoutALevelOfUseGetsTheOneOfAnAddedUnit) {
    for (const int kind : {Habitats, Zones}) {
        openList(kind);
        import("1\tBog\t12\t\r\nFen\t3\t\r\nMoor\t3\t0\r\nHeath\t\r\nMire\t3\t \r\n1\t2\t3\t4\t5\r\n");
        EXPECT_THAT(columnOf(list(kind), list::LevelOfUse),
                    ElementsAre("Level of Use", "2", "2", "0", "2", "2", ""));
    }
}

TEST_F(GridImport, ARowForAHeadingTextAsAProbabilityIsLeftInPeace) {
    openList(Activities);
    import("No.\tHuman Activity\tUrgency\tProbability of occurence\r\n1\tDams\t1\t50%\r\n");
    for (const int row : {1, 2}) {
        for (const int col : {2, 3}) {
            form.flxLandUses.UserMoveTo(row, col);
            EXPECT_NO_THROW(form.flxLandUses.UserMoveTo(3 - row, 1));
        }
    }
    EXPECT_NO_THROW(form.optLandChar(Habitats).UserClick());
}

TEST_F(GridImport, TheFirstBreakpointIsOneAlsoWhereTheHeadingsWereLost) {
    openList(Bins);
    form.optHomeRangeType(2).UserClick();
    form.txtTotalBins.SelStart(0);
    form.txtTotalBins.SelLength(1);
    form.txtTotalBins.UserPaste("-1");
    form.cmdUpdateBins.UserClick();
    ASSERT_EQ(form.flxBins.Rows(), 0);
    import("5\r\n10\r\n");
    EXPECT_EQ(global.TotalBins, 2);
    EXPECT_THAT(columnOf(form.flxBins, list::Name), ElementsAre("", "5", "10"));
    EXPECT_THAT(save(), testing::HasSubstr("user-defined bins,5,10\r\n"));
    form.ProjectChanged = false;
    form.mnuNewProject.UserClick();
    EXPECT_THAT(rowOf(form.flxBins, 0), ElementsAre("No.", "Breakpoint"));
}

TEST_F(GridImport, FitsTheListAsAnAdditionDoes) {
    std::string rows;
    for (int i = 0; i < 200; ++i) rows += "A rather long name of an entry\r\n";
    const auto widths = [](const ui::Grid& grid) {
        std::vector<int> found{grid.Width()};
        for (int col = 0; col < grid.Cols(); ++col) found.push_back(grid.ColWidth(col));
        return found;
    };
    const auto expectFitted = [&](const ui::Grid& grid) {
        const auto imported = widths(grid);
        form.ResizeForm();
        EXPECT_EQ(imported, widths(grid)) << grid.Name();
    };
    openText(ProjectText(0, 0, 0, 0).set("Home-range definition", "user-defined bins,0").text());
    import(rows);
    expectFitted(form.flxCandidateSpecies);
    for (const int kind : {Habitats, Zones, Activities, Bins, Functions}) {
        openList(kind);
        import(rows + "\r\nbehind an empty line\r\n");
        expectFitted(list(kind));
        if (kind == Activities) form.flxLandUses.Rows(1);
    }
}

TEST_F(GridImport, AnEmptyFieldKeepsItsPlace) {
    import("\tLutra lutra\r\n\t\r\n3\tOtter\t\r\n");
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 1), ElementsAre("Common Name", "", "", "Otter"));
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 2), ElementsAre("Scientific Name", "Lutra lutra", "", ""));
}

TEST_F(GridImport, AppendsToAListThatHasRowsAndKeepsTheNumbering) {
    open(ProjectText(2, 1, 1, 1));
    import("No.\tCommon Name\tScientific Name\r\n1\tOtter\tLutra lutra\r\n2\tAdder\tVipera berus\r\n", "yes");
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 0), ElementsAre("No.", "1", "2", "3", "4"));
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 1),
                ElementsAre("Common Name", "Species 1", "Species 2", "Otter", "Adder"));
    EXPECT_EQ(global.TotalSpecies, 4);
}

TEST_F(GridImport, AHeadingThatIsNotDeclaredBecomesAnEntry) {
    import("No.\tCommon Name\tScientific Name\r\n1\tOtter\tLutra lutra\r\n", "no");
    EXPECT_THAT(rowOf(form.flxCandidateSpecies, 1), ElementsAre("1", "Common Name", "Scientific Name"));
    EXPECT_THAT(rowOf(form.flxCandidateSpecies, 2), ElementsAre("2", "Otter", "Lutra lutra"));
    openList(Habitats);
    import("No.\tHabitat Name\tArea\tLevel of Use\r\n", "no");
    EXPECT_THAT(rowOf(form.flxHabitatTypes, 1), ElementsAre("1", "Habitat Name", "Area", "Level of Use"));
}

TEST_F(GridImport, ADeclaredHeadingIsDroppedWhateverItHolds) {
    import("Heron\r\nOtter\r\n", "yes");
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 1), ElementsAre("Common Name", "Otter"));
    import("Heron\r\n", "yes");
    EXPECT_EQ(global.TotalSpecies, 1);
}

TEST_F(GridImport, AnEmptyLineEndsItAndTheLinesBeforeStay) {
    for (const char* heading : {"no", "yes"}) {
        import("Heron\r\nOtter\r\n\r\nAdder\r\n", heading);
        EXPECT_FALSE(files.IsOpen(1));
    }
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 1), ElementsAre("Common Name", "Heron", "Otter", "Otter"));
    EXPECT_EQ(global.TotalSpecies, 3);
}

TEST_F(GridImport, AnEmptyHeadingOrAnEmptyFileBringsNothing) {
    import("\r\nOtter\r\n", "yes");
    EXPECT_FALSE(files.IsOpen(1));
    import("\r\nOtter\r\n", "no");
    import("", "yes");
    import("", "no");
    EXPECT_EQ(form.flxCandidateSpecies.Rows(), 1);
    EXPECT_EQ(global.TotalSpecies, 0);
    EXPECT_FALSE(files.IsOpen(1));
}

TEST_F(GridImport, ALineOfBlanksIsNotEmpty) {
    import(" \r\nOtter\r\n");
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 1), ElementsAre("Common Name", " ", "Otter"));
}

TEST_F(GridImport, ReadsEveryKindOfLineEnd) {
    import("Heron\r\nOtter\nAdder\rStork");
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 1),
                ElementsAre("Common Name", "Heron", "Otter", "Adder", "Stork"));
}

TEST_F(GridImport, ReadsWhatTheExportWrites) {
    open(ProjectText(1, 2, 1, 1)
             .set("Habitat Type", "Bog,Fen")
             .set("Habitat Area", "12.5,")
             .set("Habitat UseLevel", "3,1"));
    openList(Habitats);
    platform.Files.assign(1, path_);
    form.mnuExportData.UserClick();
    import(readFile(path_), "yes");
    EXPECT_THAT(columnOf(form.flxHabitatTypes, 0), ElementsAre("No.", "1", "2", "3", "4"));
    EXPECT_THAT(rowOf(form.flxHabitatTypes, 3), ElementsAre("3", "Bog", "12.5", "3"));
    EXPECT_THAT(rowOf(form.flxHabitatTypes, 4), ElementsAre("4", "Fen", "", "1"));
}

TEST_F(GridImport, ASpeciesReachesEveryTableAndTheOthersKeepTheirData) {
    open(ProjectText(1, 2, 1, 1).set("HeteroHabitat Population", "3,2").set("Common Name", "Otter"));
    const std::string longName = "A heron of more than twenty characters";
    import(longName + "\tArdea cinerea\r\n");
    EXPECT_THAT(columnOf(table(2), 0), ElementsAre("Common Name", "Otter", "", "A heron of more than", ""));
    EXPECT_THAT(columnOf(table(2), 1),
                ElementsAre("Habitat Name", "Habitat 1", "Habitat 2", "Habitat 1", "Habitat 2"));
    EXPECT_THAT(columnOf(table(2), 2), ElementsAre("Level of Use", "3", "2", "", ""));
    for (const int member : {4, 5, 8, 9, 10}) EXPECT_EQ(table(member).TextMatrix(2, 0), longName) << member;
    EXPECT_THAT(tableRow(4, 1), ElementsAre("Otter", "Y", "Y", "10", "0.5"));
    EXPECT_THAT(tableRow(6, 2), ElementsAre(longName, "Activity 1", "1", "1", "", "", ""));
    EXPECT_THAT(tableRow(7, 2), ElementsAre("", longName, "", "", ""));
    for (ui::Grid& grid : form.flxScores) EXPECT_EQ(grid.TextMatrix(2, 0), longName) << grid.Name();
    for (ui::Grid& grid : form.flxScoresSort) EXPECT_EQ(grid.TextMatrix(2, 0), longName) << grid.Name();
    goTo(2);
    EXPECT_EQ(form.cbxSpeciesName.ListCount(), 2);
}

TEST_F(GridImport, AUnitReachesTheEntryPageAndItsTables) {
    open(ProjectText(2, 1, 1, 1).set("HeteroHabitat Population", "3,2"));
    openList(Habitats);
    import("Fen\t10\t2\r\n");
    EXPECT_THAT(columnOf(form.flxHabitatHetero, 0), ElementsAre("Habitat Name", "Habitat 1", "Fen"));
    EXPECT_THAT(columnOf(table(2), 1), ElementsAre("Habitat Name", "Habitat 1", "Fen", "Habitat 1", "Fen"));
    EXPECT_THAT(columnOf(table(2), 2), ElementsAre("Level of Use", "3", "", "2", ""));
    EXPECT_THAT(tableRow(0, 0), ElementsAre("Common Name", "1", "2"));
    openList(Activities);
    import("Dams\t2\t0.5\r\n");
    EXPECT_EQ(form.flxLandUsesVulnerability.TextMatrix(2, 0), "Dams");
    EXPECT_THAT(columnOf(table(6), 1),
                ElementsAre("Human Activity", "Activity 1", "Dams", "Activity 1", "Dams"));
    EXPECT_THAT(columnOf(table(6), 4), ElementsAre("Severity", "1", "", "1", ""));
    EXPECT_THAT(columnOf(table(7), 0), ElementsAre("Human Activity", "Activity 1", "", "Dams", ""));
}

TEST_F(GridImport, AnImportedProjectCanBeGradedSavedAndOpenedAgain) {
    import("Otter\r\nAdder\r\n");
    openList(Habitats);
    import("Bog\t10\t2\r\nFen\t20\t1\r\n");
    openList(Zones);
    import("North\t10\t2\r\n");
    openList(Activities);
    import("Roads\t3\t1\r\n");
    goTo(3);
    ASSERT_TRUE(form.flxHabitatHetero.UserEditCell(2, 1, "3"));
    const std::string saved = save();
    platform.Answers.assign(1, "no");
    openText(saved);
    EXPECT_THAT(columnOf(form.flxHabitatTypes, 2), ElementsAre("Area", "10", "20"));
    EXPECT_THAT(columnOf(table(2), 2), ElementsAre("Level of Use", "", "3", "", ""));
    EXPECT_EQ(save(), saved);
}

TEST_F(GridImport, CannotImportOnTheLaterPages) {
    open(ProjectText(1, 1, 1, 1));
    for (int page = 3; page <= 7; ++page) {
        goTo(page);
        import("Otter\r\n");
        ASSERT_EQ(platform.Transcript.size(), 1U) << page << ": no question, no input box";
        EXPECT_EQ(lastBox().BoxKind, ShownBox::Kind::Message);
        EXPECT_EQ(lastBox().Text, "Cannot import data into current grid.");
        EXPECT_EQ(lastBox().Title, "Grid error");
        EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Exclamation);
        EXPECT_THAT(platform.FileDialogs, IsEmpty()) << page;
    }
    EXPECT_EQ(global.TotalSpecies, 1);
}

TEST_F(GridImport, SaysNothingWhereTheHomeRangesHaveNoBreakpoints) {
    for (const char* type : {"continuous", "default bins"}) {
        openText(ProjectText(0, 0, 0, 0).set("Home-range definition", type).text());
        openList(Bins);
        import("5\r\n");
        EXPECT_THAT(platform.Transcript, IsEmpty()) << type;
        EXPECT_THAT(platform.FileDialogs, IsEmpty()) << type;
        EXPECT_EQ(form.flxBins.Rows(), 1) << type;
    }
}

TEST_F(GridImport, CancelAsksNothingAndChangesNothing) {
    addSpecies({"Otter"});
    form.cdgFileDialog.InitDir = "/program";
    form.ProjectChanged = false;
    platform.Transcript.clear();
    platform.Files.clear();
    EXPECT_NO_THROW(form.mnuImportData.UserClick());
    EXPECT_THAT(platform.Transcript, IsEmpty());
    EXPECT_EQ(form.flxCandidateSpecies.Rows(), 2);
    EXPECT_FALSE(form.ProjectChanged);
    EXPECT_EQ(form.cdgFileDialog.InitDir, "/program");
}

TEST_F(GridImport, AnUnreadableFileEndsTheProgramWithTheReport) {
    EXPECT_EQ(failureOfImport(folder.file("missing.txt")),
              reportOf("Brenica.ImportData", 53, "File not found"));
    EXPECT_EQ(lastBox().Title, "Header Data") << "the question comes before the file is opened";
    EXPECT_EQ(failureOfImport(folder.file("missing/list.txt")),
              reportOf("Brenica.ImportData", 76, "Path not found"));
    EXPECT_EQ(failureOfImport(""), reportOf("Brenica.ImportData", 75, "Path/File access error"));
    EXPECT_EQ(global.TotalSpecies, 0);
    EXPECT_FALSE(files.IsOpen(1));
}

TEST_F(GridImport, ALineThatCannotBeReadEndsTheProgramAndClosesTheFile) {
    writeFile(path_, "Heron\r\nOtter\r\nAdder\r\n");
    int reads = 0;
    files.BeforeOperation = [&](ui::Files::Operation operation) {
        if (operation == ui::Files::Operation::Read && ++reads == 3)
            ui::raise(ui::ErrorNumber::DeviceIoError);
    };
    EXPECT_EQ(failureOfImport(path_), reportOf("Brenica.GetCheckData", 57, "Device I/O error"));
    EXPECT_FALSE(files.IsOpen(1));
    EXPECT_EQ(form.flxCandidateSpecies.Rows(), 3) << "the lines before stay";
}

TEST_F(GridImport, AFileThatCannotBeClosedIsReportedByWhoeverClosesIt) {
    files.BeforeOperation = [](ui::Files::Operation operation) {
        if (operation == ui::Files::Operation::Close) ui::raise(ui::ErrorNumber::DeviceIoError);
    };
    writeFile(path_, "Heron\r\n");
    EXPECT_EQ(failureOfImport(path_), reportOf("Brenica.ImportData", 57, "Device I/O error"));
}

TEST_F(GridImport, AFileThatABrokenProjectLeftOpenIsReportedAndClosed) {
    openText(ProjectText(1, 1, 1, 1).set("Functionx", "1").text());
    ASSERT_TRUE(files.IsOpen(1));
    writeFile(path_, "Heron\r\n");
    EXPECT_EQ(failureOfImport(path_), reportOf("Brenica.ImportData", 55, "File already open"));
    EXPECT_FALSE(files.IsOpen(1));
}

/// What the export command asks where a view holds two tables, beyond the plain answers.
class ExportChoice : public ScoringTest {
protected:
    std::string proposedFor(const std::string& answer) {
        platform.Transcript.clear();
        platform.FileDialogs.clear();
        platform.Answers.assign(1, answer);
        platform.Files.assign(1, folder.file("table.txt"));
        form.mnuExportData.UserClick();
        return platform.FileDialogs.empty() ? "" : platform.FileDialogs[0].FileName;
    }
};

TEST_F(ExportChoice, TakesOneAndTwoWithBlanksAround) {
    openAt(ProjectText(1, 1, 1, 1), 4);
    for (const int tab : {1, 2}) {
        form.tabCriteriaSummary.UserSelectTab(tab);
        const std::string kind = tab == 1 ? "Summary" : "DetailedSummary";
        EXPECT_EQ(proposedFor(" 1 "), "HabitatHeterogeneity" + kind);
        EXPECT_EQ(platform.Transcript.size(), 1U);
        EXPECT_EQ(proposedFor("  2"), "ManagZonesHeterogeneity" + kind);
        EXPECT_EQ(platform.Transcript.size(), 1U);
    }
}

TEST_F(ExportChoice, AnyOtherAnswerTakesTheFirstTableAfterAMessage) {
    openAt(ProjectText(1, 1, 1, 1), 4);
    form.tabCriteriaSummary.UserSelectTab(2);
    for (const char* answer : {"", " ", "0", "3", "12", "1.0", "2.0", "two"}) {
        EXPECT_EQ(proposedFor(answer), "HabitatHeterogeneityDetailedSummary") << answer;
        EXPECT_THAT(shownTitles(), ElementsAre("Brenica", "Invalid value")) << answer;
        EXPECT_EQ(lastBox().Text,
                  "The value entered was invalid. The habitat heterogeneity data will be saved by default.");
    }
    goTo(6);
    goTo(7);
    for (const char* answer : {"", "3", "x"}) {
        EXPECT_EQ(proposedFor(answer), "BrenicSuiteData") << answer;
        EXPECT_THAT(shownTitles(), ElementsAre("Brenica", "Invalid value")) << answer;
        EXPECT_EQ(lastBox().Text,
                  "The value entered was invalid. The brenic species suite data will be saved by default.");
    }
}

TEST_F(ExportChoice, ViewsOfOneTableAskNothing) {
    openAt(ProjectText(1, 1, 1, 1), 4);
    for (int tab = 3; tab <= 9; ++tab) {
        form.tabCriteriaSummary.UserSelectTab(tab);
        proposedFor("x");
        EXPECT_THAT(platform.Transcript, IsEmpty()) << tab;
    }
    goTo(6);
    proposedFor("x");
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(ExportChoice, TheLongNamesStandInTheFileOfTheirTableAlone) {
    openAt(ProjectText(1, 2, 1, 1).set("Habitat Type", "A habitat with a long name,Fen"), 4);
    EXPECT_EQ(proposedFor("1"), "HabitatHeterogeneitySummary");
    EXPECT_THAT(readFile(folder.file("table.txt")),
                testing::StartsWith("Common Name\tA habitat with a long name\tFen\t\t"));
    form.tabCriteriaSummary.UserSelectTab(2);
    proposedFor("1");
    EXPECT_THAT(readFile(folder.file("table.txt")),
                testing::StartsWith("Common Name\tHabitat Name\tLevel of Use\r\n"));
    EXPECT_EQ(table(0).TextMatrix(0, 1), "1");
}
