// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fstream>

#include "batch_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::string example(const std::string& name) { return std::string(BRENICA_SOURCE_DIR) + "/examples/" + name; }

/// The cells of a grid text file, line by line.
std::vector<std::vector<std::string>> cellsOf(const std::string& path) {
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        std::vector<std::string> cells(1);
        for (const char c : line) {
            if (c == '\t') {
                cells.emplace_back();
            } else {
                cells.back() += c;
            }
        }
        rows.push_back(cells);
    }
    return rows;
}

using Rows = std::vector<std::vector<std::string>>;

}  // namespace

/// The example landscapes show what their readme tells.
class Example : public BatchTest {
protected:
    /// The levels and answers of an options file.
    void takeOptions(const std::string& name) {
        std::vector<std::string> arguments = {"brenica-batch"};
        std::ifstream file(example(name));
        for (std::string line; std::getline(file, line);) arguments.push_back(line);
        arguments.push_back("project.brn");
        std::vector<const char*> raw;
        for (const std::string& argument : arguments) raw.push_back(argument.c_str());
        const ParsedOptions parsed = parseOptions(static_cast<int>(raw.size()), raw.data(), out, err);
        ASSERT_TRUE(parsed.Options);
        options = *parsed.Options;
    }
    void runExample(const std::string& name, ExitCode expected = ExitDone) {
        options.Project = example(name);
        options.Tables = folder.file("tables");
        options.Messages = folder.file("messages.json");
        EXPECT_EQ(runBatch(options, out, err), expected) << err.str();
    }
    Rows table(const std::string& name) const { return cellsOf(*options.Tables + "/" + name + ".txt"); }

    /// Rows of the overall results, pass by pass, without the hidden candidate numbers.
    std::vector<Rows> passes() const {
        std::vector<Rows> blocks(1);
        const Rows all = table("OverallComplementarityData");
        for (std::size_t i = 1; i < all.size(); ++i) {
            if (all[i][0].empty()) {
                blocks.emplace_back();
            } else {
                blocks.back().emplace_back(all[i].begin(), all[i].end() - 1);
            }
        }
        blocks.pop_back();
        return blocks;
    }

    /// The units whose first pick is `pick`; "" for those that stay uncovered.
    std::vector<std::string> coveredBy(const std::string& view, const std::string& pick) const {
        std::vector<std::string> names;
        for (const auto& row : table(view)) {
            if (row[1] == pick) names.push_back(row[0]);
        }
        return names;
    }
    std::vector<std::string> suite() const {
        std::vector<std::string> names;
        for (const auto& row : table("BrenicSuiteData")) names.push_back(row[1]);
        names.erase(names.begin());
        return names;
    }
    /// What follows a box's title on standard error, for each box with that title.
    std::vector<std::string> boxes(const std::string& title) const {
        std::vector<std::string> texts;
        std::istringstream lines(err.str());
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with(title + ": ")) texts.push_back(line.substr(title.size() + 2));
        }
        return texts;
    }
};

class SmallExample : public Example {
protected:
    void SetUp() override { runExample("small_landscape.brn"); }
};

TEST_F(SmallExample, ScoresBeforeNormalisation) {
    const Rows scores = table("OriginalScoresData");
    EXPECT_EQ(scores, (Rows{{"Common Name", "H", "A", "V", "F", "S-E", ""},
                            {"Eurasian Otter", "17", "5.3", "45.6", "3", "4", "1"},
                            {"Great Bittern", "11", "2.85", "28.8", "2", "2", "2"},
                            {"Corncrake", "12", "1.275", "17.7", "1", "2", "3"},
                            {"Eurasian Badger", "17", "1.9", "29.2", "5", "4", "4"},
                            {"European Adder", "11", "0.315", "15.5", "2", "2", "5"},
                            {"European Nightjar", "11", "1.45", "16.4", "1", "2", "6"},
                            {"Green Woodpecker", "9", "1.43", "0.3", "3", "1", "7"}}));
}

