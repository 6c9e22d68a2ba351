#pragma once

#include "desktop/form_window.h"
#include "preferences/import_form.h"

namespace tarvex {

/// What an old installation holds, with a tick for each part.
class ImportView : public FormWindow {
    Q_OBJECT
public:
    ImportView(ImportForm& form, QWidget* parent);
};

} // namespace tarvex
