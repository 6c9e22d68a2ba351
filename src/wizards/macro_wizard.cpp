#include "wizards/macro_wizard.h"

namespace tarvex {

namespace {

void nameCloseButton(MacroWizard& window)
{
    const bool finishes = window.pages.PageNumber >= MacroWizard::finishPage;
    window.pages.foot[footButton::close].Caption = finishes ? "Finish" : "Cancel";
}

} // namespace

MacroWizard::MacroWizard(Editor& theEditor) : maker(theEditor)
{
    form.Caption = "The Macro file wizard";
    form.TopMost = true;
    form.Load = [this] { Form_Load(*this); };
    for (std::size_t index = 0; index < pages.foot.size(); ++index)
        pages.foot.at(index).handler = [this, index] { CommandAll_Click(*this, index); };
}

void Form_Load(MacroWizard& window)
{
    loadFoot(window.pages, window.maker.editor.operations);
    loadMacroMaker(window.maker);
    window.form.markLoaded();
}

void CommandAll_Click(MacroWizard& window, std::size_t Index)
{
    const bool goesOn = Index == footButton::close && window.pages.PageNumber == MacroWizard::finishPage;
    footClick(window.pages, window.maker.editor.operations, goesOn ? footButton::next : Index);
    nameCloseButton(window);
}

} // namespace tarvex
