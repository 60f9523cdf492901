// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <string>

#include "ui/control.h"
#include "ui/errors.h"

namespace ui {

/// Controls of one kind under one name, indexed with parentheses from 0.
template <class T>
class ControlArray {
public:
    /// As many like controls, told apart by their index only.
    ControlArray(Control& container, const std::string& name, int count, const Design& design = {}) {
        for (int i = 0; i < count; ++i) Add(container, name, design);
    }
    /// One control for each design.
    ControlArray(Control& container, const std::string& name, std::initializer_list<Design> designs) {
        for (const Design& design : designs) Add(container, name, design);
    }

    T& operator()(int index) {
        if (index < 0 || index >= Count()) raise(ErrorNumber::SubscriptOutOfRange);
        return elements_[static_cast<std::size_t>(index)];
    }
    const T& operator()(int index) const { return const_cast<ControlArray&>(*this)(index); }
    int Count() const { return static_cast<int>(elements_.size()); }

    auto begin() { return elements_.begin(); }
    auto end() { return elements_.end(); }

private:
    void Add(Control& container, const std::string& name, const Design& design) {
        T& element = elements_.emplace_back(container, name + "(" + std::to_string(Count()) + ")", design);
        if constexpr (requires { element.JoinGroup(elements_); }) element.JoinGroup(elements_);
    }

    std::deque<T> elements_;  // a deque never moves its elements
};

}  // namespace ui
