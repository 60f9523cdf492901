// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

/// The keys of a project file, in the order in which they are written. A line is a key, "=" and values separated by
/// commas; nothing is quoted.
namespace projectfile {

inline constexpr const char* Version = "Project Version";
inline constexpr const char* CommonName = "Common Name";
inline constexpr const char* ScientificName = "Scientific Name";
inline constexpr const char* HabitatType = "Habitat Type";
inline constexpr const char* HabitatArea = "Habitat Area";
inline constexpr const char* HabitatUseLevel = "Habitat UseLevel";
inline constexpr const char* JurisUnit = "Jurisdictional Unit";
inline constexpr const char* JurisUnitArea = "JU Area";
inline constexpr const char* JurisUnitUseLevel = "MZone UseLevel";
inline constexpr const char* LandUse = "Land Use";
inline constexpr const char* Urgency = "Urgency";
inline constexpr const char* Probability = "Probability of occurence";
inline constexpr const char* HomeRangeDefinition = "Home-range definition";
inline constexpr const char* Functions = "Functions";
inline constexpr const char* HabitatUse = "HeteroHabitat Population";
inline constexpr const char* JurisUnitUse = "HeteroJU Individual";
inline constexpr const char* Dispersal = "Area Dispersal";
inline constexpr const char* Connectivity = "Area Connectivity";
inline constexpr const char* HomeRanges = "Home ranges";
inline constexpr const char* Occupied = "Landscape Occupied";
inline constexpr const char* ConservationStatus = "Conservation Status";
inline constexpr const char* Severity = "VulnerabilitybySpecies Severity";
inline constexpr const char* Recovery = "VulnerabilitybySpecies Recovery";
inline constexpr const char* Proportion = "VulnerabilitybySpecies Proportion";
// One line a column; the number of the column follows the key.
inline constexpr const char* Function = "Function";
inline constexpr const char* SocioEcon = "Socio-Econ";
inline constexpr const char* DataQuality = "Data Quality";

inline constexpr const char* Extension = ".brn";
/// Why a file is no project, although it was read without a fault: it is one line, of which nothing is taken.
inline constexpr const char* NoLineEnds = "no line ends in CR, as those of a project do";
inline constexpr const char* CurrentVersion = "VERSION2";
/// The texts of the home range types, in the order of their buttons.
inline constexpr std::array HomeRangeTypes = {"continuous", "default bins", "user-defined bins"};

}  // namespace projectfile
