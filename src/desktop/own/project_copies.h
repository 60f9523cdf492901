// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QThreadPool>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>

#include "desktop/own/copy_folder.h"
#include "desktop/own/safety_copies.h"
#include "desktop/view.h"

class frmBrenica;

namespace desktop {

/// The safety copies of a running program. The text of the project is taken on the window's thread, soon after an
/// action and before the next command; whatever touches the disk on a user's action waits for a thread of its own,
/// save that opening and dropping a copy wait for the disk, and a save for a while.
///
/// A copy is kept while the project differs from what its file gives back, and as long as a save has not made sure
/// that it does not: after a copy was opened, while a file is written, and after a save that failed half-way.
class ProjectCopies : public SafetyCopies {
    Q_OBJECT

public:
    ProjectCopies(FormLink& link, const QString& folder);
    ~ProjectCopies() override;

    /// Begins with the form of a new project. It outlives this.
    void follow(frmBrenica& form);
    /// Takes what has changed before a command begins, which may fail.
    void beforeCommand();
    void afterAction();
    /// Waits for everything that is to be written. Nothing is taken any more.
    void finish();

    QList<CopyOffer> offers() const override { return offers_; }
    bool open(const QString& id) override;
    bool drop(const QString& id) override;
    bool keeps() const override { return isKept_ && whyNotKept_.isEmpty(); }
    QString whyNotKept() const override { return whyNotKept_; }
    QList<LostText> notCarried() const override { return notCarried_; }

    /// For tests.
    CopyFolder& folder() { return folder_; }
    void waitForDisk() { disk_.waitForDone(); }
    static constexpr int UntilTaken = 1000;  // milliseconds from an action on
    static constexpr int UntilRetried = 10000;
    static constexpr int LongestWait = 2000;  // for the copy that a save begins with

private:
    /// What the project's file gives back.
    struct Stored {
        std::string Text;
        std::vector<UncarriedCell> Lost;
        bool WithoutFunctions = false;
    };
    enum class FileState {
        Whole,
        BeingWritten,
        Broken  ///< cut short, or not known to be on the disk: the work is whole in the copy alone
    };
    /// Something to be done on the other thread. Of two texts of one copy that wait in a row only the later is written.
    struct Work {
        QString KeptId;  ///< empty for other work
        std::function<void()> Do;
    };

    bool isStored(const ProjectCopy& copy) const;
    void noteStep(ProjectStep step, const std::string& path);
    void prepareSave();
    void noteSaved(const std::string& path);
    void finishSave(const QString& id, const QString& file, bool isWhole);
    void noteNotOnDisk(const QString& id, const QString& file, const QString& reason);
    void giveUpCopy();
    void leaveProject();
    void beginProject();
    void adopt(const QString& id, const CopyRecord& record);
    void take();
    void keep(ProjectCopy copy);
    void push(Work work);
    void doNext();
    void lookForOffers();
    void setOffers(const QList<CopyOffer>& offers);
    void setWhyNotKept(const QString& reason);
    void startTimer(int milliseconds);

    FormLink& link_;
    CopyFolder folder_;
    frmBrenica* form_ = nullptr;
    QTimer timer_;
    QThreadPool disk_;
    std::mutex mutex_;
    std::deque<Work> waiting_;

    QString id_;
    QString path_;                       ///< of the project in view
    std::optional<Stored> stored_;       ///< nothing where it is not known, so that the project differs
    FileState file_ = FileState::Whole;  ///< that of the project's file
    std::shared_ptr<const ProjectCopy> taken_;  ///< what was looked at last
    unsigned revision_ = 0;                     ///< of the form, when it was looked at last
    bool isKept_ = false;
    bool isSaved_ = false;  ///< the file lacks only what it cannot carry
    bool begins_ = false;   ///< the command that runs gives the form another project
    bool opened_ = false;   ///< it has read a file
    bool saveTold_ = true;
    bool finished_ = false;

    QList<CopyOffer> offers_;
    QString whyNotKept_;
    QList<LostText> notCarried_;
};

}  // namespace desktop
