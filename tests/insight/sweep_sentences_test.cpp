// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/sweep_sentences.h"

#include <gmock/gmock.h>

#include "selected_run.h"
#include "selection/margin_answers.h"

using namespace insight;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

std::vector<std::string> sentencesOn(const ReportFindings& findings, std::size_t sweep) {
    std::vector<std::string> texts;
    for (const Sentence& sentence : sweepSentences(findings, findings.Sweeps[sweep]))
        texts.push_back(sentence.text());
    return texts;
}

}  // namespace

TEST(SweepSentences, NameTheWeakAndWhatIsMissed) {
    const SelectionRun run = selected(fullLandscape());
    const ReportFindings findings(run, marginAnswers(fullLandscape().Answers), {.Threads = 2});
    const auto levels = sentencesOn(findings, 0);
    EXPECT_THAT(levels, Contains(HasSubstr("Of the suite least often: Great Fruit-eating Bat (62 %)")));
    EXPECT_THAT(levels,
                Contains("Missed although an eligible species covers it: Mountain streams (4 %); there "
                         "the run stopped short."));
    EXPECT_THAT(levels, Not(Contains(HasSubstr("error"))));
    EXPECT_THAT(sentencesOn(findings, 1),
                Contains("The suite has nine species in 50 %, ten species in 50 % (this one has nine)."));
    EXPECT_THAT(answersByPosition(findings).text(), HasSubstr("are taken by position"));
}

TEST(SweepSentences, SetRunsApartThatAdmitNobody) {
    const SelectionRun run = selected(example("version1_landscape.brn"));
    const ReportFindings findings(run, {}, {.Threads = 2});
    const auto levels = sentencesOn(findings, 0);
    EXPECT_THAT(levels.front(),
                AllOf(HasSubstr(" of 2,500 runs selected no species, as where none is eligible"),
                      HasSubstr("shares of species are those of the other ")));
    EXPECT_THAT(levels, Not(Contains(HasSubstr("(2 %)"))));
    EXPECT_TRUE(answersByPosition(findings).isEmpty()) << "none was given";
}

TEST(SweepSentences, SayThatLargerSuitesAreTheRule) {
    RunOptions options = example("missed_unit.brn");
    options.ErrorMargin = "30";
    options.Answers = {"c", "c", "c"};
    const SelectionRun run = selected(options);
    const ReportFindings findings(run, marginAnswers(options.Answers), {});
    EXPECT_THAT(sentencesOn(findings, 1), Contains(HasSubstr("(this one has two).")));
}

TEST(SweepSentences, SayWhereNoQuestionWasAsked) {
    RunOptions options = example("small_landscape.brn");
    options.ErrorMargin = "0";
    const SelectionRun run = selected(options);
    const ReportFindings findings(run, {}, {});
    EXPECT_THAT(sentencesOn(findings, 1),
                testing::ElementsAre("No question was asked, so that no answer could be another one."));
}
