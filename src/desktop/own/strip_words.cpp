// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/strip_words.h"

#include <QFileInfo>
#include <QLocale>
#include <QStringList>

#include "desktop/own/own_texts.h"
#include "desktop/own/own_words.h"
#include "desktop/texts.h"

namespace desktop::strip_words {

namespace {

constexpr int LongestName = 60;     // characters of a file's name
constexpr int LongestText = 30;     // of a cell's
constexpr int CellsByName = 2;      // in the strip itself
constexpr int CellsInDetails = 25;  // in its tip

using own_words::clause;
using own_words::said;
using own_words::shortened;

QString nameOf(const QString& path) { return shortened(QFileInfo(path).fileName(), LongestName); }

QString nameOf(const std::string& path) { return nameOf(shownText(path)); }

/// Of a copy without a project's file.
QString nameOfNone(const CopyOffer& offer) {
    return said(offer.IsNameless ? own_texts::NamelessCopy : own_texts::NewProject);
}

QString projectOf(const CopyOffer& offer) {
    return offer.ProjectPath.isEmpty() ? nameOfNone(offer) : nameOf(offer.ProjectPath);
}

QString reasonOf(const FailedCommand& failed) { return clause(shownText(failed.Reason)); }

QString cell(const LostText& lost) {
    const QString text = shortened(lost.Text.simplified(), LongestText);
    if (lost.Row.isEmpty()) return said(own_texts::Box).arg(lost.Table, text);
    return said(own_texts::Cell).arg(lost.Table, lost.Row, lost.Column, text);
}

QString cells(const QList<LostText>& lost, qsizetype byName, const QString& between) {
    QStringList parts;
    for (const LostText& one : lost.first(std::min(byName, lost.size()))) parts << cell(one);
    const QString named = parts.join(between);
    const qsizetype more = lost.size() - parts.size();
    return more == 0 ? named : said(own_texts::MoreCells).arg(named).arg(more);
}

QString openingFailure(const FailedCommand& failed) {
    const QString name = nameOf(failed.Path);
    const QString reason = reasonOf(failed);
    QStringList sentences;
    if (failed.ReadWhole) {
        sentences << said(own_texts::NotShownWhole).arg(name, reason);
    } else if (failed.Line > 0) {
        sentences << said(own_texts::NotReadFurther).arg(name).arg(failed.Line).arg(reason);
        if (failed.IsInView) sentences << said(own_texts::ReadSoFar);
    } else {
        sentences << said(own_texts::NotOpened).arg(name, reason);
        if (failed.IsInView) sentences << said(own_texts::WindowEmptied);
    }
    if (!failed.SavesTo.empty()) sentences << said(own_texts::SaveWouldReplace).arg(nameOf(failed.SavesTo));
    return sentences.join(' ');
}

}  // namespace

QString moment(const QDateTime& time, const QDateTime& now) {
    const QLocale english(QLocale::English);
    const QDateTime local = time.toLocalTime();
    const QString clock = english.toString(local.time(), "H:mm");
    const qint64 days = local.date().daysTo(now.toLocalTime().date());
    if (days == 0) return said(own_texts::Today).arg(clock);
    if (days == 1) return said(own_texts::Yesterday).arg(clock);
    return said(own_texts::OnDay).arg(english.toString(local.date(), own_texts::DayFormat), clock);
}

QString offer(const CopyOffer& offer, const QDateTime& now) {
    const QString when = moment(offer.Time, now);
    if (offer.Damaged) return said(own_texts::OfferOfDamaged).arg(projectOf(offer), when);
    const char* text = offer.Saved ? own_texts::OfferOfSaved : own_texts::Offer;
    return said(text).arg(projectOf(offer), when, QString::number(offer.Species));
}

QString dropped(const CopyOffer& offer, const QDateTime& now) {
    return said(own_texts::Dropped).arg(projectOf(offer), moment(offer.Time, now));
}

QString details(const CopyOffer& offer) {
    return said(own_texts::OfferDetails)
        .arg(offer.ProjectPath.isEmpty() ? nameOfNone(offer) : offer.ProjectPath, offer.File);
}

QString failure(const FailedCommand& failed, bool blocked) {
    const auto say = [&](const char* text) { return said(text).arg(nameOf(failed.Path), reasonOf(failed)); };
    switch (failed.What) {
        case FailedCommand::Kind::Save:
            if (failed.Path.empty()) return said(own_texts::SavedNowhere);
            return say(blocked && failed.Line > 0 ? own_texts::NotSavedWhole : own_texts::NotSaved);
        case FailedCommand::Kind::Open: return openingFailure(failed);
        case FailedCommand::Kind::ExportResults:
            return say(blocked && failed.Line > 0 ? own_texts::NotExportedWhole : own_texts::NotExported);
        case FailedCommand::Kind::ExportTable: return say(own_texts::NotExported);
        case FailedCommand::Kind::Import: return say(own_texts::NotImported);
    }
    return {};
}

QString notSelected(SelectionObstacle obstacle) {
    switch (obstacle) {
        case SelectionObstacle::NoSpecies: return said(own_texts::SpeciesFirst);
        case SelectionObstacle::NoStatus: return said(own_texts::StatusFirst);
        case SelectionObstacle::OldScores: return said(own_texts::ScoresFirst);
    }
    return {};
}

QString gap(const CellInWords& cell) {
    return said(own_texts::FirstGap).arg(shownText(cell.Table), shownText(cell.Row), shownText(cell.Column));
}

QString notKept(const QString& reason) { return said(own_texts::NotKept).arg(clause(reason)); }

QString notCarried(const QList<LostText>& cellsLost) {
    return said(own_texts::NotCarried)
        .arg(own_words::cells(cellsLost.size()), cells(cellsLost, CellsByName, "; "));
}

QString allCells(const QList<LostText>& cellsLost) { return cells(cellsLost, CellsInDetails, "\n"); }

}  // namespace desktop::strip_words
