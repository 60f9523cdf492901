// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/report/report_findings.h"
#include "insight/table.h"

namespace insight {

/// Units that the run leaves uncovered, for who would change that. Columns unit, kind, state, needed, best, reason, help.
ResultTable openUnitTable(const ReportFindings& findings);

/// The highest threat representation, to 2 decimals, at which a species with this score covers the threat; none where
/// only 0 would do.
std::optional<double> representationFor(double score, double highest);

}  // namespace insight
