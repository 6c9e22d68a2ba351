#include "documents/files/file_dialogues.h"

#include "platform/dos_path.h"

namespace tarvex {

namespace {

/// "Joystick file (*.b50)|*.b50|": the kind of file that the user's hardware takes.
std::string own(const std::string& kind, const std::string& extension)
{
    return kind + " (*." + extension + ")|*." + extension + "|";
}

void enterRoot(Editor& editor, const FileRequest& request)
{
    changeToRootOf(editor.shared.currentDirectory, request.directory, Steps()); // the dialogue needs no directory
}

} // namespace

std::string joystickOpenFilter(const Settings& settings)
{
    return own("Joystick file", settings.JoystickExtension) +
           "F-22 PRO files |*.f22|F-16 FLCS files |*.b50|FCS files |*.adv|"
           "All Joystick file types (*.f22,*.b50,*.adv) |*.f22;*.b50;*.adv";
}

std::string macroOpenFilter(const Settings& settings)
{
    return own("Macro file", settings.MacroExtension) + "F-22 PRO files |*.m22|F-16 FLCS files |*.m50|FCS files |*.mdf|"
                                                        "All Macro file types (*.m22,*.m50,*.mdf) |*.m22;*.m50;*.mdf";
}

std::string bothOpenFilter(const Settings& settings)
{
    return "Thrustmaster files for your hardware |*." + settings.JoystickExtension + ";*." + settings.MacroExtension +
           "|" + own("Joystick file for your hardware", settings.JoystickExtension) +
           own("Macro file for your hardware", settings.MacroExtension) +
           "All Thrustmaster files |*.f22;*.b50;*.adv;*.m22;*.m50;*.mdf|"
           "F-22 PRO files |*.f22;*.m22|F-16 FLCS files |*.b50;*.m50|FCS files |*.adv;*.mdf";
}

std::string joystickSaveFilter(const Settings& settings)
{
    return own("Joystick file", settings.JoystickExtension) +
           "F22 joystick file (*.f22) |*.f22|F16 joystick file (*.b50) |*.b50|FCS joystick file (*.adv) |*.adv|"
           "All files (*.*)|*.*";
}

std::string macroSaveFilter(const Settings& settings)
{
    return own("Macro file", settings.MacroExtension) +
           "F22 macro file(*.m22) |*.m22|F16 macro file(*.m50) |*.m50|FCS macro file(*.mdf) |*.mdf|"
           "All files (*.*)|*.*";
}

std::string dialogueFolder(const Editor& editor, const Side& side)
{
    const std::string& programs = editor.shared.settings.ProgramFilesPath.whole();
    return programs.empty() ? directoryOf(side.FilePath) : programs;
}

std::optional<std::string> askForFileToOpen(Editor& editor, const FileRequest& request)
{
    enterRoot(editor, request);
    return editor.platform.dialogues.openFile(request);
}

std::optional<std::string> askForFileToSave(Editor& editor, const FileRequest& request)
{
    enterRoot(editor, request);
    return editor.platform.dialogues.saveFile(request);
}

} // namespace tarvex
