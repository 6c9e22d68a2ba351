#pragma once

#include "documents/pair/editor.h"

#include <cstdint>

namespace tarvex {

/// Pages of the preferences that commands lead to, from 0.
namespace preferencesPage {
constexpr std::int16_t colours = 1;
constexpr std::int16_t apps = 2;
constexpr std::int16_t favourites = 3;
constexpr std::int16_t games = 4;
} // namespace preferencesPage

/// Opens the preferences at a page.
void showPreferencesPage(Editor& editor, std::int16_t page);

void mnuViewEditColours_Click(Editor& editor);

} // namespace tarvex
