// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <nlohmann/json.hpp>

#include "batch/input_file.h"
#include "batch/verb.h"
#include "batch_test.h"

using testing::ElementsAre;
using testing::HasSubstr;

/// A verb without a process.
class Verbs : public BatchTest {
protected:
    int ask(const std::string& verb, const ProjectText& project, std::vector<std::string> arguments = {}) {
        writeFile(projectPath(), project.text());
        arguments.push_back(projectPath());
        std::vector<const char*> raw;
        for (const std::string& argument : arguments) raw.push_back(argument.c_str());
        return runVerb(*findVerb(verb), raw, out, err);
    }
    std::vector<std::string> lines() const {
        std::vector<std::string> found;
        std::istringstream text(out.str());
        for (std::string line; std::getline(text, line);) found.push_back(line);
        return found;
    }
};

constexpr const char* UnitHeading = "kind\tnumber\tunit\tstate\tspecies\tneeded\tbest\treason\tcovered_by";

TEST_F(Verbs, AreKnownByTheirNamesAlone) {
    EXPECT_NE(findVerb("units"), nullptr);
    EXPECT_EQ(findVerb("./units"), nullptr);
    EXPECT_EQ(findVerb("Units"), nullptr);
    EXPECT_EQ(findVerb(""), nullptr);
}

TEST_F(Verbs, UnitsTellWhoCoversEach) {
    EXPECT_EQ(ask("units", oneCoversAll()), ExitDone);
    EXPECT_THAT(lines(), ElementsAre(UnitHeading, "habitat\t1\tHabitat 1\tcovered\t1\t2\t2\t\t1",
                                     "habitat\t2\tHabitat 2\tcovered\t1\t2\t2\t\t1",
                                     "zone\t1\tZone 1\tcovered\t1\t2\t2\t\t1",
                                     "threat\t1\tActivity 1\tcovered\t2\t1\t2\t\t1"))
        << err.str();
}

TEST_F(Verbs, UnitsTellWhyOneCannotBeCovered) {
    ProjectText project = oneCoversAll();
    project.set("Habitat UseLevel", "2,3").set("HeteroHabitat Population", "2,2,1,3");
    project.set("Conservation Status", "0.2,0.9");
    ask("units", project, {"--conservation-status", "0.5"});
    EXPECT_EQ(lines()[2], "habitat\t2\tHabitat 2\tuncoverable\t0\t3\t2\texcluded: Species 2\t");
    out.str("");
    ask("units", project.set("HeteroHabitat Population", "2,2,1,1"), {"--conservation-status", "0.5"});
    EXPECT_EQ(lines()[2], "habitat\t2\tHabitat 2\tuncoverable\t0\t3\t2\tlevel\t");
}

TEST_F(Verbs, ExplainARunThatEndedInTheError) {
    EXPECT_EQ(ask("units", failing()), ExitDone);
    EXPECT_THAT(err.str(),
                HasSubstr("brenica-batch: the run ended in an error after 1 species: Type mismatch\n"));
    EXPECT_THAT(lines()[2], HasSubstr("\tuncoverable\t"));
}

TEST_F(Verbs, GiveNoTableWhereNothingWasSelected) {
    EXPECT_EQ(ask("units", oneCoversAll().set("Home ranges", "5,")), ExitNothingToScore);
    EXPECT_THAT(err.str(), HasSubstr("Enter"));
    EXPECT_EQ(ask("units", oneCoversAll().set("HeteroHabitat Population", "2,2,1,")), ExitUnexpectedError);
    EXPECT_THAT(err.str(), HasSubstr(report("BrenicaUtilities.GetHeteroScore")));
    EXPECT_EQ(out.str(), "");
}

TEST_F(Verbs, RefuseWhatTheyDoNotKnow) {
    EXPECT_EQ(ask("units", oneCoversAll(), {"--results", "r.txt"}), ExitWrongUsage);
    EXPECT_EQ(ask("units", oneCoversAll(), {"--error-margin", "101"}), ExitWrongUsage);
    EXPECT_THAT(err.str(), HasSubstr("--error-margin: '101' is no number from 0 to 100"));
    EXPECT_EQ(out.str(), "");
}

