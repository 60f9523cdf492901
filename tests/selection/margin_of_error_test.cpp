// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/selection.h"
#include "selection_test.h"

using modBrenicaUtilities::SelectErrorMarginSpecies;

namespace {

constexpr int Start = 3;  // first row of the block, below an earlier one

struct BandRow {
    const char* Name;
    double Aggregate;
    double Heterogeneity = 0;
    double Threats = 0;
    double SocioEcon = 0;
    method::PerKind<int> Adds{};
};

method::PerKind<int> adds(int habitats, int zones, int threats) {
    method::PerKind<int> units;
    units[method::Unit::Habitat] = habitats;
    units[method::Unit::Zone] = zones;
    units[method::Unit::Threat] = threats;
    return units;
}

}  // namespace

/// The dialogues on a block that is filled by hand.
class MarginOfError : public SelectionTest {
protected:
    void fill(const std::vector<BandRow>& rows) {
        results().Rows(Start + static_cast<int>(rows.size()) + 1);
        order_.clear();
        rows_.clear();
        for (const BandRow& row : rows) {
            const auto species = static_cast<std::uint32_t>(rows_.size());
            results().TextMatrix(Start + static_cast<int>(species), result::Name, row.Name);
            order_.push_back(species);
            method::BlockRow& filled = rows_.emplace_back();
            filled.Species = species;
            filled.Aggregate = row.Aggregate;
            filled.Scores[method::Criterion::Heterogeneity] = row.Heterogeneity;
            filled.Scores[method::Criterion::Vulnerability] = row.Threats;
            filled.Scores[method::Criterion::SocioEconomics] = row.SocioEcon;
            filled.Adds = row.Adds;
        }
        removed_.assign(rows.size(), 0);
    }
    /// Takes a row, from 1, out of the race.
    void remove(std::size_t row) { removed_[row - 1] = 1; }

    /// The row in the block, from 1, that is picked of the top row at `offset` and `count` rows below.
    int pick(std::size_t offset, std::size_t count, const std::vector<std::string>& answers) {
        platform.Answers.assign(answers.begin(), answers.end());
        platform.Transcript.clear();
        const method::Block block(order_, rows_, removed_);
        return static_cast<int>(
                   SelectErrorMarginSpecies(platform, results(), Start, {block, offset, count}, given)) +
               1;
    }

    std::vector<std::string> given;
    std::vector<std::uint32_t> order_;
    std::vector<method::BlockRow> rows_;
    std::vector<std::uint8_t> removed_;
};

TEST_F(MarginOfError, ShowsTheSpeciesAndTheirScoresInTheFirstDialogue) {
    fill({{"Otter", 4.12345, 0.5, 1, 0.25, adds(2, 1, 0)},
          {"Badger", 4, 0.33333, 0.1234, 1, adds(0, 3, 4)},
          {"Adder", 3.9, 0, 0, 0.5, adds(5, 0, 1)}});
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
    fill({{"A", 4, 0}, {"B", 4, 1}});
    EXPECT_EQ(pick(0, 1, {}), 1);
    EXPECT_EQ(lastBox().Answer, "a");
}

TEST_F(MarginOfError, LeavesRemovedSpeciesOutOfTheDialogue) {
    fill({{"Top", 5}, {"Otter", 4}, {"Badger", 4}, {"Adder", 4}});
    remove(1);
    remove(3);
    pick(1, 2, {"a"});
    EXPECT_THAT(lastBox().Text, testing::HasSubstr("\r{Otter; Adder}\r"));
}

TEST_F(MarginOfError, AsksNothingWhereOnlyOmittedSpeciesAreInTheBand) {
    fill({{"Top", 5}, {"Otter", 4}, {"Badger", 4}});
    remove(1);
    remove(3);
    EXPECT_EQ(pick(1, 1, {"e"}), 2);
    EXPECT_THAT(platform.Transcript, testing::IsEmpty());
}

TEST_F(MarginOfError, AnswersAreTrimmedAndTakenInAnyCase) {
    fill({{"A", 4, 1, 1, 1}, {"B", 4, 2, 0, 0}});
    EXPECT_EQ(pick(0, 1, {"A"}), 1);
    EXPECT_EQ(pick(0, 1, {" b "}), 2);
    EXPECT_EQ(pick(0, 1, {"B"}), 2);
    EXPECT_EQ(pick(0, 1, {" C"}), 1);
    EXPECT_EQ(pick(0, 1, {"D "}), 1);
    EXPECT_EQ(pick(0, 1, {"E", "2"}), 2);
}

TEST_F(MarginOfError, AnyOtherAnswerAddsTheFirstSpeciesWithAMessage) {
    fill({{"A", 4}, {"B", 4, 9, 9, 9}});
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
    fill({{"Omitted", 5}, {"B", 4}, {"C", 4}});
    remove(1);
    EXPECT_EQ(pick(1, 1, {"x"}), 1);
    EXPECT_EQ(pick(1, 1, {"e", "x"}), 1);
    EXPECT_EQ(pick(1, 1, {"a"}), 2);
}

