// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/chart_labels.h"

#include <QFontMetricsF>

#include "desktop/chart_axes.h"
#include "desktop/desktop_test.h"

using desktop::arrangeLabels;
using desktop::CategoryRange;
using desktop::LabelArrangement;

class ChartLabelsTest : public QObject {
    Q_OBJECT

private slots:
    void labelsThatFitLieInOneLine() {
        const LabelArrangement labels = arrangeLabels({"Oak", "Ash"}, {200, 100}, metrics_);
        QVERIFY(!labels.Upright);
        QCOMPARE(labels.Labels.size(), std::size_t(2));
        QCOMPARE(labels.Labels[1].Category, 1);
        QCOMPARE(labels.Labels[1].Text, QString("Ash"));
    }

    void wordsThatFitStandInLines() {
        const double width = metrics_.horizontalAdvance("Reed beds of") + metrics_.averageCharWidth() * 2;
        const LabelArrangement labels = arrangeLabels({"Reed beds of the river"}, {width, 100}, metrics_);
        QVERIFY(!labels.Upright);
        QCOMPARE(labels.Labels[0].Text, QString("Reed beds of\nthe river"));
    }

    void linesThatTakeTooMuchHeightStandUpright() {
        const double width = metrics_.horizontalAdvance("Reed beds of") + metrics_.averageCharWidth() * 2;
        const double height = metrics_.lineSpacing() * 1.5;
        QVERIFY(arrangeLabels({"Reed beds of the river"}, {width, height}, metrics_).Upright);
    }

    void aWordThatIsTooWideStandsUpright() {
        const double width = metrics_.horizontalAdvance("Semi-natural") * 0.8;
        const LabelArrangement labels = arrangeLabels({"Oak", "Semi-natural"}, {width, 300}, metrics_);
        QVERIFY(labels.Upright);
        QCOMPARE(labels.Every, 1);
        QCOMPARE(labels.Labels[1].Text, QString("Semi-natural"));
    }

    void uprightLabelsAreCutToTheHeight() {
        const QString name(60, 'm');
        const LabelArrangement labels = arrangeLabels({name}, {30, 80}, metrics_);
        QVERIFY(labels.Upright);
        QVERIFY(labels.Labels[0].Text.endsWith(QChar(0x2026)));
        QVERIFY(labels.Labels[0].Text.size() > 3);
        QVERIFY(metrics_.horizontalAdvance(labels.Labels[0].Text) <= 80);
    }

    void crowdedLabelsAreThinned() {
        const std::vector<QString> names(1000, "Great crested newt");
        for (const double spacing : {0.4, 1.0, 3.0, 7.0, 12.0}) {
            const LabelArrangement labels = arrangeLabels(names, {spacing, 120}, metrics_);
            QVERIFY(labels.Upright);
            QVERIFY(labels.Every * spacing > metrics_.height());
            QCOMPARE(labels.Labels.size(), std::size_t((1000 + labels.Every - 1) / labels.Every));
            QCOMPARE(labels.Labels[1].Category, labels.Every);
        }
    }

    void blanksAndLineBreaksMakeNoLines() {
        const LabelArrangement labels = arrangeLabels({" Wet\r\nmeadow  "}, {400, 100}, metrics_);
        QCOMPARE(labels.Labels[0].Text, QString("Wet meadow"));
    }

    void roundNumbersAreOneTwoAndFive() {
        const std::vector<std::pair<double, int>> rounds{{0.1, 1}, {1, 1},     {1.1, 2}, {2.5, 5},
                                                         {6, 10},  {10.5, 20}, {21, 50}, {900, 1000}};
        for (const auto& [least, round] : rounds) QCOMPARE(desktop::nextRound(least), round);
    }

    void aTitleKeepsItsLinesWithinTheWidth() {
        const QString title("Number of human activities potentially threatening a species");
        const double width = metrics_.horizontalAdvance(title) * 0.6;
        const QString whole = desktop::wrappedOrCut(title, width, 2, metrics_);
        QCOMPARE(whole.count('\n'), 1);
        QCOMPARE(QString(whole).replace('\n', ' '), title);
        const QString cut = desktop::wrappedOrCut(title, width / 2, 2, metrics_);
        QVERIFY(cut.endsWith(QChar(0x2026)));
        for (const QString& line : cut.split('\n')) QVERIFY(metrics_.horizontalAdvance(line) <= width / 2);
        QCOMPARE(desktop::wrappedOrCut("", width, 2, metrics_), QString());
    }

