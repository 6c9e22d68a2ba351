#pragma once

#include "desktop/form_window.h"
#include "lists/enter_favouritename.h"

namespace tarvex {

/// Window of the dialogue that asks for the name of a new favourite.
class EnterFavouriteNameView : public FormWindow {
    Q_OBJECT
public:
    EnterFavouriteNameView(EnterFavouritename& form, QWidget* parent);
};

} // namespace tarvex
