#pragma once

#include "desktop/bind.h"
#include "testers/numbers.h"

#include <QWidget>

class QComboBox;
class QLayout;
class QLabel;
class QPushButton;

namespace tarvex {

/// The panel with the numbers of an analyser, below its field.
class NumbersView : public QWidget {
    Q_OBJECT
public:
    NumbersView(Numbers& numbers, QWidget* parent);

private:
    QLayout* choices();
    QLayout* table();
    QLayout* buttons();
    QComboBox* comboBox(ComboBox& state, const QString& name, const QString& accessibleName);
    QPushButton* button(Button& state, const char* name);
    QLabel* text(Label& state, const char* name);

    Numbers& m_numbers;
    Bindings m_bindings;
};

} // namespace tarvex
