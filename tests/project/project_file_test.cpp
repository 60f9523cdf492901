// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/columns.h"
#include "support/form_test.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ProjectFile : public FormTest {
protected:
    static ProjectText typical() {
        ProjectText project(2, 2, 2, 2);
        project.set("Habitat Area", "1.5,").set("MZone UseLevel", "1,3").set("Urgency", "1,2");
        project.set("HeteroHabitat Population", "1,2,3,0").set("HeteroJU Individual", "0,1,2,3");
        project.set("VulnerabilitybySpecies Severity", "0,1,2,3")
            .set("VulnerabilitybySpecies Recovery", "3,2,1,0");
        project.set("VulnerabilitybySpecies Proportion", "4,3,2,1").set("Function2", "0,3");
        return project.set("Socio-Econ4", "2,1").set("Data Quality5", "6,5").set("Area Dispersal", "Y,N");
    }
};

TEST_F(ProjectFile, ANewProjectWritesItsFortyLines) {
    std::string expected =
        "Project Version = VERSION2\r\nCommon Name =\r\nScientific Name =\r\nHabitat Type =\r\nHabitat Area =\r\n"
        "Habitat UseLevel =\r\nJurisdictional Unit =\r\nJU Area =\r\nMZone UseLevel =\r\nLand Use =\r\nUrgency =\r\n"
        "Probability of occurence =\r\nHome-range definition = continuous\r\n"
        "Functions = Predation,Seed dispersal,Seed predation,Pollination,Mechanical disturbance,"
        "Competitive interactions\r\n"
        "HeteroHabitat Population =\r\nHeteroJU Individual =\r\nArea Dispersal =\r\nArea Connectivity =\r\n"
        "Home ranges =\r\nLandscape Occupied =\r\nConservation Status =\r\nVulnerabilitybySpecies Severity =\r\n"
        "VulnerabilitybySpecies Recovery =\r\nVulnerabilitybySpecies Proportion =\r\n";
    for (int i = 1; i <= 6; ++i) expected += "Function" + std::to_string(i) + " =\r\n";
    for (int i = 1; i <= 5; ++i) expected += "Socio-Econ" + std::to_string(i) + " =\r\n";
    for (int i = 1; i <= 5; ++i) expected += "Data Quality" + std::to_string(i) + " =\r\n";
    EXPECT_EQ(save(), expected);
}

TEST_F(ProjectFile, PassesOverALineWithoutAnEqualsSign) {
    openText(typical().text() + "Common Name\r\nProject Version\r\n");
    EXPECT_EQ(save(), typical().text());
}

TEST_F(ProjectFile, WritesWhatItHasRead) {
    open(typical());
    EXPECT_EQ(save(), typical().text());
}

TEST_F(ProjectFile, KeepsItsTextOverAWalkThroughAllPages) {
    const ProjectText project = typical().set("Habitat Area", "1.5,2");
    open(project);
    walkTo(7);
    EXPECT_EQ(save(), project.text());
}

