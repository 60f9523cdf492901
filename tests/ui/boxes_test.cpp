// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/choice_buttons.h"
#include "ui/combo_box.h"
#include "ui/control_array.h"
#include "ui/tab_strip.h"
#include "ui/text_box.h"
#include "window_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

class TextBoxTest : public WindowTest {
protected:
    ui::TextBox box{frame, "txtTest", "0"};

    TextBoxTest() {
        box.Change = [this] { log.push_back("Change " + box.Text()); };
        box.KeyPress = [this](int& key) { log.push_back("KeyPress " + std::to_string(key)); };
        box.GotFocus = logging("GotFocus");
    }
    void keys(const std::string& text) {
        for (const char c : text) box.UserKey(static_cast<unsigned char>(c));
    }
};

TEST_F(TextBoxTest, FiresChangeFromCodeOnlyWhenTheTextDiffers) {
    box.Text("0");
    EXPECT_THAT(log, IsEmpty());
    box.Text("1");
    box.Text("1");
    EXPECT_THAT(log, ElementsAre("Change 1"));
}

TEST_F(TextBoxTest, FiresKeyPressThenChangeForEachKey) {
    box.UserFocus();
    keys("12");
    EXPECT_THAT(log, ElementsAre("GotFocus", "KeyPress 49", "Change 01", "KeyPress 50", "Change 012"));
}

TEST_F(TextBoxTest, PrintableKeysBackspaceEnterAndEscapeReachKeyPress) {
    for (const int key : {0x20, 0x61, 0x7E, 0xE9, 8, 13, 27}) {
        log.clear();
        box.UserKey(key);
        ASSERT_FALSE(log.empty()) << key;
        EXPECT_EQ(log.front(), "KeyPress " + std::to_string(key));
    }
}

TEST_F(TextBoxTest, ControlCombinationsAndTabDoNot) {
    for (const int key : {1, 3, 9, 22, 24, 26}) box.UserKey(key);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(box.Text(), "0");
}

TEST_F(TextBoxTest, EnterAndEscapeChangeNoText) {
    box.UserKey(13);
    box.UserKey(27);
    EXPECT_EQ(box.Text(), "0");
}

TEST_F(TextBoxTest, AHandlerSwallowsAKey) {
    box.KeyPress = [](int& key) { key = 0; };
    box.UserFocus();
    keys("1");
    EXPECT_EQ(box.Text(), "0");
    EXPECT_THAT(log, ElementsAre("GotFocus"));
}

