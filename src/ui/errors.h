// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace ui {

/// The run-time errors that the platform raises; each value is the number that a report shows.
enum class ErrorNumber : std::int32_t {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    BadFileNumber = 52,
    FileNotFound = 53,
    FileAlreadyOpen = 55,
    DeviceIoError = 57,
    DiskFull = 61,
    InputPastEndOfFile = 62,
    PermissionDenied = 70,
    PathFileAccessError = 75,
    PathNotFound = 76,
    InvalidPropertyValue = 380,
    Cancelled = 32755,
};

/// A run-time failure on its way to whoever traps it. `Source` stays empty until a report names the procedure.
struct RunTimeError : std::exception {
    std::int32_t Number = 0;
    std::string Source;
    std::string Description;

    RunTimeError(std::int32_t number, std::string source, std::string description);
    const char* what() const noexcept override { return Description.c_str(); }
};

/// The platform's own text for an error, without a full stop unless the text has one.
const char* describe(ErrorNumber number);

/// Throws the run-time error with its own description.
[[noreturn]] void raise(ErrorNumber number);

}  // namespace ui
