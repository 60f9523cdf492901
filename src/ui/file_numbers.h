// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The numbers under which commands open their files. A file that a failure left open blocks all that share its number.
namespace ui::filenumber {

inline constexpr int Shared = 1;  ///< Open, Import, export of results
inline constexpr int Save = 2;
inline constexpr int Table = 3;  ///< export of a table: works after a save that failed, too

}  // namespace ui::filenumber
