#include "composer/controls/assigned_controls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace tarvex {
namespace {

std::vector<std::string> namesOf(std::string_view file, std::string_view text)
{
    std::vector<std::string> names;
    for (const AssignedControl& control : controlsOfDocument(file, text)) names.push_back(control.name);
    return names;
}

/// The statement of a name with its line before it; "(none)" without one.
std::string statementOf(std::string_view file, std::string_view text, std::string_view name)
{
    const auto controls = controlsOfDocument(file, text);
    const auto found = std::ranges::find(controls, name, &AssignedControl::name);
    if (found == controls.end()) return "(no such control)";
    return found->statement ? std::to_string(found->line) + ": " + *found->statement : "(none)";
}

TEST(ControlsOfDocument, AreThoseOfItsSticksAndThrottleInTheirOrder)
{
    const auto names = namesOf("a.b50", "USE TQS");
    EXPECT_EQ(names.front(), "S2");
    EXPECT_EQ(names[1], "H1U");
    EXPECT_EQ(names[9], "H1DR");
    EXPECT_THAT(names, testing::IsSupersetOf({"TG1", "TG2", "H4M", "S1", "JSX", "T1", "T14", "RNG", "THR"}));
    EXPECT_THAT(names, testing::Not(testing::Contains("PortB1")));
}

TEST(ControlsOfDocument, OfTheF22HaveItsPorts)
{
    EXPECT_THAT(namesOf("a.f22", ""), testing::IsSupersetOf({"PortB1", "PortB4"}));
    EXPECT_THAT(namesOf("a.f22", ""), testing::Not(testing::Contains("T1")));
}

TEST(ControlsOfDocument, OfAnOlderStickHaveOneHatWithoutCorners)
{
    const auto names = namesOf("A.ADV", "rem wcs");
    EXPECT_THAT(names, testing::IsSupersetOf({"HU", "HM", "UB", "TG", "3", "RKR UP", "RKR MD"}));
    EXPECT_THAT(names, testing::Not(testing::Contains("HUL")));
}

TEST(ControlsOfDocument, AreCalledByTheWordsOfTheLanguage)
{
    for (const char* file : {"a.f22", "a.b50", "a.adv"}) {
        EXPECT_THAT(namesOf(file, "USE TQS"), testing::IsSupersetOf({"RDDR", "THR"})) << file;
        EXPECT_THAT(namesOf(file, "USE TQS"), testing::Not(testing::Contains("Rudder"))) << file;
        EXPECT_THAT(namesOf(file, "USE TQS"), testing::Not(testing::Contains("Throttle"))) << file;
    }
}

TEST(ControlsOfDocument, HaveTheirStatementsWithTheLine)
{
    const std::string text =
        "Rem BTN S1 no\r\nbtn s1 /U Fire\r\n   /M Flare\r\n\r\nRem next\r\nBTN S2\tx\r\nRNG 1 5 a b\r\n";
    EXPECT_EQ(statementOf("a.f22", text, "S1"), "2: btn s1 /U Fire\r\n   /M Flare");
    EXPECT_EQ(statementOf("a.f22", text, "S2"), "6: BTN S2\tx");
    EXPECT_EQ(statementOf("a.f22", text + "USE TQS", "RNG"), "7: RNG 1 5 a b");
    EXPECT_EQ(statementOf("a.f22", text, "S3"), "(none)");
}

TEST(ControlsOfDocument, OfSeveralStatementsTheFirstCounts)
{
    EXPECT_EQ(statementOf("a.f22", "BTN S1 a\r\nBTN S1 b", "S1"), "1: BTN S1 a");
}

TEST(ControlsOfDocument, AStatementEndsBeforeTheNextOfAnyKind)
{
    for (const char* next : {"BTN S2 x", "USE TQS", "MDEF x", "RATE 80", "DEF X1 T1", "PortB1 IS S2", "NULLCHR ^"})
        EXPECT_EQ(statementOf("a.f22", std::string("BTN S1 a\r\n") + next, "S1"), "1: BTN S1 a") << next;
}

TEST(ControlsOfDocument, PortsAndRockersHaveHeadsOfTheirOwn)
{
    EXPECT_EQ(statementOf("a.f22", "PortB1 IS S2", "PortB1"), "1: PortB1 IS S2");
    EXPECT_EQ(statementOf("a.f22", "BTN PORTB2 IS S2", "PortB2"), "1: BTN PORTB2 IS S2");
    EXPECT_EQ(statementOf("a.adv", "rem wcs\r\nRKR  DN x", "RKR DN"), "2: RKR  DN x");
}

TEST(ControlsOfDocument, OfATextWithoutLineEndsOrWithoutAnythingAreFound)
{
    EXPECT_EQ(statementOf("a.f22", "BTN S1", "S1"), "1: BTN S1");
    EXPECT_EQ(statementOf("a.f22", "BTN", "S1"), "(none)");
    EXPECT_EQ(statementOf("", "", "S1"), "(none)");
    EXPECT_EQ(statementOf("a.f22", std::string(1 << 20, 'x'), "S1"), "(none)");
    EXPECT_EQ(statementOf("a.f22", "BTN S2 a\nBTN S1 b\rBTN S3 c", "S3"), "3: BTN S3 c");
}

} // namespace
} // namespace tarvex
