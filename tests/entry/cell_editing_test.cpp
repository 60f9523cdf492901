// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry_fixture.h"

using testing::IsEmpty;

class ListCellEditing : public EntryTest {
protected:
    void beginEdit(ui::Grid& grid, int row, int col) {
        ASSERT_TRUE(grid.UserMoveTo(row, col));
        ASSERT_TRUE(grid.UserBeginEdit());
    }
    /// The items that the cell offers when it is edited.
    std::string offeredBy(ui::Grid& grid, int col) {
        grid.UserMoveTo(1, col);
        EXPECT_TRUE(grid.UserBeginEdit());
        const std::string items = grid.ComboList();
        grid.UserCancelEdit();
        return items;
    }
    static void typeInEditor(ui::Grid& grid, const std::string& text) {
        for (const char c : text) grid.UserEditKey(static_cast<unsigned char>(c));
    }
};

TEST_F(ListCellEditing, EachColumnOffersItsItems) {
    openOnCriteriaPage(ProjectText(1, 1, 1, 1).set("Home-range definition", "user-defined bins,5"));
    struct Row {
        ui::Grid& Grid;
        std::vector<std::string> Items;  // from column 1 on
    };
    const std::vector<Row> rows = {
        {form.flxCandidateSpecies, {"", ""}},
        {form.flxHabitatTypes, {"", "", "0|1|2|3"}},
        {form.flxJurisUnits, {"", "", "0|1|2|3"}},
        {form.flxLandUses, {"", "0|1|2|3", ""}},
        {form.flxBins, {""}},
        {form.flxFunctions, {""}},
        {form.flxHabitatHetero, {"0|1|2|3"}},
        {form.flxJurisUnitHetero, {"0|1|2|3"}},
        {form.flxLandUsesVulnerability, {"0|1|2|3", "0|1|2|3", "0|1|2|3|4"}},
        {form.flxFunctionality, {"0|1|2|3"}},
        {form.flxSocioEcon, {"0|1|2"}},
    };
    for (const Row& row : rows) {
        // There and back, so that no list of another column is left.
        const int last = static_cast<int>(row.Items.size());
        for (int col = 1; col <= last; ++col)
            EXPECT_EQ(offeredBy(row.Grid, col), row.Items[static_cast<std::size_t>(col) - 1])
                << row.Grid.Name() << " " << col;
        EXPECT_EQ(offeredBy(row.Grid, 1), row.Items.front()) << row.Grid.Name();
    }
}

TEST_F(ListCellEditing, NumberColumnsPassTheKeysOfAPositiveNumber) {
    open(ProjectText(1, 1, 1, 1).set("Home-range definition", "user-defined bins,5"));
    struct Row {
        ui::Grid& Grid;
        int Col;
    };
    for (const Row& row : {Row{form.flxHabitatTypes, 2}, Row{form.flxJurisUnits, 2}, Row{form.flxLandUses, 3},
                           Row{form.flxBins, 1}}) {
        SCOPED_TRACE(row.Grid.Name());
        beginEdit(row.Grid, 1, row.Col);
        platform.Beeps = 0;
        typeInEditor(row.Grid, "a1-2 .+\\,5x");
        EXPECT_EQ(row.Grid.EditText(), "12.+\\,5");
        EXPECT_EQ(platform.Beeps, 4);
        row.Grid.UserEditKey(8);
        EXPECT_EQ(row.Grid.EditText(), "12.+\\,");
        row.Grid.UserCancelEdit();
    }
}

TEST_F(ListCellEditing, NameColumnsPassAnyKey) {
    open(ProjectText(1, 1, 1, 1));
    for (ui::Grid* grid :
         {&form.flxHabitatTypes, &form.flxJurisUnits, &form.flxLandUses, &form.flxFunctions}) {
        beginEdit(*grid, 1, 1);
        typeInEditor(*grid, "a-1 x");
        EXPECT_EQ(grid->EditText(), "a-1 x") << grid->Name();
        grid->UserCancelEdit();
    }
    EXPECT_EQ(platform.Beeps, 0);
}

