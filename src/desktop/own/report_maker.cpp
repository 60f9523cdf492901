// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/report_maker.h"

#include <exception>
#include <utility>

#include "insight/cores.h"
#include "selection/margin_answers.h"

namespace desktop {

void ReportMaker::start(Order order) {
    drop();
    work_ = std::make_shared<Work>(std::move(order));
    pool_.start([this, work = work_] { run(work); });
}

void ReportMaker::hurry() {
    if (work_ != nullptr) work_->Stop = true;
}

void ReportMaker::drop() {
    hurry();
    work_.reset();
}

void ReportMaker::end() {
    drop();
    pool_.waitForDone();
}

/// On the window's thread, unless the work was dropped meanwhile.
template <class Told>
void ReportMaker::tell(const std::shared_ptr<Work>& work, Told told) {
    QMetaObject::invokeMethod(
        this,
        [this, work, told = std::move(told)] {
            if (work == work_) told();
        },
        Qt::QueuedConnection);
}

/// On the other thread. Work may be faster than a window that is busy, which is then told the newest.
void ReportMaker::tellProgress(const std::shared_ptr<Work>& work, const std::string& words) {
    {
        const std::lock_guard lock(work->Telling);
        const std::string before = std::exchange(work->Progress, words);
        if (!before.empty()) return;  // those who wait find the new words
    }
    tell(work, [this, told = work.get()] {
        std::unique_lock lock(told->Telling);
        const std::string newest = std::exchange(told->Progress, {});
        lock.unlock();
        if (!told->Stop) emit progressed(QString::fromStdString(newest));
    });
}

/// On the other thread.
void ReportMaker::run(const std::shared_ptr<Work>& work) try {
    const Order& order = work->Ordered;
    insight::ReportWork how = order.Origin.Limits;
    how.Threads = insight::coresOfMachine();
    how.Stop = &work->Stop;
    how.Progress = [&](const std::string& words) { tellProgress(work, words); };
    const insight::ReportFindings findings(order.Run, marginAnswers(order.Origin.Answers), how);
    tell(work, [this, page = QByteArray::fromStdString(reportPage(findings, order.Origin))] {
        work_.reset();
        emit made(page);
    });
} catch (const std::exception& fault) {
    tell(work, [this, reason = QString::fromUtf8(fault.what())] {
        work_.reset();
        emit failed(reason);
    });
}

}  // namespace desktop
