// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/platform.h"

/// A box that was shown, and how it was answered.
struct ShownBox {
    enum class Kind { Message, Question, Input };
    Kind BoxKind;
    std::string Title;
    std::string Text;
    std::string Answer{};  ///< of a question, "yes" or "no", and of an input
    ui::MessageIcon Icon = ui::MessageIcon::None;
};

/// A platform without a desktop. Boxes are answered from a list and kept in a transcript, in order; when the list is
/// used up every input box takes its default and every question Yes, or No where it does not agree.
class ScriptedPlatform : public ui::Platform {
public:
    /// Answers to questions ("no" in any case is No, all else Yes) and input boxes, in one order.
    std::deque<std::string> Answers;
    bool Agrees = true;
    /// Paths for the file dialogues, in order; nothing, or no entry left, is Cancel.
    std::deque<std::optional<std::string>> Files;
    std::vector<ui::FileDialogRequest> FileDialogs;
    std::vector<ShownBox> Transcript;
    /// Called for each box when it has been answered.
    std::function<void(const ShownBox&)> OnBox;

    int Beeps = 0;
    int PendingEventPasses = 0;
    std::vector<std::string> CopiedPictures;  ///< names of the charts
    std::vector<std::string> SavedPictures;   ///< paths
    bool Draws = true;
    /// Measures a text in the place of the rule of thumb.
    std::function<int(std::string_view text, const ui::Font& font)> TextWidth;
    /// Called before a picture is saved; it may raise.
    std::function<void()> BeforeSavePicture;
    ui::MousePointer Pointer = ui::MousePointer::Default;
    ui::Size Screen{28800, 16200};
    ui::DecimalSeparator Separator = ui::DecimalSeparator::Point;
    std::string Folder;

    void showMessage(const std::string& text, const std::string& title, ui::MessageIcon icon) override;
    bool askYesNo(const std::string& prompt, const std::string& title) override;
    std::string askText(const std::string& prompt, const std::string& title,
                        const std::string& defaultAnswer) override;
    std::optional<std::string> chooseFile(const ui::FileDialogRequest& request) override;
    void beep() override { ++Beeps; }
    void copyPicture(const ui::Chart& chart) override;
    void SavePicture(const std::string& path) override;
    bool drawsTexts() const override { return Draws; }
    int textWidth(std::string_view text, const ui::Font& font) const override;
    ui::Size screenSize() const override { return Screen; }
    void setMousePointer(ui::MousePointer pointer) override { Pointer = pointer; }
    void processPendingEvents() override { ++PendingEventPasses; }
    std::string programFolder() const override { return Folder; }
    ui::DecimalSeparator decimalSeparator() const override { return Separator; }

private:
    std::optional<std::string> nextAnswer();
    void record(ShownBox box);
};
