#include "download/game_launch.h"

#include "download/download_command.h"
#include "platform/dos_path.h"
#include "platform/runner_missing.h"
#include "platform/text.h"

#include <exception>
#include <string>
#include <string_view>

namespace tarvex {

namespace {

constexpr const char* title = "Ooopps ! I'm confused buddy!";
constexpr const char* notFound =
    "I don't think you've setup everything for this game properly. I couldn't find one of your files - this usually "
    "occurs becuase the path to the game isn't correct. Please go back and check it. No, don't look at me like that. "
    "I'm just a computer ... I'm stupid ...I only do what I'm told to do ... and then that's not always !! :) ";
constexpr const char* notRun = "Sorry, but I couldn't run your game .... please check how you've setup Tarvex to run "
                               "this game ... there may be an error there";

/// Drive, root and directory, where the first that fails ends the launch.
void enter(CurrentDirectory& current, const std::string& path, const std::string& directory)
{
    const std::string drive(Left(path, 1));
    current.ChDrive(drive);
    current.ChDir(drive + ":\\");
    current.ChDir(directory);
}

/// By the words that the user knows, or by the number where the system has words of its own.
bool isAboutMissing(const RuntimeError& error)
{
    return error.code() == ErrorCode::FileNotFound || error.code() == ErrorCode::PathNotFound ||
           std::string_view(error.what()).find("found") != std::string_view::npos;
}

void showBox(Editor& editor, const char* text) { editor.platform.dialogues.show({.title = title, .text = text}); }

/// Whether it went well isn't known: no result file is read, whichever loader it is. False: the user doesn't want to go
/// on.
bool downloadFirst(Editor& editor, const Game& game)
{
    const std::string& loader = editor.shared.settings.B50LoadPath.whole();
    enter(editor.shared.currentDirectory, loader, directoryOf(loader));
    ProgramCommand command = loaderCommand(editor, game.joystickFile.whole());
    if (wantsQuiet(editor)) command.options = " Q";
    if (!joystickIsAwake(editor)) return false;
    runLoader(editor, command);
    return true;
}

} // namespace

void launchGame(Editor& editor, const Game& game)
{
    try {
        if (editor.menus.mnuGamesDownloadFirst.Checked && !downloadFirst(editor, game)) return;
        enter(editor.shared.currentDirectory, game.workingDirectory.whole(), game.workingDirectory.whole());
        editor.platform.processes.start(game.command.whole(), windowStyle::normal,
                                        editor.shared.currentDirectory.path());
        editor.menus.mnuFileExit.Click();
    } catch (const RunnerMissing&) { // one box is enough
    } catch (const RuntimeError& error) {
        showBox(editor, isAboutMissing(error) ? notFound : notRun);
    } catch (const std::exception&) {
        showBox(editor, notRun);
    }
}

} // namespace tarvex
