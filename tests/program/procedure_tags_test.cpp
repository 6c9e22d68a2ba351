// What a failure in a procedure is reported under, where no command of the menus alone gets there: each failure is that
// of a file, a dialogue, a pane or a control.

#include "documents/editing/pane_events.h"
#include "documents/files/auto_save.h"
#include "documents/files/outside_notice.h"
#include "documents/pair/editor_layout.h"
#include "language/commands/coloured_insertion.h"
#include "language/commands/macro_filter.h"
#include "language/commands/macro_keys.h"
#include "language/commands/macro_list_events.h"
#include "platform/input.h"
#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace tarvex {
namespace {

using testing::Contains;

constexpr const char* mig = "c:\\tm\\b50progs\\mig.b50";

struct ProcedureTags : testing::Test {
    TestProgram t{false};

    static void fail() { throw RuntimeError(ErrorCode::DeviceInputOutput, "broken"); }
    void start()
    {
        t.files.addFile(mig, "USE MDEF mig\r\nBTN S1 fire \r\n");
        t.files.addFile("c:\\tm\\b50progs\\mig.m50", "Rem ---\r\nRem Guns\r\nRem ---\r\nfire = f\r\n");
        t.start();
    }
    void open() { t.openBoth(mig); }
    Editor& editor() { return t.editor(); }
    Pane& pane() { return editor().JoystickText; }
    /// Everything that is reported while the work runs.
    std::set<std::string> tagsOf(const std::function<void()>& work)
    {
        std::set<std::string> tags;
        ErrorRecord& errors = t.program().shared.errors;
        errors.reportWindow = [&] { tags.insert(errors.ErrorProcedure); };
        work();
        errors.reportWindow = {};
        return tags;
    }
    /// The same while each change of the control's property fails.
    template <typename T> std::set<std::string> tagsOf(Property<T>& broken, const std::function<void()>& work)
    {
        const Connection failing = broken.changed.connect(fail);
        return tagsOf(work);
    }
    /// The same while each edit and each selection in a pane fails.
    std::set<std::string> tagsWithBroken(Pane& broken, const std::function<void()>& work)
    {
        const Connection edits = broken.edited.connect([](const Pane::Edit&) { fail(); });
        const Connection selections = broken.selectionChanged.connect(fail);
        return tagsOf(work);
    }
};

// ---- settings -------------------------------------------------------------------------------------------------------

TEST_F(ProcedureTags, OfSettingsThatHoldNoNumberBelongToThoseWhoReadThem)
{
    start();
    for (const char* key : {"NumberOfBlanks", "SafeinOnTop", "UndoMax"}) t.setIni("Miscellaneous", key, "99999");
    t.setIni("PreviousJoystickFiles", "JFArrayNum", "99999");
    t.setIni("WinLoad", "WinLoadThr", "99999");
    t.files.addFile("c:\\tarvex\\TCA.ini", "[Options]\r\nTCAGridCellSize=99999\r\n");
    t.files.addFile("c:\\tarvex\\Lists.ini", "[Loaders]\r\nNumPreviousLoaders=99999\r\n");
    Program& program = t.program();
    EXPECT_THAT(tagsOf([&] { program.shared.store.GetOptions(); }), Contains("MODULE GetOptions"));
    EXPECT_THAT(tagsOf([&] { editor().operations.GetPreviousFiles(); }), Contains("MODULE GetPreviousFiles"));
    EXPECT_THAT(tagsOf([&] { program.composer.form.open(); }), Contains("COMPOSER GetSpaces"));
    EXPECT_THAT(tagsOf([&] { program.safein.form.open(); }), Contains("SAFEIN GetSafeinOptions"));
    EXPECT_THAT(tagsOf([&] { program.testers.controllerAnalyser.form.open(); }), Contains("MODULE GetTcaOptions"));
    const auto ofPreferences = tagsOf([&] { t.menus().mnuPreferencesEdit.Click(); });
    EXPECT_THAT(ofPreferences, Contains("PREFS GetWinloadStuff"));
    EXPECT_THAT(ofPreferences, Contains("PREFS GetPreviousLoaders"));
}

TEST_F(ProcedureTags, OfPlacesThatHoldNoNumberBelongToTheirWindows)
{
    start();
    t.setIni("Miscellaneous", "ComposerTop", "top");
    t.setIni("Miscellaneous", "SafeinTop", "top");
    t.setIni("Online Help", "InfoWindowTop", "top");
    EXPECT_THAT(tagsOf([&] { t.program().composer.form.open(); }), Contains("COMPOSER PositionComposer"));
    EXPECT_THAT(tagsOf([&] { t.program().safein.form.open(); }), Contains("SAFEIN PositionSafein"));
    EXPECT_THAT(tagsOf([&] { t.program().help.info.form.open(); }), Contains("INFO PositionInfoWindow"));
}

// ---- panes ----------------------------------------------------------------------------------------------------------

TEST_F(ProcedureTags, OfAPanesKeysAndMouseNameThePane)
{
    start();
    open();
    const auto tagsOfEvents = [this](Side& side) {
        editor().TabStrip1.Select(side.tab);
        std::set<std::string> tags;
        const auto collect = [&](const std::function<void()>& event) {
            editor().Noted = {};
            t.program().mum.StatusBar.Panels(panel::line).Text = "none";
            tags.merge(tagsOf(t.program().mum.StatusBar.Panels(panel::line).Text, event));
        };
        collect([&] { Text_KeyDown(editor(), side, "Down"); });
        collect([&] { Text_KeyUp(editor(), side); });
        collect([&] { Text_Click(editor(), side); });
        editor().status("anything else");
        const Connection failing = t.program().mum.StatusBar.Panels(1).Text.changed.connect(fail);
        tags.merge(tagsOf([&] { Text_MouseDown(editor(), side, mouseButton::left, false); }));
        return tags;
    };
    EXPECT_THAT(tagsOfEvents(editor().joystick),
                testing::IsSupersetOf({"ED_JoystickText_KeyDown", "ED_JoystickText_KeyUp", "ED_JoystickText_Click",
                                       "ED_JoystickText_MouseDown"}));
    EXPECT_THAT(tagsOfEvents(editor().macro), testing::IsSupersetOf({"ED_MacroText_KeyDown", "ED_MacroText_KeyUp",
                                                                     "ED_Macrotext_Click", "ED_MacroText_MouseDown"}));
}

TEST_F(ProcedureTags, OfTextThatCannotBeWrittenBelongToTheCommand)
{
    start();
    open();
    t.typeJoystick("x");
    t.menus().mnuEditUndo.Click();
    EXPECT_THAT(tagsWithBroken(pane(), [&] { t.menus().mnuEditRedo.Click(); }), Contains("ED_mnuEditRedo_Click"));
    const auto written = [this](const std::function<void()>& work) { return tagsWithBroken(pane(), work); };
    EXPECT_THAT(written([&] { InsertBlackBlanks(editor()); }), Contains("ED_InsertBlackBlanks"));
    EXPECT_THAT(written([&] { InsertCarriageReturn(editor()); }), Contains("ED_InsertCarriageReturn"));
    EXPECT_THAT(written([&] { editor().FrameMacros.Command1[0].Click(); }), Contains("ED_Command1_Click"));
    t.typeJoystick("y");
    EXPECT_THAT(tagsOf(t.menus().mnuEditUndo.Caption, [&] { EndColInsert(editor()); }), Contains("ED_EndColInsert"));
}

TEST_F(ProcedureTags, OfTheFlashingLineBelongToItsTimer)
{
    start();
    open();
    t.menus().mnuViewHighlightLine.Click();
    EXPECT_THAT(tagsWithBroken(pane(), [&] { editor().TimerBlinkLine.Tick(); }), Contains("ED_TimerBlinkLine_Timer"));
}

// ---- files ----------------------------------------------------------------------------------------------------------

TEST_F(ProcedureTags, OfOpeningAndSavingAreThoseOfTheirSteps)
{
    start();
    open();
    EXPECT_THAT(tagsOf(editor().FrameMacros.Combo1.Items, [&] { open(); }), Contains("ED_ClearAllForNewMacroFile"));
    const auto saved = [this](const char* path, MenuItem& command) {
        t.files.failWrites(path, RuntimeError(ErrorCode::DiskFull, "No space left on device"));
        t.dialogues.filesToSave = {std::nullopt};
        const auto tags = tagsOf([&] { command.Click(); });
        t.files.failWrites(path, std::nullopt);
        return tags;
    };
    t.typeJoystick("x");
    EXPECT_THAT(saved(mig, t.menus().mnuFileSave), Contains("ED_SaveJoystickText"));
    t.typeMacro("x");
    editor().TabStrip1.Select(2);
    EXPECT_THAT(saved("c:\\tm\\b50progs\\mig.m50", t.menus().mnuFileSave), Contains("ED_SaveMacroText"));
}

TEST_F(ProcedureTags, OfTheStripAboveAPaneBelongToItsButtons)
{
    start();
    open();
    OutsideNotice& strip = t.program().outsideNotices.joystick;
    t.files.addFile(mig, "BTN S2 other\r\n");
    EXPECT_THAT(tagsOf(strip.Visible, [&] { lookForOutsideChanges(t.program().outsideNotices); }),
                Contains("OUTSIDE lookForOutsideChanges"));
    t.files.failReads(mig, RuntimeError(ErrorCode::DeviceInputOutput, "broken"));
    EXPECT_THAT(tagsOf([&] { loadDifferences(t.program().differences); }), Contains("DIFFERENCES Form_Load"));
    t.files.failReads(mig, std::nullopt);
    t.dialogues.whileModal = fail;
    EXPECT_THAT(tagsOf([&] { strip.Differences.Click(); }), Contains("OUTSIDE Differences_Click"));
    t.dialogues.whileModal = nullptr;
    EXPECT_THAT(tagsWithBroken(pane(), [&] { strip.Reload.Click(); }), Contains("ED_takeFileText"));
    t.files.addFile(mig, "BTN S3 other\r\n");
    lookForOutsideChanges(t.program().outsideNotices);
    ASSERT_TRUE(strip.Visible);
    EXPECT_THAT(tagsOf(strip.Visible, [&] { strip.Keep.Click(); }), Contains("OUTSIDE Keep_Click"));
}

// ---- find -----------------------------------------------------------------------------------------------------------

TEST_F(ProcedureTags, OfFindAndReplaceBelongToItsButtons)
{
    start();
    open();
    FindAndReplace& window = t.program().findAndReplace;
    t.menus().mnuEditFind.Click();
    window.ComboTextFind.Text = "fire";
    const auto broken = [this](const std::function<void()>& work) { return tagsWithBroken(pane(), work); };
    EXPECT_THAT(broken([&] { window.Command1.Click(); }), Contains("FIND Command1_Click"));
    window.LineToFind.Text = "2";
    EXPECT_THAT(broken([&] { window.Command7.Click(); }), Contains("FIND Command7_Click"));
    t.menus().mnuEditReplace.Click();
    window.ComboTextReplaceFind.Text = "fire";
    window.ComboTextReplaceWith.Text = "water";
    EXPECT_THAT(broken([&] { window.Command3.Click(); }), Contains("FIND Command3_Click"));
    pane().setSelStart(0);
    window.Command3.Click();
    EXPECT_THAT(broken([&] { window.Command5.Click(); }), Contains("FIND ReplaceText"));
}

TEST_F(ProcedureTags, OfTheFindWindowsTabsBelongToTheirCommands)
{
    start();
    FindAndReplace& window = t.program().findAndReplace;
    EXPECT_THAT(tagsOf(window.Command5.Enabled, [&] { t.menus().mnuEditFind.Click(); }), Contains("FIND Form_Load"));
    window.form.unload();
    const auto shown = [&](MenuItem& command) { return tagsOf(window.form.Visible, [&] { command.Click(); }); };
    EXPECT_THAT(shown(t.menus().mnuEditFind), Contains("ED_mnuEditFind_Click"));
    window.form.unload();
    EXPECT_THAT(shown(t.menus().mnuEditReplace), Contains("ED_mnuEditReplace_Click"));
    window.form.unload();
    EXPECT_THAT(shown(t.menus().mnuEditGoto), Contains("ED_mnuEditGoto_Click"));
    window.SSTab1.SelectedItem = findTab::replace;
    window.ComboTextFind.Text = "fire";
    EXPECT_THAT(tagsOf(window.ComboTextReplaceFind.Text, [&] { window.SSTab1.Click(); }),
                Contains("FIND SSTab1_Click"));
}

TEST_F(ProcedureTags, OfTheFindBarBelongToItsControls)
{
    start();
    open();
    FindBar& bar = t.program().findBar;
    EXPECT_THAT(tagsOf(bar.Visible, [&] { t.menus().mnuEditFindBar.Click(); }), Contains("ED_mnuEditFindBar_Click"));
    t.menus().mnuEditFindBar.Click();
    bar.Text.Text = "r";
    const auto broken = [this](const std::function<void()>& work) {
        pane().setSelStart(0);
        return tagsWithBroken(pane(), work);
    };
    EXPECT_THAT(broken([&] { bar.Text.Text = "fire"; }), Contains("FINDBAR Text_Change"));
    EXPECT_THAT(broken([&] { bar.Next.Click(); }), Contains("FINDBAR Next_Click"));
    EXPECT_THAT(broken([&] { bar.Previous.Click(); }), Contains("FINDBAR Previous_Click"));
    EXPECT_THAT(broken([&] { bar.MatchCase.Click(); }), Contains("FINDBAR MatchCase_Click"));
    EXPECT_THAT(broken([&] { bar.WholeWord.Click(); }), Contains("FINDBAR WholeWord_Click"));
    EXPECT_THAT(tagsOf(bar.Visible, [&] { bar.Close.Click(); }), Contains("FINDBAR Close_Click"));
}

// ---- window ---------------------------------------------------------------------------------------------------------

TEST_F(ProcedureTags, OfTheViewMenuBelongToItsCommands)
{
    start();
    Menus& menus = t.menus();
    EXPECT_THAT(tagsOf(editor().Zoom, [&] { menus.mnuViewZoomIn.Click(); }), Contains("ED_mnuViewZoomIn_Click"));
    EXPECT_THAT(tagsOf(editor().Zoom, [&] { menus.mnuViewZoomNormal.Click(); }),
                Contains("ED_mnuViewZoomNormal_Click"));
    EXPECT_THAT(tagsOf(editor().Zoom, [&] { menus.mnuViewZoomOut.Click(); }), Contains("ED_mnuViewZoomOut_Click"));
    EXPECT_THAT(tagsOf(menus.mnuViewMacros.Checked, [&] { menus.mnuViewMacros.Click(); }),
                Contains("ED_mnuViewMacros_Click"));
    EXPECT_THAT(tagsOf(menus.mnuViewTileVertically.Checked, [&] { menus.mnuViewTileVertically.Click(); }),
                Contains("ED_mnuViewTileVertically_Click"));
}

TEST_F(ProcedureTags, OfOtherPrograms)
{
    start();
    t.processes.failure = RuntimeError(ErrorCode::PermissionDenied, "Permission denied");
    t.files.addFile("c:\\tarvex\\Launcher.exe", "MZ");
    t.files.addFile("c:\\ctfj.exe", "MZ");
    t.files.addFile("c:\\windows\\system\\tm.cpl", "MZ");
    t.settings().CTFJPath = "c:\\ctfj.exe";
    EXPECT_THAT(tagsOf([&] { t.menus().mnuLauncher.Click(); }), Contains("ED_mnuLauncher_Click"));
    EXPECT_THAT(tagsOf([&] { t.menus().mnuAppsCTFJ.Click(); }), Contains("ED_mnuAppsCTFJ_Click"));
    EXPECT_THAT(tagsOf([&] { t.menus().mnuAppsProPanel.Click(); }), Contains("ED_mnuAppsProPanel_Click"));
}

// ---- macro frame ----------------------------------------------------------------------------------------------------

TEST_F(ProcedureTags, OfTheMacroListBelongToItsEvents)
{
    start();
    open();
    FrameMacros& frame = editor().FrameMacros;
    frame.List1.front().ListIndex = 0;
    t.dialogues.whilePoppedUp = fail;
    EXPECT_THAT(tagsOf([&] { List1_MouseDown(editor(), 0, mouseButton::right, shiftKey::none); }),
                Contains("ED_List1_MouseDown"));
    t.menus().mnuViewTileVertically.Click();
    editor().MacroText.setSelStart(0);
    editor().macros.SelectedMacro = "fire";
    EXPECT_THAT(tagsWithBroken(editor().MacroText, [&] { ShowMacroKeys(editor()); }), Contains("ED_ShowMacroKeys"));
}

TEST_F(ProcedureTags, OfTheMacroFilterBelongToItsProcedures)
{
    start();
    open();
    FrameMacros& frame = editor().FrameMacros;
    EXPECT_THAT(tagsOf(frame.FilterVisible, [&] { t.menus().mnuViewFilterMacros.Click(); }),
                Contains("ED_mnuViewFilterMacros_Click"));
    EXPECT_THAT(tagsOf(frame.Filter.Text, [&] { writeIntoFilter(editor(), "x"); }), Contains("ED_writeIntoFilter"));
    EXPECT_THAT(tagsOf(frame.Filter.Text, [&] { closeFilter(editor()); }), Contains("ED_closeFilter"));
}

// ---- lists ----------------------------------------------------------------------------------------------------------

TEST_F(ProcedureTags, OfTheListsOfTheMenusBelongToTheirProcedures)
{
    t.setIni("Favourites", "FavArrayNum", "1");
    t.setIni("Favourites", "FavName1", "mig");
    t.setIni("Games", "GameArrayNum", "1");
    t.setIni("Games", "GameName1", "f22");
    for (const char* kind : {"J", "M"}) {
        const std::string section = *kind == 'J' ? "PreviousJoystickFiles" : "PreviousMacroFiles";
        t.setIni(section, std::string(kind) + "FArrayNum", "1");
        t.setIni(section, std::string(kind) + "FPath1", "c:\\tm\\b50progs\\old.b50");
    }
    start();
    Lists& lists = t.program().lists;
    Menus& menus = t.menus();
    t.settings().FavName[0] = "mig 29";
    EXPECT_THAT(tagsOf(menus.mnuFavArray[1].Caption, [&] { AddmnuFavouritesArray(lists.favourites); }),
                Contains("MODULE AddmnuFavouritesArray"));
    t.settings().GameName[0] = "f16";
    EXPECT_THAT(tagsOf(menus.mnuGameArray[1].Caption, [&] { AddmnuGamesArray(lists.games); }),
                Contains("MODULE AddmnuGamesArray"));
    t.settings().JFPath[0] = t.settings().MFPath[0] = "c:\\other.b50";
    EXPECT_THAT(tagsOf(menus.mnuJFArray[1].Caption, [&] { AddMnuJFArray(lists.previous); }),
                Contains("MODULE AddMnuJFArray"));
    EXPECT_THAT(tagsOf(menus.mnuMFArray[1].Caption, [&] { AddMnuMFArray(lists.previous); }),
                Contains("MODULE AddMnuMFArray"));
    t.setIni("Apps", "CustomAppName1", "Calculator");
    EXPECT_THAT(tagsOf(menus.mnuCustomApp[0].Caption, [&] { editor().operations.GetCustomApps(); }),
                Contains("MODULE UpdateMnuCustomApps"));
    lists.favourites.current = {"su27", mig, ""};
    EXPECT_THAT(tagsOf(menus.mnuFavArray[1].Caption, [&] { UpdateFavouritesMenu(lists.favourites); }),
                Contains("MODULE UpdateFavouritesMenu"));
    lists.games.current.name = "f15";
    EXPECT_THAT(tagsOf(menus.mnuGameArray[1].Caption, [&] { UpdateGamesMenu(lists.games); }),
                Contains("MODULE UpdateGamesMenu"));
    lists.previous.LatestJoystickFile = lists.previous.LatestMacroFile = mig;
    EXPECT_THAT(tagsOf(menus.mnuJFArray[1].Caption, [&] { UpdateRecentJFMenuList(lists.previous); }),
                Contains("MODULE UpdateRecentJFMenuList"));
    EXPECT_THAT(tagsOf(menus.mnuMFArray[1].Caption, [&] { UpdateRecentMFMenuList(lists.previous); }),
                Contains("MODULE UpdateRecentMFMenuList"));
}

TEST_F(ProcedureTags, OfAnEntryThatIsNotThereBelongToTheClick)
{
    start();
    Lists& lists = t.program().lists;
    EXPECT_THAT(tagsOf([&] { mnuJFArray_Click(lists.previous, 5); }), Contains("mnuJFArray_Click"));
    EXPECT_THAT(tagsOf([&] { mnuMFArray_Click(lists.previous, 5); }), Contains("mnuMFArray_Click"));
    EXPECT_THAT(tagsOf([&] { mnuFavArray_Click(lists.favourites, 5); }), Contains("ED_mnuFavArray_Click"));
    EXPECT_THAT(tagsOf([&] { mnuGameArray_Click(lists.games, 5); }), Contains("ED_mnuGameArray_Click"));
}

// ---- other windows --------------------------------------------------------------------------------------------------

TEST_F(ProcedureTags, OfTheTitleBelongToItsProcedures)
{
    start();
    Title& title = t.program().generators.title;
    title.Text5.Text = "none";
    EXPECT_THAT(tagsOf(title.Text5.Text, [&] { GetHardwareNames(title); }), Contains("TITLE GetHardwareNames"));
    title.Text1.Text = "none";
    EXPECT_THAT(tagsOf(title.Text1.Text, [&] { Form_Activate(title); }), Contains("TITLE Form_Activate"));
    title.RichTextBox1.setText("one\r\ntwo");
    std::int64_t length = 0;
    EXPECT_THAT(tagsWithBroken(title.RichTextBox1, [&] { GetCommentLine(title, 1, length); }),
                Contains("TITLE GetCommentLine"));
    t.typeJoystick("x");
    EXPECT_THAT(tagsWithBroken(pane(), [&] { title.Command1.Click(); }), Contains("TITLE Command1_Click"));
}

TEST_F(ProcedureTags, OfTheTipsBelongToTheirProcedures)
{
    t.files.addFile("c:\\tarvex\\Tips.txt", "one\r\n");
    start();
    TipWindow& tips = t.program().help.frmTip;
    tips.Form.TopMost = false;
    tips.lblTipText.Caption = "none";
    EXPECT_THAT(tagsOf(tips.Form.TopMost, [&] { TIPS_Form_Load(tips); }), Contains("TIPS Form_Load"));
    tips.lblTipText.Caption = "none";
    EXPECT_THAT(tagsOf(tips.lblTipText.Caption, [&] { DisplayCurrentTip(tips); }), Contains("TIPS DisplayCurrentTip"));
    tips.Form.Visible = true;
    EXPECT_THAT(tagsOf(tips.Form.Visible, [&] { tips.cmdOK.Click(); }), Contains("TIPS cmdOK_Click"));
}

TEST_F(ProcedureTags, OfTheTemplateEditorBelongToItsProcedures)
{
    start();
    TemplateForm& window = t.program().templateEditor;
    window.Text1.Text = "none";
    EXPECT_THAT(tagsOf(window.Text1.Text, [&] { window.form.open(); }), Contains("TEMPLATE Form_Load"));
}

TEST_F(ProcedureTags, OfTheComposersMacrosBelongToTheirControls)
{
    start();
    open();
    InsertOptions& window = t.program().composer;
    window.form.open();
    MacroTab& tab = window.macros;
    ASSERT_GE(tab.Combo1.Items.get().size(), 1U);
    tab.Combo1.Text = tab.Combo1.Items.get()[0];
    tab.List1[0].Visible = false;
    EXPECT_THAT(tagsOf(tab.List1[0].Visible, [&] { tab.Combo1.Click(); }), Contains("COMPOSER Combo1_Click"));
}

TEST_F(ProcedureTags, OfThePreferencesBelongToTheirControls)
{
    start();
    Preferences& preferences = t.program().preferences;
    std::set<std::string> tags;
    t.dialogues.whileModal = [&] {
        SavingPage& saving = preferences.savingPage;
        saving.TxtUndoLevels.Text = "3";
        tags.merge(tagsOf(saving.TxtUndoLevels.Text, [&] { TxtUndoLevels_LostFocus(saving); }));
        preferences.Command3.Click();
    };
    t.menus().mnuPreferencesEdit.Click();
    t.dialogues.whileModal = nullptr;
    EXPECT_THAT(tags, Contains("PREFS TxtUndoLevels_LostFocus"));
}

} // namespace
} // namespace tarvex
