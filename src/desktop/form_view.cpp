// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/form_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <utility>

#include "desktop/accessible_role.h"
#include "desktop/menu_view.h"
#include "desktop/tab_strip_view.h"
#include "desktop/texts.h"
#include "desktop/view_factory.h"
#include "ui/grid.h"
#include "ui/timer.h"

namespace desktop {

namespace {

constexpr int UntilSettled = 250;  // milliseconds without a move of a window that is being dragged

Qt::WindowFlags flagsOf(const ui::FormWindow& form) {
    return form.Border() == ui::FormBorder::None ? Qt::Window | Qt::FramelessWindowHint : Qt::Window;
}

/// What all kinds of controls have in common.
void followCommon(QWidget& widget, const ui::Control& control, const Scale& scale) {
    widget.setGeometry(scale.place(control));
    widget.setEnabled(control.Enabled());
    widget.setVisible(control.Visible());
    const std::string& tip = control.ToolTipText();
    widget.setToolTip(plainToolTip(tip.empty() ? control.Description() : tip));
    widget.setAccessibleName(shownText(control.AccessibleName()));
    if (!control.Description().empty()) widget.setAccessibleDescription(shownText(control.Description()));
}

bool isBox(const ui::Control& control) {
    return control.Kind() == ui::ControlKind::TextBox || control.Kind() == ui::ControlKind::ComboBox;
}

/// Nothing for a label that stands above a box or by itself.
template <class Controls>
const ui::Control* boxBeside(const ui::Control& label, const Controls& controls) {
    for (const ui::Control* control : controls) {
        if (!isBox(*control) || &control->Container() != &label.Container()) continue;
        const int middle = control->Top() + control->Height() / 2;
        if (label.Top() < middle && middle < label.Top() + label.Height()) return control;
    }
    return nullptr;
}

/// As the key for it does, which not every keyboard has.
void openContextMenu() {
    QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr) return;
    const QPoint place = focus->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, place, focus->mapToGlobal(place));
    QApplication::sendEvent(focus, &event);
}

}  // namespace

FormView::FormView(ui::FormWindow& form, FormLink& link)
    : QWidget(nullptr, flagsOf(form)),
      form_(form),
      link_(link),
      scroll_(new QScrollArea(this)),
      contents_(new QWidget) {
    setObjectName(shownText(form.Name()));
    announceAs(*this, QAccessible::Window);
    setAttribute(Qt::WA_KeyboardFocusChange);  // styles then show the focus after a click, too
    contents_->setFocusPolicy(Qt::NoFocus);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setWidget(contents_);
    for (ui::Control* control : form.Controls()) addView(*control);
    startTimers();
    addKeys();
    settled_.setSingleShot(true);
    settled_.setInterval(UntilSettled);
    connect(&settled_, &QTimer::timeout, this, [this] { tellSize(); });
    form.TakeChanged();
    levelLabels();
    followWindow();
}

void FormView::addView(ui::Control& control) {
    if (control.Kind() == ui::ControlKind::MenuItem) {
        if (menu_ == nullptr) menu_ = new MenuView(link_, this);
        return menu_->add(static_cast<ui::MenuItem&>(control));
    }
    const bool inForm = control.Container().Kind() == ui::ControlKind::Form;
    QWidget* parent = inForm ? contents_ : &views_.at(&control.Container())->widget();
    View* view = makeView(control, link_, parent);
    views_[&control] = view;
    view->widget().setObjectName(shownText(control.Name()));
    followControl(control);
    const ui::Control* label = form_.LabelOf(control);
    if (label == nullptr || label->AccessKey() == 0) return;
    static_cast<QLabel&>(views_.at(label)->widget()).setBuddy(&view->widget());
}

void FormView::startTimers() {
    for (ui::Timer* timer : form_.Timers()) {
        auto* ticking = new QTimer(this);
        connect(ticking, &QTimer::timeout, this, [this, timer] { link_.run([timer] { timer->Elapse(); }); });
        if (timer->Enabled) ticking->start(timer->Interval);
        timers_.append(ticking);
    }
}

void FormView::retire() {
    for (QTimer* timer : timers_) timer->stop();
    settled_.stop();
    hide();
}

