// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/platform.h"

namespace ui {

/// The wait pointer, for as long as it lives: for commands that may take longer than an eye's blink.
class WaitPointer {
public:
    explicit WaitPointer(Platform& platform) : platform_(platform) {
        platform_.setMousePointer(MousePointer::Wait);
    }
    ~WaitPointer() { platform_.setMousePointer(MousePointer::Default); }
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;

private:
    Platform& platform_;
};

}  // namespace ui
