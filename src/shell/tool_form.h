#pragma once

#include "platform/controls.h"
#include "shell/settings.h"
#include "shell/settings_store.h"
#include "shell/tool_windows.h"

#include <cstdint>
#include <string>

namespace tarvex {

class Desktop;

/// A tool window: loaded when it is first opened, it stays open beside the document window, and a flag says so while it
/// is loaded. Hidden, it keeps what it shows; unloaded, it doesn't have to.
struct ToolForm : Form {
    /// `name` is the window's name in the program. Without an open flag it isn't minimised with the frame; the flag
    /// outlives the form.
    explicit ToolForm(std::string name, std::int16_t* openFlag = nullptr);

    const std::string Name;
    std::function<void()> Load;     ///< runs before it is shown, unless it is loaded; ends in or contains markLoaded
    std::function<void()> Unload;   ///< ends in or contains markUnloaded; none: the form is hidden
    std::function<void()> Activate; ///< the window got the keyboard
    std::function<void()> Escape;   ///< Esc, where it isn't the same as closing
    /// A key goes down anywhere in the window, before the control with the keyboard gets it: its code
    /// (platform/key_codes.h) and what is held. True: the control doesn't get it.
    std::function<bool(int key, int shift)> KeyDown;

    bool isLoaded() const { return m_openFlag != nullptr && *m_openFlag == 1; }
    void markLoaded();
    /// Takes it off the screen too.
    void markUnloaded();

    /// Loads it if it isn't, and shows it before the other windows with the keyboard.
    void open();
    void hide() { Visible = false; }
    /// Runs Unload, unless it isn't loaded: an exit unloads every window, opened or not.
    void unload();

    /// Adds it to the windows that go with the frame. With `openedByName` other units may open it by its name.
    void join(ToolWindows& windows, bool openedByName = false);

private:
    std::int16_t* m_openFlag;
};

/// The settings that keep a window's place, and the procedures that read and write them.
struct PlaceSettings {
    float Settings::*top;
    float Settings::*left;
    Access read;
    Access write;
    std::string_view readTag;
    std::string_view writeTag;
};

/// Stands for a place that isn't on the screen, in twips.
constexpr float placeOffScreen = 200;

/// `at` if it lies in 0..`screen`, both included; else placeOffScreen.
float onScreen(float at, float screen);

/// Moves the form to its remembered place; `top` and `left` are the defaults.
void positionForm(Form& form, const PlaceSettings& place, float top, float left, Settings& settings,
                  SettingsStore& store, const Desktop& desktop);
/// Remembers where the form stands, unless it is minimised.
void savePosition(const Form& form, const PlaceSettings& place, Settings& settings, SettingsStore& store,
                  const Desktop& desktop);

} // namespace tarvex
