// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/report/report_findings.h"
#include "insight/report/sentence.h"

/// What a planner says of a suite when asked for one minute. Each sentence is true as it stands: what is not proven is
/// not said.
namespace insight {

/// The size of the suite against the smallest, first of all; then coverage, what stays uncovered and why, what could go,
/// and what else would do.
std::vector<Sentence> verdict(const ReportFindings& findings);

/// The same in figures.
struct KeyFigure {
    std::string Value;
    std::string Label;
};
std::vector<KeyFigure> keyFigures(const ReportFindings& findings);

/// What few species achieve; empty where there is nothing to compare.
Sentence coverageSentence(const ReportFindings& findings);

/// Names of the units with this fate.
std::vector<std::string> unitsWith(const ReportFindings& findings, UnitFate fate);
/// Species that all suites of minimal size hold, as far as that is proven.
std::vector<std::string> speciesInAll(const ReportFindings& findings);

}  // namespace insight