TEST_F(MarginOfError, ComparesOnHeterogeneityOrThreats) {
    struct Case {
        const char* What;
        std::vector<double> Values;
        int Picked;
        bool Tie;
    };
    const Case cases[] = {
        {"none beats the first", {3, 1, 2}, 1, false},
        {"one beats the first", {3, 4, 2}, 2, false},
        {"the last that beats it, not the best", {3, 9, 4}, 3, false},
        {"equal to the first", {3, 1, 3}, 2, true},
        {"equal to each other", {3, 4, 4}, 3, false},
        {"a tie beside one that beats it", {3, 9, 3}, 2, true},
    };
    for (const char* answer : {"b", "c"}) {
        for (const Case& c : cases) {
            SCOPED_TRACE(std::string(answer) + ": " + c.What);
            std::vector<BandRow> rows;
            for (const double value : c.Values) {
                const bool heterogeneity = std::string(answer) == "b";
                rows.push_back({"S", 4, heterogeneity ? value : 7, heterogeneity ? 7 : value});
            }
            fill(rows);
            EXPECT_EQ(pick(0, 2, {answer, "2"}), c.Picked);
            EXPECT_EQ(platform.Transcript.size(), c.Tie ? 2U : 1U);
        }
    }
}

TEST_F(MarginOfError, TheReferenceIsTheFirstRowOfTheBlockEvenIfItWasOmitted) {
    fill({{"Omitted", 5, 9}, {"B", 4, 1}, {"C", 4, 2}});
    remove(1);
    EXPECT_EQ(pick(1, 1, {"b"}), 1);
}

TEST_F(MarginOfError, ComparingDoesNotSkipRemovedSpecies) {
    fill({{"A", 4, 1}, {"Omitted", 4, 2}, {"C", 4, 0}});
    remove(2);
    EXPECT_EQ(pick(0, 2, {"b"}), 2);
}

TEST_F(MarginOfError, ComparingOnSocioEconomicsLooksAtTheSecondRowThroughout) {
    fill({{"A", 4, 0, 0, 2}, {"B", 4, 0, 0, 3}, {"C", 4, 0, 0, 1}});
    EXPECT_EQ(pick(0, 2, {"d"}), 3);
    EXPECT_EQ(platform.Transcript.size(), 1U);

    fill({{"A", 4, 0, 0, 2}, {"B", 4, 0, 0, 1}, {"C", 4, 0, 0, 9}});
    EXPECT_EQ(pick(0, 2, {"d"}), 1);
    EXPECT_EQ(platform.Transcript.size(), 1U);

    fill({{"A", 4, 0, 0, 2}, {"B", 4, 0, 0, 2}, {"C", 4, 0, 0, 9}});
    EXPECT_EQ(pick(0, 2, {"d", "3"}), 3);
    EXPECT_EQ(platform.Transcript.size(), 2U);
}

TEST_F(MarginOfError, ListsTheSpeciesByNumberInTheSecondDialogue) {
    fill({{"Otter", 4}, {"Badger", 4}, {"Adder", 4}});
    EXPECT_EQ(pick(0, 2, {"e"}), 1);
    ASSERT_EQ(platform.Transcript.size(), 2U);
    EXPECT_EQ(lastBox().BoxKind, ShownBox::Kind::Input);
    EXPECT_EQ(lastBox().Title, "Select the species within the margin or error");
    EXPECT_EQ(lastBox().Text, "Enter the number of the candidate species\r1: Otter\r2: Badger\r3: Adder\r");
    EXPECT_EQ(lastBox().Answer, "1");
}

TEST_F(MarginOfError, TakesTheRowOfTheNumberTyped) {
    fill({{"Omitted", 5}, {"Otter", 4}, {"Badger", 4}, {"Adder", 4}});
    remove(1);
    EXPECT_EQ(pick(1, 2, {"e", "1"}), 2);
    EXPECT_EQ(pick(1, 2, {"e", " 2 "}), 3);
    EXPECT_EQ(pick(1, 2, {"e", "3"}), 4);
}

TEST_F(MarginOfError, TheNumbersShownSkipRemovedSpeciesAndTheRowsTakenDoNot) {
    fill({{"Otter", 4}, {"Omitted", 4}, {"Adder", 4}});
    remove(2);
    EXPECT_EQ(pick(0, 2, {"e", "2"}), 2);
    EXPECT_EQ(lastBox().Text, "Enter the number of the candidate species\r1: Otter\r2: Adder\r");
    EXPECT_EQ(pick(0, 2, {"e", "3"}), 3);
}

TEST_F(MarginOfError, AnUnknownNumberAddsTheFirstSpeciesWithAMessage) {
    fill({{"A", 4}, {"B", 4}});
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
    fill({{"A", 4}, {"B", 4, method::Unreadable}});
    results().TextMatrix(Start + 1, result::Heterogeneity, "much");
    const ui::RunTimeError error = failureOf([&] { pick(0, 1, {"b"}); });
    EXPECT_EQ(error.Description, reportOf("BrenicaUtilities.SelectErrorMarginSpecies", 13, "Type mismatch"));
    EXPECT_THAT(platform.Transcript, testing::IsEmpty());
}

TEST_F(MarginOfError, ReportsABandThatReachesIntoTheBlankRow) {
    fill({{"A", 4}, {"B", 4}});
    const ui::RunTimeError error = failureOf([&] { pick(1, 1, {"a"}); });
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

TEST_F(MarginOfError, KeepsTheAnswersOfTheSelectionOnView) {
    openForSelection(leaderAddsNothing());
    type(form.txtErrorMargin, "100");
    select({"a", " X", "A"});
    EXPECT_THAT(form.TakeSelectionRun()->Outcome.Answers, testing::ElementsAre("a", " X", "A"));
    select({"a", "x"});
    EXPECT_THAT(form.TakeSelectionRun()->Outcome.Answers, testing::ElementsAre("a", "x", "a"));
}
