// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/remedies.h"

#include <gmock/gmock.h>

#include "cover_project.h"
#include "insight/names.h"
#include "selected_run.h"
#include "selection/margin_answers.h"

using namespace insight;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

std::vector<Remedy> remediesOf(const SelectionRun& run, const std::vector<std::string>& answers) {
    const Representation units(run);
    return findRemedies(run, units, unitStates(run, units), marginAnswers(answers), nullptr);
}

std::vector<std::string> suiteOf(const SelectionRun& run) {
    std::vector<std::string> names;
    for (const method::Pick& pick : run.Outcome.Suite.Picks) names.push_back(run.Species[pick.Species]);
    return names;
}

}  // namespace

TEST(Remedies, AreWhatARunAtTheChangedLevelsComesTo) {
    RunOptions options = fullLandscape();
    const SelectionRun run = selected(options);
    const std::vector<Remedy> remedies = remediesOf(run, options.Answers);
    ASSERT_THAT(remedies, SizeIs(3)) << "a level for both units, and less asked for each";

    options.ConservationStatus = "0.95";
    EXPECT_EQ(remedies[0].Made.Levels.ConservationStatus, 0.95);
    EXPECT_THAT(remedies[0].For, SizeIs(2));
    EXPECT_EQ(speciesNames(run, remedies[0].Run.Species), suiteOf(selected(options)));
    EXPECT_THAT(remedies[0].Run.Open, IsEmpty());
    EXPECT_EQ(remedies[0].Run.Smallest.value().Lower, 8U);
    EXPECT_TRUE(remedies[0].Run.Smallest->isProven());

    EXPECT_EQ(remedies[1].Made.Asked.value().Level, 2);
    EXPECT_THAT(remedies[1].Run.Open, SizeIs(1)) << "of the habitat alone";

    options = fullLandscape();
    options.ThreatRepresentation = "0.33";
    EXPECT_EQ(remedies[2].Made.Levels.ThreatRepresentation, 0.33);
    EXPECT_EQ(speciesNames(run, remedies[2].Run.Species), suiteOf(selected(options)));
    EXPECT_THAT(remedies[2].Run.Open, SizeIs(1));
}

TEST(Remedies, TakeTheBestAggregatesWhereAnswersMadeTheRunMiss) {
    RunOptions options = example("missed_unit.brn");
    options.ErrorMargin = "30";
    options.Answers = {"c", "c", "c"};
    const SelectionRun run = selected(options);
    const std::vector<Remedy> remedies = remediesOf(run, options.Answers);
    ASSERT_THAT(remedies, SizeIs(1));
    EXPECT_TRUE(remedies[0].Made.BestAggregates);
    EXPECT_THAT(remedies[0].Run.Open, IsEmpty());
    EXPECT_THAT(speciesNames(run, remedies[0].Run.Species),
                ElementsAre("Grey Heron", "Bank Vole", "Silver-spotted Skipper"));
}

TEST(Remedies, AreNoneWhereAllIsCovered) {
    EXPECT_THAT(remediesOf(selected(smallLandscape()), {}), IsEmpty());
}

TEST(Remedies, AreAFewWhereManyUnitsAreOpen) {
    std::vector<std::vector<int>> uses(2, std::vector<int>(30));
    uses[0][0] = uses[1][1] = 1;
    std::string levels;
    for (int i = 0; i < 60; ++i) levels += i > 0 ? ",1" : "1";
    const TemporaryFolder folder;
    const auto run = exportedRun(coverProject(uses).set("HeteroHabitat Population", levels), {}, folder).Run;
    EXPECT_THAT(remediesOf(run.value(), {}), SizeIs(MostRemedies));
}
