#include "desktop/menus/menu_view.h"

#include "desktop/menus/menu_array_view.h"
#include "desktop/menus/menu_item_view.h"
#include "documents/editing/pane_keys.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

namespace tarvex {

namespace {

constexpr char dividerCaption[] = "-";

/// These keys go to the pane of the selected tab, each to the command that it has there.
bool isPaneKey(const std::string& keys)
{
    const auto table = paneKeys();
    return std::any_of(table.begin(), table.end(), [&](const PaneKey& key) { return key.keys == keys; });
}

void addCommand(QMenu& menu, const MenuEntry& entry, Bindings& bindings)
{
    QAction* action = menu.addAction(QString());
    const QKeySequence keys(toQt(entry.keys));
    if (entry.keys.empty() || isPaneKey(entry.keys)) {
        bindItem(*entry.item, *action, bindings, keys.toString(QKeySequence::NativeText), entry.accessKey);
    } else {
        bindItem(*entry.item, *action, bindings, {}, entry.accessKey);
        action->setShortcut(keys);
    }
}

void addDivider(QMenu& menu, MenuItem& item, Bindings& bindings)
{
    QAction* divider = menu.addSeparator();
    divider->setObjectName(toQt(item.Name));
    bindings.bind(item.Visible, [divider](bool on) { divider->setVisible(on); });
}

void addMenu(QMenu& subMenu, const MenuEntry& entry, Bindings& bindings)
{
    subMenu.setObjectName(toQt(entry.item->Name));
    fillMenu(subMenu, entry.entries, bindings);
    QAction* action = subMenu.menuAction();
    bindings.bind(entry.item->Caption, [action](const std::string& caption) { action->setText(toQt(caption)); });
    bindings.bind(entry.item->Visible, [action](bool on) { action->setVisible(on); });
    bindings.bind(entry.item->Enabled, [action](bool on) { action->setEnabled(on); });
}

} // namespace

void fillMenu(QMenu& menu, const std::vector<MenuEntry>& entries, Bindings& bindings)
{
    menu.setSeparatorsCollapsible(true);
    menu.setToolTipsVisible(true);
    for (const MenuEntry& entry : entries) {
        if (entry.array != nullptr) {
            new MenuArrayView(*entry.array, menu);
        } else if (entry.item == nullptr) {
            menu.addSeparator();
        } else if (entry.item->Caption == dividerCaption) {
            addDivider(menu, *entry.item, bindings);
        } else if (entry.entries.empty()) {
            addCommand(menu, entry, bindings);
        } else {
            addMenu(*menu.addMenu(QString()), entry, bindings);
        }
    }
}

void fillMenuBar(QMenuBar& bar, const std::vector<MenuEntry>& entries, Bindings& bindings)
{
    for (const MenuEntry& entry : entries) addMenu(*bar.addMenu(QString()), entry, bindings);
}

} // namespace tarvex
