#include "desktop/preferences/files_home_view.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
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
    auto* box = new QDialogButtonBox(this);
    QPushButton* ok = box->addButton(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("Ok"));
    ok->setDefault(true);
    m_bindings.button(form.Ok, *ok);
    column->addWidget(box);
}

} // namespace tarvex
