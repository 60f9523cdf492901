// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

/// The gates between the pages and between the lists of the parameter page.
class PageGate : public ScoringTest {
protected:
    /// A move that the gate asks about, answered in order.
    void moveTo(int page, const std::vector<std::string>& answers) {
        platform.Transcript.clear();
        platform.Answers.assign(answers.begin(), answers.end());
        goTo(page);
    }
    void chooseList(int index, const std::vector<std::string>& answers) {
        platform.Transcript.clear();
        platform.Answers.assign(answers.begin(), answers.end());
        form.optLandChar(index).UserClick();
    }
    std::vector<std::string> questions() const {
        std::vector<std::string> texts;
        for (const ShownBox& box : platform.Transcript) {
            if (box.BoxKind == ShownBox::Kind::Question) texts.push_back(box.Text);
        }
        return texts;
    }
    static std::string prompt(const std::string& what, const std::string& enter) {
        return "Select 'Yes' to delete those rows with blank " + what + " or 'No' to enter " + enter +
               " before proceeding.";
    }
};

TEST_F(PageGate, AsksAboutBlankSpeciesNames) {
    addSpecies({"Otter", ""});
    moveTo(2, {"no"});
    ASSERT_EQ(platform.Transcript.size(), 1U);
    EXPECT_EQ(lastBox().BoxKind, ShownBox::Kind::Question);
    EXPECT_EQ(lastBox().Title, "Invalid value");
    EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Question);
    EXPECT_EQ(
        lastBox().Text,
        "Select 'Yes' to delete those rows with blank species common names or 'No' to enter a value into each "
        "row with missing names before proceeding.");
}

TEST_F(PageGate, NoKeepsTheUserOnTheSpeciesPageWithItsRows) {
    addSpecies({"Otter", "", "Adder"});
    moveTo(2, {"no"});
    EXPECT_EQ(form.CurrentMainTab, 1);
    EXPECT_EQ(form.tabBrenica.SelectedItem(), 1);
    EXPECT_TRUE(form.fraTabContents(0).Visible());
    EXPECT_FALSE(form.fraTabContents(1).Visible());
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, list::Name),
                ElementsAre("Common Name", "Otter", "", "Adder"));
}

TEST_F(PageGate, YesRemovesEveryBlankSpeciesInOneQuestion) {
    addSpecies({"Otter", "", "Badger", "  ", "Adder"});
    moveTo(2, {"yes"});
    EXPECT_EQ(platform.Transcript.size(), 1U);
    EXPECT_EQ(form.CurrentMainTab, 2);
    EXPECT_EQ(global.TotalSpecies, 3);
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, list::Name),
                ElementsAre("Common Name", "Otter", "Badger", "Adder"));
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, list::Number), ElementsAre("No.", "1", "2", "3"));
}

TEST_F(PageGate, YesRemovesTheLowerRowFirst) {
    addSpecies({"Otter", "", "Badger", ""});
    std::vector<std::string> afterFirstRemoval;
    form.flxCandidateSpecies.CellChanged = [&](int row, int col) {
        if (form.flxCandidateSpecies.Rows() == 4) {
            afterFirstRemoval = columnOf(form.flxCandidateSpecies, list::Name);
        }
        form.flxCandidateSpecies_CellChanged(row, col);
    };
    moveTo(2, {"yes"});
    EXPECT_THAT(afterFirstRemoval, ElementsAre("Common Name", "Otter", "", "Badger"));
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, list::Name),
                ElementsAre("Common Name", "Otter", "Badger"));
}

