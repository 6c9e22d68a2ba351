#pragma once

#include "composer/insert_options.h"

namespace tarvex {

// Clicks on the pictures. A click looks for its statement in the joystick file first, and inserts it when it isn't
// there. While the port toggle, ROTARY(7), is at 1, the next button, hat or trigger gives its bare name.

/// Gives the controls of the pictures and their menus their handlers.
void wireHardware(InsertOptions& window);

void BTN_Click(InsertOptions& window, int Index);
void HAT_Click(InsertOptions& window, int Index);
void TRIG_Click(InsertOptions& window);
void ROTARY_Click(InsertOptions& window, int Index);
void MnuHatPostion_Click(InsertOptions& window, int Index);
void MnuHatCornerPostion_Click(InsertOptions& window, int Index);
void mnuTrig_Click(InsertOptions& window, int Index);
void mnuPort_Click(InsertOptions& window, int Index);
void SlashButton_Click(InsertOptions& window, int Index);

} // namespace tarvex
