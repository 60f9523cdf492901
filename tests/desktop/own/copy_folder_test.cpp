// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/copy_folder.h"

#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <cerrno>

#include "desktop/desktop_test.h"
#include "support/largest_file.h"

namespace {

using desktop::CopyFolder;
using desktop::CopyOffer;
using desktop::CopyRecord;
using desktop::Disk;
using desktop::DiskFault;

ProjectCopy copyOf(const std::string& text) {
    ProjectCopy copy;
    copy.Text = text;
    copy.Species = 2;
    copy.Uncarried = {{"flxHabitatTypes", 1, 2, "0,5 " + text, true}, {"flxSummary(4)", 1, 4, "", false}};
    return copy;
}

/// A state folder; each program that works in it has a CopyFolder of its own.
struct State {
    QTemporaryDir home;
    QString path = home.filePath("state/brenica");

    QStringList files() const { return QDir(path).entryList(QDir::Files, QDir::Name); }
    void write(const QString& name, const QByteArray& content) const {
        QFile file(path + '/' + name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QByteArray read(const QString& name) const {
        QFile file(path + '/' + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

/// Leaves a copy as a program does that has ended.
void leaveCopy(const State& state, const QString& id, const std::string& text, CopyRecord record = {}) {
    CopyFolder(state.path).keep(id, std::move(record), copyOf(text));
}

/// Keeps the text while one call fails; whether it came to that.
bool failsToKeep(CopyFolder& folder, const std::string& text, int failing) {
    int calls = 0;
    folder.disk().BeforeCall = [&](Disk::Call) { return calls++ == failing ? EIO : 0; };
    bool failed = false;
    try {
        folder.keep("a", {}, copyOf(text));
    } catch (const DiskFault&) {
        failed = true;
    }
    folder.disk().BeforeCall = nullptr;
    return failed;
}

/// Runs in a process of its own; gives the signal that ended it, 0 for none.
int signalEnding(const std::function<void()>& action) {
    const pid_t child = ::fork();
    if (child == 0) {
        action();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

}  // namespace

class CopyFolderTest : public QObject {
    Q_OBJECT

private slots:
    void liesInTheFolderForState() {
        const QByteArray before = qgetenv("XDG_STATE_HOME");
        qputenv("XDG_STATE_HOME", "/somewhere/state");
        QCOMPARE(CopyFolder::usualPath(), QString("/somewhere/state/brenica"));
        qputenv("XDG_STATE_HOME", "relative");
        QCOMPARE(CopyFolder::usualPath(), QDir::homePath() + "/.local/state/brenica");
        qunsetenv("XDG_STATE_HOME");
        QCOMPARE(CopyFolder::usualPath(), QDir::homePath() + "/.local/state/brenica");
        qputenv("XDG_STATE_HOME", before);
    }

    void keepsAPlainFileForTheUserAlone() {
        const State state;
        leaveCopy(state, "a", "Project Version = VERSION2\r\n");
        QCOMPARE(state.read("a.brn"), QByteArray("Project Version = VERSION2\r\n"));
        QCOMPARE(state.files(), (QStringList{"a.brn", "a.json", "a.lock"}));
        const auto user = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        for (const QString& file : state.files()) {
            QCOMPARE(QFile::permissions(state.path + '/' + file), QFile::Permissions(user));
        }
        QCOMPARE(QFile::permissions(state.path), QFile::Permissions(user | QFile::ExeOwner | QFile::ExeUser));
    }

    void givesBackWhatWasKept() {
        const State state;
        CopyRecord record;
        record.ProjectPath = "/home/planner/landscape.brn";
        leaveCopy(state, "a", "text", record);
        CopyFolder folder(state.path);
        const QList<CopyOffer> offers = folder.offers();
        QCOMPARE(offers.size(), 1);
        QCOMPARE(offers[0].Id, QString("a"));
        QCOMPARE(offers[0].ProjectPath, record.ProjectPath);
        QCOMPARE(offers[0].Species, 2);
        QVERIFY(offers[0].Announced && !offers[0].Saved && !offers[0].Damaged);
        QVERIFY(offers[0].Time.secsTo(QDateTime::currentDateTime()) < 60);
        const auto found = folder.claim("a");
        QVERIFY(found.has_value());
        QCOMPARE(found->Copy.Text, std::string("text"));
        QCOMPARE(found->Copy.Uncarried, copyOf("text").Uncarried);
        QCOMPARE(found->Record.Process, QCoreApplication::applicationPid());
    }

    void copyOfARunningProgramIsNeitherOfferedNorTouched() {
        const State state;
        CopyFolder running(state.path);
        running.keep("a", {}, copyOf("text"));
        CopyFolder other(state.path);
        QVERIFY(other.offers().isEmpty());
        QVERIFY(!other.claim("a").has_value());
        QVERIFY(!other.drop("a"));
        QVERIFY(running.offers().isEmpty());
        QVERIFY(!running.drop("a"));
        QCOMPARE(state.read("a.brn"), QByteArray("text"));
        running.keep("a", {}, copyOf("text 2"));
        QCOMPARE(state.read("a.brn"), QByteArray("text 2"));
    }

    void ofTwoProgramsOneOpensACopy() {
        const State state;
        leaveCopy(state, "a", "text");
        CopyFolder one(state.path);
        CopyFolder other(state.path);
        QCOMPARE(one.offers().size(), 1);
        QCOMPARE(other.offers().size(), 1);
        QVERIFY(one.claim("a").has_value());
        QVERIFY(!other.claim("a").has_value());
        QVERIFY(!other.drop("a"));
        one.release("a");
        QVERIFY(other.drop("a"));
        QVERIFY(!one.claim("a").has_value());
        QVERIFY(state.files().isEmpty());
    }

    void theLockGoesWithAProgramThatIsKilled() {
        const State state;
        const int signal = signalEnding([&] {
            CopyFolder folder(state.path);
            folder.keep("a", {}, copyOf("text"));
            ::raise(SIGKILL);
        });
        QCOMPARE(signal, SIGKILL);
        QCOMPARE(CopyFolder(state.path).offers().size(), 1);
    }

    void aKillBetweenAnyTwoCallsLeavesAWholeCopy() {
        for (int call = 0;; ++call) {
            const State state;
            leaveCopy(state, "a", "old");
            const int signal = signalEnding([&] {
                CopyFolder folder(state.path);
                (void)folder.claim("a");
                int calls = 0;
                folder.disk().BeforeCall = [&](Disk::Call) { return calls++ == call ? ::raise(SIGKILL) : 0; };
                folder.keep("a", {}, copyOf("new"));
            });
            CopyFolder folder(state.path);
            const auto offers = folder.offers();
            QCOMPARE(offers.size(), 1);
            QVERIFY2(!offers[0].Damaged, qPrintable(QString("call %1").arg(call)));
            const auto found = folder.claim("a");
            QVERIFY(found.has_value());
            QVERIFY(found->Copy.Text == "old" || found->Copy.Text == "new");
            QCOMPARE(found->Copy.Uncarried, copyOf(found->Copy.Text).Uncarried);
            if (signal == 0) {
                QVERIFY(call > 8);
                QCOMPARE(found->Copy.Text, std::string("new"));
                return;
            }
        }
    }

    void aFailureOfAnyCallIsToldAndLeavesAWholeCopy() {
        for (int failing = 0;; ++failing) {
            const State state;
            CopyFolder folder(state.path);
            folder.keep("a", {}, copyOf("old"));
            int calls = 0;
            folder.disk().BeforeCall = [&](Disk::Call) { return calls++ == failing ? ENOSPC : 0; };
            QString told;
            try {
                folder.keep("a", {}, copyOf("new"));
            } catch (const DiskFault& fault) {
                told = fault.what();
            }
            if (calls <= failing) {
                QVERIFY(failing > 8);
                return;
            }
            QVERIFY2(told.startsWith("No space left on device"), qPrintable(told));
            QVERIFY(told.contains(state.path));
            QVERIFY(state.files().filter(Disk::Temporary).isEmpty());
            const auto kept = CopyRecord::fromJson(state.read("a.json"));
            QVERIFY(kept && kept->contentOf(state.read("a.brn")) != nullptr);
            // The next time works.
            folder.keep("a", {}, copyOf("newer"));
            QCOMPARE(state.read("a.brn"), QByteArray("newer"));
            QVERIFY(CopyRecord::fromJson(state.read("a.json"))->contentOf("newer") != nullptr);
        }
    }

    // What was told of as failed may lie there all the same.
    void afterAFailureOfAnyCallALeftCopyIsWhole() {
        for (int failing = 0;; ++failing) {
            const State state;
            CopyFolder folder(state.path);
            folder.keep("a", {}, copyOf("old"));
            if (!failsToKeep(folder, "new", failing)) {
                QVERIFY(failing > 8);
                return;
            }
            folder.leave("a");
            const auto offers = folder.offers();
            QCOMPARE(offers.size(), 1);
            QVERIFY2(!offers[0].Damaged, qPrintable(QString("call %1").arg(failing)));
            QVERIFY(!offers[0].Announced);
        }
    }

    void afterAFailureOfAnyCallTheNextMayFailAtAnyCall() {
        for (int first = 0; first <= 12; ++first) {
            for (int second = 0; second <= 12; ++second) {
                const State state;
                CopyFolder folder(state.path);
                folder.keep("a", {}, copyOf("old"));
                failsToKeep(folder, "new", first);
                failsToKeep(folder, "newer", second);
                const auto kept = CopyRecord::fromJson(state.read("a.json"));
                QVERIFY2(kept && kept->contentOf(state.read("a.brn")) != nullptr,
                         qPrintable(QString("calls %1 and %2").arg(first).arg(second)));
            }
        }
    }

    void aFailureOfAnyCallOfTheFirstCopyIsTold() {
        for (int failing = 0;; ++failing) {
            const State state;
            CopyFolder folder(state.path);
            int calls = 0;
            folder.disk().BeforeCall = [&](Disk::Call) { return calls++ == failing ? EACCES : 0; };
            bool told = false;
            try {
                folder.keep("a", {}, copyOf("new"));
            } catch (const DiskFault&) {
                told = true;
            }
            if (calls <= failing) {
                QVERIFY(failing > 10);
                return;
            }
            QVERIFY(told);
            folder.keep("a", {}, copyOf("newer"));
            QCOMPARE(state.read("a.brn"), QByteArray("newer"));
        }
    }

    void aDiskThatTakesNoMoreIsTold() {
        const State state;
        CopyFolder folder(state.path);
        folder.keep("a", {}, copyOf("old"));
        bool told = false;
        try {
            const LargestFile limit(2000);
            folder.keep("a", {}, copyOf(std::string(5000, 'x')));
        } catch (const DiskFault&) {
            told = true;
        }
        QVERIFY(told);
        QCOMPARE(state.read("a.brn"), QByteArray("old"));
    }

    void whatCannotBeSyncedAtAllIsOnItsDisk() {
        const State state;
        Disk().sync("/dev/null");
        QVERIFY_EXCEPTION_THROWN(Disk().sync(state.home.filePath("none")), DiskFault);
    }

    void aFolderThatCannotBeMadeIsTold() {
        const State state;
        QFile file(state.home.filePath("state"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        CopyFolder folder(state.path);
        QVERIFY(folder.offers().isEmpty());
        QVERIFY_EXCEPTION_THROWN(folder.keep("a", {}, copyOf("text")), DiskFault);
        CopyFolder nowhere("/proc/none/brenica");
        QVERIFY(nowhere.offers().isEmpty());
        QVERIFY_EXCEPTION_THROWN(nowhere.keep("a", {}, copyOf("text")), DiskFault);
    }

    void theSameTextIsNotWrittenAgain() {
        const State state;
        CopyFolder folder(state.path);
        folder.keep("a", {}, copyOf("text"));
        int renames = 0;
        folder.disk().BeforeCall = [&](Disk::Call call) { return renames += call == Disk::Call::Rename, 0; };
        CopyRecord saved;
        saved.Saved = true;
        folder.keep("a", saved, copyOf("text"));
        QCOMPARE(renames, 1);
        QVERIFY(CopyRecord::fromJson(state.read("a.json"))->Saved);
    }

    void aCopyThatIsNotWhatWasWrittenIsKeptAndNotOpened_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("another text") << "a.brn" << QByteArray("texT");
        QTest::newRow("cut short") << "a.brn" << QByteArray("te");
        QTest::newRow("emptied") << "a.brn" << QByteArray();
        QTest::newRow("no record") << "a.json" << QByteArray();
        QTest::newRow("broken record") << "a.json" << QByteArray("{\"copy\":");
        QTest::newRow("record of something else") << "a.json" << QByteArray("[1, 2]");
    }
    void aCopyThatIsNotWhatWasWrittenIsKeptAndNotOpened() {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        const State state;
        leaveCopy(state, "a", "text");
        state.write(file, content);
        CopyFolder folder(state.path);
        const QList<CopyOffer> offers = folder.offers();
        QCOMPARE(offers.size(), 1);
        QVERIFY(offers[0].Damaged);
        QCOMPARE(offers[0].File, state.path + "/a.brn");
        QVERIFY(!folder.claim("a").has_value());
        QCOMPARE(state.read(file), content);
        QVERIFY(folder.drop("a"));
        QVERIFY(state.files().isEmpty());
    }

    void aCopyWithoutARecordIsDamaged() {
        const State state;
        leaveCopy(state, "a", "text");
        QVERIFY(QFile::remove(state.path + "/a.json"));
        const QList<CopyOffer> offers = CopyFolder(state.path).offers();
        QCOMPARE(offers.size(), 1);
        QVERIFY(offers[0].Damaged);
    }

    void aDamagedCopyIsToldUnderItsProject() {
        const State state;
        CopyRecord record;
        record.ProjectPath = "/home/planner/landscape.brn";
        leaveCopy(state, "a", "text", record);
        state.write("a.brn", "texT");
        const QList<CopyOffer> offers = CopyFolder(state.path).offers();
        QVERIFY(offers[0].Damaged);
        QCOMPARE(offers[0].ProjectPath, record.ProjectPath);
    }

    void aRecordWithoutACopyGoes() {
        const State state;
        leaveCopy(state, "a", "text");
        QVERIFY(QFile::remove(state.path + "/a.brn"));
        QVERIFY(CopyFolder(state.path).offers().isEmpty());
        QVERIFY(state.files().isEmpty());
    }

    void copiesGoAfterThirtyDays_data() {
        QTest::addColumn<int>("days");
        QTest::addColumn<bool>("gone");
        QTest::newRow("29 days") << 29 << false;
        QTest::newRow("30 days") << 30 << true;
    }
    void copiesGoAfterThirtyDays() {
        QFETCH(int, days);
        QFETCH(bool, gone);
        const State state;
        leaveCopy(state, "a", "text");
        auto record = CopyRecord::fromJson(state.read("a.json"));
        record->Time = record->Time.addDays(-days);
        state.write("a.json", record->toJson());
        QCOMPARE(CopyFolder(state.path).offers().isEmpty(), gone);
        QCOMPARE(state.files().isEmpty(), gone);
    }

    void anOldCopyOfARunningProgramStays() {
        const State state;
        CopyFolder running(state.path);
        running.keep("a", {}, copyOf("text"));
        auto record = CopyRecord::fromJson(state.read("a.json"));
        record->Time = record->Time.addDays(-40);
        state.write("a.json", record->toJson());
        QVERIFY(CopyFolder(state.path).offers().isEmpty());
        QCOMPARE(state.read("a.brn"), QByteArray("text"));
    }

    void leftCopiesAreListedOnly() {
        const State state;
        CopyFolder folder(state.path);
        folder.keep("a", {}, copyOf("text"));
        folder.leave("a");
        const QList<CopyOffer> offers = folder.offers();
        QCOMPARE(offers.size(), 1);
        QVERIFY(!offers[0].Announced);
    }

    void theNewestComesFirst() {
        const State state;
        for (const char* id : {"a", "b", "c"}) leaveCopy(state, id, id);
        auto record = CopyRecord::fromJson(state.read("b.json"));
        record->Time = record->Time.addDays(1);
        state.write("b.json", record->toJson());
        QCOMPARE(CopyFolder(state.path).offers().first().Id, QString("b"));
    }
};

const desktop_test::Registered<CopyFolderTest> registered;

#include "copy_folder_test.moc"
