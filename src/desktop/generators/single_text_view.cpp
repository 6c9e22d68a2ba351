#include "desktop/generators/single_text_view.h"

#include "desktop/closing_buttons.h"
#include "desktop/generators/text_area.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace tarvex {

SingleTextView::SingleTextView(SingleTextForm& form, QWidget* parent)
    : FormWindow(form.Form, QStringLiteral("SingleTextForm"), parent)
{
    auto* words = new TextArea(form.RichTextBox1, QStringLiteral("RichTextBox1"), 1);
    words->leaveReturnToDialogue();
    words->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // the caret scrolls
    words->setAccessibleName(QStringLiteral("Words of the Rem statement"));
    auto* lineEnd = new QCheckBox;
    lineEnd->setObjectName(QStringLiteral("CheckAddCR"));
    m_bindings.checkBox(form.CheckAddCR, *lineEnd);

    auto* buttons = closingButtons(*this,
                                   {{QDialogButtonBox::Ok, form.Command1, QStringLiteral("Command1")},
                                    {QDialogButtonBox::Cancel, form.Command2, QStringLiteral("Command2")}},
                                   m_bindings);

    auto* column = new QVBoxLayout(this);
    column->addWidget(words);
    column->addWidget(lineEnd);
    column->addWidget(buttons);
    words->setFocus();
}

} // namespace tarvex