TEST_F(TextBoxTest, FocusPutsTheCaretAtTheEndAndSelectsNothing) {
    box.Text("été");
    box.SelStart(0);
    box.SelLength(3);
    box.UserFocus();
    EXPECT_EQ(box.SelStart(), 3);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(TextBoxTest, TypingTwelveOverASelectedZeroGivesTwelveThoughCodeRewritesTheText) {
    box.Change = [this] { box.Text(std::to_string(box.Long())); };
    box.UserFocus();
    box.SelStart(0);
    box.SelLength(1);
    keys("12");
    EXPECT_EQ(box.Text(), "12");
    EXPECT_EQ(box.SelStart(), 2);
}

TEST_F(TextBoxTest, BackspaceTakesTheSelectionOrTheCharacterBeforeTheCaret) {
    box.Text("aéb");
    box.UserFocus();
    box.UserKey(8);
    EXPECT_EQ(box.Text(), "aé");
    box.UserKey(8);
    EXPECT_EQ(box.Text(), "a");
    box.Text("abcd");
    box.SelStart(1);
    box.SelLength(2);
    box.UserKey(8);
    EXPECT_EQ(box.Text(), "ad");
    EXPECT_EQ(box.SelStart(), 1);
    box.SelStart(0);
    box.UserKey(8);
    EXPECT_EQ(box.Text(), "ad");
}

TEST_F(TextBoxTest, SelectionStaysInsideTheText) {
    box.Text("abc");
    box.SelStart(2);
    box.SelLength(9);
    EXPECT_EQ(box.SelStart(), 2);
    EXPECT_EQ(box.SelLength(), 1);
    box.SelStart(9);
    EXPECT_EQ(box.SelStart(), 3);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(TextBoxTest, APasteReplacesTheSelectionWithoutKeyPress) {
    box.Text("abcd");
    log.clear();
    box.SelStart(1);
    box.SelLength(2);
    box.UserPaste("été");
    EXPECT_EQ(box.Text(), "aétéd");
    EXPECT_EQ(box.SelStart(), 4);
    EXPECT_THAT(log, ElementsAre("Change aétéd"));
}

TEST_F(TextBoxTest, ChangeRunsNestedInTheSetter) {
    box.Change = [this] {
        log.push_back("in " + box.Text());
        if (box.Text() == "2000") box.Text("1000");
        log.push_back("out " + box.Text());
    };
    box.Text("2000");
    EXPECT_THAT(log, ElementsAre("in 2000", "in 1000", "out 1000", "out 1000"));
}

class ComboBoxTest : public WindowTest {
protected:
    ui::ComboBox box{frame, "cbxTest", {"a", "b", "c"}};

    ComboBoxTest() {
        box.Click = [this] { log.push_back("Click " + box.Text()); };
    }
};

TEST_F(ComboBoxTest, StartsWithNothingChosen) {
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(box.Text(), "");
    EXPECT_EQ(box.ListCount(), 3);
}

TEST_F(ComboBoxTest, FiresClickFromCodeOnlyForAnotherItem) {
    box.ListIndex(1);
    box.ListIndex(1);
    box.ListIndex(2);
    EXPECT_THAT(log, ElementsAre("Click b", "Click c"));
}

TEST_F(ComboBoxTest, NoneClearingAndRemovingFireNothing) {
    box.ListIndex(1);
    log.clear();
    box.ListIndex(-1);
    box.RemoveItem(0);
    box.AddItem("d");
    box.Clear();
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(box.ListCount(), 0);
    EXPECT_EQ(box.ListIndex(), -1);
}

TEST_F(ComboBoxTest, FiresClickOnEveryChoiceByTheUser) {
    box.UserChoose(1);
    box.UserChoose(1);
    EXPECT_THAT(log, ElementsAre("Click b", "Click b"));
}

TEST_F(ComboBoxTest, AnIndexOutsideTheListIsAnInvalidPropertyValue) {
    for (const int index : {-2, 3}) {
        const auto failure = failureOf([&] { box.ListIndex(index); });
        EXPECT_EQ(failure.Number, 380);
        EXPECT_EQ(failure.Description, "Invalid property value");
    }
    EXPECT_EQ(box.ListIndex(), -1);
}

TEST_F(ComboBoxTest, RemovingWhatIsNotThereIsAnInvalidCall) {
    for (const int index : {-1, 3}) {
        const auto failure = failureOf([&] { box.RemoveItem(index); });
        EXPECT_EQ(failure.Number, 5);
        EXPECT_EQ(failure.Description, "Invalid procedure call or argument");
    }
    EXPECT_EQ(box.ListCount(), 3);
}

TEST_F(ComboBoxTest, RemovingTheChosenItemLeavesNoneChosen) {
    box.ListIndex(1);
    box.RemoveItem(1);
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(box.List(1), "c");
}

TEST_F(ComboBoxTest, RemovingAnEarlierItemKeepsTheChoice) {
    box.ListIndex(2);
    box.RemoveItem(0);
    EXPECT_EQ(box.Text(), "c");
    box.RemoveItem(0);
    EXPECT_EQ(box.ListIndex(), 0);
    EXPECT_EQ(box.Text(), "c");
}

TEST_F(ComboBoxTest, RemovingALaterItemKeepsTheChoice) {
    box.ListIndex(0);
    box.RemoveItem(2);
    EXPECT_EQ(box.Text(), "a");
}

class CheckBoxTest : public WindowTest {
protected:
    ui::CheckBox box{frame, "chkTest", false};
};

TEST_F(CheckBoxTest, FiresClickFromCodeOnlyWhenTheValueDiffers) {
    box.Click = logging("Click");
    box.Value(false);
    EXPECT_THAT(log, IsEmpty());
    box.Value(true);
    box.Value(true);
    EXPECT_THAT(log, ElementsAre("Click"));
}

TEST_F(CheckBoxTest, TheUserToggles) {
    box.Click = logging("Click");
    box.UserClick();
    EXPECT_TRUE(box.Value());
    box.UserClick();
    EXPECT_FALSE(box.Value());
    EXPECT_THAT(log, ElementsAre("Click", "Click"));
}

class OptionButtonTest : public WindowTest {
protected:
    ui::ControlArray<ui::OptionButton> options{frame, "optTest", 3};

    OptionButtonTest() {
        for (int i = 0; i < 3; ++i) options(i).Click = logging("Click " + std::to_string(i));
    }
    std::string values() { return text(options(0)) + text(options(1)) + text(options(2)); }
    static std::string text(const ui::OptionButton& option) { return option.Value() ? "1" : "0"; }
};

TEST_F(OptionButtonTest, SettingOneOnSetsTheOthersOffWithoutEventsForThose) {
    options(0).Value(true);
    options(2).Value(true);
    EXPECT_EQ(values(), "001");
    EXPECT_THAT(log, ElementsAre("Click 0", "Click 2"));
}

TEST_F(OptionButtonTest, FiresClickFromCodeOnlyWhenTheValueDiffers) {
    options(1).Value(true);
    options(1).Value(true);
    EXPECT_THAT(log, ElementsAre("Click 1"));
}

TEST_F(OptionButtonTest, FiresClickByTheUserEvenWhenItIsOn) {
    options(1).UserClick();
    options(1).UserClick();
    EXPECT_EQ(values(), "010");
    EXPECT_THAT(log, ElementsAre("Click 1", "Click 1"));
}

TEST_F(OptionButtonTest, TheOthersAreOffAlreadyWhenClickRuns) {
    options(0).Value(true);
    options(2).Click = [this] { log.push_back(values()); };
    log.clear();
    options(2).UserClick();
    EXPECT_THAT(log, ElementsAre("001"));
}

class TabStripTest : public WindowTest {
protected:
    ui::TabStrip tabs{frame, "tabTest", {{"One"}, {"Two"}, {"Three"}}};

    TabStripTest() {
        tabs.Click = [this] { log.push_back("Click " + std::to_string(tabs.SelectedItem())); };
    }
};

TEST_F(TabStripTest, FiresClickOnEverySettingAndEveryClick) {
    tabs.SelectedItem(1);
    tabs.SelectedItem(3);
    tabs.SelectedItem(3);
    tabs.UserSelectTab(3);
    tabs.UserSelectTab(2);
    EXPECT_THAT(log, ElementsAre("Click 1", "Click 3", "Click 3", "Click 3", "Click 2"));
}

TEST_F(TabStripTest, RefusesATabThatIsNotThere) {
    EXPECT_EQ(failureOf([&] { tabs.SelectedItem(0); }).Number, 380);
    EXPECT_EQ(failureOf([&] { tabs.SelectedItem(4); }).Number, 380);
    EXPECT_EQ(tabs.SelectedItem(), 1);
    EXPECT_THAT(log, IsEmpty());
}
