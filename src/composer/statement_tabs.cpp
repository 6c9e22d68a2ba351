#include "composer/statement_tabs.h"

#include "composer/insertion.h"
#include "language/commands/coloured_insertion.h"
#include "language/commands/slash_buttons.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarvex {

namespace {

/// The text that a button without fields inserts.
struct PlainStatement {
    const char* caption;
    const char* text;
};

constexpr PlainStatement useStatements[] = {
    {"USE T&QS", "USE TQS"},     {"USE W&CS", "USE WCS"},   {"USE NO&MOUSE", "USE NOMOUSE"},
    {"USE &NOTHR", "USE NOTHR"}, {"&USE FCLK", "USE FCLK"}, {"@&digitalthrottle", "@digitalthrottle "},
    {"BTN M&T", "BTN MT "},      {"US&E RCS", "USE RCS"},   {"USE N&ORDDR", "USE NORDDR"},
};
constexpr int noThrottle = 3; ///< in useStatements
constexpr int noRudders = 8;

struct ValueStatement {
    const char* keyword;
    std::size_t field; ///< in Text1
};
constexpr ValueStatement valueStatements[] = {
    {"RATE ", valueField::rate}, {"MDEF ", valueField::mdef}, {"NULLCHR ", valueField::nullchr}};

constexpr const char* axes[] = {"JSX", "JSY", "RDDR"}; ///< in the order of ToggleButton1

std::string heldAxis(const InsertOptions& window)
{
    for (std::size_t i = 0; i < window.ToggleButton1.size(); ++i) {
        if (window.ToggleButton1[i].isHeld()) return axes[i];
    }
    return {};
}

template <typename Work> void tagged(InsertOptions& window, std::string_view tag, Work work)
{
    const Steps step(window.editor.shared.errors, tag);
    step(work);
}

/// The number of blanks that the field asks for.
std::int16_t blanksWanted(const InsertOptions& window)
{
    const double number = Val(window.fields.Text1[valueField::blanks].Text.get());
    if (number > std::numeric_limits<std::int16_t>::max()) throw RuntimeError(ErrorCode::Overflow, "Overflow");
    return number > 0 ? static_cast<std::int16_t>(std::lround(number)) : std::int16_t{0};
}

void insertBlanks(InsertOptions& window)
{
    Editor& editor = window.editor;
    const std::int16_t count = blanksWanted(window);
    editor.shared.settings.NumberOfBlanks = count;
    if (count == 0) return;
    leaveShownUse(window);
    BeginColInsert(editor);
    InsertColouredStringNoSpace(editor, std::string(static_cast<std::size_t>(count), ' '),
                                editor.shared.DefaultTextColour);
    // The caret that is on record for the other file moves too, as it always did.
    if (!editor.selected().pane.Locked) editor.other(editor.selected()).Caret += count;
    EndColInsert(editor);
    returnFocus(window);
}

/// A button that runs a procedure with its index.
template <typename Buttons> void wire(InsertOptions& window, Buttons& buttons, void (*click)(InsertOptions&, int))
{
    for (std::size_t i = 0; i < buttons.size(); ++i)
        buttons[i].handler = [&window, click, i] { click(window, static_cast<int>(i)); };
}

template <typename Buttons> void caption(Buttons& buttons, std::initializer_list<const char*> captions)
{
    auto button = buttons.begin();
    for (const char* text : captions) (button++)->Caption = text;
}

} // namespace

void Command1_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER Command1_Click", [&] { insertStatement(window, {useStatements[Index].text}); });
}

void Command2_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER Command2_Click", [&] {
        const ValueStatement& statement = valueStatements[Index];
        insertStatement(window, {statement.keyword, window.fields.Text1[statement.field].Text});
    });
}

void Command3_Click(InsertOptions& window)
{
    tagged(window, "COMPOSER Command3_Click", [&] {
        insertStatement(window, {"RNG 1 ", valuesOf(window.fields.Rng1)});
    });
}

void Command4_Click(InsertOptions& window)
{
    tagged(window, "COMPOSER Command4_Click", [&] {
        insertStatement(window, {"RNG 2 ", valuesOf(window.fields.Rng2)});
    });
}

void Command8_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER Command8_Click", [&] {
        const StatementFields& fields = window.fields;
        if (Index == 0) return insertStatement(window, {"ANT 1 ", valuesOf(fields.Ant1)});
        const std::string keyword = heldAxis(window) + " " + std::to_string(Index) + " ";
        const std::string values = Index == 1   ? valuesOf(fields.Axis1)
                                   : Index == 2 ? valuesOf(fields.Axis2)
                                                : valuesOf(fields.Axis3);
        insertStatement(window, {keyword, values});
    });
}