TEST_F(Verbs, TellTheirWords) {
    EXPECT_EQ(ask("units", oneCoversAll(), {"--help"}), ExitDone);
    EXPECT_THAT(out.str(), HasSubstr("  Coverable: some eligible species covers the unit."));
}

TEST_F(Verbs, SayTheSameInJson) {
    EXPECT_EQ(ask("units", failing(), {"--json", "--error-margin", "3"}), ExitDone);
    const auto object = nlohmann::json::parse(out.str());
    EXPECT_EQ(object["project"], projectPath());
    EXPECT_EQ(object["levels"]["margin"], 3);
    EXPECT_EQ(object["levels"]["threat_representation"], 0.5);
    EXPECT_EQ(object["levels"]["conservation_status"], 1);
    EXPECT_EQ(object["exit"], 4);
    ASSERT_EQ(object["rows"].size(), 4U);
    const auto& row = object["rows"][1];
    EXPECT_EQ(row["unit"], "Habitat 2");
    EXPECT_EQ(row["needed"], 2);
    EXPECT_EQ(row["reason"], "level");
    EXPECT_TRUE(row["covered_by"].is_null());
}

class SweepVerb : public Verbs {
protected:
    std::string counts(const std::string& name) const { return folder.file(name); }
    int sweep(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(),
                         {"--vary", "levels,answers,grades", "--runs", "30", "--error-margin", "7"});
        return ask("sweep", withQuestion(), arguments);
    }
    int merge(const std::vector<std::string>& files) {
        std::vector<const char*> raw;
        for (const std::string& file : files) raw.push_back(file.c_str());
        out.str("");
        err.str("");
        return runVerb(*findVerb("merge"), raw, out, err);
    }
    /// Both halves of a sweep, in `a` and `b`.
    void makeHalves() {
        ASSERT_EQ(sweep({"--shard", "1/2", "--counts", counts("a")}), ExitDone) << err.str();
        ASSERT_EQ(sweep({"--shard", "2/2", "--counts", counts("b")}), ExitDone) << err.str();
    }
};

TEST_F(SweepVerb, CountsEverySpeciesUnitAndEnd) {
    EXPECT_EQ(ask("sweep", oneCoversAll(), {"--vary", "levels", "--runs", "8"}), ExitDone);
    EXPECT_THAT(lines(), testing::Contains("species\t\t1\tSpecies 1\t8\t8\t1.0000\t0.6756\t1.0000"));
    EXPECT_THAT(lines(), testing::Contains("size\t\t\t1\t8\t8\t1.0000\t0.6756\t1.0000"));
}

TEST_F(SweepVerb, GivesTheSameForAnyNumberOfThreads) {
    ASSERT_EQ(sweep({"--threads", "1"}), ExitDone);
    const std::string one = out.str();
    out.str("");
    ASSERT_EQ(sweep({"--threads", "3"}), ExitDone);
    EXPECT_EQ(out.str(), one);
}

TEST_F(SweepVerb, IsPutTogetherFromShardsInAnyOrder) {
    makeHalves();
    out.str("");
    sweep({});
    const std::string whole = out.str();
    EXPECT_EQ(merge({counts("b"), counts("a")}), ExitDone);
    EXPECT_EQ(out.str(), whole);
    EXPECT_EQ(merge({"--json", counts("b"), counts("a")}), ExitDone);
    const nlohmann::json merged = nlohmann::json::parse(out.str());
    out.str("");
    sweep({"--json"});
    const nlohmann::json swept = nlohmann::json::parse(out.str());
    EXPECT_EQ(merged["levels"]["margin"], 7);
    EXPECT_EQ(merged["levels"], swept["levels"]);
    EXPECT_EQ(merged["rows"], swept["rows"]);
}

