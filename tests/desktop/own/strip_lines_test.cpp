// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/strip_lines.h"

#include "desktop/own/copy_folder.h"
#include "desktop/own/strip_fixture.h"
#include "desktop/own/strip_words.h"
#include "ui/combo_box.h"

using desktop_test::copyOf;
using desktop_test::leftCopyOf;
using desktop_test::StripWindow;
using Operation = ui::Files::Operation;

namespace {

const QString Landscape = "landscape.brn, today 14:32, 25 species: not saved.";

/// The strip beside commands of the form that work on files.
struct WithFiles : StripWindow {
    QTemporaryDir folder;

    std::string path(const char* name) const { return folder.filePath(name).toStdString(); }
    void fail(Operation operation, ui::ErrorNumber error) {
        files.BeforeOperation = [=](Operation step) {
            if (step == operation) ui::raise(error);
        };
    }
    void mend() { files.BeforeOperation = {}; }
    void save(const char* name) {
        platform.Files = {path(name)};
        run([this] { form->mnuSaveProject.UserClick(); });
    }
    void openFile(const char* name) {
        if (form->ProjectChanged) platform.Answers = {"no"};
        platform.Files = {path(name)};
        run([this] { form->mnuOpenProject.UserClick(); });
    }
    void exportResults(const char* name) {
        form->cmdExportResults.Enabled(true);
        platform.Files = {path(name)};
        run([this] { form->cmdExportResults.UserClick(); });
    }
    void write(const char* name, const QByteArray& text) const {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
};

}  // namespace

class StripLinesTest : public QObject {
    Q_OBJECT

private slots:
    // The copies.

    void offersOneCopyByItsProject() {
        StripWindow w;
        w.copies.give({copyOf("/home/planner/landscape.brn", "5")});
        QCOMPARE(w.lines(), QStringList(Landscape));
        QVERIFY(w.button("landscape.brn", "Drop it") != nullptr);
        w.click("landscape.brn", "Open it");
        QCOMPARE(w.copies.Log, QStringList("open 5"));
        QCOMPARE(w.lines(), QStringList());
    }

    void aCopyWithoutAFileIsANewProject() {
        StripWindow w;
        w.copies.give({copyOf("")});
        QCOMPARE(w.lines(), QStringList("A new project, today 14:32, 25 species: not saved."));
    }

    void aCopyThatHoldsMoreThanTheFileSaysSo() {
        StripWindow w;
        desktop::CopyOffer saved = copyOf("/a/landscape.brn");
        saved.Saved = true;
        w.copies.give({saved});
        QCOMPARE(w.lines(),
                 QStringList("landscape.brn, today 14:32, 25 species: saved, but the file could not "
                             "carry every cell."));
    }

    void theTipNamesProjectAndCopyWhole() {
        StripWindow w;
        w.copies.give({copyOf("/home/planner/landscape.brn", "5")});
        QWidget* row = w.button("landscape.brn", "Open it")->parentWidget();
        QVERIFY(row->toolTip().contains("/home/planner/landscape.brn"));
        QVERIFY(row->toolTip().contains("/state/5.brn"));
    }

    void timesAreToldAsPeopleDo() {
        const QDateTime now(QDate(2026, 5, 14), QTime(9, 0));
        const auto on = [&](int days, QTime time) {
            return desktop::strip_words::moment({now.date().addDays(-days), time}, now);
        };
        QCOMPARE(on(0, {8, 5}), QString("today 8:05"));
        QCOMPARE(on(1, {23, 59}), QString("yesterday 23:59"));
        QCOMPARE(on(2, {14, 32}), QString("12 May 2026, 14:32"));
        QCOMPARE(on(365, {0, 0}), QString("14 May 2025, 0:00"));
    }

