#include "generators/generators.h"

#include "generators/comment_texts.h"
#include "language/commands/coloured_insertion.h"
#include "platform/windows1252.h"
#include "shell/handler.h"

namespace tarvex {

namespace {

void writeHeading(Editor& editor, const std::string& heading)
{
    const Settings& settings = editor.shared.settings;
    const Colour colour = settings.InsertWithColour == 1 ? settings.RemStatements : editor.shared.DefaultTextColour;
    const std::string rule = headingRule(heading);
    for (const std::string& line : {rule, "Rem " + heading, rule}) {
        InsertColouredStringNoSpace(editor, line, colour);
        InsertCarriageReturn(editor);
    }
}

void writeRemStatement(Editor& editor, const std::string& words)
{
    const Settings& settings = editor.shared.settings;
    editor.insertion.InsertText = "Rem " + words;
    editor.insertion.InsertColour = settings.RemStatements;
    if (settings.InsertWithColour == 1) {
        AddSpaceToColouredText(editor);
        InsertColouredStringNoSpace(editor, editor.insertion.InsertText, editor.insertion.InsertColour);
    } else {
        InsertBlackText(editor);
    }
    if (settings.AddCRtoREM == 1) InsertCarriageReturn(editor);
}

/// The user's answer to the dialogue, as bytes of a pane; empty after a cancel.
std::string askFor(Editor& editor, const char* form)
{
    editor.shared.HeadingText.clear();
    editor.platform.dialogues.showModal(form);
    return windows1252FromUtf8(editor.shared.HeadingText);
}

} // namespace

void wireGenerators(Generators& generators)
{
    Menus& menus = generators.editor.menus;
    menus.mnuInsertTitle.handler = on(generators, mnuInsertTitle_Click);
    menus.mnuInsertHeading.handler = on(generators, mnuInsertHeading_Click);
    menus.mnuInsertRemStatement.handler = on(generators, mnuInsertRemStatement_Click);
    ToolWindows& windows = generators.editor.mum.toolWindows;
    windows.add({.name = "Title", .form = &generators.title.Form});
    windows.add({.name = "Heading", .form = &generators.heading.Form});
    windows.add({.name = "SingleTextForm", .form = &generators.rem.Form});
}

void mnuInsertTitle_Click(Generators& generators)
{
    const Steps step;
    step([&] { generators.editor.platform.dialogues.showModal("Title"); });
}

void mnuInsertHeading_Click(Generators& generators)
{
    const Steps step;
    Editor& editor = generators.editor;
    step([&] {
        const std::string heading = askFor(editor, "Heading");
        if (heading.empty()) return;
        BeginColInsert(editor);
        CheckAtLineBeginning(editor);
        writeHeading(editor, heading);
        EndColInsert(editor);
    });
}

void mnuInsertRemStatement_Click(Generators& generators)
{
    const Steps step;
    Editor& editor = generators.editor;
    step([&] {
        const std::string words = askFor(editor, "SingleTextForm");
        if (words.empty()) return;
        BeginColInsert(editor);
        writeRemStatement(editor, words);
        EndColInsert(editor);
    });
}

} // namespace tarvex
