#include "program/effects/program_state.h"

#include "language/base_format.h"
#include "shell/settings_table.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace tarvex {

namespace {

std::string shown(const std::string& text) { return inOneLine(text); }
std::string shown(bool value) { return value ? "yes" : "no"; }
std::string shown(const Placement& place)
{
    std::ostringstream text;
    text << place.Left << ' ' << place.Top << ' ' << place.Width << ' ' << place.Height;
    return text.str();
}
std::string shown(const CheckListBox::Item& item) { return (item.Selected ? "[x]" : "[ ]") + item.Text; }
std::string shown(const SettingText& text) { return inOneLine(text.whole()); }
template <typename T> std::string shown(const std::vector<T>& values)
{
    std::string text;
    for (const T& value : values) text += (text.empty() ? "" : ", ") + shown(value);
    return text;
}
template <typename Number>
requires std::is_arithmetic_v<Number> std::string shown(Number value)
{
    std::ostringstream text;
    text << value;
    return text.str();
}
template <typename Enumeration>
requires std::is_enum_v<Enumeration> std::string shown(Enumeration value)
{
    return std::to_string(static_cast<int>(value));
}

template <typename T> std::string shown(const Property<T>& property) { return shown(property.get()); }

/// The colour, and what isn't as in the pane's own font.
std::string shown(const CharacterFormat& format, const PaneFont& font)
{
    std::ostringstream text;
    text << std::hex << format.colour << std::dec;
    if (format.fontName != font.name || format.fontSize != font.size || format.bold != font.bold)
        text << ' ' << format.fontName << ' ' << format.fontSize << (format.bold ? " bold" : "");
    text << (format.italic ? " italic" : "") << (format.underline ? " underlined" : "");
    if (format.indent != paragraphIndent) text << " indent " << format.indent;
    return text.str();
}

/// A value too long for a list by its beginning, its length and a number that changes with it.
std::string shortened(const std::string& value)
{
    constexpr std::size_t longest = 600;
    if (value.size() <= longest) return value;
    std::uint32_t sum = 2166136261U;
    for (const char c : value) sum = (sum ^ static_cast<unsigned char>(c)) * 16777619U;
    return value.substr(0, 60) + "... " + std::to_string(value.size()) + " characters, " + std::to_string(sum);
}

/// Puts the things of one program into its state.
class Collector {
public:
    ProgramState state;

    template <typename T> void put(const std::string& name, const T& value) { state[name] = shown(value); }

    void pane(const std::string& name, const Pane& pane)
    {
        put(name + ".Text", pane.Text());
        std::string look;
        for (const FormatRun& run : pane.runs())
            look += (look.empty() ? "" : "; ") + std::to_string(run.length) + ' ' +
                    shown((*pane.formats())[run.format], pane.Font());
        state[name + ".Look"] = look;
        put(name + ".SelStart", pane.SelStart());
        put(name + ".SelLength", pane.SelLength());
        state[name + ".SelFormat"] = shown(pane.SelFormat(), pane.Font());
        put(name + ".Font", pane.Font().name + ' ' + shown(pane.Font().size) + (pane.Font().bold ? " bold" : ""));
        put(name + ".BackColor", pane.BackColor);
        put(name + ".Locked", pane.Locked);
        put(name + ".Visible", pane.Visible);
        put(name + ".Place", pane.Place);
    }

    void side(const std::string& name, const Side& side)
    {
        pane(name, side.pane);
        put(name + ".FilePath", side.FilePath);
        put(name + ".FileName", side.FileName);
        put(name + ".Changed", side.Changed);
        put(name + ".Caret", side.Caret);
        put(name + ".SelectionLength", side.SelectionLength);
        put(name + ".TakeNewLevel", side.TakeNewLevel);
        put(name + ".Undo.Levels", side.Undo.Levels.size());
        put(name + ".Undo.Position", side.Undo.Position);
        put(name + ".Undo.Texts", undoTexts(side.Undo));
        put(name + ".Undo.LastKeyWasSpace", side.Undo.LastKeyWasSpace);
        put(name + ".Undo.LastKeyWasReturn", side.Undo.LastKeyWasReturn);
        put(name + ".ErrorLine", side.ErrorLine.line().value_or(-1));
        put(name + ".Matches", side.Matches.positions());
        put(name + ".ShowsEdited", side.ShowsEdited);
    }

    void form(const std::string& name, const Form& form)
    {
        put(name + ".Caption", form.Caption);
        put(name + ".Visible", form.Visible);
        put(name + ".TopMost", form.TopMost);
        put(name + ".State", form.State);
    }

    void timer(const std::string& name, const Timer& timer)
    {
        put(name + ".Enabled", timer.Enabled);
        put(name + ".Interval", timer.Interval);
    }

