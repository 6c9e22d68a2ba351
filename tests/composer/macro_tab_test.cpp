#include "composer/macro_tab.h"

#include "composer/composer_fixture.h"
#include "platform/input.h"

#include <gmock/gmock.h>

namespace tarvex {
namespace {

struct MacroTabTest : ComposerTest {
    MacroTab& tab = window.macros;

    MacroTabTest()
    {
        open("Fire = f\r\nRem -----\r\nRem   weapons\r\nRem -----\r\nChaff = c\r\nFlare = l\r\nJettison = j\r\n", "");
        show();
    }
    void open(const std::string& macros, const std::string& statements)
    {
        t.files.addFile("c:\\tm\\a.b50", statements);
        t.files.addFile("c:\\tm\\a.m50", macros);
        t.openBoth("c:\\tm\\a.b50");
    }
    std::vector<std::string> names(std::size_t list)
    {
        std::vector<std::string> all;
        for (const CheckListBox::Item& item : tab.List1[list].Items.get()) all.push_back(item.Text);
        return all;
    }
    void doubleClick(int row, std::size_t list = 0)
    {
        tab.List1[list].ListIndex = row;
        List1_DblClick(window, list);
    }
    void press(int row, int button = mouseButton::left)
    {
        tab.List1[0].ListIndex = row;
        List1_MouseDown(window, 0, button);
    }
};

TEST_F(MacroTabTest, TheListsAreThoseOfTheDocumentWindowAndAllIsOnShow)
{
    EXPECT_THAT(tab.Combo1.Items.get(), testing::ElementsAre("All", "Weapons"));
    EXPECT_EQ(tab.Combo1.Text.get(), "All");
    EXPECT_THAT(names(0), testing::ElementsAre("Fire", "Chaff", "Flare", "Jettison"));
    EXPECT_THAT(names(1), testing::ElementsAre("Chaff", "Flare", "Jettison"));
    EXPECT_TRUE(tab.List1[0].Visible);
    EXPECT_FALSE(tab.List1[1].Visible);
    EXPECT_EQ(editor.macros.MacroListDirty, 0);
}

TEST_F(MacroTabTest, AHeadingBringsItsList)
{
    tab.Combo1.Text = std::string("Weapons");
    tab.Combo1.Click();
    EXPECT_FALSE(tab.List1[0].Visible);
    EXPECT_TRUE(tab.List1[1].Visible);
}

TEST_F(MacroTabTest, AnotherMacroFileIsCopiedWhenTheWindowComesToTheFront)
{
    open("Other = o\r\n", "");
    EXPECT_THAT(names(0), testing::ElementsAre("Fire", "Chaff", "Flare", "Jettison"));
    window.form.Activate();
    EXPECT_THAT(names(0), testing::ElementsAre("Other"));
    EXPECT_EQ(tab.List1.size(), 1U);
}

TEST_F(MacroTabTest, TheTicksAreCopiedIfTheUserWantsThem)
{
    editor.FrameMacros.List1[0].Items = std::vector<CheckListBox::Item>{{"Fire", true}, {"Chaff", false}};
    CopyMacroList(window);
    EXPECT_FALSE(tab.List1[0].Items.get()[0].Selected);
    tab.CheckCopyTicks.Value = true;
    tab.CheckCopyTicks.Click();
    EXPECT_TRUE(tab.List1[0].Items.get()[0].Selected);
    EXPECT_FALSE(tab.List1[0].Items.get()[1].Selected);
    EXPECT_EQ(t.ini("Miscellaneous", "COMPMacrosTickedCopy"), "1");
}

TEST_F(MacroTabTest, ADoubleClickWithTheCaretAt0GivesTheNameAndOneBlank)
{
    doubleClick(0);
    EXPECT_EQ(joystick.Text(), "Fire ");
    EXPECT_EQ(joystick.SelStart(), 5);
}

TEST_F(MacroTabTest, ADoubleClickThatFailsLeavesTheFileToTheUser)
{
    {
        const auto failing =
            joystick.edited.connect([](const Pane::Edit&) { throw RuntimeError(ErrorCode::PathNotFound, "broken"); });
        doubleClick(0);
    }
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "COMPOSER List1_DblClick");
    EXPECT_EQ(t.program().shared.IsLoading, 0) << "what is typed now would not count as an edit";
}

TEST_F(MacroTabTest, BehindAWordABlankComesFirst)
{
    write("BTN S1");
    doubleClick(1);
    EXPECT_EQ(joystick.Text(), "BTN S1 Chaff ");
}

TEST_F(MacroTabTest, AfterAMacroIsAddedTheNextOneLandsBehindIt)
{
    write("BTN S1 ");
    doubleClick(0);
    doubleClick(2);
    EXPECT_EQ(joystick.Text(), "BTN S1 Fire Flare ");
    EXPECT_EQ(static_cast<std::size_t>(editor.joystick.Caret), joystick.TextLength());
}

TEST_F(MacroTabTest, ASelectionIsReplacedByTheNameAndOneBlank)
{
    write("BTN S1 old x");
    joystick.setSelStart(7);
    joystick.setSelLength(4);
    doubleClick(0);
    EXPECT_EQ(joystick.Text(), "BTN S1 Fire x");
}

TEST_F(MacroTabTest, TheJoystickTabIsSelectedFirst)
{
    editor.TabStrip1.Select(2);
    const std::string macros = macro.Text();
    doubleClick(0);
    EXPECT_EQ(editor.TabStrip1.SelectedItem.get(), 1);
    EXPECT_EQ(joystick.Text(), "Fire ");
    EXPECT_EQ(macro.Text(), macros);
}

TEST_F(MacroTabTest, TheNameHasTheColourOfThePlaceAndIsOneUndoStep)
{
    settings.HighlightLineOnUndo = 0;
    settings.COMPaddCR = 1;
    write("BTN S1 ");
    joystick.setSelColor(77);
    doubleClick(0);
    EXPECT_EQ(joystick.Text(), "BTN S1 Fire \r\n");
    EXPECT_EQ(colourOf(joystick, "Fire"), 77);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "BTN S1 ");
}

