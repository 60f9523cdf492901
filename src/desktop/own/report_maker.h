// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QThreadPool>
#include <atomic>
#include <memory>
#include <mutex>
#include <string>

#include "insight/report/report.h"
#include "selection/selection_run.h"

namespace desktop {

/// Makes the report of a run on a thread of its own, from numbers alone. One at a time; what it has come to is told on the
/// thread that it lives on.
class ReportMaker : public QObject {
    Q_OBJECT

public:
    /// A run and where it comes from, taken over whole.
    struct Order {
        SelectionRun Run;
        insight::ReportOrigin Origin;
    };

    ReportMaker() { pool_.setMaxThreadCount(1); }
    /// Ends the work and waits for that, which is soon.
    ~ReportMaker() override { end(); }

    /// Begins with another report. One that is being made is dropped.
    void start(Order order);
    bool isMaking() const { return work_ != nullptr; }
    /// The page is then made of what is known by now; no more progress is told.
    void hurry();
    /// Nothing more is told of it.
    void drop();
    /// Drops it and waits until the other thread has ended.
    void end();

signals:
    void progressed(const QString& words);
    void made(const QByteArray& page);
    void failed(const QString& reason);

private:
    struct Work {
        Order Ordered;
        std::atomic<bool> Stop = false;
        std::mutex Telling;
        std::string Progress;  ///< that the window's thread has still to tell
    };

    void run(const std::shared_ptr<Work>& work);
    void tellProgress(const std::shared_ptr<Work>& work, const std::string& words);
    template <class Told>
    void tell(const std::shared_ptr<Work>& work, Told told);

    std::shared_ptr<Work> work_;  ///< that the result is waited for of
    QThreadPool pool_;
};

}  // namespace desktop
