// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modGeneralUtilities.h"

#include "entry/modErrorHandling.h"
#include "ui/text.h"

namespace modGeneralUtilities {

void ConstructIntervals(const std::vector<std::string>& breakpoints, std::vector<std::string>& labels) try {
    labels.clear();
    for (std::size_t i = 0; i + 1 < breakpoints.size(); ++i) {
        labels.push_back(breakpoints[i] + " - " + breakpoints[i + 1] + " km2");
    }
    labels.push_back(breakpoints.back() + "+ km2");
} catch (...) {
    ReportError(9999, "GeneralUtilities.ConstructIntervals", "");
}

void UpdateComboBox(ui::ComboBox& box, const std::vector<std::string>& items) try {
    for (const std::string& item : items) box.AddItem(item);
} catch (...) {
    ReportError(9999, "GeneralUtilities.UpdateComboBox", "");
}

int GetComboIndex(const ui::ComboBox& box) try {
    return box.ListCount() > 0 ? box.ListIndex() : -1;
} catch (...) {
    // Reports under the name of the procedure that it was modelled on.
    ReportError(9999, "GeneralUtilities.SelectAllText", "");
}

int GetOptionIndex(const ui::ControlArray<ui::OptionButton>& buttons) {
    int index = 0;
    while (!buttons(index).Value()) ++index;
    return index;
}

void SelectAllText(ui::TextBox& box) try {
    box.SelStart(0);
    box.SelLength(static_cast<int>(ui::length(box.Text())));
} catch (...) {
    ReportError(9999, "GeneralUtilities.SelectAllText", "");
}

bool AskYesNo(ui::Platform& platform, const std::string& prompt, const std::string& title) {
    return platform.askYesNo(prompt, title);
}

}  // namespace modGeneralUtilities
