// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/verify/verification.h"

#include <algorithm>
#include <sstream>

#include "random_project.h"
#include "results_lines.h"
#include "selected_run.h"

using insight::fieldOf;
using insight::GivenLevels;
using insight::Verification;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

Verification verify(const SelectionRun& run, const std::string& text, const GivenLevels& given = {}) {
    return insight::verifyResults(run, insight::readResultsFile(text), given);
}

/// "check|expected|found" of each check that failed.
std::vector<std::string> failures(const Verification& verification) {
    std::vector<std::string> failed;
    for (const auto& row : verification.Table.Rows) {
        if (!std::get<bool>(row[3]))
            failed.push_back(fieldOf(row[0]) + "|" + fieldOf(row[1]) + "|" + fieldOf(row[2]));
    }
    EXPECT_EQ(verification.Holds, failed.empty());
    return failed;
}

/// Line and reason, where the text is no results file.
std::string faultOf(const std::string& text) {
    try {
        insight::readResultsFile(text);
        return "none";
    } catch (const insight::ResultsFault& fault) {
        return std::to_string(fault.Line) + ": " + fault.what();
    }
}

class VerificationTest : public testing::Test {
protected:
    TemporaryFolder folder;
    const ExportedRun full = exportedRun(fullLandscape(), folder);
    const ExportedRun small = exportedRun(smallLandscape(), folder);

    /// The failures after one line of the full example, from 1, was replaced.
    std::vector<std::string> failuresWith(std::size_t number, const std::string& text) const {
        Lines lines = linesOf(full.Results);
        lines.at(number - 1) = text;
        return failures(verify(*full.Run, textOf(lines)));
    }
    std::size_t numberOf(const std::string& text) const {
        const Lines lines = linesOf(full.Results);
        return static_cast<std::size_t>(std::find(lines.begin(), lines.end(), text) - lines.begin()) + 1;
    }
    std::string line(std::size_t number) const { return linesOf(full.Results).at(number - 1); }
};

}  // namespace

TEST_F(VerificationTest, EveryExampleFollowsFromItsProject) {
    const ExportedRun old = exportedRun(example("version1_landscape.brn"), folder);
    for (const ExportedRun& exported : {full, small, old}) {
        ASSERT_FALSE(exported.Results.empty());
        const Verification verification = verify(*exported.Run, exported.Results);
        EXPECT_THAT(failures(verification), IsEmpty());
        EXPECT_THAT(verification.Table.Columns, ElementsAre("check", "expected", "found", "ok"));
    }
}

TEST_F(VerificationTest, EveryLineIsCheckedInItsOrder) {
    const Verification verification = verify(*full.Run, full.Results);
    std::size_t last = 0;
    for (const auto& row : verification.Table.Rows) {
        const std::size_t number = std::stoul(std::get<std::string>(row[0]).substr(5));
        EXPECT_TRUE(number == last || number == last + 1) << fieldOf(row[0]);
        last = number;
    }
    EXPECT_EQ(last, linesOf(full.Results).size());
}

TEST_F(VerificationTest, ALineIsToldPartByPart) {
    const std::size_t first = numberOf(std::string(insight::heading::Columns)) + 1;
    const std::string place = "line " + std::to_string(first) + ": ";
    std::vector<std::string> told;
    for (const auto& row : verify(*full.Run, full.Results).Table.Rows) {
        if (fieldOf(row[0]).starts_with(place))
            told.push_back(fieldOf(row[0]).substr(place.size()) + "|" + fieldOf(row[1]) + "|" +
                           fieldOf(row[2]));
    }
    EXPECT_THAT(told, ElementsAre("mark|S|S", "species|Jaguar|Jaguar", "rank|1|1",
                                  "scores|4.458; 1; 1; 1; 0.625; 0.833|4.458; 1; 1; 1; 0.625; 0.833",
                                  "additions|3; 3; 4|3; 3; 4", "pick|Jaguar|Jaguar"));
}

