// A user who does anything at any moment, for 50,000 actions: after each of them the program is as it has to be.
// TARVEX_SEED repeats a walk; TARVEX_STEPS makes it longer or shorter.

#include "documents/editing/line_highlight.h"
#include "documents/editing/pane_keys.h"
#include "documents/files/auto_save.h"
#include "documents/pair/tabs.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "documents/recovery/recovery_format.h"
#include "documents/text/drag_move.h"
#include "language/commands/macro_list_events.h"
#include "language/commands/text_transfer.h"
#include "platform/dos_path.h"
#include "support/random_seed.h"
#include "support/test_program.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <numeric>
#include <random>
#include <span>
#include <vector>

namespace tarvex {

namespace {

using Random = std::mt19937;

unsigned below(Random& random, unsigned bound) { return static_cast<unsigned>(random() % bound); }
template <typename List> const auto& oneOf(Random& random, const List& list)
{
    return list[below(random, static_cast<unsigned>(std::size(list)))];
}

constexpr const char* programs = "c:\\tm\\b50progs\\";
constexpr const char* joystickFiles[] = {"mig.b50", "su27.b50", "f22.f22"};
constexpr const char* macroFiles[] = {"mig.m50", "su27.m50", "f22.m22"};

constexpr const char* snippets[] = {
    "BTN S1 /U fire /M gear /D Rem up\r\n",
    "BTN T1 RAW (#1C #F0 #1C)",
    "BTN H1U (a b c) /R d",
    "RAW (",
    "USE RCS, TQS\r\n",
    "MDEF mig\r\n",
    "Rem comment  (all of it)\r\n",
    "DLY(60)",
    "fire = f\r\ngear = g  Rem wheels\r\n",
    "Rem ****** Weapons ******\r\ngun_one = SHF g\r\n",
    "LongName=CTL ALT x\r",
    "lone\nline\rends",
    "\xE4\xF6\xFC \x80 \xA7",
    "/T /P /R /A /U /M /D",
    "fire gear gun_one ",
    "\r\n",
    " ",
    "=",
};

/// What was lost in a crash is always wanted back.
Answer anyAnswer(Random& random, const MessageBox& box)
{
    if (box.title.starts_with("Phew")) return Answer::Yes;
    if (box.buttons == BoxButtons::YesNo) return below(random, 3) == 0 ? Answer::No : Answer::Yes;
    return std::array{Answer::Yes, Answer::Yes, Answer::No, Answer::Cancel}[below(random, 4)];
}

std::optional<std::string> anyFile(Random& random, bool macro)
{
    if (below(random, 5) == 0) return std::nullopt;
    return programs + std::string(macro ? oneOf(random, macroFiles) : oneOf(random, joystickFiles));
}

/// The machine with the program on it, and what the user knows of his files.
class Walk : public TestProgram {
public:
    explicit Walk(unsigned seed) : TestProgram(false), random(seed)
    {
        for (const char* name : joystickFiles) save(name, "BTN S1 fire /R gear\r\n");
        for (const char* name : macroFiles) save(name, "fire = f\r\ngear = g\r\n");
        dialogues.otherAnswers = [this](const MessageBox& box) { return anyAnswer(random, box); };
        dialogues.otherFilesToOpen = [this](const FileRequest& request) {
            const bool both = request.title.starts_with("Select");
            return anyFile(random, request.title == "Opening file" || (both && below(random, 2) == 0));
        };
        dialogues.otherFilesToSave = [this](const FileRequest& request) {
            return anyFile(random, request.filter.starts_with("Macro"));
        };
        restart();
    }

    void restart()
    {
        start();
        settings().UndoMax = 10;
    }
    Side& side() { return editor().selected(); }
    Pane& pane() { return side().pane; }
    Side& anySide() { return below(random, 2) == 0 ? editor().joystick : editor().macro; }