    void severalCopiesAreListedOnDemand() {
        StripWindow w;
        w.copies.give({copyOf("/a/landscape.brn", "1"), copyOf("/a/other.brn", "2")});
        QCOMPARE(w.lines(), QStringList("2 safety copies hold work that was not saved."));
        w.click("2 safety", "Show them");
        QCOMPARE(w.lines().size(), 3);
        QCOMPARE(w.lines()[1], Landscape);
        w.click("other.brn", "Open it");
        QCOMPARE(w.copies.Log, QStringList("open 2"));
        QCOMPARE(w.lines(), QStringList(Landscape));
    }

    void theListFoldsAgain() {
        StripWindow w;
        w.copies.give({copyOf("/a/landscape.brn", "1"), copyOf("/a/other.brn", "2")});
        w.click("2 safety", "Show them");
        w.click("2 safety", "Hide them");
        QCOMPARE(w.lines().size(), 1);
    }

    void aDamagedCopyIsSaidAndNotOpened_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("damaged");
        QTest::addColumn<QString>("name");
        QTest::newRow("a project's") << "/a/landscape.brn"
                                     << "1.brn"
                                     << "landscape.brn";
        QTest::newRow("a new project's") << ""
                                         << "1.brn"
                                         << "A new project";
        QTest::newRow("with its record") << "/a/landscape.brn"
                                         << "1.json"
                                         << "A safety copy";
    }
    void aDamagedCopyIsSaidAndNotOpened() {
        QFETCH(QString, path);
        QFETCH(QString, damaged);
        QFETCH(QString, name);
        const QTemporaryDir state;
        desktop::CopyRecord record;
        record.ProjectPath = path;
        desktop::CopyFolder(state.path()).keep("1", record, ProjectCopy{"text", {}, false, 2});
        QFile file(state.filePath(damaged));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        const QList<desktop::CopyOffer> offers = desktop::CopyFolder(state.path()).offers();
        StripWindow w;
        w.copies.give(offers);
        const QString moment = desktop::strip_words::moment(offers[0].Time, QDateTime::currentDateTime());
        QCOMPARE(w.lines(), QStringList(QString("%1, %2: this safety copy is damaged. It is kept, but "
                                                "cannot be opened.")
                                            .arg(name, moment)));
        QVERIFY(w.button(name, "Open it") == nullptr);
        QVERIFY(w.button(name, "Drop it") != nullptr);
    }

    void aDroppedCopyCanBeTakenBack() {
        StripWindow w;
        w.own.lines().TimeToTakeBack = 50;
        w.copies.give({copyOf("/a/landscape.brn")});
        w.click("landscape.brn", "Drop it");
        QCOMPARE(w.lines(), QStringList("landscape.brn, today 14:32: dropped."));
        QCOMPARE(w.copies.Log, QStringList());
        w.click("landscape.brn", "Take it back");
        QCOMPARE(w.lines(), QStringList(Landscape));
        QTest::qWait(120);
        QCOMPARE(w.copies.Log, QStringList());
    }

    void aDropBecomesFinalAfterAWhile() {
        StripWindow w;
        w.own.lines().TimeToTakeBack = 50;
        w.copies.give({copyOf("/a/landscape.brn", "3")});
        w.click("landscape.brn", "Drop it");
        QTRY_COMPARE(w.copies.Log, QStringList("drop 3"));
        QCOMPARE(w.lines(), QStringList());
    }

    void aDropIsNotFinalWhileTheKeysAreInTheStrip() {
        StripWindow w;
        w.own.lines().TimeToTakeBack = 50;
        w.widgetOf(w.form->txtTotalSpecies).setFocus();
        w.copies.give({copyOf("/a/landscape.brn", "3")});
        w.key(Qt::Key_F6);
        w.key(Qt::Key_Tab);
        w.key(Qt::Key_Return);
        QTest::qWait(200);
        QCOMPARE(w.copies.Log, QStringList());
        w.key(Qt::Key_Escape);
        QTRY_COMPARE(w.copies.Log, QStringList("drop 3"));
    }

