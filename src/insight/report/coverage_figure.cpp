// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "insight/report/coverage_table.h"
#include "insight/report/figures.h"
#include "insight/report/svg.h"
#include "insight/report/verdict.h"

namespace insight {

namespace {

using svg::Anchor;

constexpr double Left = 44;
constexpr double Top = 34;
constexpr double Width = 620;
constexpr double Height = 250;
constexpr double Bottom = 44;

/// A step between ticks that leaves room for their numbers.
std::size_t tickStep(std::size_t most) {
    for (std::size_t scale = 1;; scale *= 10) {
        for (const std::size_t step : {scale, 2 * scale, 5 * scale}) {
            if (most / step <= 12) return step;
        }
    }
}

class CoverageDrawing {
public:
    CoverageDrawing(const ReportFindings& found, const CoverageCurve& curve)
        : curve_(curve), species_(curve.size() - 1), units_(found.Index.units()) {}

    Markup draw() {
        axes();
        bounds();
        curve("best", &CoveragePoint::Best, 5);
        curve("run", &CoveragePoint::Run, 3.5);
        legend();
        return svg::drawing(
            {"coverage-drawing", "Units covered against number of species",
             "Two rising lines, that of the run and that of the best suites of each size. The table below "
             "has their numbers."},
            Left + Width + 20, Top + Height + Bottom, content_);
    }

private:
    double x(std::size_t species) const {
        return Left + Width * static_cast<double>(species) / static_cast<double>(species_);
    }
    double y(std::size_t units) const {
        return Top + Height - Height * static_cast<double>(units) / static_cast<double>(top());
    }

    void axes() {
        for (std::size_t u = 0; u <= top(); u += tickStep(units_)) {
            content_ += svg::line(u == 0 ? "axis" : "grid", Left, y(u), Left + Width, y(u));
            content_ += svg::text("tick", Left - 8, y(u) + 4, Anchor::End, std::to_string(u));
        }
        content_ += svg::line("ceiling", Left, y(units_), Left + Width, y(units_));
        for (std::size_t s = 0; s <= species_; s += tickStep(species_))
            content_ += svg::text("tick", x(s), Top + Height + 18, Anchor::Middle, std::to_string(s));
        content_ += svg::text("tick", Left + Width / 2, Top + Height + 38, Anchor::Middle, "species");
    }

    /// What is not proven may lie anywhere up to its bound.
    void bounds() {
        for (std::size_t s = 0; s <= species_; ++s) {
            const CoveragePoint& point = curve_[s];
            if (point.Best && point.Bound != *point.Best)
                content_ += svg::line("bound", x(s), y(*point.Best), x(s), y(point.Bound));
        }
    }

    void curve(const char* look, std::optional<std::size_t> CoveragePoint::*value, double radius) {
        std::string points;
        Markup marks;
        for (std::size_t s = 0; s <= species_; ++s) {
            const auto& units = curve_[s].*value;
            if (!units) continue;
            points += svg::point(x(s), y(*units));
            marks += svg::circle(look, x(s), y(*units), radius);
        }
        content_ += svg::path(look, points) + marks;
    }

    void legend() {
        content_ += svg::circle("run", Left + 6, 12, 3.5) +
                    svg::text("label", Left + 16, 16, Anchor::Start, "the run");
        content_ += svg::circle("best", Left + 96, 12, 5) +
                    svg::text("label", Left + 108, 16, Anchor::Start, "the best of each size");
        content_ += svg::line("ceiling", Left + 270, 12, Left + 290, 12) +
                    svg::text("label", Left + 298, 16, Anchor::Start,
                              std::to_string(units_) + " units can be covered");
    }

    /// The axis ends at a tick, at or above the last point.
    std::size_t top() const {
        const std::size_t step = tickStep(units_);
        return (units_ + step - 1) / step * step;
    }

    const CoverageCurve& curve_;
    std::size_t species_;
    std::size_t units_;
    Markup content_;
};

}  // namespace

Markup coverageFigure(const ReportFindings& findings) {
    const CoverageCurve curve = coverageCurve(findings);
    const bool isOpen = std::any_of(curve.begin(), curve.end(), [](const CoveragePoint& point) {
        return point.Best && point.Bound != *point.Best;
    });
    std::string caption = "Where the rings lie above the dots other species would have covered more by then.";
    if (isOpen) caption += " A dotted line shows how far the best may lie above the best known.";
    return figure("Units covered against number of species", CoverageDrawing(findings, curve).draw(),
                  escaped(caption));
}

}  // namespace insight
