// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/project_text.h"

#include <algorithm>

std::string numbered(const std::string& text, int count) {
    std::string list;
    for (int i = 1; i <= count; ++i) list += (i > 1 ? "," : "") + text + " " + std::to_string(i);
    return list;
}

std::string repeated(const std::string& value, int count) {
    std::string list;
    for (int i = 0; i < count; ++i) list += (i > 0 ? "," : "") + value;
    return list;
}

ProjectText::ProjectText(int species, int habitats, int zones, int activities) {
    constexpr int Functions = 6;
    constexpr int SocioEcon = 5;
    set("Project Version", "VERSION2");
    set("Common Name", numbered("Species", species));
    set("Scientific Name", numbered("Species scientificus", species));
    set("Habitat Type", numbered("Habitat", habitats));
    set("Habitat Area", repeated("10", habitats));
    set("Habitat UseLevel", repeated("2", habitats));
    set("Jurisdictional Unit", numbered("Zone", zones));
    set("JU Area", repeated("10", zones));
    set("MZone UseLevel", repeated("2", zones));
    set("Land Use", numbered("Activity", activities));
    set("Urgency", repeated("1", activities));
    set("Probability of occurence", repeated("1", activities));
    set("Home-range definition", "continuous");
    set("Functions",
        "Predation,Seed dispersal,Seed predation,Pollination,Mechanical disturbance,Competitive interactions");
    set("HeteroHabitat Population", repeated("1", species * habitats));
    set("HeteroJU Individual", repeated("1", species * zones));
    set("Area Dispersal", repeated("Y", species));
    set("Area Connectivity", repeated("Y", species));
    set("Home ranges", repeated("10", species));
    set("Landscape Occupied", repeated("0.5", species));
    set("Conservation Status", repeated("0.5", species));
    set("VulnerabilitybySpecies Severity", repeated("1", species * activities));
    set("VulnerabilitybySpecies Recovery", repeated("1", species * activities));
    set("VulnerabilitybySpecies Proportion", repeated("1", species * activities));
    for (int i = 1; i <= Functions; ++i) set("Function" + std::to_string(i), repeated("1", species));
    for (int i = 1; i <= SocioEcon; ++i) set("Socio-Econ" + std::to_string(i), repeated("1", species));
    for (int i = 1; i <= SocioEcon; ++i) set("Data Quality" + std::to_string(i), repeated("1", species));
}

ProjectText& ProjectText::set(const std::string& key, const std::string& values) {
    if (values_.count(key) == 0) order_.push_back(key);
    values_[key] = values;
    return *this;
}

ProjectText& ProjectText::remove(const std::string& key) {
    order_.erase(std::remove(order_.begin(), order_.end(), key), order_.end());
    values_.erase(key);
    return *this;
}

const std::string& ProjectText::values(const std::string& key) const { return values_.at(key); }

std::string ProjectText::text() const {
    std::string text;
    for (const std::string& key : order_) {
        const std::string& values = values_.at(key);
        text += key + (values.empty() ? " =" : " = " + values) + "\r\n";
    }
    return text;
}
