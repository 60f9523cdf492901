// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <functional>

#include "insight/cover/species_table.h"
#include "insight/report/data_table.h"
#include "insight/report/sections.h"

namespace insight {

namespace {

constexpr std::array CandidateColumns = {ShownColumn{"number", "No."},
                                         ShownColumn{"species", "Species", ColumnKind::Name},
                                         ShownColumn{"rank", "Rank"},
                                         ShownColumn{"pick", "Place in the suite"},
                                         ShownColumn{"class", "Class", ColumnKind::Term},
                                         ShownColumn{"share", "Share"},
                                         ShownColumn{"cost", "Cost"},
                                         ShownColumn{"rarity", "Rarity"},
                                         ShownColumn{"only_for", "Only one for", ColumnKind::Names}};
constexpr std::array LossColumns = {
    ShownColumn{"pick", "Place"}, ShownColumn{"species", "Without", ColumnKind::Name},
    ShownColumn{"lost", "Lost"}, ShownColumn{"lost_units", "Units lost", ColumnKind::Names},
    ShownColumn{"substitutes", "Would make up for it alone", ColumnKind::Names}};

/// Rows of the suite's species, in the order of selection.
ResultTable lossTable(const ReportFindings& found, const ResultTable& species) {
    ResultTable table = {species.Columns, {}};
    for (const method::Pick& pick : found.Run.Outcome.Suite.Picks)
        table.Rows.push_back(species.Rows[pick.Species]);
    return table;
}

}  // namespace

Markup speciesSection(const ReportFindings& findings, const ReportOrigin&) {
    const ResultTable table = speciesTable(findings.Run, findings.Index, findings.Suite, findings.Roles);
    Markup content;
    if (!findings.Suite.Picks.empty())
        content += paragraph(
                       "What the suite would lose without one of its species, the others staying, and which "
                       "species from outside could each make up for all of that.") +
                   dataTable("The suite without one species", lossTable(findings, table), LossColumns);
    content += paragraph(
        "Class says whether all, some or none of the smallest suites hold a species, and share how many of "
        "them do. Cost is how many more species the smallest suite would need if this one were not to be "
        "had; inf means that a unit could then be covered by nobody, namely what it is the only one for. "
        "Rarity adds up, over the units that it covers, one divided by the number of species that do.");
    if (!std::all_of(findings.Roles.begin(), findings.Roles.end(), std::mem_fn(&SpeciesRole::isProven)))
        content += element("p", {{"class", "note"}},
                           "Not all is proven: where that is so the class is empty or the cost an interval.");
    return content + dataTable("All candidates", table, CandidateColumns);
}

}  // namespace insight
