// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// How a report looks: on screens wide and narrow, light and dark, and on A4.
namespace insight {

extern const char* const StyleSheet;

}  // namespace insight
