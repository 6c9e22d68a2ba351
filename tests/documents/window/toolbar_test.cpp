#include "documents/window/toolbar.h"

#include "documents/editing/clipboard_commands.h"
#include "documents/pair/document_status.h"
#include "documents/pair/noted_caret.h"
#include "documents/pair/tabs.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct ToolbarTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    ToolBar& bar = t.program().mum.Toolbar1;
    std::string ran; ///< name of the command that a click ran

    /// Commands only note that they were run.
    void watch(MenuItem& item)
    {
        item.handler = [this, &item] { ran += item.Name; };
    }
    void watchAll()
    {
        Menus& menus = t.menus();
        for (const ToolbarButton& slot : toolbarButtons()) {
            for (MenuItem Menus::*command : {slot.joystick, slot.macro, slot.both.command}) {
                if (command != nullptr) watch(menus.*command);
            }
        }
    }
    std::string click(int button)
    {
        ran.clear();
        Toolbar1_ButtonClick(editor, button);
        return ran;
    }
    /// Buttons of 20 by 20 pixels in a row, the first from x = 20.
    void layOut()
    {
        for (int number = 1; number <= bar.Count(); ++number) bar.Buttons(number).Place = {20 * number, 5, 20, 20};
    }
    std::string hover(int button)
    {
        Toolbar1_MouseMove(editor, 0, 0, static_cast<float>(20 * button + 10), 15);
        return t.status();
    }
    std::string moveTo(float x, float y)
    {
        Toolbar1_MouseMove(editor, 0, 0, x, y);
        return t.status();
    }
    Pane& pane() { return editor.JoystickText; }
};

// ---- commands ----

struct Dispatch {
    int button;
    const char* joystick;
    const char* macro;
};

constexpr Dispatch dispatch[] = {
    {1, "mnuFileNewJoystick", "mnuFileNewMacro"},
    {2, "mnuFileJoystickLoad", "MnuFileMacroLoad"},
    {3, "mnuFileSave", "mnuFileSave"},
    {4, "", ""},
    {5, "mnuFilePrintJoystick", "mnuFilePrintMacro"},
    {6, "", ""},
    {7, "mnuEditCut", "mnuEditCut"},
    {8, "mnuEditCopy", "mnuEditCopy"},
    {9, "mnuEditPaste", "mnuEditPaste"},
    {10, "", ""},
    {11, "mnuEditUndo", "mnuEditUndo"},
    {12, "mnuEditRedo", "mnuEditRedo"},
    {13, "", ""},
    {14, "mnuEditFind", "mnuEditFind"},
    {15, "mnuEditReplace", "mnuEditReplace"},
    {16, "mnuEditGoto", "mnuEditGoto"},
    {17, "", ""},
    {18, "mnuFavouritesAddCurrent", "mnuFavouritesAddCurrent"},
    {19, "", ""},
    {20, "mnuEditUpdateMacros", "mnuEditUpdateMacros"},
    {21, "mnuViewMacros", "mnuViewMacros"},
    {22, "", ""},
    {23, "mnuShowInsertWindow", "mnuShowInsertWindow"},
    {24, "mnuComposerPlugin", "mnuComposerPlugin"},
    {25, "mnuInsertRAW", "mnuInsertRAW"},
    {26, "mnuInsertTitle", "mnuInsertTitle"},
    {27, "mnuInsertHeading", "mnuInsertHeading"},
    {28, "mnuInsertRemStatement", "mnuInsertRemStatement"},
    {29, "", ""},
    {30, "mnuViewTileVertically", "mnuViewTileVertically"},
    {31, "", ""},
    {32, "mnuViewColourJoystick", "mnuViewColourMacro"},
    {33, "mnuViewHighlightLine", "mnuViewHighlightLine"},
    {34, "mnuViewIdentify", "mnuViewIdentify"},
    {35, "", ""},
    {36, "mnuLauncher", "mnuLauncher"},
    {37, "mnuAppsProPanel", "mnuAppsProPanel"},
    {38, "mnuAppsCTFJ", "mnuAppsCTFJ"},
    {39, "mnuAppsImageViewer", "mnuAppsImageViewer"},
    {40, "mnuSendToKeyTest", "mnuSendToKeyTest"},
    {41, "mnuAppsTemplate", "mnuAppsTemplate"},
    {42, "mnuAppsCandCC", "mnuAppsCandCC"},
    {43, "", ""},
    {44, "mnuSendToJoystick", "mnuSendToJoystick"},
    {45, "", ""},
    {46, "mnuPreferencesEdit", "mnuPreferencesEdit"},
    {47, "mnuHelpContents", "mnuHelpContents"},
};
static_assert(std::size(dispatch) == Mum::toolbarButtons);

