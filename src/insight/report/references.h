// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

/// The papers that the definitions come from, in full, by author.
namespace insight {

std::span<const char* const> references();

}  // namespace insight
