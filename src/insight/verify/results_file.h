// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "insight/verify/results_layout.h"

/// An exported results file as it lies there, before anybody believes it.
namespace insight {

/// The text is no results file: nothing in it can be checked. what() is the reason.
struct ResultsFault : std::runtime_error {
    ResultsFault(std::size_t line, const std::string& reason) : std::runtime_error(reason), Line(line) {}
    std::size_t Line;  ///< from 1
};

struct FileLine {
    std::size_t Number;     ///< from 1, as an editor counts
    std::string_view Text;  ///< without its end
};

struct ResultsFile {
    std::vector<FileLine> Lines;
    bool CarriageReturns = true;                     ///< lines end in CR LF, as they are written; else in LF
    bool EndsLine = true;                            ///< so does the last one
    std::array<double, LevelKinds.size()> Levels{};  ///< as stated, within bounds or not
    /// The passes stand in the lines from one index to before the other; equal where there are none.
    std::size_t FirstRow = 0;
    std::size_t EndOfRows = 0;
    /// The suite as listed: element k is the name under the number k + 1, empty where no line has it.
    std::vector<std::string_view> Suite;
};

/// The text must outlive the result. Any bytes will do. Lines end in CR LF where two of them do, else in LF; so a
/// name may hold a line break where lines end as they are written. Throws ResultsFault where the levels are not stated.
ResultsFile readResultsFile(std::string_view text);

}  // namespace insight
