// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/chart_plot.h"
#include "desktop/view.h"
#include "ui/chart.h"

namespace desktop {

/// A bar chart of the form.
class ChartView : public ChartPlot, public View {
    Q_OBJECT

public:
    ChartView(ui::Chart& chart, FormLink& link, QWidget* parent);

    QWidget& widget() override { return *this; }
    void follow() override { outdateData(); }

private:
    ui::Chart& chart_;
    FormLink& link_;
};

}  // namespace desktop
