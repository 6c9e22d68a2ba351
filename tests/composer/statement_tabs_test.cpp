#include "composer/statement_tabs.h"

#include "composer/composer_fixture.h"

namespace tarvex {
namespace {

/// A button of a form, its fields filled in, and the line that it inserts.
struct Statement {
    const char* name;
    std::function<void(InsertOptions&)> fill;
    std::function<Button&(InsertOptions&)> button;
    const char* keyword; ///< the part that has a colour
    const char* values;
};

void PrintTo(const Statement& statement, std::ostream* out) { *out << statement.name; }

template <typename Fields> void fill(Fields& fields)
{
    char letter = 'a';
    for (TextBox& field : fields) field.Text = std::string(1, letter++);
}

void value(InsertOptions& w, std::size_t field, const char* text) { w.fields.Text1[field].Text = std::string(text); }

Statement use(const char* name, std::size_t index, const char* text)
{
    return {name, [](InsertOptions&) {}, [index](InsertOptions& w) -> Button& { return w.Command1[index]; }, text, ""};
}

Statement axis(const char* name, std::size_t toggle, std::size_t form, const char* keyword, const char* values)
{
    return {name,
            [toggle, form](InsertOptions& w) {
                w.ToggleButton1[toggle].Click();
                if (form == 1) fill(w.fields.Axis1);
                if (form == 2) fill(w.fields.Axis2);
                if (form == 3) fill(w.fields.Axis3);
            },
            [form](InsertOptions& w) -> Button& { return w.Command8[form]; }, keyword, values};
}

std::vector<Statement> statements()
{
    return {
        {"Rate", [](InsertOptions& w) { value(w, valueField::rate, "80"); },
         [](InsertOptions& w) -> Button& { return w.Command2[0]; }, "RATE ", "80"},
        {"Mdef", [](InsertOptions& w) { value(w, valueField::mdef, "Longbow2"); },
         [](InsertOptions& w) -> Button& { return w.Command2[1]; }, "MDEF ", "Longbow2"},
        {"Nullchr", [](InsertOptions& w) { value(w, valueField::nullchr, "^"); },
         [](InsertOptions& w) -> Button& { return w.Command2[2]; }, "NULLCHR ", "^"},
        {"Rng1", [](InsertOptions& w) { fill(w.fields.Rng1); }, [](InsertOptions& w) -> Button& { return w.Command3; },
         "RNG 1 ", "a b c"},
        {"Rng2", [](InsertOptions& w) { fill(w.fields.Rng2); }, [](InsertOptions& w) -> Button& { return w.Command4; },
         "RNG 2 ", "a b c d"},
        {"Ant1", [](InsertOptions& w) { fill(w.fields.Ant1); },
         [](InsertOptions& w) -> Button& { return w.Command8[0]; }, "ANT 1 ", "a b c d"},
        {"Ant2", [](InsertOptions& w) { fill(w.fields.Ant2); }, [](InsertOptions& w) -> Button& { return w.InsertANT; },
         "ANT 2 ", "a b c d e f"},
        axis("Jsx1", 0, 1, "JSX 1 ", "a b c d"),
        axis("Jsx2", 0, 2, "JSX 2 ", "a b c d e f"),
        axis("Jsx3", 0, 3, "JSX 3 ", "a b c"),
        axis("Jsy1", 1, 1, "JSY 1 ", "a b c d"),
        axis("Jsy2", 1, 2, "JSY 2 ", "a b c d e f"),
        axis("Jsy3", 1, 3, "JSY 3 ", "a b c"),
        axis("Rddr1", 2, 1, "RDDR 1 ", "a b c d"),
        axis("Rddr2", 2, 2, "RDDR 2 ", "a b c d e f"),
        axis("Rddr3", 2, 3, "RDDR 3 ", "a b c"),
        {"Thr1", [](InsertOptions& w) { fill(w.fields.Thr1); },
         [](InsertOptions& w) -> Button& { return w.Command12[0]; }, "THR 1 ", "a b c d e f g h"},
        {"Thr2", [](InsertOptions& w) { fill(w.fields.Thr2); },
         [](InsertOptions& w) -> Button& { return w.Command12[1]; }, "THR 2 ", "a b c d"},
        use("UseTqs", 0, "USE TQS"),
        use("UseWcs", 1, "USE WCS"),
        use("UseNomouse", 2, "USE NOMOUSE"),
        use("UseNothr", 3, "USE NOTHR"),
        use("UseFclk", 4, "USE FCLK"),
        use("DigitalThrottle", 5, "@digitalthrottle "),
        use("BtnMt", 6, "BTN MT "),
        use("UseRcs", 7, "USE RCS"),
        use("UseNorddr", 8, "USE NORDDR"),
        {"NoThrottle", [](InsertOptions&) {}, [](InsertOptions& w) -> Button& { return w.Command15[0]; }, "USE NOTHR",
         ""},
        {"NoRudders", [](InsertOptions&) {}, [](InsertOptions& w) -> Button& { return w.Command15[1]; }, "USE NORDDR",
         ""},
        {"Mtype",
         [](InsertOptions& w) {
             w.mice.Option1[1].Click();
             w.mice.MouseList[1].ListIndex = 5;
         },
         [](InsertOptions& w) -> Button& { return w.mice.Command9; }, "USE MTYPE ", "B6"},
    };
}

struct StatementTab : ComposerTest, testing::WithParamInterface<Statement> {
    void run()
    {
        GetParam().fill(window);
        GetParam().button(window).Click();
    }
    std::string text() const { return std::string(GetParam().keyword) + GetParam().values; }
};

TEST_P(StatementTab, InsertsItsLineWithTheKeywordInColourAndTheValuesBlack)
{
    settings.InsertWithColour = 1;
    settings.CompTabsAddCr = 1;
    run();
    EXPECT_EQ(joystick.Text(), text() + "\r\n");
    const std::size_t keyword = std::string(GetParam().keyword).size();
    EXPECT_EQ(joystick.formatAt(0).colour, settings.MiscellaneousColour);
    EXPECT_EQ(joystick.formatAt(keyword - 1).colour, settings.MiscellaneousColour);
    EXPECT_EQ(joystick.formatAt(keyword).colour, 0);
}

TEST_P(StatementTab, WithoutColoursInsertsItsLineBlack)
{
    settings.InsertWithColour = 0;
    settings.CompTabsAddCr = 1;
    run();
    EXPECT_EQ(joystick.Text(), text() + "\r\n");
    EXPECT_EQ(joystick.runs().size(), 1U);
}

TEST_P(StatementTab, WithoutCompTabsAddCrTheLineStaysOpen)
{
    settings.CompTabsAddCr = 0;
    for (const std::int16_t colour : {0, 1}) {
        settings.InsertWithColour = colour;
        joystick.setText("");
        run();
        EXPECT_EQ(joystick.Text(), text()) << colour;
    }
}

TEST_P(StatementTab, BeginsALineOfItsOwnAndIsOneUndoStep)
{
    settings.HighlightLineOnUndo = 0;
    settings.CompTabsAddCr = 0;
    const std::string before = "BTN S1 x\r\nBTN S2 y";
    write(before);
    putCaret(3);
    run();
    EXPECT_EQ(joystick.Text(), "BTN S1 x\r\n" + text() + "\r\nBTN S2 y");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), before);
}

