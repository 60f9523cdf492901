// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

/// Names that no project changes.
inline constexpr std::array FunctionNames = {
    "Predation",   "Seed dispersal",         "Seed predation",
    "Pollination", "Mechanical disturbance", "Competitive interactions"};

inline constexpr std::array SocioEconNames = {"Potential flagship species", "Positive local cultural value",
                                              "Negative local cultural value", "Negative economic value",
                                              "Positive economic value"};

inline constexpr std::array CriterionNames = {"Heterogeneity", "Area", "Vulnerability", "Functionality",
                                              "Socio-economic"};

/// The fixed home range bins; bin k of the scale is element k - 1.
inline constexpr std::array DefaultBinLabels = {"0 - 1 km2",   "1 - 10 km2",   "10 - 25 km2",
                                                "25 - 50 km2", "50 - 100 km2", "100+ km2"};

inline constexpr std::array BinHeadings = {"No.", "Breakpoint"};

/// The level of use that covers a habitat or zone, until the user chooses another.
inline constexpr const char* DefaultLevelOfUse = "2";

inline constexpr int TotalSocioEcon = static_cast<int>(SocioEconNames.size());
inline constexpr int TotalCriteria = static_cast<int>(CriterionNames.size());

/// Names in the wide cross tables are cut to this many characters.
inline constexpr int ShortNameLength = 20;
