#include "language/statements.h"

#include "language/associated_files.h"
#include "language/base_format.h"
#include "language/macros_used.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The statement that is selected; "none" without one.
std::string selected(const std::string& text, std::string_view head, const Steps& step = Steps())
{
    Pane pane;
    pane.setText(text);
    return selectStatement(pane, head, step) ? pane.SelText() : "none";
}

TEST(SelectStatement, EndsWhereEachWordOfTheLanguageStands)
{
    for (const char* next :
         {"BTN S2", "btn S2", "RNG", "ANT",  "ant",  "MDEF",   "mdef",   "JSX", "jsx", "JSY",  "jsy", "PortB1",
          "portb1", "USE",    "use", "RATE", "rate", "SWAPTG", "swaptg", "THR", "thr", "RDDR", "rddr"})
        EXPECT_EQ(selected("BTN S1 a\r\n/I b\r\n\r\n" + std::string(next) + " c", "BTN S1"), "BTN S1 a\r\n/I b")
            << next;
    for (const char* none : {"rng", "BTNS", "USER", "RATES", "MDEFS", "THROW", "Rem", "DEF"})
        EXPECT_EQ(selected("BTN S1 a " + std::string(none) + " c\r\n", "BTN S1"),
                  "BTN S1 a " + std::string(none) + " c")
            << none;
}

TEST(SelectStatement, EndsAtTheNearestOfSeveralWords)
{
    EXPECT_EQ(selected("BTN S1 a\r\nRATE 1\r\nRNG 1\r\nBTN S2", "BTN S1"), "BTN S1 a");
    EXPECT_EQ(selected("BTN S1 a\r\nRDDR 1\r\nBTN S2", "BTN S1"), "BTN S1 a");
}

TEST(SelectStatement, IsTheFirstWithItsHeadAsAWholeWord)
{
    EXPECT_EQ(selected("BTN S10 a\r\nBTN S1\r\n\r\nBTN S1 c", "BTN S1"), "BTN S1");
    EXPECT_EQ(selected("btn s1 a\n\n", "BTN S1"), "btn s1 a");
    EXPECT_EQ(selected("BTN S10 a", "BTN S1"), "none");
}

TEST(SelectStatement, OfAPortBeginsWithTheWordBeforeIt)
{
    EXPECT_EQ(selected("Rem\r\nBTN PortB1 IS H1\r\nUSE x", "PortB1"), "BTN PortB1 I");
    ErrorRecord errors;
    EXPECT_EQ(selected("PortB1 IS H1", "PortB1", Steps(errors, "port")), "PortB1 IS H1");
    EXPECT_EQ(errors.ErrorProcedure, "port") << "nothing stands before it";
}

TEST(SelectStatement, LeavesTheSelectionWithoutItsHead)
{
    Pane pane;
    pane.setText("BTN S2 a");
    pane.setSelStart(3);
    EXPECT_FALSE(selectStatement(pane, "BTN S1", Steps()));
    EXPECT_EQ(pane.SelStart(), 3);
}

// ---- base format ----------------------------------------------------------------------------------------------------

TEST(BaseFormat, ReplacesEveryLookAndPutsTheCaretToTheBeginning)
{
    Settings settings;
    settings.TextFontName = "Courier New";
    settings.TextFontSize = 13;
    Pane pane;
    for (const bool bold : {true, false}) {
        settings.TextFontBold = bold ? 1 : 0;
        pane.setText("one\r\ntwo");
        pane.setSelStart(2);
        pane.setSelLength(4);
        pane.setSelItalic(true);
        pane.setSelUnderline(true);
        pane.setSelBold(!bold);
        pane.setSelFontName("Other");
        pane.setSelFontSize(33);
        pane.setSelColor(9);
        pane.setSelIndent(700);
        pane.setSelStart(5);
        pane.setSelLength(2);
        writeBaseFormat(pane, settings, 77);
        EXPECT_EQ(pane.SelStart(), 0);
        EXPECT_EQ(pane.SelLength(), 0);
        const CharacterFormat expected{
            .colour = 77, .fontName = "Courier New", .fontSize = 13, .bold = bold, .indent = paragraphIndent};
        for (std::size_t i = 0; i < pane.TextLength(); ++i) EXPECT_EQ(pane.formatAt(i), expected) << i;
        setPaneFont(pane, settings);
        EXPECT_EQ(pane.Font(), (PaneFont{"Courier New", 13, bold}));
    }
}

