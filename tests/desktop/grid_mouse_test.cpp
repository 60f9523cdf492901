// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QScrollBar>
#include <QWheelEvent>

#include "desktop/grid_fixture.h"

using desktop::CellAddress;
using desktop_test::GridWindow;

class GridMouseTest : public QObject {
    Q_OBJECT

private slots:
    void aPressMovesTheCurrentCell() {
        GridWindow w;
        w.press(3, 2);
        QCOMPARE(w.current(), (CellAddress{3, 2}));
    }

    void onlyTheLeftButtonMovesIt() {
        GridWindow w;
        QTest::mouseClick(w.view.viewport(), Qt::RightButton, Qt::NoModifier, w.middle(3, 2));
        QCOMPARE(w.current(), (CellAddress{1, 1}));
    }

    void aPressTellsItsCell() {
        GridWindow w;
        CellAddress pressed;
        w.grid.MouseDown = [&] { pressed = {w.grid.MouseRow(), w.grid.MouseCol()}; };
        w.click(0, 2);
        QCOMPARE(pressed, (CellAddress{0, 2}));
        QCOMPARE(w.current(), (CellAddress{1, 1}));
        QTest::mouseClick(w.view.viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(w.view.viewport()->width() - 2, w.middle(0, 0).y()));
        QCOMPARE(pressed, (CellAddress{-1, -1}));
    }

    void aDoubleClickOnAHeadingIsOnePress() {
        GridWindow w;
        int presses = 0;
        w.grid.MouseDown = [&] { ++presses; };
        w.doubleClick(0, 2);
        QCOMPARE(presses, 1);
    }

    void theCellUnderThePointerIsToldOnce() {
        GridWindow w;
        std::vector<std::string> told;
        w.grid.MouseMove = [&] { told.push_back(GridWindow::at(w.grid.MouseRow(), w.grid.MouseCol())); };
        w.hover(w.middle(2, 2));
        w.hover(w.middle(2, 2) + QPoint(3, 1));
        w.hover(w.middle(0, 1));
        w.hover(QPoint(w.view.viewport()->width() - 2, w.middle(0, 0).y()));
        w.hover(w.middle(1, 0));
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(w.view.viewport(), &leave);
        QCOMPARE(told, (std::vector<std::string>{"2.2", "0.1", "-1.-1", "1.0"}));
    }

    void leavingTheGridKeepsTheTipOfItsHeading() {
        GridWindow w;
        w.grid.MouseMove = [&] { w.grid.ToolTipText(w.grid.MouseRow() == 0 ? "a heading" : ""); };
        w.hover(w.middle(0, 2));
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(w.view.viewport(), &leave);
        QCOMPARE(w.grid.ToolTipText(), std::string("a heading"));
    }

    void aRightClickMovesToACellOutsideTheSelection() {
        GridWindow w;
        w.select(2, 1);
        w.run([&] { w.grid.UserSelectTo(3, 1); });
        const auto rightClick = [&](int row, int col) {
            QContextMenuEvent event(QContextMenuEvent::Mouse, w.middle(row, col), QPoint());
            QApplication::sendEvent(w.view.viewport(), &event);
            if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
        };
        rightClick(3, 1);
        QCOMPARE(w.current(), (CellAddress{2, 1}));
        rightClick(1, 2);
        QCOMPARE(w.current(), (CellAddress{1, 2}));
        QCOMPARE(w.selectedTo(), (CellAddress{1, 2}));
    }

    void aDragSelectsARange() {
        GridWindow w;
        w.press(1, 1);
        w.drag(w.middle(3, 2));
        QCOMPARE(w.current(), (CellAddress{1, 1}));
        QCOMPARE(w.selectedTo(), (CellAddress{3, 2}));
        QTest::mouseRelease(w.view.viewport(), Qt::LeftButton, Qt::NoModifier, w.middle(3, 2));
        w.drag(w.middle(2, 2));
        QCOMPARE(w.selectedTo(), (CellAddress{3, 2}));
    }

    void aDragBeyondTheEdgeScrolls() {
        GridWindow w(100, 4);
        w.press(1, 1);
        w.drag(QPoint(w.middle(1, 2).x(), w.view.viewport()->height() + 30));
        QTRY_VERIFY(w.view.verticalScrollBar()->value() >= 3);
        QVERIFY(w.grid.RowSel() > w.view.verticalScrollBar()->pageStep());
        QCOMPARE(w.grid.ColSel(), 2);
        QTest::mouseRelease(w.view.viewport(), Qt::LeftButton, Qt::NoModifier, w.middle(1, 1));
        const int stopped = w.view.verticalScrollBar()->value();
        QTest::qWait(150);
        QCOMPARE(w.view.verticalScrollBar()->value(), stopped);
    }

