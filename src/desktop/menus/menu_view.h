#pragma once

#include "desktop/bind.h"
#include "shell/menus.h"

#include <vector>

class QMenu;
class QMenuBar;

namespace tarvex {

/// Fills a menu. Dividers that would divide nothing aren't seen.
void fillMenu(QMenu& menu, const std::vector<MenuEntry>& entries, Bindings& bindings);
void fillMenuBar(QMenuBar& bar, const std::vector<MenuEntry>& entries, Bindings& bindings);

} // namespace tarvex
