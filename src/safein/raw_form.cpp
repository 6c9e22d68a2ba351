#include "safein/raw_form.h"

namespace tarvex {

namespace {

// The size of the window as it was drawn, twips.
constexpr float firstWidth = 960.0F * twipsPerPixel;
constexpr float firstHeight = 600.0F * twipsPerPixel;

} // namespace

RAWform::RAWform(Editor& theEditor) : editor(theEditor), form("RAWform", &WindowOpen)
{
    form.Caption = "Safein - the Thrustmaster key syntax and RAW code generator";
    form.Width = firstWidth;
    form.Height = firstHeight;
}

std::vector<MenuEntry> RAWform::menuBar()
{
    const MenuEntry divider{};
    const auto command = [](MenuItem& item) { return MenuEntry{&item, {}, {}, nullptr}; };
    const auto list = [](MenuArray& array) { return MenuEntry{nullptr, {}, {}, &array}; };
    return {
        {&mnuFile, {}, {command(mnuFileClose)}, nullptr},
        {&mnuOptions,
         {},
         {list(mnuOption1), command(mnuUseExtendedRAW), divider, command(mnuOptionsExplain),
          command(mnuExtendedExplain)},
         nullptr},
        {&mnuHelp,
         {},
         {command(mnuHelpContents), divider, command(mnuRawOverview), command(mnuHelpRawcodes),
          command(mnuUseHideButton)},
         nullptr},
    };
}

} // namespace tarvex