TEST_F(PageGate, AsksNothingWhereNothingIsMissing) {
    addSpecies({"Otter"});
    moveTo(2, {});
    EXPECT_EQ(form.CurrentMainTab, 2);
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(PageGate, OtherPagesMayAlwaysBeLeft) {
    addSpecies({"Otter"});
    goTo(3);
    form.flxCandidateSpecies.TextMatrix(1, list::Name, "");
    for (const int page : {4, 5, 7, 3, 1}) {
        moveTo(page, {"no"});
        EXPECT_EQ(form.CurrentMainTab, page);
        EXPECT_THAT(platform.Transcript, IsEmpty());
    }
}

TEST_F(PageGate, AsksAboutTheListThatIsOpen) {
    struct Case {
        int Index;
        ui::Grid* Grid;
        std::string Prompt;
    };
    const Case cases[] = {
        {0, &form.flxHabitatTypes, prompt("habitat names", "a value into each row with missing names")},
        {1, &form.flxJurisUnits, prompt("management zone names", "a value into each row with missing names")},
        {2, &form.flxLandUses, prompt("human activity names", "a value into each row with missing names")},
        {3, &form.flxBins, prompt("breakpoint values", "a breakpoint into each row with missing values")},
        {4, &form.flxFunctions, prompt("function names", "a value into each row with missing names")},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Index);
        open(ProjectText(1, 2, 2, 2).set("Home-range definition", "user-defined bins,0,5,20"));
        goTo(2);
        form.optLandChar(c.Index).UserClick();
        ASSERT_TRUE(c.Grid->UserEditCell(2, 1, " "));
        const int rows = c.Grid->Rows();
        const int other = c.Index == 0 ? 1 : 0;
        for (const bool byPage : {true, false}) {
            byPage ? moveTo(3, {"no"}) : chooseList(other, {"no"});
            ASSERT_THAT(questions(), ElementsAre(c.Prompt));
            EXPECT_EQ(lastBox().Title, "Invalid value");
            EXPECT_EQ(form.CurrentMainTab, 2);
            EXPECT_EQ(form.CurrentLandChar, c.Index);
            EXPECT_TRUE(form.optLandChar(c.Index).Value());
            EXPECT_EQ(c.Grid->Rows(), rows);
        }
        chooseList(other, {"yes"});
        ASSERT_THAT(questions(), ElementsAre(c.Prompt));
        EXPECT_EQ(form.CurrentLandChar, other);
        EXPECT_EQ(c.Grid->Rows(), rows - 1);
    }
}

TEST_F(PageGate, AsksAboutNameUrgencyAndProbabilityInTurn) {
    open(ProjectText(1, 1, 1, 4)
             .set("Land Use", "Roads,,Dams,Fire")
             .set("Urgency", "1,1,,1")
             .set("Probability of occurence", "1,1,1,"));
    goTo(2);
    form.optLandChar(2).UserClick();
    chooseList(0, {"yes", "yes", "yes"});
    EXPECT_THAT(questions(),
                ElementsAre(prompt("human activity names", "a value into each row with missing names"),
                            prompt("urgency values", "an urgency value into each row with missing values"),
                            prompt("probability values", "a probability into each row with missing values")));
    EXPECT_EQ(form.CurrentLandChar, 0);
    EXPECT_THAT(columnOf(form.flxLandUses, list::Name), ElementsAre("Human Activity", "Roads"));
}

TEST_F(PageGate, NoEndsTheQuestionsAboutActivities) {
    open(ProjectText(1, 1, 1, 4)
             .set("Land Use", "Roads,,Dams,Fire")
             .set("Urgency", "1,1,,1")
             .set("Probability of occurence", "1,1,1,"));
    goTo(2);
    form.optLandChar(2).UserClick();
    chooseList(0, {"no"});
    EXPECT_EQ(questions().size(), 1U);
    EXPECT_EQ(global.TotalLandUses, 4);
    chooseList(0, {"yes", "no"});
    EXPECT_EQ(questions().size(), 2U);
    EXPECT_EQ(global.TotalLandUses, 3);
    EXPECT_EQ(form.CurrentLandChar, 2);
}

TEST_F(PageGate, LeavingTheActivitiesRunsTheRuleOfUrgencyAndProbabilityOnTheCurrentCell) {
    open(ProjectText(1, 1, 1, 2).set("Probability of occurence", "0.5,0.5"));
    goTo(2);
    form.optLandChar(2).UserClick();
    ASSERT_TRUE(form.flxLandUses.UserEditCell(2, list::Urgency, "3"));
    chooseList(0, {});
    EXPECT_EQ(lastBox().Title, "Invalid value");
    EXPECT_EQ(lastBox().Text, "With a value of 3 for Urgency the Probability of Occurrence must be 1.");
    EXPECT_EQ(form.flxLandUses.TextMatrix(2, list::Probability), "1");
    EXPECT_EQ(form.CurrentLandChar, 0);
}

