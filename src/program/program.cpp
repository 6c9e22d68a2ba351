#include "program/program.h"

#include "composer/composer.h"
#include "documents/editing/clipboard_commands.h"
#include "documents/editing/line_highlight.h"
#include "documents/editing/pane_change.h"
#include "documents/editing/pane_menu.h"
#include "documents/editing/undo.h"
#include "documents/files/auto_save.h"
#include "documents/files/file_new.h"
#include "documents/files/file_open.h"
#include "documents/files/file_save.h"
#include "documents/find/find_and_replace.h"
#include "documents/pair/editor_layout.h"
#include "documents/pair/tabs.h"
#include "documents/printing/print_commands.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "documents/window/editor_window.h"
#include "documents/window/frame_commands.h"
#include "documents/window/menu_choices.h"
#include "documents/window/preferences_page.h"
#include "documents/window/zoom_commands.h"
#include "download/download_commands.h"
#include "download/own_tools.h"
#include "language/commands/language_commands.h"
#include "preferences/preferences_command.h"
#include "safein/safein.h"
#include "sheet/commands/print_controls.h"
#include "shell/frame/mum_window.h"
#include "shell/handler.h"
#include "templates/template_editor.h"
#include "templates/template_recovery.h"
#include "viewer/image_viewer.h"
#include "wizards/composer_places.h"

