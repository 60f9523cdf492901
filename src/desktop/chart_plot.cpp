// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/chart_plot.h"

#include <algorithm>
#include <cmath>

#include "desktop/texts.h"

namespace desktop {

namespace {

constexpr QSize SmallestPicture(320, 240);
constexpr int TitleRow = 0;
constexpr int MostTitleLines = 3;
constexpr int MostAxisTitleLines = 2;
constexpr double MostForLabels = 0.4;         // of the height below the title and the legend
constexpr double GroupWidth = 0.72;           // of a category
constexpr double CrowdedGroupWidth = 1;       // where a gap would be no pixel wide
constexpr double NarrowestGap = 1;            // pixels
constexpr double NarrowestBarWithEdge = 3.5;  // pixels
constexpr int TickLength = 4;
constexpr double TickDistance = 2;  // lines, from one value to the next
constexpr double HitTolerance = 3;  // pixels
constexpr double Upright = -90;     // degrees
const QColor Ink(20, 20, 20);
const QColor GridInk(220, 220, 220);

ui::Font tickFont(const ui::Chart& chart) { return {chart.AxisTitleFont.Name, ui::Font{}.Size}; }

QString axisTitle(const std::string& title, double width, int mostLines, const QFont& font) {
    return wrappedOrCut(shownText(title), width, mostLines, QFontMetricsF(font));
}

/// The whole of a text that is not shown so.
QString wholeIfCut(const QString& shown, const std::string& text) {
    const QString whole = shownText(text);
    return shown.simplified() == whole.simplified() ? QString() : whole;
}

/// Dark enough to be seen on white.
QColor focusColour(const QPalette& palette) {
    const QColor highlight = palette.color(QPalette::Highlight);
    return highlight.lightness() < 160 ? highlight : Ink;
}

}  // namespace

ChartPlot::ChartPlot(const ui::Chart& chart, const Scale& scale, QWidget* parent)
    : QCustomPlot(parent),
      chart_(chart),
      scale_(scale),
      title_(new QCPTextElement(this)),
      legend_(*this, 0),
      group_(new QCPBarsGroup(this)) {
    // The base class queues a replot of its own, which it drops while another one is under way. Ours come later.
    mReplotting = true;
    setBackground(QBrush(Qt::white));
    setPlottingHint(QCP::phCacheLabels, false);
    for (int i = 0; i < layerCount(); ++i) layer(i)->setMode(QCPLayer::lmLogical);  // which share one buffer
    plotLayout()->insertRow(TitleRow);
    plotLayout()->addElement(TitleRow, 0, title_);
    setUpAxes();
}

void ChartPlot::setUpAxes() {
    QLocale numberLocale = QLocale::c();
    numberLocale.setNumberOptions(QLocale::OmitGroupSeparator);
    setLocale(numberLocale);
    for (QCPAxis* axis : {xAxis, yAxis, xAxis2, yAxis2}) {
        axis->setBasePen(QPen(Ink));
        axis->setTickPen(QPen(Ink));
        axis->setTickLength(0, TickLength);
        axis->setSubTicks(false);
        axis->setLabelColor(Ink);
        axis->setTickLabelColor(Ink);
        axis->setNumberFormat("f");
        axis->grid()->setZeroLinePen(Qt::NoPen);
        axis->grid()->setPen(Qt::NoPen);
    }
    yAxis->grid()->setZeroLinePen(QPen(Ink));
    title_->setTextColor(Ink);
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
    const std::vector<QString> before = std::move(numbers_.Categories);
    numbers_ = readNumbers(chart_);
    takeOverStyle();
    takeOverSeries();
    if (before != numbers_.Categories) showCategories(allCategories(numbers_.count()));
    dataRead();
}

void ChartPlot::takeOverStyle() {
    const QFont axisFont = scale_.font(chart_.AxisTitleFont);
    title_->setFont(scale_.font(chart_.TitleFont));
    for (QCPAxis* axis : {xAxis, yAxis}) {
        axis->setLabelFont(axisFont);
        axis->setTickLabelFont(scale_.font(tickFont(chart_)));
    }
    yAxis->grid()->setPen(chart_.MajorGridLines ? QPen(GridInk) : QPen(Qt::NoPen));
    for (QCPAxis* axis : {xAxis2, yAxis2}) {
        axis->setVisible(chart_.WallBorder);
        axis->setTicks(false);
        axis->setTickLabels(false);
    }
    axisRect()->setBackground(toColour(chart_.PlotBackground));
    const int margin = qRound(QFontMetricsF(axisFont).height() * 0.6);
    plotLayout()->setMargins(QMargins(margin, margin, margin, margin));
    plotLayout()->setRowSpacing(0);
    title_->setMargins(QMargins(0, 0, 0, margin));
}

void ChartPlot::takeOverSeries() {
    clearPlottables();
    bars_.clear();
    for (const ChartNumbers::Series& series : numbers_.AllSeries) {
        auto* bars = new QCPBars(xAxis, yAxis);
        QVector<double> keys;
        QVector<double> values;
        for (int i = 0; i < numbers_.count(); ++i) {
            const std::optional<double> value = series.Values[static_cast<std::size_t>(i)];
            if (!value) continue;
            keys.append(i);
            values.append(*value);
        }
        bars->setData(keys, values, true);
        bars->setBarsGroup(group_);
        bars_.push_back(bars);
    }
    legend_.show(numbers_, bars_, scale_.font(chart_.AxisTitleFont));
}

CategoryRange ChartPlot::shownCategories() {
    if (dataOutdated_) readData();
    return {xAxis->range().lower, xAxis->range().upper};
}

void ChartPlot::showCategories(CategoryRange range) {
    const CategoryRange shown = withinData(range, numbers_.count());
    if (CategoryRange{xAxis->range().lower, xAxis->range().upper} == shown) return;
    xAxis->setRange(shown.Lower, shown.Upper);
    outdatePlot();
}

/// The titles of the axes follow from the height that the labels leave, and the labels from the width that the titles
/// leave: twice through is enough. The labels come last, so that they fit.
void ChartPlot::updateLayout() {
    arrangeTitle();
    legend_.fitInto(viewport().width() - 2 * plotLayout()->margins().left());
    QCustomPlot::updateLayout();
    arrangeValueAxis();
    for (int pass = 0; pass < 2; ++pass) {
        QCustomPlot::updateLayout();
        arrangeAxisTitles();
        QCustomPlot::updateLayout();
        arrangeCategoryAxis();
    }
    QCustomPlot::updateLayout();
    arrangeBars();
}

void ChartPlot::arrangeTitle() {
    const int width = viewport().width() - 2 * plotLayout()->margins().left();
    title_->setText(
        wrappedOrCut(shownText(chart_.Title), width, MostTitleLines, QFontMetricsF(title_->font())));
}

/// The title of the value axis may be as long as there is room on both sides of the axis' middle.
void ChartPlot::arrangeAxisTitles() {
    const QRect plot = axisRect()->rect();
    const int room = 2 * std::min(plot.center().y() - axisRect()->outerRect().top(),
                                  viewport().bottom() - plot.center().y());
    xAxis->setLabel(axisTitle(chart_.XAxisTitle, plot.width(), 1, xAxis->labelFont()));
    yAxis->setLabel(axisTitle(chart_.YAxisTitle, room, MostAxisTitleLines, yAxis->labelFont()));
}

/// The steps do not depend on the labels, so that the axis keeps its range while these change by zooming.
void ChartPlot::arrangeValueAxis() {
    const double tickDistance = QFontMetricsF(yAxis->tickLabelFont()).height() * TickDistance;
    const auto extremes = numbers_.extremes().value_or(ChartNumbers::Extremes{});
    const double height = axisRect()->outerRect().height() * (1 - MostForLabels);
    const int mostSteps = std::max(2, static_cast<int>(height / tickDistance));
    const ValueScale scale = valueScale(extremes.Least, extremes.Greatest, numbers_.whole(), mostSteps);
    const QSharedPointer<QCPAxisTickerFixed> ticker(new QCPAxisTickerFixed);
    ticker->setTickStep(scale.Step);
    yAxis->setTicker(ticker);
    yAxis->setNumberPrecision(scale.Decimals);
    yAxis->setRange(scale.Lower, scale.Upper);
}

void ChartPlot::arrangeCategoryAxis() {
    const double spacing = axisRect()->width() / xAxis->range().size();
    labels_ = arrangeLabels(numbers_.Categories, {spacing, axisRect()->outerRect().height() * MostForLabels},
                            QFontMetricsF(xAxis->tickLabelFont()));
    const QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
    for (const LabelArrangement::Shown& label : labels_.Labels) ticker->addTick(label.Category, label.Text);
    xAxis->setTicker(ticker);
    xAxis->setTickLabelRotation(labels_.Upright ? Upright : 0);
}

/// An edge around every bar would blacken bars that are a few pixels wide; smoothing would thin their colours. The
/// narrowest keep a pixel in their own colour.
void ChartPlot::arrangeBars() {
    const double spacing = axisRect()->width() / xAxis->range().size();
    const double group = spacing * (1 - GroupWidth) < NarrowestGap ? CrowdedGroupWidth : GroupWidth;
    const double width = group / static_cast<double>(std::max<std::size_t>(bars_.size(), 1));
    const bool edged = width * spacing >= NarrowestBarWithEdge;
    for (std::size_t i = 0; i < bars_.size(); ++i) {
        const ChartNumbers::Series& series = numbers_.AllSeries[i];
        bars_[i]->setWidth(width);
        bars_[i]->setPen(edged ? series.EdgePen : series.FillColor);
        bars_[i]->setBrush(series.FillColor);
        bars_[i]->setAntialiased(false);
        bars_[i]->setAntialiasedFill(false);
    }
}

QRectF ChartPlot::barRect(Bar bar) const {
    const auto value = numbers_.AllSeries[static_cast<std::size_t>(bar.Series)]
                           .Values[static_cast<std::size_t>(bar.Category)];
    if (!value) return {};
    const double width = bars_[static_cast<std::size_t>(bar.Series)]->width();
    const double left = bar.Category + (bar.Series - static_cast<double>(bars_.size()) / 2) * width;
    const QPointF base(xAxis->coordToPixel(left), yAxis->coordToPixel(0));
    const QPointF top(xAxis->coordToPixel(left + width), yAxis->coordToPixel(*value));
    return QRectF(base, top).normalized();
}

/// Bars of a pixel can be hit, too.
std::optional<ChartPlot::Bar> ChartPlot::barAt(QPointF place) {
    replotIfOutdated();
    if (bars_.empty() || !axisRect()->rect().contains(place.toPoint())) return std::nullopt;
    const double key = xAxis->pixelToCoord(place.x());
    const int category = static_cast<int>(std::lround(key));
    if (category < 0 || category >= numbers_.count()) return std::nullopt;
    const int last = static_cast<int>(bars_.size()) - 1;
    const double series = (key - category) / bars_.front()->width() + static_cast<double>(bars_.size()) / 2;
    const Bar bar{category, std::clamp(static_cast<int>(std::floor(series)), 0, last)};
    const QRectF rect = barRect(bar);
    const QMarginsF tolerance(HitTolerance, HitTolerance, HitTolerance, HitTolerance);
    if (rect.isNull() || !rect.marginsAdded(tolerance).contains(place)) return std::nullopt;
    return bar;
}

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
    painter.fillRect(viewport(), Qt::white);
    for (const auto& buffer : mPaintBuffers) buffer->draw(&painter);
}

