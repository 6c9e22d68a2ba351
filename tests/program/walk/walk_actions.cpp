#include "program/walk/walk.h"

#include "documents/editing/line_highlight.h"
#include "documents/editing/pane_keys.h"
#include "documents/files/auto_save.h"
#include "documents/pair/noted_caret.h"
#include "documents/recovery/recovery_format.h"
#include "documents/text/drag_move.h"
#include "language/commands/macro_list_events.h"
#include "language/commands/text_transfer.h"
#include "safein/keys/key_table.h"

#include <array>
#include <gtest/gtest.h>
#include <numeric>

namespace tarvex {

namespace {

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

void dragText(Walk& walk)
{
    const auto length = static_cast<unsigned>(walk.pane().TextLength());
    moveSelection(walk.pane(), below(walk.random, length + 1));
}

/// Words of the snippets, an empty text among them.
void useFindBar(Walk& walk)
{
    FindBar& bar = walk.program().findBar;
    if (!bar.Visible) return walk.menus().mnuEditFindBar.Click();
    bar.Text.Text = oneOf(walk.random, std::array{"BTN", "fire", "e", "(", ")", " ", "", "gun_one", "REM"});
    CheckBox& option = *oneOf(walk.random, std::array{&bar.MatchCase, &bar.WholeWord});
    option.Value = below(walk.random, 2) == 0;
    option.Click();
    oneOf(walk.random, std::array{&bar.Next, &bar.Previous, &bar.Close})->Click();
}

/// The user pauses, or leaves the line.
void colourTick(Walk& walk)
{
    walk.program().shared.extras.set(extraKey::colourAsTyped, true);
    noteCaret(walk.editor(), walk.side());
    if (walk.editor().TimerColour.Enabled) walk.editor().TimerColour.Tick();
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

/// A key of Safein, something of it for the statement, and one of the five insertions.
void useSafein(Walk& walk)
{
    RAWform& safein = walk.program().safein;
    if (!safein.form.Visible) return walk.menus().mnuInsertRAW.Click();
    oneOf(walk.random, std::array{&safein.ToggleButton1, &safein.ToggleButton2, &safein.ToggleButton3})->Click();
    safein.Command1[static_cast<std::size_t>(oneOf(walk.random, keyTable()).index)].Click();
    oneOf(walk.random, std::array{&safein.Command5, &safein.Command10[0], &safein.Command10[2], &safein.Command3[0],
                                  &safein.Command4, &safein.Command14, &safein.Command2})
        ->Click();
    oneOf(walk.random, safein.CommandPasteJ).Click();
}

template <MenuItem Menus::*item> void click(Walk& walk) { (walk.menus().*item).Click(); }

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
    {"Safein", 3, useSafein},
    {"undo", 10, click<&Menus::mnuEditUndo>},
    {"redo", 8, click<&Menus::mnuEditRedo>},
    {"undo and redo", 4, undoRoundTrip},
    {"find and replace", 5, findAndReplace},
    {"find bar", 5, useFindBar},
    {"paste plain text", 2, click<&Menus::mnuEditPastePlain>},
    {"colour what was typed", 5, colourTick},
    {"filter the macros", 1, click<&Menus::mnuViewFilterMacros>},
    {"larger text", 1, click<&Menus::mnuViewZoomIn>},
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

} // namespace

std::span<const Action> usualActions() { return actions; }

const Action& nextAction(Random& random, std::span<const Action> all)
{
    const int total =
        std::accumulate(all.begin(), all.end(), 0, [](int sum, const Action& action) { return sum + action.weight; });
    int left = static_cast<int>(below(random, static_cast<unsigned>(total)));
    const Action* action = all.data();
    while (left >= action->weight) left -= action++->weight;
    return *action;
}

Unsaved unsavedOf(const Walk& walk, const Side& side)
{
    const std::string text = side.pane.Text();
    const auto onDisk = walk.files.contents(side.FilePath);
    const bool takenBack = text == side.Journal.Base.text() && onDisk && side.Journal.File == sumOf(*onDisk);
    const bool emptyNew = text.empty() && !side.Journal.File && !onDisk && side.Journal.Base.empty();
    return {text, side.Changed == changed::modified && text != onDisk && !takenBack && !emptyNew};
}

void exitAndRestart(Walk& walk)
{
    if (!walk.program().exit()) return;
    EXPECT_TRUE(!walk.files.directoryExists("c:\\tarvex\\Recover") || walk.files.list("c:\\tarvex\\Recover").empty())
        << "an orderly exit leaves no journal";
    const std::size_t asked = walk.dialogues.boxes.size();
    walk.restart();
    EXPECT_EQ(walk.dialogues.boxes.size(), asked) << "a start after an orderly exit shows no box";
}

void shorten(Walk& walk)
{
    constexpr std::size_t enough = 1500;
    for (Side* side : {&walk.editor().joystick, &walk.editor().macro}) {
        if (side->pane.TextLength() > enough) side->pane.userEdit(200, 1000, "");
    }
}

} // namespace tarvex
