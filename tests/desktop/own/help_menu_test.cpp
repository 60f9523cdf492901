// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/help_menu.h"

#include <QMenuBar>

#include "desktop/own/browser.h"
#include "desktop/own/windowed_program.h"

using desktop_test::Boxes;
using desktop_test::Browser;
using desktop_test::WindowedProgram;

namespace {

QAction& entry(WindowedProgram& program, const char* name) {
    return *program.desktop().mainWindow()->findChild<QAction*>(name);
}

QString contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}  // namespace

class HelpMenuTest : public QObject {
    Q_OBJECT

private slots:
    void itStandsBehindTheFormsOwnMenus() {
        WindowedProgram program;
        const QList<QAction*> menus = program.desktop().mainWindow()->menuBar()->actions();
        QCOMPARE(menus.size(), 5);
        QCOMPARE(menus.last()->text(), QString("He&lp"));
    }

    void itsKeyIsNoKeyOfTheForm() {
        WindowedProgram program;
        for (const ui::Control* control : program.form().Controls())
            QVERIFY2(QChar(control->AccessKey()).toLower() != 'l', control->Name().c_str());
    }

    void f1ShowsTheSectionOfThePageOnView() {
        const Browser browser;
        WindowedProgram program;
        program.addSpecies("Ant");
        for (int page = 1; page <= 3; ++page) {
            program.desktop().run([&] { program.form().tabBrenica.UserSelectTab(page); });
            QTest::keyClick(program.desktop().mainWindow(), Qt::Key_F1);
            QCOMPARE(browser.Opened.size(), page);
            QCOMPARE(browser.Opened.last().fileName(), QString("page-%1.html").arg(page));
        }
    }

    void f1IsHeardWhileACellIsEdited() {
        const Browser browser;
        WindowedProgram program;
        program.addSpecies("Ant");
        QWidget& grid = program.widget(program.form().flxCandidateSpecies);
        grid.setFocus();
        QTest::keyClick(&grid, Qt::Key_F2);
        QVERIFY(program.form().EditingGrid() != nullptr);
        QTest::keyClick(&grid, Qt::Key_F1);
        QCOMPARE(browser.Opened.size(), 1);
        QVERIFY(program.form().EditingGrid() != nullptr);
    }

    void eachPageOfTheWindowHasASectionInTheGuide() {
        const Browser browser;
        WindowedProgram program;
        entry(program, "ownGuide").trigger();
        const QFileInfo first(browser.Opened.value(0).toLocalFile());
        const QString guide = contentOf(first.dir().filePath("guide.html"));
        const int pages = static_cast<int>(program.form().tabBrenica.Tabs().size());
        for (int page = 1; page <= pages; ++page) {
            const QString leading = contentOf(first.dir().filePath(QString("page-%1.html").arg(page)));
            const auto anchor = QRegularExpression("url=guide.html#([^\"]+)\"").match(leading).captured(1);
            QVERIFY2(!anchor.isEmpty(), qPrintable(leading));
            QVERIFY2(guide.contains(QString("<h2 id=\"%1\">").arg(anchor)), qPrintable(anchor));
        }
    }

    void whereThereIsNoBrowserABoxNamesTheGuide() {
        WindowedProgram program;
        const Boxes boxes;
        entry(program, "ownGuide").trigger();
        QVERIFY2(boxes.Texts.value(0).contains("/page-1.html"), qPrintable(boxes.Texts.value(0)));
    }

    void anExampleIsOpenedLikeAProject() {
        WindowedProgram program;
        entry(program, "ownExample_small_landscape.brn").trigger();
        QVERIFY(program.desktop().mainWindow()->windowTitle().endsWith("/examples/small_landscape.brn"));
        QVERIFY(program.form().flxCandidateSpecies.Rows() > 1);
    }

    void whatTheExamplesShowIsAPageOfTheGuide() {
        const Browser browser;
        WindowedProgram program;
        entry(program, "ownExamplesPage").trigger();
        QVERIFY(QFile::exists(browser.Opened.value(0).toLocalFile()));
    }

    void aboutTellsVersionLicenceAndLibraries() {
        WindowedProgram program;
        const Boxes boxes;
        entry(program, "ownAbout").trigger();
        for (const char* text :
             {"Brenica 2.0.0", "GNU General Public License", "Qt 6", "QCustomPlot 2", "GLPK "})
            QVERIFY2(boxes.Texts.value(0).contains(text), text);
    }
};

static const desktop_test::Registered<HelpMenuTest> registered;

#include "help_menu_test.moc"
