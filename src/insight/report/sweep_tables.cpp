// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/sweep_tables.h"

#include <algorithm>
#include <cctype>
#include <string>

#include "insight/names.h"
#include "insight/report/sentence.h"

namespace insight {

namespace {

/// A table that begins with `columns`; each sweep has those of its name with `parts` behind it.
ResultTable begin(const ReportFindings& found, std::vector<std::string> columns,
                  std::initializer_list<const char*> parts = {""}) {
    for (const ReportSweep& sweep : found.Sweeps)
        for (const char* part : parts) columns.push_back(std::string(sweep.Name) + part);
    return {std::move(columns), {}};
}

std::string wholePercent(double share) { return fieldOf(Fixed{100 * share, 0}); }

/// With its interval, where that is told apart from the share.
Cell shareCell(Count count, Count runs) {
    if (runs == 0) return {};
    const std::string share = percent(count, runs);
    const Interval interval = wilsonInterval(count, runs);
    const std::string low = wholePercent(interval.Low);
    const std::string high = wholePercent(interval.High);
    if (low == high || !std::isdigit(static_cast<unsigned char>(share.front()))) return share;
    return share + " (" + low + "–" + high + ")";
}

template <class CountOf>
bool occurs(const ReportFindings& found, CountOf countOf) {
    return std::any_of(found.Sweeps.begin(), found.Sweeps.end(),
                       [&](const ReportSweep& sweep) { return countOf(sweep.Counts) > 0; });
}

}  // namespace

ResultTable selectedTable(const ReportFindings& findings) {
    ResultTable table = begin(findings, {"number", "species", "pick"});
    for (std::size_t s = 0; s < findings.Run.Species.size(); ++s) {
        const auto place = findings.placeOf(s);
        std::vector<Cell> row = {numberCell(s + 1), findings.Run.Species[s],
                                 place ? numberCell(*place) : Cell()};
        for (const ReportSweep& sweep : findings.Sweeps) {
            const bool mayBe = findings.Units.eligible(s) || sweep.Settings.Vary.Levels;
            row.push_back(mayBe ? shareCell(sweep.Counts.Species[s], sweep.runsWithSuite()) : Cell());
        }
        table.Rows.push_back(std::move(row));
    }
    return table;
}

ResultTable uncoveredTable(const ReportFindings& findings) {
    ResultTable table = begin(findings, {"unit", "kind"}, {"", "_missed"});
    for (std::size_t u = 0; u < findings.Units.units(); ++u) {
        const UnitNumber& unit = findings.Units.unit(u);
        const auto countOf = [&](const SweepCounts& counts) {
            return counts.Uncovered[unit.Kind][unit.Number];
        };
        if (!occurs(findings, countOf)) continue;
        std::vector<Cell> row = {unitName(findings.Run, unit), std::string(nameOf(unit.Kind))};
        for (const ReportSweep& sweep : findings.Sweeps) {
            row.push_back(shareCell(countOf(sweep.Counts), sweep.Counts.Runs));
            row.push_back(shareCell(sweep.Counts.Missed[unit.Kind][unit.Number], sweep.Counts.Runs));
        }
        table.Rows.push_back(std::move(row));
    }
    return table;
}

ResultTable sizeTable(const ReportFindings& findings) {
    ResultTable table = begin(findings, {"size"});
    for (std::size_t size = 0; size <= findings.Run.Species.size(); ++size) {
        const auto countOf = [&](const SweepCounts& counts) { return counts.Sizes[size]; };
        if (!occurs(findings, countOf)) continue;
        std::vector<Cell> row = {numberCell(size)};
        for (const ReportSweep& sweep : findings.Sweeps)
            row.push_back(shareCell(countOf(sweep.Counts), sweep.Counts.Runs));
        table.Rows.push_back(std::move(row));
    }
    return table;
}

}  // namespace insight