TEST_F(MacroTabTest, WithCOMPaddCRALineEndFollows)
{
    tab.CheckAddCR.Value = true;
    tab.CheckAddCR.Click();
    doubleClick(0);
    EXPECT_EQ(joystick.Text(), "Fire \r\n");
    EXPECT_EQ(t.ini("Miscellaneous", "COMPaddCR"), "1");
}

TEST_F(MacroTabTest, WithoutAnEntryPickedNothingHappens)
{
    tab.List1[0].ListIndex = -1;
    List1_DblClick(window, 0);
    List1_DblClick(window, 7);
    List1_MouseDown(window, 0, mouseButton::right);
    EXPECT_EQ(joystick.Text(), "");
    EXPECT_TRUE(t.dialogues.popUps.empty());
}

TEST_F(MacroTabTest, AClickShowsWhereTheMacroIsUsedAndItsKeys)
{
    write("BTN S1 Fire \r\nBTN S2 ");
    press(0);
    EXPECT_EQ(joystick.SelText(), "Fire");
    EXPECT_EQ(t.status(), "Fire = f");
    EXPECT_EQ(editor.macros.SelectedMacro, "Fire");
}

TEST_F(MacroTabTest, ADoubleClickOnAMacroThatIsUsedInsertsAtTheCaretAllTheSame)
{
    write("BTN S1 Fire \r\nBTN S2 ");
    press(0);
    List1_DblClick(window, 0);
    EXPECT_EQ(joystick.Text(), "BTN S1 Fire \r\nBTN S2 Fire ");
}

