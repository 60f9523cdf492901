// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/scale.h"

#include <QFontMetricsF>
#include <cmath>

namespace desktop {

namespace {

const ui::Font DesignFont{};
constexpr int TwipsAPoint = 20;

}  // namespace

Scale::Scale(const QFont& desktopFont)
    : desktopFont_(desktopFont),
      pixelsPerTwip_(QFontMetricsF(desktopFont).height() / (DesignFont.Size * TwipsAPoint)) {}

int Scale::pixels(int twips) const { return static_cast<int>(std::lround(twips * pixelsPerTwip_)); }

int Scale::twips(int pixels) const { return static_cast<int>(std::ceil(pixels / pixelsPerTwip_)); }

int Scale::twipsWithin(int pixels) const { return static_cast<int>(std::floor(pixels / pixelsPerTwip_)); }

QRect Scale::place(int left, int top, int width, int height) const {
    const QPoint topLeft(pixels(left), pixels(top));
    const QPoint behind(pixels(left + width), pixels(top + height));
    return {topLeft, behind - QPoint(1, 1)};
}

QRect Scale::place(const ui::Control& control) const {
    return place(control.Left(), control.Top(), control.Width(), control.Height());
}

QFont Scale::font(const ui::Font& font) const {
    QFont scaled = desktopFont_;
    if (font.Name != DesignFont.Name) scaled.setFamily(QString::fromStdString(font.Name));
    const double ratio = static_cast<double>(font.Size) / DesignFont.Size;
    if (scaled.pixelSize() > 0) {
        scaled.setPixelSize(static_cast<int>(std::lround(scaled.pixelSize() * ratio)));
    } else {
        scaled.setPointSizeF(scaled.pointSizeF() * ratio);
    }
    scaled.setBold(font.Bold);
    return scaled;
}

}  // namespace desktop
