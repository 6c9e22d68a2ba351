#pragma once

#include "desktop/form_window.h"
#include "preferences/files_home.h"

namespace tarvex {

/// Asks where the user's files are to live.
class FilesHomeView : public FormWindow {
    Q_OBJECT
public:
    FilesHomeView(FilesHome& form, QWidget* parent);
};

} // namespace tarvex
