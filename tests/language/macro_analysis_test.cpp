#include "language/commands/macro_file.h"
#include "language/commands/macro_lists.h"
#include "language/macro_analysis.h"

#include "language/macro_file_lines.h"
#include "language/macro_heading.h"
#include "platform/windows1252.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

struct Analysis {
    MacroRecord record;
    std::vector<MacroNames> macros;
};

Analysis analysed(const std::string& file)
{
    Analysis analysis;
    analysis.record.MacroFileLines = keptMacroLines(file);
    analysis.macros = extractMacros(analysis.record);
    return analysis;
}

// ---- lines ----------------------------------------------------------------------------------------------------------

TEST(KeptMacroLines, StripsLeadingBlanksButNoTabs)
{
    EXPECT_THAT(keptMacroLines("   A = a  \r\n\tB = b\r\n \t C = c"), ElementsAre("A = a  ", "\tB = b", "\t C = c"));
}

TEST(KeptMacroLines, DropsEmptyLinesBareCommentsAndTildeCommentsWithEquals)
{
    EXPECT_THAT(keptMacroLines("\r\n   \r\nrem\r\nREM\r\n ReM\r\n~\r\n//\r\n~ A = a\r\n~=\r\n"), IsEmpty());
}

TEST(KeptMacroLines, KeepsRemWithBlanksBehindItAndLongerComments)
{
    EXPECT_THAT(keptMacroLines("Rem \r\nrema\r\n~ note\r\n~~\r\n///\r\n// A = a"),
                ElementsAre("Rem ", "rema", "~ note", "~~", "///", "// A = a"));
}

TEST(KeptMacroLines, TakesLinesThatEndInCrAlone)
{
    EXPECT_THAT(keptMacroLines("A = a\rB = b\r\rC = c"), ElementsAre("A = a", "B = b", "C = c"));
}

// ---- macros ---------------------------------------------------------------------------------------------------------

TEST(ExtractMacros, AMacroLineWithAnInnerBlankKeepsItInTheName)
{
    EXPECT_THAT(analysed("A B = x").macros[0], ElementsAre("A B"));
}

TEST(ExtractMacros, TheNameHasNoBlanksAtItsEnds)
{
    EXPECT_THAT(analysed("  Fire   = x = y").macros[0], ElementsAre("Fire"));
}

TEST(ExtractMacros, ALineThatBeginsWithEqualsGivesAnEmptyName)
{
    EXPECT_THAT(analysed("= x\r\n   =").macros[0], ElementsAre("", ""));
}

TEST(ExtractMacros, MacrosAboveTheFirstHeadingAreOnlyInAll)
{
    const Analysis a = analysed("A = a\r\n" + heading("Guns") + "B = b\r\nC = c\r\n");
    EXPECT_THAT(a.record.MacroHeadings, ElementsAre("All", "Guns"));
    ASSERT_EQ(a.macros.size(), 2U);
    EXPECT_THAT(a.macros[0], ElementsAre("A", "B", "C"));
    EXPECT_THAT(a.macros[1], ElementsAre("B", "C"));
}

TEST(ExtractMacros, ALineWithoutEqualsIsNoMacro) { EXPECT_THAT(analysed("Fire\r\nRem x = y").macros[0], IsEmpty()); }

TEST(ExtractMacros, ACommentOfTwoSlashesWithEqualsIsAMacro)
{
    EXPECT_THAT(analysed("// note = x").macros[0], ElementsAre("// note"));
}

TEST(ExtractMacros, RemWithoutABlankBehindItIsAMacrosName)
{
    EXPECT_THAT(analysed("rem=3").macros[0], ElementsAre("rem"));
    EXPECT_THAT(analysed("rem =3").macros[0], IsEmpty());
}

TEST(ExtractMacros, ALineOfATabAndRemIsAMacroWhoseNameBeginsWithTheTab)
{
    EXPECT_THAT(analysed("\tRem x = y").macros[0], ElementsAre("\tRem x"));
}