TEST_F(SweepVerb, NamesAShardThatDoesNotBelong) {
    makeHalves();
    EXPECT_EQ(merge({counts("b")}), ExitWrongUsage);
    EXPECT_EQ(err.str(), "brenica-batch: shard 1/2 is missing\n");
    EXPECT_EQ(merge({counts("a"), counts("b"), counts("a")}), ExitWrongUsage);
    EXPECT_THAT(err.str(), HasSubstr("shard 1/2 is there twice"));
    ASSERT_EQ(sweep({"--shard", "2/2", "--seed", "2", "--counts", counts("c")}), ExitDone);
    EXPECT_EQ(merge({counts("a"), counts("c")}), ExitWrongUsage);
    EXPECT_THAT(err.str(), HasSubstr(counts("c")));
    EXPECT_THAT(err.str(), HasSubstr("seed"));
    EXPECT_EQ(merge({counts("a"), counts("nothing")}), ExitUnreadableProject);
    EXPECT_THAT(err.str(), HasSubstr("nothing: cannot be read: No such file or directory"));
    EXPECT_EQ(out.str(), "");
}

TEST_F(SweepVerb, RefusesWhatItCannotDo) {
    const std::vector<std::vector<std::string>> wrong = {{"--shard", "0/2"},
                                                         {"--shard", "3/2"},
                                                         {"--shard", "2"},
                                                         {"--shard", "1/2x"},
                                                         {"--p", "1.1"},
                                                         {"--runs", "0"},
                                                         {"--threads", "0"},
                                                         {"--p", "nan"},
                                                         {"--seed", "-1"},
                                                         {"--counts", projectPath()},
                                                         {"--counts", "/nowhere/counts"}};
    for (const auto& arguments : wrong) {
        EXPECT_EQ(sweep(arguments), ExitWrongUsage) << arguments[0] << ' ' << arguments[1];
    }
    EXPECT_EQ(ask("sweep", withQuestion()), ExitWrongUsage) << "nothing is varied";
    EXPECT_EQ(ask("sweep", withQuestion(), {"--vary", "weather"}), ExitWrongUsage);
    EXPECT_EQ(out.str(), "");
}

TEST_F(SweepVerb, PrintsItsTableThoughTheCountsCannotBeWritten) {
    EXPECT_EQ(sweep({"--counts", "/dev/full"}), ExitWrongUsage);
    EXPECT_THAT(err.str(),
                HasSubstr("brenica-batch: /dev/full: cannot be written: No space left on device\n"));
    EXPECT_THAT(out.str(), testing::StartsWith("what\t"));
}

class VerifyVerb : public Verbs {
protected:
    std::string resultsOf(const ProjectText& project) {
        options.Results = folder.file("results.txt");
        EXPECT_EQ(run(project), ExitDone);
        out.str("");
        err.str("");
        return readFile(*options.Results);
    }
    int verify(const ProjectText& project, const std::string& results,
               std::vector<std::string> arguments = {}) {
        writeFile(folder.file("results.txt"), results);
        arguments.push_back(folder.file("results.txt"));
        return ask("verify", project, arguments);
    }
};

TEST_F(VerifyVerb, FindsThatAFileFollows) {
    EXPECT_EQ(verify(withQuestion(), resultsOf(withQuestion())), ExitDone);
    EXPECT_EQ(lines().front(), "check\texpected\tfound\tok");
    for (std::size_t i = 1; i < lines().size(); ++i) EXPECT_TRUE(lines()[i].ends_with("\tyes")) << lines()[i];
    EXPECT_EQ(err.str(), "") << "the run with the usual answers is not what is asked about";
}

TEST_F(VerifyVerb, NamesTheLineThatDoesNot) {
    std::string results = resultsOf(withQuestion());
    results.insert(results.find("Species 1"), "X");
    EXPECT_EQ(verify(withQuestion(), results), ExitCheckFailed);
    EXPECT_THAT(lines(),
                testing::Contains(testing::AllOf(testing::StartsWith("line "), testing::EndsWith("\tno"))));
}

