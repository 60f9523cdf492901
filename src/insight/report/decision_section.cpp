// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>

#include "insight/names.h"
#include "insight/report/data_table.h"
#include "insight/report/sections.h"

namespace insight {

namespace {

/// In the order of the rules.
constexpr std::array RuleNames = {"a, the best aggregate", "b, heterogeneity", "c, threats",
                                  "d, socio-economics", "e, by number"};

std::string answerInWords(const Decision& decision) {
    if (decision.IsDefault) return "none given: the best aggregate";
    const std::string rule =
        decision.Way ? RuleNames[static_cast<std::size_t>(*decision.Way)] : "not understood: the first row";
    if (!decision.AskedNumber) return rule;
    const std::string tie = decision.Way == method::Rule::Number ? "" : ", a tie";
    return rule + tie +
           (decision.Number ? "; then no. " + std::to_string(*decision.Number) : "; then no number");
}

std::string listedInWords(const ReportFindings& found, const Decision& decision) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < decision.Listed.size(); ++i)
        names.push_back(shownName(found.Run.Species[decision.Listed[i]]) + " (" +
                        fieldOf(decision.Aggregates[i]) + ")");
    return Sentence().names(names).text();
}

std::string takenInWords(const ReportFindings& found, const Decision& decision) {
    return shownName(found.Run.Species[decision.Taken]) +
           (decision.WasOmitted ? ", omitted before: it joins nothing, and the run ends one species sooner"
                                : "");
}

/// "Lowland Tapir: 10 species, 2 units open".
std::vector<std::string> othersInWords(const ReportFindings& found, const Decision& decision) {
    std::vector<std::string> others;
    for (const OtherChoice& other : decision.Others)
        others.push_back(shownName(found.Run.Species[other.Taken]) + ": " +
                         counted(other.Species, "species", "species") + ", " +
                         counted(other.Uncovered, "unit", "units") + " open");
    return others;
}

ResultTable decisionTable(const ReportFindings& found) {
    ResultTable table = {{"number", "listed", "answer", "taken", "others"}, {}};
    for (const Decision& decision : found.Watched.Decisions)
        table.Rows.push_back({numberCell(table.Rows.size() + 1), listedInWords(found, decision),
                              answerInWords(decision), takenInWords(found, decision),
                              othersInWords(found, decision)});
    return table;
}

/// Why a species is where it is, in or out.
std::string fateOf(const ReportFindings& found, std::size_t species) {
    const SpeciesFate& fate = found.Watched.Fates[species];
    if (!found.Units.eligible(species))
        return "excluded: status " + fieldOf(found.Run.Landscape.Status[species]);
    if (fate.Aggregate) return "selected with " + fieldOf(*fate.Aggregate);
    if (fate.OmittedAfter)
        return *fate.OmittedAfter == 0 ? "adds nothing"
                                       : "adds nothing after no. " + std::to_string(*fate.OmittedAfter);
    if (found.Run.Outcome.Suite.Complete) return "not needed: all was covered";
    return "left when the run ended";
}

ResultTable scoreTable(const ReportFindings& found) {
    ResultTable table = {{"rank", "species", "pick", "aggregate", "h", "a", "v", "f", "e", "fate"}, {}};
    for (const std::size_t s : found.Scores.ByRank) {
        const auto place = found.placeOf(s);
        std::vector<Cell> row = {std::int64_t{found.Run.Ranks[s]}, found.Run.Species[s],
                                 place ? numberCell(*place) : Cell(), found.Run.Aggregates[s]};
        for (std::size_t criterion = 0; criterion < method::Criteria; ++criterion)
            row.emplace_back(found.Scores.Normalised[s][criterion]);
        row.emplace_back(fateOf(found, s));
        table.Rows.push_back(std::move(row));
    }
    return table;
}

}  // namespace

Markup decisionSection(const ReportFindings& findings, const ReportOrigin&) {
    static constexpr std::array Columns = {
        ShownColumn{"number", "No."}, ShownColumn{"listed", "Listed, with aggregate", ColumnKind::Text},
        ShownColumn{"answer", "Answer", ColumnKind::Text}, ShownColumn{"taken", "Taken", ColumnKind::Name},
        ShownColumn{"others", "With another one", ColumnKind::Names}};
    if (findings.Watched.Decisions.empty())
        return paragraph(
            "Nothing: at no point did another species lie within the margin of error of the best, so that the "
            "scores alone made the suite.");
    return paragraph(
               "Where species lie within the margin of error of the best, the planner is asked and answers "
               "with a criterion or a number. The last column tells what the run comes to with another of "
               "the species listed: questions before are answered as they were, those after take a species "
               "that was taken then where it is listed, else the best aggregate.") +
           dataTable("Questions of the run, in their order", decisionTable(findings), Columns);
}

Markup candidateSection(const ReportFindings& findings, const ReportOrigin&) {
    static constexpr std::array Columns = {ShownColumn{"rank", "Rank"},
                                           ShownColumn{"species", "Species", ColumnKind::Name},
                                           ShownColumn{"pick", "Place in the suite"},
                                           ShownColumn{"aggregate", "Aggregate"},
                                           ShownColumn{"h", "H"},
                                           ShownColumn{"a", "A"},
                                           ShownColumn{"v", "V"},
                                           ShownColumn{"f", "F"},
                                           ShownColumn{"e", "S-E"},
                                           ShownColumn{"fate", "What became of it", ColumnKind::Text}};
    return paragraph(
               "Five criteria make the aggregate of the first ranking: heterogeneity (H), area (A), "
               "vulnerability (V), functionality (F) and socio-economics (S-E), each measured by its best "
               "species. The run takes the best first and then scores the others anew over what is still "
               "uncovered: a species of low rank is taken late for what nobody else covers, and one of high "
               "rank is omitted once it adds nothing.") +
           dataTable("Candidates by rank", scoreTable(findings), Columns);
}

}  // namespace insight
