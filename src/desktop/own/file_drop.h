// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

class QDropEvent;
class QWidget;

namespace desktop {

class FormLink;

/// Lets one project file at a time be dropped anywhere on a window, which owns this. Other files are refused: opening
/// one would empty the form. So is any file while an action runs, as under a box.
class FileDrop : public QObject {
public:
    FileDrop(QWidget& window, const FormLink& link, std::function<void(const QString& path)> open);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The file that would be opened; empty where the drop is refused.
    QString offeredFile(const QDropEvent& event) const;

    const FormLink& link_;
    std::function<void(const QString&)> open_;
};

}  // namespace desktop
