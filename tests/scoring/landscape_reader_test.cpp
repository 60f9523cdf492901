// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring/landscape_reader.h"

#include "project/columns.h"
#include "support/form_test.h"

using testing::ElementsAre;

class LandscapeReader : public FormTest {
protected:
    ui::Grid& table(int member) { return form.flxSummary(member); }
    int errorFor(const ui::Grid& grid, int row, int col) {
        try {
            raiseForCell(grid, row, col);
        } catch (const ui::RunTimeError& error) {
            return error.Number;
        }
    }
};

TEST_F(LandscapeReader, TellsWhatIsMissingFromWhatIsNoNumber) {
    const auto read = [](std::string_view text) { return numberOf(text, ui::DecimalSeparator::Point); };
    EXPECT_EQ(read("2.5"), 2.5);
    EXPECT_EQ(read(" 1,000 "), 1000);
    for (const char* blank : {"", " ", "   "}) EXPECT_TRUE(method::isBlank(read(blank))) << blank;
    for (const char* text : {"x", "1 2", "\t", "1e999"}) {
        EXPECT_FALSE(method::isNumber(read(text))) << text;
        EXPECT_FALSE(method::isBlank(read(text))) << text;
    }
    EXPECT_EQ(numberOf("2,5", ui::DecimalSeparator::Comma), 2.5);
}

TEST_F(LandscapeReader, TakesTheTablesInTheOrderOfTheLists) {
    open(ProjectText(2, 2, 1, 2)
             .set("HeteroHabitat Population", "0,1,2,3")
             .set("VulnerabilitybySpecies Severity", "3,2,1,0"));
    const method::Table levels = levelsOf(table(summary::HabitatsBySpecies), 2, 2);
    EXPECT_THAT(levels.row(0), ElementsAre(0, 1));
    EXPECT_THAT(levels.row(1), ElementsAre(2, 3));
    EXPECT_THAT(levelsOfSpecies(table(summary::HabitatsBySpecies), 2, 2), ElementsAre(2, 3));
    const method::ThreatRatings ratings = ratingsOf(table(summary::ThreatsBySpecies), 2, 2);
    EXPECT_THAT(ratings.Severity.row(0), ElementsAre(3, 2));
    EXPECT_THAT(ratings.Severity.row(1), ElementsAre(1, 0));
    ui::Grid& scores = table(summary::Vulnerability);
    for (int s = 1; s <= 2; ++s) {
        for (int t = 1; t <= 2; ++t)
            scores.TextMatrix(s, t + vulnerability::ThreatOffset, ui::toText(10 * s + t));
    }
    EXPECT_THAT(threatScoresOf(scores, 2, 2).row(1), ElementsAre(21, 22));
    EXPECT_THAT(::columnOf(scores, 4, 2), ElementsAre(12, 22));
    EXPECT_THAT(::rowOf(scores, 1, 3, 2), ElementsAre(11, 12));
}

TEST_F(LandscapeReader, TakesACellThatIsNotThereForNoNumber) {
    open(ProjectText(1, 1, 1, 1));
    ui::Grid& grid = table(summary::Area);
    EXPECT_FALSE(method::isNumber(numberAt(grid, grid.Rows(), 0)));
    EXPECT_FALSE(method::isNumber(numberAt(grid, 1, grid.Cols())));
    EXPECT_FALSE(method::isBlank(numberAt(grid, grid.Rows(), 0)));
}

TEST_F(LandscapeReader, RaisesWhatTheCellRaises) {
    open(ProjectText(1, 1, 1, 1));
    ui::Grid& grid = table(summary::Area);
    const std::pair<const char*, int> rows[] = {{"x", 13}, {"", 13}, {"1e999", 6}, {"1e308", 6}};
    for (const auto& [text, error] : rows) {
        grid.TextMatrix(1, area::Occupied, text);
        EXPECT_EQ(errorFor(grid, 1, area::Occupied), error) << text;
    }
    EXPECT_EQ(errorFor(grid, grid.Rows(), area::Occupied), 9);
}
