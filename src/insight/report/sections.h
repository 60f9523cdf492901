// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/report/markup.h"
#include "insight/report/report.h"

/// The sections of a report, in their order.
namespace insight {

struct Section {
    const char* Id;
    const char* Heading;
    Markup (*Content)(const ReportFindings& findings, const ReportOrigin& origin);
};

Markup uncoveredSection(const ReportFindings& findings, const ReportOrigin& origin);
Markup suiteSection(const ReportFindings& findings, const ReportOrigin& origin);
Markup decisionSection(const ReportFindings& findings, const ReportOrigin& origin);
Markup candidateSection(const ReportFindings& findings, const ReportOrigin& origin);
Markup coverageSection(const ReportFindings& findings, const ReportOrigin& origin);
Markup speciesSection(const ReportFindings& findings, const ReportOrigin& origin);
Markup alternativesSection(const ReportFindings& findings, const ReportOrigin& origin);
Markup frequencySection(const ReportFindings& findings, const ReportOrigin& origin);
Markup levelSection(const ReportFindings& findings, const ReportOrigin& origin);
Markup proofSection(const ReportFindings& findings, const ReportOrigin& origin);
Markup unitSection(const ReportFindings& findings, const ReportOrigin& origin);
Markup wordSection(const ReportFindings& findings, const ReportOrigin& origin);
Markup referenceSection(const ReportFindings& findings, const ReportOrigin& origin);
Markup originSection(const ReportFindings& findings, const ReportOrigin& origin);

/// The names of species that cover a unit: all where there are few candidates, so that the page can be checked from
/// itself, else the first few.
std::string coveringInWords(const ReportFindings& findings, const std::vector<std::size_t>& species);
/// A paragraph; nothing for an empty sentence.
Markup paragraph(const Sentence& sentence);
Markup paragraph(std::string_view words);

}  // namespace insight
