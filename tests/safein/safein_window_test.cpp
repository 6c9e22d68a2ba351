#include "safein_fixture.h"

#include "platform/input.h"
#include "platform/key_codes.h"
#include "support/menu_text.h"

namespace tarvex {
namespace {

struct SafeinWindow : SafeinTest {
    float screenWidth() { return t.desktop.screenWidth(); }
    float screenHeight() { return t.desktop.screenHeight(); }
    void reopenAt(const std::string& top, const std::string& left)
    {
        window.form.unload();
        t.setIni("Miscellaneous", "SafeinTop", top);
        t.setIni("Miscellaneous", "SafeinLeft", left);
        t.menus().mnuInsertRAW.Click();
    }
    static int functionKey(int number) { return keyCode::f1 + number - 1; }
};

// ---- coming and going ---------------------------------------------------------------------------------------------

TEST_F(SafeinWindow, TheInsertMenuOpensItLoadedAndInFront)
{
    EXPECT_TRUE(window.form.Visible);
    EXPECT_EQ(window.WindowOpen, 1);
    EXPECT_EQ(window.keys.LastKeyIndex, -1);
    EXPECT_EQ(window.form.Caption.get(), "Safein - the Thrustmaster key syntax and RAW code generator");
    int front = 0;
    const Connection connection = window.form.frontWanted.connect([&] { ++front; });
    t.menus().mnuInsertRAW.Click();
    EXPECT_EQ(front, 1);
}

TEST_F(SafeinWindow, HideKeepsEverythingForTheNextTime)
{
    click(keyA);
    window.Command10[0].Click();
    window.Command2.Click();
    EXPECT_FALSE(window.form.Visible);
    EXPECT_EQ(window.WindowOpen, 1);
    t.menus().mnuInsertRAW.Click();
    EXPECT_EQ(statement(), "RAW (#1C)");
    EXPECT_EQ(window.keys.LastKeyIndex, keyA);
}

TEST_F(SafeinWindow, EscHidesAndTheFramesCloseButtonUnloads)
{
    window.form.Escape();
    EXPECT_FALSE(window.form.Visible);
    EXPECT_EQ(window.WindowOpen, 1);
    t.menus().mnuInsertRAW.Click();
    window.form.Close();
    EXPECT_FALSE(window.form.Visible);
    EXPECT_EQ(window.WindowOpen, 0);
}

TEST_F(SafeinWindow, CloseSafeinUnloadsItAndTheNextLoadStartsAnew)
{
    window.ToggleButton1.Click();
    window.Capture.Click();
    click(keyA);
    window.Command5.Click();
    window.mnuOption1[3].Click();
    window.mnuFileClose.Click();
    EXPECT_EQ(window.WindowOpen, 0);
    t.menus().mnuInsertRAW.Click();
    EXPECT_EQ(syntax() + statement(), "");
    EXPECT_EQ(caption(keyA), "a");
    EXPECT_FALSE(window.ToggleButton1.isHeld() || window.Capture.isHeld());
    EXPECT_EQ(window.keys.LastKeyIndex, -1);
    EXPECT_EQ(window.LastAppend, lastAppend::nothing);
    EXPECT_TRUE(window.Command3[0].Visible);
}

TEST_F(SafeinWindow, ClosingForgetsTheLitKeyAndTheCodesThatWereRead)
{
    window.Capture.Click();
    captureKey(window, keyA, shiftKey::none);
    EXPECT_EQ(window.LitKey, keyA);
    window.RawToRead.Text = "#1C";
    window.mnuFileClose.Click();
    t.menus().mnuInsertRAW.Click();
    EXPECT_EQ(window.LitKey, -1);
    EXPECT_EQ(window.RawToRead.Text.get(), "");
}

TEST_F(SafeinWindow, ClosingKeepsItsPlace)
{
    window.form.Top = 1500;
    window.form.Left = 2250;
    window.mnuFileClose.Click();
    EXPECT_EQ(ini("SafeinTop"), "1500");
    EXPECT_EQ(ini("SafeinLeft"), "2250");
}

TEST_F(SafeinWindow, TheBackgroundOfTheStatementIsThatOfTheSettings)
{
    window.form.unload();
    settings.BackgroundColour = 0x123456;
    t.menus().mnuInsertRAW.Click();
    EXPECT_EQ(window.TotalCombinedBackColor, 0x123456);
}

TEST_F(SafeinWindow, TheSameKeyAgainSelectsItsCodesAnew)
{
    click(keyA);
    int selected = 0;
    const Connection make = window.RMakeText.selectAllWanted.connect([&selected] { ++selected; });
    click(keyA);
    EXPECT_GT(selected, 0);
}

TEST_F(SafeinWindow, ItsHelpMenuOpensTheHandbook)
{
    int opened = 0;
    t.menus().mnuHelpContents.handler = [&opened] { ++opened; };
    window.mnuHelpContents.Click();
    EXPECT_EQ(opened, 1);
    window.form.unload();
    t.menus().mnuHelpContents.handler = nullptr;
    t.menus().mnuInsertRAW.Click();
    EXPECT_FALSE(window.mnuHelpContents.Enabled);
}

TEST_F(SafeinWindow, UnloadingSavesTheOptions)
{
    window.mnuUseExtendedRAW.Click();
    window.mnuFileClose.Click();
    EXPECT_EQ(ini("ApplyRAWTMnotes"), "1");
}

TEST(SafeinAtExit, AProgramThatNeverOpenedItLeavesItsSettingsAlone)
{
    TestProgram t;
    t.setIni("Miscellaneous", "UseShfKey", "0");
    t.program().exit();
    EXPECT_EQ(t.ini("Miscellaneous", "UseShfKey"), "0");
    EXPECT_EQ(t.ini("Miscellaneous", "AddSafeinCR"), "(none)");
    EXPECT_EQ(t.ini("Miscellaneous", "SafeinTop"), "(none)");
}

TEST_F(SafeinWindow, OtherUnitsShowAndUnloadItByName)
{
    t.program().operations.UnloadForm("RAWform");
    EXPECT_EQ(window.WindowOpen, 0);
    t.program().mum.toolWindows.show("RAWform");
    EXPECT_EQ(window.WindowOpen, 1);
    EXPECT_TRUE(window.form.Visible);
}

TEST_F(SafeinWindow, TipsFollowTheirOption)
{
    EXPECT_EQ(window.CommandPasteJ[4].ToolTipText.get(), "Insert into currently selected file");
    EXPECT_EQ(window.Command5.ToolTipText.get(), "Paste into the combined section");
    EXPECT_EQ(window.Command10[2].ToolTipText.get(), "Paste into the combined section");
    EXPECT_EQ(window.Command4.ToolTipText.get(), "Clear the combined section text");
    EXPECT_EQ(window.Command14.ToolTipText.get(), "Locate insertion point in the currently selected file");
    EXPECT_EQ(window.Command2.ToolTipText.get(), "Hides Safein and keeps him in memory for faster recall");
    settings.OKtoShowToolTips = 0;
    UpdateTooltips(window);
    EXPECT_EQ(window.CommandPasteJ[4].ToolTipText.get() + window.Command2.ToolTipText.get(), "");
}

TEST_F(SafeinWindow, ItsMenusHaveTheirCommands)
{
    EXPECT_EQ(menuText(window.menuBar()), "&File\n"
                                          " &Close Safein\n"
                                          "&Options\n"
                                          " &Add carriage return\n"
                                          " Add &RAW ()\n"
                                          " &Use SHF key syntax\n"
                                          " &View slash modifiers\n"
                                          " &Keep on top\n"
                                          " &Use extended RAW codes as per An-0001.txt\n"
                                          " -\n"
                                          " &Explain these options\n"
                                          " Explain e&xtended RAW codes\n"
                                          "&Help\n"
                                          " &Tarvex help topics\n"
                                          " -\n"
                                          " &Overview\n"
                                          " What's a &RAW code?\n"
                                          " &Use the Hide button. Why?\n");
    EXPECT_EQ(menuText(window.delayMenu()), "20\n40\n60\n80\n100\n150\n200\n300\n400\n500\n");
}

TEST_F(SafeinWindow, ItsControlsAreNamed)
{
    const std::pair<const Button*, std::string> buttons[] = {{&window.Command6, "DLY()"},
                                                             {&window.Command7, "Rem"},
                                                             {&window.Command14, "Find IP"},
                                                             {&window.Command2, "Hide"}};
    for (const auto& [button, caption] : buttons) EXPECT_EQ(button->Caption.get(), caption);
    for (const Button& button : window.CommandPasteJ) EXPECT_EQ(button.Caption.get(), "Insert");
    EXPECT_EQ(window.Capture.Caption.get(), "Capture keys");
    EXPECT_EQ(window.Capture.ToolTipText.get(), "Look up the keys that you press; Ctrl+Esc ends it");
    EXPECT_EQ(window.form.Width.get() / twipsPerPixel, 960);
    EXPECT_EQ(window.form.Height.get() / twipsPerPixel, 600);
}

TEST_F(SafeinWindow, HelpThatIsNotThereIsGreyed)
{
    window.HelpTopic = nullptr;
    window.ShowInfoItem = nullptr;
    window.form.unload();
    t.menus().mnuInsertRAW.Click();
    EXPECT_FALSE(window.mnuRawOverview.Enabled || window.mnuOptionsExplain.Enabled);
    int topic = 0;
    int item = 0;
    window.HelpTopic = [&](int number) { topic = number; };
    window.ShowInfoItem = [&](int number) { item = number; };
    window.form.unload();
    t.menus().mnuInsertRAW.Click();
    EXPECT_TRUE(window.mnuRawOverview.Enabled);
    window.mnuRawOverview.Click();
    EXPECT_EQ(topic, 2500);
    window.mnuHelpRawcodes.Click();
    EXPECT_EQ(topic, 2510);
    window.mnuOptionsExplain.Click();
    EXPECT_EQ(item, 30);
    window.mnuExtendedExplain.Click();
    EXPECT_EQ(item, 31);
    window.mnuUseHideButton.Click();
    EXPECT_EQ(item, 32);
}

TEST_F(SafeinWindow, FindIPHighlightsTheLine)
{
    t.typeJoystick("BTN S1");
    window.Command14.Click();
    EXPECT_TRUE(editor.TimerBlinkLine.Enabled);
}

// ---- place --------------------------------------------------------------------------------------------------------

TEST_F(SafeinWindow, WithoutARememberedPlaceItStandsInTheMiddle)
{
    EXPECT_EQ(window.form.Top.get(), (screenHeight() - window.form.Height) / 2);
    EXPECT_EQ(window.form.Left.get(), (screenWidth() - window.form.Width) / 2);
}

TEST_F(SafeinWindow, ARememberedPlaceIsTakenWithinTheScreen)
{
    reopenAt("0", std::to_string(static_cast<int>(screenWidth())));
    EXPECT_EQ(window.form.Top.get(), 0.0F);
    EXPECT_EQ(window.form.Left.get(), screenWidth());
}

TEST_F(SafeinWindow, APlaceOffTheScreenBecomes200)
{
    reopenAt("-1", std::to_string(static_cast<int>(screenWidth()) + 1));
    EXPECT_EQ(window.form.Top.get(), 200.0F);
    EXPECT_EQ(window.form.Left.get(), 200.0F);
}

TEST_F(SafeinWindow, SavingThePlaceKeepsTheSameBounds)
{
    window.form.Top = -5.0F;
    window.form.Left = 300.0F;
    SavePosition(window);
    EXPECT_EQ(ini("SafeinTop"), "200");
    EXPECT_EQ(ini("SafeinLeft"), "300");
    window.form.Top = screenHeight() + 1;
    SavePosition(window);
    EXPECT_EQ(ini("SafeinTop"), "200");
}

TEST_F(SafeinWindow, AMinimisedWindowsPlaceIsNotSaved)
{
    window.form.State = WindowState::Minimised;
    SavePosition(window);
    EXPECT_EQ(ini("SafeinTop"), "(none)");
}

TEST_F(SafeinWindow, ItIsMinimisedWithTheFrame)
{
    settings.MinimiseAll = 1;
    t.program().mum.toolWindows.minimiseAll();
    EXPECT_EQ(window.form.State, WindowState::Minimised);
    t.program().mum.toolWindows.restoreAll();
    EXPECT_EQ(window.form.State, WindowState::Normal);
}

// ---- keys for the program -----------------------------------------------------------------------------------------

TEST_F(SafeinWindow, FunctionKeysRunTheirCommandsWhateverIsHeld)
{
    const std::pair<int, MenuItem*> rows[] = {
        {2, &t.menus().mnuShowInsertWindow},   {3, &t.menus().mnuComposerPlugin},   {5, &t.menus().mnuInsertHeading},
        {6, &t.menus().mnuInsertRemStatement}, {7, &t.menus().mnuViewIdentify},     {8, &t.menus().mnuFileOpen},
        {9, &t.menus().mnuPreferencesEdit},    {11, &t.menus().mnuAppsJoyAnalyser}, {12, &t.menus().mnuSendToJoystick}};
    t.menus().mnuFileSaveBoth.Enabled = false; // it is Ctrl+F8
    for (const auto& [number, item] : rows) {
        int runs = 0;
        item->handler = [&runs] { ++runs; };
        item->Enabled = false; // counts for keys with Ctrl only
        for (const int held : {shiftKey::none, shiftKey::shift, shiftKey::shift | shiftKey::ctrl})
            EXPECT_FALSE(window.form.KeyDown(functionKey(number), held));
        EXPECT_EQ(runs, 3) << number;
        EXPECT_FALSE(window.form.KeyDown(functionKey(number), shiftKey::ctrl));
        EXPECT_EQ(runs, 3) << number;
        item->handler = nullptr;
    }
}

TEST_F(SafeinWindow, CtrlKeysRunTheirCommandsWhileEnabledAndGoNoFurther)
{
    const std::pair<int, MenuItem*> rows[] = {{'Z', &t.menus().mnuEditUndo},
                                              {'Y', &t.menus().mnuEditRedo},
                                              {'X', &t.menus().mnuEditCut},
                                              {'C', &t.menus().mnuEditCopy},
                                              {'V', &t.menus().mnuEditPaste},
                                              {'A', &t.menus().mnuEditSelectAll},
                                              {'F', &t.menus().mnuEditFind},
                                              {'G', &t.menus().mnuEditGoto},
                                              {'R', &t.menus().mnuEditReplace},
                                              {'N', &t.menus().mnuFileNewJoystick},
                                              {'O', &t.menus().mnuFileJoystickLoad},
                                              {'S', &t.menus().mnuFileSave},
                                              {'P', &t.menus().mnuFilePrintJoystick},
                                              {'U', &t.menus().mnuEditUpdateMacros},
                                              {'H', &t.menus().mnuViewReformat},
                                              {'B', &t.menus().mnuViewApplyColourBothFiles},
                                              {'T', &t.menus().mnuViewApplyColourBothFiles},
                                              {'K', &t.menus().mnuSendToKeyTest},
                                              {'L', &t.menus().mnuViewHighlightLine},
                                              {functionKey(8), &t.menus().mnuFileSaveBoth}};
    for (const auto& [key, item] : rows) {
        int runs = 0;
        item->handler = [&runs] { ++runs; };
        item->Enabled = true;
        EXPECT_TRUE(window.form.KeyDown(key, shiftKey::ctrl)) << key;
        EXPECT_EQ(runs, 1) << key;
        item->Enabled = false;
        EXPECT_FALSE(window.form.KeyDown(key, shiftKey::ctrl)) << key;
        EXPECT_EQ(runs, 1) << key;
        item->Enabled = true;
        EXPECT_FALSE(window.form.KeyDown(key == functionKey(8) ? 'Q' : key, shiftKey::ctrl | shiftKey::shift)) << key;
        EXPECT_EQ(runs, 1) << key;
        item->handler = nullptr;
    }
}

TEST_F(SafeinWindow, F4MinimisesItAndGivesTheKeyboardToTheEditor)
{
    int front = 0;
    const Connection connection = t.program().mum.form.frontWanted.connect([&] { ++front; });
    EXPECT_FALSE(window.form.KeyDown(keyCode::f4, shiftKey::none));
    EXPECT_EQ(window.form.State, WindowState::Minimised);
    EXPECT_EQ(front, 1);
    t.menus().mnuInsertRAW.Click();
    EXPECT_EQ(window.form.State, WindowState::Normal);
}

TEST_F(SafeinWindow, PlainLettersAreNobodysCommand)
{
    const std::string before = joystick();
    for (int key = '0'; key <= 'Z'; ++key) EXPECT_FALSE(window.form.KeyDown(key, shiftKey::none));
    EXPECT_EQ(joystick(), before);
}

TEST_F(SafeinWindow, ASelectedSignIsReadAndNoSelectionIsNot)
{
    t.typeJoystick("#1C");
    window.RawToRead.Text = "before";
    select(0, 0);
    EXPECT_EQ(window.RawToRead.Text.get(), "before");
    select(0, 1);
    EXPECT_EQ(window.RawToRead.Text.get(), "#");
}

TEST_F(SafeinWindow, AKeyWhoseCommandFailsIsNotSwallowed)
{
    t.menus().mnuEditSelectAll.handler = [] { throw RuntimeError(ErrorCode::DeviceInputOutput, "broken"); };
    EXPECT_FALSE(window.form.KeyDown('A', shiftKey::ctrl));
}

} // namespace
} // namespace tarvex
