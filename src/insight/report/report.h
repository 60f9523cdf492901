// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/report/report_findings.h"
#include "insight/report/sentence.h"

/// A run explained on one page of HTML that stands alone: it holds its style and its drawings, runs no script and loads
/// nothing.
///
///     const ReportFindings findings(run, answers, work);   // takes as long as it takes, on any thread
///     const std::string page = reportPage(findings, origin);
namespace insight {

/// Texts that only the caller knows.
struct ReportOrigin {
    std::string Project;  ///< name of the file
    std::string Hash;     ///< SHA-256 of its bytes in hexadecimal digits; empty where it is no file
    std::string Program;  ///< version of the program
    std::vector<std::string> Answers{};  ///< as they were given, to the questions of the run
    ReportWork Limits{};                 ///< of the searches
    bool IsSaved = true;  ///< the file opens to the project that is explained; without it there is no hash
    /// Values were filled in as the file was opened: it is of version 1, which lacks them.
    bool HasDefaults = false;
    std::string Title{};   ///< in the place of the file's name
    std::string Author{};  ///< of the report or the data; may be empty, as may be the date
    std::string Date{};    ///< as it was given: no clock is read
};

/// The same findings and origin give the same bytes.
std::string reportPage(const ReportFindings& findings, const ReportOrigin& origin);

}  // namespace insight
