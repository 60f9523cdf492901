// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring/modBrenicaUtilities.h"
#include "scoring_test.h"

using modBrenicaUtilities::GetRanks;
using testing::ElementsAre;
using testing::Not;

class Scores : public ScoringTest {
protected:
    ui::Grid& normalised() { return form.flxScores(0); }
    ui::Grid& original() { return form.flxScores(1); }

    static ProjectText varied() {
        ProjectText project(3, 2, 1, 1);
        project.set("HeteroHabitat Population", "1,2,3,0,0.5,0.25").set("HeteroJU Individual", "3,1,0");
        project.set("Area Dispersal", "Y,N,y").set("Area Connectivity", "N,N,Y");
        project.set("Home ranges", "8,2,0.1").set("Landscape Occupied", "0.25,0.5,1");
        project.set("Conservation Status", "0.4,1,0").set("VulnerabilitybySpecies Severity", "1,2,0");
        project.set("Function1", "0,3,0.12345").set("Socio-Econ5", "0,2,1");
        return project;
    }
};

TEST_F(Scores, BeforeNormalisation) {
    openAt(varied(), 6);
    // H: 3 + 3 + 3, 3 + 3 + 1, 0.75 + 0.75; A: 1 + 3 + 0.25, 0.75 + 0.5, 2 + 0.0375 + 1;
    // V: 0.6 + 2, 0 + 4, 1 + 0; F: 5, 8, 5.12345; S-E: 4, 6, 5.
    EXPECT_THAT(rowOf(original(), 1), ElementsAre("Species 1", "9", "4.25", "2.6", "5", "4"));
    EXPECT_THAT(rowOf(original(), 2), ElementsAre("Species 2", "7", "1.25", "4", "8", "6"));
    EXPECT_THAT(rowOf(original(), 3), ElementsAre("Species 3", "1.5", "3.038", "1", "5.12345", "5"));
}

TEST_F(Scores, NormalisedAddedAndRanked) {
    openAt(varied(), 6);
    // 9, 4.25, 4, 8 and 6 are the highest.
    EXPECT_THAT(rowOf(normalised(), 0),
                ElementsAre("Common Name", "Rank", "Aggregate", "H", "A", "V", "F", "S-E"));
    EXPECT_THAT(rowOf(normalised(), 1),
                ElementsAre("Species 1", "2", "3.942", "1", "1", "0.65", "0.625", "0.667"));
    EXPECT_THAT(rowOf(normalised(), 2),
                ElementsAre("Species 2", "1", "4.072", "0.778", "0.294", "1", "1", "1"));
    EXPECT_THAT(rowOf(normalised(), 3),
                ElementsAre("Species 3", "3", "2.605", "0.167", "0.715", "0.25", "0.64", "0.833"));
    EXPECT_THAT(global.SpeciesRanks, ElementsAre(2, 1, 3));
    EXPECT_EQ(global.TopRankedSpecies, "Species 2");
    EXPECT_TRUE(global.ScoresCalculated);
}

TEST_F(Scores, GoBackToSpeciesOrderWhenTheyAreEmptied) {
    openAt(varied(), 6);
    form.flxSummary(summary::SocioEcon).TextMatrix(1, 1, "");
    goTo(5);
    goTo(6);
    for (ui::Grid& grid : form.flxScoresSort) {
        EXPECT_THAT(columnOf(grid, 0), ElementsAre("Common Name", "Species 1", "Species 2", "Species 3"));
        EXPECT_THAT(columnOf(grid, 2), ElementsAre(testing::_, "", "", ""));
    }
}

TEST_F(Scores, AreShownInOrderOfRankAndInSpeciesOrder) {
    openAt(varied(), 6);
    EXPECT_THAT(rowOf(form.flxScoresSort(0), 1),
                ElementsAre("Species 2", "1", "4.072", "0.778", "0.294", "1", "1", "1", "2"));
    EXPECT_THAT(columnOf(form.flxScoresSort(0), 8), ElementsAre("", "2", "1", "3"));
    EXPECT_THAT(columnOf(form.flxScoresSort(1), 0),
                ElementsAre("Common Name", "Species 1", "Species 2", "Species 3"));
    EXPECT_THAT(rowOf(form.flxScoresSort(1), 3),
                ElementsAre("Species 3", "1.5", "3.038", "1", "5.12345", "5", "3"));
    EXPECT_THAT(columnOf(normalised(), 0), ElementsAre("Common Name", "Species 1", "Species 2", "Species 3"));
}

