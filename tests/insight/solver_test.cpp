// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <glpk.h>
#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>
#include <memory>

#include "cover_cases.h"
#include "insight/cover/minimum.h"

using namespace insight;

namespace {

/// BRENICA_RANDOM_PROBLEMS asks for another count of problems.
int problemCount() {
    const char* count = std::getenv("BRENICA_RANDOM_PROBLEMS");
    return count ? std::atoi(count) : 60;
}

/// The same set cover for a solver of integer programs.
class IntegerProgram {
public:
    explicit IntegerProgram(const CoverProblem& problem) : program_(glp_create_prob(), glp_delete_prob) {
        glp_prob* lp = program_.get();
        const int rows = static_cast<int>(problem.Units.size());
        const int columns = static_cast<int>(problem.Species.size());
        glp_add_rows(lp, rows + 1);
        glp_add_cols(lp, columns);
        for (int u = 1; u <= rows; ++u) glp_set_row_bnds(lp, u, GLP_LO, 1, 0);
        glp_set_row_bnds(lp, rows + 1, GLP_FR, 0, 0);
        for (int s = 1; s <= columns; ++s) {
            const auto species = static_cast<std::size_t>(s - 1);
            std::vector<int> places = {0};
            for (int u = 0; u < rows; ++u) {
                const auto unit = static_cast<std::size_t>(u);
                if ((problem.Covers.row(species)[unit / 64] >> (unit % 64) & 1) != 0) places.push_back(u + 1);
            }
            places.push_back(rows + 1);
            const std::vector<double> ones(places.size(), 1);
            glp_set_mat_col(lp, s, static_cast<int>(places.size()) - 1, places.data(), ones.data());
            glp_set_col_kind(lp, s, GLP_BV);
            glp_set_obj_coef(lp, s, 1);
        }
    }

    double fewest() { return solve(GLP_MIN); }
    double fewestInParts() {
        glp_smcp options;
        glp_init_smcp(&options);
        options.msg_lev = GLP_MSG_OFF;
        glp_simplex(program_.get(), &options);
        return glp_get_obj_val(program_.get());
    }
    double highestTotal(const CoverProblem& problem, std::size_t size) {
        const int last = glp_get_num_rows(program_.get());
        glp_set_row_bnds(program_.get(), last, GLP_FX, static_cast<double>(size), static_cast<double>(size));
        for (std::size_t s = 0; s < problem.Species.size(); ++s)
            glp_set_obj_coef(program_.get(), static_cast<int>(s) + 1,
                             static_cast<double>(problem.Aggregates[s]));
        return solve(GLP_MAX);
    }

private:
    double solve(int direction) {
        glp_iocp options;
        glp_init_iocp(&options);
        options.msg_lev = GLP_MSG_OFF;
        options.presolve = GLP_ON;
        glp_set_obj_dir(program_.get(), direction);
        EXPECT_EQ(glp_intopt(program_.get(), &options), 0);
        EXPECT_EQ(glp_mip_status(program_.get()), GLP_OPT);
        return glp_mip_obj_val(program_.get());
    }

    std::unique_ptr<glp_prob, void (*)(glp_prob*)> program_;
};

}  // namespace

TEST(Minimum, AgreesWithASolverOfIntegerPrograms) {
    std::mt19937 random(8);
    int searched = 0;
    for (int i = 0; i < problemCount(); ++i) {
        SCOPED_TRACE(i);
        const LoadedCase loaded(randomCase(random, 60, 60));
        if (loaded.Index.units() == 0) continue;
        const SearchEffort effort;
        SearchBudget budget(effort);
        const MinimumAnswer minimum = findMinimum(loaded.Index, runSuite(loaded.Run, loaded.Index), budget);
        const std::size_t size = minimum.Known.Lower;
        IntegerProgram program(loaded.Problem);
        ASSERT_TRUE(minimum.isProven());
        ASSERT_TRUE(coversAll(loaded.Index, minimum.Known.Suite));
        const double inParts = program.fewestInParts();
        ASSERT_EQ(static_cast<double>(size), std::round(program.fewest()));
        ASSERT_EQ(static_cast<double>(totalOf(loaded.Index, minimum.Known.Suite)),
                  std::round(program.highestTotal(loaded.Problem, size)));
        ASSERT_EQ(minimum.By == Proof::Search,
                  minimum.By != Proof::Witness && std::ceil(inParts - 1e-6) < static_cast<double>(size));
        searched += minimum.By == Proof::Search ? 1 : 0;
    }
    EXPECT_GT(searched, 0);
}
