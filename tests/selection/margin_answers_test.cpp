// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/margin_answers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using method::Rule;
using testing::Eq;
using testing::Optional;

TEST(AnAnswer, NamesARuleInAnyCaseWithBlanksAround) {
    EXPECT_THAT(ruleOf("a"), Optional(Rule::Aggregate));
    EXPECT_THAT(ruleOf(" B "), Optional(Rule::Heterogeneity));
    EXPECT_THAT(ruleOf("c"), Optional(Rule::Threats));
    EXPECT_THAT(ruleOf("D"), Optional(Rule::SocioEconomics));
    EXPECT_THAT(ruleOf("e"), Optional(Rule::Number));
    for (const char* none : {"", "f", "ab", "\ta", "1"}) EXPECT_THAT(ruleOf(none), Eq(std::nullopt)) << none;
}

TEST(AnAnswer, NamesASpeciesByItsPlainNumber) {
    EXPECT_THAT(speciesNumberOf("1"), Optional(1u));
    EXPECT_THAT(speciesNumberOf(" 20  "), Optional(20u));
    for (const char* none : {"", "0", "-1", "+1", "01", "1.0", "1 2", "a", "\t1", "99999999999999999999999"})
        EXPECT_THAT(speciesNumberOf(none), Eq(std::nullopt)) << none;
}

TEST(Answers, AreUnderstoodBothWays) {
    const auto answers = marginAnswers({"b", "2", "x"});
    ASSERT_EQ(answers.size(), 3u);
    EXPECT_THAT(answers[0].Way, Optional(Rule::Heterogeneity));
    EXPECT_THAT(answers[0].Number, Eq(std::nullopt));
    EXPECT_THAT(answers[1].Way, Eq(std::nullopt));
    EXPECT_THAT(answers[1].Number, Optional(2u));
    EXPECT_THAT(answers[2].Way, Eq(std::nullopt));
    EXPECT_THAT(answers[2].Number, Eq(std::nullopt));
}
