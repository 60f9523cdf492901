// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/search_effort.h"

#include <algorithm>

namespace insight {

namespace {

constexpr std::uint64_t StepsBetweenLooks = 64;
constexpr std::chrono::milliseconds BetweenReports{200};

}  // namespace

SearchBudget::SearchBudget(const SearchEffort& effort)
    : effort_(effort), start_(Clock::now()), nextReport_(start_ + BetweenReports) {}

void SearchBudget::look() {
    next_ = nodes_ + StepsBetweenLooks;
    if (effort_.Nodes) {
        if (nodes_ > *effort_.Nodes) over_ = true;
        next_ = std::min(next_, std::max(*effort_.Nodes, nodes_) + 1);
    }
    if (effort_.Stop && effort_.Stop->load(std::memory_order_relaxed)) over_ = true;
    if (!effort_.Seconds && !effort_.OnProgress) return;
    const Clock::time_point now = Clock::now();
    if (effort_.Seconds && std::chrono::duration<double>(now - start_).count() >= *effort_.Seconds)
        over_ = true;
    if (!effort_.OnProgress || now < nextReport_) return;
    nextReport_ = now + BetweenReports;
    effort_.OnProgress({lower_, upper_, nodes_});
}

}  // namespace insight
