// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/progress_line.h"

#include <unistd.h>

#include <iostream>

namespace {

constexpr const char* EraseLine = "\r\x1b[K";
constexpr std::chrono::milliseconds Pause(200);

}  // namespace

ProgressLine::ProgressLine()
    : terminal_(::isatty(STDERR_FILENO) == 1), next_(std::chrono::steady_clock::now() + Pause) {}

ProgressLine::~ProgressLine() {
    if (shown_) std::cerr << EraseLine << std::flush;
}

void ProgressLine::tell(const std::string& text) {
    const auto now = std::chrono::steady_clock::now();
    if (!terminal_ || now < next_) return;
    std::cerr << EraseLine << text << std::flush;
    shown_ = true;
    next_ = now + Pause;
}