TEST_F(ToolbarTest, EachButtonRunsItsCommandByTab)
{
    watchAll();
    t.settings().OpenBothOnToolbar = 0;
    t.settings().SaveBothOnToolbar = 0;
    for (const Dispatch& row : dispatch) {
        editor.TabStrip1.Select(1);
        EXPECT_EQ(click(row.button), row.joystick) << row.button;
        editor.TabStrip1.Select(2);
        EXPECT_EQ(click(row.button), row.macro) << row.button;
    }
}

TEST_F(ToolbarTest, ANumberOutsideTheBarDoesNothing)
{
    watchAll();
    for (const int number : {-1, 0, 48, 49, 32767}) EXPECT_EQ(click(number), "") << number;
}

TEST_F(ToolbarTest, OpenAndSaveFollowWhetherBothFilesAreMeant)
{
    watchAll();
    for (const int tab : {1, 2}) {
        editor.TabStrip1.Select(tab);
        t.settings().OpenBothOnToolbar = 1;
        t.settings().SaveBothOnToolbar = 1;
        EXPECT_EQ(click(2), "mnuFileOpen");
        EXPECT_EQ(click(3), "mnuFileSaveBoth");
        t.settings().OpenBothOnToolbar = 2; // a flag is tested against 1
        t.settings().SaveBothOnToolbar = 2;
        EXPECT_EQ(click(2), tab == 1 ? "mnuFileJoystickLoad" : "MnuFileMacroLoad");
        EXPECT_EQ(click(3), "mnuFileSave");
    }
}

TEST_F(ToolbarTest, Button2WithTab2SelectedAndOpenBothOffOpensAMacroFile)
{
    t.files.write("c:\\tm\\b50progs\\lance.m50", "Fire = a");
    t.settings().OpenBothOnToolbar = 0;
    t.settings().OpenSingleFileOnly = 1;
    editor.TabStrip1.Select(2);
    t.dialogues.filesToOpen = {"c:\\tm\\b50progs\\lance.m50"};
    Toolbar1_ButtonClick(editor, 2);
    EXPECT_EQ(editor.macro.FileName, "lance.m50");
    EXPECT_EQ(editor.MacroText.Text(), "Fire = a");
}

TEST_F(ToolbarTest, ACommandThatFailsLeavesTheProgramRunningAndIsRecorded)
{
    t.menus().mnuEditFind.handler = [] { throw RuntimeError(ErrorCode::InvalidCall, "broken"); };
    Toolbar1_ButtonClick(editor, 14);
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "MUM Toolbar1_ButtonClick");
    EXPECT_EQ(t.program().shared.errors.ErrorDescription, "broken");
}

TEST_F(ToolbarTest, AButtonIsOfferedWhileItAndItsCommandAreEnabled)
{
    watchAll();
    EXPECT_TRUE(toolbarOffers(editor, 14));
    t.menus().mnuEditFind.Enabled = false;
    EXPECT_FALSE(toolbarOffers(editor, 14));
    t.menus().mnuEditFind.Enabled = true;
    bar.Buttons(14).Enabled = false;
    EXPECT_FALSE(toolbarOffers(editor, 14));
    bar.Buttons(14).Enabled = true;
    t.menus().mnuEditFind.handler = nullptr;
    EXPECT_FALSE(toolbarOffers(editor, 14)) << "nobody does the work yet";
    EXPECT_FALSE(toolbarOffers(editor, 4)) << "a separator";
    EXPECT_FALSE(toolbarOffers(editor, 48));
    EXPECT_TRUE(toolbarOffers(editor, 29)) << "the picture";
}

TEST_F(ToolbarTest, TheDownloadButtonStaysEnabledWhenItsCommandIsNot)
{
    watchAll();
    t.openBoth("c:\\tm\\b50progs\\x.f22");
    editor.TabStrip1.Tabs(1).Caption = "x.f22";
    updateDownload(editor);
    ASSERT_FALSE(t.menus().mnuSendToJoystick.Enabled);
    EXPECT_TRUE(toolbarOffers(editor, 44));
}

