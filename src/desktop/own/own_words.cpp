// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/own_words.h"

#include "desktop/own/own_texts.h"
#include "desktop/texts.h"

namespace desktop::own_words {

namespace {

constexpr int LongestRefused = 40;  // characters

}  // namespace

QString said(const char* text) { return QString::fromUtf8(text); }

QString shortened(const QString& text, int longest) {
    if (text.size() <= longest) return text;
    const int half = longest / 2;
    return text.left(half) + QChar(0x2026) + text.right(half - 1);
}

QString clause(const QString& sentence) {
    QString reason = sentence.simplified();
    while (reason.endsWith('.')) reason.chop(1);
    if (reason.size() > 1 && reason.at(1).isLower()) reason[0] = reason.at(0).toLower();
    return reason;
}

QString cells(qsizetype count) {
    return count == 1 ? said(own_texts::OneCell) : said(own_texts::SeveralCells).arg(count);
}

QString oneOf(QStringList names) {
    const QString last = names.takeLast();
    return names.isEmpty() ? last : said(own_texts::LastOfList).arg(names.join(", "), last);
}

QString refused(const QString& text, const std::vector<std::string_view>& items) {
    const QString shown = shortened(text.simplified(), LongestRefused);
    if (items.empty()) return said(own_texts::Refused).arg(shown);
    QStringList names;
    for (const std::string_view item : items) names << shownText(item);
    return said(own_texts::RefusedByList).arg(shown, oneOf(names));
}

QString pasteStopped(const ui::PastedBlock& block) {
    if (!block.Refused) return said(own_texts::PasteTooLarge).arg(cells(block.Left));
    const QString refused = shortened(shownText(*block.Refused).simplified(), LongestRefused);
    if (refused.isEmpty()) return said(own_texts::PasteNotTaken).arg(cells(block.Left));
    return said(own_texts::PasteRefused).arg(refused, cells(block.Left));
}

}  // namespace desktop::own_words
