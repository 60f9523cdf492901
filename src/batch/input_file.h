// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

/// All bytes of a file. Throws std::system_error.
std::string readWhole(const std::string& path);

/// SHA-256 of a text, in hexadecimal digits.
std::string sha256(const std::string& text);
