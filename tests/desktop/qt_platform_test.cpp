// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/qt_platform.h"

#include <QClipboard>
#include <QDir>
#include <QFontMetricsF>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>

#include "desktop/desktop_test.h"
#include "support/largest_file.h"
#include "ui/chart.h"
#include "ui/errors.h"

namespace {

/// Windows whose every chart is a red picture.
class RedWindows : public desktop::Windows {
public:
    int Followed = 0;
    int PendingPasses = 0;

    void followForms() override { ++Followed; }
    void handlePendingEvents() override { ++PendingPasses; }
    QWidget* ownerOfBoxes() override { return nullptr; }
    QPixmap pictureOf(const ui::Chart&) override {
        QPixmap picture(30, 20);
        picture.fill(Qt::red);
        picture.setDevicePixelRatio(3);
        return picture;
    }
};

struct Desk {
    desktop::Scale scale{QApplication::font()};
    RedWindows windows;
    desktop::QtPlatform platform{scale, windows};
    ScriptedPlatform other;
    ui::FormWindow form{other, "frmTest"};
    ui::Chart chart{form, "chtTest"};
    QTemporaryDir folder;

    std::string path(const char* name) const { return folder.filePath(name).toStdString(); }
    int saveError(const std::string& path) {
        try {
            platform.SavePicture(path);
        } catch (const ui::RunTimeError& error) {
            return error.Number;
        }
        return 0;
    }
};

/// Whether a box shows the default pointer, and what is in force when it is gone.
template <class Show>
bool boxHasDefaultPointer(Show show) {
    bool usual = false;
    QTimer::singleShot(0, qApp, [&] {
        usual = QApplication::overrideCursor() == nullptr;
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    });
    show();
    return usual;
}

}  // namespace

class QtPlatformTest : public QObject {
    Q_OBJECT

private slots:
    void textsAreAsWideAsTheyAreDrawn() {
        Desk desk;
        for (const ui::Font& font : {ui::Font{}, ui::Font{.Size = 16}, ui::Font{.Bold = true}}) {
            const QFontMetricsF metrics(desk.scale.font(font));
            for (const char* text : {"", "i", "Update species list", "é▲", "Update species list"}) {
                const double pixels = metrics.horizontalAdvance(QString::fromUtf8(text));
                const int width = desk.platform.textWidth(text, font);
                QVERIFY(desk.scale.pixels(width) >= pixels);
                QVERIFY(desk.scale.pixels(width) <= pixels + 2);
                QCOMPARE(desk.platform.textWidth(text, font), width);
            }
        }
    }

    void aTextIsMeasuredOnce() {
        Desk desk;
        const std::string text(20000, 'w');
        QElapsedTimer time;
        time.start();
        desk.platform.textWidth(text, {});
        const qint64 once = time.nsecsElapsed();
        time.restart();
        for (int i = 0; i < 10; ++i) desk.platform.textWidth(text, {});
        QVERIFY2(time.nsecsElapsed() < once, qPrintable(QString::number(once)));
    }

    void theScreenIsAsLargeAsTheDesktopSays() {
        const Desk desk;
        const QSize screen = QApplication::primaryScreen()->availableSize();
        QVERIFY(std::abs(desk.scale.pixels(desk.platform.screenSize().Width) - screen.width()) <= 1);
        QVERIFY(std::abs(desk.scale.pixels(desk.platform.screenSize().Height) - screen.height()) <= 1);
    }

    void waitPointersArePiledUp() {
        Desk desk;
        desk.platform.setMousePointer(ui::MousePointer::Wait);
        desk.platform.setMousePointer(ui::MousePointer::Wait);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        desk.platform.setMousePointer(ui::MousePointer::Default);
        QVERIFY(QApplication::overrideCursor() != nullptr);
        desk.platform.setMousePointer(ui::MousePointer::Default);
        QVERIFY(QApplication::overrideCursor() == nullptr);
        desk.platform.setMousePointer(ui::MousePointer::Default);
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }

    void aBoxLiftsTheWaitPointerAndPutsItBack() {
        Desk desk;
        desk.platform.setMousePointer(ui::MousePointer::Wait);
        desk.platform.setMousePointer(ui::MousePointer::Wait);
        QVERIFY(boxHasDefaultPointer([&] { desk.platform.askYesNo("Sure?", "title"); }));
        QVERIFY(boxHasDefaultPointer([&] { desk.platform.showMessage("text", "", ui::MessageIcon::None); }));
        QVERIFY(boxHasDefaultPointer([&] { desk.platform.askText("How many?", "title", "1"); }));
        QCOMPARE(desk.windows.Followed, 3);
        desk.platform.setMousePointer(ui::MousePointer::Default);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        desk.platform.setMousePointer(ui::MousePointer::Default);
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }

