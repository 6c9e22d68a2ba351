#pragma once

#include "composer/insert_options.h"
#include "desktop/bind.h"

class QWidget;

namespace tarvex {

/// The Flag tab: 48 definitions on pages of eight, and below them what builds terms. `bindings` are destroyed
/// before the page.
QWidget* flagsPage(InsertOptions& window, Bindings& bindings);

} // namespace tarvex