TEST_F(PageGate, TestsBreakpointsOnlyWhereTheBinsAreTheUsersOwn) {
    open(
        ProjectText(1, 1, 1, 1).set("Home-range definition", "user-defined bins,0,5").set("Home ranges", ""));
    goTo(2);
    form.optLandChar(3).UserClick();
    ASSERT_TRUE(form.flxBins.UserEditCell(2, 1, ""));
    for (const int type : {0, 1}) {
        form.optHomeRangeType(type).UserClick();
        ASSERT_EQ(form.HomeRangeType, type);
        form.optLandChar(3).UserClick();
        chooseList(0, {"no"});
        EXPECT_EQ(form.CurrentLandChar, 0) << type;
        EXPECT_THAT(questions(), IsEmpty()) << type;
    }
}

TEST_F(PageGate, AnIndexOutsideTheListsPasses) {
    EXPECT_TRUE(form.ValidateLandChar(5));
    EXPECT_TRUE(form.ValidateLandChar(-1));
    EXPECT_TRUE(form.ValidateMainTab(0));
    EXPECT_TRUE(form.ValidateMainTab(8));
}

/// The gate before the arithmetic, on the way to the scores.
class ScoreGate : public ScoringTest {
protected:
    /// The message that stops the scores; empty where they are calculated.
    std::string messageFor(const ProjectText& project) {
        open(project);
        platform.Transcript.clear();
        goTo(6);
        EXPECT_EQ(global.ScoresCalculated, platform.Transcript.empty());
        if (platform.Transcript.empty()) return "";
        EXPECT_EQ(platform.Transcript.size(), 1U);
        EXPECT_EQ(lastBox().Title, "Invalid value");
        EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Exclamation);
        return lastBox().Text;
    }
    static ProjectText complete() { return ProjectText(2, 2, 2, 2); }
};

TEST_F(ScoreGate, PassesACompleteProject) { EXPECT_EQ(messageFor(complete()), ""); }

TEST_F(ScoreGate, RefusesWithoutAMessageWhereAListIsEmpty) {
    const ProjectText lacking[] = {ProjectText(0, 1, 1, 1), ProjectText(1, 0, 1, 1), ProjectText(1, 1, 0, 1),
                                   ProjectText(1, 1, 1, 0)};
    for (const ProjectText& project : lacking) {
        SCOPED_TRACE(project.text().substr(0, 300));
        open(project);
        platform.Transcript.clear();
        goTo(6);
        EXPECT_FALSE(global.ScoresCalculated);
        EXPECT_THAT(platform.Transcript, IsEmpty());
    }
}

TEST_F(ScoreGate, NamesTheFirstHabitatThatNoSpeciesHasALevelFor) {
    EXPECT_EQ(
        messageFor(complete().set("Habitat Type", "Bog,Fen").set("HeteroHabitat Population", "1,,1,")),
        "The 'Fen' habitat type is not used by any candidate species. Either select or remove this habitat type.");
    EXPECT_EQ(
        messageFor(complete().set("Habitat Type", "Bog,Fen").set("HeteroHabitat Population", ",,,")),
        "The 'Bog' habitat type is not used by any candidate species. Either select or remove this habitat type.");
}

TEST_F(ScoreGate, NamesTheFirstZoneThatNoSpeciesHasALevelFor) {
    EXPECT_EQ(
        messageFor(complete().set("Jurisdictional Unit", "North,South").set("HeteroJU Individual", ",1,,1")),
        "The 'North' management zone is not used by any candidate species. Either select or remove this management "
        "zone.");
}

TEST_F(ScoreGate, ALevelOfZeroIsUse) {
    EXPECT_EQ(messageFor(complete().set("HeteroHabitat Population", "0,0,0,0")), "");
    EXPECT_EQ(form.flxScores(0).TextMatrix(1, 3), "1");  // the zones score
    EXPECT_EQ(form.flxScores(1).TextMatrix(1, 1), "2");
}