TEST_F(VerificationTest, APickIsOneThatTheMarginAllows) {
    // Without the answers the top species is taken; the margin would have allowed it, so that either file holds.
    RunOptions unanswered = fullLandscape();
    unanswered.Answers.clear();
    const ExportedRun top = exportedRun(unanswered, folder);
    ASSERT_NE(top.Results, full.Results);
    EXPECT_THAT(failures(verify(*full.Run, top.Results)), IsEmpty());
    EXPECT_THAT(failures(verify(*top.Run, full.Results)), IsEmpty());
}

TEST_F(VerificationTest, APickThatTheMarginForbidsIsNamed) {
    // The same run at a margin of nought does not let the wolf pass the dorado.
    std::string text = full.Results;
    text.replace(text.find("6 % Error margin"), 1, "0");
    const std::vector<std::string> failed = failures(verify(*full.Run, text));
    EXPECT_THAT(failed, Contains(HasSubstr(": pick|Dorado|Maned Wolf")));
    EXPECT_THAT(failed, Not(Contains(HasSubstr("scores"))));
}

TEST_F(VerificationTest, TheRunOfTheProjectMayHaveHadAnyLevelsAndEnd) {
    SelectionRun other = *full.Run;
    other.Levels = {0, 1, 0.1};
    other.ThreatScores = {};
    other.Aggregates.clear();
    other.Ranks.clear();
    other.DataQuality = {};
    other.Outcome = {{}, "Type mismatch"};
    EXPECT_THAT(failures(verify(other, full.Results)), IsEmpty());
}

/// What checks the selection must not run on it.
TEST_F(VerificationTest, TheRecomputationIncludesNothingOfTheSelection) {
    int included = 0;
    for (const char* name :
         {"recomputed_scores.h", "recomputed_scores.cpp", "recomputation.h", "recomputation.cpp"}) {
        std::istringstream source(readFile(std::string(BRENICA_SOURCE_DIR) + "/src/insight/verify/" + name));
        for (std::string text; std::getline(source, text);) {
            if (!text.starts_with("#include \"")) continue;
            ++included;
            EXPECT_THAT(text.substr(9), testing::AnyOf("\"insight/verify/recomputed_scores.h\"",
                                                       "\"insight/verify/recomputation.h\"",
                                                       "\"method/landscape.h\"", "\"method/levels.h\""));
        }
    }
    EXPECT_EQ(included, 5);
}

TEST_F(VerificationTest, ALevelThatIsGivenMustAgree) {
    EXPECT_THAT(failures(verify(*full.Run, full.Results, {6, 0.4, 0.8})), IsEmpty());
    const std::size_t number = numberOf("6 % Error margin");
    const auto at = [&](std::size_t offset) { return "line " + std::to_string(number + offset); };
    EXPECT_THAT(failures(verify(*full.Run, full.Results, {5, 0.45, 1})),
                ElementsAre(at(0) + ": margin of error|5|6", at(1) + ": threat representation|0.45|0.4",
                            at(2) + ": conservation status|1|0.8"));
}

TEST_F(VerificationTest, ALevelOutOfItsBoundsIsNamed) {
    const std::size_t number = numberOf("6 % Error margin");
    EXPECT_THAT(failuresWith(number, "100000000000000000000 % Error margin"),
                Contains("line " + std::to_string(number) + ": margin of error|100|100000000000000000000"));
    EXPECT_THAT(failuresWith(number, "06 % Error margin"),
                ElementsAre("line " + std::to_string(number) + ": margin of error|6|06"));
}

TEST_F(VerificationTest, AFileOfOtherLevelsIsNoFileOfTheseLevels) {
    std::string text = full.Results;
    text.replace(text.find("0.8 Conservation"), 3, "1");
    const std::vector<std::string> failed = failures(verify(*full.Run, text));
    EXPECT_THAT(failed,
                Contains("line 1: foreign||The following 2 species was excluded due to their high Current "
                         "Conservation Status value:"));
    EXPECT_THAT(failed, Contains(HasSubstr("missing after line")));
}

