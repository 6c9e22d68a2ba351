#include "desktop/documents/find/find_bar_view.h"

#include "desktop/icon_theme.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace tarvex {

namespace {

constexpr int longestText = 32767;

} // namespace

FindBarView::FindBarView(FindBar& bar, QWidget* parent) : QWidget(parent), m_bar(bar), m_text(new QLineEdit(this))
{
    setObjectName(QStringLiteral("FindBar"));
    setAutoFillBackground(true);
    auto* rows = new QVBoxLayout(this); // beside another pane there may be little room for one long row
    rows->setContentsMargins(6, 3, 3, 3);
    rows->setSpacing(2);
    rows->setSizeConstraint(QLayout::SetNoConstraint);
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    rows->addLayout(row);
    auto* options = new QHBoxLayout;
    rows->addLayout(options);
    addText(*row);
    addButton(*row, bar.Previous, "FindBarPrevious", "previous");
    addButton(*row, bar.Next, "FindBarNext", "next");
    addOption(*options, bar.MatchCase, "FindBarMatchCase");
    addOption(*options, bar.WholeWord, "FindBarWholeWord");
    options->addStretch(1);
    auto* count = new QLabel(this);
    count->setObjectName(QStringLiteral("FindBarCount"));
    m_bindings.bind(bar.Count.Caption, [count](const std::string& text) { count->setText(toQt(text)); });
    row->addWidget(count);
    row->addStretch(1);
    addButton(*row, bar.Close, "FindBarClose", "close");
}

void FindBarView::addText(QHBoxLayout& row)
{
    auto* label = new QLabel(QStringLiteral("Find:"), this);
    label->setBuddy(m_text);
    m_text->setObjectName(QStringLiteral("FindBarText"));
    m_text->setAccessibleName(QStringLiteral("Text to find"));
    m_text->setMaxLength(longestText);
    m_text->setMinimumWidth(fontMetrics().averageCharWidth() * 10);
    m_text->setMaximumWidth(fontMetrics().averageCharWidth() * 40);
    m_text->installEventFilter(this);
    m_bindings.textBox(m_bar.Text, *m_text);
    row.addWidget(label);
    row.addWidget(m_text, 3);
}

void FindBarView::addOption(QHBoxLayout& row, CheckBox& state, const char* name)
{
    auto* view = new QCheckBox(this);
    view->setObjectName(QLatin1String(name));
    m_bindings.checkBox(state, *view);
    row.addWidget(view);
}

/// A picture for the eye, the caption for screen readers.
void FindBarView::addButton(QHBoxLayout& row, Button& state, const char* name, const char* icon)
{
    auto* view = new QToolButton(this);
    view->setObjectName(QLatin1String(name));
    view->setAutoRaise(true);
    view->setFocusPolicy(Qt::TabFocus);
    m_bindings.button(state, *view);
    view->setToolButtonStyle(Qt::ToolButtonIconOnly);
    view->setIcon(themeIcon(QLatin1String(icon)));
    view->setAccessibleName(toQt(state.Caption.get()));
    row.addWidget(view);
}

/// F3 is a command of the menus everywhere else.
bool FindBarView::takeKey(const QKeyEvent& event)
{
    const bool back = event.modifiers().testFlag(Qt::ShiftModifier);
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F3:
        (back ? m_bar.Previous : m_bar.Next).Click();
        return true;
    case Qt::Key_Escape:
        m_bar.Close.Click();
        return true;
    default:
        return false;
    }
}

void FindBarView::keyPressEvent(QKeyEvent* event)
{
    if (!takeKey(*event)) QWidget::keyPressEvent(event);
}

bool FindBarView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn && m_bar.Text.GotFocus) m_bar.Text.GotFocus();
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F3)
        event->accept();
    return (event->type() == QEvent::KeyPress && takeKey(*static_cast<QKeyEvent*>(event))) ||
           QWidget::eventFilter(watched, event);
}

} // namespace tarvex
