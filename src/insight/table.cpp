// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/table.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace insight {

namespace {

constexpr std::size_t LongestNumber = 400;  // the largest double with all its digits and some decimals

template <class... Format>
std::string digits(double value, Format... format) {
    std::array<char, LongestNumber> text;
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value, format...);
    return {text.data(), end};
}

struct Field {
    std::string operator()(std::monostate) const { return ""; }
    std::string operator()(bool value) const { return value ? "yes" : "no"; }
    std::string operator()(std::int64_t value) const { return std::to_string(value); }
    std::string operator()(double value) const {
        const bool plain = value == 0 || (std::abs(value) >= 1e-5 && std::abs(value) < 1e15);
        return plain ? digits(value + 0.0, std::chars_format::fixed) : digits(value);
    }
    std::string operator()(const Fixed& number) const {
        return digits(number.Value, std::chars_format::fixed, number.Places);
    }
    std::string operator()(const std::string& text) const { return oneLine(text); }
    std::string operator()(const std::vector<std::string>& list) const {
        std::string text;
        for (const std::string& item : list) {
            if (&item != &list.front()) text += "; ";
            text += oneLine(item);
        }
        return text;
    }
};

}  // namespace

std::size_t columnOf(const ResultTable& table, std::string_view name) {
    return static_cast<std::size_t>(std::find(table.Columns.begin(), table.Columns.end(), name) -
                                    table.Columns.begin());
}

std::string oneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
    return text;
}

std::string fieldOf(const Cell& cell) { return std::visit(Field(), cell); }

std::string tabSeparated(const ResultTable& table) {
    std::string text;
    const auto addLine = [&text](const auto& cells, auto toField) {
        for (const auto& cell : cells) {
            if (&cell != &cells.front()) text += '\t';
            text += toField(cell);
        }
        text += '\n';
    };
    addLine(table.Columns, [](const std::string& heading) { return heading; });
    for (const auto& row : table.Rows) addLine(row, fieldOf);
    return text;
}

}  // namespace insight
