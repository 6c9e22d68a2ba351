#include "wizards/speedy.h"

namespace tarvex {

Speedy::Speedy(Editor& theEditor) : maker(theEditor)
{
    form.Caption = "Speedy - for fast macro files";
    form.TopMost = true;
    form.Load = [this] { Form_Load(*this); };
}

void Form_Load(Speedy& window)
{
    window.SSTab1.Tab = 0;
    loadMacroMaker(window.maker);
    window.form.markLoaded();
}

} // namespace tarvex
