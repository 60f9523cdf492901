// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "ui/choice_buttons.h"
#include "ui/combo_box.h"
#include "ui/control_array.h"
#include "ui/platform.h"
#include "ui/text_box.h"

namespace modGeneralUtilities {

/// Labels of the home range bins between breakpoints, joined as typed: one label a breakpoint, nothing below the
/// first. `breakpoints` has at least one element.
void ConstructIntervals(const std::vector<std::string>& breakpoints, std::vector<std::string>& labels);

/// Appends each text to the box, without clearing it.
void UpdateComboBox(ui::ComboBox& box, const std::vector<std::string>& items);

/// The box's ListIndex, or -1 when it has no items.
int GetComboIndex(const ui::ComboBox& box);

/// Which of the buttons is on, as one always is.
int GetOptionIndex(const ui::ControlArray<ui::OptionButton>& buttons);

void SelectAllText(ui::TextBox& box);

/// A question with the buttons Yes and No, Yes being the default; true for Yes.
bool AskYesNo(ui::Platform& platform, const std::string& prompt, const std::string& title);

}  // namespace modGeneralUtilities
