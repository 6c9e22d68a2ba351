#include "lists/previous_files.h"

#include "documents/files/file_open.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

Settings& settingsOf(Editor& editor) { return editor.shared.settings; }

PreviousList joystickList(Editor& editor, std::string& latest)
{
    Menus& menus = editor.menus;
    return {.list = {settingsOf(editor).JFArrayNum, {&settingsOf(editor).JFPath}, menus.mnuJFArray},
            .parent = menus.mnuFilePrevious,
            .clear = menus.mnuPreviousClearAllJ,
            .latest = latest,
            .update = Access::UpdateRecentJFMenuList,
            .tags = {"MODULE AddMnuJFArray", "MODULE IsJFonMenuAlready", "MODULE UpdateRecentJFMenuList",
                     "mnuJFArray_Click", "mnuPreviousClearAllJ_Click"}};
}

PreviousList macroList(Editor& editor, std::string& latest)
{
    Menus& menus = editor.menus;
    return {.list = {settingsOf(editor).MFArrayNum, {&settingsOf(editor).MFPath}, menus.mnuMFArray},
            .parent = menus.mnuFilePrevMacro,
            .clear = menus.mnuPreviousClearAllM,
            .latest = latest,
            .update = Access::UpdateRecentMFMenuList,
            .tags = {"MODULE AddMnuMFArray", "MODULE IsMFonMenuAlready", "MODULE UpdateRecentMFMenuList",
                     "mnuMFArray_Click", "mnuPreviousClearAllM_Click"}};
}

void addArray(Editor& editor, PreviousList& previous)
{
    const Steps step(editor.shared.errors, previous.tags.add);
    step([&] { resizeColumns(previous.list); });
    step([&] { showMenu(previous.list); });
    previous.parent.Enabled = previous.list.count > 0;
    previous.clear.Enabled = previous.list.count > 0;
}

std::int16_t isOnMenuAlready(Editor& editor, PreviousList& previous, const std::string& path)
{
    const Steps step(editor.shared.errors, previous.tags.isOnMenu);
    std::int16_t found = 0;
    step([&] { found = isOnMenu(previous.list, path); });
    return found;
}

void updateList(Editor& editor, PreviousList& previous)
{
    const Steps step(editor.shared.errors, previous.tags.update);
    previous.latest = lowerUtf8(previous.latest);
    previous.parent.Enabled = true;
    previous.clear.Enabled = true;
    step([&] { putOnTop(previous.list, {previous.latest}); });
    editor.shared.store.write(previous.update, previous.tags.update); // each time, so that a crash loses nothing
}

void reportGone(Editor& editor, const std::string& path)
{
    editor.platform.dialogues.show({.title = "Can't find file",
                                    .text = "There's a problem here ... I couldn't find " + path +
                                            " which probably means you've deleted it or moved it. Sorry!",
                                    .icon = BoxIcon::Exclamation});
}

/// The caption, or what it stands for when it was cut.
std::string pathOf(const RecentList& list, int index)
{
    const SettingText& path = list.columns.front()->at(static_cast<std::size_t>(index - 1));
    const std::string& caption = list.menu[index].Caption;
    return path == caption ? path.whole() : caption;
}

void openItem(Editor& editor, PreviousList& previous, int index)
{
    const Steps step(editor.shared.errors, previous.tags.click);
    step([&] {
        const std::string path = pathOf(previous.list, index); // opening moves the entries
        if (!editor.platform.files.fileExists(path)) return reportGone(editor, path);
        editor.OpeningPath = path;
        OpenPreviouslySavedFiles(editor);
    });
}

/// The keys stay in the file, empty.
void clearList(Editor& editor, PreviousList& previous)
{
    const Steps step(editor.shared.errors, previous.tags.clear);
    std::vector<SettingText>& paths = *previous.list.columns.front();
    std::fill(paths.begin(), paths.end(), SettingText());
    previous.list.count = 0;
    editor.shared.store.write(previous.update, previous.tags.clear);
    addArray(editor, previous);
}

} // namespace

PreviousFiles::PreviousFiles(Editor& theEditor)
    : editor(theEditor), joystick(joystickList(theEditor, LatestJoystickFile)),
      macro(macroList(theEditor, LatestMacroFile))
{
}

void GetPreviousFiles(PreviousFiles& files)
{
    files.joystick.clear.Enabled = false;
    files.macro.clear.Enabled = false;
    files.editor.shared.store.read(Access::GetPreviousFiles, "MODULE GetPreviousFiles");
    AddMnuJFArray(files);
    AddMnuMFArray(files);
}

void AddMnuJFArray(PreviousFiles& files) { addArray(files.editor, files.joystick); }
void AddMnuMFArray(PreviousFiles& files) { addArray(files.editor, files.macro); }

std::int16_t IsJFonMenuAlready(PreviousFiles& files, const std::string& path)
{
    return isOnMenuAlready(files.editor, files.joystick, path);
}
std::int16_t IsMFonMenuAlready(PreviousFiles& files, const std::string& path)
{
    return isOnMenuAlready(files.editor, files.macro, path);
}

void UpdateRecentJFMenuList(PreviousFiles& files) { updateList(files.editor, files.joystick); }
void UpdateRecentMFMenuList(PreviousFiles& files) { updateList(files.editor, files.macro); }

void mnuJFArray_Click(PreviousFiles& files, int index) { openItem(files.editor, files.joystick, index); }
void mnuMFArray_Click(PreviousFiles& files, int index) { openItem(files.editor, files.macro, index); }

void mnuPreviousClearAllJ_Click(PreviousFiles& files) { clearList(files.editor, files.joystick); }
void mnuPreviousClearAllM_Click(PreviousFiles& files) { clearList(files.editor, files.macro); }

} // namespace tarvex
