// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "insight/cover/cover_index.h"

/// From numbers, rows and bits back to the names of the lists.
namespace insight {

/// "habitat", "zone" or "threat".
const char* nameOf(method::Unit kind);

const std::string& unitName(const SelectionRun& run, const UnitNumber& unit);
std::vector<std::string> speciesNames(const SelectionRun& run, const std::vector<std::size_t>& species);

/// Of the units and species of a problem.
const std::string& unitName(const SelectionRun& run, const CoverIndex& index, std::size_t unit);
std::vector<std::string> unitNames(const SelectionRun& run, const CoverIndex& index, const Rows& units);
std::vector<std::string> unitNames(const SelectionRun& run, const CoverIndex& index, Bits units);
std::vector<std::string> speciesNames(const SelectionRun& run, const CoverIndex& index, const Rows& rows);

}  // namespace insight
