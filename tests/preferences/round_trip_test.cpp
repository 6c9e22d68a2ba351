// Every key of every INI file goes through the preferences and comes out as it went in, or as its control was set.

#include "platform/errors.h"
#include "platform/windows1252.h"
#include "preferences_fixture.h"
#include "shell/settings_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

namespace tarvex {
namespace {

struct RoundTrip : testing::Test, PreferencesProgram {
    std::string key(IniFile file, std::string_view section, const std::string& name)
    {
        return ProfileFile(files, "c:\\tarvex\\" + std::string(fileNameOf(file)))
            .readString(section, name, "(none)", 1000);
    }
    void set(IniFile file, std::string_view section, const std::string& name, const std::string& value)
    {
        ProfileFile(files, "c:\\tarvex\\" + std::string(fileNameOf(file))).writeString(section, name, value);
    }
};

/// A value that no key has by itself, that its form can have, and that closing the dialogue has no reason to change.
std::string oddValue(const SettingRow& row, const std::string& name, int number)
{
    if (name == "FirstTimeUsed" || name == "AllowAggressiveFocus") return "0"; // what closing makes of them
    if (name == "FilesDirectory") return "c:\\odd\\files";                     // always the folder of the files
    if (name == "ProgramFilesPath") return "c:\\odd\\files";
    if (name == "B50LoadPath" || name == "Loader2") return "c:\\odd\\winld.exe";
    if (name.ends_with("ArrayNum") || name == "NumPreviousLoaders") return "2";
    if (name == "WinLoadString") return "/WCS /B4 /NB odd"; // a blank at the start isn't read
    if (name == "WinLoadExtra") return "odd";
    if (name == "WinLoadThr" || name == "WinLoadMouse" || name == "WinLoadBlanker") return "1";
    if (name == "WinLoadMouseType") return "3";
    if (name == "ComposerImages" || name == "JoyName" || name == "RudderName" || name == "ThrottleName") return "2";
    if (name == "FavNameToLoad") return "no favourite";
    if (name == "MacroFrameWidth") return "201";
    if (name == "OpenSingleFileOnly") return "0";
    switch (row.form) {
    case SettingForm::Flag:
        return row.readDefault == "1" ? "0" : "1";
    case SettingForm::ColourText:
        return std::to_string(1000 + number);
    case SettingForm::Text:
    case SettingForm::ShortText:
        return "odd " + std::to_string(number);
    case SettingForm::Dropped:
        return "";
    default:
        return std::to_string(20 + number);
    }
}

template <typename Work> void forEachKey(Work work)
{
    int number = 0;
    for (const SettingRow& row : settingsTable()) {
        const bool family = !std::holds_alternative<std::monostate>(row.count);
        const std::string stem(row.key);
        for (int i = 1; i <= (family ? 2 : 1); ++i) work(row, family ? stem + std::to_string(i) : stem, ++number);
    }
}

TEST_F(RoundTrip, AnOpenedAndClosedDialogueLeavesEveryKeyAsItIs)
{
    forEachKey([this](const SettingRow& row, const std::string& name, int number) {
        set(row.file, row.section, name, oddValue(row, name, number));
    });
    set(IniFile::Tarvex, "Unknown", "Key", "Stays");
    files.addFile("c:\\tarvex\\tarvexbig.wav", "RIFF");
    start();
    dialogues.boxes.clear();
    inPreferences([] {});
    forEachKey([this](const SettingRow& row, const std::string& name, int number) {
        if (row.form == SettingForm::Dropped) return;
        EXPECT_EQ(key(row.file, row.section, name), oddValue(row, name, number)) << name;
    });
    EXPECT_EQ(key(IniFile::Tarvex, "Unknown", "Key"), "Stays");
    EXPECT_TRUE(dialogues.boxes.empty());
}

/// A control that is set, and what its key says afterwards.
struct Change {
    const char* section;
    const char* key;
    std::function<void(Preferences&)> set;
    std::string value;
};

template <typename Box> std::function<void(Preferences&)> written(Box get, const char* text)
{
    return [=](Preferences& preferences) { get(preferences).Text = text; };
}

/// The user's tick: the box, then its handler.
template <typename Box> std::function<void(Preferences&)> ticked(Box get, bool on)
{
    return [=](Preferences& preferences) {
        CheckBox& box = get(preferences);
        box.Value = on;
        if (box.Click) box.Click();
    };
}

std::vector<Change> changesOfFiles()
{
    const auto combo = [](ComboBox FileLocationsPage::*box, const char* text) {
        return [=](Preferences& p) {
            (p.fileLocationsPage.*box).Text = text;
            (p.fileLocationsPage.*box).Click();
        };
    };
    const auto line = [](TextBox FileLocationsPage::*box, const char* text) {
        return [=](Preferences& p) { (p.fileLocationsPage.*box).Text = text; };
    };
    return {
        {"FileLocations", "B50LoadPath", [](Preferences& p) { p.fileLocationsPage.Text1.Text = "C:\\L\\winld.exe"; },
         "c:\\l\\winld.exe"},
        {"FileLocations", "ProgramFilesPath", line(&FileLocationsPage::Text2, "C:\\Mine"), "c:\\mine"},
        {"Launcher", "FilesDirectory", [](Preferences&) {}, "c:\\mine"},
        {"FileLocations", "CTFJPath", line(&FileLocationsPage::Text15, "C:\\Ctfj.exe"), "c:\\ctfj.exe"},
        {"FileLocations", "CandCCPath", line(&FileLocationsPage::Text10, "C:\\Cc.bat"), "c:\\cc.bat"},
        {"FileLocations", "JoyName", combo(&FileLocationsPage::ComboJoystick, "FCS"), "4"},
        {"FileLocations", "ThrottleName", combo(&FileLocationsPage::ComboThrottle, "WCS"), "3"},
        {"FileLocations", "RudderName", combo(&FileLocationsPage::ComboRudders, "Elite"), "1"},
    };
}

std::vector<Change> changesOfColours()
{
    std::vector<Change> changes;
    const std::pair<const char*, int> items[] = {
        {"BackgroundColour", 0},    {"BTNColour", 2},     {"SlashColour", 3},           {"RAWColour", 4},
        {"MiscellaneousColour", 5}, {"RemStatements", 6}, {"MacroBackgroundColour", 7},
    };
    for (const auto& [name, item] : items)
        changes.push_back({"Colours", name,
                           [item = item](Preferences& p) { ApplyColour(p.coloursPage, item, 70 + item); },
                           std::to_string(70 + item)});
    changes.push_back({"Colours", "ApplyColoursOnFileOpen",
                       ticked([](Preferences& p) -> CheckBox& { return p.coloursPage.CheckBox1; }, false), "0"});
    return changes;
}

std::vector<Change> changesOfApps()
{
    std::vector<Change> changes{
        {"Apps", "ImageFilePath", written([](Preferences& p) -> TextBox& { return p.appsPage.Text5; }, "C:\\P.bmp"),
         "c:\\p.bmp"},
        {"Apps", "TextFilePath", written([](Preferences& p) -> TextBox& { return p.appsPage.Text6; }, "C:\\T.txt"),
         "c:\\t.txt"},
    };
    static const std::string keys[] = {"CustomAppName1", "CustomAppPath1", "CustomAppUse1",
                                       "CustomAppName4", "CustomAppPath4", "CustomAppUse4"};
    for (std::size_t i = 0; i < 2; ++i) {
        const std::size_t row = i * 3;
        changes.push_back(
            {"Apps", keys[i * 3].c_str(),
             written([row](Preferences& p) -> TextBox& { return p.appsPage.CustomAppNameText[row]; }, "My App"),
             "My App"});
        changes.push_back(
            {"Apps", keys[i * 3 + 1].c_str(),
             written([row](Preferences& p) -> TextBox& { return p.appsPage.CustomAppPathText[row]; }, "C:\\A.exe"),
             "c:\\a.exe"});
        changes.push_back(
            {"Apps", keys[i * 3 + 2].c_str(),
             ticked([row](Preferences& p) -> CheckBox& { return p.appsPage.CustomAppPathUse[row]; }, true), "1"});
    }
    return changes;
}

std::vector<Change> changesOfSaving()
{
    const auto tick = [](CheckBox SavingPage::*box, bool on) {
        return ticked([box](Preferences& p) -> CheckBox& { return p.savingPage.*box; }, on);
    };
    return {
        {"Miscellaneous", "AutoSaveTime", written([](Preferences& p) -> TextBox& { return p.savingPage.Text3; }, "33"),
         "33"},
        {"Miscellaneous", "AutoSaveEnabled",
         ticked([](Preferences& p) -> CheckBox& { return p.savingPage.Check3[0]; }, true), "1"},
        {"Miscellaneous", "CreateBackup",
         ticked([](Preferences& p) -> CheckBox& { return p.savingPage.Check3[1]; }, false), "0"},
        {"Miscellaneous", "OpenBothOnToolbar", tick(&SavingPage::OpenBothChk, false), "0"},
        {"Miscellaneous", "SaveBothOnToolbar", tick(&SavingPage::SaveBothChk, true), "1"},
        {"Miscellaneous", "UndoMax",
         written([](Preferences& p) -> TextBox& { return p.savingPage.TxtUndoLevels; }, "123"), "123"},
        {"Miscellaneous", "UndoClearOnSave", tick(&SavingPage::CheckUndoSave, true), "1"},
        {"Miscellaneous", "HighlightLineOnUndo", tick(&SavingPage::CheckHighlightOnUndo, false), "0"},
    };
}

std::vector<Change> changesOfMiscellaneous()
{
    const auto tick = [](CheckBox MiscellaneousPage::*box, bool on) {
        return ticked([box](Preferences& p) -> CheckBox& { return p.miscellaneousPage.*box; }, on);
    };
    const auto bar = [](std::size_t i, bool on) {
        return ticked([i](Preferences& p) -> CheckBox& { return p.miscellaneousPage.CheckFlattenToolbar[i]; }, on);
    };
    return {
        {"Miscellaneous", "FlatToolbar", bar(0, false), "0"},
        {"Miscellaneous", "GradientEffect", bar(1, true), "1"},
        {"Miscellaneous", "CanWrapToolbar", bar(2, true), "1"},
        {"Miscellaneous", "UseTCA", tick(&MiscellaneousPage::CheckUseTCA, true), "1"},
        {"Miscellaneous", "DisableCalibrateMenu", tick(&MiscellaneousPage::CheckDisableCalibrate, true), "1"},
        {"Miscellaneous", "PlayWavOnStartup", tick(&MiscellaneousPage::WavPlay, true), "1"},
        {"FileLocations", "GamesCaption",
         [](Preferences& p) { p.miscellaneousPage.ComboGamesCaption.Text = "Air&borne!"; }, "Air&borne!"},
        {"Miscellaneous", "UseExtraButtons", tick(&MiscellaneousPage::CheckExtraToolbar, true), "1"},
        {"Miscellaneous", "ButtonsOnStatusBar", tick(&MiscellaneousPage::CheckButtonsOnStatusBar, false), "0"},
        {"Miscellaneous", "MinimiseAll", tick(&MiscellaneousPage::CheckMinimiseAll, true), "1"},
        {"Miscellaneous", "OKtoShowToolTips", tick(&MiscellaneousPage::CheckShowTooltips, false), "0"},
        {"Miscellaneous", "CheckIdentifyOK", tick(&MiscellaneousPage::CheckIdentify, false), "0"},
        {"Miscellaneous", "AllowAggressiveFocus", tick(&MiscellaneousPage::CheckAggressiveFocus, true), "1"},
        {"Miscellaneous", "DefaultDLYvalue",
         written([](Preferences& p) -> TextBox& { return p.miscellaneousPage.DLYText; }, "75"), "75"},
        {"Miscellaneous", "ComposerImages", [](Preferences& p) { p.miscellaneousPage.OptionImagesToShow[2].Click(); },
         "2"},
    };
}

std::vector<Change> changesOfWinLoad()
{
    return {
        {"WinLoad", "WinLoadThr", [](Preferences& p) { p.winLoadPage.WinLoadThrottle[0].Click(); }, "0"},
        {"WinLoad", "WinLoadMouse", [](Preferences& p) { p.winLoadPage.OptionMouse[2].Click(); }, "2"},
        {"WinLoad", "WinLoadMouseType",
         [](Preferences& p) {
             p.winLoadPage.MouseList[2].ListIndex = 9;
             p.winLoadPage.MouseList[2].Click();
         },
         "9"},
        {"WinLoad", "WinLoadBlanker",
         ticked([](Preferences& p) -> CheckBox& { return p.winLoadPage.CheckUseBlanker; }, true), "1"},
        {"WinLoad", "WinLoadExtra", written([](Preferences& p) -> TextBox& { return p.winLoadPage.ExtraText; }, "/X"),
         "/X"},
        {"WinLoad", "WinLoadUse",
         ticked([](Preferences& p) -> CheckBox& { return p.winLoadPage.CheckApplyWinLoad; }, true), "1"},
        {"WinLoad", "WinLoadStatusBarErrors",
         ticked([](Preferences& p) -> CheckBox& { return p.winLoadPage.CheckStatusBarErrors; }, true), "1"},
        {"WinLoad", "WinLoadString", [](Preferences&) {}, "/TQS /C10 /NB /X"},
    };
}

std::vector<Change> allChanges()
{
    std::vector<Change> changes;
    for (auto part :
         {changesOfFiles, changesOfColours, changesOfApps, changesOfSaving, changesOfMiscellaneous, changesOfWinLoad}) {
        for (Change& change : part()) changes.push_back(std::move(change));
    }
    return changes;
}

TEST_F(RoundTrip, EveryControlReachesItsKeyAndComesBack)
{
    files.addFile("c:\\tarvex\\tarvexbig.wav", "RIFF");
    start();
    const std::vector<Change> changes = allChanges();
    inPreferences([&, this] {
        for (const Change& change : changes) change.set(preferences());
    });
    for (const Change& change : changes) EXPECT_EQ(ini(change.section, change.key), change.value) << change.key;
    start();
    inPreferences([] {});
    for (const Change& change : changes)
        EXPECT_EQ(ini(change.section, change.key), change.value) << change.key << " after another start";
}

/// The keys that a key takes with it.
const std::map<std::string, std::set<std::string>> followers = {
    {"B50LoadPath",
     {"WinLoadBlanker", "WinLoadExtra", "WinLoadMouse", "WinLoadMouseType", "WinLoadStatusBarErrors", "WinLoadString",
      "WinLoadThr", "WinLoadUse"}}, // no other loader takes options
    {"ProgramFilesPath", {"FilesDirectory"}},
    {"JoyName", {"JoystickExtension", "MacroExtension"}},
    {"WinLoadThr", {"WinLoadString"}},
    {"WinLoadMouse", {"WinLoadMouseType"}}, // the types are those of a kind
    {"WinLoadMouseType", {"WinLoadString"}},
    {"WinLoadBlanker", {"WinLoadString"}},
    {"WinLoadExtra", {"WinLoadString"}},
};

/// The lines of Tarvex.ini after all changes but one.
std::set<std::string> linesWithout(const std::string& key)
{
    PreferencesProgram t(false);
    t.files.addFile("c:\\tarvex\\tarvexbig.wav", "RIFF");
    t.start();
    t.inPreferences([&] {
        for (const Change& change : allChanges())
            if (change.key != key) change.set(t.preferences());
    });
    std::istringstream text(t.fileText("c:\\tarvex\\Tarvex.ini"));
    std::set<std::string> lines;
    for (std::string line; std::getline(text, line);) lines.insert(line);
    return lines;
}

TEST(EachControl, SetsNoKeyButItsOwnAndThoseThatFollowIt)
{
    const auto all = linesWithout("");
    for (const Change& change : allChanges()) {
        if (std::string(change.key) == "FilesDirectory" || std::string(change.key) == "WinLoadString")
            continue; // followers only
        std::set<std::string> changed;
        const auto without = linesWithout(change.key);
        std::vector<std::string> differences;
        std::ranges::set_symmetric_difference(all, without, std::back_inserter(differences));
        for (const std::string& line : differences) changed.insert(line.substr(0, line.find('=')));
        std::set<std::string> expected{change.key};
        if (const auto found = followers.find(change.key); found != followers.end())
            expected.merge(std::set(found->second));
        EXPECT_EQ(changed, expected) << change.key;
    }
}

// ---- bad input
// -------------------------------------------------------------------------------------------------------

constexpr const char* badTexts[] = {"abc",  "40000", "-5",   "1e9", "",         " ",
                                    "0x10", "3,5",   "1\n2", "\"",  "\"a\"b\"", "=;[]"};

TEST_F(RoundTrip, NumberBoxesTakeWhateverIsWritten)
{
    for (const char* text : badTexts) {
        dialogues.boxes.clear();
        inPreferences([this, text] {
            for (TextBox* box : {&preferences().savingPage.Text3, &preferences().savingPage.TxtUndoLevels,
                                 &preferences().miscellaneousPage.DLYText}) {
                box->Text = text;
                if (box->LostFocus) box->LostFocus();
            }
        });
        EXPECT_GE(settings().AutoSaveTime, 1) << text;
        EXPECT_GE(settings().UndoMax, 10) << text;
        EXPECT_LE(settings().UndoMax, 30000) << text;
        EXPECT_GE(settings().DefaultDLYvalue, 0) << text;
        EXPECT_LE(dialogues.boxes.size(), 1U) << text;
        start();
    }
}

TEST_F(RoundTrip, PathBoxesTakeWhateverIsWritten)
{
    const std::string longPath = "c:\\" + std::string(300, 'x') + "\\load.exe";
    for (const std::string& text : {longPath, std::string("c:\\a\"b\\\"c"), std::string("c:\\no\\such\\folder"),
                                    std::string("c:\\a\nb\r\n[Colours]\nRAWColour=1"), std::string("\\\\server\\x"),
                                    std::string("c:\\caf\xC3\xA9\\\xE2\x82\xAC")}) {
        inPreferences([this, &text] {
            preferences().fileLocationsPage.Text1.Text = text;
            preferences().fileLocationsPage.Text2.Text = text;
            preferences().fileLocationsPage.Text15.Text = text;
            preferences().fileLocationsPage.Text10.Text = text;
            preferences().appsPage.Text5.Text = text;
            preferences().appsPage.CustomAppPathText[0].Text = text;
        });
        EXPECT_NE(ini("Colours", "RAWColour"), "1") << "a path breaks no file";
        EXPECT_EQ(settings().ProgramFilesPath.whole(), lowerUtf8(text)) << "all of it in memory";
        start();
        inPreferences([] {});
    }
}

TEST_F(RoundTrip, APathOf300CharactersIsKeptWhole)
{
    const std::string path = "c:\\" + std::string(300, 'x') + "\\load.exe";
    inPreferences([&, this] { preferences().fileLocationsPage.Text1.Text = path; });
    start();
    inPreferences([&, this] { EXPECT_EQ(preferences().fileLocationsPage.Text1.Text.get(), path); });
    EXPECT_EQ(key(IniFile::Tarvex, "FileLocations", "B50LoadPath"), path);
    EXPECT_EQ(key(IniFile::Lists, "Loaders", "Loader1"), path);
}

TEST_F(RoundTrip, AListOfTenThousandLoadersWithGapsIsShownAndKept)
{
    std::string list = "[Loaders]\r\nNumPreviousLoaders=10000\r\n";
    for (int i = 1; i <= 10000; ++i) {
        if (i % 100 != 0) list += "Loader" + std::to_string(i) + "=c:\\l" + std::to_string(i) + ".exe\r\n";
    }
    files.addFile("c:\\tarvex\\Lists.ini", list);
    start();
    inPreferences([this] {
        EXPECT_EQ(preferences().fileLocationsPage.Text1.Items.get().size(), 10000U);
        preferences().fileLocationsPage.Text1.Text = "c:\\new.exe";
    });
    EXPECT_EQ(key(IniFile::Lists, "Loaders", "NumPreviousLoaders"), "10001");
    EXPECT_EQ(key(IniFile::Lists, "Loaders", "Loader10001"), "c:\\new.exe");
    EXPECT_EQ(key(IniFile::Lists, "Loaders", "Loader9999"), "c:\\l9999.exe");
}

TEST_F(RoundTrip, FilesThatCannotBeWrittenAreReportedOnceAndNothingIsLost)
{
    for (const char* file : {"Tarvex.ini", "Lists.ini", "Platform.ini"})
        files.failWrites(std::string("c:\\tarvex\\") + file,
                         RuntimeError(ErrorCode::PermissionDenied, "Read-only file system"));
    inPreferences([this] {
        preferences().fileLocationsPage.Text1.Text = "c:\\new.exe";
        preferences().savingPage.TxtUndoLevels.Text = "77";
        preferences().extrasPage.Runners[0].Path.Text = "/opt/wine";
    });
    ASSERT_EQ(dialogues.boxes.size(), 1U);
    EXPECT_EQ(lastBox().text,
              "I couldn't write this:\n\n    c:\\tarvex\\Tarvex.ini: Read-only file system"
              "\n    c:\\tarvex\\Lists.ini: Read-only file system\n    c:\\tarvex\\Platform.ini: Read-only file system"
              "\n\nWhat you've set counts until you close me, and I'll try again the next time that you close the "
              "preferences.");
    EXPECT_EQ(settings().UndoMax, 77);
    EXPECT_EQ(settings().B50LoadPath, "c:\\new.exe");
    inPreferences([this] {
        EXPECT_EQ(preferences().fileLocationsPage.Text1.Text.get(), "c:\\new.exe");
        EXPECT_EQ(preferences().extrasPage.Runners[0].Path.Text.get(), "/opt/wine");
    });
    EXPECT_EQ(dialogues.boxes.size(), 2U) << "once for each closing";
    for (const char* file : {"Tarvex.ini", "Lists.ini", "Platform.ini"})
        files.failWrites(std::string("c:\\tarvex\\") + file, std::nullopt);
    dialogues.boxes.clear();
    inPreferences([] {});
    EXPECT_TRUE(dialogues.boxes.empty());
    EXPECT_EQ(ini("Miscellaneous", "UndoMax"), "77") << "written with the next closing";
}

TEST_F(RoundTrip, AFontThatIsNotInstalledIsKept)
{
    setIni("Colours", "TextFontName", "No Such Font 1995");
    start();
    inPreferences([] {});
    EXPECT_EQ(ini("Colours", "TextFontName"), "No Such Font 1995");
    EXPECT_EQ(editor().JoystickText.Font().name, "No Such Font 1995");
}

} // namespace
} // namespace tarvex