TEST_F(ScoreGate, NamesTheFirstGapInTheTables) {
    const std::string before = " before proceeding.";
    struct Case {
        const char* Key;
        const char* Values;
        std::string Message;
    };
    const std::string dispersal = "Enter a dispersion value for each species" + before;
    const std::string connectivity = "Enter a connectivity value for each species" + before;
    const std::string homeRange = "Enter a home range value for each species" + before;
    const std::string occupied = "Enter propotion of the landscape occupied by each species" + before;
    const std::string functions = "Enter function values for each species" + before;
    const std::string socioEcon = "Enter socio-economic values for each species" + before;
    const Case cases[] = {
        {"Area Dispersal", "Y,", dispersal},
        {"Area Dispersal", "n/a,Y", dispersal},
        {"Area Dispersal", "Y, N/A ", dispersal},
        {"Area Dispersal", "N,N", ""},
        {"Area Connectivity", ",Y", connectivity},
        {"Area Connectivity", "Y,N/A", connectivity},
        {"Area Connectivity", "N,N", ""},
        {"Home ranges", "10,", homeRange},
        {"Home ranges", "0,10", homeRange},
        {"Home ranges", "10, 0 ", homeRange},
        {"Home ranges", "10,0.0", ""},
        {"Landscape Occupied", ",1", occupied},
        {"Landscape Occupied", "0.5,0", occupied},
        {"Landscape Occupied", "0.0,0.5", ""},
        {"VulnerabilitybySpecies Severity", "1,1,1, ",
         "Enter a severity value for each human activity by species" + before},
        {"VulnerabilitybySpecies Recovery", ",1,1,1",
         "Enter a recovery value for each human activity by species" + before},
        {"VulnerabilitybySpecies Proportion", "1,,1,1",
         "Enter a proportion affected value for each human activity by species" + before},
        {"Function1", ",1", functions},
        {"Function6", "1, ", functions},
        {"Socio-Econ1", "1,", socioEcon},
        {"Socio-Econ5", ",1", socioEcon},
        {"Data Quality1", ",", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.Key) + " = " + c.Values);
        EXPECT_EQ(messageFor(complete().set(c.Key, c.Values)), c.Message);
    }
}

TEST_F(ScoreGate, TestsTheTablesInAFixedOrder) {
    // Everything is missing; each step fills in what the message before asked for.
    ProjectText project = complete();
    const std::pair<const char*, const char*> keys[] = {
        {"HeteroHabitat Population", "'Habitat 1'"},
        {"HeteroJU Individual", "'Zone 1'"},
        {"Area Dispersal", "dispersion"},
        {"Area Connectivity", "connectivity"},
        {"Home ranges", "home range"},
        {"Landscape Occupied", "propotion"},
        {"VulnerabilitybySpecies Severity", "severity"},
        {"VulnerabilitybySpecies Recovery", "recovery"},
        {"VulnerabilitybySpecies Proportion", "proportion affected"},
        {"Function3", "function values"},
        {"Socio-Econ3", "socio-economic"}};
    for (const auto& [key, word] : keys) project.set(key, "");
    const ProjectText filled = complete();
    for (const auto& [key, word] : keys) {
        EXPECT_THAT(messageFor(project), testing::HasSubstr(word));
        project.set(key, filled.values(key));
    }
    EXPECT_EQ(messageFor(project), "");
}

TEST_F(ScoreGate, TestsNeitherTheConservationStatusNorEachSingleLevel) {
    // Both gaps pass the gate and stop the program in the arithmetic.
    open(complete().set("HeteroHabitat Population", "1,1,,1"));
    EXPECT_EQ(description(6), reportOf("BrenicaUtilities.GetHeteroScore", 13, "Type mismatch"));
    EXPECT_THAT(platform.Transcript, IsEmpty());
    EXPECT_FALSE(global.ScoresCalculated);
}

TEST_F(ScoreGate, ABlankConservationStatusStopsTheProgram) {
    open(complete().set("Conservation Status", "0.5,"));
    EXPECT_EQ(description(6), reportOf("BrenicaUtilities.GetVulnerabilityScore", 13, "Type mismatch"));
}

