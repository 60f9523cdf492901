// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/selection.h"

#include <gmock/gmock.h>

#include <sstream>

#include "landscapes.h"

namespace {

using namespace method;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

/// Writes down what a listener is told, a line each.
class Diary : public Listener {
public:
    std::string Text() const { return text_.str(); }

    void begun() override { text_ << "begun\n"; }
    void blockAppended(const Block& block, bool first) override {
        text_ << (first ? "first block" : "block");
        for (std::size_t i = 0; i < block.size(); ++i) text_ << ' ' << block[i].Species;
        text_ << '\n';
    }
    void adds(std::size_t offset, Unit kind, int units) override {
        text_ << "adds " << offset << ' ' << "HZT"[static_cast<std::size_t>(kind)] << units << '\n';
    }
    void rescored(std::size_t offset, Criterion criterion, double score) override {
        text_ << "rescored " << offset << ' ' << letter(criterion) << score << '\n';
    }
    void normalised(std::size_t offset, Criterion criterion, double score) override {
        text_ << "normalised " << offset << ' ' << letter(criterion) << score << '\n';
    }
    void aggregated(std::size_t offset, double aggregate) override {
        text_ << "aggregate " << offset << ' ' << aggregate << '\n';
    }
    void sorted(const Block& block) override {
        text_ << "sorted";
        for (std::size_t i = 0; i < block.size(); ++i) text_ << ' ' << block[i].Species;
        text_ << '\n';
    }
    void ranked(std::size_t offset, int rank) override {
        text_ << "ranked " << offset << ' ' << rank << '\n';
    }
    void omitted(std::size_t offset) override { text_ << "omitted " << offset << '\n'; }
    void withinMargin(std::size_t offset) override { text_ << "margin " << offset << '\n'; }
    void firstCovered(Unit kind, std::size_t unit, int pick) override {
        text_ << "covered "
              << "HZT"[static_cast<std::size_t>(kind)] << unit << " by " << pick << '\n';
    }
    void joined(std::size_t offset, int pick, const Additions&) override {
        text_ << "joined " << offset << " as " << pick << '\n';
    }
    void pickOmitted(std::size_t offset) override { text_ << "pick omitted " << offset << '\n'; }
    void ended(const Suite& suite) override { text_ << (suite.Complete ? "complete\n" : "not complete\n"); }

private:
    static char letter(Criterion criterion) { return "HAVFS"[static_cast<std::size_t>(criterion)]; }

