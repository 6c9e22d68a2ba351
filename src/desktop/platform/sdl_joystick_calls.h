#pragma once

#include "desktop/platform/sdl_library.h"

namespace tarvex {

/// The functions of SDL that joysticks need.
struct SdlJoystickCalls : SdlLibrary {
    bool load()
    {
        return loadLibrary() && find(setHint, "SDL_SetHint") && find(count, "SDL_NumJoysticks") &&
               find(nameForIndex, "SDL_JoystickNameForIndex") && find(pathForIndex, "SDL_JoystickPathForIndex") &&
               find(guidForIndex, "SDL_JoystickGetDeviceGUID") && find(guidText, "SDL_JoystickGetGUIDString") &&
               find(open, "SDL_JoystickOpen") && find(close, "SDL_JoystickClose") &&
               find(attached, "SDL_JoystickGetAttached") && find(axes, "SDL_JoystickNumAxes") &&
               find(buttons, "SDL_JoystickNumButtons") && find(hats, "SDL_JoystickNumHats") &&
               find(axis, "SDL_JoystickGetAxis") && find(button, "SDL_JoystickGetButton") &&
               find(hat, "SDL_JoystickGetHat") && find(update, "SDL_JoystickUpdate") &&
               find(pollEvent, "SDL_PollEvent") && find(instance, "SDL_JoystickInstanceID");
    }

    decltype(&SDL_SetHint) setHint = nullptr;
    decltype(&SDL_NumJoysticks) count = nullptr;
    decltype(&SDL_JoystickNameForIndex) nameForIndex = nullptr;
    decltype(&SDL_JoystickPathForIndex) pathForIndex = nullptr;
    decltype(&SDL_JoystickGetDeviceGUID) guidForIndex = nullptr;
    decltype(&SDL_JoystickGetGUIDString) guidText = nullptr;
    decltype(&SDL_JoystickOpen) open = nullptr;
    decltype(&SDL_JoystickClose) close = nullptr;
    decltype(&SDL_JoystickGetAttached) attached = nullptr;
    decltype(&SDL_JoystickNumAxes) axes = nullptr;
    decltype(&SDL_JoystickNumButtons) buttons = nullptr;
    decltype(&SDL_JoystickNumHats) hats = nullptr;
    decltype(&SDL_JoystickGetAxis) axis = nullptr;
    decltype(&SDL_JoystickGetButton) button = nullptr;
    decltype(&SDL_JoystickGetHat) hat = nullptr;
    decltype(&SDL_JoystickUpdate) update = nullptr;
    decltype(&SDL_PollEvent) pollEvent = nullptr;
    decltype(&SDL_JoystickInstanceID) instance = nullptr;
};

} // namespace tarvex
