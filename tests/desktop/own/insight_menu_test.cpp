// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/insight_menu.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenuBar>

#include "desktop/box_user.h"
#include "desktop/own/browser.h"
#include "desktop/own/report_words.h"
#include "desktop/own/strip.h"
#include "desktop/own/strip_reader.h"
#include "desktop/own/windowed_program.h"
#include "support/project_text.h"

using desktop_test::Browser;
using desktop_test::press;
using desktop_test::User;
using desktop_test::WindowedProgram;

namespace {

constexpr int Patience = 60000;  // milliseconds for a report, on a machine that does other things besides

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray textOf(const ProjectText& project) { return QByteArray::fromStdString(project.text()); }

/// Too large for a report within the time of a test.
ProjectText longWork() {
    constexpr int Species = 240;
    constexpr int Units = 40;
    ProjectText project(Species, Units, Units, Units);
    std::string grades;
    for (int cell = 0; cell < Species * Units; ++cell)
        grades += std::string(cell == 0 ? "" : ",") + ((cell * 7919 + cell / 13) % 11 == 0 ? "3" : "1");
    return project.set("HeteroHabitat Population", grades).set("HeteroJU Individual", grades);
}

/// The window with a project, which a user of the menu looks at.
struct Planner {
    const QTemporaryDir folder;
    const Browser browser;
    WindowedProgram program;
    QStringList told;  ///< by boxes
    QString proposed;  ///< by the dialogue for files

    Planner() { strip().TimeToRest = 0; }

    QString path(const QString& name) const { return folder.filePath(name); }
    QString report() const { return path("landscape report.html"); }
    frmBrenica& form() { return program.form(); }
    desktop::Strip& strip() { return *program.desktop().mainWindow()->findChild<desktop::Strip*>(); }
    QStringList lines() { return desktop_test::linesOf(strip()); }

    void open(const QByteArray& project) {
        write(path("landscape.brn"), project);
        program.desktop().openFile(path("landscape.brn"));
    }
    void open(const ProjectText& project) { open(textOf(project)); }
    void openExample(const char* name) { open(contentOf(QString(BRENICA_SOURCE_DIR "/examples/") + name)); }
    void turnTo(int page) {
        program.desktop().run([&] { form().tabBrenica.UserSelectTab(page); });
    }
    void select() {
        for (int page = 2; page <= 7; ++page) turnTo(page);
        program.desktop().run([&] { form().cmdComplement.UserClick(); });
    }
    void trigger(const char* entry) { program.desktop().mainWindow()->findChild<QAction*>(entry)->trigger(); }
    /// Asks for the report, and does these things with the boxes that come up.
    void ask(const QList<User::Step>& steps) {
        User user(steps);
        trigger("ownReport");
        QVERIFY(user.done());
    }
    void ask() { ask({accept()}); }
    User::Step accept() {
        return [this](QWidget& box) {
            auto* dialogue = dynamic_cast<QFileDialog*>(&box);
            if (dialogue == nullptr || !dialogue->isVisible()) return false;
            proposed = dialogue->selectedFiles().value(0);
            static_cast<QDialog&>(box).accept();
            return true;
        };
    }
    User::Step choose(const QString& name) {
        return [this, name](QWidget& box) {
            auto* edit = box.findChild<QLineEdit*>("fileNameEdit");
            if (edit == nullptr) return false;
            edit->setText(path(name));
            static_cast<QDialog&>(box).accept();
            return true;
        };
    }
    User::Step answer(QDialogButtonBox::StandardButton button) {
        return [this, button](QWidget& box) {
            told << desktop_test::textOf(box).text();
            QTest::mouseClick(box.findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
            return true;
        };
    }
    User::Step read() { return answer(QDialogButtonBox::Ok); }
    QString isMade() const {
        const QString said = "The report on landscape.brn is made: landscape report.html, in %1.";
        return said.arg(desktop::report_words::folderName(folder.path()));
    }
    void pressOnStrip(const QString& line, const QString& caption) {
        QAbstractButton* button = desktop_test::buttonOf(strip(), line, caption);
        QVERIFY2(button != nullptr, qPrintable(lines().join('\n')));
        QTest::mouseClick(button, Qt::LeftButton);
    }
    bool waitForPage() {
        return QTest::qWaitFor([this] { return !browser.Opened.isEmpty(); }, Patience);
    }
    QByteArray page() const { return contentOf(browser.Opened.value(0).toLocalFile()); }
};

}  // namespace

class InsightMenuTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void itStandsBetweenTheFormsMenusAndTheHelp() {
        WindowedProgram program;
        QStringList captions;
        for (const QAction* menu : program.desktop().mainWindow()->menuBar()->actions())
            captions << QString(menu->text()).remove('&');
        QCOMPARE(captions, QStringList({"Project", "Data", "Graph", "Insight", "Help"}));
    }