    std::ostringstream text_;
};

/// Two species and one unit of each kind; species 0 represents the habitat, species 1 zone and threat.
Landscape pair() {
    Landscape land = emptyLandscape(2, 1, 1, 1);
    land.HabitatLevels = tableOf({{3}, {1}});
    land.ZoneLevels = tableOf({{0}, {2}});
    land.Ratings = {tableOf({{1}, {1}}), tableOf({{0}, {0}}), tableOf({{0}, {3}}), tableOf({{1}, {1}}),
                    tableOf({{1}, {1}})};
    return land;
}

/// Runs a selection that must fail, and returns the failure.
Failure failureOf(const Landscape& land, const Assessment& assessment, Listener* listener = nullptr) {
    Selection selection;
    selection.load(land, assessment);
    TakeTop chooser;
    try {
        selection.start({});
        selection.run(chooser, listener);
    } catch (const Failure& failure) {
        return failure;
    }
    throw std::runtime_error("nothing failed");
}

Failure failureOf(const Landscape& land, Listener* listener = nullptr) {
    Assessment assessment;
    assess(land, assessment);
    return failureOf(land, assessment, listener);
}

TEST(Selection, the_small_landscape) {
    const Outcome outcome = select(smallExample().Landscape, {});
    EXPECT_FALSE(outcome.Failed);
    EXPECT_TRUE(outcome.Suite.Complete);
    EXPECT_THAT(speciesOf(outcome.Suite), ElementsAre(0, 3, 1, 4));
    EXPECT_THAT(outcome.Suite.CoveredBy[Unit::Habitat], ElementsAre(2, 1, 1, 4));
    EXPECT_THAT(outcome.Suite.CoveredBy[Unit::Zone], ElementsAre(1, 1, 2));
    EXPECT_THAT(outcome.Suite.CoveredBy[Unit::Threat], ElementsAre(3, 4, 1));
}

TEST(Selection, the_full_landscape_with_its_answers) {
    const Landscape& land = fullExample().Landscape;
    Assessment assessment;
    assess(land, assessment);
    ScriptedAnswers answers({{Rule::Heterogeneity}, {Rule::SocioEconomics}, {Rule::Heterogeneity}, {{}, 2}});
    const Outcome outcome = select(
        land, assessment, {.Margin = 6, .ThreatRepresentation = 0.4, .ConservationStatus = 0.8}, answers);
    EXPECT_FALSE(outcome.Failed);
    EXPECT_FALSE(outcome.Suite.Complete);
    std::vector<std::string> names;
    for (const std::size_t species : speciesOf(outcome.Suite))
        names.push_back(fullExample().Species[species]);
    EXPECT_THAT(
        names, ElementsAre("Jaguar", "Maned Wolf", "Dorado", "Andean Condor", "Andean Bear", "Military Macaw",
                           "Giant Otter", "Great Fruit-eating Bat", "Torrent Duck"));
    EXPECT_EQ(outcome.Suite.Covered[Unit::Habitat], 11);
    EXPECT_EQ(outcome.Suite.Covered[Unit::Zone], 8);
    EXPECT_EQ(outcome.Suite.Covered[Unit::Threat], 11);
}

TEST(Selection, a_listener_is_told_everything_in_order) {
    Diary diary;
    select(pair(), {.Margin = 0}, &diary);
    EXPECT_EQ(diary.Text(),
              "begun\n"
              "first block 0 1\n"
              "adds 0 H1\nadds 0 Z0\nadds 0 T0\n"
              "adds 1 H0\nadds 1 Z1\nadds 1 T1\n"
              "sorted 1 0\n"
              "ranked 0 1\nranked 1 2\n"
              "margin 0\nmargin 0\n"
              "covered Z0 by 1\ncovered T0 by 1\n"
              "joined 0 as 1\n"
              "block 0\n"
              "adds 0 H1\nadds 0 Z0\nadds 0 T0\n"
              "rescored 0 H6\nrescored 0 V0.5\n"
              "normalised 0 H1\nnormalised 0 V1\naggregate 0 3\n"
              "sorted 0\n"
              "ranked 0 1\n"
              "margin 0\n"
              "covered H0 by 2\n"
              "joined 0 as 2\n"
              "complete\n");
}

TEST(Selection, the_first_pick_is_omitted_with_a_word_when_it_adds_nothing) {
    Landscape land = pair();
    land.ZoneThresholds = {3};
    land.HabitatThresholds = {4};
    land.Ratings.Severity = tableOf({{3}, {0}});
    land.Occupied = {0.5, 1};
    land.Functions.at(1, 0) = 3;
    land.SocioEconomics.at(1, 0) = 2;
    Diary diary;
    const Outcome outcome = select(land, {.Margin = 0}, &diary);
    EXPECT_THAT(diary.Text(), HasSubstr("margin 0\npick omitted 0\nblock 0\n"));
    EXPECT_THAT(speciesOf(outcome.Suite), ElementsAre(0));
    EXPECT_FALSE(outcome.Suite.Complete);
}

TEST(Selection, excluded_species_still_set_the_highest_threat_score) {
    Landscape land = pair();
    land.Ratings.Severity = tableOf({{1}, {3}});
    EXPECT_EQ(select(land, {.ThreatRepresentation = 0.3}).Suite.Covered[Unit::Threat], 1);
    land.Status = {0.5, 1};
    const Levels levels{.ThreatRepresentation = 0.5, .ConservationStatus = 0.9};
    const Outcome outcome = select(land, levels);
    EXPECT_THAT(speciesOf(outcome.Suite), ElementsAre(0));
    EXPECT_EQ(outcome.Suite.Covered[Unit::Threat], 0) << "1 is less than half of 3";
}

TEST(Selection, a_threshold_of_0_and_a_threat_that_touches_nobody_are_represented_by_all) {
    Landscape land = emptyLandscape(1, 1, 1, 1);
    land.HabitatThresholds = {0.5};  // to the even neighbour
    land.ZoneThresholds = {0};
    EXPECT_TRUE(select(land, {}).Suite.Complete);
}

TEST(Selection, a_level_is_compared_as_it_is) {
    Landscape land = emptyLandscape(1, 2, 1, 1);
    land.HabitatLevels = tableOf({{1.9, 2}});
    EXPECT_THAT(select(land, {}).Suite.CoveredBy[Unit::Habitat], ElementsAre(0, 1));
}

TEST(Selection, later_passes_are_measured_by_the_highest_scores_of_the_first_later_one) {
    Diary diary;
    select(smallExample().Landscape, {}, &diary);
    EXPECT_THAT(diary.Text(), HasSubstr("rescored 2 H6\n"));
    EXPECT_THAT(diary.Text(), HasSubstr("normalised 2 H0.6\n")) << "6 of the 10 of the pass before";
}

TEST(Selection, a_level_that_is_no_number_fails_after_what_came_before_it) {
    Landscape land = pair();
    Assessment assessment;
    assess(land, assessment);
    land.ZoneLevels.at(1, 0) = Blank;
    Diary diary;
    const Failure failure = failureOf(land, assessment, &diary);
    EXPECT_EQ(failure.At, Step::UnitsAdded);
    EXPECT_EQ(failure.What, Quantity::ZoneLevel);
    EXPECT_EQ(failure.Row, 1U);
    EXPECT_EQ(failure.Column, 0U);
    EXPECT_EQ(diary.Text(), "begun\nfirst block 0 1\nadds 0 H1\nadds 0 Z0\nadds 0 T0\nadds 1 H0\n");
}

TEST(Selection, a_blank_rating_fails_in_a_later_pass_while_its_threat_is_uncovered) {
    Landscape land = emptyLandscape(2, 2, 1, 2);
    land.HabitatLevels = tableOf({{3, 0}, {0, 2}});
    land.Ratings.Urgency = tableOf({{1, 1}, {1, Blank}});
    land.Ratings.Severity = tableOf({{0, 0}, {1, 3}});
    land.Ratings.Proportion = Table(2, 2, 1.0);
    land.Ratings.Probability = Table(2, 2, 1.0);
    land.Functions.at(0, 0) = 3;
    EXPECT_FALSE(select(land, {}).Failed)
        << "blank counts 0 for the threat scores, so that all represent threat 1";
    land.Ratings.Recovery = tableOf({{0, 0}, {0, 2}});
    const Failure failure = failureOf(land);
    EXPECT_EQ(failure.At, Step::VulnerabilityLeft);
    EXPECT_EQ(failure.What, Quantity::Urgency);
    EXPECT_EQ(failure.Row, 1U);
    EXPECT_EQ(failure.Column, 1U);
}

TEST(Selection, statuses_and_then_thresholds_must_be_numbers_at_the_start) {
    Landscape land = pair();
    Assessment assessment;
    assess(land, assessment);
    const auto startFails = [&] {
        Selection selection;
        selection.load(land, assessment);
        try {
            selection.start({});
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.At, Step::Start);
            return failure;
        }
        throw std::runtime_error("nothing failed");
    };
    land.ZoneThresholds = {1e10};
    EXPECT_EQ(startFails().Why, Cause::TooLarge);
    land.HabitatThresholds = {Blank};
    EXPECT_EQ(startFails().What, Quantity::HabitatThreshold);
    land.Status[1] = Unreadable;
    EXPECT_EQ(startFails().What, Quantity::Status);
}

