// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <optional>
#include <vector>

#include "desktop/colours.h"
#include "ui/chart.h"

namespace desktop {

/// A chart's data as it is drawn and read: what is no number has no value.
struct ChartNumbers {
    struct Series {
        QString Label;  // empty where the chart gives none
        QColor EdgePen;
        QColor FillColor;
        std::vector<std::optional<double>> Values;  // one a category
        std::vector<QString> Texts;                 // the values as the chart gives them
    };

    std::vector<QString> Categories;
    std::vector<Series> AllSeries;

    int count() const { return static_cast<int>(Categories.size()); }
    /// Whether a legend tells more than the title does.
    bool hasLegend() const;
    /// The label of series `index`, from 0; its number where it has none.
    QString seriesName(int index) const;
    /// Nothing, or the least and the greatest of all values.
    struct Extremes {
        double Least = 0;
        double Greatest = 0;
        int LeastCategory = 0;
        int LeastSeries = 0;
        int GreatestCategory = 0;
        int GreatestSeries = 0;
    };
    std::optional<Extremes> extremes() const;
    /// Whether no value has a fraction.
    bool whole() const;
};

/// Rows without a category and without any value are none.
ChartNumbers readNumbers(const ui::Chart& chart);

}  // namespace desktop
