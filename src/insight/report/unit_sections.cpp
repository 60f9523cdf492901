// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>

#include "insight/report/data_table.h"
#include "insight/report/open_units.h"
#include "insight/report/sections.h"
#include "insight/report/sweep_sentences.h"

namespace insight {

namespace {

Markup remedies(const ReportFindings& found) {
    static constexpr std::array Columns = {ShownColumn{"number", "No."},
                                           ShownColumn{"change", "Change", ColumnKind::Text},
                                           ShownColumn{"species", "Species selected"},
                                           ShownColumn{"open", "Open then", ColumnKind::Names},
                                           ShownColumn{"smallest", "Smallest suite"},
                                           ShownColumn{"in", "Comes in", ColumnKind::Names},
                                           ShownColumn{"out", "Goes out", ColumnKind::Names}};
    if (found.Remedies.empty()) return {};
    return paragraph(Sentence("Each change was tried, all else staying: the run was made once more, and the "
                              "smallest suite looked for. Lower demands are easier to reach and mean less. ")
                         .say(answersByPosition(found).text())) +
           dataTable("Changes and what they come to", remedyTable(found), Columns);
}

/// The columns of the verb, and how many species of the suite cover the unit, and who covers it.
ResultTable unitTableWithNames(const ReportFindings& found) {
    ResultTable table = unitTable(found.Run, found.Units);
    table.Columns.insert(table.Columns.end(), {"in_suite", "names"});
    for (std::size_t u = 0; u < table.Rows.size(); ++u) {
        table.Rows[u].push_back(numberCell(found.coveringInSuite(u)));
        table.Rows[u].push_back(coveringInWords(found, found.Units.covering(u, true)));
    }
    return table;
}

}  // namespace

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
           dataTable("Units that the suite does not cover", table, Columns) + remedies(findings);
}

Markup unitSection(const ReportFindings& findings, const ReportOrigin&) {
    static constexpr std::array Columns = {ShownColumn{"kind", "Kind", ColumnKind::Term},
                                           ShownColumn{"number", "No."},
                                           ShownColumn{"unit", "Unit", ColumnKind::Name},
                                           ShownColumn{"state", "State", ColumnKind::Term},
                                           ShownColumn{"needed", "Needed"},
                                           ShownColumn{"best", "Best"},
                                           ShownColumn{"covered_by", "First covered by no."},
                                           ShownColumn{"in_suite", "Of the suite cover it"},
                                           ShownColumn{"species", "Eligible species cover it"},
                                           ShownColumn{"names", "Namely", ColumnKind::Text}};
    return paragraph(
               "Where one species of the suite covers a unit the suite hangs on it; where one eligible species "
               "does, no suite can do without it at these levels. Numbers count from 1 within the kind; "
               "“no.” is the place in the suite.") +
           dataTable("Habitats, zones and threats", unitTableWithNames(findings), Columns);
}

}  // namespace insight
