// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <ctime>

#include "desktop/main_window.h"

using desktop_test::MainWindow;

namespace {

/// Seconds of the processor that a walk over all pages takes, with pictures, where the first entry of a list has such a
/// name.
double walk(const std::string& list, const std::string& name) {
    MainWindow w;
    ProjectText project(4, 4, 4, 4);
    project.set(list, name + ",B,C,D");
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
    void aNameOfTwoMillionCharactersBlocksNoPage_data() {
        QTest::addColumn<QString>("list");
        for (const char* list : {"Common Name", "Habitat Type", "Jurisdictional Unit", "Land Use"})
            QTest::newRow(list) << list;
    }

    void aNameOfTwoMillionCharactersBlocksNoPage() {
        QFETCH(QString, list);
        const double usual = walk(list.toStdString(), "Otter");
        const double longest = walk(list.toStdString(), std::string(2'000'000, 'W'));
        QVERIFY2(longest < 2 * usual + 1, qPrintable(QString("%1 s, usually %2 s").arg(longest).arg(usual)));
    }
};

static const desktop_test::Registered<LongNamesTest> registered;

#include "long_names_test.moc"
