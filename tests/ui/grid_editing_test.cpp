// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/form_window.h"
#include "window_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

class GridEditing : public GridTest {
protected:
    bool refuse = false;
    std::string offered;

    GridEditing() {
        grid.BeforeEdit = [this](int row, int col, bool& cancel) {
            log.push_back("BeforeEdit " + at(row, col));
            grid.ComboList(offered);
            cancel = refuse;
        };
        grid.KeyPressEdit = [this](int, int, int& key) {
            log.push_back("KeyPressEdit " + std::to_string(key));
        };
        grid.ValidateEdit = [this](int row, int col, bool&) {
            log.push_back("ValidateEdit " + at(row, col) + " " + grid.EditText() + " over " +
                          std::string(grid.TextMatrix(row, col)));
        };
        grid.CellChanged = [this](int row, int col) {
            log.push_back("CellChanged " + at(row, col) + " " + std::string(grid.TextMatrix(row, col)));
        };
        grid.AfterEdit = [this](int row, int col) { log.push_back("AfterEdit " + at(row, col)); };
    }
    void typeInEditor(const std::string& text) {
        for (const char c : text) grid.UserEditKey(static_cast<unsigned char>(c));
    }
    void refuseToClose() {
        grid.ValidateEdit = [](int, int, bool& cancel) { cancel = true; };
    }
};

TEST_F(GridEditing, RunsItsEventsInOrder) {
    EXPECT_TRUE(grid.UserBeginEdit());
    EXPECT_EQ(grid.EditText(), "1.1");
    grid.UserEditKey('7');
    EXPECT_EQ(grid.EditText(), "7");
    EXPECT_EQ(grid.TextMatrix(1, 1), "1.1");
    EXPECT_TRUE(grid.UserCommitEdit());
    EXPECT_THAT(log, ElementsAre("BeforeEdit 1.1", "KeyPressEdit 55", "ValidateEdit 1.1 7 over 1.1",
                                 "CellChanged 1.1 7", "AfterEdit 1.1"));
    EXPECT_FALSE(grid.Editing());
}

TEST_F(GridEditing, AnEditOfACellIsThatInSequence) {
    EXPECT_TRUE(grid.UserEditCell(2, 2, "text"));
    EXPECT_THAT(log, ElementsAre("BeforeEdit 2.2", "ValidateEdit 2.2 text over 2.2", "CellChanged 2.2 text",
                                 "AfterEdit 2.2"));
}

TEST_F(GridEditing, CancellingFiresNothing) {
    grid.UserBeginEdit();
    log.clear();
    grid.UserCancelEdit();
    EXPECT_FALSE(grid.Editing());
    grid.UserBeginEdit();
    typeInEditor("x");
    log.clear();
    grid.UserEditKey(27);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_FALSE(grid.Editing());
    EXPECT_EQ(grid.TextMatrix(1, 1), "1.1");
}

TEST_F(GridEditing, EnterAndTabCommit) {
    for (const int key : {13, 9}) {
        grid.Select(1, 1);
        grid.UserBeginEdit();
        typeInEditor("x");
        grid.UserEditKey(key);
        EXPECT_FALSE(grid.Editing());
        EXPECT_EQ(grid.TextMatrix(1, 1), "x");
        grid.TextMatrix(1, 1, "1.1");
    }
}

TEST_F(GridEditing, EnterTabAndTheArrowsMoveOnAfterTheyCommitted) {
    struct Row {
        int Key;
        std::string To;
    };
    for (const Row& row : std::vector<Row>{{ui::LeftKey, "2.1"},  // headings are no cells to move to
                                           {ui::RightKey, "2.2"},
                                           {ui::UpKey, "1.1"},
                                           {ui::DownKey, "3.1"},
                                           {9, "2.2"}}) {
        grid.Select(2, 1);
        grid.UserBeginEdit();
        typeInEditor("x");
        grid.UserEditKey(row.Key);
        EXPECT_EQ(grid.TextMatrix(2, 1), "x");
        EXPECT_EQ(at(grid.Row(), grid.Col()), row.To);
        grid.TextMatrix(2, 1, "2.1");
    }
    grid.Select(2, 1);
    grid.UserBeginEdit();
    grid.UserEditKey(13);
    EXPECT_NE(at(grid.Row(), grid.Col()), "2.1");
}

