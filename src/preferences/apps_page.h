#pragma once

#include "documents/pair/editor.h"

#include <array>

namespace tarvex {

/// The page "Apps": the files of the viewers, and the user's own programs on the Apps menu.
struct AppsPage {
    explicit AppsPage(Editor& theEditor);
    AppsPage(const AppsPage&) = delete;
    AppsPage& operator=(const AppsPage&) = delete;

    static constexpr std::size_t programs = 4;

    Editor& editor;
    TextBox Text5; ///< picture of the image viewer
    Button Text5Browse;
    TextBox Text6; ///< text beside it
    Button Text6Browse;
    std::array<TextBox, programs> CustomAppNameText;
    std::array<TextBox, programs> CustomAppPathText;
    std::array<Button, programs> CustomAppPathBrowse;
    std::array<CheckBox, programs> CustomAppPathUse;
};

void loadApps(AppsPage& page);
/// Takes the page into the settings, paths in lower case.
void takeApps(AppsPage& page);

} // namespace tarvex