    Random random;
    std::map<std::string, std::string> saved; ///< what each file has to hold
    unsigned broughtBack = 0;                 ///< texts, after the program was killed
    unsigned damagedJournals = 0;             ///< that were noticed as such

private:
    void save(const std::string& name, const std::string& text)
    {
        files.addFile(programs + name, text);
        saved[programs + name] = text;
    }
};

// ---- what the user does ---------------------------------------------------------------------------------------------

void select(Walk& walk)
{
    Pane& pane = walk.pane();
    const auto length = static_cast<unsigned>(pane.TextLength());
    pane.setSelStart(below(walk.random, length + 1));
    if (below(walk.random, 2) == 0) pane.setSelLength(below(walk.random, 60));
    noteCaret(walk.editor(), walk.side());
}

void typeKeys(Walk& walk)
{
    Pane& pane = walk.pane();
    constexpr std::string_view keys = "abcz /=()\r\r  \x14\xE9";
    for (unsigned i = below(walk.random, 8) + 1; i > 0; --i) {
        const char key = keys[below(walk.random, static_cast<unsigned>(keys.size()))];
        if (!pane.Locked) pane.KeyPress(static_cast<unsigned char>(key));
        pane.userEdit(pane.SelStart(), pane.SelLength(), key == '\r' ? "\r\n" : std::string(1, key));
    }
}

void backspace(Walk& walk)
{
    Pane& pane = walk.pane();
    if (!pane.Locked) pane.KeyPress('\b');
    if (pane.SelLength() > 0)
        pane.userEdit(pane.SelStart(), pane.SelLength(), "");
    else
        pane.userEdit(pane.SelStart() - 1, pane.SelStart() > 0 ? 1 : 0, "");
}

void typeSnippet(Walk& walk)
{
    Pane& pane = walk.pane();
    pane.userEdit(pane.SelStart(), pane.SelLength(), oneOf(walk.random, snippets));
}

/// Keeps the walk quick: a hundred lines show what ten thousand would.
void shorten(Walk& walk)
{
    constexpr std::size_t enough = 1500;
    for (Side* side : {&walk.editor().joystick, &walk.editor().macro}) {
        if (side->pane.TextLength() > enough) side->pane.userEdit(200, 1000, "");
    }
}

void undoRoundTrip(Walk& walk)
{
    Side& side = walk.side();
    if (side.pane.Locked || side.Undo.Position == side.Undo.Levels.size()) return;
    const std::string before = side.pane.Text();
    const std::size_t position = side.Undo.Position;
    walk.menus().mnuEditUndo.Click();
    EXPECT_TRUE(side.pane.TextRTF() == side.Undo.Levels[position].Text) << "text and colours of the level before";
    walk.menus().mnuEditRedo.Click();
    EXPECT_EQ(side.pane.Text(), before);
    EXPECT_TRUE(side.pane.TextRTF() == side.Undo.Levels[position - 1].Text) << "text and colours of the level it was";
}

void copyOrPaste(Walk& walk)
{
    Menus& menus = walk.menus();
    for (MenuItem* item : {&menus.mnuEditCut, &menus.mnuEditCopy, &menus.mnuEditPaste, &menus.mnuEditPaste}) {
        if (below(walk.random, 3) == 0) item->Click();
    }
}

void pressPaneKeys(Walk& walk)
{
    const auto keys = paneKeys();
    const std::string_view pressed = oneOf(walk.random, keys).keys;
    if (pressed != "Ctrl+P") pressPaneKey(walk.editor(), pressed);
}

void useMacroList(Walk& walk)
{
    Editor& editor = walk.editor();
    auto& lists = editor.FrameMacros.List1;
    const std::size_t list = below(walk.random, static_cast<unsigned>(lists.size()));
    const auto count = static_cast<unsigned>(lists[list].Items.get().size());
    lists[list].ListIndex = static_cast<int>(below(walk.random, count + 1)) - 1;
    switch (below(walk.random, 4)) {
    case 0:
        return List1_DblClick(editor, list);
    case 1:
        return List1_KeyDown(editor, list, static_cast<int>(below(walk.random, 3)));
    case 2:
        return mnuRHListInsert_Click(editor);
    default:
        return static_cast<void>(List1_OLEStartDrag(editor, list));
    }
}

void pressSlashButton(Walk& walk) { oneOf(walk.random, walk.editor().FrameMacros.Command1).Click(); }

void findAndReplace(Walk& walk)
{
    FindAndReplace& window = walk.program().findAndReplace;
    constexpr const char* texts[] = {"fire", "e", "S1", " ", "Rem", "nowhere", "("};
    walk.menus().mnuEditReplace.Click();
    window.ComboTextFind.Text = std::string(oneOf(walk.random, texts));
    window.ComboTextReplaceFind.Text = std::string(oneOf(walk.random, texts));
    window.ComboTextReplaceWith.Text = std::string(oneOf(walk.random, texts));
    const bool hasText = walk.pane().TextLength() < 1500; // "e" by "fire" makes it four times as long
    const std::array<Button*, 5> buttons{&window.Command1, &window.Command3, &window.Command5, &window.Command6,
                                         &window.Command7};
    Button* const button = oneOf(walk.random, buttons);
    if (hasText && button->Enabled) button->Click();
    if (below(walk.random, 3) == 0) window.Command2.Click();
}

void addFavourite(Walk& walk)
{
    constexpr const char* names[] = {"Mig", "Su & Co", "f22", "\xC3\xA4"};
    EnterFavouritename& form = walk.program().lists.favourites.form;
    walk.dialogues.whileModal = [&] {
        form.Text1.Text = std::string(oneOf(walk.random, names));
        (below(walk.random, 3) == 0 ? form.Command2 : form.Command1).Click();
    };
    walk.menus().mnuFavouritesAddCurrent.Click();
    walk.dialogues.whileModal = nullptr;
}

template <MenuArray Menus::*array> void clickOneOf(Walk& walk)
{
    MenuArray& items = walk.menus().*array;
    items[static_cast<int>(below(walk.random, static_cast<unsigned>(items.UBound() + 1)))].Click();
}

void otherSettings(Walk& walk)
{
    Settings& settings = walk.settings();
    for (std::int16_t Settings::*setting :
         {&Settings::UndoClearOnSave, &Settings::ApplyColoursOnFileOpen, &Settings::CreateBackup,
          &Settings::HighlightLineOnUndo, &Settings::InsertWithColour, &Settings::CheckIdentifyOK}) {
        settings.*setting = static_cast<std::int16_t>(below(walk.random, 2));
    }
    settings.UndoMax = static_cast<std::remove_reference_t<decltype(settings.UndoMax)>>(10 + below(walk.random, 5));
}

void protectMacros(Walk& walk)
{
    MenuItem& item = walk.menus().mnuPreferencesProtectMacroFile;
    if (item.Checked || below(walk.random, 4) == 0) item.Click(); // mostly open
}

void saveOnAFullDisk(Walk& walk)
{
    const RuntimeError full(ErrorCode::DiskFull, "No space left on device");
    const std::string path = walk.side().FilePath;
    walk.files.failWrites(path, full);
    walk.menus().mnuFileSave.Click();
    walk.files.failWrites(path, std::nullopt);
}

/// For a while no journal can be written.
void fullDiskForJournals(Walk& walk)
{
    walk.files.failAppends(RuntimeError(ErrorCode::DiskFull, "No space left on device"), below(walk.random, 50));
    typeKeys(walk);
    typeSnippet(walk);
    walk.editor().TimerJournal.Tick();
    walk.files.failAppends(std::nullopt);
    walk.editor().TimerJournal.Tick();
}

struct Unsaved {
    std::string text;
    bool mustComeBack;
};

Unsaved unsavedOf(const Walk& walk, const Side& side)
{
    const std::string text = side.pane.Text();
    const auto onDisk = walk.files.contents(side.FilePath);
    const bool takenBack = text == side.Journal.Base.text() && onDisk && side.Journal.File == sumOf(*onDisk);
    const bool emptyNew = text.empty() && !side.Journal.File && !onDisk && side.Journal.Base.empty();
    return {text, side.Changed == changed::modified && text != onDisk && !takenBack && !emptyNew};
}

/// The program is gone without a word, and is started again.
void killAndRestart(Walk& walk)
{
    const Unsaved joystick = unsavedOf(walk, walk.editor().joystick);
    const Unsaved macro = unsavedOf(walk, walk.editor().macro);
    walk.restart();
    for (const auto& [side, before] :
         {std::pair{&walk.editor().joystick, joystick}, std::pair{&walk.editor().macro, macro}}) {
        if (!before.mustComeBack) continue;
        ++walk.broughtBack;
        EXPECT_EQ(side->pane.Text(), before.text) << "unsaved text of the " << side->kind << " file comes back";
        EXPECT_EQ(side->Changed, changed::modified);
    }
}

/// Some change of some bytes, or an end too early.
std::string damaged(Random& random, std::string bytes)
{
    const auto size = static_cast<unsigned>(bytes.size());
    switch (below(random, 4)) {
    case 0:
        bytes[below(random, size)] ^= static_cast<char>(1U << below(random, 8));
        break;
    case 1:
        bytes.resize(below(random, size));
        break;
    case 2:
        bytes.insert(below(random, size), std::string(below(random, 40) + 1, static_cast<char>(random())));
        break;
    default:
        bytes.replace(below(random, size), 20, "Dear diary");
        break;
    }
    return bytes;
}

/// One of the journals of what is open, with its side and what can be read of it.
struct OneJournal {
    Side* side = nullptr;
    std::string path;
    std::string bytes;
};

OneJournal anyJournal(Walk& walk)
{
    Side& side = walk.anySide();
    if (side.Journal.Number == 0) return {};
    const std::string path = journalPath(walk.editor(), side.Journal.Number);
    const std::string bytes = walk.files.contents(path).value_or("");
    return {bytes.empty() ? nullptr : &side, path, bytes};
}

bool isKept(const Walk& walk, const std::string& bytes)
{
    const std::vector<std::string> names = walk.files.list("c:\\tarvex\\Recover");
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return walk.fileText("c:\\tarvex\\Recover\\" + name) == bytes; });
}

