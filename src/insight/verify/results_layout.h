// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "insight/verify/recomputation.h"

/// What the lines of an exported results file look like, from the first to the last. Lines have no line end here.
namespace insight {

/// What a line tells.
enum class LineKind {
    Heading,
    Empty,
    Excluded,
    Ranked,
    Margin,
    ThreatRepresentation,
    ConservationStatus,
    Chosen,  ///< a species of the suite
    Row,
    EndOfPass,
    NotCovered,
};

struct ResultLine {
    LineKind Kind;
    std::string Text;
};

/// The three levels in the order of the file.
inline constexpr std::array LevelKinds = {LineKind::Margin, LineKind::ThreatRepresentation,
                                          LineKind::ConservationStatus};
/// What follows the number: " % Error margin".
std::string_view levelSuffix(LineKind level);

namespace heading {
inline constexpr std::string_view Ranking = "Brenic Species by Rank with Aggregate Score:";
inline constexpr std::string_view Suite = "The Suite of Brenic Species:";
inline constexpr std::string_view Passes = "The complementarity data:";
inline constexpr std::string_view Columns =
    "Species             \tRank\tScore\tHetero\tArea\tVuln\tFunc\tSE\tHabs\tMZones\tThreats";
}  // namespace heading

/// A number in at most 15 digits, without an exponent.
std::string plainNumber(double value);

/// Marks of rows.
namespace mark {
inline constexpr std::string_view Picked = "S ";
inline constexpr std::string_view Omitted = "X ";
inline constexpr std::string_view Margin = "M ";
inline constexpr std::string_view None = "  ";
}  // namespace mark

std::vector<ResultLine> excludedLines(const std::vector<std::string>& names);
ResultLine rankedLine(std::size_t rank, const std::string& name, double aggregate);
ResultLine levelLine(LineKind level, double value);
ResultLine chosenLine(std::size_t number, const std::string& name);
/// From the end of the suite to the first pass.
std::vector<ResultLine> legend();
/// `rank` is the place in the pass, from 1.
ResultLine rowLine(std::string_view mark, const std::string& name, std::size_t rank, const PassRow& row);
ResultLine endOfPass();
/// The last lines: by kind, the names of what is not covered.
std::vector<ResultLine> coverageLines(const std::array<std::vector<std::string>, UnitKindCount>& uncovered);

/// A part of a line with a name of its own.
struct LineField {
    const char* Name;
    std::vector<std::string_view> Values;
    bool operator==(const LineField&) const = default;
};

/// The parts of a line that is to be of a kind; nothing where it cannot be. A line whose kind has no parts is one.
std::optional<std::vector<LineField>> fieldsOf(LineKind kind, std::string_view text);

/// What a row of a pass begins with, as far as it goes.
struct RowStart {
    std::string_view Mark;
    std::string_view Name;  ///< as it is cut, with the blanks that fill it
    std::string_view Rank;
};
/// Takes any line for a row.
RowStart rowStart(std::string_view text);

/// All of a row: rank, scores, additions.
struct RowCells {
    std::string_view Mark;
    std::string_view Name;
    std::array<std::string_view, 10> Values;
};
std::optional<RowCells> rowCells(std::string_view text);

}  // namespace insight
