// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

/// What a step's work grows with.
enum class WorkUnit {
    Cells,          ///< species × (habitats + zones + activities)
    CellsByPasses,  ///< the same, once for each pass of the selection
    CellsAndRows,   ///< cells, and the rows that the selection left in its table of passes
};

struct StepDesign {
    const char* Name;
    WorkUnit Work;
};

/// All steps of a run, in their order.
const std::vector<StepDesign>& steps();

struct ProjectSize {
    int Species = 0;
    int Habitats = 0;
    int Zones = 0;
    int Activities = 0;
    int Passes = 0;
    int Picks = 0;
    int ResultRows = 0;  ///< of the table of passes

    double cells() const { return static_cast<double>(Species) * (Habitats + Zones + Activities); }
    double work(WorkUnit unit) const;
    std::string label() const;
};

struct StepMeasure {
    double Milliseconds = 0;
    double PeakMegabytes =
        0;  ///< of the process, from its start to the end of the step; 0 where it is not told
};

struct RunMeasure {
    ProjectSize Size;
    std::vector<StepMeasure> Steps;  ///< parallel to steps()
};

/// Opens the project in a fresh form, walks its pages, selects and exports, all through user actions. `folder` takes
/// what is exported. Throws std::runtime_error where the run does not come to its end.
RunMeasure measureRun(const std::string& project, const std::string& folder);
