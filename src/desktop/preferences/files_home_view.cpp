#include "desktop/preferences/files_home_view.h"

#include "desktop/closing_buttons.h"

#include <QBoxLayout>
#include <QLabel>
#include <QRadioButton>

namespace tarvex {

namespace {

constexpr int textWidth = 420; ///< pixels

} // namespace

FilesHomeView::FilesHomeView(FilesHome& form, QWidget* parent)
    : FormWindow(form.Form, QStringLiteral("FilesHome"), parent)
{
    auto* column = new QVBoxLayout(this);
    auto* question = new QLabel(toQt(form.Question.Caption.get()), this);
    question->setWordWrap(true);
    question->setMinimumWidth(textWidth);
    column->addWidget(question);
    for (std::size_t i = 0; i < form.Choices.size(); ++i) {
        auto* choice = new QRadioButton(this);
        choice->setObjectName(QStringLiteral("Choices(%1)").arg(i));
        m_bindings.optionButton(form.Choices[i], *choice);
        column->addWidget(choice);
        if (form.Choices[i].Value) choice->setFocus();
    }
    column->addWidget(closingButtons(*this, {{QDialogButtonBox::Ok, form.Ok, QStringLiteral("Ok")}}, m_bindings));
}

} // namespace tarvex
