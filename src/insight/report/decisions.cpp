// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/decisions.h"

#include <algorithm>

namespace insight {

namespace {

/// Takes answers in order as method::ScriptedAnswers does, and keeps what was asked.
class WatchedAnswers : public method::AskingChooser {
public:
    explicit WatchedAnswers(const std::vector<method::Answer>& answers) : answers_(answers) {}

    std::size_t choose(const method::MarginBand& band) override {
        const std::size_t before = Decisions.size();
        const std::size_t row = AskingChooser::choose(band);
        if (Decisions.size() == before || row >= band.Species.size()) return row;
        Decisions.back().Taken = band.Species[row].Species;
        Decisions.back().WasOmitted = band.Species.removed(row);
        return row;
    }

    std::vector<Decision> Decisions;

private:
    std::optional<method::Rule> askRule(const method::MarginBand& band,
                                        std::span<const std::size_t> listed) override {
        Decision decision;
        for (const std::size_t offset : listed) {
            decision.Listed.push_back(band.Species[offset].Species);
            decision.Aggregates.push_back(band.Species[offset].Aggregate);
        }
        decision.IsDefault = used_ == answers_.size();
        decision.Way = next().Way;
        Decisions.push_back(std::move(decision));
        return Decisions.back().Way;
    }

    std::optional<std::size_t> askNumber(const method::MarginBand&, std::span<const std::size_t>) override {
        Decisions.back().AskedNumber = true;
        return Decisions.back().Number = next().Number;
    }

    method::Answer next() {
        return used_ < answers_.size() ? answers_[used_++] : method::Answer{method::Rule::Aggregate, 1};
    }

    const std::vector<method::Answer>& answers_;
    std::size_t used_ = 0;
};

class FateListener : public method::Listener {
public:
    explicit FateListener(std::size_t species) : Fates(species) {}

    void sorted(const method::Block& block) override {
        rows_.clear();
        for (std::size_t offset = 0; offset < block.size(); ++offset) rows_.push_back(block[offset]);
    }
    void omitted(std::size_t offset) override { Fates[rows_[offset].Species].OmittedAfter = picks_; }
    void pickOmitted(std::size_t offset) override { omitted(offset); }
    void joined(std::size_t offset, int, const method::Additions&) override {
        Fates[rows_[offset].Species].Aggregate = rows_[offset].Aggregate;
        ++picks_;
    }

    std::vector<SpeciesFate> Fates;

private:
    std::vector<method::BlockRow> rows_;  ///< of the pass
    std::size_t picks_ = 0;
};

/// Decides as before up to a question, takes another species there, and holds to the rest where it can.
class OtherwiseChooser : public method::Chooser {
public:
    OtherwiseChooser(const std::vector<Decision>& decisions, std::size_t question, std::size_t taken)
        : decisions_(decisions), question_(question), taken_(taken) {}

    std::size_t choose(const method::MarginBand& band) override {
        const std::vector<std::size_t> offered = method::listed(band);
        if (offered.size() < 2) return band.Top;
        const std::size_t question = asked_++;
        if (question < question_) return rowOf(band, decisions_[question].Taken);
        if (question == question_) return rowOf(band, taken_);
        const auto row = std::find_if(offered.begin(), offered.end(), [&](std::size_t offset) {
            return wasTakenLater(band.Species[offset].Species);
        });
        return row == offered.end() ? band.Top : *row;
    }

private:
    static std::size_t rowOf(const method::MarginBand& band, std::size_t species) {
        for (std::size_t offset = 0; offset < band.Species.size(); ++offset) {
            if (band.Species[offset].Species == species) return offset;
        }
        return band.Top;
    }
    bool wasTakenLater(std::size_t species) const {
        return std::any_of(decisions_.begin() + static_cast<std::ptrdiff_t>(question_) + 1, decisions_.end(),
                           [&](const Decision& decision) { return decision.Taken == species; });
    }

    const std::vector<Decision>& decisions_;
    std::size_t question_;
    std::size_t taken_;
    std::size_t asked_ = 0;
};

std::vector<OtherChoice> otherChoices(const SelectionRun& run, const std::vector<Decision>& decisions,
                                      std::size_t question, Rerun& rerun) {
    std::vector<OtherChoice> others;
    for (const std::size_t species : decisions[question].Listed) {
        if (species == decisions[question].Taken) continue;
        OtherwiseChooser chooser(decisions, question, species);
        const method::Suite& suite = rerun.select(run.Levels, chooser);
        others.push_back({species, suite.Picks.size(), uncoveredUnits(suite)});
    }
    return others;
}

}  // namespace

WatchedRun watch(const SelectionRun& run, const std::vector<method::Answer>& answers, Rerun& rerun) {
    WatchedAnswers chooser(answers);
    FateListener listener(run.Species.size());
    rerun.select(run.Levels, chooser, &listener);
    const std::size_t tried = std::min(QuestionsTried, chooser.Decisions.size());
    for (std::size_t question = 0; question < tried; ++question)
        chooser.Decisions[question].Others = otherChoices(run, chooser.Decisions, question, rerun);
    return {std::move(chooser.Decisions), std::move(listener.Fates)};
}

}  // namespace insight
