// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/project_copies.h"

#include <sys/wait.h>
#include <unistd.h>

#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <csignal>
#include <ctime>

#include "desktop/desktop_test.h"
#include "project/frmBrenica.h"
#include "support/project_text.h"

namespace {

using desktop::CopyFolder;
using desktop::CopyOffer;
using desktop::Disk;
using desktop::ProjectCopies;

/// One running program without its windows.
struct Running : desktop::FormLink {
    ScriptedPlatform platform;
    ui::Files files;
    modGlobal global;
    std::unique_ptr<frmBrenica> form;
    desktop::Scale scaled{QApplication::font()};
    std::unique_ptr<ProjectCopies> copies;
    bool busy = false;

    explicit Running(const QString& state, ui::DecimalSeparator separator = ui::DecimalSeparator::Point) {
        platform.Separator = separator;
        form = std::make_unique<frmBrenica>(platform, files, global);
        form->TakeChanged();
        copies = std::make_unique<ProjectCopies>(*this, state);
        copies->follow(*form);
        settle();
    }
    ~Running() override { copies.reset(); }

    void run(const std::function<void()>& action) override {
        busy = true;
        action();
        busy = false;
        form->TakeChanged();
        copies->afterAction();
    }
    void command(const std::function<void()>& action) override {
        copies->beforeCommand();
        run(action);
    }
    bool isBusy() const override { return busy; }
    const desktop::Scale& scale() const override { return scaled; }

