// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <span>
#include <vector>

#include "method/units.h"

/// Sets of rows or units as bits of words. Two sets that meet have as many words.
namespace insight {

using method::Word;
using method::WordBits;

using BitSet = std::vector<Word>;
using Bits = std::span<const Word>;

inline bool has(Bits set, std::size_t bit) { return (set[bit / WordBits] >> (bit % WordBits) & 1) != 0; }
inline void insert(std::span<Word> set, std::size_t bit) {
    set[bit / WordBits] |= Word{1} << (bit % WordBits);
}
inline void drop(std::span<Word> set, std::size_t bit) {
    set[bit / WordBits] &= ~(Word{1} << (bit % WordBits));
}
inline void remove(std::span<Word> set, Bits other) {
    for (std::size_t w = 0; w < set.size(); ++w) set[w] &= ~other[w];
}
inline void add(std::span<Word> set, Bits other) {
    for (std::size_t w = 0; w < set.size(); ++w) set[w] |= other[w];
}

inline bool isEmpty(Bits set) {
    return std::all_of(set.begin(), set.end(), [](Word word) { return word == 0; });
}
inline std::size_t count(Bits set) {
    std::size_t bits = 0;
    for (const Word word : set) bits += static_cast<std::size_t>(std::popcount(word));
    return bits;
}
inline std::size_t countCommon(Bits a, Bits b) {
    std::size_t bits = 0;
    for (std::size_t w = 0; w < a.size(); ++w) bits += static_cast<std::size_t>(std::popcount(a[w] & b[w]));
    return bits;
}
/// Whether no bit of `set` that is in `within` is missing in `other`.
inline bool isSubset(Bits set, Bits other, Bits within) {
    for (std::size_t w = 0; w < set.size(); ++w) {
        if ((set[w] & within[w] & ~other[w]) != 0) return false;
    }
    return true;
}
inline bool isSubset(Bits set, Bits other) { return isSubset(set, other, set); }

/// Calls `visit` with each bit, rising.
template <class Visit>
void forEach(Bits set, Visit visit) {
    for (std::size_t w = 0; w < set.size(); ++w) method::forEachBit(set[w], w * WordBits, visit);
}
template <class Visit>
void forEachCommon(Bits a, Bits b, Visit visit) {
    for (std::size_t w = 0; w < a.size(); ++w) method::forEachBit(a[w] & b[w], w * WordBits, visit);
}

/// The set of 0 to bits - 1.
inline BitSet allOf(std::size_t bits) {
    BitSet set(method::wordsFor(bits), ~Word{0});
    if (bits % WordBits != 0) set.back() >>= WordBits - bits % WordBits;
    return set;
}

}  // namespace insight
