// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <nlohmann/json.hpp>

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
