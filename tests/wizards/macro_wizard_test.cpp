#include "support/test_program.h"
#include "wizards/wizards.h"

#include <gtest/gtest.h>

#include <map>

namespace tarvex {
namespace {

struct MacroWizardTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    Menus& menus = t.menus();
    MacroWizard& window = t.program().wizards.macro;
    MacroMaker& maker = window.maker;
    std::vector<std::string> ran;

    MacroWizardTest() { menus.mnuhelpWizCreateMacroFile.Click(); }

    void turnTo(int page)
    {
        while (window.pages.PageNumber < page) window.pages.foot[footButton::next].Click();
    }
    void click(std::size_t action) { maker.Command1.at(action).Click(); }
    void write(const std::string& name, const std::string& keys)
    {
        maker.Text1[0].Text = name;
        maker.Text1[1].Text = keys;
    }
    void insert(const std::string& name, const std::string& keys)
    {
        write(name, keys);
        click(4);
    }
    void pick(const std::string& heading)
    {
        const auto& items = maker.List1.Items.get();
        maker.List1.ListIndex = static_cast<int>(std::find(items.begin(), items.end(), heading) - items.begin());
        List1_DblClick(maker);
    }
    void note(MenuItem& command)
    {
        command.handler = [this, &command] { ran.push_back(command.Name); };
    }
    const std::string& macro() const { return editor.MacroText.Text(); }
};

TEST_F(MacroWizardTest, ButtonsSayWhatTheyDo)
{
    const std::map<std::size_t, std::string> captions{
        {0, "New macro file please"},
        {1, "Insert a title please"},
        {2, "Show me Safein again - I need his advice !"},
        {3, "Insert heading"},
        {4, "Insert into macro file"},
        {5, "Clear text"},
        {6, ""},
        {7, "Save the macro file I've just created"},
        {8, "Transfer these macros I created into the Editor's macro list"}};
    for (const auto& [index, caption] : captions) EXPECT_EQ(maker.Command1.at(index).Caption.get(), caption);
}

TEST_F(MacroWizardTest, ComesUpOnTopAtItsFirstPageWithoutAWayBack)
{
    EXPECT_TRUE(window.form.Visible);
    EXPECT_TRUE(window.form.TopMost);
    EXPECT_EQ(window.form.Caption, "The Macro file wizard");
    EXPECT_EQ(window.WindowOpen, 1);
    EXPECT_FALSE(window.pages.foot[footButton::back].Enabled);
    EXPECT_EQ(maker.Label1.Caption, "Macro will appear here");
    EXPECT_EQ(maker.List1.Items.get().size(), 56U);
    EXPECT_FALSE(maker.Command1[4].Enabled);
}

TEST_F(MacroWizardTest, FinishOnPage12GoesOnToTheLastPageAndClosesFromThere)
{
    turnTo(12);
    EXPECT_EQ(window.pages.foot[footButton::close].Caption, "Finish");
    window.pages.foot[footButton::close].Click();
    EXPECT_EQ(window.pages.PageNumber, 13);
    EXPECT_TRUE(window.form.Visible);
    EXPECT_FALSE(window.pages.foot[footButton::next].Visible);
    window.pages.foot[footButton::close].Click();
    EXPECT_FALSE(window.form.Visible);
    EXPECT_EQ(window.WindowOpen, 0);
}

TEST_F(MacroWizardTest, CancelClosesItFromEveryOtherPage)
{
    turnTo(11);
    EXPECT_EQ(window.pages.foot[footButton::close].Caption, "Cancel");
    window.pages.foot[footButton::close].Click();
    EXPECT_FALSE(window.form.Visible);
}

TEST_F(MacroWizardTest, ClosedHalfWayItComesUpEmptyNextTime)
{
    turnTo(8);
    write("Eject", "e");
    window.form.unload();
    menus.mnuhelpWizCreateMacroFile.Click();
    EXPECT_EQ(window.pages.PageNumber, 0);
    EXPECT_EQ(maker.Text1[0].Text, "");
    EXPECT_EQ(maker.Text1[1].Text, "");
    EXPECT_EQ(maker.Label1.Caption, "Macro will appear here");
}

TEST_F(MacroWizardTest, BlanksInANameBecomeUnderscoresAtOnce)
{
    maker.Text1[0].Text = "Eject Now";
    EXPECT_EQ(maker.Text1[0].Text, "Eject_Now");
    maker.Text1[0].Text = " a b  c ";
    EXPECT_EQ(maker.Text1[0].Text, "_a_b__c_");
    maker.Text1[1].Text = "CTL e";
    EXPECT_EQ(maker.Text1[1].Text, "CTL e");
}

TEST_F(MacroWizardTest, AsManyBlanksAsABoxHoldsBecomeUnderscores)
{
    constexpr std::size_t mostInABox = 32767;
    maker.Text1[0].Text = std::string(mostInABox, ' ');
    EXPECT_EQ(maker.Text1[0].Text.get(), std::string(mostInABox, '_'));
}

TEST_F(MacroWizardTest, ThePreviewIsNameAndKeys)
{
    write("Eject", "CTL e");
    EXPECT_EQ(maker.Label1.Caption, "Eject = CTL e");
}

TEST_F(MacroWizardTest, InsertIsEnabledOnlyWithBothBoxesFilled)
{
    maker.Text1[0].Text = "Eject";
    EXPECT_FALSE(maker.Command1[4].Enabled);
    maker.Text1[1].Text = "e";
    EXPECT_TRUE(maker.Command1[4].Enabled);
    maker.Text1[0].Text = "";
    EXPECT_FALSE(maker.Command1[4].Enabled);
}

TEST_F(MacroWizardTest, InsertWritesTheMacroIntoTheMacroFileOnALineOfItsOwn)
{
    int focused = 0;
    const auto listening = maker.Text1[0].focusWanted.connect([&] { ++focused; });
    insert("Eject", "CTL e");
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 2);
    EXPECT_EQ(macro(), "Eject = CTL e\r\n");
    EXPECT_EQ(maker.Text1[0].Text, "");
    EXPECT_EQ(maker.Text1[1].Text, "");
    EXPECT_FALSE(maker.Command1[4].Enabled);
    EXPECT_EQ(focused, 1);
    insert("Gear", "g");
    EXPECT_EQ(macro(), "Eject = CTL e\r\nGear = g\r\n");
    EXPECT_EQ(editor.macro.Caret, 25);
}

