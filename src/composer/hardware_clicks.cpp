#include "composer/hardware_clicks.h"

#include "composer/find_button.h"
#include "composer/insertion.h"
#include "composer/statement_tabs.h"
#include "documents/editing/line_highlight.h"
#include "language/commands/side_caret.h"
#include "language/commands/slash_buttons.h"
#include "shell/hardware/hat_positions.h"

#include <algorithm>
#include <optional>

namespace tarvex {

namespace {

constexpr std::size_t port = 7;
constexpr std::size_t portWord = 6; ///< characters of "PortB1"
constexpr std::string_view afterPortWord = " IS ";

constexpr const char* slashCaptions[] = {"/U", "/M", "/D", "/I", "/O", "/T", "/P", "/R", "/H", "/N", "/A", "/Q"};

bool isRockerRow(int button) { return button == 4 || button == 16 || button == 17; }

/// The statement that a click on a ROTARY looks for, and the tab that it opens when the file has none.
struct Rotary {
    const char* word;
    int page;
    std::optional<std::size_t> axis = {}; ///< the toggle that is held then
};

std::optional<Rotary> rotaryAt(int index)
{
    switch (index) {
    case 0:
        return Rotary{"RNG", composerPage::range};
    case 1:
        return Rotary{"ANT", composerPage::antenna};
    case 5:
    case 9:
        return Rotary{"THR", composerPage::throttle};
    case 2:
    case 8:
        return Rotary{"RDDR", composerPage::digitalAxes, axisToggle::rddr};
    case 3:
        return Rotary{"JSX", composerPage::digitalAxes, axisToggle::jsx};
    case 6:
        return Rotary{"JSY", composerPage::digitalAxes, axisToggle::jsy};
    default:
        return std::nullopt;
    }
}

void findOrInsert(InsertOptions& window, const std::string& text, Colour colour)
{
    FindButton(window, text);
    if (window.InsertNeeded == 1)
        insertText(window, text, colour);
    else
        returnFocus(window);
}

/// A button, hat or trigger with this name was chosen.
void chooseButton(InsertOptions& window, const std::string& name)
{
    const Settings& settings = window.editor.shared.settings;
    if (window.ROTARY[port].Value == 1)
        insertText(window, name + " ", settings.BTNColour);
    else
        findOrInsert(window, "BTN " + name + " ", settings.BTNColour);
    window.ROTARY[port].Value = 0;
}

void chooseRocker(InsertOptions& window, const std::string& name)
{
    const Settings& settings = window.editor.shared.settings;
    if (window.ROTARY[port].Value == 1)
        insertText(window, name + " ", settings.BTNColour);
    else
        findOrInsert(window, name + " ", settings.MiscellaneousColour);
    window.ROTARY[port].Value = 0;
}

void popUp(InsertOptions& window, const MenuItem& root) { window.editor.platform.dialogues.popUp(root); }

void clickPortToggle(InsertOptions& window)
{
    RotaryButton& toggle = window.ROTARY[port];
    if (toggle.Value == 1) {
        toggle.Value = 0;
        return;
    }
    toggle.Value = 1;
    popUp(window, window.mnuPortAll);
}

void clickSwapTrigger(InsertOptions& window)
{
    FindButton(window, "SWAPTG ");
    if (window.InsertNeeded == 0) return returnFocus(window);
    insertText(window, "SWAPTG ", window.editor.shared.settings.MiscellaneousColour, LineEnd::Behind);
}

void findRotary(InsertOptions& window, const Rotary& rotary)
{
    FindButton(window, rotary.word);
    if (window.InsertNeeded == 0) return returnFocus(window);
    if (rotary.axis) holdAxis(window, *rotary.axis);
    window.SSTab1.Tab = rotary.page;
}

template <typename Work> void tagged(InsertOptions& window, std::string_view tag, Work work)
{
    const Steps step(window.editor.shared.errors, tag);
    step(work);
}

} // namespace

void BTN_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER BTN_Click", [&] {
        const std::string name = window.BTN.at(static_cast<std::size_t>(Index)).Caption;
        if (name.empty()) return; // the middle of a rocker that has no statement
        if (isRockerRow(Index) && !name.starts_with('T'))
            chooseRocker(window, name);
        else
            chooseButton(window, name);
    });
}

