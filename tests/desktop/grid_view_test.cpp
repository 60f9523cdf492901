// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_view.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QScrollBar>

#include "desktop/grid_fixture.h"

using desktop::CellAddress;
using desktop_test::GridWindow;

namespace {

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++Count;
        return false;
    }
    int Count = 0;
};

int countOf(const QImage& image, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour;
    }
    return count;
}

/// How many pixels have about this colour: strokes of a text are seldom quite of their own.
int inkOf(const QImage& image, const QColor& colour) {
    constexpr int Tolerance = 90;
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            count += std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green()) +
                         std::abs(pixel.blue() - colour.blue()) <
                     Tolerance;
        }
    }
    return count;
}

/// How many pixels are clearly dark, as text is on a light ground.
int inkOf(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) count += qGray(image.pixel(x, y)) < 110;
    }
    return count;
}

}  // namespace

class GridViewTest : public QObject {
    Q_OBJECT

private slots:
    void cellsStandWhereTheirColumnsAndRowsAre() {
        GridWindow w;
        const desktop::Scale& scale = w.link.scale();
        w.run([&] {
            w.grid.ColWidth(0, 500);
            w.grid.ColWidth(1, 777);
            w.grid.ColWidth(2, 333);
        });
        QCOMPARE(w.view.cellPlace(0, 0), QRect(0, 0, scale.pixels(500), scale.pixels(240)));
        QCOMPARE(w.view.cellPlace(2, 2).left(), scale.pixels(1277));
        QCOMPARE(w.view.cellPlace(2, 2).right() + 1, scale.pixels(1610));
        QCOMPARE(w.view.cellPlace(2, 2).top(), scale.pixels(480));
        QCOMPARE(w.view.cellAt(w.middle(2, 2)), (CellAddress{2, 2}));
        QCOMPARE(w.view.cellAt(QPoint(w.view.viewport()->width() - 1, 5)), CellAddress());
    }

    void aHiddenColumnTakesNoRoom() {
        GridWindow w;
        const QRect third = w.view.cellPlace(1, 3);
        const QRect second = w.view.cellPlace(1, 2);
        w.run([&] { w.grid.ColHidden(2, true); });
        QVERIFY(w.view.cellPlace(1, 2).isEmpty());
        QCOMPARE(w.view.cellPlace(1, 3).left(), second.left());
        QCOMPARE(w.view.cellAt(second.center()), (CellAddress{1, 3}));
        QVERIFY(third.left() > second.left());
    }

    void scrollBarsShowAsTheGridCounts() {
        GridWindow w;
        const int barWidth = w.link.scale().pixels(ui::Grid::ScrollBarWidth);
        for (const int rows : {2, 11, 12, 13, 14, 200}) {
            w.run([&] { w.grid.Rows(rows); });
            QCOMPARE(w.view.verticalScrollBar()->isVisible(), w.grid.RowsOverflow());
        }
        QCOMPARE(w.view.verticalScrollBar()->width(), barWidth);
        QVERIFY(!w.view.horizontalScrollBar()->isVisible());
    }

    void columnsThatFillTheClientWidthNeedNoBar() {
        for (int width = 3000; width < 9000; width += 37) {
            GridWindow w(40, 4);
            w.grid.Width(width);
            w.view.resize(w.link.scale().place(w.grid).size());
            w.run([&] {
                const int client = w.grid.ClientWidth();
                for (int col = 0; col < 4; ++col) w.grid.ColWidth(col, client / 4);
            });
            QVERIFY2(!w.view.horizontalScrollBar()->isVisible(), qPrintable(QString::number(width)));
            if (width > 3500) width += 1000;
        }
    }

    void rowsThatFitNeedNoBar() {
        GridWindow w;
        for (int rows = 2; rows < 60; ++rows) {
            w.grid.Height(rows * ui::Grid::RowHeight + ui::Grid::BorderWidth);
            w.view.resize(w.link.scale().place(w.grid).size());
            w.run([&] { w.grid.Rows(rows); });
            QVERIFY(!w.view.verticalScrollBar()->isVisible());
            QCOMPARE(w.view.verticalScrollBar()->maximum(), 0);
        }
    }

