// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/sweep/sweep.h"

#include <algorithm>
#include <future>
#include <optional>
#include <system_error>

#include "insight/sweep/sweep_worker.h"

namespace insight {

namespace {

/// The runs of a shard, handed out one by one to whichever thread is free.
class RunQueue {
public:
    RunQueue(const SweepSettings& settings, const std::atomic<bool>* stop)
        : part_(settings.Part), count_(runsOf(settings.Runs, settings.Part)), stop_(stop) {}

    /// The number of a run; none when all are taken or the sweep is stopped.
    std::optional<std::uint64_t> take() {
        if (closed_ || (stop_ && *stop_)) return std::nullopt;
        const std::uint64_t place = next_++;
        if (place >= count_) return std::nullopt;
        return part_.Number - 1 + place * part_.Of;
    }
    void close() { closed_ = true; }
    std::uint64_t size() const { return count_; }
    /// How many have been taken.
    std::uint64_t taken() const { return std::min<std::uint64_t>(next_, count_); }

private:
    Shard part_;
    std::uint64_t count_;
    const std::atomic<bool>* stop_;
    std::atomic<std::uint64_t> next_ = 0;
    std::atomic<bool> closed_ = false;
};

class Sweep {
public:
    Sweep(const SelectionRun& run, const SweepSettings& settings, const SweepWork& work)
        : run_(run), settings_(settings), work_(work), queue_(settings, work.Stop) {
        if (settings.Vary.Grades) grades_.emplace(run.Landscape, run.DataQuality, settings);
    }

    SweepCounts counts() {
        std::vector<std::future<SweepCounts>> others = startOthers();
        SweepCounts sum = doRuns(work_.Progress);
        for (auto& other : others) sum.add(other.get());
        return sum;
    }

private:
    /// Where the system has no thread left, those that there are do all.
    std::vector<std::future<SweepCounts>> startOthers() {
        std::vector<std::future<SweepCounts>> others;
        const std::uint64_t most = std::min<std::uint64_t>(work_.Threads, queue_.size());
        try {
            while (others.size() + 1 < most)
                others.push_back(std::async(std::launch::async, [this] { return doRuns({}); }));
        } catch (const std::system_error&) {
        }
        return others;
    }

    /// A thread that fails (there is no memory) ends the others with it.
    SweepCounts doRuns(const std::function<void(std::uint64_t, std::uint64_t)>& progress) try {
        SweepWorker worker(run_, settings_, grades_ ? &*grades_ : nullptr);
        while (const auto number = queue_.take()) {
            worker.run(*number);
            if (progress) progress(queue_.taken(), queue_.size());
        }
        return worker.counts();
    } catch (...) {
        queue_.close();
        throw;
    }

    const SelectionRun& run_;
    const SweepSettings& settings_;
    const SweepWork& work_;
    std::optional<GradeVariation> grades_;
    RunQueue queue_;
};

}  // namespace

SweepCounts sweep(const SelectionRun& run, const SweepSettings& settings, const SweepWork& work) {
    return Sweep(run, settings, work).counts();
}

}  // namespace insight
