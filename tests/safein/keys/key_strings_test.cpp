#include "safein/keys/key_strings.h"

#include "safein/keys/key_table.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// Another joystick than the F22 Pro, with Shift as `shift` says.
PadState onFlcs() { return {.JoyName = 1}; }

PadState withShift()
{
    PadState pad = onFlcs();
    pad.shift = true;
    return pad;
}

KeyStrings computed(int index, PadState pad)
{
    KeyStrings strings;
    strings.LastKeyIndex = static_cast<std::int16_t>(index);
    strings.KeySyntax = strings.KeyMake = strings.KeyBreak = strings.KeyCombined = "from before";
    const Key* const key = keyAt(index);
    if (key != nullptr) pad.caption = key->labelWith(pad.shift);
    GetKeystrings(strings, pad);
    return strings;
}

void expectStrings(const KeyStrings& strings, std::string_view syntax, std::string_view make, std::string_view ending)
{
    EXPECT_EQ(strings.KeySyntax, syntax);
    EXPECT_EQ(strings.KeyMake, make);
    EXPECT_EQ(strings.KeyBreak, ending);
    EXPECT_EQ(strings.KeyCombined, std::string(make) + " " + std::string(ending));
}

// ---- worked results -----------------------------------------------------------------------------------------------

TEST(GetKeystrings, NothingHeldGivesTheKeyAlone) { expectStrings(computed(20, onFlcs()), "a", "#1C", "#F0 #1C"); }

TEST(GetKeystrings, ShiftStandsBeforeTheNameAndAroundTheCodes)
{
    expectStrings(computed(20, withShift()), "SHF a", "#12 #1C", "#F0 #1C #F0 #12");
}

TEST(GetKeystrings, CtrlLiesOutsideOfShift)
{
    PadState pad = withShift();
    pad.ctrl = true;
    expectStrings(computed(71, pad), "CTL SHF F1", "#14 #12 #05", "#F0 #05 #F0 #12 #F0 #14");
}

TEST(GetKeystrings, AllModifiersNestInOneOrder)
{
    PadState pad = withShift();
    pad.ctrl = pad.alt = true;
    expectStrings(computed(87, pad), "CTL ALT SHF DEL", "#14 #11 #12 #E0 #71", "#E0 #F0 #71 #F0 #12 #F0 #11 #F0 #14");
}

TEST(GetModifier, WordsGoByWhatIsHeld)
{
    constexpr std::string_view words[] = {"",     "SHF ",     "CTL ",     "CTL SHF ",
                                          "ALT ", "ALT SHF ", "CTL ALT ", "CTL ALT SHF "};
    for (unsigned held = 0; held < 8; ++held) {
        KeyStrings strings;
        PadState pad;
        pad.shift = (held & 1U) != 0;
        pad.ctrl = (held & 2U) != 0;
        pad.alt = (held & 4U) != 0;
        GetModifier(strings, pad);
        EXPECT_EQ(strings.KeyModifier, words[held]);
        strings.ShiftInLabel = 1;
        GetModifier(strings, pad);
        EXPECT_EQ(strings.KeyModifier, words[held & ~1U]) << "the label carries the shift";
    }
}

// ---- names without SHF --------------------------------------------------------------------------------------------

TEST(GetKeystrings, WithoutShfKeyTheShiftedLabelIsTheNameAndTheCodesKeepTheShift)
{
    PadState pad = withShift();
    pad.UseShfKey = 0;
    expectStrings(computed(20, pad), "A", "#12 #1C", "#F0 #1C #F0 #12");
    expectStrings(computed(1, pad), "!", "#12 #16", "#F0 #16 #F0 #12");
    expectStrings(computed(57, pad), "?", "#12 #4A", "#F0 #4A #F0 #12");
    pad.shift = false;
    EXPECT_EQ(computed(20, pad).KeySyntax, "a");
    EXPECT_EQ(computed(1, pad).KeySyntax, "1");
    EXPECT_EQ(computed(57, pad).KeySyntax, "/");
}

TEST(GetKeystrings, AnyOtherValueOfUseShfKeyThan1CountsAsOff)
{
    PadState pad = withShift();
    for (const std::int16_t value : {std::int16_t{0}, std::int16_t{-1}, std::int16_t{2}}) {
        pad.UseShfKey = value;
        EXPECT_EQ(computed(20, pad).KeySyntax, "A");
    }
}

TEST(GetKeystrings, WithoutShfKeyOtherModifiersStayInTheName)
{
    PadState pad = withShift();
    pad.UseShfKey = 0;
    pad.ctrl = true;
    expectStrings(computed(20, pad), "CTL A", "#14 #12 #1C", "#F0 #1C #F0 #12 #F0 #14");
}

TEST(GetKeystrings, Key7WithoutShfKeyIsTheAmpersandEvenWithNothingHeld)
{
    PadState pad = onFlcs();
    pad.UseShfKey = 0;
    expectStrings(computed(7, pad), "&", "#3D", "#F0 #3D");
    pad.shift = true;
    expectStrings(computed(7, pad), "&", "#12 #3D", "#F0 #3D #F0 #12");
}

TEST(GetKeystrings, Key7WithShfKeyHasNoNameOfItsOwn)
{
    expectStrings(computed(7, onFlcs()), "", "#3D", "#F0 #3D");
    expectStrings(computed(7, withShift()), "SHF ", "#12 #3D", "#F0 #3D #F0 #12");
}