TEST_F(MacroWizardTest, InsertInTheMiddleAddsNoLineEnd)
{
    t.typeMacro("a = b\r\n\r\nc = d\r\n");
    editor.MacroText.setSelStart(7);
    insert("x", "y");
    EXPECT_EQ(macro(), "a = b\r\nx = y\r\nc = d\r\n");
}

TEST_F(MacroWizardTest, InsertColoursTheMacroAndIsOneUndoStep)
{
    t.settings().SlashColour = 0x123456;
    insert("Eject", "/N e");
    EXPECT_EQ(editor.MacroText.formatAt(8).colour, 0x123456);
    EXPECT_EQ(editor.MacroText.formatAt(0).colour, 0);
    menus.mnuEditUndo.Click();
    EXPECT_EQ(macro(), "");
}

TEST_F(MacroWizardTest, NamesWithEqualsSignsAndQuotesAndOfAnyLengthAreTakenAsTheyAre)
{
    const std::string longName = "\"=" + std::string(10000, 'n');
    insert(longName, "a");
    EXPECT_EQ(macro(), longName + " = a\r\n");
}

TEST_F(MacroWizardTest, IntoAProtectedFileNothingIsWrittenAndTheBoxesKeepTheirTexts)
{
    menus.mnuPreferencesProtectMacroFile.Click();
    insert("Eject", "e");
    EXPECT_EQ(macro(), "");
    EXPECT_EQ(maker.Text1[0].Text, "Eject");
    EXPECT_EQ(t.program().shared.IsLoading, 0);
    pick("Harm");
    EXPECT_EQ(macro(), "");
    EXPECT_EQ(t.status(), "untitled.m50 is protected and can't be edited.");
}

