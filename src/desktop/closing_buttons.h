#pragma once

#include "desktop/bind.h"

#include <QDialogButtonBox>

#include <initializer_list>

namespace tarvex {

/// A button that ends a dialogue or asks for its help.
struct ClosingButton {
    QDialogButtonBox::StandardButton kind;
    Button& state; ///< outlives the row
    QString name;  ///< of the button in the program
};

/// A row of such buttons in the order and with the captions of the desktop. Return presses the first of `buttons`.
/// The row belongs to the layout or widget that it is put into.
QDialogButtonBox* closingButtons(std::initializer_list<ClosingButton> buttons, Bindings& bindings);

} // namespace tarvex
