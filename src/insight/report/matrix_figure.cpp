// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <optional>

#include "insight/names.h"
#include "insight/report/figures.h"
#include "insight/report/sentence.h"
#include "insight/report/svg.h"

namespace insight {

namespace {

using svg::Anchor;

constexpr double CellSize = 20;
constexpr double NameRoom = 230;
constexpr double NoteRoom = 90;
constexpr double SpeciesRoom = 170;
constexpr std::size_t RowsOfPart = 40;
constexpr std::size_t RowsOfDrawing = 44;  // as many as a page has room for
constexpr std::array KindHeadings = {"Habitats", "Zones", "Threats"};
constexpr std::array KindLooks = {"habitat", "zone", "threat"};
constexpr std::array FateNotes = {"", "missed", "uncoverable"};

std::size_t placeOf(method::Unit kind) { return static_cast<std::size_t>(kind); }

/// A row of the drawing: a unit, or the heading of a kind.
struct Row {
    std::optional<std::size_t> Unit;
    method::Unit Kind;
};

/// The units of a kind, in even parts that each fit into a drawing, below headings of their own.
std::vector<std::vector<Row>> partsOf(const Representation& units, method::Unit kind) {
    std::vector<Row> rows;
    for (std::size_t u = 0; u < units.units(); ++u) {
        if (units.unit(u).Kind == kind) rows.push_back({u, kind});
    }
    std::vector<std::vector<Row>> parts((rows.size() + RowsOfPart - 1) / RowsOfPart);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        std::vector<Row>& part = parts[i * parts.size() / rows.size()];
        if (part.empty()) part.push_back({std::nullopt, kind});
        part.push_back(rows[i]);
    }
    return parts;
}

std::vector<std::vector<Row>> rowsByDrawing(const Representation& units) {
    std::vector<std::vector<Row>> drawings(1);
    for (const method::Unit kind : method::UnitKinds) {
        for (const std::vector<Row>& part : partsOf(units, kind)) {
            if (drawings.back().size() + part.size() > RowsOfDrawing) drawings.emplace_back();
            drawings.back().insert(drawings.back().end(), part.begin(), part.end());
        }
    }
    return drawings;
}

class MatrixDrawing {
public:
    MatrixDrawing(const ReportFindings& found, const std::vector<Row>& rows)
        : found_(found), rows_(rows), picks_(found.Run.Outcome.Suite.Picks) {}

    Markup draw(const svg::Title& title) {
        heads();
        double y = top_;
        for (const Row& row : rows_) {
            if (row.Unit) {
                unitRow(*row.Unit, row.Kind, y);
            } else {
                content_ += svg::text("kind", 0, y + 15, Anchor::Start, KindHeadings[placeOf(row.Kind)]);
            }
            y += CellSize;
        }
        const double width = std::max(right(), columnX(picks_.size()) + riseOf() * 0.85 + 10) + 4;
        return svg::drawing(title, width, y + 4, content_);
    }

private:
    static double riseOf() { return svg::riseOf(SpeciesRoom); }
    static double columnX(std::size_t pick) { return NameRoom + 10 + static_cast<double>(pick) * CellSize; }
    double right() const { return columnX(picks_.size()) + NoteRoom; }

    void heads() {
        for (std::size_t i = 0; i < picks_.size(); ++i) {
            content_ += svg::risingLabel("label", columnX(i) + CellSize / 2 + 3, top_ - 6,
                                         found_.Run.Species[picks_[i].Species], SpeciesRoom);
        }
    }

    void unitRow(std::size_t u, method::Unit kind, double y) {
        const UnitState& state = found_.States[u];
        const char* look = state.Fate == UnitFate::Covered ? "label" : "label open";
        content_ += svg::label(look, NameRoom, y + 14, Anchor::End,
                               unitName(found_.Run, found_.Units.unit(u)), NameRoom);
        for (std::size_t i = 0; i < picks_.size(); ++i) cell(i, u, kind, y);
        if (state.Fate != UnitFate::Covered)
            content_ += svg::text("label open", columnX(picks_.size()) + 8, y + 14, Anchor::Start,
                                  FateNotes[static_cast<std::size_t>(state.Fate)]);
    }

    void cell(std::size_t pick, std::size_t u, method::Unit kind, double y) {
        const double x = columnX(pick);
        content_ += svg::rectangle("empty", {x + 1, y + 1, CellSize - 2, CellSize - 2});
        if (!found_.Units.covers(picks_[pick].Species, u)) return;
        const bool first = found_.States[u].CoveredBy == static_cast<int>(pick) + 1;
        const char* look = KindLooks[placeOf(kind)];
        content_ += first ? svg::rectangle(look, {x + 1, y + 1, CellSize - 2, CellSize - 2})
                          : svg::circle(look, x + CellSize / 2, y + CellSize / 2, 3.5);
    }

    const ReportFindings& found_;
    const std::vector<Row>& rows_;
    const std::vector<method::Pick>& picks_;
    const double top_ = svg::riseOf(SpeciesRoom) + 20;
    Markup content_;
};

}  // namespace

Markup matrixFigure(const ReportFindings& findings) {
    const auto drawings = rowsByDrawing(findings.Units);
    Markup content;
    for (std::size_t i = 0; i < drawings.size(); ++i) {
        const std::string part = drawings.size() == 1 ? ""
                                                      : ", part " + std::to_string(i + 1) + " of " +
                                                            std::to_string(drawings.size());
        content +=
            MatrixDrawing(findings, drawings[i])
                .draw({"matrix-" + std::to_string(i + 1), "The suite against the units" + part,
                       "A row for each unit, a column for each species in the order of selection. The table "
                       "of the suite names what each covered first."});
    }
    return figure(
        "The suite against the units", content,
        escaped("A filled square: the species that covered the unit first. A dot: a species that covers it, "
                "too, so that the unit does not hang on one alone. Species stand in the order in which they "
                "were selected."));
}

}  // namespace insight
