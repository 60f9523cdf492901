// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>

#include "insight/names.h"
#include "insight/report/coverage_table.h"
#include "insight/report/data_table.h"
#include "insight/report/figures.h"
#include "insight/report/sections.h"
#include "insight/report/verdict.h"

namespace insight {

namespace {

/// Where the suite of the run stands in the list, from 1.
std::optional<std::size_t> placeOfRun(const ReportFindings& found) {
    Rows own = found.Suite.Picks;
    std::sort(own.begin(), own.end());
    const auto place = std::find(found.Smallest.Suites.begin(), found.Smallest.Suites.end(), own);
    if (place == found.Smallest.Suites.end()) return std::nullopt;
    return static_cast<std::size_t>(place - found.Smallest.Suites.begin()) + 1;
}

std::string howManySuites(const ReportFindings& found) {
    const SuiteList& list = found.Smallest;
    if (!found.Minimum.Known.isProven())
        return "The smallest size is not settled. This is the best suite known.";
    if (!found.Minimum.BestIsProven)
        return "There are more suites of the smallest size than could be listed. This is one; another may "
               "have a higher total.";
    if (list.Count == 1 && list.IsExact) return "There is one suite of the smallest size.";
    const std::string count = (list.IsExact ? "There are " : "There are at least ") +
                              counted(list.Count, "suite", "suites") + " of the smallest size.";
    if (list.isComplete()) return count;
    return count + " The first has the highest total; the others are " +
           (list.IsExact ? "the next of them." : "any of them.");
}

Sentence inAllOf(const ReportFindings& found) {
    const std::vector<std::string> names = speciesInAll(found);
    if (names.empty()) return {};
    return Sentence("All of them hold ").names(names).say(".");
}

/// The suites without those species that are in all of them.
Markup alternativesTable(const ReportFindings& found) {
    static constexpr std::array Columns = {ShownColumn{"suite", "No."}, ShownColumn{"size", "Size"},
                                           ShownColumn{"total", "Total"},
                                           ShownColumn{"species", "Besides those in all", ColumnKind::Names}};
    ResultTable table = suiteTable(found.Run, found.Index, found.Smallest);
    for (std::size_t i = 0; i < table.Rows.size(); ++i) {
        Rows rest = found.Smallest.Suites[i];
        std::erase_if(rest, [&](std::uint32_t row) { return found.Roles[row].Class == SpeciesClass::All; });
        table.Rows[i].back() = speciesNames(found.Run, found.Index, rest);
    }
    return dataTable("Suites of the smallest size", table, Columns);
}

}  // namespace

Markup suiteSection(const ReportFindings& findings, const ReportOrigin&) {
    static constexpr std::array Columns = {ShownColumn{"pick", "No."},
                                           ShownColumn{"species", "Species", ColumnKind::Name},
                                           ShownColumn{"habitats", "Habitats", ColumnKind::Names},
                                           ShownColumn{"zones", "Zones", ColumnKind::Names},
                                           ShownColumn{"threats", "Threats", ColumnKind::Names}};
    if (findings.Suite.Picks.empty()) return paragraph("The run selected no species.");
    return paragraph("What each species covered when it was selected, and nobody before it did.") +
           dataTable("The suite in the order of selection", pickTable(findings), Columns) +
           matrixFigure(findings);
}

Markup coverageSection(const ReportFindings& findings, const ReportOrigin&) {
    static constexpr std::array Columns = {ShownColumn{"species", "Species so far"},
                                           ShownColumn{"pick", "Selected by the run", ColumnKind::Name},
                                           ShownColumn{"run", "Units of the run"},
                                           ShownColumn{"best", "Units of the best known"},
                                           ShownColumn{"bound", "Units at most"},
                                           ShownColumn{"proven", "Proven", ColumnKind::Term},
                                           ShownColumn{"suite", "The best known", ColumnKind::Names}};
    if (findings.Index.units() == 0) return paragraph("There is no unit that an eligible species covers.");
    return paragraph(coverageSentence(findings)) + coverageFigure(findings) +
           paragraph(
               "A plan that can only afford some of the species now may start with those of the run, which "
               "come in the order of their scores, or with others that cover more at once. Each unit "
               "counts the same here, be it a habitat, a zone or a threat. The best suites of two sizes "
               "need not hold the same species.") +
           dataTable("Units covered, species by species", coverageTable(findings), Columns);
}

Markup alternativesSection(const ReportFindings& findings, const ReportOrigin&) {
    if (findings.Index.units() == 0)
        return paragraph("Nothing can be covered: the empty suite is the smallest.");
    Sentence list(howManySuites(findings));
    if (findings.Smallest.Suites.size() < findings.Smallest.Count)
        list.say(" The table lists " + withThousands(findings.Smallest.Suites.size()) + " of them.");
    if (const auto place = placeOfRun(findings))
        list.say(" The suite of the run is no. " + std::to_string(*place) + ".");
    return paragraph(list) + paragraph(inAllOf(findings)) +
           paragraph(
               "Each covers every unit that can be covered with as few species as that takes. Total is the "
               "sum of the aggregate scores of the first ranking; the higher, the better its species score "
               "by themselves. Many such suites mean much freedom of choice. Suites that are larger by a "
               "species or two are not counted.") +
           alternativesTable(findings);
}

}  // namespace insight
