// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <string>

/// A line on standard error that tells how far a long work has come, where that is a terminal. It goes with its owner.
class ProgressLine {
public:
    ProgressLine();
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// Shown some times a second at most.
    void tell(const std::string& text);

private:
    bool shown_ = false;
    bool terminal_;
    std::chrono::steady_clock::time_point next_;
};
