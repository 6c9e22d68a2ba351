#include "desktop/composer/field_row.h"

#include "desktop/line_box.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QValidator>

namespace tarvex {

QPushButton* newButton(Button& state, const QString& name, Bindings& bindings, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    bindings.button(state, *button);
    return button;
}

QLineEdit* newField(TextBox& state, const QString& name, Bindings& bindings, QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setObjectName(name);
    field->setValidator(firstLineOnly(field)); // a statement ends where its line does
    bindings.textBox(state, *field);
    return field;
}

QLineEdit* addField(QBoxLayout& row, const QString& label, TextBox& state, const QString& name, int digits,
                    Bindings& bindings, QPushButton* button)
{
    QLineEdit* field = newField(state, name, bindings, button->parentWidget());
    if (digits > 0) field->setFixedWidth(field->fontMetrics().averageCharWidth() * digits * 2);
    auto* text = new QLabel(label, button->parentWidget());
    text->setBuddy(field);
    QObject::connect(field, &QLineEdit::returnPressed, button, [button] { button->click(); });
    row.addWidget(text);
    row.addWidget(field, digits > 0 ? 0 : 1);
    row.addWidget(button);
    return field;
}

} // namespace tarvex
