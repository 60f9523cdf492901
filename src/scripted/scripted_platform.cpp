// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted/scripted_platform.h"

#include <utility>

#include "ui/chart.h"
#include "ui/text.h"

std::optional<std::string> ScriptedPlatform::nextAnswer() {
    if (Answers.empty()) return std::nullopt;
    std::string answer = std::move(Answers.front());
    Answers.pop_front();
    return answer;
}

void ScriptedPlatform::record(ShownBox box) {
    Transcript.push_back(std::move(box));
    if (OnBox) OnBox(Transcript.back());
}

void ScriptedPlatform::showMessage(const std::string& text, const std::string& title, ui::MessageIcon icon) {
    record({ShownBox::Kind::Message, title, text, "", icon});
}

bool ScriptedPlatform::askYesNo(const std::string& prompt, const std::string& title) {
    const std::string answer = nextAnswer().value_or(Agrees ? "yes" : "no");
    const bool yes = !ui::equalsIgnoringCase(ui::trim(answer), "no");
    record({ShownBox::Kind::Question, title, prompt, yes ? "yes" : "no", ui::MessageIcon::Question});
    return yes;
}

std::string ScriptedPlatform::askText(const std::string& prompt, const std::string& title,
                                      const std::string& defaultAnswer) {
    const std::string answer = nextAnswer().value_or(defaultAnswer);
    record({ShownBox::Kind::Input, title, prompt, answer});
    return answer;
}

std::optional<std::string> ScriptedPlatform::chooseFile(const ui::FileDialogRequest& request) {
    FileDialogs.push_back(request);
    if (Files.empty()) return std::nullopt;
    auto chosen = std::move(Files.front());
    Files.pop_front();
    return chosen;
}

void ScriptedPlatform::copyPicture(const ui::Chart& chart) { CopiedPictures.push_back(chart.Name()); }

void ScriptedPlatform::SavePicture(const std::string& path) {
    if (BeforeSavePicture) BeforeSavePicture();
    SavedPictures.push_back(path);
}

int ScriptedPlatform::textWidth(std::string_view text, const ui::Font& font) const {
    if (TextWidth) return TextWidth(text, font);
    constexpr int TwipsAPoint = 20;
    const int half = static_cast<int>(ui::length(text)) * font.Size * TwipsAPoint / 2;
    return font.Bold ? half * 11 / 10 : half;
}
