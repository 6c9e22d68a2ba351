#pragma once

#include "desktop/bind.h"

class QWidget;

namespace tarvex {

struct Wizards;

/// Makes each window of the Wizards menu when it is first shown, over `parent`. The wizards outlive the bindings.
void makeWizardsWhenShown(Wizards& wizards, Bindings& bindings, QWidget* parent);

} // namespace tarvex