TEST(ExtractMacros, AMacroDefinedTwiceStandsTwiceInTheLists)
{
    const Analysis a = analysed(heading("h") + "A = 1\r\nA = 2\r\n");
    EXPECT_THAT(a.macros[0], ElementsAre("A", "A"));
    EXPECT_THAT(a.macros[1], ElementsAre("A", "A"));
}

TEST(ExtractMacros, ANameMayHoldEveryByte)
{
    std::string name;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n' && byte != '=') name += static_cast<char>(byte);
    }
    name += '\0';
    name += '.';
    const Analysis a = analysed(name + " = x");
    ASSERT_EQ(a.macros[0].size(), 1U);
    EXPECT_EQ(windows1252FromUtf8(a.macros[0][0]), name);
}

// ---- headings -------------------------------------------------------------------------------------------------------

TEST(ExtractMacros, ARemHeadingInCapitalsIsShownWithOneCapital)
{
    const Analysis a = analysed("REM -----\r\nREM    AIR TO AIR  \r\nrem --\r\nA = a\r\n");
    EXPECT_THAT(a.record.MacroHeadings, ElementsAre("All", "Air to air"));
    EXPECT_EQ(a.record.MacroFileLines[1], "AIR TO AIR") << "cut in place, in its own case";
}

TEST(ExtractMacros, ABoxHeadingIsReadWithAndWithoutItsSide)
{
    const std::string top = "~\xC9\xCD\xCD\xCD\xCD\xCD\r\n";
    const std::string bottom = "~\xC8\xCD\xCD\xCD\xCD\xCD\r\n";
    EXPECT_THAT(analysed(top + "~\xBA  RADAR  \xBA\r\n" + bottom + "A = a").record.MacroHeadings,
                ElementsAre("All", "Radar"));
    EXPECT_THAT(analysed(top + "~\xBA \xC9\x54\xC9\r\n" + bottom + "A = a").record.MacroHeadings,
                ElementsAre("All", "\xC3\x89t\xC3\xA9"));
}

TEST(ExtractMacros, ABoxOfLowerCaseLettersFoldsToTheSameBox)
{
    EXPECT_THAT(analysed("~\xE9\xED\xED\xED\xED\r\n~\xBAx\r\n~\xE8\xED\xED\xED\xED\r\nA = a").record.MacroHeadings,
                ElementsAre("All", "X"));
}

TEST(ExtractMacros, AHeadingWhoseClosingRuleIsTheLastKeptLineIsNotTaken)
{
    const Analysis a = analysed(heading("Guns"));
    EXPECT_THAT(a.record.MacroHeadings, ElementsAre("All"));
    EXPECT_THAT(a.macros[0], IsEmpty());
    EXPECT_EQ(a.record.MacroFileLines[1], "Rem   Guns");
}

TEST(ExtractMacros, AHeadingWithOneLineBelowItsClosingRuleIsTaken)
{
    EXPECT_THAT(analysed(heading("Guns") + "A = a").record.MacroHeadings, ElementsAre("All", "Guns"));
    EXPECT_THAT(analysed(heading("Guns") + "\r\n//\r\nrem\r\n").record.MacroHeadings, ElementsAre("All"))
        << "lines that say nothing don't count";
}

TEST(ExtractMacros, TheMiddleOfAHeadingThatIsNotTakenIsAMacroUnlessItIsAComment)
{
    EXPECT_THAT(analysed("Rem ---\r\nx = y\r\nRem ---").macros[0], ElementsAre("x"));
    EXPECT_THAT(analysed("Rem ---\r\nRem x = y\r\nRem ---").macros[0], IsEmpty());
}

TEST(ExtractMacros, RuleLinesAreJudgedByTheirFirstSixCharacters)
{
    EXPECT_THAT(analysed("Rem --x\r\nRem h\r\nrem --\r\nA = a").record.MacroHeadings, ElementsAre("All", "H"));
    EXPECT_THAT(analysed("Rem -\r\nRem h\r\nRem --\r\nA = a").record.MacroHeadings, ElementsAre("All"));
    EXPECT_THAT(analysed("Rem --\r\nRem h\r\nRem  --\r\nA = a").record.MacroHeadings, ElementsAre("All"));
    EXPECT_THAT(analysed("Rem --\r\nRem h\r\n~\xC8\xCD\xCD\xCD\xCD\r\nA = a").record.MacroHeadings, ElementsAre("All"));
}

