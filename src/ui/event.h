// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <utility>

namespace ui {

/// A control's event with at most one handler. Firing runs the handler at once, nested in whoever fires.
template <class... Arguments>
class Event {
public:
    template <class Handler>
    void operator=(Handler&& handler) {
        handler_ = std::forward<Handler>(handler);
    }
    void operator()(Arguments... arguments) const {
        if (handler_) handler_(arguments...);
    }
    explicit operator bool() const { return static_cast<bool>(handler_); }

private:
    std::function<void(Arguments...)> handler_;
};

}  // namespace ui
