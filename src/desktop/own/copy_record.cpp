// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/copy_record.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace desktop {

namespace {

// The keys of the file.
constexpr const char* Project = "projectPath";
constexpr const char* Time = "time";
constexpr const char* Process = "process";
constexpr const char* Left = "left";
constexpr const char* Saved = "saved";
constexpr const char* Now = "copy";
constexpr const char* Before = "before";
constexpr const char* Length = "length";
constexpr const char* Hash = "sha256";
constexpr const char* Species = "speciesCount";
constexpr const char* WithoutFunctions = "withoutFunctions";
constexpr const char* Cells = "cells";  // of each: grid, row, column, text, whether saving loses it

QByteArray hashOf(const QByteArray& text) {
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
}

QJsonObject toObject(const CopyContent& content) {
    QJsonArray cells;
    for (const UncarriedCell& cell : content.Rest.Uncarried) {
        cells.append(QJsonArray{QString::fromStdString(cell.Grid), cell.Row, cell.Column,
                                QString::fromStdString(cell.Text), cell.LostBySaving});
    }
    return {{Length, content.Length},
            {Hash, QString::fromLatin1(content.Hash)},
            {Species, content.Rest.Species},
            {WithoutFunctions, content.Rest.WithoutFunctions},
            {Cells, cells}};
}

std::optional<CopyContent> toContent(const QJsonValue& value) {
    const QJsonObject object = value.toObject();
    if (!object[Length].isDouble() || !object[Hash].isString() || !object[Cells].isArray())
        return std::nullopt;
    CopyContent content;
    content.Length = object[Length].toInteger();
    content.Hash = object[Hash].toString().toLatin1();
    content.Rest.Species = object[Species].toInt();
    content.Rest.WithoutFunctions = object[WithoutFunctions].toBool();
    for (const QJsonValue& entry : object[Cells].toArray()) {
        const QJsonArray cell = entry.toArray();
        if (cell.size() != 5 || !cell[0].isString() || !cell[3].isString()) return std::nullopt;
        content.Rest.Uncarried.push_back({cell[0].toString().toStdString(), cell[1].toInt(), cell[2].toInt(),
                                          cell[3].toString().toStdString(), cell[4].toBool()});
    }
    return content;
}

}  // namespace

bool CopyContent::matches(const QByteArray& text) const {
    return text.size() == Length && hashOf(text) == Hash;
}

CopyContent contentFor(const ProjectCopy& copy) {
    const auto length = static_cast<qsizetype>(copy.Text.size());
    return {length,
            hashOf(QByteArray::fromRawData(copy.Text.data(), length)),
            {{}, copy.Uncarried, copy.WithoutFunctions, copy.Species}};
}

const CopyContent* CopyRecord::contentOf(const QByteArray& text) const {
    if (Now.matches(text)) return &Now;
    return Before && Before->matches(text) ? &*Before : nullptr;
}

QByteArray CopyRecord::toJson() const {
    QJsonObject object{{Project, ProjectPath},      {desktop::Time, Time.toUTC().toString(Qt::ISODateWithMs)},
                       {desktop::Process, Process}, {desktop::Left, Left},
                       {desktop::Saved, Saved},     {desktop::Now, toObject(Now)}};
    if (Before) object.insert(desktop::Before, toObject(*Before));
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<CopyRecord> CopyRecord::fromJson(const QByteArray& json) {
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const auto now = toContent(object[desktop::Now]);
    const QDateTime time = QDateTime::fromString(object[desktop::Time].toString(), Qt::ISODateWithMs);
    if (!now || !time.isValid()) return std::nullopt;
    CopyRecord record;
    record.ProjectPath = object[Project].toString();
    record.Time = time.toLocalTime();
    record.Process = object[desktop::Process].toInteger();
    record.Left = object[desktop::Left].toBool();
    record.Saved = object[desktop::Saved].toBool();
    record.Now = *now;
    record.Before = toContent(object[desktop::Before]);
    return record;
}

}  // namespace desktop
