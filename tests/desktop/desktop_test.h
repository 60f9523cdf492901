// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QObject>
#include <QTimer>
#include <QtTest>
#include <functional>
#include <memory>
#include <vector>

#include "desktop/view.h"
#include "scripted/scripted_platform.h"
#include "ui/form_window.h"
#include "ui/simple_controls.h"

namespace desktop_test {

using MakeTests = std::function<std::unique_ptr<QObject>()>;
/// The classes of tests, in the order in which the program was linked.
std::vector<MakeTests>& registry();

/// Names a class of tests at namespace level: `const desktop_test::Registered<GridViewTest> registered;`
template <class Tests>
struct Registered {
    Registered() {
        registry().push_back([] { return std::make_unique<Tests>(); });
    }
};

/// A link that runs an action and lets one view follow, as the window lets all. What the action throws ends the test.
class DirectLink : public desktop::FormLink {
public:
    void run(const std::function<void()>& action) override {
        ++Runs;
        action();
        if (Followed != nullptr) Followed->follow();
    }
    const desktop::Scale& scale() const override { return scale_; }

    desktop::View* Followed = nullptr;
    int Runs = 0;

private:
    desktop::Scale scale_{QApplication::font()};
};

/// Lets an event loop end as a program that has ended asked for; else the next box would be ended by it.
inline void endEventLoop() {
    QTimer end;
    QObject::connect(&end, &QTimer::timeout, qApp, [] { QApplication::exit(); });
    end.start(0);
    QApplication::exec();
}

/// A bare form on a scripted platform, with a link to it.
struct Window {
    ScriptedPlatform platform;
    ui::FormWindow form{platform, "frmTest"};
    DirectLink link;
};

}  // namespace desktop_test