TEST_P(StatementTab, GoesIntoTheMacroFileWhenThatIsSelected)
{
    settings.CompTabsAddCr = 0;
    editor.TabStrip1.Select(2);
    run();
    EXPECT_EQ(macro.Text(), text());
    EXPECT_EQ(joystick.Text(), "");
}

INSTANTIATE_TEST_SUITE_P(Forms, StatementTab, testing::ValuesIn(statements()),
                         [](const auto& tested) { return std::string(tested.param.name); });

// ---- what the forms share -------------------------------------------------------------------------------------------

TEST_F(ComposerTest, AnEmptyFieldIsInsertedWithoutItsValue)
{
    settings.CompTabsAddCr = 0;
    window.fields.Rng1[0].Text = std::string("5");
    window.fields.Rng1[2].Text = std::string("x");
    window.Command3.Click();
    EXPECT_EQ(joystick.Text(), "RNG 1 5  x");
}

TEST_F(ComposerTest, OneAxisIsHeldAtATime)
{
    window.ToggleButton1[2].Click();
    EXPECT_FALSE(window.ToggleButton1[0].isHeld());
    EXPECT_TRUE(window.ToggleButton1[2].isHeld());
}

TEST_F(ComposerTest, ATickOfAddCarriageReturnIsThatOfAllPagesAndIsKept)
{
    window.CheckMultiAddCR[3].Value = false;
    window.CheckMultiAddCR[3].Click();
    for (CheckBox& box : window.CheckMultiAddCR) EXPECT_FALSE(box.Value);
    EXPECT_EQ(settings.CompTabsAddCr, 0);
    EXPECT_EQ(t.ini("Miscellaneous", "CompTabsAddCr"), "0");
}

