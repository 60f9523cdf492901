// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <numeric>

#include "insight/names.h"
#include "insight/report/data_table.h"
#include "insight/report/sections.h"

namespace insight {

namespace {

std::string fewest(const ReportFindings& found) {
    return countedInWords(found.Minimum.Known.Lower, "species", "species");
}

std::string speciesCovering(const ReportFindings& found, std::size_t unit) {
    std::vector<std::size_t> species;
    for (const std::uint32_t row : found.Index.speciesList(unit))
        species.push_back(found.Problem.Species[row]);
    return coveringInWords(found, species);
}

Markup witnessProof(const ReportFindings& found) {
    static constexpr std::array Columns = {
        ShownColumn{"unit", "Unit", ColumnKind::Name},
        ShownColumn{"species", "Eligible species that cover it", ColumnKind::Text}};
    ResultTable table = {{"unit", "species"}, {}};
    for (const std::uint32_t unit : found.Minimum.Witness)
        table.Rows.push_back({unitName(found.Run, found.Index, unit), speciesCovering(found, unit)});
    return paragraph(
               "No eligible species covers two of the units below, so that each of them wants a species of "
               "its own: " +
               fewest(found) + " at least. Each line can be checked in the table of all units.") +
           dataTable("Units no two of which share an eligible species", table, Columns);
}

std::int64_t weightOf(const ReportFindings& found, std::size_t species) {
    std::int64_t sum = 0;
    for (const std::uint32_t unit : found.Index.unitList(species)) sum += found.Minimum.Weights.Weights[unit];
    return sum;
}

Markup weightProof(const ReportFindings& found) {
    static constexpr std::array Columns = {
        ShownColumn{"weight", "Weight"}, ShownColumn{"unit", "Unit", ColumnKind::Name},
        ShownColumn{"species", "Eligible species that cover it", ColumnKind::Text}};
    const std::vector<std::int64_t>& weights = found.Minimum.Weights.Weights;
    const std::int64_t sum = std::accumulate(weights.begin(), weights.end(), std::int64_t{0});
    std::int64_t most = 0;
    for (std::size_t s = 0; s < found.Index.species(); ++s) most = std::max(most, weightOf(found, s));
    ResultTable table = {{"weight", "unit", "species"}, {}};
    for (std::size_t u = 0; u < weights.size(); ++u) {
        if (weights[u] > 0)
            table.Rows.push_back(
                {weights[u], unitName(found.Run, found.Index, u), speciesCovering(found, u)});
    }
    return paragraph("Give the units the weights below. Together they weigh " + std::to_string(sum) +
                     ", and the units that one eligible species covers weigh " + std::to_string(most) +
                     " at most. So a suite that covers them all has at least " + std::to_string(sum) + " / " +
                     std::to_string(most) + ", rounded up: " + fewest(found) +
                     ". It can be checked by adding whole numbers.") +
           dataTable("Weights of units; all others weigh nothing", table, Columns);
}

Markup searchProof(const ReportFindings& found) {
    return paragraph(
        "Every suite of fewer than " + fewest(found) +
        " was ruled out, in groups, by branch and bound in whole numbers. There is no shorter account of it; "
        "the same search comes to the same end on any machine.");
}

Markup proofOf(const ReportFindings& found) {
    switch (found.Minimum.By) {
        case Proof::Witness: return witnessProof(found);
        case Proof::Weights: return weightProof(found);
        case Proof::Search: return searchProof(found);
    }
    return {};
}

Sentence bestSuite(const ReportFindings& found) {
    const MinimumAnswer& minimum = found.Minimum;
    const std::string which = minimum.isProven() ? "The smallest suite with the highest total is "
                              : minimum.Known.isProven()
                                  ? "A smallest suite (others may have a higher total) is "
                                  : "The smallest suite known is ";
    Sentence sentence(which);
    const std::vector<std::string> names = speciesNames(found.Run, found.Index, minimum.Known.Suite);
    for (std::size_t i = 0; i < names.size(); ++i)
        sentence.say(i == 0 ? "" : i + 1 == names.size() ? " and " : ", ").name(names[i]);
    return sentence.say(".");
}

}  // namespace

std::string coveringInWords(const ReportFindings& findings, const std::vector<std::size_t>& species) {
    constexpr std::size_t FewCandidates = 60;
    const std::vector<std::string> names = speciesNames(findings.Run, species);
    if (findings.Run.Species.size() > FewCandidates) return Sentence().names(names).text();
    std::string list;
    for (const std::string& name : names) list += (list.empty() ? "" : ", ") + shownName(name);
    return list;
}

Markup proofSection(const ReportFindings& findings, const ReportOrigin&) {
    const SmallestSuite& known = findings.Minimum.Known;
    if (findings.Index.units() == 0)
        return paragraph(
            "No unit can be covered, so that no species is needed: the empty suite is the smallest.");
    Markup content = paragraph(bestSuite(findings));
    if (!known.isProven())
        content += paragraph("The search ended before the size was settled: it lies between " +
                             std::to_string(known.Lower) + " and " + std::to_string(known.upper()) +
                             ". What follows proves the lower of the two.");
    return content + proofOf(findings) +
           paragraph(
               "This proves that none is smaller, at these levels and grades. How many suites there are, which "
               "total is the highest and what each species costs was found by complete search, where it "
               "is said to be so; that cannot be checked with a pencil.");
}

}  // namespace insight
