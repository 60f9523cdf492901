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

/// Nothing for a level that is no number or beyond 32 bits.
std::optional<std::int32_t> wholeLevel(double level) {
    constexpr double Small = 1 << 16;
    if (level >= 0 && level < Small && level == static_cast<std::int32_t>(level))
        return static_cast<std::int32_t>(level);  // nearly every level
    if (isBlank(level)) return 0;
    const double whole = nearestWhole(level);
    if (!(whole >= std::numeric_limits<std::int32_t>::min() &&
          whole <= std::numeric_limits<std::int32_t>::max())) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(whole);
}

std::int32_t requireLevel(double level, const Cell& cell) {
    const std::optional<std::int32_t> whole = wholeLevel(level);
    if (!whole) fail(isNumber(level) ? Cause::TooLarge : Cause::NoNumber, cell);
    return *whole;
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
            const std::int32_t level = requireLevel(levels.at(s, unit), cell);
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

Use useOf(std::span<const double> levels) {
    Use use;
    std::int32_t whole = 0;
    for (const double level : levels) {
        whole = wholeLevel(level).value_or(whole);
        std::int32_t sum = 0;
        if (!__builtin_add_overflow(use.Level, whole, &sum)) use.Level = sum;
        if (whole > 0) ++use.Count;
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

std::optional<double> proportionOf(double part, double whole) {
    if (!(whole > 0)) return std::nullopt;
    constexpr int Places = 3;
    const double proportion = roundTo(part / whole, Places);
    if (!std::isfinite(proportion)) throw Failure(Step::UnitUse, Cause::TooLarge, Quantity::Occupied, 0);
    return proportion;
}

}  // namespace method
