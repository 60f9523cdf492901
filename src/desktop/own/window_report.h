// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <optional>

#include "desktop/own/report_maker.h"
#include "desktop/own/strip_lines.h"
#include "desktop/view.h"
#include "ui/platform.h"

class frmBrenica;

namespace desktop {

/// The report on the suite of one window. The project is read at once; the rest is done while the window is used, and
/// the strip tells how far it is. What has begun goes on whatever becomes of the project on view.
class WindowReport : public QObject {
public:
    /// All of them outlive it.
    WindowReport(FormLink& link, const frmBrenica& form, ui::Platform& platform, StripLines& lines);

    /// Asks for a file and begins, or says in a box why there can be no report.
    void make();
    /// Ends what is being made: at the end of the program.
    void end() { maker_.end(); }

    bool isMaking() const { return maker_.isMaking(); }

private:
    void begin();
    std::optional<ReportMaker::Order> takeProject();
    bool agreesToChanges();
    std::optional<QString> askForFile(const QString& proposed);
    void saveElsewhere();
    void save();
    void open();
    void drop();
    void hurry();
    void tell(const QString& text);
    void show(StripLine line);
    StripLine lineOfWork();
    StripLine lineOfHurry();
    StripLine lineOfFile();
    StripAction cancel();
    StripLine closable(StripLine line);

    FormLink& link_;
    const frmBrenica& form_;
    ui::Platform& platform_;
    StripLines& lines_;
    ReportMaker maker_;
    StripLine line_;   ///< what the strip tells of it
    QString project_;  ///< name of the one that is explained
    QString file_;     ///< of the page
    QByteArray page_;  ///< until it is saved
};

}  // namespace desktop
