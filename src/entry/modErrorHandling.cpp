// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"

#include <exception>

#include "ui/numbers.h"

namespace {

constexpr auto ErrorBase = static_cast<std::int32_t>(0x80040000);
constexpr auto ErrorEnd = static_cast<std::int32_t>(0x80050000);
constexpr int UnexpectedError = 9999;
constexpr const char* RunningApplication = "Brenica";
constexpr const char* DescriptionStart = "Internal Error description: \"";
constexpr const char* DescriptionEnd = "\".";

bool isWrapped(const ui::RunTimeError& error) { return error.Number > ErrorBase && error.Number < ErrorEnd; }

std::string unexpectedDescription(const ui::RunTimeError& error, const std::string& source) {
    return "Unexpected error in Brenica System.\r\n"
           "Source: " +
           source +
           "\r\n"
           "Internal Error number: " +
           ui::toText(error.Number) + ".\r\n" + DescriptionStart + error.Description + DescriptionEnd;
}

}  // namespace

ui::RunTimeError CurrentError() {
    try {
        throw;
    } catch (const ui::RunTimeError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        constexpr auto number = ui::ErrorNumber::OutOfMemory;
        return ui::RunTimeError(static_cast<std::int32_t>(number), "", ui::describe(number));
    }
}

std::string InternalDescription(const ui::RunTimeError& error) {
    const std::string& text = error.Description;
    const std::size_t mark = text.find(DescriptionStart);
    if (mark == std::string::npos) return text;
    const std::size_t start = mark + std::string_view(DescriptionStart).size();
    return text.substr(start, text.rfind(DescriptionEnd) - start);
}

void SwallowError() { CurrentError(); }

void ReportError(int code, const char* source, const std::string& extra) {
    const ui::RunTimeError error = CurrentError();
    if (isWrapped(error)) throw error;
    const std::string fullSource = std::string(RunningApplication) + "." + source;
    const std::string description = code == UnexpectedError ? unexpectedDescription(error, fullSource)
                                                            : WithExtra(GetErrorDescription(code), extra);
    throw ui::RunTimeError(code + ErrorBase, fullSource, description + "\r\n");
}

// A failed look-up would give "[No description as error number not in Tarnwick resource file.]" while an error is
// current; with no table there is no look-up to fail.
std::string GetErrorDescription(int) { return ""; }

std::string WithExtra(std::string text, const std::string& extra) {
    const std::size_t open = text.find('<');
    const std::size_t close = open == std::string::npos ? open : text.find('>', open);
    if (close == std::string::npos) return text;
    return text.replace(open, close - open + 1, "'" + extra + "'");
}