// ---- texts of the mouse ----

struct HoverText {
    int button;
    const char* text;
};

constexpr const char* welcome = "Welcome to Tarvex Freeware";
constexpr HoverText hoverTexts[] = {
    {1, "Create a new joystick or macro file"},
    {2, "Open a file"},
    {3, "Save currently selected file"},
    {4, welcome},
    {5, "Print currently selected file"},
    {6, welcome},
    {7, "Cut"},
    {8, "Copy"},
    {9, "Paste"},
    {10, welcome},
    {11, "Undo editing"},
    {12, "Redo - the opposite of Undo"},
    {13, welcome},
    {14, "Find word or phrase in file"},
    {15, "Find word or phrase in file and replace with some other text"},
    {16, "Goto line number - useful when a download files with an error at a line number"},
    {17, welcome},
    {18, "Add current files to the Favourites menu - editable from the Preferences window"},
    {19, welcome},
    {20, "Update macros in the macro list to reflect changes to the macro file"},
    {21, "View the macros list"},
    {22, welcome},
    {23, "Open up the Composer"},
    {24, "Select a template and insert it"},
    {25, "Open up Safein - the graphical keyboard"},
    {26, "Insert a Title at the beginning of the current file"},
    {27, "Insert Heading - essential for subdividing your macros in your macro file"},
    {28, "Insert a Rem statement for adding comments to your file"},
    {29, "Colour of text at cursor - click to select a different colour"},
    {30, "Show the joystick and macro files tiled vertically"},
    {31, welcome},
    {32, "Apply colour highlighting to selected file"},
    {33, "Highlight the line containing the insertion point"},
    {34, "Identify the macros used in the joystick file"},
    {35, welcome},
    {36, "Run the Launcher"},
    {37, "Calibrate your controllers in Windows"},
    {38, "Use Ned Marl's CTFJ utility to correct the registry calibration data"},
    {39, "Open up the Image viewer"},
    {40, "Open up the Key tester to check the output from your controllers"},
    {41, "Open up the Template Editor for creating/editing templates"},
    {42, "Run the Thrustmaster Control Centre DOS software"},
    {43, welcome},
    {44, "Download joystick file to joystick"},
    {45, welcome},
    {46, "Edit your Preferences and customise Tarvex"},
    {47, "View the help file"},
    {48, welcome},
};

TEST_F(ToolbarTest, EachButtonSaysWhatItIsForWhenTheMouseIsOverIt)
{
    layOut();
    t.settings().OpenBothOnToolbar = 0;
    t.settings().SaveBothOnToolbar = 0;
    for (const HoverText& row : hoverTexts) {
        editor.status("x");
        EXPECT_EQ(hover(row.button), row.text) << row.button;
    }
    t.settings().OpenBothOnToolbar = 1;
    t.settings().SaveBothOnToolbar = 1;
    EXPECT_EQ(hover(2), "Open joystick file and its macro file");
    EXPECT_EQ(hover(3), "Save both files");
}

TEST_F(ToolbarTest, TheEdgesOfAButtonDontBelongToIt)
{
    layOut();
    EXPECT_EQ(moveTo(140, 15), welcome) << "7 begins here";
    EXPECT_EQ(moveTo(140.5F, 15), "Cut");
    EXPECT_EQ(moveTo(159.5F, 15), "Cut");
    EXPECT_EQ(moveTo(160, 15), welcome);
    EXPECT_EQ(moveTo(150, 5), welcome);
    EXPECT_EQ(moveTo(150, 5.5F), "Cut");
    EXPECT_EQ(moveTo(150, 24.5F), "Cut");
    EXPECT_EQ(moveTo(150, 25), welcome);
    EXPECT_EQ(moveTo(0, 0), welcome);
}

TEST_F(ToolbarTest, OfButtonsThatOverlapTheFirstCounts)
{
    layOut();
    bar.Buttons(12).Place = bar.Buttons(9).Place;
    EXPECT_EQ(hover(9), "Paste");
}

TEST_F(ToolbarTest, WithButtonsOnStatusBar0NoHoverTextEverAppearsAndThePanelKeepsTheLastMessage)
{
    layOut();
    t.settings().ButtonsOnStatusBar = 0;
    editor.status("Saved lance.b50");
    for (const HoverText& row : hoverTexts) EXPECT_EQ(hover(row.button), "Saved lance.b50") << row.button;
    Picture1_MouseMove(editor);
    StatusBar_MouseMove(editor, 100);
    StatusBar_MouseMove(editor, 5000);
    EXPECT_EQ(t.status(), "Saved lance.b50");
}