/// The program is gone without a word, and something happens to a journal before it is started again: the other
/// document isn't touched by it, what precedes the damage comes back, and the bytes are kept, and the user knows.
void killDamageAndRestart(Walk& walk)
{
    const OneJournal journal = anyJournal(walk);
    if (journal.side == nullptr) return;
    const Side& otherSide = walk.editor().other(*journal.side);
    const int tab = journal.side->tab;
    const Unsaved other = unsavedOf(walk, otherSide);
    const std::string bytes = damaged(walk.random, journal.bytes);
    walk.files.addFile(journal.path, bytes);
    Journal readable;
    const JournalState state = readJournal(bytes, readable);
    walk.restart();

    Side& side = tab == walk.editor().joystick.tab ? walk.editor().joystick : walk.editor().macro;
    if (other.mustComeBack) {
        EXPECT_EQ(walk.editor().other(side).pane.Text(), other.text);
    }
    if (state == JournalState::Damaged || (state == JournalState::Readable && readable.damaged)) {
        ++walk.damagedJournals;
        EXPECT_TRUE(isKept(walk, bytes));
        EXPECT_FALSE(walk.dialogues.boxes.empty()) << "the user is informed";
    }
}

/// An orderly exit leaves no journal, except for those that can't be read, or that look like those of another version.
void exitAndRestartBesideDamage(Walk& walk)
{
    if (!walk.program().exit()) return;
    const std::string directory = "c:\\tarvex\\Recover";
    const bool isThere = walk.files.directoryExists(directory);
    for (const std::string& name : isThere ? walk.files.list(directory) : std::vector<std::string>()) {
        if (!name.ends_with(".journal")) continue;
        Journal journal;
        EXPECT_EQ(readJournal(walk.fileText(directory + "\\" + name), journal), JournalState::OtherVersion) << name;
    }
    walk.dialogues.boxes.clear();
    walk.restart();
    EXPECT_TRUE(walk.dialogues.boxes.empty());
}

