#include "language/commands/slash_buttons.h"

#include "language/commands/coloured_insertion.h"

namespace tarvex {

namespace {

struct SlashButton {
    const char* caption;
    const char* hoverText;
};

constexpr SlashButton buttons[] = {
    {"/U", "Insert the /U (Up) slash modifier"},
    {"/M", "Insert the /M (Middle) slash modifier"},
    {"/D", "Insert the /D (Down) slash modifier"},
    {"/I", "Insert the /I (In) slash modifier"},
    {"/O", "Insert the /O (Out) slash modifier"},
    {"/A", "Insert the /A (Force analogue) slash modifier"},
    {"/P", "Insert the /P (Press) slash modifier"},
    {"/R", "Insert the /R (Release) slash modifier"},
    {"/H", "Insert the /H (Hold) slash modifier"},
    {"/N", "Insert the /N (No repeat) slash modifier"},
    {"/T", "Insert the /T (Toggle) slash modifier"},
    {"DLY", "Insert a DLY (Delay) statement - the delay value is adjustable from the Preferences window"},
    {"/Q", "Insert the /Q (Ignore initial repeat delay) slash modifier"},
};
static_assert(std::size(buttons) == std::tuple_size_v<decltype(FrameMacros::Command1)>);

constexpr std::size_t delayButton = 11;
/// What /A is for the hardware that formats as repeating instead.
constexpr SlashButton repeating{"/F", "Insert the /F (Format as repeating) slash modifier"};

void insertColouredItem(Editor& editor, std::string_view word, std::string_view value)
{
    InsertionRecord& insertion = editor.insertion;
    insertion.InsertText = word;
    AddSpaceToColouredText(editor);
    insertion.InsertColour = editor.shared.settings.RAWColour;
    InsertColouredStringNoSpace(editor, insertion.InsertText, insertion.InsertColour);
    insertion.InsertText = value;
    insertion.InsertColour = editor.shared.DefaultTextColour;
    InsertColouredStringNoSpace(editor, insertion.InsertText, insertion.InsertColour);
    insertion.InsertText = ") ";
    insertion.InsertColour = editor.shared.settings.RAWColour;
    InsertColouredString(editor, insertion.InsertText, insertion.InsertColour);
}

} // namespace

void InsertSlashModifier(Editor& editor, const std::string& modifier)
{
    InsertionRecord& insertion = editor.insertion;
    insertion.InsertText = modifier + " ";
    BeginColInsert(editor);
    if (editor.shared.settings.InsertWithColour == 1) {
        insertion.InsertColour = editor.shared.settings.SlashColour;
        AddSpaceToColouredText(editor);
        InsertColouredString(editor, insertion.InsertText, insertion.InsertColour);
    } else {
        InsertBlackText(editor);
    }
    EndColInsert(editor);
}

void InsertTimedItem(Editor& editor, std::string_view word, std::string_view value)
{
    editor.insertion.InsertColour = editor.shared.DefaultTextColour;
    BeginColInsert(editor);
    if (editor.shared.settings.InsertWithColour == 1) {
        insertColouredItem(editor, word, value);
    } else {
        editor.insertion.InsertText = std::string(word).append(value).append(") ");
        InsertBlackText(editor);
    }
    EndColInsert(editor);
}

void loadSlashButtons(Editor& editor)
{
    for (std::size_t index = 0; index < std::size(buttons); ++index) {
        Button& button = editor.FrameMacros.Command1[index];
        button.Caption = buttons[index].caption;
        button.handler = [&editor, index] { Command1_Click(editor, index); };
    }
    // The menu has the same modifiers in the same order, without the delay.
    editor.menus.mnuSlashModifierArray.setHandler([&editor](int item) {
        const auto index = static_cast<std::size_t>(item);
        Command1_Click(editor, index < delayButton ? index : index + 1);
    });
}

void Command1_Click(Editor& editor, std::size_t index)
{
    const Steps step(editor.shared.errors, "ED_Command1_Click");
    step([&] {
        const std::string& caption = editor.FrameMacros.Command1.at(index).Caption;
        if (index == delayButton)
            InsertTimedItem(editor, "DLY(", std::to_string(editor.shared.settings.DefaultDLYvalue));
        else
            InsertSlashModifier(editor, caption);
    });
}

void Command1_MouseMove(Editor& editor, std::size_t index)
{
    const std::string& caption = editor.FrameMacros.Command1.at(index).Caption;
    editor.status(caption == repeating.caption ? repeating.hoverText : buttons[index].hoverText);
    if (editor.FrameMacros.MousePointer == MousePointer::SizeWestEast)
        editor.FrameMacros.MousePointer = MousePointer::Default;
}

} // namespace tarvex