TEST_F(ProjectFile, ReadsTheDataIntoEveryTable) {
    open(typical());
    EXPECT_THAT(columnOf(form.flxHabitatTypes, 0), ElementsAre("No.", "1", "2"));
    EXPECT_THAT(rowOf(form.flxHabitatTypes, 1), ElementsAre("1", "Habitat 1", "1.5", "2"));
    EXPECT_THAT(rowOf(form.flxHabitatTypes, 2), ElementsAre("2", "Habitat 2", "", "2"));
    EXPECT_THAT(rowOf(form.flxJurisUnits, 2), ElementsAre("2", "Zone 2", "10", "3"));
    EXPECT_THAT(rowOf(form.flxLandUses, 2), ElementsAre("2", "Activity 2", "2", "1"));
    EXPECT_THAT(rowOf(form.flxSummary(0), 2), ElementsAre("Species 2", "3", "0"));
    EXPECT_THAT(rowOf(form.flxSummary(1), 1), ElementsAre("Species 1", "0", "1"));
    EXPECT_THAT(rowOf(form.flxSummary(2), 3), ElementsAre("Species 2", "Habitat 1", "3"));
    EXPECT_THAT(rowOf(form.flxSummary(2), 4), ElementsAre("", "Habitat 2", "0"));
    EXPECT_THAT(rowOf(form.flxSummary(3), 2), ElementsAre("", "Zone 2", "1"));
    EXPECT_THAT(rowOf(form.flxSummary(4), 2), ElementsAre("Species 2", "N", "Y", "10", "0.5"));
    EXPECT_THAT(rowOf(form.flxSummary(6), 2), ElementsAre("", "Activity 2", "2", "1", "1", "2", "3"));
    EXPECT_THAT(rowOf(form.flxSummary(6), 3),
                ElementsAre("Species 2", "Activity 1", "1", "1", "2", "1", "2"));
    EXPECT_THAT(rowOf(form.flxSummary(7), 2), ElementsAre("", "Species 2", "2", "1", "2"));
    EXPECT_THAT(rowOf(form.flxSummary(7), 3), ElementsAre("Activity 2", "Species 1", "1", "2", "3"));
    EXPECT_EQ(form.flxSummary(8).TextMatrix(2, 2), "3");
    EXPECT_EQ(form.flxSummary(9).TextMatrix(1, 4), "2");
    EXPECT_EQ(form.flxSummary(10).TextMatrix(2, 5), "5");
    EXPECT_EQ(form.cbxSpeciesName.ListCount(), 2);
    EXPECT_EQ(global.ProjectVersion, "VERSION2");
    EXPECT_FALSE(form.ProjectLoading);
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(ProjectFile, IgnoresLinesWithoutAnEqualsSignOrAValueOrAKnownKey) {
    openText(
        "Project Version = VERSION2\r\n\r\nCommon Name\r\nCommon Name = Otter\r\nScientific Name =   \r\n"
        "Colour = green\r\nHabitat Type = Bog\r\n");
    EXPECT_EQ(global.TotalSpecies, 1);
    EXPECT_EQ(global.TotalHabitatTypes, 1);
    EXPECT_FALSE(files.LastFault());
}

TEST_F(ProjectFile, TakesKeysInAnyCaseWithBlanksAround) {
    openText(
        "  PROJECT version  =  two  \r\ncommon NAME=Otter,Badger\r\nfunction2 = 1,2\r\nSOCIO-ECON3=0,1\r\n"
        "data quality1 = 4,5\r\n");
    EXPECT_EQ(global.ProjectVersion, "two");
    EXPECT_EQ(global.TotalSpecies, 2);
    EXPECT_EQ(form.flxSummary(8).TextMatrix(2, 2), "2");
    EXPECT_EQ(form.flxSummary(9).TextMatrix(2, 3), "1");
    EXPECT_EQ(form.flxSummary(10).TextMatrix(1, 1), "4");
}

TEST_F(ProjectFile, TakesABlankAfterACommaForAPartOfTheValue) {
    openText("Project Version = VERSION2\r\nCommon Name =   River Otter, Badger ,Adder  \r\n");
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 1),
                ElementsAre("Common Name", "River Otter", " Badger ", "Adder"));
}

TEST_F(ProjectFile, SplitsAtTheFirstEqualsSign) {
    openText("Project Version = VERSION2\r\nCommon Name = a=b,c\r\n");
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 1), ElementsAre("Common Name", "a=b", "c"));
}

