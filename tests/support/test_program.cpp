#include "support/test_program.h"

#include "documents/files/file_open.h"
#include "platform/profile_file.h"

#include <algorithm>

namespace tarvex {

namespace {

void type(Pane& pane, const std::string& text) { pane.userEdit(pane.SelStart(), pane.SelLength(), text); }

} // namespace

std::vector<DriveFolder> FakeMachine::drivesWith(const DriveChoices& choices) const
{
    std::map<char, DriveFolder> drives;
    for (const DriveFolder& drive : found) drives[drive.letter] = drive;
    for (const auto& [letter, folder] : choices) drives[letter] = {letter, folder, DriveFolder::Origin::User};
    std::vector<DriveFolder> rows;
    for (const auto& [letter, drive] : drives) rows.push_back(drive);
    return rows;
}

void FakeMachine::setDrive(char letter, const std::string& folder)
{
    if (folder.empty()) {
        chosen.erase(letter);
    } else {
        chosen[letter] = folder;
    }
}

std::string FakeMachine::nativePath(const std::string& dosPath) const
{
    for (const DriveFolder& drive : drives()) {
        if (dosPath.empty() || drive.letter != dosPath[0]) continue;
        std::string rest = dosPath.substr(2);
        std::replace(rest.begin(), rest.end(), '\\', '/');
        return drive.folder == "/" ? rest : drive.folder + (rest == "/" ? "" : rest);
    }
    throw RuntimeError(ErrorCode::PathNotFound, "Path not found");
}

std::string FakeMachine::findRunner(Runner which) const
{
    const auto runner = runners.find(which);
    return runner == runners.end() ? "" : runner->second;
}

ProgramOutput FakeMachine::askForVersion(const std::string& path)
{
    if (!whenAsked) throw RuntimeError(ErrorCode::FileNotFound, "File not found");
    return whenAsked(path);
}

bool FakeMachine::showFolder(const std::string& path)
{
    shown.push_back(path);
    return hasFileManager;
}

TestMachine::TestMachine() { files.addDirectory(programDirectory); }

void TestMachine::setIni(const std::string& section, const std::string& key, const std::string& value)
{
    ProfileFile(files, iniPath).writeString(section, key, value);
}

std::string TestMachine::ini(const std::string& section, const std::string& key)
{
    return ProfileFile(files, iniPath).readString(section, key, "(none)", std::string::npos);
}

TestProgram::TestProgram(bool startIt)
{
    files.addDirectory("c:\\tm\\b50progs");
    setIni("FileLocations", "ProgramFilesPath", "c:\\tm\\b50progs\\");
    setIni("FileLocations", "FirstTimeUsed", "0");
    setIni("FileLocations", "JoyName", "1");
    setIni("FileLocations", "ShowTips", "0");
    setIni("Miscellaneous", "OpenSingleFileOnly", "0");
    if (startIt) start();
}

void TestProgram::start()
{
    m_program = std::make_unique<Program>(platform, InputDevices{joystick, keyboard});
    EXPECT_TRUE(m_program->start());
}

void TestProgram::pressKeys(Pane& pane, const std::string& keys)
{
    for (const char key : keys) {
        pane.KeyPress(static_cast<unsigned char>(key));
        const std::int64_t caret = pane.SelStart();
        if (key == '\b')
            pane.userEdit(caret - 1, 1, "");
        else
            pane.userEdit(caret, pane.SelLength(), key == '\r' ? "\r\n" : std::string(1, key));
    }
}

void TestProgram::typeJoystick(const std::string& text) { type(editor().JoystickText, text); }
void TestProgram::typeMacro(const std::string& text) { type(editor().MacroText, text); }

void TestProgram::openBoth(const std::string& path)
{
    editor().OpeningPath = path;
    OpenPreviouslySavedFiles(editor());
}

} // namespace tarvex
