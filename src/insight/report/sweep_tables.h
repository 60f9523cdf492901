// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/report/report_findings.h"
#include "insight/table.h"

/// The sweeps of a report side by side: each has a column of its name, with shares as "32 % (30–33)", the bounds of the
/// 95 % interval in brackets.
namespace insight {

/// Columns number, species, pick: every candidate. Shares are of the runs that selected anybody; empty for a species that
/// none of the runs admits.
ResultTable selectedTable(const ReportFindings& findings);
/// Columns unit, kind: units that some run leaves uncovered. For each sweep a second column, its name + "_missed".
ResultTable uncoveredTable(const ReportFindings& findings);
/// Columns size: sizes that occurred.
ResultTable sizeTable(const ReportFindings& findings);

}  // namespace insight
