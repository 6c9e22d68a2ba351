#pragma once

#include "desktop/form_window.h"
#include "generators/title.h"

class QFormLayout;

namespace tarvex {

/// Window of the dialogue that writes a title block.
class TitleView : public FormWindow {
    Q_OBJECT
public:
    TitleView(Title& form, QWidget* parent);

private:
    void addLine(QFormLayout& rows, const char* label, TextBox& state, const char* name);
};

} // namespace tarvex