TEST_F(SmallExample, ThreatScores) {
    const Rows scores = table("VulnerabilitySummary");
    EXPECT_EQ(scores[0], (std::vector<std::string>{"Common Name", "CCS", "", "Land drainage", "Overgrazing",
                                                   "Road traffic", "", "Total by species", "No. threats"}));
    EXPECT_EQ(scores[1],
              (std::vector<std::string>{"Eurasian Otter", "0.4", "", "9", "0", "36", "", "45", "2"}));
    EXPECT_EQ(scores[2],
              (std::vector<std::string>{"Great Bittern", "0.2", "", "24", "4", "0", "", "28", "2"}));
    EXPECT_EQ(scores[3], (std::vector<std::string>{"Corncrake", "0.3", "", "6", "8", "3", "", "17", "3"}));
    EXPECT_EQ(scores[4],
              (std::vector<std::string>{"Eurasian Badger", "0.8", "", "0", "2", "27", "", "29", "2"}));
    EXPECT_EQ(scores[5],
              (std::vector<std::string>{"European Adder", "0.5", "", "0", "12", "3", "", "15", "2"}));
    EXPECT_EQ(scores[6],
              (std::vector<std::string>{"European Nightjar", "0.6", "", "0", "8", "8", "", "16", "2"}));
    EXPECT_EQ(scores[7],
              (std::vector<std::string>{"Green Woodpecker", "0.7", "", "0", "0", "0", "", "0", "0"}));
}

TEST_F(SmallExample, NormalisedScoresAndRanks) {
    // The selection has put the table back in species order.
    EXPECT_EQ(table("NormalizedScoresData"),
              (Rows{{"Common Name", "Rank", "Aggregate", "H", "A", "V", "F", "S-E", ""},
                    {"Eurasian Otter", "1", "4.6", "1", "1", "1", "0.6", "1", "1"},
                    {"Great Bittern", "3", "2.717", "0.647", "0.538", "0.632", "0.4", "0.5", "2"},
                    {"Corncrake", "4", "2.035", "0.706", "0.241", "0.388", "0.2", "0.5", "3"},
                    {"Eurasian Badger", "2", "3.998", "1", "0.358", "0.64", "1", "1", "4"},
                    {"European Adder", "6", "1.946", "0.647", "0.059", "0.34", "0.4", "0.5", "5"},
                    {"European Nightjar", "5", "1.981", "0.647", "0.274", "0.36", "0.2", "0.5", "6"},
                    {"Green Woodpecker", "7", "1.656", "0.529", "0.27", "0.007", "0.6", "0.25", "7"}}));
}

TEST_F(SmallExample, PassByPass) {
    const std::vector<Rows> blocks = passes();
    ASSERT_EQ(blocks.size(), 4U);
    EXPECT_EQ(
        blocks[0],
        (Rows{{"Eurasian Otter", "1", "4.6", "1", "1", "1", "0.6", "1", "2", "2", "1"},
              {"Eurasian Badger", "2", "3.998", "1", "0.358", "0.64", "1", "1", "2", "2", "1"},
              {"Great Bittern", "3", "2.717", "0.647", "0.538", "0.632", "0.4", "0.5", "1", "1", "1"},
              {"Corncrake", "4", "2.035", "0.706", "0.241", "0.388", "0.2", "0.5", "1", "2", "1"},
              {"European Nightjar", "5", "1.981", "0.647", "0.274", "0.36", "0.2", "0.5", "1", "1", "1"},
              {"European Adder", "6", "1.946", "0.647", "0.059", "0.34", "0.4", "0.5", "1", "1", "1"},
              {"Green Woodpecker", "7", "1.656", "0.529", "0.27", "0.007", "0.6", "0.25", "1", "1", "0"}}));
    EXPECT_EQ(blocks[1],
              (Rows{{"Eurasian Badger", "1", "3.434", "1", "0.358", "0.076", "1", "1", "1", "1", "0"},
                    {"Great Bittern", "2", "2.438", "0", "0.538", "1", "0.4", "0.5", "0", "0", "1"},
                    {"European Adder", "3", "2.193", "0.8", "0.059", "0.434", "0.4", "0.5", "1", "0", "1"},
                    {"European Nightjar", "4", "2.066", "0.8", "0.274", "0.292", "0.2", "0.5", "1", "0", "1"},
                    {"Green Woodpecker", "5", "1.83", "0.7", "0.27", "0.01", "0.6", "0.25", "1", "0", "0"},
                    {"Corncrake", "6", "1.651", "0.2", "0.241", "0.51", "0.2", "0.5", "0", "1", "1"}}));
    EXPECT_EQ(blocks[2],
              (Rows{{"Great Bittern", "1", "2.438", "0", "0.538", "1", "0.4", "0.5", "0", "0", "1"},
                    {"European Adder", "2", "1.993", "0.6", "0.059", "0.434", "0.4", "0.5", "1", "0", "1"},
                    {"European Nightjar", "3", "1.866", "0.6", "0.274", "0.292", "0.2", "0.5", "1", "0", "1"},
                    {"Corncrake", "4", "1.451", "0", "0.241", "0.51", "0.2", "0.5", "0", "0", "1"},
                    {"Green Woodpecker", "5", "1.13", "0", "0.27", "0.01", "0.6", "0.25", "0", "0", "0"}}));
    EXPECT_EQ(blocks[3],
              (Rows{{"European Adder", "1", "1.993", "0.6", "0.059", "0.434", "0.4", "0.5", "1", "0", "1"},
                    {"European Nightjar", "2", "1.866", "0.6", "0.274", "0.292", "0.2", "0.5", "1", "0", "1"},
                    {"Corncrake", "3", "1.243", "0", "0.241", "0.302", "0.2", "0.5", "0", "0", "1"}}));
}

