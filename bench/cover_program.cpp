// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>
#include <iostream>
#include <sstream>

#include "batch/project_run.h"
#include "insight/cover/cover_index.h"

/// The smallest suite of a project as an integer program, in the format of CPLEX, for other solvers.

namespace {

void print(const insight::CoverIndex& index) {
    std::cout << "Minimize\n size:\n";
    for (std::size_t s = 0; s < index.species(); ++s) std::cout << " + s" << s + 1 << '\n';
    std::cout << "Subject To\n";
    for (std::size_t u = 0; u < index.units(); ++u) {
        std::cout << " u" << u + 1 << ":\n";
        for (const std::uint32_t s : index.speciesList(u)) std::cout << " + s" << s + 1 << '\n';
        std::cout << " >= 1\n";
    }
    std::cout << "Binary\n";
    for (std::size_t s = 0; s < index.species(); ++s) std::cout << " s" << s + 1 << '\n';
    std::cout << "End\n";
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: brenica-cover-program PROJECT.brn\n", stderr);
        return 2;
    }
    const RunOptions options{argv[1]};
    std::ostringstream unheard;
    ProjectRun project(options, unheard);
    project.select();
    const auto run = project.form().TakeSelectionRun();
    if (!run) {
        std::cerr << unheard.str();
        return 1;
    }
    const insight::CoverProblem problem = coverProblem(*run, insight::Representation(*run));
    print(insight::CoverIndex(problem));
}
