#include "safein/keys/key_table.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <sstream>

namespace tarvex {
namespace {

// ---- a second account of scan code set 2 --------------------------------------------------------------------------
// Written down by how the keyboard is built: rows from left to right, the keypad as a block, and the grey keys as the
// twins of the keypad keys that do the same.

struct Row {
    const char* keys;  ///< names, separated by blanks
    const char* codes; ///< last bytes in hexadecimal
};

constexpr Row plainRows[] = {
    {"ESC F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 F11 F12", "76 05 06 04 0C 03 0B 83 0A 01 09 78 07"},
    {"` 1 2 3 4 5 6 7 8 9 0 - = BSP", "0E 16 1E 26 25 2E 36 3D 3E 46 45 4E 55 66"},
    {"TAB q w e r t y u i o p [ ] \\", "0D 15 1D 24 2D 2C 35 3C 43 44 4D 54 5B 5D"},
    {"CAPS a s d f g h j k l ; ' ENT", "58 1C 1B 23 2B 34 33 3B 42 4B 4C 52 5A"},
    {"LSFT z x c v b n m , . / RSFT", "12 1A 22 21 2A 32 31 3A 41 49 4A 59"},
    {"LCTL LALT SPC", "14 11 29"},
    {"SCRLCK NUML KP* KP- KP+", "7E 77 7C 7B 79"},
    {"KP7 KP8 KP9 KP4 KP5 KP6 KP1 KP2 KP3 KP0 KP.", "6C 75 7D 6B 73 74 69 72 7A 70 71"},
};

struct Twin {
    const char* grey;
    const char* plain; ///< the key with the same last byte
};
constexpr Twin twins[] = {
    {"INS", "KP0"},   {"DEL", "KP."},   {"HOME", "KP7"},  {"END", "KP1"},   {"PGUP", "KP9"},
    {"PGDN", "KP3"},  {"UAROW", "KP8"}, {"DAROW", "KP2"}, {"LAROW", "KP4"}, {"RAROW", "KP6"},
    {"KPENT", "ENT"}, {"KP/", "/"},     {"RCTL", "LCTL"}, {"RALT", "LALT"},
};

std::map<std::string, std::string> secondAccount()
{
    std::map<std::string, std::string> makes;
    for (const Row& row : plainRows) {
        std::istringstream keys(row.keys);
        std::istringstream codes(row.codes);
        std::string code;
        for (std::string key; keys >> key && codes >> code;) makes[key] = "#" + code;
    }
    for (const Twin& twin : twins) makes[twin.grey] = "#E0 " + makes.at(twin.plain);
    makes["Brk"] = "#E1 #14 #77 #E1 #F0 #14 #F0 #77";
    makes["Prt"] = "#E0 #12 #E0 #7C";
    return makes;
}

TEST(KeyTable, CodesAgreeWithASecondAccountOfScanCodeSet2)
{
    const auto makes = secondAccount();
    EXPECT_EQ(makes.size(), keyTable().size());
    for (const Key& key : keyTable()) {
        ASSERT_TRUE(makes.contains(std::string(key.distinctName()))) << key.index;
        EXPECT_EQ(key.make, makes.at(std::string(key.distinctName()))) << key.index;
    }
}

TEST(KeyTable, Has101KeysByIndexAndNoneAt54)
{
    ASSERT_EQ(keyTable().size(), 101U);
    for (int index = 0; index <= 101; ++index) {
        const Key* const key = keyAt(index);
        ASSERT_EQ(key == nullptr, index == 54) << index;
        if (key != nullptr) {
            EXPECT_EQ(key->index, index);
        }
    }
    EXPECT_EQ(keyAt(-1), nullptr);
    EXPECT_EQ(keyAt(102), nullptr);
}

TEST(KeyTable, DistinctNamesAreUniqueAndFindTheirKey)
{
    for (const Key& key : keyTable()) EXPECT_EQ(keyNamed(key.distinctName()), &key) << key.index;
    EXPECT_EQ(keyNamed("7")->index, 7);
    EXPECT_EQ(keyNamed("Brk")->index, 99);
    EXPECT_EQ(keyNamed("Prt")->index, 100);
    for (const char* none : {"", "A", "del", "not supported", "AUXDEL"}) EXPECT_EQ(keyNamed(none), nullptr) << none;
}

TEST(KeyTable, SpokenNamesAreThereAndUnique)
{
    std::set<std::string_view> spoken;
    for (const Key& key : keyTable()) EXPECT_TRUE(!key.spoken.empty() && spoken.insert(key.spoken).second) << key.index;
}

TEST(KeyTable, SpokenNamesOfSignsAndNamedKeysAreWords)
{
    const std::map<int, std::string> words{
        {15, "Keypad 5"},      {46, "Grave accent"}, {47, "Minus"},         {48, "Equals"},
        {49, "Backslash"},     {50, "Left bracket"}, {51, "Right bracket"}, {52, "Semicolon"},
        {53, "Apostrophe"},    {55, "Comma"},        {56, "Period"},        {57, "Slash"},
        {58, "Left Shift"},    {59, "Right Shift"},  {60, "Left Ctrl"},     {61, "Right Ctrl"},
        {62, "Left Alt"},      {63, "Right Alt"},    {64, "Enter"},         {65, "Keypad Enter"},
        {66, "Keypad period"}, {67, "Keypad plus"},  {68, "Keypad minus"},  {69, "Keypad asterisk"},
        {70, "Keypad slash"},  {83, "Escape"},       {84, "Insert"},        {85, "Home"},
        {86, "Page up"},       {87, "Delete"},       {88, "End"},           {89, "Page down"},
        {90, "Tab"},           {91, "Caps Lock"},    {92, "Spacebar"},      {93, "Num Lock"},
        {94, "Up arrow"},      {95, "Down arrow"},   {96, "Left arrow"},    {97, "Right arrow"},
        {98, "Scroll Lock"},   {99, "Pause"},        {100, "Print Screen"}, {101, "Backspace"}};
    for (const auto& [index, word] : words) EXPECT_EQ(keyAt(index)->spoken, word);
}

TEST(KeyTable, SpokenNamesOfLettersDigitsAndFunctionKeysAreThoseOnTheCap)
{
    for (int digit = 0; digit <= 9; ++digit) {
        EXPECT_EQ(keyAt(digit)->spoken, std::to_string(digit));
        EXPECT_EQ(keyAt(10 + digit)->spoken, "Keypad " + std::to_string(digit));
    }
    for (int letter = 20; letter <= 45; ++letter) EXPECT_EQ(keyAt(letter)->spoken, keyAt(letter)->shifted);
    for (int key = 71; key <= 82; ++key) EXPECT_EQ(keyAt(key)->spoken, "F" + std::to_string(key - 70));
}

TEST(KeyTable, NamesOfTheF22ProBeginWithAuxOnGreyKeys)
{
    std::set<int> aux;
    for (const Key& key : keyTable())
        if (!key.f22Name.empty()) aux.insert(key.index);
    EXPECT_EQ(aux, (std::set{65, 70, 84, 85, 86, 87, 88, 89, 94, 95, 96, 97}));
    EXPECT_EQ(keyAt(65)->f22Name, "AUXENT");
    EXPECT_EQ(keyAt(70)->f22Name, "AUX/");
    for (const int index : aux)
        if (index > 70) {
            EXPECT_EQ(keyAt(index)->f22Name, "AUX" + std::string(keyAt(index)->name));
        }
}

TEST(KeyTable, StarredKeysAreNamedByTheirLabel)
{
    for (const Key& key : keyTable()) {
        const int i = key.index;
        const bool starred = (i >= 1 && i <= 8) || (i >= 20 && i <= 49) || (i >= 52 && i <= 57);
        EXPECT_EQ(key.kind == KeyKind::NamedByLabel, starred) << i;
    }
}

TEST(KeyTable, KeysWithFakeShiftsAreTheGreyOnes)
{
    for (const Key& key : keyTable()) {
        const int i = key.index;
        EXPECT_EQ(key.kind == KeyKind::FakeShift, i == 70) << i;
        EXPECT_EQ(key.kind == KeyKind::FakeShiftAndNumLock, (i >= 84 && i <= 89) || (i >= 94 && i <= 97)) << i;
    }
}

TEST(KeyTable, LabelsAreThoseOfTheDrawnKeyboard)
{
    const std::map<int, std::string_view> labels = {
        {58, "Shift"}, {59, "Shift"}, {60, "Ctrl"}, {61, "Ctrl"}, {62, "Alt"}, {63, "Alt"},      {64, "Enter"},
        {65, "Ent"},   {66, "."},     {67, "+"},    {68, "-"},    {69, "*"},   {70, "/"},        {83, "Esc"},
        {84, "Ins"},   {85, "Home"},  {86, "Pgup"}, {87, "Del"},  {88, "End"}, {89, "Pgdn"},     {90, "Tab"},
        {91, "Caps"},  {93, "NL"},    {94, "^"},    {95, "v"},    {96, "<"},   {92, "Spacebar"}, {97, ">"},
        {98, "Scrl"},  {99, "Brk"},   {100, "Prt"}, {101, "Bsp"}, {7, "7"},    {10, "0"},        {19, "9"},
    };
    for (const Key& key : keyTable()) {
        if (labels.contains(key.index))
            EXPECT_EQ(key.label, labels.at(key.index)) << key.index;
        else if (key.index < 10 || key.index > 19)
            EXPECT_EQ(key.label, key.name) << key.index;
        else
            EXPECT_EQ("KP" + std::string(key.label), key.name) << key.index;
    }
}

TEST(KeyTable, ShiftChangesTheLabelsOfThe47TypewriterKeys)
{
    for (int i = 20; i <= 45; ++i) EXPECT_EQ(keyAt(i)->labelWith(true)[0], 'A' + i - 20);
    constexpr int signs[] = {46, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 47, 48, 49, 50, 51, 52, 53, 55, 56, 57};
    constexpr std::string_view shifted[] = {"~", "!", "@", "#", "$", "%", "^",  "&&", "*", "(", ")",
                                            "_", "+", "|", "{", "}", ":", "\"", "<",  ">", "?"};
    for (std::size_t i = 0; i < std::size(signs); ++i) {
        EXPECT_EQ(keyAt(signs[i])->labelWith(true), shifted[i]) << signs[i];
        EXPECT_EQ(keyAt(signs[i])->labelWith(false).size(), 1U);
    }
    EXPECT_EQ(keyAt(49)->label, "\\");
    EXPECT_EQ(keyAt(64)->labelWith(true), "Enter");
}

TEST(SecondSign, IsTheLayoutsSignWhereItIsAnotherOne)
{
    EXPECT_EQ(secondSign(*keyAt(44), false, "z"), "z");
    EXPECT_EQ(secondSign(*keyAt(44), false, "y"), "");
    EXPECT_EQ(secondSign(*keyAt(44), true, "Z"), "Z");
    EXPECT_EQ(secondSign(*keyAt(7), true, "&"), "") << "the caption doubles it";
    EXPECT_EQ(secondSign(*keyAt(7), true, "/"), "/");
    EXPECT_EQ(secondSign(*keyAt(92), false, "x"), "") << "the spacebar writes no sign";
    EXPECT_EQ(secondSign(*keyAt(44), false, ""), "");
}

TEST(BreakCode, PutsF0BeforeTheLastByte)
{
    EXPECT_EQ(breakCode(*keyAt(20)), "#F0 #1C");
    EXPECT_EQ(breakCode(*keyAt(61)), "#E0 #F0 #14");
    EXPECT_EQ(breakCode(*keyAt(77)), "#F0 #83");
}

TEST(BreakCode, PauseHasNoneAndPrintScreenItsOwn)
{
    EXPECT_EQ(breakCode(*keyAt(99)), "");
    EXPECT_EQ(breakCode(*keyAt(100)), "#E0 #F0 #7C #E0 #F0 #12");
}

TEST(KeyOfCode, FindsPlainAndExtendedKeys)
{
    EXPECT_EQ(keyOfCode(0x1C, false)->name, "a");
    EXPECT_EQ(keyOfCode(0x14, true)->name, "RCTL");
    EXPECT_EQ(keyOfCode(0x14, false)->name, "LCTL");
    EXPECT_EQ(keyOfCode(0x7C, false)->name, "KP*");
    EXPECT_EQ(keyOfCode(0x7C, true)->index, keyIndex::printScreen);
    for (const std::uint8_t byte : {0x00, 0x02, 0x12, 0x1C, 0xE0, 0xF0, 0xFF})
        EXPECT_EQ(keyOfCode(byte, true), nullptr) << int{byte};
    for (const std::uint8_t byte : {0x00, 0x02, 0xE0, 0xE1, 0xF0, 0xFF}) EXPECT_EQ(keyOfCode(byte, false), nullptr);
}

TEST(KeyOfCode, KnowsTheCodesOfPauseWithCtrlAndPrintScreenWithAlt)
{
    EXPECT_EQ(keyOfCode(0x7E, true)->index, keyIndex::pause);
    EXPECT_EQ(keyOfCode(0x84, false)->index, keyIndex::printScreen);
}

} // namespace
} // namespace tarvex