namespace tarvex {

namespace {

/// Tool windows that an emergency exit takes down.
constexpr const char* toolWindows[] = {
    "ColourSelector",
    "EnterFavouritename",
    "EnterGameName",
    "FindAndReplace",
    "frmAbout",
    "Heading",
    "frmTip",
    "InsertOptions",
    "JoystickWiz",
    "Speedy",
    "KeyTestForm",
    "MacroWizard",
    "Preferences",
    "RAWform",
    "SelectPictureForm",
    "JoyPlot",
    "SingleTextForm",
    "TemplateForm",
    "Title",
    "ViewImage",
};

void wireFileMenu(Menus& menus, Editor& editor)
{
    menus.mnuFileNewJoystick.handler = on(editor, mnuFileNewJoystick_Click);
    menus.mnuFileNewMacro.handler = on(editor, mnuFileNewMacro_Click);
    menus.mnuFileNewBoth.handler = on(editor, mnuFileNewBoth_Click);
    menus.mnuFileOpen.handler = on(editor, mnuFileOpen_Click);
    menus.mnuFileJoystickLoad.handler = on(editor, mnuFileJoystickLoad_Click);
    menus.MnuFileMacroLoad.handler = on(editor, MnuFileMacroLoad_Click);
    menus.mnuFileSave.handler = on(editor, mnuFileSave_Click);
    menus.mnuFileSaveAs.handler = on(editor, mnuFileSaveAs_Click);
    menus.mnuFileSaveBoth.handler = on(editor, mnuFileSaveBoth_Click);
    menus.mnuFileClose.handler = on(editor, mnuFileClose_Click);
    menus.mnuFileCloseBoth.handler = on(editor, mnuFileCloseBoth_Click);
}

void wireEditMenu(Menus& menus, Editor& editor)
{
    menus.mnuEditUndo.handler = on(editor, mnuEditUndo_Click);
    menus.mnuEditRedo.handler = on(editor, mnuEditRedo_Click);
    menus.mnuEditCut.handler = on(editor, mnuEditCut_Click);
    menus.mnuEditCopy.handler = on(editor, mnuEditCopy_Click);
    menus.mnuEditPaste.handler = on(editor, mnuEditPaste_Click);
    menus.mnuEditPastePlain.handler = on(editor, mnuEditPastePlain_Click);
    menus.mnuEditDelete.handler = on(editor, mnuEditDelete_Click);
    menus.mnuEditSelectAll.handler = on(editor, mnuEditSelectAll_Click);
}

void wireViewAndPreferences(Menus& menus, Editor& editor)
{
    menus.mnuViewTileVertically.handler = on(editor, mnuViewTileVertically_Click);
    menus.mnuViewMacros.handler = on(editor, mnuViewMacros_Click);
    menus.mnuViewHighlightLine.handler = on(editor, mnuViewHighlightLine_Click);
    menus.mnuViewZoomIn.handler = on(editor, mnuViewZoomIn_Click);
    menus.mnuViewZoomOut.handler = on(editor, mnuViewZoomOut_Click);
    menus.mnuViewZoomNormal.handler = on(editor, mnuViewZoomNormal_Click);
    menus.mnuViewEditColours.handler = on(editor, mnuViewEditColours_Click);
    menus.mnuPreferencesProtectMacroFile.handler = on(editor, mnuPreferencesProtectMacroFile_Click);
    menus.mnuJoyPopUpSingleFile.handler = on(editor, mnuJoyPopUpSingleFile_Click);
    menus.mnuInsertWithColour.handler = on(editor, mnuInsertWithColour_Click);
    menus.mnuMacrosSaveOptions1.handler = [&editor] { mnuMacrosSaveOptions_Click(editor, 1); };
    menus.mnuMacrosSaveOptions2.handler = [&editor] { mnuMacrosSaveOptions_Click(editor, 2); };
}

void wirePanes(Editor& editor)
{
    for (Side* side : {&editor.joystick, &editor.macro}) {
        side->pane.Change = [&editor, side] { Text_Change(editor, *side); };
        side->pane.KeyPress = [&editor, side](int key) { Text_KeyPress(editor, *side, key); };
        side->pane.EditComing = [&editor, side] { paneEditComing(editor, *side); };
    }
    editor.TabStrip1.Click = on(editor, TabStrip1_Click);
    editor.Timer1.Tick = on(editor, Timer1_Timer);
    editor.TimerBlinkLine.Tick = on(editor, TimerBlinkLine_Timer);
}

} // namespace

Program::Program(Platform& thePlatform, std::optional<InputDevices> devices)
    : platform(thePlatform), shared(thePlatform), editor(thePlatform, shared, mum, menus, operations),
      colourAsTyped(editor), findAndReplace(editor), findBar(findAndReplace), outsideNotices(editor),
      differences(editor), lastPair(editor), safein(editor), composer(editor), generators(editor), wizards(editor),
      templateEditor(editor), testers(editor, devices.value_or(InputDevices{noJoystick, noKeyboard})),
      imageViewer(editor), lists(editor), preferences(editor, lists), help(editor)
{
    wireFileMenu(menus, editor);
    wireEditMenu(menus, editor);
    wireViewAndPreferences(menus, editor);
    wirePanes(editor);
    followEdits(editor);
    wirePaneMenu(editor);
    wirePrinting(editor);
    wireControlSheet(editor);
    wireFindAndReplace(findAndReplace);
    wireFindBar(findBar);
    wireDifferences(differences);
    wireOutsideNotices(outsideNotices);
    outsideNotices.colour = [this](const Side& side) { colourAsTyped.colourAll(side); };
    wireSafein(safein);
    wireComposer(composer);
    offerComposer(composer);
    wireGenerators(generators);
    wireWizards(wizards);
    wireTemplateEditor(templateEditor);
    wireImageViewer(imageViewer);
    wizards.joystick.composer = composerPlaces(composer);
    safein.MirrorStatement = [this](const std::string& statement) { takeKeys(wizards, statement); };
    wireFrame(editor);
    wireLanguage(editor);
    wireDownload(editor, lists.games);
    wireTesters(testers);
    wireOwnTools(editor);
    wirePreferences(preferences);
    wireHelp(help);
    safein.HelpTopic = [this](int topic) { operations.HelpTopic(topic); };
    safein.ShowInfoItem = [this](int item) { operations.ShowInfoPage(item); };
    menus.mnuFileExit.handler = [this] { mnuFileExit_Click({platform, shared, mum, operations}); };
    menus.mnuMumFileExit.handler = [this] { mnuMumFileExit_Click({platform, shared, mum, operations}); };
    operations.ShowEditor = [this] {
        Form_Load(lastPair);
        offerTemplateRecovery(templateEditor);
    };
    operations.QueryUnloadEditor = [this](bool& cancel) {
        cancel = !Form_QueryUnload(editor) || !closeTemplateEditor(templateEditor);
    };
    operations.CaretLeftLine = [this] { colourAsTyped.lineLeft(); };
    operations.UnloadEditor = [this] {
        noteLastPair(lastPair);
        Form_Unload(editor);
        operations.UnloadForm(help.handbook.form.Name); // keeps its place
    };
    shared.errors.exitInEmergency = [this] {
        ReleaseGradientInEmergency({platform, shared, mum, operations});
        for (const char* window : toolWindows) operations.UnloadForm(window);
        menus.mnuFileExit.Click();
        platform.desktop.quit();
    };
}

Program::~Program() = default;

bool Program::start()
{
    const bool started = MDIForm_Load({platform, shared, mum, operations});
    // The tip of the day brought the frame before the tour of a newcomer.
    if (started && help.handbook.form.Visible) help.handbook.form.Show();
    return started;
}

bool Program::exit() { return mnuFileExit_Click({platform, shared, mum, operations}); }

} // namespace tarvex
