// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "walk/complete_project.h"

namespace {

/// Opens a text in a program of its own and gives what that program saves.
class RoundTrip : public testing::Test {
protected:
    TemporaryFolder folder;

    std::string savedAgain(const std::string& text) {
        ScriptedPlatform platform;
        ui::Files files;
        modGlobal global;
        frmBrenica form{platform, files, global};
        const std::string path = folder.file("opened.brn");
        const std::string saved = folder.file("saved.brn");
        writeFile(path, text);
        platform.Files = {path, saved};
        form.mnuOpenProject.UserClick();
        EXPECT_EQ(global.ProjectFileName, path) << "it cannot be opened";
        form.mnuSaveProject.UserClick();
        return readFile(saved);
    }

    static std::vector<std::string> linesOf(const std::string& text) {
        std::vector<std::string> lines;
        for (std::size_t start = 0; start < text.size();) {
            const std::size_t end = std::min(text.find("\r\n", start), text.size());
            lines.push_back(text.substr(start, end - start));
            start = end + 2;
        }
        return lines;
    }
    static std::string valuesOf(const std::string& text, const std::string& key) {
        for (const std::string& line : linesOf(text)) {
            if (line.compare(0, key.size() + 2, key + " =") != 0) continue;
            return line.size() > key.size() + 3 ? line.substr(key.size() + 3) : "";
        }
        ADD_FAILURE() << "no line " << key;
        return "";
    }
};

struct ChangedValue {
    const char* Name;
    const char* Key;
    const char* Before;
    const char* After;
    const char* HomeRanges = "continuous";
};

void PrintTo(const ChangedValue& value, std::ostream* stream) { *stream << value.Name; }

class RoundTripChanges : public RoundTrip, public testing::WithParamInterface<ChangedValue> {};

/// What a round trip changes in a project of two species. When a file is open the first species is on view, and a box
/// that shows another text than before writes it back, within its bounds; nothing else of the store is touched.
constexpr ChangedValue Changes[] = {
    // A blank proportion puts "0" into its box, which stores it; the second species' stays blank.
    {"BlankProportion", "Landscape Occupied", ",", "0,"},
    {"LargeProportion", "Landscape Occupied", "1.5,1.5", "1,1.5"},
    {"NegativeProportion", "Landscape Occupied", "-0.5,-0.5", "0,-0.5"},
    {"WordProportion", "Landscape Occupied", "half,half", "0,half"},
    // A continuous home range of 0 or less is none, unless the box shows "0" already; there is an upper bound.
    {"ZeroHomeRange", "Home ranges", "0.0,0.0", ",0.0"},
    {"NegativeHomeRange", "Home ranges", "-3,-3", ",-3"},
    {"WordHomeRange", "Home ranges", "far,far", ",far"},
    {"LargeHomeRange", "Home ranges", "20000000,20000000", "10000000,20000000"},
    {"RestingHomeRange", "Home ranges", "0,5", "0,5"},
    // A bin is spelled as the list has it.
    {"BinSpelling", "Home ranges", "1 - 10 KM2,1 - 10 KM2", "1 - 10 km2,1 - 10 KM2", "default bins"},
    {"UserBinSpelling", "Home ranges", "20+ KM2,20+ KM2", "20+ km2,20+ KM2", "user-defined bins,0,5,20"},
    {"UnknownBin", "Home ranges", "many,many", "many,many", "default bins"},
    // So are Y and N; any other text leaves its box alone.
    {"YesSpelling", "Area Dispersal", "y,y", "Y,y"},
    {"NoSpelling", "Area Connectivity", "n,n", "N,n"},
    {"NoAnswer", "Area Connectivity", "N/A,?", "N/A,?"},
    // The conservation status is held within 0 and 1; a blank one is shown as 1 and not stored.
    {"LargeStatus", "Conservation Status", "2,2", "1,2"},
    {"NegativeStatus", "Conservation Status", "-1,-1", "0,-1"},
    {"WordStatus", "Conservation Status", "rare,rare", "1,rare"},
    {"BlankStatus", "Conservation Status", ",0.2", ",0.2"},
    // The level of the criterion on view is written back as a whole number.
    {"FractionLevel", "Data Quality1", "2.4,2.4", "2,2.4"},
    {"FractionLevelOutOfView", "Data Quality2", "2.4,2.4", "2.4,2.4"},
    // Blanks at the ends of the whole list go, those within stay.
    {"OuterBlanks", "Scientific Name", "  a  ,  b  ", "a  ,  b"},
    // A comma in a cell is a separator: the third value has no row.
    {"Comma", "Scientific Name", "a,b,c", "a,b"},
    // Values beyond the rows of a table are dropped.
    {"TooManyRatings", "VulnerabilitybySpecies Severity", "0,1,2,3,1,2", "0,1,2,3"},
    // An "=" in a cell is a text like any other, since the first one of the line ends the key.
    {"EqualsSign", "Scientific Name", "a=b,c = d", "a=b,c = d"},
    {"LoneLineFeed", "Scientific Name", "a\nb,c", "a\nb,c"},
    // Threats and functions keep any text.
    {"WordRating", "VulnerabilitybySpecies Recovery", "x,-1, 2,", "x,-1, 2,"},
    {"WordGrade", "Function3", "x,-1", "x,-1"},
};

}  // namespace

