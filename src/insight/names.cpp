// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/names.h"

#include <array>

namespace insight {

const char* nameOf(method::Unit kind) {
    constexpr std::array Names = {"habitat", "zone", "threat"};
    return Names[static_cast<std::size_t>(kind)];
}

const std::string& unitName(const SelectionRun& run, const UnitNumber& unit) {
    return run.Units[unit.Kind][unit.Number];
}

std::vector<std::string> speciesNames(const SelectionRun& run, const std::vector<std::size_t>& species) {
    std::vector<std::string> names;
    for (const std::size_t s : species) names.push_back(run.Species[s]);
    return names;
}

const std::string& unitName(const SelectionRun& run, const CoverIndex& index, std::size_t unit) {
    return unitName(run, index.problem().Units[unit]);
}

std::vector<std::string> unitNames(const SelectionRun& run, const CoverIndex& index, const Rows& units) {
    std::vector<std::string> names;
    for (const std::uint32_t unit : units) names.push_back(unitName(run, index, unit));
    return names;
}

std::vector<std::string> unitNames(const SelectionRun& run, const CoverIndex& index, Bits units) {
    std::vector<std::string> names;
    forEach(units, [&](std::size_t unit) { names.push_back(unitName(run, index, unit)); });
    return names;
}

std::vector<std::string> speciesNames(const SelectionRun& run, const CoverIndex& index, const Rows& rows) {
    std::vector<std::string> names;
    for (const std::uint32_t row : rows) names.push_back(run.Species[index.problem().Species[row]]);
    return names;
}

}  // namespace insight
