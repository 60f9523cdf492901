// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/data_table.h"

#include <algorithm>
#include <array>

#include "insight/report/sentence.h"

namespace insight {

namespace {

Markup contentOf(const Cell& cell, ColumnKind kind) {
    const auto* text = std::get_if<std::string>(&cell);
    if (text && kind == ColumnKind::Name) return nameMarkup(*text);
    const auto* list = std::get_if<std::vector<std::string>>(&cell);
    if (!list) return escaped(fieldOf(cell));
    Markup items;
    for (const std::string& item : *list) {
        if (&item != &list->front()) items += escaped("; ");
        items += nameMarkup(item);
    }
    return items;
}

std::string lookOf(const ShownColumn& column) {
    static constexpr std::array Looks = {"number", "term", "name", "names", "text"};
    return Looks[static_cast<std::size_t>(column.Kind)];
}

/// The column that heads the rows.
std::size_t headOf(std::span<const ShownColumn> columns) {
    const auto name = std::find_if(columns.begin(), columns.end(),
                                   [](const ShownColumn& column) { return column.Kind == ColumnKind::Name; });
    return name == columns.end() ? 0 : static_cast<std::size_t>(name - columns.begin());
}

Markup headingRow(std::span<const ShownColumn> columns) {
    Markup cells;
    for (const ShownColumn& column : columns)
        cells += element("th", {{"scope", "col"}, {"class", lookOf(column)}}, column.Heading);
    return element("thead", element("tr", cells));
}

/// Shows the rest of a long table; it works without a script.
Markup switchForRest(std::size_t rows) {
    if (rows <= MostRows) return {};
    return element(
        "label", {{"class", "rest"}},
        voidElement("input", {{"type", "checkbox"}}) + escaped(" all " + withThousands(rows) + " rows"));
}

}  // namespace

Markup dataTable(std::string_view caption, const ResultTable& table, std::span<const ShownColumn> columns) {
    std::vector<std::size_t> places;
    for (const ShownColumn& column : columns) places.push_back(columnOf(table, column.Key));
    const std::size_t head = headOf(columns);
    Markup rows;
    for (const std::vector<Cell>& row : table.Rows) {
        Markup cells;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const Markup content = contentOf(row[places[i]], columns[i].Kind);
            const std::string look = lookOf(columns[i]);
            cells += i == head ? element("th", {{"scope", "row"}, {"class", look}}, content)
                               : element("td", {{"class", look}}, content);
        }
        rows += element("tr", cells);
    }
    const Markup body = headingRow(columns) + element("tbody", rows);
    return switchForRest(table.Rows.size()) +
           scrollBox(caption, element("table", element("caption", caption) + body));
}

Markup scrollBox(std::string_view label, const Markup& content) {
    return element(
        "div",
        {{"class", "scroll"}, {"role", "region"}, {"tabindex", "0"}, {"aria-label", std::string(label)}},
        content);
}

}  // namespace insight
