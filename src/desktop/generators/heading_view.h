#pragma once

#include "desktop/form_window.h"
#include "generators/heading.h"

namespace tarvex {

/// Window of the dialogue that asks for a heading.
class HeadingView : public FormWindow {
    Q_OBJECT
public:
    HeadingView(Heading& form, QWidget* parent);
};

} // namespace tarvex
