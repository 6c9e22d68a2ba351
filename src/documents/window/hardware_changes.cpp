#include "documents/window/hardware_changes.h"

#include "documents/files/file_new.h"
#include "documents/pair/document_status.h"
#include "platform/dos_path.h"
#include "shell/hardware/hardware_profile.h"

namespace tarvex {

namespace {

bool loaderIsWinLoad(const Settings& settings)
{
    return fileNameOf(settings.B50LoadPath.whole()).find("winld") != std::string::npos;
}

/// A status text with the former name is out of date.
void renameUntitled(Editor& editor, Side& side)
{
    const std::string before = editor.tabCaption(side);
    const std::string path = side.FilePath;
    if (!before.starts_with("untitled")) return;
    nameUntitled(editor, side);
    if (side.FilePath != path) side.Journal.File.reset(); // a file that it was saved in keeps its name
    const std::string& shown = editor.mum.StatusBar.Panels(panel::progress).Text;
    if (shown.find(before) != std::string::npos) showEditingText(editor);
}

} // namespace

void HardwareHasChanged(Editor& editor)
{
    for (Side* side : {&editor.joystick, &editor.macro}) renameUntitled(editor, *side);
    updateDownload(editor); // a named file may be for another controller now
    F22MenusUpdate(editor);
    editor.shared.HardwareChangedMark = 0;
}

void moveUntitled(Editor& editor)
{
    for (Side* side : {&editor.joystick, &editor.macro}) {
        const bool wasSaved = side->Journal.File.has_value();
        if (!wasSaved && side->FileName == "untitled." + side->Extension)
            side->FilePath = editor.shared.settings.ProgramFilesPath.whole() + side->FileName;
    }
}

void F22MenusUpdate(Editor& editor)
{
    const Steps step(editor.shared.errors, "F22MenusUpdate");
    Menus& menus = editor.menus;
    Settings& settings = editor.shared.settings;
    const bool isF22 = settings.JoyName == joystick::f22Pro;

    for (MenuItem* item :
         {&menus.mnuF22Setup, &menus.mnuF22Clear, &menus.mnuF22Reset, &menus.mnuF22Delay, &menus.mnuAppDivider1})
        item->Visible = isF22;
    editor.FrameMacros.Command1[analogueButton].Caption = isF22 ? "/F" : "/A";
    menus.mnuSlashModifierArray[analogueButton].Caption = isF22 ? "/F  format as repeating" : "/A  force analogue";
    if (!isF22) {
        menus.mnuAppsQuiet.Enabled = loaderIsWinLoad(settings);
        return;
    }
    settings.UseQonDownload = 0;
    menus.mnuAppsQuiet.Checked = false;
    menus.mnuAppsQuiet.Enabled = false;
    step([&] { editor.shared.store.write(Access::mnuAppsQuiet_Click, "F22MenusUpdate"); });
}

} // namespace tarvex
