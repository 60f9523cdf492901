// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/verify/followed_passes.h"

#include <algorithm>
#include <charconv>

namespace insight {

namespace {

/// A line of a pass that says which row was picked.
struct Mark {
    std::size_t Row;
    std::size_t Line;
};

/// Whether the line shows the row's rank.
bool hasRank(const RowStart& found, std::size_t row) {
    std::size_t rank = 0;
    std::from_chars(found.Rank.data(), found.Rank.data() + found.Rank.size(), rank);
    return rank == row + 1;
}

/// Goes through the passes and the lines of the file side by side.
class Follower {
public:
    Follower(Recomputation& run, const ResultsFile& file, const std::vector<std::string>& names)
        : run_(run), file_(file), names_(names), next_(file.FirstRow) {
        for (const std::string& name : names)
            cutNames_.emplace_back(rowStart(rowLine(mark::None, name, 1, {}).Text).Name);
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
    std::optional<std::size_t> rowOfLine(const FollowedPass& pass, std::size_t line) const;
    bool isUnmarked(const FollowedPass& pass, std::size_t row) const;
    std::optional<std::size_t> rowOfSuite(const FollowedPass& pass) const;
    bool mayDrop(const FollowedPass& pass) const;
    bool isLeft(const FollowedPass& pass, std::size_t row) const;
    bool firstPass() const { return followed_.Passes.empty(); }
    RowStart startOf(std::size_t line) const { return rowStart(file_.Lines[line].Text); }
    bool endsPass(std::size_t line) const { return file_.Lines[line].Text == endOfPass_; }
    bool hasName(const RowStart& row, std::size_t species) const { return row.Name == cutNames_[species]; }

    Recomputation& run_;
    const ResultsFile& file_;
    const std::vector<std::string>& names_;
    const std::string endOfPass_ = endOfPass().Text;
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

/// Up to the line that ends the pass. Where that one is gone, the next pass begins with rank 1; where the file ends
/// within the pass, its last line may be cut.
void Follower::takeLines(FollowedPass& pass) {
    pass.FirstLine = next_;
    std::size_t end = next_;
    while (end < file_.EndOfRows && !endsPass(end)) ++end;
    const std::size_t rows = next_ + pass.Expected.Rows.size();
    for (std::size_t line = rows; line <= rows + 1 && line < end; ++line) {
        const bool doubled = line > 0 && file_.Lines[line].Text == file_.Lines[line - 1].Text;
        if (startOf(line).Rank == "1" && !doubled) end = line;
    }
    // No pass is empty: a line that ends one for the second time belongs to the one before.
    while (end < file_.EndOfRows && endsPass(end)) ++end;
    const bool cut = end == file_.EndOfRows && end <= rows && end > next_ && !endsPass(end - 1);
    if (cut && end < file_.Lines.size() && !file_.Lines[end].Text.empty()) ++end;
    pass.EndOfLines = next_ = end;
}

void Follower::choose(FollowedPass& pass) {
    const Pass& expected = pass.Expected;
    const std::optional<std::size_t> inSuite = rowOfSuite(pass);
    const std::vector<Mark> marked = marks(pass);
    const auto worth = [&](const Mark& candidate) {
        return (expected.Rows[candidate.Row].Permitted ? 2 : 0) + (candidate.Row == inSuite ? 1 : 0);
    };
    const auto best = std::max_element(marked.begin(), marked.end(),
                                       [&](const Mark& a, const Mark& b) { return worth(a) < worth(b); });
    if (best != marked.end()) {
        pass.Pick = best->Row;
        pass.MarkedLine = best->Line;
    } else if (inSuite && !isLeft(pass, *inSuite)) {
        pass.Pick = inSuite;
    } else if (!mayDrop(pass)) {
        pass.Pick = expected.Top;
    }
}

/// In the first pass alone one that adds nothing is marked as omitted.
std::vector<Mark> Follower::marks(const FollowedPass& pass) const {
    std::vector<Mark> marked;
    for (std::size_t line = pass.FirstLine; line < pass.EndOfLines; ++line) {
        const std::string_view shown = startOf(line).Mark;
        if (shown != mark::Picked && !(firstPass() && shown == mark::Omitted)) continue;
        const auto row = rowOfLine(pass, line);
        if (row && pass.Expected.Rows[*row].addsNothing() == (shown == mark::Omitted))
            marked.push_back({*row, line});
    }
    return marked;
}

/// By name and rank, else by name and place, else by name, else by rank.
std::optional<std::size_t> Follower::rowOfLine(const FollowedPass& pass, std::size_t line) const {
    const RowStart found = startOf(line);
    std::optional<std::size_t> best;
    int worthOfBest = 0;
    for (std::size_t row = 0; row < pass.Expected.Rows.size(); ++row) {
        const int worth = (hasName(found, pass.Expected.Rows[row].Species) ? 4 : 0) +
                          (hasRank(found, row) ? 2 : 0) + (line - pass.FirstLine == row ? 1 : 0);
        if (worth < 2 || worth <= worthOfBest) continue;
        best = row;
        worthOfBest = worth;
    }
    return best;
}

/// The row of the species that the list of the suite names next. Where names are equal, one that the file does not show
/// as left, and that is permitted.
std::optional<std::size_t> Follower::rowOfSuite(const FollowedPass& pass) const {
    const std::size_t number = followed_.Suite.size();
    if (number >= file_.Suite.size()) return {};
    std::optional<std::size_t> best;
    int worthOfBest = -1;
    for (std::size_t row = 0; row < pass.Expected.Rows.size(); ++row) {
        const PassRow& candidate = pass.Expected.Rows[row];
        if (names_[candidate.Species] != file_.Suite[number] || candidate.addsNothing()) continue;
        const int worth = (isUnmarked(pass, row) ? 0 : 2) + (candidate.Permitted ? 1 : 0);
        if (worth <= worthOfBest) continue;
        best = row;
        worthOfBest = worth;
    }
    return best;
}

bool Follower::isUnmarked(const FollowedPass& pass, std::size_t row) const {
    for (std::size_t line = pass.FirstLine; line < pass.EndOfLines; ++line) {
        const RowStart found = startOf(line);
        if (found.Mark != mark::Picked && hasRank(found, row) &&
            hasName(found, pass.Expected.Rows[row].Species))
            return true;
    }
    return false;
}

/// A later pass marks nothing where its pick adds nothing.
bool Follower::mayDrop(const FollowedPass& pass) const {
    const auto& rows = pass.Expected.Rows;
    return !firstPass() && pass.FirstLine < pass.EndOfLines &&
           std::any_of(rows.begin(), rows.end(),
                       [](const PassRow& row) { return row.Permitted && row.Omitted; });
}

/// Whether the file shows that the species of the row was not picked: the lines of the next pass have as many rows of its
/// name as they would have then. Where the file is cut there the row itself must do.
bool Follower::isLeft(const FollowedPass& pass, std::size_t row) const {
    const std::string& name = cutNames_[pass.Expected.Rows[row].Species];
    const auto left = std::count_if(
        pass.Expected.Rows.begin(), pass.Expected.Rows.end(),
        [&](const PassRow& other) { return !other.Omitted && cutNames_[other.Species] == name; });
    std::ptrdiff_t found = 0;
    std::size_t line = next_;
    for (; line < file_.EndOfRows && !endsPass(line); ++line) {
        if (startOf(line).Name == name) ++found;
    }
    const bool cut = line == file_.Lines.size() || (line > next_ && line == file_.EndOfRows);
    return found >= left || (cut && isUnmarked(pass, row));
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
