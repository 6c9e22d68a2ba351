#pragma once

#include "desktop/form_window.h"
#include "generators/single_text_form.h"

namespace tarvex {

/// Window of the dialogue that asks for the words of a Rem statement.
class SingleTextView : public FormWindow {
    Q_OBJECT
public:
    SingleTextView(SingleTextForm& form, QWidget* parent);
};

} // namespace tarvex