TEST_F(Scores, RankSortsAsANumberAtFirst) {
    std::string values;
    for (int i = 1; i <= 12; ++i) values += (i > 1 ? "," : "") + std::to_string(i);
    openAt(ProjectText(12, 1, 1, 1).set("Socio-Econ1", values), 6);
    EXPECT_THAT(columnOf(form.flxScoresSort(0), 1),
                ElementsAre("Rank", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"));
}

TEST_F(Scores, TheHiddenColumnStaysInStepWithTheRows) {
    openAt(varied(), 6);
    form.flxScoresSort(0).Select(0, 4);
    form.flxScoresSort(0).Sort(ui::SortOrder::GenericDescending);
    for (int row = 1; row <= 3; ++row) {
        const int species = form.flxScoresSort(0).Long(row, 8);
        EXPECT_EQ(form.flxScoresSort(0).TextMatrix(row, 0), normalised().TextMatrix(species, 0));
    }
    EXPECT_THAT(columnOf(form.flxScoresSort(0), 8), ElementsAre("", "1", "3", "2"));
}

TEST_F(Scores, OfASingleSpeciesAreOneForEachCriterionAboveZero) {
    ProjectText project(1, 1, 1, 1);
    for (int i = 1; i <= 6; ++i) project.set("Function" + std::to_string(i), "0");
    openAt(project, 6);
    EXPECT_THAT(rowOf(normalised(), 1), ElementsAre("Species 1", "1", "4", "1", "1", "1", "0", "1"));
    EXPECT_EQ(global.TopRankedSpecies, "Species 1");
    EXPECT_THAT(global.SpeciesRanks, ElementsAre(1));
}

TEST_F(Scores, ACriterionWithoutAnyScoreAddsNothing) {
    ProjectText project(2, 1, 1, 1);
    for (int i = 1; i <= 5; ++i) project.set("Socio-Econ" + std::to_string(i), "0,0");
    openAt(project, 6);
    EXPECT_THAT(columnOf(normalised(), 7), ElementsAre("S-E", "0", "0"));
    EXPECT_THAT(columnOf(normalised(), 2), ElementsAre("Aggregate", "4", "4"));
}

TEST_F(Scores, ANegativeScoreStaysAndNormalisesBelowZero) {
    openAt(ProjectText(2, 1, 1, 1).set("HeteroHabitat Population", "-2,2").set("HeteroJU Individual", "0,0"),
           6);
    EXPECT_THAT(columnOf(original(), 1), ElementsAre("H", "-4", "4"));
    EXPECT_THAT(columnOf(normalised(), 3), ElementsAre("H", "-1", "1"));
    EXPECT_THAT(columnOf(normalised(), 2), ElementsAre("Aggregate", "3", "5"));
}

TEST_F(Scores, ANegativeScoreCannotBeTheMaximum) {
    openAt(ProjectText(2, 1, 1, 1).set("HeteroHabitat Population", "-2,-1").set("HeteroJU Individual", "0,0"),
           6);
    EXPECT_THAT(columnOf(original(), 1), ElementsAre("H", "-4", "-2"));
    EXPECT_THAT(columnOf(normalised(), 3), ElementsAre("H", "0", "0"));
}

TEST_F(Scores, EqualAggregatesGiveTheBetterRankToTheLaterSpecies) {
    openAt(ProjectText(4, 1, 1, 1).set("Socio-Econ1", "1,0,1,1"), 6);
    EXPECT_THAT(columnOf(normalised(), 1), ElementsAre("Rank", "3", "4", "2", "1"));
    EXPECT_THAT(global.SpeciesRanks, ElementsAre(4, 3, 1, 2));
    EXPECT_EQ(global.TopRankedSpecies, "Species 4");
}

TEST_F(Scores, DividesTheRoundedScoreByTheMaximumBeforeRounding) {
    // 0.0014 and 0.0006 both show as 0.001, which is divided by 0.0014.
    openAt(ProjectText(2, 1, 1, 1)
               .set("HeteroHabitat Population", "0,0")
               .set("HeteroJU Individual", "0.0014,0.0006"),
           6);
    EXPECT_THAT(columnOf(original(), 1), ElementsAre("H", "0.001", "0.001"));
    EXPECT_THAT(columnOf(normalised(), 3), ElementsAre("H", "0.714", "0.714"));
}

TEST_F(Scores, RoundsHalfToEven) {
    openAt(ProjectText(2, 1, 1, 1)
               .set("HeteroHabitat Population", "0,0")
               .set("HeteroJU Individual", "0.0625,0.1875"),
           6);
    EXPECT_THAT(columnOf(original(), 1), ElementsAre("H", "0.062", "0.188"));
}

TEST_F(Scores, ContinuousHomeRangesScaleToTheLargestPresent) {
    openAt(ProjectText(3, 1, 1, 1)
               .set("Area Dispersal", "N,N,N")
               .set("Area Connectivity", "N,N,N")
               .set("Home ranges", "4,2,0.5")
               .set("Landscape Occupied", "0.0,0.0,0.0"),
           6);
    EXPECT_THAT(columnOf(original(), 2), ElementsAre("A", "3", "1.5", "0.375"));
}

TEST_F(Scores, ReportAHomeRangeThatIsNoNumber) {
    open(ProjectText(2, 1, 1, 1).set("Home ranges", "5,large"));
    EXPECT_EQ(description(6), reportOf("BrenicaUtilities.ScaleHomeRanges", 13, "Type mismatch"));
    EXPECT_FALSE(global.ScoresCalculated);
}

TEST_F(Scores, ReportAHomeRangeThatIsTooLarge) {
    open(ProjectText(2, 1, 1, 1).set("Home ranges", "5,1e308"));
    EXPECT_EQ(description(6), reportOf("BrenicaUtilities.ScaleHomeRanges", 6, "Overflow"));
}

TEST_F(Scores, StayAsFarAsTheyWereCalculated) {
    open(ProjectText(3, 1, 1, 1).set("Landscape Occupied", "1,1e306,1"));  // a thousand times it is too large
    EXPECT_EQ(description(6), reportOf("BrenicaUtilities.UpdateScores", 6, "Overflow"));
    EXPECT_THAT(columnOf(original(), 1), ElementsAre("H", Not(""), Not(""), ""));
    EXPECT_THAT(columnOf(original(), 2), ElementsAre("A", Not(""), "", ""));
    EXPECT_FALSE(global.ScoresCalculated);
}

TEST_F(Scores, StayUpToTheNormalisedOneThatIsTooLarge) {
    // The greatest number: its 15 digits are beyond the range.
    open(ProjectText(2, 1, 1, 1).set("Function1", "0,1.7976931348623157e308"));
    EXPECT_EQ(description(6), reportOf("BrenicaUtilities.UpdateScores", 6, "Overflow"));
    EXPECT_THAT(original().TextMatrix(2, 4), testing::StartsWith("179769313486232000"));
    EXPECT_THAT(columnOf(normalised(), 6), ElementsAre("F", "0", ""));
    EXPECT_THAT(columnOf(normalised(), 5), ElementsAre("V", Not(""), Not("")));
}

TEST_F(Scores, ReportTheFunctionThatFails) {
    const std::pair<const char*, const char*> gaps[] = {{"HeteroJU Individual", "GetHeteroScore"},
                                                        {"Landscape Occupied", "GetAreaScore"},
                                                        {"Conservation Status", "GetVulnerabilityScore"},
                                                        {"Function3", "GetFunctionScore"},
                                                        {"Socio-Econ2", "GetSocioEconScore"}};
    for (const auto& [key, source] : gaps) {
        SCOPED_TRACE(source);
        open(ProjectText(2, 1, 1, 1).set(key, "1,x"));
        table(summary::JurisUnitUse).TextMatrix(2, 1, "1");  // the totals would stop at it before
        EXPECT_EQ(description(6), reportOf(std::string("BrenicaUtilities.") + source, 13, "Type mismatch"));
        EXPECT_FALSE(global.ScoresCalculated);
    }
}

TEST_F(Scores, AreCalculatedAnewOnEachVisit) {
    openAt(varied(), 6);
    form.flxSummary(summary::SocioEcon).TextMatrix(1, 1, "9");
    EXPECT_EQ(original().TextMatrix(1, 5), "4");
    goTo(7);
    goTo(6);
    EXPECT_EQ(original().TextMatrix(1, 5), "12");
}

/// Bins scale to the end of their list, whoever is in them.
class HomeRangeBins : public ScoringTest {
protected:
    std::vector<double> scaled(const std::vector<std::string>& labels, int type) {
        const int count = static_cast<int>(labels.size());
        global.TotalSpecies = count;
        ui::Grid& grid = table(summary::Area);
        grid.Rows(count + 1);
        for (int i = 0; i < count; ++i) {
            grid.TextMatrix(i + 1, area::HomeRange, labels[static_cast<std::size_t>(i)]);
        }
        std::vector<double> values;
        modBrenicaUtilities::ScaleHomeRanges(values, grid, type, global);
        return values;
    }
};

TEST_F(HomeRangeBins, DefaultBinsGiveHalfTheirNumber) {
    EXPECT_THAT(
        scaled({"0 - 1 km2", "1 - 10 km2", "10 - 25 km2", "25 - 50 km2", "50 - 100 km2", "100+ km2"}, 1),
        ElementsAre(0.5, 1, 1.5, 2, 2.5, 3));
}

TEST_F(HomeRangeBins, TheTopBinGivesThreeEvenToTheOnlySpecies) {
    EXPECT_THAT(scaled({"100+ km2"}, 1), ElementsAre(3));
    EXPECT_THAT(scaled({"0 - 1 km2"}, 1), ElementsAre(0.5));
}

TEST_F(HomeRangeBins, AreFoundInAnyCase) { EXPECT_THAT(scaled({"1 - 10 KM2"}, 1), ElementsAre(1)); }

TEST_F(HomeRangeBins, AnUnknownLabelTakesTheBinOfTheSpeciesBefore) {
    EXPECT_THAT(scaled({"?", "10 - 25 km2", "10-25", "", "?"}, 1), ElementsAre(0, 1.5, 1.5, 0, 1.5));
}

TEST_F(HomeRangeBins, UserBinsScaleToTheirNumber) {
    global.UserBinLabels = {"0 - 5 km2", "5 - 20 km2", "20 - 80 km2", "80+ km2"};
    global.TotalBins = 4;
    EXPECT_THAT(scaled({"5 - 20 km2", "80+ KM2", "0 - 5 km2", "", "unknown"}, 2),
                ElementsAre(1.5, 3, 0.75, 0, 0.75));
}

TEST_F(HomeRangeBins, LabelsBehindTheNumberOfBinsDoNotCount) {
    global.UserBinLabels = {"0 - 5 km2", "5+ km2"};
    global.TotalBins = 1;
    EXPECT_THAT(scaled({"5+ km2", "0 - 5 km2"}, 2), ElementsAre(0, 3));
}

TEST_F(HomeRangeBins, ContinuousValuesThatAreBlankOrZeroGiveNothing) {
    EXPECT_THAT(scaled({"", "0", "0.0"}, 0), ElementsAre(0, 0, 0));
    EXPECT_THAT(scaled({"", "8", "2"}, 0), ElementsAre(0, 3, 0.75));
}

TEST_F(HomeRangeBins, WithoutBinsEveryoneGetsNothing) {
    EXPECT_THAT(scaled({"5+ km2", "x"}, 2), ElementsAre(0, 0));
}

TEST(Ranks, GiveOneToTheGreatest) {
    std::vector<double> values = {2.5, -1, 4, 0};
    EXPECT_THAT(GetRanks(values), ElementsAre(2, 4, 1, 3));
    EXPECT_THAT(values, ElementsAre(-1, 0, 2.5, 4));
}

TEST(Ranks, OfEqualValuesGoToTheLaterFirst) {
    std::vector<double> values = {1, 2, 1, 2, 1};
    EXPECT_THAT(GetRanks(values), ElementsAre(5, 2, 4, 1, 3));
}

TEST(Ranks, OfOneAndOfNoValue) {
    std::vector<double> one = {7};
    EXPECT_THAT(GetRanks(one), ElementsAre(1));
    std::vector<double> none;
    EXPECT_THAT(GetRanks(none), testing::IsEmpty());
}
