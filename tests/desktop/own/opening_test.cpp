// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDragEnterEvent>
#include <QMimeData>

#include "desktop/own/windowed_program.h"
#include "support/project_text.h"

using desktop_test::Boxes;
using desktop_test::WindowedProgram;

namespace {

/// A folder with a project of one species in it.
struct ProjectFolder {
    QTemporaryDir folder;
    QString file = write("landscape.brn", "Otter");

    QString write(const char* name, const char* species) const {
        ProjectText project(1, 1, 1, 1);
        project.set("Common Name", species);
        QFile written(folder.filePath(name));
        (void)written.open(QIODevice::WriteOnly);
        written.write(QByteArray::fromStdString(project.text()));
        return written.fileName();
    }
};

/// Files that are dropped on a widget of the window, and what becomes of them.
struct Drop {
    QMimeData data;
    bool entered = false;
    bool dropped = false;

    Drop(QWidget& target, const QList<QUrl>& urls) {
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &enter);
        entered = enter.isAccepted();
        if (!entered) return;
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &drop);
        dropped = drop.isAccepted();
    }
};

std::string firstSpecies(WindowedProgram& program) {
    const ui::Grid& grid = program.form().flxCandidateSpecies;
    return grid.Rows() > 1 ? std::string(grid.TextMatrix(1, list::Name)) : std::string();
}

}  // namespace

class OpeningTest : public QObject {
    Q_OBJECT

private slots:
    void aFileOfTheCommandLineIsOpenedWhenTheSplashHasGone() {
        const ProjectFolder project;
        WindowedProgram program(project.file);
        QCOMPARE(firstSpecies(program), std::string("Otter"));
        QCOMPARE(program.desktop().mainWindow()->windowTitle(), "Brenica - " + project.file);
        QVERIFY(!program.form().ProjectChanged);
    }

    void aFileThatIsNotThereIsToldInTheStrip() {
        WindowedProgram program("/nowhere/landscape.brn");
        const auto* strip = program.desktop().mainWindow()->findChild<QWidget*>("ownStrip");
        QVERIFY(strip->isVisible());
        QCOMPARE(program.form().Caption(), std::string("Brenica"));
    }

    void aDroppedProjectIsOpened() {
        const ProjectFolder project;
        WindowedProgram program;
        const Drop drop(*program.desktop().mainWindow(), {QUrl::fromLocalFile(project.file)});
        QVERIFY(drop.dropped);
        QCOMPARE(firstSpecies(program), std::string());  // while the other program waits
        QTRY_COMPARE(firstSpecies(program), std::string("Otter"));
    }

    void changesAreAskedAboutBeforeADroppedProjectIsOpened() {
        const ProjectFolder project;
        WindowedProgram program(project.file);
        const QString other = project.write("other.brn", "Badger");
        program.addSpecies("Heron");
        QString asked;
        QTimer user;
        connect(&user, &QTimer::timeout, [&] {
            QWidget* box = QApplication::activeModalWidget();
            if (box == nullptr) return;
            asked = box->accessibleDescription();
            QTest::keyClick(box, Qt::Key_N, Qt::AltModifier);
        });
        user.start(5);
        const Drop drop(*program.desktop().mainWindow(), {QUrl::fromLocalFile(other)});
        QTRY_COMPARE(firstSpecies(program), std::string("Badger"));
        QVERIFY(asked.startsWith("Would you like to save"));
    }

    void whatIsNoSingleProjectCannotBeDropped_data() {
        QTest::addColumn<QList<QUrl>>("urls");
        QTest::newRow("text") << QList{QUrl::fromLocalFile("/place/notes.txt")};
        QTest::newRow("two") << QList{QUrl::fromLocalFile("/place/a.brn"),
                                      QUrl::fromLocalFile("/place/b.brn")};
        QTest::newRow("elsewhere") << QList{QUrl("https://example.org/a.brn")};
        QTest::newRow("nothing") << QList<QUrl>{};
    }

    void whatIsNoSingleProjectCannotBeDropped() {
        QFETCH(QList<QUrl>, urls);
        WindowedProgram program;
        QVERIFY(!Drop(*program.desktop().mainWindow(), urls).entered);
    }

    void aFolderCannotBeDropped() {
        const ProjectFolder project;
        QVERIFY(QDir(project.folder.path()).mkdir("folder.brn"));
        WindowedProgram program;
        const QUrl folder = QUrl::fromLocalFile(project.folder.filePath("folder.brn"));
        QVERIFY(!Drop(*program.desktop().mainWindow(), {folder}).entered);
    }

    void nothingCanBeDroppedWhileAnActionRuns() {
        const ProjectFolder project;
        WindowedProgram program;
        bool entered = true;
        program.desktop().run([&] {
            entered = Drop(*program.desktop().mainWindow(), {QUrl::fromLocalFile(project.file)}).entered;
        });
        QVERIFY(!entered);
    }
};

static const desktop_test::Registered<OpeningTest> registered;

#include "opening_test.moc"
