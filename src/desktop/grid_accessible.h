// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace desktop {

class GridView;

/// Lets screen readers ask a grid for its cells by row and column, headings and hidden columns included. To be called
/// before the first grid is shown; again it does nothing.
void installGridAccessibility();

/// Tell a listener, if there is one, that the current cell is another, or has another text.
void tellCurrentCell(GridView& view);
void tellCellText(GridView& view);

}  // namespace desktop
