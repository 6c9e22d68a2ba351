// Each command of the menus, and what the user does with keys and mouse, runs in several situations, and what becomes
// different is compared with a list in tests/data/effects: panes, carets, undo levels, status texts, files, settings,
// boxes. With TARVEX_UPDATE_TEXTS set the lists are written instead; read the difference before committing it.

#include "documents/editing/line_highlight.h"
#include "documents/editing/pane_events.h"
#include "documents/files/auto_save.h"
#include "documents/pair/editor_layout.h"
#include "documents/pair/tabs.h"
#include "documents/window/editor_window.h"
#include "documents/window/hardware_changes.h"
#include "documents/window/toolbar.h"
#include "language/commands/align_slashes.h"
#include "language/commands/button_definition.h"
#include "language/commands/identify_macros.h"
#include "language/commands/macro_filter.h"
#include "language/commands/macro_list_events.h"
#include "language/commands/rem_block.h"
#include "language/commands/slash_buttons.h"
#include "language/commands/text_transfer.h"
#include "platform/input.h"
#include "program/effects/program_state.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <tuple>

namespace tarvex {
namespace {

constexpr const char* mig = "c:\\tm\\b50progs\\mig.b50";
constexpr const char* su = "c:\\tm\\b50progs\\su.b50";

/// Where the user is before something is done.
struct Situation {
    const char* name;
    Answer answer; ///< to each question
    std::function<void(TestProgram&)> comeTo;
};

void select(Pane& pane, std::int64_t start, std::int64_t length)
{
    pane.setSelStart(start);
    pane.setSelLength(length);
}

void openPair(TestProgram& t)
{
    t.openBoth(mig);
    t.editor().TabStrip1.Select(1);
}

void goTo(Side& side, std::int64_t start, std::int64_t length = 0)
{
    select(side.pane, start, length);
    side.Caret = start;
}

const std::vector<Situation>& situations()
{
    static const std::vector<Situation> all{
        {"NewDocuments", Answer::Yes, [](TestProgram&) {}},
        {"CaretBehindAWord", Answer::Yes,
         [](TestProgram& t) {
             openPair(t);
             goTo(t.editor().joystick, 28);
         }},
        {"LinesSelected", Answer::No,
         [](TestProgram& t) {
             openPair(t);
             t.settings().InsertWithColour = 1;
             t.menus().mnuInsertWithColour.Checked = true;
             t.typeJoystick("x");
             goTo(t.editor().joystick, 16, 24);
         }},
        {"MacroFile", Answer::No,
         [](TestProgram& t) {
             openPair(t);
             t.editor().TabStrip1.Select(2);
             goTo(t.editor().macro, 30);
             t.menus().mnuEditUpdateMacros.Click();
             t.settings().ApplyColoursOnFileOpen = 1;
         }},
        {"MacroWordSelected", Answer::Cancel,
         [](TestProgram& t) {
             openPair(t);
             t.editor().TabStrip1.Select(2);
             t.typeMacro("new = n\r\n");
             goTo(t.editor().macro, 0, 3);
         }},
        {"FlashingLine", Answer::Yes,
         [](TestProgram& t) {
             openPair(t);
             t.menus().mnuViewApplyColourBothFiles.Click();
             goTo(t.editor().joystick, 20);
             t.menus().mnuViewHighlightLine.Click();
         }},
        {"ProtectedMacroFile", Answer::Yes,
         [](TestProgram& t) {
             openPair(t);
             t.menus().mnuPreferencesProtectMacroFile.Click();
             t.menus().mnuViewTileVertically.Click();
             t.editor().TabStrip1.Select(2);
             goTo(t.editor().macro, 26, 4);
         }},
        {"MacroListAndUndoneText", Answer::Yes,
         [](TestProgram& t) {
             openPair(t);
             t.menus().mnuEditUpdateMacros.Click();
             IdentifyMacrosUsed(t.editor());
             t.editor().FrameMacros.List1[0].ListIndex = 1;
             t.editor().macros.SelectedMacro = "gear";
             t.editor().TabStrip1.Select(1);
             goTo(t.editor().joystick, 33);
             t.pressKeys(t.editor().JoystickText, " up");
             t.menus().mnuEditUndo.Click();
         }},
    };
    return all;
}

void prepareMachine(TestProgram& t, Answer answer)
{
    t.files.addFile(mig, "USE MDEF mig\r\nBTN S1 /U fire /D gear\r\n\r\nRem BTN S3 gear\r\nBTN S2 gear");
    t.files.addFile("c:\\tm\\b50progs\\mig.m50", "Rem ****** Guns ******\r\nfire = f\r\ngear = g RAW (#1C)\r\n");
    t.files.addFile(su, "BTN T1 a\r\n");
    t.files.addFile("c:\\tm\\b50progs\\su.m50", "a = b\r\n");
    t.clipboard.content = {.text = "copied", .rtf = {}};
    t.dialogues.otherAnswers = [answer](const MessageBox&) { return answer; };
    t.dialogues.otherFilesToOpen = [](const FileRequest&) { return su; };
    t.dialogues.otherFilesToSave = [](const FileRequest& request) {
        return "c:\\tm\\b50progs\\as " + request.suggestedName;
    };
    t.dialogues.modalFormsExist = false;
    t.start();
    t.editor().ScaleWidth = 1000;
    t.editor().ScaleHeight = 600;
    Form_Resize(t.editor());
}

std::string requestOf(const FileRequest& request)
{
    return request.title + " | " + request.filter + " | " + request.directory + " | " + request.suggestedName + " | " +
           request.defaultExtension;
}

/// What the user was asked and shown, and may not be part of the state.
std::vector<std::string> dialoguesOf(ScriptedDialogues& dialogues)
{
    std::vector<std::string> lines;
    for (const MessageBox& box : dialogues.boxes)
        lines.push_back("box: " + inOneLine(box.title + " | " + box.text) + " | " +
                        std::to_string(static_cast<int>(box.icon)) + ' ' +
                        std::to_string(static_cast<int>(box.buttons)));
    for (const FileRequest& request : dialogues.openRequests) lines.push_back("open: " + requestOf(request));
    for (const FileRequest& request : dialogues.saveRequests) lines.push_back("save: " + requestOf(request));
    for (const std::string& form : dialogues.modalForms) lines.push_back("modal: " + form);
    for (const std::string& menu : dialogues.popUps) lines.push_back("pop-up: " + menu);
    for (const std::string& menu : dialogues.popUpsAtCaret) lines.push_back("pop-up at the caret: " + menu);
    return lines;
}

void forgetDialogues(ScriptedDialogues& dialogues)
{
    dialogues.boxes.clear();
    dialogues.openRequests.clear();
    dialogues.saveRequests.clear();
    dialogues.modalForms.clear();
    dialogues.popUps.clear();
    dialogues.popUpsAtCaret.clear();
}

/// The lines of a list for one thing that is done.
std::string effectsOf(const Situation& situation, const std::string& name, const std::function<void(TestProgram&)>& act)
{
    TestProgram t(false);
    prepareMachine(t, situation.answer);
    situation.comeTo(t);
    forgetDialogues(t.dialogues);
    const ProgramState before = stateOf(t);
    Happenings happenings(t);
    act(t);
    std::string text = name + "\n";
    for (const std::string& line : dialoguesOf(t.dialogues)) text += "    " + line + "\n";
    for (const std::string& line : happenings.lines) text += "    " + line + "\n";
    for (const std::string& line : differencesOf(before, stateOf(t))) text += "  " + line + "\n";
    return text;
}

// ---- what is done ---------------------------------------------------------------------------------------------------

void collect(const std::vector<MenuEntry>& entries, std::map<std::string, const MenuItem*>& commands)
{
    for (const MenuEntry& entry : entries) {
        collect(entry.entries, commands);
        if (entry.item != nullptr && entry.item->handler) commands[entry.item->Name] = entry.item;
        for (int i = 0; entry.array != nullptr && i <= entry.array->UBound(); ++i) {
            const MenuItem& item = (*entry.array)[i];
            if (item.handler) commands[item.Name] = &item;
        }
    }
}

/// The menus by their roots' names: those of the menu bar and those that pop up.
std::map<std::string, std::vector<MenuEntry>> menusOf(Program& program)
{
    Menus& menus = program.menus;
    std::map<std::string, std::vector<MenuEntry>> all;
    for (const MenuEntry& menu : menuBar(menus)) all[menu.item->Name] = menu.entries;
    for (const MenuItem* root : {&menus.mnuRHMouse, &menus.mnuRHList}) all[root->Name] = popUpMenu(menus, *root);
    return all;
}

std::map<std::string, const MenuItem*> commandsOf(Program& program, const std::string& menu)
{
    std::map<std::string, const MenuItem*> commands;
    collect(menusOf(program)[menu], commands);
    return commands;
}

std::string effectsOfCommands(const Situation& situation, const std::string& menu)
{
    TestProgram named;
    std::string text;
    for (const auto& [name, item] : commandsOf(named.program(), menu)) {
        text += effectsOf(situation, name, [&](TestProgram& t) {
            const auto commands = commandsOf(t.program(), menu);
            if (commands.contains(name)) commands.at(name)->Click();
        });
    }
    return text;
}

struct Act {
    const char* name;
    std::function<void(TestProgram&, Editor&)> run;
};

void pressDelete(Pane& pane)
{
    pane.EditComing();
    pane.userEdit(pane.SelStart(), std::max<std::int64_t>(pane.SelLength(), 1), "");
}

const std::vector<Act>& acts()
{
    static const std::vector<Act> all{
        {"key x", [](TestProgram& t, Editor& e) { t.pressKeys(e.selected().pane, "x"); }},
        {"keys x blank y", [](TestProgram& t, Editor& e) { t.pressKeys(e.selected().pane, "x y"); }},
        {"key Return", [](TestProgram& t, Editor& e) { t.pressKeys(e.selected().pane, "\r"); }},
        {"key Backspace", [](TestProgram& t, Editor& e) { t.pressKeys(e.selected().pane, "\b"); }},
        {"key Delete", [](TestProgram&, Editor& e) { pressDelete(e.selected().pane); }},
        {"key F9", [](TestProgram&, Editor& e) { Text_KeyDown(e, e.selected(), "F9"); }},
        {"key up", [](TestProgram&, Editor& e) { Text_KeyUp(e, e.selected()); }},
        {"click", [](TestProgram&, Editor& e) { Text_Click(e, e.selected()); }},
        {"left button", [](TestProgram&, Editor& e) { Text_MouseDown(e, e.selected(), mouseButton::left); }},
        {"right button", [](TestProgram&, Editor& e) { Text_MouseDown(e, e.selected(), mouseButton::right); }},
        {"middle button", [](TestProgram&, Editor& e) { Text_MouseDown(e, e.selected(), mouseButton::middle); }},
        {"the other pane", [](TestProgram&, Editor& e) { Text_GotFocus(e, e.other(e.selected())); }},
        {"tab 1", [](TestProgram&, Editor& e) { e.TabStrip1.Select(1); }},
        {"tab 2", [](TestProgram&, Editor& e) { e.TabStrip1.Select(2); }},
        {"mouse over button 3", [](TestProgram&, Editor& e) { Toolbar1_MouseMove(e, 3, 0, 10, 10); }},
        {"mouse over the status bar", [](TestProgram&, Editor& e) { StatusBar_MouseMove(e, 100); }},
        {"mouse over the colour", [](TestProgram&, Editor& e) { Picture1_MouseMove(e); }},
        {"the colour", [](TestProgram&, Editor& e) { Picture1_Click(e); }},
        {"slash button 0", [](TestProgram&, Editor& e) { Command1_Click(e, 0); }},
        {"slash button 11", [](TestProgram&, Editor& e) { Command1_Click(e, 11); }},
        {"mouse over slash button 5", [](TestProgram&, Editor& e) { Command1_MouseMove(e, 5); }},
        {"headings", [](TestProgram&, Editor& e) { Combo1_GotFocus(e); }},
        {"heading All",
         [](TestProgram&, Editor& e) {
             e.FrameMacros.Combo1.Text = "All";
             Combo1_Click(e);
         }},
        {"heading Guns",
         [](TestProgram&, Editor& e) {
             e.FrameMacros.Combo1.Text = "Guns";
             Combo1_Click(e);
         }},
        {"double click on a macro", [](TestProgram&, Editor& e) { List1_DblClick(e, 0); }},
        {"key in the list", [](TestProgram&, Editor& e) { List1_KeyDown(e, 0, shiftKey::none); }},
        {"Shift in the list", [](TestProgram&, Editor& e) { List1_KeyUp(e, 0, shiftKey::shift); }},
        {"left button in the list",
         [](TestProgram&, Editor& e) { List1_MouseDown(e, 0, mouseButton::left, shiftKey::none); }},
        {"right button in the list",
         [](TestProgram&, Editor& e) { List1_MouseDown(e, 0, mouseButton::right, shiftKey::none); }},
        {"drag over the list",
         [](TestProgram&, Editor& e) { List1_MouseMove(e, 0, mouseButton::left, shiftKey::shift, 10); }},
        {"filter", [](TestProgram&, Editor& e) { writeIntoFilter(e, "ge"); }},
        {"filter closed",
         [](TestProgram&, Editor& e) {
             writeIntoFilter(e, "ge");
             closeFilter(e);
         }},
        {"minute", [](TestProgram&, Editor& e) { e.Timer1.Tick(); }},
        {"automatic save", [](TestProgram&, Editor& e) { AutoSaveFile(e); }},
        {"flash",
         [](TestProgram&, Editor& e) {
             for (int i = 0; i < 2; ++i) e.TimerBlinkLine.Tick();
         }},
        {"activation", [](TestProgram&, Editor& e) { Form_Activate(e); }},
        {"smaller window",
         [](TestProgram&, Editor& e) {
             e.ScaleWidth = 500;
             Form_Resize(e);
         }},
        {"question before the exit", [](TestProgram&, Editor& e) { Form_QueryUnload(e); }},
        {"exit", [](TestProgram& t, Editor&) { t.program().exit(); }},
        {"other hardware",
         [](TestProgram& t, Editor& e) {
             t.settings().JoystickExtension = "f22";
             t.settings().MacroExtension = "m22";
             HardwareHasChanged(e);
         }},
        {"error line 2", [](TestProgram&, Editor& e) { HighlightErrorLine(e, 2); }},
        {"error line 99", [](TestProgram&, Editor& e) { HighlightErrorLine(e, 99); }},
        {"alignment for layouts", [](TestProgram&, Editor& e) { AlignForLayouts(e); }},
        {"text of Safein", [](TestProgram&, Editor& e) { SafeinTransferText(e, "RAW (#1C) fire"); }},
        {"macros of a wizard",
         [](TestProgram&, Editor& e) {
             e.TempRichTextBox.setText("jump = j\r\n");
             MacroTransferText(e);
         }},
        {"macros used, if any", [](TestProgram&, Editor& e) { IdentifyMacrosIfAny(e); }},
        {"statement of a button", [](TestProgram&, Editor& e) { ExtractButtonDefinition(e, "BTN S2"); }},
        {"statement that isn't there", [](TestProgram&, Editor& e) { ExtractButtonDefinition(e, "BTN H4L"); }},
        {"Rem in front of the line", [](TestProgram&, Editor& e) { RemBlockCommon(e); }},
        {"another file", [](TestProgram& t, Editor&) { t.openBoth(su); }},
    };
    return all;
}

std::string effectsOfActs(const Situation& situation)
{
    std::string text;
    for (const Act& act : acts())
        text += effectsOf(situation, act.name, [&](TestProgram& t) { act.run(t, t.editor()); });
    return text;
}

// ---- the lists ------------------------------------------------------------------------------------------------------

void compareWithList(const std::string& name, const std::string& text)
{
    const std::string path = TARVEX_SOURCE_DIRECTORY "/tests/data/effects/" + name + ".txt";
    if (std::getenv("TARVEX_UPDATE_TEXTS") != nullptr) {
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << text;
        return;
    }
    std::ostringstream expected;
    expected << std::ifstream(path, std::ios::binary).rdbuf();
    EXPECT_EQ(text, expected.str());
}

constexpr const char* menuNames[] = {"mnuFile",        "mnuEdit", "mnuView",    "mnuInsert",
                                     "mnuWizards",     "mnuApps", "mnuGames",   "mnuFavourites",
                                     "mnuPreferences", "mnuHelp", "mnuRHMouse", "mnuRHList"};

using SituationAndMenu = std::tuple<std::size_t, const char*>;

class EffectsOfCommands : public testing::TestWithParam<SituationAndMenu> {};
class EffectsOfActs : public testing::TestWithParam<std::size_t> {};

TEST_P(EffectsOfCommands, AreThoseOfTheList)
{
    const auto& [number, menu] = GetParam();
    const Situation& situation = situations()[number];
    compareWithList(std::string(situation.name) + "/" + menu, effectsOfCommands(situation, menu));
}

TEST_P(EffectsOfActs, AreThoseOfTheList)
{
    const Situation& situation = situations()[GetParam()];
    compareWithList(std::string(situation.name) + "/keysMouseTimers", effectsOfActs(situation));
}

const auto everySituation = testing::Range(std::size_t{0}, situations().size());
std::string nameOf(const testing::TestParamInfo<SituationAndMenu>& test)
{
    return std::string(situations()[std::get<0>(test.param)].name) + "_" + std::get<1>(test.param);
}

INSTANTIATE_TEST_SUITE_P(Situations, EffectsOfCommands, testing::Combine(everySituation, testing::ValuesIn(menuNames)),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Situations, EffectsOfActs, everySituation,
                         [](const auto& test) { return situations()[test.param].name; });

TEST(ListsOfEffects, AreThereForEveryMenu)
{
    TestProgram t;
    std::set<std::string> menus;
    for (const auto& [name, entries] : menusOf(t.program())) menus.insert(name);
    EXPECT_EQ(menus, (std::set<std::string>(std::begin(menuNames), std::end(menuNames))));
}

} // namespace
} // namespace tarvex
