#pragma once

#include "composer/insert_options.h"
#include "desktop/bind.h"

class QWidget;

namespace tarvex {

// The pages of SSTab7. `bindings` go before the pages do.

QWidget* macrosPage(InsertOptions& window, Bindings& bindings);
QWidget* templatesPage(InsertOptions& window, Bindings& bindings);

} // namespace tarvex
