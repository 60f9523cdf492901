// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/combo_box_view.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalSpy>
#include <QWheelEvent>

#include "desktop/desktop_test.h"
#include "ui/grid.h"

namespace {

struct ComboWindow : desktop_test::Window {
    ui::ComboBox box{form, "cbxTest", {"Ash", "Beech", "Birch", "Cedar"}};
    ui::Grid grid{form, "flxTest"};
    QWidget window;
    QLineEdit before{&window};
    desktop::ComboBoxView view{box, link, &window};
    QStringList clicks;

    ComboWindow() {
        box.Click = [this] { clicks << QString::fromStdString(box.Text()); };
        link.Followed = &view;
        view.setGeometry(0, 40, 150, 25);
        view.follow();
        window.resize(300, 300);
        window.show();
        window.activateWindow();
        (void)QTest::qWaitForWindowActive(&window);
        before.setFocus();
    }

    void run(const std::function<void()>& action) { link.run(action); }
    void openList() { static_cast<QComboBox&>(view).showPopup(); }
    void key(Qt::Key code) { QTest::keyClick(&view, code); }
    void turnWheel() {
        const QPointF place(5, 5);
        QWheelEvent event(place, view.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &event);
    }
    /// A cell editor that keeps every user action from happening.
    void refuseEverything() {
        grid.Rows(2);
        grid.Cols(2);
        grid.Editable = ui::EditMode::KeyboardAndMouse;
        grid.Select(1, 1);
        grid.ValidateEdit = [](int, int, bool& cancel) { cancel = true; };
        QVERIFY(grid.UserBeginEdit());
    }
};

}  // namespace

class ComboBoxViewTest : public QObject {
    Q_OBJECT

private slots:
    void nothingChosenShowsNothing() {
        ComboWindow w;
        QCOMPARE(w.view.currentIndex(), -1);
        QCOMPARE(w.view.currentText(), QString());
        w.run([&] { w.box.ListIndex(2); });
        QCOMPARE(w.view.currentText(), QString("Birch"));
        w.run([&] { w.box.ListIndex(-1); });
        QCOMPARE(w.view.currentText(), QString());
    }

    void followingFiresNothing() {
        ComboWindow w;
        w.run([&] { w.box.ListIndex(2); });
        QCOMPARE(w.clicks, QStringList("Birch"));
    }

    void aChoiceByKeyIsOneClick() {
        ComboWindow w;
        w.view.setFocus();
        w.key(Qt::Key_Down);
        QCOMPARE(w.clicks, QStringList("Ash"));
        w.key(Qt::Key_Down);
        QCOMPARE(w.clicks, QStringList({"Ash", "Beech"}));
        QCOMPARE(w.box.ListIndex(), 1);
    }