void InsertANT_Click(InsertOptions& window)
{
    tagged(window, "COMPOSER InsertANT_Click", [&] {
        insertStatement(window, {"ANT 2 ", valuesOf(window.fields.Ant2)});
    });
}

void Command12_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER Command12_Click", [&] {
        const StatementFields& fields = window.fields;
        insertStatement(window, Index == 0 ? StatementText{"THR 1 ", valuesOf(fields.Thr1)}
                                           : StatementText{"THR 2 ", valuesOf(fields.Thr2)});
    });
}

void Command15_Click(InsertOptions& window, int Index) { Command1_Click(window, Index == 0 ? noThrottle : noRudders); }

void DlyRptButtons_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER DlyRptButtons_Click", [&] {
        const TextBox& field = Index == 0 ? window.fields.DLYText : window.fields.TextRPT;
        leaveShownUse(window);
        InsertTimedItem(window.editor, Index == 0 ? "DLY(" : "RPT(", windows1252FromUtf8(field.Text.get()));
        returnFocus(window);
    });
}

void CommandREM_Click(InsertOptions& window)
{
    tagged(window, "COMPOSER CommandREM_Click", [&] {
        insertText(window, "Rem " + window.fields.RemTextBox.Text.get() + " ",
                   window.editor.shared.settings.RemStatements);
    });
}

void Command10_Click(InsertOptions& window) { window.fields.RemTextBox.Text = std::string(); }

void Command7_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER Command7_Click", [&] { Index == 0 ? insertLineEnd(window) : insertBlanks(window); });
}

void emptyFields(InsertOptions& window)
{
    const auto empty = [](auto&... forms) {
        (std::ranges::for_each(forms, [](TextBox& field) { field.Text = std::string(); }), ...);
    };
    StatementFields& fields = window.fields;
    empty(fields.Rng1, fields.Rng2, fields.Ant1, fields.Ant2, fields.Axis1, fields.Axis2, fields.Axis3, fields.Thr1,
          fields.Thr2, fields.Text1);
    for (TextBox* field : {&fields.DLYText, &fields.TextRPT, &fields.RemTextBox}) field->Text = std::string();
}

void holdAxis(InsertOptions& window, std::size_t axis)
{
    for (ToggleLabel& toggle : window.ToggleButton1) toggle.hold(false);
    window.ToggleButton1[axis].hold(true);
}

void wireStatementTabs(InsertOptions& window)
{
    wire(window, window.Command1, Command1_Click);
    for (std::size_t i = 0; i < window.Command1.size(); ++i) window.Command1[i].Caption = useStatements[i].caption;
    wire(window, window.Command2, Command2_Click);
    wire(window, window.Command8, Command8_Click);
    wire(window, window.Command12, Command12_Click);
    wire(window, window.Command15, Command15_Click);
    wire(window, window.DlyRptButtons, DlyRptButtons_Click);
    wire(window, window.Command7, Command7_Click);
    window.Command3.handler = [&window] { Command3_Click(window); };
    window.Command4.handler = [&window] { Command4_Click(window); };
    window.InsertANT.handler = [&window] { InsertANT_Click(window); };
    window.CommandREM.handler = [&window] { CommandREM_Click(window); };
    window.Command10.handler = [&window] { Command10_Click(window); };
    for (std::size_t i = 0; i < window.ToggleButton1.size(); ++i) {
        window.ToggleButton1[i].Caption = axes[i];
        window.ToggleButton1[i].Click = [&window, i] { holdAxis(window, i); };
    }
    caption(window.Command2, {"Insert", "Insert", "Insert"});
    caption(window.Command8, {"Insert", "Insert", "Insert", "Insert"});
    caption(window.Command12, {"Insert", "Insert"});
    caption(window.Command15, {"No Throttle", "No Rudders"});
    caption(window.DlyRptButtons, {"DLY()", "RPT()"});
    caption(window.Command7, {"Carriage return", "Spaces"});
    for (Button* insert : {&window.Command3, &window.Command4, &window.InsertANT}) insert->Caption = "Insert";
    window.CommandREM.Caption = "Rem";
    window.Command10.Caption = "Clear";
}

} // namespace tarvex
