#pragma once

#include "desktop/bind.h"

#include <QObject>

class QAction;
class QMenu;

namespace tarvex {

/// The items of a menu array in a menu, at the place where this was made. They are made anew when the array has changed
/// and the menu is about to be seen, so that a list that grows costs nothing meanwhile.
class MenuArrayView : public QObject {
    Q_OBJECT
public:
    /// Belongs to the menu; the array outlives it.
    MenuArrayView(MenuArray& array, QMenu& menu);

private:
    void fill();

    MenuArray& m_array;
    QMenu& m_menu;
    QAction* m_before; ///< the items stand behind it; none: at the top of the menu
    QList<QAction*> m_actions;
    bool m_filled = false;
    Bindings m_items;
    Bindings m_bindings;
};

} // namespace tarvex
