#include "composer/composer_tips.h"

namespace tarvex {

namespace {

constexpr char ofButton[] = "Insert or find this button statement";
constexpr char ofTrigger[] = "Insert or find this trigger statement";
constexpr char ofHat[] = "Insert or find this hat statement";
constexpr std::size_t olderTrigger = 6; ///< in BTN

/// In the order of ROTARY.
constexpr const char* ofRotaries[] = {
    "Insert or find the Range rotary",
    "Insert or find the Antenna rotary",
    "Setup your rudders",
    "Setup for digital joystick x axis",
    "Swap the trigger positions around",
    "Set up for digital throttle use as opposed to normal analogue",
    "Setup for digital joystick y axis",
    "Assign a hat or button as an analogue switch",
    "Set up your rudders",
    "Set up for digital throttle use as opposed to normal analogue",
};

/// In the order of SlashButton.
constexpr const char* ofSlashes[] = {
    "Insert the /U (Up) slash modifier",
    "Insert the /M (Middle) slash modifier",
    "Insert the /D (Down) slash modifier",
    "Insert the /I (In) slash modifier",
    "Insert the /O (Out) slash modifier",
    "Insert the /T (Toggle) slash modifier",
    "Insert the /P (Press) slash modifier",
    "Insert the /R (Release) slash modifier",
    "Insert the /H (Hold) slash modifier",
    "Insert the /N (No repeat) slash modifier",
    "Insert the /A (Force analogue) slash modifier",
    "Insert the /Q (Ignore initial repeat delay) slash modifier",
};

} // namespace

void showTips(InsertOptions& window, bool on)
{
    const auto tip = [on](auto& control, const char* text) { control.ToolTipText = std::string(on ? text : ""); };
    for (std::size_t i = 0; i < window.BTN.size(); ++i) tip(window.BTN[i], i == olderTrigger ? ofTrigger : ofButton);
    for (Button& hat : window.HAT) tip(hat, ofHat);
    tip(window.TRIG, ofTrigger);
    for (std::size_t i = 0; i < window.ROTARY.size(); ++i) tip(window.ROTARY[i], ofRotaries[i]);
    for (std::size_t i = 0; i < window.SlashButton.size(); ++i) tip(window.SlashButton[i], ofSlashes[i]);
    for (CheckBox& box : window.CheckMultiAddCR) tip(box, "Add carriage return when inserting");
    tip(window.fields.Text1[valueField::blanks], "Number of spaces to insert when the Spaces button is pressed");
    tip(window.Check1, "Keep the Composer above the Editor");
    tip(window.Command10, "Clear the text above");
    tip(window.Command6, "Hides the Composer and keeps it in memory for faster recall");
    tip(window.Command5[2], "Locate insertion point in the currently selected file");
}

} // namespace tarvex