    void itsKeyIsNoKeyOfAControlOnThePages() {
        WindowedProgram program;
        for (const ui::Control* control : program.form().Controls()) {
            if (control->Kind() == ui::ControlKind::MenuItem) continue;
            QVERIFY2(QChar(control->AccessKey()).toLower() != 'i', control->Name().c_str());
        }
    }

    void whatAReportSaysIsAPageOfTheGuide() {
        Planner planner;
        planner.trigger("ownInsightPage");
        QVERIFY(QFile::exists(planner.browser.Opened.value(0).toLocalFile()));
        QCOMPARE(planner.browser.Opened.value(0).fileName(), QString("page-report.html"));
    }

    void aProjectThatWasOnlyOpenedIsExplained() {
        Planner planner;
        planner.openExample("small_landscape.brn");
        planner.program.desktop().run([&] {
            planner.form().txtThreatRep.UserFocus();
            planner.form().txtThreatRep.UserPaste("0.45");
        });
        const ProjectCopy before = planner.form().TakeCopy();
        planner.ask();
        QVERIFY(planner.waitForPage());
        QCOMPARE(planner.proposed, planner.report());
        QCOMPARE(planner.browser.Opened.value(0).toLocalFile(), planner.report());
        const QByteArray hash =
            QCryptographicHash::hash(contentOf(planner.path("landscape.brn")), QCryptographicHash::Sha256)
                .toHex();
        for (const QByteArray& text :
             {hash, QByteArray("threat representation 0.45"), QByteArray("<bdi>landscape</bdi>")})
            QVERIFY2(planner.page().contains(text), text.constData());
        QVERIFY(planner.form().TakeCopy().isSameProjectAs(before));
        QVERIFY(!planner.form().Global().ScoresCalculated);
        QCOMPARE(planner.form().CurrentMainTab, 1);
        QCOMPARE(planner.lines(), QStringList(planner.isMade()));
        planner.pressOnStrip("The report", "Open the report");
        QCOMPARE(planner.browser.Opened.size(), 2);
        QVERIFY(QFile::remove(planner.report()));
        planner.pressOnStrip("The report", "Open the report");
        QCOMPARE(planner.browser.Opened.size(), 2);
        QCOMPARE(planner.lines(), QStringList(planner.isMade() + " It is no longer there."));
        planner.pressOnStrip("The report", "Close this message");
        QVERIFY(planner.lines().isEmpty());
    }

    void theSuiteOnViewIsExplainedWithItsLevels() {
        Planner planner;
        planner.openExample("small_landscape.brn");
        const desktop_test::Boxes boxes;
        planner.program.desktop().run([&] { planner.form().txtErrorMargin.Text("0.5"); });
        planner.select();
        planner.program.desktop().run([&] { planner.form().txtErrorMargin.Text("9"); });
        const std::string suite(planner.form().flxBrenicSuite.TextMatrix(1, 1));
        planner.trigger("ownReport");
        QVERIFY(planner.waitForPage());
        QVERIFY(planner.page().contains("margin of error 0.5 %"));
        QVERIFY(planner.page().contains(QByteArray::fromStdString(suite)));
        QCOMPARE(std::string(planner.form().flxBrenicSuite.TextMatrix(1, 1)), suite);
    }

