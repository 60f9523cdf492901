// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

/// Random choices that a seed repeats on every machine: the engine is the standard's, and no distribution is used,
/// since those differ between libraries. Bytes can stand in for the engine: then each choice takes as few of them as
/// it needs, and is the first one when none are left.
class Random {
public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}
    explicit Random(std::string_view bytes) : bytes_(bytes) {}

    /// Whether the bytes are used up.
    bool exhausted() const { return bytes_ && bytes_->empty(); }
    std::uint64_t next() { return bytes_ ? taken(sizeof(std::uint64_t)) : engine_(); }
    /// 0 to count - 1.
    int below(int count) {
        const std::uint64_t drawn = bytes_ ? taken(count <= 0x100 ? 1 : sizeof count) : engine_();
        return static_cast<int>(drawn % static_cast<std::uint64_t>(count));
    }
    int between(int first, int last) { return first + below(last - first + 1); }
    bool chance(int percent) { return below(100) < percent; }

    template <class T>
    const T& pick(const std::vector<T>& items) {
        return items[static_cast<std::size_t>(below(static_cast<int>(items.size())))];
    }
    template <class T>
    T pick(std::initializer_list<T> items) {
        return *(items.begin() + below(static_cast<int>(items.size())));
    }

private:
    std::uint64_t taken(std::size_t size) {
        std::uint64_t number = 0;
        for (const char byte : bytes_->substr(0, size))
            number = number << 8 | static_cast<unsigned char>(byte);
        bytes_->remove_prefix(std::min(size, bytes_->size()));
        return number;
    }

    std::mt19937_64 engine_{};
    std::optional<std::string_view> bytes_{};
};

/// A name as users type them; a few are too long for the cross tables, foreign, numbers, or all blanks.
inline std::string randomName(Random& random) {
    static const std::vector<std::string> Stems = {
        "Otter",  "Reedbed", "Gallery forest", "Ñandú",           "Logging", "b",
        "x\"y'z", "a=b",     "Ωmega",          "Private ranches", "North",   "Pet trade"};
    switch (random.below(20)) {
        case 0: return "A name of rather more than twenty characters " + std::to_string(random.below(100));
        case 1: return std::to_string(random.below(1000));
        case 2: return "  ";
        default: return random.pick(Stems) + " " + std::to_string(random.below(1000));
    }
}

/// What somebody may put where a number is wanted.
inline std::string randomNumberText(Random& random) {
    static const std::vector<std::string> Odd = {
        "",    "-1",    "abc",  "+",   "\\",  ".",     "1e3",      "1,5",   "1,000",       " 2 ",
        "007", "1e309", "1e-9", "0.0", "-0",  "0.5.",  "nan",      "inf",   "99999999999", "0x10",
        "1e",  "3-",    " ",    "0.6", "1.2", "100.5", "\xC3\xB1", "0.4e10"};
    if (random.chance(30)) return random.pick(Odd);
    if (random.chance(30)) return "0." + std::to_string(random.below(1000));
    return std::to_string(random.below(random.chance(80) ? 5 : 200));
}