// ---- delays, remarks, blanks ----------------------------------------------------------------------------------------

struct TimedItem : ComposerTest {
    TimedItem()
    {
        window.fields.DLYText.Text = std::string("75");
        window.fields.TextRPT.Text = std::string("3");
    }
};

TEST_F(TimedItem, DelayAndRepeatStandInTheLineWithTheirValuesBlack)
{
    settings.InsertWithColour = 1;
    write("BTN S1");
    window.DlyRptButtons[0].Click();
    window.DlyRptButtons[1].Click();
    EXPECT_EQ(joystick.Text(), "BTN S1 DLY(75) RPT(3) ");
    EXPECT_EQ(colourOf(joystick, "DLY("), settings.RAWColour);
    EXPECT_EQ(colourOf(joystick, "75"), 0);
    EXPECT_EQ(colourOf(joystick, ") RPT"), settings.RAWColour);
}

TEST_F(TimedItem, WithoutColoursTheyArePlain)
{
    settings.InsertWithColour = 0;
    window.DlyRptButtons[0].Click();
    window.DlyRptButtons[1].Click();
    EXPECT_EQ(joystick.Text(), "DLY(75) RPT(3) ");
    EXPECT_EQ(joystick.runs().size(), 1U);
}

TEST_F(ComposerTest, ARemarkComesWithItsTextAndABlank)
{
    settings.InsertWithColour = 1;
    window.fields.RemTextBox.Text = std::string("gear");
    window.CommandREM.Click();
    EXPECT_EQ(joystick.Text(), "Rem gear ");
    EXPECT_EQ(colourOf(joystick, "Rem"), settings.RemStatements);
}

TEST_F(ComposerTest, WithoutColoursARemarkIsPlain)
{
    settings.InsertWithColour = 0;
    window.fields.RemTextBox.Text = std::string("gear");
    write("BTN S1");
    window.CommandREM.Click();
    EXPECT_EQ(joystick.Text(), "BTN S1 Rem gear ");
    EXPECT_EQ(colourOf(joystick, "Rem"), 0);
}

TEST_F(ComposerTest, ClearEmptiesTheRemark)
{
    window.fields.RemTextBox.Text = std::string("gear");
    window.Command10.Click();
    EXPECT_EQ(window.fields.RemTextBox.Text.get(), "");
}

TEST_F(ComposerTest, ACarriageReturnOpensALineAtTheCaret)
{
    write("ab");
    putCaret(1);
    window.Command7[0].Click();
    EXPECT_EQ(joystick.Text(), "a\r\nb");
}

TEST_F(ComposerTest, SpacesInsertsAsManyBlanksAsTheFieldSaysAndMovesBothCarets)
{
    write("ab");
    putCaret(1);
    window.fields.Text1[valueField::blanks].Text = std::string("3x");
    window.Command7[1].Click();
    EXPECT_EQ(joystick.Text(), "a   b");
    EXPECT_EQ(settings.NumberOfBlanks, 3);
    EXPECT_EQ(static_cast<int>(editor.joystick.Caret), 4);
    EXPECT_EQ(static_cast<int>(editor.macro.Caret), 3);
}

