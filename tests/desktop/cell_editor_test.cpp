// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/cell_editor.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QScrollBar>

#include "desktop/grid_fixture.h"

using desktop::CellAddress;
using desktop_test::GridWindow;

class CellEditorTest : public QObject {
    Q_OBJECT

private slots:
    void f2OpensTheEditorOverTheCell() {
        GridWindow w;
        QVERIFY(!w.editorShows());
        w.key(Qt::Key_F2);
        QVERIFY(w.grid.Editing());
        QVERIFY(w.editorShows());
        QVERIFY(w.editor().geometry().contains(w.view.cellPlace(1, 1)));
        QCOMPARE(w.grid.Editor().SelLength(), 3);
    }

    void aDoubleClickOpensTheEditor() {
        GridWindow w;
        w.doubleClick(3, 2);
        QCOMPARE(w.current(), (CellAddress{3, 2}));
        QVERIFY(w.editorShows());
    }

    void aDoubleClickOnAHeadingOpensNothing() {
        GridWindow w;
        w.doubleClick(0, 2);
        w.doubleClick(2, 0);
        QVERIFY(!w.grid.Editing());
        QCOMPARE(w.current(), (CellAddress{1, 1}));
    }

    void typingReplacesTheText() {
        GridWindow w;
        w.type("new");
        QVERIFY(w.editorShows());
        QCOMPARE(w.text(1, 1), std::string("1.1"));
        w.key(Qt::Key_Return);
        QCOMPARE(w.text(1, 1), std::string("new"));
        QCOMPARE(w.current(), (CellAddress{2, 1}));
        QVERIFY(!w.editorShows());
    }

    void everyCharacterGoesThroughTheKeyFilter() {
        GridWindow w;
        std::vector<int> keys;
        w.grid.KeyPressEdit = [&](int, int, int& key) {
            keys.push_back(key);
            if (key < '0' || key > '9') key = 0;
        };
        w.type("1x2");
        QTest::sendKeyEvent(QTest::Click, &w.view, Qt::Key_unknown, QString::fromUtf8("é😀"), Qt::NoModifier);
        QCOMPARE(keys, (std::vector<int>{'1', 'x', '2', 0xe9, 0x1f600}));
        QCOMPARE(w.grid.EditText(), std::string("12"));
    }

    void aKeyThatIsRefusedIsTold() {
        GridWindow w;
        w.grid.KeyPressEdit = [&](int, int, int& key) {
            if (key < '0' || key > '9') key = 0;
        };
        w.type("1x");
        QCOMPARE(w.tip(), QString("“x” is not accepted here."));
        w.type("2");
        QVERIFY(w.tip().isEmpty());
        QCOMPARE(w.grid.EditText(), std::string("12"));
    }

    void anItemThatTheListHasNotIsToldWithThoseItHas() {
        GridWindow w;
        w.grid.BeforeEdit = [&](int, int, bool&) { w.grid.ComboList("0|1|2"); };
        w.type("9");
        QCOMPARE(w.tip(), QString("“9” is not accepted here. Choose 0, 1 or 2."));
        w.key(Qt::Key_Escape);
        QVERIFY(w.tip().isEmpty());
        w.key(Qt::Key_Backspace);
        QVERIFY(w.tip().isEmpty());
        QApplication::clipboard()->setText("<b>many</b>");
        w.key(Qt::Key_V, Qt::ControlModifier);
        QVERIFY2(w.tip().contains("many"), qPrintable(w.tip()));
        w.type("2");
        QVERIFY(w.tip().isEmpty());
        for (const char* key : {"7", "7"}) {
            w.type(key);
            QVERIFY(w.tip().startsWith("“7”"));
        }
    }

