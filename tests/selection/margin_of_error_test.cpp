// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/selection.h"
#include "selection_test.h"

using modBrenicaUtilities::Check4ErrorMargin;
using modBrenicaUtilities::SelectErrorMarginSpecies;
using testing::ElementsAre;

namespace {

constexpr int Start = 3;  // first row of the block, below an earlier one

struct BlockRow {
    const char* Name;
    const char* Aggregate;
    const char* Heterogeneity = "0";
    const char* Threats = "0";
    const char* SocioEcon = "0";
    const char* AddHabitats = "0";
    const char* AddZones = "0";
    const char* AddThreats = "0";
};

}  // namespace

/// The two steps on a block that is filled by hand, candidate i being its i-th row.
class MarginOfError : public SelectionTest {
protected:
    void fill(const std::vector<BlockRow>& rows) {
        ui::Grid& grid = results();
        size_ = static_cast<int>(rows.size());
        grid.Rows(Start + size_ + 1);
        for (int i = 0; i < size_; ++i) {
            const BlockRow& row = rows[static_cast<std::size_t>(i)];
            const char* texts[] = {row.Name,      "",  row.Aggregate, row.Heterogeneity, "0",
                                   row.Threats,   "0", row.SocioEcon, row.AddHabitats,   row.AddZones,
                                   row.AddThreats};
            for (int col = 0; col < 11; ++col) grid.TextMatrix(Start + i, col, texts[col]);
            grid.TextMatrix(Start + i, result::Candidate, std::to_string(i + 1));
        }
        removed_.assign(rows.size(), false);
    }
    void remove(int candidate) { removed_[static_cast<std::size_t>(candidate) - 1] = true; }

    int check(double margin) { return Check4ErrorMargin(margin, results(), Start, size_, removed_, offset_); }

    /// The row in the block, from 1, that is picked of the top row at `offset` and `count` rows below.
    int pick(int offset, int count, const std::vector<std::string>& answers) {
        platform.Answers.assign(answers.begin(), answers.end());
        platform.Transcript.clear();
        return SelectErrorMarginSpecies(platform, results(), Start, offset, count, removed_) - Start + 1;
    }

    std::vector<int> greenRows() {
        std::vector<int> rows;
        for (int i = 0; i < size_; ++i) {
            if (colourOf(Start + i, 0) == MarginGreen) rows.push_back(i + 1);
        }
        return rows;
    }

    int offset_ = -1;
    int size_ = 0;
    Flags removed_;
};

TEST_F(MarginOfError, IsAPercentageOfTheTopScore) {
    fill({{"A", "4"}, {"B", "3"}, {"C", "2.999"}});
    EXPECT_EQ(check(25), 1);
    EXPECT_EQ(offset_, 0);
    EXPECT_THAT(greenRows(), ElementsAre(1, 2));
}

TEST_F(MarginOfError, OfZeroCountsOnlyEqualScores) {
    fill({{"A", "4"}, {"B", "4"}, {"C", "3.999"}});
    EXPECT_EQ(check(0), 1);
    EXPECT_THAT(greenRows(), ElementsAre(1, 2));
}

TEST_F(MarginOfError, OfAHundredCountsEveryScoreFromZeroOn) {
    fill({{"A", "4"}, {"B", "2"}, {"C", "0"}, {"D", "-0.001"}});
    EXPECT_EQ(check(100), 2);
    EXPECT_THAT(greenRows(), ElementsAre(1, 2, 3));
}

TEST_F(MarginOfError, OfATopScoreOfZeroIsABandOfZero) {
    fill({{"A", "0"}, {"B", "0"}, {"C", "-1"}});
    EXPECT_EQ(check(100), 1);
}