    void closingTheLineOfADropMakesItFinal() {
        StripWindow w;
        w.copies.give({copyOf("/a/landscape.brn", "3")});
        w.click("landscape.brn", "Drop it");
        w.click("landscape.brn", "Close this message");
        QCOMPARE(w.copies.Log, QStringList("drop 3"));
    }

    void theEndOfTheProgramMakesADropFinal() {
        desktop_test::ScriptedCopies copies;
        desktop_test::MainWindow window;
        {
            desktop::WindowStrip own(*window.view, *window.form, window.files, copies);
            copies.give({copyOf("/a/landscape.brn", "3")});
            for (auto* button : own.strip().findChildren<QAbstractButton*>()) {
                if (button->text() == "Drop it") button->click();
            }
            QCOMPARE(copies.Log, QStringList());
        }
        QCOMPARE(copies.Log, QStringList("drop 3"));
    }

    void aCopyTakenBackAndDroppedAgainHasItsWholeTime() {
        StripWindow w;
        w.own.lines().TimeToTakeBack = 300;
        w.copies.give({copyOf("/a/landscape.brn", "3")});
        w.click("landscape.brn", "Drop it");
        QTest::qWait(200);
        w.click("landscape.brn", "Take it back");
        w.click("landscape.brn", "Drop it");
        QTest::qWait(200);
        QCOMPARE(w.copies.Log, QStringList());
        QTRY_COMPARE(w.copies.Log, QStringList("drop 3"));
    }

    void aDropThatIsRefusedIsSaid() {
        StripWindow w;
        w.copies.DropSucceeds = false;
        w.copies.give({copyOf("/a/landscape.brn", "3")});
        w.click("landscape.brn", "Drop it");
        w.click("landscape.brn", "Close this message");
        QCOMPARE(w.lines(), QStringList(Landscape + " It could not be dropped."));
    }

    void aClosedOfferIsListedAmongTheOthers() {
        StripWindow w;
        w.widgetOf(w.form->txtTotalSpecies).setFocus();
        w.copies.give({copyOf("/a/landscape.brn")});
        w.click("landscape.brn", "Close this message");
        QVERIFY(!w.strip().isVisible());
        w.key(Qt::Key_F6);
        QCOMPARE(w.lines(),
                 QStringList({"1 other safety copy, of work that was left without saving.", Landscape}));
    }

    void copiesLeftByTheUserAreNotAnnounced() {
        StripWindow w;
        w.copies.give({leftCopyOf("/a/left.brn", "1"), leftCopyOf("/a/old.brn", "2")});
        QVERIFY(!w.strip().isVisible());
    }

    void copiesLeftByTheUserAreListedBesideAnOffer() {
        StripWindow w;
        w.copies.give(
            {copyOf("/a/landscape.brn", "1"), leftCopyOf("/a/left.brn", "2"), leftCopyOf("/a/old.brn", "3")});
        QCOMPARE(w.lines(),
                 QStringList({Landscape, "2 other safety copies, of work that was left without saving."}));
        w.click("2 other", "Show them");
        QCOMPARE(w.lines().size(), 4);
        w.click("left.brn", "Open it");
        QCOMPARE(w.copies.Log, QStringList("open 2"));
        w.click("1 other", "Close this message");
        QCOMPARE(w.lines(), QStringList(Landscape));
    }

    void theKeyListsCopiesThatNobodyAnnounced() {
        StripWindow w;
        QWidget& box = w.widgetOf(w.form->txtTotalSpecies);
        box.setFocus();
        w.copies.give({leftCopyOf("/a/left.brn", "1")});
        w.key(Qt::Key_F6);
        QCOMPARE(w.lines().size(), 2);
        QVERIFY(w.button("1 other", "Hide it")->hasFocus());
        w.key(Qt::Key_Tab);
        w.key(Qt::Key_Tab);
        QVERIFY(w.button("left.brn", "Open it")->hasFocus());
        w.key(Qt::Key_Return);
        QCOMPARE(w.copies.Log, QStringList("open 1"));
    }

