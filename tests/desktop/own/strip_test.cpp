// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/strip.h"

#include <QAccessible>
#include <QMenuBar>
#include <QScrollBar>
#include <QSignalSpy>
#include <cmath>

#include "desktop/own/strip_fixture.h"
#include "ui/combo_box.h"

using desktop_test::copyOf;
using desktop_test::StripWindow;

namespace {

constexpr const char* LongPath =
    "/home/planner/Documents/Landscapes of the northern uplands/The catchment of the river Söllen and its moors.brn";

QList<desktop::CopyOffer> manyCopies(int count) {
    QList<desktop::CopyOffer> offers;
    for (int i = 0; i < count; ++i) offers << copyOf(LongPath, QString::number(i));
    return offers;
}

double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QPalette darkPalette() {
    QPalette palette(QColor(0x32, 0x32, 0x32));
    palette.setColor(QPalette::WindowText, Qt::white);
    return palette;
}

void maximise(QWidget& window, QSize size) {
    window.resize(size);
    window.overrideWindowState(Qt::WindowMaximized);
    QResizeEvent resized(size, size);
    QApplication::sendEvent(&window, &resized);
}

}  // namespace

class StripTest : public QObject {
    Q_OBJECT

private slots:
    void isNotThereWithoutAnythingToSay() {
        StripWindow w;
        QVERIFY(!w.strip().isVisible());
        const auto& area = *w.view->findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(area.geometry().bottom(), w.view->height() - 1);
    }

    void takesNoFocusWhenItComes() {
        StripWindow w;
        QWidget& box = w.widgetOf(w.form->txtTotalSpecies);
        box.setFocus();
        w.copies.give({copyOf("/a/landscape.brn")});
        QVERIFY(w.strip().isVisible());
        QVERIFY(box.hasFocus());
        w.copies.failToKeep("Disk full.");
        QVERIFY(box.hasFocus());
        w.copies.give({});
        w.copies.failToKeep("");
        QVERIFY(!w.strip().isVisible());
        QVERIFY(box.hasFocus());
    }

    void takesNoFocusByAClick() {
        StripWindow w;
        QWidget& box = w.widgetOf(w.form->txtTotalSpecies);
        box.setFocus();
        w.copies.give({copyOf("/a/landscape.brn")});
        w.click("landscape.brn", "Drop it");
        QVERIFY(box.hasFocus());
        w.click("landscape.brn", "Take it back");
        QVERIFY(box.hasFocus());
        QTest::mouseClick(&w.strip(), Qt::LeftButton);
        QVERIFY(box.hasFocus());
    }

    void leavesTheOrderOfTabAsItIs() {
        StripWindow w;
        const auto walk = [&w] {
            QStringList names;
            w.widgetOf(w.form->txtTotalSpecies).setFocus();
            do {
                names << w.view->focusWidget()->objectName();
                w.key(Qt::Key_Tab);
            } while (names.size() < 50 && w.view->focusWidget() != &w.widgetOf(w.form->txtTotalSpecies));
            return names;
        };
        const QStringList before = walk();
        w.copies.give({copyOf("/a/landscape.brn")});
        QVERIFY(before.size() > 5 && before.size() < 50);
        QCOMPARE(walk(), before);
    }

    void leavesACellThatIsEditedOpen() {
        StripWindow w;
        w.run([&] {
            w.form->txtTotalSpecies.Text("3");
            w.form->cmdUpdateSpecies.UserClick();
        });
        QWidget& grid = w.widgetOf(w.form->flxCandidateSpecies);
        grid.setFocus();
        w.run([&] { w.form->flxCandidateSpecies.UserMoveTo(1, 1); });
        QTest::keyClicks(&grid, "An");
        w.copies.failToKeep("Disk full.");
        QVERIFY(w.form->flxCandidateSpecies.Editing());
        QTest::keyClicks(w.view->focusWidget(), "t");
        w.key(Qt::Key_Return);
        QCOMPARE(w.form->flxCandidateSpecies.TextMatrix(1, 1), std::string("Ant"));
    }

