// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/view.h"

namespace desktop {

/// Another link for a window with a scale of its own.
class ScaledLink : public FormLink {
public:
    ScaledLink(FormLink& link, Scale scale) : link_(link), scale_(std::move(scale)) {}

    void run(const std::function<void()>& action) override { link_.run(action); }
    void command(const std::function<void()>& action) override { link_.command(action); }
    bool isBusy() const override { return link_.isBusy(); }
    const Scale& scale() const override { return scale_; }

private:
    FormLink& link_;
    Scale scale_;
};

}  // namespace desktop
