// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "insight/representation.h"
#include "insight/table.h"

/// What became of each unit in a run, and why.
namespace insight {

enum class UnitFate {
    Covered,      ///< by the suite
    Missed,       ///< an eligible species covers it, the suite does not
    Uncoverable,  ///< no eligible species covers it
};

struct UnitState {
    UnitFate Fate;
    std::size_t Covering;               ///< eligible species that cover it
    std::optional<double> Best;         ///< highest value of an eligible species
    std::vector<std::size_t> Excluded;  ///< of an uncoverable unit: those that would cover it
    int CoveredBy;                      ///< number of the pick, from 1; 0 for none
};

/// One for each unit, in order.
std::vector<UnitState> unitStates(const SelectionRun& run, const Representation& representation);

ResultTable unitTable(const SelectionRun& run, const Representation& representation);

}  // namespace insight