    void headingsStayWhenTheBodyScrolls() {
        GridWindow w(100, 30);
        const QImage before = w.picture();
        const QRect top = w.view.cellPlace(0, 1);
        const QRect corner = w.view.cellPlace(0, 0);
        w.view.verticalScrollBar()->setValue(20);
        QCOMPARE(w.view.cellPlace(0, 1), top);
        QCOMPARE(w.view.cellPlace(21, 0).top(), corner.bottom() + 1);
        w.view.horizontalScrollBar()->setValue(100);
        QCOMPARE(w.view.cellPlace(21, 0).left(), 0);
        QCOMPARE(w.view.cellPlace(0, 1).left(), top.left() - 100);
        const QImage after = w.picture();
        QCOMPARE(after.copy(corner), before.copy(corner));
        QVERIFY(after.copy(w.view.cellPlace(21, 0)) != before.copy(w.view.cellPlace(21, 0)));
    }

    void headingsLookLikeButtonsAndCellsLikePaper() {
        GridWindow w;
        const QImage image = w.picture();
        QCOMPARE(image.pixelColor(w.view.cellPlace(0, 2).topLeft() + QPoint(1, 1)),
                 w.view.palette().color(QPalette::Button));
        QCOMPARE(image.pixelColor(w.view.cellPlace(3, 0).topLeft() + QPoint(1, 1)),
                 w.view.palette().color(QPalette::Button));
        QCOMPARE(image.pixelColor(w.view.cellPlace(3, 2).topLeft() + QPoint(1, 1)),
                 w.view.palette().color(QPalette::Base));
    }

    void aColouredCellContrastsWithItsText_data() {
        QTest::addColumn<int>("colour");
        QTest::addColumn<QColor>("back");
        QTest::addColumn<QColor>("text");
        QTest::newRow("yellow") << ui::rgb(255, 255, 0) << QColor(255, 255, 0) << QColor(Qt::black);
        QTest::newRow("navy") << ui::rgb(0, 0, 128) << QColor(0, 0, 128) << QColor(Qt::white);
        QTest::newRow("red") << ui::rgb(255, 0, 0) << QColor(255, 0, 0) << QColor(Qt::black);
        QTest::newRow("black") << ui::rgb(0, 0, 0) << QColor(0, 0, 0) << QColor(Qt::white);
    }
    void aColouredCellContrastsWithItsText() {
        QFETCH(const int, colour);
        QFETCH(const QColor, back);
        QFETCH(const QColor, text);
        GridWindow w;
        w.view.setPalette(darkPalette());
        w.run([&] {
            w.grid.TextMatrix(2, 2, "MMMM");
            w.grid.Select(2, 2);
            w.grid.CellBackColor(colour);
            w.grid.Select(1, 1);
        });
        const QImage cell = w.picture().copy(w.view.cellPlace(2, 2));
        QVERIFY(countOf(cell, back) > cell.width() * cell.height() / 2);
        QVERIFY(inkOf(cell, text) > 10);
    }

    void aWhiteCellHasTheDesktopsColours() {
        GridWindow w;
        w.view.setPalette(darkPalette());
        w.run([&] {
            w.grid.TextMatrix(2, 2, "MMMM");
            w.grid.Select(2, 2);
            w.grid.CellBackColor(ui::rgb(255, 255, 255));
            w.grid.Select(1, 1);
        });
        const QImage cell = w.picture().copy(w.view.cellPlace(2, 2));
        QVERIFY(countOf(cell, darkPalette().color(QPalette::Base)) > cell.width() * cell.height() / 2);
        QVERIFY(inkOf(cell, darkPalette().color(QPalette::Text)) > 10);
    }

    void boldTextHasMoreInk() {
        GridWindow w;
        w.run([&] { w.grid.TextMatrix(2, 2, "Badger"); });
        const int plain = inkOf(w.picture().copy(w.view.cellPlace(2, 2)));
        w.run([&] {
            w.grid.Select(2, 2);
            w.grid.CellFontBold(true);
            w.grid.Select(1, 1);
        });
        QVERIFY(inkOf(w.picture().copy(w.view.cellPlace(2, 2))) > plain);
    }

