#pragma once

#include "platform/posix/drive_map.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/processes/posix_machine.h"
#include "platform/posix/processes/posix_processes.h"
#include "platform/posix/safe_writer.h"
#include "platform/posix/system_calls.h"
#include "support/test_program.h"

#include <filesystem>
#include <memory>
#include <string>

namespace tarvex {

/// The program in a folder of the real disk, where c: is its drive_c; the programs that it starts are real, too.
struct DiskProgram {
    /// A Tarvex.ini that lets it start without questions.
    static constexpr const char* settings = "[FileLocations]\r\nFirstTimeUsed=0\r\nShowTips=0\r\n"
                                            "ProgramFilesPath=c:\\tm\\\r\n"
                                            "[Miscellaneous]\r\nOpenSingleFileOnly=0\r\n";

    explicit DiskProgram(const std::string& folder, const std::string& commandLine = {})
        : drives({.winePrefix = {}, .home = {}, .programDirectory = folder, .workingDirectory = folder}),
          writer(folder + "/Recover", calls), files(drives, writer),
          processes(drives, files, dialogues, drives.toDos(folder)),
          machine(drives, processes), platform{.files = files,
                                               .dialogues = dialogues,
                                               .desktop = desktop,
                                               .sound = sound,
                                               .clipboard = clipboard,
                                               .processes = processes,
                                               .machine = machine,
                                               .printers = printers,
                                               .pictures = pictures,
                                               .programDirectory = drives.toDos(folder),
                                               .commandLine = drives.fromArgument(commandLine)}
    {
        std::filesystem::create_directories(folder + "/drive_c");
        writer.sweep(folder + "/Recover"); // as each start does
    }
    bool start()
    {
        program = std::make_unique<Program>(platform);
        return program->start();
    }
    void type(Side& side, const std::string& text) { side.pane.userEdit(0, 0, text); }
    std::string status() { return program->mum.StatusBar.Panels(panel::progress).Text; }

    SystemCalls calls;
    DriveMap drives;
    SafeWriter writer;
    PosixFiles files;
    ScriptedDialogues dialogues;
    FakeDesktop desktop;
    FakeSound sound;
    FakeClipboard clipboard;
    PosixProcesses processes;
    PosixMachine machine;
    FakePrinters printers;
    FakePictures pictures{files};
    Platform platform;
    std::unique_ptr<Program> program;
};

} // namespace tarvex
