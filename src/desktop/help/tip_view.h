#pragma once

#include "desktop/form_window.h"
#include "help/tips.h"

namespace tarvex {

/// Window of the tip of the day.
class TipView : public FormWindow {
    Q_OBJECT
public:
    TipView(TipWindow& window, QWidget* parent);
};

} // namespace tarvex
