// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>
#include <QScrollBar>
#include <QToolTip>

#include "desktop/grid_fixture.h"

using desktop::CellAddress;
using desktop_test::GridWindow;

namespace {

/// A grid into which texts are pasted by the keys; "no" is refused.
struct PasteWindow : GridWindow {
    using GridWindow::GridWindow;
    ~PasteWindow() { QToolTip::hideText(); }

    void paste(const QString& text) {
        QToolTip::hideText();
        grid.ValidateEdit = [this](int, int, bool& cancel) { cancel = grid.EditText().starts_with("no"); };
        QApplication::clipboard()->setText(text);
        key(Qt::Key_V, Qt::ControlModifier);
    }
    void copyWithHeadings() { key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier); }
};

QString copied() { return QApplication::clipboard()->text(); }

}  // namespace

class GridClipboardTest : public QObject {
    Q_OBJECT

private slots:
    void headingsAreCopiedWithTheCells() {
        PasteWindow w;
        w.select(2, 2);
        w.key(Qt::Key_Right, Qt::ShiftModifier);
        w.copyWithHeadings();
        QCOMPARE(copied(), QString("0.0\t0.2\t0.3\n2.0\t2.2\t2.3"));
    }

    void namesAreCopiedWhereTheHeadingShowsNumbers() {
        PasteWindow w;
        w.view.add({nullptr, [](int col) { return "Unit " + std::to_string(col); }});
        w.select(2, 2);
        w.copyWithHeadings();
        QCOMPARE(copied(), QString("Unit 0\tUnit 2\n2.0\t2.2"));
    }

    void tablesThatCannotBeEditedAreCopiedToo() {
        PasteWindow w;
        w.grid.Editable = ui::EditMode::ReadOnly;
        w.copyWithHeadings();
        QCOMPARE(copied(), QString("0.0\t0.1\n1.0\t1.1"));
    }

    void anOpenEditorKeepsTheClipboard() {
        PasteWindow w;
        QApplication::clipboard()->setText("before");
        w.type("half");
        w.copyWithHeadings();
        QCOMPARE(copied(), QString("before"));
        QVERIFY(w.grid.Editing());
    }

    void whatWasPastedIsSelectedAndShown() {
        PasteWindow w(100, 4);
        w.paste("a\tb\n" + QString("c\td\n").repeated(60));
        QCOMPARE(w.current(), (CellAddress{1, 1}));
        QCOMPARE(w.selectedTo(), (CellAddress{61, 2}));
        QVERIFY(w.grid.UserSelected());
        QVERIFY(w.view.viewport()->rect().contains(w.middle(61, 2)));
        QVERIFY(!QToolTip::isVisible());
    }

    void theCellThatRefusedIsCurrentAndToldOf() {
        PasteWindow w;
        w.paste("a\tno1\nc\td");
        QCOMPARE(w.current(), (CellAddress{1, 2}));
        QCOMPARE(w.selectedTo(), (CellAddress{1, 2}));
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QString("“no1” is not accepted here: 3 cells not pasted."));
        w.paste("no2");
        QCOMPARE(QToolTip::text(), QString("“no2” is not accepted here: 1 cell not pasted."));
    }

    void theCellThatRefusedIsShown() {
        PasteWindow w(100, 4);
        w.paste(QString("a\n").repeated(80) + "no\nb\n");
        QCOMPARE(w.current(), (CellAddress{81, 1}));
        QVERIFY(w.view.verticalScrollBar()->value() > 10);
        QVERIFY(w.view.viewport()->rect().contains(w.middle(81, 1)));
        QCOMPARE(QToolTip::text(), QString("“no” is not accepted here: 2 cells not pasted."));
    }

    void aCellThatTakesNothingIsToldSo() {
        PasteWindow w;
        w.grid.BeforeEdit = [](int, int, bool& cancel) { cancel = true; };
        w.paste(" ");
        QCOMPARE(QToolTip::text(), QString("Nothing can be entered here: 1 cell not pasted."));
    }

    void theNextKeyTakesTheTipAway() {
        PasteWindow w;
        w.paste("no1");
        QVERIFY(!PasteWindow::tip().isEmpty());
        w.key(Qt::Key_Escape);
        QVERIFY(PasteWindow::tip().isEmpty());
    }

    void aLongTextThatIsRefusedIsShortenedAndPlain() {
        PasteWindow w;
        w.paste("no <b>" + QString(500, 'x'));
        QVERIFY(QToolTip::text().size() < 150);
        QVERIFY(!QToolTip::text().contains("<b>"));
    }

    void theEndOfTheTableIsToldOf() {
        PasteWindow w;
        w.select(5, 3);
        w.paste("a\tb\nc");
        QCOMPARE(w.current(), (CellAddress{5, 3}));
        QCOMPARE(QToolTip::text(), QString("The table ends here: 2 cells not pasted."));
        w.select(4, 2);
        w.paste("a\tb\nc\td\ne\tf\n");
        QCOMPARE(w.current(), (CellAddress{4, 2}));
        QCOMPARE(w.selectedTo(), (CellAddress{5, 3}));
        QCOMPARE(QToolTip::text(), QString("The table ends here: 2 cells not pasted."));
    }

    void blankCellsLeaveListCellsAsTheyAre() {
        PasteWindow w;
        w.grid.BeforeEdit = [&](int, int, bool&) { w.grid.ComboList("1|2|3"); };
        w.paste("1\t\n\t2");
        QCOMPARE(w.text(1, 1), std::string("1"));
        QCOMPARE(w.text(1, 2), std::string("1.2"));
        QCOMPARE(w.text(2, 1), std::string("2.1"));
        QCOMPARE(w.text(2, 2), std::string("2"));
        QCOMPARE(w.selectedTo(), (CellAddress{2, 2}));
        QVERIFY(!QToolTip::isVisible());
        QCOMPARE(w.platform.Beeps, 0);
    }
};

static const desktop_test::Registered<GridClipboardTest> registered;

#include "grid_clipboard_test.moc"
