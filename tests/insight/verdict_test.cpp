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

namespace {

std::vector<std::string> verdictOf(const SelectionRun& run, const ReportWork& work = {}) {
    const ReportFindings findings(run, {}, work);
    std::vector<std::string> sentences;
    for (const Sentence& sentence : verdict(findings)) sentences.push_back(sentence.text());
    return sentences;
}

std::vector<std::string> verdictOf(const ProjectText& project, const RunOptions& options = {},
                                   const ReportWork& work = {}) {
    const TemporaryFolder folder;
    return verdictOf(exportedRun(project, options, folder).Run.value(), work);
}

RunOptions admitting(const char* status) {
    RunOptions options;
    options.ConservationStatus = status;
    return options;
}

}  // namespace

TEST(Verdict, SaysThatNoSuiteIsSmallerAndWhatCannotBeCovered) {
    EXPECT_THAT(verdictOf(selected(fullLandscape())),
                ElementsAre("Nine species; no smaller suite exists.",
                            "30 of the 32 units (habitats, zones and threats) are covered.",
                            "Two units cannot be covered: Farm mosaic and Pesticide drift, since Crab-eating "
                            "Fox is excluded.",
                            "34 other suites have nine species, too.",
                            "Giant Otter, Torrent Duck and Great Fruit-eating Bat are in every one of the "
                            "smallest suites."));
}

TEST(Verdict, SaysWhatWouldBeEnoughAndWhatCouldGo) {
    EXPECT_THAT(verdictOf(selected(smallLandscape())),
                ElementsAre("Four species; three would be enough.",
                            "All 10 units (habitats, zones and threats) are covered.",
                            "Eurasian Otter could go without a loss.",
                            "Two suites cover as much as can be covered with three species.",
                            "With the highest total: Great Bittern, Eurasian Badger and European Nightjar.",
                            "Great Bittern and Eurasian Badger are in every one of the smallest suites."));
}

TEST(Verdict, SaysWhatWasMissed) {
    RunOptions options = example("missed_unit.brn");
    options.ErrorMargin = "30";
    options.Answers = {"c", "c", "c"};
    const auto sentences = verdictOf(selected(options));
    EXPECT_EQ(
        sentences[0],
        "Two species, which miss one unit that could be covered; three would be enough for all that can "
        "be covered.");
    EXPECT_EQ(sentences[2], "One unit was missed although an eligible species covers it: Lakeside Reserve.");
}

TEST(Verdict, SpeaksOfOneInTheSingular) {
    EXPECT_THAT(verdictOf(twoSpecies()), ElementsAre("One species; no smaller suite exists.",
                                                     "All 4 units (habitats, zones and threats) are covered.",
                                                     "It is the only suite of that size."));
}

TEST(Verdict, SaysOnlyWhatIsKnownWhereTheSearchWasCut) {
    EXPECT_EQ(verdictOf(twoRings()).front(), "Six species; no smaller suite exists.");
    EXPECT_THAT(verdictOf(twoRings(), {}, {.Nodes = 1}),
                ElementsAre("Six species; no smaller suite is known; fewer than five would not do.",
                            "All 12 units (habitats, zones and threats) are covered."));
}

TEST(Verdict, SaysThatThereAreMoreSuitesThanWereCounted) {
    EXPECT_THAT(verdictOf(pairs(17)), Contains("At least 99,999 other suites have 17 species, too."));
}

TEST(Verdict, SaysThatARunEndedInAnError) {
    const auto sentences = verdictOf(twoSpecies().set("HeteroHabitat Population", "2,1,1,1"));
    EXPECT_THAT(sentences, Contains("The run ended in an error after one species (Type mismatch); what is "
                                    "told of it goes as far as it came."));
    EXPECT_THAT(sentences,
                Contains("One unit cannot be covered: Habitat 2; no candidate reaches the level."));
}

TEST(Verdict, SaysThatEverybodyIsExcluded) {
    const auto sentences = verdictOf(twoSpecies().set("Conservation Status", "0.5,0.6"), admitting("0.1"));
    EXPECT_EQ(sentences.front(), "No suite: every candidate is excluded.");
    EXPECT_THAT(sentences, Contains("0 of the 4 units (habitats, zones and threats) are covered."));
    EXPECT_THAT(sentences,
                Contains("Four units cannot be covered: Habitat 1, Habitat 2, Zone 1 and Activity 1, "
                         "since Species 1 and Species 2 are excluded."));
}

TEST(Verdict, SaysThatNothingCanBeCovered) {
    const auto sentences = verdictOf(nothingToCover(), admitting("0.8"));
    EXPECT_EQ(sentences.front(), "No suite: no eligible species covers any unit.");
    EXPECT_THAT(sentences,
                Contains("Four units cannot be covered: Habitat 1, Habitat 2, Zone 1 and Activity 1, "
                         "since Species 2 is excluded."));
}

TEST(KeyFigures, AreThoseOfTheSentences) {
    const RunOptions options = fullLandscape();
    const SelectionRun run = selected(options);
    const ReportFindings findings(run, marginAnswers(options.Answers), {});
    std::vector<std::string> values;
    for (const KeyFigure& figure : keyFigures(findings)) values.push_back(figure.Value + " " + figure.Label);
    EXPECT_THAT(values, ElementsAre("9 species selected", "9 fewest that do, proven", "30 / 32 units covered",
                                    "35 smallest suites"));
}
