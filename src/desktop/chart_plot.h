// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include "desktop/chart_axes.h"
#include "desktop/chart_labels.h"
#include "desktop/chart_legend.h"
#include "desktop/chart_numbers.h"
#include "desktop/scale.h"
#include "ui/chart.h"

namespace desktop {

/// Draws a chart, dark on white whatever the desktop's colours are, for its picture is pasted elsewhere. It reads the
/// chart and replots only when it is painted or its picture is asked for.
class ChartPlot : public QCustomPlot {
    Q_OBJECT

public:
    ChartPlot(const ui::Chart& chart, const Scale& scale, QWidget* parent);

    /// What is seen of the chart, in so many pixels for each of the screen's.
    QPixmap picture(double resolution = 1);
    /// The whole of a title, or of a category's name below the axis, that finds no room there; empty elsewhere.
    QString cutNameAt(QPointF place);
    /// What is drawn, read anew if it is out of date.
    const ChartNumbers& numbers();
    CategoryRange shownCategories();
    void showCategories(CategoryRange range);
    /// What is drawn below the category axis.
    const LabelArrangement& labels() const { return labels_; }

    struct Bar {
        int Category = 0;
        int Series = 0;
    };
    std::optional<Bar> barAt(QPointF place);

protected:
    void outdateData();
    void outdatePlot();
    virtual void dataRead() {}
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void updateLayout() override;

private:
    void setUpAxes();
    void replotIfOutdated();
    void readData();
    void takeOverStyle();
    void takeOverSeries();
    void arrangeTitle();
    void arrangeAxisTitles();
    void arrangeValueAxis();
    void arrangeCategoryAxis();
    void arrangeBars();
    QRectF barRect(Bar bar) const;
    bool isCut(int category) const;
    void paintBuffers(QCPPainter& painter);
    void paintFocus(QCPPainter& painter);

    const ui::Chart& chart_;
    const Scale& scale_;
    ChartNumbers numbers_;
    LabelArrangement labels_;
    QCPTextElement* title_;
    ChartLegend legend_;
    QCPBarsGroup* group_;
    std::vector<QCPBars*> bars_;
    bool dataOutdated_ = true;
    bool plotOutdated_ = true;
};

}  // namespace desktop
