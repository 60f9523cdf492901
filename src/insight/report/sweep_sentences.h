// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/report/report_findings.h"
#include "insight/report/sentence.h"

namespace insight {

/// How far the suite depends on what was drawn anew: who is always selected and who least often, who else comes in, how
/// large the suites are, what they miss, how they ended. In that order; none where no run was made.
std::vector<Sentence> sweepSentences(const ReportFindings& findings, const ReportSweep& sweep);

/// Why a given answer may do something else in a changed run; empty where none was given.
Sentence answersByPosition(const ReportFindings& findings);

}  // namespace insight
