// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktop.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>

#include "desktop/desktop_test.h"
#include "ui/errors.h"

namespace {

constexpr int Patience = 20000;  // milliseconds until a loop that should have ended is ended

/// The texts of the boxes that a loop has shown, each answered by Enter.
class Boxes : public QObject {
public:
    Boxes() {
        connect(&look_, &QTimer::timeout, this, [this] { answer(); });
        look_.start(5);
    }

    QStringList Texts;

private:
    void answer() {
        QWidget* box = QApplication::activeModalWidget();
        if (box == nullptr) return;
        Texts << box->accessibleDescription();
        QTest::keyClick(box, Qt::Key_Return);
    }

    QTimer look_;
};

/// The texts that a part of the window shows.
QStringList textsOf(const QWidget& widget) {
    QStringList texts;
    for (const QLabel* label : widget.findChildren<QLabel*>()) {
        if (!label->text().isEmpty()) texts << label->text();
    }
    return texts;
}

/// Runs the event loop until the program ends it, and returns its exit code; -1 where it does not.
int exitCodeAfter(const std::function<void()>& action) {
    QTimer::singleShot(0, qApp, action);
    QTimer watch;
    watch.setSingleShot(true);
    QObject::connect(&watch, &QTimer::timeout, qApp, [] { QApplication::exit(-1); });
    watch.start(Patience);
    return QApplication::exec();
}

/// The program, started.
struct Running {
    desktop::Desktop desktop;

    Running() { desktop.start(); }
    ~Running() { desktop_test::endEventLoop(); }

    static QList<QWidget*> windows(const char* name) {
        QList<QWidget*> found;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == name) found.append(window);
        }
        return found;
    }
    QWidget& splash() { return *windows("frmSplash").first(); }
    QWidget& splashChild(const char* name) { return *splash().findChild<QWidget*>(name); }
    frmBrenica& form() { return *desktop.program().MainForm(); }
    desktop::FormView& window() { return *desktop.mainWindow(); }

    void openMain() {
        desktop.run([this] { desktop.program().Splash()->UserClick(); });
    }
};

/// The program in its main window.
struct InMainWindow : Running {
    InMainWindow() { openMain(); }
};

}  // namespace

