#pragma once

#include "composer/insert_options.h"
#include "desktop/bind.h"

class QWidget;

namespace tarvex {

// The pages with forms. Each has its fields labelled, and a button that inserts the statement. `bindings` are destroyed
// before the pages.

QWidget* rangePage(InsertOptions& window, Bindings& bindings);
QWidget* antennaPage(InsertOptions& window, Bindings& bindings);
QWidget* throttlePage(InsertOptions& window, Bindings& bindings);
QWidget* axesPage(InsertOptions& window, Bindings& bindings);
QWidget* setUpPage(InsertOptions& window, Bindings& bindings);

} // namespace tarvex
