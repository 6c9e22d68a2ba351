#include "desktop/viewer/view_image_view.h"

#include "desktop/menus/menu_view.h"
#include "desktop/viewer/picture_area.h"

#include <QAction>
#include <QMenuBar>
#include <QShortcut>
#include <QVBoxLayout>

namespace tarvex {

ViewImageView::ViewImageView(ViewImage& window, QWidget* parent) : ToolFormWindow(window.form, parent)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    auto* menus = new QMenuBar(this);
    fillMenuBar(*menus, window.menuBar(), m_bindings);
    column->setMenuBar(menus);
    auto* area = new PictureArea(window, this);
    column->addWidget(area);
    area->setFocus();
    addPaneKeys(window);
}

/// The menus leave the keys that the documents' panes take to the panes; this window has none.
void ViewImageView::addPaneKeys(ViewImage& window)
{
    for (const MenuEntry& menu : window.menuBar()) {
        for (const MenuEntry& entry : menu.entries) {
            if (entry.keys.empty() || !findChild<QAction*>(toQt(entry.item->Name))->shortcut().isEmpty()) continue;
            auto* shortcut = new QShortcut(QKeySequence(toQt(entry.keys)), this);
            connect(shortcut, &QShortcut::activated, this, [item = entry.item] { item->Click(); });
        }
    }
}

} // namespace tarvex
