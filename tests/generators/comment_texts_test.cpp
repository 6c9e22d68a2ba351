#include "generators/comment_texts.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tarvex {
namespace {

std::size_t blanksBefore(const std::string& text)
{
    const std::string line = centredTitleLine(text);
    EXPECT_TRUE(line.starts_with("Rem "));
    EXPECT_TRUE(line.ends_with(text));
    return line.size() - 4 - text.size();
}

TEST(CentredTitleLine, ATextOfEvenLengthHasHalfOfTheRestBeforeIt)
{
    EXPECT_EQ(centredTitleLine("by Ned"), "Rem " + std::string(23, ' ') + "by Ned");
    EXPECT_EQ(blanksBefore(""), 26U);
}

TEST(CentredTitleLine, AHalfBlankIsRoundedToTheEvenNumber)
{
    EXPECT_EQ(blanksBefore("abc"), 24U);       // of 24.5
    EXPECT_EQ(blanksBefore("abcde"), 24U);     // of 23.5
    EXPECT_EQ(blanksBefore("abcdefg"), 22U);   // of 22.5
    EXPECT_EQ(blanksBefore("abcdefghi"), 22U); // of 21.5
}

TEST(CentredTitleLine, ATextOf45CharactersIsCentred)
{
    EXPECT_EQ(blanksBefore(std::string(45, 'x')), 4U); // of 3.5
}

TEST(CentredTitleLine, ATextOf46CharactersStandsDirectlyAfterRem) { EXPECT_EQ(blanksBefore(std::string(46, 'x')), 0U); }

TEST(CentredTitleLine, ATextBeyondTheBorderIsNotCut)
{
    EXPECT_EQ(centredTitleLine(std::string(200, 'x')), "Rem " + std::string(200, 'x'));
}

TEST(HeadingRule, AHeadingOf4CharactersHas24Dashes) { EXPECT_EQ(headingRule("Harm"), "Rem " + std::string(24, '-')); }

TEST(HeadingRule, OfNoHeadingHas20Dashes) { EXPECT_EQ(headingRule(""), "Rem " + std::string(20, '-')); }

TEST(HeadingNames, AreTheseInThisOrder)
{
    std::string all;
    for (const std::string_view name : headingNames()) all += (all.empty() ? "" : ", ") + std::string(name);
    EXPECT_EQ(all,
              "Game control, Communications, Avionics, Aircraft Control, Head Up Display, Cockpit Views, "
              "External views, Smart Views, Options, Mission Planning, Multiplayer, Movement, Weapons, Navigation, "
              "Engines, Autopilot, Damage, ASE Controls, IHADS, TADS, MFDs, Targeting, FCR, Systems, "
              "Virtual cockpit, Throttle, Flight controls, Combat controls, Lantirn, Countermeasures, Engagement, "
              "Formation, Refuel, Airfield, AWACS, Wingmen, Defence, Cameras, Display, Modes, Nozzles, "
              "Panning controls, Steering, Sonar, Views, Radar, Target selection, Scan volume, Electro-optical, "
              "Harm, View modifiers, Additional views, Simulation, Radio, Radio voice messaging, Wingman commands");
}

} // namespace
} // namespace tarvex