TEST_F(VerificationTest, AFileOfAnotherProjectFailsAtItsFirstSpecies) {
    const std::vector<std::string> failed = failures(verify(*small.Run, full.Results));
    EXPECT_THAT(failed, Contains("line 5: species|Eurasian Otter|Jaguar"));
    EXPECT_THAT(failures(verify(*full.Run, small.Results)), Not(IsEmpty()));
}

TEST_F(VerificationTest, EachPartOfARowIsFoundByItself) {
    const std::size_t number = numberOf(std::string(insight::heading::Columns)) + 1;
    const std::string row = line(number);
    const std::string place = "line " + std::to_string(number) + ": ";
    const auto with = [&](const std::string& part, const std::string& other) {
        std::string text = row;
        text.replace(text.find(part), part.size(), other);
        return failuresWith(number, text);
    };
    EXPECT_THAT(with("Jaguar", "Jaguor"), ElementsAre(place + "species|Jaguar|Jaguor"));
    EXPECT_THAT(with(" 1\t", " 2\t"), ElementsAre(place + "rank|1|2"));
    EXPECT_THAT(with("4.458", "4.459"),
                ElementsAre(place + "scores|4.458; 1; 1; 1; 0.625; 0.833|4.459; 1; 1; 1; 0.625; 0.833"));
    EXPECT_THAT(with("\t4\t", "\t5\t"), ElementsAre(place + "additions|3; 3; 4|3; 3; 5"));
    EXPECT_THAT(with("S ", "M "), ElementsAre(place + "mark|S|M"));
    EXPECT_THAT(with("Jaguar ", "Jaguar\xC2\xA0"),
                ElementsAre(HasSubstr(place + "species|Jaguar|Jaguar\xC2\xA0")));
    EXPECT_THAT(failuresWith(number, row.substr(0, row.size() - 1)), ElementsAre(HasSubstr(place + "line|")));
}

TEST_F(VerificationTest, MissingForeignAndDoubledLinesAreNamed) {
    const std::size_t number = numberOf(std::string(insight::heading::Columns)) + 3;
    Lines lines = linesOf(full.Results);
    const std::string row = lines[number - 1];
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(number) - 1);
    const std::string shown = fieldOf(row);
    EXPECT_THAT(failures(verify(*full.Run, textOf(lines))),
                ElementsAre("missing after line " + std::to_string(number - 1) + "|" + shown + "|"));
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(number) - 1, 2, row);
    EXPECT_THAT(failures(verify(*full.Run, textOf(lines))), ElementsAre(HasSubstr(": foreign||" + shown)));
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(number));
    lines.erase(lines.begin());
    EXPECT_THAT(failures(verify(*full.Run, textOf(lines))),
                ElementsAre(HasSubstr("missing before line 1|The following 2")));
}

TEST_F(VerificationTest, LinesMayEndInLineFeeds) {
    EXPECT_THAT(failures(verify(*full.Run, withLineFeeds(full.Results))), IsEmpty());
    std::string text = withLineFeeds(full.Results);
    text.replace(text.find("Giant Otter"), 5, "Small");
    EXPECT_THAT(failures(verify(*full.Run, text)), Not(IsEmpty()));
}

TEST_F(VerificationTest, TheLastLineHasAnEnd) {
    const std::string cut = full.Results.substr(0, full.Results.size() - 2);
    const std::string last = std::to_string(linesOf(full.Results).size());
    EXPECT_THAT(failures(verify(*full.Run, cut)), ElementsAre("line " + last + ": end of line|CR LF|"));
}

