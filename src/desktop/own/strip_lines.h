// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <optional>

#include "desktop/own/safety_copies.h"
#include "desktop/own/strip.h"
#include "project/form_watch.h"

namespace desktop {

/// What the strip says: what has failed in silence, and the copies that can be opened or dropped. A line goes when it
/// is no longer true or when it is closed; what is new is said again.
class StripLines : public QObject {
    Q_OBJECT

public:
    StripLines(Strip& strip, SafetyCopies& copies, FormWatch& watch);
    ~StripLines() override { finishDrops(); }

    /// What is to be said of a report, in place of what was said before; nothing for no line.
    void tellOfReport(std::optional<StripLine> line);
    /// Takes over what the watch has come to. To be called when it has looked.
    void follow();
    /// Carries out what was dropped and not taken back, as at the end of the program.
    void finishDrops();
    /// The key of the strip: leads into it, and out again, and lists the copies that nobody announced.
    void enter();

    /// Milliseconds in which a copy that was dropped can be taken back; they begin anew while the strip is in use.
    int TimeToTakeBack = 10000;

private:
    void addFailures(std::vector<StripLine>& lines);
    void addObstacles(std::vector<StripLine>& lines);
    void addKeeping(std::vector<StripLine>& lines);
    void addOffers(std::vector<StripLine>& lines);
    void addGroup(std::vector<StripLine>& lines, const QList<CopyOffer>& offers, const QString& heading,
                  bool& unfolded, const std::function<void()>& close);
    void closeOffers(const QList<CopyOffer>& offers);
    void closeOthers();
    StripLine lineOf(const CopyOffer& offer);
    StripLine lineOfDropped(const CopyOffer& offer);
    QString afterwards(const FailedCommand& failure) const;
    void open(const QString& id);
    void drop(const QString& id);
    void finishDrop(const QString& id);
    bool stripIsInUse() const;
    std::function<void()> then(void (StripLines::*deed)(const QString&), const QString& id);

    Strip& strip_;
    SafetyCopies& copies_;
    FormWatch& watch_;
    std::optional<StripLine> report_;
    QSet<QString> closedOffers_;         // listed from then on, as those that nobody announced
    QHash<QString, int> droppedOffers_;  // still there until their time is over; by the number of the drop
    int drops_ = 0;
    QSet<QString> refusedDrops_;
    QString closedReason_;  // why no copy is kept, as it was when that line was closed
    bool notCarriedClosed_ = false;
    bool offersUnfolded_ = false;
    bool othersUnfolded_ = false;
    bool othersClosed_ = false;
    bool summoned_ = false;  // by its key, so that copies are listed that nobody announced
    bool saysNoCopies_ = false;
};

}  // namespace desktop
