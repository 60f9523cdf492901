// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/linear_bound.h"

#include <glpk.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>

namespace insight {

namespace {

/// How many turns of the simplex method pass between two looks at the budget, and how many there are at most.
constexpr int TurnsAtOnce = 200;
constexpr int MostTurns = 100'000;

constexpr double Tolerance = 1e-7;  // for what is worth trying; what is proven is added up in whole numbers

struct DeleteProgram {
    void operator()(glp_prob* program) const { glp_delete_prob(program); }
};
using Program = std::unique_ptr<glp_prob, DeleteProgram>;

/// As few species as possible, in parts too, that cover each unit once: a row for each unit, a column for each species.
Program coverProgram(const CoverIndex& index, const CoverPart& part) {
    Program program(glp_create_prob());
    glp_set_obj_dir(program.get(), GLP_MIN);
    std::vector<int> rowOf(index.units());
    forEach(part.Units, [&](std::size_t u) {
        rowOf[u] = glp_add_rows(program.get(), 1);
        glp_set_row_bnds(program.get(), rowOf[u], GLP_LO, 1, 0);
    });
    forEach(part.Species, [&](std::size_t s) {
        const int column = glp_add_cols(program.get(), 1);
        glp_set_col_bnds(program.get(), column, GLP_LO, 0, 0);
        glp_set_obj_coef(program.get(), column, 1);
        std::vector<int> rows(1);  // counted from 1
        forEachCommon(index.unitsOf(s), part.Units, [&](std::size_t u) { rows.push_back(rowOf[u]); });
        const std::vector<double> ones(rows.size(), 1);
        glp_set_mat_col(program.get(), column, static_cast<int>(rows.size()) - 1, rows.data(), ones.data());
    });
    return program;
}

/// Runs the dual simplex method, whose duals are a bound wherever it is ended.
void solve(glp_prob* program, SearchBudget& budget) {
    glp_smcp options;
    glp_init_smcp(&options);
    options.msg_lev = GLP_MSG_OFF;
    options.meth = GLP_DUALP;
    options.it_lim = TurnsAtOnce;
    for (int turns = 0; turns < MostTurns && !budget.isOver(); turns += TurnsAtOnce) {
        if (glp_simplex(program, &options) != GLP_EITLIM) return;
    }
}

std::vector<double> dualsOf(const CoverIndex& index, const CoverPart& part, glp_prob* program) {
    std::vector<double> duals(index.units());
    int row = 0;
    forEach(part.Units, [&](std::size_t u) {
        const double dual = glp_get_row_dual(program, ++row);
        duals[u] = std::isfinite(dual) ? std::clamp(dual, 0.0, 1.0) : 0.0;
    });
    return duals;
}

UnitWeights roundedWeights(const CoverIndex& index, const std::vector<double>& duals, double scale) {
    UnitWeights rounded;
    for (const double dual : duals) rounded.Weights.push_back(std::llround(dual * scale));
    std::int64_t divisor = 0;
    for (const std::int64_t weight : rounded.Weights) divisor = std::gcd(divisor, weight);
    if (divisor > 1) {
        for (std::int64_t& weight : rounded.Weights) weight /= divisor;
    }
    rounded.Bound = boundOf(index, rounded.Weights);
    return rounded;
}

/// Scales to try: small ones, so that weights can be checked by hand, then powers of ten.
std::vector<double> scales() {
    constexpr int LargestSmall = 120;
    std::vector<double> scales(LargestSmall);
    std::iota(scales.begin(), scales.end(), 1);
    for (double scale = 1e3; scale < 1e13; scale *= 10) scales.push_back(scale);
    return scales;
}

}  // namespace

std::size_t boundOf(const CoverIndex& index, const std::vector<std::int64_t>& weights) {
    const std::int64_t sum = std::accumulate(weights.begin(), weights.end(), std::int64_t{0});
    std::int64_t largest = 0;
    for (std::size_t s = 0; s < index.species(); ++s) {
        std::int64_t ofSpecies = 0;
        for (const std::uint32_t u : index.unitList(s)) ofSpecies += weights[u];
        largest = std::max(largest, ofSpecies);
    }
    return largest == 0 ? 0 : static_cast<std::size_t>((sum + largest - 1) / largest);
}

UnitWeights linearBound(const CoverIndex& index, const CoverPart& part, SearchBudget& budget) {
    const Program program = coverProgram(index, part);
    solve(program.get(), budget);
    const std::vector<double> duals = dualsOf(index, part, program.get());
    const double value = std::accumulate(duals.begin(), duals.end(), 0.0);
    const auto wanted = static_cast<std::size_t>(std::ceil(value - Tolerance));
    UnitWeights best;
    for (const double scale : scales()) {
        const UnitWeights rounded = roundedWeights(index, duals, scale);
        if (rounded.Bound > best.Bound) best = rounded;
        if (best.Bound >= wanted) break;
    }
    return best;
}

}  // namespace insight
