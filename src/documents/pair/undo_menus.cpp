#include "documents/pair/undo_menus.h"

namespace tarvex {

namespace {

constexpr int undoButton = 11;
constexpr int redoButton = 12;

struct Offer {
    MenuItem& item;
    int button;
    std::string name;
    std::size_t levels; ///< that can be reached
};

void showOffer(Editor& editor, const Offer& offer)
{
    const std::string text = offer.levels > 0 ? offer.name + " (" + std::to_string(offer.levels) + ")" : offer.name;
    offer.item.Caption = "&" + text;
    offer.item.Enabled = offer.levels > 0;
    Button& button = editor.mum.Toolbar1.Buttons(offer.button);
    button.Enabled = offer.levels > 0;
    if (offer.levels == 0 || editor.shared.settings.OKtoShowToolTips == 1) button.ToolTipText = text;
}

} // namespace

void UpdateUndoRedoMenus(Editor& editor)
{
    const UndoHistory& history = editor.selected().Undo;
    showOffer(editor, {editor.menus.mnuEditUndo, undoButton, "Undo", history.Levels.size() - history.Position});
    showOffer(editor, {editor.menus.mnuEditRedo, redoButton, "Redo", history.Position - 1});
}

} // namespace tarvex
