// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/chart_plot.h"
#include "desktop/view.h"
#include "ui/chart.h"

namespace desktop {

/// A bar chart of the form. The wheel, the plus and minus keys zoom into its categories; dragging and the arrow keys
/// move along them; a double click, Home and 0 show all. Return opens the table of its numbers.
class ChartView : public ChartPlot, public View {
    Q_OBJECT

public:
    ChartView(ui::Chart& chart, FormLink& link, QWidget* parent);

    QWidget& widget() override { return *this; }
    void follow() override { outdateData(); }

    /// Category, series and value of the bar at that place, or the whole of a name that is cut there; empty elsewhere.
    QString tipAt(QPointF place);
    void showNumbers();

protected:
    void dataRead() override;
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void copyPicture();
    void showAll();
    void move(double categories);
    void zoom(double factor, double centre);
    bool handleKey(const QKeyEvent& event);
    void showTip(QPoint place, QPoint onScreen);

    ui::Chart& control_;
    FormLink& link_;
    double dragged_ = 0;  // the place of the mouse while its button is down
};

}  // namespace desktop
