// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/open_units.h"

#include <algorithm>
#include <cmath>

#include "insight/names.h"
#include "insight/report/sentence.h"

namespace insight {

namespace {

std::string namesInWords(const ReportFindings& found, const std::vector<std::size_t>& species) {
    return Sentence().names(speciesNames(found.Run, species)).text();
}

std::string reasonOf(const ReportFindings& found, const UnitState& state) {
    if (state.Fate == UnitFate::Missed) return "The run selected no species that covers it.";
    if (state.Excluded.empty()) return "No candidate reaches what is needed.";
    return "Only excluded species reach it: " + namesInWords(found, state.Excluded) + ".";
}

/// The lowest level of conservation status that admits one of them.
std::string admitting(const ReportFindings& found, const std::vector<std::size_t>& excluded) {
    const std::vector<double>& status = found.Run.Landscape.Status;
    const std::size_t first = *std::min_element(excluded.begin(), excluded.end(),
                                                [&](auto a, auto b) { return status[a] < status[b]; });
    return "A conservation status level of " + fieldOf(status[first]) + " would admit " +
           namesInWords(found, {first}) + ". ";
}

double highestScore(const SelectionRun& run, std::size_t threat) {
    double highest = 0;
    for (std::size_t s = 0; s < run.ThreatScores.rows(); ++s)
        highest = std::max(highest, run.ThreatScores.at(s, threat));
    return highest;
}

/// How much less would have to be asked for.
std::string askingLess(const ReportFindings& found, const UnitNumber& unit, const UnitState& state) {
    if (!state.Best) return "";
    if (unit.Kind != method::Unit::Threat)
        return "A needed level of " + fieldOf(std::floor(*state.Best)) + " would be reached.";
    const auto level = representationFor(*state.Best, highestScore(found.Run, unit.Number));
    return level ? "A threat representation of " + fieldOf(*level) + " would be reached." : "";
}

std::string helpFor(const ReportFindings& found, std::size_t u) {
    const UnitState& state = found.States[u];
    if (state.Fate == UnitFate::Missed) {
        const std::vector<std::size_t> species = found.Units.covering(u, true);
        return namesInWords(found, species) +
               (species.size() == 1 ? " covers it." : " cover it, each alone.");
    }
    const std::string less = askingLess(found, found.Units.unit(u), state);
    if (!state.Excluded.empty()) return admitting(found, state.Excluded) + less;
    return less.empty() ? "Another species has to be found." : less + " Or another species is found.";
}

}  // namespace

std::optional<double> representationFor(double score, double highest) {
    if (!(score > 0 && highest > 0)) return std::nullopt;
    for (int hundredths = static_cast<int>(std::ceil(100 * score / highest)); hundredths > 0; --hundredths) {
        const double level = hundredths / 100.0;
        if (level * highest <= score) return level;
    }
    return std::nullopt;
}

ResultTable openUnitTable(const ReportFindings& findings) {
    ResultTable table = unitTable(findings.Run, findings.Units);
    const auto column = [&](std::string_view name) {
        return static_cast<std::size_t>(std::find(table.Columns.begin(), table.Columns.end(), name) -
                                        table.Columns.begin());
    };
    const std::size_t reason = column("reason");
    table.Columns.emplace_back("help");
    std::vector<std::vector<Cell>> open;
    for (std::size_t u = 0; u < findings.States.size(); ++u) {
        if (findings.States[u].Fate == UnitFate::Covered) continue;
        std::vector<Cell>& row = table.Rows[u];
        row[reason] = reasonOf(findings, findings.States[u]);
        row.emplace_back(helpFor(findings, u));
        open.push_back(std::move(row));
    }
    table.Rows = std::move(open);
    return table;
}

}  // namespace insight