    void alignmentMovesTheText() {
        GridWindow w;
        const auto inkBox = [&] {
            const QImage cell = w.picture().copy(w.view.cellPlace(2, 2));
            int left = cell.width();
            for (int y = 0; y < cell.height(); ++y) {
                for (int x = 0; x < cell.width(); ++x) {
                    if (qGray(cell.pixel(x, y)) < 110) left = std::min(left, x);
                }
            }
            return left;
        };
        w.run([&] { w.grid.ColWidth(2, 2000); });
        const int general = inkBox();
        w.run([&] { w.grid.ColAlignment(2, ui::CellAlign::LeftCentre); });
        QCOMPARE(inkBox(), general);
        w.run([&] { w.grid.ColAlignment(2, ui::CellAlign::CentreCentre); });
        const int centred = inkBox();
        w.run([&] { w.grid.ColAlignment(2, ui::CellAlign::RightCentre); });
        QVERIFY(general < centred);
        QVERIFY(centred < inkBox());
    }

    void textIsNeverMarkedUp() {
        GridWindow w;
        w.run([&] { w.grid.TextMatrix(2, 2, "<b>i</b>"); });
        const int marked = inkOf(w.picture().copy(w.view.cellPlace(2, 2)));
        w.run([&] { w.grid.TextMatrix(2, 2, "i"); });
        QVERIFY(inkOf(w.picture().copy(w.view.cellPlace(2, 2))) * 3 < marked);
    }

    void aLongTextStaysInItsCell() {
        GridWindow w;
        w.run([&] { w.grid.TextMatrix(2, 3, ""); });
        const QImage before = w.picture().copy(w.view.cellPlace(2, 3));
        w.run([&] { w.grid.TextMatrix(2, 2, std::string(300, 'W')); });
        QCOMPARE(w.picture().copy(w.view.cellPlace(2, 3)), before);
    }

    void aClickOnAHeadingSortsAndMarksIt() {
        GridWindow w;
        w.grid.MouseDown = [&] {
            if (w.grid.MouseRow() != 0) return;
            w.grid.Select(0, w.grid.MouseCol());
            const bool again = w.grid.Sorted().Col == w.grid.MouseCol() && !w.grid.Sorted().Descending;
            w.grid.Sort(again ? ui::SortOrder::GenericDescending : ui::SortOrder::GenericAscending);
        };
        const QImage plain = w.picture();
        w.click(0, 2);
        const QImage ascending = w.picture();
        w.click(0, 2);
        const QImage descending = w.picture();
        QCOMPARE(w.text(1, 2), std::string("5.2"));
        const QRect marked = w.view.cellPlace(0, 2);
        const QRect other = w.view.cellPlace(0, 3);
        QVERIFY(ascending.copy(marked) != plain.copy(marked));
        QVERIFY(descending.copy(marked) != plain.copy(marked));
        QVERIFY(ascending.copy(marked) != descending.copy(marked));
        QCOMPARE(ascending.copy(other), plain.copy(other));
        w.run([&] { w.grid.TextMatrix(1, 2, "9"); });
        QCOMPARE(w.picture().copy(marked), plain.copy(marked));
    }

    void theCurrentCellHasAFrameWhileTheGridHasTheFocus() {
        GridWindow w;
        w.select(2, 2);
        const QRect around = w.view.cellPlace(2, 2).adjusted(-1, -1, 0, 0);
        const QImage focused = w.picture().copy(around);
        w.after.setFocus();
        const QImage unfocused = w.picture().copy(around);
        w.select(4, 3);
        const QImage without = w.picture().copy(around);
        QVERIFY(focused != unfocused);
        QCOMPARE(unfocused, without);
        const QColor highlight = w.view.palette().color(QPalette::Highlight);
        QVERIFY(countOf(focused, highlight) > 2 * around.width());
        QCOMPARE(focused.pixelColor(focused.rect().topRight() + QPoint(-3, 3)),
                 w.view.palette().color(QPalette::Base));
    }