TEST_F(MacroTabTest, ADoubleClickWhileAFoundStatementFlashesInsertsBehindItsName)
{
    for (const int ticksBefore : {0, 1, 2}) {
        for (const int ticksBetween : {0, 1, 2}) {
            joystick.setText("BTN S1 \r\nBTN S2 Fire \r\n");
            window.BTN[0].Click();
            for (int i = 0; i < ticksBefore; ++i) editor.TimerBlinkLine.Tick();
            press(0);
            EXPECT_EQ(joystick.SelText(), "Fire");
            for (int i = 0; i < ticksBetween && editor.TimerBlinkLine.Enabled; ++i) editor.TimerBlinkLine.Tick();
            List1_DblClick(window, 0);
            EXPECT_EQ(joystick.Text(), "BTN S1 Fire \r\nBTN S2 Fire \r\n") << ticksBefore << ' ' << ticksBetween;
        }
    }
}

TEST_F(MacroTabTest, WhatIsInsertedAfterAClickDoesntReplaceTheMacroThatWasShown)
{
    const std::string text = "BTN S1 Fire \r\nBTN S2 ";
    write(text);
    press(0);
    window.SlashButton[0].Click();
    EXPECT_EQ(joystick.Text(), text + "/U ");
    press(0);
    window.DlyRptButtons[0].Click();
    EXPECT_EQ(joystick.Text(), text + "/U DLY(60) ");
    press(0);
    window.BTN[2].Click();
    EXPECT_EQ(joystick.Text(), text + "/U DLY(60) BTN S3 ");
}

TEST_F(MacroTabTest, ACaretThatTheUserMovedMeanwhileIsWhereTheMacroGoes)
{
    write("BTN S1 Fire \r\nBTN S2 \r\n");
    press(0);
    putCaret(21);
    press(1);
    List1_DblClick(window, 0);
    EXPECT_EQ(joystick.Text(), "BTN S1 Fire \r\nBTN S2 Chaff \r\n");
}

TEST_F(MacroTabTest, TheRightButtonOpensTheMenuWhichInserts)
{
    write("BTN S1 Fire \r\nBTN S2 ");
    t.dialogues.whilePoppedUp = [this] { window.mnuRHListInsert.Click(); };
    press(0, mouseButton::right);
    EXPECT_THAT(t.dialogues.popUps, testing::ElementsAre("mnuRHList"));
    EXPECT_EQ(joystick.Text(), "BTN S1 Fire \r\nBTN S2 Fire ");
}

TEST_F(MacroTabTest, TheMenuFindsTheMacroInTheJoystickFile)
{
    write("BTN S1 Chaff \r\n");
    press(1);
    putCaret(0);
    window.mnuFindInJoyFile.Click();
    EXPECT_EQ(joystick.SelText(), "Chaff");
}

TEST_F(MacroTabTest, TheMenuOpensTheMacroInTheMacroFile)
{
    press(2);
    window.mnuRHListEdit.Click();
    EXPECT_EQ(editor.TabStrip1.SelectedItem.get(), 2);
    EXPECT_EQ(macro.SelText(), "Flare = l");
}

TEST_F(MacroTabTest, AMoveWithAButtonHeldShowsTheMacroAndTheDragCarriesItBetweenBlanks)
{
    tab.List1[0].ListIndex = 1;
    List1_MouseMove(window, 0, mouseButton::left);
    EXPECT_EQ(t.status(), "Chaff = c");
    EXPECT_EQ(List1_OLEStartDrag(window, 0), " Chaff ");
    EXPECT_TRUE(t.dialogues.popUps.empty());
}

TEST_F(MacroTabTest, AMoveWithoutAButtonDoesNothing)
{
    tab.List1[0].ListIndex = 1;
    editor.macros.SelectedMacro = "Fire";
    List1_MouseMove(window, 0, mouseButton::none);
    EXPECT_EQ(editor.macros.SelectedMacro, "Fire");
}

TEST_F(MacroTabTest, FindMacriInJfilePutsTheCaretBehindTheFirstPlace)
{
    write("BTN S1 Fire \r\nBTN S2 Fire ");
    editor.macros.SelectedMacro = "Fire";
    FindMacriInJfile(window);
    EXPECT_EQ(static_cast<int>(editor.joystick.Caret), 11);
    editor.macros.SelectedMacro = "None";
    FindMacriInJfile(window);
    EXPECT_EQ(static_cast<int>(editor.joystick.Caret), 11);
}

