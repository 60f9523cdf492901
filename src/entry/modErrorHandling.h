// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <new>
#include <string>

#include "ui/errors.h"

/// Number of an unexpected failure once it has been wrapped: 9999 above the base of the application's errors.
inline constexpr std::int32_t ReportedErrorNumber = static_cast<std::int32_t>(0x8004270F);

/// Hands on the failure that is being caught: to be called from a catch (...) block alone, as in
///
///     void frmBrenica::X() try { ... } catch (...) { ReportError(9999, "Brenica.X", ""); }
///
/// A run-time error, or exhausted memory as error 7, is wrapped into an application error whose description names
/// `source`; one that has been wrapped already is raised again unchanged, so that the deepest procedure keeps its
/// name. Any other C++ exception is a defect of ours and passes through as it is.
[[noreturn]] void ReportError(int code, const char* source, const std::string& extra);

/// The failure that is being caught, in the form of a run-time error. Passes on any other exception.
ui::RunTimeError CurrentError();

/// What the failure itself was, without what it was wrapped into.
std::string InternalDescription(const ui::RunTimeError& error);

/// Ends a command silently: to be called from a catch (...) block alone. Passes on what is no run-time failure.
void SwallowError();

/// The text of a code other than 9999. The system has no table of messages.
std::string GetErrorDescription(int code);

/// The text of a code with `extra`, between apostrophes, in the place of the span from "<" to the ">" after it.
std::string WithExtra(std::string text, const std::string& extra);

/// Runs one statement of a procedure that ignores errors; true unless it ended in a run-time error and was skipped.
template <class Statement>
bool succeeds(Statement statement) {
    try {
        statement();
        return true;
    } catch (const ui::RunTimeError&) {
        return false;
    } catch (const std::bad_alloc&) {
        return false;
    }
}
