// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/report/report_findings.h"
#include "insight/table.h"

namespace insight {

/// Units that the run leaves uncovered, for who would change that. Columns unit, kind, state, needed, best, reason, help.
ResultTable openUnitTable(const ReportFindings& findings);

/// The changes that were tried, numbered. Columns number, change, species, open, smallest, in, out.
ResultTable remedyTable(const ReportFindings& findings);
/// What the change is: "conservation status 0.95".
std::string changeInWords(const ReportFindings& findings, const Change& change);

}  // namespace insight
