// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/project_copies.h"

#include <utility>

#include "desktop/texts.h"
#include "project/frmBrenica.h"

namespace desktop {

ProjectCopies::ProjectCopies(FormLink& link, const QString& folder)
    : link_(link), folder_(folder), id_(CopyFolder::newId()) {
    disk_.setMaxThreadCount(1);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, [this] {
        if (link_.isBusy()) return startTimer(UntilTaken);  // under a box
        take();
    });
}

ProjectCopies::~ProjectCopies() {
    finish();
    if (form_ != nullptr) form_->ProjectStepTaken.Leave(this);
}

void ProjectCopies::follow(frmBrenica& form) {
    form_ = &form;
    form.ProjectStepTaken.Join(this,
                               [this](ProjectStep step, const std::string& path) { noteStep(step, path); });
    beginProject();
    lookForOffers();
}

void ProjectCopies::finish() {
    finished_ = true;
    timer_.stop();
    disk_.waitForDone();
}

void ProjectCopies::beforeCommand() {
    if (form_ != nullptr && !finished_ && form_->Revision() != revision_) take();
}

void ProjectCopies::afterAction() {
    if (form_ == nullptr || finished_) return;
    if (std::exchange(begins_, false)) beginProject();
    if (!std::exchange(saveTold_, true)) emit notCarriedChanged();
    if (file_ == FileState::BeingWritten) {  // no: the save could not begin
        file_ = FileState::Whole;
        take();
    }
    if (form_->Revision() != revision_) startTimer(UntilTaken);
}

/// Does not begin anew, so that a text is taken in time however fast the user goes on.
void ProjectCopies::startTimer(int milliseconds) {
    if (!finished_ && !timer_.isActive()) timer_.start(milliseconds);
}

bool ProjectCopies::isStored(const ProjectCopy& copy) const {
    return file_ == FileState::Whole && stored_ && copy.Text == stored_->Text &&
           copy.WithoutFunctions == stored_->WithoutFunctions && copy.lostBySaving() == stored_->Lost;
}

/// Told from within a command, which nothing here may disturb.
void ProjectCopies::noteStep(ProjectStep step, const std::string& path) try {
    switch (step) {
        case ProjectStep::Left: return leaveProject();
        case ProjectStep::Opened:
            path_ = QString::fromStdString(path);
            opened_ = true;
            return;
        case ProjectStep::Saving: return prepareSave();
        case ProjectStep::Saved: return noteSaved(path);
        case ProjectStep::Broken: file_ = FileState::Broken; return;
        case ProjectStep::GivenUp: return giveUpCopy();
    }
} catch (const std::exception& fault) {
    setWhyNotKept(QString::fromUtf8(fault.what()));
}

/// While the file is written the work is whole in the copy alone. A disk that hangs must not keep the file from being
/// tried.
void ProjectCopies::prepareSave() {
    if (file_ == FileState::Whole) file_ = FileState::BeingWritten;
    take();
    disk_.waitForDone(LongestWait);
}

/// What the file cannot carry stays in the copy.
void ProjectCopies::noteSaved(const std::string& path) {
    ProjectCopy copy = form_->TakeCopy();
    revision_ = form_->Revision();
    path_ = QString::fromStdString(path);
    file_ = FileState::Whole;
    stored_ = Stored{copy.Text, {}, false};
    isSaved_ = true;
    notCarried_.clear();
    for (const CellInWords& cell : form_->LostInWords(copy)) {
        notCarried_.append(
            {shownText(cell.Table), shownText(cell.Row), shownText(cell.Column), shownText(cell.Text)});
    }
    saveTold_ = false;
    const bool isWhole = isStored(copy);
    push({{}, [this, id = id_, file = path_, isWhole] { finishSave(id, file, isWhole); }});
    if (isWhole) isKept_ = false;  // that work takes it away
    keep(std::move(copy));
}

/// On the other thread: the copy must not go before the file is on the disk.
void ProjectCopies::finishSave(const QString& id, const QString& file, bool isWhole) {
    try {
        folder_.disk().sync(file);
    } catch (const DiskFault& fault) {
        const QString reason = QString::fromUtf8(fault.what());
        QMetaObject::invokeMethod(this, [this, id, file, reason] { noteNotOnDisk(id, file, reason); });
        return;
    }
    if (isWhole) folder_.remove(id);
}

void ProjectCopies::noteNotOnDisk(const QString& id, const QString& file, const QString& reason) {
    if (id == id_) {
        file_ = FileState::Broken;
        isSaved_ = false;
        keep(*taken_);
    } else {  // the user has begun another project meanwhile
        push({{}, [this, id] { folder_.release(id); }});
        lookForOffers();
    }
    emit saveNotOnDisk(file, reason);
}

/// Without a word at the next start where the user has decided so; but nobody decides to have nothing whole left.
void ProjectCopies::giveUpCopy() {
    if (!isKept_) return;
    const bool isOnlyOne = file_ == FileState::Broken;
    push({{}, [this, id = id_, isOnlyOne] { isOnlyOne ? folder_.release(id) : folder_.leave(id); }});
}

