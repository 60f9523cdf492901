// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/report/report_findings.h"
#include "insight/table.h"

/// The sweeps of a report side by side, with the frequencies and intervals of each. Columns: those named, then for each
/// sweep its name, its name + "_low" and its name + "_high".
namespace insight {

/// Columns number, species, pick: every candidate.
ResultTable selectedTable(const ReportFindings& findings);
/// Columns unit, kind: units that some run leaves uncovered.
ResultTable uncoveredTable(const ReportFindings& findings);
/// Columns size: sizes that occurred.
ResultTable sizeTable(const ReportFindings& findings);

}  // namespace insight