TEST_F(GridEditing, AKeyThatEndsTheEditMovesNothingWhileTheEditorRefusesToClose) {
    refuseToClose();
    grid.UserBeginEdit();
    for (const int key : {13, 9, ui::UpKey, ui::DownKey, ui::LeftKey, ui::RightKey}) {
        grid.UserEditKey(key);
        EXPECT_TRUE(grid.Editing());
        EXPECT_EQ(at(grid.Row(), grid.Col()), "1.1");
    }
}

TEST_F(GridEditing, AtTheEdgeTheCellStays) {
    grid.Select(3, 2);
    for (const int key : {9, ui::DownKey, ui::RightKey}) {
        grid.UserBeginEdit();
        grid.UserEditKey(key);
        EXPECT_FALSE(grid.Editing());
        EXPECT_EQ(at(grid.Row(), grid.Col()), "3.2");
    }
}

TEST_F(GridEditing, EnterAndEscapeDoNotReachKeyPressEdit) {
    grid.UserBeginEdit();
    log.clear();
    grid.UserEditKey(27);
    grid.UserBeginEdit();
    grid.UserEditKey(13);
    EXPECT_THAT(log, testing::Not(testing::Contains(testing::HasSubstr("KeyPressEdit"))));
}

TEST_F(GridEditing, ControlCombinationsDoNotReachKeyPressEdit) {
    grid.UserBeginEdit();
    log.clear();
    for (const int key : {1, 3, 22, 24, 26}) grid.UserEditKey(key);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(grid.EditText(), "1.1");
}

TEST_F(GridEditing, AHandlerSwallowsAKey) {
    grid.KeyPressEdit = [](int, int, int& key) {
        if (key == 'x') key = 0;
    };
    grid.UserBeginEdit();
    typeInEditor("axb");
    EXPECT_EQ(grid.EditText(), "ab");
}

TEST_F(GridEditing, AHandlerMayReplaceAKey) {
    grid.KeyPressEdit = [](int, int, int& key) { key = 'Z'; };
    grid.UserBeginEdit();
    typeInEditor("a");
    EXPECT_EQ(grid.EditText(), "Z");
}

TEST_F(GridEditing, BackspaceReachesTheHandlerAndDeletes) {
    grid.UserBeginEdit();
    typeInEditor("ab");
    grid.UserEditKey(8);
    EXPECT_EQ(grid.EditText(), "a");
    EXPECT_THAT(log, testing::Contains("KeyPressEdit 8"));
}

TEST_F(GridEditing, APasteSkipsKeyPressEditAndRunsTheRest) {
    grid.UserBeginEdit();
    EXPECT_TRUE(grid.UserEditPaste("pasted"));
    grid.UserCommitEdit();
    EXPECT_THAT(log, ElementsAre("BeforeEdit 1.1", "ValidateEdit 1.1 pasted over 1.1",
                                 "CellChanged 1.1 pasted", "AfterEdit 1.1"));
}

TEST_F(GridEditing, ARefusedCellDoesNotOpen) {
    refuse = true;
    EXPECT_FALSE(grid.UserBeginEdit());
    EXPECT_FALSE(grid.UserEditCell(1, 1, "x"));
    EXPECT_FALSE(grid.Editing());
    EXPECT_EQ(grid.TextMatrix(1, 1), "1.1");
}