    void shiftAndAPressSelectARange() {
        GridWindow w;
        w.click(2, 1);
        w.click(4, 3, Qt::ShiftModifier);
        QCOMPARE(w.current(), (CellAddress{2, 1}));
        QCOMPARE(w.selectedTo(), (CellAddress{4, 3}));
    }

    void theWheelScrollsByRows() {
        GridWindow w(100, 4);
        wheel(w, -120);
        QCOMPARE(w.view.verticalScrollBar()->value(), QApplication::wheelScrollLines());
        const int row = 1 + QApplication::wheelScrollLines();
        QCOMPARE(w.view.cellPlace(row, 1).top(), w.view.cellPlace(0, 1).bottom() + 1);
        wheel(w, 120);
        QCOMPARE(w.view.verticalScrollBar()->value(), 0);
    }

    void theWheelTellsTheCellThatCameUnderThePointer() {
        GridWindow w(100, 4);
        w.hover(w.middle(2, 2));
        wheel(w, -120);
        QCOMPARE(w.grid.MouseRow(), 2 + QApplication::wheelScrollLines());
    }

    void aColumnsEdgeIsDragged() {
        GridWindow w;
        int presses = 0;
        w.grid.MouseDown = [&] { ++presses; };
        const QRect heading = w.view.cellPlace(0, 1);
        w.hover(QPoint(heading.right(), heading.center().y()));
        QCOMPARE(w.view.viewport()->cursor().shape(), Qt::SplitHCursor);
        QTest::mousePress(w.view.viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(heading.right(), heading.center().y()));
        w.drag(QPoint(heading.right() + 37, heading.center().y()));
        QTest::mouseRelease(w.view.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint());
        QVERIFY(std::abs(w.view.cellPlace(0, 1).right() - (heading.right() + 37)) <= 1);
        QCOMPARE(presses, 0);
        QCOMPARE(w.current(), (CellAddress{1, 1}));
        w.hover(w.middle(0, 2));
        QVERIFY(w.view.viewport()->cursor().shape() != Qt::SplitHCursor);
    }

    void aColumnIsNeverDraggedAway() {
        GridWindow w;
        const QRect heading = w.view.cellPlace(0, 2);
        QTest::mousePress(w.view.viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(heading.right(), heading.center().y()));
        w.drag(QPoint(0, heading.center().y()));
        QVERIFY(w.view.cellPlace(0, 2).width() >= 4);
    }

    void aDoubleClickOnAnEdgeFitsTheColumn() {
        GridWindow w;
        w.run([&] { w.grid.TextMatrix(3, 1, "a rather long name of a species"); });
        const QRect heading = w.view.cellPlace(0, 1);
        w.doubleClick(QPoint(heading.right(), heading.center().y()));
        const int fitted = w.grid.ColWidth(1);
        w.grid.AutoSize(1);
        QCOMPARE(fitted, w.grid.ColWidth(1));
        QVERIFY(fitted > 2000);
    }

    void anEdgeBelowTheHeadingsIsNone() {
        GridWindow w;
        const QRect cell = w.view.cellPlace(2, 1);
        const int width = w.grid.ColWidth(1);
        QTest::mousePress(w.view.viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(cell.right(), cell.center().y()));
        w.drag(QPoint(cell.right() + 30, cell.center().y()));
        QCOMPARE(w.grid.ColWidth(1), width);
        QCOMPARE(w.current(), (CellAddress{2, 1}));
    }

    void aHeadingShowsTheTipOfTheGrid() {
        GridWindow w;
        w.grid.MouseMove = [&] { w.grid.ToolTipText(w.grid.MouseRow() == 0 ? "<b>share</b> of area" : ""); };
        w.hover(w.middle(0, 2));
        QCOMPARE(w.tipAt(w.middle(0, 2)),
                 QString("<p style='white-space:pre'>&lt;b&gt;share&lt;/b&gt; of area</p>"));
        w.hover(w.middle(2, 2));
        QCOMPARE(w.tipAt(w.middle(2, 2)), QString());
    }

    void aTextThatIsCutIsItsCellsTip() {
        GridWindow w;
        w.run([&] { w.grid.TextMatrix(2, 2, "a rather long name of a species"); });
        QCOMPARE(w.tipAt(w.middle(2, 2)), QString("a rather long name of a species"));
        QCOMPARE(w.tipAt(w.middle(1, 1)), QString());
        w.run([&] { w.grid.ColWidth(2, 4000); });
        QCOMPARE(w.tipAt(w.middle(2, 2)), QString());
    }

private:
    static void wheel(GridWindow& w, int angle) {
        const QPointF place = w.middle(2, 2);
        QWheelEvent event(place, w.view.viewport()->mapToGlobal(place), QPoint(), QPoint(0, angle),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(w.view.viewport(), &event);
    }
};

static const desktop_test::Registered<GridMouseTest> registered;

#include "grid_mouse_test.moc"
