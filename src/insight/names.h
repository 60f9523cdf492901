// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "insight/cover/cover_index.h"

/// From the rows and bits of a problem back to the names of the lists.
namespace insight {

const std::string& unitName(const SelectionRun& run, const CoverIndex& index, std::size_t unit);
std::vector<std::string> unitNames(const SelectionRun& run, const CoverIndex& index, const Rows& units);
std::vector<std::string> unitNames(const SelectionRun& run, const CoverIndex& index, Bits units);
std::vector<std::string> speciesNames(const SelectionRun& run, const CoverIndex& index, const Rows& rows);

}  // namespace insight
