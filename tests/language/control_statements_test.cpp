#include "language/control_statements.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> headsOf(std::string_view text)
{
    std::vector<std::string> heads;
    for (const auto& [head, statement] : controlStatements(text)) heads.push_back(head);
    return heads;
}

std::string statementOf(std::string_view text, const std::string& head)
{
    const auto statements = controlStatements(text);
    const auto found = statements.find(head);
    return found == statements.end() ? "none" : found->second.text;
}

TEST(ControlStatements, BelongToEachButtonAxisRockerAndPort)
{
    const std::pair<const char*, const char*> heads[] = {
        {"BTN S1 a", "BTN S1"}, {"btn\ts1\ta", "BTN S1"},   {"RNG 1 a", "RNG"},        {"ant 2", "ANT"},
        {"THR 3", "THR"},       {"JSX 1", "JSX"},           {"JSY 1", "JSY"},          {"RDDR 1", "RDDR"},
        {"SWAPTG", "SWAPTG"},   {"RKR UP a", "RKR UP"},     {"rkr  dn a", "RKR DN"},   {"PortB1 IS H1", "PORTB1"},
        {"BTN", "BTN "},        {"BTN PortB2 x", "PORTB2"}, {" \t BTN T1 a", "BTN T1"}};
    for (const auto& [line, head] : heads) EXPECT_THAT(headsOf(line), ElementsAre(head)) << line;
}

TEST(ControlStatements, AreNotWhatOtherWordsAndCommentsBegin)
{
    for (const char* line :
         {"USE RCS", "MDEF mig", "RATE 30", "NULLCHR ^", "DEF X1 a", "@digitalthrottle", "Rem BTN S1", "rem", "~BTN S1",
          "~ BTN S1", "//BTN S1", "// BTN S1", "", " \t", "fire BTN S1", "PortB", "PortB12 x", "xPortB1", "BTNS1"})
        EXPECT_THAT(headsOf(line), IsEmpty()) << line;
}

TEST(ControlStatements, EndWhereAWordOfTheLanguageBeginsALine)
{
    for (const char* next : {"BTN S2 b", "RNG 1", "RKR UP a", "PortB1 IS H1", "USE RCS", "MDEF mig", "RATE 30",
                             "NULLCHR ^", "DEF X a", "@digitalthrottle"})
        EXPECT_EQ(statementOf("BTN S1 a\r\n" + std::string(next), "BTN S1"), "BTN S1 a") << next;
}

TEST(ControlStatements, HoldTheLinesBelowWithTheCommentsBetweenThemAndNoneAtTheirEnd)
{
    EXPECT_EQ(statementOf("BTN S1 /U a\r\n   /D b\r\n\r\nRem c\r\n/M d \r\n\r\nRem end\r\n~ end\r\nBTN S2 x", "BTN S1"),
              "BTN S1 /U a\r\n   /D b\r\n\r\nRem c\r\n/M d ");
    EXPECT_EQ(statementOf("BTN S1 a\r\nremote", "BTN S1"), "BTN S1 a\r\nremote") << "no comment";
    EXPECT_EQ(statementOf("BTN S1 a", "BTN S1"), "BTN S1 a") << "at the text's end";
}

TEST(ControlStatements, LinesOfAStatementOfNoControlAreNobodys)
{
    EXPECT_EQ(statementOf("BTN S1 a\r\nUSE RCS\r\n/I b\r\nBTN S2 c", "BTN S1"), "BTN S1 a");
    EXPECT_THAT(headsOf("/I b\r\nUSE RCS\r\n/I b"), IsEmpty());
}

TEST(ControlStatements, StandWhereTheirHeadsLineBegins)
{
    const auto statements = controlStatements("Rem x\r\n  BTN S1 a\r\n\r\nBTN S2 b\rBTN S3 c\nBTN S4 d");
    const auto isAt = [&](const char* head, std::int64_t line, std::int64_t position) {
        const auto found = statements.find(head);
        ASSERT_NE(found, statements.end()) << head;
        EXPECT_EQ(found->second.line, line) << head;
        EXPECT_EQ(found->second.position, position) << head;
    };
    isAt("BTN S1", 2, 7);
    isAt("BTN S2", 4, 21);
    isAt("BTN S3", 5, 30);
    isAt("BTN S4", 6, 39);
    EXPECT_EQ(statements.at("BTN S1").text, "  BTN S1 a");
    EXPECT_EQ(statements.at("BTN S3").text, "BTN S3 c");
}

TEST(ControlStatements, OfTwoWithOneHeadTheFirstCounts)
{
    EXPECT_EQ(statementOf("BTN S1 a\r\nbtn  s1 b\r\n/I c", "BTN S1"), "BTN S1 a");
}

} // namespace
} // namespace tarvex
