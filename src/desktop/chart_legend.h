// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include "desktop/chart_numbers.h"

namespace desktop {

/// The row between a chart's title and its bars that names the series, in several lines where one is too short.
class ChartLegend {
public:
    ChartLegend(QCustomPlot& plot, int row);

    /// Shows `bars`, one for each series; none of them where the chart needs no legend.
    void show(const ChartNumbers& numbers, const std::vector<QCPBars*>& bars, const QFont& font);
    void fitInto(int width);

private:
    int widthOf(int columns) const;

    QCPLegend& legend_;
    std::vector<int> itemWidths_;
};

}  // namespace desktop