    template <typename Control> void button(const std::string& name, const Control& control)
    {
        put(name + ".Caption", control.Caption);
        put(name + ".Enabled", control.Enabled);
        put(name + ".ToolTipText", control.ToolTipText);
    }

    void item(const MenuItem& item)
    {
        put(item.Name + ".Caption", item.Caption);
        put(item.Name + ".Enabled", item.Enabled);
        put(item.Name + ".Checked", item.Checked);
        put(item.Name + ".Visible", item.Visible);
    }

    void menu(const std::vector<MenuEntry>& entries)
    {
        for (const MenuEntry& entry : entries) {
            if (entry.item != nullptr) item(*entry.item);
            if (entry.array != nullptr) {
                for (int i = 0; i <= entry.array->UBound(); ++i) item((*entry.array)[i]);
            }
            menu(entry.entries);
        }
    }

    void settings(const Settings& settings)
    {
        for (const SettingRow& row : settingsTable()) {
            std::visit(
                [&](auto member) {
                    if constexpr (!std::is_same_v<decltype(member), std::monostate>)
                        put("setting " + std::string(row.key), settings.*member);
                },
                row.member);
        }
    }

    void files(const MemoryFiles& files, const std::string& folder)
    {
        for (const std::string& name : files.list(folder)) {
            const std::string path = folder + "\\" + name;
            if (files.directoryExists(path)) {
                put("folder " + path, true);
                this->files(files, path);
                continue;
            }
            const bool isJournal = folder.ends_with("\\Recover"); // its format has tests of its own
            put("file " + path, isJournal ? std::string("(a journal)") : files.contents(path).value_or(""));
        }
    }

private:
    static std::string undoTexts(const UndoHistory& undo)
    {
        std::string texts;
        for (const UndoHistory::Level& level : undo.Levels)
            texts += std::to_string(level.Caret) + ' ' + shown(level.Text.text()) + " | ";
        return texts;
    }
};

void collectEditor(Collector& all, Editor& editor)
{
    all.side("joystick", editor.joystick);
    all.side("macro", editor.macro);
    all.put("TempRichTextBox.Text", editor.TempRichTextBox.Text());
    all.put("TempRichTextBox.Visible", editor.TempRichTextBox.Visible);
    all.put("CompareRTF.Text", editor.CompareRTF.Text());
    all.put("editor.Visible", editor.Visible);
    all.put("TabStrip1.SelectedItem", editor.TabStrip1.SelectedItem);
    for (int tab = 1; tab <= editor.TabStrip1.Count(); ++tab) {
        const std::string name = "TabStrip1.Tabs(" + std::to_string(tab) + ")";
        all.put(name + ".Caption", editor.TabStrip1.Tabs(tab).Caption);
        all.put(name + ".Image", editor.TabStrip1.Tabs(tab).Image);
    }
    all.put("TabStrip1.Place", editor.TabStrip1Place);
    FrameMacros& frame = editor.FrameMacros;
    all.put("FrameMacros.Visible", frame.Visible);
    all.put("FrameMacros.Place", frame.Place);
    all.put("FrameMacros.MousePointer", frame.MousePointer);
    all.put("Combo1.Items", frame.Combo1.Items);
    all.put("Combo1.Text", frame.Combo1.Text);
    all.put("Filter.Text", frame.Filter.Text);
    all.put("Filter.Visible", frame.FilterVisible);
    for (std::size_t i = 0; i < frame.List1.size(); ++i) {
        const std::string name = "List1(" + std::to_string(i) + ")";
        all.put(name + ".Items", frame.List1[i].Items);
        all.put(name + ".ListIndex", frame.List1[i].ListIndex);
        all.put(name + ".Visible", frame.List1[i].Visible);
    }
    for (std::size_t i = 0; i < frame.Command1.size(); ++i)
        all.button("Command1(" + std::to_string(i) + ")", frame.Command1[i]);
    all.timer("Timer1", editor.Timer1);
    all.timer("TimerBlinkLine", editor.TimerBlinkLine);
    all.timer("TimerColour", editor.TimerColour);
    all.timer("TimerJournal", editor.TimerJournal);
    all.put("Zoom", editor.Zoom);
    all.put("AutoSaveMinutes", editor.AutoSaveMinutes);
    all.put("BlinkStep", editor.BlinkStep);
    all.put("BlinkTab", editor.BlinkTab);
    all.put("HighlightLength", editor.HighlightLength);
    all.put("OpeningRemarks", editor.OpeningRemarks);
    all.put("ExitInProgress", editor.ExitInProgress);
    all.put("InsertText", editor.insertion.InsertText);
    all.put("InsertColour", editor.insertion.InsertColour);
    const MacroRecord& macros = editor.macros;
    all.put("MacroFileLines", macros.MacroFileLines);
    all.put("MacroHeadings", macros.MacroHeadings);
    all.put("NotAMacroLine", macros.NotAMacroLine);
    all.put("SelectedMacro", macros.SelectedMacro);
    all.put("HeadingShown", macros.HeadingShown);
    all.put("MacroListDirty", macros.MacroListDirty);
    all.put("ListClicked", macros.ListClicked);
}

void collectFrame(Collector& all, Mum& mum)
{
    all.form("mum", mum.form);
    for (int i = 1; i <= mum.StatusBar.Count(); ++i) {
        const std::string name = "Panels(" + std::to_string(i) + ")";
        all.put(name + ".Text", mum.StatusBar.Panels(i).Text);
        all.put(name + ".Picture", mum.StatusBar.Panels(i).Picture);
        all.put(name + ".ToolTipText", mum.StatusBar.Panels(i).ToolTipText);
        all.put(name + ".Enabled", mum.StatusBar.Panels(i).Enabled);
    }
    all.put("ProgressBar1.Min", mum.ProgressBar1.Min);
    all.put("ProgressBar1.Max", mum.ProgressBar1.Max);
    all.put("ProgressBar1.Value", mum.ProgressBar1.Value);
    all.put("ProgressBar1.Visible", mum.ProgressBar1.Visible);
    all.put("Picture1", mum.Picture1);
    all.put("mum.MousePointer", mum.MousePointer);
    all.put("Toolbar1.Visible", mum.Toolbar1.Visible);
    for (int i = 1; i <= mum.Toolbar1.Count(); ++i) {
        const std::string name = "Buttons(" + std::to_string(i) + ")";
        all.button(name, mum.Toolbar1.Buttons(i));
        all.put(name + ".Visible", mum.Toolbar1.Buttons(i).Visible);
    }
}

void collectFindWindow(Collector& all, Program& program)
{
    FindAndReplace& find = program.findAndReplace;
    all.form("FindAndReplace", find.form);
    all.put("SSTab1.SelectedItem", find.SSTab1.SelectedItem);
    all.put("ComboTextFind.Text", find.ComboTextFind.Text);
    all.put("ComboTextReplaceFind.Text", find.ComboTextReplaceFind.Text);
    all.put("OptionJoystickF", find.OptionJoystickF.Value);
    all.put("OptionJoystickR", find.OptionJoystickR.Value);
    all.put("Command1.Caption", find.Command1.Caption);
    all.put("Command3.Caption", find.Command3.Caption);
    all.put("Command5.Enabled", find.Command5.Enabled);
    all.put("FindBar.Visible", program.findBar.Visible);
    all.put("FindBar.Text", program.findBar.Text.Text);
    all.put("FindBar.Count", program.findBar.Count.Caption);
}

void collectStrips(Collector& all, Program& program)
{
    for (const OutsideNotice* notice : {&program.outsideNotices.joystick, &program.outsideNotices.macro}) {
        const std::string name = "strip of the " + std::string(notice->side.kind) + " file";
        all.put(name + ".Visible", notice->Visible);
        all.put(name + ".Text", notice->Text.Caption);
        all.put(name + ".Reload.Enabled", notice->Reload.Enabled);
        all.put(name + ".Reload.Visible", notice->Reload.Visible);
    }
    const Differences& differences = program.differences;
    all.form("Differences", differences.Form);
    all.put("Differences.Count", differences.Count.Caption);
}

void collectShared(Collector& all, const Shared& shared)
{
    all.settings(shared.settings);
    all.put("IsLoading", shared.IsLoading);
    all.put("HardwareChangedMark", shared.HardwareChangedMark);
    all.put("PreferencesPage", shared.PreferencesPage);
    all.put("FontChanged", shared.FontChanged);
    all.put("FindWindowOpen", shared.FindWindowOpen);
    all.put("DefaultTextColour", shared.DefaultTextColour);
    all.put("HeadingText", shared.HeadingText);
    all.put("CommandLineFile", shared.CommandLineFile);
}

/// Lines that only one of two texts has, for a file that is long.
void addLineDifferences(const std::string& name, const std::string& before, const std::string& after,
                        std::vector<std::string>& lines)
{
    const auto linesOf = [](const std::string& text) {
        std::multiset<std::string> found;
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = std::min(text.find("\\n", at), text.size());
            found.insert(text.substr(at, end - at));
            at = end + 2;
        }
        return found;
    };
    const auto old = linesOf(before);
    const auto fresh = linesOf(after);
    std::vector<std::string> gone;
    std::vector<std::string> come;
    std::ranges::set_difference(old, fresh, std::back_inserter(gone));
    std::ranges::set_difference(fresh, old, std::back_inserter(come));
    if (gone.empty() && come.empty()) lines.push_back(name + ": other order");
    for (const std::string& line : gone) lines.push_back(name + " - " + shortened(line));
    for (const std::string& line : come) lines.push_back(name + " + " + shortened(line));
}

} // namespace

