// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

#include "ui/errors.h"

namespace ui {

/// Element `index`, from 0, of an array of the system; raises SubscriptOutOfRange outside it.
template <class Array>
decltype(auto) elementAt(Array& array, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= array.size()) raise(ErrorNumber::SubscriptOutOfRange);
    return array[static_cast<std::size_t>(index)];
}

}  // namespace ui