TEST_F(ScoreGate, EmptiesTheScoreTablesButForTheNames) {
    ProjectText project(3, 1, 1, 1);
    open(project.set("Socio-Econ1", "0,1,2"));
    walkTo(6);
    ASSERT_EQ(form.flxScoresSort(0).TextMatrix(1, 0), "Species 3");
    form.flxSummary(summary::SocioEcon).TextMatrix(2, 1, "");
    goTo(5);
    goTo(6);
    ASSERT_EQ(lastBox().Text, "Enter socio-economic values for each species before proceeding.");
    EXPECT_FALSE(global.ScoresCalculated);
    for (ui::Grid* grid :
         {&form.flxScores(0), &form.flxScores(1), &form.flxScoresSort(0), &form.flxScoresSort(1)}) {
        SCOPED_TRACE(grid->Name());
        EXPECT_THAT(columnOf(*grid, 0), ElementsAre("Common Name", "Species 1", "Species 2", "Species 3"));
        for (int row = 1; row <= 3; ++row) {
            for (int col = 1; col < grid->Cols(); ++col) EXPECT_EQ(grid->TextMatrix(row, col), "");
        }
    }
    EXPECT_EQ(form.flxScores(0).TextMatrix(0, 1), "Rank");
}

/// The label columns of the long tables, written anew from the lists.
class LongTableLabels : public ScoringTest {
protected:
    void blankLabels() {
        for (const int member : {2, 3, 6, 7}) {
            for (int row = 1; row < table(member).Rows(); ++row) {
                for (int col = 0; col < (member == 6 ? 4 : 2); ++col) table(member).TextMatrix(row, col, "?");
            }
        }
    }
};

TEST_F(LongTableLabels, AreAllWrittenAnew) {
    open(ProjectText(2, 2, 2, 2).set("Urgency", "1,2").set("Probability of occurence", "0.5,1"));
    blankLabels();
    form.GetFlexGridsUpdated(-1);
    EXPECT_THAT(columnOf(table(2), 0), ElementsAre("Common Name", "Species 1", "", "Species 2", ""));
    EXPECT_THAT(columnOf(table(2), 1),
                ElementsAre("Habitat Name", "Habitat 1", "Habitat 2", "Habitat 1", "Habitat 2"));
    EXPECT_THAT(columnOf(table(3), 0), ElementsAre("Common Name", "Species 1", "", "Species 2", ""));
    EXPECT_THAT(columnOf(table(3), 1), ElementsAre("MZ Name", "Zone 1", "Zone 2", "Zone 1", "Zone 2"));
    EXPECT_THAT(columnOf(table(6), 0), ElementsAre("Common Name", "Species 1", "", "Species 2", ""));
    EXPECT_THAT(columnOf(table(6), 1),
                ElementsAre("Human Activity", "Activity 1", "Activity 2", "Activity 1", "Activity 2"));
    EXPECT_THAT(columnOf(table(6), 2), ElementsAre("Urgency", "1", "2", "1", "2"));
    EXPECT_THAT(columnOf(table(6), 3), ElementsAre("Probability of occurence", "0.5", "1", "0.5", "1"));
    EXPECT_THAT(columnOf(table(7), 0), ElementsAre("Human Activity", "Activity 1", "", "Activity 2", ""));
    EXPECT_THAT(columnOf(table(7), 1),
                ElementsAre("Common Name", "Species 1", "Species 2", "Species 1", "Species 2"));
}

TEST_F(LongTableLabels, OfOneTableLeaveTheOthersAlone) {
    open(ProjectText(2, 2, 2, 2));
    blankLabels();
    form.GetFlexGridsUpdated(3);
    EXPECT_EQ(table(3).TextMatrix(1, 1), "Zone 1");
    for (const int member : {2, 6, 7}) EXPECT_EQ(table(member).TextMatrix(1, 1), "?") << member;
    for (const int member : {4, 5}) {
        const auto before = tableRow(member, 1);
        form.GetFlexGridsUpdated(member);
        EXPECT_EQ(tableRow(member, 1), before) << member;
    }
}
