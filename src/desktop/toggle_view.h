#pragma once

#include "desktop/bind.h"
#include "platform/toggle_label.h"

namespace tarvex {

/// Shows a toggle as a button that stays down in its held colour; a click of the user runs Click.
void bindToggle(ToggleLabel& state, QAbstractButton& widget, Bindings& bindings);

} // namespace tarvex
