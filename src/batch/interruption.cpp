// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/interruption.h"

namespace {

/// A handler of signals reaches nothing else.
std::atomic<bool> interrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free);

}  // namespace

Interruption::Interruption() {
    interrupted = false;
    struct sigaction action {};
    action.sa_handler = [](int) { interrupted = true; };
    action.sa_flags = SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    ::sigaction(SIGINT, &action, &before_);
}

Interruption::~Interruption() { ::sigaction(SIGINT, &before_, nullptr); }

const std::atomic<bool>& Interruption::wanted() const { return interrupted; }
