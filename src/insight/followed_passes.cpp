// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/followed_passes.h"

#include <algorithm>

namespace insight {

namespace {

/// A line of a pass that says which row was picked.
struct Mark {
    std::size_t Row;
    std::size_t Line;
};

class Follower {
public:
    Follower(Recomputation& run, const ResultsFile& file, const std::vector<std::string>& names)
        : run_(run), file_(file), names_(names), next_(file.FirstRow) {
        for (const std::string& name : names)
            cutNames_.emplace_back(rowCells(rowLine(mark::None, name, 1, {}).Text)->Name);
    }

    FollowedRun follow() {
        try {
            while (!run_.ended()) followPass();
        } catch (const RunFailure& failure) {
            followed_.Error = failure.what();
        }
        return std::move(followed_);
    }

private:
    void followPass();
    void takeLines(FollowedPass& pass);
    void choose(FollowedPass& pass);
    std::vector<Mark> marks(const FollowedPass& pass) const;
    std::optional<std::size_t> rowOfLine(const FollowedPass& pass, const RowCells& cells) const;
    std::optional<std::size_t> rowOfSuite(const Pass& pass) const;
    bool mayDrop(const FollowedPass& pass) const;
    bool comesAgain(const Pass& pass, std::size_t species) const;
    bool firstPass() const { return followed_.Passes.empty(); }
    std::optional<RowCells> cellsAt(std::size_t line) const { return rowCells(file_.Lines[line].Text); }
    bool endsPass(std::size_t line) const { return file_.Lines[line].Text == endOfPass().Text; }
    bool hasName(const RowCells& cells, std::size_t species) const {
        return cells.Name == cutNames_[species];
    }

