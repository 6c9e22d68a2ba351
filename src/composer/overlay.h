#pragma once

#include "composer/insert_options.h"

#include <string>

namespace tarvex {

// What the joystick file has on the controls, shown over the pictures: a view of the text, made anew after edits.

void wireOverlay(InsertOptions& window);
/// Takes the user's choice from the extras.
void readShowAssigned(InsertOptions& window);
void CheckShowAssigned_Click(InsertOptions& window);
/// Reads the joystick file anew, or shows nothing.
void renewAssigned(InsertOptions& window);
/// A statement of the file is on the control with this id.
bool isAssigned(const InsertOptions& window, std::string_view id);
/// The statements on a control, and the keys of the macros that they name, UTF-8, a line each; empty without any.
std::string assignedText(const InsertOptions& window, std::string_view id);

} // namespace tarvex
