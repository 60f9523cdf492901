// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QRect>

#include "ui/control.h"
#include "ui/platform.h"

namespace desktop {

/// From the design's twips to the screen's pixels and back: the design's font of 8 points, 160 twips, is as high as the
/// desktop's font, so that everything grows and shrinks with it. Pixels are Qt's, before any factor of the screen.
class Scale {
public:
    explicit Scale(const QFont& desktopFont);

    int pixels(int twips) const;
    /// The least number of twips that holds so many pixels.
    int twips(int pixels) const;
    /// The greatest number of twips that so many pixels hold.
    int twipsWithin(int pixels) const;
    /// A place in pixels. Its edges are rounded one by one, so that neighbours meet.
    QRect place(int left, int top, int width, int height) const;
    QRect place(const ui::Control& control) const;
    /// The desktop's font for the design's own one, and another family where the design names one; sizes keep their
    /// ratio to the design's 8 points.
    QFont font(const ui::Font& font) const;
    /// This scale, or a smaller one where a form of that size would be larger than `most` pixels.
    Scale within(QSize most, ui::Size form) const;
    const QFont& desktopFont() const { return desktopFont_; }

private:
    QFont desktopFont_;
    double pixelsPerTwip_;
};

}  // namespace desktop
