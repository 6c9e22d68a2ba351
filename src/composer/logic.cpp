#include "composer/logic.h"

#include "composer/insertion.h"
#include "composer/logic_analysis.h"
#include "language/commands/coloured_insertion.h"
#include "language/commands/text_transfer.h"
#include "platform/text.h"
#include "platform/windows1252.h"

#include <array>

namespace tarvex {

namespace {

constexpr Colour white = 0xFFFFFF;
constexpr auto formColour = static_cast<Colour>(0x8000000FU); ///< the system's colour of buttons

constexpr const char* compareTerms[] = {"AND", "OR", "NOT", "(", ")", "BTN", "DEF", "F22RST", "*"};
constexpr const char* slashTerms[] = {"/U", "/M", "/D", "/I", "/O", "/T", "/P", "/R", "/H", "/N", "/A", "/Q"};
constexpr const char* insertCaptions[] = {"Insert", "Insert", "Insert", "PULSE()",     "DELAY()",
                                          "Insert", "DLY()",  "RPT()",  "An0002a.txt", "Help"};

constexpr int openNotes = 8;
constexpr int showHelp = 9;

std::vector<std::string> numbered(const char* letter, int first, int last)
{
    std::vector<std::string> names;
    for (int number = first; number <= last; ++number) names.push_back(letter + std::to_string(number));
    return names;
}

std::string chosen(const ListBox& list)
{
    const auto row = static_cast<std::size_t>(list.ListIndex.get());
    const std::vector<std::string>& items = list.Items;
    return row < items.size() ? items[row] : std::string();
}

bool takesBlank(std::string_view term) { return term != "(" && term != ")" && term != "*"; }

/// A term goes into the chosen definition at the caret, apart from what stands there.
void addTerm(InsertOptions& window, std::string term)
{
    WhichLogicText(window);
    Pane& field = window.flags.RichTexFlag[static_cast<std::size_t>(window.flags.CurrentFlag)];
    const auto caret = static_cast<long>(field.SelStart());
    if (caret > 0 && takesBlank(term) && Mid(field.Text(), caret, 1) != " ") term.insert(0, " ");
    field.setSelText(term);
    field.SetFocus();
}

std::string termOf(const FlagTab& tab, int index)
{
    const auto number = [&tab](std::size_t field) { return windows1252FromUtf8(tab.TxtFlag[field].Text.get()); };
    switch (index) {
    case 0:
        return chosen(tab.FlagList[0]);
    case 1:
        return chosen(tab.FlagList[1]) + chosen(tab.FlagList[5]);
    case 2:
        return chosen(tab.FlagList[2]);
    case 3:
        return "PULSE(" + number(0) + " " + number(1) + ")";
    case 4:
        return "DELAY(" + number(2) + ")";
    case 5:
        return chosen(tab.FlagList[3]) + "(" + chosen(tab.FlagList[4]) + " " + number(3) + ")";
    case 6:
        return "DLY(" + number(4) + ")";
    default:
        return "RPT(" + number(5) + ")";
    }
}

void insertBlock(InsertOptions& window, const std::string& text)
{
    if (text.empty()) return;
    Editor& editor = window.editor;
    leaveShownUse(window);
    BeginColInsert(editor);
    CheckAtLineBeginning(editor);
    editor.TempRichTextBox.setText(text);
    MacroTransferText(editor);
    InsertCarriageReturn(editor);
    EndColInsert(editor);
    returnFocus(window);
}

void insertAll(InsertOptions& window)
{
    std::string text;
    for (const Pane& field : window.flags.RichTexFlag) {
        if (field.TextLength() > 0) text += field.Text() + "\r\n";
    }
    insertBlock(window, text);
}

void insertCurrent(InsertOptions& window)
{
    WhichLogicText(window);
    insertBlock(window, window.flags.RichTexFlag[static_cast<std::size_t>(window.flags.CurrentFlag)].Text());
}

template <typename Work> void tagged(InsertOptions& window, std::string_view tag, Work work)
{
    const Steps step(window.editor.shared.errors, tag);
    step(work);
}

} // namespace

void FillLogicLists(InsertOptions& window)
{
    std::vector<std::string> buttons = numbered("S", 1, 4);
    for (std::string& name : numbered("T", 1, 14)) buttons.push_back(std::move(name));
    for (std::string& name : numbered("TG", 1, 2)) buttons.push_back(std::move(name));
    auto& lists = window.flags.FlagList;
    lists[0].Items = numbered("X", 1, static_cast<int>(FlagTab::count));
    lists[1].Items = numbered("H", 1, 4);
    lists[2].Items = std::move(buttons);
    lists[3].Items = std::vector<std::string>{"CMPLT", "CMPGT"};
    lists[4].Items = std::vector<std::string>{"ANT", "RNG", "THR", "RDDR", "JSX", "JSY"};
    lists[5].Items = std::vector<std::string>{"U", "D", "L", "R", "M", "UL", "DL", "UR", "DR"};
}

void emptyDefinitions(InsertOptions& window)
{
    FlagTab& tab = window.flags;
    for (Pane& field : tab.RichTexFlag) field.setText("");
    for (ListBox& list : tab.FlagList) list.ListIndex = -1;
    for (TextBox& number : tab.TxtFlag) number.Text = std::string();
    OptionFlag_Click(window, 0);
}

void WhichLogicText(InsertOptions& window)
{
    for (std::size_t i = 0; i < FlagTab::count; ++i) {
        if (window.flags.OptionFlag[i].Value) window.flags.CurrentFlag = static_cast<std::int16_t>(i);
    }
}

void ColourFlagTextBack(InsertOptions& window)
{
    WhichLogicText(window);
    for (std::size_t i = 0; i < FlagTab::count; ++i)
        window.flags.RichTexFlag[i].BackColor =
            static_cast<std::int16_t>(i) == window.flags.CurrentFlag ? white : formColour;
}

void OptionFlag_Click(InsertOptions& window, int Index)
{
    for (std::size_t i = 0; i < FlagTab::count; ++i)
        window.flags.OptionFlag[i].Value = i == static_cast<std::size_t>(Index);
    ColourFlagTextBack(window);
}

void RichTexFlag_GotFocus(InsertOptions& window, int Index) { OptionFlag_Click(window, Index); }

void CMDCompare_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER CMDCompare_Click", [&] { addTerm(window, compareTerms[Index]); });
}

