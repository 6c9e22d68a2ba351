#include "safein/safein_options.h"

#include "safein/key_pad.h"

namespace tarvex {

namespace {

/// The settings behind the ticks, in the order of the menu.
constexpr std::int16_t Settings::*options[] = {&Settings::AddSafeinCR, &Settings::AddRawBrackets, &Settings::UseShfKey,
                                               &Settings::SafeinViewModifiers, &Settings::SafeinOnTop};

std::int16_t flagOf(const MenuItem& item) { return item.Checked ? 1 : 0; }

void computeAnew(RAWform& window)
{
    blankKeyFields(window);
    GetKeystrings(window);
    showKeystrings(window);
}

} // namespace

void wireSafeinOptions(RAWform& window)
{
    window.mnuOption1.setHandler([&window](int index) { mnuOption1_Click(window, index); });
    window.mnuUseExtendedRAW.handler = [&window] { mnuUseExtendedRAW_Click(window); };
}

void mnuOption1_Click(RAWform& window, int Index)
{
    Settings& settings = window.editor.shared.settings;
    MenuItem& item = window.mnuOption1[Index];
    item.Checked = !item.Checked;
    if (Index == safeinOption::useShfKey) {
        if (window.keys.LastKeyIndex == -1) return;
        computeAnew(window); // still by the former value, until the next key
    }
    if (Index == safeinOption::viewModifiers) {
        showSlashRow(window, item.Checked);
        return SaveSafeinOptions(window); // the setting keeps the value that it was loaded with
    }
    if (Index == safeinOption::keepOnTop) window.form.TopMost = item.Checked.get();
    settings.*options[Index] = flagOf(item);
    SaveSafeinOptions(window);
}

void mnuUseExtendedRAW_Click(RAWform& window)
{
    MenuItem& item = window.mnuUseExtendedRAW;
    item.Checked = !item.Checked;
    window.editor.shared.settings.ApplyRAWTMnotes = flagOf(item);
    window.ToggleButton4.Visible = item.Checked.get();
}

void showSlashRow(RAWform& window, bool on)
{
    for (Button& button : window.Command3) button.Visible = on;
    window.Command6.Visible = on;
    window.Command7.Visible = on;
}

void GetSafeinOptions(RAWform& window)
{
    Shared& shared = window.editor.shared;
    shared.store.read(Access::GetSafeinOptions, "SAFEIN GetSafeinOptions");
    for (int index = 0; index <= window.mnuOption1.UBound(); ++index)
        window.mnuOption1[index].Checked = shared.settings.*options[index] == 1;
    window.mnuUseExtendedRAW.Checked = shared.settings.ApplyRAWTMnotes == 1;
    window.ToggleButton4.Visible = shared.settings.ApplyRAWTMnotes == 1;
}

void SaveSafeinOptions(RAWform& window)
{
    window.editor.shared.store.write(Access::SaveSafeinOptions, "SAFEIN SaveSafeinOptions");
}

} // namespace tarvex
