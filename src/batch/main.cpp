// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <malloc.h>
#include <unistd.h>

#include <csignal>
#include <exception>
#include <iostream>
#include <limits>
#include <sstream>
#include <system_error>

#include "batch/batch_run.h"
#include "batch/system_io.h"
#include "batch/verb.h"

namespace {

int runCommandLine(int argc, char** argv, std::ostream& out) {
    const std::span<const char* const> arguments(argv, static_cast<std::size_t>(argc));
    if (const Verb* verb = argc > 1 ? findVerb(argv[1]) : nullptr)
        return runVerb(*verb, arguments.subspan(2), out, std::cerr);
    const ParsedOptions parsed = parseOptions(argc, argv, out, std::cerr);
    return parsed.Options ? runLastBatch(*parsed.Options, out, std::cerr) : parsed.ExitCode;
}

/// A run makes and drops many large tables and then ends: what it has freed it keeps for the next one.
void keepFreedMemory() {
    constexpr int OwnMapping = 32 << 20;  // bytes; the most that the library allows
    ::mallopt(M_MMAP_THRESHOLD, OwnMapping);
    ::mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
}

/// Gives the exit code of the whole.
int print(const std::string& text, int code) {
    try {
        writeAll(STDOUT_FILENO, text);
        return code;
    } catch (const std::system_error& error) {
        std::cerr << ProgramName << ": standard output cannot be written: " << error.code().message() << '\n';
        return code == ExitDone ? ExitWrongUsage : code;
    }
}

}  // namespace

int main(int argc, char** argv) {
    try {
        keepFreedMemory();
        reserveStandardStreams();
        std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is a failure of writing
        std::ostringstream out;
        const int code = runCommandLine(argc, argv, out);
        return print(out.str(), code);
    } catch (const std::exception& error) {
        std::cerr << ProgramName << ": " << error.what() << '\n';
        return ExitUnexpectedError;
    }
}
