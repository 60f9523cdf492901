// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch_test.h"

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class BatchRunExit : public BatchTest {};

TEST_F(BatchRunExit, AProjectThatCannotBeShownWholeIsNamedWithoutALine) {
    EXPECT_EQ(run(ProjectText(1, 1, 1, 1).set("Data Quality1", "x")), ExitUnreadableProject);
    EXPECT_THAT(err.str(), StartsWith("brenica-batch: " + projectPath() + ": "));
    EXPECT_THAT(err.str(), HasSubstr("Type mismatch"));
}

TEST_F(BatchRunExit, DonePrintsTheSuiteAndWhatStaysUncovered) {
    EXPECT_EQ(run(oneCoversAll()), ExitDone);
    EXPECT_EQ(
        out.str(),
        std::string("No.\tCommon Name\tHabitat Types\tManag. Zones\tThreats\n1\tSpecies 1\t2\t1\t1\n\n") +
            AllCovered + "\n");
    EXPECT_EQ(err.str(), std::string("Selection Report: ") + AllCovered + "\n");
}

TEST_F(BatchRunExit, DoneNamesTheUncoveredUnitsOnLinesOfTheirOwn) {
    options.ConservationStatus = "0.8";
    EXPECT_EQ(run(failing().set("Conservation Status", "0.5,0.9")), ExitDone);
    EXPECT_THAT(out.str(),
                EndsWith("\n\nThe following are not covered by the current suite of brenic species:\n"
                         "Habitat types: Habitat 2\n"));
    EXPECT_THAT(err.str(),
                StartsWith("Excluded species: The following species was excluded due to its high Current "
                           "Conservation Status value:\n  Species 2\nSelection Report: "));
}

TEST_F(BatchRunExit, LevelsThatAreNoNumberOrOutOfBoundsAreWrongUsage) {
    struct Case {
        std::optional<std::string> BatchOptions::*Level;
        const char* Text;
        const char* Fault;
    };
    const Case cases[] = {
        {&BatchOptions::ErrorMargin, "101", "--error-margin: '101' is no number from 0 to 100"},
        {&BatchOptions::ErrorMargin, "-1", "--error-margin: '-1' is no number from 0 to 100"},
        {&BatchOptions::ErrorMargin, "", "--error-margin: '' is no number from 0 to 100"},
        {&BatchOptions::ThreatRepresentation, "1.01",
         "--threat-representation: '1.01' is no number from 0 to 1"},
        {&BatchOptions::ThreatRepresentation, "half",
         "--threat-representation: 'half' is no number from 0 to 1"},
        {&BatchOptions::ConservationStatus, "2", "--conservation-status: '2' is no number from 0 to 1"},
        {&BatchOptions::ThreatRepresentation, "0,5",
         "--threat-representation: '0,5' is no number from 0 to 1"},
        {&BatchOptions::ErrorMargin, "1,0", "--error-margin: '1,0' is no number from 0 to 100"},
        {&BatchOptions::ConservationStatus, "nan", "--conservation-status: 'nan' is no number from 0 to 1"}};
    for (const Case& c : cases) {
        options = {};
        options.*c.Level = c.Text;
        options.Results = folder.file("results.txt");
        err.str("");
        EXPECT_EQ(run(oneCoversAll()), ExitWrongUsage);
        EXPECT_EQ(err.str(), std::string("brenica-batch: ") + c.Fault + "\n");
        EXPECT_EQ(out.str(), "");
        EXPECT_THAT(namesIn(folder.path()), ElementsAre("project.brn"));
    }
}

TEST_F(BatchRunExit, LevelsAtTheirBoundsAreTaken) {
    options.ErrorMargin = "100";
    options.ThreatRepresentation = "1";
    options.ConservationStatus = "1";
    EXPECT_EQ(run(withQuestion()), ExitDone);
    options.ErrorMargin = "0";
    options.ThreatRepresentation = "0";
    options.ConservationStatus = "0";
    EXPECT_EQ(run(withQuestion().set("Conservation Status", "0,0")), ExitDone);
}

