// The files in examples/ are what a new user opens first: they have to be right in every byte.
#include "controller_text.h"
#include "scan_code_balance.h"
#include "statements.h"
#include "vocabulary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

using namespace examples;
using testing::IsEmpty;

namespace {

struct Pair {
    std::string base;
    std::string joystickExtension;
    std::string macroExtension;
    std::string joystickFile() const { return base + "." + joystickExtension; }
    std::string macroFile() const { return base + "." + macroExtension; }
};

const std::array<Pair, 3> pairs = {{{"lance", "f22", "m22"}, {"kestrel", "b50", "m50"}, {"contrail", "adv", "mdf"}}};

const std::filesystem::path folder = std::filesystem::path(TARVEX_SOURCE_DIRECTORY) / "examples";

std::string bytesOf(const std::string& name)
{
    std::ifstream file(folder / name, std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> linesOfFile(const std::string& name) { return linesOf(bytesOf(name)); }

std::vector<std::string> allFiles()
{
    std::vector<std::string> names;
    for (const Pair& pair : pairs) {
        names.push_back(pair.joystickFile());
        names.push_back(pair.macroFile());
    }
    return names;
}

/// The code of a file, statement by statement or definition by definition.
std::vector<std::string> codeOf(const std::string& name, bool macroFile)
{
    std::vector<std::string> code;
    if (!macroFile) return statementsOf(linesOfFile(name));
    for (const MacroDefinition& macro : definitionsOf(linesOfFile(name))) code.push_back(macro.body);
    return code;
}

std::vector<std::string> allCodeOf(const Pair& pair)
{
    std::vector<std::string> code = codeOf(pair.joystickFile(), false);
    for (const std::string& body : codeOf(pair.macroFile(), true)) code.push_back(body);
    return code;
}

std::set<std::string> macrosOf(const Pair& pair)
{
    std::set<std::string> names;
    for (const MacroDefinition& macro : definitionsOf(linesOfFile(pair.macroFile()))) names.insert(macro.name);
    return names;
}

std::string lowerCase(std::string text)
{
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

/// The name behind MDEF, or "" if the file has not exactly one MDEF line.
std::string macroFileNamedIn(const Pair& pair)
{
    std::vector<std::string> names;
    for (const std::string& statement : codeOf(pair.joystickFile(), false))
        if (const auto words = wordsOf(statement); words.size() == 2 && words[0] == "MDEF") names.push_back(words[1]);
    return names.size() == 1 ? names[0] : "";
}

/// The macros that the joystick file's statements name.
std::set<std::string> macrosUsedIn(const Pair& pair)
{
    const std::set<std::string> macros = macrosOf(pair);
    std::set<std::string> used;
    for (const std::string& statement : codeOf(pair.joystickFile(), false))
        for (const std::string& word : wordsOf(statement))
            if (macros.contains(word)) used.insert(word);
    return used;
}

} // namespace

TEST(ExampleFiles, EveryLineEndsWithCrLf)
{
    for (const std::string& name : allFiles()) EXPECT_THAT(lineEndProblems(bytesOf(name)), IsEmpty()) << name;
}

TEST(ExampleFiles, EveryByteIsACharacterOfWindows1252)
{
    for (const std::string& name : allFiles()) EXPECT_THAT(byteProblems(bytesOf(name)), IsEmpty()) << name;
}

TEST(ExampleFiles, LengthIsFrom150To400Lines)
{
    for (const std::string& name : allFiles()) {
        const std::size_t count = linesOfFile(name).size();
        EXPECT_GE(count, 150U) << name;
        EXPECT_LE(count, 400U) << name;
    }
}

TEST(ExampleFiles, MdefNamesTheMacroFileOfThePairInEightCharacters)
{
    for (const Pair& pair : pairs) {
        const std::string name = macroFileNamedIn(pair);
        EXPECT_EQ(lowerCase(name), pair.base);
        EXPECT_LE(name.size(), 8U);
        EXPECT_TRUE(std::filesystem::exists(folder / (lowerCase(name) + "." + pair.macroExtension))) << name;
    }
}

TEST(ExampleFiles, EveryStatementIsKnownAndUsesOnlyKeysAndMacrosThatExist)
{
    for (const Pair& pair : pairs) {
        const std::set<std::string> macros = macrosOf(pair);
        for (const std::string& statement : codeOf(pair.joystickFile(), false))
            EXPECT_TRUE(isKnownStatement(statement, macros)) << pair.joystickFile() << ": " << statement;
    }
}

TEST(ExampleFiles, EveryDefinitionHasOneBlankBeforeItsEqualsSign)
{
    for (const Pair& pair : pairs)
        EXPECT_THAT(definitionProblems(linesOfFile(pair.macroFile())), IsEmpty()) << pair.macroFile();
}

TEST(ExampleFiles, EveryMacroIsDefinedOnce)
{
    for (const Pair& pair : pairs) {
        std::set<std::string> names;
        for (const MacroDefinition& macro : definitionsOf(linesOfFile(pair.macroFile())))
            EXPECT_TRUE(names.insert(lowerCase(macro.name)).second) << pair.macroFile() << ": " << macro.name;
    }
}

TEST(ExampleFiles, EveryMacroBodyIsMadeOfKeysAndSlashCodes)
{
    for (const Pair& pair : pairs)
        for (const std::string& body : codeOf(pair.macroFile(), true))
            for (const std::string& word : wordsOf(body))
                EXPECT_TRUE(isKey(word) || isSlashCode(word)) << pair.macroFile() << ": " << body;
}

TEST(ExampleFiles, GreyKeysAreSpelledWithAuxForTheF22ProAndOnlyForIt)
{
    static const std::regex plain("INS|DEL|HOME|END|PGUP|PGDN|[UDLR]AROW|KPENT|KP/");
    for (const Pair& pair : pairs)
        for (const std::string& code : allCodeOf(pair))
            for (const std::string& word : wordsOf(code)) {
                const bool foreign =
                    pair.joystickExtension == "f22" ? std::regex_match(word, plain) : word.starts_with("AUX");
                EXPECT_FALSE(foreign) << pair.base << ": " << code;
            }
}

TEST(ExampleFiles, SomeMacrosAreUsedAndSomeAreNot)
{
    for (const Pair& pair : pairs) {
        const std::size_t used = macrosUsedIn(pair).size();
        EXPECT_GE(used, 20U) << pair.base;
        EXPECT_GE(macrosOf(pair).size(), used + 10U) << pair.base;
    }
}

TEST(ExampleFiles, EveryBracketIsClosed)
{
    for (const Pair& pair : pairs)
        for (const std::string& code : allCodeOf(pair)) EXPECT_THAT(bracketProblems(code), IsEmpty()) << pair.base;
}

TEST(ExampleFiles, RawCodesAndTimedItemsAreClosedOnTheirLineEvenInComments)
{
    static const std::regex open(R"((RAW ?|DLY|RPT)\([^)]*$)", std::regex::icase);
    for (const std::string& name : allFiles())
        for (const std::string& line : linesOfFile(name))
            EXPECT_FALSE(std::regex_search(line, open)) << name << ": " << line;
}

TEST(ExampleFiles, RawCodesAreWellFormedAndLeaveNoKeyDown)
{
    for (const Pair& pair : pairs)
        for (const std::string& code : allCodeOf(pair)) {
            const std::vector<std::string> groups = rawGroupsOf(code);
            ASSERT_THAT(rawFormProblems(groups), IsEmpty()) << pair.base << ": " << code;
            EXPECT_THAT(scanCodeProblems(groups), IsEmpty()) << pair.base << ": " << code;
        }
}

TEST(ExampleFiles, EveryHeadingIsWellFormed)
{
    for (const Pair& pair : pairs)
        EXPECT_THAT(headingProblems(linesOfFile(pair.macroFile())), IsEmpty()) << pair.macroFile();
}

TEST(ExampleFiles, BothFormsOfHeadingsOccurAtLeastTwice)
{
    std::size_t remRules = 0;
    std::size_t boxTops = 0;
    std::size_t headings = 0;
    for (const Pair& pair : pairs) {
        const auto lines = linesOfFile(pair.macroFile());
        headings += headingsOf(lines).size();
        for (const std::string& line : lines) {
            remRules += lowerCase(line).starts_with("rem --") ? 1 : 0;
            boxTops +=
                line.starts_with("~\xC9\xCD\xCD\xCD\xCD") && line.size() < 50 ? 1 : 0; // the title's box is wider
        }
    }
    EXPECT_GE(remRules, 4U);
    EXPECT_GE(boxTops, 2U);
    EXPECT_EQ(headings, remRules / 2 + boxTops);
}

TEST(ExampleFiles, MacrosStandAboveTheFirstHeading)
{
    for (const Pair& pair : pairs) {
        const auto lines = linesOfFile(pair.macroFile());
        const auto definition = std::find_if(lines.begin(), lines.end(), [](const std::string& line) {
            return withoutComment(line).find(" = ") != std::string::npos;
        });
        const std::vector<std::string> above(lines.begin(), definition);
        EXPECT_THAT(headingsOf(above), IsEmpty()) << pair.macroFile();
        EXPECT_FALSE(headingsOf(lines).empty()) << pair.macroFile();
    }
}

TEST(ExampleFiles, TogetherTheyShowTheWordsOfTheLanguage)
{
    std::string code;
    std::string text;
    for (const Pair& pair : pairs) {
        for (const std::string& part : allCodeOf(pair)) code += part + "\n";
        text += bytesOf(pair.joystickFile()) + bytesOf(pair.macroFile());
    }
    for (const char* word :
         {"BTN ",   "BTN X1 ", "DEF X1 ", "MDEF ",  "RATE ",  "USE TQS", "USE WCS",    "USE RCS", "RNG 1 ",
          "ANT 2 ", "THR 1 ",  "RDDR 3",  "JSX 1 ", "JSY 1 ", "SWAPTG",  "PortB1 IS ", "/U ",     "/M ",
          "/D ",    "/I ",     "/O ",     "/T /N ", "/P ",    "/R ",     "/H ",        "RAW (",   "DLY(",
          "RPT(",   " AND ",   " OR ",    " NOT ",  "DELAY(", "PULSE(",  "CMPLT(",     "CMPGT("})
        EXPECT_NE(code.find(word), std::string::npos) << word;
    for (const char* comment : {"\nRem ", "\nREM ", " Rem ", " rem ", "\n~ ", " ~ ", "\n// ", " // "})
        EXPECT_NE(text.find(comment), std::string::npos) << comment;
}