TEST_F(VerifyVerb, FindsLevelsThatAreNotThoseOfTheFile) {
    EXPECT_EQ(verify(withQuestion(), resultsOf(withQuestion()), {"--error-margin", "7"}), ExitCheckFailed);
}

TEST_F(VerifyVerb, CannotReadWhatIsNoResultsFile) {
    EXPECT_EQ(verify(withQuestion(), "Dear all,\n"), ExitUnreadableProject);
    EXPECT_THAT(err.str(), HasSubstr("brenica-batch: " + folder.file("results.txt") + ":1: "));
    EXPECT_EQ(ask("verify", withQuestion(), {folder.path()}), ExitUnreadableProject);
    EXPECT_THAT(err.str(), HasSubstr(folder.path() + ": cannot be read: Is a directory"));
    EXPECT_EQ(out.str(), "");
}

/// Three species that cover a habitat each, and a fourth that covers what two of them do.
class SearchVerbs : public Verbs {
protected:
    static ProjectText needsTwo() {
        ProjectText project(4, 3, 1, 1);
        project.set("HeteroHabitat Population", "2,0,0,0,2,0,0,0,2,2,2,0")
            .set("HeteroJU Individual", "2,2,2,2");
        return project.set("Function1", "3,3,3,0");
    }
};

TEST_F(SearchVerbs, MinimumTellsWhetherTheSuiteIsTheSmallest) {
    EXPECT_EQ(ask("minimum", needsTwo(), {"--error-margin", "0"}), ExitDone);
    EXPECT_EQ(lines().front(), "measure\tvalue");
    EXPECT_THAT(lines(), testing::Contains("lower\t2"));
    EXPECT_THAT(lines(), testing::Contains("upper\t2"));
    EXPECT_THAT(lines(), testing::Contains("proven\tyes"));
    EXPECT_THAT(lines(), testing::Contains("suite\tSpecies 3; Species 4"));
    EXPECT_THAT(lines(), testing::Contains("proof\twitness"));
}

TEST_F(SearchVerbs, SuitesListAllThatAreAsSmall) {
    EXPECT_EQ(ask("suites", needsTwo()), ExitDone);
    EXPECT_EQ(lines().size(), 2U);
    EXPECT_THAT(err.str(), testing::Not(HasSubstr("are shown")));
    out.str("");
    EXPECT_EQ(ask("suites", needsTwo(), {"--within", "1", "--limit", "1", "--json"}), ExitDone);
    EXPECT_THAT(err.str(), HasSubstr("brenica-batch: more than 1 suites; 1 are shown\n"));
    const auto object = nlohmann::json::parse(out.str());
    EXPECT_EQ(object["complete"], false);
    EXPECT_EQ(object["rows"][0]["species"], nlohmann::json({"Species 3", "Species 4"}));
}

TEST_F(SearchVerbs, SpeciesTellWhatHangsOnEach) {
    EXPECT_EQ(ask("species", needsTwo()), ExitDone);
    ASSERT_EQ(lines().size(), 5U);
    EXPECT_THAT(lines()[1], HasSubstr("\tnone\t0.0000\t"));
    EXPECT_THAT(lines()[3], HasSubstr("\tall\t1.0000\t"));
    EXPECT_THAT(lines()[3], HasSubstr("\tinf\tHabitat 3\t"));
}

TEST_F(SearchVerbs, SayTheSameWithNodesAlone) {
    for (const char* verb : {"minimum", "suites", "species"}) {
        ask(verb, needsTwo(), {"--nodes", "1"});
        const std::string first = out.str();
        out.str("");
        ask(verb, needsTwo(), {"--nodes", "1"});
        EXPECT_EQ(out.str(), first) << verb;
        out.str("");
    }
}