void exitAndRestart(Walk& walk)
{
    if (!walk.program().exit()) return;
    EXPECT_TRUE(!walk.files.directoryExists("c:\\tarvex\\Recover") || walk.files.list("c:\\tarvex\\Recover").empty())
        << "an orderly exit leaves no journal";
    walk.dialogues.boxes.clear();
    walk.restart();
    EXPECT_TRUE(walk.dialogues.boxes.empty());
}

void dragText(Walk& walk)
{
    const auto length = static_cast<unsigned>(walk.pane().TextLength());
    moveSelection(walk.pane(), below(walk.random, length + 1));
}

void showErrorLine(Walk& walk) { HighlightErrorLine(walk.editor(), below(walk.random, 40)); }
void transferText(Walk& walk) { SafeinTransferText(walk.editor(), oneOf(walk.random, snippets)); }
void otherTab(Walk& walk) { selectOtherTab(walk.editor()); }
void blinkTick(Walk& walk) { TimerBlinkLine_Timer(walk.editor()); }
void autoSaveTick(Walk& walk) { Timer1_Timer(walk.editor()); }
void autoSave(Walk& walk) { AutoSaveFile(walk.editor()); }
void journalTick(Walk& walk) { walk.editor().TimerJournal.Tick(); }
void resize(Walk& walk)
{
    walk.editor().ScaleWidth = static_cast<int>(below(walk.random, 2000));
    walk.editor().ScaleHeight = static_cast<int>(below(walk.random, 1000));
}

