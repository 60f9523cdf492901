// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFontMetricsF>
#include <QString>
#include <optional>
#include <vector>

namespace desktop {

/// What there is for the labels below a category axis, in pixels.
struct LabelRoom {
    double Spacing = 0;  // from the middle of a category to that of the next
    double Height = 0;   // the most that the labels may take from the plot
};

/// How the labels below a category axis are drawn so that none touches another.
struct LabelArrangement {
    struct Shown {
        int Category = 0;
        QString Text;  // of several lines, or cut, where it is too long
    };

    bool Upright = false;  // reading upward
    int Every = 1;         // one label for so many categories
    std::vector<Shown> Labels;
};

/// Horizontal labels where all fit, in several lines if need be; otherwise upright ones, which are cut to the height
/// and drawn for every 2nd, 5th, 10th... category where the categories stand closer than lines of text.
LabelArrangement arrangeLabels(const std::vector<QString>& categories, const LabelRoom& room,
                               const QFontMetricsF& metrics);

/// The text in at most `mostLines` lines, none wider than `width`; nothing where a word is too wide or a line too few.
std::optional<QString> wrapped(const QString& text, double width, int mostLines,
                               const QFontMetricsF& metrics);
/// The same, with an ellipsis for what finds no room.
QString wrappedOrCut(const QString& text, double width, int mostLines, const QFontMetricsF& metrics);

/// The least of 1, 2, 5, 10, 20, 50... that is not below `least`.
int nextRound(double least);

}  // namespace desktop
