// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>

#include "scripted/scripted_platform.h"

/// The boxes as JSON lines, in order: kind, title, text, and the answer of a question or an input box.
std::string messageLines(std::span<const ShownBox> boxes);