TEST_F(ToolbarTest, ATextThatBeginsCompileSurvivesTheMouse)
{
    layOut();
    const std::string result = "Compile OK, no errors";
    editor.status(result);
    EXPECT_EQ(hover(7), result);
    EXPECT_EQ(hover(4), result);
    Picture1_MouseMove(editor);
    StatusBar_MouseMove(editor, 100);
    EXPECT_EQ(t.status(), result);
    editor.status("No Compile today");
    EXPECT_EQ(hover(7), "Cut") << "only at the beginning";
}

TEST_F(ToolbarTest, TheStatusBarGreetsAndThenWantsABeer)
{
    const std::string greeting = "Hi there buddy, I'm the status bar";
    const std::string beer = "What say you and I give up on this programming lark and go and get a beer?";
    editor.status("Ready");
    StatusBar_MouseMove(editor, 4020);
    EXPECT_EQ(t.status(), "Ready") << "further along without a greeting";
    StatusBar_MouseMove(editor, 4019);
    EXPECT_EQ(t.status(), greeting);
    StatusBar_MouseMove(editor, 0);
    EXPECT_EQ(t.status(), greeting);
    StatusBar_MouseMove(editor, 4020);
    EXPECT_EQ(t.status(), beer);
    StatusBar_MouseMove(editor, 9000);
    EXPECT_EQ(t.status(), beer);
    StatusBar_MouseMove(editor, 10);
    EXPECT_EQ(t.status(), greeting);
}

TEST_F(ToolbarTest, TheFramesPanelsStartWithTheirTexts)
{
    Mum mum;
    const std::pair<const char*, const char*> panels[] = {
        {"Welcome!", ""},
        {"", "Currently active file saved state"},
        {"Line no:", "Current insertion point in the joystick file"},
        {"CAPS", "State of the Caps Lock key"},
        {"", "State of the Insert key"},
        {"", "State of the Num Lock key"},
        {"", "The current time"},
        {"No macrofile analysed", "The macros in the macros list are from this file"},
    };
    for (int number = 1; number <= 8; ++number) {
        EXPECT_EQ(mum.StatusBar.Panels(number).Text.get(), panels[number - 1].first) << number;
        EXPECT_EQ(mum.StatusBar.Panels(number).ToolTipText.get(), panels[number - 1].second) << number;
    }
}

// ---- tips ----

TEST_F(ToolbarTest, WithOKtoShowToolTips0AllTipsAreBlankThoughTheHoverTextsGoOn)
{
    layOut();
    t.settings().OKtoShowToolTips = 0;
    t.program().operations.UpdateTooltips();
    for (int number = 1; number <= bar.Count(); ++number)
        EXPECT_EQ(bar.Buttons(number).ToolTipText.get(), "") << number;
    t.program().operations.UpdateToolBarOpenSaveTooltips();
    EXPECT_EQ(bar.Buttons(2).ToolTipText.get(), "");
    EXPECT_EQ(bar.Buttons(3).ToolTipText.get(), "");
    EXPECT_EQ(hover(2), "Open joystick file and its macro file");
}

TEST_F(ToolbarTest, TheProgramStartsWithTipsAndWithoutTheExtraButtons)
{
    EXPECT_EQ(bar.Buttons(2).ToolTipText.get(), "Open joystick file and its macro file (F8)");
    EXPECT_EQ(bar.Buttons(46).ToolTipText.get(), "Edit Preferences (F9)");
    EXPECT_TRUE(bar.Flat);
    EXPECT_FALSE(bar.Wrappable);
    for (int number = 34; number <= 43; ++number) {
        const bool extra = number >= 35 && number <= 42 && number != 37; // calibration has a setting of its own
        EXPECT_EQ(bar.Buttons(number).Visible, !extra) << number;
    }
}

