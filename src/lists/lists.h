#pragma once

#include "lists/favourites.h"
#include "lists/games.h"
#include "lists/previous_files.h"

namespace tarvex {

/// The lists that the user fills. They take their places among the commands and operations when they are made.
struct Lists {
    explicit Lists(Editor& editor);

    PreviousFiles previous;
    Favourites favourites;
    Games games;
};

} // namespace tarvex
