// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>
#include <functional>
#include <string>
#include <string_view>

/// An open file of the system, closed with its owner.
class Descriptor {
public:
    Descriptor() = default;
    /// Takes over what an open call gave; throws std::system_error with errno where that is -1.
    explicit Descriptor(int number);
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;

    explicit operator bool() const { return number_ >= 0; }
    int number() const { return number_; }
    /// Closes it where a failure counts; throws std::system_error.
    void close();

private:
    int number_ = -1;
};

/// Throws std::system_error with errno.
[[noreturn]] void throwSystemError();

/// Writes all of a text; throws std::system_error.
void writeAll(int descriptor, std::string_view text);

/// Hands over what a writer that wants a path writes there. The file has no name in any folder, so that nothing of it can
/// stay.
void gather(const std::function<void(const std::string& path)>& write,
            const std::function<void(std::string_view text)>& take);

/// While it lives a signal that would end the program waits, so that what must not be left halfway is finished.
/// REQUIRES: no other thread runs, since that one would take the signal.
class SignalsHeld {
public:
    SignalsHeld();
    ~SignalsHeld();
    SignalsHeld(const SignalsHeld&) = delete;
    SignalsHeld& operator=(const SignalsHeld&) = delete;

private:
    sigset_t before_;
};

/// Gives standard streams that are closed a place of their own, where reading and writing fail as before; otherwise
/// the next file that is opened would take their number and be written into.
void reserveStandardStreams();
