// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/cell_editor_accessible.h"

#include <QAccessible>

#include "desktop/grid_fixture.h"

using desktop_test::GridWindow;

class CellEditorAccessibleTest : public QObject {
    Q_OBJECT

private slots:
    void textCaretAndSelectionCanBeAskedFor() {
        GridWindow w;
        w.run([&] { w.grid.TextMatrix(2, 2, "aé😀b"); });
        w.select(2, 2);
        w.key(Qt::Key_F2);
        QAccessibleInterface* editor = QAccessible::queryAccessibleInterface(&w.editor());
        QVERIFY(editor != nullptr);
        QCOMPARE(editor->role(), QAccessible::EditableText);
        QVERIFY(editor->state().focused);
        QAccessibleTextInterface* text = editor->textInterface();
        QVERIFY(text != nullptr);
        QCOMPARE(text->characterCount(), 5);
        QCOMPARE(text->text(0, 5), QString("aé😀b"));
        QCOMPARE(text->cursorPosition(), 5);
        w.key(Qt::Key_End);
        QCOMPARE(text->selectionCount(), 0);
        w.key(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(text->cursorPosition(), 4);
        int from = 0;
        int to = 0;
        text->selection(0, &from, &to);
        QCOMPARE(std::pair(from, to), std::pair(4, 5));
        QVERIFY(text->characterRect(1).left() > text->characterRect(0).left());
    }

    void aReaderCanMoveTheCaret() {
        GridWindow w;
        w.select(2, 2);
        w.key(Qt::Key_F2);
        QAccessible::queryAccessibleInterface(&w.editor())->textInterface()->setCursorPosition(1);
        w.type("x");
        QCOMPARE(QString::fromStdString(w.grid.EditText()), QString("2x.2"));
    }
};

static const desktop_test::Registered<CellEditorAccessibleTest> registered;

#include "cell_editor_accessible_test.moc"
