#pragma once

#include "desktop/bind.h"

class QAction;

namespace tarvex {

/// Shows an item's caption, tick, enabling and visibility; choosing it runs its command. An item without a handler is
/// disabled. `shownKeys` stand beside the caption and do nothing. `accessKey` is marked in a caption that marks none.
void bindItem(MenuItem& item, QAction& action, Bindings& bindings, const QString& shownKeys = {},
              char accessKey = '\0');
/// The same for an item whose caption is a file or a name that the user gave, without access key.
void bindPlainItem(MenuItem& item, QAction& action, Bindings& bindings);

} // namespace tarvex