    void theCellThatKeysBeginAtHasTheFrameBeforeThereIsACurrentOne() {
        GridWindow w;
        w.select(1, 1);
        const QImage first = w.picture();
        w.select(0, 0);
        QCOMPARE(w.picture(), first);
        QAccessibleInterface* view = QAccessible::queryAccessibleInterface(&w.view);
        QCOMPARE(view->focusChild()->text(QAccessible::Name), QString("1.1"));
        w.run([&] {
            w.grid.Rows(1);
            w.grid.Select(0, 0);
        });
        const QImage empty = w.picture();
        w.after.setFocus();
        QCOMPARE(w.picture(), empty);
    }

    void thePointersTipsComeByAKeyToo() {
        GridWindow w;
        w.view.add({nullptr, [](int col) { return col == 2 ? "Reed bed" : ""; }});
        w.grid.MouseMove = [&] {
            if (w.grid.MouseRow() == 0) w.grid.ToolTipText("of column " + std::to_string(w.grid.MouseCol()));
        };
        w.run([&] {
            w.grid.TextMatrix(2, 2,
                              "a text that is far too long for the cell that it stands in, and for two");
            w.grid.Select(2, 2);
        });
        w.key(Qt::Key_F1, Qt::ShiftModifier);
        QString tip = QToolTip::text();
        QCOMPARE(
            tip.replace('\n', ' '),
            QString("Reed bed of column 2 a text that is far too long for the cell that it stands in, and "
                    "for two"));
        w.key(Qt::Key_Escape);
        QVERIFY(GridWindow::tip().isEmpty());
    }

    void aRangeThatCodeSelectsKeepsTheColoursOfItsCells() {
        GridWindow w;
        w.run([&] { w.grid.Select(1, 1); });
        const QImage before = w.picture();
        w.run([&] { w.grid.Select(1, 1, 3, 2); });
        QCOMPARE(w.picture(), before);
    }

    void aRangeOfTheUserIsShadedBesideItsCurrentCell() {
        GridWindow w;
        w.run([&] { w.grid.Select(1, 1); });
        const QImage before = w.picture();
        w.run([&] { w.grid.UserSelectTo(3, 2); });
        const QImage after = w.picture();
        const auto inside = [&](int row, int col) {
            return w.view.cellPlace(row, col).topLeft() + QPoint(3, 3);
        };
        const QColor base = w.view.palette().color(QPalette::Base);
        QCOMPARE(after.pixelColor(inside(1, 1)), base);
        QVERIFY(after.pixelColor(inside(3, 2)) != base);
        QVERIFY(after.pixelColor(inside(3, 2)) != w.view.palette().color(QPalette::Highlight));
        QCOMPARE(after.pixelColor(inside(4, 2)), base);
        QCOMPARE(after.pixelColor(inside(3, 3)), base);
        QVERIFY(before != after);
    }

    void aHeadingTooLongForItsColumnTakesTwoLines() {
        GridWindow w;
        w.grid.WordWrap = true;
        w.run([&] {
            w.grid.TextMatrix(0, 2, "Proportion affected");
            w.grid.ColWidth(2, 1200);
        });
        const QRect heading = w.view.cellPlace(0, 2);
        QCOMPARE(heading.height(), w.link.scale().pixels(ui::Grid::RowHeight + ui::Grid::LineHeight));
        const QImage upper = w.picture().copy(heading.adjusted(3, 3, -3, -heading.height() / 2));
        const QImage lower = w.picture().copy(heading.adjusted(3, heading.height() / 2, -3, -3));
        for (const QImage& half : {upper, lower})
            QVERIFY(countOf(half, half.pixelColor(0, 0)) < half.width() * half.height() - 20);
        QCOMPARE(w.view.cellPlace(1, 2).top(), heading.bottom() + 1);
        QCOMPARE(w.view.cellAt(w.view.cellPlace(3, 2).center()), (desktop::CellAddress{3, 2}));
    }

    /// Where the words without the blank between them would just find room.
    void theWordsOfABrokenHeadingStandInTwoLinesAtAnyWidth() {
        for (int width = 1200; width < 1500; width += 15) {
            GridWindow w;
            w.grid.WordWrap = true;
            w.run([&] {
                w.grid.TextMatrix(0, 2, "Total by species");
                w.grid.ColWidth(2, width);
            });
            const QRect heading = w.view.cellPlace(0, 2);
            if (heading.height() == w.view.cellPlace(1, 2).height()) continue;
            const QImage lower = w.picture().copy(heading.adjusted(3, heading.height() / 2 + 2, -3, -3));
            const int ink = lower.width() * lower.height() - countOf(lower, lower.pixelColor(0, 0));
            QVERIFY2(ink > 20, qPrintable(QString::number(width)));
        }
    }

