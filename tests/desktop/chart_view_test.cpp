// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/chart_view.h"

#include <QAccessible>
#include <QClipboard>
#include <QMenu>
#include <QSignalSpy>
#include <QToolTip>

#include "desktop/chart_numbers_window.h"
#include "desktop/desktop_test.h"
#include "ui/window_texts.h"

namespace {

constexpr ui::Colour Fill = ui::rgb(80, 20, 120);
const QColor FillColour(80, 20, 120);

/// A view on a screen with so many pixels to one of Qt's.
class DenseView : public desktop::ChartView {
public:
    using ChartView::ChartView;
    int buffers() const { return static_cast<int>(mPaintBuffers.size()); }

    int Ratio = 1;

protected:
    int metric(PaintDeviceMetric metric) const override {
        if (metric == PdmDevicePixelRatioScaled) return static_cast<int>(Ratio * devicePixelRatioFScale());
        return metric == PdmDevicePixelRatio ? Ratio : ChartView::metric(metric);
    }
};

struct Shown {
    explicit Shown(QSize size = {600, 400}) {
        chart.Title = "Number of species";
        chart.XAxisTitle = "Species common name";
        chart.YAxisTitle = "Number of habitats";
        chart.YAxisTitleOrientation = ui::TitleOrientation::Upward;
        chart.TitleFont = {"Arial", 11};
        chart.AxisTitleFont = {"Arial", 9};
        chart.MajorGridLines = false;
        chart.WallBorder = false;
        chart.Series(1).EdgePen = ui::rgb(50, 50, 50);
        chart.Series(1).FillColor = Fill;
        window.link.Followed = &view;
        view.resize(size);
    }

    void give(const ui::Chart::Table& data) {
        chart.ChartData(data);
        view.follow();
        view.picture();
    }
    void giveScores(int species, int series) {
        ui::Chart::Table data;
        for (int i = 0; i < species; ++i) {
            data.push_back({"Species " + std::to_string(i)});
            for (int s = 0; s < series; ++s) data.back().push_back(std::to_string((i + s) % 5));
        }
        for (int s = 1; s <= series; ++s) chart.Series(s).Label = "Criterion " + std::to_string(s);
        give(data);
    }
    void show() {
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QTest::qWait(20);
    }
    QCPBars& bars(int series) { return *dynamic_cast<QCPBars*>(view.plottable(series)); }
    QPoint placeOf(double category, double value) {
        return {qRound(view.xAxis->coordToPixel(category)), qRound(view.yAxis->coordToPixel(value))};
    }

    desktop_test::Window window;
    ui::Chart chart{window.form, "cht"};
    DenseView view{chart, window.link, nullptr};
};

QImage asPixels(const QPixmap& picture) { return picture.toImage().convertToFormat(QImage::Format_RGB32); }

ui::Chart::Table habitats(int count) {
    static const char* const Names[] = {"Heath", "Semi-natural grassland", "Reed bed by the river",
                                        "Oak wood"};
    ui::Chart::Table data;
    for (int i = 0; i < count; ++i) data.push_back({Names[i % 4], std::to_string(i % 9)});
    return data;
}

/// Of the lightness of two pixels at the same place: letters may be smoothed a shade otherwise.
int greatestDifference(const QImage& one, const QImage& other) {
    if (one.size() != other.size()) return 255;
    int greatest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const int difference = one.pixelColor(x, y).lightness() - other.pixelColor(x, y).lightness();
            greatest = std::max(greatest, std::abs(difference));
        }
    }
    return greatest;
}

void turnWheel(QWidget& widget, QPoint place, QPoint angle) {
    QWheelEvent event(place, widget.mapToGlobal(place), QPoint(), angle, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

/// Where the labels below the category axis are drawn.
std::vector<QRectF> labelRects(const desktop::ChartView& view) {
    const QCPAxis& axis = *view.xAxis;
    const QFontMetrics metrics(axis.tickLabelFont());
    const double top = view.axisRect()->bottom() + axis.tickLengthOut() + axis.tickLabelPadding();
    std::vector<QRectF> rects;
    for (int i = 0; i < axis.tickVector().size(); ++i) {
        QSizeF size =
            metrics.boundingRect(0, 0, 0, 0, Qt::TextDontClip | Qt::AlignHCenter, axis.tickVectorLabels()[i])
                .size();
        if (axis.tickLabelRotation() != 0) size.transpose();
        rects.emplace_back(QPointF(axis.coordToPixel(axis.tickVector()[i]) - size.width() / 2, top), size);
    }
    return rects;
}

bool hasInk(const QImage& picture, const QRect& rect) {
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            if (picture.rect().contains(x, y) && picture.pixelColor(x, y).lightness() < 128) return true;
        }
    }
    return false;
}

}  // namespace

class ChartViewTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QApplication::clipboard()->clear(); }

    void oneBarACategoryStandsAsHighAsItsValue() {
        Shown shown;
        shown.give({{"a", "1"}, {"b", "4"}, {"c", "2.5"}});
        QCOMPARE(shown.view.plottableCount(), 1);
        QCOMPARE(shown.bars(0).data()->size(), 3);
        QCOMPARE(shown.bars(0).data()->at(2)->value, 2.5);
        const QImage picture = asPixels(shown.view.picture());
        QCOMPARE(picture.pixelColor(shown.placeOf(1, 3.8)), FillColour);
        QCOMPARE(picture.pixelColor(shown.placeOf(0, 0.9)), FillColour);
        QCOMPARE(picture.pixelColor(shown.placeOf(0, 1.1)), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(shown.placeOf(0, 1)), QColor(50, 50, 50));
        QCOMPARE(picture.pixelColor(shown.placeOf(0.5, 0.5)), QColor(Qt::white));
    }

    void barsOfAGroupStandSideBySide() {
        Shown shown;
        shown.giveScores(4, 3);
        shown.chart.Series(1).FillColor = ui::rgb(0, 50, 100);
        shown.chart.Series(2).FillColor = ui::rgb(75, 200, 200);
        shown.chart.Series(3).FillColor = ui::rgb(255, 255, 200);
        shown.view.follow();
        const QImage picture = asPixels(shown.view.picture());
        const double width = shown.bars(0).width();
        QVERIFY(3 * width < 1);
        QCOMPARE(picture.pixelColor(shown.placeOf(2 - width, 0.5)), QColor(0, 50, 100));
        QCOMPARE(picture.pixelColor(shown.placeOf(2, 0.5)), QColor(75, 200, 200));
        QCOMPARE(picture.pixelColor(shown.placeOf(2 + width, 0.5)), QColor(255, 255, 200));
    }

    void blanksAndTextsHaveNoBar() {
        Shown shown;
        shown.give({{"a", ""}, {"b", "none"}, {"c", "0"}, {"d", "3"}});
        QCOMPARE(shown.bars(0).data()->size(), 2);
        QCOMPARE(shown.bars(0).data()->at(0)->key, 2.0);
        QCOMPARE(shown.view.xAxis->range().upper, 3.5);
    }

    void negativeValuesHangBelowTheZeroLine() {
        Shown shown;
        shown.give({{"a", "-4"}, {"b", "6"}});
        QCOMPARE(shown.view.yAxis->range().lower, -4.0);
        const QImage picture = asPixels(shown.view.picture());
        QCOMPARE(picture.pixelColor(shown.placeOf(0, -2)), FillColour);
        QCOMPARE(picture.pixelColor(shown.placeOf(0, 2)), QColor(Qt::white));
        QVERIFY(picture.pixelColor(shown.placeOf(0.48, 0)).lightness() < 60);
    }

    void countsHaveWholeTicks() {
        Shown shown({600, 900});
        shown.give({{"a", "1"}, {"b", "2"}});
        QCOMPARE(shown.view.yAxis->tickVectorLabels(), (QVector<QString>{"0", "1", "2"}));
        shown.give({{"a", "0.25"}, {"b", "1"}});
        QVERIFY(shown.view.yAxis->tickVectorLabels().contains("0.5"));
    }

    void emptyDataLeavesAnEmptyPlotWithItsTitles() {
        Shown shown;
        for (const ui::Chart::Table& data :
             {ui::Chart::Table{{"", ""}}, ui::Chart::Table{}, ui::Chart::Table{{}}}) {
            shown.give(data);
            QVERIFY(shown.view.xAxis->tickVectorLabels().isEmpty());
            QCOMPARE(shown.view.yAxis->tickVectorLabels(), (QVector<QString>{"0", "1"}));
            QCOMPARE(shown.view.xAxis->label(), QString("Species common name"));
            QVERIFY(!shown.view.picture().isNull());
            QCOMPARE(shown.view.accessibleDescription(), QString("Number of species. No values."));
            QTest::keyClick(&shown.view, Qt::Key_Plus);
            turnWheel(shown.view, {300, 200}, {0, 120});
            QCOMPARE(shown.view.xAxis->range().size(), 1.0);
        }
    }

    void titlesHaveTheirFonts() {
        Shown shown;
        shown.give(habitats(3));
        const auto* title = dynamic_cast<QCPTextElement*>(shown.view.plotLayout()->element(0, 0));
        QVERIFY(title != nullptr);
        QCOMPARE(title->text(), QString("Number of species"));
        const desktop::Scale& scale = shown.window.link.scale();
        QCOMPARE(title->font(), scale.font({"Arial", 11}));
        QCOMPARE(shown.view.xAxis->labelFont(), scale.font({"Arial", 9}));
        QCOMPARE(shown.view.yAxis->label(), QString("Number of habitats"));
        QVERIFY(title->rect().bottom() < shown.view.axisRect()->top());
    }

    void longTitlesStayWithinANarrowWidget() {
        Shown shown({320, 260});
        shown.chart.Title = "Number of human activities potentially threatening a species";
        shown.chart.YAxisTitle = "Number of human activities that are known today";
        shown.give(habitats(300));
        const QImage picture = asPixels(shown.view.picture());
        QVERIFY(!hasInk(picture, QRect(0, 0, 2, 260)));
        QVERIFY(!hasInk(picture, QRect(317, 0, 3, 260)));
        QVERIFY(!hasInk(picture, QRect(0, 0, 320, 3)));
        QVERIFY(!hasInk(picture, QRect(0, 257, 320, 3)));
        QVERIFY(shown.view.axisRect()->height() > 40);
    }

    void picturesAreDarkOnWhiteWhateverThePalette() {
        Shown shown;
        QPalette dark(Qt::white, QColor(30, 30, 30));
        shown.view.setPalette(dark);
        shown.give(habitats(3));
        const QImage picture = asPixels(shown.view.picture());
        QCOMPARE(picture.pixelColor(1, 1), QColor(Qt::white));
        QVERIFY(hasInk(picture, QRect(200, 0, 200, shown.view.axisRect()->top() - 1)));
    }

    void legendNamesTheSeriesOutsideTheBars_data() {
        QTest::addColumn<int>("width");
        for (const int width : {360, 900, 1800}) QTest::newRow(qPrintable(QString::number(width))) << width;
    }
    void legendNamesTheSeriesOutsideTheBars() {
        QFETCH(int, width);
        Shown shown({width, 400});
        shown.giveScores(10, 6);
        const QCPLegend& legend = *shown.view.legend;
        QCOMPARE(legend.itemCount(), 6);
        const QImage picture = asPixels(shown.view.picture());
        for (int i = 0; i < 6; ++i) {
            const QRect item = legend.item(i)->rect();
            QVERIFY(item.bottom() < shown.view.axisRect()->top());
            QVERIFY(shown.view.rect().contains(item));
            const int text = QFontMetrics(legend.font()).horizontalAdvance(shown.bars(i).name());
            QVERIFY(item.width() >= legend.iconSize().width() + legend.iconTextPadding() + text);
            QVERIFY(hasInk(picture, item.adjusted(legend.iconSize().width() + 2, 0, 0, 0)));
            for (int other = 0; other < i; ++other) QVERIFY(!legend.item(other)->rect().intersects(item));
        }
        QCOMPARE(shown.bars(3).name(), QString("Criterion 4"));
    }

    void theSquaresOfTheLegendStandLevelWithTheirTexts() {
        Shown shown;
        shown.giveScores(5, 2);
        const QImage picture = asPixels(shown.view.picture());
        const QRect item = shown.view.legend->item(0)->rect();
        const int split = shown.view.legend->iconSize().width() + 1;
        const auto rows = [&](QRect part) {  // the first and the last that bear ink
            int first = -1;
            int last = -1;
            for (int y = part.top(); y <= part.bottom(); ++y) {
                if (!hasInk(picture, QRect(part.left(), y, part.width(), 1))) continue;
                if (first < 0) first = y;
                last = y;
            }
            return std::pair(first, last);
        };
        const auto square = rows(QRect(item.left(), item.top(), split, item.height()));
        const int capital = QFontMetrics(shown.view.legend->font()).horizontalAdvance("C");
        const auto text = rows(QRect(item.left() + split, item.top(), capital + 1, item.height()));
        QVERIFY(square.first >= 0 && text.first >= 0);
        QVERIFY2(std::abs(square.first - text.first) <= 1,
                 qPrintable(QString::number(square.first - text.first)));
        QVERIFY2(std::abs(square.second - text.second) <= 1,
                 qPrintable(QString::number(square.second - text.second)));
    }

    void aPictureInThreeTimesTheResolutionKeepsItsProportions() {
        Shown shown;
        shown.giveScores(5, 2);
        const QImage seen = asPixels(shown.view.picture());
        const QImage fine = asPixels(shown.view.picture(3));
        QCOMPARE(fine.size(), 3 * seen.size());
        // All that is drawn stands at the same place, three times as large.
        const auto inkOf = [](const QImage& picture) {
            QRegion ink;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    if (picture.pixelColor(x, y).lightness() < 128) ink += QRect(x, y, 1, 1);
                }
            }
            return ink.boundingRect();
        };
        const QRect small = inkOf(seen);
        const QRect large = inkOf(fine);
        const auto near = [](int a, int b) { return std::abs(a - b) <= 6; };
        QVERIFY(near(large.left(), 3 * small.left()) && near(large.top(), 3 * small.top()));
        QVERIFY(near(large.right(), 3 * small.right()) && near(large.bottom(), 3 * small.bottom()));
        QCOMPARE(asPixels(shown.view.picture()), seen);
    }

    void aNameThatIsCutIsReadInATip() {
        Shown shown({300, 400});
        const std::string name(200, 'W');
        shown.give({{"Ash", "1"}, {name, "2"}, {"Oak", "3"}});
        const int below = shown.view.axisRect()->bottom() + 20;
        const auto tipBelow = [&](int category) {
            return shown.view.tipAt(QPointF(shown.view.xAxis->coordToPixel(category), below));
        };
        QCOMPARE(tipBelow(1), QString::fromStdString(name));
        QCOMPARE(tipBelow(0), QString());
        shown.chart.Title = std::string(500, 'T');
        shown.view.follow();
        shown.view.picture();
        QCOMPARE(shown.view.tipAt(QPointF(150, 15)), QString(500, 'T'));
    }

    void chartsOfOneUnnamedSeriesHaveNoLegend() {
        Shown shown;
        shown.give(habitats(6));
        QCOMPARE(shown.view.legend->itemCount(), 0);
        shown.chart.Series(1).Label = "Area";
        shown.give(habitats(6));
        QCOMPARE(shown.view.legend->itemCount(), 1);
    }

    void labelsNeverTouchNorLeaveTheWidget_data() {
        QTest::addColumn<int>("count");
        QTest::addColumn<QSize>("size");
        for (const int count : {6, 30, 300, 1000}) {
            for (const QSize size : {QSize(500, 300), QSize(1000, 500), QSize(3800, 1800)}) {
                QTest::newRow(qPrintable(QString("%1 at %2").arg(count).arg(size.width()))) << count << size;
            }
        }
    }
    void labelsNeverTouchNorLeaveTheWidget() {
        QFETCH(int, count);
        QFETCH(QSize, size);
        Shown shown(size);
        shown.give(habitats(count));
        for (int zoom = 0; zoom < 4; ++zoom) {
            const QImage picture = asPixels(shown.view.picture());
            const std::vector<QRectF> rects = labelRects(shown.view);
            QVERIFY(rects.size() >= 3);
            for (std::size_t i = 0; i < rects.size(); ++i) {
                QVERIFY(QRectF(shown.view.rect()).contains(rects[i]));
                QVERIFY(rects[i].height() <= size.height() * 0.36);
                QVERIFY2(hasInk(picture, rects[i].toAlignedRect()), "a label is not drawn");
                if (i > 0) QVERIFY(rects[i - 1].right() <= rects[i].left());
            }
            QTest::keyClick(&shown.view, Qt::Key_Plus);
        }
    }

    void aHiddenChartReplotsWhenItIsShown() {
        Shown shown;
        QSignalSpy replots(&shown.view, &QCustomPlot::afterReplot);
        shown.chart.ChartData(habitats(6));
        for (int i = 0; i < 10; ++i) shown.view.follow();
        shown.view.resize(500, 300);
        QTest::qWait(30);
        QCOMPARE(replots.count(), 0);
        shown.show();
        QVERIFY(replots.count() > 0);
        QCOMPARE(shown.bars(0).data()->size(), 6);
        shown.view.hide();
        replots.clear();
        shown.view.follow();
        QTest::qWait(30);
        QCOMPARE(replots.count(), 0);
    }

    void aHiddenChartKeepsNoPixels() {
        Shown shown;
        shown.chart.ChartData(habitats(6));
        shown.show();
        QCOMPARE(shown.view.buffers(), 1);
        const QImage before = asPixels(shown.view.picture());
        shown.view.hide();
        QCOMPARE(shown.view.buffers(), 0);
        QVERIFY(asPixels(shown.view.picture()) == before);
    }

    void manyChangesReplotOnce() {
        Shown shown;
        shown.show();
        QSignalSpy replots(&shown.view, &QCustomPlot::afterReplot);
        for (int i = 1; i <= 10; ++i) {
            shown.chart.ChartData(habitats(i));
            shown.view.follow();
        }
        QCOMPARE(replots.count(), 0);
        QTest::qWait(30);
        QCOMPARE(replots.count(), 1);
        QCOMPARE(shown.bars(0).data()->size(), 10);
    }

    void pictureIsWhatIsSeen() {
        Shown shown;
        shown.show();
        shown.chart.ChartData(habitats(7));
        shown.view.follow();
        shown.view.clearFocus();
        const QImage picture = asPixels(shown.view.picture());
        QVERIFY(hasInk(picture, shown.view.axisRect()->rect()));
        QVERIFY(greatestDifference(picture, asPixels(shown.view.grab())) < 32);
    }

    void pictureIsNeverEmpty() {
        Shown shown({0, 0});
        shown.give(habitats(7));
        QVERIFY(shown.view.picture().width() > 100);
        QVERIFY(hasInk(asPixels(shown.view.picture()), shown.view.picture().rect()));
    }

    void pictureHasThePixelsOfTheScreen() {
        Shown shown;
        shown.give(habitats(7));
        QCOMPARE(shown.view.picture().size(), QSize(600, 400));
        shown.view.Ratio = 2;
        const QPixmap picture = shown.view.picture();
        QCOMPARE(picture.size(), QSize(1200, 800));
        QCOMPARE(picture.devicePixelRatio(), 2.0);
        QCOMPARE(shown.view.bufferDevicePixelRatio(), 2.0);
        const QImage pixels = asPixels(picture);
        QCOMPARE(pixels.pixelColor(shown.placeOf(5, 2) * 2), FillColour);
        QCOMPARE(pixels.pixelColor(shown.placeOf(5, 5.3) * 2), QColor(Qt::white));
    }

    void focusIsSeenButNotInThePicture() {
        Shown shown;
        shown.show();
        shown.view.setFocus();
        QVERIFY(QTest::qWaitFor([&] { return shown.view.hasFocus(); }));
        QVERIFY(asPixels(shown.view.grab()).pixelColor(1, 200) != QColor(Qt::white));
        QCOMPARE(asPixels(shown.view.picture()).pixelColor(1, 200), QColor(Qt::white));
    }

    void theWheelZoomsAroundThePointer() {
        Shown shown;
        shown.give(habitats(100));
        const QCPRange values = shown.view.yAxis->range();
        const QPoint place = shown.placeOf(70, 1);
        const double under = shown.view.xAxis->pixelToCoord(place.x());
        turnWheel(shown.view, place, {0, 240});
        QVERIFY(shown.view.xAxis->range().size() < 70);
        QVERIFY(qAbs(shown.view.xAxis->pixelToCoord(place.x()) - under) < 1e-6);
        for (int i = 0; i < 50; ++i) turnWheel(shown.view, place, {0, 240});
        QCOMPARE(shown.view.xAxis->range().size(), 3.0);
        shown.view.picture();
        QCOMPARE(shown.view.yAxis->range(), values);
        for (int i = 0; i < 50; ++i) turnWheel(shown.view, place, {0, -240});
        QCOMPARE(shown.view.xAxis->range(), QCPRange(-0.5, 99.5));
    }

    void draggingMovesAlongAndADoubleClickShowsAll() {
        Shown shown;
        shown.give(habitats(100));
        turnWheel(shown.view, shown.placeOf(50, 1), {0, 480});
        const QCPRange before = shown.view.xAxis->range();
        const QPoint from = shown.placeOf(50, 1);
        QTest::mousePress(&shown.view, Qt::LeftButton, {}, from);
        QTest::mouseMove(&shown.view, from - QPoint(40, 0));
        const double moved = 40 * before.size() / shown.view.axisRect()->width();
        QVERIFY(qAbs(shown.view.xAxis->range().lower - before.lower - moved) < 1e-6);
        QTest::mouseMove(&shown.view, from + QPoint(4000, 0));
        QCOMPARE(shown.view.xAxis->range().lower, -0.5);
        QTest::mouseRelease(&shown.view, Qt::LeftButton, {}, from);
        QTest::mouseMove(&shown.view, from);
        QCOMPARE(shown.view.xAxis->range().lower, -0.5);
        QTest::mouseDClick(&shown.view, Qt::LeftButton, {}, from);
        QCOMPARE(shown.view.xAxis->range(), QCPRange(-0.5, 99.5));
    }

    void keysZoomAndMove() {
        Shown shown;
        shown.give(habitats(100));
        QTest::keyClick(&shown.view, Qt::Key_Plus);
        const QCPRange zoomed = shown.view.xAxis->range();
        QVERIFY(zoomed.size() < 100);
        QTest::keyClick(&shown.view, Qt::Key_Right);
        QVERIFY(shown.view.xAxis->range().lower >= zoomed.lower + 1);
        QTest::keyClick(&shown.view, Qt::Key_Left);
        QCOMPARE(shown.view.xAxis->range().lower, zoomed.lower);
        QTest::keyClick(&shown.view, Qt::Key_Minus);
        QCOMPARE(shown.view.xAxis->range().size(), 100.0);
        for (const Qt::Key all : {Qt::Key_Home, Qt::Key_0}) {
            QTest::keyClick(&shown.view, Qt::Key_Plus);
            QTest::keyClick(&shown.view, all);
            QCOMPARE(shown.view.xAxis->range(), QCPRange(-0.5, 99.5));
        }
    }

    void newValuesKeepTheZoomAndNewCategoriesDoNot() {
        Shown shown;
        shown.give(habitats(100));
        QTest::keyClick(&shown.view, Qt::Key_Plus);
        const QCPRange zoomed = shown.view.xAxis->range();
        ui::Chart::Table data = habitats(100);
        data[3][1] = "77";
        shown.give(data);
        QCOMPARE(shown.view.xAxis->range(), zoomed);
        shown.give(habitats(20));
        QCOMPARE(shown.view.xAxis->range(), QCPRange(-0.5, 19.5));
    }

    void aBarTellsItsCategoryAndValueAsPlainText() {
        Shown shown;
        shown.give({{"Reed <b>bed</b> & fen", "3"}, {"Heath", "0"}});
        QCOMPARE(shown.view.tipAt(shown.placeOf(0, 1)),
                 QString("Reed <b>bed</b> & fen\nNumber of habitats: 3"));
        QCOMPARE(shown.view.tipAt(shown.placeOf(1, 2)), QString());
        QCOMPARE(shown.view.tipAt(shown.placeOf(0.5, 1)), QString());
        shown.show();
        const QPoint place = shown.placeOf(0, 1);
        QHelpEvent help(QEvent::ToolTip, place, shown.view.mapToGlobal(place));
        QApplication::sendEvent(&shown.view, &help);
        QVERIFY(QToolTip::text().contains("Reed &lt;b&gt;bed&lt;/b&gt; &amp; fen\n"));
        QToolTip::hideText();
    }

    void aBarOfAGroupTellsItsSeries() {
        Shown shown;
        shown.giveScores(3, 3);
        const double width = shown.bars(0).width();
        QCOMPARE(shown.view.tipAt(shown.placeOf(2 - width, 1)), QString("Species 2\nCriterion 1: 2"));
        QCOMPARE(shown.view.tipAt(shown.placeOf(2 + width, 1)), QString("Species 2\nCriterion 3: 4"));
    }

    void descriptionSumsUpTheChart() {
        Shown shown;
        shown.give({{"Oak", "3"}, {"Heath", "1.5"}, {"Fen", "8"}});
        QCOMPARE(shown.view.accessibleDescription(),
                 QString("Number of species. Categories: 3. Series: 1. Smallest value: 1.5, Heath. "
                         "Greatest value: 8, Fen."));
        shown.giveScores(2, 2);
        QVERIFY(shown.view.accessibleDescription().endsWith("Greatest value: 2, Species 1, Criterion 2."));
        QCOMPARE(QAccessible::queryAccessibleInterface(&shown.view)->role(), QAccessible::Chart);
    }

    void numbersAreReadAndCopiedAsATable() {
        Shown shown;
        shown.giveScores(3, 2);
        QTest::keyClick(&shown.view, Qt::Key_Return);
        QPointer<desktop::ChartNumbersWindow> window = shown.view.findChild<desktop::ChartNumbersWindow*>();
        QVERIFY(window != nullptr);
        auto* table = window->findChild<desktop::ChartNumbersTable*>();
        QCOMPARE(table->model()->rowCount(), 3);
        QCOMPARE(table->model()->columnCount(), 3);
        QCOMPARE(table->model()->headerData(0, Qt::Horizontal).toString(), QString("Species common name"));
        QVERIFY(!table->model()->flags(table->model()->index(0, 0)).testFlag(Qt::ItemIsEditable));
        table->setFocus();
        table->selectionModel()->select({table->model()->index(1, 0), table->model()->index(2, 1)},
                                        QItemSelectionModel::ClearAndSelect);
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString("Species 1\t1\nSpecies 2\t2"));
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(QApplication::clipboard()->text(),
                 QString("Species common name\tCriterion 1\nSpecies 1\t1\nSpecies 2\t2"));
        table->selectionModel()->select(table->model()->index(1, 2), QItemSelectionModel::ClearAndSelect);
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY2(
            QApplication::clipboard()->text().startsWith("Species common name\tCriterion 2\nSpecies 1\t"),
            qPrintable(QApplication::clipboard()->text()));
        table->selectAll();
        table->copySelected(false);
        QVERIFY(QApplication::clipboard()->text().startsWith(
            "Species common name\tCriterion 1\tCriterion 2\nSpecies 0\t0\t1\n"));
        QTest::keyClick(window, Qt::Key_Escape);
        QVERIFY(QTest::qWaitFor([&] { return window == nullptr; }));
    }

    void theMenuCopiesShowsNumbersAndAllCategories() {
        Shown shown;
        shown.give(habitats(100));
        shown.show();
        QTest::keyClick(&shown.view, Qt::Key_Plus);
        QContextMenuEvent event(QContextMenuEvent::Mouse, {100, 100},
                                shown.view.mapToGlobal(QPoint(100, 100)));
        QApplication::sendEvent(&shown.view, &event);
        auto* menu = shown.view.findChild<QMenu*>();
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->actions().size(), 3);
        QCOMPARE(menu->actions()[0]->text(), QString(ui::window_text::CopyPicture));
        menu->actions()[0]->trigger();
        QCOMPARE(shown.window.platform.CopiedPictures, std::vector<std::string>{"cht"});
        QCOMPARE(shown.window.link.Runs, 1);
        menu->actions()[1]->trigger();
        auto* numbers = shown.view.findChild<desktop::ChartNumbersWindow*>();
        QVERIFY(numbers != nullptr);
        numbers->reject();
        menu->actions()[2]->trigger();
        QCOMPARE(shown.view.xAxis->range(), QCPRange(-0.5, 99.5));
        menu->close();
    }

    void aThousandSpeciesAreDrawnQuickly() {
        Shown shown({1800, 900});
        shown.giveScores(1000, 6);
        QElapsedTimer timer;
        timer.start();
        shown.view.follow();
        shown.view.picture();
        QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
    }
};

static const desktop_test::Registered<ChartViewTest> registered;

#include "chart_view_test.moc"