TEST_F(MarginOfError, StartsAtTheTopSurvivingSpecies) {
    fill({{"A", "9"}, {"B", "8"}, {"C", "4"}, {"D", "3"}, {"E", "1"}});
    remove(1);
    remove(2);
    EXPECT_EQ(check(25), 1);
    EXPECT_EQ(offset_, 2);
    EXPECT_THAT(greenRows(), ElementsAre(3, 4));
}

TEST_F(MarginOfError, CountsAnOmittedSpeciesInTheBandAndDoesNotPaintIt) {
    fill({{"A", "4"}, {"B", "4"}, {"C", "4"}});
    remove(2);
    EXPECT_EQ(check(0), 2);
    EXPECT_THAT(greenRows(), ElementsAre(1, 3));
}

TEST_F(MarginOfError, FailsWhereNoSpeciesSurvives) {
    fill({{"A", "4"}});
    remove(1);
    const ui::RunTimeError error = failureOf([&] { check(5); });
    EXPECT_EQ(error.Description, reportOf("BrenicaUtilities.Check4ErrorMargin", 13, "Type mismatch"));
}

TEST_F(MarginOfError, ShowsTheSpeciesAndTheirScoresInTheFirstDialogue) {
    fill({{"Otter", "4.12345", "0.5", "1", "0.25", "2", "1", "0"},
          {"Badger", "4", "0.33333", "0.1234", "1", "0", "3", "4"},
          {"Adder", "3.9", "0", "0", "0.5", "5", "0", "1"}});
    EXPECT_EQ(pick(0, 2, {"a"}), 1);
    ASSERT_EQ(platform.Transcript.size(), 1U);
    EXPECT_EQ(lastBox().BoxKind, ShownBox::Kind::Input);
    EXPECT_EQ(lastBox().Title, "Species with aggregate score within the set margin of error");
    EXPECT_EQ(lastBox().Text,
              "To select between \r"
              "{Otter; Badger; Adder}\r"
              "use either (scores for each species shown in brackets):\r"
              "(a)   the aggregate score {4.123; 4; 3.9}\r"
              "(b)   the heterogeneity score {0.5; 0.333; 0}\r"
              "(c)   the threats score {1; 0.123; 0}\r"
              "(d)   the socio-economic value or {0.25; 1; 0.5}\r"
              "(e)   select the species yourself\r"
              "\r"
              "NOTE: Each species covers\r"
              "      {2; 0; 5} additional habitats\r"
              "      {1; 3; 0} additional management zones\r"
              "      {0; 4; 1} additional threats\r");
}

TEST_F(MarginOfError, ProposesTheAggregateScore) {
    fill({{"A", "4", "0"}, {"B", "4", "1"}});
    EXPECT_EQ(pick(0, 1, {}), 1);
    EXPECT_EQ(lastBox().Answer, "a");
}

TEST_F(MarginOfError, LeavesRemovedSpeciesOutOfTheDialogue) {
    fill({{"Top", "5"}, {"Otter", "4"}, {"Badger", "4"}, {"Adder", "4"}});
    remove(1);
    remove(3);
    pick(1, 2, {"a"});
    EXPECT_THAT(lastBox().Text, testing::HasSubstr("\r{Otter; Adder}\r"));
}

TEST_F(MarginOfError, AsksNothingWhereOnlyOmittedSpeciesAreInTheBand) {
    fill({{"Top", "5"}, {"Otter", "4"}, {"Badger", "4"}});
    remove(1);
    remove(3);
    EXPECT_EQ(pick(1, 1, {"e"}), 2);
    EXPECT_THAT(platform.Transcript, testing::IsEmpty());
}

TEST_F(MarginOfError, AnswersAreTrimmedAndTakenInAnyCase) {
    fill({{"A", "4", "1", "1", "1"}, {"B", "4", "2", "0", "0"}});
    EXPECT_EQ(pick(0, 1, {"A"}), 1);
    EXPECT_EQ(pick(0, 1, {" b "}), 2);
    EXPECT_EQ(pick(0, 1, {"B"}), 2);
    EXPECT_EQ(pick(0, 1, {" C"}), 1);
    EXPECT_EQ(pick(0, 1, {"D "}), 1);
    EXPECT_EQ(pick(0, 1, {"E", "2"}), 2);
}

