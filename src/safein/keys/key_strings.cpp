#include "safein/keys/key_strings.h"

#include "safein/keys/key_table.h"

namespace tarvex {

namespace {

/// By the sum of 1 for Shift, 2 for Ctrl and 4 for Alt.
constexpr std::string_view modifierWords[] = {
    "", "SHF ", "CTL ", "CTL SHF ", "ALT ", "ALT SHF ", "CTL ALT ", "CTL ALT SHF ",
};

struct ModifierPart {
    std::string_view make;
    std::string_view ending; ///< what the break code ends with
};
constexpr ModifierPart ctrlPart{"#14 ", " #F0 #14"};
constexpr ModifierPart altPart{"#11 ", " #F0 #11"};
constexpr ModifierPart shiftPart{"#12 ", " #F0 #12"};
/// What a grey key sends while Shift is held, by the controllers' own notes.
constexpr ModifierPart greyShiftPart{"#E0 #F0 #12 ", " #E0 #12"};
/// What a grey key sends while Num Lock is on.
constexpr ModifierPart numLockPart{"#E0 #12 ", " #E0 #F0 #12"};

/// The shifted caption of the key 7 doubles its "&" and can't stand for a name, so the sign is used whether or not
/// Shift is held.
constexpr std::string_view nameOfSeven = "&";

void takeRow(KeyStrings& strings, const Key& key, const PadState& pad)
{
    strings.KeyMake = key.make;
    strings.KeyBreak = breakCode(key);
    strings.KeySyntax = pad.JoyName == 0 && !key.f22Name.empty() ? key.f22Name : key.name;
    if (key.kind != KeyKind::NamedByLabel || pad.UseShfKey == 1) return;
    strings.ShiftInLabel = 1;
    strings.KeySyntax = key.index == keyIndex::seven ? nameOfSeven : pad.caption;
}

void combine(KeyStrings& strings)
{
    strings.KeyCombined = strings.KeyMake;
    strings.KeyCombined += ' ';
    strings.KeyCombined += strings.KeyBreak;
}

void wrap(KeyStrings& strings, const ModifierPart& part)
{
    strings.KeyMake.insert(0, part.make);
    strings.KeyBreak += part.ending;
}

/// From the inside out: the modifier that goes down first comes up last.
void wrapCodes(KeyStrings& strings, const PadState& pad, KeyKind kind)
{
    const bool isGrey = kind == KeyKind::FakeShift || kind == KeyKind::FakeShiftAndNumLock;
    if (pad.numLock && kind == KeyKind::FakeShiftAndNumLock) wrap(strings, numLockPart);
    if (pad.shift) wrap(strings, isGrey && pad.ApplyRAWTMnotes == 1 ? greyShiftPart : shiftPart);
    if (pad.alt) wrap(strings, altPart);
    if (pad.ctrl) wrap(strings, ctrlPart);
}

} // namespace

void GetModifier(KeyStrings& strings, const PadState& pad)
{
    const unsigned sum =
        (pad.shift && strings.ShiftInLabel == 0 ? 1U : 0U) + (pad.ctrl ? 2U : 0U) + (pad.alt ? 4U : 0U);
    strings.KeyModifier = modifierWords[sum];
}

void GetKeystrings(KeyStrings& strings, const PadState& pad)
{
    strings.ShiftInLabel = 0;
    for (std::string* text : {&strings.KeySyntax, &strings.KeyMake, &strings.KeyBreak, &strings.KeyCombined})
        text->clear();
    const Key* const key = keyAt(strings.LastKeyIndex);
    if (key != nullptr) takeRow(strings, *key, pad);
    combine(strings);
    if (strings.KeySyntax == notSupported) return;
    GetModifier(strings, pad);
    strings.KeySyntax.insert(0, strings.KeyModifier);
    strings.ShiftInLabel = 0; // the codes follow what is really held
    GetModifier(strings, pad);
    wrapCodes(strings, pad, key != nullptr ? key->kind : KeyKind::Plain);
    combine(strings);
}

} // namespace tarvex