TEST_F(VerificationTest, WhatIsNoResultsFileIsAFault) {
    EXPECT_EQ(faultOf(""), "1: the file is empty");
    EXPECT_EQ(faultOf("Common Name\tRank\r\n"), "1: none of the headings of a results file follows");
    EXPECT_EQ(faultOf(std::string(100, '\0')), "1: none of the headings of a results file follows");
    const std::string start = "Brenic Species by Rank with Aggregate Score:\r\n1. A  (1)\r\n\r\n\r\n";
    EXPECT_EQ(faultOf(start), "4: the margin of error is missing or no number");
    EXPECT_EQ(faultOf(start + "five % Error margin\r\n"), "5: the margin of error is missing or no number");
    EXPECT_EQ(
        faultOf(start +
                "5 % Error margin\r\n0.5 Threat representation\r\n1e0 Conservation status representation"),
        "7: the conservation status is missing or no number");
    EXPECT_EQ(faultOf(start + "1" + std::string(400, '0') + " % Error margin\r\n"),
              "5: the margin of error is missing or no number");
}

TEST_F(VerificationTest, TextThatIsNoUtf8IsShownAsUtf8) {
    const std::size_t number = numberOf(std::string(insight::heading::Columns)) + 1;
    std::string row = line(number);
    row.replace(row.find("Jaguar"), 6, "J\xE1gu\xFFr");
    EXPECT_THAT(failuresWith(number, row), ElementsAre("line " + std::to_string(number) +
                                                       ": species|Jaguar|J\xEF\xBF\xBDgu\xEF\xBF\xBDr"));
}

TEST_F(VerificationTest, NoFileFollowsFromARunThatEndsInAnError) {
    // Species 1 leaves unit 2 of the habitats uncovered, and nobody else covers it.
    ProjectText project(2, 2, 1, 1);
    project.set("HeteroHabitat Population", "2,2,1,1").set("HeteroJU Individual", "2,1");
    const ExportedRun good = exportedRun(project, {}, folder);
    project.set("HeteroHabitat Population", "2,1,1,1");
    const ExportedRun bad = exportedRun(project, {}, folder);
    ASSERT_FALSE(good.Results.empty());
    ASSERT_TRUE(bad.Results.empty());
    ASSERT_TRUE(bad.Run);
    EXPECT_THAT(failures(verify(*good.Run, good.Results)), IsEmpty());
    EXPECT_THAT(failures(verify(*bad.Run, good.Results)),
                Contains(HasSubstr(": run|no species is left to pick|")));
}

TEST_F(VerificationTest, ASpeciesThatAddsNothingIsOmittedAtOnceInTheFirstPass) {
    ProjectText project(1, 1, 1, 1);
    project.set("VulnerabilitybySpecies Severity", "0")
        .set("Habitat UseLevel", "3")
        .set("MZone UseLevel", "3");
    ExportedRun exported = exportedRun(project, {}, folder);
    EXPECT_THAT(failures(verify(*exported.Run, exported.Results)), IsEmpty());
    // Only the threat that nobody has is covered by anybody; with a highest score above 0 the suite is empty.
    project = ProjectText(2, 1, 1, 1);
    project.set("Habitat UseLevel", "3").set("MZone UseLevel", "3").set("Conservation Status", "0.5,1");
    project.set("VulnerabilitybySpecies Severity", "1,3");
    exported = exportedRun(project, {"", "5", "0.5", "0.8"}, folder);
    ASSERT_THAT(exported.Results, HasSubstr("\r\n1. \r\n"));
    EXPECT_THAT(failures(verify(*exported.Run, exported.Results)), IsEmpty());
    std::string changed = exported.Results;
    changed.replace(changed.find("X Species"), 1, "S");
    EXPECT_THAT(failures(verify(*exported.Run, changed)), ElementsAre(HasSubstr("mark|X|S")));
}

TEST_F(VerificationTest, RandomRunsFollowFromTheirProjects) {
    int files = 0;
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        const RandomProject random = randomProject(seed);
        const ExportedRun exported = exportedRun(random.Text, random.Options, folder);
        if (exported.Results.empty()) continue;
        ++files;
        ASSERT_THAT(failures(verify(*exported.Run, exported.Results)), IsEmpty()) << seed << "\n"
                                                                                  << exported.Results;
    }
    EXPECT_GT(files, 150);
}
