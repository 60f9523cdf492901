// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/gap_buffer.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

/// A gap buffer beside a vector to which the same is done.
template <class Element>
class GapBufferAndModel {
public:
    void insert(std::size_t index, const Element& element) {
        *buffer.insert(index) = element;
        model.insert(model.begin() + static_cast<std::ptrdiff_t>(index), element);
    }
    void insertEmpty(std::size_t index, std::size_t count) {
        buffer.insert(index, count);
        model.insert(model.begin() + static_cast<std::ptrdiff_t>(index), count, Element());
    }
    void erase(std::size_t index) {
        buffer.erase(index);
        model.erase(model.begin() + static_cast<std::ptrdiff_t>(index));
    }
    void resize(std::size_t count) {
        buffer.resize(count);
        model.resize(count);
    }
    void assign(std::size_t index, const Element& element) {
        *buffer[index] = element;
        model[index] = element;
    }
    void expectEqual() {
        ASSERT_EQ(buffer.size(), model.size());
        const ui::GapBuffer<Element>& reader = buffer;
        for (std::size_t i = 0; i < model.size(); ++i) ASSERT_EQ(*reader[i], model[i]) << "at " << i;
    }
    void expectEqualRun(std::size_t first, std::size_t count) {
        std::vector<Element> visited;
        buffer.forEach(first, count, [&](const Element* element) { visited.push_back(*element); });
        const auto start = model.begin() + static_cast<std::ptrdiff_t>(first);
        ASSERT_EQ(visited, std::vector<Element>(start, start + static_cast<std::ptrdiff_t>(count)));
    }
    void expectEqualInOnePiece() {
        const Element* elements = buffer.contiguous();
        ASSERT_EQ(std::vector<Element>(elements, elements + model.size()), model);
    }

    ui::GapBuffer<Element> buffer;
    std::vector<Element> model;
};

/// Does anything, and looks after each step whether the two are still the same.
template <class Element, class MakeElement>
void expectTheSameAfterAnyOperations(unsigned seed, MakeElement makeElement) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    GapBufferAndModel<Element> both;
    for (int step = 0; step < 400; ++step) {
        const Element element = makeElement(step);
        const std::size_t size = both.model.size();
        switch (below(13)) {
            case 0: both.resize(below(40)); break;
            case 1: both.expectEqualInOnePiece(); break;
            case 2:
                if (size > 0) both.assign(below(size), element);
                break;
            case 3:
            case 4:
            case 5:
                if (size > 0) both.erase(below(size));
                break;
            case 6:
                // A run at one place, as a block of rows that goes or comes.
                for (std::size_t at = below(size + 1), run = below(6); run > 0 && at < both.model.size();
                     --run)
                    both.erase(at);
                break;
            case 7:
                for (std::size_t at = below(size + 1), run = below(12); run > 0; --run)
                    both.insert(at, element);
                break;
            case 8: both.insertEmpty(below(size + 1), below(12)); break;
            default: both.insert(below(size + 1), element); break;
        }
        ASSERT_NO_FATAL_FAILURE(both.expectEqual()) << "step " << step;
        const std::size_t first = below(both.model.size() + 1);
        ASSERT_NO_FATAL_FAILURE(both.expectEqualRun(first, below(both.model.size() - first + 1)));
    }
}

}  // namespace

TEST(GapBuffer, HoldsWhatAVectorHoldsAfterAnyOperations) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        // Long enough that the texts stand on the heap, where a wrong move shows.
        expectTheSameAfterAnyOperations<std::string>(
            seed, [](int step) { return "element number " + std::to_string(step) + " of this round"; });
        expectTheSameAfterAnyOperations<int>(seed, [](int step) { return step + 1; });
    }
}

TEST(GapBuffer, GivesEmptyElementsWhereItGrowsAgain) {
    GapBufferAndModel<std::string> both;
    for (int i = 0; i < 5; ++i) both.insert(0, "a text that is not short at all");
    both.erase(2);
    both.resize(2);
    both.resize(6);
    both.expectEqual();
    EXPECT_EQ(*both.buffer[5], "");
}

TEST(GapBuffer, TakesARunOfInsertionsInTheMiddleInLinearTime) {
    // A vector would move some 10¹⁰ elements here.
    ui::GapBuffer<int> buffer;
    buffer.resize(200000);
    for (int i = 0; i < 200000; ++i) *buffer.insert(100000 + static_cast<std::size_t>(i)) = i;
    EXPECT_EQ(buffer.size(), 400000U);
    EXPECT_EQ(*buffer[100000], 0);
    EXPECT_EQ(*buffer[299999], 199999);
    EXPECT_EQ(*buffer[300000], 0);
}

TEST(GapBuffer, KeepsTheElementsOfARowTogether) {
    ui::GapBuffer<int> buffer(3);
    for (int i = 0; i < 40; ++i) {
        int* const row = buffer.insert(static_cast<std::size_t>(i) / 2);
        for (int col = 0; col < 3; ++col) row[col] = 10 * i + col;
    }
    for (int i = 0; i < 10; ++i) buffer.erase(5);
    buffer.resize(25);
    ASSERT_EQ(buffer.size(), 25U);
    for (std::size_t i = 0; i < buffer.size(); ++i) {
        EXPECT_EQ(buffer[i][1], buffer[i][0] + 1) << i;
        EXPECT_EQ(buffer[i][2], buffer[i][0] + 2) << i;
    }
    const int* const added = buffer.insert(3);
    EXPECT_EQ(std::vector<int>(added, added + 3), std::vector<int>(3));
}
