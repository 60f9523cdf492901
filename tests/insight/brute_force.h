// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "insight/cover/cover_problem.h"

/// All suites of a small problem, by looking at every set of species. It shares nothing with the searches.
struct BruteForce {
    struct Suite {
        insight::Rows Rows;
        std::int64_t Total = 0;
        /// The order in which suites are listed.
        bool operator<(const Suite& other) const {
            if (Rows.size() != other.Rows.size()) return Rows.size() < other.Rows.size();
            if (Total != other.Total) return Total > other.Total;
            return Rows < other.Rows;
        }
    };

    explicit BruteForce(const insight::CoverProblem& problem) {
        const std::size_t species = problem.Species.size();
        std::vector<std::uint64_t> covers(species);
        for (std::size_t s = 0; s < species; ++s)
            covers[s] = problem.Units.empty() ? 0 : problem.Covers.row(s)[0];
        const std::uint64_t all = (std::uint64_t{1} << problem.Units.size()) - 1;
        const auto covered = [&](std::uint64_t set) {
            std::uint64_t units = 0;
            for (std::size_t s = 0; s < species; ++s) units |= (set >> s & 1) != 0 ? covers[s] : 0;
            return units;
        };
        for (std::uint64_t set = 0; set < std::uint64_t{1} << species; ++set) {
            if (covered(set) != all) continue;
            Suite suite;
            bool isRedundant = false;
            for (std::size_t s = 0; s < species; ++s) {
                if ((set >> s & 1) == 0) continue;
                isRedundant = isRedundant || covered(set & ~(std::uint64_t{1} << s)) == all;
                suite.Rows.push_back(static_cast<std::uint32_t>(s));
                suite.Total += problem.Aggregates[s];
            }
            if (!isRedundant) Suites.push_back(suite);
        }
        std::sort(Suites.begin(), Suites.end());
    }

    std::size_t minimum() const { return Suites.front().Rows.size(); }

    std::vector<Suite> Suites;  ///< without a redundant species, in the order of a list
};
