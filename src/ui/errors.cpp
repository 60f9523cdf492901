// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/errors.h"

#include <utility>

namespace ui {

RunTimeError::RunTimeError(std::int32_t number, std::string source, std::string description)
    : Number(number), Source(std::move(source)), Description(std::move(description)) {}

const char* describe(ErrorNumber number) {
    switch (number) {
        case ErrorNumber::InvalidProcedureCall: return "Invalid procedure call or argument";
        case ErrorNumber::Overflow: return "Overflow";
        case ErrorNumber::OutOfMemory: return "Out of memory";
        case ErrorNumber::SubscriptOutOfRange: return "Subscript out of range";
        case ErrorNumber::DivisionByZero: return "Division by zero";
        case ErrorNumber::TypeMismatch: return "Type mismatch";
        case ErrorNumber::BadFileNumber: return "Bad file name or number";
        case ErrorNumber::FileNotFound: return "File not found";
        case ErrorNumber::FileAlreadyOpen: return "File already open";
        case ErrorNumber::DeviceIoError: return "Device I/O error";
        case ErrorNumber::DiskFull: return "Disk full";
        case ErrorNumber::InputPastEndOfFile: return "Input past end of file";
        case ErrorNumber::PermissionDenied: return "Permission denied";
        case ErrorNumber::PathFileAccessError: return "Path/File access error";
        case ErrorNumber::PathNotFound: return "Path not found";
        case ErrorNumber::InvalidPropertyValue: return "Invalid property value";
        case ErrorNumber::Cancelled: return "Cancel was selected.";
    }
    return "Application-defined or object-defined error";
}

void raise(ErrorNumber number) {
    throw RunTimeError(static_cast<std::int32_t>(number), "", describe(number));
}

}  // namespace ui
