#include "composer/hardware_tabs.h"

#include "platform/text.h"
#include "platform/windows1252.h"
#include "shell/hardware/document_hardware.h"
#include "shell/hardware/hardware_profile.h"

#include <array>

namespace tarvex {

namespace {

constexpr std::array<const char*, 5> stickCaptions{"F-22 Pro", "F-16 FLCS", "PFCS", "Top Gun", "FCS"};
constexpr std::size_t port = 7;    ///< in ROTARY
constexpr std::size_t slashQ = 11; ///< in SlashButton
constexpr std::array<std::size_t, 2> rudderButtons{2, 8};

void showCorners(InsertOptions& window, bool on)
{
    MenuArray& corners = window.MnuHatCornerPostion;
    for (int i = 0; i <= corners.UBound(); ++i) corners[i].Visible = on;
    window.mnuHatDivider.Visible = on;
}

void showPorts(InsertOptions& window, bool on)
{
    for (int i = 0; i <= window.mnuPort.UBound(); ++i) window.mnuPort[i].Visible = on;
}

void showPages(InsertOptions& window, std::array<bool, 4> shown)
{
    for (int page = 0; page < window.SSTabHardware.Count(); ++page)
        window.SSTabHardware.Pages(page).Visible = shown[static_cast<std::size_t>(page)];
    if (shown[static_cast<std::size_t>(window.SSTabHardware.Tab.get())]) return;
    window.SSTabHardware.Tab = shown[hardwarePage::f22AndF16] ? hardwarePage::f22AndF16 : hardwarePage::otherSticks;
}

void showF22Extras(InsertOptions& window, bool on)
{
    window.ROTARY[port].Visible = on;
    window.SlashButton[slashQ].Visible = on;
}

void showHardware(InsertOptions& window, std::int16_t joystick, std::int16_t throttle)
{
    const bool ofF22Family = joystick == joystick::f22Pro || joystick == joystick::f16Flcs;
    const bool withTqs = throttle == throttle::tqs;
    const bool withWcs = throttle == throttle::wcsMkII || throttle == throttle::wcs;
    showPages(window, {ofF22Family, !ofF22Family, withTqs, withWcs});
    showCorners(window, ofF22Family);
    showPorts(window, !withWcs);
    if (withWcs) LabelWCS(window);
    showF22Extras(window, joystick == joystick::f22Pro);
    if (joystick < 0 || static_cast<std::size_t>(joystick) >= stickCaptions.size()) return;
    const int page = ofF22Family ? hardwarePage::f22AndF16 : hardwarePage::otherSticks;
    window.SSTabHardware.Pages(page).Caption = stickCaptions[static_cast<std::size_t>(joystick)];
}

void showAll(InsertOptions& window)
{
    showPages(window, {true, true, true, true});
    LabelWCS(window);
    window.SSTabHardware.Pages(hardwarePage::f22AndF16).Caption = "F22 and F16";
    showPorts(window, true);
    showCorners(window, true);
    showF22Extras(window, true);
}

std::string_view nameOf(PictureOf what, const std::string& id)
{
    const PictureControl* control = findControl(picture(what), id);
    return control != nullptr ? control->name : std::string_view();
}

} // namespace

void LabelWCS(InsertOptions& window)
{
    Editor& editor = window.editor;
    const std::string extension = lowerUtf8(Right(editor.tabCaption(editor.joystick), 3));
    const bool olderStick = extension == "adv" || editor.shared.settings.JoyName >= joystick::pFcs;
    const PictureOf what = wcsPicture(olderStick);
    for (const std::size_t index : {21, 22, 23, 19, 20, 18, 16, 4, 17})
        window.BTN[index].Caption = std::string(nameOf(what, "BTN(" + std::to_string(index) + ")"));
    window.WcsPicture = what;
}

void ShowApproriateTabs(InsertOptions& window)
{
    Editor& editor = window.editor;
    const Settings& settings = editor.shared.settings;
    switch (settings.ComposerImages) {
    case composerImages::all:
        showAll(window);
        break;
    case composerImages::document: {
        const DocumentHardware found =
            hardwareOfDocument(editor.tabCaption(editor.joystick), editor.JoystickText.Text());
        showHardware(window, found.JoyName, found.ThrottleName);
        break;
    }
    default:
        showHardware(window, settings.JoyName, settings.ThrottleName);
        break;
    }
    const bool rudders = settings.RudderName != 0 || settings.ComposerImages == composerImages::all;
    for (const std::size_t index : rudderButtons) window.ROTARY[index].Visible = rudders;
}

void captionControls(InsertOptions& window)
{
    for (const Picture& shown : allPictures()) {
        for (const PictureControl& control : shown.controls) {
            Button* button = controlButton(window, control.id);
            if (button == nullptr || button == &window.TRIG) continue;
            const bool isHat = control.id.starts_with("HAT");
            button->Caption = (isHat ? " " : "") + std::string(control.name);
        }
    }
    LabelWCS(window);
}

} // namespace tarvex
