#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tarvex {

/// A control that a picture of the hardware shows and that can be clicked.
struct PictureControl {
    std::string_view id;   ///< its name in the program and the id of its element in the picture, e.g. "BTN(0)"
    std::string_view name; ///< the label beside it, e.g. "S1"; empty for the middle of a rocker that has no statement
    std::string_view kind; ///< what it is, in a word or two: "button", "hat"
};

/// A drawing of a controller.
struct Picture {
    std::string_view file;                    ///< resources/hardware/FILE.svg; in the program :/hardware/FILE.svg
    std::string_view description;             ///< what it shows, for a screen reader
    std::span<const PictureControl> controls; ///< in the order of the keyboard: from top to bottom, by groups
};

enum class PictureOf {
    F22AndF16Stick,
    OlderStick, ///< P FCS, Top Gun, FCS
    Tqs,
    Wcs,              ///< with an F-22 Pro or F-16 FLCS: T1 to T8
    WcsWithOlderStick ///< 1 to 6 and the rocker
};

const Picture& picture(PictureOf what);
/// All of them, in the order of PictureOf.
std::span<const Picture> allPictures();

/// The picture for a value of the setting JoyName; an unknown value gives the F-22 Pro's.
PictureOf stickPicture(std::int16_t joyName);
/// The picture of a WCS, which the older sticks label in their own way.
PictureOf wcsPicture(bool olderStick);

/// The control with this id, or null.
const PictureControl* findControl(const Picture& picture, std::string_view id);
/// For a screen reader: "S1, button".
std::string accessibleName(const PictureControl& control);

} // namespace tarvex