TEST(Selection, threat_scores_are_looked_through_threat_by_threat) {
    const Landscape land = emptyLandscape(2, 1, 1, 2);
    Assessment assessment;
    assess(land, assessment);
    assessment.Threats.Scores = tableOf({{0, Blank}, {Blank, 0}});
    Diary diary;
    const Failure failure = failureOf(land, assessment, &diary);
    EXPECT_EQ(failure.At, Step::Selection);
    EXPECT_EQ(failure.What, Quantity::ThreatScore);
    EXPECT_EQ(failure.Row, 1U);
    EXPECT_EQ(failure.Column, 0U);
    EXPECT_EQ(diary.Text(), "");
}

TEST(Selection, with_nobody_left_to_pick_it_fails) {
    Landscape land = pair();
    land.Status = {2, 2};
    Diary diary;
    const Failure failure = failureOf(land, &diary);
    EXPECT_EQ(failure.At, Step::Selection);
    EXPECT_EQ(failure.Why, Cause::NoRow);
    EXPECT_EQ(failure.Row, 0U);
    EXPECT_EQ(failure.Column, 0U);
    EXPECT_EQ(diary.Text(), "begun\nfirst block\nsorted\n");
}

TEST(Selection, an_aggregate_that_is_no_number_comes_last_and_fails_at_the_margin) {
    const Landscape land = emptyLandscape(3, 1, 1, 1);
    Assessment assessment;
    assess(land, assessment);
    assessment.Species.Aggregate = {Blank, 1, 2};
    Diary diary;
    const Failure failure = failureOf(land, assessment, &diary);
    EXPECT_EQ(failure.At, Step::Margin);
    EXPECT_EQ(failure.What, Quantity::Aggregate);
    EXPECT_EQ(failure.Row, 2U);
    EXPECT_THAT(diary.Text(), HasSubstr("sorted 2 1 0\n"));
}

