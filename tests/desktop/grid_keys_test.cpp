// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>
#include <QMenu>
#include <QScrollBar>

#include "desktop/grid_fixture.h"
#include "ui/window_texts.h"

using desktop::CellAddress;
using desktop_test::GridWindow;

class GridKeysTest : public QObject {
    Q_OBJECT

private slots:
    void keysMoveTheCurrentCell_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("col");
        const auto row = [](const char* name, int key, Qt::KeyboardModifiers modifiers, int toRow,
                            int toCol) { QTest::newRow(name) << key << modifiers << toRow << toCol; };
        row("up", Qt::Key_Up, Qt::NoModifier, 2, 2);
        row("down", Qt::Key_Down, Qt::NoModifier, 4, 2);
        row("left", Qt::Key_Left, Qt::NoModifier, 3, 1);
        row("right", Qt::Key_Right, Qt::NoModifier, 3, 4);  // past the hidden column
        row("enter", Qt::Key_Return, Qt::NoModifier, 4, 2);
        row("enter of the number block", Qt::Key_Enter, Qt::KeypadModifier, 4, 2);
        row("shift and enter", Qt::Key_Return, Qt::ShiftModifier, 2, 2);
        row("tab", Qt::Key_Tab, Qt::NoModifier, 3, 4);
        row("shift and tab", Qt::Key_Backtab, Qt::ShiftModifier, 3, 1);
        row("home", Qt::Key_Home, Qt::NoModifier, 3, 1);
        row("end", Qt::Key_End, Qt::NoModifier, 3, 5);
        row("to the first cell", Qt::Key_Home, Qt::ControlModifier, 1, 1);
        row("to the last cell", Qt::Key_End, Qt::ControlModifier, 99, 5);
        row("to the first row", Qt::Key_Up, Qt::ControlModifier, 1, 2);
        row("to the last row", Qt::Key_Down, Qt::ControlModifier, 99, 2);
        row("page up", Qt::Key_PageUp, Qt::NoModifier, 1, 2);
    }
    void keysMoveTheCurrentCell() {
        QFETCH(const int, key);
        QFETCH(const Qt::KeyboardModifiers, modifiers);
        QFETCH(const int, row);
        QFETCH(const int, col);
        GridWindow w(100, 6);
        w.run([&] { w.grid.ColHidden(3, true); });
        w.select(3, 2);
        w.key(key, modifiers);
        QCOMPARE(w.current(), (CellAddress{row, col}));
        QCOMPARE(w.selectedTo(), (CellAddress{row, col}));
        QVERIFY(w.view.viewport()->rect().contains(w.view.cellPlace(row, col)));
    }

    void aPageIsWhatTheViewShows() {
        GridWindow w(200, 4);
        const int shown = w.view.verticalScrollBar()->pageStep();
        QVERIFY(shown > 5);
        w.key(Qt::Key_PageDown);
        QCOMPARE(w.current(), (CellAddress{1 + shown, 1}));
        w.key(Qt::Key_PageDown);
        QCOMPARE(w.current(), (CellAddress{1 + 2 * shown, 1}));
        QVERIFY(w.view.viewport()->rect().contains(w.view.cellPlace(1 + 2 * shown, 1)));
    }

    void keysAtTheEdgeStay() {
        GridWindow w;
        for (const int key : {Qt::Key_Up, Qt::Key_Left, Qt::Key_PageUp, Qt::Key_Home}) {
            w.key(key);
            QCOMPARE(w.current(), (CellAddress{1, 1}));
        }
        w.select(5, 3);
        for (const int key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Return}) {
            w.key(key);
            QCOMPARE(w.current(), (CellAddress{5, 3}));
        }
    }

    void keysBeginAtTheFirstCellWhereAHeadingIsCurrent() {
        const std::pair<int, CellAddress> ways[] = {
            {Qt::Key_Down, {2, 1}}, {Qt::Key_Right, {1, 2}}, {Qt::Key_Tab, {1, 2}}, {Qt::Key_Return, {2, 1}},
            {Qt::Key_Home, {1, 1}}, {Qt::Key_End, {1, 3}},   {Qt::Key_Up, {1, 1}}};
        GridWindow w;
        for (const auto& [key, cell] : ways) {
            w.select(0, 0);
            w.key(key);
            QCOMPARE(w.current(), cell);
        }
        w.select(0, 0);
        w.key(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(w.current(), (CellAddress{5, 3}));
        w.select(0, 0);
        w.key(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(w.current(), (CellAddress{1, 1}));
        QCOMPARE(w.selectedTo(), (CellAddress{2, 1}));
    }

    void tabGoesRoundTheRows() {
        GridWindow w;
        w.select(2, 3);
        w.key(Qt::Key_Tab);
        QCOMPARE(w.current(), (CellAddress{3, 1}));
        w.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(w.current(), (CellAddress{2, 3}));
        QVERIFY(w.view.hasFocus());
    }

    void tabLeavesTheGridAtItsEnds() {
        GridWindow w;
        w.select(5, 3);
        w.key(Qt::Key_Tab);
        QVERIFY(w.after.hasFocus());
        w.view.setFocus();
        w.select(1, 1);
        w.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(w.before.hasFocus());
        QCOMPARE(w.current(), (CellAddress{1, 1}));
    }

    void tabStaysInACellThatMayNotBeLeft() {
        GridWindow w;
        w.grid.BeforeRowColChange = [](int, int, int, int, bool& cancel) { cancel = true; };
        w.key(Qt::Key_Tab);
        QCOMPARE(w.current(), (CellAddress{1, 1}));
        QVERIFY(w.view.hasFocus());
    }

    void tabLeavesAGridThatIsForReadingOrEmpty() {
        GridWindow w;
        w.grid.Editable = ui::EditMode::ReadOnly;
        w.key(Qt::Key_Tab);
        QVERIFY(w.after.hasFocus());
        w.grid.Editable = ui::EditMode::KeyboardAndMouse;
        w.run([&] { w.grid.Rows(1); });
        w.view.setFocus();
        w.key(Qt::Key_Tab);
        QVERIFY(w.after.hasFocus());
    }

    void shiftSelectsARange() {
        GridWindow w;
        w.select(2, 1);
        w.key(Qt::Key_Down, Qt::ShiftModifier);
        w.key(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(w.current(), (CellAddress{2, 1}));
        QCOMPARE(w.selectedTo(), (CellAddress{3, 2}));
        w.key(Qt::Key_End, Qt::ShiftModifier | Qt::ControlModifier);
        QCOMPARE(w.selectedTo(), (CellAddress{5, 3}));
        w.key(Qt::Key_Home, Qt::ShiftModifier);
        QCOMPARE(w.selectedTo(), (CellAddress{5, 1}));
        w.key(Qt::Key_PageUp, Qt::ShiftModifier);
        QCOMPARE(w.selectedTo(), (CellAddress{1, 1}));
        w.key(Qt::Key_Down);
        QCOMPARE(w.selectedTo(), w.current());
    }

    void theWholeBodyIsSelectedAndTheViewStays() {
        GridWindow w(100, 4);
        w.select(60, 2);
        w.view.verticalScrollBar()->setValue(50);
        w.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(w.current(), (CellAddress{1, 1}));
        QCOMPARE(w.selectedTo(), (CellAddress{99, 3}));
        QCOMPARE(w.view.verticalScrollBar()->value(), 50);
    }

    void theViewFollowsTheUserAndNotTheCode() {
        GridWindow w(100, 4);
        w.select(90, 1);
        QCOMPARE(w.view.verticalScrollBar()->value(), 0);
        w.key(Qt::Key_Down);
        QVERIFY(w.view.verticalScrollBar()->value() > 50);
        QVERIFY(w.view.viewport()->rect().contains(w.view.cellPlace(91, 1)));
    }

    void aColumnOutOfViewIsScrolledIn() {
        GridWindow w(10, 30);
        w.key(Qt::Key_End);
        QVERIFY(w.view.viewport()->rect().contains(w.view.cellPlace(1, 29)));
        w.key(Qt::Key_Home);
        QCOMPARE(w.view.horizontalScrollBar()->value(), 0);
    }

    void copyPutsTheSelectionOnTheClipboard() {
        GridWindow w;
        w.run([&] { w.grid.ColHidden(2, true); });
        w.key(Qt::Key_Down, Qt::ShiftModifier);
        w.key(Qt::Key_End, Qt::ShiftModifier);
        w.key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString("1.1\t1.3\n2.1\t2.3"));
    }

    void aBlockIsPastedCellByCell() {
        GridWindow w;
        QApplication::clipboard()->setText("a\tb\nc\td\n");
        w.select(2, 2);
        w.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(w.text(2, 2), std::string("a"));
        QCOMPARE(w.text(2, 3), std::string("b"));
        QCOMPARE(w.text(3, 2), std::string("c"));
        QCOMPARE(w.text(3, 3), std::string("d"));
        QCOMPARE(w.current(), (CellAddress{2, 2}));
        QCOMPARE(w.selectedTo(), (CellAddress{3, 3}));
        QCOMPARE(w.platform.Beeps, 0);
    }

    void aBlockStopsWithABeepAtTheCellThatRefuses() {
        GridWindow w;
        w.grid.ValidateEdit = [&](int, int, bool& cancel) { cancel = w.grid.EditText() == "no"; };
        QApplication::clipboard()->setText("a\tno\nc\td");
        w.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(w.text(1, 1), std::string("a"));
        QCOMPARE(w.text(1, 2), std::string("1.2"));
        QCOMPARE(w.text(2, 1), std::string("2.1"));
        QCOMPARE(w.current(), (CellAddress{1, 2}));
        QCOMPARE(w.platform.Beeps, 1);
        QVERIFY(!w.grid.Editing());
    }

    void aBlockStopsWithABeepAtTheEdge() {
        GridWindow w;
        QApplication::clipboard()->setText("a\tb");
        w.select(5, 3);
        w.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(w.text(5, 3), std::string("a"));
        QCOMPARE(w.current(), (CellAddress{5, 3}));
        QCOMPARE(w.platform.Beeps, 1);
    }

    void deleteEmptiesTheCell() {
        GridWindow w;
        w.key(Qt::Key_Delete);
        QCOMPARE(w.text(1, 1), std::string());
        QVERIFY(!w.grid.Editing());
        w.grid.Editable = ui::EditMode::ReadOnly;
        w.select(2, 2);
        w.key(Qt::Key_Delete);
        QCOMPARE(w.text(2, 2), std::string("2.2"));
    }

    void backspaceEmptiesTheCellInItsEditor() {
        GridWindow w;
        w.key(Qt::Key_Backspace);
        QVERIFY(w.grid.Editing());
        QCOMPARE(w.grid.EditText(), std::string());
        w.key(Qt::Key_Escape);
        QCOMPARE(w.text(1, 1), std::string("1.1"));
    }

    void typingWhereNothingCanBeTypedScrollsNothing() {
        GridWindow w(100, 4);
        w.grid.Editable = ui::EditMode::ReadOnly;
        w.view.verticalScrollBar()->setValue(40);
        w.type("x");
        w.key(Qt::Key_F2);
        w.key(Qt::Key_Backspace);
        QCOMPARE(w.view.verticalScrollBar()->value(), 40);
        QCOMPARE(w.text(1, 1), std::string("1.1"));
    }

    void theMenuCopiesAndPastes() {
        GridWindow w;
        QApplication::clipboard()->setText("pasted");
        const auto actions = openMenu(w);
        QCOMPARE(actions.size(), 5);
        QCOMPARE(actions[0]->text(), QString(ui::window_text::CopyCells));
        QCOMPARE(actions[0]->shortcut(), QKeySequence(QKeySequence::Copy));
        QCOMPARE(actions[2]->shortcut(), QKeySequence(QKeySequence::Paste));
        QCOMPARE(actions[4]->shortcut(), QKeySequence(QKeySequence::WhatsThis));
        actions[2]->trigger();
        QCOMPARE(w.text(1, 1), std::string("pasted"));
        w.select(2, 2);
        actions[0]->trigger();
        QCOMPARE(QApplication::clipboard()->text(), QString("2.2"));
    }

    void aTableThatSortsByItsHeadingsSortsByTheMenuToo() {
        GridWindow w;
        int col = -1;
        w.grid.MouseDown = [&] { col = w.grid.MouseRow() == 0 ? w.grid.MouseCol() : -1; };
        w.select(2, 3);
        const auto actions = openMenu(w);
        QCOMPARE(actions[4]->text(), QString("Sort by this column"));
        actions[4]->trigger();
        QCOMPARE(col, 3);
        QCOMPARE(w.current(), (CellAddress{2, 3}));
        openMenu(w, QContextMenuEvent::Mouse, w.middle(0, 2))[4]->trigger();
        QCOMPARE(col, 2);
    }

    void aTableWithoutACellOfItsBodyTakesKeysAndMenus() {
        for (const bool hasRows : {false, true}) {
            GridWindow w;
            w.run([&] {
                w.grid.Select(0, 0);
                hasRows ? w.grid.Cols(1) : w.grid.Rows(1);
            });
            QCOMPARE(openMenu(w).size(), 5);
            QVERIFY(!openMenu(w)[4]->isEnabled());
            w.key(Qt::Key_F1, Qt::ShiftModifier);
            for (const int key : {Qt::Key_Down, Qt::Key_Delete, Qt::Key_End, Qt::Key_F2}) w.key(key);
            QCOMPARE(w.current(), (CellAddress{0, 0}));
        }
    }

    void deletingAndCopyingBeginAtTheFirstCellToo() {
        GridWindow w;
        w.select(0, 0);
        w.key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString("1.1"));
        w.select(0, 0);
        w.key(Qt::Key_Delete);
        QCOMPARE(w.text(1, 1), std::string());
        QCOMPARE(w.text(0, 0), std::string("0.0"));
    }

    void nothingIsPastedWhereNothingCanBe() {
        GridWindow w;
        QApplication::clipboard()->setText("pasted");
        w.grid.Editable = ui::EditMode::ReadOnly;
        QVERIFY(!openMenu(w)[2]->isEnabled());
        w.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(w.text(1, 1), std::string("1.1"));
        w.grid.Editable = ui::EditMode::KeyboardAndMouse;
        QVERIFY(openMenu(w)[2]->isEnabled());
        QApplication::clipboard()->clear();
        QVERIFY(!openMenu(w)[2]->isEnabled());
    }

    void aDisabledGridTakesNoKeysAndNoMouse() {
        GridWindow w;
        w.grid.Enabled(false);
        w.view.setEnabled(false);
        w.key(Qt::Key_Down);
        w.type("x");
        w.key(Qt::Key_F2);
        w.click(3, 3);
        w.doubleClick(3, 3);
        QCOMPARE(w.current(), (CellAddress{1, 1}));
        QVERIFY(!w.grid.Editing());
    }

    void aDisabledGridTakesNoKeysBeforeItsWidgetKnows() {
        GridWindow w;
        w.grid.Enabled(false);
        w.key(Qt::Key_Down);
        w.type("x");
        w.click(3, 3);
        QCOMPARE(w.current(), (CellAddress{1, 1}));
        QVERIFY(!w.grid.Editing());
    }

private:
    static QList<QAction*> openMenu(GridWindow& w) {
        return openMenu(w, QContextMenuEvent::Keyboard, w.middle(1, 1));
    }
    static QList<QAction*> openMenu(GridWindow& w, QContextMenuEvent::Reason reason, QPoint place) {
        for (QMenu* old : w.view.findChildren<QMenu*>()) delete old;
        QContextMenuEvent event(reason, place, w.view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(w.view.viewport(), &event);
        const auto* menu = w.view.findChild<QMenu*>();
        return menu != nullptr ? menu->actions() : QList<QAction*>();
    }
};

static const desktop_test::Registered<GridKeysTest> registered;

#include "grid_keys_test.moc"