    void aTextThatMayNotBeLeftIsTold_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("Enter") << static_cast<int>(Qt::Key_Return) << Qt::KeyboardModifiers();
        QTest::newRow("Shift+Enter") << static_cast<int>(Qt::Key_Return)
                                     << Qt::KeyboardModifiers(Qt::ShiftModifier);
        QTest::newRow("Tab") << static_cast<int>(Qt::Key_Tab) << Qt::KeyboardModifiers();
        QTest::newRow("Shift+Tab") << static_cast<int>(Qt::Key_Backtab)
                                   << Qt::KeyboardModifiers(Qt::ShiftModifier);
    }

    void aTextThatMayNotBeLeftIsTold() {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        GridWindow w;
        w.select(2, 2);
        w.grid.ValidateEdit = [&](int, int, bool& cancel) { cancel = w.grid.EditText() == "1.5"; };
        w.type("1.5");
        w.key(key, modifiers);
        QVERIFY(w.editorShows());
        QCOMPARE(w.tip(), QString("“1.5” is not accepted here."));
        w.key(Qt::Key_Backspace);
        QVERIFY(w.tip().isEmpty());
        w.key(key, modifiers);
        QVERIFY(!w.editorShows());
        QVERIFY(w.tip().isEmpty());
    }

    void commandsReachNoKeyFilter() {
        GridWindow w;
        int keys = 0;
        w.grid.KeyPressEdit = [&](int, int, int&) { ++keys; };
        QApplication::clipboard()->setText("x");
        w.key(Qt::Key_F2);
        for (const int key : {Qt::Key_A, Qt::Key_C, Qt::Key_X, Qt::Key_V, Qt::Key_B}) {
            w.key(key, Qt::ControlModifier);
        }
        w.key(Qt::Key_F, Qt::AltModifier);
        QCOMPARE(keys, 0);
        QCOMPARE(w.grid.EditText(), std::string("1.1"));
    }

    void keysCommitAndMove_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("col");
        const auto row = [](const char* name, int key, Qt::KeyboardModifiers modifiers, int toRow,
                            int toCol) { QTest::newRow(name) << key << modifiers << toRow << toCol; };
        row("enter", Qt::Key_Return, Qt::NoModifier, 3, 2);
        row("shift and enter", Qt::Key_Return, Qt::ShiftModifier, 1, 2);
        row("tab", Qt::Key_Tab, Qt::NoModifier, 2, 3);
        row("shift and tab", Qt::Key_Backtab, Qt::ShiftModifier, 2, 1);
        row("up", Qt::Key_Up, Qt::NoModifier, 1, 2);
        row("down", Qt::Key_Down, Qt::NoModifier, 3, 2);
        row("left", Qt::Key_Left, Qt::NoModifier, 2, 1);
        row("right", Qt::Key_Right, Qt::NoModifier, 2, 3);
        row("page down", Qt::Key_PageDown, Qt::NoModifier, 5, 2);
    }
    void keysCommitAndMove() {
        QFETCH(const int, key);
        QFETCH(const Qt::KeyboardModifiers, modifiers);
        QFETCH(const int, row);
        QFETCH(const int, col);
        GridWindow w;
        w.select(2, 2);
        w.type("7");
        w.key(key, modifiers);
        QCOMPARE(w.text(2, 2), std::string("7"));
        QCOMPARE(w.current(), (CellAddress{row, col}));
        QVERIFY(!w.editorShows());
    }

    void escapeLeavesTheCellAsItWas() {
        GridWindow w;
        w.type("new");
        w.key(Qt::Key_Escape);
        QCOMPARE(w.text(1, 1), std::string("1.1"));
        QCOMPARE(w.current(), (CellAddress{1, 1}));
        QVERIFY(!w.editorShows());
    }

    void aRefusedTextKeepsTheEditorOpen() {
        GridWindow w;
        w.grid.ValidateEdit = [&](int, int, bool& cancel) { cancel = w.grid.EditText() == "bad"; };
        w.type("bad");
        for (const int key : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Down, Qt::Key_PageDown}) {
            w.key(key);
            QVERIFY(w.editorShows());
        }
        w.key(Qt::Key_Backtab, Qt::ShiftModifier);
        w.click(3, 3);
        QVERIFY(w.editorShows());
        QCOMPARE(w.current(), (CellAddress{1, 1}));
        QCOMPARE(w.text(1, 1), std::string("1.1"));
        w.key(Qt::Key_Backspace);
        w.key(Qt::Key_Return);
        QVERIFY(!w.editorShows());
        QCOMPARE(w.text(1, 1), std::string("ba"));
    }

    void aClickElsewhereCommits() {
        GridWindow w;
        w.type("new");
        w.click(3, 3);
        QCOMPARE(w.text(1, 1), std::string("new"));
        QCOMPARE(w.current(), (CellAddress{3, 3}));
        QVERIFY(!w.editorShows());
    }

    void aClickOnNoCellCommits() {
        GridWindow w(3, 3);
        w.type("new");
        QTest::mouseClick(w.view.viewport(), Qt::LeftButton, Qt::NoModifier,
                          w.view.viewport()->rect().bottomRight() - QPoint(3, 3));
        QCOMPARE(w.text(1, 1), std::string("new"));
        QVERIFY(!w.editorShows());
    }

    void codeThatCommitsClosesTheEditor() {
        GridWindow w;
        w.type("new");
        QVERIFY(w.editorShows());
        w.run([&] { w.form.CommitOpenEditor(); });
        QCOMPARE(w.text(1, 1), std::string("new"));
        QVERIFY(!w.editorShows());
    }

    void theEditorStaysWhenTheFocusGoes() {
        GridWindow w;
        w.type("new");
        w.after.setFocus();
        QVERIFY(w.editorShows());
        QVERIFY(w.grid.Editing());
    }

    void aCellThatMayNotBeEditedStaysClosed() {
        GridWindow w;
        w.grid.BeforeEdit = [](int, int, bool& cancel) { cancel = true; };
        w.key(Qt::Key_F2);
        w.type("x");
        w.doubleClick(2, 2);
        QVERIFY(!w.grid.Editing());
        QVERIFY(!w.editorShows());
        QCOMPARE(w.text(1, 1), std::string("1.1"));
    }

    void theCaretMovesAndSelects() {
        GridWindow w;
        w.run([&] { w.grid.TextMatrix(1, 1, "abécd"); });
        w.key(Qt::Key_F2);
        w.key(Qt::Key_Home);
        compareSelection(w, 0, 0);
        w.key(Qt::Key_Right, Qt::ShiftModifier);
        w.key(Qt::Key_Right, Qt::ShiftModifier);
        compareSelection(w, 0, 2);
        w.key(Qt::Key_End, Qt::ShiftModifier);
        compareSelection(w, 0, 5);
        w.key(Qt::Key_End);
        compareSelection(w, 5, 0);
        w.key(Qt::Key_Left, Qt::ShiftModifier);
        w.key(Qt::Key_Left, Qt::ShiftModifier);
        compareSelection(w, 3, 2);
        w.key(Qt::Key_Right, Qt::ShiftModifier);
        compareSelection(w, 4, 1);
        w.key(Qt::Key_Home, Qt::ShiftModifier);
        compareSelection(w, 0, 5);
        w.key(Qt::Key_Delete);
        QCOMPARE(w.grid.EditText(), std::string());
    }

    void deleteAndBackspaceTakeOneCharacter() {
        GridWindow w;
        w.run([&] { w.grid.TextMatrix(1, 1, "añb"); });
        w.key(Qt::Key_F2);
        w.key(Qt::Key_Home);
        w.key(Qt::Key_Delete);
        QCOMPARE(w.grid.EditText(), std::string("ñb"));
        w.key(Qt::Key_Delete);
        QCOMPARE(w.grid.EditText(), std::string("b"));
        w.key(Qt::Key_End);
        w.key(Qt::Key_Delete);
        QCOMPARE(w.grid.EditText(), std::string("b"));
        w.key(Qt::Key_Backspace);
        QCOMPARE(w.grid.EditText(), std::string());
    }

    void theEditorCopiesCutsAndPastes() {
        GridWindow w;
        w.run([&] { w.grid.TextMatrix(1, 1, "meadow"); });
        w.key(Qt::Key_F2);
        w.key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString("meadow"));
        w.key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(w.grid.EditText(), std::string());
        QApplication::clipboard()->setText("wet\tmeadow\nmore");
        w.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(w.grid.EditText(), std::string("wet meadow"));
        w.key(Qt::Key_A, Qt::ControlModifier);
        compareSelection(w, 0, 10);
    }

    void theMousePlacesTheCaret() {
        GridWindow w;
        w.run([&] { w.grid.TextMatrix(1, 1, "iiiiii"); });
        w.key(Qt::Key_F2);
        const QPoint end(w.editor().width() - 4, w.editor().height() / 2);
        QTest::mouseClick(&w.editor(), Qt::LeftButton, Qt::NoModifier, end);
        compareSelection(w, 6, 0);
        QTest::mouseClick(&w.editor(), Qt::LeftButton, Qt::ShiftModifier, QPoint(2, end.y()));
        compareSelection(w, 0, 6);
        QTest::mouseClick(&w.editor(), Qt::LeftButton, Qt::NoModifier, QPoint(2, end.y()));
        compareSelection(w, 0, 0);
        QVERIFY(w.editorShows());
        QVERIFY(w.view.hasFocus());
    }

    void anInputMethodEntersCharacters() {
        GridWindow w;
        QInputMethodEvent composing("ni", {});
        QApplication::sendEvent(&w.view, &composing);
        QVERIFY(w.editorShows());
        QCOMPARE(w.grid.EditText(), std::string("1.1"));
        QInputMethodEvent entered("", {});
        entered.setCommitString("你好");
        QApplication::sendEvent(&w.view, &entered);
        QCOMPARE(w.grid.EditText(), std::string("你好"));
    }

    void aListOpensWithTheEditor() {
        GridWindow w;
        offer(w, "|N|Y");
        w.key(Qt::Key_F2);
        QVERIFY(w.list().isVisible());
        QCOMPARE(itemsOf(w), (QStringList{"", "N", "Y"}));
        QVERIFY(w.list().visualItemRect(w.list().item(0)).height() > 10);
        w.key(Qt::Key_Escape);
        QVERIFY(!w.list().isVisible());
        QVERIFY(w.grid.Editing());
        w.key(Qt::Key_Escape);
        QVERIFY(!w.grid.Editing());
        w.doubleClick(2, 2);
        QVERIFY(w.list().isVisible());
        w.key(Qt::Key_Escape);
        w.key(Qt::Key_Down, Qt::AltModifier);
        QVERIFY(w.list().isVisible());
    }

    void arrowsAndEnterChooseAnItem() {
        GridWindow w;
        offer(w, "0|1|2");
        w.run([&] { w.grid.TextMatrix(1, 1, "1"); });
        w.key(Qt::Key_F2);
        QCOMPARE(w.list().currentRow(), 1);
        // With the list open its window gets the keys.
        QTest::keyClick(&w.list(), Qt::Key_Down);
        QCOMPARE(w.list().currentRow(), 2);
        QCOMPARE(w.text(1, 1), std::string("1"));
        QTest::keyClick(&w.list(), Qt::Key_Return);
        QCOMPARE(w.text(1, 1), std::string("2"));
        QVERIFY(!w.grid.Editing());
        QVERIFY(!w.list().isVisible());
        QCOMPARE(w.current(), (CellAddress{2, 1}));  // Enter goes on, as it does after typing
    }

    void aClickChoosesAnItem() {
        GridWindow w;
        offer(w, "|N|Y");
        w.key(Qt::Key_F2);
        QTest::mouseClick(w.list().viewport(), Qt::LeftButton, Qt::NoModifier,
                          w.list().visualItemRect(w.list().item(2)).center());
        QCOMPARE(w.text(1, 1), std::string("Y"));
        w.key(Qt::Key_F2);
        QTest::mouseClick(w.list().viewport(), Qt::LeftButton, Qt::NoModifier,
                          w.list().visualItemRect(w.list().item(0)).center());
        QCOMPARE(w.text(1, 1), std::string());
        QVERIFY(!w.grid.Editing());
    }

    void onlyAnItemCanBeTyped() {
        GridWindow w;
        offer(w, "N|Y");
        w.key(Qt::Key_F2);
        w.type("x");
        QCOMPARE(w.platform.Beeps, 1);
        w.type("y");
        QCOMPARE(w.grid.EditText(), std::string("Y"));
        QCOMPARE(w.list().currentRow(), 1);
        w.key(Qt::Key_Tab);
        QCOMPARE(w.text(1, 1), std::string("Y"));
        QCOMPARE(w.current(), (CellAddress{1, 2}));
        QVERIFY(!w.list().isVisible());
        w.type("n");
        QVERIFY(!w.list().isVisible());
        w.key(Qt::Key_Return);
        QCOMPARE(w.text(1, 2), std::string("N"));
    }

    void aRefusedItemKeepsTheEditorOpen() {
        GridWindow w;
        offer(w, "N|Y");
        w.grid.ValidateEdit = [](int, int, bool& cancel) { cancel = true; };
        w.key(Qt::Key_F2);
        w.key(Qt::Key_Down);
        w.key(Qt::Key_Return);
        QVERIFY(w.grid.Editing());
        QVERIFY(w.editorShows());
        QCOMPARE(w.grid.EditText(), std::string("N"));
    }

    void theEditorGoesWithItsCell() {
        GridWindow w(100, 4);
        w.key(Qt::Key_F2);
        const QPoint place = w.editor().pos();
        w.view.verticalScrollBar()->setValue(3);
        QVERIFY(!w.editorShows());
        QVERIFY(w.grid.Editing());
        w.view.verticalScrollBar()->setValue(0);
        QVERIFY(w.editorShows());
        QCOMPARE(w.editor().pos(), place);
    }

    void anEditBringsItsCellIntoView() {
        GridWindow w(100, 4);
        w.view.verticalScrollBar()->setValue(40);
        w.type("7");
        QVERIFY(w.editorShows());
        QVERIFY(w.view.viewport()->rect().contains(w.editor().geometry().center()));
    }

private:
    static void offer(GridWindow& w, const char* items) {
        w.grid.BeforeEdit = [&w, items](int, int, bool&) { w.grid.ComboList(items); };
    }
    static QStringList itemsOf(GridWindow& w) {
        QStringList items;
        for (int row = 0; row < w.list().count(); ++row) items.append(w.list().item(row)->text());
        return items;
    }
    static void compareSelection(const GridWindow& w, int start, int length) {
        QCOMPARE(w.grid.Editor().SelStart(), start);
        QCOMPARE(w.grid.Editor().SelLength(), length);
    }
};

static const desktop_test::Registered<CellEditorTest> registered;

#include "cell_editor_test.moc"
