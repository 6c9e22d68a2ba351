#include "composer/insertion.h"

#include "documents/window/tool_keys.h"
#include "language/commands/coloured_insertion.h"
#include "language/commands/side_caret.h"
#include "platform/windows1252.h"

namespace tarvex {

namespace {

bool startsLine(std::string_view text) { return text.starts_with("BTN") || text.starts_with("RKR"); }

void writeColoured(Editor& editor, const StatementText& statement)
{
    InsertionRecord& insertion = editor.insertion;
    insertion.InsertText = windows1252FromUtf8(statement.keyword);
    insertion.InsertColour = editor.shared.settings.MiscellaneousColour;
    AddSpaceToColouredText(editor);
    InsertColouredString(editor, insertion.InsertText, insertion.InsertColour);
    if (statement.values.empty()) return;
    insertion.InsertText = windows1252FromUtf8(statement.values);
    insertion.InsertColour = editor.shared.DefaultTextColour;
    InsertColouredStringNoSpace(editor, insertion.InsertText, insertion.InsertColour);
}

void writePlain(Editor& editor, const std::string& text)
{
    editor.insertion.InsertText = windows1252FromUtf8(text);
    InsertBlackText(editor);
}

} // namespace

void insertText(InsertOptions& window, const std::string& text, Colour colour, LineEnd lineEnd)
{
    Editor& editor = window.editor;
    InsertionRecord& insertion = editor.insertion;
    leaveShownUse(window);
    BeginColInsert(editor);
    if (startsLine(text)) CheckAtLineBeginning(editor);
    if (editor.shared.settings.InsertWithColour == 1) {
        insertion.InsertText = windows1252FromUtf8(text);
        insertion.InsertColour = colour;
        AddSpaceToColouredText(editor);
        InsertColouredString(editor, insertion.InsertText, insertion.InsertColour);
    } else {
        writePlain(editor, text);
    }
    if (lineEnd == LineEnd::Behind) InsertCarriageReturn(editor);
    EndColInsert(editor);
    returnFocus(window);
}

void insertStatement(InsertOptions& window, const StatementText& statement)
{
    Editor& editor = window.editor;
    const Settings& settings = editor.shared.settings;
    leaveShownUse(window);
    BeginColInsert(editor);
    CheckAtLineBeginning(editor);
    if (settings.InsertWithColour == 1)
        writeColoured(editor, statement);
    else
        writePlain(editor, statement.keyword + statement.values);
    if (settings.CompTabsAddCr == 1) InsertCarriageReturn(editor);
    EndColInsert(editor);
    returnFocus(window);
}

void insertLineEnd(InsertOptions& window)
{
    leaveShownUse(window);
    BeginColInsert(window.editor);
    InsertCarriageReturn(window.editor);
    EndColInsert(window.editor);
    returnFocus(window);
}

void leaveShownUse(InsertOptions& window)
{
    MacroTab& tab = window.macros;
    Side& side = window.editor.joystick;
    if (tab.BeforeClick && MacroTab::Selection{side.pane.SelStart(), side.pane.SelLength()} == tab.AfterClick) {
        putCaret(side, tab.BeforeClick->start);
        side.pane.setSelLength(tab.BeforeClick->length);
    }
    tab.BeforeClick.reset();
}

void returnFocus(InsertOptions& window)
{
    if (window.editor.shared.settings.COMPreturnFocus == 1) focusEditor(window.editor);
}

} // namespace tarvex
