// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/dialogues.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

#include "desktop/texts.h"

namespace desktop {

namespace {

constexpr int WidestLine = 80;         // average characters, beyond which a line is hard to read
constexpr int TitleButtonsWidth = 20;  // average characters that a title bar has beside its text

/// What a box leaves to its text, so that it fits on the screen with all that stands around the text.
QSize mostTextSize(const QWidget& widget) { return widget.screen()->availableSize() * 6 / 10; }

}  // namespace

Box::Box(QWidget* parent, const std::string& title, const std::string& text)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      icon_(new QLabel(this)),
      column_(new QVBoxLayout),
      buttons_(new QDialogButtonBox(this)) {
    setWindowTitle(shownText(title));
    icon_->hide();
    const QString shown = shownText(text);
    setAccessibleName(windowTitle());
    setAccessibleDescription(shown);
    auto* row = new QHBoxLayout;
    row->addWidget(icon_, 0, Qt::AlignTop);
    row->addSpacing(fontMetrics().height() / 2);
    row->addLayout(column_, 1);
    column_->addWidget(makeText(shown), 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(row, 1);
    layout->addSpacing(fontMetrics().height() / 2);
    layout->addWidget(buttons_);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QWidget* Box::makeText(const QString& text) {
    auto* label = new QLabel(text, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    const int widest = fontMetrics().averageCharWidth() * WidestLine;
    const QRect place = fontMetrics().boundingRect(QRect(0, 0, widest, 1 << 20), Qt::TextWordWrap, text);
    const int titleWidth =
        fontMetrics().horizontalAdvance(windowTitle()) + fontMetrics().averageCharWidth() * TitleButtonsWidth;
    const QSize most = mostTextSize(*this);
    const int width =
        std::max(place.width() + fontMetrics().averageCharWidth(), std::min(titleWidth, most.width()));
    const QSize needed(width, label->heightForWidth(width));
    label->setMinimumSize(needed);
    if (needed.boundedTo(most) == needed) return label;
    scrolled_ = new QScrollArea(this);
    scrolled_->setWidget(label);
    scrolled_->setFrameShape(QFrame::NoFrame);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    scrolled_->setMinimumSize((needed + QSize(bar, bar)).boundedTo(most));
    return scrolled_;
}

void Box::setIcon(ui::MessageIcon icon) {
    if (icon == ui::MessageIcon::None) return;
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    const bool asks = icon == ui::MessageIcon::Question;
    const auto picture = asks ? QStyle::SP_MessageBoxQuestion : QStyle::SP_MessageBoxWarning;
    icon_->setPixmap(style()->standardIcon(picture).pixmap(size, size));
    icon_->show();
}

void Box::addNote(const QString& note) {
    auto* label = new QLabel(note, this);
    column_->addSpacing(fontMetrics().height() / 2);
    column_->addWidget(label);
    setAccessibleDescription(accessibleDescription() + '\n' + note);
}

QLineEdit& Box::addAnswer(const std::string& proposed) {
    auto* answer = new QLineEdit(QString::fromStdString(proposed), this);
    answer->setAccessibleName(accessibleDescription());
    column_->addSpacing(fontMetrics().height() / 2);
    column_->addWidget(answer);
    answer->selectAll();
    answer->setFocus();
    answer->installEventFilter(this);
    return *answer;
}

void Box::reject() {
    if (!mustBeAnswered_) QDialog::reject();
}

bool Box::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: return key.isAutoRepeat();
        case Qt::Key_PageUp:
        case Qt::Key_PageDown: break;
        default: return false;
    }
    if (scrolled_ == nullptr) return false;
    const bool back = key.key() == Qt::Key_PageUp;
    scrolled_->verticalScrollBar()->triggerAction(back ? QScrollBar::SliderPageStepSub
                                                       : QScrollBar::SliderPageStepAdd);
    return true;
}

void showMessageBox(QWidget* parent, const std::string& text, const std::string& title,
                    ui::MessageIcon icon) {
    Box box(parent, title, text);
    box.setIcon(icon);
    box.buttons().setStandardButtons(QDialogButtonBox::Ok);
    box.exec();
}

bool showQuestionBox(QWidget* parent, const std::string& text, const std::string& title) {
    Box box(parent, title, text);
    box.setIcon(ui::MessageIcon::Question);
    box.buttons().setStandardButtons(QDialogButtonBox::Yes | QDialogButtonBox::No);
    box.mustBeAnswered();
    QPushButton* yes = box.buttons().button(QDialogButtonBox::Yes);
    yes->setDefault(true);
    yes->setFocus();
    const QPushButton* no = box.buttons().button(QDialogButtonBox::No);
    QObject::connect(no, &QPushButton::clicked, &box, [&box] { box.done(QDialog::Rejected); });
    return box.exec() == QDialog::Accepted;
}

std::string showInputBox(QWidget* parent, const std::string& prompt, const std::string& title,
                         const std::string& proposed) {
    Box box(parent, title, prompt);
    const QLineEdit& answer = box.addAnswer(proposed);
    box.buttons().setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    return box.exec() == QDialog::Accepted ? utf8(answer.text()) : std::string();
}

}  // namespace desktop