template <MenuItem Menus::*item> void click(Walk& walk) { (walk.menus().*item).Click(); }

struct Action {
    const char* name;
    int weight;
    void (*run)(Walk&);
};

constexpr Action actions[] = {
    {"type keys", 30, typeKeys},
    {"type a snippet", 12, typeSnippet},
    {"backspace", 8, backspace},
    {"select", 14, select},
    {"select all", 1, click<&Menus::mnuEditSelectAll>},
    {"delete", 3, click<&Menus::mnuEditDelete>},
    {"cut, copy, paste", 6, copyOrPaste},
    {"drag text", 2, dragText},
    {"transfer text", 2, transferText},
    {"undo", 10, click<&Menus::mnuEditUndo>},
    {"redo", 8, click<&Menus::mnuEditRedo>},
    {"undo and redo", 4, undoRoundTrip},
    {"find and replace", 5, findAndReplace},
    {"colour both", 1, click<&Menus::mnuViewApplyColourBothFiles>},
    {"colour", 2, click<&Menus::mnuRHMColour>},
    {"remove colour", 2, click<&Menus::mnuRHMColoursRemove>},
    {"remove colour of the selection", 2, click<&Menus::mnuRemoveColourSelectedText>},
    {"reformat", 1, click<&Menus::mnuViewReformat>},
    {"refresh the indent", 1, click<&Menus::mnuViewrefreshIndent>},
    {"align slashes", 2, click<&Menus::mnuViewAlignSlashes>},
    {"comment out", 3, click<&Menus::mnuEditREMblock>},
    {"restore", 3, click<&Menus::mnuEditREMunblock>},
    {"slash button", 3, pressSlashButton},
    {"macro list", 4, useMacroList},
    {"update macros", 1, click<&Menus::mnuEditUpdateMacros>},
    {"identify macros", 1, click<&Menus::mnuViewIdentify>},
    {"key of a pane", 4, pressPaneKeys},
    {"other tab", 10, otherTab},
    {"tile", 2, click<&Menus::mnuViewTileVertically>},
    {"macro frame", 2, click<&Menus::mnuViewMacros>},
    {"resize", 1, resize},
    {"highlight the line", 2, click<&Menus::mnuViewHighlightLine>},
    {"show a line", 1, showErrorLine},
    {"blink", 6, blinkTick},
    {"new joystick file", 1, click<&Menus::mnuFileNewJoystick>},
    {"new macro file", 1, click<&Menus::mnuFileNewMacro>},
    {"close", 1, click<&Menus::mnuFileClose>},
    {"open both", 2, click<&Menus::mnuFileOpen>},
    {"open joystick file", 1, click<&Menus::mnuFileJoystickLoad>},
    {"open macro file", 1, click<&Menus::MnuFileMacroLoad>},
    {"save", 4, click<&Menus::mnuFileSave>},
    {"save as", 1, click<&Menus::mnuFileSaveAs>},
    {"save both", 2, click<&Menus::mnuFileSaveBoth>},
    {"add a favourite", 1, addFavourite},
    {"open a favourite", 1, clickOneOf<&Menus::mnuFavArray>},
    {"open a previous joystick file", 1, clickOneOf<&Menus::mnuJFArray>},
    {"open a previous macro file", 1, clickOneOf<&Menus::mnuMFArray>},
    {"save on a full disk", 1, saveOnAFullDisk},
    {"protect the macros", 1, protectMacros},
    {"other settings", 1, otherSettings},
    {"a minute of automatic save", 2, autoSaveTick},
    {"automatic save", 1, autoSave},
    {"15 seconds of the journal", 4, journalTick},
    {"no room for journals", 1, fullDiskForJournals},
    {"kill and restart", 2, killAndRestart},
    {"exit and restart", 1, exitAndRestart},
};

