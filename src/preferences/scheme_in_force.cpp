#include "preferences/scheme_in_force.h"

#include "documents/editing/pane_change.h"
#include "documents/pair/loading.h"
#include "documents/pair/undo_menus.h"
#include "documents/window/frame_commands.h"

namespace tarvex {

namespace {

void takeFont(Editor& editor, Side& side)
{
    const Settings& settings = editor.shared.settings;
    Pane& pane = side.pane;
    applyScheme(editor, side);
    const std::int64_t start = pane.SelStart();
    const std::int64_t length = pane.SelLength();
    pane.setSelStart(0);
    pane.setSelLength(static_cast<std::int64_t>(pane.TextLength()));
    pane.setSelFontName(settings.TextFontName);
    pane.setSelFontSize(settings.TextFontSize);
    pane.setSelBold(settings.TextFontBold == 1);
    pane.setSelStart(start);
    pane.setSelLength(length);
}

} // namespace

void DamnFontWasChanged(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_DamnFontWasChanged");
    const Loading loading(editor.shared);
    for (Side* side : {&editor.joystick, &editor.macro}) step([&] { takeFont(editor, *side); });
    editor.shared.FontChanged = 0;
}

void showColourScheme(Editor& editor)
{
    for (Side* side : {&editor.joystick, &editor.macro}) {
        side->pane.BackColor = side->Background;
        side->pane.Refresh();
        const bool hasText = side->pane.TextLength() > 0;
        if (hasText && editor.shared.settings.ApplyColoursOnFileOpen == 1) side->ApplyColours();
    }
}

void showSettingsInFrame(Editor& editor)
{
    const Steps step;
    const Settings& settings = editor.shared.settings;
    const Operations& operations = editor.operations;
    Mum& mum = editor.mum;
    editor.menus.mnuGames.Caption = settings.GamesCaption;
    mum.Toolbar1.Flat = settings.FlatToolbar == 1;
    mum.Toolbar1.Wrappable = settings.CanWrapToolbar == 1;
    step([&] { settings.GradientEffect == 1 ? operations.PaintGradient() : operations.ReleaseGradient(); });
    step([&] { operations.UpdateTooltips(); });
    if (settings.OKtoShowToolTips == 1) step([&] { UpdateUndoRedoMenus(editor); }); // their tips count the levels
    step([&] { operations.UpdateToolBarOpenSaveTooltips(); });
    step([&] { operations.UpdateEditorTooltips(); });
    step([&] { operations.ShowExtraButtons(); });
    step([&] { showCalibration(editor); }); // its button is an extra one with a setting of its own
    step([&] { mum.Toolbar1.Refresh(); });
}

} // namespace tarvex
