// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/strip_lines.h"

#include <QTimer>
#include <algorithm>

#include "desktop/own/own_texts.h"
#include "desktop/own/strip_words.h"
#include "desktop/texts.h"

namespace desktop {

namespace {

const char* foldingText(qsizetype copies, bool unfolded) {
    if (copies == 1) return unfolded ? own_texts::HideCopy : own_texts::ShowCopy;
    return unfolded ? own_texts::HideCopies : own_texts::ShowCopies;
}

}  // namespace

StripLines::StripLines(Strip& strip, SafetyCopies& copies, FormWatch& watch)
    : strip_(strip), copies_(copies), watch_(watch) {
    connect(&copies_, &SafetyCopies::offersChanged, this, &StripLines::follow);
    connect(&copies_, &SafetyCopies::keepingChanged, this, [this] {
        closedReason_.clear();
        follow();
    });
    connect(&copies_, &SafetyCopies::notCarriedChanged, this, [this] {
        notCarriedClosed_ = false;
        follow();
    });
    connect(&copies_, &SafetyCopies::saveNotOnDisk, this, [this](const QString& path, const QString& reason) {
        watch_.note({FailedCommand::Kind::Save, utf8(path), 0, utf8(reason)});
        follow();
    });
    follow();
}

void StripLines::finishDrops() {
    const QStringList dropped = droppedOffers_.keys();
    for (const QString& id : dropped) finishDrop(id);
}

void StripLines::tellOfReport(std::optional<StripLine> line) {
    report_ = std::move(line);
    follow();
}

void StripLines::follow() {
    std::vector<StripLine> lines;
    addFailures(lines);
    addObstacles(lines);
    addKeeping(lines);
    if (report_) lines.push_back(*report_);
    addOffers(lines);
    saysNoCopies_ = saysNoCopies_ && lines.empty();
    if (saysNoCopies_)
        lines.push_back({own_texts::NoCopies, {}, StripTone::Note, {}, [this] { closeOthers(); }});
    strip_.show(std::move(lines));
}

void StripLines::enter() {
    const bool hidden = !strip_.isVisible();
    summoned_ = true;
    othersClosed_ = false;
    othersUnfolded_ = othersUnfolded_ || hidden;
    follow();
    if (hidden && !strip_.isVisible()) {
        saysNoCopies_ = true;
        follow();
    }
    strip_.enter();
}

/// What a failure means for the rest of the run.
QString StripLines::afterwards(const FailedCommand& failure) const {
    const QString kept = copies_.keeps() ? QString(own_texts::WorkIsKept) : QString();
    switch (failure.What) {
        case FailedCommand::Kind::Save:
            if (failure.Path.empty()) return {};
            return (watch_.savingIsBlocked() ? QString(own_texts::SavingBlocked) + ' ' : QString()) + kept;
        case FailedCommand::Kind::Open:
        case FailedCommand::Kind::ExportResults:
            return watch_.readingIsBlocked() ? own_texts::ReadingBlocked : QString();
        case FailedCommand::Kind::ExportTable:
        case FailedCommand::Kind::Import: return kept;
    }
    return {};
}

void StripLines::addFailures(std::vector<StripLine>& lines) {
    for (const FailedCommand& failure : watch_.failures()) {
        const bool saves = failure.What == FailedCommand::Kind::Save;
        const bool blocked = saves ? watch_.savingIsBlocked() : watch_.readingIsBlocked();
        const QString text = strip_words::failure(failure, blocked) + ' ' + afterwards(failure);
        lines.push_back(
            {text.trimmed(), shownText(failure.Path), StripTone::Warning, {}, [this, kind = failure.What] {
                 watch_.forget(kind);
                 follow();
             }});
    }
}

/// What is still to be done before there are scores or a suite.
void StripLines::addObstacles(std::vector<StripLine>& lines) {
    const auto add = [&](const QString& text, void (FormWatch::*forget)()) {
        lines.push_back({text, {}, StripTone::Note, {}, [this, forget] {
                             (watch_.*forget)();
                             follow();
                         }});
    };
    if (const auto obstacle = watch_.selectionObstacle())
        add(strip_words::notSelected(*obstacle), &FormWatch::forgetObstacle);
    if (const auto gap = watch_.gap()) add(strip_words::gap(*gap), &FormWatch::forgetGap);
}

void StripLines::addKeeping(std::vector<StripLine>& lines) {
    const QString reason = copies_.whyNotKept();
    if (!reason.isEmpty() && reason != closedReason_) {
        lines.push_back({strip_words::notKept(reason), {}, StripTone::Warning, {}, [this, reason] {
                             closedReason_ = reason;
                             follow();
                         }});
    }
    const QList<LostText> cells = copies_.notCarried();
    if (cells.isEmpty() || notCarriedClosed_) return;
    const QString kept = copies_.keeps() ? QString(own_texts::NotCarriedKept) : QString();
    const QString text = strip_words::notCarried(cells) + ' ' + kept;
    lines.push_back({text.trimmed(), strip_words::allCells(cells), StripTone::Warning, {}, [this] {
                         notCarriedClosed_ = true;
                         follow();
                     }});
}

/// Those that are announced come first, each in a line of its own or under a heading. The others are listed once
/// something has brought the copies up.
void StripLines::addOffers(std::vector<StripLine>& lines) {
    QList<CopyOffer> announced;
    QList<CopyOffer> others;
    for (const CopyOffer& offer : copies_.offers()) {
        const bool said = offer.Announced && !closedOffers_.contains(offer.Id);
        (said || droppedOffers_.contains(offer.Id) ? announced : others).append(offer);
    }
    const bool failed = !watch_.failures().empty();
    if (announced.size() == 1) {
        lines.push_back(lineOf(announced.first()));
    } else {
        addGroup(lines, announced, QString(own_texts::SeveralOffers).arg(announced.size()), offersUnfolded_,
                 [this, announced] { closeOffers(announced); });
    }
    if (othersClosed_ || (announced.isEmpty() && !failed && !summoned_)) return;
    addGroup(lines, others,
             others.size() == 1 ? QString(own_texts::OneOther)
                                : QString(own_texts::SeveralOthers).arg(others.size()),
             othersUnfolded_, [this] { closeOthers(); });
}

void StripLines::closeOffers(const QList<CopyOffer>& offers) {
    for (const CopyOffer& offer : offers) closedOffers_.insert(offer.Id);
    follow();
}

void StripLines::closeOthers() {
    summoned_ = false;
    saysNoCopies_ = false;
    othersClosed_ = true;
    follow();
}

void StripLines::addGroup(std::vector<StripLine>& lines, const QList<CopyOffer>& offers,
                          const QString& heading, bool& unfolded, const std::function<void()>& close) {
    if (offers.isEmpty()) return;
    const auto fold = [this, &unfolded] {
        unfolded = !unfolded;
        follow();
    };
    lines.push_back({heading, {}, StripTone::Offer, {{foldingText(offers.size(), unfolded), fold}}, close});
    if (!unfolded) return;
    for (const CopyOffer& offer : offers) {
        StripLine line = lineOf(offer);
        line.Close = nullptr;  // the heading closes them all
        line.Indented = true;
        lines.push_back(line);
    }
}

StripLine StripLines::lineOf(const CopyOffer& offer) {
    if (droppedOffers_.contains(offer.Id)) return lineOfDropped(offer);
    QString text = strip_words::offer(offer, QDateTime::currentDateTime());
    if (refusedDrops_.contains(offer.Id)) text = QString(own_texts::NotDropped).arg(text);
    std::vector<StripAction> actions;
    const bool canBeOpened = !offer.Damaged && !watch_.readingIsBlocked();
    if (canBeOpened) actions.push_back({own_texts::OpenIt, then(&StripLines::open, offer.Id)});
    actions.push_back({own_texts::DropIt, then(&StripLines::drop, offer.Id)});
    return {text, strip_words::details(offer), offer.Damaged ? StripTone::Warning : StripTone::Offer, actions,
            [this, offer] { closeOffers({offer}); }};
}

StripLine StripLines::lineOfDropped(const CopyOffer& offer) {
    const auto takeBack = [this, id = offer.Id] {
        droppedOffers_.remove(id);
        follow();
    };
    return {strip_words::dropped(offer, QDateTime::currentDateTime()),
            strip_words::details(offer),
            StripTone::Note,
            {{own_texts::TakeBack, takeBack}},
            then(&StripLines::finishDrop, offer.Id)};
}

std::function<void()> StripLines::then(void (StripLines::*deed)(const QString&), const QString& id) {
    return [this, deed, id] { (this->*deed)(id); };
}

void StripLines::open(const QString& id) {
    copies_.open(id);
    follow();
}

/// The copy itself goes when it can no longer be taken back.
void StripLines::drop(const QString& id) {
    const int number = ++drops_;
    droppedOffers_[id] = number;
    QTimer::singleShot(TimeToTakeBack, this, [this, id, number] {
        if (droppedOffers_.value(id) != number) return;
        if (stripIsInUse()) return drop(id);
        finishDrop(id);
    });
    follow();
}

bool StripLines::stripIsInUse() const {
    const QWidget* focused = strip_.window()->focusWidget();
    return strip_.underMouse() || (focused != nullptr && strip_.isAncestorOf(focused));
}

void StripLines::finishDrop(const QString& id) {
    if (!droppedOffers_.remove(id)) return;
    if (!copies_.drop(id)) refusedDrops_.insert(id);
    follow();
}

}  // namespace desktop