    void aChoiceByMouseIsOneClickAlsoOfTheChosenItem() {
        ComboWindow w;
        for (int i = 0; i < 2; ++i) {
            w.openList();
            QAbstractItemView& list = *w.view.view();
            QVERIFY(QTest::qWaitForWindowExposed(list.window()));
            const QRect item = list.visualRect(list.model()->index(3, 0));
            QTest::mouseMove(list.viewport(), item.center());
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, item.center());
            w.view.hidePopup();
        }
        QCOMPARE(w.clicks, QStringList({"Cedar", "Cedar"}));
        QCOMPARE(w.view.currentText(), QString("Cedar"));
    }

    void typingFindsAnItemByItsBeginning() {
        ComboWindow w;
        w.view.setFocus();
        QTest::keyClicks(&w.view, "bi");
        if (w.view.view()->isVisible()) QTest::keyClick(w.view.view(), Qt::Key_Return);
        QCOMPARE(w.box.Text(), std::string("Birch"));
        QCOMPARE(w.view.currentText(), QString("Birch"));
    }

    void tabTakesTheItemOfTheOpenListAndGoesOn() {
        ComboWindow w;
        w.view.setFocus();
        QTest::keyClick(&w.view, Qt::Key_C);
        QVERIFY(w.view.view()->isVisible());
        QTest::keyClick(w.view.view(), Qt::Key_Tab);
        QVERIFY(!w.view.view()->isVisible());
        QCOMPARE(w.clicks, QStringList("Cedar"));
        QVERIFY(w.before.hasFocus());
    }

    void tabOnTheItemThatIsChosenAlreadyChoosesNothing() {
        ComboWindow w;
        w.run([&] { w.box.ListIndex(1); });
        w.clicks.clear();
        w.view.setFocus();
        w.openList();
        QTest::keyClick(w.view.view(), Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(!w.view.view()->isVisible());
        QCOMPARE(w.clicks, QStringList());
        QVERIFY(w.before.hasFocus());
    }

    void controlAndTabTakesTheItemAndTurnsThePage() {
        ComboWindow w;
        QShortcut turn(QKeySequence(Qt::CTRL | Qt::Key_Tab), &w.window);
        const QSignalSpy turned(&turn, &QShortcut::activated);
        w.view.setFocus();
        QTest::keyClick(&w.view, Qt::Key_B);
        QTest::keyClick(w.view.view(), Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(w.clicks, QStringList("Beech"));
        QCOMPARE(turned.size(), 1);
    }

    void aChoiceThatTheFormTakesBackSpringsBack() {
        ComboWindow w;
        w.run([&] { w.box.ListIndex(3); });
        w.box.Click = [&] {
            if (w.box.ListIndex() != 3) w.box.ListIndex(3);
        };
        w.view.setFocus();
        w.key(Qt::Key_Up);
        QCOMPARE(w.view.currentIndex(), 3);
    }

    void aChoiceThatDoesNotTakePlaceSpringsBack() {
        ComboWindow w;
        w.run([&] { w.box.ListIndex(1); });
        w.clicks.clear();
        w.refuseEverything();
        w.link.Followed = nullptr;  // as the control has not changed
        w.view.setFocus();
        w.key(Qt::Key_Down);
        QCOMPARE(w.view.currentIndex(), 1);
        QCOMPARE(w.box.ListIndex(), 1);
        QCOMPARE(w.clicks, QStringList());
    }

    void aWheelThatScrollsPastChoosesNothing() {
        ComboWindow w;
        w.run([&] { w.box.ListIndex(1); });
        w.turnWheel();
        QCOMPARE(w.box.ListIndex(), 1);
        QCOMPARE(w.view.currentIndex(), 1);
    }

    void itemsFollow() {
        ComboWindow w;
        w.run([&] {
            w.box.Clear();
            for (int i = 0; i < 1000; ++i) w.box.AddItem("Item " + std::to_string(i));
            w.box.ListIndex(999);
        });
        QCOMPARE(w.view.count(), 1000);
        QCOMPARE(w.view.currentText(), QString("Item 999"));
        w.run([&] { w.box.RemoveItem(0); });
        QCOMPARE(w.view.count(), 999);
        QCOMPARE(w.view.itemText(0), QString("Item 1"));
        QCOMPARE(w.view.currentText(), QString("Item 999"));
    }

    void itemsWithTheSameTextsAreNotBuiltAnew() {
        ComboWindow w;
        const QSignalSpy inserted(w.view.model(), &QAbstractItemModel::rowsInserted);
        const QSignalSpy removed(w.view.model(), &QAbstractItemModel::rowsRemoved);
        const QSignalSpy reset(w.view.model(), &QAbstractItemModel::modelReset);
        w.run([&] {
            w.box.Clear();
            for (const char* item : {"Ash", "Beech", "Birch", "Cedar"}) w.box.AddItem(item);
            w.box.ListIndex(2);
        });
        QCOMPARE(inserted.count() + removed.count() + reset.count(), 0);
        QCOMPARE(w.view.currentText(), QString("Birch"));
    }

    void anEqualCountOfOtherTextsIsBuiltAnew() {
        ComboWindow w;
        w.run([&] {
            w.box.RemoveItem(0);
            w.box.AddItem("Yew");
        });
        QCOMPARE(w.view.itemText(0), QString("Beech"));
        QCOMPARE(w.view.itemText(3), QString("Yew"));
    }

    void theOpenListIsWideEnoughForItsItems() {
        ComboWindow w;
        w.run([&] { w.box.AddItem("A list item that is wider"); });
        w.view.resize(60, 25);
        w.window.resize(900, 300);
        w.openList();
        QVERIFY(w.view.view()->width() >=
                w.view.fontMetrics().horizontalAdvance("A list item that is wider"));
        w.view.hidePopup();
    }
};

static const desktop_test::Registered<ComboBoxViewTest> registered;

#include "combo_box_view_test.moc"