TEST_F(MacroWizardTest, WritesIntoTheFileThatIsOpenWhenItsButtonIsPressed)
{
    menus.mnuWizSpeedy.Click();
    menus.mnuInsertRAW.Click();
    t.typeMacro("first = f\r\n");
    write("Eject", "e");
    t.files.addFile("c:\\tm\\b50progs\\a.b50", "BTN S1 one\r\n");
    t.files.addFile("c:\\tm\\b50progs\\a.m50", "one = a\r\n");
    t.dialogues.answers = {Answer::No};
    t.openBoth("c:\\tm\\b50progs\\a.b50");
    EXPECT_EQ(maker.Text1[0].Text, "Eject") << "the boxes have nothing to do with the file";
    editor.MacroText.setSelStart(9);
    click(4);
    EXPECT_EQ(macro(), "one = a\r\nEject = e\r\n");
    Speedy& speedy = t.program().wizards.speedy;
    speedy.maker.Text1[0].Text = "Gear";
    t.program().safein.TotalCombinedText.Text = "g";
    speedy.maker.Command1[4].Click();
    EXPECT_EQ(macro(), "one = a\r\nEject = e\r\nGear = g\r\n");
    EXPECT_EQ(maker.Text1[1].Text, "g") << "Safein's text goes to both";
}

TEST_F(MacroWizardTest, AHeadingFromTheListHasTenBlanksAndAnEmptyLineBelow)
{
    pick("Harm");
    const std::string rule = "Rem " + std::string(24, '-') + "\r\n";
    EXPECT_EQ(macro(), "\r\n" + rule + "Rem           Harm\r\n" + rule + "\r\n");
    EXPECT_EQ(t.program().shared.HeadingText, "Harm");
}

TEST_F(MacroWizardTest, AHeadingIsOfTheColourOfCommentsOrPlain)
{
    t.settings().RemStatements = 0x123456;
    pick("Harm");
    EXPECT_EQ(editor.MacroText.formatAt(2).colour, 0x123456);
    menus.mnuEditUndo.Click();
    t.settings().InsertWithColour = 0;
    pick("Harm");
    EXPECT_EQ(editor.MacroText.formatAt(2).colour, 0);
    EXPECT_EQ(macro().find("Rem           Harm"), 32U);
}

TEST_F(MacroWizardTest, BothFormsOfHeadingsAreReadByTheMacroList)
{
    pick("Cockpit Views");
    insert("Front", "F1");
    t.dialogues.whileModal = [this] {
        Heading& heading = t.program().generators.heading;
        heading.Form.Visible = true;
        heading.Combo1.Text = "Weapons";
        heading.Command1[0].Click();
    };
    click(3);
    insert("Fire", "SPC");
    t.dialogues.filesToSave = {std::string("c:\\tm\\b50progs\\a.m50")};
    click(7);
    click(8);
    EXPECT_EQ(editor.FrameMacros.Combo1.Items.get(), (std::vector<std::string>{"All", "Cockpit views", "Weapons"}));
}

TEST_F(MacroWizardTest, ClearEmptiesTheBoxes)
{
    write("Eject", "e");
    click(5);
    EXPECT_EQ(maker.Text1[0].Text, "");
    EXPECT_EQ(maker.Text1[1].Text, "");
    EXPECT_FALSE(maker.Command1[4].Enabled);
}

TEST_F(MacroWizardTest, ButtonsRunTheCommandsOfTheMenus)
{
    for (MenuItem* command : {&menus.mnuFileNewMacro, &menus.mnuFileSave, &menus.mnuInsertTitle, &menus.mnuInsertRAW,
                              &menus.mnuInsertHeading, &menus.mnuEditUpdateMacros})
        note(*command);
    for (const std::size_t action : {0U, 1U, 2U, 3U, 7U, 8U}) click(action);
    EXPECT_EQ(ran, (std::vector<std::string>{"mnuFileNewMacro", "mnuFileSave", "mnuInsertTitle", "mnuInsertRAW",
                                             "mnuInsertHeading", "mnuFileSave", "mnuEditUpdateMacros"}));
}

