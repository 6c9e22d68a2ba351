#pragma once

#include "wizards/page_turner.h"

namespace tarvex {

/// "Understanding slash modifiers": pages to be read, without actions.
struct SlashWizard {
    static constexpr int lastPage = 5;

    explicit SlashWizard(const Menus& theMenus);
    SlashWizard(const SlashWizard&) = delete;
    SlashWizard& operator=(const SlashWizard&) = delete;

    const Menus& menus;
    std::int16_t WindowOpen = 0; ///< 1 while the window is loaded
    ToolForm form{"SlashWizard", &WindowOpen};
    PageTurner pages{lastPage, form};
};

void Form_Load(SlashWizard& window);
/// A button of the foot.
void Command1_Click(SlashWizard& window, std::size_t Index);

} // namespace tarvex
