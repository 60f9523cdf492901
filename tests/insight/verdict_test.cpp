// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/verdict.h"

#include <gmock/gmock.h>

#include "cover_project.h"
#include "selected_run.h"
#include "selection/margin_answers.h"

using namespace insight;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

std::vector<std::string> verdictOf(const SelectionRun& run, const std::vector<method::Answer>& answers = {},
                                   const ReportWork& work = {}) {
    const ReportFindings findings(run, answers, work);
    std::vector<std::string> sentences;
    for (const Sentence& sentence : verdict(findings)) sentences.push_back(sentence.text());
    return sentences;
}

std::vector<std::string> verdictOf(const ProjectText& project, const RunOptions& options = {},
                                   const ReportWork& work = {}) {
    const TemporaryFolder folder;
    return verdictOf(exportedRun(project, options, folder).Run.value(), {}, work);
}

RunOptions admitting(const char* status) {
    RunOptions options;
    options.ConservationStatus = status;
    return options;
}

}  // namespace

TEST(Verdict, SaysThatNoSuiteIsSmallerAndWhatCannotBeCovered) {
    EXPECT_THAT(verdictOf(selected(fullLandscape()), marginAnswers(fullLandscape().Answers)),
                ElementsAre("Nine species; at these levels no fewer cover as much.",
                            "30 of the 32 units (habitats, zones and threats) are covered.",
                            "20 of these 30 hang on one species of the suite alone.",
                            "Two units cannot be covered at these levels: Farm mosaic and Pesticide drift. "
                            "Only excluded species would cover them: Crab-eating Fox.",
                            "With conservation status 0.95 a run has nine species and leaves no unit "
                            "uncovered; the smallest suite then has eight.",
                            "Two of 25 candidates are left out, since their conservation status is above 0.8 "
                            "(the higher, the safer): Capybara (0.9) and Crab-eating Fox (0.95).",
                            "34 other suites of nine species cover the same units.",
                            "At these levels Giant Otter, Torrent Duck and Great Fruit-eating Bat are in "
                            "every one of the smallest suites."));
}

TEST(Verdict, SaysWhatWouldBeEnoughAndWhatCouldGo) {
    EXPECT_THAT(verdictOf(selected(smallLandscape())),
                ElementsAre("Four species; three would be enough.",
                            "All 10 units (habitats, zones and threats) are covered.",
                            "5 of these 10 hang on one species of the suite alone.",
                            "All that Eurasian Otter covers is covered by others of the suite, too; it has "
                            "rank 1 of 7 by score.",
                            "Two suites of three species cover all that can be covered.",
                            "The suite of the run without Eurasian Otter is such a one.",
                            "Of these the one with the highest total: Great Bittern, Eurasian Badger and "
                            "European Nightjar.",
                            "At these levels Great Bittern and Eurasian Badger are in every one of the "
                            "smallest suites."));
}

TEST(Verdict, NamesTheOnlySuiteThatIsSmaller) {
    const auto sentences = verdictOf(selected(example("full_landscape.brn")));
    EXPECT_THAT(sentences, Contains("One suite of nine species covers all that can be covered."));
    EXPECT_THAT(sentences, Contains(HasSubstr("It is Andean Bear, Lowland Tapir")));
    EXPECT_THAT(sentences, Not(Contains(HasSubstr("highest total"))));
}

TEST(Verdict, SaysWhatWasMissed) {
    RunOptions options = example("missed_unit.brn");
    options.ErrorMargin = "30";
    options.Answers = {"c", "c", "c"};
    const auto sentences = verdictOf(selected(options), marginAnswers(options.Answers));
    EXPECT_EQ(
        sentences[0],
        "Two species, which miss one unit that could be covered; three would be enough for all that can "
        "be covered.");
    EXPECT_THAT(sentences,
                Contains("One unit was missed although an eligible species covers it: Lakeside Reserve."));
    EXPECT_THAT(sentences, Contains("With the best aggregate at each question a run has three species and "
                                    "leaves no unit uncovered; the smallest suite then has three."));
}

TEST(Verdict, SpeaksOfOneInTheSingular) {
    EXPECT_THAT(verdictOf(twoSpecies()), ElementsAre("One species; at these levels no fewer cover as much.",
                                                     "All 4 units (habitats, zones and threats) are covered.",
                                                     "Each hangs on one species of the suite alone.",
                                                     "It is the only suite of that size that does."));
}

TEST(Verdict, SaysOnlyWhatIsKnownWhereTheSearchWasCut) {
    EXPECT_EQ(verdictOf(twoRings()).front(), "Six species; at these levels no fewer cover as much.");
    const auto sentences = verdictOf(twoRings(), {}, {.Nodes = 1});
    EXPECT_EQ(sentences.front(), "Six species; no smaller suite is known; fewer than five would not do.");
    EXPECT_THAT(sentences, Not(Contains(HasSubstr("other suites"))));
}

TEST(Verdict, SaysThatThereAreMoreSuitesThanWereCounted) {
    EXPECT_THAT(verdictOf(pairs(17)),
                Contains("At least 99,999 other suites of 17 species cover the same units."));
}

TEST(Verdict, SaysThatARunEndedInAnError) {
    const auto sentences = verdictOf(twoSpecies().set("HeteroHabitat Population", "2,1,1,1"));
    EXPECT_THAT(sentences, Contains("The run ended in an error after one species (Type mismatch); what is "
                                    "told of it goes as far as it came."));
    EXPECT_THAT(
        sentences,
        Contains(
            "One unit cannot be covered at these levels: Habitat 2; no candidate reaches what is needed."));
}

TEST(Verdict, SaysThatEverybodyIsExcluded) {
    const auto sentences = verdictOf(twoSpecies().set("Conservation Status", "0.5,0.6"), admitting("0.1"));
    EXPECT_EQ(sentences.front(), "No suite: every candidate is excluded.");
    EXPECT_THAT(sentences, Contains("0 of the 4 units (habitats, zones and threats) are covered."));
    EXPECT_THAT(sentences,
                Contains("Four units cannot be covered at these levels: Habitat 1, Habitat 2, Zone 1 and "
                         "Activity 1. Only excluded species would cover them: Species 1 and Species 2."));
}

TEST(Verdict, SaysThatNothingCanBeCovered) {
    const auto sentences = verdictOf(nothingToCover(), admitting("0.8"));
    EXPECT_EQ(sentences.front(), "No suite: no eligible species covers any unit.");
    EXPECT_THAT(sentences,
                Contains("Four units cannot be covered at these levels: Habitat 1, Habitat 2, Zone 1 and "
                         "Activity 1. Only excluded species would cover them: Species 2."));
}

TEST(KeyFigures, AreThoseOfTheSentences) {
    const RunOptions options = fullLandscape();
    const SelectionRun run = selected(options);
    const ReportFindings findings(run, marginAnswers(options.Answers), {});
    std::vector<std::string> values;
    for (const KeyFigure& figure : keyFigures(findings)) values.push_back(figure.Value + " " + figure.Label);
    EXPECT_THAT(values,
                ElementsAre("9 species selected", "9 fewest possible, proven", "30 / 32 units covered",
                            "20 covered by one species alone", "35 smallest suites"));
}
