// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "insight/report/markup.h"
#include "insight/table.h"

/// Tables of a page, which copy into a spreadsheet as they are.
namespace insight {

/// What a column holds, which tells how wide it may be and where it breaks.
enum class ColumnKind { Number, Term, Name, Names, Text };

/// A column of a ResultTable as people read it.
struct ShownColumn {
    const char* Key;      ///< its name in the ResultTable
    const char* Heading;  ///< on the page
    ColumnKind Kind = ColumnKind::Number;
};

/// The cells as the verbs print them, names cut where they are very long. The first column of names heads its row, or the
/// first of all. On a screen a long table shows its first rows, and all when it is asked to; on paper it is whole.
Markup dataTable(std::string_view caption, const ResultTable& table, std::span<const ShownColumn> columns);

/// Longer tables show their first ten rows (see the style sheet).
inline constexpr std::size_t MostRows = 12;

/// A box that scrolls sideways by itself where its content is wider than the page; `label` names it.
Markup scrollBox(std::string_view label, const Markup& content);

}  // namespace insight