    void aPictureGoesToTheClipboardAndFromThereToABitmap() {
        Desk desk;
        desk.platform.copyPicture(desk.chart);
        QCOMPARE(QApplication::clipboard()->image().size(), QSize(30, 20));
        desk.platform.SavePicture(desk.path("chart.bmp"));
        QFile file(desk.folder.filePath("chart.bmp"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.read(2), QByteArray("BM"));
        const QImage saved(file.fileName());
        QCOMPARE(saved.size(), QSize(30, 20));
        QCOMPARE(saved.pixelColor(10, 10), QColor(Qt::red));
        const double dots = QApplication::primaryScreen()->logicalDotsPerInch() * 3 / 0.0254;
        QVERIFY(std::abs(saved.dotsPerMeterX() - dots) <= 1);
        QVERIFY(std::abs(saved.dotsPerMeterY() - dots) <= 1);
    }

    void aPictureReplacesAnOlderFile() {
        Desk desk;
        QFile old(desk.folder.filePath("chart.bmp"));
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write(QByteArray(100000, 'x'));
        old.close();
        desk.platform.copyPicture(desk.chart);
        desk.platform.SavePicture(desk.path("chart.bmp"));
        QVERIFY(QFileInfo(old).size() < 100000);
        QVERIFY(!QImage(old.fileName()).isNull());
    }

    void aPictureThatCannotBeSavedLeavesWhatIsThere() {
        Desk desk;
        desk.platform.copyPicture(desk.chart);
        QCOMPARE(desk.saveError(desk.path("nowhere/chart.bmp")), 76);
        QVERIFY(QDir(desk.folder.path()).mkdir("taken"));
        QCOMPARE(desk.saveError(desk.path("taken")), 75);
        QCOMPARE(QDir(desk.folder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
                 QStringList("taken"));
    }

    void aPictureThatFindsNoRoomIsToldAsAFullDisk() {
        Desk desk;
        desk.platform.copyPicture(desk.chart);
        const LargestFile limit(100);
        QCOMPARE(desk.saveError(desk.path("chart.bmp")), 61);
        QVERIFY(QDir(desk.folder.path()).isEmpty());
    }

    void withoutAPictureTheOldFileStays() {
        Desk desk;
        QFile old(desk.folder.filePath("chart.bmp"));
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("old");
        old.close();
        QApplication::clipboard()->setText("no picture");
        QCOMPARE(desk.saveError(desk.path("chart.bmp")), 380);
        QCOMPARE(QFileInfo(old).size(), 3);
    }

    void pendingEventsAreLetThroughByTheWindows() {
        Desk desk;
        desk.platform.processPendingEvents();
        QCOMPARE(desk.windows.PendingPasses, 1);
    }

    void theProgramsFolderHoldsTheExamples() {
        const Desk desk;
        const QDir folder(QString::fromStdString(desk.platform.programFolder()));
        QVERIFY(folder.exists());
        const bool examples = folder.dirName() == "examples";
        QVERIFY(examples || folder == QDir(QApplication::applicationDirPath()));
        if (examples) QVERIFY(!folder.entryList({"*.brn"}).isEmpty());
    }

    void theDecimalSeparatorIsTheDesktops() {
        const Desk desk;
        const bool comma = QLocale::system().decimalPoint() == ",";
        const bool wanted = qEnvironmentVariable("LC_ALL").startsWith("de");
        QCOMPARE(comma, wanted);
        QCOMPARE(desk.platform.decimalSeparator() == ui::DecimalSeparator::Comma, wanted);
    }

    void theDecimalSeparatorMayBeAComma() {
        if (qEnvironmentVariable("LC_ALL").startsWith("de")) return;  // in the program started below
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LC_ALL", "de_DE.UTF-8");
        program.setProcessEnvironment(environment);
        program.start(QApplication::applicationFilePath(),
                      {"QtPlatformTest", "theDecimalSeparatorIsTheDesktops"});
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitCode(), 0);
    }
};

static const desktop_test::Registered<QtPlatformTest> registered;

#include "qt_platform_test.moc"
