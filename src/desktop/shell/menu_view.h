#pragma once

#include "desktop/bind.h"
#include "shell/menus.h"

#include <vector>

class QAction;
class QMenu;
class QMenuBar;

namespace tarvex {

/// Shows an item's caption, tick, enabling and visibility; choosing it runs its command. An item without a handler is
/// disabled. `shownKeys` stand beside the caption and do nothing.
void bindItem(MenuItem& item, QAction& action, Bindings& bindings, const QString& shownKeys = {});

/// Fills a menu. Entries without a command are left out, and so are dividers that would divide nothing.
void fillMenu(QMenu& menu, const std::vector<MenuEntry>& entries, Bindings& bindings);
void fillMenuBar(QMenuBar& bar, const std::vector<MenuEntry>& entries, Bindings& bindings);

} // namespace tarvex
