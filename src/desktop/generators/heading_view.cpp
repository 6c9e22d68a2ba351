#include "desktop/generators/heading_view.h"

#include "desktop/closing_buttons.h"
#include "desktop/line_box.h"

#include <QComboBox>
#include <QFormLayout>
#include <QValidator>

namespace tarvex {

namespace {

constexpr int widthInCharacters = 40;
constexpr int namesShown = 20;

} // namespace

HeadingView::HeadingView(Heading& form, QWidget* parent) : FormWindow(form.Form, QStringLiteral("Heading"), parent)
{
    auto* names = new QComboBox;
    names->setObjectName(QStringLiteral("Combo1"));
    names->setEditable(true);
    names->setInsertPolicy(QComboBox::NoInsert);
    names->setCompleter(nullptr); // it would complete a typed "View" to "Views"
    names->setValidator(firstLineOnly(names));
    names->setMaxVisibleItems(namesShown);
    names->setMinimumWidth(names->fontMetrics().averageCharWidth() * widthInCharacters);
    m_bindings.comboBox(form.Combo1, *names);

    auto* buttons = closingButtons(*this,
                                   {{QDialogButtonBox::Ok, form.Command1[0], QStringLiteral("Command1_0")},
                                    {QDialogButtonBox::Cancel, form.Command1[1], QStringLiteral("Command1_1")}},
                                   m_bindings);

    auto* rows = new QFormLayout(this);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    rows->addRow(QStringLiteral("&Heading:"), names);
    rows->addRow(buttons);
    names->setFocus();
}

} // namespace tarvex
