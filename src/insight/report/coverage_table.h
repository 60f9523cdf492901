// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/report/report_findings.h"
#include "insight/table.h"

/// How the suite grew, against what each number of species could cover at most.
namespace insight {

struct CoveragePoint {
    std::optional<std::size_t> Run;   ///< units that the run covered; none beyond its end
    std::optional<std::size_t> Best;  ///< of the best suite known; none beyond the smallest suite
    std::size_t Bound = 0;            ///< with Best: no suite covers more
};
/// Element k: with k species, from 0.
using CoverageCurve = std::vector<CoveragePoint>;

CoverageCurve coverageCurve(const ReportFindings& findings);
/// Columns species, pick, run, best, bound, proven, suite (the best known).
ResultTable coverageTable(const ReportFindings& findings);

/// The suite in the order of selection. Columns pick, species, habitats, zones, threats (names of what it covered first).
ResultTable pickTable(const ReportFindings& findings);

}  // namespace insight
