// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/scale.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace desktop {

namespace {

const ui::Font DesignFont{};
constexpr int TwipsAPoint = 20;

/// As large in the unit that it is given in.
QFont resized(QFont font, double ratio) {
    if (font.pixelSize() > 0) {
        font.setPixelSize(static_cast<int>(std::lround(font.pixelSize() * ratio)));
    } else {
        font.setPointSizeF(font.pointSizeF() * ratio);
    }
    return font;
}

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
    QFont scaled = resized(desktopFont_, static_cast<double>(font.Size) / DesignFont.Size);
    if (font.Name != DesignFont.Name) scaled.setFamily(QString::fromStdString(font.Name));
    scaled.setBold(font.Bold);
    return scaled;
}

Scale Scale::within(QSize most, ui::Size form) const {
    const double ratio = std::min(
        {1.0, most.width() / (form.Width * pixelsPerTwip_), most.height() / (form.Height * pixelsPerTwip_)});
    Scale smaller = *this;
    smaller.desktopFont_ = resized(desktopFont_, ratio);
    smaller.pixelsPerTwip_ *= ratio;
    return smaller;
}

}  // namespace desktop