void CMDFlagSlash_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER CMDFlagSlash_Click", [&] { addTerm(window, slashTerms[Index]); });
}

void CMDFlagInsert_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER CMDFlagInsert_Click", [&] {
        Editor& editor = window.editor;
        if (Index == openNotes)
            editor.platform.desktop.openProgramFile("An0002a.txt");
        else if (Index == showHelp)
            editor.operations.HelpKeyword("logic");
        else
            addTerm(window, termOf(window.flags, Index));
    });
}

void Command13_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER Command13_Click", [&] {
        if (Index == 0) return insertAll(window);
        if (Index == 1) return insertCurrent(window);
        if (!analyseLogic(window)) return;
        window.SSTabFlags.Tab = 0;
        OptionFlag_Click(window, 0);
    });
}

void wireLogic(InsertOptions& window)
{
    FlagTab& tab = window.flags;
    const auto wire = [&window](auto& buttons, const auto& captions, void (*click)(InsertOptions&, int)) {
        for (std::size_t i = 0; i < buttons.size(); ++i) {
            buttons[i].Caption = captions[i];
            buttons[i].handler = [&window, click, i] { click(window, static_cast<int>(i)); };
        }
    };
    constexpr const char* blockCaptions[] = {"Insert all", "Insert current", "Analyse current joystick file"};
    wire(tab.CMDCompare, compareTerms, CMDCompare_Click);
    wire(tab.CMDFlagSlash, slashTerms, CMDFlagSlash_Click);
    wire(tab.CMDFlagInsert, insertCaptions, CMDFlagInsert_Click);
    wire(tab.Command13, blockCaptions, Command13_Click);
    for (std::size_t i = 0; i < FlagTab::count; ++i)
        tab.OptionFlag[i].Click = [&window, i] { OptionFlag_Click(window, static_cast<int>(i)); };
    OptionFlag_Click(window, 0);
}

} // namespace tarvex