    void valueStepsAreRoundAndHoldTheValues_data() {
        QTest::addColumn<double>("least");
        QTest::addColumn<double>("greatest");
        QTest::addColumn<bool>("whole");
        QTest::addColumn<int>("mostSteps");
        QTest::addColumn<QList<double>>("lowerUpperStepDecimals");
        QTest::newRow("counts") << 0.0 << 7.0 << true << 4 << QList<double>{0, 8, 2, 0};
        QTest::newRow("few counts") << 0.0 << 1.0 << true << 10 << QList<double>{0, 1, 1, 0};
        QTest::newRow("scores") << 0.0 << 1.0 << false << 5 << QList<double>{0, 1, 0.2, 1};
        QTest::newRow("small") << 0.01 << 0.034 << false << 5 << QList<double>{0, 0.04, 0.01, 2};
        QTest::newRow("large") << 5.0 << 1234.0 << true << 5 << QList<double>{0, 1500, 500, 0};
        QTest::newRow("negative") << -3.0 << 8.0 << true << 6 << QList<double>{-4, 8, 2, 0};
        QTest::newRow("all negative") << -3.0 << -1.0 << true << 6 << QList<double>{-3, 0, 1, 0};
        QTest::newRow("nothing") << 0.0 << 0.0 << true << 6 << QList<double>{0, 1, 1, 0};
    }
    void valueStepsAreRoundAndHoldTheValues() {
        QFETCH(double, least);
        QFETCH(double, greatest);
        QFETCH(bool, whole);
        QFETCH(int, mostSteps);
        QFETCH(QList<double>, lowerUpperStepDecimals);
        const desktop::ValueScale scale = desktop::valueScale(least, greatest, whole, mostSteps);
        const QList<double> found{scale.Lower, scale.Upper, scale.Step, double(scale.Decimals)};
        for (int i = 0; i < 4; ++i) QVERIFY(qAbs(found[i] - lowerUpperStepDecimals[i]) < 1e-12);
    }

    void hugeValuesKeepAnAxisThatCanBeDrawn() {
        const desktop::ValueScale scale = desktop::valueScale(-1e308, 1e308, false, 5);
        QVERIFY(std::isfinite(scale.Lower) && std::isfinite(scale.Upper));
        QVERIFY(scale.Upper > scale.Lower && scale.Upper < 1e250);
    }

    void zoomKeepsThePointUnderThePointer() {
        const CategoryRange zoomed = desktop::zoomed({-0.5, 99.5}, 0.5, 25, 100);
        QCOMPARE(zoomed.size(), 50.0);
        QCOMPARE((25 - zoomed.Lower) / zoomed.size(), 25.5 / 100);
    }

    void zoomEndsAtThreeCategoriesAndAtAll() {
        CategoryRange range = desktop::allCategories(100);
        for (int i = 0; i < 100; ++i) range = desktop::zoomed(range, 0.5, 99.5, 100);
        QCOMPARE(range.size(), 3.0);
        QCOMPARE(range.Upper, 99.5);
        for (int i = 0; i < 100; ++i) range = desktop::zoomed(range, 2, 0, 100);
        QVERIFY(range == desktop::allCategories(100));
        QVERIFY(desktop::zoomed({-0.5, 1.5}, 0.1, 0, 2) == desktop::allCategories(2));
    }

    void movingEndsWithTheData() {
        QVERIFY((desktop::moved({10, 20}, -100, 50) == CategoryRange{-0.5, 9.5}));
        QVERIFY((desktop::moved({10, 20}, 100, 50) == CategoryRange{39.5, 49.5}));
        QVERIFY((desktop::moved({10, 20}, 5, 50) == CategoryRange{15, 25}));
        QVERIFY(desktop::moved({-0.5, 0.5}, 5, 0) == desktop::allCategories(0));
    }

private:
    QFontMetricsF metrics_{QApplication::font()};
};

static const desktop_test::Registered<ChartLabelsTest> registered;

#include "chart_labels_test.moc"
