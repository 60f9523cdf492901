// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "plain_project.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace {

using Names = std::vector<std::string>;

std::map<std::string, Names> linesOf(const std::string& path) {
    std::ifstream file(path);
    if (!file) throw std::runtime_error("cannot read " + path);
    std::map<std::string, Names> lines;
    for (std::string line; std::getline(file, line);) {
        while (!line.empty() && line.back() == '\r') line.pop_back();
        const std::size_t mark = line.find(" = ");
        if (mark == std::string::npos) continue;
        Names& values = lines[line.substr(0, mark)];
        std::istringstream rest(line.substr(mark + 3) + ",");
        for (std::string value; std::getline(rest, value, ',');) values.push_back(value);
    }
    return lines;
}

double numberOf(const std::string& text) {
    if (text.find_first_not_of(' ') == std::string::npos) return method::Blank;
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : method::Unreadable;
}

std::vector<double> numbers(const Names& values, std::size_t count) {
    std::vector<double> list(count, method::Blank);
    for (std::size_t i = 0; i < std::min(count, values.size()); ++i) list[i] = numberOf(values[i]);
    return list;
}

method::Table table(const Names& values, std::size_t rows, std::size_t columns) {
    method::Table cells(rows, columns);
    const std::vector<double> list = numbers(values, rows * columns);
    for (std::size_t i = 0; i < list.size(); ++i) cells.at(i / columns, i % columns) = list[i];
    return cells;
}

/// One line for each column.
method::Table columns(const std::map<std::string, Names>& lines, const std::string& key, std::size_t rows,
                      std::size_t count) {
    method::Table cells(rows, count);
    for (std::size_t c = 0; c < count; ++c) {
        const auto column = numbers(lines.at(key + std::to_string(c + 1)), rows);
        for (std::size_t r = 0; r < rows; ++r) cells.at(r, c) = column[r];
    }
    return cells;
}

/// A line of the threats, the same for each species.
method::Table repeated(const Names& values, std::size_t rows, std::size_t count) {
    method::Table cells(rows, count);
    const auto row = numbers(values, count);
    for (std::size_t s = 0; s < rows; ++s) std::copy(row.begin(), row.end(), cells.row(s).begin());
    return cells;
}

std::vector<std::uint8_t> answers(const Names& values, std::size_t count) {
    std::vector<std::uint8_t> list(count);
    for (std::size_t i = 0; i < std::min(count, values.size()); ++i)
        list[i] = values[i] == "Y" || values[i] == "y";
    return list;
}

bool sameText(const std::string& left, const std::string& right) {
    const auto small = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [&](char a, char b) { return small(a) == small(b); });
}

Names labelsOf(const Names& definition) {
    if (sameText(definition.front(), "default bins"))
        return {"0 - 1 km2", "1 - 10 km2", "10 - 25 km2", "25 - 50 km2", "50 - 100 km2", "100+ km2"};
    Names labels;
    for (std::size_t i = 1; i + 1 < definition.size(); ++i)
        labels.push_back(definition[i] + " - " + definition[i + 1] + " km2");
    labels.push_back(definition.back() + "+ km2");
    return labels;
}

method::HomeRanges homeRanges(const Names& definition, const Names& values, std::size_t count) {
    if (sameText(definition.front(), "continuous"))
        return {method::HomeRanges::Kind::Areas, 0, numbers(values, count)};
    const Names labels = labelsOf(definition);
    method::HomeRanges ranges{method::HomeRanges::Kind::Classes, labels.size(), {}};
    for (const std::string& value : values) {
        const auto found = std::find_if(labels.begin(), labels.end(),
                                        [&](const std::string& label) { return sameText(label, value); });
        ranges.Values.push_back(value.empty()           ? method::Blank
                                : found == labels.end() ? method::Unreadable
                                                        : static_cast<double>(found - labels.begin()) + 1);
    }
    ranges.Values.resize(count, method::Blank);
    return ranges;
}

}  // namespace

PlainProject::PlainProject(const std::string& path) {
    constexpr std::size_t Categories = 5;
    const auto lines = linesOf(path);
    Species = lines.at("Common Name");
    Habitats = lines.at("Habitat Type");
    Zones = lines.at("Jurisdictional Unit");
    Activities = lines.at("Land Use");
    const std::size_t count = Species.size();
    const auto ratings = [&](const char* rating) {
        return table(lines.at(std::string("VulnerabilitybySpecies ") + rating), count, Activities.size());
    };
    Landscape.HabitatLevels = table(lines.at("HeteroHabitat Population"), count, Habitats.size());
    Landscape.ZoneLevels = table(lines.at("HeteroJU Individual"), count, Zones.size());
    Landscape.HabitatThresholds = numbers(lines.at("Habitat UseLevel"), Habitats.size());
    Landscape.ZoneThresholds = numbers(lines.at("MZone UseLevel"), Zones.size());
    Landscape.HabitatAreas = numbers(lines.at("Habitat Area"), Habitats.size());
    Landscape.ZoneAreas = numbers(lines.at("JU Area"), Zones.size());
    Landscape.Ratings = {repeated(lines.at("Urgency"), count, Activities.size()), ratings("Recovery"),
                         ratings("Severity"), ratings("Proportion"),
                         repeated(lines.at("Probability of occurence"), count, Activities.size())};
    Landscape.Status = numbers(lines.at("Conservation Status"), count);
    Landscape.Dispersal = answers(lines.at("Area Dispersal"), count);
    Landscape.Connectivity = answers(lines.at("Area Connectivity"), count);
    Landscape.Ranges = homeRanges(lines.at("Home-range definition"), lines.at("Home ranges"), count);
    Landscape.Occupied = numbers(lines.at("Landscape Occupied"), count);
    Landscape.Functions = columns(lines, "Function", count, lines.at("Functions").size());
    Landscape.SocioEconomics = columns(lines, "Socio-Econ", count, Categories);
}