std::string inOneLine(const std::string& text)
{
    std::string line;
    for (const char c : text) {
        if (c == '\r')
            line += "\\r";
        else if (c == '\n')
            line += "\\n";
        else if (static_cast<unsigned char>(c) < 0x20 || static_cast<unsigned char>(c) > 0x7E)
            line += '?';
        else
            line += c;
    }
    return line;
}

ProgramState stateOf(TestProgram& t)
{
    Collector all;
    Program& program = t.program();
    collectEditor(all, program.editor);
    collectFrame(all, program.mum);
    collectFindWindow(all, program);
    collectStrips(all, program);
    collectShared(all, program.shared);
    all.menu(menuBar(program.menus));
    all.menu(popUpMenu(program.menus, program.menus.mnuRHMouse));
    all.menu(popUpMenu(program.menus, program.menus.mnuRHList));
    for (const auto& [name, form] : {std::pair<const char*, Form*>{"RAWform", &program.safein.form},
                                     {"InsertOptions", &program.composer.form},
                                     {"TemplateForm", &program.templateEditor.form},
                                     {"ViewImage", &program.imageViewer.form},
                                     {"ColourSelector", &program.editor.ColourSelector.form}})
        all.form(name, *form);
    all.files(t.files, "c:");
    all.put("clipboard.text", t.clipboard.content.text);
    all.put("clipboard.rtf", t.clipboard.content.rtf);
    all.put("sounds", t.sound.played);
    all.put("quits", t.desktop.quits);
    all.put("eventsHandled", t.desktop.eventsHandled);
    all.put("hourglass", t.desktop.hourglass);
    std::vector<std::string> started;
    for (const FakeProcesses::Start& start : t.processes.starts)
        started.push_back(start.commandLine + " in " + start.directory + (start.waitedFor ? " (waited for)" : ""));
    all.put("processes", started);
    return all.state;
}

