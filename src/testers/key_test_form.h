#pragma once

#include "documents/pair/editor.h"
#include "platform/input_devices.h"
#include "platform/toggle_label.h"
#include "shell/tool_form.h"
#include "testers/coloured_list.h"

#include <array>

namespace tarvex {

/// Twips of the window's frames and their bars.
namespace keyTestTwips {
constexpr int plot = 2400; ///< sides of PictureJoystick
constexpr int throttleWidth = 495;
constexpr int rudderHeight = 390;
} // namespace keyTestTwips

/// A point of the plot, in axis units.
struct PlottedPoint {
    std::uint32_t x = 0;
    std::uint32_t y = 0;
    bool operator==(const PlottedPoint&) const = default;
};

/// The key tester: what keyboard and joystick really send. It stays before all other windows.
struct KeyTestForm {
    KeyTestForm(Editor& theEditor, InputDevices devices);
    KeyTestForm(const KeyTestForm&) = delete;
    KeyTestForm& operator=(const KeyTestForm&) = delete;

    Editor& editor;
    Joystick& joystick;
    Keyboard& keyboard;
    std::int16_t WindowOpen = 0; ///< 1 while the window is loaded
    ToolForm form{"KeyTestForm", &WindowOpen};

    MenuItem mnuFile{"mnuFile", "File"};
    MenuItem mnuClose{"mnuClose", "Exit"};
    MenuItem mnuClear{"mnuClear", "Clear"};
    MenuItem mnuClearAll{"mnuClearAll", "All"};
    MenuArray mnuClear500{"mnuClear500",
                          {"After 200ms from key up", "After 400ms from key up", "After 600ms from key up",
                           "After 800ms from key up", "After 1000ms from key up"}};
    Button Command1;

    ColouredList RTFKeysDownText;
    ColouredList RTFKeysUpText;
    ColouredList RTFKeysText;
    ToggleLabel LabelSHIFT; ///< lit ones have the colour of a held toggle
    ToggleLabel LabelCTRL;
    ToggleLabel LabelALT;
    ToggleLabel LabelNUMLOCK;

    Property<PlottedPoint> PictureJoystick; ///< the point that is drawn
    Property<bool> JoystickShown = false;   ///< the plot has its scale: a joystick was found
    Property<Placement> FrameTHR;           ///< in twips, in the window's coordinates; the plot starts at 0, 0
    Property<Placement> FrameRDDR;
    Property<Placement> LabelTHR; ///< in twips, inside its frame
    Property<Placement> LabelRDDR;
    std::array<ToggleLabel, 4> JoyButtonAnalogue;
    Label MoreButtons; ///< the other buttons that are pressed, and the hats
    Label status;

    Timer JoystickTimer{100};
    Timer Timer1{500};

    Colour CurrentColour = 0;
    std::int16_t ColourIndex = 1;
    std::int16_t KeyPressSuppressed = 0;
    std::int16_t ClearOnNextKey = 0;
    std::int16_t AutoClearOn = 0; ///< 0 or -1
    std::int16_t SkipNextKeyDown = 0;
    std::int16_t SkipNextKeyUp = 0;
    Colour UpColour = 0; ///< what RTFKeysUpText writes in: the colour of the key that went down last

    JOYCAPS Caps;
    JOYINFOEX Info;
    int LastThrottleSize = 0;
    int LastRudderSize = 0;
    int LastResult = -1;         ///< of the read whose text is in `status`
    bool ToldOfCapsLock = false; ///< the status text said that it can't be switched off
    bool JoystickStarted = false;
    JoystickReport LastReport; ///< with all buttons and hats

    std::vector<MenuEntry> menuBar();

    std::vector<Connection> connections;
};

} // namespace tarvex
