// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/sweep/sweep_counts.h"

#include <algorithm>
#include <cmath>

#include "insight/names.h"

namespace insight {

namespace {

constexpr int FrequencyPlaces = 4;

void addTo(std::vector<Count>& sums, const std::vector<Count>& counts) {
    for (std::size_t i = 0; i < sums.size(); ++i) sums[i] += counts[i];
}

class SweepRows {
public:
    SweepRows(ResultTable& table, Count runs) : table_(table), runs_(runs) {}

    /// One row for each name, with its number.
    void list(const char* what, const Cell& kind, const std::vector<std::string>& names,
              const std::vector<Count>& counts) {
        for (std::size_t i = 0; i < names.size(); ++i)
            row({what, kind, numberCell(i + 1), names[i]}, counts[i]);
    }
    void single(const char* what, std::size_t value, Count count) {
        row({what, Cell(), Cell(), std::to_string(value)}, count);
    }

private:
    void row(std::vector<Cell> cells, Count count) {
        cells.push_back(numberCell(count));
        cells.push_back(numberCell(runs_));
        if (runs_ == 0) {
            cells.resize(table_.Columns.size());
        } else {
            const auto share = [&](double value) { cells.emplace_back(Fixed{value, FrequencyPlaces}); };
            const Interval interval = wilsonInterval(count, runs_);
            share(static_cast<double>(count) / static_cast<double>(runs_));
            share(interval.Low);
            share(interval.High);
        }
        table_.Rows.push_back(std::move(cells));
    }

    ResultTable& table_;
    Count runs_;
};

}  // namespace

SweepNames sweepNames(const SelectionRun& run) { return {run.Species, run.Units}; }

SweepCounts::SweepCounts(const SweepNames& names) {
    Species.assign(names.Species.size(), 0);
    Sizes.assign(names.Species.size() + 1, 0);
    for (const method::Unit kind : method::UnitKinds) {
        Uncovered[kind].assign(names.Units[kind].size(), 0);
        Missed[kind].assign(names.Units[kind].size(), 0);
    }
}

void SweepCounts::add(const SweepCounts& other) {
    Runs += other.Runs;
    Errors += other.Errors;
    addTo(Species, other.Species);
    addTo(Sizes, other.Sizes);
    for (const method::Unit kind : method::UnitKinds) {
        addTo(Uncovered[kind], other.Uncovered[kind]);
        addTo(Missed[kind], other.Missed[kind]);
    }
}

Interval wilsonInterval(Count count, Count runs) {
    constexpr double Z = 1.96;
    const auto n = static_cast<double>(runs);
    const double share = static_cast<double>(count) / n;
    const double scale = 1 + Z * Z / n;
    const double centre = (share + Z * Z / (2 * n)) / scale;
    const double half = Z / scale * std::sqrt(share * (1 - share) / n + Z * Z / (4 * n * n));
    return {std::max(0.0, centre - half), std::min(1.0, centre + half)};
}

ResultTable sweepTable(const SweepNames& names, const SweepCounts& counts) {
    constexpr std::size_t Done = 0;
    constexpr std::size_t Error = 4;
    ResultTable table;
    table.Columns = {"what", "kind", "number", "name", "count", "runs", "frequency", "low", "high"};
    SweepRows rows(table, counts.Runs);
    rows.list("species", Cell(), names.Species, counts.Species);
    const auto units = [&](const char* what, const method::PerKind<std::vector<Count>>& each) {
        for (const method::Unit kind : method::UnitKinds)
            rows.list(what, std::string(nameOf(kind)), names.Units[kind], each[kind]);
    };
    units("uncovered", counts.Uncovered);
    units("missed", counts.Missed);
    rows.single("exit", Done, counts.Runs - counts.Errors);
    rows.single("exit", Error, counts.Errors);
    for (std::size_t size = 0; size < counts.Sizes.size(); ++size) {
        if (counts.Sizes[size] > 0) rows.single("size", size, counts.Sizes[size]);
    }
    return table;
}

}  // namespace insight