    void theKeyListsThemBesideOtherLines() {
        StripWindow w;
        w.copies.give({leftCopyOf("/a/left.brn", "1")});
        w.copies.failToKeep("Disk full.");
        QCOMPARE(w.lines().size(), 1);
        w.key(Qt::Key_F6);
        QCOMPARE(w.lines().size(), 2);
        QVERIFY(w.button("1 other", "Show it") != nullptr);
    }

    void theKeySaysThatThereIsNothing() {
        StripWindow w;
        QWidget& box = w.widgetOf(w.form->txtTotalSpecies);
        box.setFocus();
        w.key(Qt::Key_F6);
        QCOMPARE(w.lines(), QStringList("There are no safety copies to open."));
        w.key(Qt::Key_Return);
        QVERIFY(!w.strip().isVisible());
        QVERIFY(box.hasFocus());
    }

    // Commands that fail.

    void nothingIsSaidOfCommandsThatSucceed() {
        WithFiles w;
        w.save("a.brn");
        w.openFile("a.brn");
        w.exportResults("results.txt");
        QVERIFY(!w.strip().isVisible());
    }

    void aSaveThatCouldNotBegin() {
        WithFiles w;
        w.save("missing/landscape.brn");
        QCOMPARE(w.lines(),
                 QStringList("landscape.brn was not saved: path not found. Your work is kept in a safety "
                             "copy."));
        w.save("landscape.brn");
        QVERIFY(!w.strip().isVisible());
    }

    void aSaveThatStoppedHalfWay() {
        WithFiles w;
        w.fail(Operation::Write, ui::ErrorNumber::DiskFull);
        w.save("landscape.brn");
        QCOMPARE(w.lines(),
                 QStringList("landscape.brn was not saved whole: disk full. Nothing can be saved before "
                             "Brenica is started again. Your work is kept in a safety copy."));
        w.mend();
        w.save("other.brn");
        QCOMPARE(w.lines(),
                 QStringList("other.brn was not saved: file already open. Nothing can be saved before "
                             "Brenica is started again. Your work is kept in a safety copy."));
    }

    void aSaveThatFailedWithoutACopyPromisesNone() {
        WithFiles w;
        w.copies.failToKeep("Disk full.");
        w.save("missing/landscape.brn");
        QCOMPARE(w.lines(), QStringList({"landscape.brn was not saved: path not found.",
                                         "No safety copy is kept: disk full. Save often."}));
    }

    void aSaveThatTheDiskDidNotTakeIn() {
        WithFiles w;
        w.copies.failToSave("/a/landscape.brn", "Input/output error: /a/landscape.brn");
        QCOMPARE(w.lines(),
                 QStringList("landscape.brn was not saved: input/output error: /a/landscape.brn. Your work "
                             "is kept in a safety copy."));
        w.save("landscape.brn");
        QVERIFY(!w.strip().isVisible());
    }

    void theSaveBeforeExit() {
        WithFiles w;
        w.form->ProjectChanged = true;
        w.platform.Answers = {"yes"};
        w.platform.Files = {w.path("a.brn")};
        w.run([&] { w.form->mnuExit.UserClick(); });
        QCOMPARE(w.lines(),
                 QStringList("Nothing was saved: Yes in that question names no file. Save the project "
                             "first, then answer No."));
    }

    void aFileThatCannotBeOpened() {
        WithFiles w;
        w.save("landscape.brn");
        w.openFile("missing.brn");
        QCOMPARE(w.lines(),
                 QStringList("missing.brn could not be opened: file not found. The window was emptied "
                             "before. A save still proposes landscape.brn."));
        w.openFile("landscape.brn");
        QVERIFY(!w.strip().isVisible());
    }

    void aFileThatCannotBeReadToItsEnd() {
        WithFiles w;
        w.write("broken.brn", "Project Version = VERSION2\r\nFunction = 1\r\n");
        w.openFile("broken.brn");
        QCOMPARE(
            w.lines(),
            QStringList(
                "broken.brn could not be read beyond line 2: type mismatch. The window shows what stands "
                "before that line. Until Brenica is started again, do not use Open or Import: Open "
                "empties the window and fails, Import ends the program. Results cannot be exported."));
    }