TEST_F(ProjectFile, DropsValuesThatTheGridHasNoRowFor) {
    ProjectText project(1, 1, 1, 1);
    for (const char* key :
         {"Scientific Name", "Habitat Area", "Habitat UseLevel", "JU Area", "MZone UseLevel", "Urgency",
          "Probability of occurence", "HeteroHabitat Population", "HeteroJU Individual", "Area Dispersal",
          "Area Connectivity", "Home ranges", "Landscape Occupied", "Conservation Status",
          "VulnerabilitybySpecies Severity", "VulnerabilitybySpecies Recovery",
          "VulnerabilitybySpecies Proportion"}) {
        project.set(key, project.values(key) + ",1,1");
    }
    open(project);
    EXPECT_FALSE(files.LastFault());
    EXPECT_EQ(save(), ProjectText(1, 1, 1, 1).text());
}

TEST_F(ProjectFile, ALongerNumberedColumnGrowsItsTable) {
    open(ProjectText(2, 1, 1, 1).set("Function1", "1,2,3"));
    EXPECT_EQ(form.flxSummary(8).Rows(), 3);  // the next line, of two values, cuts it again
    open(ProjectText(2, 1, 1, 1).set("Data Quality5", "1,2,3"));
    EXPECT_EQ(form.flxSummary(10).Rows(), 4);
    EXPECT_EQ(form.flxSummary(10).TextMatrix(3, 5), "3");
}

TEST_F(ProjectFile, ReadsTheKindOfHomeRange) {
    struct Case {
        const char* Value;
        int Type;
    };
    for (const Case& c : {Case{"Continuous", 0}, Case{"DEFAULT BINS", 1}, Case{"user-defined bins,0,5,20", 2},
                          Case{"something", 0}}) {
        SCOPED_TRACE(c.Value);
        open(ProjectText(1, 1, 1, 1).set("Home-range definition", c.Value));
        EXPECT_EQ(form.HomeRangeType, c.Type);
        EXPECT_TRUE(form.optHomeRangeType(c.Type).Value());
        EXPECT_EQ(global.TotalBins, c.Type == 2 ? 3 : 0);
        EXPECT_EQ(form.cmdUpdateBins.Enabled(), c.Type == 2);
    }
}

TEST_F(ProjectFile, ReadsTheBreakpointsAndTheirLabels) {
    open(ProjectText(1, 1, 1, 1).set("Home-range definition", "user-defined bins,0,5,20"));
    EXPECT_THAT(columnOf(form.flxBins, 0), ElementsAre("No.", "1", "2", "3"));
    EXPECT_THAT(columnOf(form.flxBins, 1), ElementsAre("Breakpoint", "0", "5", "20"));
    EXPECT_THAT(form.UserBinBreakpoints, ElementsAre("0", "5", "20"));
    EXPECT_THAT(global.UserBinLabels, ElementsAre("0 - 5 km2", "5 - 20 km2", "20+ km2"));
    EXPECT_EQ(form.cbxUserDefBinsHR.ListCount(), 3);
    EXPECT_THAT(save(), HasSubstr("\r\nHome-range definition = user-defined bins,0,5,20\r\n"));
}

TEST_F(ProjectFile, UserBinsWithoutABreakpoint) {
    open(ProjectText(1, 1, 1, 1).set("Home-range definition", "user-defined bins"));
    EXPECT_EQ(form.HomeRangeType, 2);
    EXPECT_EQ(form.flxBins.Rows(), 1);
    EXPECT_EQ(global.TotalBins, 0);
}

TEST_F(ProjectFile, ReadsOtherFunctionsThanTheDefaultOnes) {
    ProjectText project(1, 1, 1, 1);
    for (int i = 3; i <= 6; ++i) project.remove("Function" + std::to_string(i));
    open(project.set("Functions", "Grazing,Digging").set("Function2", "3"));
    EXPECT_EQ(global.TotalFunctions, 2);
    EXPECT_THAT(columnOf(form.flxFunctionality, 0), ElementsAre("Functions", "Grazing", "Digging"));
    EXPECT_THAT(rowOf(form.flxSummary(8), 0), ElementsAre("Common Name", "Grazing", "Digging"));
    EXPECT_THAT(rowOf(form.flxSummary(8), 1), ElementsAre("Species 1", "1", "3"));
    EXPECT_EQ(save(), project.text());
}

