// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace desktop {

/// Lets screen readers ask an open cell editor for its text, caret and selection. To be called before the first editor
/// is shown; again it does nothing.
void installEditorAccessibility();

}  // namespace desktop
