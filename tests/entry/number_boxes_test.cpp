// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "entry/modGeneralUtilities.h"
#include "entry/modValidationUtilities.h"
#include "entry_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;
using namespace modValidationUtilities;

namespace {

using Form = frmBrenica;

enum class Filter { Simple, Positive, Any };

/// What a box is held to.
struct BoxRow {
    const char* Control;
    ui::TextBox Form::*Box;
    const char* Name;
    const char* Maximum;
    const char* Default;
    bool Normalises;
    Filter Keys;
    bool SelectsItself;
};

// The lists have four rows each.
const std::vector<BoxRow> Boxes = {
    {"txtTotalSpecies", &Form::txtTotalSpecies, "species", "1000", "0", true, Filter::Simple, true},
    {"txtTotalHabitatTypes", &Form::txtTotalHabitatTypes, "habitat types", "1000", "0", true, Filter::Simple,
     false},
    {"txtTotalJurisUnits", &Form::txtTotalJurisUnits, "management zones", "1000", "0", true, Filter::Simple,
     false},
    {"txtTotalLandUses", &Form::txtTotalLandUses, "human activities", "1000", "0", true, Filter::Simple,
     false},
    {"txtTotalFunctions", &Form::txtTotalFunctions, "functions", "1000", "0", true, Filter::Simple, false},
    {"txtRemoveSpeciesIndex", &Form::txtRemoveSpeciesIndex, "remove species index", "4", "0", true,
     Filter::Simple, false},
    {"txtRemoveHabitatIndex", &Form::txtRemoveHabitatIndex, "remove habitat index", "4", "0", true,
     Filter::Simple, false},
    {"txtRemoveJurisUnitIndex", &Form::txtRemoveJurisUnitIndex, "remove management zone index", "4", "0",
     true, Filter::Simple, false},
    {"txtRemoveLandUseIndex", &Form::txtRemoveLandUseIndex, "remove human activity index", "4", "0", true,
     Filter::Simple, false},
    {"txtRemoveFunctionIndex", &Form::txtRemoveFunctionIndex, "remove function index", "4", "0", true,
     Filter::Simple, false},
    {"txtRemoveBinIndex", &Form::txtRemoveBinIndex, "remove bin index", "4", "0", true, Filter::Simple,
     false},
    {"txtContinuousHR", &Form::txtContinuousHR, "continuous home range", "10000000", "0", false, Filter::Any,
     false},
    {"txtPropOccupied", &Form::txtPropOccupied, "proportion occupied", "1", "0", false, Filter::Positive,
     true},
    {"txtCCS", &Form::txtCCS, "current conservation status", "1", "1", false, Filter::Positive, true},
    {"txtCCSRep", &Form::txtCCSRep, "conservation status", "1", "1", false, Filter::Positive, true},
    {"txtThreatRep", &Form::txtThreatRep, "score level for threat representation", "1", "0", false,
     Filter::Positive, true},
    {"txtErrorMargin", &Form::txtErrorMargin, "margin of error", "100", "0", false, Filter::Positive, true},
};

}  // namespace

class NumberBoxes : public EntryTest {
protected:
    NumberBoxes() {
        open(ProjectText(4, 4, 4, 4).set("Home-range definition", "user-defined bins,1,2,3,4"));
        for (int i = 0; i < 2; ++i) remove(functions(), 1);
        form.txtRemoveFunctionIndex.Text("0");
    }
    ui::TextBox& box(const BoxRow& row) { return form.*row.Box; }
    /// Puts a text into a box that holds another one, past the key filter.
    void paste(ui::TextBox& target, const std::string& text) {
        target.UserFocus();
        target.SelStart(0);
        target.SelLength(static_cast<int>(target.Text().size()));
        target.UserPaste(text);
    }
    /// The keys of printable ASCII and the four others that pass the filter of a box.
    std::string acceptedKeys(ui::TextBox& target) {
        std::string accepted;
        target.Change = [] {};
        for (int key = 0; key < 127; ++key) {
            if (key < 32 && key != 8 && key != 13 && key != 27) continue;
            const int beeps = platform.Beeps;
            target.UserKey(key);
            if (platform.Beeps == beeps) accepted += static_cast<char>(key);
        }
        std::sort(accepted.begin(), accepted.end());
        return accepted;
    }
};