TEST_F(ProjectFile, ASpeciesWithABlankNameReadsAsNone) {
    addSpecies({""});
    const std::string text = save();
    EXPECT_THAT(text, HasSubstr("\r\nCommon Name =\r\n"));
    openText(text);
    EXPECT_EQ(global.TotalSpecies, 0);
}

TEST_F(ProjectFile, ATrailingEmptyCellKeepsItsPlaceAndTrailingBlanksGo) {
    addSpecies({"Otter", ""});
    EXPECT_THAT(save(), HasSubstr("\r\nCommon Name = Otter,\r\n"));
    ASSERT_TRUE(form.flxCandidateSpecies.UserEditCell(2, 1, "Adder  "));
    EXPECT_THAT(save(), HasSubstr("\r\nCommon Name = Otter,Adder\r\n"));
}

TEST_F(ProjectFile, ACommaInANameBecomesASeparator) {
    addSpecies({"Otter", "Adder"});
    form.flxCandidateSpecies.TextMatrix(1, 1, "Otter, river");
    EXPECT_EQ(form.flxCandidateSpecies.TextMatrix(1, 1), "Otter, river");
    openText(save());
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 1),
                ElementsAre("Common Name", "Otter", " river", "Adder"));
}

TEST_F(ProjectFile, EndsALineAtACarriageReturnWithOrWithoutALineFeed) {
    openText("Project Version = VERSION2\rCommon Name = A\nB,C\r\nScientific Name = x,y");
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 1), ElementsAre("Common Name", "A\nB", "C"));
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 2), ElementsAre("Scientific Name", "x", "y"));
}

TEST_F(ProjectFile, ReadsBytesOfOlderSystems) {
    openText(
        "Project Version = VERSION2\r\nCommon Name = \xD1"
        "and\xFA,\xC3\x91\x61\x6E\r\n");
    EXPECT_THAT(columnOf(form.flxCandidateSpecies, 1), ElementsAre("Common Name", "Ñandú", "Ñan"));
}

TEST_F(ProjectFile, StopsAtABadLineWithoutAMessageAndStaysOpen) {
    const std::string bad[] = {"Function = 1\r\n",    "Functionx = 1\r\n",   "Function99 = 1\r\n",
                               "My Function = 1\r\n", "Socio-Econ6 = 1\r\n", "Data Quality6 = 1\r\n",
                               "Data Quality = \r\n"};
    for (const std::string& line : bad) {
        SCOPED_TRACE(line);
        ScriptedPlatform ownPlatform;
        ui::Files ownFiles;
        modGlobal ownGlobal;
        frmBrenica own(ownPlatform, ownFiles, ownGlobal);
        const std::string path = folder.file("bad.brn");
        writeFile(path,
                  "Project Version = VERSION2\r\nCommon Name = Otter\r\n" + line + "Habitat Type = Bog\r\n");
        ownPlatform.Files.push_back(path);
        EXPECT_NO_THROW(own.mnuOpenProject.UserClick());
        EXPECT_THAT(ownPlatform.Transcript, IsEmpty());
        EXPECT_EQ(ownGlobal.TotalSpecies, 1);
        EXPECT_EQ(ownGlobal.TotalHabitatTypes, 0);
        EXPECT_EQ(own.Caption(), "Brenica");
        EXPECT_TRUE(own.ProjectLoading);
        EXPECT_TRUE(ownFiles.IsOpen(1));
        ASSERT_TRUE(ownFiles.LastFault());
        EXPECT_EQ(ownFiles.LastFault()->Path, path);
        EXPECT_EQ(ownFiles.LastFault()->Line, 3);
    }
}

