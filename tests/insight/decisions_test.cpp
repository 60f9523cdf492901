// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/decisions.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "insight/names.h"
#include "selected_run.h"
#include "selection/margin_answers.h"

using namespace insight;
using testing::ElementsAre;
using testing::SizeIs;

namespace {

WatchedRun watched(const SelectionRun& run, const std::vector<std::string>& answers) {
    Rerun rerun(run.Landscape);
    return watch(run, marginAnswers(answers), rerun);
}

std::size_t numberOf(const SelectionRun& run, const std::string& species) {
    return static_cast<std::size_t>(std::find(run.Species.begin(), run.Species.end(), species) -
                                    run.Species.begin());
}

}  // namespace

TEST(Decisions, AreTheQuestionsOfTheRunWithTheirAnswers) {
    const RunOptions options = fullLandscape();
    const SelectionRun run = selected(options);
    const std::vector<Decision> decisions = watched(run, options.Answers).Decisions;
    ASSERT_THAT(decisions, SizeIs(3));
    EXPECT_THAT(speciesNames(run, decisions[0].Listed), ElementsAre("Dorado", "Maned Wolf"));
    EXPECT_THAT(decisions[0].Aggregates, ElementsAre(3.462, 3.419));
    EXPECT_EQ(decisions[0].Way, method::Rule::Heterogeneity);
    EXPECT_EQ(run.Species[decisions[0].Taken], "Maned Wolf");
    EXPECT_EQ(run.Species[decisions[1].Taken], "Andean Condor");
    EXPECT_TRUE(decisions[2].AskedNumber) << "a tie";
    EXPECT_EQ(decisions[2].Number, 2U);
    EXPECT_EQ(run.Species[decisions[2].Taken], "Military Macaw");
    EXPECT_FALSE(decisions[2].IsDefault);
}

TEST(Decisions, TellWhatAnotherAnswerComesTo) {
    const SelectionRun run = selected(fullLandscape());
    const std::vector<Decision> decisions = watched(run, fullLandscape().Answers).Decisions;
    ASSERT_THAT(decisions[2].Others, SizeIs(1));
    EXPECT_EQ(run.Species[decisions[2].Others[0].Taken], "Lowland Tapir");
    RunOptions other = fullLandscape();
    other.Answers = {"b", "d", "e", "1"};
    EXPECT_EQ(decisions[2].Others[0].Species, selected(other).Outcome.Suite.Picks.size());
    EXPECT_EQ(decisions[2].Others[0].Species, 10U);
    EXPECT_EQ(decisions[2].Others[0].Uncovered, 2U);
}

TEST(Decisions, TellWhereAnOmittedSpeciesWasTaken) {
    RunOptions options = example("missed_unit.brn");
    options.ErrorMargin = "30";
    options.Answers = {"c", "c", "c"};
    const SelectionRun run = selected(options);
    std::vector<std::string> lost;
    for (const Decision& decision : watched(run, options.Answers).Decisions) {
        if (decision.WasOmitted) lost.push_back(run.Species[decision.Taken]);
    }
    EXPECT_THAT(lost, ElementsAre("Golden Plover", "Purple Heron"));
}

TEST(Decisions, AreDefaultsWhereNoAnswerIsLeft) {
    const SelectionRun run = selected(fullLandscape());
    for (const Decision& decision : watched(run, {}).Decisions) {
        EXPECT_TRUE(decision.IsDefault);
        EXPECT_EQ(decision.Taken, decision.Listed.front());
    }
}

TEST(Fates, TellWhenASpeciesWasSelectedOrOmitted) {
    const SelectionRun run = selected(fullLandscape());
    const std::vector<SpeciesFate> fates = watched(run, fullLandscape().Answers).Fates;
    EXPECT_EQ(fates[numberOf(run, "Jaguar")].Aggregate, 4.458);
    EXPECT_EQ(fates[numberOf(run, "Maned Wolf")].Aggregate, 3.419);
    EXPECT_EQ(fates[numberOf(run, "White-lipped Peccary")].OmittedAfter, 3U);
    EXPECT_EQ(fates[numberOf(run, "Capybara")].OmittedAfter, std::nullopt) << "excluded";
    EXPECT_EQ(fates[numberOf(run, "Capybara")].Aggregate, std::nullopt);
}
