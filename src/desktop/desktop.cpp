// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktop.h"

#include <QApplication>
#include <QScreen>
#include <new>
#include <utility>

#include "desktop/chart_view.h"
#include "desktop/dialogues.h"
#include "desktop/own/file_drop.h"
#include "desktop/own/help_menu.h"
#include "desktop/own/insight_menu.h"
#include "desktop/texts.h"
#include "ui/errors.h"

namespace desktop {

namespace {

constexpr double PrintResolution = 3;  // of a chart that is copied or saved, in the screen's own
constexpr int SplashPercent = 70;      // of the screen, at the most
constexpr int ExitAfterFailure = 4;    // as brenica-batch ends after an unexpected error

/// Gives a flag a value for as long as it lives.
class Held {
public:
    Held(bool& flag, bool value) : flag_(flag), before_(std::exchange(flag, value)) {}
    ~Held() { flag_ = before_; }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

private:
    bool& flag_;
    bool before_;
};

std::string descriptionOf(const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const std::bad_alloc&) {
        return ui::describe(ui::ErrorNumber::OutOfMemory);
    } catch (const std::exception& told) {
        return told.what();
    } catch (...) {
        return ui::describe(ui::ErrorNumber::InvalidProcedureCall);
    }
}

}  // namespace

Desktop::Desktop()
    : scale_(QApplication::font()),
      platform_(scale_, *this),
      program_(platform_),
      copies_(*this, CopyFolder::usualPath()) {}

void Desktop::start(const QString& file) {
    waitingFile_ = file;
    run([this] { program_.Main(); });
}

/// The end of all exceptions. A failure ends the program, as the form has nothing to go on with.
void Desktop::run(const std::function<void()>& action) {
    if (ended_ || busy_) return;
    const CommandBoxes::Command boxes(platform_.boxes());
    try {
        const Held busy(busy_, true);
        action();
    } catch (...) {
        return fail(std::current_exception());
    }
    followForms();
    keepCopies();
    if (!program_.Ended()) followStrip(false);
    platform_.boxes().showTaken(ownerOfBoxes());
    if (program_.Ended() && !ended_) return end(0);
    openWaitingFile();
}

/// What an open cell editor holds is taken over first, as the action itself would do, so that it is kept as well.
void Desktop::command(const std::function<void()>& action) {
    if (ended_ || busy_) return;
    if (frmBrenica* form = program_.MainForm(); form != nullptr && form->EditingGrid() != nullptr) {
        run([form] { form->CommitOpenEditor(); });
        if (form->EditingGrid() != nullptr) return;
    }
    if (!ended_) copies_.beforeCommand();
    run(action);
}

void Desktop::keepCopies() {
    if (program_.MainForm() == nullptr) return;
    if (!std::exchange(copiesFollow_, true)) copies_.follow(*program_.MainForm());
    copies_.afterAction();
}

/// The last look is before the box of a failure, which names no file and does not say that the work is kept.
void Desktop::followStrip(bool programEnds) {
    if (mainWindow_ == nullptr) return;
    if (strip_ == nullptr) furnishMainWindow();
    strip_->look(programEnds);
    grids_->look();
}

/// What the window has beside the form.
void Desktop::furnishMainWindow() {
    strip_ = std::make_unique<WindowStrip>(*mainWindow_, *program_.MainForm(), program_.GetFiles(), copies_);
    grids_ = std::make_unique<WindowGrids>(*mainWindow_, *program_.MainForm());
    report_ = std::make_unique<WindowReport>(*this, *program_.MainForm(), platform_, strip_->lines());
    addMenu(*mainWindow_->menuBar(), insightMenu(*report_, *mainWindow_));
    addMenu(*mainWindow_->menuBar(),
            helpMenu({mainWindow_.get(), [this] { return program_.MainForm()->CurrentMainTab; },
                      [this](const QString& path) { openFile(path); }}));
    new FileDrop(*mainWindow_, *this, [this](const QString& path) { openFile(path); });
}

void Desktop::openFile(const QString& path) {
    command([this, &path] { program_.MainForm()->UserOpenFile(utf8(path)); });
}

void Desktop::openWaitingFile() {
    if (mainWindow_ == nullptr || !program_.Splash()->Unloaded() || waitingFile_.isEmpty()) return;
    openFile(std::exchange(waitingFile_, {}));
}

void Desktop::fail(const std::exception_ptr& failure) {
    if (std::exchange(ended_, true)) return;
    copies_.finish();  // what was taken is on the disk, however the box ends, and nothing more is taken
    followForms();
    followStrip(true);
    while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
    platform_.boxes().showTaken(ownerOfBoxes());
    showMessageBox(ownerOfBoxes(), descriptionOf(failure), ui::ApplicationTitle,
                   ui::MessageIcon::Exclamation);
    end(ExitAfterFailure);
}

/// The one place where other actions may begin within one.
void Desktop::handlePendingEvents() {
    const Held free(busy_, false);
    followForms();
    QApplication::processEvents();
}

void Desktop::end(int exitCode) {
    ended_ = true;
    if (strip_ != nullptr) strip_->lines().finishDrops();
    if (report_ != nullptr) report_->end();
    copies_.finish();
    for (FormView* window : {splash_.get(), mainWindow_.get()}) {
        if (window != nullptr) window->retire();
    }
    // Queued, since the loop may not have begun.
    QMetaObject::invokeMethod(
        qApp, [exitCode] { QApplication::exit(exitCode); }, Qt::QueuedConnection);
}

void Desktop::followForms() {
    follow(splash_, program_.Splash(), linkOfSplash());
    follow(mainWindow_, program_.MainForm(), *this);
}

/// However large the font is, the splash leaves the screen to be seen around it.
FormLink& Desktop::linkOfSplash() {
    const frmSplash* splash = program_.Splash();
    if (splashLink_ == nullptr && splash != nullptr) {
        const QSize most = QApplication::primaryScreen()->availableSize() * SplashPercent / 100;
        splashLink_ =
            std::make_unique<ScaledLink>(*this, scale_.within(most, {splash->Width(), splash->Height()}));
    }
    return splashLink_ != nullptr ? *splashLink_ : static_cast<FormLink&>(*this);
}

/// Opens a window for a form that has come into being, and hides that of a form that has ended: it may be the one that
/// the running user action came from.
void Desktop::follow(std::unique_ptr<FormView>& window, ui::FormWindow* form, FormLink& link) {
    if (form == nullptr) return;
    if (form->Unloaded()) {
        if (window != nullptr) window->retire();
    } else if (window == nullptr) {
        window = std::make_unique<FormView>(*form, link);
        window->open();
    } else {
        window->follow();
    }
}

QWidget* Desktop::ownerOfBoxes() {
    for (FormView* window : {mainWindow_.get(), splash_.get()}) {
        if (window != nullptr && window->isVisible()) return window;
    }
    return nullptr;
}

QPixmap Desktop::pictureOf(const ui::Chart& chart) {
    if (mainWindow_ == nullptr) return {};
    auto* view = dynamic_cast<ChartView*>(mainWindow_->viewOf(chart));
    return view != nullptr ? view->picture(PrintResolution) : QPixmap();
}

}  // namespace desktop