    void aFileThatWasReadButCannotBeShown() {
        WithFiles w;
        w.run([&] {
            w.files.NoteFault(
                {"/a/old.brn", 35, ui::RunTimeError(13, "", "Type mismatch"), ui::FileMode::Input, 1, true});
        });
        QCOMPARE(w.lines(), QStringList("old.brn was read, but cannot be shown whole: type mismatch."));
    }

    void aFailedOpeningBringsUpTheCopiesThatWereLeft() {
        WithFiles w;
        w.copies.give({leftCopyOf("/a/left.brn", "1")});
        w.openFile("missing.brn");
        QCOMPARE(w.lines().size(), 2);
        QVERIFY(w.button("1 other", "Show it") != nullptr);
    }

    void noCopyIsToBeOpenedWhileNoFileCanBe() {
        WithFiles w;
        w.copies.give({copyOf("/a/landscape.brn")});
        w.write("broken.brn", "Project Version = VERSION2\r\nFunction = 1\r\n");
        w.openFile("broken.brn");
        QVERIFY(w.button("landscape.brn", "Open it") == nullptr);
        QVERIFY(w.button("landscape.brn", "Drop it") != nullptr);
    }

    void newMendsWhatAFailedOpeningLeft() {
        WithFiles w;
        w.save("landscape.brn");
        w.openFile("missing.brn");
        w.run([&] { w.form->mnuNewProject.UserClick(); });
        QVERIFY(!w.strip().isVisible());
    }

    void aSaveUnderAnotherNameIsProposedFromThenOn() {
        WithFiles w;
        w.save("landscape.brn");
        w.openFile("missing.brn");
        w.save("other.brn");
        QCOMPARE(w.lines(), QStringList("missing.brn could not be opened: file not found. The window was "
                                        "emptied before."));
    }

    void newMendsTheWindowButNoBlockedReading() {
        WithFiles w;
        w.write("broken.brn", "Project Version = VERSION2\r\nFunction = 1\r\n");
        w.openFile("broken.brn");
        w.run([&] { w.form->mnuNewProject.UserClick(); });
        QCOMPARE(
            w.lines(),
            QStringList("broken.brn could not be read beyond line 2: type mismatch. Until Brenica is started "
                        "again, do not use Open or Import: Open empties the window and fails, Import ends "
                        "the program. Results cannot be exported."));
    }

    void anExportOfResultsThatStoppedHalfWay() {
        WithFiles w;
        w.fail(Operation::Write, ui::ErrorNumber::DiskFull);
        w.exportResults("results.txt");
        QCOMPARE(w.lines(),
                 QStringList(
                     "results.txt was not written whole: disk full. Until Brenica is started again, do not "
                     "use Open or Import: Open empties the window and fails, Import ends the program. "
                     "Results cannot be exported."));
    }

    void anExportOfResultsThatCouldNotBegin() {
        WithFiles w;
        w.exportResults("missing/results.txt");
        QCOMPARE(w.lines(), QStringList("results.txt was not written: path not found."));
        w.exportResults("results.txt");
        QVERIFY(!w.strip().isVisible());
    }

    void aTableOrAnImportThatEndsTheProgramIsNamedBeforeItsBox() {
        WithFiles w;
        w.platform.Files = {w.path("missing/table.txt")};
        QVERIFY_EXCEPTION_THROWN(w.form->mnuExportData.UserClick(), ui::RunTimeError);
        w.own.look(true);
        QCOMPARE(w.lines(),
                 QStringList("table.txt was not written: path not found. Your work is kept in a safety "
                             "copy."));
        w.platform.Files = {w.path("missing.txt")};
        QVERIFY_EXCEPTION_THROWN(w.form->mnuImportData.UserClick(), ui::RunTimeError);
        w.own.look(true);
        QCOMPARE(w.lines().first(),
                 QString("missing.txt could not be imported: file not found. Your work is kept in "
                         "a safety copy."));
    }