TEST(Selection, a_score_that_is_no_number_fails_where_a_later_pass_adds_it) {
    const Landscape land = pair();
    Assessment assessment;
    assess(land, assessment);
    assessment.Species.Normalised[0][Criterion::Area] = Unreadable;
    Selection selection;
    selection.load(land, assessment);
    selection.start({.Margin = 0});
    TakeTop chooser;
    Diary diary;
    try {
        selection.run(chooser, &diary);
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.At, Step::Selection);
        EXPECT_EQ(failure.What, Quantity::Score);
        EXPECT_EQ(failure.Row, 0U);
        EXPECT_EQ(failure.Column, static_cast<std::size_t>(Criterion::Area));
    }
    EXPECT_THAT(diary.Text(), EndsWith("normalised 0 H1\nnormalised 0 V1\n"));
}

/// The second and the third species stand equal in the second pass; in the third pass one of them is left.
TEST(Selection, a_single_species_left_keeps_the_count_of_an_earlier_margin) {
    Landscape land = emptyLandscape(3, 3, 1, 1);
    land.HabitatLevels = tableOf({{3, 0, 0}, {0, 3, 0}, {0, 0, 3}});
    land.Occupied = {0.5, 0.1, 0.1};
    const Outcome outcome = select(land, {.Margin = 0});
    EXPECT_TRUE(outcome.Failed) << "the old count reaches past the block";
    EXPECT_THAT(speciesOf(outcome.Suite), ElementsAre(0, 1));
}

TEST(Selection, one_that_failed_is_not_complete) {
    const Outcome outcome = select(emptyLandscape(2, 1, 1, 1), {});
    EXPECT_TRUE(outcome.Failed);
    EXPECT_FALSE(outcome.Suite.Complete);
}