class DesktopTest : public QObject {
    Q_OBJECT

private slots:
    void startsWithTheSplashAlone() {
        Running program;
        QVERIFY(program.splash().isVisible());
        QVERIFY(program.splash().windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(program.desktop.mainWindow() == nullptr);
    }

    void theSplashIsGoneWhenItsTimeIsUp() {
        Running program;
        QCOMPARE(program.desktop.program().Splash()->SplashTimer.Interval, 5000);
        program.desktop.run([&] { program.desktop.program().Splash()->SplashTimer.Elapse(); });
        QVERIFY(!program.splash().isVisible());
        QVERIFY(program.window().isVisible());
    }

    void aClickAnywhereOnTheSplashOpensTheMainWindow_data() {
        QTest::addColumn<QByteArray>("name");
        for (const char* name : {"imgSplash", "picHalvornLogo", "lblBrenicaSoftware", "lblVersion"})
            QTest::newRow(name) << QByteArray(name);
    }

    void aClickAnywhereOnTheSplashOpensTheMainWindow() {
        QFETCH(QByteArray, name);
        Running program;
        QTest::mouseClick(&program.splashChild(name.constData()), Qt::LeftButton);
        QVERIFY(program.desktop.mainWindow() != nullptr);
        QVERIFY(program.window().isVisible());
        QVERIFY(!program.splash().isVisible());
    }

    void aKeyOpensTheMainWindow() {
        Running program;
        QTest::keyClick(&program.splash(), Qt::Key_A);
        QVERIFY(program.desktop.mainWindow() != nullptr);
        QVERIFY(program.window().isVisible());
    }

    void aSecondClickMakesNoSecondWindow() {
        Running program;
        QTest::mouseClick(&program.splashChild("lblVersion"), Qt::LeftButton);
        const desktop::FormView* first = program.desktop.mainWindow();
        QTest::mouseClick(&program.splashChild("lblVersion"), Qt::LeftButton);
        QTest::keyClick(&program.splash(), Qt::Key_A);
        QCOMPARE(program.desktop.mainWindow(), first);
        QCOMPARE(Running::windows("frmBrenica").size(), 1);
    }

    void closingTheSplashEndsTheProgram() {
        Running program;
        QCOMPARE(exitCodeAfter([&] { program.splash().close(); }), 0);
        QVERIFY(program.desktop.mainWindow() == nullptr);
    }

    void theMainWindowOpensMaximised() {
        InMainWindow program;
        QVERIFY(program.window().isMaximized());
        QCOMPARE(program.form().WindowState(), ui::WindowState::Maximized);
        const QWidget& pages = program.window().viewOf(program.form().tabBrenica)->widget();
        QVERIFY(pages.width() <= pages.parentWidget()->width());
        QVERIFY(pages.width() >= pages.parentWidget()->width() - 2);
    }

    void aRestoredWindowGoesToItsPlaceInItsLeastSizeOrMore() {
        InMainWindow program;
        const desktop::Scale& scale = program.desktop.scale();
        program.window().showNormal();
        program.window().setGeometry(3, 4, 200, 100);
        const auto restored = [&] { return program.form().WindowState() == ui::WindowState::Normal; };
        QTRY_VERIFY(restored() && program.form().Width() == 11000);
        QCOMPARE(program.form().Height(), 7000);
        QCOMPARE(program.form().Left(), 500);
        QCOMPARE(program.form().Top(), 500);
        QCOMPARE(program.window().frameGeometry().topLeft(), QPoint(scale.pixels(500), scale.pixels(500)));
        const int width = scale.pixels(11000 - ui::FormWindow::BorderWidth);
        QCOMPARE(program.window().width(), width);
        program.window().resize(width + 300, program.window().height());
        QTRY_VERIFY(program.form().Width() > 11000);
        QCOMPARE(program.window().width(), width + 300);
        const auto& area = *program.window().findChild<QScrollArea*>();
        QCOMPARE(area.horizontalScrollBar()->maximum(), 0);
        QCOMPARE(area.verticalScrollBar()->maximum(), 0);
    }

    void aScrollBarOfOneDirectionMakesNoneOfTheOther() {
        InMainWindow program;
        auto& area = *program.window().findChild<QScrollArea*>();
        const desktop::Scale& scale = program.desktop.scale();
        const auto twips = [&](int pixels) {
            return scale.twipsWithin(pixels) + ui::FormWindow::BorderWidth;
        };
        program.form().LeastSize = {twips(area.width()), twips(area.height() + 300)};
        QResizeEvent resized(program.window().size(), program.window().size());
        QApplication::sendEvent(&program.window(), &resized);
        QVERIFY(area.verticalScrollBar()->maximum() > 0);
        QCOMPARE(area.horizontalScrollBar()->maximum(), 0);
        program.form().LeastSize = {twips(area.width() + 300), twips(area.height() - 60)};
        QApplication::sendEvent(&program.window(), &resized);
        QVERIFY(area.horizontalScrollBar()->maximum() > 0);
        QCOMPARE(area.verticalScrollBar()->maximum(), 0);
    }

    void minimisingChangesNothing() {
        InMainWindow program;
        const int width = program.form().tabBrenica.Width();
        program.window().showMinimized();
        QTRY_COMPARE(program.form().WindowState(), ui::WindowState::Minimized);
        QCOMPARE(program.form().tabBrenica.Width(), width);
        program.window().showMaximized();
        QTRY_COMPARE(program.form().WindowState(), ui::WindowState::Maximized);
        QCOMPARE(program.form().tabBrenica.Width(), width);
    }

    void theCloseBoxEndsTheProgramAndAsksNothing() {
        InMainWindow program;
        program.form().ProjectChanged = true;
        const Boxes boxes;
        QCOMPARE(exitCodeAfter([&] { program.window().close(); }), 0);
        QCOMPARE(boxes.Texts, QStringList());
        QVERIFY(!program.window().isVisible());
    }

    void aFailureInAUserActionIsShownInOneBoxAndEndsTheProgram() {
        InMainWindow program;
        const Boxes boxes;
        int later = 0;
        program.form().mnuSaveGraph.Click = [] { ui::raise(ui::ErrorNumber::DiskFull); };
        const int code = exitCodeAfter([&] {
            program.window().findChild<QAction*>("mnuSaveGraph")->trigger();
            program.window().findChild<QAction*>("mnuSaveGraph")->trigger();
            program.desktop.run([&] { ++later; });
        });
        QVERIFY(code > 0);
        QCOMPARE(boxes.Texts, QStringList("Disk full"));
        QCOMPARE(later, 0);
        QVERIFY(!program.window().isVisible());
    }

    void exhaustedMemoryIsAFailureToo() {
        InMainWindow program;
        const Boxes boxes;
        QVERIFY(exitCodeAfter([&] { program.desktop.run([] { throw std::bad_alloc(); }); }) > 0);
        QCOMPARE(boxes.Texts, QStringList("Out of memory"));
    }

    void actionsWhileTheFailureIsShownDoNothing() {
        InMainWindow program;
        int actions = 0;
        int before = 0;
        QTimer intruder;
        intruder.callOnTimeout([&] { program.desktop.run([&] { ++actions; }); });
        intruder.start(1);
        const Boxes boxes;
        const int code = exitCodeAfter([&] {
            program.desktop.run([&] {
                before = actions;
                ui::raise(ui::ErrorNumber::Overflow);
            });
        });
        QVERIFY(code > 0);
        QTest::qWait(20);
        QCOMPARE(actions, before);
        QCOMPARE(boxes.Texts, QStringList("Overflow"));
    }

    void aFailureTakesTheWaitPointerAway() {
        InMainWindow program;
        const Boxes boxes;
        QApplication::setOverrideCursor(Qt::WaitCursor);
        QVERIFY(exitCodeAfter([&] { program.desktop.run([] { ui::raise(ui::ErrorNumber::Overflow); }); }) >
                0);
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }

    void boxesBelongToTheWindowOnView() {
        Running program;
        QCOMPARE(program.desktop.ownerOfBoxes(), &program.splash());
        program.openMain();
        QCOMPARE(program.desktop.ownerOfBoxes(), &program.window());
    }

    void theWindowShowsHowFarTheFormHasComeBeforeABoxIsUp() {
        InMainWindow program;
        QString caption;
        QTimer::singleShot(0, qApp, [&] {
            caption = program.window().windowTitle();
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
        });
        program.desktop.run([&] {
            program.form().Caption("half way");
            program.form().GetPlatform().showMessage("text", "title", ui::MessageIcon::None);
        });
        QCOMPARE(caption, QString("half way"));
    }

    void aKeyThatWasPressedForABoxPressesNoButton() {
        InMainWindow w;
        QWidget& button = w.window().viewOf(w.form().cmdUpdateSpecies)->widget();
        int pressed = 0;
        w.form().cmdUpdateSpecies.Click = [&] {
            ++pressed;
            if (pressed == 1) w.form().GetPlatform().showMessage("text", "title", ui::MessageIcon::None);
        };
        const Boxes boxes;
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Return);
        QCOMPARE(boxes.Texts.size(), 1);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Return}) {
            QTest::keyClick(&button, key, Qt::NoModifier, 100);
            QCOMPARE(pressed, 1);
        }
        QTest::keyClick(&button, Qt::Key_Return, Qt::NoModifier, desktop::SpentKeys::Pause + 100);
        QCOMPARE(pressed, 2);
    }

    void theSplashLeavesRoomOnASmallScreen() {
        const QFont before = QApplication::font();
        const auto restored = qScopeGuard([&] { QApplication::setFont(before); });
        for (const int size : {9, 14, 28}) {
            QFont font = before;
            font.setPointSize(size);
            QApplication::setFont(font);
            Running program;
            const QSize screen = program.splash().screen()->availableSize();
            QVERIFY(program.splash().width() <= screen.width() * 3 / 4);
            QVERIFY(program.splash().height() <= screen.height() * 3 / 4);
            for (const QLabel* label : program.splash().findChildren<QLabel*>())
                QVERIFY2(label->width() >= label->fontMetrics().horizontalAdvance(label->text()),
                         qPrintable(label->text()));
        }
    }

    void nothingBeginsUnderABox() {
        InMainWindow w;
        bool ran = false;
        QTimer user;
        connect(&user, &QTimer::timeout, [&] {
            QWidget* box = QApplication::activeModalWidget();
            if (box == nullptr) return;
            user.stop();
            w.desktop.run([&] { ran = true; });
            QTest::keyClick(box, Qt::Key_Return);
        });
        user.start(5);
        w.desktop.run([&] { w.form().GetPlatform().showMessage("text", "title", ui::MessageIcon::None); });
        QVERIFY(!ran);
        w.desktop.run([&] { ran = true; });
        QVERIFY(ran);
    }

    void theSplashesTimerEndsWithIt() {
        InMainWindow w;
        for (QTimer* timer : w.splash().findChildren<QTimer*>()) QVERIFY(!timer->isActive());
        QVERIFY(!w.desktop.program().Splash()->SplashTimer.Enabled);
    }

    void theExitCommandEndsTheProgram() {
        InMainWindow program;
        program.form().ProjectChanged = false;
        const auto quit = [&] { QTest::keyClick(&program.window(), Qt::Key_Q, Qt::ControlModifier); };
        QCOMPARE(exitCodeAfter(quit), 0);
        QVERIFY(program.form().Unloaded());
    }

    void whatFailsInSilenceIsToldAtTheWindowsEdge() {
        InMainWindow program;
        const auto* strip = program.window().findChild<QWidget*>("ownStrip");
        QVERIFY(!strip->isVisible());
        program.desktop.run([&] {
            QVERIFY_EXCEPTION_THROWN(program.form().SaveProject("/nowhere/landscape.brn"), ui::RunTimeError);
        });
        QVERIFY(strip->isVisible());
        QCOMPARE(textsOf(*strip).first().left(27), QString("landscape.brn was not saved"));
    }

    void aFileThatEndsTheProgramIsNamedBesideItsBox() {
        InMainWindow program;
        const auto* strip = program.window().findChild<QWidget*>("ownStrip");
        QStringList told;
        QTimer::singleShot(0, qApp, [&] {
            if (strip->isVisible()) told = textsOf(*strip);
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
        });
        program.desktop.run([&] { program.form().ImportData(1, "/nowhere/species.txt", false); });
        QCOMPARE(told.value(0).left(33), QString("species.txt could not be imported"));
    }

    void chartsAreCopiedInAResolutionThatPrints() {
        InMainWindow program;
        const ui::Chart& chart = program.form().chtSummary(0);
        const QSize seen = program.window().viewOf(chart)->widget().size();
        QCOMPARE(program.desktop.pictureOf(chart).size(), 3 * seen);
    }

    void twoProgramsLiveSideBySide() {
        InMainWindow one;
        InMainWindow other;
        one.desktop.run([&] { one.form().txtTotalSpecies.Text("7"); });
        QCOMPARE(one.window().findChild<QLineEdit*>("txtTotalSpecies")->text(), QString("7"));
        QCOMPARE(other.window().findChild<QLineEdit*>("txtTotalSpecies")->text(), QString("0"));
    }
};

static const desktop_test::Registered<DesktopTest> registered;

#include "desktop_test.moc"