TEST_F(SmallExample, SuiteAndWhatEachPickCovers) {
    EXPECT_EQ(out.str(),
              "No.\tCommon Name\tHabitat Types\tManag. Zones\tThreats\n"
              "1\tEurasian Otter\t2\t2\t1\n2\tEurasian Badger\t1\t1\t0\n3\tGreat Bittern\t0\t0\t1\n"
              "4\tEuropean Adder\t1\t0\t1\n\n" +
                  std::string(AllCovered) + "\n");
    EXPECT_THAT(coveredBy("HabitatsCoveredData", "1"), ElementsAre("Wet meadow", "Reedbed"));
    EXPECT_THAT(coveredBy("JurisUnitsCoveredData", "1"), ElementsAre("Aldermere Reserve", "Village commons"));
    EXPECT_THAT(coveredBy("ThreatsCoveredData", "1"), ElementsAre("Road traffic"));
    EXPECT_THAT(coveredBy("HabitatsCoveredData", "2"), ElementsAre("Oak woodland"));
    EXPECT_THAT(coveredBy("JurisUnitsCoveredData", "2"), ElementsAre("Private farms"));
    EXPECT_THAT(coveredBy("ThreatsCoveredData", "3"), ElementsAre("Land drainage"));
    EXPECT_THAT(coveredBy("HabitatsCoveredData", "4"), ElementsAre("Dry heath"));
    EXPECT_THAT(coveredBy("ThreatsCoveredData", "4"), ElementsAre("Overgrazing"));
}

TEST_F(SmallExample, OmitsTheWoodpeckerAndAsksNothing) {
    EXPECT_EQ(err.str(),
              "Species Omitted: Green Woodpecker has been removed as it covers no additional habitats, "
              "management zones or threats.\nSelection Report: " +
                  std::string(AllCovered) + "\n");
}

class MissedUnitExample : public Example {};

TEST_F(MissedUnitExample, EndsWellAndLeavesOutAZoneThatASpeciesCovers) {
    takeOptions("missed_unit.options");
    runExample("missed_unit.brn");
    EXPECT_THAT(table("BrenicSuiteData"),
                ElementsAre(testing::_, ElementsAre("1", "Grey Heron", "1", "0", "1"),
                            ElementsAre("2", "Bank Vole", "1", "1", "0")));
    EXPECT_THAT(out.str(), testing::EndsWith("Management Zones: Lakeside Reserve\n"));
}

TEST_F(MissedUnitExample, CoversItWhereNoOmittedSpeciesIsTaken) {
    options.ErrorMargin = "30";
    runExample("missed_unit.brn");
    EXPECT_THAT(out.str(), testing::EndsWith(std::string(AllCovered) + "\n"));
}

class FullExample : public Example {
protected:
    void SetUp() override {
        takeOptions("full_landscape.options");
        runExample("full_landscape.brn");
    }
    /// The prompts of the dialogues between species, each with the names in brackets.
    std::vector<std::string> choices() const {
        std::vector<std::string> names;
        std::istringstream lines(err.str());
        bool next = false;
        for (std::string line; std::getline(lines, line);) {
            if (next) names.push_back(line.substr(2));
            next = line.ends_with("To select between ");
        }
        return names;
    }
};