TEST_F(GridEditing, FixedCellsAndReadOnlyGridsDoNotOpen) {
    EXPECT_FALSE(grid.UserEditCell(0, 1, "x"));
    EXPECT_FALSE(grid.UserEditCell(1, 0, "x"));
    grid.Editable = ui::EditMode::ReadOnly;
    EXPECT_FALSE(grid.UserEditCell(1, 1, "x"));
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(GridEditing, ValidateEditKeepsTheEditorOpen) {
    refuseToClose();
    grid.UserBeginEdit();
    typeInEditor("x");
    log.clear();
    EXPECT_FALSE(grid.UserCommitEdit());
    EXPECT_TRUE(grid.Editing());
    EXPECT_EQ(grid.EditText(), "x");
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(grid.TextMatrix(1, 1), "1.1");
}

TEST_F(GridEditing, ARefusedEditOfACellIsCancelled) {
    refuseToClose();
    EXPECT_FALSE(grid.UserEditCell(1, 1, "x"));
    EXPECT_FALSE(grid.Editing());
    EXPECT_EQ(window.EditingGrid(), nullptr);
    EXPECT_EQ(grid.TextMatrix(1, 1), "1.1");
}

TEST_F(GridEditing, OnlyAnItemOfTheListCanBeTypedOrPasted) {
    offered = "0|1|2|3";
    grid.UserBeginEdit();
    typeInEditor("2");
    EXPECT_EQ(grid.EditText(), "2");
    EXPECT_EQ(platform.Beeps, 0);
    grid.UserEditKey('5');
    EXPECT_EQ(platform.Beeps, 1);
    EXPECT_FALSE(grid.UserEditPaste("12"));
    EXPECT_EQ(platform.Beeps, 2);
    EXPECT_EQ(grid.EditText(), "2");
    grid.UserCommitEdit();
    EXPECT_EQ(grid.TextMatrix(1, 1), "2");
}

TEST_F(GridEditing, ACellWithAListNeverHoldsATextThatIsNoItem) {
    offered = "Y|N";
    grid.TextMatrix(1, 1, "N");
    grid.UserEditCell(1, 1, "y");
    EXPECT_THAT(grid.TextMatrix(1, 1), testing::AnyOf("Y", "N"));
}

TEST_F(GridEditing, ACellWithAListCannotBeEmptied) {
    offered = "0|1|2|3";
    grid.TextMatrix(1, 1, "2");
    grid.UserBeginEdit();
    grid.UserEditKey(8);
    EXPECT_EQ(platform.Beeps, 1);
    EXPECT_EQ(grid.EditText(), "2");
    EXPECT_FALSE(grid.UserEditPaste(""));
}

TEST_F(GridEditing, AnEmptyListMeansPlainTyping) {
    EXPECT_TRUE(grid.UserEditCell(1, 1, "0|1"));
    EXPECT_EQ(grid.TextMatrix(1, 1), "0|1");
}

TEST_F(GridEditing, AnyUserActionOnTheGridCommitsTheOpenEditorFirst) {
    grid.UserBeginEdit();
    typeInEditor("x");
    EXPECT_TRUE(grid.UserMoveTo(2, 1));
    EXPECT_EQ(grid.TextMatrix(1, 1), "x");
    grid.UserBeginEdit();
    typeInEditor("y");
    grid.UserMouseDown(3, 1);
    EXPECT_EQ(grid.TextMatrix(2, 1), "y");
    EXPECT_EQ(at(grid.Row(), grid.Col()), "3.1");
}

TEST_F(GridEditing, AMoveDoesNotHappenWhileTheEditorRefusesToClose) {
    refuseToClose();
    grid.UserBeginEdit();
    EXPECT_FALSE(grid.UserMoveTo(2, 1));
    grid.UserMouseDown(3, 1);
    EXPECT_EQ(at(grid.Row(), grid.Col()), "1.1");
    EXPECT_TRUE(grid.Editing());
}

TEST_F(GridEditing, AWriteByCodeRunsNoEditEvents) {
    grid.TextMatrix(1, 1, "code");
    EXPECT_THAT(log, ElementsAre("CellChanged 1.1 code"));
}

TEST_F(GridEditing, KeysOutsideAnEditorDoNothing) {
    grid.UserEditKey('x');
    EXPECT_FALSE(grid.UserEditPaste("x"));
    EXPECT_TRUE(grid.UserCommitEdit());
    EXPECT_THAT(log, IsEmpty());
}
