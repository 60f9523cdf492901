// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/failure.h"

namespace method {

const char* Failure::what() const noexcept {
    switch (Why) {
        case Cause::NoNumber: return "a value that is needed is no number";
        case Cause::TooLarge: return "a result is too large";
        case Cause::NoRow: return "the block has no such row";
    }
    return "";
}

}  // namespace method
