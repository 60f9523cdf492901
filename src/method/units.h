// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// Sets of units: one bit for each habitat, zone and threat.
namespace method {

/// The three kinds of units that a suite covers, in the order in which every step takes them.
enum class Unit : std::size_t { Habitat, Zone, Threat };
inline constexpr std::array UnitKinds = {Unit::Habitat, Unit::Zone, Unit::Threat};

/// One number for each kind of unit.
template <class Number>
class PerKind {
public:
    Number& operator[](Unit kind) { return values_[static_cast<std::size_t>(kind)]; }
    const Number& operator[](Unit kind) const { return values_[static_cast<std::size_t>(kind)]; }
    bool operator==(const PerKind&) const = default;

private:
    std::array<Number, UnitKinds.size()> values_{};
};

using Word = std::uint64_t;
inline constexpr std::size_t WordBits = 64;
/// How many words hold so many bits.
inline constexpr std::size_t wordsFor(std::size_t bits) { return (bits + WordBits - 1) / WordBits; }

/// A set of units of one kind, over words that someone else keeps.
template <class WordType>
class UnitSpan {
public:
    explicit UnitSpan(std::span<WordType> words) : words_(words) {}
    bool has(std::size_t unit) const { return (words_[unit / WordBits] >> (unit % WordBits) & 1) != 0; }
    void insert(std::size_t unit) { words_[unit / WordBits] |= Word{1} << (unit % WordBits); }
    std::span<WordType> words() const { return words_; }

private:
    std::span<WordType> words_;
};

/// Calls `visit` with the number of each bit that is set in `word`, rising; the word's first bit has number `first`.
template <class Visit>
void forEachBit(Word word, std::size_t first, Visit visit) {
    for (; word != 0; word &= word - 1) visit(first + static_cast<std::size_t>(std::countr_zero(word)));
}

/// Where the words of each kind stand in a row that holds habitats, zones and threats one after the other.
class UnitLayout {
public:
    UnitLayout() = default;
    UnitLayout(std::size_t habitats, std::size_t zones, std::size_t threats) {
        const std::array counts = {habitats, zones, threats};
        for (const Unit kind : UnitKinds) {
            counts_[kind] = counts[static_cast<std::size_t>(kind)];
            begin_[kind] = words_;
            words_ += wordsFor(counts_[kind]);
            end_[kind] = words_;
        }
    }

    std::size_t units(Unit kind) const { return counts_[kind]; }
    std::size_t words() const { return words_; }
    std::size_t begin(Unit kind) const { return begin_[kind]; }
    std::size_t end(Unit kind) const { return end_[kind]; }
    template <class WordType>
    UnitSpan<WordType> part(std::span<WordType> row, Unit kind) const {
        return UnitSpan<WordType>(row.subspan(begin_[kind], end_[kind] - begin_[kind]));
    }

private:
    PerKind<std::size_t> counts_;
    PerKind<std::size_t> begin_;
    PerKind<std::size_t> end_;
    std::size_t words_ = 0;
};

/// Rows of bits: a set for each species or unit.
class BitTable {
public:
    BitTable() = default;
    BitTable(std::size_t rows, std::size_t words) : rows_(rows), words_(words), bits_(rows * words) {}

    std::size_t rows() const { return rows_; }
    std::span<Word> row(std::size_t row) { return {bits_.data() + row * words_, words_}; }
    std::span<const Word> row(std::size_t row) const { return {bits_.data() + row * words_, words_}; }

private:
    std::size_t rows_ = 0;
    std::size_t words_ = 0;
    std::vector<Word> bits_;
};

}  // namespace method
