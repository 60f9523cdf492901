// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/sweep_tables.h"

#include <algorithm>
#include <string>

#include "insight/names.h"

namespace insight {

namespace {

constexpr int Places = 4;

/// A table that begins with `columns`.
ResultTable begin(const ReportFindings& found, std::vector<std::string> columns) {
    for (const ReportSweep& sweep : found.Sweeps)
        for (const char* part : {"", "_low", "_high"}) columns.push_back(std::string(sweep.Name) + part);
    return {std::move(columns), {}};
}

/// `countOf` gives what was counted in the counts of a sweep.
template <class CountOf>
void addFrequencies(const ReportFindings& found, std::vector<Cell>& row, CountOf countOf) {
    for (const ReportSweep& sweep : found.Sweeps) {
        const Count runs = sweep.Counts.Runs;
        if (runs == 0) {
            row.resize(row.size() + 3);
            continue;
        }
        const Count count = countOf(sweep.Counts);
        const Interval interval = wilsonInterval(count, runs);
        row.emplace_back(Fixed{static_cast<double>(count) / static_cast<double>(runs), Places});
        row.emplace_back(Fixed{interval.Low, Places});
        row.emplace_back(Fixed{interval.High, Places});
    }
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
        addFrequencies(findings, row, [&](const SweepCounts& counts) { return counts.Species[s]; });
        table.Rows.push_back(std::move(row));
    }
    return table;
}

ResultTable uncoveredTable(const ReportFindings& findings) {
    ResultTable table = begin(findings, {"unit", "kind"});
    for (std::size_t u = 0; u < findings.Units.units(); ++u) {
        const UnitNumber& unit = findings.Units.unit(u);
        const auto countOf = [&](const SweepCounts& counts) {
            return counts.Uncovered[unit.Kind][unit.Number];
        };
        if (!occurs(findings, countOf)) continue;
        std::vector<Cell> row = {unitName(findings.Run, unit), std::string(nameOf(unit.Kind))};
        addFrequencies(findings, row, countOf);
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
        addFrequencies(findings, row, countOf);
        table.Rows.push_back(std::move(row));
    }
    return table;
}

}  // namespace insight
