#include "documents/files/file_open.h"

#include "documents/files/file_dialogues.h"
#include "documents/files/file_load.h"
#include "documents/files/file_questions.h"
#include "language/associated_files.h"
#include "platform/dos_path.h"
#include "platform/windows1252.h"

#include <optional>

namespace tarvex {

namespace {

struct Chosen {
    std::string path;
    std::string name;
};

std::optional<Chosen> chooseFile(Editor& editor, const FileRequest& request)
{
    if (editor.OpeningWithoutAsking == 1) return Chosen{lowerUtf8(editor.OpeningPath), lowerUtf8(editor.OpeningName)};
    const auto path = askForFileToOpen(editor, request);
    if (!path) return std::nullopt;
    return Chosen{lowerUtf8(*path), lowerUtf8(fileNameOf(*path))};
}

/// The ticks of the macro list are out of date.
void endOpenOne(Editor& editor, const Side& side)
{
    editor.TabStrip1.Select(side.tab);
    editor.operations.ClearMacroTicks();
}

void endOpenBoth(Editor& editor, const Side& side)
{
    editor.TabStrip1.Select(side.tab);
    editor.status("Done");
    if (editor.shared.settings.CheckIdentifyOK == 1)
        editor.operations.IdentifyMacrosUsed();
    else
        editor.operations.ClearMacroTicks();
}

void openMacroAndPartner(Editor& editor, const Chosen& file)
{
    if (!loadFile(editor, editor.macro, file.path, file.name)) return;
    editor.status("Finished opening up macro file and extracting macros from it");
    const std::string partner = associatedJoystickFile(file.path, editor.shared.settings);
    if (!editor.platform.files.fileExists(partner)) {
        endOpenOne(editor, editor.macro);
        editor.status("Joystick file not opened");
        editor.platform.dialogues.show(
            {.title = "Couldn't find associated joystick file",
             .text = "I couldn't find a joystick file associated with this macro file. Either this is because it has a "
                     "different name, is located in a different directory,or it does not exist.",
             .icon = BoxIcon::Information});
        return;
    }
    if (loadFile(editor, editor.joystick, partner, fileNameOf(partner))) return endOpenBoth(editor, editor.macro);
    endOpenOne(editor, editor.macro);
    editor.status("Joystick file not opened");
}

/// The macro file that belongs to the joystick file just loaded; empty when there is none.
std::string findMacroFile(Editor& editor, const std::string& joystickPath)
{
    const Settings& settings = editor.shared.settings;
    const std::string named = macroFileByMdef(editor.JoystickText, joystickPath, settings);
    editor.joystick.pane.setSelStart(0);
    editor.joystick.Caret = 0;
    if (!named.empty() && editor.platform.files.fileExists(named)) return named;
    const std::string byName = associatedMacroFile(joystickPath, settings);
    return editor.platform.files.fileExists(byName) ? byName : std::string();
}

void openJoystickAndPartner(Editor& editor, const Chosen& file)
{
    if (!loadFile(editor, editor.joystick, file.path, file.name)) return;
    editor.status("Looking for associated macro file");
    if (editor.TabStrip1.SelectedItem != editor.joystick.tab) editor.TabStrip1.Select(editor.joystick.tab);
    const std::string partner = findMacroFile(editor, file.path);
    if (partner.empty()) {
        editor.status("Macro file not opened");
        editor.platform.dialogues.show(
            {.title = "Couldn't find associated macro file",
             .text = "I couldn't find a macro file associated with this joystick file. Either this is because it has a "
                     "different name, is located in a different directory, or it does not exist. If you know that this "
                     "joystick file doesn't use a macro file, next time, open up the single file on its own. And "
                     "whilst I've got your attention, how 'bout spending some of that beer money on me for once. I "
                     "want some RAM .... and a beer ... ",
             .icon = BoxIcon::Information});
        endOpenOne(editor, editor.joystick);
        return;
    }
    if (loadFile(editor, editor.macro, partner, fileNameOf(partner))) return endOpenBoth(editor, editor.joystick);
    endOpenOne(editor, editor.joystick);
    editor.status("Macro file not opened");
}

void refuseUnknownKind(Editor& editor)
{
    const Settings& settings = editor.shared.settings;
    editor.status("Your file extensions may need adjusting in Preferences");
    editor.platform.dialogues.show(
        {.title = {},
         .text = "The file you opened isn't recognised as either a ." + settings.JoystickExtension + " or a ." +
                 settings.MacroExtension +
                 " file. This is probably because you need to set the preferences to display what the default "
                 "extensions you will be using for your hardware. I'll take you there now. And don't start on me ... "
                 "I'm just the computer ... not the programmer."});
    editor.menus.mnuPreferencesEdit.Click(); // fills the pages, and keeps what is set there
    editor.status("Files not opened");
}

/// One of the two files of a pair. A cancelled dialogue leaves the status text as it was.
std::optional<Chosen> chooseEither(Editor& editor)
{
    const std::string before = editor.mum.StatusBar.Panels(panel::progress).Text;
    if (editor.OpeningWithoutAsking != 1) editor.status("Opening joystick and associated macro file together ....");
    auto file = chooseFile(editor, {.title = "Select the joystick file or the macro file - I'll open both of them",
                                    .filter = bothOpenFilter(editor.shared.settings),
                                    .directory = dialogueFolder(editor, editor.joystick)});
    if (!file) editor.status(before);
    return file;
}

void openWithPartner(Editor& editor, const Chosen& file)
{
    switch (kindOfFile(file.name)) {
    case FileKind::Macro:
        return openMacroAndPartner(editor, file);
    case FileKind::Joystick:
        return openJoystickAndPartner(editor, file);
    case FileKind::Other:
        return refuseUnknownKind(editor);
    }
}

} // namespace

void mnuFileJoystickLoad_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuFileJoystickLoad_Click");
    editor.OpeningRemarks.clear();
    step([&] {
        if (!mayLeave(editor, editor.joystick, questionBeforeOpen(editor.joystick))) return;
        const auto file = chooseFile(editor, {.title = "Opening joystick file",
                                              .filter = joystickOpenFilter(editor.shared.settings),
                                              .directory = dialogueFolder(editor, editor.joystick)});
        if (!file || !loadFile(editor, editor.joystick, file->path, file->name)) return;
        endOpenOne(editor, editor.joystick);
        editor.status("Done");
    });
    showOpeningRemarks(editor);
}

