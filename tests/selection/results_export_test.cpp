// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <sstream>

#include "selection_test.h"

class ResultsExport : public SelectionTest {
protected:
    std::string exportResults() {
        const std::string path = folder.file("results.txt");
        platform.Files.push_back(path);
        form.cmdExportResults.UserClick();
        return readFile(path);
    }

    static std::string lines(const std::vector<std::string>& texts) {
        std::string joined;
        for (const std::string& text : texts) joined += text + "\r\n";
        return joined;
    }

    static const std::string AllCovered;
};

const std::string ResultsExport::AllCovered =
    "All habitat types, management zones and threats are covered by the current suite of brenic species.";

TEST_F(ResultsExport, WritesTheWholeReport) {
    openForSelection(oneCoversAll());
    select();
    EXPECT_EQ(exportResults(),
              lines({"Brenic Species by Rank with Aggregate Score:",
                     "1. Species 1  (5)",
                     "2. Species 2  (4.5)",
                     "",
                     "",
                     "5 % Error margin",
                     "0.5 Threat representation",
                     "1 Conservation status representation",
                     "",
                     "The Suite of Brenic Species:",
                     "1. Species 1",
                     "",
                     "",
                     "The complementarity data:",
                     "S = selected species",
                     "X = excluded species",
                     "M = margin of error species",
                     "\t\t\t\t\t\t\t\t\t\tAdditional",
                     "Species             \tRank\tScore\tHetero\tArea\tVuln\tFunc\tSE\tHabs\tMZones\tThreats",
                     "S Species 1                1\t5\t1\t1\t1\t1\t1\t2\t1\t1\t",
                     "  Species 2                2\t4.5\t0.5\t1\t1\t1\t1\t0\t0\t1\t",
                     "                           \t\t\t\t\t\t\t\t\t\t",
                     "",
                     "",
                     AllCovered}));
}

TEST_F(ResultsExport, BeginsWithTheExcludedSpecies) {
    openForSelection(oneHabitatEach().set("Conservation Status", "0.5,0.5,0.9"));
    type(form.txtCCSRep, "0.8");
    select();
    EXPECT_THAT(exportResults(),
                testing::StartsWith(lines(
                    {"The following species was excluded due to its high Current Conservation Status value:",
                     "Species 3", "", "Brenic Species by Rank with Aggregate Score:"})));
}

TEST_F(ResultsExport, CountsSeveralExcludedSpecies) {
    openForSelection(oneHabitatEach().set("Conservation Status", "0.5,0.9,0.9"));
    type(form.txtCCSRep, "0.8");
    select();
    EXPECT_THAT(
        exportResults(),
        testing::StartsWith(lines(
            {"The following 2 species was excluded due to their high Current Conservation Status value:",
             "Species 2; Species 3", "", "Brenic Species by Rank with Aggregate Score:"})));
}

TEST_F(ResultsExport, NamesWhatNoPickCoversWithACarriageReturnOfItsOwn) {
    openForSelection(oneHabitatEach()
                         .set("HeteroHabitat Population", "2,0,0,0,1,0,0,0,2")
                         .set("Habitat Type", "Bog,Fen,Moor")
                         .set("HeteroJU Individual", "1,0,0")
                         .set("VulnerabilitybySpecies Severity", "0,0,3")
                         .set("Conservation Status", "0.5,0.9,0.9"));
    type(form.txtCCSRep, "0.8");
    select();
    EXPECT_THAT(
        exportResults(),
        testing::EndsWith("\r\n\r\n\r\n"
                          "The following are not covered by the current suite of brenic species:\r\r\n"
                          "Habitat types: Fen, Moor\r\n"
                          "Management Zones: Zone 1\r\n"
                          "Threats: Activity 1\r\n"));
}

TEST_F(ResultsExport, LeavesOutTheListsThatAreCovered) {
    openForSelection(oneHabitatEach()
                         .set("HeteroHabitat Population", "2,0,0,0,3,0,0,0,1")
                         .set("Conservation Status", "0.5,0.5,0.9"));
    type(form.txtCCSRep, "0.8");
    select();
    EXPECT_THAT(
        exportResults(),
        testing::EndsWith("The following are not covered by the current suite of brenic species:\r\r\n"
                          "Habitat types: Habitat 3\r\n"));
}

TEST_F(ResultsExport, MarksPickedOmittedAndMarginRows) {
    openForSelection(leaderAddsNothing());
    type(form.txtErrorMargin, "100");
    select({"a", "x", "a"});
    std::istringstream content(exportResults());
    std::vector<std::string> marks;
    bool data = false;
    for (std::string line; std::getline(content, line);) {
        if (data) marks.push_back(line.substr(0, 11));
        if (line.starts_with("Species             ")) data = true;
    }
    marks.resize(std::min<std::size_t>(marks.size(), 12));
    EXPECT_THAT(marks, testing::ElementsAre("S Species 1", "M Species 2", "M Species 3", "M Species 4",
                                            "           ", "X Species 2", "M Species 3", "M Species 4",
                                            "           ", "S Species 3", "  Species 4", "           "));
}