void ProjectCopies::leaveProject() {
    if (form_->Revision() != revision_) take();
    giveUpCopy();
    if (std::exchange(isKept_, false)) lookForOffers();
    id_ = CopyFolder::newId();
    path_.clear();
    file_ = FileState::Whole;
    isSaved_ = false;
    if (!notCarried_.isEmpty()) saveTold_ = false;
    notCarried_.clear();
    setWhyNotKept({});
    begins_ = true;
}

/// What the form holds now is what its file gives back, or a new project.
void ProjectCopies::beginProject() try {
    stored_.reset();
    taken_.reset();
    revision_ = form_->Revision();
    taken_ = std::make_shared<ProjectCopy>(form_->TakeCopy());
    stored_ = Stored{taken_->Text, taken_->lostBySaving(), taken_->WithoutFunctions};
} catch (const std::exception&) {
    // It differs, then.
}

/// The copy that was opened is this project's until a save.
void ProjectCopies::adopt(const QString& id, const CopyRecord& record) {
    begins_ = false;
    id_ = id;
    path_ = record.ProjectPath;
    stored_.reset();
    taken_.reset();
    take();
}

void ProjectCopies::take() try {
    revision_ = form_->Revision();
    ProjectCopy copy = form_->TakeCopy();
    const bool isNew = taken_ == nullptr || copy.Text != taken_->Text ||
                       copy.Uncarried != taken_->Uncarried ||
                       copy.WithoutFunctions != taken_->WithoutFunctions;
    if (isNew || !whyNotKept_.isEmpty() || isKept_ == isStored(copy)) keep(std::move(copy));
} catch (const std::exception& fault) {
    setWhyNotKept(QString::fromUtf8(fault.what()));
}

/// Has the copy written, or taken away where the file gives back all of it.
void ProjectCopies::keep(ProjectCopy copy) {
    if (isStored(copy)) {
        taken_ = std::make_shared<ProjectCopy>(std::move(copy));
        if (std::exchange(isKept_, false)) push({{}, [this, id = id_] { folder_.remove(id); }});
        return setWhyNotKept({});
    }
    isSaved_ = isSaved_ && stored_ && copy.Text == stored_->Text;
    isKept_ = true;
    taken_ = std::make_shared<ProjectCopy>(std::move(copy));
    CopyRecord record;
    record.ProjectPath = path_;
    record.Saved = isSaved_;
    push({id_, [this, id = id_, record, kept = taken_] {
              QString reason;
              try {
                  folder_.keep(id, record, *kept);
              } catch (const std::exception& fault) {
                  reason = QString::fromUtf8(fault.what());
              }
              QMetaObject::invokeMethod(this, [this, id, reason] {
                  if (id == id_ && isKept_) setWhyNotKept(reason);  // none may be wanted by now
              });
          }});
}

void ProjectCopies::setWhyNotKept(const QString& reason) {
    if (!reason.isEmpty()) startTimer(UntilRetried);
    if (std::exchange(whyNotKept_, reason) != reason) emit keepingChanged();
}

void ProjectCopies::push(Work work) {
    {
        const std::lock_guard guard(mutex_);
        const bool replaces =
            !waiting_.empty() && !work.KeptId.isEmpty() && waiting_.back().KeptId == work.KeptId;
        if (replaces) waiting_.pop_back();
        waiting_.push_back(std::move(work));
    }
    disk_.start([this] { doNext(); });
}

/// There may be less to do than there were calls. A failure that nobody waits for is met again at the next occasion.
void ProjectCopies::doNext() try {
    Work work;
    {
        const std::lock_guard guard(mutex_);
        if (waiting_.empty()) return;
        work = std::move(waiting_.front());
        waiting_.pop_front();
    }
    work.Do();
} catch (const std::exception&) {
}

void ProjectCopies::lookForOffers() {
    push({{}, [this] {
              const QList<CopyOffer> found = folder_.offers();
              QMetaObject::invokeMethod(this, [this, found] { setOffers(found); });
          }});
}

void ProjectCopies::setOffers(const QList<CopyOffer>& offers) {
    offers_ = offers;
    emit offersChanged();
}

bool ProjectCopies::open(const QString& id) {
    if (form_ == nullptr || finished_ || link_.isBusy()) return false;
    const auto found = folder_.claim(id);
    if (!found) return lookForOffers(), false;
    opened_ = false;
    link_.command([&] {
        form_->UserOpenFile(utf8(folder_.copyFile(id)));
        if (!opened_) return;
        form_->RestoreCopy(found->Copy, utf8(found->Record.ProjectPath));
        adopt(id, found->Record);
    });
    if (!opened_) folder_.release(id);
    lookForOffers();
    return opened_;
}

bool ProjectCopies::drop(const QString& id) {
    bool dropped = false;
    try {
        dropped = folder_.drop(id);
        if (dropped) offers_.removeIf([&](const CopyOffer& offer) { return offer.Id == id; });
    } catch (const DiskFault&) {
        // It stays on offer.
    }
    lookForOffers();
    return dropped;
}

}  // namespace desktop
