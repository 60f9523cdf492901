// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modValidationUtilities.h"

#include "entry/modErrorHandling.h"
#include "ui/text.h"
#include "ui/text_editor.h"

namespace modValidationUtilities {

namespace {

int validate(ui::Platform& platform, int key, bool allowControlKeys, const std::string& allowed) {
    if (allowControlKeys && IsControlKey(key)) return key;
    return ValidateKey(platform, key, allowed, true, true);
}

/// Writes the bound that the box's text breaks; a text within the bounds stays. Raises TypeMismatch for no number.
void holdWithinBounds(ui::TextBox& box, const std::string& minimum, const std::string& maximum) {
    if (box.Text().empty()) {
        box.Text(minimum);
        return;
    }
    const double value = box.Real();
    if (value < ui::toLong(minimum)) {
        box.Text(minimum);
    } else if (value > ui::toLong(maximum)) {
        box.Text(maximum);
    }
}

}  // namespace

void CheckTotal(ui::Platform& platform, ui::TextBox& box, const std::string& name, const std::string& minimum,
                const std::string& maximum, const std::string& defaultText) {
    if (succeeds([&] { holdWithinBounds(box, minimum, maximum); })) return;
    const std::string message = "Number of " + name + " is invalid. Resetting value to " + defaultText + ".";
    box.Text(defaultText);
    platform.showMessage(message, "Invalid value", ui::MessageIcon::Exclamation);
}

bool IsNothingOrWithin(const Bounds& bounds, const std::string& text, ui::DecimalSeparator separator) {
    if (text.empty()) return true;
    const auto isWithin = [&](double value) { return value >= bounds.Least && value <= bounds.Most; };
    const std::optional<double> value = ui::tryReal(text, separator);
    return value && isWithin(*value) && isWithin(ui::Val(text));
}

int ValidateSimpleNumber(ui::Platform& platform, int key, bool allowControlKeys) try {
    return validate(platform, key, allowControlKeys, "1234567890");
} catch (...) {
    ReportError(9999, "ValidationUtilities.ValidateSimpleNumber", "");
}

int ValidatePositiveNumber(ui::Platform& platform, int key, bool allowControlKeys) try {
    return validate(platform, key, allowControlKeys, ExtraNumericKeys(platform) + "1234567890\\+\\.");
} catch (...) {
    ReportError(9999, "ValidationUtilities.ValidatePositiveNumber", "");
}

int ValidateNumber(ui::Platform& platform, int key, bool allowControlKeys) try {
    return validate(platform, key, allowControlKeys, ExtraNumericKeys(platform) + "1234567890-\\+\\.");
} catch (...) {
    ReportError(9999, "ValidationUtilities.ValidateNumber", "");
}

int ValidateKey(ui::Platform& platform, int key, std::string_view allowed, bool allowBackspace,
                bool beep) try {
    if (allowBackspace && key == ui::BackspaceKey) return key;
    std::string character;
    if (key > 0) ui::appendCharacter(character, static_cast<char32_t>(key));
    if (!character.empty() && ui::containsIgnoringCase(allowed, character)) return key;
    if (beep) platform.beep();
    return 0;
} catch (...) {
    ReportError(9999, "ValidationUtilities.ValidateKey", "");
}

std::string ExtraNumericKeys(const ui::Platform& platform) try {
    const ui::DecimalSeparator separator = platform.decimalSeparator();
    std::string keys;
    if (ui::IsNumeric("0 0", separator)) keys += " ";
    if (ui::IsNumeric("0.0", separator)) keys += "\\.";
    if (ui::IsNumeric("0,0", separator)) keys += ",";
    return keys;
} catch (...) {
    ReportError(9999, "ValidationUtilities.ExtraNumericKeys", "");
}

bool IsControlKey(int key) { return key == ui::EnterKey || key == ui::EscapeKey; }

}  // namespace modValidationUtilities