void ChartPlot::paintFocus(QCPPainter& painter) {
    painter.setPen(QPen(focusColour(palette()), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void ChartPlot::paintEvent(QPaintEvent* /*event*/) {
    replotIfOutdated();
    QCPPainter painter(this);
    if (!painter.isActive()) return;
    paintBuffers(painter);
    if (hasFocus()) paintFocus(painter);
}

/// The buffers of many hidden charts on a large screen would take hundreds of megabytes.
void ChartPlot::hideEvent(QHideEvent* event) {
    QCustomPlot::hideEvent(event);
    mPaintBuffers.clear();
    outdatePlot();
}

void ChartPlot::resizeEvent(QResizeEvent* /*event*/) { outdatePlot(); }

void ChartPlot::changeEvent(QEvent* event) {
    QCustomPlot::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) outdateData();
}

/// Drawn anew, so that fonts and lines keep their proportions.
QPixmap ChartPlot::picture(double resolution) {
    replotIfOutdated();
    const double ratio = devicePixelRatioF() * resolution;
    QPixmap picture(viewport().size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::white);
    QCPPainter painter(&picture);
    painter.setMode(QCPPainter::pmNonCosmetic, resolution > 1);
    draw(&painter);
    return picture;
}

bool ChartPlot::isCut(int category) const {
    const auto label = std::find_if(labels_.Labels.begin(), labels_.Labels.end(),
                                    [category](const auto& shown) { return shown.Category == category; });
    if (label == labels_.Labels.end()) return true;
    return label->Text.simplified() != numbers_.Categories[static_cast<std::size_t>(category)].simplified();
}

QString ChartPlot::cutNameAt(QPointF place) {
    replotIfOutdated();
    const QRect plot = axisRect()->rect();
    if (title_->rect().contains(place.toPoint())) return wholeIfCut(title_->text(), chart_.Title);
    if (place.x() < plot.left()) return wholeIfCut(yAxis->label(), chart_.YAxisTitle);
    if (place.y() <= plot.bottom() || place.x() > plot.right()) return {};
    if (place.y() > height() - plotLayout()->margins().bottom() - QFontMetrics(xAxis->labelFont()).height())
        return wholeIfCut(xAxis->label(), chart_.XAxisTitle);
    const int category = static_cast<int>(std::lround(xAxis->pixelToCoord(place.x())));
    if (category < 0 || category >= numbers_.count() || !isCut(category)) return {};
    return numbers_.Categories[static_cast<std::size_t>(category)];
}

}  // namespace desktop
