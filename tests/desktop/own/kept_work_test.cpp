// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QAction>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include "desktop/desktop.h"
#include "desktop/desktop_test.h"
#include "project/frmBrenica.h"

namespace {

/// The program in its main window, with a folder for state of its own, the event loop not running.
class WindowedProgram {
public:
    WindowedProgram() {
        qputenv("XDG_STATE_HOME", QFile::encodeName(state_.path()));
        desktop_ = std::make_unique<desktop::Desktop>();
        desktop_->start();
        desktop_->run([this] { desktop_->program().Splash()->UserClick(); });
    }
    ~WindowedProgram() {
        desktop_.reset();
        desktop_test::endEventLoop();
        qputenv("XDG_STATE_HOME", before_);
    }
    WindowedProgram(const WindowedProgram&) = delete;
    WindowedProgram& operator=(const WindowedProgram&) = delete;

    desktop::Desktop& desktop() { return *desktop_; }
    frmBrenica& form() { return *desktop_->program().MainForm(); }
    QWidget& widget(const ui::Control& control) { return desktop_->mainWindow()->viewOf(control)->widget(); }

    void addSpecies(const std::string& name) {
        desktop_->run([&] {
            form().txtTotalSpecies.Text("1");
            form().cmdUpdateSpecies.UserClick();
            form().flxCandidateSpecies.UserEditCell(form().Global().TotalSpecies, list::Name, name);
        });
    }
    QString folder() const { return state_.filePath("brenica"); }
    /// What a program that starts now would find.
    QList<desktop::CopyOffer> leftOver() {
        desktop_.reset();
        return desktop::CopyFolder(folder()).offers();
    }
    QByteArray copy() const {
        QFile file(folder() + '/' + QDir(folder()).entryList({"*.brn"}).value(0));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir state_;
    const QByteArray before_ = qgetenv("XDG_STATE_HOME");
    std::unique_ptr<desktop::Desktop> desktop_;
};

/// Answers every box with Enter until it is gone.
class Boxes {
public:
    Boxes() {
        QObject::connect(&look_, &QTimer::timeout, [this] {
            QWidget* box = QApplication::activeModalWidget();
            if (box == nullptr) return;
            ++Shown;
            QTest::keyClick(box, Qt::Key_Return);
        });
        look_.start(5);
    }
    int Shown = 0;

private:
    QTimer look_;
};

}  // namespace

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
