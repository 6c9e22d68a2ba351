// What a failure is reported under: each command runs on a machine on which nothing works any more.

#include "documents/files/file_open.h"
#include "shell/menus.h"
#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

namespace tarvex {
namespace {

using Tags = std::set<std::string>;

/// Whether things work.
struct Power {
    bool off = false;
    void need() const
    {
        if (off) throw RuntimeError(ErrorCode::DeviceInputOutput, "No power");
    }
};

struct FailingFiles final : FileSystem {
    FailingFiles(MemoryFiles& files, const Power& power) : m_files(files), m_power(power) {}

    bool fileExists(const std::string& path) const override { return m_files.fileExists(path); }
    bool directoryExists(const std::string& path) const override { return m_files.directoryExists(path); }
    bool isReadOnly(const std::string& path) const override { return m_files.isReadOnly(path); }
    FileStamp stamp(const std::string& path) const override { return m_files.stamp(path); }
    std::string read(const std::string& path) const override { return working().read(path); }
    void write(const std::string& path, const std::string& bytes) override { working().write(path, bytes); }
    void createDirectory(const std::string& path) override { working().createDirectory(path); }
    std::unique_ptr<AppendFile> createAppendFile(const std::string& path) override
    {
        return working().createAppendFile(path);
    }
    void removeFile(const std::string& path) override { working().removeFile(path); }
    void renameFile(const std::string& path, const std::string& newPath) override
    {
        working().renameFile(path, newPath);
    }
    std::vector<std::string> list(const std::string& path) const override { return working().list(path); }

private:
    MemoryFiles& working() const
    {
        m_power.need();
        return m_files;
    }
    MemoryFiles& m_files;
    const Power& m_power;
};

/// Boxes come up, and the user gives in; everything else fails.
struct FailingDialogues final : Dialogues {
    explicit FailingDialogues(const Power& power) : m_power(power) {}

    Answer show(const MessageBox& box) override { return box.buttons == BoxButtons::Ok ? Answer::Ok : Answer::No; }
    std::optional<std::string> openFile(const FileRequest&) override { return fail<std::optional<std::string>>(); }
    std::optional<std::string> saveFile(const FileRequest&) override { return fail<std::optional<std::string>>(); }
    std::optional<std::string> chooseFolder(const std::string&, const std::string&) override
    {
        return fail<std::optional<std::string>>();
    }
    std::optional<Colour> chooseColour(Colour) override { return fail<std::optional<Colour>>(); }
    std::optional<FontChoice> chooseFont(const FontChoice&, bool) override { return fail<std::optional<FontChoice>>(); }
    bool showModal(const std::string&) override { return fail<bool>(); }
    void popUp(const MenuItem&) override { m_power.need(); }
    void popUpAtCaret(const MenuItem&) override { m_power.need(); }

private:
    template <typename Result> Result fail() const
    {
        m_power.need();
        return {};
    }
    const Power& m_power;
};

struct FailingClipboard final : Clipboard {
    explicit FailingClipboard(const Power& power) : m_power(power) {}

    void put(const ClipboardContent&) override { m_power.need(); }
    ClipboardContent get() const override
    {
        m_power.need();
        return {.text = "fire", .rtf = {}};
    }
    bool holdsText() const override { return true; }

private:
    const Power& m_power;
};

/// The program with a pair of files open and something selected. Without power also what the panes report fails, and so
/// does each step of the program that writes or selects text.
struct FailingProgram {
    TestProgram machine;
    Power power;
    FailingFiles files{machine.files, power};
    FailingDialogues dialogues{power};
    FailingClipboard clipboard{power};
    Platform platform{files,
                      dialogues,
                      machine.desktop,
                      machine.sound,
                      clipboard,
                      machine.processes,
                      machine.machine,
                      machine.printers,
                      machine.pictures,
                      TestMachine::programDirectory,
                      {}};
    Program program{platform};
    Tags tags;

    FailingProgram() : machine(false)
    {
        constexpr const char* joystickPath = "c:\\tm\\b50progs\\mig.b50";
        machine.files.addFile(joystickPath, "USE MDEF mig\r\nBTN S1 /U fire /D gear\r\nBTN S2 gear\r\n");
        machine.files.addFile("c:\\tm\\b50progs\\mig.m50", "Rem ****** Guns ******\r\nfire = f\r\ngear = g\r\n");
        EXPECT_TRUE(program.start());
        machine.processes.failure = RuntimeError(ErrorCode::FileNotFound, "No power");
        program.editor.OpeningPath = joystickPath;
        OpenPreviouslySavedFiles(program.editor);
        watch(program.editor.JoystickText);
        watch(program.editor.MacroText);
        program.shared.errors.reportWindow = [this] { tags.insert(program.shared.errors.ErrorProcedure); };
    }

