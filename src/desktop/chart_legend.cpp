// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/chart_legend.h"

#include <algorithm>
#include <cmath>

namespace desktop {

namespace {

constexpr double NoStretch = 0.001;  // the least that the layout takes

/// Keeps the legend in the middle, and its lines together.
QCPLayoutGrid* centred(QCustomPlot& plot, QCPLegend& legend) {
    auto* row = new QCPLayoutGrid;
    row->addElement(0, 0, new QCPLayoutElement(&plot));
    row->addElement(0, 1, &legend);
    row->addElement(0, 2, new QCPLayoutElement(&plot));
    row->setColumnStretchFactor(1, NoStretch);
    return row;
}

/// A series' colour and name. The square stands on the line of the text and is as high as its capitals.
class LegendItem : public QCPPlottableLegendItem {
public:
    LegendItem(QCPLegend& legend, QCPBars& bars) : QCPPlottableLegendItem(&legend, &bars), bars_(bars) {}

protected:
    void draw(QCPPainter* painter) override {
        const QFontMetricsF metrics(getFont());
        const double side = std::round(metrics.capHeight());
        const double line = mRect.y() + std::round(metrics.ascent());
        const QSize room = mParentLegend->iconSize();
        painter->setPen(bars_.pen());
        painter->setBrush(bars_.brush());
        painter->drawRect(QRectF(mRect.x() + (room.width() - side) / 2, line - side, side, side));
        painter->setFont(getFont());
        painter->setPen(getTextColor());
        painter->drawText(QPointF(mRect.x() + room.width() + mParentLegend->iconTextPadding(), line),
                          bars_.name());
    }

private:
    QCPBars& bars_;
};

}  // namespace

ChartLegend::ChartLegend(QCustomPlot& plot, int row) : legend_(*plot.legend) {
    plot.axisRect()->insetLayout()->take(&legend_);
    plot.setAutoAddPlottableToLegend(false);
    plot.plotLayout()->insertRow(row);
    plot.plotLayout()->addElement(row, 0, centred(plot, legend_));
    plot.plotLayout()->setRowStretchFactor(row, NoStretch);
    legend_.setVisible(true);
    legend_.setBorderPen(Qt::NoPen);
    legend_.setBrush(Qt::NoBrush);
    legend_.setTextColor(Qt::black);
}

void ChartLegend::show(const ChartNumbers& numbers, const std::vector<QCPBars*>& bars, const QFont& font) {
    legend_.clearItems();
    itemWidths_.clear();
    legend_.setMargins(QMargins());
    if (!numbers.hasLegend()) return;
    const QFontMetricsF metrics(font);
    const int swatch = qRound(metrics.ascent());
    legend_.setFont(font);
    legend_.setIconSize(swatch, swatch);
    legend_.setIconTextPadding(swatch / 2);
    legend_.setColumnSpacing(swatch * 2);
    legend_.setRowSpacing(swatch / 4);
    legend_.setMargins(QMargins(0, 0, 0, swatch));
    for (int i = 0; i < static_cast<int>(bars.size()); ++i) {
        const QString name = numbers.seriesName(i);
        bars[static_cast<std::size_t>(i)]->setName(name);
        legend_.addItem(new LegendItem(legend_, *bars[static_cast<std::size_t>(i)]));
        itemWidths_.push_back(swatch + swatch / 2 +
                              static_cast<int>(std::ceil(metrics.horizontalAdvance(name))) + 2);
    }
}

int ChartLegend::widthOf(int columns) const {
    int width = (columns - 1) * legend_.columnSpacing();
    for (int column = 0; column < columns; ++column) {
        int widest = 0;
        for (std::size_t i = static_cast<std::size_t>(column); i < itemWidths_.size();
             i += static_cast<std::size_t>(columns)) {
            widest = std::max(widest, itemWidths_[i]);
        }
        width += widest;
    }
    return width;
}

void ChartLegend::fitInto(int width) {
    if (itemWidths_.empty()) return;
    int columns = static_cast<int>(itemWidths_.size());
    while (columns > 1 && widthOf(columns) > width) --columns;
    if (columns == legend_.wrap()) return;
    legend_.setWrap(columns);
    legend_.setFillOrder(QCPLayoutGrid::foColumnsFirst, true);
    legend_.simplify();
}

}  // namespace desktop