TEST_F(FullExample, HasTheLevelsAndAnswersOfItsOptions) {
    EXPECT_EQ(options.ErrorMargin, "6");
    EXPECT_EQ(options.ThreatRepresentation, "0.4");
    EXPECT_EQ(options.ConservationStatus, "0.8");
    EXPECT_THAT(options.Answers, ElementsAre("b", "d", "b", "2"));
}

TEST_F(FullExample, ExcludesTwoSpecies) {
    EXPECT_THAT(err.str(),
                testing::StartsWith("Excluded species: The following 2 species was excluded due to their "
                                    "high Current Conservation Status value:\n  Capybara; Crab-eating "
                                    "Fox\n"));
}

TEST_F(FullExample, AsksFourTimesOnceForATie) {
    EXPECT_THAT(choices(), ElementsAre("{Dorado; Maned Wolf}", "{Andean Bear; Andean Condor}",
                                       "{Lowland Tapir; Military Macaw}"));
    EXPECT_THAT(err.str(), testing::HasSubstr("(a)   the aggregate score {3.462; 3.419}\n"
                                              "  (b)   the heterogeneity score {0.667; 0.933}"));
    EXPECT_THAT(err.str(), testing::HasSubstr("(a)   the aggregate score {3.162; 3.154}"));
    EXPECT_THAT(err.str(), testing::HasSubstr("(d)   the socio-economic value or {0.667; 1}"));
    EXPECT_THAT(err.str(), testing::HasSubstr("(a)   the aggregate score {2.4; 2.291}\n"
                                              "  (b)   the heterogeneity score {0; 0}"));
    EXPECT_THAT(boxes("Select the species within the margin or error"),
                ElementsAre("Enter the number of the candidate species"));
    EXPECT_THAT(err.str(), testing::HasSubstr("  1: Lowland Tapir\n  2: Military Macaw\n  > 2\n"));
    EXPECT_THAT(boxes("Invalid value"), IsEmpty());
}

TEST_F(FullExample, TheJaguarLeadsOutsideTheMargin) {
    const Rows first = passes().front();
    EXPECT_EQ(first[0][0], "Jaguar");
    EXPECT_EQ(first[0][2], "4.458");
    EXPECT_EQ(first[1][0], "White-lipped Peccary");
    EXPECT_EQ(first[1][2], "3.63");
}

TEST_F(FullExample, PicksItsSuite) {
    struct Pick {
        const char* Name;
        std::vector<std::string> Habitats;
        std::vector<std::string> Zones;
        std::vector<std::string> Threats;
    };
    const Pick picks[] = {
        {"Jaguar",
         {"Piedmont forest", "Gallery forest", "Dry woodland"},
         {"Ayuma National Park", "Río Pardo Reserve", "Forestry concessions"},
         {"Subsistence hunting", "Retaliatory killing", "Soy expansion", "Cattle ranching"}},
        {"Maned Wolf",
         {"Palm savanna", "Flooded grassland"},
         {"Private ranches"},
         {"Pasture burning", "Road building"}},
        {"Dorado", {"Lowland rivers"}, {"Isoya Community Lands"}, {"Dam building", "Overfishing"}},
        {"Andean Condor", {"Puna grassland", "Cliffs and gorges"}, {"Puna commons"}, {}},
        {"Andean Bear", {"Cloud forest", "Queñoa woodland"}, {"Municipal watershed"}, {}},
        {"Military Macaw", {}, {}, {"Selective logging", "Pet trade"}},
        {"Giant Otter", {}, {}, {"Gold mining"}},
        {"Great Fruit-eating Bat", {}, {"Smallholder colonies"}, {}},
        {"Torrent Duck", {"Mountain streams"}, {}, {}}};
    const auto names = suite();
    ASSERT_EQ(names.size(), std::size(picks));
    for (std::size_t i = 0; i < names.size(); ++i) {
        SCOPED_TRACE(picks[i].Name);
        const std::string number = std::to_string(i + 1);
        EXPECT_EQ(names[i], picks[i].Name);
        EXPECT_EQ(coveredBy("HabitatsCoveredData", number), picks[i].Habitats);
        EXPECT_EQ(coveredBy("JurisUnitsCoveredData", number), picks[i].Zones);
        EXPECT_EQ(coveredBy("ThreatsCoveredData", number), picks[i].Threats);
    }
}

