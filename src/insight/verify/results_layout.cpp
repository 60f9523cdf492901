// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/verify/results_layout.h"

#include <algorithm>

#include "ui/text.h"

namespace insight {

namespace {

constexpr std::size_t NameWidth = 27;  ///< of mark and name, in characters
constexpr std::size_t MarkWidth = 2;
constexpr std::string_view AggregateBegins = "  (";
constexpr std::string_view NumberEnds = ". ";

constexpr std::string_view AllCovered =
    "All habitat types, management zones and threats are covered by the current suite of brenic species.";
/// Ends in a carriage return of its own.
constexpr std::string_view SomeUncovered =
    "The following are not covered by the current suite of brenic species:\r";
constexpr std::array<std::string_view, UnitKindCount> UncoveredPrefixes = {
    "Habitat types: ", "Management Zones: ", "Threats: "};

ResultLine line(LineKind kind, std::string_view text) { return {kind, std::string(text)}; }
ResultLine emptyLine() { return {LineKind::Empty, ""}; }

std::string trimmed(const std::string& name) {
    const std::size_t first = name.find_first_not_of(' ');
    return first == std::string::npos ? "" : name.substr(first, name.find_last_not_of(' ') - first + 1);
}

std::string joined(const std::vector<std::string>& names, std::string_view separator) {
    std::string text;
    for (const std::string& name : names) {
        if (&name != &names.front()) text += separator;
        text += name;
    }
    return text;
}

std::string markAndName(std::string_view mark, const std::string& name) {
    std::string text = std::string(mark) + name;
    const std::size_t width = ui::length(text);
    if (width < NameWidth) return text + std::string(NameWidth - width, ' ');
    return std::string(ui::firstCharacters(text, NameWidth));
}

std::string_view withoutFill(std::string_view text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

using Fields = std::optional<std::vector<LineField>>;

/// "3. Puma"
Fields numberAndName(std::string_view text, const char* number) {
    const std::size_t end = text.find(NumberEnds);
    if (end == std::string_view::npos) return {};
    return {{{number, {text.substr(0, end)}}, {"species", {text.substr(end + NumberEnds.size())}}}};
}

/// "3. Puma  (3.21)"
Fields rankedFields(std::string_view text) {
    const std::size_t begin = text.rfind(AggregateBegins);
    if (begin == std::string_view::npos || text.back() != ')') return {};
    Fields fields = numberAndName(text.substr(0, begin), "rank");
    if (!fields) return {};
    const std::string_view aggregate = text.substr(begin + AggregateBegins.size());
    fields->push_back({"aggregate", {aggregate.substr(0, aggregate.size() - 1)}});
    return fields;
}

Fields levelFields(LineKind kind, std::string_view text) {
    const std::string_view suffix = levelSuffix(kind);
    if (!text.ends_with(suffix)) return {};
    constexpr std::array Names = {"margin of error", "threat representation", "conservation status"};
    const auto name = static_cast<std::size_t>(kind) - static_cast<std::size_t>(LineKind::Margin);
    return {{{Names[name], {text.substr(0, text.size() - suffix.size())}}}};
}

Fields rowFields(std::string_view text) {
    const auto cells = rowCells(text);
    if (!cells) return {};
    const auto values = [&](std::size_t from, std::size_t to) {
        return std::vector<std::string_view>(cells->Values.begin() + from, cells->Values.begin() + to);
    };
    return {{{"mark", {withoutFill(cells->Mark)}},
             {"species", {withoutFill(cells->Name)}},
             {"rank", values(0, 1)},
             {"scores", values(1, 7)},
             {"additions", values(7, 10)}}};
}

const char* wholeName(LineKind kind) {
    switch (kind) {
        case LineKind::Empty: return "empty line";
        case LineKind::Excluded: return "excluded species";
        case LineKind::EndOfPass: return "end of pass";
        case LineKind::NotCovered: return "not covered";
        default: return "heading";
    }
}

}  // namespace

std::string_view levelSuffix(LineKind level) {
    switch (level) {
        case LineKind::Margin: return " % Error margin";
        case LineKind::ThreatRepresentation: return " Threat representation";
        default: return " Conservation status representation";
    }
}

std::string plainNumber(double value) {
    const method::Decimal decimal = method::toDecimal(value);
    std::string digits(decimal.Digits.data(), static_cast<std::size_t>(decimal.Count));
    if (decimal.Exponent <= 0) {
        digits.insert(0, static_cast<std::size_t>(1 - decimal.Exponent), '0');
    } else if (decimal.Exponent > decimal.Count) {
        digits.append(static_cast<std::size_t>(decimal.Exponent - decimal.Count), '0');
    }
    const auto whole = static_cast<std::size_t>(std::max(decimal.Exponent, 1));
    if (digits.size() > whole) digits.insert(whole, 1, '.');
    return decimal.Negative ? '-' + digits : digits;
}

std::vector<ResultLine> excludedLines(const std::vector<std::string>& names) {
    if (names.empty()) return {};
    const std::string which =
        names.size() == 1 ? " species was excluded due to its "
                          : ' ' + std::to_string(names.size()) + " species was excluded due to their ";
    std::vector<std::string> shown;
    for (const std::string& name : names) shown.push_back(trimmed(name));
    return {{LineKind::Excluded, "The following" + which + "high Current Conservation Status value:"},
            {LineKind::Excluded, joined(shown, "; ")},
            emptyLine()};
}

ResultLine rankedLine(std::size_t rank, const std::string& name, double aggregate) {
    ResultLine ranked = chosenLine(rank, name);
    ranked.Kind = LineKind::Ranked;
    ranked.Text += std::string(AggregateBegins) + plainNumber(aggregate) + ')';
    return ranked;
}

ResultLine levelLine(LineKind level, double value) {
    return line(level, plainNumber(value) + std::string(levelSuffix(level)));
}

ResultLine chosenLine(std::size_t number, const std::string& name) {
    return line(LineKind::Chosen, std::to_string(number) + std::string(NumberEnds) + name);
}

std::vector<ResultLine> legend() {
    return {emptyLine(),
            emptyLine(),
            line(LineKind::Heading, heading::Passes),
            line(LineKind::Heading, "S = selected species"),
            line(LineKind::Heading, "X = excluded species"),
            line(LineKind::Heading, "M = margin of error species"),
            line(LineKind::Heading, "\t\t\t\t\t\t\t\t\t\tAdditional"),
            line(LineKind::Heading, heading::Columns)};
}

ResultLine rowLine(std::string_view mark, const std::string& name, std::size_t rank, const PassRow& row) {
    ResultLine shown{LineKind::Row, markAndName(mark, name)};
    const auto add = [&](const std::string& value) { shown.Text += value + '\t'; };
    add(std::to_string(rank));
    add(plainNumber(row.Aggregate));
    for (const double score : row.Scores) add(plainNumber(score));
    for (const int units : row.Adds) add(std::to_string(units));
    return shown;
}

ResultLine endOfPass() {
    return {LineKind::EndOfPass, std::string(NameWidth, ' ') + std::string(RowCells().Values.size(), '\t')};
}

std::vector<ResultLine> coverageLines(const std::array<std::vector<std::string>, UnitKindCount>& uncovered) {
    std::vector<ResultLine> lines = {emptyLine(), emptyLine()};
    for (std::size_t kind = 0; kind < UnitKindCount; ++kind) {
        if (uncovered[kind].empty()) continue;
        lines.push_back(
            {LineKind::NotCovered, std::string(UncoveredPrefixes[kind]) + joined(uncovered[kind], ", ")});
    }
    const bool all = lines.size() == 2;
    lines.insert(lines.begin() + 2, line(LineKind::NotCovered, all ? AllCovered : SomeUncovered));
    return lines;
}

Fields fieldsOf(LineKind kind, std::string_view text) {
    switch (kind) {
        case LineKind::Ranked: return rankedFields(text);
        case LineKind::Margin:
        case LineKind::ThreatRepresentation:
        case LineKind::ConservationStatus: return levelFields(kind, text);
        case LineKind::Chosen: return numberAndName(text, "number");
        case LineKind::Row: return rowFields(text);
        default: return {{{wholeName(kind), {text}}}};
    }
}

RowStart rowStart(std::string_view text) {
    const std::string_view named = ui::firstCharacters(text, NameWidth);
    RowStart start;
    start.Mark = ui::firstCharacters(named, MarkWidth);
    start.Name = named.substr(start.Mark.size());
    start.Rank = text.substr(named.size());
    start.Rank = start.Rank.substr(0, start.Rank.find('\t'));
    return start;
}

/// From the end, since a name may hold tabs.
std::optional<RowCells> rowCells(std::string_view text) {
    RowCells cells;
    for (std::size_t i = cells.Values.size(); i-- > 0;) {
        if (!text.ends_with('\t')) return {};
        text.remove_suffix(1);
        if (i == 0) break;
        const std::size_t begin = text.rfind('\t') + 1;  // 0 where there is none
        cells.Values[i] = text.substr(begin);
        text.remove_suffix(text.size() - begin);
    }
    if (ui::length(text) < NameWidth) return {};
    const RowStart start = rowStart(text);
    cells.Mark = start.Mark;
    cells.Name = start.Name;
    cells.Values[0] = text.substr(start.Mark.size() + start.Name.size());
    return cells;
}

}  // namespace insight
