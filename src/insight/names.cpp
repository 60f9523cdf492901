// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/names.h"

namespace insight {

const std::string& unitName(const SelectionRun& run, const CoverIndex& index, std::size_t unit) {
    std::size_t number = index.problem().Units[unit];
    const std::size_t habitats = run.Units[method::Unit::Habitat].size();
    if (number < habitats) return run.Units[method::Unit::Habitat][number];
    number -= habitats;
    const std::size_t zones = run.Units[method::Unit::Zone].size();
    return number < zones ? run.Units[method::Unit::Zone][number]
                          : run.Units[method::Unit::Threat][number - zones];
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
