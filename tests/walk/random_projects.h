// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/project_text.h"
#include "walk/random.h"

inline std::string joined(const std::vector<std::string>& values) {
    std::string text;
    for (std::size_t i = 0; i < values.size(); ++i) text += (i > 0 ? "," : "") + values[i];
    return text;
}

inline std::vector<std::string> madeOf(int count, const std::function<std::string()>& make) {
    std::vector<std::string> values;
    for (int i = 0; i < count; ++i) values.push_back(make());
    return values;
}

struct ProjectSizes {
    int Species = 0;
    int Habitats = 0;
    int Zones = 0;
    int Activities = 0;
};

/// A project file as the writer writes it: every grade on its scale, every row complete, so that it passes the gates.
class RandomProject {
public:
    RandomProject(Random& random, ProjectSizes sizes)
        : random_(random), sizes_(sizes), text(sizes.Species, sizes.Habitats, sizes.Zones, sizes.Activities) {
        fillLists();
        fillHomeRanges();
        fillSpecies();
    }

    /// Makes it a file of the first version, which lacks what came later.
    void turnIntoVersion1() {
        for (const char* key : {"Project Version", "Habitat UseLevel", "MZone UseLevel", "Landscape Occupied",
                                "Conservation Status"}) {
            text.remove(key);
        }
    }

private:
    std::string grade(int last) { return std::to_string(random_.below(last + 1)); }
    void set(const std::string& key, int count, const std::function<std::string()>& make) {
        text.set(key, joined(madeOf(count, make)));
    }

    void fillLists() {
        const auto name = [&](const char* kind) {
            return [this, kind] { return std::string(kind) + " " + std::to_string(random_.below(10000)); };
        };
        set("Common Name", sizes_.Species, name("Species"));
        set("Habitat Type", sizes_.Habitats, name("Habitat of a long name"));
        set("Jurisdictional Unit", sizes_.Zones, name("Zone"));
        set("Land Use", sizes_.Activities, name("Activity"));
        const auto area = [&] { return random_.chance(80) ? std::to_string(random_.below(500)) : ""; };
        set("Habitat Area", sizes_.Habitats, area);
        set("JU Area", sizes_.Zones, area);
        set("Habitat UseLevel", sizes_.Habitats, [&] { return grade(3); });
        set("MZone UseLevel", sizes_.Zones, [&] { return grade(3); });
        set("Urgency", sizes_.Activities, [&] { return grade(2); });
        set("Probability of occurence", sizes_.Activities, [&] { return proportion(); });
    }

    std::string proportion() {
        return random_.chance(30) ? "1" : "0." + std::to_string(random_.between(1, 9));
    }

    void fillHomeRanges() {
        static const std::vector<std::string> Bins = {"0 - 1 km2",   "1 - 10 km2",   "10 - 25 km2",
                                                      "25 - 50 km2", "50 - 100 km2", "100+ km2"};
        static const std::vector<std::string> UserBins = {"0 - 5 km2", "5 - 20 km2", "20+ km2"};
        switch (random_.below(3)) {
            case 0:
                text.set("Home-range definition", "continuous");
                return set("Home ranges", sizes_.Species,
                           [&] { return std::to_string(random_.between(1, 300)); });
            case 1:
                text.set("Home-range definition", "default bins");
                return set("Home ranges", sizes_.Species, [&] { return random_.pick(Bins); });
            default:
                text.set("Home-range definition", "user-defined bins,0,5,20");
                return set("Home ranges", sizes_.Species, [&] { return random_.pick(UserBins); });
        }
    }

    void fillSpecies() {
        set("HeteroHabitat Population", sizes_.Species * sizes_.Habitats, [&] { return grade(3); });
        set("HeteroJU Individual", sizes_.Species * sizes_.Zones, [&] { return grade(3); });
        const auto yesNo = [&] { return random_.chance(50) ? "Y" : "N"; };
        set("Area Dispersal", sizes_.Species, yesNo);
        set("Area Connectivity", sizes_.Species, yesNo);
        set("Landscape Occupied", sizes_.Species, [&] { return proportion(); });
        set("Conservation Status", sizes_.Species, [&] { return proportion(); });
        const int pairs = sizes_.Species * sizes_.Activities;
        set("VulnerabilitybySpecies Severity", pairs, [&] { return grade(3); });
        set("VulnerabilitybySpecies Recovery", pairs, [&] { return grade(3); });
        set("VulnerabilitybySpecies Proportion", pairs, [&] { return grade(4); });
        for (int i = 1; i <= 6; ++i) {
            set("Function" + std::to_string(i), sizes_.Species, [&] { return grade(3); });
        }
        for (int i = 1; i <= 5; ++i) {
            set("Socio-Econ" + std::to_string(i), sizes_.Species, [&] { return grade(2); });
            set("Data Quality" + std::to_string(i), sizes_.Species,
                [&] { return std::to_string(random_.between(1, 6)); });
        }
    }

    Random& random_;
    ProjectSizes sizes_;

public:
    ProjectText text;
};

/// A text like a project's with some bytes changed, lines lost, doubled or put elsewhere.
inline std::string damaged(Random& random, std::string text) {
    for (int changes = random.between(1, 4); changes > 0 && !text.empty(); --changes) {
        const auto at = static_cast<std::size_t>(random.below(static_cast<int>(text.size())));
        switch (random.below(6)) {
            case 0: text[at] = random.pick({',', '=', 'x', '9', '-', ' ', '\r', '\xFF'}); break;
            case 1: text.erase(at, static_cast<std::size_t>(random.between(1, 40))); break;
            case 2:
                text.insert(at, random.pick({"Function9 = 1\r\n", "\r\nFunction = 1,2\r\n", ",,", "\r\n",
                                             "\r\nCommon Name = a,b,c,d\r\n", "\r\nLand Use = q,r,s\r\n",
                                             "\r\nHome-range definition = user-defined bins,1,2\r\n"}));
                break;
            case 3: text.resize(at); break;
            case 4: text.insert(at, text.substr(at / 2, 200)); break;
            default: text.erase(0, text.find('\n') + 1); break;
        }
    }
    return text;
}