TEST_F(SearchVerbs, RefuseWhatIsNoNumber) {
    const std::vector<std::vector<std::string>> wrong = {
        {"--time", "-1"}, {"--time", "nan"}, {"--time", "soon"}, {"--nodes", "-1"}, {"--nodes", "1.5"}};
    for (const auto& arguments : wrong) EXPECT_EQ(ask("minimum", needsTwo(), arguments), ExitWrongUsage);
    EXPECT_EQ(ask("suites", needsTwo(), {"--limit", "0"}), ExitWrongUsage);
    EXPECT_EQ(ask("suites", needsTwo(), {"--within", "-1"}), ExitWrongUsage);
    EXPECT_EQ(out.str(), "");
}

class ReportVerb : public SearchVerbs {
protected:
    std::string page() const { return folder.file("page.html"); }
    int report(const ProjectText& project, std::vector<std::string> arguments = {}) {
        arguments.insert(arguments.end(), {"--out", page()});
        return ask("report", project, arguments);
    }
};

TEST_F(ReportVerb, WritesAPageAndPrintsItsVerdict) {
    EXPECT_EQ(report(needsTwo(), {"--error-margin", "0"}), ExitDone);
    EXPECT_EQ(lines().front(), "verdict");
    EXPECT_THAT(lines(), testing::Contains("All 5 units (habitats, zones and threats) are covered."));
    const std::string written = readFile(page());
    EXPECT_THAT(written, testing::StartsWith("<!DOCTYPE html>"));
    EXPECT_THAT(written, HasSubstr(lines()[1]));
    EXPECT_THAT(written, HasSubstr("<bdi>project.brn</bdi>"));
    EXPECT_THAT(written, HasSubstr(sha256(needsTwo().text())));
    EXPECT_EQ(namesIn(folder.path()), (std::vector<std::string>{"page.html", "project.brn"}));
    EXPECT_EQ(readFile(projectPath()), needsTwo().text()) << "the project is left as it is";
}

TEST_F(ReportVerb, SaysTheSameWithNodesAlone) {
    ASSERT_EQ(report(needsTwo(), {"--nodes", "100"}), ExitDone);
    const std::string first = readFile(page());
    ASSERT_EQ(report(needsTwo(), {"--nodes", "100"}), ExitDone);
    EXPECT_EQ(readFile(page()), first);
}

TEST_F(ReportVerb, IsWrittenOfARunThatEndedInTheError) {
    EXPECT_EQ(report(failing()), ExitDone);
    EXPECT_THAT(err.str(), HasSubstr("the run ended in an error after 1 species: Type mismatch\n"));
    EXPECT_THAT(readFile(page()), HasSubstr("ended in an error after one species"));
}

TEST_F(ReportVerb, LeavesNoPageWhereNothingWasSelected) {
    EXPECT_EQ(report(oneCoversAll().set("Home ranges", "5,")), ExitNothingToScore);
    EXPECT_EQ(namesIn(folder.path()), std::vector<std::string>{"project.brn"});
    EXPECT_EQ(out.str(), "");
}

TEST_F(ReportVerb, RefusesAPlaceThatIsNoneForAPage) {
    EXPECT_EQ(ask("report", needsTwo()), ExitWrongUsage) << "no page is named";
    EXPECT_EQ(ask("report", needsTwo(), {"--out", projectPath()}), ExitWrongUsage);
    EXPECT_THAT(err.str(), HasSubstr("are one file\n"));
    EXPECT_EQ(ask("report", needsTwo(), {"--out", "/nowhere/page.html"}), ExitWrongUsage);
    EXPECT_THAT(err.str(), HasSubstr("brenica-batch: /nowhere/page.html: cannot be written: "));
    EXPECT_EQ(ask("report", needsTwo(), {"--out", "/dev/full"}), ExitWrongUsage);
    EXPECT_THAT(err.str(),
                HasSubstr("brenica-batch: /dev/full: cannot be written: No space left on device\n"));
    EXPECT_EQ(readFile(projectPath()), needsTwo().text());
}