    void changesSinceTheSelectionAreAskedAbout() {
        Planner planner;
        planner.openExample("small_landscape.brn");
        {
            const desktop_test::Boxes boxes;
            planner.select();
        }
        planner.turnTo(2);
        planner.program.desktop().run(
            [&] { planner.form().flxHabitatTypes.UserEditCell(1, list::LevelOfUse, "1"); });
        planner.ask({planner.answer(QDialogButtonBox::No)});
        QVERIFY(planner.told.value(0).startsWith("The project has changed since the suite on view"));
        QVERIFY(planner.lines().isEmpty());
        planner.ask({planner.answer(QDialogButtonBox::Yes), planner.accept()});
        QVERIFY(planner.waitForPage());
        QVERIFY(planner.page().contains("was not saved as it is explained here"));
    }

    void aProjectThatCannotBeExplainedIsToldWhy_data() {
        QTest::addColumn<QByteArray>("project");
        QTest::addColumn<QString>("reason");
        QTest::newRow("empty")
            << QByteArray()
            << "The project has no candidate species, habitat types, management zones or human activities.";
        QTest::newRow("no zones") << textOf(ProjectText(2, 1, 1, 1).remove("Jurisdictional Unit"))
                                  << "The project has no management zones.";
        QTest::newRow("not graded") << textOf(ProjectText(2, 1, 1, 1).set("Area Dispersal", "Y,N/A"))
                                    << "Enter a dispersion value for each species before proceeding. The "
                                       "first gap: Area, Species 2, Dispersal > 10 km.";
        QTest::newRow("status") << textOf(ProjectText(2, 1, 1, 1).set("Conservation Status", "0.5,"))
                                << "A species has no conservation status (CCS). Enter it first. The first "
                                   "gap: Vulnerability, Species 2, CCS.";
    }

    void aProjectThatCannotBeExplainedIsToldWhy() {
        QFETCH(QByteArray, project);
        QFETCH(QString, reason);
        Planner planner;
        if (!project.isEmpty()) planner.open(project);
        planner.ask({planner.read()});
        QCOMPARE(planner.told, QStringList("No report can be made. " + reason));
        QVERIFY(planner.lines().isEmpty());
    }

    void aRowWithoutANameStaysAndIsTold() {
        Planner planner;
        planner.open(ProjectText(2, 1, 1, 1));
        planner.program.desktop().run(
            [&] { planner.form().flxCandidateSpecies.TextMatrix(2, list::Name, ""); });
        planner.ask({planner.read()});
        QCOMPARE(
            planner.told,
            QStringList("No report can be made. Rows on the page “Candidate Species” are not complete."));
        QCOMPARE(planner.form().flxCandidateSpecies.Rows(), 3);
    }

    void foldersAreNamedAsSeenFromHome() {
        const QDir home = QDir::home();
        using desktop::report_words::folderName;
        QCOMPARE(folderName(home.path()), QString("your home folder"));
        QCOMPARE(folderName(home.filePath("Documents/moors")), QString("Documents/moors"));
        QCOMPARE(folderName("/srv/landscapes"), QString("/srv/landscapes"));
        QVERIFY(folderName('/' + QString(200, 'a')).size() <= 60);
    }

    void theDialogueForFilesCanBeCancelled() {
        Planner planner;
        planner.openExample("small_landscape.brn");
        planner.ask({press(Qt::Key_Escape)});
        QVERIFY(planner.lines().isEmpty());
        QVERIFY(!planner.program.desktop().report().isMaking());
    }

