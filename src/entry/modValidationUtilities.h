// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <limits>
#include <string>
#include <string_view>

#include "ui/platform.h"
#include "ui/text_box.h"

/// Key filters and bounds for what users type.
namespace modValidationUtilities {

/// Holds the text of a box within whole-number bounds: an empty text becomes the minimum, a value outside the bounds
/// the bound, both silently; a text that is no number becomes the default, with a message.
void CheckTotal(ui::Platform& platform, ui::TextBox& box, const std::string& name, const std::string& minimum,
                const std::string& maximum, const std::string& defaultText);

/// Each returns the key to use, 0 for one that is swallowed with a beep. With `allowControlKeys` Enter and Escape pass.
int ValidateSimpleNumber(ui::Platform& platform, int key, bool allowControlKeys);
int ValidatePositiveNumber(ui::Platform& platform, int key, bool allowControlKeys);
int ValidateNumber(ui::Platform& platform, int key, bool allowControlKeys);

/// The key when its character is among the allowed ones, ignoring case; otherwise 0.
int ValidateKey(ui::Platform& platform, int key, std::string_view allowed, bool allowBackspace, bool beep);

/// The separators that a number may hold here, found by experiment.
std::string ExtraNumericKeys(const ui::Platform& platform);

/// Both ends included.
struct Bounds {
    double Least = -std::numeric_limits<double>::infinity();
    double Most = std::numeric_limits<double>::infinity();
};

/// Whether a cell may take the text: nothing, or a number within the bounds. With a comma its leading digits and its
/// value can be two numbers; then both must lie within.
bool IsNothingOrWithin(const Bounds& bounds, const std::string& text, ui::DecimalSeparator separator);

/// Enter and Escape.
bool IsControlKey(int key);

}  // namespace modValidationUtilities
