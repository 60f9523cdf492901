// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/cover/minimum.h"
#include "insight/table.h"

namespace insight {

/// The run's suite against the minimum, measure by measure. All three must be of the run and of one problem.
ResultTable minimumTable(const SelectionRun& run, const CoverIndex& index, const RunSuite& suite,
                         const MinimumAnswer& minimum);

}  // namespace insight
