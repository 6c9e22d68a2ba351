#include "desktop/preferences/import_view.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include <algorithm>

namespace tarvex {

namespace {

constexpr int usualWidth = 520;   ///< pixels
constexpr int leftOutHeight = 90; ///< pixels

} // namespace

ImportView::ImportView(ImportForm& form, QWidget* parent) : FormWindow(form.Form, QStringLiteral("Import"), parent)
{
    auto* column = new QVBoxLayout(this);
    auto* folder = new QLabel(this);
    folder->setObjectName(QStringLiteral("FolderLabel"));
    folder->setTextFormat(Qt::PlainText);
    folder->setWordWrap(true);
    m_bindings.bind(form.FolderLabel.Caption, [folder](const std::string& path) {
        folder->setText(QStringLiteral("Found in ") + toQt(path) + QLatin1Char(':'));
    });
    column->addWidget(folder);
    for (std::size_t i = 0; i < form.Parts.size(); ++i) {
        auto* part = new QCheckBox(this);
        part->setObjectName(QStringLiteral("Parts(%1)").arg(i));
        m_bindings.checkBox(form.Parts[i], *part);
        column->addWidget(part);
    }
    auto* leftOut = new QPlainTextEdit(this);
    leftOut->setObjectName(QStringLiteral("LeftOut"));
    leftOut->setAccessibleName(QStringLiteral("Left out"));
    leftOut->setReadOnly(true);
    leftOut->setTabChangesFocus(true);
    leftOut->setFixedHeight(leftOutHeight);
    m_bindings.bind(form.LeftOut.Caption, [leftOut](const std::string& text) {
        leftOut->setPlainText(toQt(text));
        leftOut->setVisible(!text.empty());
    });
    column->addWidget(leftOut);
    auto* kept = new QLabel(QStringLiteral("A copy of your settings as they are now is kept first."), this);
    column->addWidget(kept);
    column->addStretch();
    auto* box = new QDialogButtonBox(this);
    QPushButton* import = box->addButton(QString(), QDialogButtonBox::AcceptRole);
    QPushButton* cancel = box->addButton(QString(), QDialogButtonBox::RejectRole);
    import->setObjectName(QStringLiteral("ImportButton"));
    cancel->setObjectName(QStringLiteral("CancelButton"));
    import->setDefault(true);
    m_bindings.button(form.ImportButton, *import);
    m_bindings.button(form.CancelButton, *cancel);
    column->addWidget(box);
    resize(std::max(usualWidth, sizeHint().width()), sizeHint().height());
}

} // namespace tarvex
