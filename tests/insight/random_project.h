// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "batch/options.h"
#include "support/project_text.h"

/// Random projects with odd names and numbers, for the tests of what is said about their runs.

/// Draws from a stream of its own, the same for the same seed.
class Draw {
public:
    explicit Draw(std::uint64_t seed) : engine_(seed) {}
    std::size_t below(std::size_t count) { return engine_() % count; }
    bool chance(int percent) { return below(100) < static_cast<std::size_t>(percent); }
    template <class Value>
    const Value& of(const std::vector<Value>& pool) {
        return pool[below(pool.size())];
    }
    std::string list(const std::vector<std::string>& pool, std::size_t count) {
        std::string values;
        for (std::size_t i = 0; i < count; ++i) values += (i > 0 ? "," : "") + of(pool);
        return values;
    }

private:
    std::mt19937_64 engine_;
};

struct RandomProject {
    ProjectText Text{1, 1, 1, 1};
    RunOptions Options{};  ///< levels and answers
};

inline std::string randomName(Draw& draw) {
    static const std::vector<std::string> Words = {"Wolf",
                                                   "Lynx",
                                                   "Otter",
                                                   "Marsh",
                                                   "River",
                                                   "Éland",
                                                   "Straße",
                                                   "Łoś",
                                                   "森林",
                                                   "O'Hara",
                                                   "12. a",
                                                   "  (3)",
                                                   "a\tb",
                                                   "S = x",
                                                   "M ",
                                                   "1",
                                                   "a=b",
                                                   "line\nb",
                                                   "0",
                                                   "Threats: ",
                                                   "5 % Error margin",
                                                   "\t\t\t\t\t\t\t\t\t\t\t"};
    std::string name = draw.of(Words);
    while (draw.chance(40)) name += " " + draw.of(Words);
    if (draw.chance(25)) name += std::string(40, 'x').substr(0, 15 + draw.below(20));
    return name;
}

inline std::string randomNames(Draw& draw, std::size_t count) {
    std::vector<std::string> pool;
    for (std::size_t i = 0; i < count; ++i) pool.push_back(randomName(draw));
    if (draw.chance(30)) return draw.list(pool, count);  // some are equal
    std::string names;
    for (const std::string& name : pool) names += (names.empty() ? "" : ",") + name;
    return names;
}

/// Levels of use, species by species. Mostly some species reaches every unit, so that the run comes to its end.
inline std::string randomUse(Draw& draw, std::size_t species, std::size_t units) {
    const std::vector<std::vector<std::string>> pools = {{"0", "0", "0", "3"},
                                                         {"0", "1", "2", "3"},
                                                         {"0", "0", "1.5", "2.5", "3"},
                                                         {"0", "0", "0", "0", "2", "3"},
                                                         {"0", "0", "0", "0", "0", "0", "0"},
                                                         {"0.1", "0.7", "3"}};
    const std::vector<std::string>& pool = draw.of(pools);
    std::vector<std::string> levels;
    for (std::size_t i = 0; i < species * units; ++i) levels.push_back(draw.of(pool));
    for (std::size_t unit = 0; unit < units; ++unit) {
        if (draw.chance(95)) levels[draw.below(species) * units + unit] = "3";
    }
    std::string values;
    for (const std::string& level : levels) values += (values.empty() ? "" : ",") + level;
    return values;
}

/// A project that passes the gates, mostly of several passes.
inline RandomProject randomProject(std::uint64_t seed) {
    using Pool = std::vector<std::string>;
    Draw draw(seed);
    const std::size_t species = 1 + draw.below(12);
    const std::size_t habitats = 1 + draw.below(6);
    const std::size_t zones = 1 + draw.below(6);
    const std::size_t threats = 1 + draw.below(6);
    const auto number = [](std::size_t count) { return static_cast<int>(count); };
    RandomProject random{ProjectText(number(species), number(habitats), number(zones), number(threats))};
    ProjectText& project = random.Text;
    project.set("Common Name", randomNames(draw, species));
    project.set("Habitat Type", randomNames(draw, habitats));
    project.set("Jurisdictional Unit", randomNames(draw, zones));
    project.set("Land Use", randomNames(draw, threats));
    const std::vector<Pool> thresholds = {{"2"}, {"3"}, {"1", "2", "3"}, {"1.5", "2.5"}, {"0", "1", "3"}};
    project.set("Habitat UseLevel", draw.list(draw.of(thresholds), habitats));
    project.set("MZone UseLevel", draw.list(draw.of(thresholds), zones));
    project.set("HeteroHabitat Population", randomUse(draw, species, habitats));
    project.set("HeteroJU Individual", randomUse(draw, species, zones));
    project.set("Urgency", draw.list({"0", "1", "2", "3"}, threats));
    project.set("Probability of occurence", draw.list({"0", "0.1", "0.33", "1", "1", "1"}, threats));
    for (const char* rating : {"Severity", "Recovery", "Proportion"}) {
        project.set(std::string("VulnerabilitybySpecies ") + rating,
                    draw.list(draw.of(std::vector<Pool>{{"0", "1", "2", "3"}, {"0", "0", "3"}, {"1"}}),
                              species * threats));
    }
    project.set("Area Dispersal", draw.list({"Y", "N"}, species));
    project.set("Area Connectivity", draw.list({"Y", "N", "n"}, species));
    project.set("Home ranges", draw.list({"1", "5", "120.5", "0.25", "7"}, species));
    if (draw.chance(30)) {
        project.set("Home-range definition", "default bins");
        project.set("Home ranges", draw.list({"0 - 1 km2", "10 - 25 km2", "100+ km2", "100+ KM2"}, species));
    }
    project.set("Landscape Occupied", draw.list({"0.1", "0.333", "0.5", "1"}, species));
    project.set("Conservation Status",
                draw.list(draw.of(std::vector<Pool>{{"0.2", "0.8"}, {"1"}, {"0", "0.5", "1"}}), species));
    const Pool grades = draw.of(std::vector<Pool>{{"0", "1", "2", "3"}, {"1"}, {"0"}, {"0.1", "0.2", "1.7"}});
    for (int f = 1; f <= 6; ++f) project.set("Function" + std::to_string(f), draw.list(grades, species));
    for (int c = 1; c <= 5; ++c)
        project.set("Socio-Econ" + std::to_string(c), draw.list({"0", "1", "2"}, species));

    random.Options.ErrorMargin = draw.of(Pool{"0", "1", "5", "12.5", "20", "35", "60", "100"});
    random.Options.ThreatRepresentation = draw.of(Pool{"0", "0.25", "0.5", "0.75", "0.9", "1"});
    random.Options.ConservationStatus = draw.of(Pool{"1", "1", "1", "0.9", "0.5"});
    const Pool answers = {"a", "b", "c", "d", "e", "e", "e", "1", "2", "3", "4", "x", ""};
    for (std::size_t i = draw.below(16); i > 0; --i) random.Options.Answers.push_back(draw.of(answers));
    return random;
}