    void theProjectItselfIsNotWrittenOver() {
        Planner planner;
        write(planner.path("project.html"), textOf(ProjectText(2, 1, 1, 1)));
        planner.program.desktop().openFile(planner.path("project.html"));
        planner.ask({planner.choose("project.html"), press(Qt::Key_Return), planner.read()});
        QCOMPARE(planner.told.value(0),
                 QString("project.html is the project itself. Choose another name for the report."));
        QCOMPARE(contentOf(planner.path("project.html")), textOf(ProjectText(2, 1, 1, 1)));
    }

    void theWindowIsUsedWhileTheReportIsMade() {
        Planner planner;
        planner.open(longWork());
        planner.ask();
        QVERIFY(planner.lines().value(0).startsWith("The report on landscape.brn is being made."));
        QTRY_VERIFY_WITH_TIMEOUT(planner.lines().value(0).contains(" So far: "), Patience);
        planner.program.addSpecies("Ant");
        QVERIFY(planner.program.desktop().report().isMaking());
        planner.ask({planner.read()});
        QVERIFY(planner.told.value(0).startsWith("The report on landscape.brn is being made;"));
        User leaving({planner.answer(QDialogButtonBox::No)});
        planner.trigger("ownExample_small_landscape.brn");
        QVERIFY(planner.program.desktop().mainWindow()->windowTitle().endsWith("small_landscape.brn"));
        QVERIFY(planner.program.desktop().report().isMaking());
        planner.pressOnStrip("The report", "Show what is known so far");
        QCOMPARE(planner.lines(),
                 QStringList("The report on landscape.brn is being finished with what is known so far."));
        QVERIFY(planner.waitForPage());
        QVERIFY(planner.page().contains("The work was stopped before its end"));
        QVERIFY(planner.page().contains("<bdi>landscape</bdi>"));
        QVERIFY(!planner.page().contains("<bdi>Ant</bdi>"));
    }

    void whatIsCancelledLeavesNothing() {
        Planner planner;
        planner.open(longWork());
        planner.ask();
        planner.pressOnStrip("The report", "Cancel");
        QCOMPARE(planner.lines(),
                 QStringList("The report on landscape.brn was cancelled. Nothing was written."));
        planner.program.desktop().report().end();
        QCoreApplication::processEvents();
        QVERIFY(!QFile::exists(planner.report()));
        QVERIFY(planner.browser.Opened.isEmpty());
        planner.ask();
        QVERIFY(planner.program.desktop().report().isMaking());
    }

    void theEndOfTheProgramEndsTheWork() {
        QElapsedTimer time;
        {
            Planner planner;
            planner.open(longWork());
            planner.ask();
            QTest::qWait(300);
            QVERIFY(planner.program.desktop().report().isMaking());
            time.start();
        }
        QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    }

    void aPageThatCannotBeWrittenIsKeptForAnotherFile() {
        Planner planner;
        planner.openExample("small_landscape.brn");
        QDir(planner.folder.path()).mkdir("reports");
        planner.ask({planner.choose("reports/page.html")});
        QDir(planner.path("reports")).removeRecursively();
        QTRY_VERIFY_WITH_TIMEOUT(planner.lines().value(0).startsWith("page.html was not written: "),
                                 Patience);
        QVERIFY2(planner.lines().value(0).endsWith(": no such file or directory."),
                 qPrintable(planner.lines().value(0)));
        User user({planner.choose("page.html")});
        planner.pressOnStrip("page.html was not written", "Save it elsewhere");
        QVERIFY(planner.waitForPage());
        QVERIFY(planner.page().trimmed().endsWith("</html>"));
        QCOMPARE(QDir(planner.folder.path()).entryList(QDir::Files),
                 QStringList({"landscape.brn", "page.html"}));
    }

    void withoutABrowserTheStripSaysSo() {
        Planner planner;
        QDesktopServices::unsetUrlHandler("file");
        planner.openExample("small_landscape.brn");
        planner.ask();
        QTRY_COMPARE_WITH_TIMEOUT(
            planner.lines(), QStringList(planner.isMade() + " There is no browser to show it in."), Patience);
    }
};

static const desktop_test::Registered<InsightMenuTest> registered;

#include "insight_menu_test.moc"
