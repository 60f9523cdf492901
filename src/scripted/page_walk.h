// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

class frmBrenica;

/// How far a walk over the pages came.
struct PageWalk {
    bool MaySelect = false;    ///< the selection can be pressed
    int RefusedPage = 0;       ///< may not be left before its rows are complete; 0 for none
    std::string RefusedTab{};  ///< its caption
    /// What the project has none of, so that there is nothing to score. A gap in the grades has had its box from the form.
    std::vector<const char*> EmptyLists{};
};

/// Turns the pages of a project that was opened up to that of the selection, as a user would.
PageWalk walkToSelection(frmBrenica& form);
