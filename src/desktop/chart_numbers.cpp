// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/chart_numbers.h"

#include <algorithm>
#include <cmath>

#include "desktop/texts.h"
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
        const ui::ChartSeries series =
            i < chart.AllSeries().size() ? chart.AllSeries()[i] : ui::ChartSeries{};
        all[i].Label = shownText(series.Label);
        all[i].EdgePen = toColour(series.EdgePen);
        all[i].FillColor = toColour(series.FillColor);
    }
    return all;
}

void include(std::optional<ChartNumbers::Extremes>& found, double value, int category, int series) {
    if (!found) found = {value, value, category, series, category, series};
    if (value < found->Least) {
        found->Least = value;
        found->LeastCategory = category;
        found->LeastSeries = series;
    }
    if (value > found->Greatest) {
        found->Greatest = value;
        found->GreatestCategory = category;
        found->GreatestSeries = series;
    }
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
    for (std::size_t series = 0; series < AllSeries.size(); ++series) {
        for (std::size_t i = 0; i < Categories.size(); ++i) {
            const std::optional<double> value = AllSeries[series].Values[i];
            if (value) include(found, *value, static_cast<int>(i), static_cast<int>(series));
        }
    }
    return found;
}

bool ChartNumbers::whole() const {
    const auto isWhole = [](const std::optional<double>& value) {
        return !value || *value == std::floor(*value);
    };
    return std::all_of(AllSeries.begin(), AllSeries.end(), [&isWhole](const Series& series) {
        return std::all_of(series.Values.begin(), series.Values.end(), isWhole);
    });
}

ChartNumbers readNumbers(const ui::Chart& chart) {
    ChartNumbers numbers;
    numbers.AllSeries = namedSeries(chart, columnsOf(chart.ChartData()) - 1);
    for (const Row& row : chart.ChartData()) {
        if (isBlank(row)) continue;
        numbers.Categories.push_back(shortText(row.front()));
        for (std::size_t i = 0; i < numbers.AllSeries.size(); ++i) {
            const std::string text = i + 1 < row.size() ? row[i + 1] : std::string();
            numbers.AllSeries[i].Values.push_back(ui::tryReal(text));
            numbers.AllSeries[i].Texts.push_back(shownText(text));
        }
    }
    return numbers;
}

}  // namespace desktop
