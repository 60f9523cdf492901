// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/sweep/variation.h"

#include <algorithm>
#include <functional>

#include "method/scores.h"

namespace insight {

namespace {

using method::Criterion;
using method::Landscape;

constexpr double HighestMargin = 100;
constexpr double HighestShare = 1;
constexpr double ShareStep = 0.2;
constexpr int LevelPlaces = 2;

constexpr double BestQuality = 1;
constexpr double MiddleQuality = 3;
constexpr double WorstQuality = 6;

/// The interval is cut at 0 and `highest`.
double drawLevel(double from, double to, double highest, RandomStream& stream) {
    from = std::clamp(from, 0.0, highest);
    to = std::clamp(to, 0.0, highest);
    return method::roundTo(from + (to - from) * stream.real(), LevelPlaces);
}

template <method::Table Landscape::*Member>
method::Table& tableOf(Landscape& land) {
    return land.*Member;
}

template <method::Table method::ThreatRatings::*Member>
method::Table& ratingOf(Landscape& land) {
    return land.Ratings.*Member;
}

/// A table of grades, the highest grade that it takes, and the criterion that it belongs to.
struct GradeTable {
    method::Table& (*In)(Landscape&);
    double Highest;
    Criterion Of;
};

constexpr std::array GradeTables = {
    GradeTable{tableOf<&Landscape::HabitatLevels>, 3, Criterion::Heterogeneity},
    GradeTable{tableOf<&Landscape::ZoneLevels>, 3, Criterion::Heterogeneity},
    GradeTable{ratingOf<&method::ThreatRatings::Severity>, 3, Criterion::Vulnerability},
    GradeTable{ratingOf<&method::ThreatRatings::Recovery>, 3, Criterion::Vulnerability},
    GradeTable{ratingOf<&method::ThreatRatings::Proportion>, 4, Criterion::Vulnerability},
    GradeTable{tableOf<&Landscape::Functions>, 3, Criterion::Functionality},
    GradeTable{tableOf<&Landscape::SocioEconomics>, 2, Criterion::SocioEconomics}};

/// p for each species under one criterion.
std::vector<double> probabilities(const method::Table& quality, Criterion criterion,
                                  const SweepSettings& settings) {
    std::vector<double> each(quality.rows(), settings.P);
    if (!settings.Quality) return each;
    for (std::size_t s = 0; s < each.size(); ++s) {
        const double entered = quality.at(s, static_cast<std::size_t>(criterion));
        const double q = entered >= BestQuality && entered <= WorstQuality ? entered : MiddleQuality;
        each[s] = std::min(1.0, settings.P * q / MiddleQuality);
    }
    return each;
}

double stepped(double grade, double highest, RandomStream& stream) {
    const double step = stream.coin() ? grade + 1 : grade - 1;
    return step >= 0 && step <= highest ? step : grade;
}

}  // namespace

method::Levels drawLevels(const method::Levels& given, RandomStream& stream) {
    const auto share = [&](double level) {
        return drawLevel(level - ShareStep, level + ShareStep, HighestShare, stream);
    };
    method::Levels levels;
    levels.Margin = drawLevel(0, 2 * given.Margin, HighestMargin, stream);
    levels.ThreatRepresentation = share(given.ThreatRepresentation);
    levels.ConservationStatus = share(given.ConservationStatus);
    return levels;
}

std::size_t DrawingChooser::choose(const method::MarginBand& band) {
    const std::vector<std::size_t> offered = method::listed(band);
    return offered.size() < 2 ? band.Top : offered[stream_.below(offered.size())];
}

GradeVariation::GradeVariation(const Landscape& landscape, const method::Table& quality,
                               const SweepSettings& settings) {
    static_assert(GradeTables.size() == Tables);
    Landscape entered = landscape;
    for (std::size_t i = 0; i < Tables; ++i) {
        const method::Table& table = GradeTables[i].In(entered);
        const std::vector<double> p = probabilities(quality, GradeTables[i].Of, settings);
        for (std::size_t s = 0; s < table.rows(); ++s) {
            for (std::size_t item = 0; item < table.columns(); ++item) {
                const double grade = table.at(s, item);
                if (!method::isNumber(grade) || (grade == 0 && !settings.Zeros)) continue;
                grades_[i].push_back({s, item, grade, p[s]});
            }
        }
    }
}

void GradeVariation::draw(RandomStream& stream, Landscape& landscape) const {
    for (std::size_t i = 0; i < Tables; ++i) {
        method::Table& table = GradeTables[i].In(landscape);
        for (const Grade& grade : grades_[i]) {
            const bool off = stream.real() < grade.Probability;
            table.at(grade.Species, grade.Item) =
                off ? stepped(grade.Entered, GradeTables[i].Highest, stream) : grade.Entered;
        }
    }
}

}  // namespace insight
