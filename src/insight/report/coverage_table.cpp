// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/coverage_table.h"

#include <algorithm>

#include "insight/names.h"

namespace insight {

namespace {

template <class Number>
Cell cellOf(const std::optional<Number>& number) {
    return number ? Cell(numberCell(*number)) : Cell();
}

std::size_t coveredUpTo(const ReportFindings& found, std::size_t picks) {
    return static_cast<std::size_t>(
        std::count_if(found.States.begin(), found.States.end(), [&](const UnitState& state) {
            return state.CoveredBy > 0 && state.CoveredBy <= static_cast<int>(picks);
        }));
}

std::vector<std::string> firstCoveredBy(const ReportFindings& found, std::size_t pick, method::Unit kind) {
    std::vector<std::string> names;
    for (std::size_t u = 0; u < found.States.size(); ++u) {
        const UnitNumber& unit = found.Units.unit(u);
        if (unit.Kind == kind && found.States[u].CoveredBy == static_cast<int>(pick) + 1)
            names.push_back(unitName(found.Run, unit));
    }
    return names;
}

}  // namespace

CoverageCurve coverageCurve(const ReportFindings& findings) {
    const std::size_t picks = findings.Suite.Picks.size();
    CoverageCurve curve(std::max(picks + 1, findings.Best.size()));
    for (std::size_t k = 0; k < curve.size(); ++k) {
        if (k <= picks) curve[k].Run = coveredUpTo(findings, k);
        if (k >= findings.Best.size()) continue;
        curve[k].Best = findings.Best[k].Units;
        curve[k].Bound = findings.Best[k].Bound;
    }
    return curve;
}

ResultTable coverageTable(const ReportFindings& findings) {
    ResultTable table = {{"species", "pick", "run", "best", "bound", "proven", "suite"}, {}};
    const CoverageCurve curve = coverageCurve(findings);
    const std::vector<method::Pick>& picks = findings.Run.Outcome.Suite.Picks;
    for (std::size_t k = 1; k < curve.size(); ++k) {
        const CoveragePoint& point = curve[k];
        table.Rows.push_back(
            {numberCell(k), k <= picks.size() ? Cell(findings.Run.Species[picks[k - 1].Species]) : Cell(),
             cellOf(point.Run), cellOf(point.Best), point.Best ? Cell(numberCell(point.Bound)) : Cell(),
             point.Best ? Cell(point.Bound == *point.Best) : Cell(),
             point.Best ? Cell(speciesNames(findings.Run, findings.Index, findings.Best[k].Suite)) : Cell()});
    }
    return table;
}

ResultTable pickTable(const ReportFindings& findings) {
    ResultTable table = {{"pick", "species", "rank", "aggregate", "habitats", "zones", "threats"}, {}};
    const std::vector<method::Pick>& picks = findings.Run.Outcome.Suite.Picks;
    for (std::size_t i = 0; i < picks.size(); ++i) {
        const std::size_t s = picks[i].Species;
        const std::optional<double>& aggregate = findings.Watched.Fates[s].Aggregate;
        std::vector<Cell> row = {numberCell(i + 1), findings.Run.Species[s],
                                 std::int64_t{findings.Run.Ranks[s]}, aggregate ? Cell(*aggregate) : Cell()};
        for (const method::Unit kind : method::UnitKinds) row.emplace_back(firstCoveredBy(findings, i, kind));
        table.Rows.push_back(std::move(row));
    }
    return table;
}

}  // namespace insight
