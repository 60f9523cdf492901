// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QAction>
#include <QPushButton>

#include "desktop/own/windowed_program.h"

using desktop_test::Boxes;
using desktop_test::WindowedProgram;

/// What is on the disk when the program has ended, in whatever way.
class KeptWorkTest : public QObject {
    Q_OBJECT

private slots:
    void anErrorLeavesWhatStoodBeforeIt() {
        WindowedProgram program;
        Boxes boxes;
        program.addSpecies("Ant");
        program.desktop().command([&] {
            program.form().flxCandidateSpecies.TextMatrix(1, list::Name, "Bee");
            ui::raise(ui::ErrorNumber::TypeMismatch);
        });
        QCOMPARE(boxes.Shown, 1);
        QVERIFY(program.copy().contains("Common Name = Ant\r\n"));
        QTest::qWait(desktop::ProjectCopies::UntilTaken + 200);
        QVERIFY(program.copy().contains("Common Name = Ant\r\n"));
        const auto offers = program.leftOver();
        QCOMPARE(offers.size(), 1);
        QVERIFY(offers.first().Announced);
    }

    void theCloseBoxLeavesTheWork() {
        WindowedProgram program;
        program.addSpecies("Ant");
        program.desktop().mainWindow()->close();
        QVERIFY(program.form().Unloaded());
        const auto offers = program.leftOver();
        QCOMPARE(offers.size(), 1);
        QVERIFY(offers.first().Announced);
    }

    void whatStandsInAnOpenEditorIsKeptBeforeACommand() {
        WindowedProgram program;
        program.addSpecies("Ant");
        program.desktop().run([&] {
            ui::Grid& grid = program.form().flxCandidateSpecies;
            grid.UserMoveTo(1, list::ScientificName);
            grid.UserBeginEdit();
            grid.UserEditPaste("Formica");
        });
        QVERIFY(program.form().EditingGrid() != nullptr);
        QByteArray before;
        program.desktop().command([&] {
            program.desktop().copies().waitForDisk();
            before = program.copy();
        });
        QVERIFY(before.contains("Scientific Name = Formica\r\n"));
    }

    void tabsButtonsAndMenusAreCommands() {
        WindowedProgram program;
        program.addSpecies("Ant");
        auto* tab = program.widget(program.form().tabBrenica).findChildren<QAbstractButton*>().value(0);
        QVERIFY(tab != nullptr);
        tab->click();  // the page on view: nothing happens but the look before
        program.desktop().copies().waitForDisk();
        QVERIFY(program.copy().contains("Common Name = Ant\r\n"));
        program.addSpecies("Bee");
        static_cast<QPushButton&>(program.widget(program.form().cmdRemoveSpecies)).click();
        program.desktop().copies().waitForDisk();
        QVERIFY(program.copy().contains("Common Name = Ant,Bee\r\n"));
        program.addSpecies("Cat");
        program.desktop().mainWindow()->findChild<QAction*>("mnuPrintGrid")->trigger();
        program.desktop().copies().waitForDisk();
        QVERIFY(program.copy().contains("Common Name = Ant,Bee,Cat\r\n"));
    }
};

const desktop_test::Registered<KeptWorkTest> registered;

#include "kept_work_test.moc"