TEST_F(ListCellEditing, AnAreaMayBeBlankOrANumberOnly) {
    open(ProjectText(1, 1, 1, 1));
    for (ui::Grid* grid : {&form.flxHabitatTypes, &form.flxJurisUnits}) {
        SCOPED_TRACE(grid->Name());
        for (const std::string text : {"abc", "1.2.3", " ", "\\"}) {
            platform.Beeps = 0;
            beginEdit(*grid, 1, 2);
            grid->UserEditPaste(text);
            EXPECT_FALSE(grid->UserCommitEdit()) << text;
            EXPECT_TRUE(grid->Editing());
            EXPECT_EQ(platform.Beeps, 1);
            EXPECT_EQ(grid->TextMatrix(1, 2), "10");
            grid->UserCancelEdit();
        }
        for (const std::string text : {"", "0", "12.5", "-1", "10"}) {
            EXPECT_TRUE(grid->UserEditCell(1, 2, text)) << text;
            EXPECT_EQ(grid->TextMatrix(1, 2), text);
        }
    }
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

TEST_F(ListCellEditing, AProbabilityAboveOneIsRefusedWithABeepAndTheEditorStaysOpen) {
    addActivities({"Logging"});
    for (const std::string text : {"1.2", "2", "1.0001", "abc", "2x"}) {
        platform.Beeps = 0;
        beginEdit(form.flxLandUses, 1, 3);
        form.flxLandUses.UserEditPaste(text);
        EXPECT_FALSE(form.flxLandUses.UserCommitEdit()) << text;
        EXPECT_EQ(platform.Beeps, 1);
        EXPECT_TRUE(form.flxLandUses.Editing());
        EXPECT_EQ(form.flxLandUses.EditText(), text);
        form.flxLandUses.UserCancelEdit();
    }
    for (const std::string text : {"1", "0.4", "", "1.0"})
        EXPECT_TRUE(form.flxLandUses.UserEditCell(1, 3, text));
    EXPECT_THAT(platform.Transcript, IsEmpty());
}

/// A comma that groups digits makes 5 of 0,5: what the leading digits tell is not what the scores would read.
TEST_F(ListCellEditing, AProbabilityWithACommaIsAtMostOneHoweverItIsRead) {
    addActivities({"Logging"});
    for (const std::string text : {"0,5", "1,0", "0,05", "1,000,000,000,000"}) {
        platform.Beeps = 0;
        beginEdit(form.flxLandUses, 1, 3);
        form.flxLandUses.UserEditPaste(text);
        EXPECT_FALSE(form.flxLandUses.UserCommitEdit()) << text;
        EXPECT_EQ(platform.Beeps, 1);
        form.flxLandUses.UserCancelEdit();
        EXPECT_EQ(form.flxLandUses.TextMatrix(1, 3), "");
    }
    EXPECT_TRUE(form.flxLandUses.UserEditCell(1, 3, "0,1"));
    EXPECT_EQ(form.flxLandUses.TextMatrix(1, 3), "0,1");
}

TEST_F(ListCellEditing, ADecimalCommaInAProbabilityCounts) {
    platform.Separator = ui::DecimalSeparator::Comma;
    modGlobal elsewhere;
    frmBrenica commaForm(platform, files, elsewhere);
    type(commaForm.txtTotalLandUses, "1");
    commaForm.cmdUpdateLandUses.UserClick();
    for (const std::string text : {"1,5", "1,01", "2,0"})
        EXPECT_FALSE(commaForm.flxLandUses.UserEditCell(1, 3, text)) << text;
    EXPECT_EQ(commaForm.flxLandUses.TextMatrix(1, 3), "");
    for (const std::string text : {"0,5", "1,0", "-0,5"}) {
        EXPECT_TRUE(commaForm.flxLandUses.UserEditCell(1, 3, text)) << text;
        EXPECT_EQ(commaForm.flxLandUses.TextMatrix(1, 3), text);
    }
}

TEST_F(ListCellEditing, AnAreaWithACommaHasNoBounds) {
    open(ProjectText(1, 1, 1, 1));
    EXPECT_TRUE(form.flxHabitatTypes.UserEditCell(1, 2, "1,500"));
    EXPECT_EQ(form.flxHabitatTypes.TextMatrix(1, 2), "1,500");
}

TEST_F(ListCellEditing, LettersCannotBeTypedAsAProbabilityButAPasteReachesTheTestAtTheEnd) {
    addActivities({"Logging"});
    beginEdit(form.flxLandUses, 1, 3);
    typeInEditor(form.flxLandUses, "abc");
    EXPECT_EQ(form.flxLandUses.EditText(), "");
    EXPECT_EQ(platform.Beeps, 3);
    EXPECT_TRUE(form.flxLandUses.UserEditPaste("abc"));
    EXPECT_EQ(form.flxLandUses.EditText(), "abc");
    EXPECT_FALSE(form.flxLandUses.UserCommitEdit());
    EXPECT_EQ(platform.Beeps, 4);
    EXPECT_EQ(form.flxLandUses.TextMatrix(1, 3), "");
}

TEST_F(ListCellEditing, ABreakpointIsNotTestedAtTheEnd) {
    open(ProjectText(1, 1, 1, 1).set("Home-range definition", "user-defined bins,5"));
    EXPECT_TRUE(form.flxBins.UserEditCell(1, 1, "abc"));
    EXPECT_EQ(form.flxBins.TextMatrix(1, 1), "abc");
}

TEST_F(ListCellEditing, ARefusedEditKeepsThePageAndTheButtons) {
    addActivities({"Logging"});
    goTo(2);
    beginEdit(form.flxLandUses, 1, 3);
    form.flxLandUses.UserEditPaste("1.2");
    goTo(1);
    EXPECT_EQ(form.CurrentMainTab, 2);
    form.cmdUpdateLandUses.UserClick();
    EXPECT_EQ(global.TotalLandUses, 1);
    form.flxLandUses.UserCancelEdit();
    goTo(1);
    EXPECT_EQ(form.CurrentMainTab, 1);
}

struct Tips {
    const char* Name;
    ui::Grid frmBrenica::*Grid;
    std::vector<std::string> Texts;
};

class HeadingTip : public EntryTest, public testing::WithParamInterface<Tips> {
protected:
    ui::Grid& grid() { return form.*GetParam().Grid; }
    const std::vector<std::string>& texts() { return GetParam().Texts; }
};

TEST_P(HeadingTip, IsTheTextOfItsColumn) {
    for (std::size_t col = 0; col < texts().size(); ++col) {
        grid().UserMouseMove(0, static_cast<int>(col));
        EXPECT_EQ(grid().ToolTipText(), texts()[col]);
    }
}

TEST_P(HeadingTip, IsEmptyOverTheBodyAndOutside) {
    for (const int row : {1, -1, 7}) {
        grid().UserMouseMove(0, 0);
        grid().UserMouseMove(0, 1);
        ASSERT_EQ(grid().ToolTipText(), texts()[1]);
        grid().UserMouseMove(row, 1);
        EXPECT_EQ(grid().ToolTipText(), "");
    }
}

TEST_P(HeadingTip, DoesNotComeBackFromTheBodyBeforeAnotherHeading) {
    grid().UserMouseMove(0, 1);
    grid().UserMouseMove(1, 1);
    grid().UserMouseMove(0, 1);
    EXPECT_EQ(grid().ToolTipText(), "");
    grid().UserMouseMove(0, 0);
    grid().UserMouseMove(0, 1);
    EXPECT_EQ(grid().ToolTipText(), texts()[1]);
}

TEST_P(HeadingTip, StaysAsItWasOverAColumnWithoutText) {
    grid().UserMouseMove(0, 1);
    grid().UserMouseMove(0, static_cast<int>(texts().size()) + 1);
    EXPECT_EQ(grid().ToolTipText(), texts()[1]);
}

TEST_P(HeadingTip, RemembersItsOwnGridOnly) {
    grid().UserMouseMove(0, 0);
    ui::Grid& other = &grid() == &form.flxBins ? form.flxFunctions : form.flxBins;
    other.UserMouseMove(0, 0);
    EXPECT_NE(other.ToolTipText(), "");
}

namespace {

using Form = frmBrenica;

const char* nameOfTips(const testing::TestParamInfo<Tips>& info) { return info.param.Name; }

}  // namespace

INSTANTIATE_TEST_SUITE_P(
    Grids, HeadingTip,
    testing::Values(
        Tips{"CandidateSpecies",
             &Form::flxCandidateSpecies,
             {"Unique identifier number for the candidate species", "Common name of the candidate species",
              "Scientific name of the candidate species"}},
        Tips{"HabitatTypes",
             &Form::flxHabitatTypes,
             {"Unique identifier number for the habitat type", "Name of the habitat type",
              "Surface area of the habitat type", "Level of use required to cover the habitat type"}},
        Tips{"JurisUnits",
             &Form::flxJurisUnits,
             {"Unique identifier number for the management zone", "Name of the management zone",
              "Surface area of the management zone", "Level of use required to cover the management zone"}},
        Tips{
            "LandUses",
            &Form::flxLandUses,
            {"Unique identifier number for the human activity", "Name of the human activity",
             "Urgency in terms of timescale associated with each human activity: 0 = not within next 10 years, "
             "1 = within 3-10 years, 2 = within 1-3 years, 3 = currently happening",
             "Probability (0-1) of occurence associated with the human activity"}},
        Tips{"Bins",
             &Form::flxBins,
             {"Unique identifier number for breakpoint value",
              "Breakpoint value used to define the home range intervals"}},
        Tips{"Functions",
             &Form::flxFunctions,
             {"Unique identifier number for the function", "Description of the function"}},
        Tips{"HabitatHetero",
             &Form::flxHabitatHetero,
             {"Name of the habitat type", "Select a level of use for the species for this habitat type"}},
        Tips{"JurisUnitHetero",
             &Form::flxJurisUnitHetero,
             {"Name of the management zone", "Select level of use for the species for the management zone"}},
        Tips{"LandUsesVulnerability",
             &Form::flxLandUsesVulnerability,
             {"Name of the human activity",
              "Severity in terms of the effects of the human activity on the species: 0 = none or positive, "
              "1 = little, 2 = some, 3 = serious",
              "Time it would take the species to recover from the threat: 0 = Immediate or less than a year, "
              "1 = 1-10 years, 2 = 10-100 years, 3 = more than 100 years or never",
              "Proportion of the species' local distribution affected by the threat: 1 = .01-.1, 2 = .1-.25, "
              "3 = .25-.5, 4 = >.5"}},
        Tips{
            "Functionality",
            &Form::flxFunctionality,
            {"Description of the function",
             "The significance of the functional role played by each species: 0 = no role, 1 = suspected or weak "
             "effect, 2 = clear effects, 3 = strong effects"}},
        Tips{
            "SocioEcon",
            &Form::flxSocioEcon,
            {"Description of the socio-economic indicator",
             "Significance of the species with respect to the socioeconomic category: 0 = no significance, 1 = some "
             "significance, 2 = strong significance"}}),
    nameOfTips);
