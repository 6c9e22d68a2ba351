#pragma once

#include "desktop/bind.h"
#include "testers/testers.h"

class QWidget;

namespace tarvex {

/// Has the testers' windows made when they are first shown. All outlive the bindings.
void makeTestersWhenShown(Testers& testers, Bindings& bindings, QWidget* frame);

} // namespace tarvex