void MnuFileMacroLoad_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_MnuFileMacroLoad_Click");
    editor.OpeningRemarks.clear();
    step([&] {
        if (!mayLeave(editor, editor.macro, questionBeforeOpen(editor.macro))) return;
        const auto file = chooseFile(editor, {.title = "Opening file",
                                              .filter = macroOpenFilter(editor.shared.settings),
                                              .directory = dialogueFolder(editor, editor.macro)});
        if (!file || !loadFile(editor, editor.macro, file->path, file->name)) return;
        endOpenOne(editor, editor.macro);
        editor.status("Finished opening up macro file and extracting macros from it");
    });
    showOpeningRemarks(editor);
}

void mnuFileOpen_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuFileOpen_Click");
    editor.OpeningRemarks.clear();
    step([&] {
        if (!mayLeave(editor, editor.joystick, questionBeforeOpen(editor.joystick))) return;
        if (!mayLeave(editor, editor.macro, questionBeforeOpen(editor.macro))) return;
        const auto file = chooseEither(editor);
        if (file) openWithPartner(editor, *file);
    });
    showOpeningRemarks(editor);
}

void OpenPreviouslySavedFiles(Editor& editor)
{
    editor.OpeningWithoutAsking = 1;
    editor.OpeningName = fileNameOf(editor.OpeningPath);
    // A plain search for the last three characters: "22m" counts as a macro file too.
    constexpr std::string_view macroExtensions = "m22m50mdf";
    if (!editor.menus.mnuJoyPopUpSingleFile.Checked)
        editor.menus.mnuFileOpen.Click();
    else if (macroExtensions.find(lastThree(editor.OpeningName)) != std::string_view::npos)
        editor.menus.MnuFileMacroLoad.Click();
    else
        editor.menus.mnuFileJoystickLoad.Click();
    editor.OpeningWithoutAsking = 0;
}

} // namespace tarvex
