#include "desktop/application.h"
#include "desktop/composer/composer_menus.h"
#include "desktop/documents/files/file_forms.h"
#include "desktop/generators/generator_forms.h"
#include "desktop/help/help_windows.h"
#include "desktop/help/program_files.h"
#include "desktop/help/qt_help_system.h"
#include "desktop/lists/list_forms.h"
#include "desktop/platform/instance_calls.h"
#include "desktop/platform/qt_clipboard.h"
#include "desktop/platform/qt_desktop.h"
#include "desktop/platform/qt_dialogues.h"
#include "desktop/platform/qt_file_watch.h"
#include "desktop/platform/qt_keyboard.h"
#include "desktop/platform/qt_machine.h"
#include "desktop/platform/qt_pictures.h"
#include "desktop/platform/qt_printers.h"
#include "desktop/platform/qt_processes.h"
#include "desktop/platform/sdl_joystick.h"
#include "desktop/platform/sdl_sound.h"
#include "desktop/preferences/preferences_view.h"
#include "desktop/program/mum_window.h"
#include "desktop/templates/template_resources.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "desktop/viewer/viewer_forms.h"
#include "documents/files/file_open.h"
#include "platform/machine_settings.h"
#include "platform/posix/command_line.h"
#include "platform/posix/drive_map.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/processes/spawn.h"
#include "platform/posix/program_directory.h"
#include "platform/posix/safe_writer.h"
#include "platform/posix/system_calls.h"
#include "program/program.h"
#include "shell/appearance.h"
#include "shell/left_copies.h"
#include "shell/shipped_files.h"
#include "templates/shipped_templates.h"

#include <QDir>

#include <cstdlib>
#include <span>
#include <string>
#include <string_view>

namespace {

using tarvex::fromEnvironment;
using tarvex::printAnswer;

constexpr std::string_view help =
    "Usage: tarvex [FILE]\n"
    "A programming environment for Thrustmaster game controllers.\n"
    "\n"
    "FILE is a joystick or macro file, as a path of this system or a DOS path. Blanks in\n"
    "it need no quotes: all arguments together are the one path.\n"
    "\n"
    "  -h, --help  show this text and end\n"
    "  --version   show the version and end\n";

/// The folder of the Wine prefix in use; empty: there is none.
std::string winePrefix()
{
    const std::string chosen = fromEnvironment("WINEPREFIX");
    const std::string home = fromEnvironment("HOME");
    return !chosen.empty() || home.empty() ? chosen : home + "/.wine";
}

/// As the list of previous files does it.
void openPath(tarvex::Program& program, const std::string& path)
{
    program.editor.OpeningPath = path;
    tarvex::OpenPreviouslySavedFiles(program.editor);
}

void openDropped(tarvex::Program& program, const tarvex::DriveMap& drives, const QStringList& paths)
{
    const tarvex::Steps step(program.shared.errors, "ED_OLEDragDrop");
    for (const QString& path : paths) step([&] { openPath(program, drives.toDos(tarvex::fromQt(path))); });
}

/// Another process of the user wants the window, or a file in it.
void answerCall(tarvex::Program& program, const tarvex::DriveMap& drives, const tarvex::InstanceRequest& request)
{
    if (!request.token.empty()) qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(request.token));
    program.mum.form.Show();
    if (request.kind == tarvex::InstanceRequest::Kind::ComeForward)
        return program.editor.status("Here I am! There's only one of me, so you needn't start me twice.");
    const tarvex::Steps step(program.shared.errors, "ED_openForOther");
    step([&] {
        const std::string path = drives.fromArgument(request.path);
        if (program.platform.files.fileExists(path)) return openPath(program, path);
        program.editor.status("I was asked to open " + path + ", but there's no such file.");
    });
}

/// The first copy of the program hears what others want; a further one makes the first come forward.
void connectCopies(tarvex::QtDesktop& desktop, tarvex::InstanceCalls& calls, const std::string& directory)
{
    constexpr int patience = 1000; // milliseconds
    const std::string socket = tarvex::instanceSocket(fromEnvironment("XDG_RUNTIME_DIR"), directory);
    desktop.whenFirst = [&calls, socket] { calls.listen(socket); };
    desktop.whenSecond = [socket] { tarvex::askRunningInstance(socket, {}, patience); };
}