TEST_P(RoundTripChanges, GivesTheTextThatTheRulesSay) {
    const ChangedValue& value = GetParam();
    ProjectText project(2, 2, 2, 2);
    project.set("Home-range definition", value.HomeRanges);
    if (std::string(value.HomeRanges) != "continuous") project.set("Home ranges", ",");
    project.set(value.Key, value.Before);
    const std::string saved = savedAgain(project.text());
    EXPECT_EQ(valuesOf(saved, value.Key), value.After);
    EXPECT_EQ(saved, project.set(value.Key, value.After).text()) << "another line has changed";
    EXPECT_EQ(savedAgain(saved), saved);
}

INSTANTIATE_TEST_SUITE_P(Values, RoundTripChanges, testing::ValuesIn(Changes),
                         [](const auto& value) { return std::string(value.param.Name); });

TEST_F(RoundTrip, ListOfOneBlankNameReadsAsNoList) {
    const std::string saved = savedAgain(
        ProjectText(1, 1, 1, 1).set("Habitat Type", "").set("HeteroHabitat Population", "").text());
    EXPECT_EQ(valuesOf(saved, "Habitat Type"), "");
    EXPECT_EQ(valuesOf(saved, "Habitat Area"), "");
    EXPECT_EQ(valuesOf(saved, "Habitat UseLevel"), "");
    EXPECT_EQ(savedAgain(saved), saved);
}

// While there are no activities each species has one row in the table of ratings, which is no rating and not written.
TEST_F(RoundTrip, SeveralSpeciesWithoutActivitiesAreReadAgain) {
    ScriptedPlatform platform;
    ui::Files files;
    modGlobal global;
    frmBrenica form{platform, files, global};
    form.txtTotalSpecies.Text("2");
    form.cmdUpdateSpecies.UserClick();
    form.flxCandidateSpecies.UserEditCell(1, list::Name, "Otter");
    const std::string path = folder.file("species.brn");
    platform.Files = {path};
    form.mnuSaveProject.UserClick();
    EXPECT_EQ(valuesOf(readFile(path), "VulnerabilitybySpecies Severity"), "");
    platform.Answers = {"no"};
    platform.Files = {path};
    form.mnuOpenProject.UserClick();
    EXPECT_FALSE(form.ProjectLoading);
    EXPECT_FALSE(files.LastFault());
    EXPECT_EQ(global.TotalSpecies, 2);
}

TEST_F(RoundTrip, NoFunctionsReadAsTheDefaultOnes) {
    ProjectText project(1, 1, 1, 1);
    project.set("Functions", "");
    for (int i = 1; i <= 6; ++i) project.remove("Function" + std::to_string(i));
    const std::string saved = savedAgain(project.text());
    EXPECT_THAT(valuesOf(saved, "Functions"), testing::StartsWith("Predation,Seed dispersal,"));
    EXPECT_EQ(valuesOf(saved, "Function6"), "");
    EXPECT_EQ(savedAgain(saved), saved);
}

TEST_F(RoundTrip, RandomProjectsComeBackUnchanged) {
    Random random(1);
    for (int i = 0; i < 300; ++i) {
        const ProjectSizes sizes{random.below(8), random.below(7), random.below(7), random.below(7)};
        const std::string text = RandomProject(random, sizes).text.text();
        ASSERT_EQ(savedAgain(text), text) << "project " << i;
    }
}

TEST_F(RoundTrip, Version1ProjectsComeBackUnchangedOnceTheyAreSaved) {
    Random random(2);
    for (int i = 0; i < 100; ++i) {
        const ProjectSizes sizes{random.between(1, 8), random.between(1, 6), random.between(1, 6),
                                 random.between(1, 6)};
        RandomProject project(random, sizes);
        project.turnIntoVersion1();
        const std::string saved = savedAgain(project.text.text());
        EXPECT_EQ(valuesOf(saved, "Project Version"), "VERSION2");
        ASSERT_EQ(savedAgain(saved), saved) << "project " << i;
    }
}

// Whatever users have entered, a file that has been read once holds what the next reading gives.
TEST_F(RoundTrip, ProjectsEnteredByHandComeBackUnchangedFromTheSecondReadingOn) {
    Random seeds(3);
    int compared = 0;
    for (int i = 0; i < 60; ++i) {
        Walker walker(seeds.next());
        walker.run(120);
        if (walker.End != WalkEnd::Tired || walker.DamagedFile) continue;
        walker.End = WalkEnd::Running;
        if (!walker.savesInStep()) continue;
        const std::string path = walker.saveNow();
        ASSERT_NE(path, "");
        const std::string entered = readFile(path);
        const std::string once = savedAgain(entered);
        ASSERT_EQ(savedAgain(once), once) << "walk " << i;
        ++compared;

        const auto before = linesOf(entered);
        const auto after = linesOf(once);
        ASSERT_EQ(before.size(), after.size());
        for (std::size_t line = 0; line < before.size(); ++line) {
            // Values of the species on view may change, as told above.
            const std::string key = before[line].substr(0, before[line].find(" ="));
            const bool onView =
                key == "Landscape Occupied" || key == "Home ranges" || key == "Conservation Status";
            if (onView) continue;
            EXPECT_EQ(after[line], before[line]) << "walk " << i;
        }
    }
    EXPECT_GE(compared, 10);
}
