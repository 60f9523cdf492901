// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/chart_numbers.h"

#include <algorithm>

#include "ui/numbers.h"

namespace desktop {

namespace {

using Row = std::vector<std::string>;

bool isBlank(const Row& row) {
    return std::all_of(row.begin(), row.end(), [](const std::string& text) { return text.empty(); });
}

std::size_t columnsOf(const ui::Chart::Table& data) {
    std::size_t columns = 1;
    for (const Row& row : data) columns = std::max(columns, row.size());
    return columns;
}

std::vector<ChartNumbers::Series> namedSeries(const ui::Chart& chart, std::size_t count) {
    std::vector<ChartNumbers::Series> all(count);
    for (std::size_t i = 0; i < count; ++i) {
        const ui::ChartSeries series = i < chart.AllSeries().size() ? chart.AllSeries()[i] : ui::ChartSeries{};
        all[i].Label = QString::fromStdString(series.Label);
        all[i].EdgePen = toColour(series.EdgePen);
        all[i].FillColor = toColour(series.FillColor);
    }
    return all;
}

}  // namespace

bool ChartNumbers::hasLegend() const {
    const auto labelled = [](const Series& series) { return !series.Label.isEmpty(); };
    return AllSeries.size() > 1 || std::any_of(AllSeries.begin(), AllSeries.end(), labelled);
}

QString ChartNumbers::seriesName(int index) const {
    const QString& label = AllSeries[static_cast<std::size_t>(index)].Label;
    return label.isEmpty() ? QString::number(index + 1) : label;
}

std::optional<ChartNumbers::Extremes> ChartNumbers::extremes() const {
    std::optional<Extremes> found;
    for (const Series& series : AllSeries) {
        for (int i = 0; i < count(); ++i) {
            const std::optional<double> value = series.Values[static_cast<std::size_t>(i)];
            if (!value) continue;
            if (!found) found = {*value, *value, i, i};
            if (*value < found->Least) std::tie(found->Least, found->LeastCategory) = std::tuple(*value, i);
            if (*value > found->Greatest) std::tie(found->Greatest, found->GreatestCategory) = std::tuple(*value, i);
        }
    }
    return found;
}

ChartNumbers readNumbers(const ui::Chart& chart) {
    ChartNumbers numbers;
    numbers.AllSeries = namedSeries(chart, columnsOf(chart.ChartData()) - 1);
    for (const Row& row : chart.ChartData()) {
        if (isBlank(row)) continue;
        numbers.Categories.push_back(QString::fromStdString(row.front()));
        for (std::size_t i = 0; i < numbers.AllSeries.size(); ++i) {
            const std::string text = i + 1 < row.size() ? row[i + 1] : std::string();
            numbers.AllSeries[i].Values.push_back(ui::tryReal(text));
            numbers.AllSeries[i].Texts.push_back(QString::fromStdString(text));
        }
    }
    return numbers;
}

QColor toColour(ui::Colour colour) { return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF}; }

}  // namespace desktop
