#include "desktop/closing_buttons.h"

#include <QPushButton>

namespace tarvex {

QDialogButtonBox* closingButtons(std::initializer_list<ClosingButton> buttons, Bindings& bindings)
{
    auto* row = new QDialogButtonBox;
    for (const ClosingButton& button : buttons) {
        QPushButton* shown = row->addButton(button.kind);
        shown->setObjectName(button.name);
        shown->setDefault(&button == buttons.begin());
        bindings.button(button.state, *shown);
    }
    return row;
}

} // namespace tarvex