/// The same user on a disk that damages journals.
std::vector<Action> actionsWithDamage()
{
    std::vector<Action> all(std::begin(actions), std::end(actions));
    for (Action& action : all) {
        if (action.run == exitAndRestart) action.run = exitAndRestartBesideDamage;
    }
    all.push_back({"kill, damage a journal and restart", 4, killDamageAndRestart});
    return all;
}

const Action& nextAction(Random& random, std::span<const Action> all)
{
    const int total =
        std::accumulate(all.begin(), all.end(), 0, [](int sum, const Action& action) { return sum + action.weight; });
    int left = static_cast<int>(below(random, static_cast<unsigned>(total)));
    const Action* action = all.data();
    while (left >= action->weight) left -= action++->weight;
    return *action;
}

struct Texts {
    std::string joystick;
    std::string macro;
};

Texts textsOf(Walk& walk) { return {walk.editor().JoystickText.Text(), walk.editor().MacroText.Text()}; }

// ---- how the program has to be --------------------------------------------------------------------------------------

void checkPane(const Pane& pane)
{
    std::size_t formatted = 0;
    for (const FormatRun& run : pane.runs()) formatted += run.length;
    EXPECT_EQ(formatted, pane.TextLength()) << "each character has a format";
    EXPECT_TRUE(hasOnlyPairs(pane.Text()));
    EXPECT_GE(pane.SelStart(), 0);
    EXPECT_LE(pane.SelStart() + pane.SelLength(), static_cast<std::int64_t>(pane.TextLength()));
}

void checkUndo(Walk& walk, const Side& side)
{
    const UndoHistory& history = side.Undo;
    ASSERT_GE(history.Position, 1U);
    ASSERT_LE(history.Position, history.Levels.size());
    EXPECT_LE(history.Levels.size(), 15U);
    EXPECT_EQ(history.Levels[history.Position - 1].Text.text(), side.pane.Text()) << "the level that is showing";
    if (&side != &walk.side()) return;
    EXPECT_EQ(walk.menus().mnuEditUndo.Enabled, history.Position != history.Levels.size());
    EXPECT_EQ(walk.menus().mnuEditRedo.Enabled, history.Position != 1);
}

void checkState(Walk& walk, const Side& side)
{
    EXPECT_EQ(walk.editor().tabCaption(side), side.FileName);
    EXPECT_TRUE(side.Changed >= changed::noText && side.Changed <= changed::modified);
    EXPECT_TRUE(side.Changed != changed::noText || side.pane.Text().empty());
    if (side.Changed == changed::saved) {
        EXPECT_EQ(walk.files.contents(side.FilePath), side.pane.Text());
        EXPECT_TRUE(walk.saved.contains(side.FilePath));
    }
    if (&side != &walk.side()) return;
    StatusBar::Panel& panel = walk.program().mum.StatusBar.Panels(panel::savedState);
    EXPECT_EQ(panel.Picture, side.Changed + 2);
    EXPECT_TRUE(panel.ToolTipText.get().starts_with(side.FileName));
}

/// What a crash in this moment would leave behind.
void checkJournal(Walk& walk, const Side& side)
{
    const JournalRecord& record = side.Journal;
    if (record.Number == 0) {
        EXPECT_EQ(record.Base.text(), side.pane.Text()) << "nothing to keep";
        return;
    }
    EXPECT_EQ(side.Changed, changed::modified);
    Journal journal;
    const auto bytes = walk.files.contents(journalPath(walk.editor(), record.Number));
    ASSERT_TRUE(bytes && readJournal(*bytes, journal) == JournalState::Readable);
    EXPECT_EQ(journal.text, side.pane.Text());
    EXPECT_EQ(journal.start.base, record.Base.text());
    EXPECT_TRUE(walk.editor().TimerJournal.Enabled || !record.Unsynced);
}