TEST_F(ProjectFile, AfterABadFileNoOtherOpensInTheSameRun) {
    openText("Project Version = VERSION2\r\nFunctionx = 1\r\n");
    open(ProjectText(1, 1, 1, 1));
    EXPECT_EQ(global.TotalSpecies, 0);
    ASSERT_TRUE(files.LastFault());
    EXPECT_EQ(files.LastFault()->Error.Number, 55);
}

TEST_F(ProjectFile, ReportsUnderTheReadersName) {
    openText("Project Version = VERSION2\r\nSocio-Econ6 = 1\r\n");
    ASSERT_TRUE(files.LastFault());
    EXPECT_EQ(files.LastFault()->Error.Number, 9);
    const std::string path = folder.file("two.brn");
    writeFile(path, "Project Version = VERSION2\r\nFunctionx = 1\r\n");
    ui::Files ownFiles;
    modGlobal ownGlobal;
    frmBrenica own(platform, ownFiles, ownGlobal);
    const ui::RunTimeError error = failureOf([&] { own.OpenProject(path); });
    EXPECT_EQ(error.Description, reportOf("Brenica.OpenProject", 13, "Type mismatch"));
}

TEST_F(ProjectFile, AFileThatCannotBeOpenedFailsAsItIs) {
    const ui::RunTimeError error = failureOf([&] { form.OpenProject(folder.file("missing.brn")); });
    EXPECT_EQ(error.Number, 53);
    EXPECT_EQ(error.Description, "File not found");
}

TEST_F(ProjectFile, ReportsAFailedSaveUnderTheWritersName) {
    const ui::RunTimeError error = failureOf([&] { form.SaveProject(""); });
    EXPECT_EQ(error.Description, reportOf("Brenica.SaveProject", 75, "Path/File access error"));
}

TEST_F(ProjectFile, SavingChangesNothingInMemory) {
    open(typical());
    save();
    EXPECT_FALSE(form.ProjectChanged);
    EXPECT_EQ(save(), typical().text());
}

TEST_F(ProjectFile, HoldsNeitherLevelsNorCalculatedValues) {
    open(ProjectText(1, 1, 1, 1));
    const std::string before = save();
    walkTo(7);
    type(form.txtErrorMargin, "9");
    EXPECT_EQ(save(), before);
}

TEST_F(ProjectFile, AreasAreNotSummedOnOpening) {
    open(ProjectText(1, 2, 2, 1));
    EXPECT_EQ(global.HabitatAreaTotal, 0);
    EXPECT_EQ(form.flxSummary(0).Cols(), 3);
    EXPECT_FALSE(global.ScoresCalculated);
}

// Older programs write a line of ratings for each species though there is nothing to rate.
TEST_F(ProjectFile, PassesOverRatingsWhileThereAreNoActivities) {
    ProjectText project = ProjectText(3, 1, 1, 0).set("Function6", "3,2,1");
    const std::string sound = project.text();
    open(project.set("VulnerabilitybySpecies Severity", "1,2,3")
             .set("VulnerabilitybySpecies Recovery", ",,")
             .set("VulnerabilitybySpecies Proportion", "1,2,3,4"));
    EXPECT_FALSE(form.ProjectLoading);
    for (int col = threat::Severity; col <= threat::Proportion; ++col) {
        for (int row = 1; row <= 3; ++row)
            EXPECT_EQ(form.flxSummary(summary::ThreatsBySpecies).TextMatrix(row, col), "");
    }
    EXPECT_EQ(save(), sound);
}

