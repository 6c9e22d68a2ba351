#include "desktop/generators/single_text_view.h"

#include "desktop/generators/text_area.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
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

    auto* buttons = new QDialogButtonBox;
    QPushButton* ok = buttons->addButton(QDialogButtonBox::Ok);
    QPushButton* cancel = buttons->addButton(QDialogButtonBox::Cancel);
    ok->setObjectName(QStringLiteral("Command1"));
    cancel->setObjectName(QStringLiteral("Command2"));
    ok->setDefault(true);
    m_bindings.button(form.Command1, *ok);
    m_bindings.button(form.Command2, *cancel);

    auto* column = new QVBoxLayout(this);
    column->addWidget(words);
    column->addWidget(lineEnd);
    column->addWidget(buttons);
    words->setFocus();
}

} // namespace tarvex
