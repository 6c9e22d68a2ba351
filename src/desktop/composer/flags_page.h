#pragma once

#include "composer/insert_options.h"
#include "desktop/bind.h"

class QWidget;

namespace tarvex {

/// The Flag tab: 48 definitions on pages of eight, and below them what builds terms. `bindings` go before the page
/// does.
QWidget* flagsPage(InsertOptions& window, Bindings& bindings);

} // namespace tarvex
