#include "desktop/menus/menu_array_view.h"

#include "desktop/menus/menu_item_view.h"

#include <QAction>
#include <QMenu>

namespace tarvex {

namespace {

/// Else the gaps of a damaged list would push the commands below it off the screen.
void hideWhileBlank(MenuItem& item, QAction& action, Bindings& bindings)
{
    const auto show = [&item, &action] { action.setVisible(item.Visible && !item.Caption.get().empty()); };
    show();
    bindings.follow(item.Caption, show);
    bindings.follow(item.Visible, show);
}

} // namespace

MenuArrayView::MenuArrayView(MenuArray& array, QMenu& menu)
    : QObject(&menu), m_array(array), m_menu(menu),
      m_before(menu.actions().isEmpty() ? nullptr : menu.actions().constLast())
{
    m_bindings.follow(array.changed, [this] { m_filled = false; });
    connect(&menu, &QMenu::aboutToShow, this, &MenuArrayView::fill);
    fill();
}

void MenuArrayView::fill()
{
    if (std::exchange(m_filled, true)) return;
    m_items = Bindings();
    qDeleteAll(m_actions);
    m_actions.clear();
    const QList<QAction*> others = m_menu.actions();
    QAction* behind = others.value(others.indexOf(m_before) + 1); // none: the array ends the menu
    for (int index = 0; index <= m_array.UBound(); ++index) {
        auto* action = new QAction(&m_menu);
        (m_array.plain ? bindPlainItem(m_array[index], *action, m_items) : bindItem(m_array[index], *action, m_items));
        if (m_array.hidesBlanks) hideWhileBlank(m_array[index], *action, m_items);
        m_menu.insertAction(behind, action);
        m_actions.append(action);
    }
}

} // namespace tarvex
