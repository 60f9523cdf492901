// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/event.h"
#include "ui/form_window.h"

namespace ui {

/// Fires again and again, every `Interval` milliseconds, while it is enabled. The event loop keeps the time and calls
/// Elapse.
class Timer {
public:
    explicit Timer(FormWindow& form) { form.Join(*this); }
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    Event<> Elapsed;
    int Interval = 0;
    bool Enabled = false;

    void Elapse() {
        if (Enabled) Elapsed();
    }
};

}  // namespace ui