TEST_F(ResultsExport, FillsMarkAndNameUpTo27Characters) {
    // 24, 25 and 26 characters, the last with letters of several bytes.
    openForSelection(oneHabitatEach().set(
        "Common Name", "abcdefghijklmnopqrstuvwx,abcdefghijklmnopqrstuvwxy,äöüdefghijklmnopqrstuvwxyz"));
    select();
    const std::string content = exportResults();
    EXPECT_THAT(content, testing::HasSubstr("\r\nS abcdefghijklmnopqrstuvwx 1\t5\t"));
    EXPECT_THAT(content, testing::HasSubstr("\r\n  abcdefghijklmnopqrstuvwxy2\t4.2\t"));
    EXPECT_THAT(content, testing::HasSubstr("\r\n  äöüdefghijklmnopqrstuvwxy3\t3.867\t"));
    EXPECT_THAT(content, testing::HasSubstr("\r\n3. äöüdefghijklmnopqrstuvwxyz  (3.867)\r\n"));
}

TEST_F(ResultsExport, WritesLevelsInTheirShortestForm) {
    openForSelection(oneCoversAll());
    type(form.txtErrorMargin, "2.50");
    type(form.txtThreatRep, "0.750");
    type(form.txtCCSRep, "0.80");
    select();
    EXPECT_THAT(exportResults(), testing::HasSubstr("\r\n2.5 % Error margin\r\n0.75 Threat representation\r\n"
                                                    "0.8 Conservation status representation\r\n"));
}

TEST_F(ResultsExport, TakesTheSuiteRowThatIsEmptyWhenNothingWasPicked) {
    openForSelection(bestCoversNothing().set("Conservation Status", "0.5,0.9,0.9"));
    type(form.txtCCSRep, "0.8");
    select();
    ASSERT_EQ(lastBox().Title, "Selection Report");
    EXPECT_THAT(exportResults(), testing::HasSubstr("The Suite of Brenic Species:\r\n1. \r\n\r\n\r\n"));
}

TEST_F(ResultsExport, ProposesItsOwnNameInTheSaveDialogue) {
    openForSelection(oneCoversAll());
    select();
    exportResults();
    const ui::FileDialogRequest& request = platform.FileDialogs.back();
    EXPECT_EQ(request.Kind, ui::FileDialogKind::Save);
    EXPECT_EQ(request.FileName, "ResultsData.txt");
    EXPECT_EQ(request.Filter, "Text Files (*.txt)|*.txt");
}

TEST_F(ResultsExport, ReplacesAnExistingFile) {
    openForSelection(oneCoversAll());
    select();
    const std::string first = exportResults();
    writeFile(folder.file("results.txt"), std::string(100000, 'x'));
    EXPECT_EQ(exportResults(), first);
}

TEST_F(ResultsExport, IsEnabledByARunOnly) {
    openForSelection(oneCoversAll());
    form.cmdExportResults.UserClick();
    EXPECT_EQ(platform.FileDialogs.size(), 1U);  // that of the project
    select();
    EXPECT_TRUE(form.cmdExportResults.Enabled());
    goTo(6);
    goTo(7);
    EXPECT_FALSE(form.cmdExportResults.Enabled());
}

TEST_F(ResultsExport, CancelEndsItSilently) {
    openForSelection(oneCoversAll());
    select();
    platform.Transcript.clear();
    form.cmdExportResults.UserClick();
    EXPECT_EQ(platform.FileDialogs.size(), 2U);
    EXPECT_THAT(platform.Transcript, testing::IsEmpty());
    EXPECT_FALSE(files.IsOpen(1));
}

TEST_F(ResultsExport, AFileThatCannotBeOpenedEndsItSilently) {
    openForSelection(oneCoversAll());
    select();
    platform.Transcript.clear();
    platform.Files.push_back(folder.file("missing/results.txt"));
    EXPECT_NO_THROW(form.cmdExportResults.UserClick());
    EXPECT_THAT(platform.Transcript, testing::IsEmpty());
    ASSERT_TRUE(files.LastFault());
    EXPECT_EQ(files.LastFault()->Error.Number, 76);
}

TEST_F(ResultsExport, AFailedWriteLeavesTheFileOpenSoThatTheNextExportFailsToo) {
    openForSelection(oneCoversAll());
    select();
    int writes = 0;
    files.BeforeOperation = [&](ui::Files::Operation operation) {
        if (operation == ui::Files::Operation::Write && ++writes == 3) ui::raise(ui::ErrorNumber::DiskFull);
    };
    platform.Files.push_back(folder.file("results.txt"));
    EXPECT_NO_THROW(form.cmdExportResults.UserClick());
    EXPECT_TRUE(files.IsOpen(1));
    files.BeforeOperation = nullptr;
    platform.Files.push_back(folder.file("other.txt"));
    EXPECT_NO_THROW(form.cmdExportResults.UserClick());
    EXPECT_FALSE(std::filesystem::exists(folder.file("other.txt")));
}

TEST_F(ResultsExport, RanksComeFromTheFirstScoresWhateverTheOrderOfPicks) {
    openForSelection(bestCoversNothing().set("Common Name", "Otter,Badger,Adder"));
    select();
    const std::string content = exportResults();
    EXPECT_THAT(content,
                testing::StartsWith("Brenic Species by Rank with Aggregate Score:\r\n1. Otter  (3.7)\r\n"
                                    "2. Badger  (3)\r\n3. Adder  (1.7)\r\n"));
    EXPECT_THAT(content, testing::HasSubstr("The Suite of Brenic Species:\r\n1. Badger\r\n"));
}
