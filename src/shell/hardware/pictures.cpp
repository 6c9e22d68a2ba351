#include "shell/hardware/pictures.h"

#include "shell/hardware/hardware_profile.h"

#include <algorithm>
#include <array>

namespace tarvex {

namespace {

constexpr std::array f22AndF16Controls{
    PictureControl{"BTN(1)", "S2", "button"},
    PictureControl{"HAT(0)", "H1", "hat"},
    PictureControl{"HAT(1)", "H2", "hat"},
    PictureControl{"HAT(2)", "H3", "hat"},
    PictureControl{"BTN(0)", "S1", "button"},
    PictureControl{"TRIG", "TG1 TG2", "trigger"},
    PictureControl{"ROTARY(4)", "SWAPTG", "trigger order"},
    PictureControl{"HAT(3)", "H4", "hat"},
    PictureControl{"BTN(2)", "S3", "button"},
    PictureControl{"BTN(3)", "S4", "paddle"},
    PictureControl{"ROTARY(6)", "JSY", "axis"},
    PictureControl{"ROTARY(3)", "JSX", "axis"},
    PictureControl{"ROTARY(7)", "PORT", "game port"},
    PictureControl{"ROTARY(2)", "Rudder", "pedals"},
};

constexpr std::array olderStickControls{
    PictureControl{"BTN(5)", "UB", "button"}, PictureControl{"HAT(4)", "H", "hat"},
    PictureControl{"BTN(7)", "MB", "button"}, PictureControl{"BTN(6)", "TG", "trigger"},
    PictureControl{"BTN(8)", "LB", "button"}, PictureControl{"ROTARY(8)", "Rudder", "pedals"},
};

constexpr std::array tqsControls{
    PictureControl{"ROTARY(0)", "RNG", "knob"},      PictureControl{"BTN(11)", "T6", "button"},
    PictureControl{"ROTARY(1)", "ANT", "knob"},      PictureControl{"BTN(24)", "T2", "switch"},
    PictureControl{"BTN(27)", "T3", "switch"},       PictureControl{"BTN(26)", "T4", "switch"},
    PictureControl{"BTN(25)", "T5", "switch"},       PictureControl{"BTN(12)", "T7", "switch"},
    PictureControl{"BTN(13)", "T8", "switch"},       PictureControl{"BTN(14)", "T9", "switch"},
    PictureControl{"BTN(15)", "T10", "switch"},      PictureControl{"BTN(32)", "T1", "button"},
    PictureControl{"BTN(30)", "T11", "switch"},      PictureControl{"BTN(29)", "T12", "switch"},
    PictureControl{"BTN(28)", "T13", "switch"},      PictureControl{"BTN(31)", "T14", "switch"},
    PictureControl{"ROTARY(5)", "Throttle", "axis"},
};

constexpr std::array wcsControls{
    PictureControl{"BTN(21)", "T3", "button"}, PictureControl{"BTN(22)", "T2", "button"},
    PictureControl{"BTN(23)", "T1", "button"}, PictureControl{"BTN(19)", "T4", "button"},
    PictureControl{"BTN(20)", "T5", "button"}, PictureControl{"BTN(18)", "T6", "button"},
    PictureControl{"BTN(16)", "T7", "rocker"}, PictureControl{"BTN(4)", "", "rocker"},
    PictureControl{"BTN(17)", "T8", "rocker"}, PictureControl{"ROTARY(9)", "Throttle", "axis"},
};

constexpr std::array wcsWithOlderStickControls{
    PictureControl{"BTN(21)", "3", "button"},      PictureControl{"BTN(22)", "2", "button"},
    PictureControl{"BTN(23)", "1", "button"},      PictureControl{"BTN(19)", "4", "button"},
    PictureControl{"BTN(20)", "5", "button"},      PictureControl{"BTN(18)", "6", "button"},
    PictureControl{"BTN(16)", "RKR UP", "rocker"}, PictureControl{"BTN(4)", "RKR MD", "rocker"},
    PictureControl{"BTN(17)", "RKR DN", "rocker"}, PictureControl{"ROTARY(9)", "Throttle", "axis"},
};

constexpr std::array pictures{
    Picture{"f22-f16-stick", "F-22 Pro or F-16 FLCS joystick", f22AndF16Controls},
    Picture{"older-stick", "P FCS, Top Gun or FCS joystick", olderStickControls},
    Picture{"tqs", "TQS throttle", tqsControls},
    Picture{"wcs", "WCS throttle", wcsControls},
    Picture{"wcs-older-stick", "WCS throttle beside an older joystick", wcsWithOlderStickControls},
};

} // namespace

const Picture& picture(PictureOf what) { return pictures[static_cast<std::size_t>(what)]; }

std::span<const Picture> allPictures() { return pictures; }

PictureOf stickPicture(std::int16_t joyName)
{
    const bool older = joyName >= joystick::pFcs && joyName <= joystick::fcs;
    return older ? PictureOf::OlderStick : PictureOf::F22AndF16Stick;
}

PictureOf wcsPicture(bool olderStick) { return olderStick ? PictureOf::WcsWithOlderStick : PictureOf::Wcs; }

const PictureControl* findControl(const Picture& picture, std::string_view id)
{
    const auto found = std::ranges::find(picture.controls, id, &PictureControl::id);
    return found == picture.controls.end() ? nullptr : &*found;
}

std::string accessibleName(const PictureControl& control)
{
    const std::string_view name = control.name.empty() ? "Middle" : control.name;
    return std::string(name) + ", " + std::string(control.kind);
}

} // namespace tarvex