/// The drives that the user chose take the places of those that were found.
void chooseDrives(tarvex::DriveMap& drives, tarvex::FileSystem& files, const std::string& directory)
{
    tarvex::ProfileFile ini(files, tarvex::platformIniPath(drives.toDos(directory)));
    const auto chosen = tarvex::MachineSettings(ini).drives();
    for (const auto& [letter, folder] : chosen) drives.choose(letter, folder);
}

int runProgram(tarvex::Application& application, const std::string& file)
{
    using namespace tarvex;
    const std::string directory = findProgramDirectory(readProgramPlaces());
    DriveMap drives({.winePrefix = fromEnvironment("WINEPREFIX"),
                     .home = fromEnvironment("HOME"),
                     .programDirectory = directory,
                     .workingDirectory = fromQt(QDir::currentPath())});
    SystemCalls calls;
    SafeWriter writer(directory + "/Recover", calls);
    PosixFiles files(drives, writer);
    chooseDrives(drives, files, directory);
    QtDialogues dialogues(drives);
    QtDesktop desktop(directory);
    SdlSound sound(drives);
    QtClipboard clipboard;
    QtProcesses processes(drives, files, dialogues, drives.toDos(directory));
    QtMachine machine(drives, processes);
    QtPrinters printers;
    QtPictures pictures(drives);
    Platform platform{files,
                      dialogues,
                      desktop,
                      sound,
                      clipboard,
                      processes,
                      machine,
                      printers,
                      pictures,
                      drives.toDos(directory),
                      drives.fromArgument(file)};

    QtHelpSystem helpSystem(helpPlaces(winePrefix()));
    SdlJoystick joystick;
    QtKeyboard keyboard;
    Program program(platform, InputDevices{joystick, keyboard});
    program.help.useSystem(helpSystem);
    QtFileWatch fileWatch(drives);
    useFileWatch(program.outsideNotices, fileWatch);
    application.setErrorRecord(&program.shared.errors);
    Appearance appearance(files, platform.programDirectory, program.menus);
    const ThemeView theme(appearance, program.shared.extras);
    MumWindow window(program);
    dialogues.setParent(&window);
    dialogues.setMenus(&program.menus);
    dialogues.addPopUp(program.safein.mnuDelay, program.safein.delayMenu());
    addComposerMenus(dialogues, program.composer);
    dialogues.addPopUp(program.templateEditor.mnuPopShow, program.templateEditor.popUpMenu());
    addFileForms(dialogues, program.differences, &window);
    addGeneratorForms(dialogues, program.generators, &window);
    addListForms(dialogues, program.lists, &window);
    addPreferencesForm(dialogues, program.preferences, &window);
    addHelpForms(dialogues, program.help, &window);
    addViewerForms(dialogues, program.imageViewer, &window);
    QObject::connect(&window.editor(), &EditorView::filesDropped, &window,
                     [&](const QStringList& paths) { openDropped(program, drives, paths); });
    InstanceCalls instanceCalls;
    connectCopies(desktop, instanceCalls, directory);
    QObject::connect(&instanceCalls, &InstanceCalls::wanted, &window,
                     [&](const InstanceRequest& request) { answerCall(program, drives, request); });
    int status = EXIT_SUCCESS;
    copyShippedTemplates(platform, shippedTemplates);
    copyShippedFiles(platform, "FilesCopied", shippedProgramFiles);
    if (program.start() && !desktop.quits()) {
        for (const char* folder : {"", "/Backup", "/Rtf", "/Recover"}) writer.sweep(directory + folder);
        reportLeftCopies(dialogues, writer.leftCopies());
        instanceCalls.fulfil();
        status = QApplication::exec();
    }
    application.setErrorRecord(nullptr);
    return status;
}

} // namespace

int main(int argumentCount, char** argumentValues)
{
    using namespace tarvex;
    fillStandardFiles();
    const CommandLine line = readCommandLine(std::span(argumentValues, argumentCount).subspan(1));
    if (line.wish == CommandLine::Wish::ShowHelp) return printAnswer(help);
    if (line.wish == CommandLine::Wish::ShowVersion) return printAnswer("Tarvex " TARVEX_VERSION "\n");
    int ownName = 1; // any other argument is part of the path, and none of it is Qt's
    Application application(ownName, argumentValues);
    QApplication::setApplicationName(QStringLiteral("Tarvex"));
    QApplication::setDesktopFileName(QStringLiteral("tarvex"));
    QApplication::setQuitOnLastWindowClosed(false);
    return runProgram(application, line.path);
}
