#include "wizards/slash_wizard.h"

namespace tarvex {

SlashWizard::SlashWizard(const Operations& theOperations) : operations(theOperations)
{
    form.Caption = "Understanding slash modifiers";
    form.TopMost = true;
    form.Load = [this] { Form_Load(*this); };
    for (std::size_t index = 0; index < pages.foot.size(); ++index)
        pages.foot.at(index).handler = [this, index] { Command1_Click(*this, index); };
}

void Form_Load(SlashWizard& window)
{
    loadFoot(window.pages, window.operations);
    window.form.markLoaded();
}

void Command1_Click(SlashWizard& window, std::size_t Index) { footClick(window.pages, window.operations, Index); }

} // namespace tarvex
