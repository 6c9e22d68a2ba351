#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

constexpr int smallestMacroFrame = 185; ///< pixels

/// Tabbed layout: the pane of the selected tab fills the tab strip.
void PositionControls(Editor& editor);
/// Tiled layout: both panes side by side.
void ShowBothFiles(Editor& editor);
/// Runs the layout that is active; the view calls it after it wrote ScaleWidth and ScaleHeight.
void Form_Resize(Editor& editor);
void mnuViewTileVertically_Click(Editor& editor);
void mnuViewMacros_Click(Editor& editor);

/// The mouse moved over the macro frame. `x` is in twips from the frame's left edge; `overRightEdge` says whether it
/// is where the frame can be dragged. The width follows the drag, and is stored when the button is up again.
void FrameMacros_MouseMove(Editor& editor, bool leftButton, float x, bool overRightEdge);

} // namespace tarvex