/// The keys that turn pages wherever the focus is, those of the outermost strip on view and of the innermost, and the
/// keys of the menus.
void FormView::addKeys() {
    const auto add = [this](const QKeySequence& keys, const std::function<void()>& action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    add(Qt::CTRL | Qt::Key_PageDown, [this] { turnPage(false, 1); });
    add(Qt::CTRL | Qt::Key_PageUp, [this] { turnPage(false, -1); });
    add(Qt::CTRL | Qt::Key_Tab, [this] { turnPage(true, 1); });
    add(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, [this] { turnPage(true, -1); });
    if (menu_ != nullptr) add(Qt::Key_F10, [this] { menu_->setActiveAction(menu_->actions().first()); });
    add(Qt::SHIFT | Qt::Key_F10, openContextMenu);
}

void FormView::turnPage(bool innermost, int by) {
    QList<TabStripView*> shown;  // a strip comes before those that stand in it
    for (const ui::Control* control : form_.Controls()) {
        if (control->Kind() != ui::ControlKind::TabStrip) continue;
        auto* strip = static_cast<TabStripView*>(&views_.at(control)->widget());
        if (strip->isVisible()) shown.append(strip);
    }
    if (shown.isEmpty()) return;
    TabStripView& strip = innermost ? *shown.last() : *shown.first();
    const QPointer<QWidget> focused = focusWidget();
    strip.step(by, &strip != shown.first());  // the pages have a first and a last
    // What has gone with its page would leave the focus to whatever comes next.
    if (focused != nullptr && !focused->isVisible()) strip.setFocus(Qt::ShortcutFocusReason);
}

View* FormView::viewOf(const ui::Control& control) const {
    const auto found = views_.find(&control);
    return found == views_.end() ? nullptr : found->second;
}

void FormView::followControl(ui::Control& control) {
    if (control.Kind() == ui::ControlKind::MenuItem)
        return menu_->follow(static_cast<const ui::MenuItem&>(control));
    View& view = *views_.at(&control);
    followCommon(view.widget(), control, link_.scale());
    view.follow();
}

void FormView::follow() {
    bool labelsMayHaveMoved = false;
    for (ui::Control* control : form_.TakeChanged()) {
        if (control == &form_) {
            followWindow();
        } else {
            followControl(*control);
        }
        labelsMayHaveMoved |= control->Kind() == ui::ControlKind::Label || isBox(*control);
    }
    if (labelsMayHaveMoved) levelLabels();
    keepFocusOnOpenEditor();
}

/// The text of a label that stands beside a box gets the height of the box's text, whatever the style puts around that.
void FormView::levelLabels() {
    for (const ui::Control* control : form_.Controls()) {
        if (control->Kind() != ui::ControlKind::Label) continue;
        const ui::Control* box = boxBeside(*control, form_.Controls());
        if (box == nullptr) continue;
        QWidget& label = views_.at(control)->widget();
        const QRect beside = link_.scale().place(*box);
        label.move(label.x(), beside.top() + (beside.height() - label.fontMetrics().height() + 1) / 2);
    }
}

/// An editor that refuses to close keeps the keys, wherever the user has clicked.
void FormView::keepFocusOnOpenEditor() {
    if (form_.EditingGrid() == nullptr) return;
    QWidget& grid = views_.at(form_.EditingGrid())->widget();
    const QWidget* focused = focusWidget();
    if (focused == nullptr || (focused != &grid && !grid.isAncestorOf(focused))) grid.setFocus();
}

void FormView::followWindow() {
    setWindowTitle(shownText(form_.Caption()));
    if (open_ && form_.WindowState() == ui::WindowState::Normal) takeFormsGeometry();
}

void FormView::open() {
    applying_ = true;
    setGeometry(wantedGeometry());
    open_ = true;
    if (form_.WindowState() == ui::WindowState::Maximized) {
        showMaximized();
    } else {
        if (form_.Border() == ui::FormBorder::None) {
            move(screen()->availableGeometry().center() - rect().center());
        }
        show();
    }
    applying_ = false;
    arrangeContents();
    tellSize();
}

/// What the form's size counts beside the window's own area.
QSize FormView::borderOfForm() const {
    if (form_.Border() == ui::FormBorder::None) return {0, 0};
    return {ui::FormWindow::BorderWidth, ui::FormWindow::BorderHeight};
}

QMenuBar* FormView::menuBar() const { return menu_; }

int FormView::menuHeight() const { return menu_ != nullptr ? menu_->sizeHint().height() : 0; }

int FormView::edgeHeight(int width) const {
    return edge_ == nullptr || edge_->isHidden() ? 0 : edge_->heightForWidth(width);
}

QRect FormView::wantedGeometry() const {
    const Scale& scale = link_.scale();
    const QSize border = borderOfForm();
    const QRect frame = frameGeometry();
    const int width = scale.pixels(form_.Width() - border.width());
    return {scale.pixels(form_.Left()) + geometry().left() - frame.left(),
            scale.pixels(form_.Top()) + geometry().top() - frame.top(), width,
            scale.pixels(form_.Height() - border.height()) + menuHeight() + edgeHeight(width)};
}

void FormView::placeAtEdge(QWidget& widget) {
    edge_ = &widget;
    edge_->setParent(this);
    followEdge();
}

void FormView::followEdge() {
    if (edgeHeight(width()) == edgeHeight_) return;
    arrangeContents();
    if (!open_) return;
    if (form_.WindowState() != ui::WindowState::Normal) return tellSize();
    askedFrom_.reset();
    takeFormsGeometry();
}

/// Asks once: a window manager that puts the window back where it was is left alone.
void FormView::takeFormsGeometry() {
    if (isMaximized() || isMinimized() || isFullScreen()) return;
    const QRect wanted = wantedGeometry();
    if (wanted == geometry() || askedFrom_ == geometry()) return;
    askedFrom_ = geometry();
    applying_ = true;
    setGeometry(wanted);
    applying_ = false;
    arrangeContents();
    settled_.start();  // to see whether it stayed there
}

void FormView::arrangeContents() {
    const int top = menuHeight();
    edgeHeight_ = edgeHeight(width());
    if (menu_ != nullptr) menu_->setGeometry(0, 0, width(), top);
    if (edgeHeight_ > 0) edge_->setGeometry(0, height() - edgeHeight_, width(), edgeHeight_);
    scroll_->setGeometry(0, top, width(), height() - top - edgeHeight_);
    contents_->resize(sizeOfContents(scroll_->size()));
}

/// The room that there is, or the least that the form has room in: on a small screen the rest is scrolled to.
QSize FormView::sizeOfContents(QSize room) const {
    const QSize border = borderOfForm();
    const QSize least(link_.scale().pixels(form_.LeastSize.Width - border.width()),
                      link_.scale().pixels(form_.LeastSize.Height - border.height()));
    const bool isTooWide = least.width() > room.width();
    const bool isTooHigh = least.height() > room.height();
    // What a bar of one direction takes is no reason for one of the other.
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (isTooWide && !isTooHigh) return {least.width(), room.height() - bar};
    if (isTooHigh && !isTooWide) return {room.width() - bar, least.height()};
    return room.expandedTo(least);
}

void FormView::tellSize() {
    if (!open_) return;
    if (link_.isBusy()) return settled_.start();  // under a box: once it has been answered
    arrangeContents();
    const Scale& scale = link_.scale();
    const QSize border = borderOfForm();
    const auto state = isMinimized()                     ? ui::WindowState::Minimized
                       : isMaximized() || isFullScreen() ? ui::WindowState::Maximized
                                                         : ui::WindowState::Normal;
    const QPoint place = frameGeometry().topLeft();
    const QRect size(scale.twipsWithin(place.x()), scale.twipsWithin(place.y()),
                     scale.twipsWithin(contents_->width()) + border.width(),
                     scale.twipsWithin(contents_->height()) + border.height());
    const QRect shown = geometry();
    // A strip at the edge of a normal window makes no other size of the form.
    if (const auto now = std::pair(state, size); std::exchange(told_, now) != now) {
        link_.run([&] { form_.UserResize(state, size.x(), size.y(), size.width(), size.height()); });
    }
    if (state != ui::WindowState::Normal) return;
    if (wantedGeometry() == shown) askedFrom_.reset();
    takeFormsGeometry();
    // A form that is larger than a window manager lets its window be is scrolled.
    const QSize laidOut(scale.pixels(form_.Width() - border.width()),
                        scale.pixels(form_.Height() - border.height()));
    contents_->resize(contents_->size().expandedTo(laidOut));
}

void FormView::resizeEvent(QResizeEvent*) {
    arrangeContents();
    if (!open_ || applying_) return;
    if (isMaximized() || isFullScreen()) return tellSize();
    settled_.start();
}

void FormView::moveEvent(QMoveEvent*) {
    if (open_ && !applying_ && !isMaximized() && !isMinimized()) settled_.start();
}

void FormView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || !open_ || applying_) return;
    askedFrom_.reset();
    if (isMinimized()) return tellSize();
    settled_.start();
}

void FormView::closeEvent(QCloseEvent* event) {
    event->ignore();  // the form's end closes the window
    link_.command([this] { form_.UserClose(); });
}

void FormView::keyPressEvent(QKeyEvent* event) {
    event->accept();
    link_.run([this] { form_.UserKeyPress(); });
}

void FormView::mousePressEvent(QMouseEvent*) {
    link_.run([this] { form_.UserClick(); });
}

}  // namespace desktop