    Recomputation& run_;
    const ResultsFile& file_;
    const std::vector<std::string>& names_;
    std::vector<std::string> cutNames_;  ///< as the rows show them
    std::size_t next_;                   ///< the line where the next pass begins
    FollowedRun followed_;
};

void Follower::followPass() {
    FollowedPass pass{run_.nextPass()};
    takeLines(pass);
    choose(pass);
    const Pass& expected = pass.Expected;
    // All that add nothing are dropped alike.
    const auto dropped = std::find_if(expected.Rows.begin(), expected.Rows.end(),
                                      [](const PassRow& row) { return row.Permitted && row.Omitted; });
    const PassRow& picked = pass.Pick ? expected.Rows[*pass.Pick] : *dropped;
    run_.pick(picked);
    if (pass.Pick && !picked.addsNothing()) followed_.Suite.push_back(picked.Species);
    followed_.Passes.push_back(std::move(pass));
}

/// Up to the line that ends the pass. Where that one is gone, the next pass begins with rank 1.
void Follower::takeLines(FollowedPass& pass) {
    pass.FirstLine = next_;
    std::size_t end = next_;
    while (end < file_.EndOfRows && !endsPass(end)) ++end;
    const std::size_t rows = next_ + pass.Expected.Rows.size();
    for (std::size_t line = rows; line <= rows + 1 && line < end; ++line) {
        const auto cells = cellsAt(line);
        const bool doubled = line > 0 && file_.Lines[line].Text == file_.Lines[line - 1].Text;
        if (cells && cells->Values[0] == "1" && !doubled) end = line;
    }
    if (end < file_.EndOfRows && endsPass(end)) ++end;
    // No pass is empty: a line that ends one for the second time belongs to the one before.
    while (end < file_.EndOfRows && endsPass(end)) ++end;
    pass.EndOfLines = next_ = end;
}

void Follower::choose(FollowedPass& pass) {
    const Pass& expected = pass.Expected;
    const std::optional<std::size_t> inSuite = rowOfSuite(expected);
    const std::vector<Mark> marked = marks(pass);
    const auto worth = [&](const Mark& mark) {
        return (expected.Rows[mark.Row].Permitted ? 2 : 0) + (mark.Row == inSuite ? 1 : 0);
    };
    const auto best = std::max_element(marked.begin(), marked.end(),
                                       [&](const Mark& a, const Mark& b) { return worth(a) < worth(b); });
    if (best != marked.end()) {
        pass.Pick = best->Row;
        pass.MarkedLine = best->Line;
    } else if (inSuite && !comesAgain(expected, expected.Rows[*inSuite].Species)) {
        pass.Pick = inSuite;
    } else if (!mayDrop(pass)) {
        pass.Pick = expected.Top;
    }
}

/// In the first pass alone one that adds nothing is marked as omitted.
std::vector<Mark> Follower::marks(const FollowedPass& pass) const {
    std::vector<Mark> marked;
    for (std::size_t line = pass.FirstLine; line < pass.EndOfLines; ++line) {
        const auto cells = cellsAt(line);
        if (!cells || (cells->Mark != mark::Picked && !(firstPass() && cells->Mark == mark::Omitted)))
            continue;
        const auto row = rowOfLine(pass, *cells);
        if (!row) continue;
        const PassRow& expected = pass.Expected.Rows[*row];
        if (expected.addsNothing() == (cells->Mark == mark::Omitted)) marked.push_back({*row, line});
    }
    return marked;
}

/// By rank and name, else by name, else by rank.
std::optional<std::size_t> Follower::rowOfLine(const FollowedPass& pass, const RowCells& cells) const {
    std::optional<std::size_t> named;
    std::optional<std::size_t> ranked;
    for (std::size_t row = 0; row < pass.Expected.Rows.size(); ++row) {
        const bool sameName = hasName(cells, pass.Expected.Rows[row].Species);
        const bool sameRank = cells.Values[0] == std::to_string(row + 1);
        if (sameName && sameRank) return row;
        if (sameName && !named) named = row;
        if (sameRank) ranked = row;
    }
    return named ? named : ranked;
}

/// The row of the species that the list of the suite names next; a permitted one where names are equal.
std::optional<std::size_t> Follower::rowOfSuite(const Pass& pass) const {
    const std::size_t number = followed_.Suite.size();
    if (number >= file_.Suite.size()) return {};
    std::optional<std::size_t> found;
    for (std::size_t row = 0; row < pass.Rows.size(); ++row) {
        const PassRow& candidate = pass.Rows[row];
        if (names_[candidate.Species] != file_.Suite[number] || candidate.addsNothing()) continue;
        if (candidate.Permitted) return row;
        found = row;
    }
    return found;
}

/// A later pass marks nothing where its pick adds nothing.
bool Follower::mayDrop(const FollowedPass& pass) const {
    const auto& rows = pass.Expected.Rows;
    return !firstPass() && pass.FirstLine < pass.EndOfLines &&
           std::any_of(rows.begin(), rows.end(),
                       [](const PassRow& row) { return row.Permitted && row.Omitted; });
}

/// Whether the next lines have as many rows of that name as they would have if the species had not been picked.
bool Follower::comesAgain(const Pass& pass, std::size_t species) const {
    const auto staying = std::count_if(pass.Rows.begin(), pass.Rows.end(), [&](const PassRow& row) {
        return !row.Omitted && cutNames_[row.Species] == cutNames_[species];
    });
    std::ptrdiff_t found = 0;
    for (std::size_t line = next_; line < file_.EndOfRows && !endsPass(line); ++line) {
        const auto cells = cellsAt(line);
        if (cells && hasName(*cells, species)) ++found;
    }
    return found >= staying;
}

}  // namespace

FollowedRun followPicks(Recomputation& run, const ResultsFile& file, const std::vector<std::string>& names) {
    return Follower(run, file, names).follow();
}

std::string_view markOf(const FollowedPass& pass, std::size_t row, bool first) {
    const PassRow& expected = pass.Expected.Rows[row];
    if (row == pass.Pick) return first && expected.addsNothing() ? mark::Omitted : mark::Picked;
    if (expected.Omitted) return mark::Omitted;
    return expected.WithinMargin ? mark::Margin : mark::None;
}

}  // namespace insight
