#include "generators/title.h"

#include "generators/comment_texts.h"
#include "language/commands/coloured_insertion.h"
#include "platform/windows1252.h"
#include "shell/hardware/hardware_profile.h"

namespace tarvex {

namespace {

/// Writes lines of the block at the caret, in one colour.
class TitleLines {
public:
    TitleLines(Editor& editor, Colour colour) : m_editor(editor), m_colour(colour) {}

    void text(std::string_view line) const { InsertColouredStringNoSpace(m_editor, line, m_colour); }
    void lineEnd() const { InsertCarriageReturn(m_editor); }
    void line(std::string_view whole) const
    {
        text(whole);
        lineEnd();
    }
    /// A centred line, UTF-8, and the empty line below it.
    void entry(const std::string& words) const
    {
        line(centredTitleLine(windows1252FromUtf8(words)));
        line(titleEmptyLine);
    }

private:
    Editor& m_editor;
    Colour m_colour;
};

/// The lines of a comment bring their line ends along, all but the last one.
void writeComment(Title& window, const TitleLines& lines)
{
    lines.line(titleEmptyLine);
    Pane& comment = window.RichTextBox1;
    const std::int64_t last = comment.GetLineFromChar(static_cast<std::int64_t>(comment.TextLength()) - 1);
    for (std::int64_t index = 0; index <= last; ++index) {
        std::int64_t length = 0;
        lines.text(centredTitleLine(GetCommentLine(window, index, length)));
    }
    lines.lineEnd();
    lines.line(titleEmptyLine);
}

void writeTitle(Title& window)
{
    Editor& editor = window.editor;
    const Settings& settings = editor.shared.settings;
    const TitleLines lines(editor,
                           settings.InsertWithColour == 1 ? settings.RemStatements : editor.shared.DefaultTextColour);
    lines.line(titleBorder);
    lines.line(titleEmptyLine);
    lines.entry(window.Text1.Text.get() + " for " + window.Text2.Text.get());
    lines.entry("by " + window.Text3.Text.get());
    lines.entry("last modified: " + window.Text4.Text.get());
    lines.entry("For: " + window.Text5.Text.get() + " combination");
    if (window.RichTextBox1.TextLength() > 0) writeComment(window, lines);
    lines.line(titleBorder);
    lines.lineEnd();
}

} // namespace

Title::Title(Editor& theEditor) : editor(theEditor)
{
    Form.Caption = "Insert a title";
    Command1.Caption = "OK";
    Command2.Caption = "Cancel";
    Command1.handler = [this] { Command1_Click(*this); };
    Command2.handler = [this] { Form.Visible = false; };
    m_shown = Form.Visible.changed.connect([this] {
        if (Form.Visible) Form_Activate(*this);
    });
}

void Form_Activate(Title& window)
{
    Editor& editor = window.editor;
    const Steps step(editor.shared.errors, "TITLE Form_Activate");
    step([&] { window.Text1.Text = editor.tabCaption(editor.selected()); });
    step([&] { GetHardwareNames(window); });
    step([&] {
        if (window.Text2.Text.get().empty()) window.Text2.Text = "eg. F22 ADF";
    });
    step([&] { GetPersonsName(window); });
    step([&] { window.Text4.Text = editor.platform.desktop.longDate(); });
    step([&] {
        if (window.Text5.Text.get().empty()) window.Text5.Text = "eg. F22 Pro and TQS";
    });
}

void Command1_Click(Title& window)
{
    Editor& editor = window.editor;
    const Steps step(editor.shared.errors, "TITLE Command1_Click");
    SaveThePersonsName(window);
    step([&] { BeginColInsert(editor); });
    step([&] {
        Side& side = editor.selected();
        side.Caret = 0;
        side.pane.setSelStart(0);
    });
    step([&] { writeTitle(window); });
    step([&] { EndColInsert(editor); });
    window.Form.Visible = false;
}

void GetHardwareNames(Title& window)
{
    const Steps step(window.editor.shared.errors, "TITLE GetHardwareNames");
    step([&] { window.Text5.Text = GetHardwareNames(window.editor.shared.settings); });
}

std::string GetCommentLine(Title& window, std::int64_t lineIndex, std::int64_t& lineLength)
{
    std::string line;
    const Steps step(window.editor.shared.errors, "TITLE GetCommentLine");
    step([&] {
        Pane& comment = window.RichTextBox1;
        const auto end = static_cast<std::int64_t>(comment.TextLength());
        const auto startOf = [&](std::int64_t index) {
            return index < comment.lineCount() ? comment.lineStart(index) : end;
        };
        const std::int64_t start = startOf(lineIndex);
        lineLength = startOf(lineIndex + 1) - start;
        comment.setSelStart(start);
        comment.setSelLength(lineLength);
        line = comment.SelText();
    });
    return line;
}

void GetPersonsName(Title& window)
{
    const Steps step;
    step([&] { window.Text3.Text = window.editor.shared.settings.ValidUser; });
}

void SaveThePersonsName(Title& window)
{
    const Steps step;
    step([&] {
        Shared& shared = window.editor.shared;
        shared.settings.ValidUser = window.Text3.Text.get();
        shared.store.write(Access::SaveThePersonsName, "TITLE SaveThePersonsName");
    });
}

} // namespace tarvex
