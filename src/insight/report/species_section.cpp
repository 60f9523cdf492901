// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

#include "insight/cover/species_table.h"
#include "insight/names.h"
#include "insight/report/data_table.h"
#include "insight/report/sections.h"

namespace insight {

namespace {

constexpr std::array RoleColumns = {ShownColumn{"number", "No."},
                                    ShownColumn{"species", "Species", ColumnKind::Name},
                                    ShownColumn{"pick", "Place in the suite"},
                                    ShownColumn{"class", "Class", ColumnKind::Term},
                                    ShownColumn{"share", "Share"},
                                    ShownColumn{"cost", "Cost", ColumnKind::Term},
                                    ShownColumn{"rarity", "Rarity"},
                                    ShownColumn{"only_for", "Only one for", ColumnKind::Names}};
constexpr std::array LossColumns = {
    ShownColumn{"pick", "Place"},
    ShownColumn{"species", "Without", ColumnKind::Name},
    ShownColumn{"lost", "Lost"},
    ShownColumn{"lost_units", "Units lost", ColumnKind::Names},
    ShownColumn{"substitutes", "Would make up for it alone", ColumnKind::Names},
    ShownColumn{"instead", "As small a suite without it", ColumnKind::Term}};

Cell& cellOf(ResultTable& table, std::size_t row, std::string_view column) {
    return table.Rows[row][columnOf(table, column)];
}

/// "27 of 35".
Cell shareInWords(const ReportFindings& found, double share) {
    const auto suites = static_cast<double>(found.Smallest.Count);
    return withThousands(static_cast<std::uint64_t>(std::llround(share * suites))) + " of " +
           withThousands(found.Smallest.Count);
}

/// The number of a unit over all kinds.
std::size_t numberOf(const ReportFindings& found, const UnitNumber& unit) {
    std::size_t u = 0;
    while (!(found.Units.unit(u) == unit)) ++u;
    return u;
}

/// Units that no other eligible species covers, with the excluded ones that would.
std::vector<std::string> onlyFor(const ReportFindings& found, const SpeciesRole& role) {
    std::vector<std::string> names;
    forEach(role.OnlyFor, [&](std::size_t bit) {
        const UnitNumber& unit = found.Problem.Units[bit];
        const std::vector<std::size_t> excluded = found.Units.covering(numberOf(found, unit), false);
        names.push_back(shownName(unitName(found.Run, unit)));
        if (!excluded.empty())
            names.back() +=
                " (excluded, but would: " + Sentence().names(speciesNames(found.Run, excluded)).text() + ")";
    });
    return names;
}

/// The first of the smallest suites that does without a species, as it is numbered in their list.
std::string suiteWithout(const ReportFindings& found, std::uint32_t row) {
    const std::vector<Rows>& suites = found.Smallest.Suites;
    const auto suite = std::find_if(suites.begin(), suites.end(), [&](const Rows& rows) {
        return !std::binary_search(rows.begin(), rows.end(), row);
    });
    if (suite != suites.end() && found.Minimum.Known.isProven())
        return "no. " + std::to_string(suite - suites.begin() + 1);
    const std::optional<SpeciesClass> known = found.Roles[row].Class;
    if (!known) return "";
    return known == SpeciesClass::All ? "none" : "not among those listed";
}

/// The verb's cells in words.
ResultTable roleTable(const ReportFindings& found) {
    ResultTable table = speciesTable(found.Run, found.Index, found.Suite, found.Roles);
    for (std::size_t row = 0; row < found.Roles.size(); ++row) {
        const std::size_t s = found.Problem.Species[row];
        const SpeciesRole& role = found.Roles[row];
        if (role.Share) cellOf(table, s, "share") = shareInWords(found, *role.Share);
        if (!role.Cost.Upper) cellOf(table, s, "cost") = std::string("irreplaceable");
        cellOf(table, s, "only_for") = onlyFor(found, role);
    }
    return table;
}

/// Rows of the suite's species, in the order of selection.
ResultTable lossTable(const ReportFindings& found) {
    const ResultTable species = speciesTable(found.Run, found.Index, found.Suite, found.Roles);
    ResultTable table = {species.Columns, {}};
    table.Columns.emplace_back("instead");
    for (std::size_t i = 0; i < found.Suite.Picks.size(); ++i) {
        const std::uint32_t row = found.Suite.Picks[i];
        table.Rows.push_back(species.Rows[found.Problem.Species[row]]);
        table.Rows.back().emplace_back(suiteWithout(found, row));
        Cell& substitutes = cellOf(table, i, "substitutes");
        if (!std::get<std::vector<std::string>>(substitutes).empty()) continue;
        const bool isLost = std::get<std::int64_t>(cellOf(table, i, "lost")) > 0;
        substitutes = std::string(isLost ? "nobody alone" : "nothing is lost");
    }
    return table;
}

}  // namespace

Markup speciesSection(const ReportFindings& findings, const ReportOrigin&) {
    Markup content;
    if (!findings.Suite.Picks.empty())
        content += paragraph(
                       "What the suite would lose without one of its species, the others staying, and which "
                       "species from outside could each make up for all of that. Where nobody can alone, "
                       "another suite that is as small may still do, with several others: the last column "
                       "gives its number among the smallest suites.") +
                   dataTable("The suite without one species", lossTable(findings), LossColumns);
    content += paragraph(
        "Class says whether all, some or none of the smallest suites hold a species, and share how many of "
        "them do. Share is no irreplaceability: it counts suites of the smallest size alone. Cost is how many "
        "more species the smallest suite would need if this one were not to be had and others may "
        "change; with a cost of 0 a suite as small does without it. Irreplaceable means that no other "
        "eligible species covers some unit, at these levels: what it is the only one for. Rarity adds up, over "
        "the units that it covers, one divided by the number of eligible species that do.");
    if (!std::all_of(findings.Roles.begin(), findings.Roles.end(), std::mem_fn(&SpeciesRole::isProven)))
        content += element("p", {{"class", "note"}},
                           "Not all is proven: where that is so the class is empty or the cost an interval.");
    return content + dataTable("All candidates", roleTable(findings), RoleColumns);
}

}  // namespace insight
