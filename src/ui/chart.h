// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ui/appearance.h"
#include "ui/control.h"

namespace ui {

enum class ChartType { Bar2D = 1 };
enum class TitleOrientation { Horizontal = 0, Upward = 2 };

/// One value a category.
struct ChartSeries {
    std::string Label{};
    Colour EdgePen = 0;
    Colour FillColor = rgb(255, 255, 255);
};

/// A bar chart as data: what is drawn, not how.
class Chart : public Control {
public:
    /// Row i: the label of category i, then one value a series, all as text.
    using Table = std::vector<std::vector<std::string>>;

    Chart(Control& container, std::string name, Design design = {})
        : Control(container, ControlKind::Chart, std::move(name), std::move(design)) {}

    /// Its title.
    std::string AccessibleName() const override { return Title; }

    const Table& ChartData() const { return data_; }
    void ChartData(Table data);
    /// Series `index`, counted from 1; it comes into being when it is first asked for.
    ChartSeries& Series(int index);
    const std::vector<ChartSeries>& AllSeries() const { return series_; }

    /// Counts the requests to draw anew, for a view that follows.
    void Refresh() {
        ++refreshes_;
        reportChange();
    }
    int Refreshes() const { return refreshes_; }
    /// Puts the chart's picture on the clipboard.
    void EditCopy() { platform().copyPicture(*this); }

    // Fixed settings, made once when the form loads.
    ui::ChartType Type = ui::ChartType::Bar2D;
    std::string Title;
    std::string XAxisTitle;
    std::string YAxisTitle;
    TitleOrientation YAxisTitleOrientation = TitleOrientation::Horizontal;
    Font TitleFont;
    Font AxisTitleFont;
    int TitleLocationType = 0;
    bool MajorGridLines = true;
    bool WallBorder = true;
    Colour PlotBackground = rgb(255, 255, 255);

private:
    Table data_;
    std::vector<ChartSeries> series_;
    int refreshes_ = 0;
};

}  // namespace ui