    void nothingIsPressedForAMomentWhenALineHasGone() {
        StripWindow w;
        w.strip().TimeToRest = 60000;
        w.copies.give({copyOf("/a/one.brn", "1"), copyOf("/a/two.brn", "2")});
        w.copies.give({copyOf("/a/two.brn", "2")});
        w.click("two.brn", "Open it");
        w.key(Qt::Key_F6);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) w.key(key);
        QVERIFY(w.copies.Log.isEmpty());
        w.key(Qt::Key_Tab);
        QVERIFY(w.button("two.brn", "Drop it")->hasFocus());
        w.strip().TimeToRest = 0;
        w.copies.give({copyOf("/a/three.brn", "3")});
        w.click("three.brn", "Open it");
        QCOMPARE(w.copies.Log, QStringList("open 3"));
    }

    void aKeyThatIsHeldPressesNothingThatComesNext() {
        StripWindow w;
        w.strip().TimeToRest = 300;
        w.copies.give({copyOf("/a/one.brn", "1"), copyOf("/a/two.brn", "2")});
        w.key(Qt::Key_F6);
        w.copies.give({copyOf("/a/two.brn", "2")});
        for (int i = 0; i < 6; ++i) {
            w.key(Qt::Key_Return);
            QTest::qWait(100);
        }
        QVERIFY(w.copies.Log.isEmpty());
        QTest::qWait(400);
        w.key(Qt::Key_Return);
        QCOMPARE(w.copies.Log, QStringList("open 2"));
    }

    void keysLeadInAroundAndBack() {
        StripWindow w;
        QWidget& box = w.widgetOf(w.form->txtTotalSpecies);
        box.setFocus();
        w.copies.give({copyOf("/a/landscape.brn")});
        QAbstractButton* open = w.button("landscape.brn", "Open it");
        QAbstractButton* drop = w.button("landscape.brn", "Drop it");
        QAbstractButton* close = w.button("landscape.brn", "Close this message");
        w.key(Qt::Key_F6);
        QVERIFY(open->hasFocus());
        w.key(Qt::Key_Tab);
        QVERIFY(drop->hasFocus());
        w.key(Qt::Key_Right);
        QVERIFY(close->hasFocus());
        w.key(Qt::Key_Tab);
        QVERIFY(open->hasFocus());
        w.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(close->hasFocus());
        w.key(Qt::Key_Left);
        QVERIFY(drop->hasFocus());
        w.key(Qt::Key_Escape);
        QVERIFY(box.hasFocus());
        w.key(Qt::Key_F6);
        QVERIFY(open->hasFocus());
        w.key(Qt::Key_F6);
        QVERIFY(box.hasFocus());
    }

    void theFocusIsSeenOnEveryButton() {
        StripWindow w;
        w.widgetOf(w.form->txtTotalSpecies).setFocus();
        w.copies.give({copyOf("/a/landscape.brn")});
        for (QAbstractButton* button : w.strip().findChildren<QAbstractButton*>()) {
            const QImage before = button->grab().toImage();
            button->setFocus();
            QVERIFY2(button->grab().toImage() != before, qPrintable(button->accessibleName()));
        }
    }

    void enterAndSpacePress_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << static_cast<int>(Qt::Key_Return);
        QTest::newRow("Space") << static_cast<int>(Qt::Key_Space);
    }

    void enterAndSpacePress() {
        QFETCH(int, key);
        StripWindow w;
        QWidget& box = w.widgetOf(w.form->txtTotalSpecies);
        box.setFocus();
        w.copies.give({copyOf("/a/landscape.brn", "7")});
        w.key(Qt::Key_F6);
        w.key(static_cast<Qt::Key>(key));
        QCOMPARE(w.copies.Log, QStringList("open 7"));
        QVERIFY(!w.strip().isVisible());
        QVERIFY(box.hasFocus());
    }

    void theFocusStaysInALineThatChanges() {
        StripWindow w;
        w.widgetOf(w.form->txtTotalSpecies).setFocus();
        w.copies.failToKeep("Disk full.");
        w.copies.give({copyOf("/a/landscape.brn")});
        w.key(Qt::Key_F6);
        w.key(Qt::Key_Tab);
        w.key(Qt::Key_Tab);
        w.key(Qt::Key_Return);
        QVERIFY(w.button("landscape.brn", "Take it back")->hasFocus());
        w.key(Qt::Key_Return);
        QVERIFY(w.button("landscape.brn", "Open it")->hasFocus());
    }

    void coversNothing_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("copies");
        for (const QSize size : {QSize(1366, 768), QSize(1920, 1080), QSize(3840, 2160), QSize(800, 480)}) {
            for (const int copies : {1, 9})
                QTest::addRow("%d copies, %dx%d", copies, size.width(), size.height()) << size << copies;
        }
    }

    void coversNothing() {
        QFETCH(QSize, size);
        QFETCH(int, copies);
        StripWindow w;
        w.copies.give(manyCopies(copies));
        if (copies > 1) w.click("9 safety copies", "Show them");
        for (const bool maximised : {true, false}) {
            if (maximised) {
                maximise(*w.view, size);
            } else {
                w.view->showNormal();
                w.view->resize(size);
            }
            QCoreApplication::processEvents();
            const QRect strip = w.strip().geometry();
            const auto& area = *w.view->findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly);
            const auto& menu = *w.view->findChild<QMenuBar*>();
            QVERIFY(w.strip().isVisible());
            QVERIFY(w.view->rect().contains(strip));
            QCOMPARE(strip.width(), w.view->width());
            QVERIFY(!strip.intersects(area.geometry()));
            QVERIFY(!strip.intersects(menu.geometry()));
            QCOMPARE(strip.top(), area.geometry().bottom() + 1);
            QVERIFY(area.height() > w.view->height() / 3);
        }
    }

    void aNormalWindowGrowsAndItsFormStaysAsItWas() {
        StripWindow w;
        w.view->showNormal();
        QTest::qWait(700);  // until the window has come to rest
        const QSize before = w.view->size();
        const int width = w.form->Width();
        const int height = w.form->Height();
        int resizes = 0;
        w.form->Resize = [&] { ++resizes; };
        w.copies.give({copyOf("/a/landscape.brn")});
        QTest::qWait(300);
        QCOMPARE(w.view->size(), before + QSize(0, w.strip().height()));
        QCOMPARE(w.form->Width(), width);
        QCOMPARE(w.form->Height(), height);
        QCOMPARE(resizes, 0);
        w.copies.give({});
        QTest::qWait(300);
        QCOMPARE(w.view->size(), before);
        QCOMPARE(resizes, 0);
    }

    void aMaximisedFormHasWhatIsLeft() {
        StripWindow w;
        maximise(*w.view, {1366, 768});
        const int before = w.form->tabBrenica.Height();
        w.copies.give({copyOf("/a/landscape.brn")});
        QVERIFY(w.form->tabBrenica.Height() < before);
        const auto& area = *w.view->findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(area.verticalScrollBar()->maximum(), 0);
        w.copies.give({});
        QCOMPARE(w.form->tabBrenica.Height(), before);
    }

    void actionsThatChangeNothingInItLeaveTheFormAlone() {
        StripWindow w;
        maximise(*w.view, {1366, 768});
        w.copies.give({copyOf("/a/landscape.brn")});
        int resizes = 0;
        w.form->Resize = [&] { ++resizes; };
        w.run([&] { w.form->txtTotalSpecies.Text("5"); });
        w.copies.give({copyOf("/a/landscape.brn")});
        QCOMPARE(resizes, 0);
    }

    void longTextsBreakAndStayWhole_data() {
        QTest::addColumn<int>("pixels");
        QTest::addColumn<int>("width");
        for (const int pixels : {12, 19, 24, 37}) {
            for (const int width : {800, 1366, 3840})
                QTest::addRow("%d pixels, %d wide", pixels, width) << pixels << width;
        }
    }

    void longTextsBreakAndStayWhole() {
        QFETCH(int, pixels);
        QFETCH(int, width);
        const QFont before = QApplication::font();
        QFont font = before;
        font.setPixelSize(pixels);
        QApplication::setFont(font);
        const auto takeBack = qScopeGuard([&] { QApplication::setFont(before); });
        StripWindow w;
        desktop::CopyOffer damaged = copyOf(LongPath, "2");
        damaged.Damaged = true;
        w.copies.give({damaged});
        w.copies.failToKeep("/root/.local/state/brenica cannot be written: No space left on device.");
        maximise(*w.view, {width, 1000});
        QCoreApplication::processEvents();
        int checked = 0;
        for (const QLabel* label : w.strip().findChildren<QLabel*>()) {
            if (label->text().isEmpty()) continue;
            const QRect needed = label->fontMetrics().boundingRect(QRect(0, 0, label->width(), 1 << 20),
                                                                   Qt::TextWordWrap, label->text());
            QVERIFY2(needed.height() <= label->height() && needed.width() <= label->width(),
                     qPrintable(label->text()));
            ++checked;
        }
        QCOMPARE(checked, 2);
        for (const auto* button : w.strip().findChildren<QAbstractButton*>()) {
            const QPoint place = button->mapTo(&w.strip(), QPoint());
            QVERIFY(w.strip().rect().contains(QRect(place, button->size())));
            QVERIFY(!button->text().isEmpty());
            QVERIFY(button->fontMetrics().horizontalAdvance(button->text()) < button->width());
        }
    }

    void canBeReadOnLightAndDarkDesktops_data() {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << QPalette(QColor(0xEF, 0xEF, 0xEF));
        QTest::newRow("dark") << darkPalette();
    }

    void canBeReadOnLightAndDarkDesktops() {
        QFETCH(QPalette, palette);
        const QPalette before = QApplication::palette();
        const auto takeBack = qScopeGuard([&] { QApplication::setPalette(before); });
        StripWindow w;
        w.copies.give({copyOf("/a/landscape.brn")});
        w.copies.failToKeep("Disk full.");
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        QList<QRgb> grounds;
        for (const QLabel* label : w.strip().findChildren<QLabel*>()) {
            if (label->text().isEmpty()) continue;
            QWidget* row = label->parentWidget();
            const QColor ground = row->grab().toImage().pixelColor(1, 1);
            const QColor text = label->palette().color(QPalette::WindowText);
            QVERIFY2(contrast(ground, text) > 4.5, qPrintable(ground.name() + " under " + text.name()));
            grounds << ground.rgb();
        }
        QCOMPARE(grounds.size(), 2);
        QVERIFY(grounds[0] != grounds[1]);
    }

    void aNewLineIsAnnouncedOnce() {
        StripWindow w;
        const QSignalSpy announced(&w.strip(), &desktop::Strip::announced);
        w.copies.give({copyOf("/a/landscape.brn")});
        const QString text = "landscape.brn, today 14:32, 25 species: not saved.";
        QCOMPARE(announced.size(), 1);
        QCOMPARE(announced[0][0].toString(), text);
        QAccessibleInterface* row =
            QAccessible::queryAccessibleInterface(w.button("landscape.brn", "Open it")->parentWidget());
        QCOMPARE(row->role(), QAccessible::Notification);
        QCOMPARE(row->text(QAccessible::Name), text);
        w.copies.give({copyOf("/a/landscape.brn")});
        QCOMPARE(announced.size(), 1);
        w.copies.failToKeep("Disk full.");
        QCOMPARE(announced.size(), 2);
    }

    void progressShowsInItsLineAndIsNotAnnounced() {
        StripWindow w;
        desktop::StripLine line{"At work.", {}, desktop::StripTone::Note, {{"Stop", [] {}}}, {}};
        w.own.lines().tellOfReport(line);
        const QSignalSpy announced(&w.strip(), &desktop::Strip::announced);
        w.key(Qt::Key_F6);
        line.Progress = "Half done.";
        w.own.lines().tellOfReport(line);
        QCOMPARE(w.lines(), QStringList("At work. Half done."));
        QVERIFY(w.button("At work.", "Stop")->hasFocus());
        QCOMPARE(announced.size(), 0);
        const int height = w.strip().height();
        line.Progress = QString("word ").repeated(100);
        w.own.lines().tellOfReport(line);
        QVERIFY(w.strip().height() > height);
        w.own.lines().tellOfReport({});
        QVERIFY(!w.strip().isVisible());
    }

    void screenReadersFindAndPressItsButtons() {
        StripWindow w;
        w.copies.give({copyOf("/a/landscape.brn", "4")});
        QAccessibleInterface* strip = QAccessible::queryAccessibleInterface(&w.strip());
        QCOMPARE(strip->role(), QAccessible::Grouping);
        QCOMPARE(strip->text(QAccessible::Name), QString("Messages and safety copies"));
        QStringList names;
        for (QAbstractButton* button : w.strip().findChildren<QAbstractButton*>()) {
            QAccessibleInterface* about = QAccessible::queryAccessibleInterface(button);
            QCOMPARE(about->role(), QAccessible::Button);
            names << about->text(QAccessible::Name);
        }
        QCOMPARE(names, QStringList({"Open it", "Drop it", "Close this message"}));
        QAccessible::queryAccessibleInterface(w.button("landscape.brn", "Open it"))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(w.copies.Log, QStringList("open 4"));
    }
};

static const desktop_test::Registered<StripTest> registered;

#include "strip_test.moc"