TEST_F(MacroTabTest, FiveThousandMacrosAreListed)
{
    std::string macros;
    for (int i = 0; i < 5000; ++i) macros += "Macro" + std::to_string(i) + " = a\r\n";
    open(macros, "");
    window.form.Activate();
    EXPECT_EQ(tab.List1[0].Items.get().size(), 5000U);
    doubleClick(4999);
    EXPECT_EQ(joystick.Text(), "Macro4999 ");
}

TEST_F(MacroTabTest, ARowOrAListBehindTheLastIsNoMacro)
{
    std::vector<CheckListBox::Item> items{{.Text = "Fire"}, {.Text = "gone"}};
    items.pop_back(); // its text may still be there
    tab.List1[0].Items = std::move(items);
    for (const int row : {1, -1}) {
        tab.List1[0].ListIndex = row;
        EXPECT_EQ(List1_OLEStartDrag(window, 0), "") << row;
    }
    tab.List1[0].ListIndex = 0;
    EXPECT_EQ(List1_OLEStartDrag(window, 0), " Fire ");
    EXPECT_EQ(List1_OLEStartDrag(window, tab.List1.size()), "");
}

TEST_F(MacroTabTest, ForANewMacroFileOneEmptyListStays)
{
    tab.Combo1.Text = "Weapons";
    tab.Combo1.Click();
    press(0);
    tab.ListClicked = 1;
    int changed = 0;
    const Connection loaded = tab.List1Changed.connect([&changed] { ++changed; });
    ClearAllForNewMacroFile(window);
    ASSERT_EQ(tab.List1.size(), 1U);
    EXPECT_TRUE(tab.List1[0].Items.get().empty());
    EXPECT_EQ(tab.List1[0].ListIndex, -1);
    EXPECT_TRUE(tab.List1[0].Visible);
    EXPECT_TRUE(tab.Combo1.Items.get().empty());
    EXPECT_EQ(tab.Combo1.Text.get(), "");
    EXPECT_EQ(tab.ListClicked, 0U);
    EXPECT_EQ(changed, 1);
    CopyMacroList(window);
    EXPECT_EQ(changed, 3) << "emptied and filled";
}

TEST_F(MacroTabTest, TheMenusCommandsDoNothingWithoutAMacro)
{
    editor.TabStrip1.Select(editor.joystick.tab);
    tab.ListClicked = 99;
    const std::string before = joystick.Text();
    const int shown = editor.TabStrip1.SelectedItem;
    window.mnuFindInJoyFile.Click();
    window.mnuRHListEdit.Click();
    window.mnuRHListInsert.Click();
    EXPECT_EQ(joystick.Text(), before);
    EXPECT_EQ(editor.TabStrip1.SelectedItem.get(), shown);
}

TEST_F(MacroTabTest, ADoubleClickReplacesWhatWasSelectedBeforeItsFirstClick)
{
    write("Fire x\r\nold");
    joystick.setSelStart(8);
    joystick.setSelLength(3);
    press(0);
    doubleClick(0);
    EXPECT_EQ(joystick.Text(), "Fire x\r\nFire ");
}

TEST_F(MacroTabTest, AUseThatTheUserSelectsLaterIsReplaced)
{
    write("Fire \r\nBTN S2 ");
    press(0);
    const std::int64_t start = joystick.SelStart();
    const std::int64_t length = joystick.SelLength();
    window.SlashButton[0].Click();
    EXPECT_EQ(joystick.Text(), "Fire \r\nBTN S2 /U ");
    joystick.setSelStart(start);
    joystick.setSelLength(length);
    window.SlashButton[1].Click();
    EXPECT_EQ(joystick.Text().find("Fire"), std::string::npos) << joystick.Text();
}

TEST_F(ComposerTest, WithoutAMacroFileNoHeadingIsShown)
{
    EXPECT_EQ(window.macros.Combo1.Text.get(), "");
    EXPECT_TRUE(window.macros.Combo1.Items.get().empty());
}

} // namespace
} // namespace tarvex
