// Each command of the menus, and what the user does with keys and mouse, runs in several situations, and what becomes
// different is compared with a list in tests/data/effects: panes, carets, undo levels, status texts, files, settings,
// boxes. With TARVEX_UPDATE_TEXTS set the lists are written instead; read the difference before committing it.

#include "documents/pair/editor_layout.h"
#include "language/commands/identify_macros.h"
#include "platform/profile_file.h"
#include "program/effects/acts.h"
#include "program/effects/program_state.h"
#include "shell/settings_table.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <tuple>

namespace tarvex {
namespace {

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

/// Colours that all differ, and a font that no pane has by itself.
void chooseScheme(TestProgram& t)
{
    const std::pair<const char*, const char*> colours[] = {
        {"BTNColour", "177"},
        {"SlashColour", "178"},
        {"RAWColour", "179"},
        {"MiscellaneousColour", "180"},
        {"RemStatements", "181"},
        {"BackgroundColour", "15658721"},
        {"MacroBackgroundColour", "15658722"},
        {"TextFontName", "Courier New"},
        {"TextFontSize", "12"},
        {"TextFontBold", "1"},
    };
    for (const auto& [key, value] : colours) t.setIni("Colours", key, value);
}

void prepareMachine(TestProgram& t, Answer answer)
{
    chooseScheme(t);
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
    for (const auto& command : commandsOf(named.program(), menu)) {
        const std::string& name = command.first;
        text += effectsOf(situation, name, [&](TestProgram& t) {
            const auto commands = commandsOf(t.program(), menu);
            if (commands.contains(name)) commands.at(name)->Click();
        });
    }
    return text;
}

std::string effectsOfActs(const Situation& situation, const std::vector<Act>& acts)
{
    std::string text;
    for (const Act& act : acts) text += effectsOf(situation, act.name, [&](TestProgram& t) { act.run(t, t.editor()); });
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
class EffectsOfActs : public testing::TestWithParam<std::size_t> {
protected:
    static void compare(const char* list, const std::vector<Act>& acts)
    {
        const Situation& situation = situations()[GetParam()];
        compareWithList(std::string(situation.name) + "/" + list, effectsOfActs(situation, acts));
    }
};

TEST_P(EffectsOfCommands, AreThoseOfTheList)
{
    const auto& [number, menu] = GetParam();
    const Situation& situation = situations()[number];
    compareWithList(std::string(situation.name) + "/" + menu, effectsOfCommands(situation, menu));
}

TEST_P(EffectsOfActs, WithKeysAndMouseAreThoseOfTheList) { compare("keysMouseTimers", keyActs()); }
TEST_P(EffectsOfActs, OnFilesAreThoseOfTheList) { compare("files", fileActs()); }
TEST_P(EffectsOfActs, InWindowsAreThoseOfTheList) { compare("windows", windowActs()); }

const auto everySituation = testing::Range(std::size_t{0}, situations().size());
/// Every setting that is on or off the other way round.
void turnSettingsRound(TestProgram& t)
{
    for (const SettingRow& row : settingsTable()) {
        const auto* member = std::get_if<std::int16_t Settings::*>(&row.member);
        if (row.form != SettingForm::Flag || member == nullptr || row.count.index() != 0) continue;
        ProfileFile ini(t.files, std::string("c:\\tarvex\\").append(fileNameOf(row.file)));
        ini.writeString(row.section, row.key, t.settings().*(*member) == 1 ? "0" : "1");
    }
}

TEST(EffectsOfTheStart, AreThoseOfTheList)
{
    TestProgram t(false);
    t.files.addFile("c:\\tarvex\\tarvexsmall.wav", "");
    t.setIni("Miscellaneous", "PlayWavOnStartup", "1");
    prepareMachine(t, Answer::Yes);
    std::string text;
    for (const std::string& line : differencesOf({}, stateOf(t))) text += line + "\n";
    compareWithList("start", text);
}

TEST(EffectsOfSettings, AtTheStartAreThoseOfTheList)
{
    TestProgram t(false);
    prepareMachine(t, Answer::Yes);
    t.files.addFile("c:\\tarvex\\tarvexbig.wav", "");
    const ProgramState before = stateOf(t);
    turnSettingsRound(t);
    t.start();
    openPair(t);
    t.menus().mnuFileSaveBoth.Click();
    std::string text;
    for (const std::string& line : dialoguesOf(t.dialogues)) text += "    " + line + "\n";
    for (const std::string& line : differencesOf(before, stateOf(t))) text += "  " + line + "\n";
    compareWithList("settingsTheOtherWayRound", text);
}

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
