#include "documents/pair/editor_layout.h"

#include <algorithm>
#include <utility>

namespace tarvex {

namespace {

// What the tab strip takes around a pane, pixels.
constexpr int stripSide = 3;
constexpr int stripHeader = 23;
constexpr int stripHeight = 22;
constexpr int smallestStrip = 120; ///< what the frame leaves to the panes
constexpr int gap = 4;             ///< of each tile's width

/// A move that a tiny window has no room for is left out.
void move(Property<Placement>& place, const Placement& to)
{
    if (to.Width >= 0 && to.Height >= 0) place = to;
}

/// The stored width, as far as a settings file may be believed and the window has room beside the frame.
int frameWidth(const Editor& editor)
{
    const int widest = std::max(smallestMacroFrame, editor.ScaleWidth - smallestStrip);
    return std::clamp<int>(editor.shared.settings.MacroFrameWidth, smallestMacroFrame, widest);
}

Placement placeStrip(Editor& editor)
{
    const int width = frameWidth(editor);
    const int frame = editor.menus.mnuViewMacros.Checked ? width : 0;
    move(editor.TabStrip1Place, {frame, 0, editor.ScaleWidth - frame, editor.ScaleHeight});
    editor.FrameMacros.Visible = editor.menus.mnuViewMacros.Checked.get();
    move(editor.FrameMacros.Place, {0, 0, width, editor.ScaleHeight});
    return editor.TabStrip1Place;
}

/// Once for the whole drag: each write waits for the disk.
void storeDraggedWidth(Editor& editor)
{
    const auto before = std::exchange(editor.FrameMacros.WidthBeforeDrag, std::nullopt);
    if (before.value_or(editor.shared.settings.MacroFrameWidth) == editor.shared.settings.MacroFrameWidth) return;
    editor.shared.store.write(Access::SaveMacroFrameWidth, "ED_FrameMacros_MouseMove");
}

} // namespace

void PositionControls(Editor& editor)
{
    const Placement strip = placeStrip(editor);
    for (Side* side : {&editor.joystick, &editor.macro}) {
        move(side->pane.Place, {strip.Left + stripSide, strip.Top + stripHeader, strip.Width - 2 * stripSide,
                                strip.Height - stripHeight});
        side->pane.Visible = side->tab == editor.TabStrip1.SelectedItem;
    }
}

void ShowBothFiles(Editor& editor)
{
    const Placement strip = placeStrip(editor);
    const int half = strip.Width / 2;
    const int top = strip.Top + stripHeader;
    const int height = strip.Height - stripHeight;
    move(editor.JoystickText.Place, {strip.Left + stripSide, top, half - gap, height});
    move(editor.MacroText.Place, {strip.Left + half + 2, top, half - gap, height});
    editor.JoystickText.Visible = true;
    editor.MacroText.Visible = true;
}

void Form_Resize(Editor& editor)
{
    if (editor.menus.mnuViewTileVertically.Checked)
        ShowBothFiles(editor);
    else
        PositionControls(editor);
}

void mnuViewTileVertically_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuViewTileVertically_Click");
    step([&] {
        MenuItem& item = editor.menus.mnuViewTileVertically;
        item.Checked = !item.Checked;
        Form_Resize(editor);
        editor.TabStrip1.Select(editor.TabStrip1.SelectedItem);
    });
}

void mnuViewMacros_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuViewMacros_Click");
    step([&] {
        MenuItem& item = editor.menus.mnuViewMacros;
        item.Checked = !item.Checked;
        Form_Resize(editor);
    });
}

void FrameMacros_MouseMove(Editor& editor, bool leftButton, float x, bool overRightEdge)
{
    FrameMacros& frame = editor.FrameMacros;
    if (!leftButton) {
        frame.MousePointer = overRightEdge ? MousePointer::SizeWestEast : MousePointer::Default;
        storeDraggedWidth(editor);
        return;
    }
    if (frame.MousePointer != MousePointer::SizeWestEast) return;

    const float widest = 32767.0F; // the setting is a 16-bit number
    const float pixels = std::clamp(x / static_cast<float>(twipsPerPixel), 0.0F, widest - 1);
    const auto width = static_cast<std::int16_t>(std::max(static_cast<int>(pixels) + 1, smallestMacroFrame));
    if (!frame.WidthBeforeDrag) frame.WidthBeforeDrag = editor.shared.settings.MacroFrameWidth;
    editor.shared.settings.MacroFrameWidth = width;
    Form_Resize(editor);
}

} // namespace tarvex
