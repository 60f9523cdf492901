// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "insight/sweep/random_stream.h"
#include "insight/sweep/sweep_settings.h"
#include "method/landscape.h"
#include "method/levels.h"
#include "method/margin.h"

/// What is drawn for one run of a sweep, out of its stream.
namespace insight {

/// Levels around those given: the margin from 0 to twice the given one, at most 100, the other two up to 0.2 away, within
/// 0 to 1; all values of an interval alike likely, then rounded to 2 decimals.
method::Levels drawLevels(const method::Levels& given, RandomStream& stream);

/// A planner who picks any of the species that a dialogue would list, all alike likely. Like one who is asked, it is not
/// asked where a single species is listed.
class DrawingChooser : public method::Chooser {
public:
    explicit DrawingChooser(RandomStream& stream) : stream_(stream) {}
    std::size_t choose(const method::MarginBand& band) override;

private:
    RandomStream& stream_;
};

/// Grades that may be off by one step. Varied are levels of use, severity, recovery, proportion, functions and
/// socio-economics; those of 0 only where the settings say so, and none that is no number.
class GradeVariation {
public:
    /// `quality` is that of the data, species × criteria, 1 the best to 6; all else counts as 3, the middle. Where the
    /// settings ask for it the probability of a step is p × quality / 3, at most 1.
    GradeVariation(const method::Landscape& landscape, const method::Table& quality,
                   const SweepSettings& settings);

    /// Each grade of the landscape anew: with its probability one step above or below the one entered, alike likely; a
    /// step beyond the bounds leaves it. REQUIRES: a landscape with the same species and units.
    void draw(RandomStream& stream, method::Landscape& landscape) const;

private:
    struct Grade {
        std::size_t Species;
        std::size_t Item;
        double Entered;
        double Probability;
    };
    static constexpr std::size_t Tables = 7;

    std::array<std::vector<Grade>, Tables> grades_;  ///< of each table, row by row
};

}  // namespace insight
