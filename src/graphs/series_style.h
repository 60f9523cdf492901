// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/chart.h"

/// The colours of series `index`, from 1; the edge is the same in all charts.
inline void styleSeries(ui::Chart& chart, int index, ui::Colour fill) {
    chart.Series(index).EdgePen = ui::rgb(50, 50, 50);
    chart.Series(index).FillColor = fill;
}
