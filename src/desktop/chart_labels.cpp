// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/chart_labels.h"

#include <QStringList>
#include <algorithm>

namespace desktop {

namespace {

constexpr int MostLines = 3;
constexpr double SmallestGap = 1;  // pixels between neighbouring lines of upright text

/// One line, without the blanks that would make a label wider than it looks.
QString oneLine(const QString& category) { return category.simplified(); }

double gap(const QFontMetricsF& metrics) { return metrics.averageCharWidth() * 1.5; }

std::optional<LabelArrangement> horizontal(const std::vector<QString>& categories, const LabelRoom& room,
                                           const QFontMetricsF& metrics, int mostLines) {
    const double width = room.Spacing - gap(metrics);
    if (mostLines * metrics.lineSpacing() > room.Height || width < metrics.averageCharWidth())
        return std::nullopt;
    LabelArrangement arrangement;
    for (int i = 0; i < static_cast<int>(categories.size()); ++i) {
        const auto text =
            wrapped(oneLine(categories[static_cast<std::size_t>(i)]), width, mostLines, metrics);
        if (!text) return std::nullopt;
        arrangement.Labels.push_back({i, *text});
    }
    return arrangement;
}

LabelArrangement upright(const std::vector<QString>& categories, const LabelRoom& room,
                         const QFontMetricsF& metrics) {
    LabelArrangement arrangement;
    arrangement.Upright = true;
    arrangement.Every = nextRound((metrics.height() + SmallestGap) / std::max(room.Spacing, 0.001));
    for (int i = 0; i < static_cast<int>(categories.size()); i += arrangement.Every) {
        const QString label = oneLine(categories[static_cast<std::size_t>(i)]);
        arrangement.Labels.push_back({i, metrics.elidedText(label, Qt::ElideRight, room.Height)});
    }
    return arrangement;
}

/// As many words as fit into one line, taken from the front of `words`.
QString takeLine(QStringList& words, double width, const QFontMetricsF& metrics) {
    QString line = words.takeFirst();
    while (!words.isEmpty()) {
        const QString longer = line + ' ' + words.first();
        if (metrics.horizontalAdvance(longer) > width) break;
        line = longer;
        words.removeFirst();
    }
    return line;
}

}  // namespace

LabelArrangement arrangeLabels(const std::vector<QString>& categories, const LabelRoom& room,
                               const QFontMetricsF& metrics) {
    for (int lines = 1; lines <= MostLines; ++lines) {
        if (const auto arrangement = horizontal(categories, room, metrics, lines)) return *arrangement;
    }
    return upright(categories, room, metrics);
}

std::optional<QString> wrapped(const QString& text, double width, int mostLines,
                               const QFontMetricsF& metrics) {
    if (metrics.horizontalAdvance(text) <= width) return text;
    if (mostLines < 2) return std::nullopt;
    QStringList words = text.split(' ', Qt::SkipEmptyParts);
    QStringList lines;
    while (!words.isEmpty()) {
        lines.append(takeLine(words, width, metrics));
        if (lines.size() > mostLines || metrics.horizontalAdvance(lines.last()) > width) return std::nullopt;
    }
    return lines.join('\n');
}

QString wrappedOrCut(const QString& text, double width, int mostLines, const QFontMetricsF& metrics) {
    if (const auto whole = wrapped(text, width, mostLines, metrics)) return *whole;
    QStringList words = text.split(' ', Qt::SkipEmptyParts);
    QStringList lines;
    while (!words.isEmpty() && lines.size() + 1 < mostLines) lines.append(takeLine(words, width, metrics));
    if (!words.isEmpty()) lines.append(words.join(' '));
    for (QString& line : lines) line = metrics.elidedText(line, Qt::ElideRight, width);
    return lines.join('\n');
}

int nextRound(double least) {
    for (int power = 1; power < 1'000'000'000; power *= 10) {
        for (const int factor : {1, 2, 5}) {
            if (power * factor >= least) return power * factor;
        }
    }
    return 1'000'000'000;
}

}  // namespace desktop