TEST_F(ComposerTest, SpacesMoveTheOtherFilesCaretOnFromWhereItIs)
{
    write("ab");
    editor.macro.Caret = 5;
    window.fields.Text1[valueField::blanks].Text = std::string("1");
    window.Command7[1].Click();
    EXPECT_EQ(joystick.Text(), "ab ");
    EXPECT_EQ(static_cast<int>(editor.macro.Caret), 6);
}

TEST_F(ComposerTest, SpacesThatAProtectedMacroFileRefusesMoveNoCaret)
{
    write("ab");
    putCaret(1);
    editor.TabStrip1.Select(2);
    t.menus().mnuPreferencesProtectMacroFile.Click();
    window.Command7[1].Click();
    EXPECT_EQ(macro.Text(), "");
    EXPECT_EQ(static_cast<int>(editor.joystick.Caret), 1);
}

TEST_F(ComposerTest, ANumberOfBlanksThatIsNoneOrTooLargeInsertsNothing)
{
    write("ab");
    for (const char* number : {"", "x", "-4", "0", "32768", "1e9"}) {
        window.fields.Text1[valueField::blanks].Text = std::string(number);
        window.Command7[1].Click();
        EXPECT_EQ(joystick.Text(), "ab") << number;
    }
}

std::string captionsOf(const auto& buttons)
{
    std::string captions;
    for (const auto& button : buttons) captions += (captions.empty() ? "" : " | ") + button.Caption.get();
    return captions;
}

TEST_F(ComposerTest, TheButtonsOfTheStatementPagesSayWhatTheyInsert)
{
    EXPECT_EQ(captionsOf(window.Command1), "USE T&QS | USE W&CS | USE NO&MOUSE | USE &NOTHR | &USE FCLK | "
                                           "@&digitalthrottle | BTN M&T | US&E RCS | USE N&ORDDR");
    EXPECT_EQ(captionsOf(window.Command2), "Insert | Insert | Insert");
    EXPECT_EQ(captionsOf(window.Command8), "Insert | Insert | Insert | Insert");
    EXPECT_EQ(captionsOf(window.Command12), "Insert | Insert");
    EXPECT_EQ(captionsOf(window.Command15), "No Throttle | No Rudders");
    EXPECT_EQ(captionsOf(window.DlyRptButtons), "DLY() | RPT()");
    EXPECT_EQ(captionsOf(window.Command7), "Carriage return | Spaces");
    EXPECT_EQ(captionsOf(window.ToggleButton1), "JSX | JSY | RDDR");
    for (const Button* button : {&window.Command3, &window.Command4, &window.InsertANT})
        EXPECT_EQ(button->Caption.get(), "Insert");
    EXPECT_EQ(window.CommandREM.Caption.get(), "Rem");
    EXPECT_EQ(window.Command10.Caption.get(), "Clear");
}

TEST_F(ComposerTest, TheButtonsOfTheLogicPageSayWhatTheyInsert)
{
    const FlagTab& tab = window.flags;
    EXPECT_EQ(captionsOf(tab.CMDCompare), "AND | OR | NOT | ( | ) | BTN | DEF | F22RST | *");
    EXPECT_EQ(captionsOf(tab.CMDFlagSlash), "/U | /M | /D | /I | /O | /T | /P | /R | /H | /N | /A | /Q");
    EXPECT_EQ(captionsOf(tab.CMDFlagInsert), "Insert | Insert | Insert | PULSE() | DELAY() | Insert | DLY() | RPT() | "
                                             "An0002a.txt | Help");
    EXPECT_EQ(captionsOf(tab.Command13), "Insert all | Insert current | Analyse current joystick file");
    EXPECT_EQ(captionsOf(window.SlashButton), "/U | /M | /D | /I | /O | /T | /P | /R | /H | /N | /A | /Q");
}

} // namespace
} // namespace tarvex
