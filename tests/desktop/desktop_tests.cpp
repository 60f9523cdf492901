// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QTemporaryDir>

#include "desktop/desktop_test.h"

namespace desktop_test {

std::vector<MakeTests>& registry() {
    static std::vector<MakeTests> classes;
    return classes;
}

}  // namespace desktop_test

/// Runs every class of tests, or those that the first arguments name, with the arguments of Qt Test; fails when one
/// of them fails.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Copies of the tests' projects are nobody's to find.
    const QTemporaryDir state;
    qputenv("XDG_STATE_HOME", QFile::encodeName(state.path()));
    const QApplication application(argc, argv);
    QStringList arguments(argv, argv + argc);
    QStringList wanted;
    while (arguments.size() > 1 && arguments[1].front().isUpper()) wanted << arguments.takeAt(1);
    int failed = 0;
    for (const auto& make : desktop_test::registry()) {
        const std::unique_ptr<QObject> tests = make();
        if (wanted.isEmpty() || wanted.contains(tests->metaObject()->className()))
            failed += QTest::qExec(tests.get(), arguments);
    }
    return failed == 0 ? 0 : 1;
}
