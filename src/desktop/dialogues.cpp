// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/dialogues.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "desktop/texts.h"

namespace desktop {

namespace {

constexpr int WidestLine = 80;         // average characters, beyond which a line is hard to read
constexpr int TitleButtonsWidth = 20;  // average characters that a title bar has beside its text
// Flags of a file dialogue.
constexpr int AskBeforeOverwriting = 2;

/// What a box leaves to its text, so that it fits on the screen with all that stands around the text.
QSize mostTextSize(const QWidget& widget) { return widget.screen()->availableSize() * 6 / 10; }

/// "Description|pattern|Description|pattern" as Qt's list of filters.
QStringList filtersOf(const std::string& filter) {
    const QStringList fields = QString::fromStdString(filter).split('|');
    QStringList filters;
    for (int i = 0; i + 1 < fields.size(); i += 2) {
        const QString description = fields[i].section('(', 0, 0).trimmed();
        filters.append(QString("%1 (%2)").arg(description, QString(fields[i + 1]).replace(';', ' ')));
    }
    return filters;
}

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
    auto* scrolled = new QScrollArea(this);
    scrolled->setWidget(label);
    scrolled->setFrameShape(QFrame::NoFrame);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    scrolled->setMinimumSize((needed + QSize(bar, bar)).boundedTo(most));
    return scrolled;
}

void Box::setIcon(QStyle::StandardPixmap icon) {
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    icon_->setPixmap(style()->standardIcon(icon).pixmap(size, size));
    icon_->show();
}

QLineEdit& Box::addAnswer(const std::string& proposed) {
    auto* answer = new QLineEdit(QString::fromStdString(proposed), this);
    answer->setAccessibleName(accessibleDescription());
    column_->addSpacing(fontMetrics().height() / 2);
    column_->addWidget(answer);
    answer->selectAll();
    answer->setFocus();
    return *answer;
}

void showMessageBox(QWidget* parent, const std::string& text, const std::string& title,
                    ui::MessageIcon icon) {
    Box box(parent, title, text);
    if (icon == ui::MessageIcon::Exclamation) box.setIcon(QStyle::SP_MessageBoxWarning);
    if (icon == ui::MessageIcon::Question) box.setIcon(QStyle::SP_MessageBoxQuestion);
    box.buttons().setStandardButtons(QDialogButtonBox::Ok);
    box.exec();
}

bool showQuestionBox(QWidget* parent, const std::string& text, const std::string& title) {
    Box box(parent, title, text);
    box.setIcon(QStyle::SP_MessageBoxQuestion);
    box.buttons().setStandardButtons(QDialogButtonBox::Yes | QDialogButtonBox::No);
    QPushButton* yes = box.buttons().button(QDialogButtonBox::Yes);
    yes->setDefault(true);
    yes->setFocus();
    return box.exec() == QDialog::Accepted;
}

std::string showInputBox(QWidget* parent, const std::string& prompt, const std::string& title,
                         const std::string& proposed) {
    Box box(parent, title, prompt);
    const QLineEdit& answer = box.addAnswer(proposed);
    box.buttons().setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    return box.exec() == QDialog::Accepted ? utf8(answer.text()) : std::string();
}

std::optional<std::string> showFileDialogue(QWidget* parent, const ui::FileDialogRequest& request,
                                            QString& lastFolder) {
    QFileDialog dialogue(parent);
    const bool saves = request.Kind == ui::FileDialogKind::Save;
    dialogue.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogue.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialogue.setOption(QFileDialog::DontConfirmOverwrite, (request.Flags & AskBeforeOverwriting) == 0);
    dialogue.setNameFilters(filtersOf(request.Filter));
    QString extension = QString::fromStdString(request.DefaultExt);
    if (extension.startsWith('.')) extension.remove(0, 1);
    dialogue.setDefaultSuffix(extension);
    if (lastFolder.isEmpty()) {
        lastFolder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    }
    const QFileInfo proposed(QString::fromStdString(request.FileName));
    const QString wanted = QString::fromStdString(request.InitDir);
    const bool namesFolder = !request.FileName.empty() && proposed.isAbsolute();
    dialogue.setDirectory(namesFolder ? proposed.absolutePath() : wanted.isEmpty() ? lastFolder : wanted);
    if (!request.FileName.empty()) dialogue.selectFile(proposed.fileName());
    if (dialogue.exec() != QDialog::Accepted) return std::nullopt;
    const QString chosen = dialogue.selectedFiles().value(0);
    lastFolder = QFileInfo(chosen).absolutePath();
    return utf8(chosen);
}

}  // namespace desktop
