#pragma once

#include "desktop/bind.h"

#include <QDialog>
#include <QDialogButtonBox>

#include <initializer_list>

namespace tarvex {

/// A button that ends a dialogue or asks for its help.
struct ClosingButton {
    QDialogButtonBox::StandardButton kind;
    Button& state; ///< outlives the row
    QString name;  ///< of the button in the program
};

/// A row of such buttons in the order and with the captions of the desktop. Return presses the first of `buttons`,
/// wherever in the dialogue the keyboard was meanwhile. The row is the dialogue's, and is yet to be laid out.
QDialogButtonBox* closingButtons(QDialog& dialogue, std::initializer_list<ClosingButton> buttons, Bindings& bindings);

} // namespace tarvex