/// What the saved file says when it is opened, and saved again.
TEST_F(ProjectFile, OpensAgainWithAListOfOneBlankName) {
    struct Shape {
        std::vector<std::string> Species, Habitats, Zones, Activities;
    };
    for (const Shape& shape :
         std::vector<Shape>{{{"Ant", "Bee"}, {""}, {}, {}},
                            {{"Ant"}, {}, {""}, {}},
                            {{"Ant", "Bee"}, {"Reed"}, {""}, {"Dams"}},
                            {{""}, {"Reed", "Bog"}, {"North", "South"}, {"Dams", "Roads"}},
                            {{"Ant"}, {"Reed"}, {"North"}, {""}}}) {
        form.ProjectChanged = false;
        form.mnuNewProject.UserClick();
        addSpecies(shape.Species);
        addHabitats(shape.Habitats);
        addZones(shape.Zones);
        addActivities(shape.Activities);
        goTo(3);
        form.flxHabitatHetero.UserEditCell(1, 1, "3");
        form.flxJurisUnitHetero.UserEditCell(1, 1, "3");
        goTo(1);
        const std::string saved = save();
        openText(saved);
        EXPECT_FALSE(form.ProjectLoading);
        EXPECT_FALSE(files.IsOpen(1));
        EXPECT_FALSE(files.LastFault());
        const auto there = [](const std::vector<std::string>& names) {
            return names.size() == 1 && names[0].empty() ? 0 : static_cast<int>(names.size());
        };
        EXPECT_EQ(global.TotalSpecies, there(shape.Species));
        EXPECT_EQ(global.TotalHabitatTypes, there(shape.Habitats));
        EXPECT_EQ(global.TotalJurisUnits, there(shape.Zones));
        EXPECT_EQ(global.TotalLandUses, there(shape.Activities));
    }
}

TEST_F(ProjectFile, GivesNoGradesToASpeciesThatIsNotThereYet) {
    ProjectText project(1, 1, 1, 2);
    for (const char* key : {"VulnerabilitybySpecies Severity", "VulnerabilitybySpecies Recovery",
                            "VulnerabilitybySpecies Proportion"})
        project.set(key, "1,2");
    open(project.set("Common Name", "")
             .set("Function1", "3")
             .set("Socio-Econ1", "2")
             .set("Data Quality1", "4"));
    EXPECT_EQ(global.TotalSpecies, 0);
    addSpecies({"Ant"});
    for (int activity = 1; activity <= 2; ++activity) {
        for (const int col : {threat::Severity, threat::Recovery, threat::Proportion})
            EXPECT_EQ(form.flxSummary(summary::ThreatsBySpecies).TextMatrix(activity, col), "");
    }
    for (const int member : {summary::Functionality, summary::SocioEcon, summary::DataQuality})
        EXPECT_EQ(form.flxSummary(member).TextMatrix(1, 1), "") << member;
}

TEST_F(ProjectFile, ANameWithACommaCostsPlacesButNoRow) {
    ProjectText project(3, 1, 1, 1);
    open(project.set("Common Name", "Ant, red,Bee,Cat"));
    ASSERT_EQ(global.TotalSpecies, 4);
    EXPECT_EQ(form.flxSummary(summary::Functionality).Rows(), 5);
    EXPECT_NO_THROW(form.flxCandidateSpecies.UserEditCell(4, list::Name, "Lynx"));
    EXPECT_THAT(save(), HasSubstr("\r\nFunction1 = 1,1,1,\r\n"));
    EXPECT_FALSE(files.IsOpen(2));
}

TEST_F(ProjectFile, TheLastLineOfBinsIsTheOneThatCounts) {
    std::string text = ProjectText(2, 1, 1, 1)
                           .set("Home-range definition", "user-defined bins,1,2")
                           .set("Home ranges", "2+ km2,1 - 2 km2")
                           .text();
    const std::string line = "Home-range definition = ";
    text.insert(text.find(line), line + "user-defined bins,5,10\r\n");
    openText(text);
    EXPECT_EQ(form.cbxUserDefBinsHR.ListCount(), 2);
    walkTo(4);
    EXPECT_EQ(form.flxSummary(summary::Area).TextMatrix(1, area::HomeRange), "2+ km2");
    EXPECT_EQ(form.flxSummary(summary::Area).TextMatrix(2, area::HomeRange), "1 - 2 km2");
}

