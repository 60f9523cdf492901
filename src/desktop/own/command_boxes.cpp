// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/command_boxes.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/dialogues.h"
#include "desktop/own/own_texts.h"
#include "desktop/own/own_words.h"
#include "desktop/texts.h"

namespace desktop {

namespace {

using own_words::said;

constexpr int MostLines = 20;  // of the list, on view at once

/// A line for each, so that a spreadsheet takes them as a column; one of several lines stands apart.
QString inOneText(const QStringList& texts) {
    QString all;
    for (const QString& text : texts) {
        if (!all.isEmpty()) all += text.contains('\n') ? "\n\n" : "\n";
        all += text;
    }
    return all;
}

/// As wide as its longest line and as high as its lines, or as many as show at once.
QSize sizeFor(const QPlainTextEdit& text) {
    const QFontMetrics font = text.fontMetrics();
    const int bar = text.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int margins = 2 * static_cast<int>(text.document()->documentMargin() + text.frameWidth()) + bar;
    const int lines = std::min(text.blockCount() + 1, MostLines);
    const QRect needed = font.boundingRect(QRect(), Qt::AlignLeft, text.toPlainText());
    return {needed.width() + margins, font.lineSpacing() * lines + margins};
}

/// A box that tells its number; returns whether the rest is answered with it.
bool showNumbered(QWidget* owner, const std::string& text, const std::string& title, ui::MessageIcon icon,
                  int number) {
    Box box(owner, title, text);
    box.setIcon(icon);
    box.addNote(said(own_texts::BoxNumber).arg(number));
    box.buttons().setStandardButtons(QDialogButtonBox::Ok);
    QPushButton* ok = box.buttons().button(QDialogButtonBox::Ok);
    QPushButton* rest = box.buttons().addButton(said(own_texts::OkToRest), QDialogButtonBox::AcceptRole);
    ok->setDefault(true);
    ok->setFocus();
    bool answersRest = false;
    QObject::connect(rest, &QPushButton::clicked, [&answersRest] { answersRest = true; });
    box.exec();
    return answersRest;
}

}  // namespace

bool CommandBoxes::takes(const std::string& text) {
    if (!row_.RestIsAnswered) return false;
    row_.Texts << shownText(text).trimmed();
    return true;
}

void CommandBoxes::show(QWidget* owner, const std::string& text, const std::string& title,
                        ui::MessageIcon icon) {
    if (++row_.Count < FirstNumbered) return showMessageBox(owner, text, title, icon);
    row_.RestIsAnswered = showNumbered(owner, text, title, icon, row_.Count);
}

/// The text can be read and copied as any other, by keys as well. A text is one line of it.
void CommandBoxes::showTaken(QWidget* owner) {
    const QStringList texts = std::exchange(row_.Texts, {});
    if (texts.isEmpty()) return;
    QDialog list(owner);
    list.setWindowTitle(shownText(ui::ApplicationTitle));
    auto* heading = new QLabel(texts.size() == 1 ? said(own_texts::OneTaken)
                                                 : said(own_texts::SeveralTaken).arg(texts.size()));
    auto* text = new QPlainTextEdit(inOneText(texts));
    text->setReadOnly(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setTabChangesFocus(true);
    text->setAccessibleName(heading->text());
    text->setMinimumSize(sizeFor(*text).boundedTo(list.screen()->availableSize() * 7 / 10));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* copy = buttons->addButton(said(own_texts::CopyAll), QDialogButtonBox::ActionRole);
    QObject::connect(copy, &QPushButton::clicked,
                     [text] { QApplication::clipboard()->setText(text->toPlainText()); });
    QObject::connect(buttons, &QDialogButtonBox::rejected, &list, &QDialog::reject);
    auto* layout = new QVBoxLayout(&list);
    layout->addWidget(heading);
    layout->addWidget(text);
    layout->addWidget(buttons);
    list.exec();
}

}  // namespace desktop
