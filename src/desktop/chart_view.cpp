// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/chart_view.h"

namespace desktop {

ChartView::ChartView(ui::Chart& chart, FormLink& link, QWidget* parent)
    : ChartPlot(chart, link.scale(), parent), chart_(chart), link_(link) {
    setFocusPolicy(Qt::StrongFocus);
}

}  // namespace desktop
