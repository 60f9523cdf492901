// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <string>
#include <utility>

#include "ui/platform.h"

class QWidget;

namespace desktop {

/// The boxes of the command that runs which only tell something. From the third on each says which one it is, and the
/// rest of them can be answered at once: their texts then go into a list, to be shown when the command has ended.
class CommandBoxes {
    struct Row {
        int Count = 0;
        bool RestIsAnswered = false;
        QStringList Texts{};
    };

public:
    /// A command, from its beginning on; another one may run within it.
    class Command {
    public:
        explicit Command(CommandBoxes& boxes) : boxes_(boxes), outer_(std::exchange(boxes.row_, {})) {}
        ~Command() { boxes_.row_ = std::move(outer_); }
        Command(const Command&) = delete;
        Command& operator=(const Command&) = delete;

    private:
        CommandBoxes& boxes_;
        Row outer_;
    };

    /// Takes the text of a box that was answered with others before; false where it has to be shown.
    bool takes(const std::string& text);
    void show(QWidget* owner, const std::string& text, const std::string& title, ui::MessageIcon icon);
    /// Shows what was taken since the command began, if anything was.
    void showTaken(QWidget* owner);

    static constexpr int FirstNumbered = 3;

private:
    Row row_;
};

}  // namespace desktop
