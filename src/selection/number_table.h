// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <limits>
#include <vector>

#include "ui/form_window.h"
#include "ui/grid.h"

/// Some neighbouring columns of a grid as numbers, converted once for a run that reads them in every pass and changes
/// none. A text that is no number raises when it is read, just as the grid would.
class NumberTable {
public:
    NumberTable(const ui::Grid& grid, int firstCol, int cols)
        : grid_(grid), firstCol_(firstCol), cols_(cols) {
        numbers_.reserve(static_cast<std::size_t>(grid.Rows()) * static_cast<std::size_t>(cols));
        for (int row = 0; row < grid.Rows(); ++row) {
            for (int col = firstCol; col < firstCol + cols; ++col) {
                numbers_.push_back(
                    ui::tryReal(grid.TextMatrix(row, col), grid.Form().Separator()).value_or(NoNumber));
            }
        }
    }

    double at(int row, int col) const {
        const auto index = static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_) +
                           static_cast<std::size_t>(col - firstCol_);
        if (row < 0 || index >= numbers_.size() || std::isnan(numbers_[index])) return grid_.Real(row, col);
        return numbers_[index];
    }

private:
    static constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

    const ui::Grid& grid_;
    int firstCol_;
    int cols_;
    std::vector<double> numbers_;
};
