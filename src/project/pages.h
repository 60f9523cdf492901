// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The pages of the main tab strip, counted from 1 as its tabs are.
namespace page {
inline constexpr int Species = 1;
inline constexpr int Parameters = 2;
inline constexpr int Criteria = 3;
inline constexpr int Summary = 4;
inline constexpr int Graphs = 5;
inline constexpr int Scores = 6;
inline constexpr int Results = 7;
}  // namespace page
