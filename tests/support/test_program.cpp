#include "support/test_program.h"

#include "documents/files/file_open.h"
#include "platform/profile_file.h"

namespace tarvex {

namespace {

void type(Pane& pane, const std::string& text) { pane.userEdit(pane.SelStart(), pane.SelLength(), text); }

} // namespace

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
    m_program = std::make_unique<Program>(platform);
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