TEST_F(FullExample, OmitsFourteenSpeciesInTheirOrder) {
    std::vector<std::string> omitted;
    for (const std::string& text : boxes("Species Omitted"))
        omitted.push_back(text.substr(0, text.find(" has been")));
    EXPECT_THAT(omitted,
                ElementsAre("Ñandú", "Jabiru", "Giant Anteater", "White-lipped Peccary", "Yacaré Caiman",
                            "Marsh Deer", "Puma", "Mountain Vizcacha", "Taruca", "Lowland Tapir",
                            "Harpy Eagle", "Black Howler", "Tucumán Parrot", "Chaco Tortoise"));
}

TEST_F(FullExample, LeavesAHabitatAndAThreatUncovered) {
    EXPECT_THAT(coveredBy("HabitatsCoveredData", ""), ElementsAre("Farm mosaic"));
    EXPECT_THAT(coveredBy("JurisUnitsCoveredData", ""), IsEmpty());
    EXPECT_THAT(coveredBy("ThreatsCoveredData", ""), ElementsAre("Pesticide drift"));
    EXPECT_THAT(out.str(), testing::EndsWith(
                               "\n\nThe following are not covered by the current suite of brenic species:\n"
                               "Habitat types: Farm mosaic\nThreats: Pesticide drift\n"));
}

TEST_F(FullExample, TheExcludedFoxHasTheHighestScoreForPesticides) {
    const Rows scores = table("VulnerabilitySummary");
    ASSERT_EQ(scores[0][14], "Pesticide drift");
    EXPECT_EQ(scores[25][0], "Crab-eating Fox");
    EXPECT_EQ(scores[25][14], "32.4");
    EXPECT_EQ(scores[13][0], "Ñandú");
    EXPECT_EQ(scores[13][14], "10.8");
}

class Version1Example : public Example {
protected:
    void SetUp() override { runExample("version1_landscape.brn"); }
};

TEST_F(Version1Example, TellsThatDefaultsArePutInAndAsksNothing) {
    EXPECT_THAT(
        boxes("Version 1 poject file"),
        ElementsAre("As this is an early project files default values will be put in the 'Proportion of "
                    "Landscape Occupied', 'Current Conservation Status', 'Habitat Level of Use', and "
                    "'Management Level of Use' fields. Remember to update these values."));
    EXPECT_THAT(err.str(), testing::Not(testing::HasSubstr("  > ")));
}

TEST_F(Version1Example, FillsInItsDefaults) {
    for (const char* name : {"HabitatData", "ManagZonesData"}) {
        const Rows units = table(name);
        for (std::size_t i = 1; i < units.size(); ++i) EXPECT_EQ(units[i][3], "2") << name << i;
    }
    const Rows status = table("VulnerabilitySummary");
    for (std::size_t i = 1; i <= 8; ++i) EXPECT_EQ(status[i][1], "1") << i;
    const Rows levels = table("HabitatHeterogeneitySummary");
    EXPECT_EQ(levels[1], (std::vector<std::string>{"Eurasian Lynx", "2", "0", "0", "2", "0", "", "4", "2"}));
    const Rows areas = table("AreaSummary");
    // Lynx 730 / 1025, beaver (320 + 95) / 1025, capercaillie 550 / 1025, crane 140 / 1025.
    const char* occupied[] = {"0.712", "0.405", "0.537", "0.137"};
    for (std::size_t i = 0; i < std::size(occupied); ++i) EXPECT_EQ(areas[i + 1][4], occupied[i]) << i;
}

TEST_F(Version1Example, PicksItsSuite) {
    EXPECT_EQ(out.str(),
              "No.\tCommon Name\tHabitat Types\tManag. Zones\tThreats\n"
              "1\tEurasian Lynx\t2\t2\t1\n2\tGolden Eagle\t1\t1\t1\n3\tEurasian Beaver\t1\t0\t0\n"
              "4\tWestern Capercaillie\t0\t0\t1\n5\tEurasian Curlew\t1\t1\t0\n6\tCommon Crane\t0\t0\t1\n\n" +
                  std::string(AllCovered) + "\n");
    std::vector<std::string> omitted;
    for (const std::string& text : boxes("Species Omitted"))
        omitted.push_back(text.substr(0, text.find(" has been")));
    EXPECT_THAT(omitted, testing::UnorderedElementsAre("Black-throated Diver", "Siberian Flying Squirrel"));
}