TEST_F(BatchRunExit, AnOutputThatCannotBeWrittenIsWrongUsageBeforeTheRun) {
    options.Results = folder.file("missing/results.txt");
    EXPECT_EQ(run(oneCoversAll()), ExitWrongUsage);
    EXPECT_THAT(err.str(), StartsWith("brenica-batch: " + folder.file("missing/results.txt") +
                                      ": cannot be written: No such file or directory\n"));
    EXPECT_EQ(out.str(), "");

    options = {};
    err.str("");
    options.Messages = folder.path();
    EXPECT_EQ(run(oneCoversAll()), ExitWrongUsage);
    EXPECT_EQ(err.str(), "brenica-batch: " + folder.path() + ": cannot be written: Is a directory\n");

    options = {};
    err.str("");
    options.Tables = projectPath();
    EXPECT_EQ(run(oneCoversAll()), ExitWrongUsage);
    EXPECT_EQ(err.str(), "brenica-batch: " + projectPath() + ": cannot be made a folder: Not a directory\n");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("project.brn"));
}

TEST_F(BatchRunExit, AProjectThatIsMissingIsNamed) {
    options.Project = folder.file("missing.brn");
    EXPECT_EQ(runBatch(options, out, err), ExitUnreadableProject);
    EXPECT_EQ(err.str(), "brenica-batch: " + folder.file("missing.brn") + ": File not found\n");
    EXPECT_EQ(out.str(), "");
}

TEST_F(BatchRunExit, AFolderIsNoProject) {
    options.Project = folder.path();
    EXPECT_EQ(runBatch(options, out, err), ExitUnreadableProject);
    EXPECT_EQ(err.str(), "brenica-batch: " + folder.path() + ": Path/File access error\n");
}

TEST_F(BatchRunExit, AnUnreadableProjectIsNamedWithLineAndFault) {
    options.Results = folder.file("results.txt");
    options.Tables = folder.file("tables");
    EXPECT_EQ(run(std::string("Project Version = VERSION2\r\nCommon Name = Otter\r\n\r\nFunctionx = 1\r\n")),
              ExitUnreadableProject);
    EXPECT_THAT(err.str(), StartsWith("brenica-batch: " + projectPath() + ":4: "));
    EXPECT_THAT(err.str(), HasSubstr("Type mismatch"));
    const std::string said = err.str();
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
    EXPECT_EQ(out.str(), "");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("project.brn", "tables"));
    EXPECT_THAT(namesIn(folder.file("tables")), testing::IsEmpty());
}

TEST_F(BatchRunExit, AnUnreadableProjectLeavesAnEmptyListOfMessages) {
    options.Messages = folder.file("messages.json");
    EXPECT_EQ(run(std::string("Project Version = VERSION2\r\nFunctionx = 1\r\n")), ExitUnreadableProject);
    EXPECT_EQ(readFile(folder.file("messages.json")), "");
}

TEST_F(BatchRunExit, AGateThatSaysNoEndsTheWalk) {
    options.Answers = {"no"};
    options.Results = folder.file("results.txt");
    EXPECT_EQ(run(oneCoversAll().set("Common Name", "Otter, ")), ExitNothingToScore);
    EXPECT_THAT(err.str(),
                StartsWith("Invalid value: Select 'Yes' to delete those rows with blank species common "
                           "names or 'No' to enter a value into each row with missing names before "
                           "proceeding.\n  > no\n"));
    EXPECT_THAT(err.str(), EndsWith("brenica-batch: page 1 may not be left before its rows are complete\n"));
    EXPECT_EQ(out.str(), "");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("project.brn"));
}

TEST_F(BatchRunExit, AGapInTheGradesIsToldByTheFormsMessage) {
    EXPECT_EQ(run(oneCoversAll().set("Home ranges", "5,")), ExitNothingToScore);
    EXPECT_EQ(err.str(), "Invalid value: Enter a home range value for each species before proceeding.\n");
}

TEST_F(BatchRunExit, AnEmptyListIsNamed) {
    EXPECT_EQ(run(ProjectText(1, 0, 1, 0)), ExitNothingToScore);
    EXPECT_EQ(err.str(),
              "brenica-batch: nothing to score: the project has no habitat types\n"
              "brenica-batch: nothing to score: the project has no human activities\n");
    err.str("");
    EXPECT_EQ(run(ProjectText(0, 1, 0, 1)), ExitNothingToScore);
    EXPECT_EQ(err.str(),
              "brenica-batch: nothing to score: the project has no candidate species\n"
              "brenica-batch: nothing to score: the project has no management zones\n");
}

