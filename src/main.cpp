#include "desktop/application.h"
#include "desktop/lists/list_forms.h"
#include "desktop/platform/qt_clipboard.h"
#include "desktop/platform/qt_desktop.h"
#include "desktop/platform/qt_dialogues.h"
#include "desktop/platform/qt_processes.h"
#include "desktop/platform/sdl_sound.h"
#include "desktop/preferences/preferences_view.h"
#include "desktop/program/mum_window.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "documents/files/file_open.h"
#include "platform/posix/drive_map.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/processes/spawn.h"
#include "platform/posix/program_directory.h"
#include "platform/posix/safe_writer.h"
#include "platform/posix/system_calls.h"
#include "program/program.h"
#include "shell/appearance.h"
#include "shell/left_copies.h"

#include <QDir>

#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

namespace {

constexpr std::string_view help = "Usage: tarvex [FILE]\n"
                                  "A programming environment for Thrustmaster game controllers.\n"
                                  "\n"
                                  "FILE is a joystick or macro file, as a path of this system or a DOS path.\n"
                                  "\n"
                                  "  --help     show this text and end\n"
                                  "  --version  show the version and end\n";

std::string fromEnvironment(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

struct Arguments {
    std::string file;
    std::optional<int> exitStatus; ///< the process has nothing more to do than to say `text`
    std::string text;
};

/// The bytes as they are given: a file's name needn't be text of the locale.
Arguments readArguments(int count, char** values)
{
    Arguments arguments;
    bool options = true;
    for (int i = 1; i < count; ++i) {
        const std::string argument = values[i];
        if (options && argument == "--") {
            options = false;
        } else if (options && argument == "--help") {
            return {{}, EXIT_SUCCESS, std::string(help)};
        } else if (options && argument == "--version") {
            return {{}, EXIT_SUCCESS, "Tarvex " TARVEX_VERSION "\n"};
        } else if (options && argument.starts_with('-')) {
            return {{}, EXIT_FAILURE, "tarvex: unknown option " + argument + "\n" + std::string(help)};
        } else if (arguments.file.empty()) {
            arguments.file = argument;
        } else {
            return {{}, EXIT_FAILURE, "tarvex: one file at most\n" + std::string(help)};
        }
    }
    return arguments;
}

/// Says what there is to say; the process's exit status.
int leave(const Arguments& arguments)
{
    (arguments.exitStatus == EXIT_SUCCESS ? std::cout : std::cerr) << arguments.text;
    return *arguments.exitStatus;
}

void openDropped(tarvex::Program& program, const tarvex::DriveMap& drives, const QStringList& paths)
{
    const tarvex::Steps step(program.shared.errors, "ED_OLEDragDrop");
    for (const QString& path : paths) {
        step([&] {
            program.editor.OpeningPath = drives.toDos(tarvex::fromQt(path));
            tarvex::OpenPreviouslySavedFiles(program.editor);
        });
    }
}

int runProgram(tarvex::Application& application, const std::string& file)
{
    using namespace tarvex;
    const std::string directory = findProgramDirectory(readProgramPlaces());
    const DriveMap drives({.winePrefix = fromEnvironment("WINEPREFIX"),
                           .home = fromEnvironment("HOME"),
                           .programDirectory = directory,
                           .workingDirectory = fromQt(QDir::currentPath())});
    SystemCalls calls;
    SafeWriter writer(directory + "/Recover", calls);
    PosixFiles files(drives, writer);
    QtDialogues dialogues(drives);
    QtDesktop desktop(directory);
    SdlSound sound(drives);
    QtClipboard clipboard;
    QtProcesses processes(drives, files, dialogues, drives.toDos(directory));
    Platform platform{
        files, dialogues, desktop, sound, clipboard, processes, drives.toDos(directory), drives.fromArgument(file)};

    Program program(platform);
    application.setErrorRecord(&program.shared.errors);
    Appearance appearance(files, platform.programDirectory, program.menus);
    const ThemeView theme(appearance);
    MumWindow window(program);
    dialogues.setParent(&window);
    dialogues.setMenus(&program.menus);
    dialogues.addPopUp(program.safein.mnuDelay, program.safein.delayMenu());
    addListForms(dialogues, program.lists, &window);
    addPreferencesForm(dialogues, program.preferences, &window);
    QObject::connect(&window.editor(), &EditorView::filesDropped, &window,
                     [&](const QStringList& paths) { openDropped(program, drives, paths); });
    int status = EXIT_SUCCESS;
    if (program.start() && !desktop.quits()) {
        for (const char* folder : {"", "/Backup", "/Rtf", "/Recover"}) writer.sweep(directory + folder);
        tellLeftCopies(dialogues, writer.leftCopies());
        status = QApplication::exec();
    }
    application.setErrorRecord(nullptr);
    return status;
}

} // namespace

int main(int argumentCount, char** argumentValues)
{
    tarvex::fillStandardFiles();
    const Arguments early = readArguments(argumentCount, argumentValues); // needs no window system
    if (early.exitStatus == EXIT_SUCCESS) return leave(early);
    tarvex::Application application(argumentCount, argumentValues);
    QApplication::setApplicationName(QStringLiteral("Tarvex"));
    QApplication::setDesktopFileName(QStringLiteral("tarvex"));
    QApplication::setQuitOnLastWindowClosed(false);
    const Arguments arguments = readArguments(argumentCount, argumentValues); // without Qt's own
    return arguments.exitStatus ? leave(arguments) : runProgram(application, arguments.file);
}
