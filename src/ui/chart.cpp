// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/chart.h"

#include "ui/errors.h"

namespace ui {

void Chart::ChartData(Table data) {
    data_ = std::move(data);
    reportChange();
}

ChartSeries& Chart::Series(int index) {
    if (index < 1) raise(ErrorNumber::SubscriptOutOfRange);
    if (index > static_cast<int>(series_.size())) series_.resize(static_cast<std::size_t>(index));
    return series_[static_cast<std::size_t>(index) - 1];
}

}  // namespace ui
