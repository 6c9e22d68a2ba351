#include "safein/statement.h"

#include "documents/window/tool_keys.h"
#include "language/commands/coloured_insertion.h"
#include "language/commands/text_transfer.h"
#include "platform/windows1252.h"
#include "safein/key_pad.h"

namespace tarvex {

namespace {

constexpr const char* slashCaptions[RAWform::slashCount] = {"/N", "/A", "/H", "/T", "/O", "/I", "/R", "/P"};

/// The fields that CommandPasteJ inserts and Command10 appends, in the order of their indexes.
constexpr TextBox RAWform::*fields[RAWform::pasteCount] = {&RAWform::SyntaxText, &RAWform::RMakeText,
                                                           &RAWform::RBreakText, &RAWform::RCombinedText,
                                                           &RAWform::TotalCombinedText};

const std::string& textOf(RAWform& window, int index) { return (window.*fields[index]).Text.get(); }

void append(RAWform& window, const std::string& piece, std::int16_t kind)
{
    window.TotalCombinedText.Text = window.TotalCombinedText.Text.get() + piece;
    window.LastAppend = kind;
}

std::string inBrackets(const std::string& codes) { return "RAW (" + codes + ")"; }

/// Pieces that are added one after the other become one block. Only the last character and LastAppend decide.
void appendRaw(RAWform& window, const std::string& codes)
{
    std::string statement = window.TotalCombinedText.Text;
    if (statement.empty()) {
        statement = inBrackets(codes);
    } else if (statement.back() == ')' && window.LastAppend == lastAppend::rawBlock) {
        statement.pop_back();
        statement += ' ' + codes + ')';
    } else {
        statement += ' ' + inBrackets(codes);
    }
    window.TotalCombinedText.Text = statement;
    window.LastAppend = lastAppend::rawBlock;
}

void insert(RAWform& window, const std::string& text)
{
    const Steps step;
    Editor& editor = window.editor;
    step([&] { BeginColInsert(editor); });
    step([&] { SafeinTransferText(editor, windows1252FromUtf8(text)); });
    if (editor.shared.settings.AddSafeinCR == 1) step([&] { InsertCarriageReturn(editor); });
    step([&] { EndColInsert(editor); });
}

/// The make and the break are usually inserted one after the other, so they stay.
bool staysAfterInsertion(int index) { return index == 1 || index == 2; }

bool isRawField(int index) { return index >= 1 && index <= 3; }

} // namespace

void wireStatement(RAWform& window)
{
    window.Command5.handler = [&window] { Command5_Click(window); };
    for (int i = 0; i < static_cast<int>(window.Command10.size()); ++i)
        window.Command10[static_cast<std::size_t>(i)].handler = [&window, i] { Command10_Click(window, i); };
    for (int i = 0; i < static_cast<int>(RAWform::slashCount); ++i) {
        Button& button = window.Command3[static_cast<std::size_t>(i)];
        button.Caption = slashCaptions[i];
        button.handler = [&window, i] { Command3_Click(window, i); };
    }
    window.Command6.Caption = "DLY()";
    window.Command6.handler = [&window] { Command6_Click(window); };
    window.mnuDelayValue.setHandler([&window](int index) { mnuDelayValue_Click(window, index); });
    window.Command7.Caption = "Rem";
    window.Command7.handler = [&window] { Command7_Click(window); };
    window.Command4.handler = [&window] { Command4_Click(window); };
    for (int i = 0; i < static_cast<int>(RAWform::pasteCount); ++i) {
        Button& button = window.CommandPasteJ[static_cast<std::size_t>(i)];
        button.Caption = "Insert";
        button.handler = [&window, i] { CommandPasteJ_Click(window, i); };
    }
}

void Command5_Click(RAWform& window)
{
    const std::string syntax = window.SyntaxText.Text;
    if (syntax.empty()) return;
    const bool isFirst = window.TotalCombinedText.Text.get().empty();
    append(window, isFirst ? syntax : " " + syntax, lastAppend::other);
}

void Command10_Click(RAWform& window, int Index)
{
    const std::string codes = textOf(window, Index + 1);
    if (!codes.empty()) appendRaw(window, codes);
}

void Command3_Click(RAWform& window, int Index)
{
    append(window, " " + window.Command3.at(static_cast<std::size_t>(Index)).Caption.get(), lastAppend::other);
}

void Command6_Click(RAWform& window) { window.editor.platform.dialogues.popUp(window.mnuDelay); }

void mnuDelayValue_Click(RAWform& window, int Index)
{
    append(window, " DLY(" + window.mnuDelayValue[Index].Caption.get() + ")", lastAppend::other);
}

void Command7_Click(RAWform& window)
{
    std::string& remark = window.editor.shared.HeadingText;
    remark.clear();
    window.editor.platform.dialogues.showModal("SingleTextForm");
    window.form.Show(); // the box belongs to the frame, which got the keyboard when it closed
    if (!remark.empty()) append(window, " Rem " + remark, lastAppend::other);
}

void Command4_Click(RAWform& window)
{
    window.TotalCombinedText.Text = "";
    window.LastAppend = lastAppend::nothing;
    FormatCombinedText(window);
}

void CommandPasteJ_Click(RAWform& window, int Index)
{
    const std::string text = textOf(window, Index);
    const bool brackets = isRawField(Index) && window.editor.shared.settings.AddRawBrackets == 1;
    insert(window, brackets ? inBrackets(text) : text);
    focusEditor(window.editor);
    if (staysAfterInsertion(Index)) return;
    blankKeyFields(window);
    window.TotalCombinedText.Text = "";
}

void FormatCombinedText(RAWform& window)
{
    window.TotalCombinedBackColor = window.editor.shared.settings.BackgroundColour;
}

void TotalCombinedText_Change(RAWform& window)
{
    const Steps step;
    if (window.MirrorStatement) step([&] { window.MirrorStatement(window.TotalCombinedText.Text); });
}

} // namespace tarvex
