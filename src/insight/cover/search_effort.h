// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

/// What a search may cost, and how it is stopped and watched.
namespace insight {

/// How far a search for the smallest suite has come.
struct SearchProgress {
    std::size_t Lower;    ///< no suite is smaller
    std::size_t Upper;    ///< the smallest one known
    std::uint64_t Nodes;  ///< steps so far
};

/// Seconds that a search may take where nobody says otherwise.
inline constexpr double UsualSeconds = 60;

/// Without Seconds the clock decides nothing: the same nodes give the same answer on every machine.
struct SearchEffort {
    std::optional<double> Seconds{};
    std::optional<std::uint64_t> Nodes{};  ///< steps of the searches together
    const std::atomic<bool>* Stop =
        nullptr;  ///< ends the search soon after it is set, by another thread or a signal
    /// Called some times a second at most, by the thread that searches.
    std::function<void(const SearchProgress&)> OnProgress{};
    std::size_t Threads = 1;  ///< that may search; with Nodes one does
};

/// One effort being spent. Several questions in a row share it. The effort must outlive it.
class SearchBudget {
public:
    explicit SearchBudget(const SearchEffort& effort);
    SearchBudget(const SearchBudget&) = delete;
    SearchBudget& operator=(const SearchBudget&) = delete;

    /// Takes one step; false when there is none left, then and ever after.
    bool spend() {
        if (over_) return false;
        if (++nodes_ >= next_) look();
        return !over_;
    }
    /// Counts steps that others took.
    void add(std::uint64_t steps) { nodes_ += steps; }
    std::uint64_t steps() const { return nodes_; }
    std::size_t threads() const { return effort_.Nodes ? 1 : effort_.Threads; }
    /// Looks at the limits without taking a step: between things that cost more than one.
    bool isOver() {
        look();
        return over_;
    }
    /// What OnProgress is told from now on.
    void reached(std::size_t lower, std::size_t upper) {
        lower_ = lower;
        upper_ = upper;
    }

private:
    using Clock = std::chrono::steady_clock;
    void look();

    const SearchEffort& effort_;
    Clock::time_point start_;
    Clock::time_point nextReport_;
    std::uint64_t nodes_ = 0;
    std::uint64_t next_ = 1;  ///< the step at which the limits are looked at
    std::size_t lower_ = 0;
    std::size_t upper_ = 0;
    bool over_ = false;
};

}  // namespace insight