    /// What is reported while the work runs without power.
    Tags tagsOf(const std::function<void(Program&)>& work)
    {
        tags.clear();
        power.off = true;
        try {
            work(program);
        } catch (const RuntimeError&) {
            tags.insert("(nothing)"); // left to the message loop
        }
        power.off = false;
        return tags;
    }

private:
    void watch(Pane& pane)
    {
        pane.userEdit(0, 0, "Rem fire\r\n");
        pane.setSelStart(4);
        pane.setSelLength(4);
        connections.push_back(pane.selectionChanged.connect([this] { power.need(); }));
        connections.push_back(pane.edited.connect([this](const Pane::Edit&) { power.need(); }));
    }
    std::vector<Connection> connections;
};

void collect(const std::vector<MenuEntry>& entries, std::map<std::string, const MenuItem*>& commands)
{
    for (const MenuEntry& entry : entries) {
        collect(entry.entries, commands);
        if (entry.item != nullptr && entry.item->handler) commands[entry.item->Name] = entry.item;
    }
}

/// Those of the menus that do something.
std::map<std::string, const MenuItem*> commandsOf(Program& program)
{
    Menus& menus = program.menus;
    std::map<std::string, const MenuItem*> commands;
    for (const auto& entries : {menuBar(menus), popUpMenu(menus, menus.mnuRHMouse), popUpMenu(menus, menus.mnuRHList)})
        collect(entries, commands);
    return commands;
}

/// By command: a line of its name and what it reports when nothing works.
std::map<std::string, std::string> expectedReports()
{
    std::ifstream file(TARVEX_SOURCE_DIRECTORY "/tests/data/error_tags.txt");
    std::map<std::string, std::string> lines;
    for (std::string line; std::getline(file, line);) lines[line.substr(0, line.find(':'))] = line;
    return lines;
}

/// The same of a command as it is; "(nothing)" where the failure leaves it.
std::string reportOf(const std::string& command)
{
    FailingProgram fresh;
    std::string line = command + ':';
    for (const std::string& tag : fresh.tagsOf([&](Program& program) { commandsOf(program).at(command)->Click(); }))
        line += ' ' + std::regex_replace(tag, std::regex(" "), "_");
    return line;
}

TEST(ErrorTags, OfEachCommandAreThoseOfItsProcedures)
{
    const std::map<std::string, std::string> expected = expectedReports();
    EXPECT_GE(expected.size(), 40U) << "the table was read";
    for (const auto& [command, line] : expected) EXPECT_EQ(reportOf(command), line);
}

TEST(ErrorTags, CommandsThatAreNotInTheTableReportNothing)
{
    const std::map<std::string, std::string> reporting = expectedReports();
    FailingProgram program;
    for (const auto& [command, item] : commandsOf(program.program)) {
        if (reporting.contains(command)) continue;
        EXPECT_EQ(reportOf(command), command + ':');
    }
}

// ---- in the sources -------------------------------------------------------------------------------------------------

std::string contentsOf(const std::filesystem::path& path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// The tags that stand where a procedure's steps begin.
std::multiset<std::string> tagsOfSources()
{
    const std::regex steps(R"re(Steps \w+\([^;"]*errors, *"([^"]*)")re");
    std::multiset<std::string> tags;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(TARVEX_SOURCE_DIRECTORY "/src")) {
        if (entry.path().extension() != ".cpp") continue;
        const std::string source = contentsOf(entry.path());
        for (std::sregex_iterator found(source.begin(), source.end(), steps), end; found != end; ++found)
            tags.insert((*found)[1]);
    }
    return tags;
}

TEST(ErrorTags, InTheSourcesNameAUnitAndAProcedureExceptForAFew)
{
    const Tags procedureAlone{
        "ColourTemplateText",
        "F22MenusUpdate",
        "UpdateSavedIcon",
        "mnuFileSaveBoth_Click",
        "mnuFileSave_Click",
        "mnuInsertWithColour_Click",
        "mnuPreferencesProtectMacroFile_Click",
        "mnuRemoveColourSelectedText",
    };
    const std::regex unitAndProcedure("(ED_|[A-Z]{3,} )[A-Za-z0-9_]+");
    const auto tags = tagsOfSources();
    EXPECT_GE(tags.size(), 100U) << "the sources were read";
    for (const std::string& tag : tags)
        EXPECT_TRUE(std::regex_match(tag, unitAndProcedure) || procedureAlone.contains(tag)) << tag;
    for (const std::string& tag : procedureAlone) EXPECT_TRUE(tags.contains(tag)) << tag;
}

} // namespace
} // namespace tarvex