/// Files without a version line.
class Version1File : public FormTest {
protected:
    static ProjectText version1(int species, int habitats, int zones) {
        ProjectText project(species, habitats, zones, 1);
        for (const char* key : {"Project Version", "Habitat UseLevel", "MZone UseLevel", "Landscape Occupied",
                                "Conservation Status"}) {
            project.remove(key);
        }
        return project;
    }
    std::string occupied(int species) {
        return std::string(form.flxSummary(summary::Area).TextMatrix(species, area::Occupied));
    }
};

TEST_F(Version1File, FillsInDefaultsWithAMessage) {
    open(version1(2, 2, 1));
    ASSERT_EQ(platform.Transcript.size(), 1U);
    EXPECT_EQ(lastBox().BoxKind, ShownBox::Kind::Message);
    EXPECT_EQ(lastBox().Title, "Version 1 poject file");
    EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Exclamation);
    EXPECT_EQ(
        lastBox().Text,
        "As this is an early project files default values will be put in the 'Proportion of Landscape Occupied', "
        "'Current Conservation Status', 'Habitat Level of Use', and 'Management Level of Use' fields. Remember "
        "to update these values.");
    EXPECT_THAT(columnOf(form.flxHabitatTypes, list::LevelOfUse), ElementsAre("Level of Use", "2", "2"));
    EXPECT_THAT(columnOf(form.flxJurisUnits, list::LevelOfUse), ElementsAre("Level of Use", "2"));
    EXPECT_EQ(form.flxSummary(5).TextMatrix(0, 1), "CCS");
    EXPECT_EQ(form.flxSummary(5).TextMatrix(1, 1), "1");
    EXPECT_EQ(form.flxSummary(5).TextMatrix(2, 1), "1");
    EXPECT_EQ(form.flxSummary(0).Cols(), 6);
    EXPECT_EQ(form.flxSummary(0).TextMatrix(1, 5), "2");
    EXPECT_FALSE(form.ProjectChanged);
}

TEST_F(Version1File, GivesEveryUnitThePromisedLevelWhateverItsAreas) {
    const char* areas[] = {"", "5", "5,5,5"};
    for (const char* line : areas) {
        SCOPED_TRACE(line);
        ScriptedPlatform ownPlatform;
        ui::Files ownFiles;
        modGlobal ownGlobal;
        frmBrenica own(ownPlatform, ownFiles, ownGlobal);
        ownPlatform.Files.push_back(folder.file("old.brn"));
        writeFile(folder.file("old.brn"),
                  version1(1, 3, 3).set("Habitat Area", line).set("JU Area", line).text());
        own.mnuOpenProject.UserClick();
        ASSERT_EQ(ownPlatform.Transcript.size(), 1U);
        for (const ui::Grid* grid : {&own.flxHabitatTypes, &own.flxJurisUnits})
            EXPECT_THAT(columnOf(*grid, list::LevelOfUse), ElementsAre("Level of Use", "2", "2", "2"));
    }
}

TEST_F(Version1File, KeepsTheLevelsThatTheFileHas) {
    open(version1(1, 3, 2)
             .set("Habitat Area", "5")
             .set("Habitat UseLevel", "1,,3")
             .set("MZone UseLevel", "0"));
    EXPECT_THAT(columnOf(form.flxHabitatTypes, list::LevelOfUse), ElementsAre("Level of Use", "1", "2", "3"));
    EXPECT_THAT(columnOf(form.flxJurisUnits, list::LevelOfUse), ElementsAre("Level of Use", "0", "2"));
}

