#pragma once

#include "composer/insert_options.h"
#include "desktop/bind.h"

class QWidget;

namespace tarvex {

// The pages of SSTab7. `bindings` are destroyed before the pages.

QWidget* macrosPage(InsertOptions& window, Bindings& bindings);
QWidget* templatesPage(InsertOptions& window, Bindings& bindings);

} // namespace tarvex
