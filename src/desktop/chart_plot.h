// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

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

    /// What is seen of the chart, in the screen's pixels.
    QPixmap picture();
    /// What is drawn, read anew if it is out of date.
    const ChartNumbers& numbers();

protected:
    void outdateData();
    void outdatePlot();
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateLayout() override;

private:
    void setUp();
    void replotIfOutdated();
    void readData();
    void takeOverTitles();
    void takeOverSeries();
    void paintBuffers(QCPPainter& painter);

    const ui::Chart& chart_;
    const Scale& scale_;
    ChartNumbers numbers_;
    QCPTextElement* title_;
    QCPBarsGroup* group_;
    bool dataOutdated_ = true;
    bool plotOutdated_ = true;
};

}  // namespace desktop