TEST_F(BatchRunExit, AFileWithoutALineThatEndsInCarriageReturnIsNoProject) {
    std::string text = oneCoversAll().text();
    std::erase(text, '\r');
    for (const std::string& unreadable : {text, std::string(), std::string("Project Version = VERSION2")}) {
        err.str("");
        EXPECT_EQ(run(unreadable), ExitUnreadableProject);
        EXPECT_THAT(err.str(), EndsWith("brenica-batch: " + projectPath() +
                                        ": no line ends in CR, as those of a project do\n"));
    }
}

TEST_F(BatchRunExit, OneLineThatEndsInCarriageReturnIsAProjectWithNothingToScore) {
    EXPECT_EQ(run(std::string("\r\n")), ExitNothingToScore);
    EXPECT_THAT(err.str(), StartsWith("Version 1 poject file: "));
}

TEST_F(BatchRunExit, AnUnexpectedErrorShowsItsReportAndTheSuiteSoFar) {
    options.Results = folder.file("results.txt");
    EXPECT_EQ(run(failing()), ExitUnexpectedError);
    EXPECT_THAT(err.str(), StartsWith("Species Omitted: Species 2 has been removed"));
    EXPECT_THAT(err.str(), EndsWith("\n" + report("BrenicaUtilities.cmdComplement_Click")));
    EXPECT_EQ(out.str(), "No.\tCommon Name\tHabitat Types\tManag. Zones\tThreats\n1\tSpecies 1\t1\t1\t1\n");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("project.brn"));
}

TEST_F(BatchRunExit, AnErrorOnTheWalkIsUnexpectedToo) {
    EXPECT_EQ(run(oneCoversAll().set("HeteroHabitat Population", "2,2,1,x")), ExitUnexpectedError);
    EXPECT_EQ(err.str(), report("Brenica.CalculateHabitatUse"));
}

class BatchRunOptions : public BatchTest {};

TEST_F(BatchRunOptions, LevelsReachTheSelectionAndTheResultsFile) {
    options.ErrorMargin = "2.5";
    options.ThreatRepresentation = "0.25";
    options.ConservationStatus = "0.8";
    options.Results = folder.file("results.txt");
    EXPECT_EQ(run(oneCoversAll()), ExitDone);
    const std::string results = readFile(folder.file("results.txt"));
    EXPECT_THAT(results, StartsWith("Brenic Species by Rank with Aggregate Score:\r\n1. Species 1  (5)\r\n"));
    EXPECT_THAT(results, HasSubstr("\r\n2.5 % Error margin\r\n0.25 Threat representation\r\n"
                                   "0.8 Conservation status representation\r\n"));
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("project.brn", "results.txt"));
}

TEST_F(BatchRunOptions, AnswersAreTakenInOrderAndThenTheDefaults) {
    options.Answers = {"e", "2"};
    EXPECT_EQ(run(withQuestion()), ExitDone);
    EXPECT_THAT(out.str(), HasSubstr("\n1\tSpecies 2\t"));
    options.Answers = {"e"};
    out.str("");
    EXPECT_EQ(run(withQuestion()), ExitDone);
    EXPECT_THAT(out.str(), HasSubstr("\n1\tSpecies 1\t"));
}

TEST_F(BatchRunOptions, AnEmptyAnswerIsAnAnswer) {
    options.Answers = {""};
    EXPECT_EQ(run(withQuestion()), ExitDone);
    EXPECT_THAT(err.str(),
                HasSubstr("\n  > \nInvalid value: The option entered was invalid. The first species will "
                          "be added to the suite.\n"));
}

TEST_F(BatchRunOptions, AQuestionIsAnsweredYesByDefault) {
    EXPECT_EQ(run(oneCoversAll()
                      .set("Common Name", "Otter,,Adder")
                      .set("HeteroHabitat Population", "2,2,1,1,1,1")
                      .set("HeteroJU Individual", "2,1,1")
                      .set("Home ranges", "5,5,5")),
              ExitNothingToScore);
    EXPECT_THAT(err.str(), HasSubstr("\n  > yes\n"));
}

