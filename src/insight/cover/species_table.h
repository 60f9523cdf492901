// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/cover/species_roles.h"

namespace insight {

/// All candidates, excluded ones too. `roles` is of each row of the problem.
ResultTable speciesTable(const SelectionRun& run, const CoverIndex& index, const RunSuite& suite,
                         const std::vector<SpeciesRole>& roles);

}  // namespace insight