TEST_F(Version1File, ConvertsTheLevelsOfUse) {
    open(version1(1, 7, 2)
             .set("HeteroHabitat Population", "0,1,,0.5,2,1.0,0.0")
             .set("HeteroJU Individual", ",1"));
    EXPECT_THAT(columnOf(form.flxSummary(2), use::Level),
                ElementsAre("Level of Use", "0", "2", "0", "0.5", "2", "2", "0"));
    EXPECT_EQ(form.flxSummary(0).TextMatrix(1, 2), "2");
    EXPECT_EQ(form.flxSummary(0).TextMatrix(1, 3), "0");
    EXPECT_THAT(columnOf(form.flxSummary(3), use::Level), ElementsAre("Level of Use", "0", "2"));
}

TEST_F(Version1File, TakesTheProportionOccupiedFromTheAreas) {
    open(version1(2, 3, 1).set("Habitat Area", "10,20,30").set("HeteroHabitat Population", "1,0,0,0,1,1"));
    EXPECT_EQ(occupied(1), "0.167");
    EXPECT_EQ(occupied(2), "0.833");
    EXPECT_EQ(global.HabitatAreaTotal, 60);
    EXPECT_TRUE(global.HabitatAreasEntered);
    EXPECT_THAT(global.HabitatAreas, ElementsAre(10, 20, 30));
}

TEST_F(Version1File, TakesTheProportionOccupiedFromTheCountsWithoutAreas) {
    open(version1(1, 3, 1).set("Habitat Area", "10,,30").set("HeteroHabitat Population", "1,0,1"));
    EXPECT_EQ(occupied(1), "0.667");
    EXPECT_FALSE(global.HabitatAreasEntered);
    EXPECT_EQ(global.HabitatAreaTotal, 3);
}

TEST_F(Version1File, AreasThatSumUpToTheNumberOfUnitsCountAsNone) {
    open(version1(1, 3, 1).set("Habitat Area", "2,0.5,0.5").set("HeteroHabitat Population", "1,0,0"));
    EXPECT_EQ(occupied(1), "0.333");
}

TEST_F(Version1File, TakesTheZonesWhereNoHabitatIsUsed) {
    open(version1(2, 1, 4)
             .set("HeteroHabitat Population", "0,0")
             .set("HeteroJU Individual", "1,0,0,0,0,0,0,0")
             .set("JU Area", "5,5,10,20"));
    EXPECT_EQ(occupied(1), "0.125");
    EXPECT_EQ(occupied(2), "0");
}

TEST_F(Version1File, TakesTheZonesWhereThereIsNoHabitat) {
    open(version1(1, 0, 4).set("HeteroJU Individual", "1,0,0,0").set("JU Area", "5,5,10,20"));
    EXPECT_FALSE(form.ProjectLoading);
    EXPECT_EQ(occupied(1), "0.125");
}

TEST_F(Version1File, OccupiesNothingOfAreasThatSumUpToZero) {
    open(version1(1, 2, 2).set("Habitat Area", "0,0").set("JU Area", "0,0"));
    EXPECT_TRUE(global.HabitatAreasEntered);
    EXPECT_EQ(occupied(1), "0");
}

TEST_F(Version1File, AfterAVersion2FileIsTakenForVersion2) {
    open(ProjectText(1, 1, 1, 1));
    open(version1(2, 1, 1));
    EXPECT_EQ(form.flxSummary(2).TextMatrix(1, use::Level), "1");
    EXPECT_EQ(form.flxHabitatTypes.TextMatrix(1, list::LevelOfUse), "");
    EXPECT_EQ(occupied(2), "");
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(Version1File, ALevelThatIsNoNumberStopsTheLoad) {
    open(version1(1, 1, 1).set("HeteroHabitat Population", "x"));
    EXPECT_THAT(platform.Transcript, IsEmpty());
    EXPECT_TRUE(files.IsOpen(1));
    EXPECT_TRUE(form.ProjectLoading);
    ASSERT_TRUE(files.LastFault());
    EXPECT_EQ(files.LastFault()->Line, 12);
    EXPECT_EQ(files.LastFault()->Error.Description, "Type mismatch");
}
