#include "desktop/lists/enter_favourite_name_view.h"

#include "desktop/closing_buttons.h"
#include "desktop/line_box.h"
#include "desktop/shell/elided_label.h"

#include <QFormLayout>

namespace tarvex {

namespace {

constexpr int widthInCharacters = 52;

ElidedLabel* pathLabel(Label& state, const QString& name, Bindings& bindings)
{
    auto* label = new ElidedLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    bindings.bind(state.Caption, [label](const std::string& path) { label->setText(toQt(path)); });
    return label;
}

} // namespace

EnterFavouriteNameView::EnterFavouriteNameView(EnterFavouritename& form, QWidget* parent)
    : FormWindow(form.Form, QStringLiteral("EnterFavouritename"), parent)
{
    auto* name = new LineBox(form.Text1, QStringLiteral("Text1"), m_bindings);
    name->setMinimumWidth(name->fontMetrics().averageCharWidth() * widthInCharacters);

    auto* buttons = closingButtons(*this,
                                   {{QDialogButtonBox::Ok, form.Command1, QStringLiteral("Command1")},
                                    {QDialogButtonBox::Cancel, form.Command2, QStringLiteral("Command2")}},
                                   m_bindings);

    auto* rows = new QFormLayout(this);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    rows->addRow(QStringLiteral("Joystick file:"), pathLabel(form.Label3, QStringLiteral("Label3"), m_bindings));
    rows->addRow(QStringLiteral("Macro file:"), pathLabel(form.Label5, QStringLiteral("Label5"), m_bindings));
    rows->addRow(QStringLiteral("&Name:"), name);
    rows->addRow(buttons);
    name->setFocus();
}

} // namespace tarvex
