#include "wizards/macro_maker.h"

#include "generators/comment_texts.h"
#include "generators/heading.h"
#include "language/base_format.h"
#include "language/commands/coloured_insertion.h"
#include "language/commands/text_transfer.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::size_t nameBox = 0;
constexpr std::size_t keysBox = 1;
constexpr std::size_t insertButton = 4;

constexpr std::string_view blanksBeforeHeading = "          ";

void selectMacroTab(Editor& editor)
{
    if (editor.TabStrip1.SelectedItem != editor.macro.tab) editor.TabStrip1.Select(editor.macro.tab);
}

void clearBoxes(MacroMaker& maker)
{
    for (TextBox& box : maker.Text1) box.Text = "";
    maker.Text1[nameBox].SetFocus();
}

void setPlainLook(Pane& pane, const Settings& settings)
{
    pane.setSelColor(0);
    pane.setSelFontName(settings.TextFontName);
    pane.setSelBold(settings.TextFontBold == 1);
    pane.setSelFontSize(settings.TextFontSize);
    pane.setSelIndent(paragraphIndent);
}

/// Number of lines by the line of the last character; a line end at the end begins no further one.
std::int64_t lineCount(const Pane& pane)
{
    return pane.GetLineFromChar(static_cast<std::int64_t>(pane.TextLength()) - 1) + 1;
}

void insertMacro(MacroMaker& maker)
{
    Editor& editor = maker.editor;
    selectMacroTab(editor);
    Pane& pane = editor.MacroText;
    const std::int64_t lines = lineCount(pane);
    BeginColInsert(editor);
    if (pane.Locked) return; // the boxes keep their texts
    setPlainLook(pane, editor.shared.settings);
    editor.TempRichTextBox.setText(windows1252FromUtf8(maker.Label1.Caption.get()));
    MacroTransferText(editor);
    editor.macro.Caret = pane.SelStart();
    if (pane.GetLineFromChar(pane.SelStart()) + 1 >= lines) InsertCarriageReturn(editor);
    EndColInsert(editor);
    clearBoxes(maker);
}

void insertLine(Editor& editor, const std::string& line)
{
    const Settings& settings = editor.shared.settings;
    if (settings.InsertWithColour == 1) {
        InsertColouredStringNoSpace(editor, line, settings.RemStatements);
    } else {
        editor.insertion.InsertText = line;
        InsertBlackText(editor);
    }
    InsertCarriageReturn(editor);
}

/// Runs a command that works on the pane of the selected tab.
void onMacroPane(MacroMaker& maker, const MenuItem& command)
{
    selectMacroTab(maker.editor);
    command.Click();
}

struct Action {
    const char* caption;
    void (*run)(MacroMaker& maker);
};

/// By the indexes of Command1.
constexpr Action actions[] = {
    {"New macro file please",
     [](MacroMaker& m) {
         m.editor.menus.mnuFileNewMacro.Click();
         onMacroPane(m, m.editor.menus.mnuFileSave);
     }},
    {"Insert a title please", [](MacroMaker& m) { onMacroPane(m, m.editor.menus.mnuInsertTitle); }},
    {"Show me Safein again - I need his advice !", [](MacroMaker& m) { m.editor.menus.mnuInsertRAW.Click(); }},
    {"Insert heading", [](MacroMaker& m) { onMacroPane(m, m.editor.menus.mnuInsertHeading); }},
    {"Insert into macro file", insertMacro},
    {"Clear text", clearBoxes},
    {"", [](MacroMaker& m) { m.editor.mum.toolWindows.show("RAWform"); }},
    {"Save the macro file I've just created", [](MacroMaker& m) { onMacroPane(m, m.editor.menus.mnuFileSave); }},
    {"Transfer these macros I created into the Editor's macro list",
     [](MacroMaker& m) { m.editor.menus.mnuEditUpdateMacros.Click(); }},
};

/// Blanks become underscores, all in one change: one change for each would nest as deep as there are blanks.
void replaceBlanks(TextBox& box)
{
    std::string text = box.Text;
    std::ranges::replace(text, ' ', '_');
    box.Text = text;
}

} // namespace

MacroMaker::MacroMaker(Editor& theEditor) : editor(theEditor)
{
    for (std::size_t index = 0; index < Command1.size(); ++index) {
        Command1.at(index).Caption = actions[index].caption;
        Command1.at(index).handler = [this, index] { Command1_Click(*this, index); };
    }
    for (std::size_t index = 0; index < Text1.size(); ++index)
        m_connections.push_back(Text1.at(index).Text.changed.connect([this, index] { Text1_Change(*this, index); }));
}

void loadMacroMaker(MacroMaker& maker)
{
    for (TextBox& box : maker.Text1) box.Text = "";
    maker.Command1[insertButton].Enabled = false;
    maker.Label1.Caption = "Macro will appear here";
    AddHeadingsToList(maker.List1.Items);
    maker.List1.ListIndex = -1;
}

void Command1_Click(MacroMaker& maker, std::size_t Index)
{
    const Steps step;
    step([&] { actions[Index].run(maker); });
}

void Text1_Change(MacroMaker& maker, std::size_t Index)
{
    if (Index == nameBox) replaceBlanks(maker.Text1[nameBox]);
    const std::string name = maker.Text1[nameBox].Text;
    const std::string keys = maker.Text1[keysBox].Text;
    maker.Command1[insertButton].Enabled = !name.empty() && !keys.empty();
    maker.Label1.Caption = name + " = " + keys;
}

void List1_DblClick(MacroMaker& maker)
{
    const Steps step;
    Editor& editor = maker.editor;
    step([&] {
        const int picked = maker.List1.ListIndex;
        if (picked < 0) return;
        editor.shared.HeadingText = maker.List1.Items.get().at(static_cast<std::size_t>(picked));
        const std::string heading = windows1252FromUtf8(editor.shared.HeadingText);
        const std::string rule = headingRule(heading);
        selectMacroTab(editor);
        BeginColInsert(editor);
        InsertCarriageReturn(editor);
        insertLine(editor, rule);
        insertLine(editor, "Rem " + std::string(blanksBeforeHeading) + heading);
        insertLine(editor, rule);
        InsertCarriageReturn(editor);
        EndColInsert(editor);
    });
}

} // namespace tarvex
