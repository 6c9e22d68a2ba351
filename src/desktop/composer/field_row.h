#pragma once

#include "desktop/bind.h"

#include <QString>

class QBoxLayout;
class QLineEdit;
class QPushButton;
class QWidget;

namespace tarvex {

// Pieces of the Composer's pages. The bindings are destroyed before the widgets.

/// A button that Return presses only while it has the keyboard.
QPushButton* newButton(Button& state, const QString& name, Bindings& bindings, QWidget* parent);
QLineEdit* newField(TextBox& state, const QString& name, Bindings& bindings, QWidget* parent);
/// A labelled field with the button that uses it, which Return in the field presses too. `digits` is the width of the
/// field; 0: all that there is.
QLineEdit* addField(QBoxLayout& row, const QString& label, TextBox& state, const QString& name, int digits,
                    Bindings& bindings, QPushButton* button);

} // namespace tarvex