TEST_F(ToolbarTest, TheMacroListsHaveATipWhileTipsAreWanted)
{
    t.typeMacro("Fire = a\r\n");
    editor.macro.Changed = changed::saved; // no question
    t.menus().mnuEditUpdateMacros.Click();
    const auto& lists = editor.FrameMacros.List1;
    ASSERT_GT(lists.size(), 0U);
    EXPECT_EQ(lists.back().ToolTipText.get(), "Double click macro to insert into Joystick file, or use drag and drop");
    t.settings().OKtoShowToolTips = 0;
    t.program().operations.UpdateEditorTooltips();
    for (const CheckListBox& list : lists) EXPECT_EQ(list.ToolTipText.get(), "");
    t.menus().mnuEditUpdateMacros.Click();
    for (const CheckListBox& list : lists) EXPECT_EQ(list.ToolTipText.get(), "");
}

TEST_F(ToolbarTest, UndoAndRedoButtonsFollowTheHistoryOfTheSelectedTab)
{
    t.typeJoystick("a");
    EXPECT_TRUE(bar.Buttons(11).Enabled);
    EXPECT_EQ(bar.Buttons(11).ToolTipText.get(), "Undo (1)");
    EXPECT_FALSE(bar.Buttons(12).Enabled);
    EXPECT_EQ(bar.Buttons(12).ToolTipText.get(), "Redo");
    Toolbar1_ButtonClick(editor, 11);
    EXPECT_FALSE(bar.Buttons(11).Enabled);
    EXPECT_EQ(bar.Buttons(11).ToolTipText.get(), "Undo");
    EXPECT_EQ(bar.Buttons(12).ToolTipText.get(), "Redo (1)");
    editor.TabStrip1.Select(2);
    EXPECT_FALSE(bar.Buttons(12).Enabled);
}

// ---- cut, copy, paste ----

struct CCP {
    bool cut, copy, paste;
    bool operator==(const CCP&) const = default;
};

CCP offered(const Menus& menus)
{
    return {menus.mnuEditCut.Enabled, menus.mnuEditCopy.Enabled, menus.mnuEditPaste.Enabled};
}

TEST_F(ToolbarTest, CutAndCopyFollowTheSelectionAndPasteTheClipboard)
{
    t.typeJoystick("BTN S1 a");
    const auto buttons = [&] { return CCP{bar.Buttons(7).Enabled, bar.Buttons(8).Enabled, bar.Buttons(9).Enabled}; };
    Text_GotFocus(editor, editor.joystick);
    EXPECT_EQ(offered(t.menus()), (CCP{false, false, false}));
    EXPECT_EQ(buttons(), (CCP{false, false, false}));
    pane().setSelStart(0);
    pane().setSelLength(3);
    noteCaret(editor, editor.joystick);
    EXPECT_EQ(offered(t.menus()), (CCP{true, true, false}));
    Toolbar1_ButtonClick(editor, 8);
    EXPECT_EQ(offered(t.menus()), (CCP{true, true, true})) << "at once, without a key or a click in the pane";
    EXPECT_EQ(buttons(), (CCP{true, true, true}));
    t.clipboard.content = {};
    Text_GotFocus(editor, editor.joystick);
    EXPECT_EQ(offered(t.menus()), (CCP{true, true, false}));
    t.clipboard.content.rtf = "{\\rtf1 x}";
    Text_GotFocus(editor, editor.joystick);
    EXPECT_TRUE(t.menus().mnuEditPaste.Enabled);
    Toolbar1_ButtonClick(editor, 7);
    EXPECT_EQ(offered(t.menus()), (CCP{false, false, true})) << "nothing is selected any more";
}

TEST_F(ToolbarTest, AProtectedPaneOffersNeitherCutNorPaste)
{
    t.typeMacro("Fire = a");
    t.clipboard.content.text = "x";
    editor.TabStrip1.Select(2);
    t.menus().mnuEditSelectAll.Click();
    EXPECT_EQ(offered(t.menus()), (CCP{true, true, true}));
    t.menus().mnuPreferencesProtectMacroFile.Click();
    EXPECT_EQ(offered(t.menus()), (CCP{false, true, false}));
    t.menus().mnuPreferencesProtectMacroFile.Click();
    EXPECT_EQ(offered(t.menus()), (CCP{true, true, true}));
}

// ---- frame ----

TEST_F(ToolbarTest, TheGradientIsPaintedWhenWantedAndReleasedAtExit)
{
    EXPECT_FALSE(t.program().mum.Gradient);
    t.setIni("Miscellaneous", "GradientEffect", "1");
    t.start();
    EXPECT_TRUE(t.program().mum.Gradient);
    EXPECT_TRUE(t.program().exit());
    EXPECT_FALSE(t.program().mum.Gradient);
}

} // namespace
} // namespace tarvex