    void aHeadingThatIsALittleTooWideIsDrawnNarrower() {
        GridWindow w;
        w.run([&] { w.grid.TextMatrix(0, 2, "Aggregate"); });
        const desktop::Scale& scale = w.link.scale();
        const int needed = scale.twips(QFontMetrics(scale.font({})).horizontalAdvance("Aggregate"));
        w.run([&] { w.grid.ColWidth(2, needed); });
        QVERIFY(w.tipAt(w.middle(0, 2)).isEmpty());
        w.run([&] { w.grid.ColWidth(2, needed / 2); });
        QCOMPARE(w.tipAt(w.middle(0, 2)), QString("Aggregate"));
    }

    void aDisabledGridLooksDisabled() {
        GridWindow w;
        const QRect cell = w.view.cellPlace(3, 2);
        const QImage before = w.picture().copy(cell);
        w.view.setEnabled(false);
        QVERIFY(w.picture().copy(cell) != before);
    }

    void redrawOffKeepsThePicture() {
        GridWindow w;
        const QImage before = w.picture();
        w.run([&] {
            w.grid.Redraw(false);
            w.grid.TextMatrix(2, 2, "other");
            w.grid.ColWidth(1, 3000);
            w.grid.Rows(3);
            w.grid.Cols(2);
        });
        w.view.viewport()->repaint();
        QCOMPARE(w.picture(), before);
        w.view.setEnabled(false);
        w.view.setEnabled(true);
        QCOMPARE(w.picture(), before);
        w.run([&] { w.grid.Redraw(true); });
        QVERIFY(w.picture() != before);
    }