TEST_F(BatchRunOptions, MessagesAreJsonLinesWithTheirKeysInOrder) {
    options.Answers = {"x"};
    options.Messages = folder.file("messages.json");
    EXPECT_EQ(run(withQuestion().set("Common Name", "\"Ñandú\",Back\\slash")), ExitDone);
    std::istringstream lines(readFile(folder.file("messages.json")));
    std::vector<std::string> messages;
    for (std::string line; std::getline(lines, line);) messages.push_back(line);
    ASSERT_EQ(messages.size(), 3U);
    EXPECT_THAT(
        messages[0],
        StartsWith(R"({"kind":"input","title":"Species with aggregate score within the set margin of error",)"
                   R"("text":"To select between \r{\"Ñandú\"; Back\\slash}\ruse either)"));
    EXPECT_THAT(messages[0], EndsWith(R"( additional threats\r","answer":"x"})"));
    EXPECT_EQ(
        messages[1],
        R"({"kind":"message","title":"Invalid value","text":"The option entered was invalid. The first species )"
        R"(will be added to the suite."})");
    EXPECT_EQ(messages[2],
              R"({"kind":"message","title":"Selection Report","text":")" + std::string(AllCovered) + R"("})");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("messages.json", "project.brn"));
}

TEST_F(BatchRunOptions, AQuestionIsAMessageOfItsOwnKind) {
    options.Answers = {"NO"};
    options.Messages = folder.file("messages.json");
    EXPECT_EQ(run(oneCoversAll().set("Common Name", "Otter, ")), ExitNothingToScore);
    EXPECT_EQ(
        readFile(folder.file("messages.json")),
        "{\"kind\":\"question\",\"title\":\"Invalid value\",\"text\":\"Select 'Yes' to delete those rows with "
        "blank species common names or 'No' to enter a value into each row with missing names before "
        "proceeding.\",\"answer\":\"no\"}\n");
}

TEST_F(BatchRunOptions, AnAnswerThatIsNoUtf8StaysJson) {
    options.Answers = {"\xFF"};
    options.Messages = folder.file("messages.json");
    EXPECT_EQ(run(withQuestion()), ExitDone);
    EXPECT_THAT(readFile(folder.file("messages.json")), HasSubstr("\"answer\":\"\xEF\xBF\xBD\"}\n"));
}