// ---- partners -------------------------------------------------------------------------------------------------------

TEST(AssociatedFiles, AreOfTheFamilyThatTheExtensionNamesInAnyCase)
{
    Settings settings;
    settings.JoystickExtension = "jjj";
    settings.MacroExtension = "mmm";
    for (const auto& [joystick, macro] : {std::pair("f22", "m22"), {"b50", "m50"}, {"adv", "mdf"}}) {
        const std::string base = "c:\\tm\\mig.";
        EXPECT_EQ(associatedMacroFile(base + joystick, settings), base + macro);
        EXPECT_EQ(associatedJoystickFile(base + macro, settings), base + joystick);
        EXPECT_EQ(kindOfFile(base + joystick), FileKind::Joystick);
        EXPECT_EQ(kindOfFile(base + macro), FileKind::Macro);
    }
    EXPECT_EQ(kindOfFile("A.ADV"), FileKind::Joystick);
    EXPECT_EQ(kindOfFile("A.MDF"), FileKind::Macro);
    EXPECT_EQ(kindOfFile("a.txt"), FileKind::Other);
    EXPECT_EQ(associatedMacroFile("a.txt", settings), "a.mmm");
    EXPECT_EQ(associatedJoystickFile("a.txt", settings), "a.jjj");
}

TEST(AssociatedFiles, NamedByMdefStandBehindItUpToABlankOrALineEnd)
{
    const Settings settings;
    const auto named = [&](const std::string& text) {
        Pane pane;
        pane.setText(text);
        return macroFileByMdef(pane, "c:\\TM\\su.b50", settings);
    };
    EXPECT_EQ(named("MDEF Mig"), "c:\\tm\\mig.m50");
    EXPECT_EQ(named("USE MDEF Mig rest"), "c:\\tm\\mig.m50");
    EXPECT_EQ(named("mdef\tmig\r\nBTN"), "c:\\tm\\mig.m50") << "one character behind the word is left out";
    EXPECT_EQ(named("MDEF one\r\nMDEF two\r\nMDEF three\r\n"), "c:\\tm\\three.m50") << "the last counts";
    EXPECT_EQ(named("MDEF one MDEFtwo"), "c:\\tm\\wo.m50");
    EXPECT_EQ(named("BTN S1 a"), "");
    EXPECT_EQ(named("MDEF caf\xC9"), "c:\\tm\\caf\xC3\xA9.m50");
}

// ---- macros used ----------------------------------------------------------------------------------------------------

TEST(MacrosUsed, StandAsWholeWordsWithABlankOrALineEndBehindThem)
{
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"   BTN S1 fire ", "fire", true},      {"   BTN S1 FIRE\r\nx", "fire", true},
        {"   BTN S1 fire", "fire", false},      {"   BTN S1 fire\tx", "fire", false},
        {"   BTN S1 fire.\r\n", "fire", false}, {"   misfire ", "fire", false},
        {"   fire, fire ", "fire", true},       {"   fire, fires ", "fire", false},
        {"   fire.fire.fire x", "fire", true},  {"   fire1 fire", "fire", false}};
    for (const auto& [text, name, used] : cases) {
        Pane pane;
        pane.setText(text);
        EXPECT_EQ(isMacroUsed(pane, name), used) << text;
    }
}

TEST(MacrosUsed, CanBeIdentifiedInAJoystickFileWithAnEAndAMacroFile)
{
    Pane joystick;
    Pane macros;
    EXPECT_FALSE(canIdentify(joystick, macros));
    macros.setText("a");
    joystick.setText("BTN S1 FIRE");
    EXPECT_FALSE(canIdentify(joystick, macros)) << "a capital";
    joystick.setText("BTN S1 fire");
    EXPECT_TRUE(canIdentify(joystick, macros));
    joystick.setText("e");
    EXPECT_TRUE(canIdentify(joystick, macros));
    macros.setText("");
    EXPECT_FALSE(canIdentify(joystick, macros));
}

} // namespace
} // namespace tarvex
