#include "download/download_command.h"

#include "documents/editing/line_highlight.h"
#include "documents/files/file_save.h"
#include "documents/window/menu_choices.h"
#include "download/loader_result.h"
#include "download/shell_and_wait.h"
#include "platform/dos_path.h"
#include "platform/windows1252.h"

#include <optional>
#include <string_view>

namespace tarvex {

namespace {

constexpr std::string_view tag = "mnuSendToJoystick_Click";
constexpr std::size_t longestName = 12; ///< 8 characters, the dot and the extension
constexpr std::string_view winLoadMark = "winld";

MessageBox nothingToTransfer()
{
    return {.title = "Nothing to transfer ...",
            .text = "The Joystick file is empty, so there's not much point in me sending that off to your joystick. "
                    "Load up a joystick file, or create one, or just put your feet up and watch TV.",
            .icon = BoxIcon::Information};
}

MessageBox notSaved()
{
    return {.title = "Hang on a minute ...",
            .text = "The joystick file isn't saved, so you won't be sending the currently edited file to your "
                    "Thrustmaster hardware. Do you want to continue anyway?",
            .icon = BoxIcon::Exclamation,
            .buttons = BoxButtons::YesNo,
            .secondButtonIsDefault = true};
}

MessageBox nameTooLong()
{
    return {.title = "Unable to download - filename too long",
            .text = "The joystick file's name is too long - it must be 8 characters or less (excluding the extension "
                    ".f22, .b50.adv). You must resave it with a different (ie. shorter) name.",
            .icon = BoxIcon::Exclamation,
            .buttons = BoxButtons::YesNo,
            .secondButtonIsDefault = true};
}

MessageBox wakeUp()
{
    return {.title = "Shall I download your joystick file now?",
            .text = "Wake up your joystick now to ensure that the download will be successful. To do this, press "
                    "button S1 on the side of the joystick a few times.\n\n"
                    "It's a good idea as well just to press a few keys on your keyboard, and if you have any other "
                    "devices inline with the keyboard, such as a MasterPilot, to check that these are connected and "
                    "working properly.\n\n"
                    "Press Yes to proceed with the download.",
            .icon = BoxIcon::Information,
            .buttons = BoxButtons::YesNo};
}

/// Saves the edits, with the macro file's tab selected too, when Save alone would save that file and leave the question
/// whether to send an old version. False: the user doesn't want to go on without.
bool savedOrAccepted(Editor& editor)
{
    if (editor.joystick.Changed != changed::modified) return true;
    saveSide(editor, editor.joystick);
    return editor.joystick.Changed != changed::modified || editor.platform.dialogues.show(notSaved()) == Answer::Yes;
}

/// The loaders take names of the old kind only. With a longer one the user is asked to save under another, and the
/// command ends after either answer.
bool nameFits(Editor& editor)
{
    if (utf8Length(editor.tabCaption(editor.joystick)) <= longestName) return true;
    editor.platform.dialogues.show(nameTooLong());
    if (editor.TabStrip1.SelectedItem != editor.joystick.tab) editor.TabStrip1.Select(editor.joystick.tab);
    editor.platform.desktop.doEvents();
    editor.menus.mnuFileSaveAs.Click();
    return false;
}

/// WinLoad's result file of a run, as distinct from one that an earlier run has left.
class ResultFile {
public:
    ResultFile(Editor& editor, const Steps& step)
        : m_files(editor.platform.files), m_path(withLastThree(editor.shared.settings.B50LoadPath.whole(), "dat"))
    {
        step([&] { m_files.removeFile(m_path); });
        editor.platform.desktop.doEvents();
        m_left = m_files.stamp(m_path); // of one that can't be removed
    }
    bool isNew() const { return m_files.fileExists(m_path) && m_files.stamp(m_path) != m_left; }
    const std::string& path() const { return m_path; }

private:
    FileSystem& m_files;
    std::string m_path;
    FileStamp m_left;
};

void showResult(Editor& editor, const std::string& path, const Steps& step)
{
    const LoaderResult result = readLoaderResult(editor.platform.files, path, step);
    editor.status(result.statusText());
    editor.joystick.ErrorLine.clear(); // of an earlier download
    if (result.failed && result.errorLine != 0) HighlightErrorLine(editor, result.errorLine);
}

void download(Editor& editor, const Steps& step)
{
    const Settings& settings = editor.shared.settings;
    changeToFolderOf(editor.shared.currentDirectory, settings.B50LoadPath.whole(), step);
    ProgramCommand command = loaderCommand(editor, editor.joystick.FilePath);
    std::optional<ResultFile> result; // the other loaders write none
    if (command.line().find(winLoadMark) != std::string::npos) {
        result.emplace(editor, step);
        if (settings.WinLoadUse == 1) command.options = " " + settings.WinLoadString;
    } else if (wantsQuiet(editor)) {
        command.options = " Q";
    }
    if (!joystickIsAwake(editor)) return;
    runLoader(editor, command);
    // One that can't be read leaves the status as it is: a success without a size would be a lie.
    if (result && result->isNew()) step([&] { showResult(editor, result->path(), step); });
}

} // namespace

ProgramCommand loaderCommand(const Editor& editor, const std::string& joystickFile)
{
    return {editor.shared.settings.B50LoadPath.whole() + " ", joystickFile};
}

bool wantsQuiet(const Editor& editor)
{
    const MenuItem& quiet = editor.menus.mnuAppsQuiet;
    return quiet.Enabled && quiet.Visible && quiet.Checked;
}

bool joystickIsAwake(Editor& editor)
{
    return !editor.menus.mnuUseWakeWarning.Checked || editor.platform.dialogues.show(wakeUp()) == Answer::Yes;
}

void runLoader(Editor& editor, const ProgramCommand& command)
{
    constexpr std::int32_t forEver = -1;
    const WindowState before = editor.mum.form.State;
    editor.mum.form.State = WindowState::Minimised;
    const Steps step; // the frame comes back in any case
    step([&] {
        ShellAndWait(editor.platform.processes, editor.shared.currentDirectory, command,
                     windowStyle::minimisedWithoutFocus, forEver);
    });
    editor.mum.form.State = before;
    editor.selected().pane.SetFocus();
    editor.platform.desktop.doEvents();
}

void mnuSendToJoystick_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, tag);
    step([&] {
        if (editor.JoystickText.TextLength() == 0) {
            editor.platform.dialogues.show(nothingToTransfer());
        } else if (savedOrAccepted(editor) && nameFits(editor)) {
            download(editor, step);
        }
    });
}

void mnuAppsQuiet_Click(Editor& editor)
{
    toggle(editor.menus.mnuAppsQuiet, editor.shared.settings.UseQonDownload);
    editor.shared.store.write(Access::mnuAppsQuiet_Click, "mnuAppsQuiet_Click");
}

void mnuUseWakeWarning_Click(Editor& editor)
{
    toggle(editor.menus.mnuUseWakeWarning, editor.shared.settings.WakeUpWarning);
    editor.shared.store.SaveOpenSingleOnly();
}

} // namespace tarvex
