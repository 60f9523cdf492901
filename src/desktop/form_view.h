// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>
#include <QTimer>
#include <QWidget>
#include <optional>
#include <unordered_map>

#include "desktop/view.h"
#include "ui/form_window.h"

class QMenuBar;

namespace desktop {

class MenuView;

/// A form's window: a view for each of its controls, made from the form's list, and the window's own size and state.
class FormView : public QWidget {
public:
    FormView(ui::FormWindow& form, FormLink& link);

    /// Shows the window as large as the form says and in the state that it says.
    void open();
    /// Lets the views of all changed controls follow.
    void follow();
    /// Takes the window away for good, with its timers. It stays in memory, since the action that ended its form may
    /// have come from it.
    void retire();
    /// Nothing for a control of another form.
    View* viewOf(const ui::Control& control) const;
    /// Null for a form without a menu.
    QMenuBar* menuBar() const;
    /// Gives a widget that is no control a place at the lower edge, as high as it wants to be while it is not hidden. The
    /// form has what is left: a normal window grows by that height, in a maximised one the form's area shrinks.
    void placeAtEdge(QWidget& widget);
    /// To be called when the widget at the edge has come, gone, or wants another height.
    void followEdge();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void addView(ui::Control& control);
    void startTimers();
    void followControl(ui::Control& control);
    void levelLabels();
    void followWindow();
    void keepFocusOnOpenEditor();
    void arrangeContents();
    void addKeys();
    void turnPage(bool innermost, int by);
    QSize borderOfForm() const;
    int menuHeight() const;
    int edgeHeight(int width) const;
    QSize sizeOfContents(QSize room) const;
    QRect wantedGeometry() const;
    void takeFormsGeometry();
    void tellSize();

    ui::FormWindow& form_;
    FormLink& link_;
    MenuView* menu_ = nullptr;
    QWidget* edge_ = nullptr;
    int edgeHeight_ = 0;  // as last arranged
    QScrollArea* scroll_;
    QWidget* contents_;
    std::unordered_map<const ui::Control*, View*> views_;
    QList<QTimer*> timers_;
    QTimer settled_;
    /// State, place and size as the form was last told.
    std::optional<std::pair<ui::WindowState, QRect>> told_;
    /// Where the window stood when it was last asked to go where the form wants it, to ask a window manager only once.
    std::optional<QRect> askedFrom_;
    bool open_ = false;
    bool applying_ = false;
};

}  // namespace desktop
