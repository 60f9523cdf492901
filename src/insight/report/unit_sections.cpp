// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>

#include "insight/report/data_table.h"
#include "insight/report/open_units.h"
#include "insight/report/sections.h"
#include "insight/report/verdict.h"

namespace insight {

Markup uncoveredSection(const ReportFindings& findings, const ReportOrigin&) {
    static constexpr std::array Columns = {ShownColumn{"unit", "Unit", ColumnKind::Name},
                                           ShownColumn{"kind", "Kind", ColumnKind::Term},
                                           ShownColumn{"state", "State", ColumnKind::Term},
                                           ShownColumn{"needed", "Needed"},
                                           ShownColumn{"best", "Best"},
                                           ShownColumn{"reason", "Why", ColumnKind::Text},
                                           ShownColumn{"help", "What would help", ColumnKind::Text}};
    const ResultTable table = openUnitTable(findings);
    if (table.Rows.empty()) return paragraph("Nothing: every habitat, zone and threat is covered.");
    return paragraph(
               "A missed unit could be covered by an eligible species; the run did not select one. An "
               "uncoverable unit is covered by no eligible species, whatever is selected. Needed "
               "is what a species must reach: the level of use of the habitat or zone, or the score for "
               "the threat. Best is the highest value of an eligible species.") +
           dataTable("Units that the suite does not cover", table, Columns);
}

Markup unitSection(const ReportFindings& findings, const ReportOrigin&) {
    static constexpr std::array Columns = {ShownColumn{"kind", "Kind", ColumnKind::Term},
                                           ShownColumn{"number", "No."},
                                           ShownColumn{"unit", "Unit", ColumnKind::Name},
                                           ShownColumn{"state", "State", ColumnKind::Term},
                                           ShownColumn{"species", "Species that cover it"},
                                           ShownColumn{"needed", "Needed"},
                                           ShownColumn{"best", "Best"},
                                           ShownColumn{"covered_by", "Covered first by no."}};
    return paragraph(
               "Where a single species covers a unit the suite hangs on that one. Numbers count from 1 "
               "within the kind; the last column is the place in the suite.") +
           dataTable("Habitats, zones and threats", unitTable(findings.Run, findings.Units), Columns);
}

}  // namespace insight