TEST_F(MarginOfError, AnyOtherAnswerAddsTheFirstSpeciesWithAMessage) {
    fill({{"A", "4"}, {"B", "4", "9", "9", "9"}});
    for (const char* answer : {"", "x", "f", "ab", "1"}) {
        SCOPED_TRACE(answer);
        EXPECT_EQ(pick(0, 1, {answer}), 1);
        ASSERT_EQ(platform.Transcript.size(), 2U);
        EXPECT_EQ(lastBox().Title, "Invalid value");
        EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Exclamation);
        EXPECT_EQ(lastBox().Text,
                  "The option entered was invalid. The first species will be added to the suite.");
    }
}

TEST_F(MarginOfError, TheFirstSpeciesOfAnInvalidAnswerIsTheFirstRowOfTheBlock) {
    fill({{"Omitted", "5"}, {"B", "4"}, {"C", "4"}});
    remove(1);
    EXPECT_EQ(pick(1, 1, {"x"}), 1);
    EXPECT_EQ(pick(1, 1, {"e", "x"}), 1);
    EXPECT_EQ(pick(1, 1, {"a"}), 2);
}

TEST_F(MarginOfError, ComparesOnHeterogeneityOrThreats) {
    struct Case {
        const char* What;
        std::vector<const char*> Values;
        int Picked;
        bool Tie;
    };
    const Case cases[] = {
        {"none beats the first", {"3", "1", "2"}, 1, false},
        {"one beats the first", {"3", "4", "2"}, 2, false},
        {"the last that beats it, not the best", {"3", "9", "4"}, 3, false},
        {"equal to the first", {"3", "1", "3"}, 2, true},
        {"equal to each other", {"3", "4", "4"}, 3, false},
        {"a tie beside one that beats it", {"3", "9", "3"}, 2, true},
    };
    for (const char* answer : {"b", "c"}) {
        for (const Case& c : cases) {
            SCOPED_TRACE(std::string(answer) + ": " + c.What);
            std::vector<BlockRow> rows;
            for (const char* value : c.Values) {
                const bool heterogeneity = std::string(answer) == "b";
                rows.push_back({"S", "4", heterogeneity ? value : "7", heterogeneity ? "7" : value});
            }
            fill(rows);
            EXPECT_EQ(pick(0, 2, {answer, "2"}), c.Picked);
            EXPECT_EQ(platform.Transcript.size(), c.Tie ? 2U : 1U);
        }
    }
}

TEST_F(MarginOfError, TheReferenceIsTheFirstRowOfTheBlockEvenIfItWasOmitted) {
    fill({{"Omitted", "5", "9"}, {"B", "4", "1"}, {"C", "4", "2"}});
    remove(1);
    EXPECT_EQ(pick(1, 1, {"b"}), 1);
}

TEST_F(MarginOfError, ComparingDoesNotSkipRemovedSpecies) {
    fill({{"A", "4", "1"}, {"Omitted", "4", "2"}, {"C", "4", "0"}});
    remove(2);
    EXPECT_EQ(pick(0, 2, {"b"}), 2);
}

TEST_F(MarginOfError, ComparingOnSocioEconomicsLooksAtTheSecondRowThroughout) {
    fill({{"A", "4", "0", "0", "2"}, {"B", "4", "0", "0", "3"}, {"C", "4", "0", "0", "1"}});
    EXPECT_EQ(pick(0, 2, {"d"}), 3);
    EXPECT_EQ(platform.Transcript.size(), 1U);

    fill({{"A", "4", "0", "0", "2"}, {"B", "4", "0", "0", "1"}, {"C", "4", "0", "0", "9"}});
    EXPECT_EQ(pick(0, 2, {"d"}), 1);
    EXPECT_EQ(platform.Transcript.size(), 1U);

    fill({{"A", "4", "0", "0", "2"}, {"B", "4", "0", "0", "2"}, {"C", "4", "0", "0", "9"}});
    EXPECT_EQ(pick(0, 2, {"d", "3"}), 3);
    EXPECT_EQ(platform.Transcript.size(), 2U);
}

