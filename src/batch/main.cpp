// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <exception>
#include <iostream>

#include "batch/batch_run.h"

int main(int argc, char** argv) {
    try {
        const ParsedOptions parsed = parseOptions(argc, argv);
        if (!parsed.Options) return parsed.ExitCode;
        const ExitCode code = runBatch(*parsed.Options, std::cout, std::cerr);
        std::cout.flush();
        return std::cout ? code : ExitWrongUsage;
    } catch (const std::exception& error) {
        std::cerr << "brenica-batch: " << error.what() << '\n';
        return ExitUnexpectedError;
    }
}
