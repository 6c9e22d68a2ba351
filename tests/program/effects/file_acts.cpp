#include "documents/files/outside_notice.h"
#include "documents/text/rtf/rtf.h"
#include "program/effects/acts.h"
#include "support/utf16_text.h"

namespace tarvex {

namespace {

constexpr const char* migMacros = "c:\\tm\\b50progs\\mig.m50";
constexpr const char* theirs = "USE MDEF mig\r\nBTN S1 theirs\r\nBTN S2 gear\r\nBTN S4 new\r\n";
const RuntimeError diskFull(ErrorCode::DiskFull, "Disk full");

/// Another program writes to a file of the pair, and the window is looked at.
void changeOutside(TestProgram& t, const std::string& path, const std::string& text)
{
    t.files.addFile(path, text);
    lookForOutsideChanges(t.program().outsideNotices);
}

void removeOutside(TestProgram& t, const std::string& path)
{
    if (t.files.fileExists(path)) t.files.removeFile(path);
    lookForOutsideChanges(t.program().outsideNotices);
}

void openAlone(TestProgram& t, const std::string& name, const std::string& text)
{
    const std::string path = "c:\\tm\\" + name;
    t.files.addFile(path, text);
    t.openBoth(path);
}

void openSingle(TestProgram& t, const std::string& path)
{
    t.menus().mnuJoyPopUpSingleFile.Checked = true;
    t.openBoth(path);
}

OutsideNotices& notices(TestProgram& t) { return t.program().outsideNotices; }

void saveWhileFailing(TestProgram& t, const std::string& path)
{
    t.files.failWrites(path, diskFull);
    t.menus().mnuFileSave.Click();
}

} // namespace

const std::vector<Act>& fileActs()
{
    static const std::vector<Act> all{
        {"joystick file changed outside", [](TestProgram& t, Editor&) { changeOutside(t, mig, theirs); }},
        {"joystick file reloaded",
         [](TestProgram& t, Editor&) {
             changeOutside(t, mig, theirs);
             notices(t).joystick.Reload.Click();
         }},
        {"joystick file reloaded with its colours",
         [](TestProgram& t, Editor&) {
             t.settings().ApplyColoursOnFileOpen = 1;
             t.settings().CheckIdentifyOK = 0;
             changeOutside(t, mig, theirs);
             notices(t).joystick.Reload.Click();
         }},
        {"joystick file kept",
         [](TestProgram& t, Editor&) {
             changeOutside(t, mig, theirs);
             notices(t).joystick.Keep.Click();
             lookForOutsideChanges(notices(t));
         }},
        {"joystick file kept and changed back",
         [](TestProgram& t, Editor& e) {
             const std::string before = t.files.contents(mig).value_or("");
             changeOutside(t, mig, theirs);
             notices(t).joystick.Keep.Click();
             changeOutside(t, mig, before);
             changeOutside(t, mig, theirs);
             e.status(notices(t).joystick.Visible ? "strip" : "no strip");
         }},
        {"differences of the joystick file",
         [](TestProgram& t, Editor&) {
             changeOutside(t, mig, theirs);
             notices(t).joystick.Differences.Click();
         }},
        {"joystick file gone", [](TestProgram& t, Editor&) { removeOutside(t, mig); }},
        {"macro file reloaded",
         [](TestProgram& t, Editor&) {
             changeOutside(t, migMacros, "gun = g\r\n");
             notices(t).macro.Reload.Click();
         }},
        {"macro file emptied and reloaded",
         [](TestProgram& t, Editor&) {
             changeOutside(t, migMacros, "");
             notices(t).macro.Reload.Click();
         }},
        {"saving over a change",
         [](TestProgram& t, Editor&) {
             changeOutside(t, mig, theirs);
             changeOutside(t, migMacros, "gun = g\r\n");
             t.menus().mnuFileSave.Click();
         }},
        {"joystick file alone", [](TestProgram& t, Editor&) { openAlone(t, "alone.b50", "BTN S1 a\r\n"); }},
        {"macro file alone", [](TestProgram& t, Editor&) { openAlone(t, "alone.m50", "a = b\r\n"); }},
        {"neither kind", [](TestProgram& t, Editor&) { openAlone(t, "alone.txt", "text"); }},
        {"single joystick file", [](TestProgram& t, Editor&) { openSingle(t, su); }},
        {"single macro file", [](TestProgram& t, Editor&) { openSingle(t, "c:\\tm\\b50progs\\su.m50"); }},
        {"file with other line ends", [](TestProgram& t, Editor&) { openAlone(t, "ends.b50", "a\rb\nc\r\nd\n"); }},
        {"file that holds the colours",
         [](TestProgram& t, Editor&) {
             t.settings().ApplyColoursOnFileOpen = 1;
             openAlone(t, "held.b50", "RAW (a\r\nDLY(b\r\n");
         }},
        {"file in Unicode",
         [](TestProgram& t, Editor&) { openAlone(t, "unicode.b50", asUtf16("BTN S1 \xE2\x98\x83\r\n")); }},
        {"file with a coloured copy",
         [](TestProgram& t, Editor& e) {
             const FormatId red = e.formats->withColour(e.formats->idOf({}), 255);
             t.files.addFile("c:\\tarvex\\Rtf\\copy.b50", writeRtf(RichText(e.formats, "BTN", {{3, red}})));
             openAlone(t, "copy.b50", "BTN");
         }},
        {"file that can't be read",
         [](TestProgram& t, Editor&) {
             t.files.addFile("c:\\tm\\bad.b50", "BTN S1");
             t.files.failReads("c:\\tm\\bad.b50", diskFull);
             t.openBoth("c:\\tm\\bad.b50");
         }},
        {"partner that can't be read",
         [](TestProgram& t, Editor&) {
             t.files.failReads("c:\\tm\\b50progs\\su.m50", diskFull);
             t.openBoth(su);
         }},
        {"joystick file that can't be written", [](TestProgram& t, Editor&) { saveWhileFailing(t, mig); }},
        {"backup that can't be written",
         [](TestProgram& t, Editor& e) {
             t.settings().CreateBackup = 1;
             saveWhileFailing(t, "c:\\tarvex\\Backup\\" + e.selected().FileName);
         }},
        {"read-only file",
         [](TestProgram& t, Editor& e) {
             if (t.files.fileExists(e.selected().FilePath)) t.files.setReadOnly(e.selected().FilePath);
             t.menus().mnuFileSave.Click();
         }},
        {"saved with all that may follow",
         [](TestProgram& t, Editor&) {
             t.settings().CreateBackup = 1;
             t.settings().UndoClearOnSave = 1;
             t.menus().mnuMacrosSaveOptions1.Checked = true;
             t.menus().mnuMacrosSaveOptions2.Checked = true;
             t.menus().mnuFileSaveBoth.Click();
         }},
        {"journal that can't be written",
         [](TestProgram& t, Editor& e) {
             t.files.failAppends(diskFull);
             t.pressKeys(e.selected().pane, "x");
             t.pressKeys(e.selected().pane, "y");
         }},
        {"start after a crash",
         [](TestProgram& t, Editor& e) {
             t.pressKeys(e.selected().pane, "x");
             t.start();
         }},
        {"next start",
         [](TestProgram& t, Editor&) {
             t.program().exit();
             t.start();
         }},
        {"next start without questions",
         [](TestProgram& t, Editor& e) {
             e.joystick.Changed = e.macro.Changed = changed::saved;
             t.program().exit();
             t.setIni("Miscellaneous", "AutoSaveEnabled", "1");
             t.setIni("FileLocations", "ShowTips", "1");
             t.start();
         }},
    };
    return all;
}

} // namespace tarvex
