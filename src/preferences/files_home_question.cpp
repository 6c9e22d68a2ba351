#include "preferences/files_home_question.h"

#include "platform/windows1252.h"
#include "preferences/importing.h"
#include "shell/extras.h"

namespace tarvex {

namespace {

constexpr const char* ownDrive = "c:\\";
constexpr const char* offered = "c:\\tm";

void load(Preferences& preferences)
{
    FilesHome& form = preferences.filesHome;
    Machine& machine = preferences.editor.platform.machine;
    std::string where = offered;
    const Steps step;
    step([&] { where += " (" + machine.nativePath(offered) + ")"; });
    form.Choices[FilesHome::newFolder].Caption = "In a &new folder, " + where;
    FILES_Choices_Click(form, FilesHome::newFolder);
}

/// With a separator at its end: the paths of untitled files are the folder and the name run together.
std::string asPrefix(std::string folder) { return folder.ends_with('\\') ? folder : folder + "\\"; }

void makeFolder(Preferences& preferences)
{
    FileSystem& files = preferences.editor.platform.files;
    if (!files.directoryExists(offered)) files.createDirectory(offered);
    preferences.editor.shared.settings.ProgramFilesPath = asPrefix(offered);
}

void askForFolder(Preferences& preferences)
{
    const auto folder =
        preferences.editor.platform.dialogues.chooseFolder("Select your Thrustmaster programs directory", ownDrive);
    if (folder) preferences.editor.shared.settings.ProgramFilesPath = asPrefix(lowerUtf8(*folder));
}

/// Imported settings are put into force as if they had been written on the pages.
void importInstead(Preferences& preferences)
{
    if (importInstallation(preferences)) PREFS_Form_Unload(preferences);
}

void act(Preferences& preferences)
{
    Editor& editor = preferences.editor;
    const Steps step(editor.shared.errors, "PREFS askForFilesHome");
    const bool done = step([&] {
        switch (preferences.filesHome.chosen) {
        case FilesHome::newFolder:
            return makeFolder(preferences);
        case FilesHome::ownFolder:
            return askForFolder(preferences);
        case FilesHome::oldInstallation:
            return importInstead(preferences);
        }
    });
    if (!done)
        editor.platform.dialogues.show({.title = "Ooops!",
                                        .text = "I couldn't make " + std::string(offered) + ": " + step.whyNot(),
                                        .icon = BoxIcon::Exclamation});
}

} // namespace

void askForFilesHome(Preferences& preferences)
{
    Shared& shared = preferences.editor.shared;
    FilesHome& form = preferences.filesHome;
    const SettingText& folder = shared.settings.ProgramFilesPath;
    load(preferences);
    while (folder.empty()) {
        form.answered = false;
        const bool shown = preferences.editor.platform.dialogues.showModal("FilesHome");
        if (!shown || !form.answered || form.chosen == FilesHome::later) break;
        act(preferences); // a cancelled choice leads back here
    }
    shared.extras.set(extraKey::askForFiles, false);
    shared.store.SaveOptions();
    SaveFilesPath(preferences.editor);
}

} // namespace tarvex
