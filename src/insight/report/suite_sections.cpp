// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <span>

#include "insight/names.h"
#include "insight/report/coverage_table.h"
#include "insight/report/data_table.h"
#include "insight/report/figures.h"
#include "insight/report/sections.h"
#include "insight/report/verdict.h"

namespace insight {

namespace {

/// The suite of the run, rising.
Rows ownSuite(const ReportFindings& found) {
    Rows own = found.Suite.Picks;
    std::sort(own.begin(), own.end());
    return own;
}

/// Where it stands in the list, from 1.
std::optional<std::size_t> placeOfRun(const ReportFindings& found) {
    const auto place = std::find(found.Smallest.Suites.begin(), found.Smallest.Suites.end(), ownSuite(found));
    if (place == found.Smallest.Suites.end()) return std::nullopt;
    return static_cast<std::size_t>(place - found.Smallest.Suites.begin()) + 1;
}

std::string howManySuites(const ReportFindings& found) {
    const SuiteList& list = found.Smallest;
    if (!found.Minimum.Known.isProven())
        return "The smallest size is not settled. This is the best suite known.";
    if (!found.Minimum.BestIsProven)
        return "This is one suite of the smallest size; whether there are more, and whether another has a "
               "higher total, is not settled.";
    if (list.isOneOnly()) return "There is one suite of the smallest size.";
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

/// Species of `rows` that are not in `others`; both rising.
std::vector<std::string> namesWithout(const ReportFindings& found, const Rows& rows, const Rows& others) {
    Rows rest;
    std::set_difference(rows.begin(), rows.end(), others.begin(), others.end(), std::back_inserter(rest));
    return speciesNames(found.Run, found.Index, rest);
}

std::size_t coveredTwice(const ReportFindings& found, const Rows& suite) {
    std::size_t units = 0;
    for (std::size_t u = 0; u < found.Index.units(); ++u) {
        const auto covering = std::count_if(
            suite.begin(), suite.end(), [&](std::uint32_t row) { return has(found.Index.unitsOf(row), u); });
        if (covering >= 2) ++units;
    }
    return units;
}

/// The suites by what differs from that of the run.
Markup alternativesTable(const ReportFindings& found) {
    static constexpr std::array Columns = {ShownColumn{"suite", "No."}, ShownColumn{"total", "Total"},
                                           ShownColumn{"twice", "Units covered twice or more"},
                                           ShownColumn{"in", "Comes in", ColumnKind::Names},
                                           ShownColumn{"out", "Goes out", ColumnKind::Names}};
    ResultTable table = suiteTable(found.Run, found.Index, found.Smallest);
    table.Columns.insert(table.Columns.end(), {"twice", "in", "out"});
    const Rows own = ownSuite(found);
    for (std::size_t i = 0; i < table.Rows.size(); ++i) {
        const Rows& suite = found.Smallest.Suites[i];
        table.Rows[i].push_back(numberCell(coveredTwice(found, suite)));
        table.Rows[i].push_back(namesWithout(found, suite, own));
        table.Rows[i].push_back(namesWithout(found, own, suite));
    }
    return dataTable("Suites of the smallest size, against that of the run", table, Columns);
}

}  // namespace

Markup suiteSection(const ReportFindings& findings, const ReportOrigin&) {
    static constexpr std::array Columns = {ShownColumn{"pick", "No."},
                                           ShownColumn{"species", "Species", ColumnKind::Name},
                                           ShownColumn{"rank", "Rank"},
                                           ShownColumn{"aggregate", "Aggregate when selected"},
                                           ShownColumn{"habitats", "Habitats", ColumnKind::Names},
                                           ShownColumn{"zones", "Zones", ColumnKind::Names},
                                           ShownColumn{"threats", "Threats", ColumnKind::Names}};
    if (findings.Suite.Picks.empty()) return paragraph("The run selected no species.");
    return paragraph(
               "What each species covered when it was selected, and nobody before it did. Rank is that of the "
               "first ranking; the aggregate is taken anew over what is still uncovered.") +
           dataTable("The suite in the order of selection", pickTable(findings), Columns) +
           matrixFigure(findings);
}

Markup coverageSection(const ReportFindings& findings, const ReportOrigin&) {
    static constexpr std::array Columns = {ShownColumn{"species", "Species so far"},
                                           ShownColumn{"pick", "Selected by the run", ColumnKind::Name},
                                           ShownColumn{"run", "Units of the run"},
                                           ShownColumn{"best", "Units of the best known"},
                                           ShownColumn{"suite", "The best known", ColumnKind::Names},
                                           ShownColumn{"bound", "Units at most"}};
    if (findings.Index.units() == 0) return paragraph("There is no unit that an eligible species covers.");
    const bool isProven =
        std::all_of(findings.Best.begin(), findings.Best.end(), std::mem_fn(&BestCoverage::isProven));
    const std::span<const ShownColumn> columns(Columns.data(), Columns.size() - (isProven ? 1 : 0));
    return paragraph(coverageSentence(findings)) + coverageFigure(findings) +
           paragraph(
               "A plan that can only afford some of the species now may start with those of the run, which "
               "come in the order in which it selected them, or with others that cover more at once. Each "
               "unit counts the same here, be it a habitat, a zone or a threat. The best suites of two sizes "
               "need not hold the same species; others may cover as much.") +
           paragraph(isProven ? "No suite of any of these sizes covers more than the best one listed."
                              : "Where units at most are more than units of the best known, a better one may "
                                "exist.") +
           dataTable("Units covered, species by species", coverageTable(findings), columns);
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
               "sum of the aggregate scores of the first ranking. It puts the suites in order and measures no "
               "quality: it counts a unit once for each species that scores on it. Totals come from rounded "
               "scores; where they differ by less than 0.01 take them for equal. Of more use may be how many "
               "units two or more species cover, so that they do not hang on one. Suites that are larger by "
               "a species or two are not counted.") +
           alternativesTable(findings);
}

}  // namespace insight
