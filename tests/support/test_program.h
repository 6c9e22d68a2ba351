#pragma once

#include "platform/machine.h"
#include "platform/platform.h"
#include "program/program.h"
#include "support/fake_input_devices.h"
#include "support/fake_printers.h"
#include "support/memory_files.h"
#include "support/scripted_dialogues.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tarvex {

struct FakeDesktop final : Desktop {
    bool otherInstance = false;
    int eventsHandled = 0;
    int quits = 0;
    std::function<void()> whileHandlingEvents; ///< what the user does that waits to be handled
    bool hourglass = false;
    std::function<void()> whileWaitingForEscape; ///< what the user sees of held work; then Esc is pressed

    bool anotherInstanceRuns() override { return otherInstance; }
    void doEvents() override
    {
        ++eventsHandled;
        if (whileHandlingEvents) whileHandlingEvents();
    }
    void waitForEscape() override
    {
        if (whileWaitingForEscape) whileWaitingForEscape();
    }
    std::string today = "21 November 2026";
    std::string longDate() const override { return today; }
    float screenWidth() const override { return 1280.0F * twipsPerPixel; }
    float screenHeight() const override { return 1024.0F * twipsPerPixel; }
    void showHourglass(bool on) override { hourglass = on; }
    std::vector<std::string> programFilesOpened;
    void openProgramFile(const std::string& name) override { programFilesOpened.push_back(name); }
    void quit() override { ++quits; }
};

/// Programs that run in the test's hands.
struct FakeProcesses final : Processes {
    struct Start {
        std::string commandLine;
        int style;
        std::string directory;
        bool waitedFor = false;
    };
    std::vector<Start> starts;
    std::optional<RuntimeError> failure; ///< of every start from now on
    std::function<void()> whileRunning;  ///< what a program does before the wait for it ends
    std::int32_t result = waitResult::ended;

    ProcessId start(const ProgramCommand& command, int style, const std::string& directory) override
    {
        if (failure) throw RuntimeError(*failure);
        starts.push_back({command.line(), style, directory});
        return static_cast<ProcessId>(starts.size());
    }
    std::int32_t wait(ProcessId process, std::int32_t timeout) override
    {
        EXPECT_EQ(timeout, -1);
        starts.at(static_cast<std::size_t>(process) - 1).waitedFor = true;
        if (whileRunning) whileRunning();
        return result;
    }
    std::string windowsDirectory() const override { return "c:\\windows"; }
};

/// A machine with c: on a folder of its own, "/" as z:, and folders in the test's hands.
struct FakeMachine final : Machine {
    std::vector<DriveFolder> found{{'c', "/home/pilot/tarvex/drive_c", DriveFolder::Origin::Tarvex},
                                   {'z', "/", DriveFolder::Origin::Tarvex}};
    DriveChoices chosen;
    std::set<std::string> folders{"/", "/home/pilot", "/mnt/disk"};
    std::map<Runner, std::string> runners;
    std::function<ProgramOutput(const std::string&)> whenAsked; ///< for its version
    std::vector<std::string> shown;                             ///< folders
    bool hasFileManager = true;

    std::vector<DriveFolder> drives() const override { return drivesWith(chosen); }
    std::vector<DriveFolder> drivesWith(const DriveChoices& choices) const override;
    void setDrive(char letter, const std::string& folder) override;
    bool folderExists(const std::string& path) const override { return folders.count(path) != 0; }
    std::string nativePath(const std::string& dosPath) const override;
    std::string findRunner(Runner which) const override;
    ProgramOutput askForVersion(const std::string& path) override;
    bool showFolder(const std::string& path) override;
};

struct FakeSound final : Sound {
    std::vector<std::string> played;
    void play(const std::string& path) override { played.push_back(path); }
};

struct FakeClipboard final : Clipboard {
    ClipboardContent content;
    void put(const ClipboardContent& what) override { content = what; }
    ClipboardContent get() const override { return content; }
    bool holdsText() const override { return !content.text.empty() || !content.rtf.empty(); }
};

/// The machine that a test program runs on: drive c: with the program's folder, and a user who answers by script. It
/// outlives the programs that are started on it.
struct TestMachine {
    static constexpr const char* programDirectory = "c:\\tarvex";
    static constexpr const char* iniPath = "c:\\tarvex\\Tarvex.ini";

    TestMachine();

    MemoryFiles files;
    ScriptedDialogues dialogues;
    FakeDesktop desktop;
    FakeSound sound;
    FakeClipboard clipboard;
    FakeProcesses processes;
    FakeMachine machine;
    FakeJoystick joystick;
    FakeKeyboard keyboard;
    FakePrinters printers;
    FakePictures pictures{files};
    Platform platform{files,    dialogues, desktop,          sound, clipboard, processes, machine,
                      printers, pictures,  programDirectory, {}};

    /// Sets a key of Tarvex.ini, as a user with a text editor would.
    void setIni(const std::string& section, const std::string& key, const std::string& value);
    /// The key's value as the file has it; "(none)" without one.
    std::string ini(const std::string& section, const std::string& key);
    const MessageBox& lastBox() const { return dialogues.boxes.at(dialogues.boxes.size() - 1); }
    std::string fileText(const std::string& path) const { return files.contents(path).value_or("(no file)"); }
};

/// A machine with a controller set up (programs in c:\tm\b50progs, FLCS, first use over, both files opened together),
/// and the program started on it.
struct TestProgram : TestMachine {
    explicit TestProgram(bool startIt = true);

    void start();
    Program& program() { return *m_program; }
    Editor& editor() { return m_program->editor; }
    Settings& settings() { return m_program->shared.settings; }
    Menus& menus() { return m_program->menus; }
    std::string status(int panel = 1) { return m_program->mum.StatusBar.Panels(panel).Text; }

    /// What the user types into the pane of a document, at the caret.
    void typeJoystick(const std::string& text);
    void typeMacro(const std::string& text);
    /// One key after the other at the caret: "\r" is Return, "\b" Backspace.
    void pressKeys(Pane& pane, const std::string& keys);
    /// Opens a path without asking, as the list of previous files does.
    void openBoth(const std::string& path);

private:
    std::unique_ptr<Program> m_program;
};

} // namespace tarvex