void HAT_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER HAT_Click", [&] {
        const std::string hat = hatName(Index);
        for (int i = 0; i <= window.MnuHatPostion.UBound(); ++i)
            window.MnuHatPostion[i].Caption = hat + hatPositions[static_cast<std::size_t>(i)];
        // The old sticks' hat has no corners.
        for (int i = 0; hat.size() > 1 && i <= window.MnuHatCornerPostion.UBound(); ++i)
            window.MnuHatCornerPostion[i].Caption = hat + hatCorners[static_cast<std::size_t>(i)];
        popUp(window, window.mnuHat);
    });
}

void TRIG_Click(InsertOptions& window) { popUp(window, window.mnuTrigger); }

void ROTARY_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER ROTARY_Click", [&] {
        if (Index == static_cast<int>(port)) return clickPortToggle(window);
        constexpr int swapTrigger = 4;
        if (Index == swapTrigger) return clickSwapTrigger(window);
        if (const auto rotary = rotaryAt(Index)) findRotary(window, *rotary);
    });
}

void MnuHatPostion_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER MnuHatPostion_Click", [&] { chooseButton(window, window.MnuHatPostion[Index].Caption); });
}

void MnuHatCornerPostion_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER MnuHatCornerPostion_Click",
           [&] { chooseButton(window, window.MnuHatCornerPostion[Index].Caption); });
}

void mnuTrig_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER mnuTrig_Click", [&] { chooseButton(window, window.mnuTrig[Index].Caption); });
}

/// The port toggle stays as it is: the name that follows "PortB1 IS " is to be a bare one.
void mnuPort_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER mnuPort_Click", [&] {
        const std::string text = window.mnuPort[Index].Caption.get() + " ";
        FindButton(window, std::string_view(text).substr(0, portWord));
        if (window.InsertNeeded == 1)
            return insertText(window, text, window.editor.shared.settings.MiscellaneousColour);
        Editor& editor = window.editor;
        endBlinking(editor);
        putCaret(editor.joystick, editor.joystick.pane.SelStart() + static_cast<std::int64_t>(afterPortWord.size()));
        flashLine(editor);
        returnFocus(window);
    });
}

void SlashButton_Click(InsertOptions& window, int Index)
{
    tagged(window, "COMPOSER SlashButton_Click", [&] {
        leaveShownUse(window);
        InsertSlashModifier(window.editor, window.SlashButton.at(static_cast<std::size_t>(Index)).Caption);
        returnFocus(window);
    });
}

void wireHardware(InsertOptions& window)
{
    const auto wire = [&window](auto& buttons, void (*click)(InsertOptions&, int)) {
        for (std::size_t i = 0; i < buttons.size(); ++i)
            buttons[i].handler = [&window, click, i] { click(window, static_cast<int>(i)); };
    };
    wire(window.BTN, BTN_Click);
    wire(window.HAT, HAT_Click);
    wire(window.ROTARY, ROTARY_Click);
    wire(window.SlashButton, SlashButton_Click);
    for (std::size_t i = 0; i < window.SlashButton.size(); ++i) window.SlashButton[i].Caption = slashCaptions[i];
    window.TRIG.handler = [&window] { TRIG_Click(window); };
    window.MnuHatPostion.setHandler([&window](int index) { MnuHatPostion_Click(window, index); });
    window.MnuHatCornerPostion.setHandler([&window](int index) { MnuHatCornerPostion_Click(window, index); });
    window.mnuTrig.setHandler([&window](int index) { mnuTrig_Click(window, index); });
    window.mnuPort.setHandler([&window](int index) { mnuPort_Click(window, index); });
}

} // namespace tarvex
