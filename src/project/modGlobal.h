// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

/// What a project holds outside its grids. One instance, owned by the running program and handed by reference to
/// whoever needs it. Counts equal the body rows of their list grids.
struct modGlobal {
    std::string ProjectVersion;   ///< value of the last "Project Version" line read; nothing clears it
    std::string ProjectFileName;  ///< path of the current file, empty for a new project

    int TotalSpecies = 0;
    int TotalHabitatTypes = 0;
    int TotalJurisUnits = 0;
    int TotalLandUses = 0;
    int TotalFunctions = 0;
    int TotalBins = 0;

    /// Sum of the areas; the number of units where an area is blank.
    double HabitatAreaTotal = 0;
    double JurisUnitAreaTotal = 0;
    /// Element i is the area of unit i + 1.
    std::vector<double> HabitatAreas;
    std::vector<double> JurisUnitAreas;
    /// False: each unit counts as one.
    bool HabitatAreasEntered = false;
    bool JurisUnitAreasEntered = false;

    std::vector<std::string> UserBinLabels;

    bool ScoresCalculated = false;
    std::string TopRankedSpecies;
    /// Element r - 1 is the row of the species of rank r.
    std::vector<int> SpeciesRanks;

    // The levels of the current selection, taken from their boxes when it starts.
    double ErrorMargin = 0;                       ///< percent of the top aggregate score
    double ThreatRepresentation = 0;              ///< fraction of the highest score for a threat
    double ConservationStatusRepresentation = 0;  ///< highest conservation status admitted

    std::string ExcludedSpeciesList;  ///< names, each followed by "; "
    int ExcludedSpeciesCount = 0;
    std::vector<std::string> MarginAnswers;  ///< given to the questions of the current selection, in order
    bool SelectionStarting = false;          ///< the next block is the first of a selection
};
