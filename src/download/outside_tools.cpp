#include "download/outside_tools.h"

#include "documents/window/preferences_page.h"
#include "platform/dos_path.h"

#include <string>
#include <string_view>

namespace tarvex {

namespace {

constexpr std::string_view pathNeeded = "You need to enter the path in preferences for the Thrustmaster Control Centre";

/// A tool that lies in the Control Centre's folder.
struct Tool {
    MenuItem Menus::*item;
    std::string_view tag;
    std::string_view file;      ///< empty: the Control Centre itself
    std::string_view mentioned; ///< how the tool is named when its folder isn't known; empty: not at all
};

constexpr Tool tools[] = {
    {&Menus::mnuAppsCandCC, "ED_mnuAppsCandCC_Click", "", ""},
    {&Menus::mnuF22Setup, "mnuF22Setup_Click", "f22setup.exe", "Setup"},
    {&Menus::mnuF22Clear, "ED_mnuF22Clear_Click", "f22clear.exe", "f22clear"},
    {&Menus::mnuF22Reset, "ED_mnuF22Reset_Click", "f22reset.exe", "F22Reset"},
    {&Menus::mnuF22Delay, "ED_mnuF22Delay_Click", "f22dly2.exe", "F22dly2"},
};

void showBox(const Editor& editor, std::string title, std::string text, BoxIcon icon = BoxIcon::None)
{
    editor.platform.dialogues.show({.title = std::move(title), .text = std::move(text), .icon = icon});
}

std::string pathNeededFor(std::string_view tool)
{
    std::string text{pathNeeded};
    if (tool.empty()) return text;
    return text.append(", as the ")
        .append(tool)
        .append(" program is in this path and I really do need to know where to find it. I could be really intelligent "
                "here and go and find the file myself, but let's face facts, I'm just a humble lazy computer, and I'd "
                "rather be on a beach somewhere than running this Tarvex rubbish.");
}

/// The common beginning: changes to the Control Centre's folder. False: it isn't known, and the user was
/// informed.
bool enterControlCentre(Editor& editor, std::string_view mentioned, const Steps& step)
{
    const std::string& path = editor.shared.settings.CandCCPath.whole();
    if (path.empty()) {
        showBox(editor, "Where is it?", pathNeededFor(mentioned));
        return false;
    }
    changeToFolderOf(editor.shared.currentDirectory, path, step);
    return true;
}

void start(Editor& editor, const std::string& command, const Steps& step, int style = windowStyle::normal)
{
    step([&] { editor.platform.processes.start(command, style, editor.shared.currentDirectory.path()); });
}

void startTool(Editor& editor, const Tool& tool)
{
    const Steps step(editor.shared.errors, tool.tag);
    if (!enterControlCentre(editor, tool.mentioned, step)) return;
    const std::string& path = editor.shared.settings.CandCCPath.whole();
    start(editor, tool.file.empty() ? path : directoryOf(path) + std::string(tool.file), step);
}

/// The file at the first of the paths that has one; empty when none has.
std::string firstThatExists(const Editor& editor, std::initializer_list<std::string> paths)
{
    for (const std::string& path : paths) {
        if (editor.platform.files.fileExists(path)) return path;
    }
    return {};
}

void askForCtfj(Editor& editor, const std::string& text)
{
    showBox(editor, "Where is CTFJ on your hard disk?", text);
    editor.menus.mnuPreferencesEdit.Click();
}

} // namespace

void wireControlCentreTools(Editor& editor)
{
    for (const Tool& tool : tools) (editor.menus.*tool.item).handler = [&editor, &tool] { startTool(editor, tool); };
}

void mnuAppsTMScope_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuAppsTMScope_Click");
    if (!enterControlCentre(editor, {}, step)) return;
    const std::string& path = editor.shared.settings.CandCCPath.whole();
    const std::string folder = directoryOf(path);
    const std::string scope = firstThatExists(editor, {folder + "tmscope.exe", folder + "tms.exe"});
    if (!scope.empty()) return start(editor, scope, step, windowStyle::maximised);
    showBox(editor, "Couldn't find TMScope",
            "I couldn't find TMScope which should be located here: " + folder +
                ". Goto your preferences and make sure you've entered the correct path for the Thrustmaster Control "
                "Centre because tms.exe should be in the same directory. You've told me that this is: " +
                path);
}

void mnuAppsProPanel_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuAppsProPanel_Click");
    const std::string windows = editor.platform.processes.windowsDirectory();
    const std::string system = windows + "\\system";
    const std::string systemPanel = system + "\\joy.cpl";
    const std::string panel = firstThatExists( // newer systems have theirs in the other folder
        editor, {system + "\\tm.cpl", system + "32\\tm.cpl", systemPanel, system + "32\\joy.cpl"});
    if (panel.empty()) {
        showBox(
            editor, "Couldn't find ProPanel or Game Controllers",
            "I'm afraid I couldn't find Thrustmaster's ProPanel or Windows Game Controllers on your system. The latter "
            "should be located here: " +
                systemPanel +
                ". If you haven't done so already, I suggest you download ProPanel from the Thrustmaster website and "
                "install it.",
            BoxIcon::Information);
        return;
    }
    changeToRootOf(editor.shared.currentDirectory, windows, step);
    start(editor, windows + "\\control.exe " + panel, step);
}

void mnuAppsCTFJ_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuAppsCTFJ_Click");
    const std::string& path = editor.shared.settings.CTFJPath.whole();
    if (path.empty()) {
        return askForCtfj(editor, "You need to enter the path in preferences for whichever version of CTFJ you have "
                                  "on your system. I'll take you there now.");
    }
    if (!editor.platform.files.fileExists(path)) {
        return askForCtfj(editor, "You need to enter the correct path in preferences for whichever version of CTFJ "
                                  "you have on your system. At the moment, you have told me it is located here: " +
                                      path +
                                      ", and I can't find it there! I'll take you to the Preferences window now.");
    }
    changeToRootOf(editor.shared.currentDirectory, path, step);
    start(editor, path, step);
}

void mnuLauncher_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuLauncher_Click");
    const std::string launcher = editor.platform.programDirectory + "\\Launcher.exe";
    if (!editor.platform.files.fileExists(launcher)) {
        return showBox(editor, "Where is it?",
                       "I couldn't find the Launcher - it should be in the same directory as Tarvex.exe. What have you "
                       "done with it? ");
    }
    changeToFolderOf(editor.shared.currentDirectory, launcher, step);
    start(editor, launcher, step);
}

void mnuCustomApp_Click(Editor& editor, int index)
{
    const Steps step(editor.shared.errors, "ED_mnuCustomApp_Click");
    step([&] {
        const std::string& path = editor.shared.settings.CustomAppPath.at(static_cast<std::size_t>(index)).whole();
        changeToRootOf(editor.shared.currentDirectory, path, step);
        start(editor, path, step);
    });
}

void mnuAppsEdit_Click(Editor& editor) { showPreferencesPage(editor, preferencesPage::apps); }

} // namespace tarvex
