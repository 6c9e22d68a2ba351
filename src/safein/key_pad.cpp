#include "safein/key_pad.h"

#include "platform/input.h"
#include "platform/windows1252.h"
#include "safein/keys/raw_decoder.h"

namespace tarvex {

namespace {

Button& keyButton(RAWform& window, int index) { return window.Command1[static_cast<std::size_t>(index)]; }

/// The captions of the typewriter keys; the Shift keys themselves can't be clicked while Shift is held.
void showShift(RAWform& window, bool held)
{
    for (const Key& key : keyTable())
        if (!key.shifted.empty()) keyButton(window, key.index).Caption = std::string(key.labelWith(held));
    keyButton(window, keyIndex::leftShift).Enabled = !held;
    keyButton(window, keyIndex::rightShift).Enabled = !held;
}

void showCtrl(RAWform& window, bool held)
{
    keyButton(window, keyIndex::leftCtrl).Enabled = !held;
    keyButton(window, keyIndex::rightCtrl).Enabled = !held;
}

void showAlt(RAWform& window, bool held)
{
    keyButton(window, keyIndex::leftAlt).Enabled = !held;
    keyButton(window, keyIndex::rightAlt).Enabled = !held;
}

struct Toggle {
    ToggleLabel RAWform::*label;
    const char* caption;
    void (*show)(RAWform&, bool held); ///< none: only the colour changes
};
constexpr Toggle toggles[] = {
    {&RAWform::ToggleButton1, "Shift held", showShift},
    {&RAWform::ToggleButton2, "Ctrl held", showCtrl},
    {&RAWform::ToggleButton3, "Alt held", showAlt},
    {&RAWform::ToggleButton4, "Num Lock", nullptr},
};

void setHeld(RAWform& window, const Toggle& toggle, bool held)
{
    (window.*toggle.label).hold(held);
    if (toggle.show != nullptr) toggle.show(window, held);
}

PadState padState(const RAWform& window)
{
    const Settings& settings = window.editor.shared.settings;
    return {.shift = window.ToggleButton1.isHeld(),
            .ctrl = window.ToggleButton2.isHeld(),
            .alt = window.ToggleButton3.isHeld(),
            .numLock = window.ToggleButton4.Visible && window.ToggleButton4.isHeld(),
            .UseShfKey = settings.UseShfKey,
            .ApplyRAWTMnotes = settings.ApplyRAWTMnotes,
            .JoyName = settings.JoyName};
}

void compute(RAWform& window, PadState pad, std::string_view caption)
{
    pad.caption = caption;
    GetKeystrings(window.keys, pad);
}

bool isCtrl(int index) { return index == keyIndex::leftCtrl || index == keyIndex::rightCtrl; }

/// A modifier isn't held beside itself: the pad can't be clicked that way either.
void takeHeld(PadState& pad, int index, int shift)
{
    const bool isShift = index == keyIndex::leftShift || index == keyIndex::rightShift;
    const bool isAlt = index == keyIndex::leftAlt || index == keyIndex::rightAlt;
    pad.shift = !isShift && (shift & shiftKey::shift) != 0;
    pad.ctrl = !isCtrl(index) && (shift & shiftKey::ctrl) != 0;
    pad.alt = !isAlt && (shift & shiftKey::alt) != 0;
}

void wireCapture(RAWform& window)
{
    ToggleLabel& capture = window.Capture;
    capture.Caption = "Capture keys";
    capture.ToolTipText = "Look up the keys that you press; Ctrl+Esc ends it";
    capture.Click = [&window] {
        window.Capture.hold(!window.Capture.isHeld());
        if (!window.Capture.isHeld()) window.LitKey = -1;
    };
}

} // namespace

void wireKeyPad(RAWform& window)
{
    for (const Key& key : keyTable()) {
        Button& button = keyButton(window, key.index);
        button.Caption = std::string(key.label);
        button.handler = [&window, index = key.index] { Command1_Click(window, index); };
    }
    for (const Toggle& toggle : toggles) {
        ToggleLabel& label = window.*toggle.label;
        label.Caption = toggle.caption;
        label.Click = [&window, &label, &toggle] {
            const Steps step;
            step([&] { setHeld(window, toggle, !label.isHeld()); });
        };
    }
    wireCapture(window);
}

void resetKeyPad(RAWform& window)
{
    for (const Toggle& toggle : toggles) setHeld(window, toggle, false);
    window.Capture.hold(false);
    window.LitKey = -1;
}

void blankKeyFields(RAWform& window)
{
    for (TextBox* field : {&window.SyntaxText, &window.RMakeText, &window.RBreakText, &window.RCombinedText})
        field->Text = "";
}

void showKeystrings(RAWform& window)
{
    window.SyntaxText.Text = window.keys.KeySyntax;
    window.RMakeText.Text = window.keys.KeyMake;
    window.RBreakText.Text = window.keys.KeyBreak;
    window.RCombinedText.Text = window.keys.KeyCombined;
}

void Command1_Click(RAWform& window, int Index)
{
    const Steps step;
    step([&] { blankKeyFields(window); });
    window.keys.LastKeyIndex = static_cast<std::int16_t>(Index);
    step([&] { GetKeystrings(window); });
    step([&] { showKeystrings(window); });
    window.LitKey = -1;
    window.CommandPasteJ[0].SetFocus(); // so that Enter inserts the name
}

void GetKeystrings(RAWform& window)
{
    const int index = window.keys.LastKeyIndex;
    const bool isKey = keyAt(index) != nullptr;
    compute(window, padState(window), isKey ? keyButton(window, index).Caption.get() : std::string_view());
}

void GetModifier(RAWform& window) { GetModifier(window.keys, padState(window)); }

void captureKey(RAWform& window, int index, int shift)
{
    const Key* const key = keyAt(index);
    if (key == nullptr) return;
    if (isCtrl(index)) window.keysBeforeCtrl = window.keys;
    PadState pad = padState(window);
    takeHeld(pad, index, shift);
    window.keys.LastKeyIndex = static_cast<std::int16_t>(index);
    compute(window, pad, key->labelWith(pad.shift));
    showKeystrings(window);
    window.LitKey = index;
}

void endCapture(RAWform& window)
{
    if (!window.Capture.isHeld()) return;
    window.Capture.Click();
    if (!isCtrl(window.keys.LastKeyIndex)) return;
    window.keys = window.keysBeforeCtrl;
    showKeystrings(window);
}

void readRaw(RAWform& window) { window.RawKeys.Caption = rawSummary(window.RawToRead.Text.get()); }

void readSelection(RAWform& window)
{
    constexpr std::int64_t longest = 10'000;
    Editor& editor = window.editor;
    if (!window.form.Visible || editor.shared.IsLoading == 1) return; // colouring selects as well
    const Pane& pane = editor.selected().pane;
    if (pane.SelLength() > longest) return;
    const std::string selected = utf8FromWindows1252(pane.SelText());
    if (selected.find('#') != std::string::npos) window.RawToRead.Text = selected;
}

} // namespace tarvex
