// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/strip_row.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QToolButton>
#include <algorithm>

#include "desktop/accessible_role.h"
#include "desktop/own/own_texts.h"
#include "desktop/texts.h"

namespace desktop {

namespace {

struct Look {
    QStyle::StandardPixmap Picture;
    QColor Tint;
};

/// Colours are mixed into the window's own, so that they fit light and dark desktops.
constexpr double Tinting = 0.22;

Look lookOf(StripTone tone) {
    switch (tone) {
        case StripTone::Offer: return {QStyle::SP_MessageBoxInformation, QColor(0x2A, 0x7F, 0xD4)};
        case StripTone::Warning: return {QStyle::SP_MessageBoxWarning, QColor(0xE8, 0xA3, 0x00)};
        case StripTone::Note: break;
    }
    return {QStyle::SP_MessageBoxInformation, QColor(0x80, 0x80, 0x80)};
}

/// Shows the focus, which styles leave out on such buttons.
class StripButton : public QToolButton {
public:
    using QToolButton::QToolButton;

protected:
    void paintEvent(QPaintEvent* event) override {
        QToolButton::paintEvent(event);
        if (!hasFocus()) return;
        constexpr int Width = 2;
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Highlight), Width));
        painter.drawRect(rect().adjusted(Width / 2, Width / 2, -Width, -Width));
    }
};

QColor mixed(const QColor& base, const QColor& tint) {
    const auto mix = [](float one, float other) { return static_cast<float>(one + (other - one) * Tinting); };
    return QColor::fromRgbF(mix(base.redF(), tint.redF()), mix(base.greenF(), tint.greenF()),
                            mix(base.blueF(), tint.blueF()));
}

}  // namespace

StripRow::StripRow(StripLine line, QWidget* parent)
    : QWidget(parent), line_(std::move(line)), picture_(new QLabel(this)), text_(new QLabel(this)) {
    announceAs(*this, QAccessible::Notification);
    setAccessibleName(line_.Text);
    setAccessibleDescription(line_.Details);
    setToolTip(plainToolTip(utf8(line_.Details)));
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    showText();
    auto* row = new QHBoxLayout(this);
    const int gap = fontMetrics().height() / 3;
    row->setContentsMargins((line_.Indented ? 7 : 2) * gap, gap, gap, gap);
    row->setSpacing(2 * gap);
    row->addWidget(picture_);
    row->addWidget(text_, 1);
    for (std::size_t i = 0; i < line_.Actions.size(); ++i) {
        auto* button = new StripButton(this);
        button->setText(line_.Actions[i].Caption);
        addButton(button, [i](const StripLine& shown) { shown.Actions[i].Run(); });
    }
    if (line_.Close) {
        auto* button = new StripButton(this);
        button->setAutoRaise(true);
        button->setText(QChar(0x00D7));  // in the colour of texts, which icons do not follow
        button->setAccessibleName(own_texts::Close);
        button->setToolTip(own_texts::Close);
        addButton(button, [](const StripLine& shown) { shown.Close(); });
    }
    followPalette();
}

void StripRow::take(StripLine line) {
    line_ = std::move(line);
    showText();
    updateGeometry();  // at once, as the strip is about to ask for the height
}

/// Progress is seen, and read by whoever goes there, but not announced.
void StripRow::showText() {
    text_->setText(line_.Progress.isEmpty() ? line_.Text : line_.Text + ' ' + line_.Progress);
}

/// The line may be replaced by what its button does.
void StripRow::addButton(QToolButton* button, std::function<void(const StripLine&)> run) {
    button->setFocusPolicy(Qt::NoFocus);
    announceAs(*button, QAccessible::Button);
    connect(button, &QToolButton::clicked, this, [this, run = std::move(run)] {
        const StripLine shown = line_;
        run(shown);
    });
    layout()->addWidget(button);
    buttons_.push_back(button);
}

bool StripRow::shows(const StripLine& line) const {
    const auto sameCaption = [](const StripAction& one, const StripAction& other) {
        return one.Caption == other.Caption;
    };
    return line.Text == line_.Text && line.Details == line_.Details && line.Tone == line_.Tone &&
           line.Indented == line_.Indented &&
           std::equal(line.Actions.begin(), line.Actions.end(), line_.Actions.begin(), line_.Actions.end(),
                      sameCaption) &&
           static_cast<bool>(line.Close) == static_cast<bool>(line_.Close);
}

void StripRow::announce() {
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void StripRow::followPalette() {
    const int size = fontMetrics().height();
    picture_->setPixmap(style()->standardIcon(lookOf(line_.Tone).Picture).pixmap(size, size));
    update();
}

QColor StripRow::background() const {
    return mixed(palette().color(QPalette::Window), lookOf(line_.Tone).Tint);
}

void StripRow::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), background()); }

}  // namespace desktop
