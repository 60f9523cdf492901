// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/simple_views.h"

#include <QKeyEvent>
#include <QPainter>
#include <QShortcutEvent>

#include "desktop/accessible_role.h"
#include "desktop/colours.h"
#include "desktop/texts.h"

namespace desktop {

namespace {

Qt::Alignment alignmentOf(ui::CellAlign alignment) {
    switch (alignment) {
        case ui::CellAlign::CentreCentre: return Qt::AlignHCenter | Qt::AlignTop;
        case ui::CellAlign::RightCentre: return Qt::AlignRight | Qt::AlignTop;
        default: return Qt::AlignLeft | Qt::AlignTop;
    }
}

/// An access key clicks at once. Left to itself Qt clicks a moment later, when another command may have begun.
bool clickedByAccessKey(QAbstractButton& button, QEvent& event) {
    if (event.type() != QEvent::Shortcut || static_cast<QShortcutEvent&>(event).isAmbiguous()) return false;
    button.setFocus(Qt::ShortcutFocusReason);
    button.click();
    return true;
}

}  // namespace

LabelView::LabelView(ui::Label& label, FormLink& link, QWidget* parent) : QLabel(parent), label_(label) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(alignmentOf(label.Alignment));
    setFont(link.scale().font(label.TextFont));
    if (!label.ForeColor) return;
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, toColour(*label.ForeColor));
    setPalette(colours);
}

void LabelView::follow() {
    const bool hasAccessKey = label_.AccessKey() != 0;
    setText(hasAccessKey ? captionWithAccessKey(label_) : shownText(label_.Caption()));
}

/// Styles measure a title a little too narrow, by its ink: blanks keep its last letter whole.
void CaptionedFrameView::follow() { setTitle(captionWithAccessKey(frame_) + "  "); }

PictureView::PictureView(ui::Picture& picture, QWidget* parent)
    : QWidget(parent), renderer_(QString(":/pictures/%1.svg").arg(shownText(picture.Name()))) {}

void PictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    renderer_.render(&painter, rect());
}

CommandButtonView::CommandButtonView(ui::CommandButton& button, FormLink& link, QWidget* parent)
    : QPushButton(parent), button_(button) {
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this,
            [this, &link] { link.command([this] { button_.UserClick(); }); });
}

void CommandButtonView::follow() { setText(captionWithAccessKey(button_)); }

bool CommandButtonView::event(QEvent* event) {
    return clickedByAccessKey(*this, *event) || QPushButton::event(event);
}

void CommandButtonView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && !event->isAutoRepeat()) return click();
    QPushButton::keyPressEvent(event);
}

CheckBoxView::CheckBoxView(ui::CheckBox& box, FormLink& link, QWidget* parent)
    : QCheckBox(parent), box_(box) {
    connect(this, &QCheckBox::clicked, this, [this, &link] { link.command([this] { box_.UserClick(); }); });
}

bool CheckBoxView::event(QEvent* event) {
    return clickedByAccessKey(*this, *event) || QCheckBox::event(event);
}

void CheckBoxView::follow() {
    setText(captionWithAccessKey(box_));
    setChecked(box_.Value());
}

OptionButtonView::OptionButtonView(ui::OptionButton& button, FormLink& link, QWidget* parent)
    : QRadioButton(parent), button_(button), link_(link) {
    setAutoExclusive(false);  // the form keeps one of a group on
    announceAs(*this, QAccessible::RadioButton);
    connect(this, &QRadioButton::clicked, this, [this] { choose(); });
}

bool OptionButtonView::event(QEvent* event) {
    return clickedByAccessKey(*this, *event) || QRadioButton::event(event);
}

void OptionButtonView::follow() {
    setText(captionWithAccessKey(button_));
    setChecked(button_.Value());
}

void OptionButtonView::choose() {
    link_.command([this] { button_.UserClick(); });
}

void OptionButtonView::keyPressEvent(QKeyEvent* event) {
    const bool back = event->key() == Qt::Key_Left || event->key() == Qt::Key_Up;
    const bool on = event->key() == Qt::Key_Right || event->key() == Qt::Key_Down;
    if (!back && !on) return QRadioButton::keyPressEvent(event);
    OptionButtonView* next = neighbour(back ? -1 : 1);
    if (next == nullptr) return;
    next->setFocus(Qt::TabFocusReason);
    next->choose();
}

/// The elements of an array share a name before their index.
OptionButtonView* OptionButtonView::neighbour(int step) const {
    const auto groupOf = [](const OptionButtonView& view) {
        const std::string& name = view.button_.Name();
        return name.substr(0, name.find('('));
    };
    QList<OptionButtonView*> group;
    for (QObject* sibling : parentWidget()->children()) {
        auto* view = dynamic_cast<OptionButtonView*>(sibling);
        const bool reached = view != nullptr && view->isEnabled() && view->isVisibleTo(parentWidget());
        if (reached && groupOf(*view) == groupOf(*this)) group.append(view);
    }
    return group.value(group.indexOf(const_cast<OptionButtonView*>(this)) + step, nullptr);
}

}  // namespace desktop