    void aFailureIsClosedAndToldAnewWhenItHappensAgain() {
        WithFiles w;
        w.save("missing/landscape.brn");
        w.click("landscape.brn", "Close this message");
        QVERIFY(!w.strip().isVisible());
        w.run([] {});
        QVERIFY(!w.strip().isVisible());
        w.save("missing/landscape.brn");
        QCOMPARE(w.lines().size(), 1);
    }

    // What else the form does not say.

    void whyNoCopyIsKept() {
        StripWindow w;
        w.copies.failToKeep("Disk full.");
        QCOMPARE(w.lines(), QStringList("No safety copy is kept: disk full. Save often."));
        w.copies.failToKeep("");
        QVERIFY(!w.strip().isVisible());
        w.copies.failToKeep("Disk full.");
        w.click("No safety", "Close this message");
        QVERIFY(!w.strip().isVisible());
        w.run([] {});
        QVERIFY(!w.strip().isVisible());
        w.copies.failToKeep("Permission denied.");
        QCOMPARE(w.lines(), QStringList("No safety copy is kept: permission denied. Save often."));
    }

    void whichCellsTheFileCannotHold() {
        StripWindow w;
        const desktop::LostText one{"Habitat types", "3 Reed bed", "Area", "0,5"};
        w.copies.lose({one});
        QCOMPARE(w.lines(),
                 QStringList("The saved file cannot hold 1 cell as entered: Habitat types, 3 Reed bed, Area "
                             "(“0,5”). All is kept in the window and in the safety copy."));
        w.copies.lose({one, {"Margin of Error:", "", "", "6,5"}, one, one});
        QCOMPARE(
            w.lines(),
            QStringList(
                "The saved file cannot hold 4 cells as entered: Habitat types, 3 Reed bed, Area (“0,5”); "
                "Margin of Error: (“6,5”) and 2 more. All is kept in the window and in the safety copy."));
        const QWidget* row = w.button("The saved", "Close this message")->parentWidget();
        QCOMPARE(row->accessibleDescription().count("Habitat types"), 3);
        w.click("The saved", "Close this message");
        QVERIFY(!w.strip().isVisible());
        w.copies.lose({one});
        QVERIFY(w.strip().isVisible());
        w.copies.lose({});
        QVERIFY(!w.strip().isVisible());
    }

    void wherePressingForASelectionDoesNothing() {
        StripWindow w;
        w.open(ProjectText(2, 2, 2, 2));
        for (int page = 2; page <= 7; ++page) w.goTo(page);
        const auto refuse = [&](SelectionObstacle obstacle) {
            w.run([&] {
                w.form->tabBrenica.UserSelectTab(4);
                w.form->SelectionRefused(obstacle);
            });
        };
        refuse(SelectionObstacle::NoSpecies);
        QCOMPARE(w.lines(), QStringList("There is no species to select from."));
        refuse(SelectionObstacle::NoStatus);
        QCOMPARE(w.lines(), QStringList("A species has no conservation status (CCS). Enter it first."));
        refuse(SelectionObstacle::OldScores);
        QCOMPARE(w.lines(), QStringList("Go to Aggregate Scores first."));
        w.goTo(6);
        QVERIFY(!w.strip().isVisible());
        refuse(SelectionObstacle::OldScores);
        w.click("Go to", "Close this message");
        QVERIFY(!w.strip().isVisible());
    }

    void textsOfAUserAreNoMarkup() {
        StripWindow w;
        w.copies.give({copyOf("/a/<b>bold<b>.brn")});
        const auto labels = w.strip().findChildren<QLabel*>();
        QCOMPARE(labels.last()->textFormat(), Qt::PlainText);
        QVERIFY(w.lines().first().startsWith("<b>bold<b>.brn"));
    }
};

static const desktop_test::Registered<StripLinesTest> registered;

#include "strip_lines_test.moc"
