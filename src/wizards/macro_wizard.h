#pragma once

#include "shell/help_topics.h"
#include "wizards/macro_maker.h"
#include "wizards/page_turner.h"

namespace tarvex {

/// Leads through a first macro file: a heading, the macros under it, another heading, and so on.
struct MacroWizard {
    static constexpr int finishPage = 12; ///< its Finish goes on to the last one
    static constexpr int lastPage = 13;

    explicit MacroWizard(Editor& theEditor);
    MacroWizard(const MacroWizard&) = delete;
    MacroWizard& operator=(const MacroWizard&) = delete;

    std::int16_t WindowOpen = 0; ///< 1 while the window is loaded
    ToolForm form{"MacroWizard", &WindowOpen};
    PageTurner pages{lastPage, helpTopic::macroWizard, form}; ///< foot is CommandAll
    MacroMaker maker;
};

void Form_Load(MacroWizard& window);
/// A button of the foot.
void CommandAll_Click(MacroWizard& window, std::size_t Index);

} // namespace tarvex
