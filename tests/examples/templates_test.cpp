// The templates in resources/templates are inserted into users' files: their statements have to be right.
#include "controller_text.h"
#include "scan_code_balance.h"
#include "statements.h"
#include "vocabulary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

using namespace examples;
using testing::IsEmpty;

namespace {

/// The plain templates by name; those of macro files have "macro" in it.
const std::map<std::string, std::string>& templates()
{
    static const auto all = [] {
        std::map<std::string, std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(TARVEX_SOURCE_DIRECTORY) /
                                                                     "resources/templates")) {
            if (entry.path().extension() != ".txt") continue;
            std::ifstream file(entry.path(), std::ios::binary);
            found[entry.path().filename().string()] = {std::istreambuf_iterator<char>(file), {}};
        }
        return found;
    }();
    return all;
}

bool isForMacroFile(const std::string& name) { return name.find("macro") != std::string::npos; }

std::set<std::string> allMacros()
{
    std::set<std::string> names;
    for (const auto& [name, text] : templates()) {
        if (!isForMacroFile(name)) continue;
        for (const MacroDefinition& macro : definitionsOf(linesOf(text)))
            EXPECT_TRUE(names.insert(macro.name).second) << name << ": " << macro.name << " is defined twice";
    }
    return names;
}

} // namespace

TEST(Templates, EveryLineEndsWithCrLfAndEveryByteIsACharacter)
{
    ASSERT_GE(templates().size(), 15U);
    for (const auto& [name, text] : templates()) {
        EXPECT_THAT(lineEndProblems(text), IsEmpty()) << name;
        EXPECT_THAT(byteProblems(text), IsEmpty()) << name;
    }
}

TEST(Templates, EveryStatementIsKnownAndItsMacrosAreInATemplate)
{
    const std::set<std::string> macros = allMacros();
    for (const auto& [name, text] : templates()) {
        if (isForMacroFile(name)) continue;
        for (const std::string& statement : statementsOf(linesOf(text)))
            EXPECT_TRUE(isKnownStatement(statement, macros)) << name << ": " << statement;
    }
}

TEST(Templates, EveryDefinitionIsWellFormedAndMadeOfKeysAndSlashCodes)
{
    for (const auto& [name, text] : templates()) {
        if (!isForMacroFile(name)) continue;
        EXPECT_THAT(definitionProblems(linesOf(text)), IsEmpty()) << name;
        EXPECT_THAT(headingProblems(linesOf(text)), IsEmpty()) << name;
        EXPECT_FALSE(headingsOf(linesOf(text)).empty()) << name;
        for (const MacroDefinition& macro : definitionsOf(linesOf(text)))
            for (const std::string& word : wordsOf(macro.body))
                EXPECT_TRUE(isKey(word) || isSlashCode(word)) << name << ": " << macro.body;
    }
}

TEST(Templates, BracketsAreClosedAndRawCodesLeaveNoKeyDown)
{
    for (const auto& [name, text] : templates()) {
        for (const std::string& line : linesOf(text)) {
            const std::string code = withoutComment(line);
            EXPECT_THAT(bracketProblems(code), IsEmpty()) << name << ": " << code;
            const std::vector<std::string> groups = rawGroupsOf(code);
            ASSERT_THAT(rawFormProblems(groups), IsEmpty()) << name << ": " << code;
            EXPECT_THAT(scanCodeProblems(groups), IsEmpty()) << name << ": " << code;
        }
    }
}
