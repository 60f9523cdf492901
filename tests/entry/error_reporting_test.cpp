// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <stdexcept>

#include "entry/modErrorHandling.h"
#include "support/form_test.h"

namespace {

[[noreturn]] void fail() { ui::raise(ui::ErrorNumber::TypeMismatch); }

/// Runs an action under a trap of the given source name.
template <class Action>
void trapped(const char* source, Action action) try {
    action();
} catch (...) {
    ReportError(9999, source, "");
}

}  // namespace

TEST(ErrorReport, HasFourLines) {
    const auto failure = failureOf([] { trapped("Brenica.Deepest", fail); });
    EXPECT_EQ(failure.Description,
              "Unexpected error in Brenica System.\r\n"
              "Source: Brenica.Brenica.Deepest\r\n"
              "Internal Error number: 13.\r\n"
              "Internal Error description: \"Type mismatch\".\r\n");
    EXPECT_EQ(static_cast<std::uint32_t>(failure.Number), 0x8004270FU);
    EXPECT_EQ(failure.Source, "Brenica.Brenica.Deepest");
}

TEST(ErrorReport, KeepsTheDeepestSourceThroughAllCallers) {
    const auto failure = failureOf([] {
        trapped("Brenica.Outermost",
                [] { trapped("Brenica.Middle", [] { trapped("GeneralUtilities.Deepest", fail); }); });
    });
    EXPECT_EQ(failure.Description, reportOf("GeneralUtilities.Deepest", 13, "Type mismatch"));
    EXPECT_EQ(static_cast<std::uint32_t>(failure.Number), 0x8004270FU);
    EXPECT_EQ(failure.Source, "Brenica.GeneralUtilities.Deepest");
}

TEST(ErrorReport, PassesAnErrorOfTheApplicationsOwnRangeThroughAsItStands) {
    for (const std::uint32_t number : {0x80040001U, 0x8004FFFFU}) {
        const auto failure = failureOf([&] {
            trapped("Brenica.X",
                    [&] { throw ui::RunTimeError(static_cast<std::int32_t>(number), "There", "Text"); });
        });
        EXPECT_EQ(static_cast<std::uint32_t>(failure.Number), number);
        EXPECT_EQ(failure.Source, "There");
        EXPECT_EQ(failure.Description, "Text");
    }
}

TEST(ErrorReport, WrapsTheNumbersAtTheEndsOfThatRange) {
    for (const std::uint32_t number : {0x80040000U, 0x80050000U}) {
        const auto signedNumber = static_cast<std::int32_t>(number);
        const auto failure = failureOf(
            [&] { trapped("Brenica.X", [&] { throw ui::RunTimeError(signedNumber, "There", "Text"); }); });
        EXPECT_EQ(failure.Description, reportOf("Brenica.X", signedNumber, "Text"));
    }
}

TEST(ErrorReport, TakesExhaustedMemoryAsError7) {
    const auto failure = failureOf([] { trapped("Brenica.X", [] { throw std::bad_alloc(); }); });
    EXPECT_EQ(failure.Description, reportOf("Brenica.X", 7, "Out of memory"));
}

TEST(ErrorReport, LetsAnyOtherExceptionPass) {
    EXPECT_THROW(trapped("Brenica.X", [] { throw std::logic_error("a slip of ours"); }), std::logic_error);
}

TEST(ErrorReport, HasNoTextForOtherCodes) {
    EXPECT_EQ(GetErrorDescription(1), "");
    const auto failure = failureOf([] {
        try {
            fail();
        } catch (...) {
            ReportError(12, "Brenica.X", "extra");
        }
    });
    EXPECT_EQ(failure.Description, "\r\n");
    EXPECT_EQ(static_cast<std::uint32_t>(failure.Number), 0x8004000CU);
}

TEST(ErrorReport, TakesTheExtraTextIntoTheFirstSpanThatIsMarked) {
    struct Row {
        const char* Text;
        const char* Result;
    };
    const Row rows[] = {{"No <name> here", "No 'Otter' here"},
                        {"<>", "'Otter'"},
                        {"<a> and <b>", "'Otter' and <b>"},
                        {"a > b <c>", "a > b 'Otter'"},
                        {"open <", "open <"},
                        {"closed >", "closed >"},
                        {"plain", "plain"},
                        {"", ""}};
    for (const Row& row : rows) EXPECT_EQ(WithExtra(row.Text, "Otter"), row.Result);
}

TEST(IgnoredErrors, SkipOneStatementOnly) {
    int value = 1;
    EXPECT_FALSE(succeeds([&] {
        fail();
        value = 2;
    }));
    EXPECT_EQ(value, 1);
    EXPECT_FALSE(succeeds([] { throw std::bad_alloc(); }));
    EXPECT_TRUE(succeeds([&] { value = 3; }));
    EXPECT_EQ(value, 3);
    EXPECT_THROW(succeeds([] { throw std::logic_error("a slip of ours"); }), std::logic_error);
}

TEST(IgnoredErrors, OfASilentCommandAreSwallowed) {
    const auto command = [](auto action) {
        try {
            action();
        } catch (...) {
            SwallowError();
        }
    };
    EXPECT_NO_THROW(command(fail));
    EXPECT_NO_THROW(command([] { trapped("Brenica.X", fail); }));
    EXPECT_THROW(command([] { throw std::logic_error("a slip of ours"); }), std::logic_error);
}

class FailingForm : public FormTest {};

TEST_F(FailingForm, ReportsTheDeepestProcedureOfAPageMove) {
    open(ProjectText(2, 2, 2, 2).set("HeteroHabitat Population", "1,often,1,1"));
    const auto failure = failureOf([&] { goTo(4); });
    EXPECT_EQ(failure.Description, reportOf("Brenica.CalculateHabitatUse", 13, "Type mismatch"));
}

TEST_F(FailingForm, ShowsNoBoxOfItsOwn) {
    form.flxCandidateSpecies.Cols(1);
    form.txtTotalSpecies.Text("1");
    form.cmdUpdateSpecies.UserClick();
    const auto failure = failureOf([&] { goTo(2); });
    EXPECT_EQ(failure.Description,
              reportOf("FlexGridUtilities.CheckMissingVals", 9, "Subscript out of range"));
    EXPECT_TRUE(platform.Transcript.empty());
    EXPECT_EQ(form.CurrentMainTab, 1);
}

TEST_F(FailingForm, EndsAFileCommandSilentlyAndGoesOn) {
    platform.Files.push_back(folder.file("missing.brn"));
    EXPECT_NO_THROW(form.mnuOpenProject.UserClick());
    EXPECT_TRUE(platform.Transcript.empty());
    EXPECT_FALSE(form.Unloaded());
    EXPECT_NO_THROW(form.mnuOpenProject.UserClick());  // cancelled
    EXPECT_NO_THROW(form.cmdExportResults_Click());    // cancelled
    EXPECT_TRUE(platform.Transcript.empty());
}

TEST_F(FailingForm, SkipsWhatFailsInTheHintAndShowsTheSpecies) {
    open(ProjectText(2, 1, 1, 1).set("Conservation Status", "0.25,0.75"));
    goTo(2);
    goTo(3);
    form.flxSummary(0).Rows(1);
    form.flxSummary(1).Rows(1);
    EXPECT_NO_THROW(form.cbxSpeciesName.UserChoose(1));
    EXPECT_EQ(form.txtCCS.Text(), "0.75");
    EXPECT_EQ(form.lblPropOccupHint.Caption().substr(0, 6), "Hint: ");
}
