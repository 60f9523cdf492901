// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace desktop {

/// The categories that a chart shows: category i lies from i - 0.5 to i + 0.5.
struct CategoryRange {
    double Lower = -0.5;
    double Upper = 0.5;

    double size() const { return Upper - Lower; }
    bool operator==(const CategoryRange&) const = default;
};

CategoryRange allCategories(int count);
/// The nearest range that lies within the data and holds three categories at least, or all.
CategoryRange withinData(CategoryRange range, int count);
/// `factor` times as many categories; the one at `centre` stays where it is.
CategoryRange zoomed(CategoryRange range, double factor, double centre, int count);
CategoryRange moved(CategoryRange range, double by, int count);

/// A value axis from a tick to a tick, 0 included.
struct ValueScale {
    double Lower = 0;
    double Upper = 1;
    double Step = 1;
    int Decimals = 0;  // that its ticks need
};

/// Steps of 1, 2 or 5 times a power of ten, about `mostSteps` of them at the most. Whole numbers get whole steps.
ValueScale valueScale(double least, double greatest, bool whole, int mostSteps);

}  // namespace desktop