/// Words of 64 units: one that is full, and one that is not.
TEST(Selection, more_units_of_a_kind_than_a_word_holds) {
    constexpr std::size_t Units = 70;
    Landscape land = emptyLandscape(Units + 1, Units, Units, Units);
    land.Ratings = {Table(Units + 1, Units, 1.0), Table(Units + 1, Units, 0.0), Table(Units + 1, Units, 0.0),
                    Table(Units + 1, Units, 1.0), Table(Units + 1, Units, 1.0)};
    for (std::size_t unit = 0; unit < Units; ++unit) {
        land.HabitatLevels.at(unit, unit) = 3;
        land.ZoneLevels.at(Units - unit, unit) = 3;
        land.Ratings.Severity.at(unit, unit) = 3;
    }
    const Outcome outcome = select(land, {.Margin = 0, .ThreatRepresentation = 1});
    EXPECT_TRUE(outcome.Suite.Complete);
    EXPECT_EQ(outcome.Suite.Picks.size(), Units + 1);
    for (const Unit kind : {Unit::Habitat, Unit::Threat}) {
        for (std::size_t unit = 0; unit < Units; ++unit) {
            const auto pick = static_cast<std::size_t>(outcome.Suite.CoveredBy[kind][unit]) - 1;
            EXPECT_EQ(outcome.Suite.Picks[pick].Species, unit);
        }
    }
}

TEST(Selection, a_landscape_that_is_loaded_after_another_one_is_selected_from_alike) {
    Landscape weak = pair();
    weak.Ratings.Severity = tableOf({{0}, {1}});
    Selection selection;
    for (const Landscape& land : {pair(), weak}) {
        Assessment assessment;
        assess(land, assessment);
        selection.load(land, assessment);
        selection.start({});
        TakeTop chooser;
        selection.run(chooser);
        EXPECT_EQ(selection.suite().CoveredBy[Unit::Threat], select(land, {}).Suite.CoveredBy[Unit::Threat]);
    }
}

TEST(Selection, an_omitted_species_may_be_chosen_and_is_dropped_without_a_word) {
    struct TakeFirstRow : Chooser {
        std::size_t choose(const MarginBand&) override { return 0; }
    } chooser;
    // Species 1 stands first in the second pass and adds nothing there; all others lie within the margin.
    Landscape land = emptyLandscape(5, 4, 1, 1);
    land.HabitatLevels = tableOf({{3, 0, 0, 0}, {0, 0, 0, 0}, {0, 2, 0, 0}, {0, 0, 2, 0}, {0, 0, 0, 2}});
    for (std::size_t s = 0; s < 5; ++s) land.Functions.at(s, 0) = s < 2 ? 3 : 1;
    land.Dispersal = {1, 1, 0, 0, 0};
    land.Connectivity = {1, 1, 0, 0, 0};
    Assessment assessment;
    assess(land, assessment);
    Diary diary;
    const Outcome outcome = select(land, assessment, {.Margin = 100}, chooser, &diary);
    EXPECT_THAT(diary.Text(), HasSubstr("block 1 2 3 4\n"));
    EXPECT_THAT(diary.Text(), HasSubstr("omitted 0\n"));
    EXPECT_THAT(diary.Text(), HasSubstr("margin 1\nblock 2 3 4\n")) << "no covered, no joined, no word";
    EXPECT_THAT(diary.Text(), HasSubstr("joined 0 as 2\n"));
    EXPECT_THAT(speciesOf(outcome.Suite), ElementsAre(0, 2, 3));
    EXPECT_FALSE(outcome.Failed)
        << "the dropped species counts twice, so that the race ends with one left in it";
}

/// Remembers which rows of the first pass lie within the margin, and how many a chooser is told.
class MarginWatch : public Listener, public Chooser {
public:
    MarginWatch(const std::vector<double>& aggregates, double margin) {
        const Landscape land = emptyLandscape(aggregates.size(), 1, 1, 1);
        Assessment assessment;
        assess(land, assessment);
        assessment.Species.Aggregate = aggregates;
        select(land, assessment, {.Margin = margin}, *this, this);
    }

