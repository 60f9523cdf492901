// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/open_units.h"

#include <algorithm>

#include "insight/names.h"
#include "insight/report/sentence.h"

namespace insight {

namespace {

std::string namesInWords(const ReportFindings& found, const std::vector<std::size_t>& species) {
    return Sentence().names(speciesNames(found.Run, species)).text();
}

/// Answers that took species which had been omitted: each made the run shorter by one species.
std::vector<std::size_t> lostPicks(const ReportFindings& found) {
    std::vector<std::size_t> lost;
    for (const Decision& decision : found.Watched.Decisions) {
        if (decision.WasOmitted) lost.push_back(decision.Taken);
    }
    return lost;
}

std::string reasonForMiss(const ReportFindings& found, std::size_t u) {
    const std::string left = "The run ended while " + namesInWords(found, found.Units.covering(u, true)) +
                             " could still have covered it";
    const std::vector<std::size_t> lost = lostPicks(found);
    if (!lost.empty())
        return left + ": " + (lost.size() == 1 ? "an answer" : "answers") +
               " took what had been omitted before (" + namesInWords(found, lost) +
               "), and each such pick ends the run one species sooner.";
    if (found.Run.Outcome.Error) return left + ": it ended in an error.";
    return left + ".";
}

/// The species whose score is the measure for a threat, where it is excluded.
std::optional<std::size_t> excludedMeasure(const ReportFindings& found, std::size_t threat) {
    const double highest = highestScore(found.Run, threat);
    std::optional<std::size_t> measure;
    for (std::size_t s = 0; s < found.Run.Species.size(); ++s) {
        if (!(found.Run.ThreatScores.at(s, threat) >= highest)) continue;
        if (found.Units.eligible(s)) return std::nullopt;
        if (!measure) measure = s;
    }
    return measure;
}

/// An excluded species counts all the same for what is asked of the others.
std::string measureOf(const ReportFindings& found, std::size_t u) {
    const auto [kind, threat] = found.Units.unit(u);
    if (kind != method::Unit::Threat || !found.States[u].Best) return "";
    const auto measure = excludedMeasure(found, threat);
    if (!measure) return "";
    const double representation = found.Run.Levels.ThreatRepresentation;
    return " It counts all the same for what is needed: " + fieldOf(found.Units.needed(u)) + " is " +
           fieldOf(representation) + " × " + fieldOf(highestScore(found.Run, threat)) + ", the score of " +
           namesInWords(found, {*measure}) + "; by the eligible species alone it would be " +
           fieldOf(representation * *found.States[u].Best) + ".";
}

std::string reasonOf(const ReportFindings& found, std::size_t u) {
    const UnitState& state = found.States[u];
    if (state.Fate == UnitFate::Missed) return reasonForMiss(found, u);
    if (state.Excluded.empty()) return "No candidate reaches what is needed." + measureOf(found, u);
    return "Only excluded species reach it: " + namesInWords(found, state.Excluded) + "." +
           measureOf(found, u);
}

/// Names of the species that are in `species` and not in `others`.
std::vector<std::string> without(const ReportFindings& found, const std::vector<std::size_t>& species,
                                 const std::vector<std::size_t>& others) {
    std::vector<std::size_t> rest;
    for (const std::size_t s : species) {
        if (std::find(others.begin(), others.end(), s) == others.end()) rest.push_back(s);
    }
    return speciesNames(found.Run, rest);
}

std::vector<std::size_t> suiteOf(const ReportFindings& found) {
    std::vector<std::size_t> species;
    for (const method::Pick& pick : found.Run.Outcome.Suite.Picks) species.push_back(pick.Species);
    return species;
}

/// Species that are eligible at this level and were not at that of the run.
std::vector<std::size_t> admittedAt(const ReportFindings& found, double level) {
    std::vector<std::size_t> admitted;
    for (std::size_t s = 0; s < found.Run.Species.size(); ++s) {
        if (!found.Units.eligible(s) && found.Run.Landscape.Status[s] <= level) admitted.push_back(s);
    }
    return admitted;
}

/// The numbers of the remedies for a unit: "no. 1, no. 3".
std::string helpFor(const ReportFindings& found, std::size_t u) {
    std::string numbers;
    for (std::size_t i = 0; i < found.Remedies.size(); ++i) {
        const std::vector<std::size_t>& units = found.Remedies[i].For;
        if (std::find(units.begin(), units.end(), u) == units.end()) continue;
        numbers += (numbers.empty() ? "Change " : " or ") + std::to_string(i + 1);
    }
    if (!numbers.empty()) return numbers + ", below.";
    return found.Remedies.size() == MostRemedies ? "Not tried; see the changes below."
                                                 : "Another species has to be found.";
}

Cell smallestCell(const std::optional<SmallestSuite>& smallest) {
    if (!smallest) return {};
    const std::string upper = std::to_string(smallest->upper());
    return smallest->isProven() ? upper : std::to_string(smallest->Lower) + "–" + upper;
}

std::string effectOf(const ReportFindings& found, const Change& change) {
    if (change.Levels.ConservationStatus != found.Run.Levels.ConservationStatus)
        return "; admits " + namesInWords(found, admittedAt(found, change.Levels.ConservationStatus));
    if (change.Levels.ThreatRepresentation != found.Run.Levels.ThreatRepresentation)
        return "; holds for all threats";
    return "";
}

}  // namespace

std::string changeInWords(const ReportFindings& findings, const Change& change) {
    if (change.BestAggregates) return "the best aggregate at each question";
    if (change.Asked)
        return "level of use " + fieldOf(change.Asked->Level) + " asked for " +
               shownName(unitName(findings.Run, findings.Units.unit(change.Asked->Unit)));
    if (change.Levels.ConservationStatus != findings.Run.Levels.ConservationStatus)
        return "conservation status " + fieldOf(change.Levels.ConservationStatus);
    return "threat representation " + fieldOf(change.Levels.ThreatRepresentation);
}

ResultTable remedyTable(const ReportFindings& findings) {
    ResultTable table = {{"number", "change", "species", "open", "smallest", "in", "out"}, {}};
    const std::vector<std::size_t> suite = suiteOf(findings);
    for (const Remedy& remedy : findings.Remedies) {
        std::vector<std::string> open;
        for (const std::size_t u : remedy.Run.Open)
            open.push_back(unitName(findings.Run, findings.Units.unit(u)));
        const std::string change = capitalised(changeInWords(findings, remedy.Made));
        table.Rows.push_back({numberCell(table.Rows.size() + 1),
                              change + effectOf(findings, remedy.Made) + ".",
                              numberCell(remedy.Run.Species.size()),
                              open.empty() ? std::vector<std::string>{"nothing"} : std::move(open),
                              smallestCell(remedy.Run.Smallest), without(findings, remedy.Run.Species, suite),
                              without(findings, suite, remedy.Run.Species)});
    }
    return table;
}

ResultTable openUnitTable(const ReportFindings& findings) {
    ResultTable table = unitTable(findings.Run, findings.Units);
    const std::size_t reason = columnOf(table, "reason");
    table.Columns.emplace_back("help");
    std::vector<std::vector<Cell>> open;
    for (std::size_t u = 0; u < findings.States.size(); ++u) {
        if (findings.States[u].Fate == UnitFate::Covered) continue;
        std::vector<Cell>& row = table.Rows[u];
        row[reason] = reasonOf(findings, u);
        row.emplace_back(helpFor(findings, u));
        open.push_back(std::move(row));
    }
    table.Rows = std::move(open);
    return table;
}

}  // namespace insight
