// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QPixmap>
#include <QString>
#include <functional>
#include <unordered_map>

#include "desktop/own/command_boxes.h"
#include "desktop/scale.h"
#include "ui/platform.h"

class QWidget;

namespace desktop {

/// What the platform asks of the program's windows.
class Windows {
public:
    virtual ~Windows() = default;
    /// Lets every view follow the form, as before a box that stays until it is answered.
    virtual void followForms() = 0;
    /// Shows what there is to show and lets events through that are waiting, actions of the user among them.
    virtual void handlePendingEvents() = 0;
    /// The window that a box belongs to; null while there is none.
    virtual QWidget* ownerOfBoxes() = 0;
    /// The chart as it is seen, in a resolution that prints.
    virtual QPixmap pictureOf(const ui::Chart& chart) = 0;
};

/// The platform of the desktop program.
class QtPlatform : public ui::Platform {
public:
    QtPlatform(const Scale& scale, Windows& windows) : scale_(scale), windows_(windows) {}

    void showMessage(const std::string& text, const std::string& title, ui::MessageIcon icon) override;
    bool askYesNo(const std::string& prompt, const std::string& title) override;
    std::string askText(const std::string& prompt, const std::string& title,
                        const std::string& defaultAnswer) override;
    std::optional<std::string> chooseFile(const ui::FileDialogRequest& request) override;
    void beep() override;
    void copyPicture(const ui::Chart& chart) override;
    void SavePicture(const std::string& path) override;
    int textWidth(std::string_view text, const ui::Font& font) const override;
    ui::Size screenSize() const override;
    /// Pointers are kept in a pile, so that a command within a command leaves the wait pointer on.
    void setMousePointer(ui::MousePointer pointer) override;
    void processPendingEvents() override;
    std::string programFolder() const override;
    ui::DecimalSeparator decimalSeparator() const override;

    /// The boxes that only tell, by command.
    CommandBoxes& boxes() { return boxes_; }

private:
    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };
    /// Tables are measured over and over, and their texts are mostly the same few.
    struct Widths {
        ui::Font Font;
        std::unordered_map<std::string, int, TextHash, std::equal_to<>> Known{};
    };

    Widths& widthsFor(const ui::Font& font) const;

    const Scale& scale_;
    Windows& windows_;
    CommandBoxes boxes_;
    mutable std::vector<Widths> widths_;
    QString lastFolder_;
};

}  // namespace desktop