    void thousandsOfWritesAreOnePaint() {
        GridWindow w(2000, 5);
        QApplication::processEvents();
        PaintCounter paints(*w.view.viewport());
        w.run([&] {
            for (int i = 0; i < 10'000; ++i) w.grid.TextMatrix(i % 2000, i % 5, std::to_string(i));
        });
        QApplication::processEvents();
        QCOMPARE(paints.Count, 1);
    }

    void aMillionCellsAreDrawnAtOnce() {
        GridWindow w(20'000, 50);
        w.window.resize(1400, 900);
        w.view.resize(1400, 850);
        w.picture();
        QElapsedTimer clock;
        clock.start();
        constexpr int Steps = 20;
        for (int step = 1; step <= Steps; ++step) {
            w.view.verticalScrollBar()->setValue(step * 900);
            w.view.viewport()->repaint();
        }
        const double scrolling = static_cast<double>(clock.nsecsElapsed()) / 1e6 / Steps;
        clock.restart();
        for (int step = 0; step < Steps; ++step) {
            w.view.follow();
            w.view.viewport()->repaint();
        }
        const double repainting = static_cast<double>(clock.nsecsElapsed()) / 1e6 / Steps;
        clock.restart();
        for (int i = 0; i < 1000; ++i) w.view.follow();
        const double following = static_cast<double>(clock.nsecsElapsed()) / 1e6 / 1000;
        qInfo("a page of new cells %.2f ms, of the same ones %.2f ms, follow %.4f ms", scrolling, repainting,
              following);
        QVERIFY(scrolling < 50);
        QVERIFY(repainting < 50);
        QVERIFY(following < 1);
    }

    void emptyGridsAreDrawnToo() {
        GridWindow w(1, 4);
        w.picture();
        w.run([&] { w.grid.Rows(0); });
        const QImage empty = w.picture();
        QCOMPARE(empty.pixelColor(5, 5), w.view.palette().color(QPalette::Base));
        w.key(Qt::Key_Down);
        w.key(Qt::Key_F2);
        w.key(Qt::Key_A, Qt::ControlModifier);
        w.hover(QPoint(5, 5));
        QTest::mouseClick(w.view.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        w.run([&] {
            w.grid.Rows(3);
            w.grid.Cols(0);
        });
        w.picture();
        w.key(Qt::Key_Down);
        QVERIFY(!w.grid.Editing());
    }

    void aShrunkenGridScrollsBack() {
        GridWindow w(500, 4);
        w.view.verticalScrollBar()->setValue(400);
        w.run([&] { w.grid.Rows(5); });
        QCOMPARE(w.view.verticalScrollBar()->value(), 0);
        QCOMPARE(w.view.cellPlace(1, 1).top(), w.view.cellPlace(0, 1).bottom() + 1);
    }

    void readersAskForCells() {
        GridWindow w(100, 4);
        w.run([&] { w.grid.ColHidden(3, true); });
        QAccessibleInterface* view = QAccessible::queryAccessibleInterface(&w.view);
        QVERIFY(view != nullptr);
        QCOMPARE(view->role(), QAccessible::Table);
        QAccessibleTableInterface* table = view->tableInterface();
        QVERIFY(table != nullptr);
        QCOMPARE(table->rowCount(), 100);
        QCOMPARE(table->columnCount(), 4);
        QCOMPARE(table->cellAt(0, 2)->text(QAccessible::Name), QString("0.2"));
        QCOMPARE(table->cellAt(0, 2)->role(), QAccessible::ColumnHeader);
        QCOMPARE(table->cellAt(5, 0)->role(), QAccessible::RowHeader);

        QAccessibleInterface* cell = table->cellAt(2, 2);
        QCOMPARE(cell->text(QAccessible::Name), QString("2.2"));
        QCOMPARE(cell->role(), QAccessible::Cell);
        QCOMPARE(cell->rect(), w.view.cellPlace(2, 2).translated(w.view.viewport()->mapToGlobal(QPoint())));
        QCOMPARE(cell->tableCellInterface()->rowIndex(), 2);
        QCOMPARE(cell->tableCellInterface()->columnHeaderCells().first(), table->cellAt(0, 2));
        QCOMPARE(view->indexOfChild(cell), 2 * 4 + 2);
        QCOMPARE(view->child(2 * 4 + 2), cell);
        QCOMPARE(view->childAt(cell->rect().center().x(), cell->rect().center().y()), cell);
        w.run([&] { w.grid.TextMatrix(2, 2, "new"); });
        QCOMPARE(cell->text(QAccessible::Name), QString("new"));

        QCOMPARE(table->cellAt(2, 3)->text(QAccessible::Name), QString("2.3"));
        QVERIFY(table->cellAt(2, 3)->rect().isEmpty());
        QVERIFY(table->cellAt(90, 1)->state().offscreen);
        QVERIFY(table->cellAt(100, 1) == nullptr);
        w.run([&] { w.grid.Rows(2); });
        QVERIFY(!cell->isValid());
        QCOMPARE(cell->text(QAccessible::Name), QString());
        QVERIFY(cell->rect().isEmpty());
    }

    void readersAskForTheCurrentCell() {
        GridWindow w;
        w.select(3, 2);
        QAccessibleInterface* view = QAccessible::queryAccessibleInterface(&w.view);
        QVERIFY(view->focusChild() != nullptr);
        QCOMPARE(view->focusChild()->text(QAccessible::Name), QString("3.2"));
        QVERIFY(view->focusChild()->state().focused);
        QVERIFY(!view->tableInterface()->cellAt(1, 1)->state().focused);
        w.run([&] { w.grid.Select(1, 1, 2, 2); });
        QVERIFY(view->tableInterface()->cellAt(2, 1)->state().selected);
        QVERIFY(!view->tableInterface()->cellAt(3, 1)->state().selected);
        QCOMPARE(view->tableInterface()->selectedCellCount(), 4);
    }

private:
    static QPalette darkPalette() {
        QPalette dark(QColor(60, 60, 60), QColor(40, 40, 40));
        dark.setColor(QPalette::Base, QColor(30, 30, 30));
        dark.setColor(QPalette::Text, QColor(230, 230, 230));
        return dark;
    }
};

static const desktop_test::Registered<GridViewTest> registered;

#include "grid_view_test.moc"