TEST_F(BatchRunOptions, MessagesOfARunThatFailsAreWritten) {
    options.Messages = folder.file("messages.json");
    EXPECT_EQ(run(failing()), ExitUnexpectedError);
    EXPECT_THAT(readFile(folder.file("messages.json")),
                StartsWith(R"({"kind":"message","title":"Species Omitted","text":"Species 2 has been)"));
}

class BatchRunFiles : public BatchTest {
protected:
    static std::vector<std::string> tableNames(bool bins) {
        std::vector<std::string> names = {"AreaSummary.txt",
                                          "BrenicSuiteData.txt",
                                          "CandidateSpeciesData.txt",
                                          "DataQualitySummaryData.txt",
                                          "FunctionData.txt",
                                          "FunctionalitySummary.txt",
                                          "HabitatData.txt",
                                          "HabitatHeterogeneityDetailedSummary.txt",
                                          "HabitatHeterogeneitySummary.txt",
                                          "HabitatsCoveredData.txt",
                                          "HumanActivityData.txt",
                                          "JurisUnitsCoveredData.txt",
                                          "ManagZonesData.txt",
                                          "ManagZonesHeterogeneityDetailedSummary.txt",
                                          "ManagZonesHeterogeneitySummary.txt",
                                          "NormalizedScoresData.txt",
                                          "OriginalScoresData.txt",
                                          "OverallComplementarityData.txt",
                                          "SocioEconSummary.txt",
                                          "ThreatsCoveredData.txt",
                                          "VulnerabilityBySpeciesSummary.txt",
                                          "VulnerabilityByThreatSummary.txt",
                                          "VulnerabilitySummary.txt"};
        if (bins) names.insert(names.begin() + 1, "BinData.txt");
        return names;
    }
};

TEST_F(BatchRunFiles, EveryTableIsWritten) {
    options.Tables = folder.file("new/tables");
    EXPECT_EQ(run(oneCoversAll().set("Habitat Type", "Bog,Fen").set("Land Use", "Roads")), ExitDone);
    EXPECT_EQ(namesIn(*options.Tables), tableNames(false));
    EXPECT_EQ(
        readFile(*options.Tables + "/HabitatHeterogeneitySummary.txt"),
        "Common Name\tBog\tFen\t\tTotal by species\tNo. habitats\r\nSpecies 1\t2\t2\t\t4\t2\r\n"
        "Species 2\t1\t1\t\t2\t2\r\n\t\t\t\t\t\r\nTotal by habitat\t3\t3\t\t\t\r\nNo. species\t2\t2\t\t\t\r\n");
    EXPECT_THAT(
        readFile(*options.Tables + "/VulnerabilitySummary.txt"),
        StartsWith("Common Name\tCCS\t\tRoads\t\tTotal by species\tNo. threats\r\nSpecies 1\t0.5\t\t2\t"));
    EXPECT_EQ(readFile(*options.Tables + "/BrenicSuiteData.txt"),
              "No.\tCommon Name\tHabitat Types\tManag. Zones\tThreats\r\n1\tSpecies 1\t2\t1\t1\r\n");
}

TEST_F(BatchRunFiles, BreakpointsAreATableOfUserBinsOnly) {
    options.Tables = folder.file("tables");
    run(oneCoversAll()
            .set("Home-range definition", "user-defined bins,0,5")
            .set("Home ranges", "5+ km2,5+ km2"));
    EXPECT_EQ(namesIn(*options.Tables), tableNames(true));
    EXPECT_EQ(readFile(*options.Tables + "/BinData.txt"), "No.\tBreakpoint\r\n1\t0\r\n2\t5\r\n");
}

TEST_F(BatchRunFiles, TablesShowHowFarARunCame) {
    options.Tables = folder.file("nothing");
    EXPECT_EQ(run(ProjectText(1, 1, 1, 0)), ExitNothingToScore);
    EXPECT_EQ(namesIn(*options.Tables), tableNames(false));
    EXPECT_EQ(readFile(*options.Tables + "/BrenicSuiteData.txt"),
              "No.\tCommon Name\tHabitat Types\tManag. Zones\tThreats\r\n");
    options.Tables = folder.file("failed");
    EXPECT_EQ(run(failing()), ExitUnexpectedError);
    EXPECT_EQ(namesIn(*options.Tables), tableNames(false));
    EXPECT_THAT(readFile(*options.Tables + "/BrenicSuiteData.txt"),
                EndsWith("\r\n1\tSpecies 1\t1\t1\t1\r\n"));
    EXPECT_THAT(readFile(*options.Tables + "/OverallComplementarityData.txt"),
                HasSubstr("\r\nSpecies 2\t1\t"));
}

TEST_F(BatchRunFiles, ResultsOfARunThatFailsLeaveTheOldFile) {
    options.Results = folder.file("results.txt");
    writeFile(*options.Results, "old");
    EXPECT_EQ(run(failing()), ExitUnexpectedError);
    EXPECT_EQ(readFile(*options.Results), "old");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("project.brn", "results.txt"));
}

TEST_F(BatchRunFiles, ResultsReplaceAnOldFile) {
    options.Results = folder.file("results.txt");
    writeFile(*options.Results, std::string(100000, 'x'));
    EXPECT_EQ(run(oneCoversAll()), ExitDone);
    EXPECT_THAT(readFile(*options.Results), Not(HasSubstr("xx")));
}

TEST_F(BatchRunFiles, ATableThatCannotBeWrittenIsWrongUsageAndLeavesNoHalfFile) {
    options.Tables = folder.file("tables");
    std::filesystem::create_directories(*options.Tables + "/HabitatData.txt");
    EXPECT_EQ(run(oneCoversAll()), ExitWrongUsage);
    EXPECT_THAT(err.str(), EndsWith("brenica-batch: " + *options.Tables +
                                    "/HabitatData.txt: cannot be written: Is a directory\n"));
    for (const std::string& name : namesIn(*options.Tables)) EXPECT_THAT(name, EndsWith(".txt"));
}

TEST_F(BatchRunFiles, MessagesAreWrittenEvenIfATableCannotBe) {
    options.Tables = folder.file("tables");
    options.Messages = folder.file("messages.json");
    std::filesystem::create_directories(*options.Tables + "/HabitatData.txt");
    EXPECT_EQ(run(oneCoversAll()), ExitWrongUsage);
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("messages.json", "project.brn", "tables"));
}
