// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/chart_plot.h"

namespace desktop {

namespace {

constexpr QSize SmallestPicture(320, 240);
constexpr double GroupWidth = 0.7;  // of a category

}  // namespace

ChartPlot::ChartPlot(const ui::Chart& chart, const Scale& scale, QWidget* parent)
    : QCustomPlot(parent),
      chart_(chart),
      scale_(scale),
      title_(new QCPTextElement(this)),
      group_(new QCPBarsGroup(this)) {
    // The base class queues a replot of its own, which it drops while another one is under way. Ours come later.
    mReplotting = true;
    setUp();
}

void ChartPlot::setUp() {
    setBackground(QBrush(Qt::white));
    plotLayout()->insertRow(0);
    plotLayout()->addElement(0, 0, title_);
    for (QCPAxis* axis : {xAxis, yAxis}) {
        axis->grid()->setPen(Qt::NoPen);
        axis->setNumberFormat("g");
    }
    xAxis->setSubTicks(false);
    group_->setSpacing(0);
}

void ChartPlot::outdateData() {
    dataOutdated_ = true;
    outdatePlot();
}

void ChartPlot::outdatePlot() {
    plotOutdated_ = true;
    update();
}

const ChartNumbers& ChartPlot::numbers() {
    if (dataOutdated_) readData();
    return numbers_;
}

void ChartPlot::readData() {
    dataOutdated_ = false;
    numbers_ = readNumbers(chart_);
    takeOverTitles();
    takeOverSeries();
}

void ChartPlot::takeOverTitles() {
    title_->setText(QString::fromStdString(chart_.Title));
    title_->setFont(scale_.font(chart_.TitleFont));
    xAxis->setLabel(QString::fromStdString(chart_.XAxisTitle));
    yAxis->setLabel(QString::fromStdString(chart_.YAxisTitle));
    for (QCPAxis* axis : {xAxis, yAxis}) axis->setLabelFont(scale_.font(chart_.AxisTitleFont));
}

void ChartPlot::takeOverSeries() {
    clearPlottables();
    for (const ChartNumbers::Series& series : numbers_.AllSeries) {
        auto* bars = new QCPBars(xAxis, yAxis);
        bars->setBarsGroup(group_);
        bars->setWidth(GroupWidth / static_cast<double>(numbers_.AllSeries.size()));
        bars->setPen(series.EdgePen);
        bars->setBrush(series.FillColor);
        bars->setName(series.Label);
        for (int i = 0; i < numbers_.count(); ++i) {
            if (const auto value = series.Values[static_cast<std::size_t>(i)]) bars->addData(i, *value);
        }
    }
    const QSharedPointer<QCPAxisTickerText> labels(new QCPAxisTickerText);
    for (int i = 0; i < numbers_.count(); ++i) {
        labels->addTick(i, numbers_.Categories[static_cast<std::size_t>(i)]);
    }
    xAxis->setTicker(labels);
    xAxis->setRange(-0.5, std::max(numbers_.count(), 1) - 0.5);
    const auto extremes = numbers_.extremes();
    yAxis->setRange(0, extremes && extremes->Greatest > 0 ? extremes->Greatest : 1);
}

void ChartPlot::updateLayout() { QCustomPlot::updateLayout(); }

void ChartPlot::replotIfOutdated() {
    if (dataOutdated_) readData();
    if (!plotOutdated_ && bufferDevicePixelRatio() == devicePixelRatioF()) return;
    plotOutdated_ = false;
    setBufferDevicePixelRatio(devicePixelRatioF());
    setViewport(QRect(QPoint(), size().isEmpty() ? SmallestPicture : size()));
    mReplotting = false;
    replot(rpQueuedRefresh);
}

void ChartPlot::paintBuffers(QCPPainter& painter) {
    drawBackground(&painter);
    for (const auto& buffer : mPaintBuffers) buffer->draw(&painter);
}

void ChartPlot::paintEvent(QPaintEvent* /*event*/) {
    replotIfOutdated();
    QCPPainter painter(this);
    if (painter.isActive()) paintBuffers(painter);
}

void ChartPlot::resizeEvent(QResizeEvent* /*event*/) { outdatePlot(); }

QPixmap ChartPlot::picture() {
    replotIfOutdated();
    QPixmap picture(viewport().size() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::white);
    QCPPainter painter(&picture);
    paintBuffers(painter);
    return picture;
}

}  // namespace desktop
