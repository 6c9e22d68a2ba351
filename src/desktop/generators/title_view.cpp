#include "desktop/generators/title_view.h"

#include "desktop/closing_buttons.h"
#include "desktop/generators/text_area.h"
#include "desktop/line_box.h"

#include <QFormLayout>

namespace tarvex {

namespace {

constexpr int commentLines = 5;

} // namespace

TitleView::TitleView(Title& form, QWidget* parent) : FormWindow(form.Form, QStringLiteral("Title"), parent)
{
    auto* rows = new QFormLayout(this);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addLine(*rows, "&File:", form.Text1, "Text1");
    addLine(*rows, "&Game:", form.Text2, "Text2");
    addLine(*rows, "&Your name:", form.Text3, "Text3");
    addLine(*rows, "Last &modified:", form.Text4, "Text4");
    addLine(*rows, "Co&ntrollers:", form.Text5, "Text5");
    rows->addRow(QStringLiteral("&Comment:"),
                 new TextArea(form.RichTextBox1, QStringLiteral("RichTextBox1"), commentLines));

    auto* buttons = closingButtons(*this,
                                   {{QDialogButtonBox::Ok, form.Command1, QStringLiteral("Command1")},
                                    {QDialogButtonBox::Cancel, form.Command2, QStringLiteral("Command2")}},
                                   m_bindings);
    rows->addRow(buttons);
    findChild<QLineEdit*>(QStringLiteral("Text2"))->setFocus();
}

void TitleView::addLine(QFormLayout& rows, const char* label, TextBox& state, const char* name)
{
    rows.addRow(QLatin1String(label), new LineBox(state, QLatin1String(name), m_bindings));
}

} // namespace tarvex
