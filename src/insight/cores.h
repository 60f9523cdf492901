// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <thread>

namespace insight {

/// Threads that the machine runs at once; 1 where it does not say.
inline unsigned coresOfMachine() { return std::max(1U, std::thread::hardware_concurrency()); }

}  // namespace insight
