#include "testers/key_names.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace tarvex {
namespace {

TEST(WhichKey, NamesOfKeysAreThoseOfTheTable)
{
    const std::pair<int, const char*> names[] = {
        {8, "BackSpace"},  {9, "TAB"},          {12, "CLEAR (KP5)"}, {13, "Enter"},     {19, "PAUSE"},
        {20, "CAPSLOCK"},  {27, "Escape"},      {32, "SpaceBar"},    {33, "PageUP"},    {34, "PageDOWN"},
        {35, "END"},       {36, "HOME"},        {37, "LeftARROW"},   {38, "UpARROW"},   {39, "RightARROW"},
        {40, "DownARROW"}, {42, "PrintScreen"}, {45, "INSERT"},      {46, "DELETE"},    {96, "KP 0"},
        {105, "KP 9"},     {106, "KP *"},       {107, "KP +"},       {108, "KP ENTER"}, {109, "KP -"},
        {110, "KP ."},     {111, "KP /"},       {112, "F1"},         {121, "F10"},      {127, "F16"},
        {186, ";"},        {187, "="},          {188, ","},          {189, "-"},        {190, "."},
        {191, "/"},        {192, "'"},          {219, "["},          {220, "\\"},       {221, "]"},
        {222, "#"},        {223, "`"}};
    for (const auto& [code, name] : names) EXPECT_EQ(WhichKey(code, 0).name, std::string(" ") + name);
}

TEST(WhichKey, CodesBesideTheTablesRangesHaveNoName)
{
    for (const int code : {95, 128, 41, 43, 44, 185, 193, 218, 224}) EXPECT_EQ(WhichKey(code, 0).name, "") << code;
}

TEST(WhichKey, PrefixSaysWhatIsHeld)
{
    const char* prefixes[] = {"",     "Shift ",     "Ctrl ",     "Shift Ctrl ",
                              "Alt ", "Shift Alt ", "Ctrl Alt ", "Shift Ctrl Alt "};
    for (int shift = 0; shift < 8; ++shift)
        EXPECT_EQ(WhichKey(13, shift).name, " " + std::string(prefixes[shift]) + "Enter");
}

TEST(WhichKey, CtrlAndAltAloneHaveNoNameAndSuppressTheKeyPress)
{
    for (const int code : {17, 18}) {
        EXPECT_EQ(WhichKey(code, code == 17 ? 2 : 4).name, "");
        EXPECT_TRUE(WhichKey(code, code == 17 ? 2 : 4).suppressPress);
    }
}

TEST(WhichKey, ShiftAloneHasNoNameAndSuppressesNothing)
{
    EXPECT_EQ(WhichKey(16, 1).name, "");
    EXPECT_FALSE(WhichKey(16, 1).suppressPress);
}

TEST(WhichKey, ShiftWithCtrlHeldSuppressesTheKeyPress)
{
    EXPECT_EQ(WhichKey(16, 3).name, "");
    EXPECT_TRUE(WhichKey(16, 3).suppressPress);
}

TEST(WhichKey, LettersHaveNamesOnlyWithCtrlOrAlt)
{
    EXPECT_EQ(WhichKey('A', 0).name, "");
    EXPECT_EQ(WhichKey('A', 1).name, "");
    EXPECT_EQ(WhichKey('A', 2).name, " Ctrl a");
    EXPECT_EQ(WhichKey('7', 5).name, " Shift Alt 7");
}

TEST(WhichKey, CodesThatNoKeyHasAreHarmless)
{
    for (const int code : {-1, 0, 256, 100000}) EXPECT_EQ(WhichKey(code, 2).name, " Ctrl ") << code;
    EXPECT_EQ(WhichKey(13, 8).name, " Enter");
    EXPECT_EQ(WhichKey(13, -1).name, " Enter");
}

TEST(ModifierText, JoinsWhatIsHeld)
{
    const char* texts[] = {"", "SHF", "CTRL", "SHF & CTRL", "ALT", "SHF & ALT", "CTRL & ALT", "SHF & CTRL & ALT"};
    for (int shift = 0; shift < 8; ++shift) EXPECT_EQ(modifierText(shift), texts[shift]);
    EXPECT_EQ(modifierText(8), "");
}

} // namespace
} // namespace tarvex
