// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <bit>
#include <cstdint>

/// Random numbers that are the same on every machine and with every library.
namespace insight {

/// SplitMix64 (Steele, Lea and Flood 2014): spreads a seed over the state of another generator.
class SplitMix64 {
public:
    explicit SplitMix64(std::uint64_t seed) : state_(seed) {}
    std::uint64_t next() {
        state_ += 0x9E37'79B9'7F4A'7C15;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58'476D'1CE4'E5B9;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D0'49BB'1331'11EB;
        return mixed ^ (mixed >> 31);
    }

private:
    std::uint64_t state_;
};

/// xoshiro256** (Blackman and Vigna 2018). Each run has a stream of its own, made of the seed and its number, so that
/// what it draws does not depend on who drew before it.
class RandomStream {
public:
    RandomStream(std::uint64_t seed, std::uint64_t run) {
        // Mixed twice: neighbouring numbers would otherwise share three words of four.
        SplitMix64 words(SplitMix64(SplitMix64(seed).next() + run).next());
        for (std::uint64_t& word : state_) word = words.next();
    }

    /// 64 random bits.
    std::uint64_t next() {
        const std::uint64_t bits = std::rotl(state_[1] * 5, 7) * 9;
        const std::uint64_t shifted = state_[1] << 17;
        state_[2] ^= state_[0];
        state_[3] ^= state_[1];
        state_[1] ^= state_[2];
        state_[0] ^= state_[3];
        state_[2] ^= shifted;
        state_[3] = std::rotl(state_[3], 45);
        return bits;
    }

    /// A whole number from 0 to `count` - 1, all exactly alike likely: bits beyond the last whole multiple of `count`
    /// are drawn again. REQUIRES: count > 0
    std::uint64_t below(std::uint64_t count) {
        const std::uint64_t excess = (0 - count) % count;  // 2^64 modulo count
        std::uint64_t bits = next();
        while (bits < excess) bits = next();
        return bits % count;
    }

    /// A multiple of 2^-53 from 0 to 1, 1 left out, all alike likely: the upper 53 bits.
    double real() { return static_cast<double>(next() >> 11) * 0x1p-53; }

    bool coin() { return next() >> 63 != 0; }

private:
    std::array<std::uint64_t, 4> state_{};
};

}  // namespace insight
