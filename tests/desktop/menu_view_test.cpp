// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/menu_view.h"

#include "desktop/desktop_test.h"

namespace {

struct MenuWindow : desktop_test::Window {
    ui::MenuItem project{form, "mnuProject", {.Caption = "Project", .AccessKey = 'P'}};
    ui::MenuItem fresh{project, "mnuNew", {.Caption = "New", .AccessKey = 'N', .Shortcut = "Ctrl+N"}};
    ui::MenuItem save{project, "mnuSave", {.Caption = "Save & close", .Shortcut = "Ctrl+S"}};
    ui::MenuItem data{form, "mnuData", {.Caption = "Data", .AccessKey = 'D'}};
    QWidget window;
    desktop::MenuView view{link, &window};
    QStringList log;

    MenuWindow() {
        for (ui::MenuItem* item : {&project, &fresh, &save, &data}) view.add(*item);
        fresh.Click = [this] { log << "new"; };
        save.Click = [this] { log << "save"; };
        window.resize(300, 200);
        view.resize(300, 30);
        window.show();
        window.activateWindow();
        (void)QTest::qWaitForWindowActive(&window);
    }

    QAction& action(const char* name) { return *window.findChild<QAction*>(name); }
};

}  // namespace

class MenuViewTest : public QObject {
    Q_OBJECT

private slots:
    void menusStandInTheBarAndTheirEntriesInThem() {
        MenuWindow w;
        QCOMPARE(w.view.actions().size(), 2);
        QCOMPARE(w.view.actions()[0]->text(), QString("&Project"));
        const QList<QAction*> entries = w.view.actions()[0]->menu()->actions();
        QCOMPARE(entries.size(), 2);
        QCOMPARE(entries[0]->text(), QString("&New"));
        QCOMPARE(entries[1]->text(), QString("Save && close"));
        QVERIFY(w.view.actions()[1]->menu()->actions().isEmpty());
    }

    void aShortcutTriggersItsEntryOnce() {
        MenuWindow w;
        QTest::keyClick(&w.window, Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(w.log, QStringList("new"));
        QTest::keyClick(&w.window, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(w.log, QStringList({"new", "save"}));
    }

    void theKeysOpenAMenuAndChooseAnEntry() {
        MenuWindow w;
        QTest::keyClick(&w.window, Qt::Key_P, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_N);
        QCOMPARE(w.log, QStringList("new"));
    }

    void aDisabledEntryCannotBeReached() {
        MenuWindow w;
        w.fresh.Enabled(false);
        w.view.follow(w.fresh);
        QVERIFY(!w.action("mnuNew").isEnabled());
        QTest::keyClick(&w.window, Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(w.log, QStringList());
        w.fresh.Enabled(true);
        w.view.follow(w.fresh);
        QTest::keyClick(&w.window, Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(w.log, QStringList("new"));
    }

    void captionsAndVisibilityFollow() {
        MenuWindow w;
        w.save.Caption("Store");
        w.save.Visible(false);
        w.view.follow(w.save);
        QCOMPARE(w.action("mnuSave").text(), QString("Store"));
        QVERIFY(!w.action("mnuSave").isVisible());
    }
};

static const desktop_test::Registered<MenuViewTest> registered;

#include "menu_view_test.moc"