void checkMacros(Walk& walk)
{
    const auto& lists = walk.editor().FrameMacros.List1;
    const auto& headings = walk.editor().macros.MacroHeadings;
    EXPECT_EQ(lists.size(), std::max<std::size_t>(headings.size(), 1)) << "a list for each heading";
    for (const CheckListBox& list : lists) {
        EXPECT_GE(list.ListIndex, -1);
        EXPECT_LT(list.ListIndex, std::max(static_cast<int>(list.Items.get().size()), 1));
    }
}

void checkList(const RecentList& list)
{
    for (const std::vector<SettingText>* column : list.columns)
        EXPECT_EQ(column->size(), list.columns.front()->size()) << list.menu.Name;
    EXPECT_GE(static_cast<int>(list.columns.front()->size()), list.count) << list.menu.Name;
    EXPECT_LE(list.count, mostEntries) << list.menu.Name;
    EXPECT_EQ(list.menu.UBound(), list.count) << list.menu.Name << ": an item for each entry, and the pattern";
}

/// A file holds what it held, or the text of its document as it was before the action or is now.
void checkFiles(Walk& walk, const Texts& before)
{
    const Texts now = textsOf(walk);
    for (const std::string& name : walk.files.list(programs)) {
        const std::string path = programs + name;
        const std::string held = walk.fileText(path);
        const auto known = walk.saved.find(path);
        if (known != walk.saved.end() && known->second == held) continue;
        const bool macro = lastThree(name).starts_with('m');
        EXPECT_TRUE(held == (macro ? before.macro : before.joystick) || held == (macro ? now.macro : now.joystick))
            << path << " holds what nobody saved:\n"
            << held;
        walk.saved[path] = held;
    }
    for (const auto& [path, text] : walk.saved) EXPECT_TRUE(walk.files.fileExists(path)) << path;
}

void check(Walk& walk, const Texts& before)
{
    checkFiles(walk, before);
    EXPECT_EQ(walk.program().shared.IsLoading, 0);
    for (const Side* side : {&walk.editor().joystick, &walk.editor().macro}) {
        SCOPED_TRACE(side->kind);
        checkPane(side->pane);
        checkUndo(walk, *side);
        checkState(walk, *side);
        checkJournal(walk, *side);
    }
    checkMacros(walk);
    const Lists& lists = walk.program().lists;
    for (const RecentList* list : {&lists.previous.joystick.list, &lists.previous.macro.list, &lists.favourites.list})
        checkList(*list);
}

unsigned fromEnvironment(const char* name, unsigned otherwise)
{
    const char* told = std::getenv(name);
    return told ? static_cast<unsigned>(std::strtoul(told, nullptr, 10)) : otherwise;
}

/// Stops at the first failure.
void goForAWalk(Walk& walk, std::span<const Action> all, unsigned steps)
{
    std::string last;
    for (unsigned step = 0; step < steps && !testing::Test::HasFailure(); ++step) {
        const Action& action = nextAction(walk.random, all);
        SCOPED_TRACE("step " + std::to_string(step) + ": " + action.name + ", on tab " +
                     std::to_string(walk.side().tab) + ", after" + last);
        walk.dialogues.boxes.clear();
        const Texts before = textsOf(walk);
        action.run(walk);
        check(walk, before);
        shorten(walk);
        last = last.substr(last.size() > 200 ? last.find(',', last.size() - 200) : 0) + ", " + action.name;
    }
}

} // namespace

TEST(RandomWalk, AfterAnyActionTheProgramIsAsItHasToBe)
{
    const unsigned steps = fromEnvironment("TARVEX_STEPS", 50'000);
    Walk walk(randomSeed());
    goForAWalk(walk, actions, steps);
    if (HasFailure()) return;
    EXPECT_GE(walk.broughtBack, steps / 500) << "there was something to bring back";
}

TEST(RandomWalk, ADamagedJournalCostsNoMoreThanWhatFollowsTheDamage)
{
    const unsigned steps = fromEnvironment("TARVEX_STEPS", 10'000);
    Walk walk(randomSeed());
    goForAWalk(walk, actionsWithDamage(), steps);
    if (HasFailure()) return;
    EXPECT_GE(walk.damagedJournals, steps / 500) << "there was damage";
}

} // namespace tarvex