TEST(ExtractMacros, AMiddleLineTooShortForItsCommentStaysAsItIs)
{
    EXPECT_THAT(analysed("Rem --\r\nab\r\nRem --\r\nA = a").record.MacroHeadings, ElementsAre("All", "Ab"));
    EXPECT_THAT(analysed("Rem --\r\nabc\r\nRem --\r\nA = a").record.MacroHeadings, ElementsAre("All", ""));
    EXPECT_THAT(analysed("~\xC9\xCD\xCD\xCD\xCD\r\nx\r\n~\xC8\xCD\xCD\xCD\xCD\r\nA = a").record.MacroHeadings,
                ElementsAre("All", "X"));
}

TEST(ExtractMacros, TwoHeadingsThatDifferOnlyInCaseAreTwoElements)
{
    EXPECT_THAT(analysed(heading("GUNS") + "A = a\r\n" + heading("guns") + "B = b").record.MacroHeadings,
                ElementsAre("All", "Guns", "Guns"));
}

TEST(ExtractMacros, ACommentBetweenMacrosChangesNothing)
{
    const Analysis a = analysed(heading("h") + "A = a\r\nRem note\r\n~ note\r\nB = b");
    EXPECT_THAT(a.macros[1], ElementsAre("A", "B"));
}

TEST(ExtractMacros, ABinaryFileIsAnalysedLikeAnyOther)
{
    std::string file;
    for (int i = 0; i < 5000; ++i) file += static_cast<char>((i * 7919) % 256);
    const Analysis a = analysed(file);
    std::size_t expected = 0;
    for (const std::string& line : keptMacroLines(file))
        if (line.find('=') != std::string::npos) ++expected;
    EXPECT_EQ(a.macros[0].size(), expected);
    EXPECT_GT(expected, 0U);
}

TEST(ExtractMacros, ALineOfFiveMegabytesIsAMacro)
{
    const std::string name(5'000'000, 'n');
    EXPECT_THAT(analysed(name + " = x").macros[0], ElementsAre(name));
}

TEST(ExtractMacros, AHundredThousandHeadingsHaveAListEach)
{
    std::string file;
    for (int i = 0; i < 100'000; ++i) {
        const std::string number = std::to_string(i);
        file.append(heading(std::string("H").append(number))).append("M").append(number).append(" = x\r\n");
    }
    const Analysis a = analysed(file);
    ASSERT_EQ(a.macros.size(), 100'001U);
    EXPECT_EQ(a.macros[0].size(), 100'000U);
    EXPECT_THAT(a.macros[100'000], ElementsAre("M99999"));
    EXPECT_EQ(a.record.MacroHeadings[100'000], "H99999");
}

TEST(RemoveSpacesFromMacroName, KeepsWhatStandsBeforeTheFirstEquals)
{
    MacroRecord record;
    record.CurrentMacroName = "  a b  = c = d";
    RemoveSpacesFromMacroName(record);
    EXPECT_EQ(record.CurrentMacroName, "a b");
}

TEST(RemoveSpacesFromMacroName, NothingButBlanksGivesAnEmptyName)
{
    MacroRecord record;
    record.CurrentMacroName = "     =";
    RemoveSpacesFromMacroName(record);
    EXPECT_EQ(record.CurrentMacroName, "");
}

TEST(DefinitionOf, WantsTheNameOneBlankAndEqualsInAnyCase)
{
    const Lines lines{"Fire  = two blanks", "Fire= none", "FIRE = yes", "fire = later"};
    const std::string* line = definitionOf(lines, "fire");
    ASSERT_TRUE(line);
    EXPECT_EQ(*line, "FIRE = yes");
    EXPECT_FALSE(definitionOf(lines, "fir"));
    EXPECT_FALSE(definitionOf({"F = x", "F ="}, "G"));
    EXPECT_TRUE(definitionOf({"F ="}, "F"));
}

} // namespace
} // namespace tarvex
