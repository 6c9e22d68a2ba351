#include "documents/window/editor_window.h"

#include "documents/editing/pane_change.h"
#include "documents/editing/undo.h"
#include "documents/files/file_load.h"
#include "documents/files/file_new.h"
#include "documents/files/file_open.h"
#include "documents/files/file_questions.h"
#include "documents/pair/document_status.h"
#include "documents/pair/loading.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "documents/recovery/offer/recovery_offer.h"
#include "documents/window/frame_commands.h"
#include "documents/window/hardware_changes.h"
#include "documents/window/zoom_commands.h"
#include "platform/windows1252.h"

namespace tarvex {

namespace {

constexpr std::string_view firstUseText =
    "Hi there buddy! Tarvex - all modular system checks passed OK.\n\n"
    "Welcome to Tarvex, the most complete programming interface available for Thrustmaster users. Now I'm going to "
    "need some information from you regarding what Thrustmaster equipment you have, and where your Thrustmaster files "
    "are on your hard disk. Remember, you must still have installed the Thrustmaster software to use parts of Tarvex. "
    "So let's go to the Preferences Window, and fill out all the sections on the first tab, the File Locations tab. If "
    "you get lost, press the Help button there.\n\n"
    "Please remember to ensure that your Windows Display Properties are set to use small fonts - if they're not the "
    "macro list and the Composer images are going to look pretty odd.\n\n"
    "Cheers, and enjoy Tarvex.";

void applyColourScheme(Editor& editor)
{
    for (Side* side : {&editor.joystick, &editor.macro}) {
        applyScheme(editor, *side);
        applyBaseFormat(editor, side->pane);
    }
}

void nameEmptyDocuments(Editor& editor)
{
    for (Side* side : {&editor.joystick, &editor.macro}) {
        nameUntitled(editor, *side);
        side->Changed = changed::noText;
    }
    editor.macro.FilePath = lowerUtf8(editor.macro.FilePath);
    editor.mum.StatusBar.Panels(panel::macroFile).Text = "No macro file analysed";
}

void readLists(Editor& editor, const Steps& step)
{
    Operations& operations = editor.operations;
    SettingsStore& store = editor.shared.store;
    step([&] { operations.GetPreviousFiles(); });
    step([&] { operations.GetFavourites(); });
    step([&] { operations.GetGames(); });
    step([&] { operations.GetCustomApps(); });
    store.GetColours();
    editor.Visible = true;
    store.GetOpenSingleOnly();
    store.GetIndentStuff();
    tickMenus(editor);
}

/// The last favourite of the wanted name counts.
void openFavourite(Editor& editor)
{
    MenuArray& favourites = editor.menus.mnuFavArray;
    for (int i = favourites.UBound(); i > 0; --i) {
        if (favourites[i].Caption == editor.shared.settings.FavNameToLoad) return favourites[i].Click();
    }
}

/// For the status bar: why a path that can be no file at all names none. Empty for a file, and for a name that simply
/// doesn't exist, which is dropped without a word.
std::string whyNotAFile(const FileSystem& files, const std::string& path)
{
    if (!isValidUtf8(path)) return "I couldn't find the file I was started with: its name isn't valid UTF-8.";
    if (files.fileExists(path)) return {};
    if (files.directoryExists(path)) return path + " is a folder, so I haven't opened it.";
    ErrorRecord failure;
    const Steps step(failure, "whyNotAFile");
    if (step([&] { files.readPieces(path, [](std::string_view) { return false; }); })) return {};
    const auto code = static_cast<ErrorCode>(failure.ErrorNumber);
    if (code == ErrorCode::FileNotFound || code == ErrorCode::PathNotFound) return {};
    return "I couldn't open " + path + ": " + step.whyNot();
}

/// The command line's file wins over a favourite, and that over the pair of the last time. Text that was brought back
/// is shown in their stead; a file that is no part of it is opened after the usual question. Returns why the command
/// line's file can't be opened, if it can't.
std::string openFirstFile(LastPair& lastPair)
{
    Editor& editor = lastPair.editor;
    Shared& shared = editor.shared;
    const auto broughtBack = offerRecovery(editor);
    std::string whyNot;
    if (!shared.CommandLineFile.empty()) {
        whyNot = whyNotAFile(editor.platform.files, shared.CommandLineFile);
        TestCommandLine(editor);
    }
    if (!shared.CommandLineFile.empty()) {
        if (isAmong(broughtBack, shared.CommandLineFile)) return {};
        editor.OpeningPath = shared.CommandLineFile;
        OpenPreviouslySavedFiles(editor);
    } else if (broughtBack.empty() && !shared.settings.FavNameToLoad.empty() && shared.settings.FavLoadOnStart == 1) {
        openFavourite(editor);
    } else if (broughtBack.empty()) {
        openLastPair(lastPair);
    }
    return whyNot;
}

void playStartupSound(Editor& editor)
{
    const Platform& platform = editor.platform;
    std::string sound;
    for (const char* name : {"\\tarvexbig.wav", "\\tarvexsmall.wav"}) {
        if (sound.empty() && platform.files.fileExists(platform.programDirectory + name))
            sound = platform.programDirectory + name;
    }
    if (sound.empty()) return;
    editor.shared.StartupSoundAvailable = 1;
    if (editor.shared.settings.PlayWavOnStartup != 1) return;
    platform.desktop.showHourglass(true);
    platform.sound.play(sound);
    platform.desktop.doEvents();
    platform.desktop.showHourglass(false);
}

void firstUse(Editor& editor)
{
    editor.platform.dialogues.show(
        {.title = "Tarvex initialising ...", .text = std::string(firstUseText), .icon = BoxIcon::Information});
    editor.shared.store.SaveOptions();
    editor.menus.mnuPreferencesEdit.Click();
    editor.operations.ShowTour();
}

void forgetToolWindowPlaces(Shared& shared)
{
    shared.ToolWindowTop = shared.ToolWindowLeft = -1;
    shared.SecondToolWindowTop = shared.SecondToolWindowLeft = -1;
}

/// The settings, the two empty documents, the lists, and the file to begin with. None of it is the user's edit. Returns
/// why the command line's file can't be opened, if it can't.
std::string loadDocuments(LastPair& lastPair, const Steps& step)
{
    Editor& editor = lastPair.editor;
    Shared& shared = editor.shared;
    Settings& settings = shared.settings;
    Menus& menus = editor.menus;
    const Loading loading(shared);
    forgetToolWindowPlaces(shared);
    menus.mnuRHMouse.Visible = false;
    menus.mnuRHList.Visible = false;
    shared.store.GetColours();
    step([&] { applyColourScheme(editor); });
    menus.mnuGames.Caption = settings.GamesCaption;
    nameEmptyDocuments(editor);
    step([&] { DeleteUndosFromMemory(editor); });
    readLists(editor, step);
    step([&] { showCalibration(editor); });
    editor.JoystickText.setSelStart(0);
    editor.MacroText.setSelStart(0);
    editor.TabStrip1.Select(editor.joystick.tab);

    std::string whyNotOpened;
    step([&] { whyNotOpened = openFirstFile(lastPair); });

    shared.store.read(Access::GetLayoutFonts, "ED_Form_Load");
    return whyNotOpened;
}

} // namespace

void tickMenus(Editor& editor)
{
    const Settings& settings = editor.shared.settings;
    Menus& menus = editor.menus;
    menus.mnuJoyPopUpSingleFile.Checked = settings.OpenSingleFileOnly == 1;
    menus.mnuUseWakeWarning.Checked = settings.WakeUpWarning == 1;
    menus.mnuMacrosSaveOptions1.Checked = settings.MacroSaveUpdateMacros == 1;
    menus.mnuMacrosSaveOptions2.Checked = settings.MacroSaveIdentifyJF == 1;
    menus.mnuInsertWithColour.Checked = settings.InsertWithColour == 1;
    menus.mnuAppsQuiet.Checked = settings.UseQonDownload == 1;
}

void Form_Load(LastPair& lastPair)
{
    Editor& editor = lastPair.editor;
    const Steps step(editor.shared.errors, "ED_Form_Load");
    Shared& shared = editor.shared;
    Settings& settings = shared.settings;

    editor.mum.Toolbar1.Visible = true;
    readZoom(editor);
    editor.status("Loading up the main Tarvex Editor .... hang on ....");
    const std::string whyNotOpened = loadDocuments(lastPair, step);
    UpdateSavedIcon(editor);
    step([&] { editor.operations.UpdateEditorTooltips(); });
    showLineNumber(editor, editor.selected(), editor.selected().pane.SelStart());
    F22MenusUpdate(editor);
    editor.status(whyNotOpened.empty() ? "Ready! Welcome to Tarvex!" : whyNotOpened);
    showOpeningRemarks(editor);
    editor.platform.desktop.doEvents();
    editor.platform.desktop.doEvents();

    step([&] { playStartupSound(editor); });
    editor.AutoSaveMinutes = 0;
    if (settings.AutoSaveEnabled == 1) editor.Timer1.Enabled = true;
    if (settings.FirstTimeUsed == 1) step([&] { firstUse(editor); });
}

void Form_Activate(Editor& editor)
{
    const Steps step;
    editor.mum.Toolbar1.Visible = true;
    editor.selected().pane.SetFocus();
    step([&] { editor.operations.UpdateToolBarOpenSaveTooltips(); });
    if (editor.shared.FontChanged == 1) step([&] { editor.operations.DamnFontWasChanged(); });
}

bool Form_QueryUnload(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_Form_QueryUnload");
    bool leave = false; // unsaved text keeps the program open when a step fails
    step([&] {
        editor.ExitInProgress = 1; // saving the macro file mustn't stop to analyse it
        leave = mayLeave(editor, editor.macro, questionBeforeExit());
    });
    editor.ExitInProgress = 0;
    if (!leave) return false;
    leave = false;
    step([&] { leave = mayLeave(editor, editor.joystick, questionBeforeExit()); });
    return leave;
}

void Form_Unload(Editor& editor)
{
    const Steps step;
    SettingsStore& store = editor.shared.store;
    step([&] { store.SaveOpenSingleOnly(); });
    step([&] { store.SaveIndentStuff(); });
    saveZoom(editor);
    endJournals(editor);
    editor.TimerColour.Enabled = false;
    editor.Timer1.Enabled = false;
    editor.TimerBlinkLine.Enabled = false;
    for (const char* form : {"FindAndReplace", "InsertOptions", "Heading", "KeyTestForm", "InfoWindow", "RAWform"})
        step([&] { editor.operations.UnloadForm(form); });
    editor.mum.Toolbar1.Visible = false;
    for (const char* form : {"MacroWizard", "JoystickWiz", "SlashWizard", "JoyPlot", "TCAform", "Speedy"})
        step([&] { editor.operations.UnloadForm(form); });
    editor.Visible = false;
}

void TestCommandLine(Editor& editor)
{
    std::string& file = editor.shared.CommandLineFile;
    if (!editor.platform.files.fileExists(file)) file.clear();
}

} // namespace tarvex
