#pragma once

#include "shell/menus.h"
#include "shell/tool_form.h"

#include <array>

namespace tarvex {

/// Indexes of the buttons at the foot of a wizard.
namespace footButton {
constexpr std::size_t close = 0;
constexpr std::size_t next = 1;
constexpr std::size_t back = 2;
constexpr std::size_t help = 3;
constexpr std::size_t count = 4;
} // namespace footButton

/// The pages of a wizard and the buttons at its foot. The pages are numbered from 0.
struct PageTurner {
    PageTurner(int theLastPage, ToolForm& theForm) : lastPage(theLastPage), form(theForm) {}

    const int lastPage;
    ToolForm& form;
    Property<int> PageNumber = 0;
    std::array<Button, footButton::count> foot;
};

/// Gives the foot its captions; the help button runs the program's help command, while there is one.
void loadFoot(PageTurner& pages, const Menus& menus);
/// Shows a page of the wizard, and which buttons it has.
void showPage(PageTurner& pages, int page);
/// A click of a button of the foot by its index: closes the window, or turns the page.
void footClick(PageTurner& pages, const Menus& menus, std::size_t index);

} // namespace tarvex
