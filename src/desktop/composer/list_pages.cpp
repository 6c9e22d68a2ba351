#include "desktop/composer/list_pages.h"

#include "composer/templates_tab.h"
#include "desktop/composer/composer_macro_list.h"
#include "desktop/composer/field_row.h"
#include "desktop/documents/text/pane_view.h"
#include "platform/input.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace tarvex {

namespace {

QCheckBox* tick(CheckBox& state, const char* name, Bindings& bindings, QWidget* parent)
{
    auto* box = new QCheckBox(parent);
    box->setObjectName(QLatin1String(name));
    bindings.checkBox(state, *box);
    return box;
}

/// The template on view; a double click inserts it.
class TemplatePreview : public PaneView {
public:
    TemplatePreview(InsertOptions& window, QWidget* parent)
        : PaneView(window.templates.TemplatesPreview, parent), m_window(window)
    {
        setObjectName(QStringLiteral("TemplatesPreview"));
        setAccessibleName(QStringLiteral("Template"));
        setToolTip(QStringLiteral("Double click here to insert into your file"));
        setPlaceholderText(QStringLiteral("Choose a template to see it here"));
        connect(this, &PaneView::popUpWanted, this,
                [this] { TemplatesPreview_MouseDown(m_window, mouseButton::right); });
    }

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override
    {
        event->accept();
        if (event->button() == Qt::LeftButton) TemplatesPreview_DblClick(m_window);
    }

private:
    InsertOptions& m_window;
};

/// The right button shows its entry at once, also where that is chosen already.
class TemplateList : public QListWidget {
public:
    TemplateList(InsertOptions& window, Bindings& bindings, QWidget* parent) : QListWidget(parent), m_window(window)
    {
        setObjectName(QStringLiteral("Templates"));
        setAccessibleName(QStringLiteral("Templates"));
        bindings.listBox(window.templates.Templates, *this);
    }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        QListWidget::mousePressEvent(event);
        if (event->button() == Qt::RightButton && indexAt(event->position().toPoint()).isValid())
            Templates_MouseDown(m_window, mouseButton::right);
    }

private:
    InsertOptions& m_window;
};

} // namespace

QWidget* macrosPage(InsertOptions& window, Bindings& bindings)
{
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    auto* headings = new QComboBox(page);
    headings->setObjectName(QStringLiteral("Combo1"));
    headings->setAccessibleName(QStringLiteral("Macro headings"));
    headings->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    bindings.comboBox(window.macros.Combo1, *headings);
    column->addWidget(headings);
    column->addWidget(new ComposerMacroList(window, page), 1);
    column->addWidget(tick(window.macros.CheckAddCR, "CheckAddCR", bindings, page));
    column->addWidget(tick(window.macros.CheckCopyTicks, "CheckCopyTicks", bindings, page));
    return page;
}

QWidget* templatesPage(InsertOptions& window, Bindings& bindings)
{
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    auto* parts = new QSplitter(Qt::Vertical, page);
    parts->addWidget(new TemplateList(window, bindings, parts));
    parts->addWidget(new TemplatePreview(window, parts));
    parts->setStretchFactor(1, 1);
    parts->setChildrenCollapsible(false);
    column->addWidget(parts, 1);
    for (std::size_t i = 0; i < window.templates.Command11.size(); ++i)
        column->addWidget(
            newButton(window.templates.Command11[i], QStringLiteral("Command11(%1)").arg(i), bindings, page));
    return page;
}

} // namespace tarvex
