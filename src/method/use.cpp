// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/use.h"

#include <limits>

namespace method {

namespace {

struct Cell {
    Quantity What;
    std::size_t Species;
    std::size_t Unit;
};

[[noreturn]] void fail(Cause cause, const Cell& cell) {
    throw Failure(Step::UnitUse, cause, cell.What, cell.Species, cell.Unit);
}

std::int32_t wholeLevel(double level, const Cell& cell) {
    if (isBlank(level)) return 0;
    if (!isNumber(level)) fail(Cause::NoNumber, cell);
    const double whole = nearestWhole(level);
    if (whole < std::numeric_limits<std::int32_t>::min() ||
        whole > std::numeric_limits<std::int32_t>::max()) {
        fail(Cause::TooLarge, cell);
    }
    return static_cast<std::int32_t>(whole);
}

void add(std::int32_t& sum, std::int32_t level, const Cell& cell) {
    if (__builtin_add_overflow(sum, level, &sum)) fail(Cause::TooLarge, cell);
}

}  // namespace

void totalUse(const Table& levels, Quantity quantity, UseTotals& totals) {
    totals = {};
    totals.LevelByUnit.assign(levels.columns(), 0);
    totals.SpeciesByUnit.assign(levels.columns(), 0);
    for (std::size_t s = 0; s < levels.rows(); ++s) {
        Use use;
        for (std::size_t unit = 0; unit < levels.columns(); ++unit) {
            const Cell cell{quantity, s, unit};
            const std::int32_t level = wholeLevel(levels.at(s, unit), cell);
            add(use.Level, level, cell);
            add(totals.LevelByUnit[unit], level, cell);
            if (level <= 0) continue;
            ++use.Count;
            ++totals.SpeciesByUnit[unit];
        }
        totals.LevelBySpecies.push_back(use.Level);
        totals.UnitsBySpecies.push_back(use.Count);
    }
}

Use useOf(std::span<const double> levels, Quantity quantity) {
    Use use;
    for (std::size_t unit = 0; unit < levels.size(); ++unit) {
        const Cell cell{quantity, 0, unit};
        const std::int32_t level = wholeLevel(levels[unit], cell);
        add(use.Level, level, cell);
        if (level > 0) ++use.Count;
    }
    return use;
}

double areaUsed(std::span<const double> levels, std::span<const double> areas) {
    double area = 0;
    for (std::size_t unit = 0; unit < levels.size() && unit < areas.size(); ++unit) {
        if (!isNumber(levels[unit]) || levels[unit] == 0) continue;
        const double sum = area + areas[unit];
        if (std::isfinite(sum)) area = sum;
    }
    return area;
}

double proportionOf(double part, double whole) {
    constexpr int Places = 3;
    const double proportion = roundTo(part / whole, Places);
    if (!std::isfinite(proportion)) throw Failure(Step::UnitUse, Cause::TooLarge, Quantity::Occupied, 0);
    return proportion;
}

}  // namespace method
