#include "desktop/closing_buttons.h"

#include <QPushButton>

namespace tarvex {

QDialogButtonBox* closingButtons(QDialog& dialogue, std::initializer_list<ClosingButton> buttons, Bindings& bindings)
{
    auto* row = new QDialogButtonBox(&dialogue); // a button outside of it isn't noted as the one that Return presses
    for (const ClosingButton& button : buttons) {
        QPushButton* shown = row->addButton(button.kind);
        shown->setObjectName(button.name);
        shown->setDefault(&button == buttons.begin());
        bindings.button(button.state, *shown);
    }
    return row;
}

} // namespace tarvex