    /// Until everything that was taken is written and told.
    void settle() {
        copies->waitForDisk();
        QApplication::processEvents();
    }
    void addSpecies(const std::string& name) {
        run([&] {
            form->txtTotalSpecies.Text("1");
            form->cmdUpdateSpecies.UserClick();
            form->flxCandidateSpecies.UserEditCell(global.TotalSpecies, list::Name, name);
        });
    }
    void click(ui::MenuItem& item) {
        command([&] { item.UserClick(); });
    }
    /// As before the next command.
    void take() {
        copies->beforeCommand();
        settle();
    }
    void saveAs(const QString& path) {
        platform.Files = {path.toStdString()};
        click(form->mnuSaveProject);
        settle();
    }
    /// A save that leaves its file cut short.
    void failHalfWay(const QString& path) {
        files.BeforeOperation = [](ui::Files::Operation operation) {
            if (operation == ui::Files::Operation::Write) ui::raise(ui::ErrorNumber::DiskFull);
        };
        saveAs(path);
        files.BeforeOperation = nullptr;
    }
    /// The files that are saved, not the copies.
    void failToSyncSaves() {
        files.Closed = [this](ui::FileMode, int) {
            copies->folder().disk().BeforeCall = [failed = false](Disk::Call call) mutable {
                return call == Disk::Call::Sync && !std::exchange(failed, true) ? EIO : 0;
            };
        };
    }
    void syncSaves() {
        files.Closed = nullptr;
        copies->folder().disk().BeforeCall = nullptr;
    }
    void openFile(const QString& path) {
        platform.Files = {path.toStdString()};
        platform.Answers = {"no"};
        click(form->mnuOpenProject);
        settle();
    }
};

/// What this thread has used of the processor, in milliseconds.
double threadTime() {
    timespec used{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return 1e3 * static_cast<double>(used.tv_sec) + 1e-6 * static_cast<double>(used.tv_nsec);
}

struct Home {
    QTemporaryDir folder;
    QString state = folder.filePath("brenica");

    QString file(const QString& name) const { return folder.filePath(name); }
    QStringList copies() const { return QDir(state).entryList({"*.brn"}, QDir::Files); }
    QByteArray copy() const {
        QFile file(state + '/' + copies().value(0));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QList<CopyOffer> offers() const { return CopyFolder(state).offers(); }
    QString project(const ProjectText& text, const QString& name = "project.brn") const {
        QFile file(folder.filePath(name));
        (void)file.open(QIODevice::WriteOnly);
        file.write(QByteArray::fromStdString(text.text()));
        return file.fileName();
    }
};

}  // namespace

class ProjectCopiesTest : public QObject {
    Q_OBJECT

private slots:
    void nothingIsWrittenWhileNothingHasChanged() {
        const Home home;
        Running program(home.state);
        program.click(program.form->mnuPrintGrid);
        program.openFile(home.project(ProjectText(2, 1, 1, 1)));
        program.command([&] { program.form->tabBrenica.UserSelectTab(2); });
        program.take();
        QVERIFY(!QDir(home.state).exists());
        QVERIFY(!program.copies->keeps());
    }

    void workIsKeptSoonAfterAnAction() {
        const Home home;
        Running program(home.state);
        program.addSpecies("Ant");
        QVERIFY(home.copies().isEmpty());
        QTRY_VERIFY_WITH_TIMEOUT(home.copy().contains("Common Name = Ant\r\n"), 2000);
        program.addSpecies("Bee");
        QTRY_VERIFY_WITH_TIMEOUT(home.copy().contains("Common Name = Ant,Bee\r\n"), 2000);
        QCOMPARE(home.copies().size(), 1);
        QVERIFY(program.copies->keeps());
    }

    void workIsKeptBeforeTheNextCommand() {
        const Home home;
        Running program(home.state);
        program.addSpecies("Ant");
        program.click(program.form->mnuPrintGrid);
        program.settle();
        QVERIFY(home.copy().contains("Common Name = Ant\r\n"));
    }

    void theSameIsNotWrittenAgain() {
        const Home home;
        Running program(home.state);
        program.addSpecies("Ant");
        program.take();
        int calls = 0;
        program.copies->folder().disk().BeforeCall = [&](Disk::Call) { return ++calls, 0; };
        program.run([&] { program.form->flxCandidateSpecies.UserEditCell(1, list::Name, "Ant"); });
        program.take();
        QCOMPARE(calls, 0);
    }

    void workThatIsTakenBackNeedsNoCopy() {
        const Home home;
        Running program(home.state);
        program.openFile(home.project(ProjectText(2, 1, 1, 1)));
        program.run([&] { program.form->flxCandidateSpecies.UserEditCell(1, list::Name, "Ant"); });
        program.take();
        QCOMPARE(home.copies().size(), 1);
        program.run([&] { program.form->flxCandidateSpecies.UserEditCell(1, list::Name, "Species 1"); });
        program.take();
        QVERIFY(home.copies().isEmpty());
    }

    void aSaveTakesTheCopyAway() {
        const Home home;
        Running program(home.state);
        program.addSpecies("Ant");
        program.saveAs(home.file("project.brn"));
        QVERIFY(QDir(home.state).entryList(QDir::Files).isEmpty());
        QVERIFY(program.copies->notCarried().isEmpty());
        program.addSpecies("Bee");
        program.take();
        QCOMPARE(home.copies().size(), 1);
        program.copies.reset();
        QCOMPARE(home.offers().first().ProjectPath, home.file("project.brn"));
    }

    void aSaveBeforeNewAndOpenTakesTheCopyAway() {
        const Home home;
        const QString other = home.project(ProjectText(2, 1, 1, 1));
        Running program(home.state);
        program.addSpecies("Ant");
        program.platform.Answers = {"yes"};
        program.platform.Files = {home.file("one.brn").toStdString()};
        program.click(program.form->mnuNewProject);
        program.addSpecies("Bee");
        program.platform.Answers = {"yes"};
        program.platform.Files = {home.file("two.brn").toStdString(), other.toStdString()};
        program.click(program.form->mnuOpenProject);
        program.settle();
        QCOMPARE(program.global.TotalSpecies, 2);
        QVERIFY(home.copies().isEmpty());
        QVERIFY(program.copies->offers().isEmpty());
    }

    void newAndOpenLeaveTheCopyToBeListed() {
        const Home home;
        const QString other = home.project(ProjectText(2, 1, 1, 1));
        Running program(home.state);
        program.addSpecies("Ant");
        program.platform.Answers = {"no"};
        program.click(program.form->mnuNewProject);
        program.settle();
        QCOMPARE(program.copies->offers().size(), 1);
        QVERIFY(!program.copies->offers().first().Announced);
        program.addSpecies("Bee");
        program.openFile(other);
        QCOMPARE(program.copies->offers().size(), 2);
        QCOMPARE(home.copies().size(), 2);
        program.run([&] { program.form->flxCandidateSpecies.UserEditCell(1, list::Name, "Cat"); });
        program.take();
        QCOMPARE(home.copies().size(), 3);
    }

    // Another project begins, whatever becomes of it.
    void anOpenThatFailsLeavesTheCopy() {
        const Home home;
        Running program(home.state);
        program.addSpecies("Ant");
        program.openFile(home.file("none.brn"));
        QCOMPARE(program.global.TotalSpecies, 0);
        QCOMPARE(program.copies->offers().size(), 1);
        program.addSpecies("Bee");
        program.take();
        QCOMPARE(home.copies().size(), 2);
    }

    void exitWithNoLeavesTheCopyToBeListed() {
        const Home home;
        {
            Running program(home.state);
            program.addSpecies("Ant");
            program.platform.Answers = {"no"};
            program.click(program.form->mnuExit);
            QVERIFY(program.form->Unloaded());
            program.copies->finish();
        }
        QCOMPARE(home.offers().size(), 1);
        QVERIFY(!home.offers().first().Announced);
    }

    // A click on the home range type that is on lets Exit ask nothing: nobody has decided.
    void exitWithoutAQuestionLeavesTheCopyToBeAnnounced() {
        const Home home;
        {
            Running program(home.state);
            program.addSpecies("Ant");
            program.run([&] { program.form->optHomeRangeType(0).UserClick(); });
            program.click(program.form->mnuExit);
            QVERIFY(program.platform.Transcript.empty());
            program.copies->finish();
        }
        QCOMPARE(home.offers().size(), 1);
        QVERIFY(home.offers().first().Announced);
    }

    void theCloseBoxLeavesTheCopyToBeAnnounced() {
        const Home home;
        {
            Running program(home.state);
            program.addSpecies("Ant");
            program.command([&] { program.form->UserClose(); });
            program.copies->finish();
        }
        QCOMPARE(home.offers().size(), 1);
        QVERIFY(home.offers().first().Announced);
    }

    void aCopyIsOpenedAsItWasWorkedOn() {
        const Home home;
        const QString path = home.project(ProjectText(2, 2, 1, 1), "landscape.brn");
        {
            Running program(home.state, ui::DecimalSeparator::Comma);
            program.openFile(path);
            program.run([&] { program.form->flxHabitatTypes.UserEditCell(2, list::Area, "0,5"); });
            program.run([&] { program.form->txtErrorMargin.UserPaste("7"); });
            program.take();
        }
        Running program(home.state, ui::DecimalSeparator::Comma);
        QCOMPARE(program.copies->offers().size(), 1);
        const CopyOffer offer = program.copies->offers().first();
        QCOMPARE(offer.ProjectPath, path);
        QVERIFY(program.copies->open(offer.Id));
        program.settle();
        QCOMPARE(program.form->flxHabitatTypes.TextMatrix(2, list::Area), std::string("0,5"));
        QVERIFY(program.form->txtErrorMargin.Text() != "5");
        QCOMPARE(program.form->Caption(), "Brenica - " + path.toStdString());
        QCOMPARE(program.global.ProjectFileName, path.toStdString());
        QVERIFY(program.form->ProjectChanged);
        QVERIFY(program.copies->offers().isEmpty());
        QVERIFY(program.copies->keeps());
        QCOMPARE(home.copies().size(), 1);
        QVERIFY(home.offers().isEmpty());
    }

    void anOpenedCopyIsKeptUntilASave() {
        const Home home;
        {
            Running program(home.state);
            program.addSpecies("Ant");
            program.take();
        }
        Running program(home.state);
        QVERIFY(program.copies->open(program.copies->offers().first().Id));
        program.take();
        QCOMPARE(home.copies().size(), 1);
        QCOMPARE(program.form->Caption(), std::string("Brenica"));
        program.saveAs(home.file("project.brn"));
        QVERIFY(home.copies().isEmpty());
    }

    void aCopyThatIsLeftAgainIsOfferedAgain() {
        const Home home;
        {
            Running program(home.state);
            program.addSpecies("Ant");
            program.take();
        }
        Running program(home.state);
        const QString id = program.copies->offers().first().Id;
        QVERIFY(program.copies->open(id));
        program.platform.Answers = {"no"};
        program.click(program.form->mnuNewProject);
        program.settle();
        QCOMPARE(program.copies->offers().size(), 1);
        QCOMPARE(program.copies->offers().first().Id, id);
    }

    void openingACopyAsksTheSaveQuestion() {
        const Home home;
        {
            Running program(home.state);
            program.addSpecies("Ant");
            program.take();
        }
        Running program(home.state);
        program.addSpecies("Bee");
        const QString id = program.copies->offers().first().Id;
        program.platform.Answers = {"yes"};  // and Cancel in the dialogue
        QVERIFY(!program.copies->open(id));
        program.settle();
        QCOMPARE(program.form->flxCandidateSpecies.TextMatrix(1, list::Name), std::string("Bee"));
        QCOMPARE(program.copies->offers().size(), 1);
        program.platform.Answers = {"no"};
        QVERIFY(program.copies->open(id));
        program.settle();
        QCOMPARE(program.form->flxCandidateSpecies.TextMatrix(1, list::Name), std::string("Ant"));
        QCOMPARE(program.copies->offers().size(), 1);
        QVERIFY(program.copies->offers().first().Id != id);
    }

    void dropTakesACopyAway() {
        const Home home;
        {
            Running program(home.state);
            program.addSpecies("Ant");
            program.take();
        }
        Running program(home.state);
        const QSignalSpy told(program.copies.get(), &desktop::SafetyCopies::offersChanged);
        QVERIFY(program.copies->drop(program.copies->offers().first().Id));
        QVERIFY(program.copies->offers().isEmpty());
        program.settle();
        QVERIFY(program.copies->offers().isEmpty());
        QCOMPARE(told.size(), 1);
        QVERIFY(QDir(home.state).entryList(QDir::Files).isEmpty());
    }

    void aDiskThatRefusesLeavesTheOffer_data() {
        QTest::addColumn<int>("call");
        QTest::newRow("lock") << static_cast<int>(Disk::Call::Lock);
        QTest::newRow("remove") << static_cast<int>(Disk::Call::Remove);
    }
    void aDiskThatRefusesLeavesTheOffer() {
        QFETCH(int, call);
        const Home home;
        {
            Running program(home.state);
            program.addSpecies("Ant");
            program.take();
        }
        Running program(home.state);
        const QString id = program.copies->offers().first().Id;
        program.copies->folder().disk().BeforeCall = [&](Disk::Call made) {
            return static_cast<int>(made) == call ? EACCES : 0;
        };
        QVERIFY(!program.copies->drop(id));
        if (static_cast<Disk::Call>(call) == Disk::Call::Lock) QVERIFY(!program.copies->open(id));
        program.settle();
        program.copies->folder().disk().BeforeCall = nullptr;
        QCOMPARE(home.copies().size(), 1);
        QCOMPARE(home.offers().size(), 1);
        QVERIFY(program.copies->drop(id));
    }

    void twoProgramsLeaveEachOthersCopiesAlone() {
        const Home home;
        Running one(home.state);
        one.addSpecies("Ant");
        one.take();
        Running other(home.state);
        QVERIFY(other.copies->offers().isEmpty());
        other.addSpecies("Bee");
        other.take();
        QCOMPARE(home.copies().size(), 2);
        other.saveAs(home.file("other.brn"));
        QVERIFY(home.copy().contains("Ant"));
        one.addSpecies("Cat");
        one.take();
        QVERIFY(home.copy().contains("Ant,Cat"));
    }

    void ofTwoProgramsTheFasterOneOpensACopy() {
        const Home home;
        {
            Running program(home.state);
            program.addSpecies("Ant");
            program.take();
        }
        Running one(home.state);
        Running other(home.state);
        const QString id = other.copies->offers().first().Id;
        QVERIFY(one.copies->open(id));
        QVERIFY(!other.copies->open(id));
        QVERIFY(!other.copies->drop(id));
        other.settle();
        QVERIFY(other.copies->offers().isEmpty());
        QVERIFY(other.platform.Transcript.empty());
        one.settle();
        QCOMPARE(home.copies().size(), 1);
    }

    void whatASaveCouldNotCarryStaysInTheCopyAndIsNamed() {
        const Home home;
        {
            Running program(home.state, ui::DecimalSeparator::Comma);
            program.openFile(home.project(ProjectText(2, 2, 1, 1)));
            program.run([&] { program.form->flxHabitatTypes.UserEditCell(1, list::Area, "0,5"); });
            const QSignalSpy told(program.copies.get(), &desktop::SafetyCopies::notCarriedChanged);
            program.saveAs(home.file("saved.brn"));
            QCOMPARE(told.size(), 1);
            QCOMPARE(program.copies->notCarried().size(), 1);
            const desktop::LostText lost = program.copies->notCarried().first();
            QCOMPARE(lost.Table, QString("Habitat types"));
            QCOMPARE(lost.Row, QString("1"));
            QCOMPARE(lost.Text, QString("0,5"));
            QCOMPARE(home.copies().size(), 1);
        }
        QCOMPARE(home.offers().size(), 1);
        QVERIFY(home.offers().first().Saved);
        QVERIFY(home.offers().first().Announced);
        Running program(home.state, ui::DecimalSeparator::Comma);
        QVERIFY(program.copies->open(program.copies->offers().first().Id));
        QCOMPARE(program.form->flxHabitatTypes.TextMatrix(1, list::Area), std::string("0,5"));
        program.run([&] { program.form->flxHabitatTypes.UserEditCell(1, list::Area, "0.5"); });
        program.saveAs(home.file("saved.brn"));
        QVERIFY(program.copies->notCarried().isEmpty());
        QVERIFY(home.copies().isEmpty());
    }

    void levelsThatASaveCouldNotCarryAreListedOnly() {
        const Home home;
        {
            Running program(home.state);
            program.openFile(home.project(ProjectText(2, 2, 1, 1)));
            program.run([&] { program.form->txtErrorMargin.UserPaste("7"); });
            program.saveAs(home.file("saved.brn"));
            QCOMPARE(program.copies->notCarried().size(), 1);
        }
        QCOMPARE(home.offers().size(), 1);
        QVERIFY(!home.offers().first().Announced);
    }

    // The project's own file is cut short: the work is nowhere else.
    void aSaveThatFailsHalfWayIsKeptEvenWithoutAChange() {
        const Home home;
        const QString path = home.project(ProjectText(2, 2, 1, 1));
        Running program(home.state);
        program.openFile(path);
        int writes = 0;
        program.files.BeforeOperation = [&](ui::Files::Operation operation) {
            if (operation == ui::Files::Operation::Write && ++writes == 3)
                ui::raise(ui::ErrorNumber::DiskFull);
        };
        program.saveAs(path);
        QCOMPARE(home.copies().size(), 1);
        QVERIFY(home.copy().contains("Species 1,Species 2"));
        QVERIFY(program.copies->keeps());
        program.files.BeforeOperation = nullptr;
        program.saveAs(home.file("again.brn"));  // blocked for this run
        QCOMPARE(home.copies().size(), 1);
    }

    void theOnlyWholeCopyIsAnnouncedHoweverItIsLeft_data() {
        QTest::addColumn<ui::MenuItem frmBrenicaControls::*>("command");
        QTest::newRow("Exit") << &frmBrenicaControls::mnuExit;
        QTest::newRow("New") << &frmBrenicaControls::mnuNewProject;
        QTest::newRow("Open") << &frmBrenicaControls::mnuOpenProject;
    }
    void theOnlyWholeCopyIsAnnouncedHoweverItIsLeft() {
        QFETCH(ui::MenuItem frmBrenicaControls::*, command);
        const Home home;
        {
            Running program(home.state);
            program.addSpecies("Ant");
            program.failHalfWay(home.file("cut.brn"));
            program.platform.Answers = {"no"};
            program.platform.Files = {home.project(ProjectText(2, 1, 1, 1)).toStdString()};
            program.click((*program.form).*command);
            program.copies->finish();
        }
        QCOMPARE(home.offers().size(), 1);
        QVERIFY(home.offers().first().Announced);
    }

    void theProjectAfterOneThatWasCutShortIsLeftAsEver() {
        const Home home;
        Running program(home.state);
        program.addSpecies("Ant");
        program.failHalfWay(home.file("cut.brn"));
        for (const char* name : {"Bee", "Cat"}) {
            program.platform.Answers = {"no"};
            program.click(program.form->mnuNewProject);
            program.addSpecies(name);
        }
        program.settle();
        const QList<CopyOffer> offers = program.copies->offers();
        QCOMPARE(offers.size(), 2);
        QVERIFY(!offers[0].Announced);
        QVERIFY(offers[1].Announced);
    }

    void aKillInTheMiddleOfASaveLosesNothing_data() {
        QTest::addColumn<std::string>("name");
        QTest::newRow("a change") << std::string("Ant");
        QTest::newRow("none") << std::string("Species 1");
    }
    void aKillInTheMiddleOfASaveLosesNothing() {
        QFETCH(std::string, name);
        const Home home;
        const QString path = home.project(ProjectText(2, 2, 1, 1));
        const pid_t child = ::fork();
        if (child == 0) {
            Running program(home.state);
            program.openFile(path);
            program.run([&] { program.form->flxCandidateSpecies.UserEditCell(1, list::Name, name); });
            int writes = 0;
            program.files.BeforeOperation = [&](ui::Files::Operation operation) {
                if (operation == ui::Files::Operation::Write && ++writes == 5) ::raise(SIGKILL);
            };
            program.saveAs(path);
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        QVERIFY(WIFSIGNALED(status));
        Running program(home.state);
        QCOMPARE(program.copies->offers().size(), 1);
        QVERIFY(program.copies->offers().first().Announced);
        QVERIFY(program.copies->open(program.copies->offers().first().Id));
        QCOMPARE(program.form->flxCandidateSpecies.TextMatrix(1, list::Name), name);
        QCOMPARE(program.form->flxCandidateSpecies.TextMatrix(2, list::Name), std::string("Species 2"));
    }

    void aSaveThatCannotBeginLeavesNoCopyOfWhatHasNotChanged() {
        const Home home;
        Running program(home.state);
        program.openFile(home.project(ProjectText(2, 2, 1, 1)));
        bool wasKept = false;
        program.files.BeforeOperation = [&](ui::Files::Operation) { wasKept = !home.copies().isEmpty(); };
        program.saveAs(home.file("none/project.brn"));
        QVERIFY(wasKept);
        QVERIFY(home.copies().isEmpty());
        QVERIFY(!program.copies->keeps());
    }

    void aDiskThatHangsKeepsNoSaveFromBeingTried() {
        const Home home;
        Running program(home.state);
        QSemaphore answer;
        program.copies->folder().disk().BeforeCall = [&](Disk::Call) { return answer.acquire(), 0; };
        program.addSpecies("Ant");
        program.platform.Files = {home.file("project.brn").toStdString()};
        program.click(program.form->mnuSaveProject);
        QVERIFY(QFile::exists(home.file("project.brn")));
        answer.release(1000);
        program.settle();
        QVERIFY(home.copies().isEmpty());
    }

    void theCopyStaysWhereTheSavedFileIsNotOnTheDisk() {
        const Home home;
        Running program(home.state);
        program.addSpecies("Ant");
        program.failToSyncSaves();
        const QSignalSpy told(program.copies.get(), &desktop::SafetyCopies::saveNotOnDisk);
        program.saveAs(home.file("project.brn"));
        program.settle();
        QCOMPARE(told.size(), 1);
        QCOMPARE(told[0][0].toString(), home.file("project.brn"));
        QVERIFY(told[0][1].toString().startsWith("Input/output error"));
        QVERIFY(home.copy().contains("Common Name = Ant\r\n"));
        QVERIFY(program.copies->keeps());
        program.syncSaves();
        program.saveAs(home.file("none/project.brn"));
        QVERIFY(home.copy().contains("Common Name = Ant\r\n"));
        program.saveAs(home.file("project.brn"));
        QVERIFY(home.copies().isEmpty());
        QVERIFY(!program.copies->keeps());
    }

    void theCopyOfAProjectLeftMeanwhileIsOffered() {
        const Home home;
        Running program(home.state);
        program.addSpecies("Ant");
        program.failToSyncSaves();
        program.platform.Answers = {"yes"};
        program.platform.Files = {home.file("project.brn").toStdString()};
        program.click(program.form->mnuNewProject);
        program.settle();
        program.settle();
        QCOMPARE(program.copies->offers().size(), 1);
        QVERIFY(program.copies->offers().first().Announced);
    }

    void aDiskThatRefusesIsToldAndTriedAgain() {
        const Home home;
        Running program(home.state);
        const QSignalSpy told(program.copies.get(), &desktop::SafetyCopies::keepingChanged);
        program.copies->folder().disk().BeforeCall = [](Disk::Call call) {
            return call == Disk::Call::Write ? ENOSPC : 0;
        };
        program.addSpecies("Ant");
        program.take();
        QVERIFY(program.copies->whyNotKept().startsWith("No space left on device"));
        QVERIFY(!program.copies->keeps());
        QCOMPARE(told.size(), 1);
        QVERIFY(program.platform.Transcript.empty());
        program.copies->folder().disk().BeforeCall = nullptr;
        program.addSpecies("Bee");
        program.take();
        QVERIFY(program.copies->whyNotKept().isEmpty());
        QCOMPARE(told.size(), 2);
        QVERIFY(home.copy().contains("Ant,Bee"));
    }

    void aStateFolderThatCannotBeMadeIsToldAndTheFormGoesOn() {
        const Home home;
        Running program("/proc/none/brenica");
        program.addSpecies("Ant");
        program.take();
        QVERIFY(!program.copies->whyNotKept().isEmpty());
        program.saveAs(home.file("project.brn"));
        QVERIFY(QFile::exists(home.file("project.brn")));
        QVERIFY(program.copies->whyNotKept().isEmpty());
    }

    void tablesOutOfStepAreToldAndTheFormGoesOn() {
        const Home home;
        Running program(home.state);
        program.addSpecies("Ant");
        program.run([&] { program.form->flxSummary(summary::Area).Rows(1); });
        program.take();
        QVERIFY(!program.copies->whyNotKept().isEmpty());
        QVERIFY(program.platform.Transcript.empty());
    }

    void aDamagedCopyIsToldAndNotOpened() {
        const Home home;
        {
            Running program(home.state);
            program.addSpecies("Ant");
            program.take();
        }
        QFile file(home.state + '/' + home.copies().first());
        QVERIFY(file.open(QIODevice::Append));
        file.write("x");
        file.close();
        Running program(home.state);
        QVERIFY(program.copies->offers().first().Damaged);
        QVERIFY(!program.copies->open(program.copies->offers().first().Id));
        QCOMPARE(program.global.TotalSpecies, 0);
        QCOMPARE(home.copies().size(), 1);
    }

    void nothingIsTakenUnderABox() {
        const Home home;
        Running program(home.state);
        program.addSpecies("Ant");
        program.busy = true;
        QTest::qWait(ProjectCopies::UntilTaken + 200);
        QVERIFY(home.copies().isEmpty());
        program.busy = false;
        QTRY_VERIFY_WITH_TIMEOUT(!home.copies().isEmpty(), 2000);
    }

    void takingALargeProjectHoldsTheWindowShortly_data() {
        QTest::addColumn<bool>("commas");
        QTest::newRow("grades") << false;
        QTest::newRow("a comma in each level of use") << true;
    }
    void takingALargeProjectHoldsTheWindowShortly() {
        QFETCH(bool, commas);
        const Home home;
        Running program(home.state, ui::DecimalSeparator::Comma);
        program.openFile(home.project(ProjectText(1000, 100, 100, 100)));
        QCOMPARE(program.global.TotalSpecies, 1000);
        for (const int member : {summary::HabitatsBySpecies, summary::JurisUnitsBySpecies}) {
            ui::Grid& levels = program.form->flxSummary(member);
            for (int row = 1; commas && row < levels.Rows(); ++row) levels.TextMatrix(row, use::Level, "0,5");
        }
        double least = 1e9;
        for (int i = 0; i < 5; ++i) {
            program.run([&] {
                program.form->flxCandidateSpecies.UserEditCell(1, list::Name, "Ant " + std::to_string(i));
            });
            const double before = threadTime();
            program.copies->beforeCommand();
            least = std::min(least, threadTime() - before);
            program.settle();
        }
        qInfo("%.1f ms", least);
        QVERIFY2(least <= 50, qPrintable(QString("%1 ms").arg(least)));
    }
};

const desktop_test::Registered<ProjectCopiesTest> registered;

#include "project_copies_test.moc"