TEST(GetKeystrings, UnstarredSignsReadShfWithAndWithoutShfKey)
{
    for (const std::int16_t use : {std::int16_t{0}, std::int16_t{1}}) {
        PadState pad = withShift();
        pad.UseShfKey = use;
        EXPECT_EQ(computed(0, pad).KeySyntax, "SHF 0");
        EXPECT_EQ(computed(9, pad).KeySyntax, "SHF 9");
        EXPECT_EQ(computed(50, pad).KeySyntax, "SHF [");
        EXPECT_EQ(computed(51, pad).KeySyntax, "SHF ]");
    }
}

TEST(GetKeystrings, TheMarkOfAShiftInTheLabelDoesNotOutliveTheComputation)
{
    PadState pad = withShift();
    pad.UseShfKey = 0;
    const KeyStrings strings = computed(20, pad);
    EXPECT_EQ(strings.ShiftInLabel, 0);
    EXPECT_EQ(strings.KeyModifier, "SHF ") << "the true state, after the second call";
}

// ---- keys without a name ------------------------------------------------------------------------------------------

TEST(GetKeystrings, PauseTakesNoModifiersAndHasNoBreak)
{
    PadState pad = withShift();
    pad.ctrl = pad.alt = pad.numLock = true;
    const KeyStrings strings = computed(99, pad);
    EXPECT_EQ(strings.KeySyntax, "not supported");
    EXPECT_EQ(strings.KeyMake, "#E1 #14 #77 #E1 #F0 #14 #F0 #77");
    EXPECT_EQ(strings.KeyBreak, "");
    EXPECT_EQ(strings.KeyCombined, "#E1 #14 #77 #E1 #F0 #14 #F0 #77 ");
}

TEST(GetKeystrings, PrintScreenTakesNoModifiers)
{
    PadState pad = onFlcs();
    pad.ctrl = true;
    expectStrings(computed(100, pad), "not supported", "#E0 #12 #E0 #7C", "#E0 #F0 #7C #E0 #F0 #12");
}

TEST(GetKeystrings, AnIndexWithoutAKeyIsEmptyButForTheModifiers)
{
    for (const int index : {-1, 54, 102, 32767, -32768}) {
        expectStrings(computed(index, onFlcs()), "", "", "");
        expectStrings(computed(index, withShift()), "SHF ", "#12 ", " #F0 #12");
    }
}

// ---- grey keys ----------------------------------------------------------------------------------------------------

TEST(GetKeystrings, ExtendedCodesReplaceTheShiftOfAGreyKey)
{
    PadState pad{.shift = true, .ApplyRAWTMnotes = 1};
    expectStrings(computed(84, pad), "SHF AUXINS", "#E0 #F0 #12 #E0 #70", "#E0 #F0 #70 #E0 #12");
}

TEST(GetKeystrings, ExtendedCodesLeaveOtherKeysAndOtherModifiersAlone)
{
    PadState pad = withShift();
    pad.ApplyRAWTMnotes = 1;
    expectStrings(computed(20, pad), "SHF a", "#12 #1C", "#F0 #1C #F0 #12");
    expectStrings(computed(61, pad), "SHF RCTL", "#12 #E0 #14", "#E0 #F0 #14 #F0 #12");
    pad.shift = false;
    pad.ctrl = true;
    expectStrings(computed(94, pad), "CTL UAROW", "#14 #E0 #75", "#E0 #F0 #75 #F0 #14");
}

TEST(GetKeystrings, NumLockAddsAFakeShiftInsideTheModifiers)
{
    PadState pad = onFlcs();
    pad.ctrl = pad.numLock = true;
    expectStrings(computed(84, pad), "CTL INS", "#14 #E0 #12 #E0 #70", "#E0 #F0 #70 #E0 #F0 #12 #F0 #14");
}

TEST(GetKeystrings, KeypadSlashTakesTheShiftReplacementButNoNumLockShift)
{
    PadState pad = withShift();
    pad.ApplyRAWTMnotes = 1;
    pad.numLock = true;
    expectStrings(computed(70, pad), "SHF KP/", "#E0 #F0 #12 #E0 #4A", "#E0 #F0 #4A #E0 #12");
    expectStrings(computed(97, pad), "SHF RAROW", "#E0 #F0 #12 #E0 #12 #E0 #74", "#E0 #F0 #74 #E0 #F0 #12 #E0 #12");
}

TEST(GetKeystrings, TheF22ProHasItsOwnNamesForGreyKeys)
{
    const PadState pad;
    EXPECT_EQ(computed(65, pad).KeySyntax, "AUXENT");
    EXPECT_EQ(computed(70, pad).KeySyntax, "AUX/");
    EXPECT_EQ(computed(85, pad).KeySyntax, "AUXHOME");
    EXPECT_EQ(computed(94, pad).KeySyntax, "AUXUAROW");
    EXPECT_EQ(computed(64, pad).KeySyntax, "ENT");
    for (const std::int16_t joystick : {std::int16_t{1}, std::int16_t{4}, std::int16_t{-1}}) {
        EXPECT_EQ(computed(65, {.JoyName = joystick}).KeySyntax, "KPENT");
        EXPECT_EQ(computed(85, {.JoyName = joystick}).KeySyntax, "HOME");
    }
}

} // namespace
} // namespace tarvex
