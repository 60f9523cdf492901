// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
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

/// An event that several listen to, each under its own address until it leaves.
template <class... Arguments>
class SharedEvent {
public:
    void Join(const void* listener, std::function<void(Arguments...)> handler) {
        handlers_[listener] = std::move(handler);
    }
    void Leave(const void* listener) { handlers_.erase(listener); }
    void operator()(Arguments... arguments) const {
        for (const auto& [listener, handler] : handlers_) handler(arguments...);
    }

private:
    std::map<const void*, std::function<void(Arguments...)>> handlers_;
};

}  // namespace ui
