// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <exception>
#include <memory>

#include "desktop/form_view.h"
#include "desktop/own/project_copies.h"
#include "desktop/own/spent_keys.h"
#include "desktop/own/window_grids.h"
#include "desktop/own/window_report.h"
#include "desktop/own/window_strip.h"
#include "desktop/qt_platform.h"
#include "desktop/scaled_link.h"
#include "project/modStartup.h"

namespace desktop {

/// The running program with its windows: one for each form, from the form's beginning to its end.
class Desktop : public FormLink, public Windows {
public:
    Desktop();

    /// Starts the program and opens its first window; the rest happens in the event loop, which it ends. A file is opened
    /// once the main window is there.
    void start(const QString& file = {});

    void run(const std::function<void()>& action) override;
    void command(const std::function<void()>& action) override;
    bool isBusy() const override { return busy_; }
    const Scale& scale() const override { return scale_; }

    void followForms() override;
    QWidget* ownerOfBoxes() override;
    void handlePendingEvents() override;

    /// Project > Open with this file, the save question included.
    void openFile(const QString& path);
    /// Shows what went wrong in one box and ends the program.
    void fail(const std::exception_ptr& failure);

    QPixmap pictureOf(const ui::Chart& chart) override;

    Program& program() { return program_; }
    ProjectCopies& copies() { return copies_; }
    WindowReport& report() { return *report_; }
    /// The main form's window; null until the splash has handed over.
    FormView* mainWindow() const { return mainWindow_.get(); }

private:
    void follow(std::unique_ptr<FormView>& window, ui::FormWindow* form, FormLink& link);
    FormLink& linkOfSplash();
    void keepCopies();
    void followStrip(bool programEnds);
    void furnishMainWindow();
    void openWaitingFile();
    void end(int exitCode);

    Scale scale_;
    QtPlatform platform_;
    Program program_;
    ProjectCopies copies_;
    bool copiesFollow_ = false;
    std::unique_ptr<ScaledLink> splashLink_;
    std::unique_ptr<FormView> splash_;
    std::unique_ptr<FormView> mainWindow_;
    SpentKeys spentKeys_{*qApp};
    std::unique_ptr<WindowStrip> strip_;  // from the main window's beginning on
    std::unique_ptr<WindowGrids> grids_;  // just so
    std::unique_ptr<WindowReport> report_;
    QString waitingFile_;  // until the splash has handed over
    bool busy_ = false;
    bool ended_ = false;
};

}  // namespace desktop