    std::vector<std::size_t> Rows;
    std::size_t Count = 0;

private:
    void withinMargin(std::size_t offset) override {
        if (!chosen_) Rows.push_back(offset);
    }
    std::size_t choose(const MarginBand& band) override {
        if (!chosen_) Count = band.Count;
        chosen_ = true;
        return band.Top;
    }
    void pickOmitted(std::size_t) override { chosen_ = true; }
    void joined(std::size_t, int, const Additions&) override { chosen_ = true; }

    bool chosen_ = false;
};

TEST(Margin, is_a_percentage_of_the_top_aggregate) {
    const MarginWatch watch({2.999, 4, 3}, 25);
    EXPECT_EQ(watch.Count, 1U);
    EXPECT_THAT(watch.Rows, ElementsAre(0, 1, 0)) << "the top row is told again as the pick";
}

TEST(Margin, of_0_takes_in_equal_aggregates_alone) {
    EXPECT_EQ(MarginWatch({4, 4, 3.999}, 0).Count, 1U);
    EXPECT_EQ(MarginWatch({4, 3.999, 3.998}, 0).Count, 0U);
}

TEST(Margin, of_100_takes_in_every_aggregate_from_0_on) {
    EXPECT_EQ(MarginWatch({4, 2, 0, -0.001}, 100).Count, 2U);
}

TEST(Margin, of_a_top_aggregate_of_0_is_a_band_of_0) { EXPECT_EQ(MarginWatch({0, 0, -1}, 100).Count, 1U); }

TEST(Margin, starts_at_the_top_species_in_the_race_and_counts_omitted_ones_below_it) {
    struct Watch : TakeTop {
        std::size_t choose(const MarginBand& band) override {
            Bands.emplace_back(band.Top, band.Count);
            return TakeTop::choose(band);
        }
        std::vector<std::pair<std::size_t, std::size_t>> Bands;
    } chooser;
    // In the second pass species 3, which leads, and 1, which comes last, add nothing.
    Landscape land = emptyLandscape(5, 3, 1, 1);
    land.HabitatLevels = tableOf({{3, 0, 0}, {0, 0, 0}, {0, 2, 0}, {0, 1, 0}, {0, 0, 2}});
    for (std::size_t s = 0; s < 5; ++s) land.Functions.at(s, 0) = s == 1 || s == 3 ? 3 : 1;
    land.Functions.at(0, 0) = 3;
    land.Dispersal = {1, 1, 0, 0, 0};
    Diary diary;
    Assessment assessment;
    assess(land, assessment);
    select(land, assessment, {.Margin = 100}, chooser, &diary);
    EXPECT_THAT(diary.Text(), HasSubstr("sorted 3 2 4 1\n"));
    EXPECT_THAT(diary.Text(), HasSubstr("omitted 3\nmargin 1\nmargin 2\nmargin 1\n"));
    ASSERT_GE(chooser.Bands.size(), 2U);
    EXPECT_THAT(chooser.Bands[1], testing::Pair(1, 2));
}

TEST(Selection, what_a_listener_or_a_chooser_throws_passes_through) {
    struct Refuses : Listener {
        void sorted(const Block&) override { throw std::runtime_error("no more"); }
    } refuses;
    EXPECT_THROW(select(pair(), {}, &refuses), std::runtime_error);
}

TEST(Selection, one_preparation_serves_any_number_of_runs) {
    const Landscape& land = smallExample().Landscape;
    Assessment assessment;
    assess(land, assessment);
    Selection selection;
    selection.load(land, assessment);
    TakeTop chooser;
    for (const double representation : {1.0, 0.5, 0.0, 0.5}) {
        const Levels levels{.ThreatRepresentation = representation};
        selection.start(levels);
        selection.run(chooser);
        const Suite fresh = select(land, levels).Suite;
        EXPECT_EQ(speciesOf(selection.suite()), speciesOf(fresh)) << representation;
        EXPECT_EQ(selection.suite().CoveredBy, fresh.CoveredBy) << representation;
    }
}

}  // namespace