TEST_F(MacroWizardTest, TheNewFileIsSavedAlsoWhenTheJoystickFileWasOnTop)
{
    editor.TabStrip1.Select(1);
    t.dialogues.filesToSave = {std::string("c:\\tm\\b50progs\\a.m50")};
    click(0);
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 2);
    EXPECT_EQ(editor.TabStrip1.Tabs(2).Caption, "a.m50");
}

TEST_F(MacroWizardTest, SafeinComesUpAndItsStatementBecomesTheKeys)
{
    click(6);
    RAWform& safein = t.program().safein;
    ASSERT_TRUE(safein.form.Visible);
    safein.TotalCombinedText.Text = "CTL e";
    EXPECT_EQ(maker.Text1[1].Text, "CTL e");
    EXPECT_EQ(maker.Label1.Caption, " = CTL e");
}

TEST_F(MacroWizardTest, AClosedWindowTakesNothingFromSafein)
{
    window.form.unload();
    menus.mnuInsertRAW.Click();
    t.program().safein.TotalCombinedText.Text = "CTL e";
    EXPECT_EQ(maker.Text1[1].Text, "");
}

TEST_F(MacroWizardTest, TheFootTurnsPagesWithinTheirBoundsAndHelpsOnlyOnHelp)
{
    int helped = 0;
    t.program().operations.HelpTopic = [&helped](int) { ++helped; };
    const int last = window.pages.lastPage;
    turnTo(last);
    window.pages.foot[footButton::next].Click();
    EXPECT_EQ(window.pages.PageNumber, last);
    window.pages.foot[footButton::back].Click();
    EXPECT_EQ(window.pages.PageNumber, last - 1);
    EXPECT_EQ(helped, 0);
}

TEST_F(MacroWizardTest, EachOpeningHasNoHeadingPicked)
{
    maker.List1.ListIndex = 3;
    window.form.unload();
    menus.mnuhelpWizCreateMacroFile.Click();
    EXPECT_EQ(maker.List1.ListIndex, -1);
}

TEST_F(MacroWizardTest, TheWizardsStandAtTheRightEdgeOfTheScreen)
{
    Wizards& wizards = t.program().wizards;
    for (const ToolForm* form :
         {&wizards.macro.form, &wizards.speedy.form, &wizards.joystick.form, &wizards.slash.form}) {
        EXPECT_EQ(form->Left.get(), t.desktop.screenWidth() - twipsPerPixel);
        EXPECT_EQ(form->Top.get(), t.desktop.screenHeight() / 4);
    }
}

TEST_F(MacroWizardTest, TheSecondPageHasAWayBackAndTheFirstHasNone)
{
    const Button& back = window.pages.foot[footButton::back];
    turnTo(1);
    EXPECT_TRUE(back.Enabled);
    back.Click();
    EXPECT_FALSE(back.Enabled);
}

TEST_F(MacroWizardTest, InsertBeforeTheLastLineKeepsThatLineOnItsOwn)
{
    t.typeMacro("a = b\r\nc = d\r\n");
    editor.MacroText.setSelStart(7);
    insert("x", "y");
    EXPECT_EQ(macro(), "a = b\r\nx = y\r\nc = d\r\n");
}

TEST_F(MacroWizardTest, AnEmptyListOfKeysIsNeverInserted)
{
    insert("Eject", "e");
    EXPECT_FALSE(maker.Command1[4].Enabled);
    click(5);
    EXPECT_FALSE(maker.Command1[4].Enabled);
    maker.List1.ListIndex = -1;
    List1_DblClick(maker);
    EXPECT_EQ(macro(), "Eject = e\r\n") << "no heading was picked";
    EXPECT_EQ(t.program().shared.HeadingText, "");
}

} // namespace
} // namespace tarvex
