#include "desktop/documents/window/accessible_toolbar.h"

#include <QToolButton>

namespace tarvex {

AccessibleToolbar::AccessibleToolbar(QWidget& bar)
    : QAccessibleWidget(&bar, QAccessible::ToolBar, QStringLiteral("Toolbar"))
{
}

QList<QToolButton*> AccessibleToolbar::buttons() const
{
    QList<QToolButton*> buttons = widget()->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly);
    buttons.removeIf([this](const QToolButton* button) { return !button->isVisibleTo(widget()); });
    return buttons;
}

int AccessibleToolbar::childCount() const { return static_cast<int>(buttons().size()); }

QAccessibleInterface* AccessibleToolbar::child(int index) const
{
    return QAccessible::queryAccessibleInterface(buttons().value(index));
}

int AccessibleToolbar::indexOfChild(const QAccessibleInterface* child) const
{
    return static_cast<int>(buttons().indexOf(qobject_cast<QToolButton*>(child->object())));
}

} // namespace tarvex
