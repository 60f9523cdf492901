// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/margin.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <numeric>

namespace {

using namespace method;
using testing::ElementsAre;

/// A block of species in order, whose heterogeneity, vulnerability and socio-economic score are set one by one.
class Band : public testing::Test {
protected:
    explicit Band(std::size_t size = 4) : Order(size), Rows(size), Removed(size) {
        std::iota(Order.begin(), Order.end(), 0U);
        for (BlockRow& row : Rows) {
            row.Aggregate = 1;
            for (std::size_t i = 0; i < Criteria; ++i) row.Scores[i] = 0;
        }
    }
    void set(Criterion criterion, const std::vector<double>& scores) {
        for (std::size_t i = 0; i < scores.size(); ++i) Rows[i].Scores[criterion] = scores[i];
    }
    Decision decided(Rule rule, std::size_t top, std::size_t count) const {
        const Block block(Order, Rows, Removed);
        return decide({block, top, count}, rule);
    }
    std::size_t chosen(std::vector<Answer> answers, std::size_t top, std::size_t count) const {
        const Block block(Order, Rows, Removed);
        ScriptedAnswers chooser(std::move(answers));
        return chooser.choose({block, top, count});
    }
    std::vector<std::size_t> shown(std::size_t top, std::size_t count) const {
        const Block block(Order, Rows, Removed);
        return listed({block, top, count});
    }

    std::vector<std::uint32_t> Order;
    std::vector<BlockRow> Rows;
    std::vector<std::uint8_t> Removed;
};

TEST_F(Band, the_top_row_and_those_in_the_race_are_listed) {
    Removed[2] = 1;
    EXPECT_THAT(shown(0, 3), ElementsAre(0, 1, 3));
    EXPECT_THAT(shown(1, 1), ElementsAre(1));
}

TEST_F(Band, a_count_that_reaches_past_the_block_fails) {
    try {
        shown(1, 3);
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.At, Step::Choice);
        EXPECT_EQ(failure.Why, Cause::NoRow);
        EXPECT_EQ(failure.Row, 4U);
    }
}

TEST_F(Band, a_listed_score_must_be_a_number) {
    Rows[1].Scores[Criterion::SocioEconomics] = Blank;
    EXPECT_THROW(shown(0, 1), Failure);
    Removed[1] = 1;
    EXPECT_THAT(shown(0, 1), ElementsAre(0));
}

TEST_F(Band, the_last_row_that_beats_the_first_wins) {
    set(Criterion::Heterogeneity, {0.5, 0.9, 0.6, 0.4});
    EXPECT_EQ(decided(Rule::Heterogeneity, 0, 3).Row, 2U);
    EXPECT_FALSE(decided(Rule::Heterogeneity, 0, 3).Tie);
    set(Criterion::Vulnerability, {0.5, 0.4, 0.3, 0.2});
    EXPECT_EQ(decided(Rule::Threats, 0, 3).Row, 0U);
}

TEST_F(Band, the_first_row_is_the_measure_though_it_was_omitted) {
    Removed[0] = 1;
    set(Criterion::Heterogeneity, {0.5, 0.1, 0.4, 0});
    EXPECT_EQ(decided(Rule::Heterogeneity, 1, 1).Row, 0U);
    EXPECT_EQ(decided(Rule::Aggregate, 1, 1).Row, 1U);
}

TEST_F(Band, socio_economics_look_at_the_second_row_alone) {
    set(Criterion::SocioEconomics, {0.5, 0.6, 0.1, 0.1});
    EXPECT_EQ(decided(Rule::SocioEconomics, 0, 3).Row, 3U);
    set(Criterion::SocioEconomics, {0.5, 0.4, 0.9, 0.9});
    EXPECT_EQ(decided(Rule::SocioEconomics, 0, 3).Row, 0U);
    set(Criterion::SocioEconomics, {0.5, 0.5, 0.9, 0.9});
    EXPECT_TRUE(decided(Rule::SocioEconomics, 0, 3).Tie);
}

TEST_F(Band, an_equal_value_is_a_tie_though_another_row_beats_the_first) {
    set(Criterion::Heterogeneity, {0.5, 0.5, 0.9, 0});
    EXPECT_TRUE(decided(Rule::Heterogeneity, 0, 2).Tie);
    EXPECT_TRUE(decided(Rule::Number, 0, 2).Tie);
}

TEST_F(Band, a_planner_who_names_one_has_the_first_row_until_then) {
    const Decision decision = decided(Rule::Number, 1, 2);
    EXPECT_TRUE(decision.Tie);
    EXPECT_EQ(decision.Row, 0U);
}

TEST_F(Band, a_single_listed_species_is_taken_without_a_question) {
    Removed[1] = 1;
    EXPECT_EQ(chosen({{}}, 0, 1), 0U);
}

TEST_F(Band, answers_are_used_in_order_and_then_the_top_is_taken) {
    EXPECT_EQ(chosen({}, 1, 2), 1U);
    EXPECT_EQ(chosen({{Rule::Number}, {{}, 3}}, 0, 3), 2U);
    EXPECT_EQ(chosen({{Rule::Number}}, 0, 3), 0U) << "the second question takes 1";
}

TEST_F(Band, numbers_count_rows_that_were_omitted) {
    Removed[2] = 1;
    EXPECT_EQ(chosen({{Rule::Number}, {{}, 2}}, 1, 2), 2U) << "the second that is shown is row 3";
    EXPECT_EQ(chosen({{Rule::Number}, {{}, 3}}, 1, 2), 3U);
}

TEST_F(Band, an_answer_that_is_not_understood_takes_the_first_row) {
    Removed[0] = 1;
    EXPECT_EQ(chosen({{}}, 1, 2), 0U);
    EXPECT_EQ(chosen({{Rule::Number}, {}}, 1, 2), 0U);
    EXPECT_EQ(chosen({{Rule::Number}, {{}, 4}}, 1, 2), 0U);
    EXPECT_EQ(chosen({{Rule::Number}, {{}, 0}}, 1, 2), 0U);
}

}  // namespace
