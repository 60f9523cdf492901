// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSvgRenderer>

#include "desktop/view.h"
#include "ui/choice_buttons.h"
#include "ui/simple_controls.h"

namespace desktop {

class LabelView : public QLabel, public View {
public:
    LabelView(ui::Label& label, FormLink& link, QWidget* parent);
    QWidget& widget() override { return *this; }
    void follow() override;

private:
    ui::Label& label_;
};

/// A frame with a caption has a line around it, one without shows nothing of itself.
class FrameView : public QWidget, public View {
public:
    FrameView(QWidget* parent) : QWidget(parent) {}
    QWidget& widget() override { return *this; }
    void follow() override {}
};

class CaptionedFrameView : public QGroupBox, public View {
public:
    CaptionedFrameView(ui::Frame& frame, QWidget* parent) : QGroupBox(parent), frame_(frame) {}
    QWidget& widget() override { return *this; }
    void follow() override;

private:
    ui::Frame& frame_;
};

/// A picture of the program's resources, found by the control's name.
class PictureView : public QWidget, public View {
public:
    PictureView(ui::Picture& picture, QWidget* parent);
    QWidget& widget() override { return *this; }
    void follow() override { update(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSvgRenderer renderer_;
};

class CommandButtonView : public QPushButton, public View {
public:
    CommandButtonView(ui::CommandButton& button, FormLink& link, QWidget* parent);
    QWidget& widget() override { return *this; }
    void follow() override;

protected:
    bool event(QEvent* event) override;
    /// Enter clicks, as the blank does.
    void keyPressEvent(QKeyEvent* event) override;

private:
    ui::CommandButton& button_;
};

/// Whether it is on is the form's to say, so that a click changes nothing by itself.
class CheckBoxView : public QCheckBox, public View {
public:
    CheckBoxView(ui::CheckBox& box, FormLink& link, QWidget* parent);
    QWidget& widget() override { return *this; }
    void follow() override;

protected:
    bool event(QEvent* event) override;
    void nextCheckState() override {}

private:
    ui::CheckBox& box_;
};

class OptionButtonView : public QRadioButton, public View {
public:
    OptionButtonView(ui::OptionButton& button, FormLink& link, QWidget* parent);
    QWidget& widget() override { return *this; }
    void follow() override;

protected:
    bool event(QEvent* event) override;
    void nextCheckState() override {}
    /// The arrows choose the next button of the group.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void choose();
    OptionButtonView* neighbour(int step) const;

    ui::OptionButton& button_;
    FormLink& link_;
};

}  // namespace desktop
