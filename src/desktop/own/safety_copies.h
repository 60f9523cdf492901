// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

namespace desktop {

/// A copy that an earlier run, or an earlier project of this one, has left and that no running program holds.
struct CopyOffer {
    QString Id;
    QString ProjectPath;  ///< of the file that it was opened from or saved to; empty where there is none
    QDateTime Time;       ///< when it was last written
    int Species = 0;
    /// Worth an announcement. Otherwise the user has left the work by New, Open or Exit and is only shown it in a list.
    bool Announced = true;
    /// The project was saved; the copy has what the file cannot carry.
    bool Saved = false;
    /// What lies there is not what was written: it is kept and cannot be opened. Time is then that of the file.
    bool Damaged = false;
    /// Damaged as well is what tells of its project.
    bool IsNameless = false;
    QString File;  ///< the copy itself, an ordinary project file unless it is damaged
};

/// A text that the last save could not carry, in words: table, row, column heading and the text.
struct LostText {
    QString Table;
    QString Row;
    QString Column;
    QString Text;
};

/// Keeps the work on the project in view safe, and offers what earlier runs have left. Lives on the window's thread;
/// files are written on another one. Nothing that fails here reaches the form.
class SafetyCopies : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// The copies that can be opened or dropped, the newest first. Looked up at the start, and after each project that
    /// is left; those of other running programs are never among them.
    virtual QList<CopyOffer> offers() const = 0;
    /// Opens the copy as Project > Open does, the save question included; then what the format cannot carry is put
    /// back and the project has its own path again. False where the user keeps the project in view, where another
    /// action runs, or where another program was faster; the offer is then gone from the list.
    virtual bool open(const QString& id) = 0;
    /// Removes the copy for good; false where another program was faster, or the disk refuses.
    virtual bool drop(const QString& id) = 0;
    /// Whether there is a copy of the work in view, or one is being written; false also where none is wanted, as the
    /// file has all.
    virtual bool keeps() const = 0;
    /// Why the work in view is not kept at present, as a sentence; empty while all is well.
    virtual QString whyNotKept() const = 0;
    /// What the last save of the project in view could not carry; empty when it carried all, and from the next project
    /// on. The copy is kept as long as there is such a text.
    virtual QList<LostText> notCarried() const = 0;

signals:
    void offersChanged();
    void keepingChanged();  ///< whyNotKept() differs from before
    /// A file was saved, but the disk has not taken it in; the copy stays.
    void saveNotOnDisk(const QString& path, const QString& reason);
    void notCarriedChanged();  ///< told after every save, also where the list is empty as before
};

}  // namespace desktop
