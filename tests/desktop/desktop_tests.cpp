// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktop_test.h"

namespace desktop_test {

std::vector<MakeTests>& registry() {
    static std::vector<MakeTests> classes;
    return classes;
}

}  // namespace desktop_test

/// Runs every class of tests, with the arguments of Qt Test; fails when one of them fails.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    int failed = 0;
    for (const auto& make : desktop_test::registry()) failed += QTest::qExec(make().get(), argc, argv);
    return failed == 0 ? 0 : 1;
}