std::vector<std::string> differencesOf(const ProgramState& before, const ProgramState& after)
{
    std::vector<std::string> lines;
    for (const auto& [name, value] : before) {
        const auto now = after.find(name);
        if (now == after.end()) {
            lines.push_back(name + ": gone");
        } else if (now->second != value) {
            if (name.starts_with("file ") && !value.empty())
                addLineDifferences(name, value, now->second, lines);
            else
                lines.push_back(name + ": " + shortened(now->second));
        }
    }
    for (const auto& [name, value] : after) {
        if (!before.contains(name)) lines.push_back(name + " (new): " + shortened(value));
    }
    return lines;
}

Happenings::Happenings(TestProgram& t)
{
    Program& program = t.program();
    Editor& editor = program.editor;
    note(editor.JoystickText.focusWanted, "joystick pane: keyboard");
    note(editor.MacroText.focusWanted, "macro pane: keyboard");
    note(editor.JoystickText.refreshWanted, "joystick pane: repaint");
    note(editor.MacroText.refreshWanted, "macro pane: repaint");
    note(editor.JoystickText.fontChanged, "joystick pane: font");
    note(editor.FrameMacros.List1Changed, "macro lists: came or went");
    note(editor.FrameMacros.Filter.focusWanted, "filter: keyboard");
    note(editor.FrameMacros.Filter.selectAllWanted, "filter: all selected");
    note(program.findAndReplace.ComboTextFind.focusWanted, "find text: keyboard");
    note(program.findAndReplace.ComboTextReplaceFind.focusWanted, "replace text: keyboard");
    note(program.findAndReplace.LineToFind.focusWanted, "line: keyboard");
    note(program.findBar.Text.focusWanted, "find bar: keyboard");
    note(program.mum.Toolbar1.refreshWanted, "toolbar: commands anew");
    m_connections.push_back(editor.Jumped.connect(
        [this](const Side& side) { lines.push_back("jump in the " + std::string(side.kind) + " file"); }));
    m_connections.push_back(program.mum.StatusBar.Panels(panel::progress).Text.changed.connect([this, &program] {
        lines.push_back("status: " + inOneLine(program.mum.StatusBar.Panels(panel::progress).Text));
    }));
    ProgressBar& bar = program.mum.ProgressBar1;
    m_connections.push_back(bar.Visible.changed.connect(
        [this, &bar] { lines.push_back(bar.Visible ? "progress bar: shown" : "progress bar: hidden"); }));
    program.shared.errors.reportWindow = [this, &program] {
        lines.push_back("error: " + program.shared.errors.ErrorProcedure + ", " +
                        program.shared.errors.ErrorDescription);
    };
}

void Happenings::note(Signal<>& signal, const std::string& what)
{
    m_connections.push_back(signal.connect([this, what] { lines.push_back(what); }));
}

} // namespace tarvex
