// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/report/markup.h"
#include "insight/report/report_findings.h"

/// The figures of a report, each with a text that says the same.
namespace insight {

/// A drawing in a box of its own, with a text below it.
Markup figure(std::string_view label, const Markup& drawings, const Markup& caption);

/// The suite against the units. Long lists are parted into drawings that fit on a printed page each.
Markup matrixFigure(const ReportFindings& findings);
/// Units covered against number of species: the run, and the best there is.
Markup coverageFigure(const ReportFindings& findings);
/// How often each species is selected, and in what interval, sweep by sweep.
Markup frequencyFigure(const ReportFindings& findings);
/// Size of the suite and units not covered at other levels.
Markup levelFigure(const ReportFindings& findings);

}  // namespace insight
