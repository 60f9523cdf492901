// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "project/project_copy.h"
#include "project/selection_obstacle.h"
#include "scripted/page_walk.h"
#include "selection/selection_run.h"

/// The suite of a project on view, selected in a form of its own, so that the form on view stays as it is.
struct SelectionAside {
    std::optional<SelectionRun>
        Run{};                 ///< nothing where no selection can be run, or it failed before its first pass
    bool IsOnView = false;     ///< the tables of the selection on view say the same, text for text
    bool IsSaved = false;      ///< the saved file opens to this project
    bool HasDefaults = false;  ///< values were put in for what the saved file lacks

    // Why there is no run.
    PageWalk Walk{};
    std::optional<SelectionObstacle> Obstacle{};
    std::optional<CellInWords> Gap{};  ///< the first cell that still has to be filled
    std::string Told{};                ///< by the last box that the form showed
    std::string Error{};               ///< describes what ended it
};

/// Files that are read and written meanwhile.
struct AsideFiles {
    std::string Saved;  ///< bytes of the project's file; empty where it has none
    std::string Copy;   ///< may be written
};

/// Selects from the project as it stands in the lists and tables of `form`: with the levels and the answers of the
/// selection on view, or, where there is none, with the levels in the boxes and the default answers. No to every other
/// question, so that no row is dropped unasked. Raises what a save would raise where lists and tables are out of step.
SelectionAside selectAside(const frmBrenica& form, const AsideFiles& files);
