// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/texts.h"

#include <QKeyEvent>
#include <QTextDocument>

#include "ui/text_editor.h"

namespace desktop {

namespace {

constexpr int LongestLine = 4096;  // characters: more than there are pixels

/// The line in lines of at most `width` characters, where its words allow that.
QString broken(const QString& line, qsizetype width) {
    QString text;
    qsizetype column = 0;
    for (const QString& word : line.split(' ')) {
        const bool fits = text.isEmpty() || column + 1 + word.size() <= width;
        if (!text.isEmpty()) text += fits ? ' ' : '\n';
        column = fits && !text.isEmpty() ? column + 1 + word.size() : word.size();
        text += word;
    }
    return text;
}

}  // namespace

QString shownText(std::string_view text) {
    QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return shown.replace("\r\n", "\n").replace('\r', '\n');
}

QString shortText(std::string_view text) {
    constexpr std::size_t BytesOfCharacter = 4;  // at the most
    QString shown = shownText(text.substr(0, BytesOfCharacter * LongestLine)).left(LongestLine);
    if (shown.size() == LongestLine && shown.back().isHighSurrogate()) shown.chop(1);
    return shown;
}

QString captionWithAccessKey(const ui::Control& control) {
    QString caption = shownText(control.Caption());
    const qsizetype place = control.AccessKey() == 0 ? -1 : caption.indexOf(QChar(control.AccessKey()));
    if (place < 0) return caption.replace('&', "&&");
    return caption.left(place).replace('&', "&&") + '&' + caption.mid(place).replace('&', "&&");
}

/// Qt would break the lines of marked-up text only, and those at a width of its own.
QString plainToolTip(std::string_view text) {
    constexpr qsizetype WidestTip = 80;  // characters
    QStringList lines = shortText(text).split('\n');
    for (QString& line : lines) line = broken(line, WidestTip);
    const QString tip = lines.join('\n');
    if (!Qt::mightBeRichText(tip)) return tip;
    return "<p style='white-space:pre'>" + tip.toHtmlEscaped() + "</p>";
}

std::string utf8(const QString& text) { return text.toStdString(); }

bool isTyping(const QKeyEvent& event) {
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
    const QString text = event.text();
    return !text.isEmpty() && ui::isPrintable(static_cast<int>(text.toUcs4().first()));
}

bool isPress(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space;
}

int unitOf(const QString& text, int character) {
    int unit = 0;
    for (; character > 0 && unit < text.size(); --character) {
        unit += text.at(unit).isHighSurrogate() && unit + 1 < text.size() ? 2 : 1;
    }
    return unit;
}

int characterOf(const QString& text, int unit) { return static_cast<int>(text.left(unit).toUcs4().size()); }

}  // namespace desktop
