// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <ctime>

#include "desktop/main_window.h"

using desktop_test::MainWindow;

namespace {

/// Seconds of the processor that a walk over all pages takes, with pictures, where the first species has such a name.
double walk(const std::string& name) {
    MainWindow w;
    ProjectText project(6, 6, 4, 4);
    project.set("Common Name", name + ",B,C,D,E,F");
    w.open(project);
    const std::clock_t start = std::clock();
    for (int page = 1; page <= static_cast<int>(w.form->tabBrenica.Tabs().size()); ++page) {
        w.goTo(page);
        (void)w.view->grab();
    }
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

}  // namespace

class LongNamesTest : public QObject {
    Q_OBJECT

private slots:
    void aNameOfTwoMillionCharactersBlocksNoPage() {
        const double usual = walk("Otter");
        const double longest = walk(std::string(2'000'000, 'W'));
        QVERIFY2(longest < 2 * usual + 1, qPrintable(QString("%1 s, usually %2 s").arg(longest).arg(usual)));
    }
};

static const desktop_test::Registered<LongNamesTest> registered;

#include "long_names_test.moc"
