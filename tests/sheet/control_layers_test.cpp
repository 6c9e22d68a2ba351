#include "sheet/control_layers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using Kind = SheetWord::Kind;
using testing::ElementsAre;
using testing::IsEmpty;

const MacroKeys macros{{"Fire", "Spacebar"}, {"Gear", "g"}, {"Zoom", "Shift+F6 Up arrow"}};

ControlLayer layer(char dogfight, char shift, std::vector<SheetWord> words)
{
    return {dogfight, shift, std::move(words)};
}

TEST(ControlLayers, AStatementWithoutModifiersIsOneLayer)
{
    EXPECT_THAT(controlLayers("BTN S1 Fire x", macros),
                ElementsAre(layer(' ', ' ', {{"Fire", Kind::Macro}, {"Spacebar", Kind::Keys}, {"x", Kind::Plain}})));
}

TEST(ControlLayers, ThePositionsOfTheDogfightSwitchAreLayers)
{
    EXPECT_THAT(controlLayers("BTN S1 /U a\r\n  /M b\r\n  /D c", macros),
                ElementsAre(layer('U', ' ', {{"a"}}), layer('M', ' ', {{"b"}}), layer('D', ' ', {{"c"}})));
}

TEST(ControlLayers, S3WithinTheDogfightSwitchBeginsAnewInEachPosition)
{
    EXPECT_THAT(controlLayers("BTN S2 /U /I a /O b /M /I c /O d /D e", macros),
                ElementsAre(layer('U', 'I', {{"a"}}), layer('U', 'O', {{"b"}}), layer('M', 'I', {{"c"}}),
                            layer('M', 'O', {{"d"}}), layer('D', ' ', {{"e"}})));
}

TEST(ControlLayers, TheDogfightSwitchWithinS3BeginsAnewInBothPositions)
{
    EXPECT_THAT(controlLayers("BTN S2 /I /U a /M b /O c", macros),
                ElementsAre(layer('U', 'I', {{"a"}}), layer('M', 'I', {{"b"}}), layer(' ', 'O', {{"c"}})));
}

TEST(ControlLayers, ModifiersCountInAnyCaseAndOthersAreWords)
{
    EXPECT_THAT(controlLayers("btn s1 /i /T a /B b", macros), ElementsAre(layer(' ', 'I', {{"a"}, {"/B"}, {"b"}})));
}

TEST(ControlLayers, CommentsAreNoWords)
{
    EXPECT_THAT(controlLayers("BTN S1 /I a Rem fire\r\n /O b // gear\r\n ~ end", macros),
                ElementsAre(layer(' ', 'I', {{"a"}}), layer(' ', 'O', {{"b"}})));
}

TEST(ControlLayers, AStatementThatDoesNothingHasNoLayers)
{
    EXPECT_THAT(controlLayers("BTN S3  Rem the shift", macros), IsEmpty());
    EXPECT_THAT(controlLayers("BTN S3 /I /O", macros), IsEmpty());
    EXPECT_THAT(controlLayers("BTN", macros), IsEmpty());
    EXPECT_THAT(controlLayers("", macros), IsEmpty());
}

TEST(ControlLayers, AnAxisIsNamedByOneWordAndARockerByTwo)
{
    EXPECT_THAT(controlLayers("RNG 1 5 a", macros), ElementsAre(layer(' ', ' ', {{"1"}, {"5"}, {"a"}})));
    EXPECT_THAT(controlLayers("RKR UP a", macros), ElementsAre(layer(' ', ' ', {{"a"}})));
}

TEST(ControlLayers, EachKeyOfAMacroIsAWord)
{
    EXPECT_THAT(
        controlLayers("BTN S1 Zoom", macros),
        ElementsAre(layer(
            ' ', ' ', {{"Zoom", Kind::Macro}, {"Shift+F6", Kind::Keys}, {"Up", Kind::Keys}, {"arrow", Kind::Keys}})));
}

TEST(ControlLayers, WhatS3DoesNotChangeIsOneLayer)
{
    EXPECT_THAT(controlLayers("BTN TG1 /I Fire /O Fire", macros),
                ElementsAre(layer(' ', ' ', {{"Fire", Kind::Macro}, {"Spacebar", Kind::Keys}})));
    EXPECT_THAT(controlLayers("BTN S1 /U /I a /O a /M /I a /O b", macros),
                ElementsAre(layer('U', ' ', {{"a"}}), layer('M', 'I', {{"a"}}), layer('M', 'O', {{"b"}})));
}

TEST(ControlLayers, WhatTheDogfightSwitchDoesNotChangeIsOneLayer)
{
    EXPECT_THAT(controlLayers("BTN S1 /U /I a /O b /M /I a /O b /D /I a /O b", macros),
                ElementsAre(layer(' ', 'I', {{"a"}}), layer(' ', 'O', {{"b"}})));
    EXPECT_THAT(controlLayers("BTN S1 /U a /M a /D b", macros),
                ElementsAre(layer('U', ' ', {{"a"}}), layer('M', ' ', {{"a"}}), layer('D', ' ', {{"b"}})));
    EXPECT_THAT(controlLayers("BTN S1 /U a /M a", macros),
                ElementsAre(layer('U', ' ', {{"a"}}), layer('M', ' ', {{"a"}})))
        << "the third position does nothing";
}

TEST(ControlLayers, AStatementWithTenThousandModifiersIsRead)
{
    std::string statement = "BTN S1";
    for (int i = 0; i < 10'000; ++i) statement += i % 2 == 0 ? " /I a" : " /O b";
    EXPECT_EQ(controlLayers(statement, macros).size(), 10'000U);
}

TEST(ControlLayers, BytesOfTheCodePageBecomeUtf8)
{
    EXPECT_EQ(controlLayers("BTN S1 \xE4", {}).at(0).words.at(0).text, "ä");
}

TEST(MacroKeys, AreWhatStandsBehindTheEqualsSignWithoutComments)
{
    const MacroKeys keys =
        macroKeys("Rem mine\r\nFire = SPC  Rem bang\r\nTwo Words = x\r\nGear=g\r\nFire = z\r\nNone =\r\n");
    EXPECT_EQ(keys.size(), 3U);
    EXPECT_EQ(keys.at("Fire"), "Spacebar");
    EXPECT_EQ(keys.at("Gear"), "g");
    EXPECT_EQ(keys.at("None"), "");
}

} // namespace
} // namespace tarvex