TEST_F(MarginOfError, ListsTheSpeciesByNumberInTheSecondDialogue) {
    fill({{"Otter", "4"}, {"Badger", "4"}, {"Adder", "4"}});
    EXPECT_EQ(pick(0, 2, {"e"}), 1);
    ASSERT_EQ(platform.Transcript.size(), 2U);
    EXPECT_EQ(lastBox().BoxKind, ShownBox::Kind::Input);
    EXPECT_EQ(lastBox().Title, "Select the species within the margin or error");
    EXPECT_EQ(lastBox().Text, "Enter the number of the candidate species\r1: Otter\r2: Badger\r3: Adder\r");
    EXPECT_EQ(lastBox().Answer, "1");
}

TEST_F(MarginOfError, TakesTheRowOfTheNumberTyped) {
    fill({{"Omitted", "5"}, {"Otter", "4"}, {"Badger", "4"}, {"Adder", "4"}});
    remove(1);
    EXPECT_EQ(pick(1, 2, {"e", "1"}), 2);
    EXPECT_EQ(pick(1, 2, {"e", " 2 "}), 3);
    EXPECT_EQ(pick(1, 2, {"e", "3"}), 4);
}

TEST_F(MarginOfError, TheNumbersShownSkipRemovedSpeciesAndTheRowsTakenDoNot) {
    fill({{"Otter", "4"}, {"Omitted", "4"}, {"Adder", "4"}});
    remove(2);
    EXPECT_EQ(pick(0, 2, {"e", "2"}), 2);
    EXPECT_EQ(lastBox().Text, "Enter the number of the candidate species\r1: Otter\r2: Adder\r");
    EXPECT_EQ(pick(0, 2, {"e", "3"}), 3);
}

TEST_F(MarginOfError, AnUnknownNumberAddsTheFirstSpeciesWithAMessage) {
    fill({{"A", "4"}, {"B", "4"}});
    for (const char* answer : {"", "0", "3", "1.0", "B", "-1"}) {
        SCOPED_TRACE(answer);
        EXPECT_EQ(pick(0, 1, {"e", answer}), 1);
        ASSERT_EQ(platform.Transcript.size(), 3U);
        EXPECT_EQ(lastBox().Title, "Invalid value");
        EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Exclamation);
        EXPECT_EQ(lastBox().Text,
                  "The species number entered was invalid. The first species will be added to the suite.");
    }
}

TEST_F(MarginOfError, ReportsAScoreThatIsNoNumber) {
    fill({{"A", "4"}, {"B", "4", "much"}});
    const ui::RunTimeError error = failureOf([&] { pick(0, 1, {"b"}); });
    EXPECT_EQ(error.Description, reportOf("BrenicaUtilities.SelectErrorMarginSpecies", 13, "Type mismatch"));
}

TEST_F(MarginOfError, AsksForEachPassOnItsOwn) {
    openForSelection(leaderAddsNothing());
    type(form.txtErrorMargin, "100");
    select({"a", "x", "a"});
    const auto prompts = textsOf("Species with aggregate score within the set margin of error");
    ASSERT_EQ(prompts.size(), 3U);
    EXPECT_THAT(prompts[0], testing::HasSubstr("{Species 1; Species 2; Species 3; Species 4}"));
    EXPECT_THAT(prompts[1], testing::HasSubstr("{Species 3; Species 4}"));
    EXPECT_THAT(prompts[2], testing::HasSubstr("{Species 3; Species 4}"));
}
