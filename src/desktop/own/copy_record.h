// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <optional>

#include "project/project_copy.h"

namespace desktop {

/// What was written to a copy's file at one time, and what that file cannot carry.
struct CopyContent {
    qint64 Length = 0;
    QByteArray Hash;   ///< SHA-256, in hexadecimal digits
    ProjectCopy Rest;  ///< without its text

    bool matches(const QByteArray& text) const;
};

/// What stands beside a copy. It is written first and tells of the copy before, too, so that it fits whichever of the
/// two lies there when the program is killed between the two writes.
struct CopyRecord {
    QString ProjectPath;  ///< empty for none
    QDateTime Time;
    qint64 Process = 0;
    bool Left = false;   ///< by New, Open, or Exit with No
    bool Saved = false;  ///< the project's file has all but what it cannot carry
    CopyContent Now;
    std::optional<CopyContent> Before;

    /// The content that the text is, of the two; null for neither.
    const CopyContent* contentOf(const QByteArray& text) const;

    QByteArray toJson() const;
    /// Nothing where it is damaged.
    static std::optional<CopyRecord> fromJson(const QByteArray& json);
};

CopyContent contentFor(const ProjectCopy& copy);

}  // namespace desktop
