#pragma once

#include "platform/controls.h"

namespace tarvex {

/// A label that is used as a button and stays held. Its back colour says whether it is, and is what the logic reads.
struct ToggleLabel {
    static constexpr Colour heldColour = 0x80C0FF;
    static constexpr auto releasedColour = static_cast<Colour>(0x8000000FU); ///< the system's colour of buttons

    Property<std::string> Caption;
    Property<bool> Visible = true;
    Property<Colour> BackColor = releasedColour;
    Property<std::string> ToolTipText;
    std::function<void()> Click;

    bool isHeld() const { return BackColor == heldColour; }
    void hold(bool on) { BackColor = on ? heldColour : releasedColour; }
};

} // namespace tarvex
