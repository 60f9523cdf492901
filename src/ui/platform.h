// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ui/numbers.h"

namespace ui {

class Chart;

enum class MessageIcon { None, Exclamation, Question };
enum class MousePointer { Default, Wait };

struct Font {
    std::string Name = "MS Sans Serif";
    int Size = 8;  // points
    bool Bold = false;

    bool operator==(const Font&) const = default;
};

/// Width and height in twips, twenty to the point.
struct Size {
    int Width = 0;
    int Height = 0;
};

enum class FileDialogKind { Open, Save };

/// What a file dialogue is shown with.
struct FileDialogRequest {
    FileDialogKind Kind = FileDialogKind::Open;
    std::string FileName;    // proposed name or path, may be empty
    std::string Filter;      // pairs of description and pattern, separated by "|"
    std::string DefaultExt;  // added to a name that has none
    std::string InitDir;     // where it opens; empty: where the dialogue itself chooses
    int Flags = 0;
};

/// All that only a desktop can give. Every box is modal: the call returns when it is answered.
class Platform {
public:
    virtual ~Platform() = default;

    virtual void showMessage(const std::string& text, const std::string& title, MessageIcon icon) = 0;
    /// Buttons Yes and No, Yes being the default; true for Yes.
    virtual bool askYesNo(const std::string& prompt, const std::string& title) = 0;
    /// The text that the user leaves in the box; empty when it is cancelled.
    virtual std::string askText(const std::string& prompt, const std::string& title,
                                const std::string& defaultAnswer) = 0;
    /// The path that the user chooses; nothing when the dialogue is cancelled.
    virtual std::optional<std::string> chooseFile(const FileDialogRequest& request) = 0;

    virtual void beep() = 0;
    /// Puts the picture of a chart on the clipboard.
    virtual void copyPicture(const Chart& chart) = 0;
    /// Writes the picture that is on the clipboard to a bitmap file. Raises a file error when it cannot.
    virtual void SavePicture(const std::string& path) = 0;

    /// Whether anything is drawn. Where nothing is, columns are not fitted to their texts.
    virtual bool drawsTexts() const { return true; }
    /// Width in twips.
    virtual int textWidth(std::string_view text, const Font& font) const = 0;
    virtual Size screenSize() const = 0;
    virtual void setMousePointer(MousePointer pointer) = 0;
    virtual void processPendingEvents() = 0;
    virtual std::string programFolder() const = 0;
    virtual DecimalSeparator decimalSeparator() const { return DecimalSeparator::Point; }
};

/// Title of a box that has none of its own.
inline constexpr const char* ApplicationTitle = "Brenica";

}  // namespace ui