TEST_F(NumberBoxes, AnEmptyTextSilentlyBecomesTheMinimum) {
    for (const BoxRow& row : Boxes) {
        paste(box(row), "1");
        backspaceAll(box(row));
        EXPECT_EQ(box(row).Text(), "0") << row.Control;
    }
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(NumberBoxes, ATooSmallValueSilentlyBecomesTheMinimum) {
    for (const BoxRow& row : Boxes) {
        paste(box(row), "-1");
        EXPECT_EQ(box(row).Text(), "0") << row.Control;
    }
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(NumberBoxes, ATooLargeValueSilentlyBecomesTheMaximum) {
    for (const BoxRow& row : Boxes) {
        paste(box(row), "10000001");
        EXPECT_EQ(box(row).Text(), row.Maximum) << row.Control;
        paste(box(row), std::string(row.Maximum) + ".5");
        EXPECT_EQ(box(row).Text(), row.Maximum) << row.Control;
    }
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(NumberBoxes, TheBoundsThemselvesStay) {
    for (const BoxRow& row : Boxes) {
        paste(box(row), row.Maximum);
        EXPECT_EQ(box(row).Text(), row.Maximum) << row.Control;
        paste(box(row), "0");
        EXPECT_EQ(box(row).Text(), "0") << row.Control;
    }
}

TEST_F(NumberBoxes, WhatIsNoNumberBecomesTheDefaultWithAMessage) {
    for (const BoxRow& row : Boxes) {
        for (const std::string text : {"abc", "1e400"}) {
            paste(box(row), "0.75");
            platform.Transcript.clear();
            paste(box(row), text);
            EXPECT_EQ(box(row).Text(), row.Default) << row.Control;
            ASSERT_EQ(platform.Transcript.size(), 1U) << row.Control;
            EXPECT_EQ(lastBox().Text, std::string("Number of ") + row.Name +
                                          " is invalid. Resetting value to " + row.Default + ".");
            EXPECT_EQ(lastBox().Title, "Invalid value");
            EXPECT_EQ(lastBox().Icon, ui::MessageIcon::Exclamation);
        }
    }
}

TEST_F(NumberBoxes, TheBoxHoldsTheDefaultAlreadyWhenTheMessageIsShown) {
    std::string shown;
    platform.OnBox = [&](const ShownBox&) { shown = form.txtThreatRep.Text(); };
    paste(form.txtThreatRep, "abc");
    EXPECT_EQ(shown, "0");
}

TEST_F(NumberBoxes, WholeNumbersAreWrittenBackPlainAndOthersStayAsTyped) {
    struct Pair {
        const char* Text;
        const char* Plain;
    };
    for (const BoxRow& row : Boxes) {
        for (const Pair& pair : {Pair{"001", "1"}, Pair{"1.0", "1"}, Pair{"0.5", "0"}, Pair{"+1", "1"}}) {
            paste(box(row), pair.Text);
            EXPECT_EQ(box(row).Text(), row.Normalises ? pair.Plain : pair.Text) << row.Control;
        }
    }
}

TEST_F(NumberBoxes, EachPassesTheKeysOfItsFilter) {
    for (const BoxRow& row : Boxes) {
        const std::string digits = "0123456789";
        std::string expected = row.Keys == Filter::Simple     ? "\b" + digits
                               : row.Keys == Filter::Positive ? "\b+,.\\" + digits
                                                              : "\b+,-.\\" + digits;
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(acceptedKeys(box(row)), expected) << row.Control;
    }
    std::string digitsOnly = "\b0123456789";
    EXPECT_EQ(acceptedKeys(form.txtTotalBins), digitsOnly);
}

TEST_F(NumberBoxes, ARefusedKeyBeepsAndLeavesTheText) {
    type(form.txtTotalSpecies, "12");
    for (const int key : {int{'x'}, int{'.'}, 13, 27}) {
        platform.Beeps = 0;
        form.txtTotalSpecies.UserKey(key);
        EXPECT_EQ(platform.Beeps, 1);
        EXPECT_EQ(form.txtTotalSpecies.Text(), "12");
    }
}

TEST_F(NumberBoxes, AMinusIsRefusedForTheStatusAndLeadsTheHomeRangeToItsMessage) {
    form.txtCCS.UserFocus();
    form.txtCCS.UserKey('-');
    EXPECT_EQ(platform.Beeps, 1);
    EXPECT_THAT(platform.Transcript, IsEmpty());
    type(form.txtContinuousHR, "-");
    EXPECT_EQ(platform.Beeps, 1);
    EXPECT_EQ(form.txtContinuousHR.Text(), "0");
    EXPECT_EQ(lastBox().Text, "Number of continuous home range is invalid. Resetting value to 0.");
    EXPECT_EQ(lastBox().Title, "Invalid value");
}

TEST_F(NumberBoxes, ABackslashPassesTheFilterAndIsInvalid) {
    type(form.txtPropOccupied, "\\");
    EXPECT_EQ(platform.Beeps, 0);
    EXPECT_EQ(lastBox().Text, "Number of proportion occupied is invalid. Resetting value to 0.");
    EXPECT_EQ(form.txtPropOccupied.Text(), "0");
}

TEST_F(NumberBoxes, FocusSelectsTheTextOfTheBoxOrOfTheSpeciesBox) {
    for (const BoxRow& row : Boxes) {
        SCOPED_TRACE(row.Control);
        paste(form.txtTotalSpecies, "123");
        paste(box(row), "1");
        form.txtTotalSpecies.SelLength(0);
        box(row).UserFocus();
        if (row.SelectsItself) {
            EXPECT_EQ(box(row).SelStart(), 0);
            EXPECT_EQ(box(row).SelLength(), static_cast<int>(box(row).Text().size()));
        } else {
            EXPECT_EQ(box(row).SelLength(), 0);
            EXPECT_EQ(form.txtTotalSpecies.SelStart(), 0);
            EXPECT_EQ(form.txtTotalSpecies.SelLength(), 3);
        }
    }
    form.txtTotalSpecies.SelLength(0);
    form.txtTotalBins.UserFocus();
    EXPECT_EQ(form.txtTotalSpecies.SelLength(), 3);
}

TEST_F(NumberBoxes, TheBreakpointsBoxIsNotHeldWithinBounds) {
    type(form.txtTotalBins, "5000");
    EXPECT_EQ(form.txtTotalBins.Text(), "5000");
    type(form.txtTotalBins, "007");
    EXPECT_EQ(form.txtTotalBins.Text(), "7");
    EXPECT_EQ(form.txtTotalHabitatTypes.Text(), "0");
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(NumberBoxes, TheBreakpointsBoxHoldsTheHabitatsBoxWithinBounds) {
    form.txtTotalHabitatTypes.Change = [] {};
    form.txtTotalHabitatTypes.Text("2000");
    type(form.txtTotalBins, "5");
    EXPECT_EQ(form.txtTotalHabitatTypes.Text(), "1000");
    form.txtTotalHabitatTypes.Text("abc");
    type(form.txtTotalBins, "6");
    EXPECT_EQ(form.txtTotalHabitatTypes.Text(), "0");
    EXPECT_EQ(lastBox().Text, "Number of bins is invalid. Resetting value to 0.");
}

TEST_F(NumberBoxes, EmptyingTheBreakpointsBoxFails) {
    const auto failure = failureOf([&] { backspaceAll(form.txtTotalBins); });
    EXPECT_EQ(failure.Description, reportOf("Brenica.txtTotalBins_Change", 13, "Type mismatch"));
}

class EmptyLists : public EntryTest {};

TEST_F(EmptyLists, HaveNoRowToRemove) {
    for (const NumberBox& box : form.NumberBoxes()) {
        if (box.MaximumRows == nullptr || box.MaximumRows->Rows() > 1) continue;
        box.Box->Enabled(true);
        type(*box.Box, "1");
        EXPECT_EQ(box.Box->Text(), "0") << box.Name;
    }
}

class KeyFilters : public EntryTest {};

TEST_F(KeyFilters, ControlKeysPassOnlyWithTheirFlag) {
    using Validator = int (*)(ui::Platform&, int, bool);
    for (const Validator validate : {&ValidateSimpleNumber, &ValidatePositiveNumber, &ValidateNumber}) {
        for (const int key : {13, 27}) {
            platform.Beeps = 0;
            EXPECT_EQ(validate(platform, key, true), key);
            EXPECT_EQ(platform.Beeps, 0);
            EXPECT_EQ(validate(platform, key, false), 0);
            EXPECT_EQ(platform.Beeps, 1);
        }
        EXPECT_EQ(validate(platform, 8, false), 8);
        EXPECT_EQ(validate(platform, '5', true), '5');
        EXPECT_EQ(validate(platform, 'x', true), 0);
    }
}

TEST_F(KeyFilters, OnlyEnterAndEscapeAreControlKeys) {
    for (int key = 0; key < 256; ++key) EXPECT_EQ(IsControlKey(key), key == 13 || key == 27) << key;
}

TEST_F(KeyFilters, ValidateKeyLooksForTheCharacterInAnyCase) {
    EXPECT_EQ(ValidateKey(platform, 'y', "YN", false, true), 'y');
    EXPECT_EQ(ValidateKey(platform, 'N', "yn", false, true), 'N');
    EXPECT_EQ(platform.Beeps, 0);
    EXPECT_EQ(ValidateKey(platform, 'x', "YN", false, true), 0);
    EXPECT_EQ(platform.Beeps, 1);
    EXPECT_EQ(ValidateKey(platform, 'x', "YN", false, false), 0);
    EXPECT_EQ(platform.Beeps, 1);
}

TEST_F(KeyFilters, ValidateKeyPassesBackspaceOnlyWithItsFlag) {
    EXPECT_EQ(ValidateKey(platform, 8, "0", true, true), 8);
    EXPECT_EQ(ValidateKey(platform, 8, "0", false, false), 0);
}

TEST_F(KeyFilters, ExtraNumericKeysAreTheSeparatorsThatANumberMayHold) {
    EXPECT_EQ(ExtraNumericKeys(platform), "\\.,");
    platform.Separator = ui::DecimalSeparator::Comma;
    EXPECT_EQ(ExtraNumericKeys(platform), "\\.,");
}

TEST_F(KeyFilters, AskYesNoShowsAQuestion) {
    platform.Answers = {"no"};
    EXPECT_FALSE(modGeneralUtilities::AskYesNo(platform, "Sure?", "A title"));
    EXPECT_EQ(lastBox().BoxKind, ShownBox::Kind::Question);
    EXPECT_EQ(lastBox().Text, "Sure?");
    EXPECT_EQ(lastBox().Title, "A title");
    EXPECT_TRUE(modGeneralUtilities::AskYesNo(platform, "Sure?", "A title"));
}

TEST_F(KeyFilters, SelectAllTextSelectsCharacters) {
    ui::FormWindow window(platform, "frmTest");
    ui::TextBox box(window, "txtTest", "été");
    modGeneralUtilities::SelectAllText(box);
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 3);
}
