// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/chart_axes.h"

#include <algorithm>
#include <cmath>

namespace desktop {

namespace {

constexpr double FewestCategories = 3;
constexpr double LargestValue = 1e100;  // what the plot can still draw
constexpr int MostDecimals = 12;
constexpr double Tolerance = 1e-9;  // of a step, for what arithmetic leaves of a whole number of them

double roundStep(double least) {
    const double power = std::pow(10, std::floor(std::log10(least) + Tolerance));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (power * factor >= least * (1 - Tolerance)) return power * factor;
    }
    return power * 10;
}

}  // namespace

CategoryRange allCategories(int count) { return {-0.5, std::max(count, 1) - 0.5}; }

CategoryRange withinData(CategoryRange range, int count) {
    const CategoryRange all = allCategories(count);
    const double size = std::clamp(range.size(), std::min(FewestCategories, all.size()), all.size());
    const double middle = (range.Lower + range.Upper) / 2;
    const double lower = std::clamp(middle - size / 2, all.Lower, all.Upper - size);
    return {lower, lower + size};
}

CategoryRange zoomed(CategoryRange range, double factor, double centre, int count) {
    const CategoryRange all = allCategories(count);
    const double size = std::clamp(range.size() * factor, std::min(FewestCategories, all.size()), all.size());
    const double lower = centre - (centre - range.Lower) * size / range.size();
    return withinData({lower, lower + size}, count);
}

CategoryRange moved(CategoryRange range, double by, int count) {
    return withinData({range.Lower + by, range.Upper + by}, count);
}

ValueScale valueScale(double least, double greatest, bool whole, int mostSteps) {
    const double lower = std::clamp(least, -LargestValue, 0.0);
    const double upper = std::clamp(greatest, 0.0, LargestValue);
    const double span = upper - lower;
    if (span <= 0) return {};
    double step = roundStep(span / std::max(mostSteps, 1));
    if (whole) step = std::max(step, 1.0);
    const int decimals =
        std::clamp(static_cast<int>(-std::floor(std::log10(step) + Tolerance)), 0, MostDecimals);
    return {std::floor(lower / step + Tolerance) * step, std::ceil(upper / step - Tolerance) * step, step,
            decimals};
}

}  // namespace desktop
