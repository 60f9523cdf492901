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

/// Work may be faster than a window that is busy: what it has not shown yet is not followed by more.
void ReportMaker::tellProgress(const std::shared_ptr<Work>& work, const std::string& words) {
    if (work->Telling.exchange(true)) return;
    tell(work, [this, work = work.get(), words = QString::fromStdString(words)] {
        work->Telling = false;
        if (!work->Stop) emit progressed(words);
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
