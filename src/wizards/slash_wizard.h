#pragma once

#include "shell/help_topics.h"
#include "wizards/page_turner.h"

namespace tarvex {

/// "Understanding slash modifiers": pages to be read, without actions.
struct SlashWizard {
    static constexpr int lastPage = 5;

    explicit SlashWizard(const Operations& theOperations);
    SlashWizard(const SlashWizard&) = delete;
    SlashWizard& operator=(const SlashWizard&) = delete;

    const Operations& operations;
    std::int16_t WindowOpen = 0; ///< 1 while the window is loaded
    ToolForm form{"SlashWizard", &WindowOpen};
    PageTurner pages{lastPage, helpTopic::slashWizard, form};
};

void Form_Load(SlashWizard& window);
/// A button of the foot.
void Command1_Click(SlashWizard& window, std::size_t Index);

} // namespace tarvex
