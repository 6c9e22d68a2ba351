#include "language/macro_analysis.h"

#include "language/commands/macro_keys.h"
#include "language/macro_file_lines.h"
#include "platform/windows1252.h"
#include "support/test_program.h"

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

std::string heading(const std::string& words) { return "Rem -----\r\nRem   " + words + "\r\nRem -----\r\n"; }

// ---- lines
// --------------------------------------------------------------------------------------------------------------

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

// ---- macros
// -------------------------------------------------------------------------------------------------------------

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

// ---- headings
// -----------------------------------------------------------------------------------------------------------

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

// ---- in the program
// -----------------------------------------------------------------------------------------------------

struct MacroListTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    FrameMacros& frame = editor.FrameMacros;

    void analyse(const std::string& file)
    {
        t.files.addFile("c:\\a\\x.m50", file);
        editor.pair.MacroFilePath = "c:\\a\\x.m50";
        editor.pair.MacroFileName = "x.m50";
        ClearAllForNewMacroFile(editor);
        GetEachLineFromMacroFile(editor);
        ExtractMacrosAndTitles(editor);
    }
    std::vector<std::string> names(std::size_t list)
    {
        std::vector<std::string> texts;
        for (const auto& item : frame.List1.at(list).Items.get()) texts.push_back(item.Text);
        return texts;
    }
    std::string tip() { return t.program().mum.StatusBar.Panels(8).ToolTipText; }
};

TEST_F(MacroListTest, TheFrameShowsHeadingsAndAllMacros)
{
    analyse("A = a\r\n" + heading("GUNS") + "B = b\r\n");
    EXPECT_THAT(frame.Combo1.Items.get(), ElementsAre("All", "Guns"));
    EXPECT_EQ(frame.Combo1.Text.get(), "All");
    EXPECT_THAT(names(0), ElementsAre("A", "B"));
    EXPECT_THAT(names(1), ElementsAre("B"));
    EXPECT_TRUE(frame.List1[0].Visible);
    EXPECT_FALSE(frame.List1[1].Visible);
    EXPECT_EQ(editor.macros.HeadingShown, 0);
    EXPECT_EQ(t.status(), "Done");
    EXPECT_EQ(tip(), "Contains 2 macros and 1 macro headings");
    EXPECT_EQ(frame.List1[1].ToolTipText.get(),
              "Double click macro to insert into Joystick file, or use drag and drop");
}

TEST_F(MacroListTest, StatusLinesTellTheFileByItsTitle)
{
    std::vector<std::string> lines;
    const auto listening =
        t.program().mum.StatusBar.Panels(1).Text.changed.connect([&] { lines.push_back(t.status()); });
    analyse("A = a");
    EXPECT_THAT(lines, ElementsAre("Opening x.m50 file for analysis ",
                                   "Analysing x.m50 for macros and sub-headings. Please wait ...", "Done"));
}

TEST_F(MacroListTest, TheKeptLinesAreWrittenToTheDebrisFileAtEachRun)
{
    analyse("  A = a\r\n\r\nrem\r\nRem x\r\n");
    EXPECT_EQ(t.fileText("c:\\macro.txt"), "A = a\r\nRem x\r\n");
    analyse("");
    EXPECT_EQ(t.fileText("c:\\macro.txt"), "");
}

TEST_F(MacroListTest, AFailureToWriteTheDebrisFileGoesToTheReporterAndTheListIsThere)
{
    t.files.failWrites("c:\\macro.txt", RuntimeError(ErrorCode::PathFileAccess, "no"));
    analyse("A = a");
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "ED_GetEachLineFromMacroFile");
    EXPECT_THAT(names(0), ElementsAre("A"));
}

TEST_F(MacroListTest, AMissingFileLeavesTheLinesAsTheyAre)
{
    analyse("A = a");
    editor.pair.MacroFilePath = "c:\\a\\gone.m50";
    t.files.clearWrites();
    GetEachLineFromMacroFile(editor);
    EXPECT_THAT(editor.macros.MacroFileLines, ElementsAre("A = a"));
    EXPECT_TRUE(t.files.writes().empty());
}

TEST_F(MacroListTest, AFileThatCantBeReadHasNoLinesAndIsReported)
{
    analyse("A = a");
    t.files.failReads("c:\\a\\x.m50", RuntimeError(ErrorCode::PermissionDenied, "no"));
    GetEachLineFromMacroFile(editor);
    EXPECT_THAT(editor.macros.MacroFileLines, IsEmpty());
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "ED_GetEachLineFromMacroFile");
}

TEST_F(MacroListTest, ClearAllForNewMacroFileUnloadsAllListsButTheFirst)
{
    analyse(heading("h") + "A = a");
    editor.macros.MacroListDirty = 0;
    int told = 0;
    const auto listening = frame.List1Changed.connect([&] { ++told; });
    ClearAllForNewMacroFile(editor);
    EXPECT_EQ(frame.List1.size(), 1U);
    EXPECT_THAT(names(0), IsEmpty());
    EXPECT_THAT(frame.Combo1.Items.get(), IsEmpty());
    EXPECT_THAT(editor.macros.MacroHeadings, IsEmpty());
    EXPECT_EQ(editor.macros.MacroListDirty, 1);
    EXPECT_EQ(told, 1);
}

TEST_F(MacroListTest, AHeadingCalledAllIsTheOneThatIsNotedForItIsTheLastOfThatName)
{
    analyse("A = a\r\n" + heading("ALL") + "B = b");
    EXPECT_EQ(editor.macros.HeadingShown, 1);
    EXPECT_TRUE(frame.List1[1].Visible);
    EXPECT_FALSE(frame.List1[0].Visible);
}

TEST_F(MacroListTest, NamesComeThroughTheListsByteForByte)
{
    analyse("M\xE9t\xE9o\x80\x81 = x");
    EXPECT_THAT(names(0), ElementsAre("M\xC3\xA9t\xC3\xA9o\xE2\x82\xAC\xC2\x81"));
}

TEST_F(MacroListTest, TheTooltipShowsUpTo32767MacrosAndStaysAsItWasBeyond)
{
    std::string file;
    for (int i = 0; i < 32'767; ++i) file += "M=\r\n";
    analyse(file);
    EXPECT_EQ(tip(), "Contains 32767 macros and 0 macro headings");
    analyse(file + "N=\r\n");
    EXPECT_EQ(names(0).size(), 32'768U);
    EXPECT_EQ(tip(), "Contains 32767 macros and 0 macro headings");
}

TEST_F(MacroListTest, AHundredThousandHeadingsFillTheFrame)
{
    std::string file;
    for (int i = 0; i < 100'000; ++i) file += heading("all") + "M = x\r\n";
    analyse(file);
    EXPECT_EQ(frame.List1.size(), 100'001U);
    EXPECT_EQ(names(0).size(), 100'000U);
    EXPECT_EQ(editor.macros.HeadingShown, 32'767) << "no higher number fits";
    EXPECT_TRUE(frame.List1[32'767].Visible);
}

} // namespace
} // namespace tarvex
