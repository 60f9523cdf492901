// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>

#include <atomic>

/// While it lives, Ctrl+C (SIGINT) does not end the program: the work that is going on is asked to stop, and what is known
/// so far is told.
class Interruption {
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    const std::atomic<bool>& wanted() const;

private:
    struct sigaction before_ {};
};
