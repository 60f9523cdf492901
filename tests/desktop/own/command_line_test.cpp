// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/command_line.h"

#include <QDir>

#include "desktop/desktop_test.h"

namespace {

desktop::CommandLine read(const QStringList& arguments) {
    return desktop::readCommandLine(QStringList("brenica") + arguments);
}

}  // namespace

class CommandLineTest : public QObject {
    Q_OBJECT

private slots:
    void withoutArgumentsTheWindowOpensAlone() {
        const desktop::CommandLine line = read({});
        QCOMPARE(line.Project, QString());
        QCOMPARE(line.Answer, QString());
        QCOMPARE(line.Fault, QString());
    }

    void aProjectIsKnownByItsAbsolutePath() {
        QCOMPARE(read({"/place/a b.brn"}).Project, QString("/place/a b.brn"));
        QCOMPARE(read({"here.brn"}).Project, QDir::current().filePath("here.brn"));
        QCOMPARE(read({"--", "-odd.brn"}).Project, QDir::current().filePath("-odd.brn"));
    }

    void helpAndVersionAreAnsweredWhateverStandsBesideThem() {
        for (const char* option : {"--help", "-h"})
            QVERIFY2(read({"x.brn", option}).Answer.startsWith("Usage: brenica [FILE]\n"), option);
        QCOMPARE(read({"--odd", "--version"}).Answer, QString("brenica 2.0.0\n"));
        QCOMPARE(read({"--", "--help"}).Answer, QString());
    }

    void optionsOfQtAreNoHelp() { QCOMPARE(read({"-platform", "-qwindowtitlehv"}).Answer, QString()); }

    void wrongUsageIsToldInALine_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("option") << QStringList{"--odd"};
        QTest::newRow("two") << QStringList{"a.brn", "b.brn"};
        QTest::newRow("nameless") << QStringList{""};
    }

    void wrongUsageIsToldInALine() {
        QFETCH(QStringList, arguments);
        const desktop::CommandLine line = read(arguments);
        QVERIFY(!line.Fault.isEmpty());
        QVERIFY(!line.Fault.contains('\n'));
        QCOMPARE(line.Project, QString());
    }
};

static const desktop_test::Registered<CommandLineTest> registered;

#include "command_line_test.moc"
