#include "desktop/generators/heading_view.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>

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
    names->setMaxVisibleItems(namesShown);
    names->setMinimumWidth(names->fontMetrics().averageCharWidth() * widthInCharacters);
    m_bindings.comboBox(form.Combo1, *names);

    auto* buttons = new QDialogButtonBox;
    QPushButton* ok = buttons->addButton(QDialogButtonBox::Ok);
    QPushButton* cancel = buttons->addButton(QDialogButtonBox::Cancel);
    ok->setObjectName(QStringLiteral("Command1_0"));
    cancel->setObjectName(QStringLiteral("Command1_1"));
    ok->setDefault(true);
    m_bindings.button(form.Command1[0], *ok);
    m_bindings.button(form.Command1[1], *cancel);

    auto* rows = new QFormLayout(this);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    rows->addRow(QStringLiteral("&Heading:"), names);
    rows->addRow(buttons);
    names->setFocus();
}

} // namespace tarvex
